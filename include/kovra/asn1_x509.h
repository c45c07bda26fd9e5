/* Algorithm identifiers, validity, public keys, certificates and CRLs (RFC 5280; X.509). */
#ifndef KOVRA_ASN1_X509_H
#define KOVRA_ASN1_X509_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

KOVRA_ASN1_API kovra_asn1_value *kovra_x509algoid_new(const kovra_asn1_value *algorithm, uint32_t param_type,
                                                      const kovra_asn1_value *param_value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509algoid_new_without_param(const kovra_asn1_value *algorithm) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x509algoid_isnullparam(const kovra_asn1_value *algid) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509algoid_getalgo(const kovra_asn1_value *algid) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509algoid_getparam(const kovra_asn1_value *algid) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x509algoid_hasparam(const kovra_asn1_value *algid) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509validity_new(const kovra_asn1_value *not_before,
                                                        const kovra_asn1_value *not_after) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509validity_getnotbefore(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509validity_getnotafter(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509subjpubkeyinfo_new(const kovra_asn1_value *algorithm,
                                                              const kovra_asn1_value *subject_public_key) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509subjpubkeyinfo_getalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509subjpubkeyinfo_getpubkey(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509TBSCertificate_new(
    const kovra_asn1_value *version, const kovra_asn1_value *serial_number, const kovra_asn1_value *signature,
    const kovra_asn1_value *issuer, const kovra_asn1_value *validity_period, const kovra_asn1_value *subject,
    const kovra_asn1_value *subject_public_key, const kovra_asn1_value *issuer_unique_id,
    const kovra_asn1_value *subject_unique_id, const kovra_asn1_value *extensions) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509pubkeycert_create(const kovra_asn1_value *tbs_value,
                                                             const kovra_asn1_value *signature_value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509pubkeycert_new(const void *data, int32_t length,
                                                          kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509certpair_new(const kovra_asn1_value *issued_to_this_ca,
                                                        const kovra_asn1_value *issued_by_this_ca) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509pubkeycert_getversion(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509pubkeycert_getserialno(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509pubkeycert_getinnersignalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509pubkeycert_getissuer(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509pubkeycert_getvalidity(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509pubkeycert_getsubject(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509pubkeycert_getpubkey(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x509pubkeycert_hasissueruid(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509pubkeycert_getissueruid(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x509pubkeycert_hassubjectuid(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509pubkeycert_getsubjectuid(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x509pubkeycert_hasexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509pubkeycert_getexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509pubkeycert_getsignalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509pubkeycert_getsignvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509certpair_getissuedtothisca(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509certpair_getissuedbythisca(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x509pubkeycert_gettbsocts(kovra_asn1_value *obj, void *buffer,
                                                       int32_t *length_in_out) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *
kovra_x509TBSCertList_new(const kovra_asn1_value *version, const kovra_asn1_value *signature,
                          const kovra_asn1_value *issuer, const kovra_asn1_value *this_update,
                          const kovra_asn1_value *next_update, kovra_asn1_value *revoked_list, int32_t copy_revoked,
                          const kovra_asn1_value *crl_extensions) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509revcertinfo_new(const kovra_asn1_value *user_certificate,
                                                           const kovra_asn1_value *revocation_date,
                                                           const kovra_asn1_value *crl_entry_extensions) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509crl_create(const kovra_asn1_value *tbs_value,
                                                      const kovra_asn1_value *signature_value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509crl_new(const void *data, int32_t length, kovra_err_ctx *ctx) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x509crl_hasversion(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509crl_getversion(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509crl_getinnersignalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509crl_getissuer(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509crl_getthisupdate(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x509crl_hasnextupdate(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509crl_getnextupdate(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x509crl_hasrevcerts(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509crl_getrevcerts(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x509crl_hasexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509crl_getexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509crl_getsignalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509crl_getsignvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x509crl_gettbsocts(kovra_asn1_value *obj, void *buffer,
                                                int32_t *length_in_out) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509revcertinfo_getserilano(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509revcertinfo_getrevdate(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x509revcertinfo_hasexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509revcertinfo_getexts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

KOVRA_C_END

#endif
