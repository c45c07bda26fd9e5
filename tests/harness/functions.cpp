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

char letter_of(const Parameter &parameter) {
    if (parameter.is_handle(HandleKind::value))
        return parameter.is_constant ? 'v' : 'w';
    if (parameter.form == Form::place_of_handle && parameter.kind == HandleKind::value)
        return 'o';
    return parameter.form == Form::octets || parameter.form == Form::room ? 'b' : '-';
}

// Has the call released its first value? Beside what is there for that, one constructor does when it fails, unless it
// is that value that cannot be copied.
bool released_first(const Function &function, const std::vector<const Kept *> &arguments, int64_t found) {
    const std::string_view name = function.row->name;
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

int64_t Function::operator()(Call &call) const {
    std::vector<Word> words(letters.size());
    size_t next_value = 0, next_number = 0;
    for (size_t i = 0; i < words.size(); ++i) {
        const Parameter &parameter = row->parameters[i];
        if (letters[i] == 'v' || letters[i] == 'w')
            words[i].pointer = call.values.at(next_value++);
        else if (letters[i] == 'o')
            words[i].pointer = &call.made[1];
        else if (letters[i] == 'b')
            words[i].pointer = call.buffer.data();
        else if (parameter.form == Form::place && parameter.size == sizeof(int32_t))
            words[i].pointer = &call.numbers.at(next_number++);
        else if (parameter.form == Form::integer)
            words[i].integer = call.number;
        else if (parameter.form == Form::natural)
            words[i].integer = KOVRA_ASN1_TYPE_OCTET_STRING;
        else if (parameter.is_handle(HandleKind::stream))
            words[i].pointer = call.stream.get();
        else if (parameter.is_handle(HandleKind::context))
            words[i].pointer = call.errors.get();
        else
            EXPECT_TRUE(parameter.is_handle(HandleKind::any_context)) << "no value for parameter " << i << name();
    }
    const Word result = row->call(words.data());
    if (row->result.form == Form::nothing || row->result.form == Form::integer)
        return row->result.form == Form::integer ? result.integer : 0;
    if (row->result.is_handle(HandleKind::value))
        call.made[0] = static_cast<Handle>(result.pointer);
    else if (row->result.form == Form::handle)
        release(row->result.kind, result.pointer, 0);
    return result.pointer != nullptr ? 1 : 0;
}

const std::vector<Function> &functions() {
    static const std::vector<Function> all = [] {
        std::vector<Function> found;
        for (const Export &row : exports()) {
            Function function = {&row, ""};
            for (const Parameter &parameter : row.parameters)
                function.letters += letter_of(parameter);
            const bool makes_one = row.parameters.empty() && row.result.is_handle(HandleKind::value);
            if (makes_one || function.letters.find_first_of("vwo") != function.letters.npos)
                found.push_back(function);
        }
        return found;
    }();
    return all;
}

bool releases(const Function &function) {
    return function.row->name == "kovra_asn1_value_free" || function.row->name == "kovra_asn1_list_free";
}

int64_t call_with(const Function &function, const std::vector<const Kept *> &arguments, int32_t number,
                  const std::function<void(const Call &)> &look) {
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
        if (kept != nullptr && function.may_change()) {
            value = decode(kept->type, kept->octets).value.release();
            copies.push_back(value);
        }
        call.values.push_back(value);
    }
    const int64_t found = function(call);
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
    const auto [at, is_new] = known.emplace(function.name(), std::vector<Identity>());
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
