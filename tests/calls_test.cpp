// What single functions give for single arguments: the table tests/data/calls.txt.
#include <functional>
#include <iterator>
#include <map>

#include "tests/notation.hpp"

namespace kovra::test {
namespace {

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
        {"sources", sources_of},
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
