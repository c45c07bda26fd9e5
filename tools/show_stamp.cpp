// Time stamps (RFC 3161), and the attributes that name a signing certificate (RFC 2634, RFC 5035).

#include "show_fields.hpp"

namespace kovra::tool {

namespace {

const Field imprint[] = {
    {"hash algorithm", kovra_tsp_messageimprint_gethashalgo, show_algorithm},
    {"hash", kovra_tsp_messageimprint_gethashedmessage, show_hex},
};

const Field request[] = {
    {"version", kovra_tsp_timestampreq_getversion, show_integer},
    {"", kovra_tsp_timestampreq_getmessageimprint, show_here<KOVRA_ASN1_TYPE_MESSAGE_IMPRINT>},
    {"policy", kovra_tsp_timestampreq_getpolicy, show_named_oid},
    {"nonce", kovra_tsp_timestampreq_getnonce, show_serial},
    {"certificate wanted", kovra_tsp_timestampreq_getcertreq, show_flag},
    {"", kovra_tsp_timestampreq_getexts, show_here<KOVRA_ASN1_TYPE_EXTENSIONS>},
};

void show_status(Printer &printer, Harmless label, kovra_asn1_value *status) {
    static constexpr Harmless names[] = {"granted", "grantedWithMods",   "rejection",
                                         "waiting", "revocationWarning", "revocationNotification"};
    printer.begin(label);
    put_named(printer, status, names);
    printer.end();
}

void show_failure(Printer &printer, Harmless label, kovra_asn1_value *bits) {
    static constexpr Harmless names[] = {"badAlg",
                                         "badMessageCheck",
                                         "badRequest",
                                         "badTime",
                                         "badCertId",
                                         "badDataFormat",
                                         "wrongAuthority",
                                         "incorrectData",
                                         "missingTimeStamp",
                                         "badPOP",
                                         "",
                                         "",
                                         "",
                                         "",
                                         "timeNotAvailable",
                                         "unacceptedPolicy",
                                         "unacceptedExtension",
                                         "addInfoNotAvailable",
                                         "",
                                         "",
                                         "",
                                         "",
                                         "",
                                         "",
                                         "",
                                         "systemFailure"};
    show_bits(printer, label, bits, names);
}

const Field status_info[] = {
    {"status", kovra_tsp_pkistatusinfo_getstatus, show_status},
    {"", kovra_tsp_pkistatusinfo_getstatusstring, show_here<KOVRA_ASN1_TYPE_PKI_FREE_TEXT>},
    {"failure", kovra_tsp_pkistatusinfo_getfailinfo, show_failure},
};

const Field response[] = {
    {"", kovra_tsp_timestampresp_getstatus, show_here<KOVRA_ASN1_TYPE_PKI_STATUS_INFO>},
    {"token", kovra_tsp_timestampresp_gettoken, show_below<KOVRA_ASN1_TYPE_CONTENT_INFO>},
};

const Field accuracy[] = {
    {"seconds", kovra_tsp_accuracy_getseconds, show_integer},
    {"milliseconds", kovra_tsp_accuracy_getmillis, show_integer},
    {"microseconds", kovra_tsp_accuracy_getmicros, show_integer},
};

const Field token_info[] = {
    {"version", kovra_tsp_tstinfo_getversion, show_integer},
    {"policy", kovra_tsp_tstinfo_getpolicy, show_named_oid},
    {"", kovra_tsp_tstinfo_getmessageimprint, show_here<KOVRA_ASN1_TYPE_MESSAGE_IMPRINT>},
    {"serial", kovra_tsp_tstinfo_getsn, show_serial},
    {"time", kovra_tsp_tstinfo_getgentime, show_time},
    {"accuracy", kovra_tsp_tstinfo_getaccuracy, show_below<KOVRA_ASN1_TYPE_ACCURACY>},
    {"ordering", kovra_tsp_tstinfo_getordering, show_flag},
    {"nonce", kovra_tsp_tstinfo_getnonce, show_serial},
    {"authority", kovra_tsp_tstinfo_gettsaname, show_one_name},
    {"", kovra_tsp_tstinfo_getexts, show_here<KOVRA_ASN1_TYPE_EXTENSIONS>},
};

const Field issuer_serial[] = {
    {"issuer", kovra_ess_issuerserial_getissuer, show_general_names},
    {"serial", kovra_ess_issuerserial_getsn, show_serial},
};

const Field certificate_id[] = {
    {"hash", kovra_ess_certid_getcerthash, show_hex},
    {"", kovra_ess_certid_getissuersn, show_here<KOVRA_ASN1_TYPE_ISSUER_SERIAL>},
};

const Field certificate_id_2[] = {
    {"hash algorithm", kovra_ess_certidv2_getcerthashalgo, show_algorithm},
    {"hash", kovra_ess_certidv2_getcerthash, show_hex},
    {"", kovra_ess_certidv2_getissuersn, show_here<KOVRA_ASN1_TYPE_ISSUER_SERIAL>},
};

const Field signing_certificate[] = {
    {"", kovra_ess_signingcertificate_getcerts, show_here<KOVRA_ASN1_TYPE_ESS_CERT_IDS>},
    {"policies", kovra_ess_signingcertificate_getpolicies, show_below<KOVRA_ASN1_TYPE_CERTIFICATE_POLICIES_1>},
};

const Field signing_certificate_2[] = {
    {"", kovra_ess_signingcertificate_getcerts, show_here<KOVRA_ASN1_TYPE_ESS_CERT_IDS_V2>},
    {"policies", kovra_ess_signingcertificate_getpolicies, show_below<KOVRA_ASN1_TYPE_CERTIFICATE_POLICIES_1>},
};

constexpr TypeRow rows[] = {
    {KOVRA_ASN1_TYPE_MESSAGE_IMPRINT, show_fields<imprint>},
    {KOVRA_ASN1_TYPE_TIME_STAMP_REQ, show_fields<request>},
    {KOVRA_ASN1_TYPE_PKI_STATUS_INFO, show_fields<status_info>},
    {KOVRA_ASN1_TYPE_TIME_STAMP_RESP, show_fields<response>},
    {KOVRA_ASN1_TYPE_ACCURACY, show_fields<accuracy>},
    {KOVRA_ASN1_TYPE_TST_INFO, show_fields<token_info>},
    {KOVRA_ASN1_TYPE_ISSUER_SERIAL, show_fields<issuer_serial>},
    {KOVRA_ASN1_TYPE_ESS_CERT_ID, show_fields<certificate_id>},
    {KOVRA_ASN1_TYPE_ESS_CERT_ID_V2, show_fields<certificate_id_2>},
    {KOVRA_ASN1_TYPE_SIGNING_CERTIFICATE, show_fields<signing_certificate>},
    {KOVRA_ASN1_TYPE_SIGNING_CERTIFICATE_V2, show_fields<signing_certificate_2>},
};

} // namespace

std::span<const TypeRow> stamp_structures() {
    return rows;
}

} // namespace kovra::tool
