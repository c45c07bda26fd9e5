// Encrypted and authenticated messages (CMS) and those they are for.

#include "show_fields.hpp"
#include "show_message.hpp"

namespace kovra::tool {

namespace {

const Field key_transport[] = {
    {"version", kovra_cmskeytransrecipientinfo_getversion, show_integer},
    {"", kovra_cmskeytransrecipientinfo_getrid, show_here<KOVRA_ASN1_TYPE_SIGNER_IDENTIFIER>},
    {"key encryption", kovra_cmskeytransrecipientinfo_getencalgo, show_algorithm},
    {"encrypted key", kovra_cmskeytransrecipientinfo_getenckey, show_hex},
};

const Field key_agreement[] = {
    {"version", kovra_cmskeyagreerecipientinfo_getversion, show_integer},
    {"originator", kovra_cmskeyagreerecipientinfo_getoriginator,
     show_below<KOVRA_ASN1_TYPE_ORIGINATOR_IDENTIFIER_OR_KEY>},
    {"user keying material", kovra_cmskeyagreerecipientinfo_getukm, show_hex},
    {"key encryption", kovra_cmskeyagreerecipientinfo_getencalgo, show_algorithm},
    {"encrypted keys", kovra_cmskeyagreerecipientinfo_getenckeys,
     show_counted<KOVRA_ASN1_TYPE_RECIPIENT_ENCRYPTED_KEYS>},
};

const Field key_encryption_key[] = {
    {"version", kovra_cmskekrecipientinfo_getversion, show_integer},
    {"", kovra_cmskekrecipientinfo_getkekid, show_here<KOVRA_ASN1_TYPE_RECIPIENT_KEY_IDENTIFIER>},
    {"key encryption", kovra_cmskekrecipientinfo_getencalgo, show_algorithm},
    {"encrypted key", kovra_cmskekrecipientinfo_getenckey, show_hex},
};

const Field password[] = {
    {"version", kovra_cmspwdrecipientinfo_getversion, show_integer},
    {"key derivation", kovra_cmspwdrecipientinfo_getderivalgo, show_algorithm},
    {"key encryption", kovra_cmspwdrecipientinfo_getencalgo, show_algorithm},
    {"encrypted key", kovra_cmspwdrecipientinfo_getenckey, show_hex},
};

const Field other_recipient[] = {
    {"type", kovra_cmsotherrecipientinfo_gettype, show_named_oid},
    {"value", kovra_cmsotherrecipientinfo_getvalue, show_any},
};

const Field key_identifier[] = {
    {"key id", kovra_cmsrecipientkeyid_getsubkeyid, show_hex},
    {"date", kovra_cmsrecipientkeyid_getdate, show_time},
    {"other", kovra_cmsrecipientkeyid_getotherattr, show_below<KOVRA_ASN1_TYPE_OTHER_KEY_ATTRIBUTE>},
};

const Field other_attribute[] = {
    {"id", kovra_cmsotherkeyattr_getattrid, show_named_oid},
    {"value", kovra_cmsotherkeyattr_getattrvalue, show_any},
};

const Field encrypted_key[] = {
    {"", kovra_cmsrecipientenckey_getid, show_here<KOVRA_ASN1_TYPE_KEY_AGREE_RECIPIENT_IDENTIFIER>},
    {"encrypted key", kovra_cmsrecipientenckey_getenckey, show_hex},
};

const Field originator_info[] = {
    {"certificates", kovra_cmsoriginatorinfo_getcerts, show_counted<KOVRA_ASN1_TYPE_CERTIFICATE_SET>},
    {"CRLs", kovra_cmsoriginatorinfo_getcrls, show_counted<KOVRA_ASN1_TYPE_REVOCATION_INFO_CHOICES>},
};

const Field encrypted_content[] = {
    {"content type", kovra_cmsencryptedcontentinfo_gettype, show_named_oid},
    {"encryption", kovra_cmsencryptedcontentinfo_getalgo, show_algorithm},
    {"encrypted content", kovra_cmsencryptedcontentinfo_getenccontent, show_hex},
};

const Field encrypted_data[] = {
    {"version", kovra_cmsencrypteddata_getversion, show_integer},
    {"", kovra_cmsencrypteddata_getencinfo, show_here<KOVRA_ASN1_TYPE_ENCRYPTED_CONTENT_INFO>},
    {"attributes", kovra_cmsencrypteddata_getattrs, show_counted<KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES>},
};

const Field enveloped_data[] = {
    {"version", kovra_cmsenvelopeddata_getversion, show_integer},
    {"originator", kovra_cmsenvelopeddata_getoriginator, show_below<KOVRA_ASN1_TYPE_ORIGINATOR_INFO>},
    {"recipients", kovra_cmsenvelopeddata_getrecipinfos, show_counted<KOVRA_ASN1_TYPE_RECIPIENT_INFOS>},
    {"", kovra_cmsenvelopeddata_getencinfo, show_here<KOVRA_ASN1_TYPE_ENCRYPTED_CONTENT_INFO>},
    {"attributes", kovra_cmsenvelopeddata_getattrs, show_counted<KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES>},
};

const Field authenticated_data[] = {
    {"version", kovra_cmsauthdata_getversion, show_integer},
    {"originator", kovra_cmsauthdata_getoriginator, show_below<KOVRA_ASN1_TYPE_ORIGINATOR_INFO>},
    {"recipients", kovra_cmsauthdata_getrecipinfos, show_counted<KOVRA_ASN1_TYPE_RECIPIENT_INFOS>},
    {"MAC algorithm", kovra_cmsauthdata_getmacalgo, show_algorithm},
    {"digest algorithm", kovra_cmsauthdata_gethashalgo, show_algorithm},
    {"", kovra_cmsauthdata_getencapinfo, show_here<KOVRA_ASN1_TYPE_ENCAPSULATED_CONTENT_INFO>},
    {"authenticated attributes", kovra_cmsauthdata_getauthatrrs, show_counted<KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES>},
    {"MAC", kovra_cmsauthdata_getmac, show_hex},
    {"other attributes", kovra_cmsauthdata_getunauthatrrs, show_counted<KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES>},
};

const Field key_specific_info[] = {
    {"algorithm", kovra_dhkeyspecinfo_getalgo, show_named_oid},
    {"counter", kovra_dhkeyspecinfo_getcount, show_hex},
};

const Field dh_other_info[] = {
    {"", kovra_dhotherinfo_getkeyspec, show_here<KOVRA_ASN1_TYPE_KEY_SPECIFIC_INFO>},
    {"party A", kovra_dhotherinfo_getpartyainfo, show_hex},
    {"public information", kovra_dhotherinfo_getsupppubinfo, show_hex},
};

struct RecipientKind {
    Harmless name;
    kovra_asn1_value *(*get)(const kovra_asn1_value *);
    std::span<const Field> fields;
};
const RecipientKind kinds[] = {
    {"key transport", kovra_cmsrecipientinfo_getktri, key_transport},
    {"key agreement", kovra_cmsrecipientinfo_getkari, key_agreement},
    {"key encryption key", kovra_cmsrecipientinfo_getkekri, key_encryption_key},
    {"password", kovra_cmsrecipientinfo_getpwri, password},
    {"other", kovra_cmsrecipientinfo_getori, other_recipient},
};

void show_recipient(Printer &printer, kovra_asn1_value *recipient) {
    const RecipientKind &kind = kinds[kovra_cmsrecipientinfo_gettype(recipient)];
    printer.field("recipient", kind.name);
    const Printer::Deeper deeper(printer);
    show_fields(printer, kind.fields, kind.get(recipient));
}

void show_originator(Printer &printer, kovra_asn1_value *originator) {
    switch (kovra_cmsorgidorkey_gettype(originator)) {
    case 0:
        return show_value(printer, KOVRA_ASN1_TYPE_ISSUER_AND_SERIAL_NUMBER,
                          kovra_cmsorgidorkey_getissuersn(originator));
    case 1:
        return show_hex(printer, "key id", kovra_cmsorgidorkey_getsubkeyid(originator));
    default:
        return show_public_key(printer, kovra_cmsorgidorkey_getorgkey(originator));
    }
}

void show_agreement_id(Printer &printer, kovra_asn1_value *identifier) {
    if (kovra_cmskeyagreerecipientid_gettype(identifier) == 0)
        show_value(printer, KOVRA_ASN1_TYPE_ISSUER_AND_SERIAL_NUMBER,
                   kovra_cmskeyagreerecipientid_getissuersn(identifier));
    else
        show_fields<key_identifier>(printer, kovra_cmskeyagreerecipientid_getrkeyid(identifier));
}

int32_t tag_of(const kovra_asn1_value *any) {
    int32_t tag = -1;
    kovra_asn1_any_gettagnumber(any, &tag);
    return tag;
}

// Reads the content behind an implicit tag.
bool read_content(kovra_asn1_value *any, uint32_t type, Value &out) {
    return kovra_asn1_any_contenttoobject(any, type, out.place(), nullptr) == 1;
}

// PasswordRecipientInfo as RFC 5652 has it, the key derivation behind an implicit tag.
bool show_password(Printer &printer, kovra_asn1_value *any) {
    static constexpr Element items[] = {
        {"version", KOVRA_ASN1_TYPE_INTEGER, show_integer},
        {"key encryption", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, show_algorithm},
        {"encrypted key", KOVRA_ASN1_TYPE_OCTET_STRING, show_hex},
    };
    Value list(KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY);
    if (!read_content(any, KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, list))
        return false;
    printer.field("recipient", "password");
    const Printer::Deeper deeper(printer);
    size_t index = 0;
    for_each(list.get(), [&](kovra_asn1_value *element) {
        Value derivation(KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER);
        if (tag_of(element) == 0 && read_content(element, KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, derivation))
            return show_algorithm(printer, "key derivation", derivation.get());
        const Element *item = index < std::size(items) ? &items[index++] : nullptr;
        Value value(item != nullptr ? item->type : KOVRA_ASN1_TYPE_ANY);
        if (item != nullptr && read_any(element, item->type, value))
            item->line(printer, item->label, value.get());
        else
            show_unknown(printer, "element", element);
    });
    return true;
}

void show_recipient_element(Printer &printer, kovra_asn1_value *any) {
    constexpr int32_t password_tag = 3;
    Value recipient(KOVRA_ASN1_TYPE_RECIPIENT_INFO);
    if (read_any(any, KOVRA_ASN1_TYPE_RECIPIENT_INFO, recipient))
        show_recipient(printer, recipient.get());
    else if (tag_of(any) != password_tag || !show_password(printer, any))
        printer.malformed("recipient", KOVRA_ASN1_TYPE_RECIPIENT_INFO, encoding_of(KOVRA_ASN1_TYPE_ANY, any));
}

constexpr TypeRow rows[] = {
    {KOVRA_ASN1_TYPE_ENCRYPTED_CONTENT_INFO, show_fields<encrypted_content>},
    {KOVRA_ASN1_TYPE_ENCRYPTED_DATA, show_fields<encrypted_data>},
    {KOVRA_ASN1_TYPE_ENVELOPED_DATA, show_fields<enveloped_data>},
    {KOVRA_ASN1_TYPE_AUTHENTICATED_DATA, show_fields<authenticated_data>},
    {KOVRA_ASN1_TYPE_ORIGINATOR_INFO, show_fields<originator_info>},
    {KOVRA_ASN1_TYPE_ORIGINATOR_IDENTIFIER_OR_KEY, show_originator},
    {KOVRA_ASN1_TYPE_RECIPIENT_INFO, show_recipient},
    {KOVRA_ASN1_TYPE_KEY_TRANS_RECIPIENT_INFO, show_fields<key_transport>},
    {KOVRA_ASN1_TYPE_KEY_AGREE_RECIPIENT_INFO, show_fields<key_agreement>},
    {KOVRA_ASN1_TYPE_KEK_RECIPIENT_INFO, show_fields<key_encryption_key>},
    {KOVRA_ASN1_TYPE_PASSWORD_RECIPIENT_INFO, show_fields<password>},
    {KOVRA_ASN1_TYPE_OTHER_RECIPIENT_INFO, show_fields<other_recipient>},
    {KOVRA_ASN1_TYPE_RECIPIENT_KEY_IDENTIFIER, show_fields<key_identifier>},
    {KOVRA_ASN1_TYPE_OTHER_KEY_ATTRIBUTE, show_fields<other_attribute>},
    {KOVRA_ASN1_TYPE_KEY_AGREE_RECIPIENT_IDENTIFIER, show_agreement_id},
    {KOVRA_ASN1_TYPE_RECIPIENT_ENCRYPTED_KEY, show_fields<encrypted_key>},
    {KOVRA_ASN1_TYPE_KEY_SPECIFIC_INFO, show_fields<key_specific_info>},
    {KOVRA_ASN1_TYPE_DH_OTHER_INFO, show_fields<dh_other_info>},
};

} // namespace

void show_enveloped_elements(Printer &printer, kovra_asn1_value *list) {
    struct Part {
        Harmless label;
        uint32_t type;
        Line line;
        int32_t tag; // of a context tag that is implicit
    };
    static constexpr Part parts[] = {
        {"version", KOVRA_ASN1_TYPE_INTEGER, show_integer, -1},
        {"", KOVRA_ASN1_TYPE_ENCRYPTED_CONTENT_INFO, show_here<KOVRA_ASN1_TYPE_ENCRYPTED_CONTENT_INFO>, -1},
        {"MAC", KOVRA_ASN1_TYPE_OCTET_STRING, show_hex, -1},
        {"originator", KOVRA_ASN1_TYPE_ORIGINATOR_INFO, show_below<KOVRA_ASN1_TYPE_ORIGINATOR_INFO>, 0},
        {"attributes", KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, show_counted<KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES>, 1},
        {"other attributes", KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES, show_counted<KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES>, 2},
    };
    const auto show_part = [&](kovra_asn1_value *any) {
        if (Value set(KOVRA_ASN1_TYPE_SET_OF_ANY); read_any(any, KOVRA_ASN1_TYPE_SET_OF_ANY, set)) {
            show_count(printer, "recipients", set.get());
            const Printer::Deeper deeper(printer);
            return for_each(set.get(), [&](kovra_asn1_value *element) { show_recipient_element(printer, element); });
        }
        for (const Part &part : parts) {
            Value value(part.type);
            const bool is_read = part.tag < 0 ? read_any(any, part.type, value)
                                              : tag_of(any) == part.tag && read_content(any, part.type, value);
            if (is_read)
                return part.line(printer, part.label, value.get());
        }
        show_unknown(printer, "element", any);
    };
    for_each(list, show_part);
}

std::span<const TypeRow> recipient_structures() {
    return rows;
}

} // namespace kovra::tool
