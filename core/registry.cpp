#include "core/registry.hpp"

#include "core/choice.hpp"
#include "core/descriptors.hpp"
#include "core/list.hpp"
#include "core/structure.hpp"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

// Rows whose structure is not built yet only refuse.
Site here(int32_t line = __builtin_LINE()) {
    return {"ASN1", line};
}
bool holds_anything(const Type &, const Value &) {
    return true;
}
int32_t no_content_length(const Type &, Value *, Measure) {
    return unknown;
}
Result refuse_encode_content(Encoder &encoder, const Type &, Value *, int32_t) {
    return encoder.fail(here(), code::unsupported_encode);
}
Result refuse_encode(Encoder &encoder, const Type &, Value *) {
    return encoder.fail(here(), code::unsupported_encode);
}
Result refuse_decode(Decoder &decoder, const Type &, Value *&) {
    return decoder.fail(here(), code::unsupported_decode);
}

} // namespace

constexpr Operations unbuilt_operations = {
    .holds = holds_anything,
    .content_length = no_content_length,
    .encode_content = refuse_encode_content,
    .encode = refuse_encode,
    .decode_content = refuse_decode_content,
    .decode = refuse_decode,
    .refuses_whole = true,
    .records_reserve = [](size_t) { return size_t{0}; },
};

namespace {

constexpr ListShape list_of_any = {KOVRA_ASN1_TYPE_ANY};
constexpr ListShape list_of_any_1 = {KOVRA_ASN1_TYPE_ANY, ListReading::tagged, true};

constexpr Form primitive = Form::primitive;
constexpr Form constructed = Form::constructed;
constexpr Form either = Form::either;

constexpr const Operations *unbuilt = &unbuilt_operations;

} // namespace

// clang-format off
// What a row holds stands in kovra/asn1_types.h. The bases are stored values: from row 56 on many are those of the row
// before, which failures report just so, and three lie outside the table of texts.
constexpr Type registry[type_count] = {
    {  0, primitive, 0, 0, &end_of_contents_operations, nullptr},
    {  1, primitive, 1, 0x1020d, &boolean_operations, nullptr},
    {  2, primitive, 2, 0x1020f, &integer_operations, nullptr},
    {  3, either, 3, 0x10213, &bit_string_operations, nullptr},
    {  4, either, 4, 0x10218, &octet_string_operations, nullptr},
    {  5, primitive, 5, 0x10231, &null_operations, nullptr},
    {  6, primitive, 6, 0x10233, &object_identifier_operations, nullptr},
    {  7, primitive, 10, 0x10211, &integer_operations, nullptr},
    {  8, either, 0, 0x10216, &untagged_string_operations, nullptr},
    {  9, either, 12, 0x1021b, &character_string_operations, nullptr},
    { 10, either, 18, 0x1021d, &character_string_operations, nullptr},
    { 11, either, 19, 0x1021f, &character_string_operations, nullptr},
    { 12, either, 20, 0x10221, &character_string_operations, nullptr},
    { 13, either, 21, 0x10223, &character_string_operations, nullptr},
    { 14, either, 22, 0x10225, &character_string_operations, nullptr},
    { 15, either, 25, 0x10227, &character_string_operations, nullptr},
    { 16, either, 26, 0x10229, &character_string_operations, nullptr},
    { 17, either, 27, 0x1022b, &character_string_operations, nullptr},
    { 18, either, 28, 0x1022d, &character_string_operations, nullptr},
    { 19, either, 30, 0x1022f, &character_string_operations, nullptr},
    { 20, either, 0, 0x10238, &any_time_operations, nullptr},
    { 21, either, 23, 0x1023a, &time_operations, nullptr},
    { 22, either, 24, 0x1023c, &time_operations, nullptr},
    { 23, either, 0, 0x10235, &any_operations, nullptr},
    { 24, constructed, 16, 0x10270, &any_list_operations, &list_of_any},
    { 25, constructed, 16, 0x10270, &any_list_operations, &list_of_any_1},
    { 26, constructed, 17, 0x10272, &any_list_operations, &list_of_any},
    { 27, constructed, 17, 0x10272, &any_list_operations, &list_of_any_1},
    { 28, constructed, 16, 0x1023e, &structure_operations, &x500_context},
    { 29, constructed, 16, 0x10246, &kept_structure_operations, &attribute_type_and_distinguished_value},
    { 30, constructed, 16, 0x10275, &kept_structure_operations, &attribute_type_and_value},
    { 31, constructed, 17, 0x10248, &list_operations, &relative_distinguished_name},
    { 32, constructed, 16, 0x1024a, &kept_structure_operations, &x500_name},
    { 33, constructed, 16, 0x1024c, &structure_operations, &algorithm_identifier},
    { 34, constructed, 16, 0x1024e, &structure_operations, &validity},
    { 35, constructed, 16, 0x10250, &structure_operations, &subject_public_key_info},
    { 36, constructed, 16, 0x10252, &structure_operations, &extension},
    { 37, constructed, 16, 0x10254, &list_operations, &extensions},
    { 38, constructed, 16, 0x10256, &structure_operations, &tbs_certificate},
    { 39, constructed, 16, 0x10258, &kept_structure_operations, &certificate},
    { 40, constructed, 16, 0x1025e, &structure_operations, &tbs_cert_list},
    { 41, constructed, 16, 0x10260, &kept_structure_operations, &certificate_list},
    { 42, constructed, 16, 0x1027b, &structure_operations, &attribute},
    { 43, constructed, 16, 0x10262, &structure_operations, &pkcs10_attribute},
    { 44, constructed, 17, 0x10264, &list_operations, &pkcs10_attributes},
    { 45, constructed, 16, 0x10266, &structure_operations, &certification_request_info},
    { 46, constructed, 16, 0x10268, &kept_structure_operations, &certification_request},
    { 47, either, 0, 0x10284, &string_choice_operations, &directory_string},
    { 48, constructed, 16, 0x10286, &structure_operations, &uuid_pair},
    { 49, constructed, 16, 0x0002f, &list_operations, &postal_address},
    { 50, constructed, 16, 0x1028a, &structure_operations, &telex_number},
    { 51, constructed, 16, 0x1028c, &structure_operations, &name_and_optional_uid},
    { 52, either, 0, 0x1028e, &string_choice_operations, &pkcs9_string},
    { 53, constructed, 16, 0x10290, &structure_operations, &algorithm_identifier},
    { 54, constructed, 16, 0x10292, &list_operations, &smime_capabilities},
    { 55, constructed, 16, 0x10294, &structure_operations, &certificate_pair},
    { 56, constructed, 16, 0x10294, &structure_operations, &rsa_public_key},
    { 57, constructed, 16, 0x10296, &structure_operations, &digest_info},
    { 58, constructed, 16, 0x10298, &structure_operations, &dss_sig_value},
    { 59, constructed, 16, 0x1029a, &structure_operations, &ecdsa_sig_value},
    { 60, constructed, 16, 0x1029c, &structure_operations, &dss_parms},
    { 61, constructed, 8, 0x1029e, &structure_operations, &instance_of},
    { 62, constructed, 16, 0x102a0, &structure_operations, &edi_party_name},
    { 63, either, 0, 0x102a2, &choice_operations, &general_name},
    { 64, constructed, 16, 0x102a4, &list_operations, &general_names},
    { 65, constructed, 16, 0x102a6, &structure_operations, &authority_key_identifier},
    { 66, constructed, 16, 0x102a8, &list_operations, &ext_key_usage},
    { 67, constructed, 16, 0x102aa, &structure_operations, &private_key_usage_period},
    { 68, constructed, 16, 0x102ac, &structure_operations, &algorithm_identifier},
    { 69, constructed, 16, 0x102b0, &structure_operations, &policy_information},
    { 70, constructed, 16, 0x102b2, &list_operations, &certificate_policies},
    { 71, either, 0, 0x102b4, &string_choice_operations, &display_text},
    { 72, constructed, 16, 0x102b8, &structure_operations, &notice_reference},
    { 73, constructed, 16, 0x102ba, &structure_operations, &user_notice},
    { 74, constructed, 16, 0x102be, &list_operations, &policy_mappings},
    { 75, constructed, 16, 0x102c0, &list_operations, &subject_directory_attributes},
    { 76, constructed, 16, 0x102c2, &structure_operations, &basic_constraints},
    { 77, constructed, 16, 0x102c4, &structure_operations, &general_subtree},
    { 78, constructed, 16, 0x102c6, &list_operations, &general_subtrees},
    { 79, constructed, 16, 0x102c8, &structure_operations, &name_forms},
    { 80, constructed, 16, 0x102ca, &structure_operations, &name_constraints},
    { 81, constructed, 16, 0x102cc, &structure_operations, &pkix_name_constraints},
    { 82, constructed, 16, 0x102cf, &structure_operations, &policy_constraints},
    { 83, constructed, 0, 0x102d1, &choice_operations, &distribution_point_name},
    { 84, constructed, 16, 0x102d3, &structure_operations, &distribution_point},
    { 85, constructed, 16, 0x102d5, &list_operations, &crl_distribution_points},
    { 86, constructed, 16, 0x102d9, &structure_operations, &access_description},
    { 87, constructed, 16, 0x102db, &list_operations, &information_access},
    { 88, constructed, 16, 0x102df, &structure_operations, &issuing_distribution_point},
    { 89, constructed, 16, 0x102e1, &structure_operations, &aa_issuing_distribution_point},
    { 90, primitive, 13, 0x102f0, &object_identifier_operations, nullptr},
    { 91, constructed, 16, 0x102f3, &list_operations, &old_cert_thumbprints},
    { 92, constructed, 16, 0x1025a, &structure_operations, &revoked_certificate},
    { 93, constructed, 16, 0x102f5, &structure_operations, &private_key_attribute},
    { 94, constructed, 16, 0x102f7, &structure_operations, &store_attribute},
    { 95, constructed, 16, 0x102f9, &list_operations, &store_attribute_list},
    { 96, constructed, 16, 0x102fb, &structure_operations, &cert_with_attributes},
    { 97, constructed, 16, 0x102fd, &list_operations, &cert_store},
    { 98, either, 0, 0x102ff, &choice_operations, &store_key_id},
    { 99, constructed, 16, 0x10306, &structure_operations, &rsa_private_key},
    {100, constructed, 16, 0x10308, &structure_operations, &rsaes_oaep_params},
    {101, constructed, 16, 0x1030a, &structure_operations, &rsassa_pss_params},
    {102, constructed, 16, 0x1030c, &structure_operations, &dh_parameter},
    {103, constructed, 16, 0x1030e, &structure_operations, &private_key_info},
    {104, constructed, 16, 0x10310, &structure_operations, &encrypted_private_key_info},
    {105, constructed, 16, 0x10314, &structure_operations, &pbkdf2_params},
    {106, constructed, 16, 0x10317, &structure_operations, &pbe_parameter},
    {107, constructed, 16, 0x10319, &structure_operations, &pbes2_params},
    {108, constructed, 16, 0x1031b, &structure_operations, &pbmac1_params},
    {109, constructed, 16, 0x1031d, &structure_operations, &rc2_cbc_parameter},
    {110, constructed, 16, 0x1031f, &structure_operations, &rc5_cbc_parameters},
    {111, constructed, 16, 0x10321, &structure_operations, &content_info},
    {112, constructed, 16, 0x10323, &structure_operations, &mac_data},
    {113, constructed, 16, 0x10325, &structure_operations, &pfx},
    {114, constructed, 16, 0x10325, &list_operations, &authenticated_safe},
    {115, constructed, 16, 0x10327, &structure_operations, &safe_bag},
    {116, constructed, 16, 0x10329, &list_operations, &safe_contents},
    {117, constructed, 16, 0x1032b, &structure_operations, &cert_bag},
    {118, constructed, 16, 0x1032d, &structure_operations, &crl_bag},
    {119, constructed, 16, 0x1032f, &structure_operations, &secret_bag},
    {120, constructed, 16, 0x10331, &structure_operations, &pkcs12_pbe_params},
    {121, constructed, 16, 0x10333, unbuilt, nullptr},
    {122, constructed, 16, 0x10335, unbuilt, nullptr},
    {123, either, 0, 0x10337, unbuilt, nullptr},
    {124, constructed, 16, 0x10339, unbuilt, nullptr},
    {125, constructed, 17, 0x1033b, unbuilt, nullptr},
    {126, constructed, 17, 0x1033d, &list_operations, &digest_algorithm_identifiers},
    {127, constructed, 16, 0x1033f, unbuilt, nullptr},
    {128, constructed, 16, 0x10341, unbuilt, nullptr},
    {129, either, 0, 0x10349, unbuilt, nullptr},
    {130, either, 0, 0x1034b, unbuilt, nullptr},
    {131, constructed, 17, 0x1034d, unbuilt, nullptr},
    {132, constructed, 17, 0x1034f, unbuilt, nullptr},
    {133, constructed, 16, 0x10351, unbuilt, nullptr},
    {134, constructed, 16, 0x10353, unbuilt, nullptr},
    {135, constructed, 16, 0x10242, &structure_operations, &dn_values_with_context_item},
    {136, constructed, 16, 0x10277, &structure_operations, &attribute_values_with_context_item},
    {137, constructed, 16, 0x102ae, &list_operations, &policy_qualifiers},
    {138, constructed, 16, 0x102b6, &list_operations, &notice_numbers},
    {139, constructed, 16, 0x102bc, &structure_operations, &policy_mapping},
    {140, constructed, 16, 0x1025c, &list_operations, &revoked_certificates},
    {141, constructed, 17, 0x10240, &list_operations, &context_list},
    {142, constructed, 17, 0x10244, &list_operations, &dn_values_with_context},
    {143, constructed, 17, 0x10279, &list_operations, &attribute_values_with_context},
    {144, constructed, 16, 0x10301, &structure_operations, &other_prime_info},
    {145, constructed, 16, 0x10303, &list_operations, &other_prime_infos},
    {146, either, 0, 0x10312, &choice_operations, &pbkdf2_salt},
    {147, constructed, 16, 0x10356, unbuilt, nullptr},
    {148, constructed, 16, 0x10358, unbuilt, nullptr},
    {149, constructed, 16, 0x1035a, unbuilt, nullptr},
    {150, constructed, 16, 0x1035c, unbuilt, nullptr},
    {151, constructed, 16, 0x10360, unbuilt, nullptr},
    {152, either, 0, 0x10361, unbuilt, nullptr},
    {153, constructed, 16, 0x10363, unbuilt, nullptr},
    {154, constructed, 16, 0x10365, unbuilt, nullptr},
    {155, either, 0, 0x10367, unbuilt, nullptr},
    {156, constructed, 16, 0x10369, unbuilt, nullptr},
    {157, constructed, 16, 0x1036b, unbuilt, nullptr},
    {158, constructed, 16, 0x1036d, unbuilt, nullptr},
    {159, constructed, 16, 0x0009f, unbuilt, nullptr},
    {160, constructed, 16, 0x10373, unbuilt, nullptr},
    {161, constructed, 16, 0x10375, unbuilt, nullptr},
    {162, either, 0, 0x10377, unbuilt, nullptr},
    {163, constructed, 17, 0x10379, unbuilt, nullptr},
    {164, constructed, 16, 0x1037b, unbuilt, nullptr},
    {165, constructed, 16, 0x1037d, unbuilt, nullptr},
    {166, constructed, 16, 0x1037f, unbuilt, nullptr},
    {167, constructed, 16, 0x10381, unbuilt, nullptr},
    {168, constructed, 16, 0x10383, &structure_operations, &ocsp_cert_id},
    {169, constructed, 16, 0x10385, &structure_operations, &ocsp_single_request},
    {170, constructed, 16, 0x10387, &list_operations, &ocsp_request_list},
    {171, constructed, 16, 0x10389, &structure_operations, &ocsp_tbs_request},
    {172, constructed, 16, 0x1038d, &structure_operations, &ocsp_signature},
    {173, constructed, 16, 0x1038f, &structure_operations, &ocsp_request},
    {174, constructed, 16, 0x10391, &structure_operations, &ocsp_response_bytes},
    {175, constructed, 16, 0x000af, &structure_operations, &ocsp_response},
    {176, either, 0, 0x10395, &choice_operations, &ocsp_responder_id},
    {177, constructed, 16, 0x10397, &structure_operations, &ocsp_revoked_info},
    {178, either, 0, 0x10397, &choice_operations, &ocsp_cert_status},
    {179, constructed, 16, 0x1039b, &structure_operations, &ocsp_single_response},
    {180, constructed, 16, 0x1039d, &list_operations, &ocsp_responses},
    {181, constructed, 16, 0x1039f, &structure_operations, &ocsp_response_data},
    {182, constructed, 16, 0x103a1, &structure_operations, &ocsp_basic_response},
    {183, constructed, 16, 0x103a3, &structure_operations, &ocsp_crl_id},
    {184, constructed, 16, 0x103a5, &structure_operations, &ocsp_service_locator},
    {185, constructed, 16, 0x103a7, &structure_operations, &ocsp_preferred_signature_algorithms},
    {186, constructed, 16, 0x103a9, &structure_operations, &digest_info},
    {187, constructed, 16, 0x103ab, &structure_operations, &time_stamp_req},
    {188, constructed, 16, 0x103ad, &list_operations, &pki_free_text},
    {189, constructed, 16, 0x103af, &structure_operations, &pki_status_info},
    {190, constructed, 16, 0x103b1, &structure_operations, &time_stamp_resp},
    {191, constructed, 16, 0x103b3, &structure_operations, &time_stamp_accuracy},
    {192, constructed, 16, 0x103b5, &structure_operations, &tst_info},
    {193, constructed, 16, 0x103b7, &structure_operations, &issuer_serial},
    {194, constructed, 16, 0x103b9, &structure_operations, &ess_cert_id},
    {195, constructed, 16, 0x103bb, &structure_operations, &ess_cert_id_v2},
    {196, constructed, 16, 0x103bd, &list_operations, &ess_cert_ids},
    {197, constructed, 16, 0x103bf, &list_operations, &ess_cert_ids_v2},
    {198, constructed, 16, 0x103c1, &list_operations, &certificate_policies},
    {199, constructed, 16, 0x103c3, &structure_operations, &signing_certificate},
    {200, constructed, 16, 0x103c3, &structure_operations, &signing_certificate_v2},
    {201, either, 0, 0x103c7, &choice_operations, &ecpk_parameters},
    {202, constructed, 16, 0x103c9, &structure_operations, &ec_private_key},
    {203, constructed, 16, 0x103cb, &structure_operations, &sm2_cipher},
    {204, constructed, 16, 0x103cd, &structure_operations, &sm2_enveloped_key},
    {205, constructed, 16, 0x103cf, &structure_operations, &rsa_enveloped_key_pair},
    {206, either, 0, 0x103d1, &choice_operations, &inner_enveloped_key_pair},
    {207, constructed, 16, 0x103d3, &structure_operations, &enveloped_key_pair},
};
// clang-format on

} // namespace kovra::asn1
