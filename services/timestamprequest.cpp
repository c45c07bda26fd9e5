// TimeStampReq (RFC 3161, 2.4.1).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_tsp.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_TSP";

// TimeStampReq ::= SEQUENCE {
//     version         INTEGER,
//     messageImprint  MessageImprint,
//     reqPolicy       OBJECT IDENTIFIER OPTIONAL,
//     nonce           INTEGER OPTIONAL,
//     certReq         BOOLEAN DEFAULT FALSE,
//     extensions      [0] IMPLICIT Extensions OPTIONAL }
constexpr Component request_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("messageImprint", KOVRA_ASN1_TYPE_MESSAGE_IMPRINT),
    optional("reqPolicy", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    optional("nonce", KOVRA_ASN1_TYPE_INTEGER),
    defaulted("certReq", KOVRA_ASN1_TYPE_BOOLEAN, default_false),
    optional("extensions", KOVRA_ASN1_TYPE_EXTENSIONS, implicit_tag(0)),
};

} // namespace

constexpr StructureShape time_stamp_req = structure(source, request_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_tsp_timestampreq_new(const kovra_asn1_value *version, const kovra_asn1_value *imprint,
                                             const kovra_asn1_value *policy, const kovra_asn1_value *nonce,
                                             const kovra_asn1_value *wants_certificate,
                                             const kovra_asn1_value *exts) noexcept {
    return construct<time_stamp_req>(version, imprint, policy, nonce, wants_certificate, exts);
}

kovra_asn1_value *kovra_tsp_timestampreq_getversion(const kovra_asn1_value *obj) noexcept {
    return part<time_stamp_req, "version">(obj);
}

kovra_asn1_value *kovra_tsp_timestampreq_getmessageimprint(const kovra_asn1_value *obj) noexcept {
    return part<time_stamp_req, "messageImprint">(obj);
}

kovra_asn1_value *kovra_tsp_timestampreq_getpolicy(const kovra_asn1_value *obj) noexcept {
    return part<time_stamp_req, "reqPolicy">(obj);
}

kovra_asn1_value *kovra_tsp_timestampreq_getnonce(const kovra_asn1_value *obj) noexcept {
    return part<time_stamp_req, "nonce">(obj);
}

kovra_asn1_value *kovra_tsp_timestampreq_getcertreq(const kovra_asn1_value *obj) noexcept {
    return part<time_stamp_req, "certReq">(obj);
}

kovra_asn1_value *kovra_tsp_timestampreq_getexts(const kovra_asn1_value *obj) noexcept {
    return part<time_stamp_req, "extensions">(obj);
}
