/** @defgroup asn1_certstore Certificate stores
 * @ingroup kovra_asn1
 *
 * The records of a certificate store, a format of this library.
 *
 *     CertStore ::= SEQUENCE OF CertWithAttributes
 *     CertWithAttributes ::= SEQUENCE { cert Certificate, attrList StoreAttributeList OPTIONAL }
 *     StoreAttributeList ::= SEQUENCE SIZE (1..MAX) OF StoreAttribute
 *     StoreAttribute ::= SEQUENCE { type INTEGER, value ANY }
 *     PrivateKeyAttribute ::= SEQUENCE { provider UTF8String, subProvider UTF8String OPTIONAL,
 *                                        keyType [0] IMPLICIT INTEGER OPTIONAL, flag INTEGER,
 *                                        keyId [1] EXPLICIT StoreKeyId OPTIONAL }
 *     StoreKeyId ::= CHOICE { keyId UTF8String, algorithm [0] IMPLICIT AlgorithmIdentifier }
 *
 * What holds for all structures stands in asn1_x509.h. CertStore (type 97), StoreAttributeList (95) and the thumbprints
 * of replaced certificates (91), a SEQUENCE OF OCTET STRING, are lists (asn1_list.h). An empty StoreAttributeList is
 * refused when it is decoded (0x1020c) and written when it is encoded.
 *
 * StoreKeyId (type 98) is a choice. Decoding: 0x102e5; 0x1020a for another identifier; 0x102e7; the decode code of the
 * alternative's type on top of what it recorded. A context tag of any number is taken for [0]. Its content alone cannot
 * be decoded (0x1026d). A keyType that is constructed is 0x1020a.
 *
 * @{ */
#ifndef KOVRA_ASN1_CERTSTORE_H
#define KOVRA_ASN1_CERTSTORE_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_certstore_attr_new returns a StoreAttribute: type, an INTEGER; value, an ANY that is not an
 * end-of-contents marker. What the numbers of types mean is up to the caller. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_certstore_attr_new(const kovra_asn1_value *type,
                                                                     const kovra_asn1_value *value) KOVRA_NOTHROW;

/** kovra_certstore_attr_gettype returns type, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_certstore_attr_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_certstore_attr_getvalue returns value, an ANY that is not an end-of-contents marker. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_certstore_attr_getvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_certstore_certwithattr_new returns a CertWithAttributes, an entry of a store: cert, a Certificate;
 * attrList, a list of StoreAttributes, or null. Null too for an empty list. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_certstore_certwithattr_new(const kovra_asn1_value *cert, const kovra_asn1_value *attr_list) KOVRA_NOTHROW;

/** kovra_certstore_certwithattr_getcert returns cert, a Certificate. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_certstore_certwithattr_getcert(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_certstore_certwithattr_getattrlist returns attrList, a list of StoreAttributes, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_certstore_certwithattr_getattrlist(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** @name Alternatives of StoreKeyId
 * @{ */
#define KOVRA_ASN1_STORE_KEY_ID_KEY_ID 0    /**< keyId */
#define KOVRA_ASN1_STORE_KEY_ID_ALGORITHM 1 /**< algorithm */
/** @} */

/** kovra_certstore_keyid_newkeyid returns a StoreKeyId of alternative 0, keyId, a UTF8String. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_certstore_keyid_newkeyid(const kovra_asn1_value *key_id)
    KOVRA_NOTHROW;

/** kovra_certstore_keyid_newalgoid returns a StoreKeyId of alternative 1, algorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_certstore_keyid_newalgoid(const kovra_asn1_value *algorithm)
    KOVRA_NOTHROW;

/** kovra_certstore_keyid_gettype returns the number of the alternative, 0 or 1; -1 for null and for a value of another
 * kind. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_certstore_keyid_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_certstore_keyid_getkeyid returns keyId, a UTF8String; null when the value holds another alternative. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_certstore_keyid_getkeyid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_certstore_keyid_getalgoid returns algorithm, an AlgorithmIdentifier; null when the value holds another
 * alternative. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_certstore_keyid_getalgoid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_certstore_privkeyattr_new returns a PrivateKeyAttribute, what finds the private key of a certificate:
 * provider, a UTF8String; subProvider, a UTF8String, or null; keyType, an INTEGER, or null; flag, an INTEGER; keyId,
 * a StoreKeyId, or null. What keyType and flag mean is up to the caller. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_certstore_privkeyattr_new(
    const kovra_asn1_value *provider, const kovra_asn1_value *sub_provider, const kovra_asn1_value *key_type,
    const kovra_asn1_value *flag, const kovra_asn1_value *key_id) KOVRA_NOTHROW;

/** kovra_certstore_privkeyattr_getprovider returns provider, a UTF8String. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_certstore_privkeyattr_getprovider(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_certstore_privkeyattr_getsubprovider returns subProvider, a UTF8String, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_certstore_privkeyattr_getsubprovider(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_certstore_privkeyattr_getkeytype returns keyType, an INTEGER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_certstore_privkeyattr_getkeytype(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_certstore_privkeyattr_getflag returns flag, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_certstore_privkeyattr_getflag(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_certstore_privkeyattr_getkeyid returns keyId, a StoreKeyId, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_certstore_privkeyattr_getkeyid(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
