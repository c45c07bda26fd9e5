#ifndef KOVRA_ASN1_VALUE_H
#define KOVRA_ASN1_VALUE_H

#include "kovra/export.h"
#include "kovra/util_error.h"
#include "kovra/util_memory.h"
#include "kovra/util_stream.h"

KOVRA_C_BEGIN

typedef void kovra_asn1_value;

KOVRA_C_END

#endif
