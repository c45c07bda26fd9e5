// Parameters of RSAES-OAEP and RSASSA-PSS (PKCS #1, RFC 8017, A.2). A component is its default when it is encoded as
// the default is.

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_pkcs1.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_PKCS1";

// AlgorithmIdentifier { id-sha1, NULL }
constexpr uint8_t sha1[] = {0x30, 0x09, 0x06, 0x05, 0x2B, 0x0E, 0x03, 0x02, 0x1A, 0x05, 0x00};
// AlgorithmIdentifier { id-mgf1, AlgorithmIdentifier { id-sha1, NULL } }
constexpr uint8_t mgf1_sha1[] = {0x30, 0x16, 0x06, 0x09, 0x2A, 0x86, 0x48, 0x86, 0xF7, 0x0D, 0x01, 0x01,
                                 0x08, 0x30, 0x09, 0x06, 0x05, 0x2B, 0x0E, 0x03, 0x02, 0x1A, 0x05, 0x00};
// AlgorithmIdentifier { id-pSpecified, OCTET STRING of no octets }
constexpr uint8_t no_label[] = {0x30, 0x0D, 0x06, 0x09, 0x2A, 0x86, 0x48, 0x86,
                                0xF7, 0x0D, 0x01, 0x01, 0x09, 0x04, 0x00};
// INTEGER 20, and 1
constexpr uint8_t twenty[] = {0x02, 0x01, 0x14};
constexpr uint8_t one[] = {0x02, 0x01, 0x01};

constexpr const Default &default_hash = default_encoding<KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, sha1>;
constexpr const Default &default_mask = default_encoding<KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, mgf1_sha1>;
constexpr const Default &default_label = default_encoding<KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, no_label>;
constexpr const Default &default_salt_length = default_encoding<KOVRA_ASN1_TYPE_INTEGER, twenty>;
constexpr const Default &default_trailer = default_encoding<KOVRA_ASN1_TYPE_INTEGER, one>;

// RSAES-OAEP-params ::= SEQUENCE {
//     hashAlgorithm     [0] EXPLICIT AlgorithmIdentifier DEFAULT sha1,
//     maskGenAlgorithm  [1] EXPLICIT AlgorithmIdentifier DEFAULT mgf1SHA1,
//     pSourceAlgorithm  [2] EXPLICIT AlgorithmIdentifier DEFAULT pSpecifiedEmpty }
constexpr Component oaep_components[] = {
    defaulted("hashAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, default_hash, explicit_tag(0)),
    defaulted("maskGenAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, default_mask, explicit_tag(1)),
    defaulted("pSourceAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, default_label, explicit_tag(2)),
};

// RSASSA-PSS-params ::= SEQUENCE {
//     hashAlgorithm     [0] EXPLICIT AlgorithmIdentifier DEFAULT sha1,
//     maskGenAlgorithm  [1] EXPLICIT AlgorithmIdentifier DEFAULT mgf1SHA1,
//     saltLength        [2] EXPLICIT INTEGER DEFAULT 20,
//     trailerField      [3] EXPLICIT INTEGER DEFAULT trailerFieldBC(1) }
constexpr Component pss_components[] = {
    defaulted("hashAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, default_hash, explicit_tag(0)),
    defaulted("maskGenAlgorithm", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, default_mask, explicit_tag(1)),
    defaulted("saltLength", KOVRA_ASN1_TYPE_INTEGER, default_salt_length, explicit_tag(2)),
    defaulted("trailerField", KOVRA_ASN1_TYPE_INTEGER, default_trailer, explicit_tag(3)),
};

} // namespace

constexpr StructureShape rsaes_oaep_params = structure(source, oaep_components);
constexpr StructureShape rsassa_pss_params = structure(source, pss_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_pkcs1oaepparams_new(const kovra_asn1_value *hash_algorithm,
                                            const kovra_asn1_value *mask_gen_algorithm,
                                            const kovra_asn1_value *p_source_algorithm) noexcept {
    return construct<rsaes_oaep_params>(hash_algorithm, mask_gen_algorithm, p_source_algorithm);
}

kovra_asn1_value *kovra_pkcs1oaepparams_gethashalgorithm(const kovra_asn1_value *obj) noexcept {
    return part<rsaes_oaep_params, "hashAlgorithm">(obj);
}

kovra_asn1_value *kovra_pkcs1oaepparams_getmaskgenalgorithm(const kovra_asn1_value *obj) noexcept {
    return part<rsaes_oaep_params, "maskGenAlgorithm">(obj);
}

kovra_asn1_value *kovra_pkcs1oaepparams_getpsourcealgorithm(const kovra_asn1_value *obj) noexcept {
    return part<rsaes_oaep_params, "pSourceAlgorithm">(obj);
}

kovra_asn1_value *kovra_pkcs1pssparams_new(const kovra_asn1_value *hash_algorithm,
                                           const kovra_asn1_value *mask_gen_algorithm,
                                           const kovra_asn1_value *salt_length,
                                           const kovra_asn1_value *trailer_field) noexcept {
    return construct<rsassa_pss_params>(hash_algorithm, mask_gen_algorithm, salt_length, trailer_field);
}

kovra_asn1_value *kovra_pkcs1pssparams_gethashalgorithm(const kovra_asn1_value *obj) noexcept {
    return part<rsassa_pss_params, "hashAlgorithm">(obj);
}

kovra_asn1_value *kovra_pkcs1pssparams_getmaskgenalgorithm(const kovra_asn1_value *obj) noexcept {
    return part<rsassa_pss_params, "maskGenAlgorithm">(obj);
}

kovra_asn1_value *kovra_pkcs1pssparams_getsaltlength(const kovra_asn1_value *obj) noexcept {
    return part<rsassa_pss_params, "saltLength">(obj);
}

kovra_asn1_value *kovra_pkcs1pssparams_gettrailerfield(const kovra_asn1_value *obj) noexcept {
    return part<rsassa_pss_params, "trailerField">(obj);
}
