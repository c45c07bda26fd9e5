/** @defgroup asn1_codes Error codes
 * @ingroup kovra_asn1
 *
 * The codes that failures record in error contexts, named by their texts. Made by scripts/make-codes.
 *
 * A name says what the text of its code says. SOME TEXTS SPEAK OF ANOTHER TYPE THAN THE ONE THAT FAILED, and so do
 * these names: which code a function records is told in its header. The general codes and those of streams are
 * `KOVRA_ERR_...` (util_error.h).
 *
 * @{ */
#ifndef KOVRA_ASN1_CODES_H
#define KOVRA_ASN1_CODES_H

/* clang-format off */
#define KOVRA_ASN1_E_INVALID_TAGCLASS 0x10200 /**< Invalid tagclass */
#define KOVRA_ASN1_E_BAD_TAGNUMBER 0x10201 /**< Bad tagnumber */
#define KOVRA_ASN1_E_TAGNUMBER_TOO_LARGE_UNSUPPORT 0x10202 /**< tagnumber too large,unsupport */
#define KOVRA_ASN1_E_BAD_LENGTH 0x10203 /**< Bad length */
#define KOVRA_ASN1_E_LENGTH_TOO_LARGE_UNSUPPORT 0x10204 /**< length too large,unsupport */
#define KOVRA_ASN1_E_DECODE_END_OF_CONTENTS 0x10205 /**< decode end of contents fail */
#define KOVRA_ASN1_E_LENGTH_ENCODE_MUST_BE_DEFINITE_FORM 0x10206 /**< length encode must be definite form */
#define KOVRA_ASN1_E_BAD_UNUSED_BITS_IN_BITSTRING 0x10207 /**< bad unused bits in bitstring */
#define KOVRA_ASN1_E_BAD_TIME_TYPE 0x10208 /**< bad time type */
#define KOVRA_ASN1_E_EOC_IS_BAD_ENCODE 0x10209 /**< eoc is bad encode */
#define KOVRA_ASN1_E_INCORRECT_ITEM 0x1020a /**< incorrect item */
#define KOVRA_ASN1_E_INCORRECT_LENGTH 0x1020b /**< incorrect length */
#define KOVRA_ASN1_E_INCORRECT_SIZE_OR_SIZE_OF 0x1020c /**< incorrect size or size of */
#define KOVRA_ASN1_E_ENCODE_BOOLEAN 0x1020d /**< encode boolean fail */
#define KOVRA_ASN1_E_DECODE_BOOLEAN 0x1020e /**< decode boolean fail */
#define KOVRA_ASN1_E_ENCODE_INTEGER_OR_ENUM 0x1020f /**< encode integer or enum fail */
#define KOVRA_ASN1_E_DECODE_INTEGER_OR_ENUM 0x10210 /**< decode integer or enum fail */
#define KOVRA_ASN1_E_ENCODE_ENUM 0x10211 /**< encode enum fail */
#define KOVRA_ASN1_E_DECODE_ENUM 0x10212 /**< decode enum fail */
#define KOVRA_ASN1_E_ENCODE_BITSTRING 0x10213 /**< encode bitstring fail */
#define KOVRA_ASN1_E_DECODE_BITSTRING 0x10214 /**< decode bitstring fail */
#define KOVRA_ASN1_E_GET_BITSTRING_DATA_10215 0x10215 /**< get bitstring data fail */
#define KOVRA_ASN1_E_ENCODE_STRING 0x10216 /**< encode string fail */
#define KOVRA_ASN1_E_DECODE_STRING 0x10217 /**< decode string fail */
#define KOVRA_ASN1_E_ENCODE_OCTETSTRING 0x10218 /**< encode octetstring fail */
#define KOVRA_ASN1_E_DECODE_OCTETSTRING 0x10219 /**< decode octetstring fail */
#define KOVRA_ASN1_E_GET_BITSTRING_DATA_1021A 0x1021a /**< get bitstring data fail */
#define KOVRA_ASN1_E_ENCODE_UTF8STRING 0x1021b /**< encode utf8string fail */
#define KOVRA_ASN1_E_DECODE_UTF8STRING 0x1021c /**< decode utf8string fail */
#define KOVRA_ASN1_E_ENCODE_NUMERICSTRING 0x1021d /**< encode numericstring fail */
#define KOVRA_ASN1_E_DECODE_NUMERICSTRING 0x1021e /**< decode numericstring fail */
#define KOVRA_ASN1_E_ENCODE_PRINTABLESTRING 0x1021f /**< encode printablestring fail */
#define KOVRA_ASN1_E_DECODE_PRINTABLESTRING 0x10220 /**< decode printablestring fail */
#define KOVRA_ASN1_E_ENCODE_TELETEXSTRING 0x10221 /**< encode teletexstring fail */
#define KOVRA_ASN1_E_DECODE_TELETEXSTRING 0x10222 /**< decode teletexstring fail */
#define KOVRA_ASN1_E_ENCODE_VIDEOTEXSTRING 0x10223 /**< encode videotexstring fail */
#define KOVRA_ASN1_E_DECODE_VIDEOTEXSTRING 0x10224 /**< decode videotexstring fail */
#define KOVRA_ASN1_E_ENCODE_IA5STRING 0x10225 /**< encode ia5string fail */
#define KOVRA_ASN1_E_DECODE_IA5STRING 0x10226 /**< decode ia5string fail */
#define KOVRA_ASN1_E_ENCODE_GRAPHICSTRING 0x10227 /**< encode graphicstring fail */
#define KOVRA_ASN1_E_DECODE_GRAPHICSTRING 0x10228 /**< decode graphicstring fail */
#define KOVRA_ASN1_E_ENCODE_VISIBLESTRING 0x10229 /**< encode visiblestring fail */
#define KOVRA_ASN1_E_DECODE_VISIBLESTRING 0x1022a /**< decode visiblestring fail */
#define KOVRA_ASN1_E_ENCODE_GENERALSTRING 0x1022b /**< encode generalstring fail */
#define KOVRA_ASN1_E_DECODE_GENERALSTRING 0x1022c /**< decode generalstring fail */
#define KOVRA_ASN1_E_ENCODE_UNIVERSALSTRING 0x1022d /**< encode universalstring fail */
#define KOVRA_ASN1_E_DECODE_UNIVERSALSTRING 0x1022e /**< decode universalstring fail */
#define KOVRA_ASN1_E_ENCODE_BMPSTRING 0x1022f /**< encode bmpstring fail */
#define KOVRA_ASN1_E_DECODE_BMPSTRING 0x10230 /**< decode bmpstring fail */
#define KOVRA_ASN1_E_ENCODE_NULL 0x10231 /**< encode null fail */
#define KOVRA_ASN1_E_DECODE_NULL 0x10232 /**< decode null fail */
#define KOVRA_ASN1_E_ENCODE_OID 0x10233 /**< encode oid fail */
#define KOVRA_ASN1_E_DECODE_OID 0x10234 /**< decode oid fail */
#define KOVRA_ASN1_E_ENCODE_ANY 0x10235 /**< encode any fail */
#define KOVRA_ASN1_E_DECODE_ANY 0x10236 /**< decode any fail */
#define KOVRA_ASN1_E_GET_ANY_DATA 0x10237 /**< get any data fail */
#define KOVRA_ASN1_E_ENCODE_TIME 0x10238 /**< encode time fail */
#define KOVRA_ASN1_E_DECODE_TIME 0x10239 /**< decode time fail */
#define KOVRA_ASN1_E_ENCODE_UTCTIME 0x1023a /**< encode utctime fail */
#define KOVRA_ASN1_E_DECODE_UTCTIME 0x1023b /**< decode utctime fail */
#define KOVRA_ASN1_E_ENCODE_GENTIME 0x1023c /**< encode gentime fail */
#define KOVRA_ASN1_E_DECODE_GENTIME 0x1023d /**< decode gentime fail */
#define KOVRA_ASN1_E_ENCODE_X500_CONTEXT 0x1023e /**< encode x500 context fail */
#define KOVRA_ASN1_E_DECODE_X500_CONTEXT 0x1023f /**< decode x500 context fail */
#define KOVRA_ASN1_E_ENCODE_X500_CONTEXT_LIST 0x10240 /**< encode x500 context list fail */
#define KOVRA_ASN1_E_DECODE_X500_CONTEXT_LIST 0x10241 /**< decode x500 context list fail */
#define KOVRA_ASN1_E_ENCODE_X500_DNS_VALUESWITHCONTEXTITEM 0x10242 /**< encode x500 dn's valueswithcontextitem fail */
#define KOVRA_ASN1_E_DECODE_X500_DNS_VALUESWITHCONTEXTITEM 0x10243 /**< decode x500 dn's valueswithcontextitem fail */
#define KOVRA_ASN1_E_ENCODE_X500_DNS_VALUESWITHCONTEXT 0x10244 /**< encode x500 dn's valueswithcontext fail */
#define KOVRA_ASN1_E_DECODE_X500_DNS_VALUESWITHCONTEXT 0x10245 /**< decode x500 dn's valueswithcontext fail */
#define KOVRA_ASN1_E_ENCODE_X500_ATTRIBUTE_TYPE_AND_DISTINGUISHED_VALUE 0x10246 /**< encode x500 attribute type and distinguished value fail */
#define KOVRA_ASN1_E_DECODE_X500_ATTRIBUTE_TYPE_AND_DISTINGUISHED_VALUE 0x10247 /**< decode x500 attribute type and distinguished value fail */
#define KOVRA_ASN1_E_ENCODE_X500_RDN 0x10248 /**< encode x500 rdn fail */
#define KOVRA_ASN1_E_DECODE_X500_RDN 0x10249 /**< decode x500 rdn fail */
#define KOVRA_ASN1_E_ENCODE_X500_NAME 0x1024a /**< encode x500 name fail */
#define KOVRA_ASN1_E_DECODE_X500_NAME 0x1024b /**< decode x500 name fail */
#define KOVRA_ASN1_E_ENCODE_X509_ALGORITHMIDENTIFIER 0x1024c /**< encode x509 algorithmIdentifier fail */
#define KOVRA_ASN1_E_DECODE_X509_ALGORITHMIDENTIFIER 0x1024d /**< decode x509 algorithmIdentifier fail */
#define KOVRA_ASN1_E_ENCODE_X509_VALIDITY 0x1024e /**< encode x509 validity fail */
#define KOVRA_ASN1_E_DECODE_X509_VALIDITY 0x1024f /**< decode x509 validity fail */
#define KOVRA_ASN1_E_ENCODE_X509_SUBJECT_PUBLIC_KEY_INFO 0x10250 /**< encode x509 subject public key info fail */
#define KOVRA_ASN1_E_DECODE_X509_SUBJECT_PUBLIC_KEY_INFO 0x10251 /**< decode x509 subject public key info fail */
#define KOVRA_ASN1_E_ENCODE_X509_EXTENSION 0x10252 /**< encode x509 extension fail */
#define KOVRA_ASN1_E_DECODE_X509_EXTENSION 0x10253 /**< decode x509 extension fail */
#define KOVRA_ASN1_E_ENCODE_X509_EXTENSIONS 0x10254 /**< encode x509 extensions fail */
#define KOVRA_ASN1_E_DECODE_X509_EXTENSIONS 0x10255 /**< decode x509 extensions fail */
#define KOVRA_ASN1_E_ENCODE_X509_TBSCERTIFICATE 0x10256 /**< encode x509 tbscertificate fail */
#define KOVRA_ASN1_E_DECODE_X509_TBSCERTIFICATE 0x10257 /**< decode x509 tbscertificate fail */
#define KOVRA_ASN1_E_ENCODE_X509_CERTIFICATE 0x10258 /**< encode x509 certificate fail */
#define KOVRA_ASN1_E_DECODE_X509_CERTIFICATE 0x10259 /**< decode x509 certificate fail */
#define KOVRA_ASN1_E_ENCODE_X509_CRL_REVOKED_CERT_INFO 0x1025a /**< encode x509 crl revoked cert info fail */
#define KOVRA_ASN1_E_DECODE_X509_CRL_REVOKED_CERT_INFO 0x1025b /**< decode x509 crl revoked cert info fail */
#define KOVRA_ASN1_E_ENCODE_X509_CRL_REVOKED_CERT_LIST 0x1025c /**< encode x509 crl revoked cert list fail */
#define KOVRA_ASN1_E_DECODE_X509_CRL_REVOKED_CERT_LIST 0x1025d /**< decode x509 crl revoked cert list fail */
#define KOVRA_ASN1_E_ENCODE_X509_TBSCRL 0x1025e /**< encode x509 tbscrl fail */
#define KOVRA_ASN1_E_DECODE_X509_TBSCRL 0x1025f /**< decode x509 tbscrl fail */
#define KOVRA_ASN1_E_ENCODE_X509_CRL 0x10260 /**< encode x509 crl fail */
#define KOVRA_ASN1_E_DECODE_X509_CRL 0x10261 /**< decode x509 crl fail */
#define KOVRA_ASN1_E_ENCODE_PKCS10_ATTRIBUTE 0x10262 /**< encode pkcs10 attribute fail */
#define KOVRA_ASN1_E_DECODE_PKCS10_ATTRIBUTE 0x10263 /**< decode pkcs10 attribute fail */
#define KOVRA_ASN1_E_ENCODE_PKCS10_ATTRIBUTES 0x10264 /**< encode pkcs10 attributes fail */
#define KOVRA_ASN1_E_DECODE_PKCS10_ATTRIBUTES 0x10265 /**< decode pkcs10 attributes fail */
#define KOVRA_ASN1_E_ENCODE_PKCS10_TBSCERTREQ 0x10266 /**< encode pkcs10 tbscertreq fail */
#define KOVRA_ASN1_E_DECODE_PKCS10_TBSCERTREQ 0x10267 /**< decode pkcs10 tbscertreq fail */
#define KOVRA_ASN1_E_ENCODE_PKCS10_CERTREQ 0x10268 /**< encode pkcs10 certreq fail */
#define KOVRA_ASN1_E_DECODE_PKCS10_CERTREQ 0x10269 /**< decode pkcs10 certreq fail */
#define KOVRA_ASN1_E_P_C_BIT_ERROR 0x1026a /**< p/c bit error */
#define KOVRA_ASN1_E_UNSUPPORT_TYPE 0x1026b /**< unsupport type */
#define KOVRA_ASN1_E_UNSUPPORT_ENCODE 0x1026c /**< unsupport encode */
#define KOVRA_ASN1_E_UNSUPPORT_DECODE 0x1026d /**< unsupport decode */
#define KOVRA_ASN1_E_ENCODE_ANYLIST 0x1026e /**< encode anylist fail */
#define KOVRA_ASN1_E_DECODE_ANYLIST 0x1026f /**< decode anylist fail */
#define KOVRA_ASN1_E_ENCODE_SEQUENCE_OF_ANY 0x10270 /**< encode sequence of any fail */
#define KOVRA_ASN1_E_DECODE_SEQUENCE_OF_ANY 0x10271 /**< decode sequence of any fail */
#define KOVRA_ASN1_E_ENCODE_SET_OF_ANY 0x10272 /**< encode set of any fail */
#define KOVRA_ASN1_E_DECODE_SET_OF_ANY 0x10273 /**< decode set of any fail */
#define KOVRA_ASN1_E_NOT_PKIX_ATTRIBUTETYPEANDVALUE 0x10274 /**< not pkix AttributeTypeAndValue */
#define KOVRA_ASN1_E_ENCODE_PKIX_ATTRIBUTETYPEANDVALUE 0x10275 /**< encode pkix AttributeTypeAndValue fail */
#define KOVRA_ASN1_E_DECODE_PKIX_ATTRIBUTETYPEANDVALUE 0x10276 /**< decode pkix AttributeTypeAndValue fail */
#define KOVRA_ASN1_E_ENCODE_X500_ATTRIBUTES_VALUESWITHCONTEXTITEM 0x10277 /**< encode x500 attribute's valueswithcontextitem fail */
#define KOVRA_ASN1_E_DECODE_X500_ATTRIBUTES_VALUESWITHCONTEXTITEM 0x10278 /**< decode x500 attribute's valueswithcontextitem fail */
#define KOVRA_ASN1_E_ENCODE_X500_ATTRIBUTES_VALUESWITHCONTEXT 0x10279 /**< encode x500 attribute's valueswithcontext fail */
#define KOVRA_ASN1_E_DECODE_X500_ATTRIBUTES_VALUESWITHCONTEXT 0x1027a /**< decode x500 attribute's valueswithcontext fail */
#define KOVRA_ASN1_E_ENCODE_X500_ATTRIBUTE 0x1027b /**< encode x500 attribute fail */
#define KOVRA_ASN1_E_DECODE_X500_ATTRIBUTE 0x1027c /**< decode x500 attribute fail */
#define KOVRA_ASN1_E_NOT_PKCS10_ATTRIBUTE 0x1027d /**< not pkcs10 attribute */
#define KOVRA_ASN1_E_BITSTRING_DECODE_OBJECT 0x1027e /**< bitstring decode object fail */
#define KOVRA_ASN1_E_THERE_IS_SOME_BYTES_NOT_DECODE 0x1027f /**< there is some bytes not decode */
#define KOVRA_ASN1_E_OCTETSTRING_DECODE_OBJECT 0x10280 /**< octetstring decode object fail */
#define KOVRA_ASN1_E_ANY_DECODE_OBJECT 0x10281 /**< any decode object fail */
#define KOVRA_ASN1_E_ANY_TO_OBJECT 0x10282 /**< any to object fail */
#define KOVRA_ASN1_E_OBJECT_DUP 0x10283 /**< object dup fail */
#define KOVRA_ASN1_E_ENCODE_X500_DIRECTORY_STRING 0x10284 /**< encode x500 directory string fail */
#define KOVRA_ASN1_E_DECODE_X500_DIRECTORY_STRING 0x10285 /**< decode x500 directory string fail */
#define KOVRA_ASN1_E_ENCODE_X500_UUIDPAIR 0x10286 /**< encode x500 uuidpair fail */
#define KOVRA_ASN1_E_DECODE_X500_UUIDPAIR 0x10287 /**< decode x500 uuidpair fail */
#define KOVRA_ASN1_E_ENCODE_X500_POSTALADDRESS 0x10288 /**< encode x500 postaladdress fail */
#define KOVRA_ASN1_E_DECODE_X500_POSTALADDRESS 0x10289 /**< decode x500 postaladdress fail */
#define KOVRA_ASN1_E_ENCODE_X500_TELEXNUMBER 0x1028a /**< encode x500 telexnumber fail */
#define KOVRA_ASN1_E_DECODE_X500_TELEXNUMBER 0x1028b /**< decode x500 telexnumber fail */
#define KOVRA_ASN1_E_ENCODE_X500_NAMEANDOPTIONALUID 0x1028c /**< encode x500 NameAndOptionalUID fail */
#define KOVRA_ASN1_E_DECODE_X500_NAMEANDOPTIONALUID 0x1028d /**< decode x500 NameAndOptionalUID fail */
#define KOVRA_ASN1_E_ENCODE_X500_PKCS9STRING 0x1028e /**< encode x500 pkcs9string fail */
#define KOVRA_ASN1_E_DECODE_X500_PKCS9STRING 0x1028f /**< decode x500 pkcs9string fail */
#define KOVRA_ASN1_E_ENCODE_X500_SMIMECAPABILITY 0x10290 /**< encode x500 SMIMECapability fail */
#define KOVRA_ASN1_E_DECODE_X500_SMIMECAPABILITY 0x10291 /**< decode x500 SMIMECapability fail */
#define KOVRA_ASN1_E_ENCODE_X500_SMIMECAPABILITIES 0x10292 /**< encode x500 SMIMECapabilities fail */
#define KOVRA_ASN1_E_DECODE_X500_SMIMECAPABILITIES 0x10293 /**< decode x500 SMIMECapabilities fail */
#define KOVRA_ASN1_E_ENCODE_X509_CERTIFICATEPAIR 0x10294 /**< encode x509 CertificatePair fail */
#define KOVRA_ASN1_E_DECODE_X509_CERTIFICATEPAIR 0x10295 /**< decode x509 CertificatePair fail */
#define KOVRA_ASN1_E_ENCODE_PKCS1_RSAPUBLICKEY 0x10296 /**< encode pkcs1 RSAPublicKey fail */
#define KOVRA_ASN1_E_DECODE_PKCS1_RSAPUBLICKEY 0x10297 /**< decode pkcs1 RSAPublicKey fail */
#define KOVRA_ASN1_E_ENCODE_PKCS_DIGESTINFO 0x10298 /**< encode pkcs digestinfo fail */
#define KOVRA_ASN1_E_DECODE_PKCS_DIGESTINFO 0x10299 /**< decode pkcs digestinfo fail */
#define KOVRA_ASN1_E_ENCODE_DSS_SIG_VALUE 0x1029a /**< encode dss-sig-value fail */
#define KOVRA_ASN1_E_DECODE_DSS_SIG_VALUE 0x1029b /**< decode dss-sig-value fail */
#define KOVRA_ASN1_E_ENCODE_ECDSA_SIG_VALUE 0x1029c /**< encode ecdsa-sig-value fail */
#define KOVRA_ASN1_E_DECODE_ECDSA_SIG_VALUE 0x1029d /**< decode ecdsa-sig-value fail */
#define KOVRA_ASN1_E_ENCODE_DSS_PARMS 0x1029e /**< encode dss-parms fail */
#define KOVRA_ASN1_E_DECODE_DSS_PARMS 0x1029f /**< decode dss-parms fail */
#define KOVRA_ASN1_E_ENCODE_INSTANCEOF_TYPE_IDENTIFIER 0x102a0 /**< encode instanceof type identifier fail */
#define KOVRA_ASN1_E_DECODE_INSTANCEOF_TYPE_IDENTIFIER 0x102a1 /**< decode instanceof type identifier fail */
#define KOVRA_ASN1_E_ENCODE_EDIPARTY_NAME 0x102a2 /**< encode ediparty name fail */
#define KOVRA_ASN1_E_DECODE_EDIPARTY_NAME 0x102a3 /**< decode ediparty name fail */
#define KOVRA_ASN1_E_ENCODE_GENERALNAME 0x102a4 /**< encode GeneralName fail */
#define KOVRA_ASN1_E_DECODE_GENERALNAME 0x102a5 /**< decode GeneralName fail */
#define KOVRA_ASN1_E_ENCODE_GENERALNAMES 0x102a6 /**< encode GeneralNames fail */
#define KOVRA_ASN1_E_DECODE_GENERALNAMES 0x102a7 /**< decode GeneralNames fail */
#define KOVRA_ASN1_E_ENCODE_AUTHORITYKEYIDENTIFIER 0x102a8 /**< encode AuthorityKeyIdentifier fail */
#define KOVRA_ASN1_E_DECODE_AUTHORITYKEYIDENTIFIER 0x102a9 /**< decode AuthorityKeyIdentifier fail */
#define KOVRA_ASN1_E_ENCODE_EXTKEYUSAGE 0x102aa /**< encode extKeyUsage fail */
#define KOVRA_ASN1_E_DECODE_EXTKEYUSAGE 0x102ab /**< decode extKeyUsage fail */
#define KOVRA_ASN1_E_ENCODE_PRIVATEKEYUSAGEPERIOD 0x102ac /**< encode privateKeyUsagePeriod fail */
#define KOVRA_ASN1_E_DECODE_PRIVATEKEYUSAGEPERIOD 0x102ad /**< decode privateKeyUsagePeriod fail */
#define KOVRA_ASN1_E_ENCODE_POLICYQUALIFIERINFO 0x102ae /**< encode PolicyQualifierInfo fail */
#define KOVRA_ASN1_E_DECODE_POLICYQUALIFIERINFO 0x102af /**< decode PolicyQualifierInfo fail */
#define KOVRA_ASN1_E_ENCODE_POLICYQUALIFIERINFOS 0x102b0 /**< encode PolicyQualifierInfos fail */
#define KOVRA_ASN1_E_DECODE_POLICYQUALIFIERINFOS 0x102b1 /**< decode PolicyQualifierInfos fail */
#define KOVRA_ASN1_E_ENCODE_DISPLAYTEXT 0x102b2 /**< encode DisplayText fail */
#define KOVRA_ASN1_E_DECODE_DISPLAYTEXT 0x102b3 /**< decode DisplayText fail */
#define KOVRA_ASN1_E_ENCODE_PKIX_NOTICENUMBERS 0x102b4 /**< encode pkix noticeNumbers fail */
#define KOVRA_ASN1_E_DECODE_PKIX_NOTICENUMBERS 0x102b5 /**< decode pkix noticeNumbers fail */
#define KOVRA_ASN1_E_ENCODE_PKIX_NOTICEREFERENCE 0x102b6 /**< encode pkix NoticeReference fail */
#define KOVRA_ASN1_E_DECODE_PKIX_NOTICEREFERENCE 0x102b7 /**< decode pkix NoticeReference fail */
#define KOVRA_ASN1_E_ENCODE_PKIX_USERNOTICE 0x102b8 /**< encode pkix UserNotice fail */
#define KOVRA_ASN1_E_DECODE_PKIX_USERNOTICE 0x102b9 /**< decode pkix UserNotice fail */
#define KOVRA_ASN1_E_ENCODE_X509_POLICYMAPPING 0x102ba /**< encode x509 PolicyMapping fail */
#define KOVRA_ASN1_E_DECODE_X509_POLICYMAPPING 0x102bb /**< decode x509 PolicyMapping fail */
#define KOVRA_ASN1_E_ENCODE_X509_POLICYMAPPINGS 0x102bc /**< encode x509 PolicyMappings fail */
#define KOVRA_ASN1_E_DECODE_X509_POLICYMAPPINGS 0x102bd /**< decode x509 PolicyMappings fail */
#define KOVRA_ASN1_E_ENCODE_X509_SUBJECTDIRECTORYATTRIBUTES 0x102be /**< encode x509 SubjectDirectoryAttributes fail */
#define KOVRA_ASN1_E_DECODE_X509_SUBJECTDIRECTORYATTRIBUTES 0x102bf /**< decode x509 SubjectDirectoryAttributes fail */
#define KOVRA_ASN1_E_ENCODE_X509_BASICCONSTRAINTS 0x102c0 /**< encode x509 BasicConstraints fail */
#define KOVRA_ASN1_E_DECODE_X509_BASICCONSTRAINTS 0x102c1 /**< decode x509 BasicConstraints fail */
#define KOVRA_ASN1_E_ENCODE_X509_GENERALSUBTREE 0x102c2 /**< encode x509 GeneralSubtree fail */
#define KOVRA_ASN1_E_DECODE_X509_GENERALSUBTREE 0x102c3 /**< decode x509 GeneralSubtree fail */
#define KOVRA_ASN1_E_ENCODE_X509_GENERALSUBTREES 0x102c4 /**< encode x509 GeneralSubtrees fail */
#define KOVRA_ASN1_E_DECODE_X509_GENERALSUBTREES 0x102c5 /**< decode x509 GeneralSubtrees fail */
#define KOVRA_ASN1_E_ENCODE_X509_NAMEFORMS 0x102c6 /**< encode x509 NameForms fail */
#define KOVRA_ASN1_E_DECODE_X509_NAMEFORMS 0x102c7 /**< decode x509 NameForms fail */
#define KOVRA_ASN1_E_ENCODE_X509_NAMECONSTRAINTS 0x102c8 /**< encode x509 NameConstraints fail */
#define KOVRA_ASN1_E_DECODE_X509_NAMECONSTRAINTS 0x102c9 /**< decode x509 NameConstraints fail */
#define KOVRA_ASN1_E_ENCODE_PKIX_NAMECONSTRAINTS 0x102ca /**< encode pkix NameConstraints fail */
#define KOVRA_ASN1_E_DECODE_PKIX_NAMECONSTRAINTS 0x102cb /**< decode pkix NameConstraints fail */
#define KOVRA_ASN1_E_NOT_PKIX_NAMECONSTRAINTS 0x102cc /**< not pkix NameConstraints */
#define KOVRA_ASN1_E_ENCODE_X509_POLICYCONSTRAINTS 0x102cd /**< encode x509 PolicyConstraints fail */
#define KOVRA_ASN1_E_DECODE_X509_POLICYCONSTRAINTS 0x102ce /**< decode x509 PolicyConstraints fail */
#define KOVRA_ASN1_E_ENCODE_X509_DISTRIBUTIONPOINTNAME 0x102cf /**< encode x509 DistributionPointName fail */
#define KOVRA_ASN1_E_DECODE_X509_DISTRIBUTIONPOINTNAME 0x102d0 /**< decode x509 DistributionPointName fail */
#define KOVRA_ASN1_E_ENCODE_X509_DISTRIBUTIONPOINT 0x102d1 /**< encode x509 DistributionPoint fail */
#define KOVRA_ASN1_E_DECODE_X509_DISTRIBUTIONPOINT 0x102d2 /**< decode x509 DistributionPoint fail */
#define KOVRA_ASN1_E_ENCODE_X509_CRLDISTRIBUTIONPOINTS 0x102d3 /**< encode x509 cRLDistributionPoints fail */
#define KOVRA_ASN1_E_DECODE_X509_CRLDISTRIBUTIONPOINTS 0x102d4 /**< decode x509 cRLDistributionPoints fail */
#define KOVRA_ASN1_E_ENCODE_X509_FRESHESTCRL 0x102d5 /**< encode x509 freshestCRL fail */
#define KOVRA_ASN1_E_DECODE_X509_FRESHESTCRL 0x102d6 /**< decode x509 freshestCRL fail */
#define KOVRA_ASN1_E_ENCODE_PKIX_ACCESSDESCRIPTION 0x102d7 /**< encode pkix AccessDescription fail */
#define KOVRA_ASN1_E_DECODE_PKIX_ACCESSDESCRIPTION 0x102d8 /**< decode pkix AccessDescription fail */
#define KOVRA_ASN1_E_ENCODE_PKIX_AUTHORITYINFOACCESS 0x102d9 /**< encode pkix AuthorityInfoAccess fail */
#define KOVRA_ASN1_E_DECODE_PKIX_AUTHORITYINFOACCESS 0x102da /**< decode pkix AuthorityInfoAccess fail */
#define KOVRA_ASN1_E_ENCODE_PKIX_SUBJECTINFOACCESS 0x102db /**< encode pkix SubjectInfoAccess fail */
#define KOVRA_ASN1_E_DECODE_PKIX_SUBJECTINFOACCESS 0x102dc /**< decode pkix SubjectInfoAccess fail */
#define KOVRA_ASN1_E_ENCODE_PKIX_ISSUINGDISTRIBUTIONPOINT 0x102dd /**< encode pkix IssuingDistributionPoint fail */
#define KOVRA_ASN1_E_DECODE_PKIX_ISSUINGDISTRIBUTIONPOINT 0x102de /**< decode pkix IssuingDistributionPoint fail */
#define KOVRA_ASN1_E_ENCODE_X509_AAISSUINGDISTRIBUTIONPOINT 0x102df /**< encode x509 AAissuingDistributionPoint fail */
#define KOVRA_ASN1_E_DECODE_X509_AAISSUINGDISTRIBUTIONPOINT 0x102e0 /**< decode x509 AAissuingDistributionPoint fail */
#define KOVRA_ASN1_E_BAD_INTEGER_ENUM_ENCODE_VALUE 0x102e1 /**< bad integer/enum encode value */
#define KOVRA_ASN1_E_ENCODE_IDENTIFIER_OCTET 0x102e2 /**< encode identifier octet fail */
#define KOVRA_ASN1_E_DECODE_IDENTIFIER_OCTET 0x102e3 /**< decode identifier octet fail; recorded for an INTEGER that is not in its shortest form */
#define KOVRA_ASN1_E_ENCODE_LENGTH_OCTET 0x102e4 /**< encode length octet fail; recorded when identifier octets cannot be written */
#define KOVRA_ASN1_E_DECODE_LENGTH_OCTET 0x102e5 /**< decode length octet fail; recorded when identifier octets cannot be read */
#define KOVRA_ASN1_E_ENCODE_END_OF_CONTENT_OCTET 0x102e6 /**< encode end of content octet fail; recorded when length octets cannot be written */
#define KOVRA_ASN1_E_DECODE_END_OF_CONTENT_OCTET 0x102e7 /**< decode end of content octet fail; recorded when length octets cannot be read */
#define KOVRA_ASN1_E_CAL_LENGTH 0x102e8 /**< cal length fail; recorded when an end-of-contents marker cannot be written */
#define KOVRA_ASN1_E_OID_FORMAT_ERROR 0x102e9 /**< oid format error; recorded when an end-of-contents marker cannot be read */
#define KOVRA_ASN1_E_UTCTIME_FORMAT_ERROR 0x102ea /**< utctime format error; recorded when a length cannot be computed */
#define KOVRA_ASN1_E_GENTIME_FORMAT_ERROR 0x102eb /**< gentime format error; recorded for content that is no object identifier */
#define KOVRA_ASN1_E_ENCODE_OTHER_NAME_FORMS 0x102ec /**< encode other name forms fail; recorded for text that is no time */
#define KOVRA_ASN1_E_DECODE_OTHER_NAME_FORMS 0x102ed /**< decode other name forms fail */
#define KOVRA_ASN1_E_ENCODE_RELATIVE_OID 0x102ee /**< encode relative oid fail */
#define KOVRA_ASN1_E_DECODE_RELATIVE_OID 0x102ef /**< decode relative oid fail */
#define KOVRA_ASN1_E_EOC_NOT_A_VALID_OBJECT 0x102f0 /**< eoc not a valid object */
#define KOVRA_ASN1_E_ENCODE_KOVRA_OLD_CERT_THUMBPRINTS 0x102f1 /**< encode kovra old cert thumbprints fail */
#define KOVRA_ASN1_E_DECODE_KOVRA_OLD_CERT_THUMBPRINTS 0x102f2 /**< decode kovra old cert thumbprints fail */
#define KOVRA_ASN1_E_ENCODE_KOVRA_CERTSTORE_PRIVKEY_ATTRIBUTE 0x102f3 /**< encode kovra certstore privkey attribute fail */
#define KOVRA_ASN1_E_DECODE_KOVRA_CERTSTORE_PRIVKEY_ATTRIBUTE 0x102f4 /**< decode kovra certstore privkey attribute fail */
#define KOVRA_ASN1_E_ENCODE_KOVRA_CERTSTORE_ATTRIBUTE 0x102f5 /**< encode kovra certstore attribute fail */
#define KOVRA_ASN1_E_DECODE_KOVRA_CERTSTORE_ATTRIBUTE 0x102f6 /**< decode kovra certstore attribute fail */
#define KOVRA_ASN1_E_ENCODE_KOVRA_CERTSTORE_ATTRIBUTE_LIST 0x102f7 /**< encode kovra certstore attribute list fail */
#define KOVRA_ASN1_E_DECODE_KOVRA_CERTSTORE_ATTRIBUTE_LIST 0x102f8 /**< decode kovra certstore attribute list fail */
#define KOVRA_ASN1_E_ENCODE_KOVRA_CERTSTORE_CERT_WITH_ATTRIBUTE_LIST 0x102f9 /**< encode kovra certstore cert with attribute list fail */
#define KOVRA_ASN1_E_DECODE_KOVRA_CERTSTORE_CERT_WITH_ATTRIBUTE_LIST 0x102fa /**< decode kovra certstore cert with attribute list fail */
#define KOVRA_ASN1_E_ENCODE_KOVRA_CERTSTORE 0x102fb /**< encode kovra certstore fail */
#define KOVRA_ASN1_E_DECODE_KOVRA_CERTSTORE 0x102fc /**< decode kovra certstore fail */
#define KOVRA_ASN1_E_ENCODE_KOVRA_CERTSTORE_PRIVKEY_ATTRIBUTES_KEYID 0x102fd /**< encode kovra certstore privkey attribute's keyid fail */
#define KOVRA_ASN1_E_DECODE_KOVRA_CERTSTORE_PRIVKEY_ATTRIBUTES_KEYID 0x102fe /**< decode kovra certstore privkey attribute's keyid fail */
#define KOVRA_ASN1_E_ENCODE_PKCS1_OTHERPRIMEINFO 0x102ff /**< encode pkcs1 otherprimeinfo fail */
#define KOVRA_ASN1_E_DECODE_PKCS1_OTHERPRIMEINFO 0x10300 /**< decode pkcs1 otherprimeinfo fail */
#define KOVRA_ASN1_E_ENCODE_PKCS1_OTHERPRIMEINFOS 0x10301 /**< encode pkcs1 otherprimeinfos fail */
#define KOVRA_ASN1_E_DECODE_PKCS1_OTHERPRIMEINFOS 0x10302 /**< decode pkcs1 otherprimeinfos fail */
#define KOVRA_ASN1_E_BAD_PKCS1_RSA_PRIVATEKEY_VERSION 0x10303 /**< bad pkcs1 rsa privatekey version */
#define KOVRA_ASN1_E_ENCODE_PKCS1_RSA_PRIVATEKEY 0x10304 /**< encode pkcs1 rsa privatekey fail */
#define KOVRA_ASN1_E_DECODE_PKCS1_RSA_PRIVATEKEY 0x10305 /**< decode pkcs1 rsa privatekey fail */
#define KOVRA_ASN1_E_ENCODE_PKCS1_RSAES_OAEP_PARAMS 0x10306 /**< encode pkcs1 rsaes oaep params fail */
#define KOVRA_ASN1_E_DECODE_PKCS1_RSAES_OAEP_PARAMS 0x10307 /**< decode pkcs1 rsaes oaep params fail */
#define KOVRA_ASN1_E_ENCODE_PKCS1_RSASSA_PSS_PARAMS 0x10308 /**< encode pkcs1 rsassa pss params fail */
#define KOVRA_ASN1_E_DECODE_PKCS1_RSASSA_PSS_PARAMS 0x10309 /**< decode pkcs1 rsassa pss params fail */
#define KOVRA_ASN1_E_ENCODE_PKCS3_DH_PARAMETER 0x1030a /**< encode pkcs3 dh parameter fail */
#define KOVRA_ASN1_E_DECODE_PKCS3_DH_PARAMETER 0x1030b /**< decode pkcs3 dh parameter fail */
#define KOVRA_ASN1_E_ENCODE_PKCS8_PRIVATE_KEY_INFO 0x1030c /**< encode pkcs8 private key info fail */
#define KOVRA_ASN1_E_DECODE_PKCS8_PRIVATE_KEY_INFO 0x1030d /**< decode pkcs8 private key info fail */
#define KOVRA_ASN1_E_ENCODE_PKCS8_ENCRYPTED_PRIVATE_KEY_INFO 0x1030e /**< encode pkcs8 encrypted private key info fail */
#define KOVRA_ASN1_E_DECODE_PKCS8_ENCRYPTED_PRIVATE_KEY_INFO 0x1030f /**< decode pkcs8 encrypted private key info fail */
#define KOVRA_ASN1_E_ENCODE_PKCS5_PBKDF2_PARAMS_SALT 0x10310 /**< encode pkcs5 pbkdf2 params salt fail */
#define KOVRA_ASN1_E_DECODE_PKCS5_PBKDF2_PARAMS_SALT 0x10311 /**< decode pkcs5 pbkdf2 params salt fail */
#define KOVRA_ASN1_E_ENCODE_PKCS5_PBKDF2_PARAMS 0x10312 /**< encode pkcs5 pbkdf2 params fail */
#define KOVRA_ASN1_E_DECODE_PKCS5_PBKDF2_PARAMS 0x10313 /**< decode pkcs5 pbkdf2 params fail */
#define KOVRA_ASN1_E_THE_LENGTH_OF_PKCS5_PBE_PARAM_SALT_IS_NOT_8 0x10314 /**< the length of  pkcs5 pbe param salt is not 8 */
#define KOVRA_ASN1_E_ENCODE_PKCS5_PBE_PARAM 0x10315 /**< encode pkcs5 pbe param fail */
#define KOVRA_ASN1_E_DECODE_PKCS5_PBE_PARAM 0x10316 /**< decode pkcs5 pbe param fail */
#define KOVRA_ASN1_E_ENCODE_PKCS5_PBES2_PARAMS 0x10317 /**< encode pkcs5 pbes2 params fail */
#define KOVRA_ASN1_E_DECODE_PKCS5_PBES2_PARAMS 0x10318 /**< decode pkcs5 pbes2 params fail */
#define KOVRA_ASN1_E_ENCODE_PKCS5_PBMAC1_PARAMS 0x10319 /**< encode pkcs5 pbmac1 params fail */
#define KOVRA_ASN1_E_DECODE_PKCS5_PBMAC1_PARAMS 0x1031a /**< decode pkcs5 pbmac1 params fail */
#define KOVRA_ASN1_E_ENCODE_RC2_CBC_PARAM 0x1031b /**< encode rc2 cbc param fail */
#define KOVRA_ASN1_E_DECODE_RC2_CBC_PARAM 0x1031c /**< decode rc2 cbc param fail */
#define KOVRA_ASN1_E_ENCODE_RC5_CBC_PARAM 0x1031d /**< encode rc5 cbc param fail */
#define KOVRA_ASN1_E_DECODE_RC5_CBC_PARAM 0x1031e /**< decode rc5 cbc param fail */
#define KOVRA_ASN1_E_ENCODE_PKCS7_CONTENT_INFO 0x1031f /**< encode pkcs7 content info fail */
#define KOVRA_ASN1_E_DECODE_PKCS7_CONTENT_INFO 0x10320 /**< decode pkcs7 content info fail */
#define KOVRA_ASN1_E_ENCODE_PKCS12_MACDATA 0x10321 /**< encode pkcs12 macdata fail */
#define KOVRA_ASN1_E_DECODE_PKCS12_MACDATA 0x10322 /**< decode pkcs12 macdata fail */
#define KOVRA_ASN1_E_ENCODE_PKCS12_PFX 0x10323 /**< encode pkcs12 pfx fail */
#define KOVRA_ASN1_E_DECODE_PKCS12_PFX 0x10324 /**< decode pkcs12 pfx fail */
#define KOVRA_ASN1_E_ENCODE_PKCS12_AUTHENTICATEDSAFE 0x10325 /**< encode pkcs12 authenticatedsafe fail */
#define KOVRA_ASN1_E_DECODE_PKCS12_AUTHENTICATEDSAFE 0x10326 /**< decode pkcs12 authenticatedsafe fail */
#define KOVRA_ASN1_E_ENCODE_PKCS12_SAFEBAG 0x10327 /**< encode pkcs12 safebag fail */
#define KOVRA_ASN1_E_DECODE_PKCS12_SAFEBAG 0x10328 /**< decode pkcs12 safebag fail */
#define KOVRA_ASN1_E_ENCODE_PKCS12_SAFEBAGS 0x10329 /**< encode pkcs12 safebags fail */
#define KOVRA_ASN1_E_DECODE_PKCS12_SAFEBAGS 0x1032a /**< decode pkcs12 safebags fail */
#define KOVRA_ASN1_E_ENCODE_PKCS12_CERTBAG 0x1032b /**< encode pkcs12 certbag fail */
#define KOVRA_ASN1_E_DECODE_PKCS12_CERTBAG 0x1032c /**< decode pkcs12 certbag fail */
#define KOVRA_ASN1_E_ENCODE_PKCS12_CRLBAG 0x1032d /**< encode pkcs12 crlbag fail */
#define KOVRA_ASN1_E_DECODE_PKCS12_CRLBAG 0x1032e /**< decode pkcs12 crlbag fail */
#define KOVRA_ASN1_E_ENCODE_PKCS12_SECRETBAG 0x1032f /**< encode pkcs12 secretbag fail */
#define KOVRA_ASN1_E_DECODE_PKCS12_SECRETBAG 0x10330 /**< decode pkcs12 secretbag fail */
#define KOVRA_ASN1_E_ENCODE_PKCS12_PBE_PARAMS 0x10331 /**< encode pkcs12 pbe params fail */
#define KOVRA_ASN1_E_DECODE_PKCS12_PBE_PARAMS 0x10332 /**< decode pkcs12 pbe params fail */
#define KOVRA_ASN1_E_ENCODE_PKCS7_DIGESTEDDATA 0x10333 /**< encode pkcs7 digesteddata fail */
#define KOVRA_ASN1_E_DECODE_PKCS7_DIGESTEDDATA 0x10334 /**< decode pkcs7 digesteddata fail */
#define KOVRA_ASN1_E_ENCODE_PKCS7_ISSUER_AND_SN 0x10335 /**< encode pkcs7 issuer and sn fail */
#define KOVRA_ASN1_E_DECODE_PKCS7_ISSUER_AND_SN 0x10336 /**< decode pkcs7 issuer and sn fail */
#define KOVRA_ASN1_E_ENCODE_CMS_SIGNERID 0x10337 /**< encode cms signerid fail */
#define KOVRA_ASN1_E_DECODE_CMS_SIGNERID 0x10338 /**< decode cms signerid fail */
#define KOVRA_ASN1_E_ENCODE_CMS_SIGNERINFO 0x10339 /**< encode cms signerinfo fail */
#define KOVRA_ASN1_E_DECODE_CMS_SIGNERINFO 0x1033a /**< decode cms signerinfo fail */
#define KOVRA_ASN1_E_ENCODE_CMS_SIGNERINFOS 0x1033b /**< encode cms signerinfos fail */
#define KOVRA_ASN1_E_DECODE_CMS_SIGNERINFOS 0x1033c /**< decode cms signerinfos fail */
#define KOVRA_ASN1_E_ENCODE_CMS_ALGORITHM_IDENTIFIER 0x1033d /**< encode cms algorithm identifier fail */
#define KOVRA_ASN1_E_DECODE_CMS_ALGORITHM_IDENTIFIER 0x1033e /**< decode cms algorithm identifier fail */
#define KOVRA_ASN1_E_ENCODE_CMS_OTHERCERTIFICATEFORMAT 0x1033f /**< encode cms OtherCertificateFormat fail */
#define KOVRA_ASN1_E_DECODE_CMS_OTHERCERTIFICATEFORMAT 0x10340 /**< decode cms OtherCertificateFormat failencode cms OtherRevocationInfoFormat fail */
#define KOVRA_ASN1_E_DECODE_CMS_OTHERREVOCATIONINFOFORMAT 0x10341 /**< decode cms OtherRevocationInfoFormat failencode pkcs6 cert fail */
#define KOVRA_ASN1_E_DECODE_PKCS6_CERT 0x10342 /**< decode pkcs6 cert fail */
#define KOVRA_ASN1_E_ENCODE_X509_V1_ATTRIBUTE_CERT 0x10343 /**< encode x509 v1 attribute cert fail */
#define KOVRA_ASN1_E_DECODE_X509_V1_ATTRIBUTE_CERT 0x10344 /**< decode x509 v1 attribute cert fail */
#define KOVRA_ASN1_E_ENCODE_X509_V2_ATTRIBUTE_CERT 0x10345 /**< encode x509 v2 attribute cert fail */
#define KOVRA_ASN1_E_DECODE_X509_V2_ATTRIBUTE_CERT 0x10346 /**< decode x509 v2 attribute cert fail */
#define KOVRA_ASN1_E_ENCODE_CMS_CERTCHOICES 0x10347 /**< encode cms certchoices fail */
#define KOVRA_ASN1_E_DECODE_CMS_CERTCHOICES 0x10348 /**< decode cms certchoices fail */
#define KOVRA_ASN1_E_ENCODE_CMS_REVINFOCHOICE 0x10349 /**< encode cms revinfochoice fail */
#define KOVRA_ASN1_E_DECODE_CMS_REVINFOCHOICE 0x1034a /**< decode cms revinfochoice fail */
#define KOVRA_ASN1_E_ENCODE_CMS_CERTSET 0x1034b /**< encode cms certset fail */
#define KOVRA_ASN1_E_DECODE_CMS_CERTSET 0x1034c /**< decode cms certset fail */
#define KOVRA_ASN1_E_ENCODE_CMS_REVINFOS 0x1034d /**< encode cms revinfos fail */
#define KOVRA_ASN1_E_DECODE_CMS_REVINFOS 0x1034e /**< decode cms revinfos fail */
#define KOVRA_ASN1_E_ENCODE_PKCS7_SIGNEDDATA 0x1034f /**< encode pkcs7 signeddata fail */
#define KOVRA_ASN1_E_DECODE_PKCS7_SIGNEDDATA 0x10350 /**< decode pkcs7 signeddata fail */
#define KOVRA_ASN1_E_ENCODE_CMS_SIGNEDDATA 0x10351 /**< encode cms signeddata fail */
#define KOVRA_ASN1_E_DECODE_CMS_SIGNEDDATA 0x10352 /**< decode cms signeddata fail */
#define KOVRA_ASN1_E_NOT_CMS_SIGNEDDATA 0x10353 /**< not cms signeddata */
#define KOVRA_ASN1_E_ENCODE_CMS_ENCAPSULATED_CONTENT_INFO 0x10354 /**< encode cms encapsulated content info fail */
#define KOVRA_ASN1_E_DECODE_CMS_ENCAPSULATED_CONTENT_INFO 0x10355 /**< decode cms encapsulated content info fail */
#define KOVRA_ASN1_E_ENCODE_CMS_ENCRYPTED_CONTENT_INFO 0x10356 /**< encode cms encrypted content info fail */
#define KOVRA_ASN1_E_DECODE_CMS_ENCRYPTED_CONTENT_INFO 0x10357 /**< decode cms encrypted content info fail */
#define KOVRA_ASN1_E_ENCODE_CMS_ENCRYPTED_DATA_INFO 0x10358 /**< encode cms encrypted data info fail */
#define KOVRA_ASN1_E_DECODE_CMS_ENCRYPTED_DATA_INFO 0x10359 /**< decode cms encrypted data info fail */
#define KOVRA_ASN1_E_ENCODE_CMS_ORIGINATORINFO_INFO 0x1035a /**< encode cms originatorinfo info fail */
#define KOVRA_ASN1_E_DECODE_CMS_ORIGINATORINFO_INFO 0x1035b /**< decode cms originatorinfo info fail */
#define KOVRA_ASN1_E_ENCODE_CMS_RECIPIENTIDENTIFIER 0x1035c /**< encode cms recipientidentifier  fail */
#define KOVRA_ASN1_E_DECODE_CMS_RECIPIENTIDENTIFIER 0x1035d /**< decode cms recipientidentifier fail */
#define KOVRA_ASN1_E_ENCODE_CMS_KEYTRANS_RECIPIENT_INFO 0x1035e /**< encode cms keytrans recipient info fail */
#define KOVRA_ASN1_E_DECODE_CMS_KEYTRANS_RECIPIENT_INFO 0x1035f /**< decode cms keytrans recipient info fail */
#define KOVRA_ASN1_E_ENCODE_CMS_ORIGINATOR_IDENTIFIER_OR_KEY 0x10360 /**< encode cms originator identifier or key fail */
#define KOVRA_ASN1_E_DECODE_CMS_ORIGINATOR_IDENTIFIER_OR_KEY 0x10361 /**< decode cms originator identifier or key fail */
#define KOVRA_ASN1_E_ENCODE_CMS_OTHER_KEY_ATTRIBUTE 0x10362 /**< encode cms other key attribute fail */
#define KOVRA_ASN1_E_DECODE_CMS_OTHER_KEY_ATTRIBUTE 0x10363 /**< decode cms other key attribute fail */
#define KOVRA_ASN1_E_ENCODE_CMS_RECIPIENT_KEY_IDENTIFIER 0x10364 /**< encode cms recipient key identifier fail */
#define KOVRA_ASN1_E_DECODE_CMS_RECIPIENT_KEY_IDENTIFIER 0x10365 /**< decode cms recipient key identifier fail */
#define KOVRA_ASN1_E_ENCODE_CMS_KEYAGREEMENT_RECIPIENT_IDENTIFIER 0x10366 /**< encode cms keyagreement recipient identifier fail */
#define KOVRA_ASN1_E_DECODE_CMS_KEYAGREEMENT_RECIPIENT_IDENTIFIER 0x10367 /**< decode cms keyagreement recipient identifier fail */
#define KOVRA_ASN1_E_ENCODE_CMS_RECIPIENT_ENCRYPTEDKEY 0x10368 /**< encode cms recipient encryptedkey fail */
#define KOVRA_ASN1_E_DECODE_CMS_RECIPIENT_ENCRYPTEDKEY 0x10369 /**< decode cms recipient encryptedkey fail */
#define KOVRA_ASN1_E_ENCODE_CMS_RECIPIENT_ENCRYPTEDKEYS 0x1036a /**< encode cms recipient encryptedkeys fail */
#define KOVRA_ASN1_E_DECODE_CMS_RECIPIENT_ENCRYPTEDKEYS 0x1036b /**< decode cms recipient encryptedkeys fail */
#define KOVRA_ASN1_E_ENCODE_CMS_KEYAGREEMENT_RECIPIENT_INFO 0x1036c /**< encode cms keyagreement recipient info fail */
#define KOVRA_ASN1_E_DECODE_CMS_KEYAGREEMENT_RECIPIENT_INFO 0x1036d /**< decode cms keyagreement recipient info fail */
#define KOVRA_ASN1_E_ENCODE_CMS_KEK_IDENTIFIER 0x1036e /**< encode cms kek identifier fail */
#define KOVRA_ASN1_E_DECODE_CMS_KEK_IDENTIFIER 0x1036f /**< decode cms kek identifier fail */
#define KOVRA_ASN1_E_ENCODE_CMS_KEK_RECIPIENT_INFO 0x10370 /**< encode cms kek recipient info fail */
#define KOVRA_ASN1_E_DECODE_CMS_KEK_RECIPIENT_INFO 0x10371 /**< decode cms kek recipient info fail */
#define KOVRA_ASN1_E_ENCODE_CMS_PASSWORD_RECIPIENT_INFO 0x10372 /**< encode cms password recipient info fail */
#define KOVRA_ASN1_E_DECODE_CMS_PASSWORD_RECIPIENT_INFO 0x10373 /**< decode cms password recipient info fail */
#define KOVRA_ASN1_E_ENCODE_CMS_OTHER_RECIPIENT_INFO 0x10374 /**< encode cms other recipient info fail */
#define KOVRA_ASN1_E_DECODE_CMS_OTHER_RECIPIENT_INFO 0x10375 /**< decode cms other recipient info fail */
#define KOVRA_ASN1_E_ENCODE_CMS_RECIPIENT_INFO 0x10376 /**< encode cms recipient info fail */
#define KOVRA_ASN1_E_DECODE_CMS_RECIPIENT_INFO 0x10377 /**< decode cms recipient info fail */
#define KOVRA_ASN1_E_ENCODE_CMS_RECIPIENT_INFOS 0x10378 /**< encode cms recipient infos fail */
#define KOVRA_ASN1_E_DECODE_CMS_RECIPIENT_INFOS 0x10379 /**< decode cms recipient infos fail */
#define KOVRA_ASN1_E_ENCODE_CMS_ENVELOPEDDATA 0x1037a /**< encode cms envelopeddata fail */
#define KOVRA_ASN1_E_DECODE_CMS_ENVELOPEDDATA 0x1037b /**< decode cms envelopeddata fail */
#define KOVRA_ASN1_E_ENCODE_CMS_AUTHENTICATED_DATA 0x1037c /**< encode cms authenticated data fail */
#define KOVRA_ASN1_E_DECODE_CMS_AUTHENTICATED_DATA 0x1037d /**< decode cms authenticated data fail */
#define KOVRA_ASN1_E_ENCODE_DIFFIE_HELLMAN_KEY_SPECIFIC_INFO 0x1037e /**< encode Diffie-Hellman key specific info fail */
#define KOVRA_ASN1_E_DECODE_DIFFIE_HELLMAN_KEY_SPECIFIC_INFO 0x1037f /**< decode Diffie-Hellman key specific info fail */
#define KOVRA_ASN1_E_ENCODE_DIFFIE_HELLMAN_OTHERINFO 0x10380 /**< encode Diffie-Hellman otherinfo fail */
#define KOVRA_ASN1_E_DECODE_DIFFIE_HELLMAN_OTHERINFO 0x10381 /**< decode Diffie-Hellman otherinfo fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_CERTID 0x10382 /**< encode OCSP CertID fail */
#define KOVRA_ASN1_E_DECODE_OCSP_CERTID 0x10383 /**< decode OCSP CertID fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_REQUEST 0x10384 /**< encode OCSP Request fail */
#define KOVRA_ASN1_E_DECODE_OCSP_REQUEST 0x10385 /**< decode OCSP Request fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_REQUESTLIST 0x10386 /**< encode OCSP RequestList fail */
#define KOVRA_ASN1_E_DECODE_OCSP_REQUESTLIST 0x10387 /**< decode OCSP RequestList fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_TBSREQUEST 0x10388 /**< encode OCSP TBSRequest fail */
#define KOVRA_ASN1_E_DECODE_OCSP_TBSREQUEST 0x10389 /**< decode OCSP TBSRequest fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_SIGNATURE_CERTS 0x1038a /**< encode OCSP Signature Certs fail */
#define KOVRA_ASN1_E_DECODE_OCSP_SIGNATURE_CERTS 0x1038b /**< decode OCSP Signature Certs fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_SIGNATURE 0x1038c /**< encode OCSP Signature fail */
#define KOVRA_ASN1_E_DECODE_OCSP_SIGNATURE 0x1038d /**< decode OCSP Signature fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_OCSPREQUEST 0x1038e /**< encode OCSP OCSPRequest fail */
#define KOVRA_ASN1_E_DECODE_OCSP_OCSPREQUEST 0x1038f /**< decode OCSP OCSPRequest fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_RESPONSEBYTES 0x10390 /**< encode OCSP ResponseBytes fail */
#define KOVRA_ASN1_E_DECODE_OCSP_RESPONSEBYTES 0x10391 /**< decode OCSP ResponseBytes fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_OCSPRESPONSE 0x10392 /**< encode OCSP OCSPResponse fail */
#define KOVRA_ASN1_E_DECODE_OCSP_OCSPRESPONSE 0x10393 /**< decode OCSP OCSPResponse fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_RESPONDERID 0x10394 /**< encode OCSP ResponderID fail */
#define KOVRA_ASN1_E_DECODE_OCSP_RESPONDERID 0x10395 /**< decode OCSP ResponderID fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_REVOKEDINFO 0x10396 /**< encode OCSP RevokedInfo fail */
#define KOVRA_ASN1_E_DECODE_OCSP_REVOKEDINFO 0x10397 /**< decode OCSP RevokedInfo fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_CERTSTATUS 0x10398 /**< encode OCSP CertStatus fail */
#define KOVRA_ASN1_E_DECODE_OCSP_CERTSTATUS 0x10399 /**< decode OCSP CertStatus fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_SINGLERESPONSE 0x1039a /**< encode OCSP SingleResponse fail */
#define KOVRA_ASN1_E_DECODE_OCSP_SINGLERESPONSE 0x1039b /**< decode OCSP SingleResponse fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_RESPONSES 0x1039c /**< encode OCSP Responses fail */
#define KOVRA_ASN1_E_DECODE_OCSP_RESPONSES 0x1039d /**< decode OCSP Responses fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_RESPONSEDATA 0x1039e /**< encode OCSP ResponseData fail */
#define KOVRA_ASN1_E_DECODE_OCSP_RESPONSEDATA 0x1039f /**< decode OCSP ResponseData fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_BASICOCSPRESPONSE 0x103a0 /**< encode OCSP BasicOCSPResponse fail */
#define KOVRA_ASN1_E_DECODE_OCSP_BASICOCSPRESPONSE 0x103a1 /**< decode OCSP BasicOCSPResponse fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_CRLID 0x103a2 /**< encode OCSP CrlID fail */
#define KOVRA_ASN1_E_DECODE_OCSP_CRLID 0x103a3 /**< decode OCSP CrlID fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_SERVICELOCATOR 0x103a4 /**< encode OCSP ServiceLocator fail */
#define KOVRA_ASN1_E_DECODE_OCSP_SERVICELOCATOR 0x103a5 /**< decode OCSP ServiceLocator fail */
#define KOVRA_ASN1_E_ENCODE_OCSP_PREFERREDSIGNATUREALGORITHMS 0x103a6 /**< encode OCSP PreferredSignatureAlgorithms fail */
#define KOVRA_ASN1_E_DECODE_OCSP_PREFERREDSIGNATUREALGORITHMS 0x103a7 /**< decode OCSP PreferredSignatureAlgorithms fail */
#define KOVRA_ASN1_E_ENCODE_TSP_MESSAGEIMPRINT 0x103a8 /**< encode TSP MessageImprint fail */
#define KOVRA_ASN1_E_DECODE_TSP_MESSAGEIMPRINT 0x103a9 /**< decode TSP MessageImprint fail */
#define KOVRA_ASN1_E_ENCODE_TSP_TIMESTAMPREQ 0x103aa /**< encode TSP TimeStampReq fail */
#define KOVRA_ASN1_E_DECODE_TSP_TIMESTAMPREQ 0x103ab /**< decode TSP TimeStampReq fail */
#define KOVRA_ASN1_E_ENCODE_PKIFREETEXT 0x103ac /**< encode PKIFreeText fail */
#define KOVRA_ASN1_E_DECODE_PKIFREETEXT 0x103ad /**< decode PKIFreeText fail */
#define KOVRA_ASN1_E_ENCODE_TSP_PKISTATUSINFO 0x103ae /**< encode TSP PKIStatusInfo fail */
#define KOVRA_ASN1_E_DECODE_TSP_PKISTATUSINFO 0x103af /**< decode TSP PKIStatusInfo fail */
#define KOVRA_ASN1_E_ENCODE_TSP_TIMESTAMPRESP 0x103b0 /**< encode TSP TimeStampResp fail */
#define KOVRA_ASN1_E_DECODE_TSP_TIMESTAMPRESP 0x103b1 /**< decode TSP TimeStampResp fail */
#define KOVRA_ASN1_E_ENCODE_TSP_ACCURACY 0x103b2 /**< encode TSP Accuracy fail */
#define KOVRA_ASN1_E_DECODE_TSP_ACCURACY 0x103b3 /**< decode TSP Accuracy fail */
#define KOVRA_ASN1_E_ENCODE_TSP_TSTINFO 0x103b4 /**< encode TSP TSTInfo fail */
#define KOVRA_ASN1_E_DECODE_TSP_TSTINFO 0x103b5 /**< decode TSP TSTInfo fail */
#define KOVRA_ASN1_E_ENCODE_ESS_ISSUERSERIAL 0x103b6 /**< encode ESS IssuerSerial fail */
#define KOVRA_ASN1_E_DECODE_ESS_ISSUERSERIAL 0x103b7 /**< decode ESS IssuerSerial fail */
#define KOVRA_ASN1_E_ENCODE_ESSCERTID 0x103b8 /**< encode ESSCertID fail */
#define KOVRA_ASN1_E_DECODE_ESSCERTID 0x103b9 /**< decode ESSCertID fail */
#define KOVRA_ASN1_E_ENCODE_ESSCERTIDV2 0x103ba /**< encode ESSCertIDV2 fail */
#define KOVRA_ASN1_E_DECODE_ESSCERTIDV2 0x103bb /**< decode ESSCertIDV2 fail */
#define KOVRA_ASN1_E_ENCODE_ESSCERTIDS 0x103bc /**< encode ESSCertIDs fail */
#define KOVRA_ASN1_E_DECODE_ESSCERTIDS 0x103bd /**< decode ESSCertIDs fail */
#define KOVRA_ASN1_E_ENCODE_ESSCERTIDV2S 0x103be /**< encode ESSCertIDV2s fail */
#define KOVRA_ASN1_E_DECODE_ESSCERTIDV2S 0x103bf /**< decode ESSCertIDV2s fail */
#define KOVRA_ASN1_E_ENCODE_SEQUENCE_OF_POLICYINFORMATION 0x103c0 /**< encode SEQUENCE OF PolicyInformation fail */
#define KOVRA_ASN1_E_DECODE_SEQUENCE_OF_POLICYINFORMATION 0x103c1 /**< decode SEQUENCE OF PolicyInformation fail */
#define KOVRA_ASN1_E_ENCODE_ESSSIGNINGCERTIFICATE 0x103c2 /**< encode ESSSigningCertificate fail */
#define KOVRA_ASN1_E_DECODE_ESSSIGNINGCERTIFICATE 0x103c3 /**< decode ESSSigningCertificate fail */
#define KOVRA_ASN1_E_ENCODE_ESSSIGNINGCERTIFICATEV2 0x103c4 /**< encode ESSSigningCertificateV2 fail */
#define KOVRA_ASN1_E_DECODE_ESSSIGNINGCERTIFICATEV2 0x103c5 /**< decode ESSSigningCertificateV2 fail */
#define KOVRA_ASN1_E_ENCODE_ECPKPARAMETERS 0x103c6 /**< encode EcpkParameters fail */
#define KOVRA_ASN1_E_DECODE_ECPKPARAMETERS 0x103c7 /**< decode EcpkParameters fail */
#define KOVRA_ASN1_E_ENCODE_ECPRIVATEKEY 0x103c8 /**< encode ECPrivateKey fail */
#define KOVRA_ASN1_E_DECODE_ECPRIVATEKEY 0x103c9 /**< decode ECPrivateKey fail */
#define KOVRA_ASN1_E_ENCODE_SM2CIPHER 0x103ca /**< encode SM2Cipher fail */
#define KOVRA_ASN1_E_DECODE_SM2CIPHER 0x103cb /**< decode SM2Cipher fail */
#define KOVRA_ASN1_E_ENCODE_SM2ENVELOPEDKEY 0x103cc /**< encode SM2EnvelopedKey fail */
#define KOVRA_ASN1_E_DECODE_SM2ENVELOPEDKEY 0x103cd /**< decode SM2EnvelopedKey fail */
#define KOVRA_ASN1_E_ENCODE_RSAENVELOPEDKEYPAIR 0x103ce /**< encode RSAEnvelopedKeyPair fail */
#define KOVRA_ASN1_E_DECODE_RSAENVELOPEDKEYPAIR 0x103cf /**< decode RSAEnvelopedKeyPair fail */
#define KOVRA_ASN1_E_ENCODE_INNERENVELOPEDKEYPAIR 0x103d0 /**< encode InnerEnvelopedKeyPair fail */
#define KOVRA_ASN1_E_DECODE_INNERENVELOPEDKEYPAIR 0x103d1 /**< decode InnerEnvelopedKeyPair fail */
#define KOVRA_ASN1_E_ENCODE_ENVELOPEDKEYPAIR 0x103d2 /**< encode EnvelopedKeyPair fail */
#define KOVRA_ASN1_E_DECODE_ENVELOPEDKEYPAIR 0x103d3 /**< decode EnvelopedKeyPair fail */
/* clang-format on */

/** @} */

#endif
