// The tables in tests/data: what decoding gives, and what single functions give.
#include <functional>
#include <map>
#include <set>

#include "tests/notation.hpp"

namespace kovra::test {
namespace {

// Rows of all types: type; encoding, with | where reading ends; what it is written as (= as it was read, - it is
// refused when read, ! when written); the codes of a refusal or of what is noted; the length, where it is announced
// otherwise.
void expect_outcome(const std::string &file, const std::vector<std::string> &row, const std::string &text, Feed feed) {
    const auto type = static_cast<uint32_t>(std::stoul(row[0]));
    const std::string &out = row[2];
    const size_t end = text.find('|');
    const std::string rest = end != text.npos ? noted(text.substr(end + 1), file) : "";
    const std::string data = noted(text.substr(0, end), file) + rest;
    const bool is_read = out != "-", is_written = is_read && out != "!";
    Codes codes;
    std::istringstream numbers(row[3]);
    for (int32_t code; numbers >> std::hex >> code;)
        codes.push_back(code);
    const Decoded decoded = decode(type, data, feed);
    EXPECT_EQ(decoded.result, is_read);
    EXPECT_EQ(decoded.codes, is_written || !is_read ? codes : Codes());
    if (is_read || end != text.npos) {
        EXPECT_EQ(decoded.consumed, data.size() - rest.size());
    }
    if (decoded.result != 1)
        return;
    const Encoded encoded = encode(type, decoded.value.get());
    EXPECT_EQ(encoded.codes, is_written ? Codes() : codes);
    if (!is_written)
        return;
    EXPECT_EQ(hex(encoded.octets), hex(out == "=" ? data.substr(0, decoded.consumed) : noted(out, file)));
    const int32_t length = kovra_asn1_length(type, decoded.value.get());
    EXPECT_TRUE(length == (row[4].empty() ? size_of(encoded.octets) : std::stoi(row[4])) ||
                (length == -1 && encoded.octets[1] == '\x80'))
        << length;
    // A copy is had of what is written as it is read.
    const Value copy(type, kovra_asn1_dupobject(type, decoded.value.get(), nullptr));
    const bool has_value = type != KOVRA_ASN1_TYPE_END_OF_CONTENTS && type != KOVRA_ASN1_TYPE_NULL;
    EXPECT_EQ(static_cast<bool>(copy), has_value && decode(type, encoded.octets).result == 1);
    EXPECT_TRUE(!copy || encode(type, copy.get()).octets == encoded.octets);
}

TEST(Tables, Decodings) {
    std::set<uint32_t> accepted;
    for (const char *file : {"decodings.txt", "structures.txt", "keys_decodings.txt", "messages.txt", "services.txt"}) {
        for (std::vector<std::string> &row : table(file)) {
            if (row[0] == "let")
                continue;
            row.resize(5);
            if (row[2] != "-")
                accepted.insert(static_cast<uint32_t>(std::stoul(row[0])));
            for (const std::string &text : parts_of(row[1])) {
                for (Feed feed : {Feed::memory, Feed::trickle}) {
                    SCOPED_TRACE("type " + row[0] + ": " + text + (feed == Feed::trickle ? ", trickling" : ""));
                    expect_outcome(file, row, text, feed);
                }
            }
        }
    }
    // Every structure that can be read by itself is there.
    for (uint32_t type = KOVRA_ASN1_TYPE_CONTEXT; type < KOVRA_ASN1_TYPE_COUNT; ++type)
        EXPECT_TRUE(accepted.count(type) == 1 || decode(type, "").codes == Codes({0x1026d})) << type;
}

std::string text_of(const Codes &codes) {
    std::ostringstream text;
    for (int32_t code : codes)
        text << ' ' << std::hex << code;
    return text.str();
}

std::string content_of(const Value &integer) {
    if (!integer)
        return "-";
    std::string data(static_cast<size_t>(kovra_asn1_integer_getlength(integer.get())), '\0');
    EXPECT_EQ(kovra_asn1_integer_get(integer.get(), data.data()), 1);
    Value copy(2, kovra_asn1_integer_newbigint(BigInteger(kovra_asn1_integer_getbigintger(integer.get())).get()));
    EXPECT_EQ(kovra_asn1_integer_equals(copy.get(), integer.get()), 1);
    return hex(data);
}

std::string long_of(const Value &integer) {
    int32_t number = -7;
    bool done = kovra_asn1_integer_getlong(integer.get(), &number) == 1;
    EXPECT_EQ(kovra_asn1_enum_getlong(integer.get(), &number), done);
    return done ? std::to_string(number) : "-";
}

std::string oid_of(uint32_t type, kovra_asn1_value *handle) {
    Value oid(type, handle);
    return oid ? encoding(oid) + " " + kovra_asn1_oid_getstring(oid.get()) : "-";
}

// Splits "type octets", and tells what `get(octets, type, out, ctx)` makes of it, twice, since content is rewound.
template <class Make, class... Get> std::string object_of(const std::string &in, Make make, Get... gets) {
    size_t digits = in.find_first_not_of("0123456789");
    auto type = static_cast<uint32_t>(std::stoul(in.substr(0, digits)));
    std::string data = digits == in.npos ? "" : octets(in.substr(digits)), result;
    auto ask = [&](auto get) {
        Value holder = make(get, data);
        for (int i = 0; i < 2; ++i) {
            Errors ctx(kovra_err_ctx_new());
            kovra_asn1_value *out = nullptr;
            bool done = get(holder.get(), type, &out, ctx.get()) == 1;
            EXPECT_TRUE(done || out == nullptr);
            std::string found = (done ? encoding(Value(type, out)) : "-") + text_of(Codes(ctx.get()));
            EXPECT_TRUE(result.empty() || found == result) << found;
            result = found;
        }
    };
    (ask(gets), ...);
    return result;
}

std::string sources_of(const std::string &in) {
    size_t digits = in.find_first_not_of("0123456789");
    std::string results[2];
    for (Feed feed : {Feed::memory, Feed::trickle}) {
        Input input(digits == in.npos ? "" : octets(in.substr(digits)), feed);
        Errors ctx(kovra_err_ctx_new());
        kovra_asn1_value *out = nullptr;
        EXPECT_EQ(kovra_asn1_decode(input.stream(), static_cast<uint32_t>(std::stoul(in)), &out, nullptr, ctx.get()),
                  0);
        std::string &sources = results[feed == Feed::trickle];
        const char *source = "", *message = "";
        for (int32_t i = 0, line = 0; kovra_err_ctx_getentry(ctx.get(), i, &source, &line, nullptr, &message) == 1;
             ++i) {
            sources += (i == 0 ? "" : " ") + std::string(source);
            EXPECT_GT(line, 0);
            EXPECT_STRNE(message, "");
        }
    }
    EXPECT_EQ(results[0], results[1]);
    return results[0];
}

TEST(Tables, Calls) {
    auto as_any = [](auto, const std::string &data) { return decode(23, data).value; };
    auto as_string = [](auto get, const std::string &data) {
        return get == kovra_asn1_bitstring_getobject ? Value(3, kovra_asn1_bitstring_new(0, data.data(), size_of(data)))
                                                     : Value(4, kovra_asn1_octetstring_new(data.data(), size_of(data)));
    };
    auto octets_decoded = [](const std::string &in, auto decoder) {
        std::string results[2];
        for (Feed feed : {Feed::memory, Feed::trickle}) {
            Input input(octets(in), feed);
            Errors ctx(kovra_err_ctx_new());
            int32_t read = -7;
            std::string found = decoder(input.stream(), &read, ctx.get());
            EXPECT_EQ(read, found.empty() ? -7 : static_cast<int32_t>(input.consumed()));
            results[feed == Feed::trickle] =
                (found.empty() ? "-" + text_of(Codes(ctx.get())) : found) + " " + std::to_string(input.consumed());
        }
        EXPECT_EQ(results[0], results[1]);
        return results[0];
    };
    auto unquoted = [](const std::string &text) { return text.substr(1, text.size() - 2); };
    const std::map<std::string, std::function<std::string(const std::string &)>> calls = {
        {"identifier",
         [&](const std::string &in) {
             return octets_decoded(in, [](auto *stream, auto *read, auto *ctx) -> std::string {
                 uint32_t tag_class = 1;
                 int32_t form = -7, tag = -7;
                 if (kovra_asn1_decode_identifier(stream, &tag_class, &form, &tag, read, ctx) != 1)
                     return "";
                 return hex(std::string(1, static_cast<char>(tag_class))) + " " + std::to_string(form) + " " +
                        std::to_string(tag);
             });
         }},
        {"length",
         [&](const std::string &in) {
             return octets_decoded(in, [](auto *stream, auto *read, auto *ctx) -> std::string {
                 int32_t length = -7;
                 return kovra_asn1_decode_length(stream, &length, read, ctx) == 1 ? std::to_string(length) : "";
             });
         }},
        {"integer_value",
         [](const std::string &in) {
             auto number = static_cast<int32_t>(std::stoll(in));
             Value integer(2, kovra_asn1_integer_value(number)), enumerated(7, kovra_asn1_enum_value(number));
             EXPECT_EQ(encoding(enumerated), "0A" + encoding(integer).substr(2));
             return content_of(integer) + " " + long_of(integer);
         }},
        {"integer_new",
         [](const std::string &in) {
             return content_of(Value(2, kovra_asn1_integer_new(octets(in).data(), size_of(octets(in)))));
         }},
        {"unsigned_integer_new",
         [](const std::string &in) {
             return content_of(Value(2, kovra_asn1_unsigned_integer_new(octets(in).data(), size_of(octets(in)))));
         }},
        {"integer_getlong",
         [](const std::string &in) { return long_of(decode_content(2, octets(in), 1, size_of(octets(in))).value); }},
        {"oid_new", [&](const std::string &in) { return oid_of(6, kovra_asn1_oid_new(unquoted(in).c_str())); }},
        {"relative_oid_new",
         [&](const std::string &in) { return oid_of(90, kovra_asn1_relative_oid_new(unquoted(in).c_str())); }},
        {"oid_getstring",
         [](const std::string &in) -> std::string { return kovra_asn1_oid_getstring(decoded(6, in).get()); }},
        {"bitstring_newbits",
         [](const std::string &in) -> std::string {
             std::vector<int32_t> positions;
             std::istringstream numbers(in);
             for (int32_t number; numbers >> number;)
                 positions.push_back(number);
             Value bits(3, kovra_asn1_bitstring_newbits(positions.data(), static_cast<int32_t>(positions.size())));
             return bits ? encoding(bits) : "-";
         }},
        {"getobject",
         [&](const std::string &in) {
             return object_of(in, as_string, kovra_asn1_octetstring_getobject, kovra_asn1_bitstring_getobject);
         }},
        {"any_getobject", [&](const std::string &in) { return object_of(in, as_any, kovra_asn1_any_getobject); }},
        {"any_contenttoobject",
         [&](const std::string &in) { return object_of(in, as_any, kovra_asn1_any_contenttoobject); }},
        {"sources", sources_of},
        {"any_toobject", [&](const std::string &in) { return object_of(in, as_any, kovra_asn1_any_toobject); }},
    };
    for (const std::vector<std::string> &row : table("calls.txt")) {
        auto call = calls.find(row[0]);
        ASSERT_NE(call, calls.end()) << row[0];
        for (size_t i = 1; i < row.size(); ++i) {
            const auto [in, out] = sides_of(row[i]);
            EXPECT_EQ(call->second(in), out) << row[0] << " of " << in;
        }
    }
}

} // namespace
} // namespace kovra::test
