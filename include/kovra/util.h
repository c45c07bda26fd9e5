/** @defgroup kovra_util The companion library
 *
 * kovra_util, the companion library: streams, memory, errors, big integers, bit sets, Unicode, time, JSON, coding. */
#ifndef KOVRA_UTIL_H
#define KOVRA_UTIL_H

#include "kovra/util_biginteger.h"
#include "kovra/util_bitset.h"
#include "kovra/util_coding.h"
#include "kovra/util_error.h"
#include "kovra/util_json.h"
#include "kovra/util_memory.h"
#include "kovra/util_stream.h"
#include "kovra/util_time.h"
#include "kovra/util_ustring.h"

#endif
