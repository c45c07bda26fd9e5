// Constructors whose memory is not all the caller's, and what is said when there is none to write with.
#include "base/thresholds.hpp"
#include "tests/failing_memory.hpp"
#include "tests/pkix_testing.hpp"

#if defined(__SANITIZE_ADDRESS__)
// A BOOLEAN of each call with a length stays behind, which callers are told.
extern "C" const char *__lsan_default_suppressions() {
    return "leak:kovra_x509basicconstraints_new";
}
#endif

namespace kovra::test {
namespace {

Value noted_value(uint32_t type, std::string_view text) {
    return decode(type, noted(text)).value;
}

std::string noted_hex(std::string_view text) {
    return hex(noted(text));
}

// When the values cannot be copied, what is released is the caller's own type.
TEST(PkixBuild, AttributesTakeTheirTypeWithThem) {
    const Value values = noted_value(26, "31({int} {null})"), integer = noted_value(2, "{int}");
    Value type = noted_value(6, "{oid}");
    Value made(42, kovra_x500attribute_new(type.get(), values.get()));
    EXPECT_EQ(encoding(made), noted_hex("30({oid} 31({int} {null}))"));
    EXPECT_EQ(encoding(type), noted_hex("{oid}"));
    EXPECT_EQ(encoding(integer), noted_hex("{int}"));
    made = Value();
    const int64_t before = live_blocks();
    for (int64_t good = 0; good < 100 && is_memory_watched(); ++good) {
        Value own = noted_value(6, "{oid}");
        const int64_t with_type = live_blocks();
        {
            const ScarceMemory scarce(good);
            made = Value(42, kovra_x500attribute_new(own.get(), values.get()));
        }
        if (!made && live_blocks() < with_type)
            own.release();
        if (made)
            break;
    }
    EXPECT_TRUE(made || !is_memory_watched());
    made = Value();
    EXPECT_EQ(live_blocks(), before);
    EXPECT_EQ(kovra_x500attribute_new(type.release(), integer.get()), nullptr);
}

TEST(PkixBuild, BasicConstraintsLeaveABooleanBehind) {
    const Value yes = decoded(1, "01 01 FF"), no = decoded(1, "01 01 00"), length = decoded(2, "02 01 03");
    auto made = [](const kovra_asn1_value *ca, const kovra_asn1_value *path_length) {
        const int64_t before = live_blocks();
        Value value(76, kovra_x509basicconstraints_new(ca, path_length));
        std::string text = value ? encoding(value) : "-";
        EXPECT_EQ(kovra_x509basicconstraints_getisca(value.get()) != nullptr, static_cast<bool>(value));
        EXPECT_EQ(kovra_x509basicconstraints_getlen(value.get()) != nullptr, value && path_length != nullptr);
        value = Value();
        EXPECT_TRUE(live_blocks() == before + (path_length != nullptr ? 1 : 0) || !is_memory_watched());
        return text;
    };
    EXPECT_EQ(made(nullptr, nullptr), "3000");
    EXPECT_EQ(made(yes.get(), nullptr), "30030101FF");
    EXPECT_EQ(made(yes.get(), length.get()), "30060101FF020103");
    EXPECT_EQ(made(no.get(), length.get()), "3003020103");
    EXPECT_EQ(made(nullptr, length.get()), "3003020103");
    EXPECT_EQ(made(length.get(), nullptr), "-");
    EXPECT_EQ(made(yes.get(), yes.get()), "-");
}

// Memory that ends while a component is written is reported with the codes of what holds it, from the inside out.
TEST(PkixBuild, CodesOfWhatThereIsNoRoomFor) {
    if (is_tight)
        GTEST_SKIP() << "an error context has room for one entry only";
    for (const auto &row : table("unwritten.txt")) {
        if (!is_memory_watched())
            break;
        SCOPED_TRACE(row[0] + ": " + row[1]);
        const auto type = static_cast<uint32_t>(std::stoul(row[0]));
        const Value value = noted_value(type, row[1]);
        ASSERT_TRUE(value);
        const int32_t length = kovra_asn1_content_length(type, value.get());
        const Stream stream = memory_stream();
        const Errors ctx(kovra_err_ctx_new());
        {
            const ScarceMemory scarce(0);
            EXPECT_EQ(kovra_asn1_encode_content(stream.get(), type, value.get(), length, nullptr, ctx.get()), 0);
        }
        EXPECT_EQ(listed(Codes(ctx.get())), ' ' + row[2]);
    }
}

} // namespace
} // namespace kovra::test
