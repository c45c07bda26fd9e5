/** @defgroup asn1_list Lists
 * @ingroup kovra_asn1
 *
 * Lists: SEQUENCE OF and SET OF (X.690 clauses 8.10 and 8.12).
 *
 * A list does not know the type of its elements. As a value of types 24 (SEQUENCE OF ANY) and 26 (SET OF ANY), and of
 * 25 and 27, which may not be empty when they are read, it holds elements of type 23. Encoding writes elements in the
 * order of the list and never sorts: a SET OF is DER only if its elements were put in that order.
 *
 * Codes of decoding types 24 to 27: 0x10002; 0x1026a (primitive); 0x10203 (length below -1); 0x10236 on top of those
 * of an element; 0x10209 for an end-of-contents marker where the length is definite; 0x1020b when the elements do not
 * end where the length says; 0x1020c for an empty list of types 25 and 27. Encoding: 0x10002; 0x10001 (a content
 * length below -1); 0x10235 on top of those of an element; 0x102e8 (the final 00 00).
 *
 * @{ */
#ifndef KOVRA_ASN1_LIST_H
#define KOVRA_ASN1_LIST_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_asn1_list_new returns an empty list, or null when memory is short. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_asn1_list_new(void) KOVRA_NOTHROW;

/** kovra_asn1_list_free releases the list and its elements, each as kovra_asn1_value_free with the type, which is the
 * type of the elements. Null is ignored. (kovra_asn1_value_free takes the type of the list.) */
KOVRA_ASN1_API void KOVRA_CALL kovra_asn1_list_free(kovra_asn1_value *list, uint32_t type) KOVRA_NOTHROW;

/** kovra_asn1_list_put appends an element and takes ownership of it. Returns 0, the element still being the caller's,
 * for a null list or element and when memory is short. Putting n elements takes O(n) steps. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_list_put(kovra_asn1_value *list, kovra_asn1_value *element) KOVRA_NOTHROW;

/** kovra_asn1_list_get stores the element at `index`, the first being 0, borrowed from the list, and returns 1. It
 * stores null and returns 0 for a null list, an index outside the list and when memory is short; a null place gives 0.
 */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_list_get(kovra_asn1_value *list, int32_t index,
                                                      kovra_asn1_value **out_element) KOVRA_NOTHROW;

/** kovra_asn1_list_getsize returns the number of elements; 0 for null. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_asn1_list_getsize(const kovra_asn1_value *list) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
