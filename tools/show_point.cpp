// Extensions that say where something is: distribution points and access descriptions.

#include "show_fields.hpp"

namespace kovra::tool {

namespace {

void show_point_name(Printer &printer, kovra_asn1_value *name) {
    show_general_names(printer, kovra_x509distpointname_getfullname(name));
    if (kovra_asn1_value *relative = kovra_x509distpointname_getrelname(name); relative != nullptr) {
        printer.begin("relative name");
        put_relative_name(printer, relative);
        printer.end();
    }
}

void show_distribution_points(Printer &printer, kovra_asn1_value *points) {
    for_each(points, [&](kovra_asn1_value *point) {
        printer.heading("point");
        const Printer::Deeper deeper(printer);
        show_point_name(printer, kovra_x509distpoint_getname(point));
        show_bits(printer, "reasons", kovra_x509distpoint_getreason(point), reason_flags());
        show_general_names(printer, "CRL issuer", kovra_x509distpoint_getcrlissuer(point));
    });
}

void show_issuing_point(Printer &printer, kovra_asn1_value *point) {
    show_point_name(printer, kovra_pkixidp_getdpname(point));
    show_flag(printer, "only user certs", kovra_pkixidp_getonlyusercert(point));
    show_flag(printer, "only CA certs", kovra_pkixidp_getonlycacert(point));
    show_flag(printer, "only attribute certs", kovra_pkixidp_getonlyattrcert(point));
    show_bits(printer, "only reasons", kovra_pkixidp_getonlysomereason(point), reason_flags());
    show_flag(printer, "indirect CRL", kovra_pkixidp_getindirectCRL(point));
}

void show_attribute_issuing_point(Printer &printer, kovra_asn1_value *point) {
    show_point_name(printer, kovra_x509aaidp_getdpname(point));
    show_bits(printer, "only reasons", kovra_x509aaidp_getonlysomereason(point), reason_flags());
    show_flag(printer, "indirect CRL", kovra_x509aaidp_getindirectCRL(point));
    show_flag(printer, "user attribute certs", kovra_x509aaidp_getcontuserattrcert(point));
    show_flag(printer, "AA certs", kovra_x509aaidp_getcontaacert(point));
    show_flag(printer, "SOA public key certs", kovra_x509aaidp_getcontsoacert(point));
}

void show_access(Printer &printer, kovra_asn1_value *descriptions) {
    for_each(descriptions, [&](kovra_asn1_value *description) {
        const kovra_asn1_value *location = kovra_pkixaccessdesp_getlocate(description);
        printer.begin(name_of_oid(kovra_pkixaccessdesp_getmethod(description)));
        printer.out.put(kind_of_general_name(location));
        printer.out.put(":");
        put_general_name(printer, location);
        printer.end();
    });
}

constexpr TypeRow rows[] = {
    {KOVRA_ASN1_TYPE_CRL_DISTRIBUTION_POINTS, show_distribution_points},
    {KOVRA_ASN1_TYPE_INFORMATION_ACCESS, show_access},
    {KOVRA_ASN1_TYPE_ISSUING_DISTRIBUTION_POINT, show_issuing_point},
    {KOVRA_ASN1_TYPE_AA_ISSUING_DISTRIBUTION_POINT, show_attribute_issuing_point},
};

} // namespace

std::span<const Harmless> reason_flags() {
    static constexpr Harmless names[] = {"unused",      "keyCompromise",        "cACompromise",    "affiliationChanged",
                                         "superseded",  "cessationOfOperation", "certificateHold", "privilegeWithdrawn",
                                         "aACompromise"};
    return names;
}

std::span<const TypeRow> point_structures() {
    return rows;
}

} // namespace kovra::tool
