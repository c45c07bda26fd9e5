// The tables in tests/data: what decoding gives, and what single functions give.
#include <functional>
#include <map>

#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {

TEST(Tables, Decodings) {
    std::vector<std::vector<std::string>> rows = table("decodings.txt");
    for (std::vector<std::string> &row : table("messages.txt"))
        rows.push_back(std::move(row));
    for (std::vector<std::string> &row : rows) {
        row.resize(4);
        auto type = static_cast<uint32_t>(std::stoul(row[0]));
        const std::string &in = row[1], &out = row[2];
        std::string data = octets(in);
        Codes codes;
        std::istringstream numbers(row[3]);
        for (int32_t code; numbers >> std::hex >> code;)
            codes.push_back(code);
        for (Feed feed : {Feed::memory, Feed::trickle}) {
            SCOPED_TRACE("type " + row[0] + ": " + in + (feed == Feed::trickle ? ", trickling" : ""));
            Decoded decoded = decode(type, data, feed);
            EXPECT_EQ(decoded.result, out == "-" ? 0 : 1);
            EXPECT_EQ(decoded.codes, codes);
            if (size_t end = in.find('|'); end != in.npos) {
                EXPECT_EQ(decoded.consumed, octets(in.substr(0, end)).size());
            }
            if (decoded.result != 1)
                continue;
            Encoded encoded = encode(type, decoded.value.get());
            EXPECT_EQ(hex(encoded.octets), out == "=" ? hex(data.substr(0, decoded.consumed)) : hex(octets(out)));
            EXPECT_EQ(encoded.codes, Codes());
            int32_t length = kovra_asn1_length(type, decoded.value.get());
            EXPECT_TRUE(length == size_of(encoded.octets) || (length == -1 && encoded.octets[1] == '\x80')) << length;
        }
    }
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
    for (std::vector<std::string> row : table("calls.txt")) {
        row.resize(3);
        auto call = calls.find(row[0]);
        ASSERT_NE(call, calls.end()) << row[0];
        EXPECT_EQ(call->second(row[1]), row[2]) << row[0] << " of " << row[1];
    }
}

} // namespace
} // namespace kovra::test
