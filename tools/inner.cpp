#include "inner.hpp"

#include <algorithm>
#include <iterator>

#include "show_fields.hpp"
#include "show_message.hpp"

namespace kovra::tool {

namespace {

// Rows of one identifier stand together. EnvelopedData is read element by element where the library does not take it:
// it wants the key derivation of a password (RFC 5652, 6.2.4) in a SEQUENCE of its own.
constexpr OidRow contents[] = {
    {"1.2.840.113549.1.7.2", KOVRA_ASN1_TYPE_PKCS7_SIGNED_DATA},
    {"1.2.840.113549.1.7.3", KOVRA_ASN1_TYPE_ENVELOPED_DATA},
    {"1.2.840.113549.1.7.3", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, show_enveloped_elements},
    {"1.2.840.113549.1.7.5", KOVRA_ASN1_TYPE_DIGESTED_DATA},
    {"1.2.840.113549.1.7.6", KOVRA_ASN1_TYPE_ENCRYPTED_DATA},
    {"1.2.840.113549.1.9.16.1.2", KOVRA_ASN1_TYPE_AUTHENTICATED_DATA},
    {"1.2.840.113549.1.9.16.1.4", KOVRA_ASN1_TYPE_TST_INFO},
    {"1.2.840.113549.1.9.16.1.23", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, show_enveloped_elements},
};

constexpr OidRow private_keys[] = {
    {"1.2.840.113549.1.1.1", KOVRA_ASN1_TYPE_RSA_PRIVATE_KEY},
    {"1.2.840.113549.1.1.7", KOVRA_ASN1_TYPE_RSA_PRIVATE_KEY},
    {"1.2.840.113549.1.1.10", KOVRA_ASN1_TYPE_RSA_PRIVATE_KEY},
    {"1.2.840.10045.2.1", KOVRA_ASN1_TYPE_EC_PRIVATE_KEY},
    {"1.3.132.1.12", KOVRA_ASN1_TYPE_EC_PRIVATE_KEY},
    {"1.3.132.1.13", KOVRA_ASN1_TYPE_EC_PRIVATE_KEY},
    {"1.2.840.10040.4.1", KOVRA_ASN1_TYPE_INTEGER, show_private_number},
    {"1.2.840.10046.2.1", KOVRA_ASN1_TYPE_INTEGER, show_private_number},
    {"1.2.840.113549.1.3.1", KOVRA_ASN1_TYPE_INTEGER, show_private_number},
    {"1.3.101.110", KOVRA_ASN1_TYPE_OCTET_STRING, show_private_octets},
    {"1.3.101.111", KOVRA_ASN1_TYPE_OCTET_STRING, show_private_octets},
    {"1.3.101.112", KOVRA_ASN1_TYPE_OCTET_STRING, show_private_octets},
    {"1.3.101.113", KOVRA_ASN1_TYPE_OCTET_STRING, show_private_octets},
};

constexpr OidRow bags[] = {
    {"1.2.840.113549.1.12.10.1.1", KOVRA_ASN1_TYPE_PRIVATE_KEY_INFO},
    {"1.2.840.113549.1.12.10.1.2", KOVRA_ASN1_TYPE_ENCRYPTED_PRIVATE_KEY_INFO},
    {"1.2.840.113549.1.12.10.1.3", KOVRA_ASN1_TYPE_CERT_BAG},
    {"1.2.840.113549.1.12.10.1.4", KOVRA_ASN1_TYPE_CRL_BAG},
    {"1.2.840.113549.1.12.10.1.5", KOVRA_ASN1_TYPE_SECRET_BAG},
    {"1.2.840.113549.1.12.10.1.6", KOVRA_ASN1_TYPE_SAFE_CONTENTS},
};

constexpr OidRow bag_contents[] = {
    {"1.2.840.113549.1.9.22.1", KOVRA_ASN1_TYPE_CERTIFICATE},
    {"1.2.840.113549.1.9.23.1", KOVRA_ASN1_TYPE_CERTIFICATE_LIST},
};

constexpr OidRow basic_response = {basic_response_oid, KOVRA_ASN1_TYPE_OCSP_BASIC_RESPONSE};
constexpr OidRow token = {"", KOVRA_ASN1_TYPE_CONTENT_INFO};
// In a PFX, content of type data is an AuthenticatedSafe, and in that SafeContents.
constexpr OidRow authenticated_safe = {"", KOVRA_ASN1_TYPE_AUTHENTICATED_SAFE};
constexpr OidRow safe_contents = {"", KOVRA_ASN1_TYPE_SAFE_CONTENTS};

std::span<const OidRow> one(const OidRow *row) {
    return row != nullptr ? std::span(row, 1) : std::span<const OidRow>();
}

std::span<const OidRow> rows_of(std::string_view oid, uint32_t type_of_data) {
    if (oid != data_oid)
        return find_content(oid);
    if (type_of_data == KOVRA_ASN1_TYPE_AUTHENTICATED_SAFE)
        return one(&authenticated_safe);
    return type_of_data == KOVRA_ASN1_TYPE_SAFE_CONTENTS ? one(&safe_contents) : std::span<const OidRow>();
}

// The encoding of a structure that stands in an OCTET STRING, as in PKCS #12 and CMS, or by itself.
std::string unwrapped(kovra_asn1_value *any) {
    Value string(KOVRA_ASN1_TYPE_OCTET_STRING);
    return read_any(any, KOVRA_ASN1_TYPE_OCTET_STRING, string) ? octets_of(string.get())
                                                               : encoding_of(KOVRA_ASN1_TYPE_ANY, any);
}

} // namespace

std::span<const OidRow> find_content(std::string_view oid) {
    const auto is_other = [&](const OidRow &row) { return row.oid != oid; };
    const auto *begin = std::find_if_not(std::begin(contents), std::end(contents), is_other);
    return {begin, std::find_if(begin, std::end(contents), is_other)};
}

const OidRow *find_private_key(std::string_view algorithm) {
    return find_row(private_keys, algorithm);
}

const OidRow *find_bag(std::string_view id) {
    return find_row(bags, id);
}

const OidRow *find_bag_content(std::string_view id) {
    return find_row(bag_contents, id);
}

void for_each_inner(uint32_t type, kovra_asn1_value *value, uint32_t type_of_data,
                    const std::function<void(Inner)> &function) {
    const auto content = [&](kovra_asn1_value *info, uint32_t data) {
        if (kovra_asn1_value *any = kovra_pkcs7contentinfo_getcontent(info); any != nullptr)
            function({unwrapped(any), rows_of(text_of_oid(kovra_pkcs7contentinfo_getcontenttype(info)), data), data});
    };
    switch (type) {
    case KOVRA_ASN1_TYPE_CONTENT_INFO:
        return content(value, type_of_data);
    case KOVRA_ASN1_TYPE_PKCS7_SIGNED_DATA:
        return content(kovra_pkcs7signeddata_getcontentinfo(value), type_of_data);
    case KOVRA_ASN1_TYPE_DIGESTED_DATA:
        return content(kovra_pkcs7digesteddata_getcontentinfo(value), type_of_data);
    case KOVRA_ASN1_TYPE_TIME_STAMP_RESP:
        if (const kovra_asn1_value *info = kovra_tsp_timestampresp_gettoken(value); info != nullptr)
            function({encoding_of(KOVRA_ASN1_TYPE_CONTENT_INFO, info), one(&token)});
        return;
    case KOVRA_ASN1_TYPE_OCSP_RESPONSE:
        if (const kovra_asn1_value *bytes = kovra_ocsp_ocspresponse_getresponse(value);
            bytes != nullptr && text_of_oid(kovra_ocsp_responsebytes_gettype(bytes)) == basic_response.oid)
            function({octets_of(kovra_ocsp_responsebytes_getresponse(bytes)), one(&basic_response)});
        return;
    case KOVRA_ASN1_TYPE_PRIVATE_KEY_INFO: {
        const kovra_asn1_value *algorithm = kovra_pkcs8privkeyinfo_getprivatekeyalgorithm(value);
        return function({octets_of(kovra_pkcs8privkeyinfo_getprivatekey(value)),
                         one(find_private_key(text_of_oid(kovra_x509algoid_getalgo(algorithm))))});
    }
    case KOVRA_ASN1_TYPE_PFX:
        return content(kovra_pkcs12pfx_getauthsafe(value), KOVRA_ASN1_TYPE_AUTHENTICATED_SAFE);
    case KOVRA_ASN1_TYPE_AUTHENTICATED_SAFE:
        return for_each(value, [&](kovra_asn1_value *info) { content(info, KOVRA_ASN1_TYPE_SAFE_CONTENTS); });
    case KOVRA_ASN1_TYPE_SAFE_CONTENTS:
        return for_each(value, [&](kovra_asn1_value *bag) {
            function({encoding_of(KOVRA_ASN1_TYPE_ANY, kovra_pkcs12safebag_getbagvalue(bag)),
                      one(find_bag(text_of_oid(kovra_pkcs12safebag_getbagid(bag))))});
        });
    case KOVRA_ASN1_TYPE_CERT_BAG:
        return function({unwrapped(kovra_pkcs12certbag_getcertvalue(value)),
                         one(find_bag_content(text_of_oid(kovra_pkcs12certbag_getcertid(value))))});
    case KOVRA_ASN1_TYPE_CRL_BAG:
        return function({unwrapped(kovra_pkcs12crlbag_getcrlvalue(value)),
                         one(find_bag_content(text_of_oid(kovra_pkcs12crlbag_getcrlid(value))))});
    default:
        return;
    }
}

} // namespace kovra::tool
