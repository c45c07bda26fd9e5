/** @defgroup kovra_asn1 The codec
 *
 * kovra_asn1: encodes and decodes ASN.1 values in BER and DER. */
#ifndef KOVRA_ASN1_H
#define KOVRA_ASN1_H

#include "kovra/asn1_any.h"
#include "kovra/asn1_attribute.h"
#include "kovra/asn1_bitstring.h"
#include "kovra/asn1_boolean.h"
#include "kovra/asn1_certstore.h"
#include "kovra/asn1_cms.h"
#include "kovra/asn1_codec.h"
#include "kovra/asn1_codes.h"
#include "kovra/asn1_decode.h"
#include "kovra/asn1_dss.h"
#include "kovra/asn1_ecc.h"
#include "kovra/asn1_extension.h"
#include "kovra/asn1_integer.h"
#include "kovra/asn1_json.h"
#include "kovra/asn1_lib.h"
#include "kovra/asn1_list.h"
#include "kovra/asn1_ocsp.h"
#include "kovra/asn1_octetstring.h"
#include "kovra/asn1_oid.h"
#include "kovra/asn1_pkcs1.h"
#include "kovra/asn1_pkcs10.h"
#include "kovra/asn1_pkcs12.h"
#include "kovra/asn1_pkcs3.h"
#include "kovra/asn1_pkcs5.h"
#include "kovra/asn1_pkcs7.h"
#include "kovra/asn1_pkcs8.h"
#include "kovra/asn1_time.h"
#include "kovra/asn1_tsp.h"
#include "kovra/asn1_types.h"
#include "kovra/asn1_value.h"
#include "kovra/asn1_x500name.h"
#include "kovra/asn1_x509.h"

#endif
