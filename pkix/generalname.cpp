// GeneralName (RFC 5280, 4.2.1.6) and its two alternatives that are structures.

#include "core/list.hpp"
#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_any.h"
#include "kovra/asn1_extension.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_Extension";

// OtherName ::= [UNIVERSAL 8] IMPLICIT SEQUENCE {
//     type-id  OBJECT IDENTIFIER,
//     value    [0] EXPLICIT ANY }
constexpr Component other_name_components[] = {
    required("type-id", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("value", KOVRA_ASN1_TYPE_ANY, explicit_tag(0)),
};

// EDIPartyName ::= SEQUENCE {
//     nameAssigner  [0] EXPLICIT DirectoryString OPTIONAL,
//     partyName     [1] EXPLICIT DirectoryString }
constexpr Component edi_components[] = {
    optional("nameAssigner", KOVRA_ASN1_TYPE_DIRECTORY_STRING, explicit_tag(0)),
    required("partyName", KOVRA_ASN1_TYPE_DIRECTORY_STRING, explicit_tag(1)),
};

// GeneralName ::= CHOICE {
//     otherName                  [0] IMPLICIT OtherName,
//     rfc822Name                 [1] IMPLICIT IA5String,
//     dNSName                    [2] IMPLICIT IA5String,
//     x400Address                [3] IMPLICIT ORAddress,
//     directoryName              [4] EXPLICIT Name,
//     ediPartyName               [5] IMPLICIT EDIPartyName,
//     uniformResourceIdentifier  [6] IMPLICIT IA5String,
//     iPAddress                  [7] IMPLICIT OCTET STRING,
//     registeredID               [8] IMPLICIT OBJECT IDENTIFIER }
// ORAddress has no structure of its own here: its parts stay open. The constructor of otherName takes an EDIPartyName,
// although every other function takes this alternative for an other-name.
constexpr Component name_alternatives[] = {
    required("otherName", KOVRA_ASN1_TYPE_INSTANCE_OF, implicit_tag(0)).copy_as(KOVRA_ASN1_TYPE_EDI_PARTY_NAME),
    required("rfc822Name", KOVRA_ASN1_TYPE_IA5_STRING, implicit_tag(1)),
    required("dNSName", KOVRA_ASN1_TYPE_IA5_STRING, implicit_tag(2)),
    required("x400Address", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY_1, implicit_tag(3)),
    required("directoryName", KOVRA_ASN1_TYPE_NAME, explicit_tag(4)).codes_of(KOVRA_ASN1_TYPE_DIRECTORY_STRING),
    required("ediPartyName", KOVRA_ASN1_TYPE_EDI_PARTY_NAME, implicit_tag(5)),
    required("uniformResourceIdentifier", KOVRA_ASN1_TYPE_IA5_STRING, implicit_tag(6)),
    required("iPAddress", KOVRA_ASN1_TYPE_OCTET_STRING, implicit_tag(7)),
    required("registeredID", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER, implicit_tag(8)),
};

} // namespace

constexpr StructureShape instance_of = structure(source, other_name_components);
constexpr StructureShape edi_party_name = structure(source, edi_components);
constexpr ChoiceShape general_name = choice(source, name_alternatives, AnyForm::of_tagged);
// GeneralNames ::= SEQUENCE OF GeneralName
constexpr ListShape general_names = {.element = KOVRA_ASN1_TYPE_GENERAL_NAME, .reading = ListReading::whole};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_x509generalname_new_othername(const kovra_asn1_value *value) noexcept {
    return construct_choice<general_name, "otherName">(value);
}

kovra_asn1_value *kovra_x509generalname_new_rfc822name(const kovra_asn1_value *value) noexcept {
    return construct_choice<general_name, "rfc822Name">(value);
}

kovra_asn1_value *kovra_x509generalname_new_dnsname(const kovra_asn1_value *value) noexcept {
    return construct_choice<general_name, "dNSName">(value);
}

kovra_asn1_value *kovra_x509generalname_new_dirname(const kovra_asn1_value *value) noexcept {
    return construct_choice<general_name, "directoryName">(value);
}

kovra_asn1_value *kovra_x509generalname_new_ediname(const kovra_asn1_value *value) noexcept {
    return construct_choice<general_name, "ediPartyName">(value);
}

kovra_asn1_value *kovra_x509generalname_new_uri(const kovra_asn1_value *value) noexcept {
    return construct_choice<general_name, "uniformResourceIdentifier">(value);
}

kovra_asn1_value *kovra_x509generalname_new_ip(const kovra_asn1_value *value) noexcept {
    return construct_choice<general_name, "iPAddress">(value);
}

kovra_asn1_value *kovra_x509generalname_new_regid(const kovra_asn1_value *value) noexcept {
    return construct_choice<general_name, "registeredID">(value);
}

int32_t kovra_x509generalname_gettype(const kovra_asn1_value *general_name_value, int32_t *out_choice) noexcept {
    const Choice *choice = as_choice(general_name, general_name_value);
    if (choice == nullptr || out_choice == nullptr)
        return 0;
    *out_choice = static_cast<int32_t>(choice->alternative);
    return 1;
}

kovra_asn1_value *kovra_x509generalname_getothername(const kovra_asn1_value *obj) noexcept {
    return chosen<general_name, "otherName">(obj);
}

kovra_asn1_value *kovra_x509generalname_getrfc(const kovra_asn1_value *obj) noexcept {
    return chosen<general_name, "rfc822Name">(obj);
}

kovra_asn1_value *kovra_x509generalname_getdnsname(const kovra_asn1_value *obj) noexcept {
    return chosen<general_name, "dNSName">(obj);
}

kovra_asn1_value *kovra_x509generalname_getdirname(const kovra_asn1_value *obj) noexcept {
    return chosen<general_name, "directoryName">(obj);
}

kovra_asn1_value *kovra_x509generalname_getediname(const kovra_asn1_value *obj) noexcept {
    return chosen<general_name, "ediPartyName">(obj);
}

kovra_asn1_value *kovra_x509generalname_geturi(const kovra_asn1_value *obj) noexcept {
    return chosen<general_name, "uniformResourceIdentifier">(obj);
}

kovra_asn1_value *kovra_x509generalname_getip(const kovra_asn1_value *obj) noexcept {
    return chosen<general_name, "iPAddress">(obj);
}

kovra_asn1_value *kovra_x509generalname_getregid(const kovra_asn1_value *obj) noexcept {
    return chosen<general_name, "registeredID">(obj);
}

kovra_asn1_value *kovra_instanceoftypeid_new(const kovra_asn1_value *type_id, const kovra_asn1_value *value) noexcept {
    if (kovra_asn1_any_iseoc(value) == 1)
        return nullptr;
    return construct<instance_of>(type_id, value);
}

kovra_asn1_value *kovra_instanceoftypeid_getid(const kovra_asn1_value *obj) noexcept {
    return part<instance_of, "type-id">(obj);
}

kovra_asn1_value *kovra_instanceoftypeid_gettype(const kovra_asn1_value *obj) noexcept {
    return part<instance_of, "value">(obj);
}

kovra_asn1_value *kovra_x509edipartyname_new(const kovra_asn1_value *name_assigner,
                                             const kovra_asn1_value *party_name) noexcept {
    if (party_name == nullptr)
        return nullptr;
    Structure *record = new_structure(edi_party_name);
    if (record == nullptr)
        return nullptr;
    // A part that cannot be copied is left out.
    static_cast<void>(store_copy(*record, slot<edi_party_name, "nameAssigner">, name_assigner));
    static_cast<void>(store_copy(*record, slot<edi_party_name, "partyName">, party_name));
    return record;
}

kovra_asn1_value *kovra_x509edipartyname_getnameassigner(const kovra_asn1_value *obj) noexcept {
    return part<edi_party_name, "nameAssigner">(obj);
}

kovra_asn1_value *kovra_x509edipartyname_getpartyname(const kovra_asn1_value *obj) noexcept {
    return part<edi_party_name, "partyName">(obj);
}
