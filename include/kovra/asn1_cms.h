/** @defgroup asn1_cms Cryptographic messages (CMS)
 * @ingroup kovra_asn1
 *
 * Cryptographic Message Syntax (RFC 5652): signers, certificates, recipients, enveloped, encrypted and authenticated
 * data. ContentInfo and SignedData stand in asn1_pkcs7.h; what holds for all structures in asn1_x509.h.
 *
 * Versions are stored and written as they are given, and nothing else depends on them.
 *
 * Choices: gettype returns the number of the alternative, 0 also for null and for a value of another kind. A GETTER
 * GIVES THE VALUE WHATEVER THE ALTERNATIVE, so gettype is to be asked first; null only for null and a value of another
 * kind. Choices are read and written whole; decoding their content is refused (0x1026d).
 *
 * Attribute sets (signedAttrs, unprotectedAttrs ...) are lists of type 44, whose functions stand in asn1_pkcs10.h and
 * asn1_attribute.h. They are written in the order of the list: sort them first where DER is wanted.
 *
 * Codes of decoding a set of certificates or revocation information: those of the alternative that failed, and no code
 * of the choice on top: 0x10259 certificate; 0x10344, 0x10346, 0x10348 extendedCertificate, v1AttrCert, v2AttrCert;
 * 0x10348 other; 0x10261 crl; 0x10342 other revocation information; 0x1020a when the identifier begins no alternative.
 * In a set of RecipientInfos 0x10378 comes on top of the code of the alternative, but not on 0x1020a.
 *
 * @{ */
#ifndef KOVRA_ASN1_CMS_H
#define KOVRA_ASN1_CMS_H

#include "kovra/asn1_value.h"

KOVRA_C_BEGIN

/** kovra_cmsencapsulatedcontentinfo_new returns an EncapsulatedContentInfo (type 147; RFC 5652, 5.2) of an OBJECT
 * IDENTIFIER and an OCTET STRING, which null leaves out. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsencapsulatedcontentinfo_new(
    const kovra_asn1_value *content_type, const kovra_asn1_value *content) KOVRA_NOTHROW;

/** kovra_cmsencapsulatedcontentinfo_getcontenttype returns eContentType, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsencapsulatedcontentinfo_getcontenttype(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsencapsulatedcontentinfo_getcontent returns eContent, an OCTET STRING, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsencapsulatedcontentinfo_getcontent(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsissuerandsn_new returns an IssuerAndSerialNumber (type 122; RFC 5652, 10.2.4) of a Name and an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_cmsissuerandsn_new(const kovra_asn1_value *issuer, const kovra_asn1_value *serial_number) KOVRA_NOTHROW;

/** kovra_cmsissuerandsn_getissuer returns issuer, a Name. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsissuerandsn_getissuer(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsissuerandsn_getsn returns serialNumber, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsissuerandsn_getsn(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** @name Alternatives of SignerIdentifier and RecipientIdentifier
 * @{ */
#define KOVRA_ASN1_SIGNER_IDENTIFIER_ISSUER_AND_SERIAL_NUMBER 0 /**< issuerAndSerialNumber */
#define KOVRA_ASN1_SIGNER_IDENTIFIER_SUBJECT_KEY_IDENTIFIER 1   /**< subjectKeyIdentifier */
/** @} */

/** kovra_cmssignerid_newissuersn returns a SignerIdentifier (type 123; RFC 5652, 5.3), which RecipientIdentifiers are
 * too, of an IssuerAndSerialNumber (choice 0). */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmssignerid_newissuersn(const kovra_asn1_value *issuer_and_serial)
    KOVRA_NOTHROW;

/** kovra_cmssignerid_newsubkeyid returns a SignerIdentifier of a subject key identifier, an OCTET STRING (choice 1). */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmssignerid_newsubkeyid(const kovra_asn1_value *key_identifier)
    KOVRA_NOTHROW;

/** kovra_cmssignerid_gettype returns the choice: 0 issuerAndSerialNumber, 1 subjectKeyIdentifier. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmssignerid_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmssignerid_getissuersn returns the value, an IssuerAndSerialNumber when the choice is 0. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmssignerid_getissuersn(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmssignerid_getkeyid returns the value, an OCTET STRING when the choice is 1. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmssignerid_getkeyid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmssignerinfo_new returns a SignerInfo (type 124; RFC 5652, 5.3) of version, an INTEGER; sid, a
 * SignerIdentifier; digestAlgorithm, an AlgorithmIdentifier; signedAttrs, a list of Attributes (type 44), or null;
 * signatureAlgorithm, an AlgorithmIdentifier; signature, an OCTET STRING; and unsignedAttrs, a list of Attributes, or
 * null. A sid that is a key identifier does not make the version 3. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmssignerinfo_new(
    const kovra_asn1_value *version, const kovra_asn1_value *sid, const kovra_asn1_value *digest_algorithm,
    const kovra_asn1_value *signed_attrs, const kovra_asn1_value *signature_algorithm,
    const kovra_asn1_value *signature, const kovra_asn1_value *unsigned_attrs) KOVRA_NOTHROW;

/** kovra_cmssignerinfo_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmssignerinfo_getversion(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmssignerinfo_getsid returns sid, a SignerIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmssignerinfo_getsid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmssignerinfo_getdigestalgo returns digestAlgorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmssignerinfo_getdigestalgo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmssignerinfo_getsignattrs returns signedAttrs, a list of Attributes, or null when absent. What the signature
 * covers is the encoding of this list as type 44, which has the tag 31 of a SET where the SignerInfo has A0; it is made
 * from the decoded Attributes, so it is what the signer hashed as far as the signer wrote DER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmssignerinfo_getsignattrs(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmssignerinfo_hassignattrs tells whether there are signedAttrs. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmssignerinfo_hassignattrs(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmssignerinfo_getsignalgo returns signatureAlgorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmssignerinfo_getsignalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmssignerinfo_getsignature returns signature, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmssignerinfo_getsignature(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmssignerinfo_getunsignattrs returns unsignedAttrs, a list of Attributes, or null when absent; a
 * countersignature (RFC 5652, 11.4) is a SignerInfo there. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmssignerinfo_getunsignattrs(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmssignerinfo_hasunsignattrs tells whether there are unsignedAttrs. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmssignerinfo_hasunsignattrs(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** @name Alternatives of CertificateChoices
 * @{ */
#define KOVRA_ASN1_CERTIFICATE_CHOICES_CERTIFICATE 0          /**< certificate */
#define KOVRA_ASN1_CERTIFICATE_CHOICES_EXTENDED_CERTIFICATE 1 /**< extendedCertificate */
#define KOVRA_ASN1_CERTIFICATE_CHOICES_V1_ATTR_CERT 2         /**< v1AttrCert */
#define KOVRA_ASN1_CERTIFICATE_CHOICES_V2_ATTR_CERT 3         /**< v2AttrCert */
#define KOVRA_ASN1_CERTIFICATE_CHOICES_OTHER 4                /**< other */
/** @} */

/** kovra_cmscertchoice_newx509pubkeycert returns a CertificateChoices (type 129; RFC 5652, 10.2.2) of a Certificate
 * (choice 0), whose exact octets it keeps. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_cmscertchoice_newx509pubkeycert(const kovra_asn1_value *certificate_value) KOVRA_NOTHROW;

/** kovra_cmscertchoice_newothercert returns a CertificateChoices of an OtherCertificateFormat (choice 4). The other
 * alternatives come from decoding only. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmscertchoice_newothercert(const kovra_asn1_value *other_format_value)
    KOVRA_NOTHROW;

/** kovra_cmscertchoice_gettype returns the choice: 0 certificate, 1 extendedCertificate, 2 v1AttrCert, 3 v2AttrCert, 4
 * other. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmscertchoice_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmscertchoice_getx509pubkeycert returns the value: a Certificate when the choice is 0, a list of ANY (type
 * 25), the components of the certificate, when it is 1 to 3. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmscertchoice_getx509pubkeycert(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmscertchoice_getothercert returns the value, an OtherCertificateFormat when the choice is 4. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmscertchoice_getothercert(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsothercertformat_new returns an OtherCertificateFormat (type 127; RFC 5652, 10.2.5) of an OBJECT IDENTIFIER
 * and an ANY. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsothercertformat_new(const kovra_asn1_value *format,
                                                                         const kovra_asn1_value *value) KOVRA_NOTHROW;

/** kovra_cmsothercertformat_getformat returns otherCertFormat, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsothercertformat_getformat(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsothercertformat_getothercert returns otherCert, an ANY. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsothercertformat_getothercert(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** @name Alternatives of RevocationInfoChoice
 * @{ */
#define KOVRA_ASN1_REVOCATION_INFO_CHOICE_CRL 0   /**< crl */
#define KOVRA_ASN1_REVOCATION_INFO_CHOICE_OTHER 1 /**< other */
/** @} */

/** kovra_cmsrevinfochoice_newcrl returns a RevocationInfoChoice (type 130; RFC 5652, 10.2.1) of a CertificateList
 * (choice 0), whose exact octets it keeps. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrevinfochoice_newcrl(const kovra_asn1_value *crl) KOVRA_NOTHROW;

/** kovra_cmsrevinfochoice_newotherrevinfo returns a RevocationInfoChoice of an OtherRevocationInfoFormat (choice 1),
 * such as an OCSP response (RFC 5940). */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_cmsrevinfochoice_newotherrevinfo(const kovra_asn1_value *other_format_value) KOVRA_NOTHROW;

/** kovra_cmsrevinfochoice_gettype returns the choice: 0 crl, 1 other. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmsrevinfochoice_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsrevinfochoice_getcrl returns the value, a CertificateList when the choice is 0. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrevinfochoice_getcrl(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsrevinfochoice_getotherrevinfo returns the value, an OtherRevocationInfoFormat when the choice is 1. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrevinfochoice_getotherrevinfo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsotherrevinfoformat_new returns an OtherRevocationInfoFormat (type 128; RFC 5652, 10.2.1) of an OBJECT
 * IDENTIFIER and an ANY. It is an OtherCertificateFormat (type 127) with codes of its own; either may be passed for the
 * other. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_cmsotherrevinfoformat_new(const kovra_asn1_value *format, const kovra_asn1_value *value) KOVRA_NOTHROW;

/** kovra_cmsotherrevinfoformat_getformat returns otherRevInfoFormat, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsotherrevinfoformat_getformat(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsotherrevinfoformat_getotherrevinfo returns otherRevInfo, an ANY. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsotherrevinfoformat_getotherrevinfo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsencryptedcontentinfo_new returns an EncryptedContentInfo (type 148; RFC 5652, 6.1) of an OBJECT IDENTIFIER,
 * an AlgorithmIdentifier and the encrypted octets, an OCTET STRING, which null leaves out. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_cmsencryptedcontentinfo_new(const kovra_asn1_value *content_type, const kovra_asn1_value *algorithm,
                                  const kovra_asn1_value *encrypted_content) KOVRA_NOTHROW;

/** kovra_cmsencryptedcontentinfo_gettype returns contentType, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsencryptedcontentinfo_gettype(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsencryptedcontentinfo_getalgo returns contentEncryptionAlgorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsencryptedcontentinfo_getalgo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsencryptedcontentinfo_getenccontent returns encryptedContent, an OCTET STRING, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsencryptedcontentinfo_getenccontent(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsencryptedcontentinfo_hasenccontent tells whether there is encryptedContent. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmsencryptedcontentinfo_hasenccontent(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsencrypteddata_new returns an EncryptedData (type 149; RFC 5652, 8) of an INTEGER, an EncryptedContentInfo
 * and a list of Attributes (type 44), which null leaves out. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_cmsencrypteddata_new(const kovra_asn1_value *version, const kovra_asn1_value *encrypted_content_info_value,
                           const kovra_asn1_value *unprotected_attrs) KOVRA_NOTHROW;

/** kovra_cmsencrypteddata_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsencrypteddata_getversion(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsencrypteddata_getencinfo returns encryptedContentInfo. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsencrypteddata_getencinfo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsencrypteddata_getattrs returns unprotectedAttrs, a list of Attributes, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsencrypteddata_getattrs(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsencrypteddata_hasattrs tells whether there are unprotectedAttrs. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmsencrypteddata_hasattrs(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsenvelopeddata_new returns an EnvelopedData (type 164; RFC 5652, 6.1) of version, an INTEGER; originatorInfo
 * (type 150), or null; recipientInfos, a list of RecipientInfos (type 163); encryptedContentInfo (type 148); and
 * unprotectedAttrs, a list of Attributes (type 44), or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsenvelopeddata_new(
    const kovra_asn1_value *version, const kovra_asn1_value *originator_info_value,
    const kovra_asn1_value *recipient_infos_list, const kovra_asn1_value *encrypted_content_info_value,
    const kovra_asn1_value *unprotected_attrs) KOVRA_NOTHROW;

/** kovra_cmsenvelopeddata_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsenvelopeddata_getversion(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsenvelopeddata_getoriginator returns originatorInfo, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsenvelopeddata_getoriginator(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsenvelopeddata_hasoriginator tells whether there is originatorInfo. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmsenvelopeddata_hasoriginator(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsenvelopeddata_getrecipinfos returns recipientInfos, a list of RecipientInfos. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsenvelopeddata_getrecipinfos(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsenvelopeddata_getencinfo returns encryptedContentInfo. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsenvelopeddata_getencinfo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsenvelopeddata_getattrs returns unprotectedAttrs, a list of Attributes, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsenvelopeddata_getattrs(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsenvelopeddata_hasattrs tells whether there are unprotectedAttrs. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmsenvelopeddata_hasattrs(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsoriginatorinfo_new returns an OriginatorInfo (type 150; RFC 5652, 6.1) of lists of CertificateChoices (type
 * 131) and RevocationInfoChoices (type 132); either may be null, and both. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsoriginatorinfo_new(const kovra_asn1_value *certificates,
                                                                        const kovra_asn1_value *crls) KOVRA_NOTHROW;

/** kovra_cmsoriginatorinfo_getcerts returns certs, a list of CertificateChoices, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsoriginatorinfo_getcerts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsoriginatorinfo_hascerts tells whether there are certs. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmsoriginatorinfo_hascerts(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsoriginatorinfo_getcrls returns crls, a list of RevocationInfoChoices, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsoriginatorinfo_getcrls(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsoriginatorinfo_hascrls tells whether there are crls. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmsoriginatorinfo_hascrls(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** @name Alternatives of RecipientInfo
 * @{ */
#define KOVRA_ASN1_RECIPIENT_INFO_KTRI 0  /**< ktri */
#define KOVRA_ASN1_RECIPIENT_INFO_KARI 1  /**< kari */
#define KOVRA_ASN1_RECIPIENT_INFO_KEKRI 2 /**< kekri */
#define KOVRA_ASN1_RECIPIENT_INFO_PWRI 3  /**< pwri */
#define KOVRA_ASN1_RECIPIENT_INFO_ORI 4   /**< ori */
/** @} */

/** kovra_cmsrecipientinfo_newktri returns a RecipientInfo (type 162; RFC 5652, 6.2) of a KeyTransRecipientInfo (choice
 * 0). */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrecipientinfo_newktri(const kovra_asn1_value *ktri) KOVRA_NOTHROW;

/** kovra_cmsrecipientinfo_newkari returns a RecipientInfo of a KeyAgreeRecipientInfo (choice 1). */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrecipientinfo_newkari(const kovra_asn1_value *kari) KOVRA_NOTHROW;

/** kovra_cmsrecipientinfo_newkekri returns a RecipientInfo of a KEKRecipientInfo (choice 2). */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrecipientinfo_newkekri(const kovra_asn1_value *kekri)
    KOVRA_NOTHROW;

/** kovra_cmsrecipientinfo_newpwri returns a RecipientInfo of a PasswordRecipientInfo (choice 3). One with a key
 * derivation algorithm cannot be copied: null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrecipientinfo_newpwri(const kovra_asn1_value *pwri) KOVRA_NOTHROW;

/** kovra_cmsrecipientinfo_newori returns a RecipientInfo of an OtherRecipientInfo (choice 4). */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrecipientinfo_newori(const kovra_asn1_value *ori) KOVRA_NOTHROW;

/** kovra_cmsrecipientinfo_gettype returns the choice: 0 ktri, 1 kari, 2 kekri, 3 pwri, 4 ori. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmsrecipientinfo_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsrecipientinfo_getktri returns the value, a KeyTransRecipientInfo when the choice is 0. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrecipientinfo_getktri(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsrecipientinfo_getkari returns the value, a KeyAgreeRecipientInfo when the choice is 1. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrecipientinfo_getkari(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsrecipientinfo_getkekri returns the value, a KEKRecipientInfo when the choice is 2. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrecipientinfo_getkekri(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsrecipientinfo_getpwri returns the value, a PasswordRecipientInfo when the choice is 3. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrecipientinfo_getpwri(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsrecipientinfo_getori returns the value, an OtherRecipientInfo when the choice is 4. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrecipientinfo_getori(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmskeytransrecipientinfo_new returns a KeyTransRecipientInfo (type 151; RFC 5652, 6.2.1) of version, an
 * INTEGER; rid, a SignerIdentifier (type 123); keyEncryptionAlgorithm, an AlgorithmIdentifier; and encryptedKey, an
 * OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmskeytransrecipientinfo_new(
    const kovra_asn1_value *version, const kovra_asn1_value *rid, const kovra_asn1_value *algorithm,
    const kovra_asn1_value *encrypted_key) KOVRA_NOTHROW;

/** kovra_cmskeytransrecipientinfo_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmskeytransrecipientinfo_getversion(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmskeytransrecipientinfo_getrid returns rid, a SignerIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmskeytransrecipientinfo_getrid(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmskeytransrecipientinfo_getencalgo returns keyEncryptionAlgorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmskeytransrecipientinfo_getencalgo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmskeytransrecipientinfo_getenckey returns encryptedKey, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmskeytransrecipientinfo_getenckey(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmskekrecipientinfo_new returns a KEKRecipientInfo (type 159; RFC 5652, 6.2.3) of version, an INTEGER; kekid,
 * a RecipientKeyIdentifier (type 154); keyEncryptionAlgorithm, an AlgorithmIdentifier; and encryptedKey, an OCTET
 * STRING.
 */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_cmskekrecipientinfo_new(const kovra_asn1_value *version, const kovra_asn1_value *kekid,
                              const kovra_asn1_value *algorithm, const kovra_asn1_value *encrypted_key) KOVRA_NOTHROW;

/** kovra_cmskekrecipientinfo_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmskekrecipientinfo_getversion(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmskekrecipientinfo_getkekid returns kekid, a RecipientKeyIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmskekrecipientinfo_getkekid(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmskekrecipientinfo_getencalgo returns keyEncryptionAlgorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmskekrecipientinfo_getencalgo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmskekrecipientinfo_getenckey returns encryptedKey, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmskekrecipientinfo_getenckey(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmspwdrecipientinfo_new returns a PasswordRecipientInfo (type 160; RFC 5652, 6.2.4) of version, an INTEGER;
 * keyDerivationAlgorithm, an AlgorithmIdentifier, or null; keyEncryptionAlgorithm, an AlgorithmIdentifier; and
 * encryptedKey, an OCTET STRING. KEYDERIVATIONALGORITHM IS WRITTEN AS THE STANDARD HAS IT, A0 LENGTH 06 ..., AND READ
 * WITH A SEQUENCE OF ITS OWN INSIDE THE TAG, A0 LENGTH 30 LENGTH 06 ...: what is written with it is refused when it is
 * read (0x1024d), so it cannot be copied, nor become a RecipientInfo. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_cmspwdrecipientinfo_new(const kovra_asn1_value *version, const kovra_asn1_value *derivation_algorithm,
                              const kovra_asn1_value *algorithm, const kovra_asn1_value *encrypted_key) KOVRA_NOTHROW;

/** kovra_cmspwdrecipientinfo_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmspwdrecipientinfo_getversion(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmspwdrecipientinfo_getderivalgo returns keyDerivationAlgorithm, an AlgorithmIdentifier, or null when absent.
 */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmspwdrecipientinfo_getderivalgo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmspwdrecipientinfo_hasderivalgo tells whether there is a keyDerivationAlgorithm. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmspwdrecipientinfo_hasderivalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmspwdrecipientinfo_getencalgo returns keyEncryptionAlgorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmspwdrecipientinfo_getencalgo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmspwdrecipientinfo_getenckey returns encryptedKey, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmspwdrecipientinfo_getenckey(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsotherrecipientinfo_new returns an OtherRecipientInfo (type 161; RFC 5652, 6.2.5) of an OBJECT IDENTIFIER
 * and an ANY. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_cmsotherrecipientinfo_new(const kovra_asn1_value *type, const kovra_asn1_value *value) KOVRA_NOTHROW;

/** kovra_cmsotherrecipientinfo_gettype returns oriType, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsotherrecipientinfo_gettype(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsotherrecipientinfo_getvalue returns oriValue, an ANY. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsotherrecipientinfo_getvalue(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmskeyagreerecipientinfo_new returns a KeyAgreeRecipientInfo (type 158; RFC 5652, 6.2.2) of version, an
 * INTEGER; originator, an OriginatorIdentifierOrKey; ukm, an OCTET STRING, or null; keyEncryptionAlgorithm, an
 * AlgorithmIdentifier; and recipientEncryptedKeys, a list of RecipientEncryptedKeys (type 157). */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmskeyagreerecipientinfo_new(
    const kovra_asn1_value *version, const kovra_asn1_value *originator_value, const kovra_asn1_value *ukm,
    const kovra_asn1_value *algorithm, const kovra_asn1_value *encrypted_keys) KOVRA_NOTHROW;

/** kovra_cmskeyagreerecipientinfo_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmskeyagreerecipientinfo_getversion(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmskeyagreerecipientinfo_getoriginator returns originator, an OriginatorIdentifierOrKey. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmskeyagreerecipientinfo_getoriginator(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmskeyagreerecipientinfo_getukm returns ukm, an OCTET STRING, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmskeyagreerecipientinfo_getukm(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmskeyagreerecipientinfo_hasukm tells whether there is ukm. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmskeyagreerecipientinfo_hasukm(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmskeyagreerecipientinfo_getencalgo returns keyEncryptionAlgorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmskeyagreerecipientinfo_getencalgo(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmskeyagreerecipientinfo_getenckeys returns recipientEncryptedKeys, a list of RecipientEncryptedKeys. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmskeyagreerecipientinfo_getenckeys(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** @name Alternatives of OriginatorIdentifierOrKey
 * @{ */
#define KOVRA_ASN1_ORIGINATOR_IDENTIFIER_OR_KEY_ISSUER_AND_SERIAL_NUMBER 0 /**< issuerAndSerialNumber */
#define KOVRA_ASN1_ORIGINATOR_IDENTIFIER_OR_KEY_SUBJECT_KEY_IDENTIFIER 1   /**< subjectKeyIdentifier */
#define KOVRA_ASN1_ORIGINATOR_IDENTIFIER_OR_KEY_ORIGINATOR_KEY 2           /**< originatorKey */
/** @} */

/** kovra_cmsorgidorkey_newissuersn returns an OriginatorIdentifierOrKey (type 152; RFC 5652, 6.2.2) of an
 * IssuerAndSerialNumber (choice 0). */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsorgidorkey_newissuersn(const kovra_asn1_value *issuer_and_serial)
    KOVRA_NOTHROW;

/** kovra_cmsorgidorkey_newsubkeyid returns an OriginatorIdentifierOrKey of a subject key identifier, an OCTET STRING
 * (choice 1). */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_cmsorgidorkey_newsubkeyid(const kovra_asn1_value *key_identifier_value) KOVRA_NOTHROW;

/** kovra_cmsorgidorkey_neworgkey returns an OriginatorIdentifierOrKey of a public key, a SubjectPublicKeyInfo (choice
 * 2). */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsorgidorkey_neworgkey(const kovra_asn1_value *public_key)
    KOVRA_NOTHROW;

/** kovra_cmsorgidorkey_gettype returns the choice: 0 issuerAndSerialNumber, 1 subjectKeyIdentifier, 2 originatorKey. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmsorgidorkey_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsorgidorkey_getissuersn returns the value, an IssuerAndSerialNumber when the choice is 0. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsorgidorkey_getissuersn(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsorgidorkey_getsubkeyid returns the value, an OCTET STRING when the choice is 1. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsorgidorkey_getsubkeyid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsorgidorkey_getorgkey returns the value, a SubjectPublicKeyInfo when the choice is 2. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsorgidorkey_getorgkey(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsrecipientenckey_new returns a RecipientEncryptedKey (type 156; RFC 5652, 6.2.2) of a
 * KeyAgreeRecipientIdentifier and an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_cmsrecipientenckey_new(const kovra_asn1_value *rid, const kovra_asn1_value *encrypted_key_value) KOVRA_NOTHROW;

/** kovra_cmsrecipientenckey_getid returns rid, a KeyAgreeRecipientIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrecipientenckey_getid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsrecipientenckey_getenckey returns encryptedKey, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrecipientenckey_getenckey(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** @name Alternatives of KeyAgreeRecipientIdentifier
 * @{ */
#define KOVRA_ASN1_KEY_AGREE_RECIPIENT_IDENTIFIER_ISSUER_AND_SERIAL_NUMBER 0 /**< issuerAndSerialNumber */
#define KOVRA_ASN1_KEY_AGREE_RECIPIENT_IDENTIFIER_R_KEY_ID 1                 /**< rKeyId */
/** @} */

/** kovra_cmskeyagreerecipientid_newissuersn returns a KeyAgreeRecipientIdentifier (type 155; RFC 5652, 6.2.2) of an
 * IssuerAndSerialNumber (choice 0). */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_cmskeyagreerecipientid_newissuersn(const kovra_asn1_value *issuer_and_serial) KOVRA_NOTHROW;

/** kovra_cmskeyagreerecipientid_newrkeyid returns a KeyAgreeRecipientIdentifier of a RecipientKeyIdentifier (choice 1).
 */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_cmskeyagreerecipientid_newrkeyid(const kovra_asn1_value *key_identifier_value) KOVRA_NOTHROW;

/** kovra_cmskeyagreerecipientid_gettype returns the choice: 0 issuerAndSerialNumber, 1 rKeyId. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmskeyagreerecipientid_gettype(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmskeyagreerecipientid_getissuersn returns the value, an IssuerAndSerialNumber when the choice is 0. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmskeyagreerecipientid_getissuersn(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmskeyagreerecipientid_getrkeyid returns the value, a RecipientKeyIdentifier when the choice is 1. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmskeyagreerecipientid_getrkeyid(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsrecipientkeyid_new returns a RecipientKeyIdentifier (type 154; RFC 5652, 6.2.2), which a KEKIdentifier is
 * too, of an OCTET STRING; date, a GeneralizedTime (type 22), or null; and other, an OtherKeyAttribute, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrecipientkeyid_new(const kovra_asn1_value *subject_key_identifier,
                                                                        const kovra_asn1_value *date,
                                                                        const kovra_asn1_value *other) KOVRA_NOTHROW;

/** kovra_cmsrecipientkeyid_getsubkeyid returns subjectKeyIdentifier, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrecipientkeyid_getsubkeyid(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsrecipientkeyid_getdate returns date, a GeneralizedTime, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrecipientkeyid_getdate(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsrecipientkeyid_hasdate tells whether there is a date. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmsrecipientkeyid_hasdate(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsrecipientkeyid_getotherattr returns other, an OtherKeyAttribute, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsrecipientkeyid_getotherattr(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsrecipientkeyid_hasotherattr tells whether there is an OtherKeyAttribute. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmsrecipientkeyid_hasotherattr(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsotherkeyattr_new returns an OtherKeyAttribute (type 153; RFC 5652, 10.2.7) of an OBJECT IDENTIFIER and an
 * ANY, which null leaves out. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsotherkeyattr_new(const kovra_asn1_value *identifier,
                                                                      const kovra_asn1_value *value) KOVRA_NOTHROW;

/** kovra_cmsotherkeyattr_getattrid returns keyAttrId, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsotherkeyattr_getattrid(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsotherkeyattr_getattrvalue returns keyAttr, an ANY, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsotherkeyattr_getattrvalue(const kovra_asn1_value *obj)
    KOVRA_NOTHROW;

/** kovra_cmsotherkeyattr_hasattrvalue tells whether there is a keyAttr. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmsotherkeyattr_hasattrvalue(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsauthdata_new returns an AuthenticatedData (type 165; RFC 5652, 9.1) of version, an INTEGER; originatorInfo
 * (type 150), or null; recipientInfos, a list of RecipientInfos (type 163); macAlgorithm, an AlgorithmIdentifier;
 * digestAlgorithm, an AlgorithmIdentifier, or null; encapContentInfo (type 147); authAttrs, a list of Attributes (type
 * 44), or null; mac, an OCTET STRING; and unauthAttrs, a list of Attributes, or null. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL
kovra_cmsauthdata_new(const kovra_asn1_value *version, const kovra_asn1_value *originator_info_value,
                      const kovra_asn1_value *recipient_infos_list, const kovra_asn1_value *mac_algorithm,
                      const kovra_asn1_value *digest_algorithm, const kovra_asn1_value *encap_content_info,
                      const kovra_asn1_value *auth_attrs, const kovra_asn1_value *mac,
                      const kovra_asn1_value *unauth_attrs) KOVRA_NOTHROW;

/** kovra_cmsauthdata_getversion returns version, an INTEGER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsauthdata_getversion(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsauthdata_getoriginator returns originatorInfo, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsauthdata_getoriginator(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsauthdata_hasoriginator tells whether there is originatorInfo. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmsauthdata_hasoriginator(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsauthdata_getrecipinfos returns recipientInfos, a list of RecipientInfos. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsauthdata_getrecipinfos(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsauthdata_getmacalgo returns macAlgorithm, an AlgorithmIdentifier. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsauthdata_getmacalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsauthdata_gethashalgo returns digestAlgorithm, an AlgorithmIdentifier, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsauthdata_gethashalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsauthdata_hashashalgo tells whether there is a digestAlgorithm. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmsauthdata_hashashalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsauthdata_getencapinfo returns encapContentInfo, an EncapsulatedContentInfo. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsauthdata_getencapinfo(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsauthdata_getauthatrrs returns authAttrs, a list of Attributes, or null when absent; what the mac covers is
 * its encoding as type 44, with the tag 31 of a SET. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsauthdata_getauthatrrs(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsauthdata_hasauthatrrs tells whether there are authAttrs. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmsauthdata_hasauthatrrs(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsauthdata_getmac returns mac, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsauthdata_getmac(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsauthdata_getunauthatrrs returns unauthAttrs, a list of Attributes, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_cmsauthdata_getunauthatrrs(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_cmsauthdata_hasunauthatrrs tells whether there are unauthAttrs. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_cmsauthdata_hasunauthatrrs(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_dhkeyspecinfo_new returns a KeySpecificInfo (type 166; RFC 2631, 2.1.2) of an OBJECT IDENTIFIER and an OCTET
 * STRING, whose length, four octets in the standard, is not looked at. It is a ResponseBytes (type 174) with codes of
 * its own; either may be passed for the other. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_dhkeyspecinfo_new(const kovra_asn1_value *algorithm,
                                                                    const kovra_asn1_value *counter) KOVRA_NOTHROW;

/** kovra_dhkeyspecinfo_getalgo returns algorithm, an OBJECT IDENTIFIER. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_dhkeyspecinfo_getalgo(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_dhkeyspecinfo_getcount returns counter, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_dhkeyspecinfo_getcount(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_dhotherinfo_new returns an OtherInfo (type 167; RFC 2631, 2.1.2) of a KeySpecificInfo; partyAInfo, an OCTET
 * STRING, or null; and suppPubInfo, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_dhotherinfo_new(const kovra_asn1_value *key_spec,
                                                                  const kovra_asn1_value *party_a_info,
                                                                  const kovra_asn1_value *supp_pub_info) KOVRA_NOTHROW;

/** kovra_dhotherinfo_getkeyspec returns keyInfo, a KeySpecificInfo. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_dhotherinfo_getkeyspec(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_dhotherinfo_getpartyainfo returns partyAInfo, an OCTET STRING, or null when absent. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_dhotherinfo_getpartyainfo(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_dhotherinfo_haspartyainfo tells whether there is partyAInfo. */
KOVRA_ASN1_API int32_t KOVRA_CALL kovra_dhotherinfo_haspartyainfo(const kovra_asn1_value *obj) KOVRA_NOTHROW;

/** kovra_dhotherinfo_getsupppubinfo returns suppPubInfo, an OCTET STRING. */
KOVRA_ASN1_API kovra_asn1_value *KOVRA_CALL kovra_dhotherinfo_getsupppubinfo(const kovra_asn1_value *obj) KOVRA_NOTHROW;

KOVRA_C_END

/** @} */

#endif
