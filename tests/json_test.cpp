// What the description of an element in JSON is encoded to, where it is written by others than the library.
#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"

namespace kovra::test {
namespace {


std::string tagged(const std::string &tag, const std::string &value) {
    return R"({"type":"TAGGEDTYPE",)" + tag + R"(,"value":)" + value + "}";
}

Blob encoded(const std::string &text) {
    const Json json(kovra_json_parse(text.data(), static_cast<int64_t>(text.size()), nullptr));
    return Blob(kovra_asn1_encodejson(json.get()));
}

TEST(Json, Encodings) {
    const std::string implicit = R"("class":"CONTEXT","number":1,"explicit":false)";
    const std::string outer = R"("class":"APPLICATION","number":40,"explicit":false)";
    const std::string around = R"("class":"PRIVATE","number":2,"explicit":true)";
    const std::string five = R"({"type":"INTEGER","value":"05"})", raw = R"({"type":"ANY","hexencode":"3003020105"})";
    auto bits = [](const std::string &value) { return R"({"type":"BITSTRING","value":)" + value + "}"; };
    const struct {
        std::string text;
        const char *expected; // - when it is refused
    } rows[] = {
        {five, "020105"},
        {tagged(implicit, five), "810105"},
        {tagged(around, five), "E203020105"},
        {tagged(outer, tagged(implicit, five)), "5F280105"}, // the outermost implicit tag stays
        {tagged(around, tagged(implicit, five)), "E203810105"},
        {tagged(implicit, tagged(around, five)), "A103020105"},
        {tagged(implicit, R"({"type":"NULL"})"), "8100"},
        {tagged(implicit, R"({"type":"SEQUENCE","value":[)" + five + "]}"), "A103020105"},
        // Ready-made elements, of which the identifier may change; they have to be one.
        {raw, "3003020105"},
        {R"({"base64encode":"MAMC AQU="})", "3003020105"},
        {tagged(implicit, raw), "A103020105"},
        {tagged(outer, raw), "7F2803020105"},
        {tagged(implicit, R"({"hexencode":"7F2803020105"})"), "A103020105"},
        {R"({"type":"SEQUENCE","value":[)" + tagged(implicit, raw) + "," + raw + "]}", "300AA1030201053003020105"},
        {R"({"hexencode":""})", "-"},
        {R"({"hexencode":"3003020105FF"})", "-"},
        {R"({"hexencode":"30030201"})", "-"},
        {R"({"hexencode":"3"})", "-"},
        {R"({"hexencode":5})", "-"},
        // BIT STRINGs of booleans, from bit 0 on.
        {bits("[true,false,true]"), "030205A0"},
        {bits(R"({"value":[false,false,false,false,false,false,false,false,true]})"), "0303070080"},
        {bits("[]"), "030100"},
        {bits("[1]"), "-"},
        {bits(R"({"unusedbits":4,"value":"F0"})"), "030204F0"},
        {bits(R"({"unusedbits":8,"value":"F0"})"), "-"},
        {bits(R"({"unusedbits":0,"value":"F"})"), "-"},
        {bits(R"("F0")"), "-"},
        // What is missing, or of another kind.
        {tagged(R"("class":"OTHER","number":1)", five), "-"},
        {tagged(R"("class":"CONTEXT","number":-1)", five), "-"},
        {tagged(R"("class":"CONTEXT","number":1.5)", five), "-"},
        {tagged(R"("class":"CONTEXT","number":1,"explicit":0)", five), "-"},
        {R"({"type":"TAGGEDTYPE","class":"CONTEXT","number":1})", "-"},
        {R"({"type":"INTEGER"})", "-"},
        {R"({"type":"NOTHING","value":"05"})", "-"},
        {R"({"value":"05"})", "-"},
        {"[]", "-"},
    };
    for (const auto &row : rows) {
        const Blob found = encoded(row.text);
        EXPECT_EQ(found != nullptr ? hex(text_of(found.get())) : "-", row.expected) << row.text;
        if (found != nullptr)
            fail_each_allocation([&] { return encoded(row.text) != nullptr; });
    }
    EXPECT_EQ(kovra_asn1_encodejson(nullptr), nullptr);
}

} // namespace
} // namespace kovra::test
