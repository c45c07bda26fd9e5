// Every exported function that takes a value, called with values of every kind. The list of the functions is made from
// the public headers, so that none is forgotten.
#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <set>
#include <tuple>

#include "core/structure.hpp"
#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"
#include "tests/harness/samples.hpp"

namespace kovra::test {
namespace {

using Handle = kovra_asn1_value *;

const core::Value *record_of(const kovra_asn1_value *handle) {
    return static_cast<const core::Value *>(handle);
}

// What a value is: its kind, and the table that it is a value of.
using Identity = std::tuple<core::Kind, const void *>;

Identity identity(const kovra_asn1_value *handle) {
    const core::Value *value = record_of(handle);
    const void *shape = nullptr;
    if (value->kind == core::Kind::record)
        shape = static_cast<const core::Record *>(value)->shape;
    else if (value->kind == core::Kind::choice)
        shape = static_cast<const core::Choice *>(value)->shape;
    return {value->kind, shape};
}

bool is_free(const kovra_asn1_value *handle) {
    const core::Value *value = record_of(handle);
    return value->arena->is_root(value) && !value->arena->is_owned();
}

// Values of every kind.
struct Kept {
    uint32_t type;
    std::string octets;
    Value value;
};

const std::vector<Kept> &pool() {
    static const std::vector<Kept> all = [] {
        std::vector<Kept> made;
        for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type)
            for (const Sample &sample : samples(type))
                if (sample.what != "long")
                    if (Value value = decode(type, sample.octets).value)
                        made.push_back({type, sample.octets, std::move(value)});
        // Values within values, what is no value, and strings of just the right length.
        for (const auto &[type, hex] : {std::pair(3u, "03 05 00 04 02 41 42"), std::pair(4u, "04 04 04 02 41 42"),
                                        std::pair(23u, "A0 04 04 02 41 42"), std::pair(23u, "00 00"),
                                        std::pair(48u, "30 24 04 10 00112233445566778899AABBCCDDEEFF"
                                                       "04 10 00112233445566778899AABBCCDDEEFF")})
            made.push_back({type, octets(hex), decoded(type, hex)});
        return made;
    }();
    return all;
}

// Numbers that are lengths, tags, indices or modes.
constexpr int32_t numbers[] = {0, 1, 4, 12, -1};
constexpr int32_t size_of_room = 1 << 16; // octets of a buffer

// What a call is made with besides the values, and what came of it.
struct Call {
    std::vector<Handle> values;
    size_t next = 0;
    int32_t number = 0;
    uint32_t type = KOVRA_ASN1_TYPE_OCTET_STRING;
    Stream stream;
    Errors errors;
    std::vector<char> buffer = std::vector<char>(size_of_room);
    std::array<Handle, 2> made = {};
    std::array<int32_t, 4> numbers = {};
    size_t next_number = 0;
};

template <class T> T argument(Call &call, const char *&letters) {
    [[maybe_unused]] const char letter = *letters++;
    if constexpr (std::is_same_v<T, const void *> || std::is_same_v<T, void *>)
        return letter == 'b' ? call.buffer.data() : call.values[call.next++];
    else if constexpr (std::is_same_v<T, kovra_asn1_value **>)
        return &call.made[1];
    else if constexpr (std::is_same_v<T, int32_t *>)
        return &call.numbers.at(call.next_number++);
    else if constexpr (std::is_same_v<T, int32_t>)
        return call.number;
    else if constexpr (std::is_same_v<T, uint32_t>)
        return call.type;
    else if constexpr (std::is_same_v<T, kovra_stream *>)
        return call.stream.get();
    else if constexpr (std::is_same_v<T, kovra_err_ctx *>)
        return call.errors.get();
    else {
        static_assert(std::is_same_v<T, const kovra_asn1_decode_any_ctx *>, "a parameter that there is no value for");
        return nullptr;
    }
}

// The result as a number, by which answers are told apart: what was made is told by its being there.
int64_t answer(Call &call, kovra_asn1_value *value) {
    call.made[0] = value;
    return value != nullptr ? 1 : 0;
}
int64_t answer(Call &, int32_t number) {
    return number;
}
int64_t answer(Call &, const char *text) {
    return text != nullptr ? 1 : 0;
}
int64_t answer(Call &, kovra_data_blob *blob) {
    return Blob(blob) != nullptr ? 1 : 0;
}
int64_t answer(Call &, kovra_bitset *set) {
    return BitSet(set) != nullptr ? 1 : 0;
}
int64_t answer(Call &, kovra_biginteger *number) {
    return BigInteger(number) != nullptr ? 1 : 0;
}
int64_t answer(Call &, kovra_time *time) {
    return std::unique_ptr<kovra_time, Releaser<kovra_time_free>>(time) != nullptr ? 1 : 0;
}

struct Function {
    std::string name;
    size_t values = 0;
    bool may_change = false; // it takes a value that is not constant
    std::function<int64_t(Call &)> call;
};

template <class Result, class... Parameters>
Function function(const char *name, std::string_view letters, Result (*address)(Parameters...) noexcept) {
    Function made;
    made.name = name;
    made.may_change = letters.find('w') != letters.npos;
    made.values = static_cast<size_t>(std::count(letters.begin(), letters.end(), 'v') +
                                      std::count(letters.begin(), letters.end(), 'w'));
    made.call = [letters, address](Call &call) -> int64_t {
        call.next = call.next_number = 0;
        // Braces have the arguments made in their order.
        const char *letter = letters.data();
        std::tuple<Parameters...> arguments{argument<Parameters>(call, letter)...};
        if constexpr (std::is_void_v<Result>) {
            std::apply(address, arguments);
            return 0;
        } else {
            return answer(call, std::apply(address, arguments));
        }
    };
    return made;
}

const std::vector<Function> &functions() {
    static const std::vector<Function> all = {
#include "functions.inc"
    };
    return all;
}

bool releases(const Function &function) {
    return function.name == "kovra_asn1_value_free" || function.name == "kovra_asn1_list_free";
}

// Calls with values of the pool (null: none) and a number, and releases what was made. What may be changed is a copy.
// `look` sees the call before that.
template <class Look>
int64_t call_with(const Function &function, const std::vector<const Kept *> &arguments, int32_t number, Look look) {
    static Call call; // its buffer is large
    call.errors.reset(kovra_err_ctx_new());
    call.stream.reset(kovra_stream_new_mem(0, nullptr));
    call.values.clear();
    call.number = number;
    call.made = {};
    call.numbers = {size_of_room};
    std::vector<Handle> copies;
    for (const Kept *kept : arguments) {
        Handle value = kept != nullptr ? kept->value.get() : nullptr;
        if (kept != nullptr && function.may_change) {
            value = decode(kept->type, kept->octets).value.release();
            copies.push_back(value);
        }
        call.values.push_back(value);
    }
    const int64_t found = function.call(call);
    look(call);
    if (releases(function))
        return found;
    std::vector<Handle> ours;
    for (const Handle copy : copies)
        if (is_free(copy))
            ours.push_back(copy);
    for (const Handle made : call.made)
        if (made != nullptr && is_free(made) && std::find(ours.begin(), ours.end(), made) == ours.end() &&
            std::find(call.values.begin(), call.values.end(), made) == call.values.end())
            ours.push_back(made);
    for (const Handle value : ours)
        kovra_asn1_value_free(0, value);
    return found;
}

int64_t call_with(const Function &function, const std::vector<const Kept *> &arguments, int32_t number = 0) {
    return call_with(function, arguments, number, [](const Call &) {});
}

std::vector<std::string> encodings() {
    std::vector<std::string> found;
    for (const Kept &kept : pool())
        found.push_back(encode(kept.type, kept.value.get()).octets);
    return found;
}

// Those that work on more than one kind of value by what they are for.
const std::map<std::string, size_t> &kinds_taken() {
    static const std::map<std::string, size_t> all = {
        {"kovra_asn1_integer_getlength", 2},
        {"kovra_ess_signingcertificate_getcerts", 2},
        {"kovra_ess_signingcertificate_getpolicies", 2},
    };
    return all;
}

TEST(Functions, OneValueOfAnyKind) {
    const std::vector<std::string> before = encodings();
    std::map<std::string, size_t> several;
    for (const Function &function : functions()) {
        if (function.values != 1)
            continue;
        SCOPED_TRACE(function.name);
        std::set<Identity> taken;
        for (const int32_t number : numbers) {
            const int64_t none = call_with(function, {nullptr}, number);
            for (const Kept &kept : pool())
                if (call_with(function, {&kept}, number) != none)
                    taken.insert(identity(kept.value.get()));
        }
        if (taken.size() > 1)
            several[function.name] = taken.size();
        else
            EXPECT_TRUE(taken.size() == 1 || releases(function)) << "nothing is right for it";
    }
    EXPECT_EQ(several, kinds_taken());
    EXPECT_EQ(encodings(), before);
}

// The values that a constructor is meant for are found by trying the components of each structure that has as many as
// it has parameters. In each place it takes values of the component's type and no others.
TEST(Functions, SeveralValuesOfAnyKind) {
    const std::vector<std::string> before = encodings();
    std::vector<std::vector<Kept>> components(KOVRA_ASN1_TYPE_COUNT);
    for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type) {
        const core::Type &row = core::row(type);
        const std::vector<Sample> values = component_values(row);
        for (size_t i = 0; i < values.size(); ++i) {
            const uint32_t number = static_cast<const core::Structure *>(row.shape)->components[i].copied_as->number;
            components[type].push_back({number, values[i].octets, decode(number, values[i].octets).value});
        }
    }
    size_t understood = 0;
    for (const Function &function : functions()) {
        SCOPED_TRACE(function.name);
        std::vector<const Kept *> all(function.values);
        for (const Kept &kept : pool()) {
            for (size_t place = 0; function.values > 1 && place < function.values; ++place) {
                std::vector<const Kept *> one(function.values);
                one[place] = &kept;
                call_with(function, one);
            }
            std::fill(all.begin(), all.end(), &kept);
            if (!releases(function))
                call_with(function, all);
        }
        if (function.values == 0 || releases(function))
            continue;
        for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type) {
            const std::vector<Kept> &values = components[type];
            if (values.size() != function.values)
                continue;
            const auto *shape = static_cast<const core::Structure *>(core::row(type).shape);
            std::vector<const Kept *> right;
            for (const Kept &kept : values)
                right.push_back(&kept);
            bool is_made = false;
            call_with(function, right, 0, [&](const Call &call) {
                is_made = call.made[0] != nullptr && is_free(call.made[0]) &&
                          identity(call.made[0]) == Identity(core::Kind::record, shape->shape());
            });
            if (!is_made)
                continue;
            ++understood;
            for (size_t place = 0; place < function.values; ++place) {
                for (const Kept &kept : pool()) {
                    std::vector<const Kept *> changed = right;
                    changed[place] = &kept;
                    call_with(function, changed, 0, [&](const Call &call) {
                        const auto *made = static_cast<const core::Record *>(record_of(call.made[0]));
                        EXPECT_TRUE(made == nullptr || made->slot(static_cast<uint8_t>(place)) == nullptr ||
                                    core::holds(*shape->components[place].copied_as, record_of(kept.value.get())))
                            << "place " << place << " takes a value of type " << kept.type;
                    });
                }
            }
            break;
        }
    }
    RecordProperty("understood", static_cast<int>(understood));
    EXPECT_GT(understood, 100u);
    EXPECT_EQ(encodings(), before);
}

} // namespace
} // namespace kovra::test
