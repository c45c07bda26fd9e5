// TSTInfo and Accuracy (RFC 3161, 2.4.2): what a time-stamp token says.

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_tsp.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_TSP";

// Accuracy ::= SEQUENCE {
//     seconds  INTEGER OPTIONAL,
//     millis   [0] IMPLICIT INTEGER OPTIONAL,
//     micros   [1] IMPLICIT INTEGER OPTIONAL }
// millis and micros are not held to 1..999.
constexpr Component precision_components[] = {
    optional("seconds", KOVRA_ASN1_TYPE_INTEGER),
    optional("millis", KOVRA_ASN1_TYPE_INTEGER, implicit_tag(0)),
    optional("micros", KOVRA_ASN1_TYPE_INTEGER, implicit_tag(1)),
};

// TSTInfo ::= SEQUENCE {
//     version         INTEGER,
//     policy          OBJECT IDENTIFIER,
//     messageImprint  MessageImprint,
//     serialNumber    INTEGER,
//     genTime         GeneralizedTime,
//     accuracy        Accuracy OPTIONAL,
//     ordering        BOOLEAN DEFAULT FALSE,
//     nonce           INTEGER OPTIONAL,
//     tsa             [0] EXPLICIT GeneralName OPTIONAL,
//     extensions      [1] IMPLICIT Extensions OPTIONAL }
// The constructor copies tsa as an INTEGER.
constexpr Component token_components[] = {
    required("version", KOVRA_ASN1_TYPE_INTEGER),
    required("policy", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("messageImprint", KOVRA_ASN1_TYPE_MESSAGE_IMPRINT),
    required("serialNumber", KOVRA_ASN1_TYPE_INTEGER),
    required("genTime", KOVRA_ASN1_TYPE_GENERALIZED_TIME),
    optional("accuracy", KOVRA_ASN1_TYPE_ACCURACY),
    defaulted("ordering", KOVRA_ASN1_TYPE_BOOLEAN, default_false),
    optional("nonce", KOVRA_ASN1_TYPE_INTEGER),
    optional("tsa", KOVRA_ASN1_TYPE_GENERAL_NAME, explicit_tag(0)).copy_as(KOVRA_ASN1_TYPE_INTEGER),
    optional("extensions", KOVRA_ASN1_TYPE_EXTENSIONS, implicit_tag(1)),
};

} // namespace

constexpr StructureShape time_stamp_accuracy = structure(source, precision_components);
constexpr StructureShape tst_info = structure(source, token_components);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_tsp_accuracy_new(const kovra_asn1_value *seconds, const kovra_asn1_value *millis,
                                         const kovra_asn1_value *micros) noexcept {
    return construct<time_stamp_accuracy>(seconds, millis, micros);
}

kovra_asn1_value *kovra_tsp_accuracy_getseconds(const kovra_asn1_value *obj) noexcept {
    return part<time_stamp_accuracy, "seconds">(obj);
}

kovra_asn1_value *kovra_tsp_accuracy_getmillis(const kovra_asn1_value *obj) noexcept {
    return part<time_stamp_accuracy, "millis">(obj);
}

kovra_asn1_value *kovra_tsp_accuracy_getmicros(const kovra_asn1_value *obj) noexcept {
    return part<time_stamp_accuracy, "micros">(obj);
}

kovra_asn1_value *kovra_tsp_tstinfo_new(const kovra_asn1_value *version, const kovra_asn1_value *policy,
                                        const kovra_asn1_value *imprint, const kovra_asn1_value *serial_number,
                                        const kovra_asn1_value *gen_time, const kovra_asn1_value *accuracy,
                                        const kovra_asn1_value *ordering, const kovra_asn1_value *nonce,
                                        const kovra_asn1_value *tsa, const kovra_asn1_value *exts) noexcept {
    return construct<tst_info>(version, policy, imprint, serial_number, gen_time, accuracy, ordering, nonce, tsa, exts);
}

kovra_asn1_value *kovra_tsp_tstinfo_getversion(const kovra_asn1_value *obj) noexcept {
    return part<tst_info, "version">(obj);
}

kovra_asn1_value *kovra_tsp_tstinfo_getpolicy(const kovra_asn1_value *obj) noexcept {
    return part<tst_info, "policy">(obj);
}

kovra_asn1_value *kovra_tsp_tstinfo_getmessageimprint(const kovra_asn1_value *obj) noexcept {
    return part<tst_info, "messageImprint">(obj);
}

kovra_asn1_value *kovra_tsp_tstinfo_getsn(const kovra_asn1_value *obj) noexcept {
    return part<tst_info, "serialNumber">(obj);
}

kovra_asn1_value *kovra_tsp_tstinfo_getgentime(const kovra_asn1_value *obj) noexcept {
    return part<tst_info, "genTime">(obj);
}

kovra_asn1_value *kovra_tsp_tstinfo_getaccuracy(const kovra_asn1_value *obj) noexcept {
    return part<tst_info, "accuracy">(obj);
}

kovra_asn1_value *kovra_tsp_tstinfo_getordering(const kovra_asn1_value *obj) noexcept {
    return part<tst_info, "ordering">(obj);
}

kovra_asn1_value *kovra_tsp_tstinfo_getnonce(const kovra_asn1_value *obj) noexcept {
    return part<tst_info, "nonce">(obj);
}

kovra_asn1_value *kovra_tsp_tstinfo_gettsaname(const kovra_asn1_value *obj) noexcept {
    return part<tst_info, "tsa">(obj);
}

kovra_asn1_value *kovra_tsp_tstinfo_getexts(const kovra_asn1_value *obj) noexcept {
    return part<tst_info, "extensions">(obj);
}
