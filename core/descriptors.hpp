// What the rows of the registry name: the operations of the leaves and the declarations of the structures, which stand
// in the folders of their subjects.
#pragma once

namespace kovra::asn1 {

struct Operations;
struct Structure;
struct ListShape;
struct ChoiceShape;
struct StringChoice;

extern const Operations end_of_contents_operations;
extern const Operations boolean_operations;
extern const Operations null_operations;
extern const Operations any_operations;
extern const Operations any_list_operations;
extern const Operations list_operations;
extern const Operations structure_operations;
extern const Operations kept_structure_operations;
extern const Operations integer_operations;
extern const Operations bit_string_operations;
extern const Operations octet_string_operations;
extern const Operations untagged_string_operations;
extern const Operations character_string_operations;
extern const Operations object_identifier_operations;
extern const Operations any_time_operations;
extern const Operations time_operations;
extern const Operations choice_operations;
extern const Operations string_choice_operations;
extern const Operations unbuilt_operations;

// pkix/
extern const Structure aa_issuing_distribution_point;
extern const Structure access_description;
extern const Structure algorithm_identifier;
extern const Structure attribute;
extern const Structure attribute_type_and_distinguished_value;
extern const Structure attribute_type_and_value;
extern const Structure attribute_values_with_context_item;
extern const Structure authority_key_identifier;
extern const Structure basic_constraints;
extern const Structure certificate;
extern const Structure certificate_list;
extern const Structure certificate_pair;
extern const Structure certification_request;
extern const Structure certification_request_info;
extern const Structure distribution_point;
extern const Structure dn_values_with_context_item;
extern const Structure edi_party_name;
extern const Structure extension;
extern const Structure general_subtree;
extern const Structure instance_of;
extern const Structure issuing_distribution_point;
extern const Structure name_and_optional_uid;
extern const Structure name_constraints;
extern const Structure name_forms;
extern const Structure notice_reference;
extern const Structure pkcs10_attribute;
extern const Structure pkix_name_constraints;
extern const Structure policy_constraints;
extern const Structure policy_information;
extern const Structure policy_mapping;
extern const Structure private_key_usage_period;
extern const Structure revoked_certificate;
extern const Structure subject_public_key_info;
extern const Structure tbs_cert_list;
extern const Structure tbs_certificate;
extern const Structure telex_number;
extern const Structure user_notice;
extern const Structure uuid_pair;
extern const Structure validity;
extern const Structure x500_context;
extern const Structure x500_name;
extern const ListShape attribute_values_with_context;
extern const ListShape certificate_policies;
extern const ListShape context_list;
extern const ListShape crl_distribution_points;
extern const ListShape dn_values_with_context;
extern const ListShape ext_key_usage;
extern const ListShape extensions;
extern const ListShape general_names;
extern const ListShape general_subtrees;
extern const ListShape information_access;
extern const ListShape notice_numbers;
extern const ListShape pkcs10_attributes;
extern const ListShape policy_mappings;
extern const ListShape policy_qualifiers;
extern const ListShape postal_address;
extern const ListShape relative_distinguished_name;
extern const ListShape revoked_certificates;
extern const ListShape smime_capabilities;
extern const ListShape subject_directory_attributes;
extern const ChoiceShape distribution_point_name;
extern const ChoiceShape general_name;
extern const StringChoice directory_string;
extern const StringChoice display_text;
extern const StringChoice pkcs9_string;

// keys/
extern const Structure digest_info;

// cms/
extern const Structure content_info;
extern const ListShape digest_algorithm_identifiers;

// services/
extern const Structure ess_cert_id;
extern const Structure ess_cert_id_v2;
extern const Structure issuer_serial;
extern const Structure ocsp_basic_response;
extern const Structure ocsp_cert_id;
extern const Structure ocsp_crl_id;
extern const Structure ocsp_preferred_signature_algorithms;
extern const Structure ocsp_request;
extern const Structure ocsp_response;
extern const Structure ocsp_response_bytes;
extern const Structure ocsp_response_data;
extern const Structure ocsp_revoked_info;
extern const Structure ocsp_service_locator;
extern const Structure ocsp_signature;
extern const Structure ocsp_single_request;
extern const Structure ocsp_single_response;
extern const Structure ocsp_tbs_request;
extern const Structure pki_status_info;
extern const Structure signing_certificate;
extern const Structure signing_certificate_v2;
extern const Structure time_stamp_accuracy;
extern const Structure time_stamp_req;
extern const Structure time_stamp_resp;
extern const Structure tst_info;
extern const ListShape ess_cert_ids;
extern const ListShape ess_cert_ids_v2;
extern const ListShape ocsp_request_list;
extern const ListShape ocsp_responses;
extern const ListShape pki_free_text;
extern const ChoiceShape ocsp_cert_status;
extern const ChoiceShape ocsp_responder_id;

} // namespace kovra::asn1
