// Parameters of algorithms: what stands with which object identifier, and how it is shown.

#include <algorithm>
#include <iterator>

#include "show_fields.hpp"

namespace kovra::tool {

namespace {

const Field dsa[] = {
    {"p", kovra_dssparms_getp, show_integer},
    {"q", kovra_dssparms_getq, show_integer},
    {"g", kovra_dssparms_getg, show_integer},
};

const Field dh[] = {
    {"prime", kovra_pkcs3dhparam_getprime, show_integer},
    {"base", kovra_pkcs3dhparam_getbase, show_integer},
    {"private value length", kovra_pkcs3dhparam_getprivatevaluelength, show_integer},
};

// DomainParameters (RFC 3279, 2.3.3); what validates them follows.
constexpr Element dh_domain[] = {
    {"p", KOVRA_ASN1_TYPE_INTEGER, show_integer},
    {"g", KOVRA_ASN1_TYPE_INTEGER, show_integer},
    {"q", KOVRA_ASN1_TYPE_INTEGER, show_integer},
};

constexpr Element curve_items[] = {
    {"a", KOVRA_ASN1_TYPE_OCTET_STRING, show_hex},
    {"b", KOVRA_ASN1_TYPE_OCTET_STRING, show_hex},
    {"seed", KOVRA_ASN1_TYPE_BIT_STRING, show_bit_hex},
};

// FieldID: the identifier of the kind of field, and for one of a prime that prime.
constexpr Element field_items[] = {
    {"kind", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER, show_named_oid},
    {"prime", KOVRA_ASN1_TYPE_INTEGER, show_integer},
};

// SpecifiedECDomain (RFC 3279, 2.3.5).
constexpr Element domain_items[] = {
    {"version", KOVRA_ASN1_TYPE_INTEGER, show_integer},
    {"field", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, show_items<field_items>},
    {"coefficients", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, show_items<curve_items>},
    {"base point", KOVRA_ASN1_TYPE_OCTET_STRING, show_hex},
    {"order", KOVRA_ASN1_TYPE_INTEGER, show_integer},
    {"cofactor", KOVRA_ASN1_TYPE_INTEGER, show_integer},
};

void show_curve(Printer &printer, kovra_asn1_value *parameters) {
    constexpr int32_t written_out = 1;
    constexpr int32_t named = 2;
    const int32_t kind = kovra_ecpkparameters_gettype(parameters);
    if (kind == named)
        return show_named_oid(printer, "curve", kovra_ecpkparameters_namedcurve(parameters));
    Value list(KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY);
    const std::string octets = encoding_of(KOVRA_ASN1_TYPE_ECPK_PARAMETERS, parameters);
    if (kind == written_out && read_octets(octets, KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, list))
        show_items<domain_items>(printer, "curve", list.get());
    else
        printer.field("curve", "implicitlyCA");
}

const Field pbe[] = {
    {"salt", kovra_pkcs5pbeparam_getsalt, show_hex},
    {"iterations", kovra_pkcs5pbeparam_getiterationcount, show_integer},
};

const Field pkcs12_pbe[] = {
    {"salt", kovra_pkcs12pbeparams_getsalt, show_hex},
    {"iterations", kovra_pkcs12pbeparams_getiterations, show_integer},
};

const Field pbkdf2[] = {
    {"", kovra_pkcs5pbkdf2params_getsalt, show_here<KOVRA_ASN1_TYPE_PBKDF2_SALT>},
    {"iterations", kovra_pkcs5pbkdf2params_getiterationcount, show_integer},
    {"key length", kovra_pkcs5pbkdf2params_getkeylength, show_integer},
    {"pseudorandom function", kovra_pkcs5pbkdf2params_getprf, show_algorithm},
};

const Field salt[] = {
    {"salt", kovra_pkcs5pbkdf2salt_getspecified, show_hex},
    {"source of salt", kovra_pkcs5pbkdf2salt_getothersource, show_algorithm},
};

const Field pbes2[] = {
    {"key derivation", kovra_pkcs5pbes2params_getkeyderivationfunc, show_algorithm},
    {"cipher", kovra_pkcs5pbes2params_getencryptionscheme, show_algorithm},
};

const Field pbmac1[] = {
    {"key derivation", kovra_pkcs5pbmac1params_getkeyderivationfunc, show_algorithm},
    {"MAC", kovra_pkcs5pbmac1params_getmessageauthscheme, show_algorithm},
};

// RC2 has its effective key length in a number that stands for it (RFC 8018, B.2.3).
void show_rc2_version(Printer &printer, Harmless label, kovra_asn1_value *version) {
    struct Bits {
        int32_t number;
        uint64_t bits;
    };
    constexpr Bits known[] = {{160, 40}, {120, 64}, {58, 128}};
    int32_t number = 0;
    kovra_asn1_integer_getlong(version, &number);
    const auto *found =
        std::find_if(std::begin(known), std::end(known), [&](const Bits &row) { return row.number == number; });
    printer.begin(label);
    put_integer(printer, version);
    if (found != std::end(known) || (number >= 256 && number <= 1024)) {
        printer.out.put(" (");
        printer.out.put_number(found != std::end(known) ? found->bits : static_cast<uint64_t>(number));
        printer.out.put(" bits)");
    }
    printer.end();
}

const Field rc2[] = {
    {"version", kovra_pkcs5rc2cbcparam_getrc2parameterversion, show_rc2_version},
    {"IV", kovra_pkcs5rc2cbcparam_getiv, show_hex},
};

const Field rc5[] = {
    {"version", kovra_pkcs5rc5cbcparam_getversion, show_integer},
    {"rounds", kovra_pkcs5rc5cbcparam_getrounds, show_integer},
    {"bits of a block", kovra_pkcs5rc5cbcparam_getblocksizeinbits, show_integer},
    {"IV", kovra_pkcs5rc5cbcparam_getiv, show_hex},
};

// RFC 7914, 7.
constexpr Element scrypt[] = {
    {"salt", KOVRA_ASN1_TYPE_OCTET_STRING, show_hex},      {"cost", KOVRA_ASN1_TYPE_INTEGER, show_integer},
    {"block size", KOVRA_ASN1_TYPE_INTEGER, show_integer}, {"parallelization", KOVRA_ASN1_TYPE_INTEGER, show_integer},
    {"key length", KOVRA_ASN1_TYPE_INTEGER, show_integer},
};

// RFC 5084, 3.
constexpr Element counted_mode[] = {
    {"nonce", KOVRA_ASN1_TYPE_OCTET_STRING, show_hex},
    {"length of the tag", KOVRA_ASN1_TYPE_INTEGER, show_integer},
};

const Field oaep[] = {
    {"hash", kovra_pkcs1oaepparams_gethashalgorithm, show_algorithm},
    {"mask generation", kovra_pkcs1oaepparams_getmaskgenalgorithm, show_algorithm},
    {"label", kovra_pkcs1oaepparams_getpsourcealgorithm, show_algorithm},
};

const Field pss[] = {
    {"hash", kovra_pkcs1pssparams_gethashalgorithm, show_algorithm},
    {"mask generation", kovra_pkcs1pssparams_getmaskgenalgorithm, show_algorithm},
    {"salt length", kovra_pkcs1pssparams_getsaltlength, show_integer},
    {"trailer field", kovra_pkcs1pssparams_gettrailerfield, show_integer},
};

// The algorithm in the parameters of another: of a key agreement the one that wraps keys.
void show_inner_algorithm(Printer &printer, kovra_asn1_value *algorithm) {
    show_algorithm(printer, "with", algorithm);
}

constexpr TypeRow rows[] = {
    {KOVRA_ASN1_TYPE_DSS_PARMS, show_fields<dsa>},
    {KOVRA_ASN1_TYPE_DH_PARAMETER, show_fields<dh>},
    {KOVRA_ASN1_TYPE_ECPK_PARAMETERS, show_curve},
    {KOVRA_ASN1_TYPE_PBE_PARAMETER, show_fields<pbe>},
    {KOVRA_ASN1_TYPE_PKCS12_PBE_PARAMS, show_fields<pkcs12_pbe>},
    {KOVRA_ASN1_TYPE_PBKDF2_PARAMS, show_fields<pbkdf2>},
    {KOVRA_ASN1_TYPE_PBKDF2_SALT, show_fields<salt>},
    {KOVRA_ASN1_TYPE_PBES2_PARAMS, show_fields<pbes2>},
    {KOVRA_ASN1_TYPE_PBMAC1_PARAMS, show_fields<pbmac1>},
    {KOVRA_ASN1_TYPE_RC2_CBC_PARAMETER, show_fields<rc2>},
    {KOVRA_ASN1_TYPE_RC5_CBC_PARAMETERS, show_fields<rc5>},
    {KOVRA_ASN1_TYPE_RSAES_OAEP_PARAMS, show_fields<oaep>},
    {KOVRA_ASN1_TYPE_RSASSA_PSS_PARAMS, show_fields<pss>},
};

constexpr OidRow parameters[] = {
    {"1.2.840.10040.4.1", KOVRA_ASN1_TYPE_DSS_PARMS},
    {"1.2.840.113549.1.3.1", KOVRA_ASN1_TYPE_DH_PARAMETER},
    {"1.2.840.10046.2.1", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, show_items<dh_domain>},
    {"1.2.840.10045.2.1", KOVRA_ASN1_TYPE_ECPK_PARAMETERS},
    {"1.3.132.1.12", KOVRA_ASN1_TYPE_ECPK_PARAMETERS},
    {"1.3.132.1.13", KOVRA_ASN1_TYPE_ECPK_PARAMETERS},
    // Passwords: PKCS #5, PKCS #12, scrypt.
    {"1.2.840.113549.1.5.1", KOVRA_ASN1_TYPE_PBE_PARAMETER},
    {"1.2.840.113549.1.5.3", KOVRA_ASN1_TYPE_PBE_PARAMETER},
    {"1.2.840.113549.1.5.4", KOVRA_ASN1_TYPE_PBE_PARAMETER},
    {"1.2.840.113549.1.5.6", KOVRA_ASN1_TYPE_PBE_PARAMETER},
    {"1.2.840.113549.1.5.10", KOVRA_ASN1_TYPE_PBE_PARAMETER},
    {"1.2.840.113549.1.5.11", KOVRA_ASN1_TYPE_PBE_PARAMETER},
    {"1.2.840.113549.1.5.12", KOVRA_ASN1_TYPE_PBKDF2_PARAMS},
    {"1.2.840.113549.1.5.13", KOVRA_ASN1_TYPE_PBES2_PARAMS},
    {"1.2.840.113549.1.5.14", KOVRA_ASN1_TYPE_PBMAC1_PARAMS},
    {"1.2.840.113549.1.12.1.1", KOVRA_ASN1_TYPE_PKCS12_PBE_PARAMS},
    {"1.2.840.113549.1.12.1.2", KOVRA_ASN1_TYPE_PKCS12_PBE_PARAMS},
    {"1.2.840.113549.1.12.1.3", KOVRA_ASN1_TYPE_PKCS12_PBE_PARAMS},
    {"1.2.840.113549.1.12.1.4", KOVRA_ASN1_TYPE_PKCS12_PBE_PARAMS},
    {"1.2.840.113549.1.12.1.5", KOVRA_ASN1_TYPE_PKCS12_PBE_PARAMS},
    {"1.2.840.113549.1.12.1.6", KOVRA_ASN1_TYPE_PKCS12_PBE_PARAMS},
    {"1.3.6.1.4.1.11591.4.11", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, show_items<scrypt>},
    // Ciphers: RC2, RC5, AES in the modes GCM and CCM.
    {"1.2.840.113549.3.2", KOVRA_ASN1_TYPE_RC2_CBC_PARAMETER},
    {"1.2.840.113549.3.9", KOVRA_ASN1_TYPE_RC5_CBC_PARAMETERS},
    {"2.16.840.1.101.3.4.1.6", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, show_items<counted_mode>},
    {"2.16.840.1.101.3.4.1.7", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, show_items<counted_mode>},
    {"2.16.840.1.101.3.4.1.26", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, show_items<counted_mode>},
    {"2.16.840.1.101.3.4.1.27", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, show_items<counted_mode>},
    {"2.16.840.1.101.3.4.1.46", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, show_items<counted_mode>},
    {"2.16.840.1.101.3.4.1.47", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, show_items<counted_mode>},
    // Mask generation, and the label of RSAES-OAEP.
    {"1.2.840.113549.1.1.8", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, show_inner_algorithm},
    {"1.2.840.113549.1.1.9", KOVRA_ASN1_TYPE_OCTET_STRING, show_octets},
    // Key agreement, and wrapping with a password.
    {"1.2.840.113549.1.9.16.3.5", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, show_inner_algorithm},
    {"1.2.840.113549.1.9.16.3.9", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, show_inner_algorithm},
    {"1.2.840.113549.1.9.16.3.10", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, show_inner_algorithm},
    {"1.3.132.1.11.0", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, show_inner_algorithm},
    {"1.3.132.1.11.1", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, show_inner_algorithm},
    {"1.3.132.1.11.2", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, show_inner_algorithm},
    {"1.3.132.1.11.3", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, show_inner_algorithm},
    {"1.3.132.1.14.0", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, show_inner_algorithm},
    {"1.3.132.1.14.1", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, show_inner_algorithm},
    {"1.3.132.1.14.2", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, show_inner_algorithm},
    {"1.3.132.1.14.3", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, show_inner_algorithm},
    {"1.3.133.16.840.63.0.2", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, show_inner_algorithm},
    {"1.3.133.16.840.63.0.3", KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, show_inner_algorithm},
};

} // namespace

const OidRow *find_parameters(std::string_view algorithm) {
    return find_row(parameters, algorithm);
}

std::span<const TypeRow> parameter_structures() {
    return rows;
}

} // namespace kovra::tool
