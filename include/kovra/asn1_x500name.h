/** @defgroup asn1_x500name Distinguished names
 * @ingroup kovra_asn1
 *
 * Distinguished names (RFC 5280, 4.1.2.4; X.501, clause 9) with the values distinguished by context of X.501.
 *
 * A Name is a SEQUENCE OF relative distinguished names, each of which has no record of its own: it is a list
 * (asn1_list.h) of AttributeTypeAndDistinguishedValue (type 29). Sets are written in the order they have; DER order is
 * the work of the sort functions, which compare encodings as X.690 clause 11.6 does. THE SORT FUNCTIONS DO NOT TOUCH
 * KEPT OCTETS: a name that was decoded, or encoded before, goes on writing its old order, so sort first. What holds for
 * all structures stands in asn1_x509.h.
 *
 * Type 30 is type 29 without what X.501 adds: a value with a primaryDistinguished that is not TRUE, or with values with
 * context, has no length as type 30 (-2) and is refused with 0x10274 in both directions.
 *
 * Decoded by themselves, types 29 and 30 are read as an element first, 0x10236 on top of what is wrong with it. As a
 * member of a relative distinguished name, a wrong identifier, form or length leaves 0x102e5, 0x1020a or 0x102e7 of the
 * list with nothing of the member on top, a broken end 0x102e9 and then 0x10247.
 *
 * @{ */
#ifndef KOVRA_ASN1_X500NAME_H
#define KOVRA_ASN1_X500NAME_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_x500name_new returns an empty Name. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500name_new(void) KOVRA_NOTHROW;

/** kovra_x500name_addrdn appends a relative distinguished name, a list of type 29, to a Name and returns 1; 0 for a
 * null argument and on failure. With copy other than 0 a copy is appended; WITH copy 0 THE LIST ITSELF IS TAKEN OVER,
 * once the function succeeds. The Name's kept octets are dropped, so that the next encoding shows what was added. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x500name_addrdn(kovra_asn1_value *name, kovra_asn1_value *rdn,
                                                        int32_t copy) KOVRA_NOTHROW;

/** kovra_x500name_getdn returns the list of the relative distinguished names, each a list. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500name_getdn(const kovra_asn1_value *name) KOVRA_NOTHROW;

/** kovra_x500attrtypedistval_new returns an AttributeTypeAndDistinguishedValue: type, an OBJECT IDENTIFIER; value, an
 * ANY that is not an end-of-contents marker; primaryDistinguished, a BOOLEAN, null for TRUE; valuesWithContext, a list
 * of type 135, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500attrtypedistval_new(
    const kovra_asn1_value *type, const kovra_asn1_value *value, const kovra_asn1_value *primary_distinguished,
    const kovra_asn1_value *values_with_context) KOVRA_NOTHROW;

/** kovra_pkixattrtypeval_new returns an AttributeTypeAndValue (type 30) of an OBJECT IDENTIFIER and an ANY: the same
 * record without what is optional, which may be used as type 29 too. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkixattrtypeval_new(const kovra_asn1_value *type,
                                                                      const kovra_asn1_value *value) KOVRA_NOTHROW;

/** kovra_x500attrtypedistval_gettype returns type, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500attrtypedistval_gettype(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x500attrtypedistval_getvalue returns value, an ANY. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500attrtypedistval_getvalue(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x500attrtypedistval_getprimedist returns primaryDistinguished, a BOOLEAN, TRUE by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500attrtypedistval_getprimedist(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x500attrtypedistval_getcontext returns valuesWithContext, a list of type 135, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500attrtypedistval_getcontext(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x500attrtypedistval_hascontext tells whether there are values with context. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x500attrtypedistval_hascontext(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x500dnvalueswithcontextitem_new returns a value with context (type 135): distingAttrValue, an ANY that is not
 * an end-of-contents marker, or null; contextList, a list of Contexts. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500dnvalueswithcontextitem_new(
    const kovra_asn1_value *disting_attr_value, const kovra_asn1_value *contexts) KOVRA_NOTHROW;

/** kovra_x500dnvalueswithcontextitem_getdistvalue returns distingAttrValue, an ANY, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500dnvalueswithcontextitem_getdistvalue(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x500dnvalueswithcontextitem_hasdistvalue tells whether there is a distingAttrValue. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x500dnvalueswithcontextitem_hasdistvalue(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x500dnvalueswithcontextitem_getcontexts returns contextList, a list of Contexts. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500dnvalueswithcontextitem_getcontexts(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x500context_new returns a Context: contextType, an OBJECT IDENTIFIER; contextValues, a list of ANY with at
 * least one element; fallback, a BOOLEAN, null for FALSE. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500context_new(const kovra_asn1_value *context_type,
                                                                  const kovra_asn1_value *context_values,
                                                                  const kovra_asn1_value *fallback) KOVRA_NOTHROW;

/** kovra_x500context_gettype returns contextType, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500context_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x500context_getvalues returns contextValues, a list of ANY. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500context_getvalues(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x500context_getfallback returns fallback, a BOOLEAN, FALSE by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x500context_getfallback(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x500name_sort sorts every relative distinguished name of a Name, not their sequence, and returns 1; 0 for null
 * or when one cannot be sorted. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x500name_sort(kovra_asn1_value *name) KOVRA_NOTHROW;

/** kovra_x500RDN_sort sorts a relative distinguished name: in each member the contexts of every value with context,
 * then those values, then the members themselves. Returns 1; 0 for null, for a list of something else, and when an
 * element cannot be encoded, with that list in its former order. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x500RDN_sort(kovra_asn1_value *rdn) KOVRA_NOTHROW;

/** kovra_x500attribute_sort sorts an Attribute (asn1_attribute.h): the contexts of every value with context, then those
 * values, then the plain values. Returns as kovra_x500RDN_sort. An Attribute keeps no octets, so the next encoding
 * shows the order. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x500attribute_sort(kovra_asn1_value *obj) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
