// Parts of messages and keys that several files print.
#pragma once

#include "show.hpp"

namespace kovra::tool {

// Content of the type that the identifier names: an element, or the octets of an OCTET STRING.
void show_content(Printer &printer, const kovra_asn1_value *oid, kovra_asn1_value *any);
void show_content_octets(Printer &printer, const kovra_asn1_value *oid, kovra_asn1_value *octet_string);

// EnvelopedData and AuthEnvelopedData (RFC 5083) as a SEQUENCE of elements.
void show_enveloped_elements(Printer &printer, kovra_asn1_value *list);

// Private keys that are a number or octets.
void show_private_number(Printer &printer, kovra_asn1_value *integer);
void show_private_octets(Printer &printer, kovra_asn1_value *octet_string);

// A list of Certificates, without alternatives.
void show_plain_certificates(Printer &printer, Harmless label, kovra_asn1_value *certificates);

} // namespace kovra::tool
