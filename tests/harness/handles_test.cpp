// What is no handle of the kind that a function takes is refused as null is, and is left alone.
#include <array>

#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"
#include "tests/harness/exports.hpp"

namespace kovra::test {
namespace {

constexpr size_t kind_count = 11;
constexpr HandleKind kind_at(size_t i) {
    return static_cast<HandleKind>(i);
}

// A handle of each kind, with something in it.
class Handles {
public:
    Handles() {
        void *made[] = {kovra_asn1_integer_value(5),
                        kovra_bitset_new(3, "\xF8", 1),
                        kovra_biginteger_newhex("5"),
                        kovra_data_blob_new("blob", 4),
                        kovra_err_ctx_new(),
                        kovra_json_newarray(),
                        kovra_stream_new_mem(0, nullptr),
                        kovra_time_newunix(5, 5),
                        kovra_ustring_newutf8("text", 4),
                        kovra_asn1_decode_any_ctx_new(),
                        kovra_asn1_decode_octetstring_ctx_new()};
        static_assert(std::size(made) == kind_count);
        std::copy(std::begin(made), std::end(made), handles_.begin());
        kovra_stream_writen(get<kovra_stream>(HandleKind::stream), "12345", 5, nullptr, nullptr);
    }
    ~Handles() {
        for (size_t i = 0; i < kind_count; ++i)
            release(kind_at(i), handles_[i], KOVRA_ASN1_TYPE_INTEGER);
    }
    Handles(const Handles &) = delete;

    template <class T = void> [[nodiscard]] T *get(HandleKind kind) const {
        return static_cast<T *>(handles_[static_cast<size_t>(kind)]);
    }
    // What can be seen of them all.
    [[nodiscard]] std::string state() const {
        std::ostringstream text;
        const uint8_t *data = nullptr;
        int64_t length = 0;
        kovra_stream_peek(get<kovra_stream>(HandleKind::stream), &data, &length);
        text << hex(encode(2, get<kovra_asn1_value>(HandleKind::value)).octets) << ' '
             << kovra_bitset_getsize(get<kovra_bitset>(HandleKind::bitset)) << ' '
             << Memory<char>(kovra_biginteger_tohex(get<kovra_biginteger>(HandleKind::biginteger))).get() << ' '
             << text_of(get<kovra_data_blob>(HandleKind::blob)) << ' '
             << kovra_err_ctx_getcount(get<kovra_err_ctx>(HandleKind::context)) << ' '
             << Memory<char>(kovra_json_print(get<kovra_json>(HandleKind::json), 0, nullptr)).get() << ' ' << length
             << ' ' << kovra_time_getsecond(get<kovra_time>(HandleKind::time)) << ' '
             << text_of(Blob(kovra_ustring_toutf8(get<kovra_ustring>(HandleKind::text))).get()) << ' '
             << kovra_asn1_decode_any_isfinish(get<kovra_asn1_decode_any_ctx>(HandleKind::any_context)) << ' '
             << kovra_asn1_decode_octetstring_ctx_getencodelength(
                    get<kovra_asn1_decode_octetstring_ctx>(HandleKind::string_context));
        return text.str();
    }

private:
    std::array<void *, kind_count> handles_ = {};
};

// Calls with handles of the right kinds but for one parameter. Whether it made something, or the number it gave.
int64_t answer(const Export &row, size_t wrong_place, void *wrong) {
    const Handles good;
    int64_t places[16] = {};
    char room[64] = "5";
    std::vector<Word> words(row.parameters.size());
    for (size_t i = 0; i < words.size(); ++i) {
        const Parameter &parameter = row.parameters[i];
        if (parameter.form == Form::integer || parameter.form == Form::natural)
            words[i].integer = 1;
        else if (parameter.form == Form::text || parameter.form == Form::octets || parameter.form == Form::room)
            words[i].pointer = room;
        else if (parameter.form == Form::handle)
            words[i].pointer = i == wrong_place ? wrong : good.get(parameter.kind);
        else if (parameter.form != Form::real && parameter.form != Form::other)
            words[i].pointer = &places[i];
    }
    const Word result = row.call(words.data());
    release_given(row, words.data(), result);
    if (row.result.form == Form::integer)
        return result.integer;
    return row.result.form != Form::nothing && result.pointer != nullptr ? 1 : 0;
}

TEST(Handles, OfAnotherKindAreNone) {
    const Handles others;
    const std::string before = others.state();
    size_t refused = 0;
    for (const Export &row : exports())
        for (size_t place = 0; place < row.parameters.size(); ++place) {
            // Values of other kinds are for Functions; new_file would open what is named.
            const Parameter &parameter = row.parameters[place];
            if (parameter.form != Form::handle || parameter.kind == HandleKind::value ||
                row.name == "kovra_stream_new_file")
                continue;
            const int64_t blocks = live_blocks(), as_null = answer(row, place, nullptr);
            for (size_t i = 0; i < kind_count; ++i) {
                if (kind_at(i) == parameter.kind)
                    continue;
                EXPECT_EQ(answer(row, place, others.get(kind_at(i))), as_null) << row.name << ' ' << place << ' ' << i;
                ++refused;
            }
            EXPECT_EQ(live_blocks(), blocks) << row.name;
            ASSERT_EQ(others.state(), before) << row.name;
        }
    EXPECT_GT(refused, 1000u);
}

} // namespace
} // namespace kovra::test
