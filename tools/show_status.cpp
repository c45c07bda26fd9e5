// Requests and responses about the status of certificates (OCSP).

#include "inner.hpp"
#include "show_fields.hpp"
#include "show_message.hpp"

namespace kovra::tool {

namespace {

const Field certificate_id[] = {
    {"hash algorithm", kovra_ocsp_certid_gethashalgo, show_algorithm},
    {"issuer name hash", kovra_ocsp_certid_getissuernamehash, show_hex},
    {"issuer key hash", kovra_ocsp_certid_getissuerkeyhash, show_hex},
    {"serial", kovra_ocsp_certid_getsn, show_serial},
};

const Field single_request[] = {
    {"", kovra_ocsp_request_getcertid, show_here<KOVRA_ASN1_TYPE_OCSP_CERT_ID>},
    {"", kovra_ocsp_request_getexts, show_here<KOVRA_ASN1_TYPE_EXTENSIONS>},
};

void show_version_line(Printer &printer, Harmless, kovra_asn1_value *version) {
    show_version(printer, version);
}

const Field signed_request[] = {
    {"", kovra_ocsp_tbsrequest_getversion, show_version_line},
    {"requestor", kovra_ocsp_tbsrequest_getname, show_one_name},
    {"requests", kovra_ocsp_tbsrequest_getreqlist, show_counted<KOVRA_ASN1_TYPE_OCSP_REQUEST_LIST>},
    {"", kovra_ocsp_tbsrequest_getexts, show_here<KOVRA_ASN1_TYPE_EXTENSIONS>},
};

const Field signature[] = {
    {"signature algorithm", kovra_ocsp_signature_getsignalgo, show_algorithm},
    {"signature", kovra_ocsp_signature_getsignature, show_bit_hex},
    {"certificates", kovra_ocsp_signature_getcerts, show_plain_certificates},
};

const Field request[] = {
    {"", kovra_ocsp_ocsprequest_gettbs, show_here<KOVRA_ASN1_TYPE_OCSP_TBS_REQUEST>},
    {"", kovra_ocsp_ocsprequest_getsignature, show_here<KOVRA_ASN1_TYPE_OCSP_SIGNATURE>},
};

void show_response_status(Printer &printer, Harmless label, kovra_asn1_value *status) {
    static constexpr Harmless names[] = {"successful", "malformedRequest", "internalError", "tryLater",
                                         "",           "sigRequired",      "unauthorized"};
    printer.begin(label);
    put_named(printer, status, names);
    printer.end();
}

const Field response[] = {
    {"status", kovra_ocsp_ocspresponse_getstatus, show_response_status},
    {"", kovra_ocsp_ocspresponse_getresponse, show_here<KOVRA_ASN1_TYPE_OCSP_RESPONSE_BYTES>},
};

void show_response_bytes(Printer &printer, kovra_asn1_value *bytes) {
    constexpr uint32_t type = KOVRA_ASN1_TYPE_OCSP_BASIC_RESPONSE;
    kovra_asn1_value *oid = kovra_ocsp_responsebytes_gettype(bytes);
    const std::string octets = octets_of(kovra_ocsp_responsebytes_getresponse(bytes));
    show_named_oid(printer, "response type", oid);
    if (text_of_oid(oid) != basic_response_oid)
        return printer.hex("response", octets);
    if (Value value(type); read_octets(octets, type, value))
        show_below<type>(printer, "response", value.get());
    else
        printer.malformed(name_of_oid(oid), type, octets);
}

void show_responder(Printer &printer, kovra_asn1_value *responder) {
    show_name(printer, "responder", kovra_ocsp_responderid_getname(responder));
    show_hex(printer, "responder key hash", kovra_ocsp_responderid_getkeyhash(responder));
}

void show_reason_line(Printer &printer, Harmless, kovra_asn1_value *reason) {
    show_reason(printer, reason);
}

const Field revoked_info[] = {
    {"revocation time", kovra_ocsp_revokedinfo_gettime, show_time},
    {"reason", kovra_ocsp_revokedinfo_getreason, show_reason_line},
};

void show_certificate_status(Printer &printer, kovra_asn1_value *status) {
    static constexpr Harmless names[] = {"good", "revoked", "unknown"};
    const int32_t kind = kovra_ocsp_certstatus_gettype(status);
    printer.field("status", names[kind]);
    if (kovra_asn1_value *revoked = kovra_ocsp_certstatus_getrevoked(status); revoked != nullptr)
        show_fields<revoked_info>(printer, revoked);
}

const Field single_response[] = {
    {"", kovra_ocsp_singleresponse_getcertid, show_here<KOVRA_ASN1_TYPE_OCSP_CERT_ID>},
    {"", kovra_ocsp_singleresponse_getcertstatus, show_here<KOVRA_ASN1_TYPE_OCSP_CERT_STATUS>},
    {"this update", kovra_ocsp_singleresponse_getthisupdate, show_time},
    {"next update", kovra_ocsp_singleresponse_getnextupdate, show_time},
    {"", kovra_ocsp_singleresponse_getexts, show_here<KOVRA_ASN1_TYPE_EXTENSIONS>},
};

const Field response_data[] = {
    {"", kovra_ocsp_responsedata_getversion, show_version_line},
    {"", kovra_ocsp_responsedata_getrespid, show_here<KOVRA_ASN1_TYPE_OCSP_RESPONDER_ID>},
    {"produced at", kovra_ocsp_responsedata_getproducedat, show_time},
    {"responses", kovra_ocsp_responsedata_getresponses, show_counted<KOVRA_ASN1_TYPE_OCSP_RESPONSES>},
    {"", kovra_ocsp_responsedata_getexts, show_here<KOVRA_ASN1_TYPE_EXTENSIONS>},
};

const Field basic_response[] = {
    {"", kovra_ocsp_basicocspresponse_gettbs, show_here<KOVRA_ASN1_TYPE_OCSP_RESPONSE_DATA>},
    {"signature algorithm", kovra_ocsp_basicocspresponse_getsignalgo, show_algorithm},
    {"signature", kovra_ocsp_basicocspresponse_getsignature, show_bit_hex},
    {"certificates", kovra_ocsp_basicocspresponse_getcerts, show_plain_certificates},
};

void show_url(Printer &printer, Harmless label, kovra_asn1_value *string) {
    constexpr uint32_t ia5_string = 22;
    show_text(printer, label, ia5_string, string);
}

const Field crl_id[] = {
    {"URL", kovra_ocsp_crlid_geturl, show_url},
    {"number", kovra_ocsp_crlid_getnum, show_integer},
    {"time", kovra_ocsp_crlid_gettime, show_time},
};

constexpr TypeRow rows[] = {
    {KOVRA_ASN1_TYPE_OCSP_CERT_ID, show_fields<certificate_id>},
    {KOVRA_ASN1_TYPE_OCSP_SINGLE_REQUEST, show_fields<single_request>},
    {KOVRA_ASN1_TYPE_OCSP_TBS_REQUEST, show_fields<signed_request>},
    {KOVRA_ASN1_TYPE_OCSP_SIGNATURE, show_fields<signature>},
    {KOVRA_ASN1_TYPE_OCSP_REQUEST, show_fields<request>},
    {KOVRA_ASN1_TYPE_OCSP_RESPONSE_BYTES, show_response_bytes},
    {KOVRA_ASN1_TYPE_OCSP_RESPONSE, show_fields<response>},
    {KOVRA_ASN1_TYPE_OCSP_RESPONDER_ID, show_responder},
    {KOVRA_ASN1_TYPE_OCSP_REVOKED_INFO, show_fields<revoked_info>},
    {KOVRA_ASN1_TYPE_OCSP_CERT_STATUS, show_certificate_status},
    {KOVRA_ASN1_TYPE_OCSP_SINGLE_RESPONSE, show_fields<single_response>},
    {KOVRA_ASN1_TYPE_OCSP_RESPONSE_DATA, show_fields<response_data>},
    {KOVRA_ASN1_TYPE_OCSP_BASIC_RESPONSE, show_fields<basic_response>},
    {KOVRA_ASN1_TYPE_OCSP_CRL_ID, show_fields<crl_id>},
};

} // namespace

void show_plain_certificates(Printer &printer, Harmless label, kovra_asn1_value *certificates) {
    show_count(printer, label, certificates);
    const Printer::Deeper deeper(printer);
    for_each(certificates, [&](kovra_asn1_value *certificate) {
        show_below<KOVRA_ASN1_TYPE_CERTIFICATE>(printer, "certificate", certificate);
    });
}

std::span<const TypeRow> status_structures() {
    return rows;
}

} // namespace kovra::tool
