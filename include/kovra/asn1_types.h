/** @defgroup asn1_types Type identifiers
 * @ingroup kovra_asn1
 *
 * The type identifiers: numbers from 0 to 207 that select what a value is. Each has a universal tag (asn1_lib.h), a
 * form and two error codes, of encoding and of decoding. Where a name of one type stands in the error text of another,
 * as from 56 on, the texts are a row off; docs/irregularities.md says how to read them.
 *
 * @{ */
#ifndef KOVRA_ASN1_TYPES_H
#define KOVRA_ASN1_TYPES_H

#include <stdint.h>

/** @name The marker 00 00 (X.690 clause 8.1.5), and the primitive types
 *
 * asn1_boolean.h, asn1_integer.h, asn1_bitstring.h, asn1_octetstring.h, asn1_oid.h.
 * @{ */
#define KOVRA_ASN1_TYPE_END_OF_CONTENTS 0   /**< the marker 00 00 */
#define KOVRA_ASN1_TYPE_BOOLEAN 1           /**< BOOLEAN */
#define KOVRA_ASN1_TYPE_INTEGER 2           /**< INTEGER */
#define KOVRA_ASN1_TYPE_BIT_STRING 3        /**< BIT STRING */
#define KOVRA_ASN1_TYPE_OCTET_STRING 4      /**< OCTET STRING */
#define KOVRA_ASN1_TYPE_NULL 5              /**< NULL */
#define KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER 6 /**< OBJECT IDENTIFIER */
#define KOVRA_ASN1_TYPE_ENUMERATED 7        /**< ENUMERATED */
/** @} */

/** @name Character strings, asn1_octetstring.h
 *
 * STRING has no tag of its own and goes under an implicit one.
 * @{ */
#define KOVRA_ASN1_TYPE_STRING 8            /**< any character string, without a tag */
#define KOVRA_ASN1_TYPE_UTF8_STRING 9       /**< UTF8String */
#define KOVRA_ASN1_TYPE_NUMERIC_STRING 10   /**< NumericString */
#define KOVRA_ASN1_TYPE_PRINTABLE_STRING 11 /**< PrintableString */
#define KOVRA_ASN1_TYPE_TELETEX_STRING 12   /**< TeletexString */
#define KOVRA_ASN1_TYPE_VIDEOTEX_STRING 13  /**< VideotexString */
#define KOVRA_ASN1_TYPE_IA5_STRING 14       /**< IA5String */
#define KOVRA_ASN1_TYPE_GRAPHIC_STRING 15   /**< GraphicString */
#define KOVRA_ASN1_TYPE_VISIBLE_STRING 16   /**< VisibleString */
#define KOVRA_ASN1_TYPE_GENERAL_STRING 17   /**< GeneralString */
#define KOVRA_ASN1_TYPE_UNIVERSAL_STRING 18 /**< UniversalString */
#define KOVRA_ASN1_TYPE_BMP_STRING 19       /**< BMPString */
/** @} */

/** @name Times, asn1_time.h
 *
 * In ASN.1:
 *
 *     Time ::= CHOICE { utcTime UTCTime, generalTime GeneralizedTime }
 * @{ */
#define KOVRA_ASN1_TYPE_TIME 20             /**< Time, either of the two below */
#define KOVRA_ASN1_TYPE_UTC_TIME 21         /**< UTCTime */
#define KOVRA_ASN1_TYPE_GENERALIZED_TIME 22 /**< GeneralizedTime */
/** @} */

/** @name The open type, asn1_any.h, and lists of it, asn1_list.h
 *
 * The ones with _1 are SIZE (1..MAX).
 * @{ */
#define KOVRA_ASN1_TYPE_ANY 23               /**< ANY */
#define KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY 24   /**< SEQUENCE OF ANY */
#define KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY_1 25 /**< SEQUENCE SIZE (1..MAX) OF ANY */
#define KOVRA_ASN1_TYPE_SET_OF_ANY 26        /**< SET OF ANY */
#define KOVRA_ASN1_TYPE_SET_OF_ANY_1 27      /**< SET SIZE (1..MAX) OF ANY */
/** @} */

/** @name Names (X.501, RFC 5280 section 4.1.2.4)
 *
 * In ASN.1:
 *
 *     Name ::= SEQUENCE OF RelativeDistinguishedName
 *     RelativeDistinguishedName ::= SET SIZE (1..MAX) OF AttributeTypeAndDistinguishedValue
 * @{ */
#define KOVRA_ASN1_TYPE_CONTEXT 28                                /**< Context */
#define KOVRA_ASN1_TYPE_ATTRIBUTE_TYPE_AND_DISTINGUISHED_VALUE 29 /**< AttributeTypeAndDistinguishedValue */
#define KOVRA_ASN1_TYPE_ATTRIBUTE_TYPE_AND_VALUE 30               /**< AttributeTypeAndValue */
#define KOVRA_ASN1_TYPE_RELATIVE_DISTINGUISHED_NAME 31            /**< RelativeDistinguishedName */
#define KOVRA_ASN1_TYPE_NAME 32                                   /**< Name */
/** @} */

/** @name Certificates and certificate lists (X.509, RFC 5280 sections 4.1 and 5.1)
 *
 * In ASN.1:
 *
 *     Certificate ::= SEQUENCE { tbsCertificate, signatureAlgorithm, signatureValue }
 *     CertificateList ::= SEQUENCE { tbsCertList, signatureAlgorithm, signatureValue }
 * @{ */
#define KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER 33    /**< AlgorithmIdentifier */
#define KOVRA_ASN1_TYPE_VALIDITY 34                /**< Validity */
#define KOVRA_ASN1_TYPE_SUBJECT_PUBLIC_KEY_INFO 35 /**< SubjectPublicKeyInfo */
#define KOVRA_ASN1_TYPE_EXTENSION 36               /**< Extension */
#define KOVRA_ASN1_TYPE_EXTENSIONS 37              /**< Extensions */
#define KOVRA_ASN1_TYPE_TBS_CERTIFICATE 38         /**< TBSCertificate */
#define KOVRA_ASN1_TYPE_CERTIFICATE 39             /**< Certificate */
#define KOVRA_ASN1_TYPE_TBS_CERT_LIST 40           /**< TBSCertList */
#define KOVRA_ASN1_TYPE_CERTIFICATE_LIST 41        /**< CertificateList */
/** @} */

/** @name Attributes (X.501) and certification requests (PKCS #10, RFC 2986)
 *
 * In ASN.1:
 *
 *     CertificationRequest ::= SEQUENCE { certificationRequestInfo, signatureAlgorithm, signature }
 * @{ */
#define KOVRA_ASN1_TYPE_ATTRIBUTE 42                  /**< Attribute */
#define KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTE 43           /**< Attribute of requests and messages */
#define KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES 44          /**< SET OF Attribute */
#define KOVRA_ASN1_TYPE_CERTIFICATION_REQUEST_INFO 45 /**< CertificationRequestInfo */
#define KOVRA_ASN1_TYPE_CERTIFICATION_REQUEST 46      /**< CertificationRequest */
/** @} */

/** @name Values of attributes (X.520, PKCS #9, RFC 8551)
 *
 * In ASN.1:
 *
 *     DirectoryString ::= CHOICE { teletexString, printableString, universalString, utf8String, bmpString }
 * @{ */
#define KOVRA_ASN1_TYPE_DIRECTORY_STRING 47      /**< DirectoryString */
#define KOVRA_ASN1_TYPE_UUID_PAIR 48             /**< UUIDPair */
#define KOVRA_ASN1_TYPE_POSTAL_ADDRESS 49        /**< PostalAddress */
#define KOVRA_ASN1_TYPE_TELEX_NUMBER 50          /**< TelexNumber */
#define KOVRA_ASN1_TYPE_NAME_AND_OPTIONAL_UID 51 /**< NameAndOptionalUID */
#define KOVRA_ASN1_TYPE_PKCS9_STRING 52          /**< PKCS9String */
#define KOVRA_ASN1_TYPE_SMIME_CAPABILITY 53      /**< SMIMECapability */
#define KOVRA_ASN1_TYPE_SMIME_CAPABILITIES 54    /**< SMIMECapabilities */
/** @} */

/** @name A pair of cross certificates (X.509); keys, digests and signatures (PKCS #1, RFC 8017; RFC 3279)
 *
 * In ASN.1:
 *
 *     DigestInfo ::= SEQUENCE { digestAlgorithm, digest }
 * @{ */
#define KOVRA_ASN1_TYPE_CERTIFICATE_PAIR 55 /**< CertificatePair */
#define KOVRA_ASN1_TYPE_RSA_PUBLIC_KEY 56   /**< RSAPublicKey */
#define KOVRA_ASN1_TYPE_DIGEST_INFO 57      /**< DigestInfo */
#define KOVRA_ASN1_TYPE_DSS_SIG_VALUE 58    /**< Dss-Sig-Value */
#define KOVRA_ASN1_TYPE_ECDSA_SIG_VALUE 59  /**< ECDSA-Sig-Value */
#define KOVRA_ASN1_TYPE_DSS_PARMS 60        /**< Dss-Parms */
/** @} */

/** @name General names (RFC 5280 section 4.2.1.6)
 *
 * In ASN.1:
 *
 *     GeneralNames ::= SEQUENCE SIZE (1..MAX) OF GeneralName
 * @{ */
#define KOVRA_ASN1_TYPE_INSTANCE_OF 61    /**< INSTANCE OF, the OtherName of a GeneralName */
#define KOVRA_ASN1_TYPE_EDI_PARTY_NAME 62 /**< EDIPartyName */
#define KOVRA_ASN1_TYPE_GENERAL_NAME 63   /**< GeneralName */
#define KOVRA_ASN1_TYPE_GENERAL_NAMES 64  /**< GeneralNames */
/** @} */

/** @name Standard extensions (X.509, RFC 5280 section 4.2)
 * @{ */
#define KOVRA_ASN1_TYPE_AUTHORITY_KEY_IDENTIFIER 65      /**< AuthorityKeyIdentifier */
#define KOVRA_ASN1_TYPE_EXT_KEY_USAGE 66                 /**< ExtKeyUsageSyntax */
#define KOVRA_ASN1_TYPE_PRIVATE_KEY_USAGE_PERIOD 67      /**< PrivateKeyUsagePeriod */
#define KOVRA_ASN1_TYPE_POLICY_QUALIFIER_INFO 68         /**< PolicyQualifierInfo */
#define KOVRA_ASN1_TYPE_POLICY_INFORMATION 69            /**< PolicyInformation */
#define KOVRA_ASN1_TYPE_CERTIFICATE_POLICIES 70          /**< CertificatePolicies */
#define KOVRA_ASN1_TYPE_DISPLAY_TEXT 71                  /**< DisplayText */
#define KOVRA_ASN1_TYPE_NOTICE_REFERENCE 72              /**< NoticeReference */
#define KOVRA_ASN1_TYPE_USER_NOTICE 73                   /**< UserNotice */
#define KOVRA_ASN1_TYPE_POLICY_MAPPINGS 74               /**< PolicyMappings */
#define KOVRA_ASN1_TYPE_SUBJECT_DIRECTORY_ATTRIBUTES 75  /**< SubjectDirectoryAttributes */
#define KOVRA_ASN1_TYPE_BASIC_CONSTRAINTS 76             /**< BasicConstraints */
#define KOVRA_ASN1_TYPE_GENERAL_SUBTREE 77               /**< GeneralSubtree */
#define KOVRA_ASN1_TYPE_GENERAL_SUBTREES 78              /**< GeneralSubtrees */
#define KOVRA_ASN1_TYPE_NAME_FORMS 79                    /**< NameForms */
#define KOVRA_ASN1_TYPE_NAME_CONSTRAINTS 80              /**< NameConstraints of X.509 */
#define KOVRA_ASN1_TYPE_PKIX_NAME_CONSTRAINTS 81         /**< NameConstraints of RFC 5280 */
#define KOVRA_ASN1_TYPE_POLICY_CONSTRAINTS 82            /**< PolicyConstraints */
#define KOVRA_ASN1_TYPE_DISTRIBUTION_POINT_NAME 83       /**< DistributionPointName */
#define KOVRA_ASN1_TYPE_DISTRIBUTION_POINT 84            /**< DistributionPoint */
#define KOVRA_ASN1_TYPE_CRL_DISTRIBUTION_POINTS 85       /**< CRLDistributionPoints */
#define KOVRA_ASN1_TYPE_ACCESS_DESCRIPTION 86            /**< AccessDescription */
#define KOVRA_ASN1_TYPE_INFORMATION_ACCESS 87            /**< AuthorityInfoAccessSyntax and SubjectInfoAccessSyntax */
#define KOVRA_ASN1_TYPE_ISSUING_DISTRIBUTION_POINT 88    /**< IssuingDistributionPoint */
#define KOVRA_ASN1_TYPE_AA_ISSUING_DISTRIBUTION_POINT 89 /**< AAIssuingDistributionPoint */
/** @} */

/** @name RELATIVE-OID; thumbprints of replaced certificates; an entry of a certificate list
 *
 * X.690 clause 8.20, asn1_oid.h.
 * @{ */
#define KOVRA_ASN1_TYPE_RELATIVE_OID 90         /**< RELATIVE-OID */
#define KOVRA_ASN1_TYPE_OLD_CERT_THUMBPRINTS 91 /**< OldCertThumbprints */
#define KOVRA_ASN1_TYPE_REVOKED_CERTIFICATE 92  /**< an entry of revokedCertificates */
/** @} */

/** @name The records of a certificate store, asn1_certstore.h
 *
 * In ASN.1:
 *
 *     CertStore ::= SEQUENCE OF CertWithAttributes
 * @{ */
#define KOVRA_ASN1_TYPE_PRIVATE_KEY_ATTRIBUTE 93 /**< PrivateKeyAttribute */
#define KOVRA_ASN1_TYPE_STORE_ATTRIBUTE 94       /**< StoreAttribute */
#define KOVRA_ASN1_TYPE_STORE_ATTRIBUTE_LIST 95  /**< StoreAttributeList */
#define KOVRA_ASN1_TYPE_CERT_WITH_ATTRIBUTES 96  /**< CertWithAttributes */
#define KOVRA_ASN1_TYPE_CERT_STORE 97            /**< CertStore */
#define KOVRA_ASN1_TYPE_STORE_KEY_ID 98          /**< StoreKeyId */
/** @} */

/** @name Keys, and parameters of algorithms (PKCS #1, #3, #5, #8: RFC 8017, 8018, 5958; RFC 2268, 2040)
 *
 * In ASN.1:
 *
 *     PrivateKeyInfo ::= SEQUENCE { version, privateKeyAlgorithm, privateKey, attributes [0] IMPLICIT OPTIONAL,
 *                               publicKey [1] IMPLICIT OPTIONAL }
 * @{ */
#define KOVRA_ASN1_TYPE_RSA_PRIVATE_KEY 99             /**< RSAPrivateKey */
#define KOVRA_ASN1_TYPE_RSAES_OAEP_PARAMS 100          /**< RSAES-OAEP-params */
#define KOVRA_ASN1_TYPE_RSASSA_PSS_PARAMS 101          /**< RSASSA-PSS-params */
#define KOVRA_ASN1_TYPE_DH_PARAMETER 102               /**< DHParameter */
#define KOVRA_ASN1_TYPE_PRIVATE_KEY_INFO 103           /**< PrivateKeyInfo */
#define KOVRA_ASN1_TYPE_ENCRYPTED_PRIVATE_KEY_INFO 104 /**< EncryptedPrivateKeyInfo */
#define KOVRA_ASN1_TYPE_PBKDF2_PARAMS 105              /**< PBKDF2-params */
#define KOVRA_ASN1_TYPE_PBE_PARAMETER 106              /**< PBEParameter */
#define KOVRA_ASN1_TYPE_PBES2_PARAMS 107               /**< PBES2-params */
#define KOVRA_ASN1_TYPE_PBMAC1_PARAMS 108              /**< PBMAC1-params */
#define KOVRA_ASN1_TYPE_RC2_CBC_PARAMETER 109          /**< RC2-CBC-Parameter */
#define KOVRA_ASN1_TYPE_RC5_CBC_PARAMETERS 110         /**< RC5-CBC-Parameters */
/** @} */

/** ContentInfo (PKCS #7, RFC 2315; CMS, RFC 5652).
 *
 *     ContentInfo ::= SEQUENCE { contentType, content [0] EXPLICIT OPTIONAL } */
#define KOVRA_ASN1_TYPE_CONTENT_INFO 111

/** @name PKCS #12 (RFC 7292)
 *
 * In ASN.1:
 *
 *     PFX ::= SEQUENCE { version, authSafe, macData OPTIONAL }
 * @{ */
#define KOVRA_ASN1_TYPE_MAC_DATA 112           /**< MacData */
#define KOVRA_ASN1_TYPE_PFX 113                /**< PFX */
#define KOVRA_ASN1_TYPE_AUTHENTICATED_SAFE 114 /**< AuthenticatedSafe */
#define KOVRA_ASN1_TYPE_SAFE_BAG 115           /**< SafeBag */
#define KOVRA_ASN1_TYPE_SAFE_CONTENTS 116      /**< SafeContents */
#define KOVRA_ASN1_TYPE_CERT_BAG 117           /**< CertBag */
#define KOVRA_ASN1_TYPE_CRL_BAG 118            /**< CRLBag */
#define KOVRA_ASN1_TYPE_SECRET_BAG 119         /**< SecretBag */
#define KOVRA_ASN1_TYPE_PKCS12_PBE_PARAMS 120  /**< pkcs-12PbeParams */
/** @} */

/** DigestedData (PKCS #7, RFC 2315 section 12).
 *
 *     DigestedData ::= SEQUENCE { version, digestAlgorithm, contentInfo, digest } */
#define KOVRA_ASN1_TYPE_DIGESTED_DATA 121

/** @name Signed messages (PKCS #7, RFC 2315; CMS, RFC 5652 section 5)
 *
 * In ASN.1:
 *
 *     SignedData ::= SEQUENCE { version, digestAlgorithms, encapContentInfo, certificates [0] OPTIONAL,
 *                               crls [1] OPTIONAL, signerInfos }
 * @{ */
#define KOVRA_ASN1_TYPE_ISSUER_AND_SERIAL_NUMBER 122     /**< IssuerAndSerialNumber */
#define KOVRA_ASN1_TYPE_SIGNER_IDENTIFIER 123            /**< SignerIdentifier */
#define KOVRA_ASN1_TYPE_SIGNER_INFO 124                  /**< SignerInfo */
#define KOVRA_ASN1_TYPE_SIGNER_INFOS 125                 /**< SignerInfos */
#define KOVRA_ASN1_TYPE_DIGEST_ALGORITHM_IDENTIFIERS 126 /**< DigestAlgorithmIdentifiers */
#define KOVRA_ASN1_TYPE_OTHER_CERTIFICATE_FORMAT 127     /**< OtherCertificateFormat */
#define KOVRA_ASN1_TYPE_OTHER_REVOCATION_INFO_FORMAT 128 /**< OtherRevocationInfoFormat */
#define KOVRA_ASN1_TYPE_CERTIFICATE_CHOICES 129          /**< CertificateChoices */
#define KOVRA_ASN1_TYPE_REVOCATION_INFO_CHOICE 130       /**< RevocationInfoChoice */
#define KOVRA_ASN1_TYPE_CERTIFICATE_SET 131              /**< CertificateSet */
#define KOVRA_ASN1_TYPE_REVOCATION_INFO_CHOICES 132      /**< RevocationInfoChoices */
#define KOVRA_ASN1_TYPE_PKCS7_SIGNED_DATA 133            /**< SignedData of PKCS #7 */
#define KOVRA_ASN1_TYPE_CMS_SIGNED_DATA 134              /**< SignedData of CMS */
/** @} */

/** @name Parts of structures above that have a type of their own
 * @{ */
#define KOVRA_ASN1_TYPE_DN_VALUES_WITH_CONTEXT_ITEM 135        /**< an item of DN values with context */
#define KOVRA_ASN1_TYPE_ATTRIBUTE_VALUES_WITH_CONTEXT_ITEM 136 /**< an item of attribute values with context */
#define KOVRA_ASN1_TYPE_POLICY_QUALIFIERS 137                  /**< policyQualifiers, a list of PolicyQualifierInfo */
#define KOVRA_ASN1_TYPE_NOTICE_NUMBERS 138                     /**< noticeNumbers, a list of INTEGER */
#define KOVRA_ASN1_TYPE_POLICY_MAPPING 139                     /**< PolicyMapping */
#define KOVRA_ASN1_TYPE_REVOKED_CERTIFICATES 140               /**< revokedCertificates, a list of entries */
#define KOVRA_ASN1_TYPE_CONTEXT_LIST 141                       /**< SET OF Context */
#define KOVRA_ASN1_TYPE_DN_VALUES_WITH_CONTEXT 142             /**< SET OF items of DN values with context */
#define KOVRA_ASN1_TYPE_ATTRIBUTE_VALUES_WITH_CONTEXT 143      /**< SET OF items of attribute values with context */
/** @} */

/** @name Parts of keys and of PBKDF2 (RFC 8017, RFC 8018)
 * @{ */
#define KOVRA_ASN1_TYPE_OTHER_PRIME_INFO 144  /**< OtherPrimeInfo */
#define KOVRA_ASN1_TYPE_OTHER_PRIME_INFOS 145 /**< OtherPrimeInfos */
#define KOVRA_ASN1_TYPE_PBKDF2_SALT 146       /**< the salt of PBKDF2-params */
/** @} */

/** EncapsulatedContentInfo (RFC 5652 section 5.2).
 *
 *     EncapsulatedContentInfo ::= SEQUENCE { eContentType, eContent [0] EXPLICIT OPTIONAL } */
#define KOVRA_ASN1_TYPE_ENCAPSULATED_CONTENT_INFO 147

/** @name Encrypted messages and their recipients (RFC 5652 sections 6 and 8)
 *
 * In ASN.1:
 *
 *     EnvelopedData ::= SEQUENCE { version, originatorInfo [0] OPTIONAL, recipientInfos, encryptedContentInfo,
 *                                  unprotectedAttrs [1] OPTIONAL }
 * @{ */
#define KOVRA_ASN1_TYPE_ENCRYPTED_CONTENT_INFO 148         /**< EncryptedContentInfo */
#define KOVRA_ASN1_TYPE_ENCRYPTED_DATA 149                 /**< EncryptedData */
#define KOVRA_ASN1_TYPE_ORIGINATOR_INFO 150                /**< OriginatorInfo */
#define KOVRA_ASN1_TYPE_KEY_TRANS_RECIPIENT_INFO 151       /**< KeyTransRecipientInfo */
#define KOVRA_ASN1_TYPE_ORIGINATOR_IDENTIFIER_OR_KEY 152   /**< OriginatorIdentifierOrKey */
#define KOVRA_ASN1_TYPE_OTHER_KEY_ATTRIBUTE 153            /**< OtherKeyAttribute */
#define KOVRA_ASN1_TYPE_RECIPIENT_KEY_IDENTIFIER 154       /**< RecipientKeyIdentifier */
#define KOVRA_ASN1_TYPE_KEY_AGREE_RECIPIENT_IDENTIFIER 155 /**< KeyAgreeRecipientIdentifier */
#define KOVRA_ASN1_TYPE_RECIPIENT_ENCRYPTED_KEY 156        /**< RecipientEncryptedKey */
#define KOVRA_ASN1_TYPE_RECIPIENT_ENCRYPTED_KEYS 157       /**< RecipientEncryptedKeys */
#define KOVRA_ASN1_TYPE_KEY_AGREE_RECIPIENT_INFO 158       /**< KeyAgreeRecipientInfo */
#define KOVRA_ASN1_TYPE_KEK_RECIPIENT_INFO 159             /**< KEKRecipientInfo */
#define KOVRA_ASN1_TYPE_PASSWORD_RECIPIENT_INFO 160        /**< PasswordRecipientInfo */
#define KOVRA_ASN1_TYPE_OTHER_RECIPIENT_INFO 161           /**< OtherRecipientInfo */
#define KOVRA_ASN1_TYPE_RECIPIENT_INFO 162                 /**< RecipientInfo */
#define KOVRA_ASN1_TYPE_RECIPIENT_INFOS 163                /**< RecipientInfos */
#define KOVRA_ASN1_TYPE_ENVELOPED_DATA 164                 /**< EnvelopedData */
/** @} */

/** @name AuthenticatedData (RFC 5652 section 9), and what Diffie-Hellman key agreement derives keys from (RFC 2631)
 * @{ */
#define KOVRA_ASN1_TYPE_AUTHENTICATED_DATA 165 /**< AuthenticatedData */
#define KOVRA_ASN1_TYPE_KEY_SPECIFIC_INFO 166  /**< KeySpecificInfo */
#define KOVRA_ASN1_TYPE_DH_OTHER_INFO 167      /**< OtherInfo */
/** @} */

/** @name OCSP (RFC 6960), asn1_ocsp.h
 *
 * In ASN.1:
 *
 *     OCSPRequest ::= SEQUENCE { tbsRequest, optionalSignature [0] EXPLICIT OPTIONAL }
 *     OCSPResponse ::= SEQUENCE { responseStatus, responseBytes [0] EXPLICIT OPTIONAL }
 *     BasicOCSPResponse ::= SEQUENCE { tbsResponseData, signatureAlgorithm, signature, certs [0] EXPLICIT OPTIONAL }
 * @{ */
#define KOVRA_ASN1_TYPE_OCSP_CERT_ID 168                        /**< CertID */
#define KOVRA_ASN1_TYPE_OCSP_SINGLE_REQUEST 169                 /**< Request */
#define KOVRA_ASN1_TYPE_OCSP_REQUEST_LIST 170                   /**< requestList, a list of Request */
#define KOVRA_ASN1_TYPE_OCSP_TBS_REQUEST 171                    /**< TBSRequest */
#define KOVRA_ASN1_TYPE_OCSP_SIGNATURE 172                      /**< Signature */
#define KOVRA_ASN1_TYPE_OCSP_REQUEST 173                        /**< OCSPRequest */
#define KOVRA_ASN1_TYPE_OCSP_RESPONSE_BYTES 174                 /**< ResponseBytes */
#define KOVRA_ASN1_TYPE_OCSP_RESPONSE 175                       /**< OCSPResponse */
#define KOVRA_ASN1_TYPE_OCSP_RESPONDER_ID 176                   /**< ResponderID */
#define KOVRA_ASN1_TYPE_OCSP_REVOKED_INFO 177                   /**< RevokedInfo */
#define KOVRA_ASN1_TYPE_OCSP_CERT_STATUS 178                    /**< CertStatus */
#define KOVRA_ASN1_TYPE_OCSP_SINGLE_RESPONSE 179                /**< SingleResponse */
#define KOVRA_ASN1_TYPE_OCSP_RESPONSES 180                      /**< responses, a list of SingleResponse */
#define KOVRA_ASN1_TYPE_OCSP_RESPONSE_DATA 181                  /**< ResponseData */
#define KOVRA_ASN1_TYPE_OCSP_BASIC_RESPONSE 182                 /**< BasicOCSPResponse */
#define KOVRA_ASN1_TYPE_OCSP_CRL_ID 183                         /**< CrlID */
#define KOVRA_ASN1_TYPE_OCSP_SERVICE_LOCATOR 184                /**< ServiceLocator */
#define KOVRA_ASN1_TYPE_OCSP_PREFERRED_SIGNATURE_ALGORITHMS 185 /**< PreferredSignatureAlgorithms */
/** @} */

/** @name Time stamps (RFC 3161), asn1_tsp.h
 *
 * In ASN.1:
 *
 *     TimeStampResp ::= SEQUENCE { status, timeStampToken OPTIONAL }
 * @{ */
#define KOVRA_ASN1_TYPE_MESSAGE_IMPRINT 186 /**< MessageImprint */
#define KOVRA_ASN1_TYPE_TIME_STAMP_REQ 187  /**< TimeStampReq */
#define KOVRA_ASN1_TYPE_PKI_FREE_TEXT 188   /**< PKIFreeText */
#define KOVRA_ASN1_TYPE_PKI_STATUS_INFO 189 /**< PKIStatusInfo */
#define KOVRA_ASN1_TYPE_TIME_STAMP_RESP 190 /**< TimeStampResp */
#define KOVRA_ASN1_TYPE_ACCURACY 191        /**< Accuracy */
#define KOVRA_ASN1_TYPE_TST_INFO 192        /**< TSTInfo */
/** @} */

/** @name Attributes that name the signing certificate (RFC 2634, RFC 5035), asn1_tsp.h
 *
 * In ASN.1:
 *
 *     SigningCertificate ::= SEQUENCE { certs, policies OPTIONAL }
 * @{ */
#define KOVRA_ASN1_TYPE_ISSUER_SERIAL 193          /**< IssuerSerial */
#define KOVRA_ASN1_TYPE_ESS_CERT_ID 194            /**< ESSCertID */
#define KOVRA_ASN1_TYPE_ESS_CERT_ID_V2 195         /**< ESSCertIDv2 */
#define KOVRA_ASN1_TYPE_ESS_CERT_IDS 196           /**< SEQUENCE OF ESSCertID */
#define KOVRA_ASN1_TYPE_ESS_CERT_IDS_V2 197        /**< SEQUENCE OF ESSCertIDv2 */
#define KOVRA_ASN1_TYPE_CERTIFICATE_POLICIES_1 198 /**< SEQUENCE OF PolicyInformation */
#define KOVRA_ASN1_TYPE_SIGNING_CERTIFICATE 199    /**< SigningCertificate */
#define KOVRA_ASN1_TYPE_SIGNING_CERTIFICATE_V2 200 /**< SigningCertificateV2 */
/** @} */

/** @name Keys of elliptic curves and SM2, enveloped key pairs, asn1_ecc.h (RFC 3279, RFC 5915, GM/T 0009)
 *
 * In ASN.1:
 *
 *     ECPrivateKey ::= SEQUENCE { version, privateKey, parameters [0] OPTIONAL, publicKey [1] OPTIONAL }
 * @{ */
#define KOVRA_ASN1_TYPE_ECPK_PARAMETERS 201          /**< EcpkParameters */
#define KOVRA_ASN1_TYPE_EC_PRIVATE_KEY 202           /**< ECPrivateKey */
#define KOVRA_ASN1_TYPE_SM2_CIPHER 203               /**< SM2Cipher */
#define KOVRA_ASN1_TYPE_SM2_ENVELOPED_KEY 204        /**< SM2EnvelopedKey */
#define KOVRA_ASN1_TYPE_RSA_ENVELOPED_KEY_PAIR 205   /**< RSAEnvelopedKeyPair */
#define KOVRA_ASN1_TYPE_INNER_ENVELOPED_KEY_PAIR 206 /**< InnerEnvelopedKeyPair */
#define KOVRA_ASN1_TYPE_ENVELOPED_KEY_PAIR 207       /**< EnvelopedKeyPair */
/** @} */

/** One past the highest type identifier. */
#define KOVRA_ASN1_TYPE_COUNT 208

/** @} */

#endif
