// What single functions give for single arguments: the table tests/data/calls.txt.
#include <functional>
#include <iterator>
#include <map>

#include "tests/asn1_testing.hpp"

namespace kovra::test {
namespace {

std::string listed(const Codes &codes) {
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
            std::string found = (done ? encoding(Value(type, out)) : "-") + listed(Codes(ctx.get()));
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

std::vector<int32_t> numbers(const std::string &text) {
    std::istringstream stream(text);
    return {std::istream_iterator<int32_t>(stream), {}};
}

// The text between quotation marks, with \n \r \t \\ and \xHH for one character, and \{c*5} for five of them.
std::string unquoted(const std::string &text) {
    static const std::map<char, char> plain = {{'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'\\', '\\'}};
    std::string result;
    for (size_t i = 1; i + 1 < text.size(); ++i) {
        if (text[i] != '\\') {
            result += text[i];
        } else if (text[++i] == 'x') {
            result += octets(text.substr(i + 1, 2));
            i += 2;
        } else if (text[i] == '{') {
            result += std::string(std::stoul(text.substr(i + 3)), text[i + 1]);
            i = text.find('}', i);
        } else {
            result += plain.at(text[i]);
        }
    }
    return result;
}
std::string quoted(const std::string &text) {
    return '"' + text + '"';
}

std::string number_of(const std::string &in) {
    const std::string decimal = unquoted(in);
    const BigInteger number(kovra_biginteger_newdecimal(decimal.c_str()));
    if (number == nullptr)
        return "-";
    const Memory<char> again(kovra_biginteger_todecimal(number.get())), digits(kovra_biginteger_tohex(number.get()));
    const std::string data = text_of(Blob(kovra_biginteger_getdata(number.get())).get());
    EXPECT_EQ(again.get(), decimal);
    EXPECT_EQ(text_of(Blob(kovra_biginteger_getdata(BigInteger(kovra_biginteger_newhex(digits.get())).get())).get()),
              data);
    // Redundant octets are kept, and do not change the value.
    const std::string redundant = std::string(5, data[0] < 0 ? '\xFF' : '\0') + data;
    const BigInteger same(kovra_biginteger_newdata(redundant.data(), size_of(redundant)));
    const BigInteger copy(kovra_biginteger_dup(same.get()));
    int32_t order = 9;
    EXPECT_EQ(kovra_biginteger_compare(number.get(), copy.get(), &order), 1);
    EXPECT_EQ(order, 0);
    EXPECT_EQ(text_of(Blob(kovra_biginteger_getdata(copy.get())).get()), redundant);
    EXPECT_EQ(Memory<char>(kovra_biginteger_todecimal(copy.get())).get(), decimal);
    return hex(data) + " " + digits.get();
}

std::string utf16_of(kovra_ustring *(*make)(const void *, int32_t), const std::string &data) {
    const Exact exact(data);
    const Text text(make(exact.begin(), exact.length()));
    if (text == nullptr)
        return "-";
    const std::string utf16 = text_of(Blob(kovra_ustring_toutf16be(text.get())).get());
    const Text again(kovra_ustring_newutf16be(utf16.data(), size_of(utf16)));
    EXPECT_EQ(text_of(Blob(kovra_ustring_toutf8(again.get())).get()),
              text_of(Blob(kovra_ustring_toutf8(text.get())).get()));
    return hex(utf16);
}

std::string json_of(const std::string &in) {
    const auto print = [](const Json &json, int32_t indent) {
        return std::string(Memory<char>(kovra_json_print(json.get(), indent, nullptr)).get());
    };
    const Exact text(unquoted(in));
    int64_t offset = -1;
    const Json json(kovra_json_parse(text.begin(), text.length(), &offset));
    if (json == nullptr)
        return "- " + std::to_string(offset);
    const std::string printed = print(json, 0), indented = print(json, 3);
    EXPECT_EQ(print(Json(kovra_json_parse(indented.data(), size_of(indented), nullptr)), 0), printed);
    return quoted(printed);
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
                (found.empty() ? "-" + listed(Codes(ctx.get())) : found) + " " + std::to_string(input.consumed());
        }
        EXPECT_EQ(results[0], results[1]);
        return results[0];
    };
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
         [](const std::string &in) -> std::string {
             const Value oid = decoded(in.starts_with("06") ? 6 : 90, in);
             EXPECT_STREQ(kovra_asn1_oid_getstring(oid.get()), kovra_asn1_relative_oid_getstring(oid.get()));
             return kovra_asn1_oid_getstring(oid.get());
         }},
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
        {"time_new",
         [](const std::string &in) {
             const std::vector<int32_t> at = numbers(in);
             const auto text = [](uint32_t type, kovra_asn1_value *made) {
                 const std::string data = encode(type, Value(type, made).get()).octets;
                 return made == nullptr ? "-" : (data[0] == 23 ? "U:" : "G:") + data.substr(2);
             };
             const Time time(kovra_time_newutctime(at[0], at[1], at[2], at[3], at[4], at[5], at[6]));
             const auto of_time = [&](uint32_t flags) {
                 return text(20, kovra_asn1_time_newutctime(time.get(), flags));
             };
             const std::string by_year = text(20, kovra_asn1_time_new(at[0], at[1], at[2], at[3], at[4], at[5], at[6])),
                               utc = text(21, kovra_asn1_utctime_new(at[0], at[1], at[2], at[3], at[4], at[5])),
                               general =
                                   text(22, kovra_asn1_gentime_new(at[0], at[1], at[2], at[3], at[4], at[5], at[6]));
             const std::string whole = general.substr(0, general.find('.')) + (general.find('.') < 99 ? "Z" : "");
             EXPECT_EQ(of_time(0x00) + of_time(0x11) + of_time(0x01) + of_time(0x12), utc + general + whole + by_year);
             EXPECT_EQ(of_time(0x03) + of_time(0x0F) + of_time(0x13), "---");
             return by_year + " " + utc + " " + general;
         }},
        {"time_fields",
         [](const std::string &in) {
             const std::vector<int32_t> at = numbers(in);
             const Time utc(kovra_time_newutctime(at[0], at[1], at[2], at[3], at[4], at[5], at[6]));
             const Time local(kovra_time_newlocaltime(at[0], at[1], at[2], at[3], at[4], at[5], at[6], 0));
             EXPECT_EQ(utc == nullptr, local == nullptr);
             return utc != nullptr ? "+" : "-";
         }},
        {"time_add",
         [](const std::string &in) {
             const Time time(kovra_time_newutctime(2016, 12, 31, 23, 59, 60, 7));
             const int32_t minutes = numbers(in)[0], days = numbers(in)[1];
             const bool is_moved =
                 (days != 0 ? kovra_time_addday(time.get(), days) : kovra_time_addminute(time.get(), minutes)) == 1;
             std::ostringstream text;
             text << kovra_time_getyear(time.get()) << '-' << kovra_time_getmonth(time.get()) << '-'
                  << kovra_time_getday(time.get()) << ' ' << kovra_time_gethour(time.get()) << ':'
                  << kovra_time_getminute(time.get()) << ':' << kovra_time_getsecond(time.get()) << '.'
                  << kovra_time_getns(time.get());
             EXPECT_TRUE(is_moved || text.str() == "2016-12-31 23:59:60.7") << "a refused step changes nothing";
             return is_moved ? text.str() : "-";
         }},
        {"decimal", number_of},
        {"utf8", [](const std::string &in) { return utf16_of(kovra_ustring_newutf8, octets(in)); }},
        {"utf16", [](const std::string &in) { return utf16_of(kovra_ustring_newutf16be, octets(in)); }},
        {"utf32", [](const std::string &in) { return utf16_of(kovra_ustring_newutf32be, octets(in)); }},
        {"bmp", [](const std::string &in) { return utf16_of(kovra_ustring_newbmp, octets(in)); }},
        {"pem",
         [](const std::string &in) {
             const Exact text(unquoted(in));
             int32_t length = -1;
             const Memory<void> found(kovra_pemdecode(text.begin(), text.length(), "T", &length));
             EXPECT_TRUE(found != nullptr || length == 0);
             return found != nullptr ? quoted({static_cast<char *>(found.get()), static_cast<size_t>(length)}) : "-";
         }},
        {"json_parse", json_of},
    };
    for (const std::vector<std::string> &row : table("calls.txt")) {
        auto call = calls.find(row[0]);
        ASSERT_NE(call, calls.end()) << row[0];
        for (size_t i = 1; i < row.size(); ++i) {
            const auto [in, out] = sides_of(row[i]);
            EXPECT_EQ(call->second(in), out.starts_with('"') ? quoted(unquoted(out)) : out) << row[0] << " of " << in;
        }
    }
}

} // namespace
} // namespace kovra::test
