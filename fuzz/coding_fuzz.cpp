// Octets as text and text as octets, and the constructors that take either.
#include <algorithm>

#include "fuzz/fuzzing.hpp"
#include "fuzz/memory.hpp"

namespace kovra::fuzz {

namespace {

constexpr bool is_space(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

std::string without_space(std::string_view text) {
    std::string result;
    std::copy_if(text.begin(), text.end(), std::back_inserter(result), [](char c) { return !is_space(c); });
    return result;
}

// What a function that returns memory and its length gave.
struct Given {
    bool exists = false;
    std::string octets;
};
template <class Call> Given given(Call call) {
    const auto [data, length] = call();
    const Memory<void> owner(data);
    const auto size = static_cast<size_t>(length);
    check(data != nullptr || length == 0, "a failure has no length");
    return {data != nullptr, data == nullptr ? "" : std::string(static_cast<const char *>(data), size)};
}

Given encode_base64(const Exact &octets, int32_t line_length) {
    return given([&] {
        int64_t length = -1;
        char *text = kovra_base64encode(octets.data(), octets.length(), line_length, &length);
        return std::pair<void *, int64_t>(text, length);
    });
}

Given decode_base64(std::string_view text, int32_t mode) {
    const Exact exact(text);
    return given([&] {
        int32_t length = -1;
        void *octets = kovra_base64decode(exact.data(), static_cast<int64_t>(exact.size()), mode, &length);
        return std::pair<void *, int64_t>(octets, length);
    });
}

Given encode_hex(const Exact &octets, int32_t mode) {
    return given([&] {
        int64_t length = -1;
        char *text = kovra_hexencode(octets.data(), octets.length(), mode, &length);
        return std::pair<void *, int64_t>(text, length);
    });
}

Given decode_hex(std::string_view text) {
    const Exact exact(text);
    return given([&] {
        int32_t length = -1;
        void *octets = kovra_hexdecode(exact.data(), static_cast<int64_t>(exact.size()), &length);
        return std::pair<void *, int64_t>(octets, length);
    });
}

Given encode_pem(const Exact &octets, const std::string &label) {
    return given([&] {
        int64_t length = -1;
        char *text = kovra_pemencode(octets.data(), octets.length(), label.c_str(), &length);
        return std::pair<void *, int64_t>(text, length);
    });
}

Given decode_pem(std::string_view text, const std::string &label) {
    const Exact exact(text);
    return given([&] {
        int32_t length = -1;
        void *octets = kovra_pemdecode(exact.data(), static_cast<int64_t>(exact.size()), label.c_str(), &length);
        return std::pair<void *, int64_t>(octets, length);
    });
}

void check_base64(const Exact &input) {
    const Given strict = decode_base64(input.view(), KOVRA_BASE64_STRICT);
    if (strict.exists)
        check(encode_base64(Exact(strict.octets), 0).octets == input.view(), "strict base64 has one form");
    const Given loose = decode_base64(input.view(), KOVRA_BASE64_IGNORE_SPACE);
    const Given stripped = decode_base64(without_space(input.view()), KOVRA_BASE64_STRICT);
    check(loose.exists == stripped.exists && loose.octets == stripped.octets, "white space means nothing");
    for (const int32_t line_length : {0, 1, static_cast<int32_t>(input.size() % 80), 64}) {
        const Given text = encode_base64(input, line_length);
        check(text.exists && decode_base64(text.octets, KOVRA_BASE64_IGNORE_SPACE).octets == input.view(),
              "base64 comes back");
    }
}

void check_hex(const Exact &input) {
    const Given octets = decode_hex(input.view());
    if (octets.exists) {
        std::string lower(input.view());
        std::transform(lower.begin(), lower.end(), lower.begin(),
                       [](char c) { return c >= 'A' && c <= 'F' ? static_cast<char>(c + 32) : c; });
        check(encode_hex(Exact(octets.octets), KOVRA_HEX_LOWER).octets == lower, "hexadecimal has one form");
    }
    for (const int32_t mode : {KOVRA_HEX_LOWER, KOVRA_HEX_UPPER})
        check(decode_hex(encode_hex(input, mode).octets).octets == input.view(), "hexadecimal comes back");
}

void check_pem(const Exact &input) {
    int64_t position = 0;
    std::vector<std::string> seen;
    for (;;) {
        const int64_t before = position;
        const char *label = nullptr;
        int32_t label_length = 0, length = 0;
        void *data = nullptr;
        const int32_t result = kovra_pemnext(input.data(), static_cast<int64_t>(input.size()), &position, &label,
                                             &label_length, &data, &length);
        const Memory<void> owner(data);
        check((data != nullptr) == (result == 1), "there are octets where there is a block");
        check(position >= before && position <= static_cast<int64_t>(input.size()),
              "the position moves on in the text");
        if (result == 0)
            break;
        check(position > before, "a block is not met twice");
        const std::string name(label, static_cast<size_t>(label_length));
        check(label >= input.data() && label + label_length <= input.data() + input.size(), "a label is of the text");
        const bool is_first = std::find(seen.begin(), seen.end(), name) == seen.end();
        seen.push_back(name);
        if (result != 1 || name.find('\0') != std::string::npos)
            continue;
        const std::string octets(static_cast<const char *>(data), static_cast<size_t>(length));
        if (is_first) {
            const Given found = decode_pem(input.view(), name);
            check(found.exists && found.octets == octets, "the first block of a label is what asking for it gives");
        }
        const Given text = encode_pem(Exact(octets), name);
        if (text.exists)
            check(decode_pem(text.octets, name).octets == octets, "PEM comes back");
    }
    const Given text = encode_pem(input, "ANY LABEL");
    check(text.exists && decode_pem("before\n" + text.octets + "behind\n", "ANY LABEL").octets == input.view(),
          "PEM comes back");
}

// A constructor from octets or text, and its type.
struct Constructor {
    uint32_t type;
    kovra_asn1_value *(*make)(const void *data, int32_t length, kovra_err_ctx *ctx) noexcept;
    int32_t (*get_signed)(kovra_asn1_value *value, void *buffer, int32_t *length) noexcept;
};
constexpr Constructor constructors[] = {
    {KOVRA_ASN1_TYPE_CERTIFICATE, kovra_x509pubkeycert_new, kovra_x509pubkeycert_gettbsocts},
    {KOVRA_ASN1_TYPE_CERTIFICATE_LIST, kovra_x509crl_new, kovra_x509crl_gettbsocts},
    {KOVRA_ASN1_TYPE_CERTIFICATION_REQUEST, kovra_pkcs10certreq_new, kovra_pkcs10certreq_gettbsocts}};

void check_constructor(const Constructor &constructor, const Exact &input) {
    const Errors ctx(kovra_err_ctx_new());
    const Value value(constructor.type, constructor.make(input.data(), input.length(), ctx.get()));
    if (value.get() == nullptr) {
        check(kovra_err_ctx_getcount(ctx.get()) > 0, "a refusal leaves an entry");
        return;
    }
    const std::string octets = encode(constructor.type, value.get());
    if (input.data()[0] == 0x30)
        check(octets == input.view(), "what was constructed from octets is written back as they were");
    int32_t length = 0;
    check(constructor.get_signed(value.get(), nullptr, &length) == 1, "what is signed has a length");
    std::string octets_signed(static_cast<size_t>(length), '\0');
    check(constructor.get_signed(value.get(), octets_signed.data(), &length) == 1, "what is signed is there");
    check(octets.find(octets_signed) != std::string::npos, "what is signed is in the encoding");
    for (const std::string &text : {encode_base64(Exact(octets), 64).octets, octets}) {
        // Base64 is told from other octets by its first letter.
        if (text[0] != 'M' && text[0] != 0x30)
            continue;
        const Exact exact(text);
        const Value again(constructor.type, constructor.make(exact.data(), exact.length(), nullptr));
        check(again.get() != nullptr && encode(constructor.type, again.get()) == octets, "text gives the same");
    }
}

void run(Draw input) {
    const Exact octets(input.rest());
    check_base64(octets);
    check_hex(octets);
    check_pem(octets);
    for (const Constructor &constructor : constructors)
        check_constructor(constructor, octets);
}

} // namespace

size_t elements_begin(const uint8_t *data, size_t size) {
    return size > 0 && data[0] == 0x30 ? 0 : size;
}

} // namespace kovra::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    kovra::fuzz::begin_memory(int64_t{1} << 30);
    kovra::fuzz::run({data, size});
    kovra::fuzz::end_memory();
    return 0;
}
