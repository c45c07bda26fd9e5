#include "tests/harness/functions.hpp"

#include <algorithm>
#include <map>
#include <set>

#include "core/structure.hpp"

namespace kovra::test {

Identity identity(const kovra_asn1_value *handle) {
    const core::Value *value = record_of(handle);
    const void *shape = nullptr;
    if (value->kind == core::Kind::structure)
        shape = static_cast<const core::Structure *>(value)->shape;
    else if (value->kind == core::Kind::choice)
        shape = static_cast<const core::Choice *>(value)->shape;
    return {value->kind, shape};
}

bool is_free(const kovra_asn1_value *handle) {
    const core::Value *value = record_of(handle);
    return value->arena->is_root(value) && !value->arena->is_owned();
}

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

namespace {

constexpr int32_t size_of_room = 1 << 16; // octets of a buffer

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

template <class Result, class... Parameters> int64_t call_of(const Function &function, Call &call) {
    const auto address = reinterpret_cast<Result (*)(Parameters...) noexcept>(function.address);
    // Braces have the arguments made in their order.
    const char *letter = function.letters.data();
    std::tuple<Parameters...> arguments{argument<Parameters>(call, letter)...};
    if constexpr (std::is_void_v<Result>) {
        std::apply(address, arguments);
        return 0;
    } else {
        return answer(call, std::apply(address, arguments));
    }
}

template <class Result, class... Parameters>
Function function(const char *name, std::string_view letters, Result (*address)(Parameters...) noexcept) {
    return {name, letters, reinterpret_cast<void (*)()>(address), call_of<Result, Parameters...>};
}

// Has the call released its first value? Beside what is there for that, one constructor does when it fails, unless it
// is that value that cannot be copied.
bool released_first(const Function &function, const std::vector<const Kept *> &arguments, int64_t found) {
    const std::string_view name = function.name;
    if (arguments.empty() || arguments[0] == nullptr)
        return false;
    const core::Kind kind = record_of(arguments[0]->value.get())->kind;
    if (name == "kovra_asn1_list_free")
        return kind == core::Kind::list;
    return name == "kovra_asn1_value_free" || (name == "kovra_x500attribute_new" && found == 0 &&
                                               arguments[1] != nullptr && kind == core::Kind::object_identifier);
}

} // namespace

size_t Function::values() const {
    return static_cast<size_t>(
        std::count_if(letters.begin(), letters.end(), [](char letter) { return letter == 'v' || letter == 'w'; }));
}

std::span<const Function> functions() {
    static const Function all[] = {
#include "functions.inc"
    };
    return all;
}

bool releases(const Function &function) {
    return std::string_view(function.name) == "kovra_asn1_value_free" ||
           std::string_view(function.name) == "kovra_asn1_list_free";
}

int64_t call_with(const Function &function, const std::vector<const Kept *> &arguments, int32_t number,
                  const std::function<void(const Call &)> &look) {
    static Call call; // its buffer is large
    call.errors.reset(kovra_err_ctx_new());
    call.stream.reset(kovra_stream_new_mem(0, nullptr));
    call.values.clear();
    call.next = call.next_number = 0;
    call.number = number;
    call.made = {};
    call.numbers = {size_of_room};
    std::vector<Handle> copies;
    for (const Kept *kept : arguments) {
        Handle value = kept != nullptr ? kept->value.get() : nullptr;
        if (kept != nullptr && function.may_change()) {
            value = decode(kept->type, kept->octets).value.release();
            copies.push_back(value);
        }
        call.values.push_back(value);
    }
    const int64_t found = function.call(function, call);
    call.stream.reset();
    call.errors.reset();
    if (released_first(function, arguments, found)) {
        copies.erase(copies.begin());
        call.values[0] = nullptr;
    }
    if (look)
        look(call);
    std::vector<Handle> ours;
    for (const Handle copy : copies)
        if (is_free(copy))
            ours.push_back(copy);
    for (const Handle made : call.made)
        if (made != nullptr && is_free(made) && std::find(ours.begin(), ours.end(), made) == ours.end() &&
            std::find(call.values.begin(), call.values.end(), made) == call.values.end())
            ours.push_back(made);
    for (const Handle value : ours)
        kovra_asn1_value_free(KOVRA_ASN1_TYPE_ANY, value);
    return found;
}

const std::vector<Identity> &kinds_of(const Function &function) {
    static std::map<std::string, std::vector<Identity>> known;
    const auto [at, is_new] = known.emplace(function.name, std::vector<Identity>());
    if (!is_new || function.values() != 1)
        return at->second;
    std::set<Identity> taken;
    for (const int32_t number : numbers) {
        const int64_t none = call_with(function, {nullptr}, number);
        for (const Kept &kept : pool())
            if (call_with(function, {&kept}, number) != none)
                taken.insert(identity(kept.value.get()));
    }
    return at->second = {taken.begin(), taken.end()};
}

void read_everything(kovra_asn1_value *value) {
    static const std::multimap<Identity, const Function *> readers = [] {
        std::multimap<Identity, const Function *> found;
        for (const Function &function : functions())
            if (!function.may_change())
                for (const Identity &kind : kinds_of(function))
                    found.emplace(kind, &function);
        return found;
    }();
    const Kept kept = {0, "", Value(KOVRA_ASN1_TYPE_ANY, value)};
    const auto [begin, end] = readers.equal_range(identity(value));
    for (auto at = begin; at != end; ++at)
        call_with(*at->second, {&kept});
    const_cast<Value &>(kept.value).release();
}

void read_everything_within(kovra_asn1_value *value) {
    std::vector<kovra_asn1_value *> left = {value};
    while (!left.empty()) {
        const Handle handle = left.back();
        left.pop_back();
        read_everything(handle);
        const core::Value *record = record_of(handle);
        const auto add = [&](core::Value *part) {
            if (part != nullptr)
                left.push_back(part);
        };
        if (record->kind == core::Kind::structure)
            for (uint8_t i = 0; i < static_cast<const core::Structure *>(record)->shape->count; ++i)
                add(static_cast<const core::Structure *>(record)->slot(i));
        else if (record->kind == core::Kind::choice)
            add(static_cast<const core::Choice *>(record)->value);
        Handle part = nullptr;
        for (int32_t i = 0; kovra_asn1_list_get(handle, i, &part) == 1; ++i)
            left.push_back(part);
    }
}

} // namespace kovra::test
