/** @defgroup asn1_extension Extensions
 * @ingroup kovra_asn1
 *
 * Extensions, general names and the structures of the standard extensions (RFC 5280, 4.2; X.509, clause 9).
 *
 * What holds for all structures stands in asn1_x509.h. The value of an Extension stays octets: the caller who knows its
 * identifier decodes it with kovra_asn1_octetstring_getobject and the type of the structure, for example 65 for an
 * authority key identifier and 76 for basic constraints. Neither criticality nor uniqueness of extensions is checked.
 * Extensions, GeneralNames and the other lists below are lists (asn1_list.h) of their element type.
 *
 * A GeneralName (type 63) is a choice of the alternatives 0 to 8, the number being the context tag. Decoding: 0x102e5;
 * 0x1020a for another class; 0x102e7; 0x1020a for a number above 8; 0x1026a for a primitive directoryName; the decode
 * code of the alternative's type on top of what it recorded, for directoryName 0x10285; 0x1020b or 0x102e9 when the
 * Name does not fill its tag. Encoding: 0x102ea when the alternative has no length, then as a tagged component, with
 * 0x10284 for directoryName. A DisplayText (type 71) is a tag and octets, as a DirectoryString (asn1_attribute.h). The
 * content of a choice alone cannot be decoded (0x1026d).
 *
 * @{ */
#ifndef KOVRA_ASN1_EXTENSION_H
#define KOVRA_ASN1_EXTENSION_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_x509extension_new returns an Extension: extnID, an OBJECT IDENTIFIER; critical, a BOOLEAN, null for FALSE;
 * extnValue, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509extension_new(const kovra_asn1_value *extn_id,
                                                                    const kovra_asn1_value *critical,
                                                                    const kovra_asn1_value *extn_value) KOVRA_NOTHROW;

/** kovra_x509extension_create returns an Extension whose extnValue is the encoding of `value` as value_type. Null for
 * type 0 and when the value cannot be encoded. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509extension_create(const kovra_asn1_value *extn_id,
                                                                       const kovra_asn1_value *critical,
                                                                       uint32_t value_type,
                                                                       const kovra_asn1_value *value) KOVRA_NOTHROW;

/** kovra_x509extension_getid returns extnID, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509extension_getid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509extension_getcritical returns critical, a BOOLEAN, FALSE by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509extension_getcritical(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509extension_getvalue returns extnValue, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509extension_getvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** @name Alternatives of GeneralName
 * @{ */
#define KOVRA_ASN1_GENERAL_NAME_OTHER_NAME 0     /**< otherName */
#define KOVRA_ASN1_GENERAL_NAME_RFC822_NAME 1    /**< rfc822Name */
#define KOVRA_ASN1_GENERAL_NAME_DNS_NAME 2       /**< dNSName */
#define KOVRA_ASN1_GENERAL_NAME_X400_ADDRESS 3   /**< x400Address */
#define KOVRA_ASN1_GENERAL_NAME_DIRECTORY_NAME 4 /**< directoryName */
#define KOVRA_ASN1_GENERAL_NAME_EDI_PARTY_NAME 5 /**< ediPartyName */
#define KOVRA_ASN1_GENERAL_NAME_URI 6            /**< uniformResourceIdentifier */
#define KOVRA_ASN1_GENERAL_NAME_IP_ADDRESS 7     /**< iPAddress */
#define KOVRA_ASN1_GENERAL_NAME_REGISTERED_ID 8  /**< registeredID */
/** @} */

/** kovra_x509generalname_new_othername DOES NOT MAKE A USABLE NAME. It copies its argument as an EDIPartyName: for an
 * other-name (type 61) it returns null, for an EDIPartyName a name of alternative 0 that nothing can encode. Names with
 * an otherName come from decoding. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509generalname_new_othername(const kovra_asn1_value *value)
    KOVRA_NOTHROW;

/** kovra_x509generalname_new_rfc822name returns a GeneralName (RFC 5280, 4.2.1.6) with an rfc822Name, an IA5String. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509generalname_new_rfc822name(const kovra_asn1_value *value)
    KOVRA_NOTHROW;

/** kovra_x509generalname_new_dnsname returns one with a dNSName, an IA5String. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509generalname_new_dnsname(const kovra_asn1_value *value)
    KOVRA_NOTHROW;

/** kovra_x509generalname_new_dirname returns one with a directoryName, a Name. (None has an x400Address: that comes
 * from decoding.) */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509generalname_new_dirname(const kovra_asn1_value *value)
    KOVRA_NOTHROW;

/** kovra_x509generalname_new_ediname returns one with an ediPartyName. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509generalname_new_ediname(const kovra_asn1_value *value)
    KOVRA_NOTHROW;

/** kovra_x509generalname_new_uri returns one with a uniformResourceIdentifier, an IA5String. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509generalname_new_uri(const kovra_asn1_value *value) KOVRA_NOTHROW;

/** kovra_x509generalname_new_ip returns one with an iPAddress, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509generalname_new_ip(const kovra_asn1_value *value) KOVRA_NOTHROW;

/** kovra_x509generalname_new_regid returns one with a registeredID, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509generalname_new_regid(const kovra_asn1_value *value)
    KOVRA_NOTHROW;

/** kovra_x509generalname_gettype stores the number of the alternative, 0 to 8, and returns 1; 0, with nothing stored,
 * for a null argument. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x509generalname_gettype(const kovra_asn1_value *general_name_value,
                                                                int32_t *out_choice) KOVRA_NOTHROW;

/** kovra_x509generalname_getothername returns otherName (type 61), or null when the name holds another alternative, as
 * all of the following do. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509generalname_getothername(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509generalname_getrfc returns rfc822Name, an IA5String. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509generalname_getrfc(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509generalname_getdnsname returns dNSName, an IA5String. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509generalname_getdnsname(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509generalname_getdirname returns directoryName, a Name. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509generalname_getdirname(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509generalname_getediname returns ediPartyName. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509generalname_getediname(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509generalname_geturi returns uniformResourceIdentifier, an IA5String. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509generalname_geturi(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509generalname_getip returns iPAddress, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509generalname_getip(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509generalname_getregid returns registeredID, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509generalname_getregid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_instanceoftypeid_new returns an other-name (type 61): type-id, an OBJECT IDENTIFIER; value, an ANY that is not
 * an end-of-contents marker. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_instanceoftypeid_new(const kovra_asn1_value *type_id,
                                                                       const kovra_asn1_value *value) KOVRA_NOTHROW;

/** kovra_instanceoftypeid_getid returns type-id, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_instanceoftypeid_getid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_instanceoftypeid_gettype returns value, an ANY, in spite of its name. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_instanceoftypeid_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509edipartyname_new returns an EDIPartyName: nameAssigner, a DirectoryString or null; partyName, a
 * DirectoryString. THE COPIES ARE NOT CHECKED: an argument of another kind, or one there is no memory for, gives a
 * record without that part, and one without partyName cannot be encoded. Null for a null partyName. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_x509edipartyname_new(const kovra_asn1_value *name_assigner, const kovra_asn1_value *party_name) KOVRA_NOTHROW;

/** kovra_x509edipartyname_getnameassigner returns nameAssigner, a DirectoryString, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509edipartyname_getnameassigner(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509edipartyname_getpartyname returns partyName, a DirectoryString; null where it could not be copied. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509edipartyname_getpartyname(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509akid_new returns an AuthorityKeyIdentifier (RFC 5280, 4.2.1.1): keyIdentifier, an OCTET STRING;
 * authorityCertIssuer, a list of GeneralNames; authorityCertSerialNumber, an INTEGER. Each may be null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_x509akid_new(const kovra_asn1_value *key_identifier, const kovra_asn1_value *authority_cert_issuer,
                   const kovra_asn1_value *authority_cert_serial_number) KOVRA_NOTHROW;

/** kovra_x509akid_getkeyid returns keyIdentifier, an OCTET STRING, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509akid_getkeyid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509akid_getissuerissuer returns authorityCertIssuer, a list of GeneralNames, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509akid_getissuerissuer(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509akid_getissuercertsn returns authorityCertSerialNumber, an INTEGER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509akid_getissuercertsn(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509privkeyperiod_new returns a PrivateKeyUsagePeriod (X.509) of notBefore and notAfter, GeneralizedTimes. One
 * of them may be null, not both. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_x509privkeyperiod_new(const kovra_asn1_value *not_before, const kovra_asn1_value *not_after) KOVRA_NOTHROW;

/** kovra_x509privkeyperiod_getnotbefore returns notBefore, a GeneralizedTime, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509privkeyperiod_getnotbefore(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509privkeyperiod_getnotafter returns notAfter, a GeneralizedTime, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509privkeyperiod_getnotafter(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509polqualifierinfo_new returns a PolicyQualifierInfo (RFC 5280, 4.2.1.4): policyQualifierId, an OBJECT
 * IDENTIFIER; qualifier, an ANY, or null. The record is that of an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509polqualifierinfo_new(
    const kovra_asn1_value *policy_qualifier_id, const kovra_asn1_value *qualifier) KOVRA_NOTHROW;

/** kovra_x509polqualifierinfo_getid returns policyQualifierId, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509polqualifierinfo_getid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509polqualifierinfo_getqualifier returns qualifier, an ANY, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509polqualifierinfo_getqualifier(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509policyinfo_new returns a PolicyInformation (RFC 5280, 4.2.1.4): policyIdentifier, an OBJECT IDENTIFIER;
 * policyQualifiers, a list of PolicyQualifierInfo, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509policyinfo_new(const kovra_asn1_value *policy_identifier,
                                                                     const kovra_asn1_value *qualifiers) KOVRA_NOTHROW;

/** kovra_x509policyinfo_getid returns policyIdentifier, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509policyinfo_getid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509policyinfo_getqualifiers returns policyQualifiers, a list of PolicyQualifierInfo, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509policyinfo_getqualifiers(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_pkixdisplaytext_new returns a DisplayText of a universal tag number, 12 (UTF8String), 22 (IA5String), 26
 * (VisibleString) or 30 (BMPString), and an OCTET STRING of the octets, which are not checked. Null for another tag. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkixdisplaytext_new(int32_t tag,
                                                                      const kovra_asn1_value *string) KOVRA_NOTHROW;

/** kovra_pkixdisplaytext_gettype stores the universal tag number and returns 1; 0, with nothing stored, for a null
 * argument. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_pkixdisplaytext_gettype(const kovra_asn1_value *value,
                                                                int32_t *out_tag) KOVRA_NOTHROW;

/** kovra_pkixdisplaytext_getstring returns the octets, an OCTET STRING whatever the tag. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkixdisplaytext_getstring(const kovra_asn1_value *value)
    KOVRA_NOTHROW;

/** kovra_pkixnoticeref_new returns a NoticeReference: organization, a DisplayText; noticeNumbers, a list of INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkixnoticeref_new(const kovra_asn1_value *organization,
                                                                    const kovra_asn1_value *numbers) KOVRA_NOTHROW;

/** kovra_pkixnoticeref_getorg returns organization, a DisplayText. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkixnoticeref_getorg(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkixnoticeref_getnums returns noticeNumbers, a list of INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkixnoticeref_getnums(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkixusernotice_new returns a UserNotice: noticeRef, a NoticeReference; explicitText, a DisplayText. Each may
 * be null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_pkixusernotice_new(const kovra_asn1_value *notice_ref, const kovra_asn1_value *explicit_text) KOVRA_NOTHROW;

/** kovra_pkixusernotice_getref returns noticeRef, a NoticeReference, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkixusernotice_getref(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkixusernotice_gettext returns explicitText, a DisplayText, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkixusernotice_gettext(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509policymapping_new returns a PolicyMapping (type 139; RFC 5280, 4.2.1.5) of two OBJECT IDENTIFIERs,
 * issuerDomainPolicy and subjectDomainPolicy. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509policymapping_new(
    const kovra_asn1_value *issuer_domain_policy, const kovra_asn1_value *subject_domain_policy) KOVRA_NOTHROW;

/** kovra_x509policymapping_getissuerpolicy returns issuerDomainPolicy, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509policymapping_getissuerpolicy(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509policymapping_getsubjectpolicy returns subjectDomainPolicy, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509policymapping_getsubjectpolicy(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509basicconstraints_new returns BasicConstraints (RFC 5280, 4.2.1.9): cA, a BOOLEAN, null for FALSE;
 * pathLenConstraint, an INTEGER or null, which is stored whatever cA is. EACH CALL WITH A pathLenConstraint LEAVES ONE
 * BOOLEAN UNRELEASED. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_x509basicconstraints_new(const kovra_asn1_value *ca, const kovra_asn1_value *path_len_constraint) KOVRA_NOTHROW;

/** kovra_x509basicconstraints_getisca returns cA, a BOOLEAN, FALSE by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509basicconstraints_getisca(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509basicconstraints_getlen returns pathLenConstraint, an INTEGER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509basicconstraints_getlen(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509gensubtree_new returns a GeneralSubtree (RFC 5280, 4.2.1.10): base, a GeneralName; minimum, an INTEGER,
 * null for 0; maximum, an INTEGER or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509gensubtree_new(const kovra_asn1_value *base,
                                                                     const kovra_asn1_value *minimum,
                                                                     const kovra_asn1_value *maximum) KOVRA_NOTHROW;

/** kovra_x509gensubtree_getbase returns base, a GeneralName. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509gensubtree_getbase(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509gensubtree_getmin returns minimum, an INTEGER, 0 by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509gensubtree_getmin(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509gensubtree_getmax returns maximum, an INTEGER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509gensubtree_getmax(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509nameforms_new returns NameForms (X.509): basicNameForms, a BIT STRING; otherNameForms, a list of OBJECT
 * IDENTIFIER. Each may be null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509nameforms_new(
    const kovra_asn1_value *basic_name_forms, const kovra_asn1_value *other_name_forms) KOVRA_NOTHROW;

/** kovra_x509nameforms_getbasic returns basicNameForms, a BIT STRING, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509nameforms_getbasic(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509nameforms_getother returns otherNameForms, a list of OBJECT IDENTIFIER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509nameforms_getother(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509namecons_new returns NameConstraints: permittedSubtrees and excludedSubtrees, lists of GeneralSubtree;
 * requiredNameForms, NameForms, which only the form of X.509 (type 80) has. Each may be null. As the form of RFC 5280,
 * 4.2.1.10 (type 81), a record with requiredNameForms has no length (-2), so that encoding the whole records 0x1020b;
 * encoding and decoding its content record 0x102cc. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_x509namecons_new(const kovra_asn1_value *permitted_subtrees, const kovra_asn1_value *excluded_subtrees,
                       const kovra_asn1_value *required_name_forms) KOVRA_NOTHROW;

/** kovra_x509namecons_getpermit returns permittedSubtrees, a list of GeneralSubtree, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509namecons_getpermit(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509namecons_getexclude returns excludedSubtrees, a list of GeneralSubtree, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509namecons_getexclude(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509namecons_getreqforms returns requiredNameForms, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509namecons_getreqforms(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509polcons_new returns PolicyConstraints (RFC 5280, 4.2.1.11): requireExplicitPolicy and
 * inhibitPolicyMapping, INTEGERs. Each may be null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509polcons_new(
    const kovra_asn1_value *require_explicit_policy, const kovra_asn1_value *inhibit_policy_mapping) KOVRA_NOTHROW;

/** kovra_x509polcons_getreqexppol returns requireExplicitPolicy, an INTEGER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509polcons_getreqexppol(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509polcons_getinhibitpolmap returns inhibitPolicyMapping, an INTEGER, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509polcons_getinhibitpolmap(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** @name Alternatives of DistributionPointName
 * @{ */
#define KOVRA_ASN1_DISTRIBUTION_POINT_NAME_FULL_NAME 0     /**< fullName */
#define KOVRA_ASN1_DISTRIBUTION_POINT_NAME_RELATIVE_NAME 1 /**< nameRelativeToCRLIssuer */
/** @} */

/** kovra_x509distpointname_new_fullname returns a DistributionPointName (RFC 5280, 4.2.1.13) with a fullName, a list of
 * GeneralNames. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509distpointname_new_fullname(const kovra_asn1_value *full_name)
    KOVRA_NOTHROW;

/** kovra_x509distpointname_new_relname returns one with a nameRelativeToCRLIssuer, a relative distinguished name. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509distpointname_new_relname(const kovra_asn1_value *relative_name)
    KOVRA_NOTHROW;

/** kovra_x509distpointname_gettype stores 0 for fullName and 1 for nameRelativeToCRLIssuer and returns 1; 0, with
 * nothing stored, for a null argument. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_x509distpointname_gettype(const kovra_asn1_value *obj,
                                                                  int32_t *out_choice) KOVRA_NOTHROW;

/** kovra_x509distpointname_getfullname returns fullName, a list of GeneralNames; null when it holds the other. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509distpointname_getfullname(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509distpointname_getrelname returns nameRelativeToCRLIssuer, a list of type 29; null when it holds the other.
 */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509distpointname_getrelname(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509distpoint_new returns a DistributionPoint: distributionPoint, a DistributionPointName; reasons, a BIT
 * STRING; cRLIssuer, a list of GeneralNames. Each may be null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509distpoint_new(const kovra_asn1_value *point_name,
                                                                    const kovra_asn1_value *reasons,
                                                                    const kovra_asn1_value *crl_issuer) KOVRA_NOTHROW;

/** kovra_x509distpoint_getname returns distributionPoint, a DistributionPointName, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509distpoint_getname(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509distpoint_getreason returns reasons, a BIT STRING, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509distpoint_getreason(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509distpoint_getcrlissuer returns cRLIssuer, a list of GeneralNames, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509distpoint_getcrlissuer(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkixaccessdesp_new returns an AccessDescription (RFC 5280, 4.2.2.1) of an OBJECT IDENTIFIER and a GeneralName.
 */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_pkixaccessdesp_new(const kovra_asn1_value *access_method, const kovra_asn1_value *access_location) KOVRA_NOTHROW;

/** kovra_pkixaccessdesp_getmethod returns accessMethod, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkixaccessdesp_getmethod(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkixaccessdesp_getlocate returns accessLocation, a GeneralName. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkixaccessdesp_getlocate(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkixidp_new returns an IssuingDistributionPoint (RFC 5280, 5.2.5): distributionPoint, a DistributionPointName;
 * onlyContainsUserCerts and onlyContainsCACerts, BOOLEANs; onlySomeReasons, a BIT STRING; indirectCRL, a BOOLEAN. Each
 * may be null, which is FALSE for BOOLEANs. onlyContainsAttributeCerts is always FALSE. Null when both "only" flags are
 * TRUE. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkixidp_new(const kovra_asn1_value *point_name,
                                                              const kovra_asn1_value *only_contains_user_certs,
                                                              const kovra_asn1_value *only_contains_ca_certs,
                                                              const kovra_asn1_value *only_some_reasons,
                                                              const kovra_asn1_value *indirect_crl) KOVRA_NOTHROW;

/** kovra_pkixidp_getdpname returns distributionPoint, a DistributionPointName, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkixidp_getdpname(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkixidp_getonlyusercert returns onlyContainsUserCerts, a BOOLEAN, FALSE by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkixidp_getonlyusercert(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkixidp_getonlycacert returns onlyContainsCACerts, a BOOLEAN, FALSE by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkixidp_getonlycacert(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkixidp_getonlysomereason returns onlySomeReasons, a BIT STRING, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkixidp_getonlysomereason(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkixidp_getindirectCRL returns indirectCRL, a BOOLEAN, FALSE by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkixidp_getindirectCRL(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_pkixidp_getonlyattrcert returns onlyContainsAttributeCerts, a BOOLEAN, FALSE by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_pkixidp_getonlyattrcert(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509aaidp_new returns an AAIssuingDistributionPoint (X.509, 15.5): distributionPoint, a DistributionPointName
 * or null; containsAACerts, containsUserAttributeCerts and containsSOAPublicKeyCerts, BOOLEANs, null for TRUE;
 * onlySomeReasons, a BIT STRING or null; indirectCRL, a BOOLEAN, null for FALSE. THE ARGUMENTS DO NOT STAND IN THE
 * ORDER OF THE COMPONENTS, in which onlySomeReasons and indirectCRL come before the flags and the flag of user
 * attribute certificates before that of AA certificates. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509aaidp_new(const kovra_asn1_value *point_name,
                                                                const kovra_asn1_value *contains_aa_certs,
                                                                const kovra_asn1_value *contains_user_attribute_certs,
                                                                const kovra_asn1_value *contains_soa_public_key_certs,
                                                                const kovra_asn1_value *only_some_reasons,
                                                                const kovra_asn1_value *indirect_crl) KOVRA_NOTHROW;

/** kovra_x509aaidp_getdpname returns distributionPoint, a DistributionPointName, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509aaidp_getdpname(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509aaidp_getonlysomereason returns onlySomeReasons, a BIT STRING, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509aaidp_getonlysomereason(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509aaidp_getindirectCRL returns indirectCRL, a BOOLEAN, FALSE by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509aaidp_getindirectCRL(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509aaidp_getcontuserattrcert returns containsUserAttributeCerts, a BOOLEAN, TRUE by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509aaidp_getcontuserattrcert(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_x509aaidp_getcontaacert returns containsAACerts, a BOOLEAN, TRUE by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509aaidp_getcontaacert(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_x509aaidp_getcontsoacert returns containsSOAPublicKeyCerts, a BOOLEAN, TRUE by default. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_x509aaidp_getcontsoacert(const kovra_asn1_value *obj) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
