// Algorithm identifiers with their parameters, and public keys.

#include <algorithm>
#include <iterator>

#include "show_fields.hpp"

namespace kovra::tool {

namespace {

// Values of these types are read without a structure of their own: as lists of elements.
class Elements {
public:
    explicit Elements(kovra_asn1_value *any) : list_(KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY) {
        is_good_ = kovra_asn1_any_toobject(any, KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, list_.place(), nullptr) == 1;
    }
    [[nodiscard]] bool is_good() const { return is_good_; }
    [[nodiscard]] kovra_asn1_value *list() const { return list_.get(); }

private:
    Value list_;
    bool is_good_;
};

// Prints the name of an algorithm with, for a mask generation function, the digest in its parameters.
void put_inner_algorithm(Printer &printer, const kovra_asn1_value *algorithm) {
    const Message name = name_of_oid(kovra_x509algoid_getalgo(algorithm));
    if (Harmless(name) != "id-mgf1")
        return printer.out.put(name);
    printer.out.put("MGF1 with ");
    Value digest(KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER);
    kovra_asn1_any_toobject(kovra_x509algoid_getparam(algorithm), KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, digest.place(),
                            nullptr);
    printer.out.put(digest.get() != nullptr ? name_of_oid(kovra_x509algoid_getalgo(digest.get()))
                                            : Message("(no digest)"));
}

// The parameters of RSASSA-PSS and RSAES-OAEP (RFC 8017, A.2): digest, mask generation function, and a salt length and
// trailer field or a source of the label.
bool put_rsa_parameters(Printer &printer, kovra_asn1_value *parameters, bool is_signature) {
    const Elements fields(parameters);
    if (!fields.is_good())
        return false;
    const auto find = [&](int32_t tag, uint32_t type, Value &out) {
        for_each(fields.list(), [&](kovra_asn1_value *field) {
            int32_t number = -1;
            kovra_asn1_any_gettagnumber(field, &number);
            if (number == tag && out.get() == nullptr)
                kovra_asn1_any_getobject(field, type, out.place(), nullptr);
        });
        return out.get() != nullptr;
    };
    const auto put = [&](int32_t tag, Harmless standard) {
        Value algorithm(KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER);
        printer.out.put(", ");
        if (find(tag, KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, algorithm))
            put_inner_algorithm(printer, algorithm.get());
        else
            printer.out.put(standard);
    };
    put(0, "sha1");
    put(1, "MGF1 with sha1");
    if (!is_signature)
        return true;
    Value salt(KOVRA_ASN1_TYPE_INTEGER);
    printer.out.put(", salt ");
    if (find(2, KOVRA_ASN1_TYPE_INTEGER, salt))
        put_integer(printer, salt.get());
    else
        printer.out.put("20");
    if (Value trailer(KOVRA_ASN1_TYPE_INTEGER); find(3, KOVRA_ASN1_TYPE_INTEGER, trailer)) {
        printer.out.put(", trailer ");
        put_integer(printer, trailer.get());
    }
    return true;
}

bool put_pss(Printer &printer, kovra_asn1_value *parameters) {
    return put_rsa_parameters(printer, parameters, true);
}

bool put_oaep(Printer &printer, kovra_asn1_value *parameters) {
    return put_rsa_parameters(printer, parameters, false);
}

bool put_curve(Printer &printer, kovra_asn1_value *parameters) {
    Value curve(KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER);
    if (kovra_asn1_any_toobject(parameters, KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER, curve.place(), nullptr) != 1)
        return false;
    printer.out.put(", ");
    printer.out.put(name_of_oid(curve.get()));
    return true;
}

// How parameters are printed in the line of their algorithm. False, with nothing printed, when they are not of the type
// that the algorithm wants.
struct Parameters {
    std::string_view algorithm;
    bool (*put)(Printer &, kovra_asn1_value *);
};
constexpr Parameters known_parameters[] = {
    {"1.2.840.113549.1.1.10", put_pss}, {"1.2.840.113549.1.1.7", put_oaep}, {"1.2.840.10045.2.1", put_curve},
    {"1.3.132.1.12", put_curve},        {"1.3.132.1.13", put_curve},
};

// Prints the parameters in the line of the algorithm, if they can be; true when nothing of them is left to print.
bool put_parameters(Printer &printer, kovra_asn1_value *algorithm) {
    kovra_asn1_value *parameters = kovra_x509algoid_getparam(algorithm);
    if (parameters == nullptr || kovra_x509algoid_isnullparam(algorithm) == 1)
        return true;
    const std::string_view name = text_of_oid(kovra_x509algoid_getalgo(algorithm));
    const auto *found = std::find_if(std::begin(known_parameters), std::end(known_parameters),
                                     [&](const Parameters &row) { return row.algorithm == name; });
    return found != std::end(known_parameters) && found->put(printer, parameters);
}

void put_size(Printer &printer, uint64_t bits) {
    if (bits == 0)
        return;
    printer.out.put(", ");
    printer.out.put_number(bits);
    printer.out.put(" bits");
}

// The number of the given index in a SEQUENCE that begins with INTEGERs.
bool number_at(kovra_asn1_value *list, int32_t index, Value &out) {
    kovra_asn1_value *element = nullptr;
    return kovra_asn1_list_get(list, index, &element) == 1 &&
           kovra_asn1_any_toobject(element, KOVRA_ASN1_TYPE_INTEGER, out.place(), nullptr) == 1;
}

// Prints the size of a key at the end of the line, and the key below it; false, with nothing printed, for octets that
// are no such key.
using ShowKey = bool (*)(Printer &, kovra_asn1_value *algorithm, kovra_asn1_value *key, bool has_all);

// Ends the line of the algorithm; parameters that were not printed in it follow below.
void end_line(Printer &printer, kovra_asn1_value *algorithm, bool has_all) {
    printer.end();
    if (has_all)
        return;
    const Printer::Deeper deeper(printer);
    kovra_asn1_value *parameters = kovra_x509algoid_getparam(algorithm);
    const OidRow *row = printer.is_deep() ? nullptr : find_parameters(text_of_oid(kovra_x509algoid_getalgo(algorithm)));
    if (row != nullptr) {
        Value value(row->type);
        if (read_any(parameters, row->type, value))
            return row->show != nullptr ? row->show(printer, value.get()) : show_value(printer, row->type, value.get());
    }
    show_any(printer, "parameters", parameters);
}

bool show_rsa_key(Printer &printer, kovra_asn1_value *algorithm, kovra_asn1_value *key, bool has_all) {
    Value list(KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY);
    Value modulus(KOVRA_ASN1_TYPE_INTEGER);
    Value exponent(KOVRA_ASN1_TYPE_INTEGER);
    kovra_asn1_bitstring_getobject(key, KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, list.place(), nullptr);
    if (!number_at(list.get(), 0, modulus) || !number_at(list.get(), 1, exponent))
        return false;
    const std::string octets = integer_octets(modulus.get());
    put_size(printer, bit_length(octets));
    end_line(printer, algorithm, has_all);
    const Printer::Deeper deeper(printer);
    printer.hex("modulus", octets.substr(octets.size() > 1 && octets[0] == 0 ? 1 : 0));
    show_integer(printer, "exponent", exponent.get());
    return true;
}

// Numbers like the y of DSA and Diffie-Hellman; the size is that of the prime that the parameters begin with.
bool show_number_key(Printer &printer, kovra_asn1_value *algorithm, kovra_asn1_value *key, bool has_all) {
    Value number(KOVRA_ASN1_TYPE_INTEGER);
    Value prime(KOVRA_ASN1_TYPE_INTEGER);
    if (kovra_asn1_bitstring_getobject(key, KOVRA_ASN1_TYPE_INTEGER, number.place(), nullptr) != 1)
        return false;
    if (const Elements parameters(kovra_x509algoid_getparam(algorithm)); number_at(parameters.list(), 0, prime))
        put_size(printer, bit_length(integer_octets(prime.get())));
    end_line(printer, algorithm, has_all);
    const Printer::Deeper deeper(printer);
    show_integer(printer, "number", number.get());
    return true;
}

struct Curve {
    std::string_view oid;
    size_t bits;
};
constexpr Curve curves[] = {
    {"1.2.840.10045.3.1.1", 192},   {"1.2.840.10045.3.1.7", 256},   {"1.3.132.0.1", 163},
    {"1.3.132.0.6", 112},           {"1.3.132.0.8", 160},           {"1.3.132.0.10", 256},
    {"1.3.132.0.16", 283},          {"1.3.132.0.17", 283},          {"1.3.132.0.26", 233},
    {"1.3.132.0.27", 233},          {"1.3.132.0.31", 192},          {"1.3.132.0.32", 224},
    {"1.3.132.0.33", 224},          {"1.3.132.0.34", 384},          {"1.3.132.0.35", 521},
    {"1.3.132.0.36", 409},          {"1.3.132.0.37", 409},          {"1.3.132.0.38", 571},
    {"1.3.132.0.39", 571},          {"1.3.36.3.3.2.8.1.1.1", 160},  {"1.3.36.3.3.2.8.1.1.3", 192},
    {"1.3.36.3.3.2.8.1.1.5", 224},  {"1.3.36.3.3.2.8.1.1.7", 256},  {"1.3.36.3.3.2.8.1.1.9", 320},
    {"1.3.36.3.3.2.8.1.1.11", 384}, {"1.3.36.3.3.2.8.1.1.13", 512}, {"1.2.156.10197.1.301", 256},
};

bool show_point(Printer &printer, kovra_asn1_value *algorithm, kovra_asn1_value *key, bool has_all) {
    Value oid(KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER);
    kovra_asn1_any_toobject(kovra_x509algoid_getparam(algorithm), KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER, oid.place(),
                            nullptr);
    const std::string_view dotted = oid.get() != nullptr ? text_of_oid(oid.get()) : std::string_view();
    const auto *curve =
        std::find_if(std::begin(curves), std::end(curves), [&](const Curve &row) { return row.oid == dotted; });
    put_size(printer, curve != std::end(curves) ? curve->bits : 0);
    end_line(printer, algorithm, has_all);
    const Printer::Deeper deeper(printer);
    printer.hex("point", bits_of(key));
    return true;
}

// Keys that are their octets.
bool show_plain_key(Printer &printer, kovra_asn1_value *algorithm, kovra_asn1_value *key, bool has_all) {
    end_line(printer, algorithm, has_all);
    const Printer::Deeper deeper(printer);
    printer.hex("key", bits_of(key));
    return true;
}

// The same where all octets count (RFC 8410).
bool show_edwards_key(Printer &printer, kovra_asn1_value *algorithm, kovra_asn1_value *key, bool has_all) {
    put_size(printer, uint64_t{bits_of(key).size()} * 8);
    return show_plain_key(printer, algorithm, key, has_all);
}

struct Key {
    std::string_view algorithm;
    ShowKey show;
};
constexpr Key keys[] = {
    {"1.2.840.113549.1.1.1", show_rsa_key},
    {"1.2.840.113549.1.1.10", show_rsa_key},
    {"1.2.840.113549.1.1.7", show_rsa_key},
    {"1.2.840.10045.2.1", show_point},
    {"1.3.132.1.12", show_point},
    {"1.3.132.1.13", show_point},
    {"1.2.840.10040.4.1", show_number_key},
    {"1.2.840.10046.2.1", show_number_key},
    {"1.2.840.113549.1.3.1", show_number_key},
    {"1.3.101.110", show_edwards_key},
    {"1.3.101.111", show_edwards_key},
    {"1.3.101.112", show_edwards_key},
    {"1.3.101.113", show_edwards_key},
};

constexpr TypeRow rows[] = {
    {KOVRA_ASN1_TYPE_ALGORITHM_IDENTIFIER, show_algorithm},
    {KOVRA_ASN1_TYPE_SUBJECT_PUBLIC_KEY_INFO, show_public_key},
};

} // namespace

void show_algorithm(Printer &printer, Harmless label, kovra_asn1_value *algorithm) {
    printer.begin(label);
    printer.out.put(name_of_oid(kovra_x509algoid_getalgo(algorithm)));
    const bool has_all = put_parameters(printer, algorithm);
    end_line(printer, algorithm, has_all);
}

void show_algorithm(Printer &printer, kovra_asn1_value *algorithm) {
    show_algorithm(printer, "algorithm", algorithm);
}

void show_public_key(Printer &printer, kovra_asn1_value *info) {
    kovra_asn1_value *algorithm = kovra_x509subjpubkeyinfo_getalgo(info);
    kovra_asn1_value *key = kovra_x509subjpubkeyinfo_getpubkey(info);
    const std::string_view name = text_of_oid(kovra_x509algoid_getalgo(algorithm));
    printer.begin("public key");
    printer.out.put(name_of_oid(kovra_x509algoid_getalgo(algorithm)));
    const bool has_all = put_parameters(printer, algorithm);
    const auto *found =
        std::find_if(std::begin(keys), std::end(keys), [&](const Key &row) { return row.algorithm == name; });
    if (found == std::end(keys) || !found->show(printer, algorithm, key, has_all))
        show_plain_key(printer, algorithm, key, has_all);
}

std::span<const TypeRow> public_key_structures() {
    return rows;
}

} // namespace kovra::tool
