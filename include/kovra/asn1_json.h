#ifndef KOVRA_ASN1_JSON_H
#define KOVRA_ASN1_JSON_H

#include "kovra/asn1_value.h"
#include "kovra/util_json.h"

KOVRA_C_BEGIN

KOVRA_ASN1_API kovra_json *kovra_asn1_tojson(const void *encoding, int32_t length) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_data_blob *kovra_asn1_encodejson(const kovra_json *json) KOVRA_NOTHROW;

KOVRA_C_END

#endif
