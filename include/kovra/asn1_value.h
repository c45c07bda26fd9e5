/** @defgroup asn1_value Values, and the rules of all functions
 * @ingroup kovra_asn1
 *
 * Values, and the rules that all functions of kovra_asn1 share.
 *
 * A value is an opaque record of one registered type (asn1_types.h), made by a constructor or a decoder. Where a
 * function says otherwise, that holds; where it is silent, the following does.
 *
 * Results. 1 is success; 0, or what a stream returned if that is not 1, is failure. Constructors return null on
 * failure. Lengths are in octets, from 0 to 2,147,483,647; -1 is an indefinite or unknown length, -2 one that cannot
 * be computed. A form is 1 for primitive and 0 for constructed; a class is the top two bits of the identifier octet,
 * in place.
 *
 * Ownership. Constructors copy their arguments. What a constructor or a decoder gives belongs to the caller, who
 * releases it with kovra_asn1_value_free. What an accessor gives is borrowed: it lives as long as the value it came
 * from, and freeing it does nothing. A list, and a structure that says so, takes ownership of what is put into it.
 * Streams and error contexts belong to the caller always.
 *
 * Arguments. A value of the wrong kind is refused like a bad argument: null, 0, -2, or one entry in the error context
 * (0x10001 unless the function names another). `out_written`, `out_read` and `out_count` receive numbers of octets;
 * they may be null, and only a success sets the first two. `ctx`, the error context, may be null too.
 *
 * Failures. Each failure appends one entry to the error context where it is found, and those who called on the way may
 * add one each, so that the entries read from the innermost cause outward. The code lists below name them in the order
 * of the checks. The failure of a stream leaves the stream's own entry and is not listed. Codes 0x10200 to 0x103D3 are
 * this library's, with fixed texts; 0x10000 (memory), 0x10001 (bad argument), 0x10002 (null argument), 0x10004 (short
 * copy) and the stream codes 0x101xx are the companion's. Source names are module names, such as "ASN1_Integer".
 * Functions without an error context record nothing.
 *
 * Decoding. BER is accepted (X.690 clause 8) and what was read is written back as it was. Encoding is DER but for what
 * an indefinite value forces. After a failed decode the output is null and a memory stream stands where reading
 * stopped. Time and memory grow linearly with the octets read, whatever their nesting; an announced length allocates
 * nothing.
 *
 * Threads. There is no global mutable state. Any number of threads may work at once, each with its own streams, values
 * and error context; one value is for one thread at a time, reading included, since parts of it are made on first use.
 *
 * @{ */
#ifndef KOVRA_ASN1_VALUE_H
#define KOVRA_ASN1_VALUE_H

#include "kovra/export.h"
#include "kovra/util_error.h"
#include "kovra/util_memory.h"
#include "kovra/util_stream.h"

KOVRA_C_BEGIN

/** A value of a registered type. */
typedef struct kovra_asn1_value kovra_asn1_value;

KOVRA_C_END

/** @} */

#endif
