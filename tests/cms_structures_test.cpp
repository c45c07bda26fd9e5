// What constructors of messages and their parts make, what getters give back, and what both refuse.
#include <set>

#include "tests/cms_layouts.hpp"
#include "tests/failing_memory.hpp"

namespace kovra::test {
namespace {

// A value of each type in hexadecimal: the first of the table of messages that comes back as it is.
const std::string &sample(uint32_t type) {
    static const std::map<uint32_t, std::string> all = [] {
        const std::string time = "17 0D 3132303130313030303030305A ", bits = "03 02 00 AB";
        std::map<uint32_t, std::string> found = {
            {2, "02 01 03"},
            {4, "04 02 AB CD"},
            {6, "06 01 2A"},
            {22, "18 0F 32303330303130323033303430355A"},
            {23, "05 00"},
            {25, "30 02 05 00"},
            {32, "30 00"},
            {33, "30 03 06 01 2A"},
            {35, "30 09 30 03 06 01 2A" + bits},
            {39, "30 42 30 37 02 01 01 30 03 06 01 2A 30 00 30 1E" + time + time + "30 00 30 09 30 03 06 01 2A" + bits +
                     "30 03 06 01 2A" + bits},
            {41, "30 21 30 16 30 03 06 01 2A 30 00" + time + "30 03 06 01 2A" + bits},
            {44, "31 09 30 07 06 01 2A 31 02 05 00"}};
        for (const auto &row : table("messages.txt"))
            if (row.size() > 2 && row[2] == "=")
                found.emplace(static_cast<uint32_t>(std::stoul(row[0])), row[1]);
        return found;
    }();
    return all.at(type);
}

Value sample_value(uint32_t type) {
    Value value = decoded(type, sample(type));
    EXPECT_TRUE(value) << type;
    return value;
}

// A sample under the tag of its place.
std::string tagged(const Part &part) {
    std::string data = octets(sample(part.type));
    int number = part.notation[0] != '\0' ? part.notation[1] - '0' : 0;
    if (part.notation[0] == 'i')
        data[0] = static_cast<char>(0x80 | (data[0] & 0x20) | number);
    if (part.notation[0] == 'e')
        data = std::string{static_cast<char>(0xA0 | number), static_cast<char>(data.size())} + data;
    return data;
}

struct Built {
    Value value;
    std::string expected; // content octets
};

// A structure with the optional parts whose bits are set; the arguments are gone when it is looked at.
Built build(const Layout &layout, unsigned present) {
    Built built;
    std::vector<Value> values;
    std::vector<Handle> arguments;
    for (const Part &part : layout.parts) {
        bool is_there = !part.is_optional() || (present & 1) != 0;
        present >>= part.is_optional();
        values.push_back(is_there ? sample_value(part.type) : Value());
        arguments.push_back(values.back().get());
        built.expected += is_there ? tagged(part) : "";
    }
    built.value = Value(layout.type, layout.make(arguments));
    return built;
}

unsigned combinations(const Layout &layout) {
    unsigned count = 1;
    for (const Part &part : layout.parts)
        count <<= part.is_optional();
    return count;
}

TEST(CmsStructures, EveryCombinationOfPartsIsMadeWrittenAndReadBack) {
    for (const Layout &layout : layouts()) {
        for (unsigned present = 0; layout.make && present < combinations(layout); ++present) {
            SCOPED_TRACE("type " + std::to_string(layout.type) + ", parts " + std::to_string(present));
            Built built = build(layout, present);
            ASSERT_TRUE(built.value);
            Encoded whole = encode(layout.type, built.value.get());
            EXPECT_EQ(kovra_asn1_length(layout.type, built.value.get()), size_of(whole.octets));
            EXPECT_EQ(hex(whole.octets.substr(whole.octets.size() - built.expected.size())), hex(built.expected));
            Encoded indefinite = encode_content(layout.type, built.value.get(), -1);
            EXPECT_EQ(hex(indefinite.octets), hex(built.expected) + "0000");
            // A key derivation algorithm is written under an implicit tag and read under an explicit one.
            bool reads_back = layout.type != 160 || present == 0;
            Decoded again = decode(layout.type, whole.octets);
            EXPECT_EQ(again.codes, reads_back ? Codes() : Codes({0x1020a, 0x1024d}));
            unsigned bits = present;
            for (const Part &part : layout.parts) {
                bool is_there = !part.is_optional() || (bits & 1) != 0;
                bits >>= part.is_optional();
                for (Handle holder : {built.value.get(), again.value.get()}) {
                    if (holder == nullptr)
                        continue;
                    Encoded given = encode(part.type, part.get(holder));
                    EXPECT_EQ(hex(given.octets), is_there ? hex(octets(sample(part.type))) : "");
                    EXPECT_TRUE(part.has == nullptr || part.has(holder) == is_there);
                }
            }
        }
    }
}

TEST(CmsStructures, AChoiceGivesItsNumberAndItsValueWhoeverAsks) {
    for (const Alternative &row : alternatives()) {
        SCOPED_TRACE("type " + std::to_string(row.type) + ", alternative " + std::to_string(row.number));
        std::string expected = tagged(row.part);
        Value made = row.make != nullptr ? Value(row.type, row.make(sample_value(row.part.type).get()))
                                         : decode(row.type, expected).value;
        EXPECT_EQ(encoding(made), hex(expected));
        EXPECT_EQ(kovra_asn1_length(row.type, made.get()), size_of(expected));
        Decoded read = decode(row.type, expected, Feed::trickle);
        for (Handle value : {made.get(), read.value.get()}) {
            EXPECT_EQ(row.get_number(value), row.number);
            for (const Alternative &other : alternatives()) {
                if (other.type == row.type) {
                    EXPECT_EQ(hex(encode(row.part.type, other.part.get(value)).octets),
                              hex(octets(sample(row.part.type))));
                }
            }
        }
        EXPECT_EQ(decode_content(row.type, expected, 0, size_of(expected)).codes, Codes({0x1026d}));
        EXPECT_EQ(encode_content(row.type, made.get(), -2).codes, Codes({0x10001}));
    }
}

// What the tables do not say.
TEST(CmsStructures, IrregularOnes) {
    // A DigestedData is made of a DigestedData, and then of no use.
    std::vector<Value> parts;
    for (uint32_t type : {2u, 33u, 111u, 121u, 4u})
        parts.push_back(sample_value(type));
    auto make = [&](size_t content) {
        return Value(121,
                     kovra_pkcs7digesteddata_new(parts[0].get(), parts[1].get(), parts[content].get(), parts[4].get()));
    };
    EXPECT_FALSE(make(2));
    Value digested = make(3);
    EXPECT_EQ(hex(encode(121, kovra_pkcs7digesteddata_getcontentinfo(digested.get())).octets), encoding(parts[3]));
    EXPECT_EQ(encode(121, digested.get()).codes, Codes({0x1020b}));
    EXPECT_EQ(kovra_asn1_dupobject(121, digested.get(), nullptr), nullptr);

    // A PasswordRecipientInfo with a key derivation algorithm becomes no RecipientInfo.
    for (const Layout &layout : layouts()) {
        if (layout.type == 160) {
            EXPECT_EQ(kovra_cmsrecipientinfo_newpwri(build(layout, 1).value.get()), nullptr);
            EXPECT_TRUE(Value(162, kovra_cmsrecipientinfo_newpwri(build(layout, 0).value.get())));
        }
    }

    // The two formats of others differ in their codes only.
    Value other_certificate = decoded(127, "30 05 06 01 2A 05 00");
    EXPECT_EQ(kovra_asn1_content_length(128, other_certificate.get()), 5);
    EXPECT_EQ(encoding(Value(130, kovra_cmsrevinfochoice_newotherrevinfo(other_certificate.get()))), "A10506012A0500");

    // Any content is PKCS #7, only an OCTET STRING is CMS; lengths do not tell.
    Value any_content = decoded(133, "30 10 02 01 01 31 00 30 07 06 01 2A A0 02 30 00 31 00");
    EXPECT_EQ(kovra_asn1_length(134, any_content.get()), 18);
    EXPECT_EQ(encode(134, any_content.get()).codes, Codes({0x10355}));
    EXPECT_EQ(encode_content(134, any_content.get(), 16).codes, Codes({0x10355}));
    EXPECT_EQ(encode(133, any_content.get()).result, 1);

    // An element that lies about its length is found out when it is written; each alternative has its code.
    for (int n : {0, 1, 2}) {
        Value choice = decode(129, std::string(1, static_cast<char>(0xA0 + n)) + octets("02 05 00")).value;
        kovra_asn1_value *lie = kovra_asn1_any_new(0, 1, 4, 5, "abc", 3);
        EXPECT_EQ(kovra_asn1_list_put(kovra_cmscertchoice_getx509pubkeycert(choice.get()), lie), 1);
        EXPECT_EQ(encode(129, choice.get()).codes, Codes({0x10235, 0x10235, 0x10343 + 2 * n}));
    }

    // A set of many is built when it is asked for; what is wrong with the last is told as of the only one.
    std::string set, certificate = octets(sample(39));
    for (int i = 0; i < 100; ++i)
        set += certificate;
    auto of_length = [](const std::string &content) {
        Stream header = memory_stream();
        kovra_asn1_encode_length(header.get(), size_of(content), nullptr, nullptr);
        return "1" + taken(header) + content;
    };
    Decoded many = decode(131, of_length(set));
    kovra_asn1_value *last = nullptr;
    ASSERT_EQ(kovra_asn1_list_get(many.value.get(), 99, &last), 1);
    EXPECT_EQ(hex(encode(39, kovra_cmscertchoice_getx509pubkeycert(last)).octets), hex(certificate));
    EXPECT_EQ(encoding(many.value), hex(of_length(set)));
    EXPECT_EQ(decode(131, of_length(set + octets("A1 00"))).codes, Codes({0x1020c, 0x10346}));
    EXPECT_EQ(decode(131, of_length(set + octets("A4 00"))).codes, Codes({0x1020a}));
}

} // namespace
} // namespace kovra::test
