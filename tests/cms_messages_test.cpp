// Messages as other programs write them: every nested value is of its type, and comes back to the octet.
#include <algorithm>
#include <filesystem>
#include <set>

#include "tests/cms_layouts.hpp"
#include "tests/failing_memory.hpp"

namespace kovra::test {
namespace {

namespace fs = std::filesystem;

struct Message {
    std::string name;
    std::string octets;
    bool is_der() const { return name.substr(name.size() - 4) == ".der"; }
};

std::vector<Message> messages() {
    std::vector<Message> found;
    for (const auto &entry : fs::directory_iterator(KOVRA_SOURCE_DIR "/examples")) {
        std::string name = entry.path().filename().string();
        if (name.rfind("cms-", 0) != 0 && name.rfind("pkcs7-", 0) != 0 && name.rfind("certtool-", 0) != 0)
            continue;
        std::ifstream file(entry.path(), std::ios::binary);
        found.push_back({name, {std::istreambuf_iterator<char>(file), {}}});
    }
    std::sort(found.begin(), found.end(), [](const Message &a, const Message &b) { return a.name < b.name; });
    EXPECT_GE(found.size(), 26u);
    return found;
}

// The type of the content of a ContentInfo; 23 for those that have no structure here.
uint32_t content_type(Handle info) {
    const std::map<std::string, uint32_t> types = {{"1.2.840.113549.1.7.1", 4},   {"1.2.840.113549.1.7.2", 134},
                                                   {"1.2.840.113549.1.7.3", 164}, {"1.2.840.113549.1.7.5", 121},
                                                   {"1.2.840.113549.1.7.6", 149}, {"1.2.840.113549.1.9.16.1.23", 23}};
    return types.at(kovra_asn1_oid_getstring(kovra_pkcs7contentinfo_getcontenttype(info)));
}

// The content of a message in its type; empty, and the codes, where it is refused.
Value content(Handle info, Codes *codes = nullptr) {
    Errors ctx(kovra_err_ctx_new());
    kovra_asn1_value *out = nullptr;
    uint32_t type = content_type(info);
    kovra_asn1_any_toobject(kovra_pkcs7contentinfo_getcontent(info), type, &out, ctx.get());
    if (codes != nullptr)
        *codes = ctx.get();
    return {type, out};
}

class Walk {
public:
    explicit Walk(const Message &message) : message_(message) {}

    // Everything in a value is written as what stands in the message, but for an implicit tag, and read again.
    void visit(uint32_t type, Handle value) {
        SCOPED_TRACE("type " + std::to_string(type));
        seen.insert(type);
        std::string written = encode(type, value).octets;
        ASSERT_NE(written, "");
        if (message_.is_der()) {
            EXPECT_NE(message_.octets.find(written.substr(1)), std::string::npos) << hex(written);
        }
        EXPECT_EQ(encoding(decode(type, written).value), hex(written));
        for (const Layout &layout : layouts())
            for (const Part &part : layout.parts)
                if (layout.type == type && part.get(value) != nullptr)
                    visit(part.type, part.get(value));
        for (const Alternative &row : alternatives())
            if (row.type == type && row.get_number(value) == row.number)
                visit(row.part.type, row.part.get(value));
        if (auto list = lists().find(type); list != lists().end())
            for (int32_t i = 0; i < kovra_asn1_list_getsize(value); ++i)
                visit(list->second, element(value, i));
        if (type == 43 && encode(6, kovra_x500attribute_gettype(value)).octets == octets("06 09 2A864886F70D010906"))
            visit_countersignature(element(kovra_x500attribute_getvalue(value), 0));
    }

    static inline std::set<uint32_t> seen;

private:
    static kovra_asn1_value *element(Handle list, int32_t index) {
        kovra_asn1_value *found = nullptr;
        EXPECT_EQ(kovra_asn1_list_get(const_cast<kovra_asn1_value *>(list), index, &found), 1);
        return found;
    }
    void visit_countersignature(kovra_asn1_value *any) {
        kovra_asn1_value *signer = nullptr;
        EXPECT_EQ(kovra_asn1_any_toobject(any, 124, &signer, nullptr), 1);
        visit(124, Value(124, signer).get());
        ++countersignatures;
    }
    const Message &message_;

public:
    static inline int countersignatures = 0;
};

TEST(Messages, EveryNestedValueComesBack) {
    for (const Message &message : messages()) {
        SCOPED_TRACE(message.name);
        for (Feed feed : {Feed::memory, Feed::trickle}) {
            Decoded info = decode(111, message.octets, feed);
            ASSERT_EQ(info.result, 1);
            EXPECT_EQ(info.consumed, message.octets.size());
            std::string again = encode(111, info.value.get()).octets;
            EXPECT_EQ(hex(again), hex(message.octets));
            Codes codes;
            Value inner = content(info.value.get(), &codes);
            // The key derivation algorithm of a password is not read where the standard has it.
            if (message.name == "cms-enveloped-password.der") {
                EXPECT_EQ(codes, Codes({0x1020a, 0x1024d, 0x10374, 0x10378, 0x1037a, 0x1037c}));
                continue;
            }
            Walk(message).visit(111, info.value.get());
            ASSERT_TRUE(inner);
            Walk(message).visit(inner.type(), inner.get());
        }
    }
    EXPECT_EQ(Walk::countersignatures, 2);
    constexpr uint32_t types[] = {4,   39,  41,  44,  111, 121, 122, 123, 124, 125, 126, 129, 130, 131, 132,
                                  134, 148, 149, 151, 152, 154, 155, 156, 157, 158, 159, 162, 163, 164};
    for (uint32_t type : types) {
        EXPECT_EQ(Walk::seen.count(type), 1u) << type;
    }
}

} // namespace
} // namespace kovra::test
