// Keys: RSA, DSA, elliptic curves, PKCS #8, SM2 and enveloped pairs. What is private is shown by its size.

#include "inner.hpp"
#include "show_fields.hpp"
#include "show_message.hpp"

namespace kovra::tool {

namespace {

constexpr Harmless private_label = "private key";

const Field rsa_public[] = {
    {"modulus", kovra_pkcs1rsapublickey_getmodulus, show_modulus},
    {"exponent", kovra_pkcs1rsapublickey_getpublicexponent, show_integer},
};

const Field rsa_private[] = {
    {"version", kovra_pkcs1rsaprivatekey_getversion, show_integer},
    {"modulus", kovra_pkcs1rsaprivatekey_getmodulus, show_modulus},
    {"exponent", kovra_pkcs1rsaprivatekey_getpublicexponent, show_integer},
    {"private exponent", kovra_pkcs1rsaprivatekey_getprivateexponent, show_secret_number},
    {"prime 1", kovra_pkcs1rsaprivatekey_getprime1, show_secret_number},
    {"prime 2", kovra_pkcs1rsaprivatekey_getprime2, show_secret_number},
    {"exponent 1", kovra_pkcs1rsaprivatekey_getexponent1, show_secret_number},
    {"exponent 2", kovra_pkcs1rsaprivatekey_getexponent2, show_secret_number},
    {"coefficient", kovra_pkcs1rsaprivatekey_getcoefficient, show_secret_number},
    {"other primes", kovra_pkcs1rsaprivatekey_getotherprimeinfos, show_counted<KOVRA_ASN1_TYPE_OTHER_PRIME_INFOS>},
};

const Field other_prime[] = {
    {"prime", kovra_pkcs1otherprimeinfo_getprime, show_secret_number},
    {"exponent", kovra_pkcs1otherprimeinfo_getexponent, show_secret_number},
    {"coefficient", kovra_pkcs1otherprimeinfo_getcoefficient, show_secret_number},
};

constexpr Element dsa_private[] = {
    {"version", KOVRA_ASN1_TYPE_INTEGER, show_integer},    {"p", KOVRA_ASN1_TYPE_INTEGER, show_integer},
    {"q", KOVRA_ASN1_TYPE_INTEGER, show_integer},          {"g", KOVRA_ASN1_TYPE_INTEGER, show_integer},
    {"public key", KOVRA_ASN1_TYPE_INTEGER, show_integer}, {private_label, KOVRA_ASN1_TYPE_INTEGER, show_secret_number},
};

const Field ec_private[] = {
    {"version", kovra_ecprivatekey_getversion, show_integer},
    {private_label, kovra_ecprivatekey_getprivkey, show_secret_octets},
    {"", kovra_ecprivatekey_getparam, show_here<KOVRA_ASN1_TYPE_ECPK_PARAMETERS>},
    {"public key", kovra_ecprivatekey_getpubkey, show_bit_hex},
};

void show_key_info(Printer &printer, kovra_asn1_value *info) {
    kovra_asn1_value *algorithm = kovra_pkcs8privkeyinfo_getprivatekeyalgorithm(info);
    const kovra_asn1_value *oid = kovra_x509algoid_getalgo(algorithm);
    const std::string octets = octets_of(kovra_pkcs8privkeyinfo_getprivatekey(info));
    show_integer(printer, "version", kovra_pkcs8privkeyinfo_getversion(info));
    show_algorithm(printer, "algorithm", algorithm);
    if (const OidRow *row = find_private_key(text_of_oid(oid)); row == nullptr) {
        printer.secret(private_label, octets);
    } else if (Value key(row->type); !read_octets(octets, row->type, key)) {
        printer.malformed_secret(name_of_oid(oid), row->type, octets);
    } else if (row->show != nullptr) {
        row->show(printer, key.get());
    } else {
        printer.heading(private_label);
        const Printer::Deeper deeper(printer);
        show_value(printer, row->type, key.get());
    }
    if (kovra_asn1_value *attributes = kovra_pkcs8privkeyinfo_getattributes(info); attributes != nullptr)
        show_counted<KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTES>(printer, "attributes", attributes);
    show_bit_hex(printer, "public key", kovra_pkcs8privkeyinfo_getpublickey(info));
}

const Field encrypted_key[] = {
    {"encryption", kovra_pkcs8encryptedprivkeyinfo_getencryptionalgorithm, show_algorithm},
    {"encrypted key", kovra_pkcs8encryptedprivkeyinfo_getencrypteddata, show_hex},
};

const Field digest_info[] = {
    {"digest algorithm", kovra_pkcs1digestinfo_getdigestalgorithm, show_algorithm},
    {"digest", kovra_pkcs1digestinfo_getdigest, show_hex},
};

const Field dsa_signature[] = {
    {"r", kovra_dsssigvalue_getr, show_integer},
    {"s", kovra_dsssigvalue_gets, show_integer},
};

const Field ecdsa_signature[] = {
    {"r", kovra_ecdsasigvalue_getr, show_integer},
    {"s", kovra_ecdsasigvalue_gets, show_integer},
};

const Field sm2_cipher[] = {
    {"x", kovra_sm2cipher_getx, show_integer},
    {"y", kovra_sm2cipher_gety, show_integer},
    {"hash", kovra_sm2cipher_gethash, show_hex},
    {"ciphertext", kovra_sm2cipher_getciphertext, show_hex},
};

const Field sm2_pair[] = {
    {"encryption", kovra_sm2envelopedkey_getsymalgid, show_algorithm},
    {"encrypted symmetric key", kovra_sm2envelopedkey_getsymencryptedkey, show_below<KOVRA_ASN1_TYPE_SM2_CIPHER>},
    {"public key", kovra_sm2envelopedkey_getsm2publickey, show_bit_hex},
    {"encrypted private key", kovra_sm2envelopedkey_getsm2encryptedprivatekey, show_bit_hex},
};

const Field rsa_pair[] = {
    {"encryption", kovra_rsaenvelopedkeypair_getsymalgid, show_algorithm},
    {"encrypted symmetric key", kovra_rsaenvelopedkeypair_getsymencryptedkey, show_hex},
    {"public key", kovra_rsaenvelopedkeypair_getrsapublickey, show_below<KOVRA_ASN1_TYPE_RSA_PUBLIC_KEY>},
    {"encrypted private key", kovra_rsaenvelopedkeypair_getrsaencryptedprivatekey, show_hex},
};

const Field inner_pair[] = {
    {"RSA key pair", kovra_innerenvelopedkeypair_getrsa, show_below<KOVRA_ASN1_TYPE_RSA_ENVELOPED_KEY_PAIR>},
    {"SM2 key pair", kovra_innerenvelopedkeypair_getsm2, show_below<KOVRA_ASN1_TYPE_SM2_ENVELOPED_KEY>},
};

const Field pair[] = {
    {"signing key", kovra_envelopedkeypair_getsignpubkey, show_below<KOVRA_ASN1_TYPE_SUBJECT_PUBLIC_KEY_INFO>},
    {"", kovra_envelopedkeypair_getenvkeypair, show_here<KOVRA_ASN1_TYPE_INNER_ENVELOPED_KEY_PAIR>},
};

// A DSA key as it stands outside of PKCS #8: six INTEGERs. False, with nothing printed, when it is something else.
bool show_dsa_key(Printer &printer, kovra_asn1_value *list) {
    size_t numbers = 0;
    size_t elements = 0;
    for_each(list, [&](kovra_asn1_value *any) {
        Value number(KOVRA_ASN1_TYPE_INTEGER);
        numbers += read_any(any, KOVRA_ASN1_TYPE_INTEGER, number) ? 1 : 0;
        ++elements;
    });
    if (elements != std::size(dsa_private) || numbers != elements)
        return false;
    show_items<dsa_private>(printer, list);
    return true;
}

// Elements of no known meaning, but for a DSA key.
void show_elements(Printer &printer, kovra_asn1_value *list) {
    if (!show_dsa_key(printer, list))
        printer.tree(encoding_of(KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, list));
}

constexpr TypeRow rows[] = {
    {KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, show_elements},
    {KOVRA_ASN1_TYPE_RSA_PUBLIC_KEY, show_fields<rsa_public>},
    {KOVRA_ASN1_TYPE_RSA_PRIVATE_KEY, show_fields<rsa_private>},
    {KOVRA_ASN1_TYPE_OTHER_PRIME_INFO, show_fields<other_prime>},
    {KOVRA_ASN1_TYPE_EC_PRIVATE_KEY, show_fields<ec_private>},
    {KOVRA_ASN1_TYPE_PRIVATE_KEY_INFO, show_key_info},
    {KOVRA_ASN1_TYPE_ENCRYPTED_PRIVATE_KEY_INFO, show_fields<encrypted_key>},
    {KOVRA_ASN1_TYPE_DIGEST_INFO, show_fields<digest_info>},
    {KOVRA_ASN1_TYPE_DSS_SIG_VALUE, show_fields<dsa_signature>},
    {KOVRA_ASN1_TYPE_ECDSA_SIG_VALUE, show_fields<ecdsa_signature>},
    {KOVRA_ASN1_TYPE_SM2_CIPHER, show_fields<sm2_cipher>},
    {KOVRA_ASN1_TYPE_SM2_ENVELOPED_KEY, show_fields<sm2_pair>},
    {KOVRA_ASN1_TYPE_RSA_ENVELOPED_KEY_PAIR, show_fields<rsa_pair>},
    {KOVRA_ASN1_TYPE_INNER_ENVELOPED_KEY_PAIR, show_fields<inner_pair>},
    {KOVRA_ASN1_TYPE_ENVELOPED_KEY_PAIR, show_fields<pair>},
};

} // namespace

void show_private_number(Printer &printer, kovra_asn1_value *integer) {
    show_secret_number(printer, private_label, integer);
}

void show_private_octets(Printer &printer, kovra_asn1_value *octet_string) {
    show_secret_octets(printer, private_label, octet_string);
}

std::span<const TypeRow> private_key_structures() {
    return rows;
}

} // namespace kovra::tool
