/* Extensions, general names and the structures of the standard extensions (RFC 5280, 4.2; X.509, clause 9). */
#ifndef KOVRA_ASN1_EXTENSION_H
#define KOVRA_ASN1_EXTENSION_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

KOVRA_ASN1_API kovra_asn1_value *kovra_x509extension_new(const kovra_asn1_value *extn_id,
                                                         const kovra_asn1_value *critical,
                                                         const kovra_asn1_value *extn_value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509extension_create(const kovra_asn1_value *extn_id,
                                                            const kovra_asn1_value *critical, uint32_t value_type,
                                                            const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509extension_getid(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509extension_getcritical(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509extension_getvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509generalname_new_othername(const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509generalname_new_rfc822name(const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509generalname_new_dnsname(const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509generalname_new_dirname(const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509generalname_new_ediname(const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509generalname_new_uri(const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509generalname_new_ip(const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509generalname_new_regid(const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x509generalname_gettype(const kovra_asn1_value *general_name_value,
                                                     int32_t *out_choice) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509generalname_getothername(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509generalname_getrfc(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509generalname_getdnsname(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509generalname_getdirname(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509generalname_getediname(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509generalname_geturi(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509generalname_getip(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509generalname_getregid(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_instanceoftypeid_new(const kovra_asn1_value *type_id,
                                                            const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_instanceoftypeid_getid(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_instanceoftypeid_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509edipartyname_new(const kovra_asn1_value *name_assigner,
                                                            const kovra_asn1_value *party_name) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509edipartyname_getnameassigner(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509edipartyname_getpartyname(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509akid_new(const kovra_asn1_value *key_identifier,
                                                    const kovra_asn1_value *authority_cert_issuer,
                                                    const kovra_asn1_value *authority_cert_serial_number) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509privkeyperiod_new(const kovra_asn1_value *not_before,
                                                             const kovra_asn1_value *not_after) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509polqualifierinfo_new(const kovra_asn1_value *policy_qualifier_id,
                                                                const kovra_asn1_value *qualifier) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509policyinfo_new(const kovra_asn1_value *policy_identifier,
                                                          const kovra_asn1_value *qualifiers) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixdisplaytext_new(int32_t tag, const kovra_asn1_value *string) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixnoticeref_new(const kovra_asn1_value *organization,
                                                         const kovra_asn1_value *numbers) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixusernotice_new(const kovra_asn1_value *notice_ref,
                                                          const kovra_asn1_value *explicit_text) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *
kovra_x509policymapping_new(const kovra_asn1_value *issuer_domain_policy,
                            const kovra_asn1_value *subject_domain_policy) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *
kovra_x509basicconstraints_new(const kovra_asn1_value *ca, const kovra_asn1_value *path_len_constraint) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509gensubtree_new(const kovra_asn1_value *base, const kovra_asn1_value *minimum,
                                                          const kovra_asn1_value *maximum) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509nameforms_new(const kovra_asn1_value *basic_name_forms,
                                                         const kovra_asn1_value *other_name_forms) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509namecons_new(const kovra_asn1_value *permitted_subtrees,
                                                        const kovra_asn1_value *excluded_subtrees,
                                                        const kovra_asn1_value *required_name_forms) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509polcons_new(const kovra_asn1_value *require_explicit_policy,
                                                       const kovra_asn1_value *inhibit_policy_mapping) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509distpointname_new_fullname(const kovra_asn1_value *full_name) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *
kovra_x509distpointname_new_relname(const kovra_asn1_value *relative_name) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509distpoint_new(const kovra_asn1_value *point_name,
                                                         const kovra_asn1_value *reasons,
                                                         const kovra_asn1_value *crl_issuer) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixaccessdesp_new(const kovra_asn1_value *access_method,
                                                          const kovra_asn1_value *access_location) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixidp_new(const kovra_asn1_value *point_name,
                                                   const kovra_asn1_value *only_contains_user_certs,
                                                   const kovra_asn1_value *only_contains_ca_certs,
                                                   const kovra_asn1_value *only_some_reasons,
                                                   const kovra_asn1_value *indirect_crl) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509aaidp_new(const kovra_asn1_value *point_name,
                                                     const kovra_asn1_value *contains_aa_certs,
                                                     const kovra_asn1_value *contains_user_attribute_certs,
                                                     const kovra_asn1_value *contains_soa_public_key_certs,
                                                     const kovra_asn1_value *only_some_reasons,
                                                     const kovra_asn1_value *indirect_crl) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509akid_getkeyid(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509akid_getissuerissuer(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509akid_getissuercertsn(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509privkeyperiod_getnotbefore(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509privkeyperiod_getnotafter(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509polqualifierinfo_getid(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509polqualifierinfo_getqualifier(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509policyinfo_getid(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509policyinfo_getqualifiers(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_pkixdisplaytext_gettype(const kovra_asn1_value *value, int32_t *out_tag) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixdisplaytext_getstring(const kovra_asn1_value *value) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixnoticeref_getorg(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixnoticeref_getnums(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixusernotice_getref(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixusernotice_gettext(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509policymapping_getissuerpolicy(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509policymapping_getsubjectpolicy(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509basicconstraints_getisca(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509basicconstraints_getlen(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509gensubtree_getbase(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509gensubtree_getmin(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509gensubtree_getmax(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509nameforms_getbasic(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509nameforms_getother(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509namecons_getpermit(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509namecons_getexclude(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509namecons_getreqforms(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509polcons_getreqexppol(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509polcons_getinhibitpolmap(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API int32_t kovra_x509distpointname_gettype(const kovra_asn1_value *obj, int32_t *out_choice) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509distpointname_getfullname(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509distpointname_getrelname(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509distpoint_getname(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509distpoint_getreason(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509distpoint_getcrlissuer(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixaccessdesp_getmethod(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixaccessdesp_getlocate(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixidp_getdpname(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixidp_getonlyusercert(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixidp_getonlycacert(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixidp_getonlysomereason(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixidp_getindirectCRL(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_pkixidp_getonlyattrcert(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509aaidp_getdpname(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509aaidp_getonlysomereason(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509aaidp_getindirectCRL(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509aaidp_getcontuserattrcert(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509aaidp_getcontaacert(const kovra_asn1_value *obj) KOVRA_NOTHROW;
KOVRA_ASN1_API kovra_asn1_value *kovra_x509aaidp_getcontsoacert(const kovra_asn1_value *obj) KOVRA_NOTHROW;

KOVRA_C_END

#endif
