// The registry: a row for each type identifier, and declarations of what the rows name: the operations of the leaves,
// and the tables that stand in the rooms of their subjects, where a table refers to rows while it is compiled.
#pragma once

#include <iterator>

#include "core/type.hpp"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

inline constexpr uint32_t type_count = KOVRA_ASN1_TYPE_COUNT;

struct StructureShape;
struct ListShape;
struct ChoiceShape;
struct StringChoiceShape;

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

extern const ListShape list_of_any;
extern const ListShape list_of_any_1;

// keys/
extern const StructureShape cert_bag;
extern const StructureShape cert_with_attributes;
extern const StructureShape crl_bag;
extern const StructureShape dh_parameter;
extern const StructureShape digest_info;
extern const StructureShape dss_parms;
extern const StructureShape dss_sig_value;
extern const StructureShape ec_private_key;
extern const StructureShape ecdsa_sig_value;
extern const StructureShape encrypted_private_key_info;
extern const StructureShape enveloped_key_pair;
extern const StructureShape mac_data;
extern const StructureShape other_prime_info;
extern const StructureShape pbe_parameter;
extern const StructureShape pbes2_params;
extern const StructureShape pbkdf2_params;
extern const StructureShape pbmac1_params;
extern const StructureShape pfx;
extern const StructureShape pkcs12_pbe_params;
extern const StructureShape private_key_attribute;
extern const StructureShape private_key_info;
extern const StructureShape rc2_cbc_parameter;
extern const StructureShape rc5_cbc_parameters;
extern const StructureShape rsa_enveloped_key_pair;
extern const StructureShape rsa_private_key;
extern const StructureShape rsa_public_key;
extern const StructureShape rsaes_oaep_params;
extern const StructureShape rsassa_pss_params;
extern const StructureShape safe_bag;
extern const StructureShape secret_bag;
extern const StructureShape sm2_cipher;
extern const StructureShape sm2_enveloped_key;
extern const StructureShape store_attribute;
extern const ListShape authenticated_safe;
extern const ListShape cert_store;
extern const ListShape old_cert_thumbprints;
extern const ListShape other_prime_infos;
extern const ListShape safe_contents;
extern const ListShape store_attribute_list;
extern const ChoiceShape ecpk_parameters;
extern const ChoiceShape inner_enveloped_key_pair;
extern const ChoiceShape pbkdf2_salt;
extern const ChoiceShape store_key_id;

// pkix/
extern const StructureShape aa_issuing_distribution_point;
extern const StructureShape access_description;
extern const StructureShape algorithm_identifier;
extern const StructureShape attribute;
extern const StructureShape attribute_type_and_distinguished_value;
extern const StructureShape attribute_type_and_value;
extern const StructureShape attribute_values_with_context_item;
extern const StructureShape authority_key_identifier;
extern const StructureShape basic_constraints;
extern const StructureShape certificate;
extern const StructureShape certificate_list;
extern const StructureShape certificate_pair;
extern const StructureShape certification_request;
extern const StructureShape certification_request_info;
extern const StructureShape distribution_point;
extern const StructureShape dn_values_with_context_item;
extern const StructureShape edi_party_name;
extern const StructureShape extension;
extern const StructureShape general_subtree;
extern const StructureShape instance_of;
extern const StructureShape issuing_distribution_point;
extern const StructureShape name_and_optional_uid;
extern const StructureShape name_constraints;
extern const StructureShape name_forms;
extern const StructureShape notice_reference;
extern const StructureShape pkcs10_attribute;
extern const StructureShape pkix_name_constraints;
extern const StructureShape policy_constraints;
extern const StructureShape policy_information;
extern const StructureShape policy_mapping;
extern const StructureShape policy_qualifier_info;
extern const StructureShape private_key_usage_period;
extern const StructureShape revoked_certificate;
extern const StructureShape subject_public_key_info;
extern const StructureShape tbs_cert_list;
extern const StructureShape tbs_certificate;
extern const StructureShape telex_number;
extern const StructureShape user_notice;
extern const StructureShape uuid_pair;
extern const StructureShape validity;
extern const StructureShape x500_context;
extern const StructureShape x500_name;
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
extern const StringChoiceShape directory_string;
extern const StringChoiceShape display_text;
extern const StringChoiceShape pkcs9_string;

// cms/
extern const StructureShape authenticated_data;
extern const StructureShape cms_signed_data;
extern const StructureShape content_info;
extern const StructureShape dh_other_info;
extern const StructureShape digested_data;
extern const StructureShape encapsulated_content_info;
extern const StructureShape encrypted_content_info;
extern const StructureShape encrypted_data;
extern const StructureShape enveloped_data;
extern const StructureShape issuer_and_serial_number;
extern const StructureShape kek_recipient_info;
extern const StructureShape key_agree_recipient_info;
extern const StructureShape key_specific_info;
extern const StructureShape key_trans_recipient_info;
extern const StructureShape originator_info;
extern const StructureShape other_certificate_format;
extern const StructureShape other_revocation_info_format;
extern const StructureShape other_key_attribute;
extern const StructureShape other_recipient_info;
extern const StructureShape password_recipient_info;
extern const StructureShape pkcs7_signed_data;
extern const StructureShape recipient_encrypted_key;
extern const StructureShape recipient_key_identifier;
extern const StructureShape signer_info;
extern const ListShape certificate_set;
extern const ListShape digest_algorithms;
extern const ListShape recipient_encrypted_keys;
extern const ListShape recipient_infos;
extern const ListShape revocation_info_choices;
extern const ListShape signer_infos;
extern const ChoiceShape certificate_choices;
extern const ChoiceShape key_agree_recipient_identifier;
extern const ChoiceShape originator_identifier_or_key;
extern const ChoiceShape recipient_info;
extern const ChoiceShape revocation_info_choice;
extern const ChoiceShape signer_identifier;

// services/
extern const StructureShape ess_cert_id;
extern const StructureShape ess_cert_id_v2;
extern const StructureShape issuer_serial;
extern const StructureShape message_imprint;
extern const StructureShape ocsp_basic_response;
extern const StructureShape ocsp_cert_id;
extern const StructureShape ocsp_crl_id;
extern const StructureShape ocsp_preferred_signature_algorithms;
extern const StructureShape ocsp_request;
extern const StructureShape ocsp_response;
extern const StructureShape ocsp_response_bytes;
extern const StructureShape ocsp_response_data;
extern const StructureShape ocsp_revoked_info;
extern const StructureShape ocsp_service_locator;
extern const StructureShape ocsp_signature;
extern const StructureShape ocsp_single_request;
extern const StructureShape ocsp_single_response;
extern const StructureShape ocsp_tbs_request;
extern const StructureShape pki_status_info;
extern const StructureShape signing_certificate;
extern const StructureShape signing_certificate_v2;
extern const StructureShape time_stamp_accuracy;
extern const StructureShape time_stamp_req;
extern const StructureShape time_stamp_resp;
extern const StructureShape tst_info;
extern const ListShape ess_cert_ids;
extern const ListShape ess_cert_ids_v2;
extern const ListShape ocsp_request_list;
extern const ListShape ocsp_responses;
extern const ListShape pki_free_text;
extern const ChoiceShape ocsp_cert_status;
extern const ChoiceShape ocsp_responder_id;

namespace rows {

inline constexpr Form primitive = Form::primitive;
inline constexpr Form constructed = Form::constructed;
inline constexpr Form either = Form::either;

// clang-format off
// What a row holds stands in kovra/asn1_types.h. The bases are not computed: from row 56 on, many types report the
// codes of the row before, and three codes have no text.
inline constexpr Type all[] = {
    {KOVRA_ASN1_TYPE_END_OF_CONTENTS, primitive, 0, 0, &end_of_contents_operations, nullptr},
    {KOVRA_ASN1_TYPE_BOOLEAN, primitive, 1, 0x1020d, &boolean_operations, nullptr},
    {KOVRA_ASN1_TYPE_INTEGER, primitive, 2, 0x1020f, &integer_operations, nullptr},
    {KOVRA_ASN1_TYPE_BIT_STRING, either, 3, 0x10213, &bit_string_operations, nullptr},
    {KOVRA_ASN1_TYPE_OCTET_STRING, either, 4, 0x10218, &octet_string_operations, nullptr},
    {KOVRA_ASN1_TYPE_NULL, primitive, 5, 0x10231, &null_operations, nullptr},
    {KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER, primitive, 6, 0x10233, &object_identifier_operations, nullptr},
    {KOVRA_ASN1_TYPE_ENUMERATED, primitive, 10, 0x10211, &integer_operations, nullptr},
    {KOVRA_ASN1_TYPE_STRING, either, 0, 0x10216, &untagged_string_operations, nullptr},
    {KOVRA_ASN1_TYPE_UTF8_STRING, either, 12, 0x1021b, &character_string_operations, nullptr},
    {KOVRA_ASN1_TYPE_NUMERIC_STRING, either, 18, 0x1021d, &character_string_operations, nullptr},
    {KOVRA_ASN1_TYPE_PRINTABLE_STRING, either, 19, 0x1021f, &character_string_operations, nullptr},
    {KOVRA_ASN1_TYPE_TELETEX_STRING, either, 20, 0x10221, &character_string_operations, nullptr},
    {KOVRA_ASN1_TYPE_VIDEOTEX_STRING, either, 21, 0x10223, &character_string_operations, nullptr},
    {KOVRA_ASN1_TYPE_IA5_STRING, either, 22, 0x10225, &character_string_operations, nullptr},
    {KOVRA_ASN1_TYPE_GRAPHIC_STRING, either, 25, 0x10227, &character_string_operations, nullptr},
    {KOVRA_ASN1_TYPE_VISIBLE_STRING, either, 26, 0x10229, &character_string_operations, nullptr},
    {KOVRA_ASN1_TYPE_GENERAL_STRING, either, 27, 0x1022b, &character_string_operations, nullptr},
    {KOVRA_ASN1_TYPE_UNIVERSAL_STRING, either, 28, 0x1022d, &character_string_operations, nullptr},
    {KOVRA_ASN1_TYPE_BMP_STRING, either, 30, 0x1022f, &character_string_operations, nullptr},
    {KOVRA_ASN1_TYPE_TIME, either, 0, 0x10238, &any_time_operations, nullptr},
    {KOVRA_ASN1_TYPE_UTC_TIME, either, 23, 0x1023a, &time_operations, nullptr},
    {KOVRA_ASN1_TYPE_GENERALIZED_TIME, either, 24, 0x1023c, &time_operations, nullptr},
    {KOVRA_ASN1_TYPE_ANY, either, 0, 0x10235, &any_operations, nullptr},
    {KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, constructed, 16, 0x10270, &any_list_operations, &list_of_any},
    {KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY_1, constructed, 16, 0x10270, &any_list_operations, &list_of_any_1},
    {KOVRA_ASN1_TYPE_SET_OF_ANY, constructed, 17, 0x10272, &any_list_operations, &list_of_any},
    {KOVRA_ASN1_TYPE_SET_OF_ANY_1, constructed, 17, 0x10272, &any_list_operations, &list_of_any_1},
    {KOVRA_ASN1_TYPE_CONTEXT, constructed, 16, 0x1023e, &structure_operations, &x500_context},
    {KOVRA_ASN1_TYPE_ATTRIBUTE_TYPE_AND_DISTINGUISHED_VALUE, constructed, 16, 0x10246, &kept_structure_operations, &attribute_type_and_distinguished_value},
    {KOVRA_ASN1_TYPE_ATTRIBUTE_TYPE_AND_VALUE, constructed, 16, 0x10275, &kept_structure_operations, &attribute_type_and_value},
    {KOVRA_ASN1_TYPE_RELATIVE_DISTINGUISHED_NAME, constructed, 17, 0x10248, &list_operations, &relative_distinguished_name},
    {KOVRA_ASN1_TYPE_NAME, constructed, 16, 0x1024a, &kept_structure_operations, &x500_name},
    {KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, constructed, 16, 0x1024c, &structure_operations, &algorithm_identifier},
    {KOVRA_ASN1_TYPE_VALIDITY, constructed, 16, 0x1024e, &structure_operations, &validity},
    {KOVRA_ASN1_TYPE_SUBJECT_PUBLIC_KEY_INFO, constructed, 16, 0x10250, &structure_operations, &subject_public_key_info},
    {KOVRA_ASN1_TYPE_EXTENSION, constructed, 16, 0x10252, &structure_operations, &extension},
    {KOVRA_ASN1_TYPE_EXTENSIONS, constructed, 16, 0x10254, &list_operations, &extensions},
    {KOVRA_ASN1_TYPE_TBS_CERTIFICATE, constructed, 16, 0x10256, &structure_operations, &tbs_certificate},
    {KOVRA_ASN1_TYPE_CERTIFICATE, constructed, 16, 0x10258, &kept_structure_operations, &certificate},
    {KOVRA_ASN1_TYPE_TBS_CERT_LIST, constructed, 16, 0x1025e, &structure_operations, &tbs_cert_list},
    {KOVRA_ASN1_TYPE_CERTIFICATE_LIST, constructed, 16, 0x10260, &kept_structure_operations, &certificate_list},
    {KOVRA_ASN1_TYPE_ATTRIBUTE, constructed, 16, 0x1027b, &structure_operations, &attribute},
    {KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTE, constructed, 16, 0x10262, &structure_operations, &pkcs10_attribute},
    {KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, constructed, 17, 0x10264, &list_operations, &pkcs10_attributes},
    {KOVRA_ASN1_TYPE_CERTIFICATION_REQUEST_INFO, constructed, 16, 0x10266, &structure_operations, &certification_request_info},
    {KOVRA_ASN1_TYPE_CERTIFICATION_REQUEST, constructed, 16, 0x10268, &kept_structure_operations, &certification_request},
    {KOVRA_ASN1_TYPE_DIRECTORY_STRING, either, 0, 0x10284, &string_choice_operations, &directory_string},
    {KOVRA_ASN1_TYPE_UUID_PAIR, constructed, 16, 0x10286, &structure_operations, &uuid_pair},
    {KOVRA_ASN1_TYPE_POSTAL_ADDRESS, constructed, 16, 0x0002f, &list_operations, &postal_address},
    {KOVRA_ASN1_TYPE_TELEX_NUMBER, constructed, 16, 0x1028a, &structure_operations, &telex_number},
    {KOVRA_ASN1_TYPE_NAME_AND_OPTIONAL_UID, constructed, 16, 0x1028c, &structure_operations, &name_and_optional_uid},
    {KOVRA_ASN1_TYPE_PKCS9_STRING, either, 0, 0x1028e, &string_choice_operations, &pkcs9_string},
    {KOVRA_ASN1_TYPE_SMIME_CAPABILITY, constructed, 16, 0x10290, &structure_operations, &algorithm_identifier},
    {KOVRA_ASN1_TYPE_SMIME_CAPABILITIES, constructed, 16, 0x10292, &list_operations, &smime_capabilities},
    {KOVRA_ASN1_TYPE_CERTIFICATE_PAIR, constructed, 16, 0x10294, &structure_operations, &certificate_pair},
    {KOVRA_ASN1_TYPE_RSA_PUBLIC_KEY, constructed, 16, 0x10294, &structure_operations, &rsa_public_key},
    {KOVRA_ASN1_TYPE_DIGEST_INFO, constructed, 16, 0x10296, &structure_operations, &digest_info},
    {KOVRA_ASN1_TYPE_DSS_SIG_VALUE, constructed, 16, 0x10298, &structure_operations, &dss_sig_value},
    {KOVRA_ASN1_TYPE_ECDSA_SIG_VALUE, constructed, 16, 0x1029a, &structure_operations, &ecdsa_sig_value},
    {KOVRA_ASN1_TYPE_DSS_PARMS, constructed, 16, 0x1029c, &structure_operations, &dss_parms},
    {KOVRA_ASN1_TYPE_INSTANCE_OF, constructed, 8, 0x1029e, &structure_operations, &instance_of},
    {KOVRA_ASN1_TYPE_EDI_PARTY_NAME, constructed, 16, 0x102a0, &structure_operations, &edi_party_name},
    {KOVRA_ASN1_TYPE_GENERAL_NAME, either, 0, 0x102a2, &choice_operations, &general_name},
    {KOVRA_ASN1_TYPE_GENERAL_NAMES, constructed, 16, 0x102a4, &list_operations, &general_names},
    {KOVRA_ASN1_TYPE_AUTHORITY_KEY_IDENTIFIER, constructed, 16, 0x102a6, &structure_operations, &authority_key_identifier},
    {KOVRA_ASN1_TYPE_EXT_KEY_USAGE, constructed, 16, 0x102a8, &list_operations, &ext_key_usage},
    {KOVRA_ASN1_TYPE_PRIVATE_KEY_USAGE_PERIOD, constructed, 16, 0x102aa, &structure_operations, &private_key_usage_period},
    {KOVRA_ASN1_TYPE_POLICY_QUALIFIER_INFO, constructed, 16, 0x102ac, &structure_operations, &policy_qualifier_info},
    {KOVRA_ASN1_TYPE_POLICY_INFORMATION, constructed, 16, 0x102b0, &structure_operations, &policy_information},
    {KOVRA_ASN1_TYPE_CERTIFICATE_POLICIES, constructed, 16, 0x102b2, &list_operations, &certificate_policies},
    {KOVRA_ASN1_TYPE_DISPLAY_TEXT, either, 0, 0x102b4, &string_choice_operations, &display_text},
    {KOVRA_ASN1_TYPE_NOTICE_REFERENCE, constructed, 16, 0x102b8, &structure_operations, &notice_reference},
    {KOVRA_ASN1_TYPE_USER_NOTICE, constructed, 16, 0x102ba, &structure_operations, &user_notice},
    {KOVRA_ASN1_TYPE_POLICY_MAPPINGS, constructed, 16, 0x102be, &list_operations, &policy_mappings},
    {KOVRA_ASN1_TYPE_SUBJECT_DIRECTORY_ATTRIBUTES, constructed, 16, 0x102c0, &list_operations, &subject_directory_attributes},
    {KOVRA_ASN1_TYPE_BASIC_CONSTRAINTS, constructed, 16, 0x102c2, &structure_operations, &basic_constraints},
    {KOVRA_ASN1_TYPE_GENERAL_SUBTREE, constructed, 16, 0x102c4, &structure_operations, &general_subtree},
    {KOVRA_ASN1_TYPE_GENERAL_SUBTREES, constructed, 16, 0x102c6, &list_operations, &general_subtrees},
    {KOVRA_ASN1_TYPE_NAME_FORMS, constructed, 16, 0x102c8, &structure_operations, &name_forms},
    {KOVRA_ASN1_TYPE_NAME_CONSTRAINTS, constructed, 16, 0x102ca, &structure_operations, &name_constraints},
    {KOVRA_ASN1_TYPE_PKIX_NAME_CONSTRAINTS, constructed, 16, 0x102cc, &structure_operations, &pkix_name_constraints},
    {KOVRA_ASN1_TYPE_POLICY_CONSTRAINTS, constructed, 16, 0x102cf, &structure_operations, &policy_constraints},
    {KOVRA_ASN1_TYPE_DISTRIBUTION_POINT_NAME, constructed, 0, 0x102d1, &choice_operations, &distribution_point_name},
    {KOVRA_ASN1_TYPE_DISTRIBUTION_POINT, constructed, 16, 0x102d3, &structure_operations, &distribution_point},
    {KOVRA_ASN1_TYPE_CRL_DISTRIBUTION_POINTS, constructed, 16, 0x102d5, &list_operations, &crl_distribution_points},
    {KOVRA_ASN1_TYPE_ACCESS_DESCRIPTION, constructed, 16, 0x102d9, &structure_operations, &access_description},
    {KOVRA_ASN1_TYPE_INFORMATION_ACCESS, constructed, 16, 0x102db, &list_operations, &information_access},
    {KOVRA_ASN1_TYPE_ISSUING_DISTRIBUTION_POINT, constructed, 16, 0x102df, &structure_operations, &issuing_distribution_point},
    {KOVRA_ASN1_TYPE_AA_ISSUING_DISTRIBUTION_POINT, constructed, 16, 0x102e1, &structure_operations, &aa_issuing_distribution_point},
    {KOVRA_ASN1_TYPE_RELATIVE_OID, primitive, 13, 0x102f0, &object_identifier_operations, nullptr},
    {KOVRA_ASN1_TYPE_OLD_CERT_THUMBPRINTS, constructed, 16, 0x102f3, &list_operations, &old_cert_thumbprints},
    {KOVRA_ASN1_TYPE_REVOKED_CERTIFICATE, constructed, 16, 0x1025a, &structure_operations, &revoked_certificate},
    {KOVRA_ASN1_TYPE_PRIVATE_KEY_ATTRIBUTE, constructed, 16, 0x102f5, &structure_operations, &private_key_attribute},
    {KOVRA_ASN1_TYPE_STORE_ATTRIBUTE, constructed, 16, 0x102f7, &structure_operations, &store_attribute},
    {KOVRA_ASN1_TYPE_STORE_ATTRIBUTE_LIST, constructed, 16, 0x102f9, &list_operations, &store_attribute_list},
    {KOVRA_ASN1_TYPE_CERT_WITH_ATTRIBUTES, constructed, 16, 0x102fb, &structure_operations, &cert_with_attributes},
    {KOVRA_ASN1_TYPE_CERT_STORE, constructed, 16, 0x102fd, &list_operations, &cert_store},
    {KOVRA_ASN1_TYPE_STORE_KEY_ID, either, 0, 0x102ff, &choice_operations, &store_key_id},
    {KOVRA_ASN1_TYPE_RSA_PRIVATE_KEY, constructed, 16, 0x10306, &structure_operations, &rsa_private_key},
    {KOVRA_ASN1_TYPE_RSAES_OAEP_PARAMS, constructed, 16, 0x10308, &structure_operations, &rsaes_oaep_params},
    {KOVRA_ASN1_TYPE_RSASSA_PSS_PARAMS, constructed, 16, 0x1030a, &structure_operations, &rsassa_pss_params},
    {KOVRA_ASN1_TYPE_DH_PARAMETER, constructed, 16, 0x1030c, &structure_operations, &dh_parameter},
    {KOVRA_ASN1_TYPE_PRIVATE_KEY_INFO, constructed, 16, 0x1030e, &structure_operations, &private_key_info},
    {KOVRA_ASN1_TYPE_ENCRYPTED_PRIVATE_KEY_INFO, constructed, 16, 0x10310, &structure_operations, &encrypted_private_key_info},
    {KOVRA_ASN1_TYPE_PBKDF2_PARAMS, constructed, 16, 0x10314, &structure_operations, &pbkdf2_params},
    {KOVRA_ASN1_TYPE_PBE_PARAMETER, constructed, 16, 0x10317, &structure_operations, &pbe_parameter},
    {KOVRA_ASN1_TYPE_PBES2_PARAMS, constructed, 16, 0x10319, &structure_operations, &pbes2_params},
    {KOVRA_ASN1_TYPE_PBMAC1_PARAMS, constructed, 16, 0x1031b, &structure_operations, &pbmac1_params},
    {KOVRA_ASN1_TYPE_RC2_CBC_PARAMETER, constructed, 16, 0x1031d, &structure_operations, &rc2_cbc_parameter},
    {KOVRA_ASN1_TYPE_RC5_CBC_PARAMETERS, constructed, 16, 0x1031f, &structure_operations, &rc5_cbc_parameters},
    {KOVRA_ASN1_TYPE_CONTENT_INFO, constructed, 16, 0x10321, &structure_operations, &content_info},
    {KOVRA_ASN1_TYPE_MAC_DATA, constructed, 16, 0x10323, &structure_operations, &mac_data},
    {KOVRA_ASN1_TYPE_PFX, constructed, 16, 0x10325, &structure_operations, &pfx},
    {KOVRA_ASN1_TYPE_AUTHENTICATED_SAFE, constructed, 16, 0x10325, &list_operations, &authenticated_safe},
    {KOVRA_ASN1_TYPE_SAFE_BAG, constructed, 16, 0x10327, &structure_operations, &safe_bag},
    {KOVRA_ASN1_TYPE_SAFE_CONTENTS, constructed, 16, 0x10329, &list_operations, &safe_contents},
    {KOVRA_ASN1_TYPE_CERT_BAG, constructed, 16, 0x1032b, &structure_operations, &cert_bag},
    {KOVRA_ASN1_TYPE_CRL_BAG, constructed, 16, 0x1032d, &structure_operations, &crl_bag},
    {KOVRA_ASN1_TYPE_SECRET_BAG, constructed, 16, 0x1032f, &structure_operations, &secret_bag},
    {KOVRA_ASN1_TYPE_PKCS12_PBE_PARAMS, constructed, 16, 0x10331, &structure_operations, &pkcs12_pbe_params},
    {KOVRA_ASN1_TYPE_DIGESTED_DATA, constructed, 16, 0x10333, &structure_operations, &digested_data},
    {KOVRA_ASN1_TYPE_ISSUER_AND_SERIAL_NUMBER, constructed, 16, 0x10335, &structure_operations, &issuer_and_serial_number},
    {KOVRA_ASN1_TYPE_SIGNER_IDENTIFIER, either, 0, 0x10337, &choice_operations, &signer_identifier},
    {KOVRA_ASN1_TYPE_SIGNER_INFO, constructed, 16, 0x10339, &structure_operations, &signer_info},
    {KOVRA_ASN1_TYPE_SIGNER_INFOS, constructed, 17, 0x1033b, &list_operations, &signer_infos},
    {KOVRA_ASN1_TYPE_DIGEST_ALGORITHM_IDENTIFIERS, constructed, 17, 0x1033d, &list_operations, &digest_algorithms},
    {KOVRA_ASN1_TYPE_OTHER_CERTIFICATE_FORMAT, constructed, 16, 0x1033f, &structure_operations, &other_certificate_format},
    {KOVRA_ASN1_TYPE_OTHER_REVOCATION_INFO_FORMAT, constructed, 16, 0x10341, &structure_operations, &other_revocation_info_format},
    {KOVRA_ASN1_TYPE_CERTIFICATE_CHOICES, either, 0, 0x10349, &choice_operations, &certificate_choices},
    {KOVRA_ASN1_TYPE_REVOCATION_INFO_CHOICE, either, 0, 0x1034b, &choice_operations, &revocation_info_choice},
    {KOVRA_ASN1_TYPE_CERTIFICATE_SET, constructed, 17, 0x1034d, &list_operations, &certificate_set},
    {KOVRA_ASN1_TYPE_REVOCATION_INFO_CHOICES, constructed, 17, 0x1034f, &list_operations, &revocation_info_choices},
    {KOVRA_ASN1_TYPE_PKCS7_SIGNED_DATA, constructed, 16, 0x10351, &structure_operations, &pkcs7_signed_data},
    {KOVRA_ASN1_TYPE_CMS_SIGNED_DATA, constructed, 16, 0x10353, &structure_operations, &cms_signed_data},
    {KOVRA_ASN1_TYPE_DN_VALUES_WITH_CONTEXT_ITEM, constructed, 16, 0x10242, &structure_operations, &dn_values_with_context_item},
    {KOVRA_ASN1_TYPE_ATTRIBUTE_VALUES_WITH_CONTEXT_ITEM, constructed, 16, 0x10277, &structure_operations, &attribute_values_with_context_item},
    {KOVRA_ASN1_TYPE_POLICY_QUALIFIERS, constructed, 16, 0x102ae, &list_operations, &policy_qualifiers},
    {KOVRA_ASN1_TYPE_NOTICE_NUMBERS, constructed, 16, 0x102b6, &list_operations, &notice_numbers},
    {KOVRA_ASN1_TYPE_POLICY_MAPPING, constructed, 16, 0x102bc, &structure_operations, &policy_mapping},
    {KOVRA_ASN1_TYPE_REVOKED_CERTIFICATES, constructed, 16, 0x1025c, &list_operations, &revoked_certificates},
    {KOVRA_ASN1_TYPE_CONTEXT_LIST, constructed, 17, 0x10240, &list_operations, &context_list},
    {KOVRA_ASN1_TYPE_DN_VALUES_WITH_CONTEXT, constructed, 17, 0x10244, &list_operations, &dn_values_with_context},
    {KOVRA_ASN1_TYPE_ATTRIBUTE_VALUES_WITH_CONTEXT, constructed, 17, 0x10279, &list_operations, &attribute_values_with_context},
    {KOVRA_ASN1_TYPE_OTHER_PRIME_INFO, constructed, 16, 0x10301, &structure_operations, &other_prime_info},
    {KOVRA_ASN1_TYPE_OTHER_PRIME_INFOS, constructed, 16, 0x10303, &list_operations, &other_prime_infos},
    {KOVRA_ASN1_TYPE_PBKDF2_SALT, either, 0, 0x10312, &choice_operations, &pbkdf2_salt},
    {KOVRA_ASN1_TYPE_ENCAPSULATED_CONTENT_INFO, constructed, 16, 0x10356, &structure_operations, &encapsulated_content_info},
    {KOVRA_ASN1_TYPE_ENCRYPTED_CONTENT_INFO, constructed, 16, 0x10358, &structure_operations, &encrypted_content_info},
    {KOVRA_ASN1_TYPE_ENCRYPTED_DATA, constructed, 16, 0x1035a, &structure_operations, &encrypted_data},
    {KOVRA_ASN1_TYPE_ORIGINATOR_INFO, constructed, 16, 0x1035c, &structure_operations, &originator_info},
    {KOVRA_ASN1_TYPE_KEY_TRANS_RECIPIENT_INFO, constructed, 16, 0x10360, &structure_operations, &key_trans_recipient_info},
    {KOVRA_ASN1_TYPE_ORIGINATOR_IDENTIFIER_OR_KEY, either, 0, 0x10361, &choice_operations, &originator_identifier_or_key},
    {KOVRA_ASN1_TYPE_OTHER_KEY_ATTRIBUTE, constructed, 16, 0x10363, &structure_operations, &other_key_attribute},
    {KOVRA_ASN1_TYPE_RECIPIENT_KEY_IDENTIFIER, constructed, 16, 0x10365, &structure_operations, &recipient_key_identifier},
    {KOVRA_ASN1_TYPE_KEY_AGREE_RECIPIENT_IDENTIFIER, either, 0, 0x10367, &choice_operations, &key_agree_recipient_identifier},
    {KOVRA_ASN1_TYPE_RECIPIENT_ENCRYPTED_KEY, constructed, 16, 0x10369, &structure_operations, &recipient_encrypted_key},
    {KOVRA_ASN1_TYPE_RECIPIENT_ENCRYPTED_KEYS, constructed, 16, 0x1036b, &list_operations, &recipient_encrypted_keys},
    {KOVRA_ASN1_TYPE_KEY_AGREE_RECIPIENT_INFO, constructed, 16, 0x1036d, &structure_operations, &key_agree_recipient_info},
    {KOVRA_ASN1_TYPE_KEK_RECIPIENT_INFO, constructed, 16, 0x0009f, &structure_operations, &kek_recipient_info},
    {KOVRA_ASN1_TYPE_PASSWORD_RECIPIENT_INFO, constructed, 16, 0x10373, &structure_operations, &password_recipient_info},
    {KOVRA_ASN1_TYPE_OTHER_RECIPIENT_INFO, constructed, 16, 0x10375, &structure_operations, &other_recipient_info},
    {KOVRA_ASN1_TYPE_RECIPIENT_INFO, either, 0, 0x10377, &choice_operations, &recipient_info},
    {KOVRA_ASN1_TYPE_RECIPIENT_INFOS, constructed, 17, 0x10379, &list_operations, &recipient_infos},
    {KOVRA_ASN1_TYPE_ENVELOPED_DATA, constructed, 16, 0x1037b, &structure_operations, &enveloped_data},
    {KOVRA_ASN1_TYPE_AUTHENTICATED_DATA, constructed, 16, 0x1037d, &structure_operations, &authenticated_data},
    {KOVRA_ASN1_TYPE_KEY_SPECIFIC_INFO, constructed, 16, 0x1037f, &structure_operations, &key_specific_info},
    {KOVRA_ASN1_TYPE_DH_OTHER_INFO, constructed, 16, 0x10381, &structure_operations, &dh_other_info},
    {KOVRA_ASN1_TYPE_OCSP_CERT_ID, constructed, 16, 0x10383, &structure_operations, &ocsp_cert_id},
    {KOVRA_ASN1_TYPE_OCSP_SINGLE_REQUEST, constructed, 16, 0x10385, &structure_operations, &ocsp_single_request},
    {KOVRA_ASN1_TYPE_OCSP_REQUEST_LIST, constructed, 16, 0x10387, &list_operations, &ocsp_request_list},
    {KOVRA_ASN1_TYPE_OCSP_TBS_REQUEST, constructed, 16, 0x10389, &structure_operations, &ocsp_tbs_request},
    {KOVRA_ASN1_TYPE_OCSP_SIGNATURE, constructed, 16, 0x1038d, &structure_operations, &ocsp_signature},
    {KOVRA_ASN1_TYPE_OCSP_REQUEST, constructed, 16, 0x1038f, &structure_operations, &ocsp_request},
    {KOVRA_ASN1_TYPE_OCSP_RESPONSE_BYTES, constructed, 16, 0x10391, &structure_operations, &ocsp_response_bytes},
    {KOVRA_ASN1_TYPE_OCSP_RESPONSE, constructed, 16, 0x000af, &structure_operations, &ocsp_response},
    {KOVRA_ASN1_TYPE_OCSP_RESPONDER_ID, either, 0, 0x10395, &choice_operations, &ocsp_responder_id},
    {KOVRA_ASN1_TYPE_OCSP_REVOKED_INFO, constructed, 16, 0x10397, &structure_operations, &ocsp_revoked_info},
    {KOVRA_ASN1_TYPE_OCSP_CERT_STATUS, either, 0, 0x10397, &choice_operations, &ocsp_cert_status},
    {KOVRA_ASN1_TYPE_OCSP_SINGLE_RESPONSE, constructed, 16, 0x1039b, &structure_operations, &ocsp_single_response},
    {KOVRA_ASN1_TYPE_OCSP_RESPONSES, constructed, 16, 0x1039d, &list_operations, &ocsp_responses},
    {KOVRA_ASN1_TYPE_OCSP_RESPONSE_DATA, constructed, 16, 0x1039f, &structure_operations, &ocsp_response_data},
    {KOVRA_ASN1_TYPE_OCSP_BASIC_RESPONSE, constructed, 16, 0x103a1, &structure_operations, &ocsp_basic_response},
    {KOVRA_ASN1_TYPE_OCSP_CRL_ID, constructed, 16, 0x103a3, &structure_operations, &ocsp_crl_id},
    {KOVRA_ASN1_TYPE_OCSP_SERVICE_LOCATOR, constructed, 16, 0x103a5, &structure_operations, &ocsp_service_locator},
    {KOVRA_ASN1_TYPE_OCSP_PREFERRED_SIGNATURE_ALGORITHMS, constructed, 16, 0x103a7, &structure_operations, &ocsp_preferred_signature_algorithms},
    {KOVRA_ASN1_TYPE_MESSAGE_IMPRINT, constructed, 16, 0x103a9, &structure_operations, &message_imprint},
    {KOVRA_ASN1_TYPE_TIME_STAMP_REQ, constructed, 16, 0x103ab, &structure_operations, &time_stamp_req},
    {KOVRA_ASN1_TYPE_PKI_FREE_TEXT, constructed, 16, 0x103ad, &list_operations, &pki_free_text},
    {KOVRA_ASN1_TYPE_PKI_STATUS_INFO, constructed, 16, 0x103af, &structure_operations, &pki_status_info},
    {KOVRA_ASN1_TYPE_TIME_STAMP_RESP, constructed, 16, 0x103b1, &structure_operations, &time_stamp_resp},
    {KOVRA_ASN1_TYPE_ACCURACY, constructed, 16, 0x103b3, &structure_operations, &time_stamp_accuracy},
    {KOVRA_ASN1_TYPE_TST_INFO, constructed, 16, 0x103b5, &structure_operations, &tst_info},
    {KOVRA_ASN1_TYPE_ISSUER_SERIAL, constructed, 16, 0x103b7, &structure_operations, &issuer_serial},
    {KOVRA_ASN1_TYPE_ESS_CERT_ID, constructed, 16, 0x103b9, &structure_operations, &ess_cert_id},
    {KOVRA_ASN1_TYPE_ESS_CERT_ID_V2, constructed, 16, 0x103bb, &structure_operations, &ess_cert_id_v2},
    {KOVRA_ASN1_TYPE_ESS_CERT_IDS, constructed, 16, 0x103bd, &list_operations, &ess_cert_ids},
    {KOVRA_ASN1_TYPE_ESS_CERT_IDS_V2, constructed, 16, 0x103bf, &list_operations, &ess_cert_ids_v2},
    {KOVRA_ASN1_TYPE_CERTIFICATE_POLICIES_1, constructed, 16, 0x103c1, &list_operations, &certificate_policies},
    {KOVRA_ASN1_TYPE_SIGNING_CERTIFICATE, constructed, 16, 0x103c3, &structure_operations, &signing_certificate},
    {KOVRA_ASN1_TYPE_SIGNING_CERTIFICATE_V2, constructed, 16, 0x103c3, &structure_operations, &signing_certificate_v2},
    {KOVRA_ASN1_TYPE_ECPK_PARAMETERS, either, 0, 0x103c7, &choice_operations, &ecpk_parameters},
    {KOVRA_ASN1_TYPE_EC_PRIVATE_KEY, constructed, 16, 0x103c9, &structure_operations, &ec_private_key},
    {KOVRA_ASN1_TYPE_SM2_CIPHER, constructed, 16, 0x103cb, &structure_operations, &sm2_cipher},
    {KOVRA_ASN1_TYPE_SM2_ENVELOPED_KEY, constructed, 16, 0x103cd, &structure_operations, &sm2_enveloped_key},
    {KOVRA_ASN1_TYPE_RSA_ENVELOPED_KEY_PAIR, constructed, 16, 0x103cf, &structure_operations, &rsa_enveloped_key_pair},
    {KOVRA_ASN1_TYPE_INNER_ENVELOPED_KEY_PAIR, either, 0, 0x103d1, &choice_operations, &inner_enveloped_key_pair},
    {KOVRA_ASN1_TYPE_ENVELOPED_KEY_PAIR, constructed, 16, 0x103d3, &structure_operations, &enveloped_key_pair},
};
// clang-format on

// Does each row stand at the place that its number says?
consteval bool are_in_order() {
    for (uint32_t i = 0; i < type_count; ++i)
        if (all[i].number != i)
            return false;
    return std::size(all) == type_count;
}
static_assert(are_in_order());

} // namespace rows

// The row of a type identifier.
constexpr const Type &row(uint32_t number) {
    return rows::all[number];
}

} // namespace kovra::asn1
