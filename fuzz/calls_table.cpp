#include "fuzz/calls_table.hpp"

#include <algorithm>
#include <cstring>
#include <set>
#include <utility>

#include "fuzz/machine.hpp"
#include "fuzz/memory.hpp"
#include "kovra/util.h"

namespace kovra::fuzz {

namespace {

using test::Form;
using test::Parameter;
using test::Word;

// Is it the length of what stands in front of it?
bool is_length_of(const Parameter &previous, const Parameter &parameter) {
    const bool is_size = parameter.form == Form::integer && parameter.size == sizeof(int64_t);
    const bool is_count = parameter.form == Form::integer && parameter.size == sizeof(int32_t);
    switch (previous.form) {
    case Form::octets:
    case Form::room:
    case Form::positions:
        return is_size || is_count;
    case Form::text:
        return is_size;
    default:
        return false;
    }
}

// A call as it is being made: the handles among its arguments, in order, and what an argument says of the next.
struct Call {
    struct Chosen {
        HandleKind kind; // that the function asks for
        size_t index;
    };
    const Export &function;
    std::vector<Chosen> handles;
    size_t last_length = 0;
    int64_t last_number = 0;

    [[nodiscard]] size_t first(HandleKind kind) const {
        const auto found =
            std::find_if(handles.begin(), handles.end(), [kind](const Chosen &one) { return one.kind == kind; });
        return found != handles.end() ? found->index : Machine::none;
    }
};

// What is drawn for a parameter, by its form and those of its neighbours.
struct Argument {
    const Parameter *parameter = nullptr;
    uint8_t first = 0;
    uint64_t number = 0;
    bool exists = true;
    std::string_view octets;
    void *place = nullptr;
};

// The parameters around one; there is nothing in front of the first and behind the last.
struct Neighbours {
    Parameter previous, next;
    Neighbours(std::span<const Parameter> all, size_t i)
        : previous(i > 0 ? all[i - 1] : Parameter{Form::nothing}),
          next(i + 1 < all.size() ? all[i + 1] : Parameter{Form::nothing}) {}
};

constexpr size_t uuid = 16; // octets

// From here on what was drawn is a number of several octets.
constexpr uint8_t wide = 0xF0;

Argument drawn(Draw &input, std::span<const Parameter> all, size_t i) {
    Argument argument;
    argument.parameter = &all[i];
    switch (all[i].form) {
    case Form::octets:
    case Form::text:
    case Form::positions: {
        // As many as one or two octets say; not there with the count 0xFF.
        constexpr uint8_t two = 0xF0, null = 0xFF;
        const uint8_t first = input.octet();
        argument.exists = first != null;
        argument.octets = input.octets(first < two     ? first
                                       : first != null ? (first - two) * size_t{256} + input.octet()
                                                       : 0);
        break;
    }
    case Form::integer:
    case Form::natural:
    case Form::real:
        argument.first = input.octet();
        argument.number = argument.first < wide || is_length_of(Neighbours(all, i).previous, all[i])
                              ? argument.first
                              : input.number(all[i].size);
        break;
    default:
        argument.first = input.octet();
        argument.exists = argument.first != 0xFF;
    }
    return argument;
}

int64_t length(const Argument &argument, size_t last_length) {
    // Mostly what it is; shorter; or nothing that is a length.
    if (argument.first < 0xE0)
        return static_cast<int64_t>(last_length);
    if (argument.first < 0xF0)
        return static_cast<int64_t>(last_length / (argument.first < 0xE8 ? 2 : 8));
    return argument.first < 0xF8 ? 0 : argument.first < 0xFF ? -1 : INT32_MIN;
}

// What is passed, when all arguments are drawn.
Word resolved(Argument &argument, const Neighbours &around, Machine &machine, Call &call) {
    const Parameter &parameter = *argument.parameter;
    const size_t size = argument.octets.size();
    Word word;
    switch (parameter.form) {
    case Form::handle: {
        const size_t index = machine.choose(parameter.kind, argument.first);
        call.handles.push_back({parameter.kind, index});
        word.pointer = machine.handle(index);
        break;
    }
    case Form::real:
        word.real = argument.first - 2;
        if (argument.first >= wide)
            std::memcpy(&word.real, &argument.number, sizeof word.real);
        break;
    case Form::integer:
        if (is_length_of(around.previous, parameter)) {
            word.integer = length(argument, call.last_length);
            break;
        }
        // -1 and -2 are lengths, 1 and 2 modes.
        word.integer = static_cast<int64_t>(argument.number) - (argument.first < wide ? 2 : 0);
        call.last_number = parameter.size == sizeof(int32_t) ? static_cast<int32_t>(word.integer) : word.integer;
        break;
    case Form::natural:
        word.integer = call.last_number = static_cast<int64_t>(argument.number);
        break;
    case Form::octets:
        // What has no length beside it is a UUID; a length of -1 means zero-terminated, so there is always a zero.
        call.last_length = size;
        if (argument.exists)
            word.pointer = machine.keep(argument.octets, is_length_of(parameter, around.next) ? size + 1 : uuid);
        break;
    case Form::text:
        call.last_length = size;
        if (argument.exists)
            word.pointer = machine.keep(argument.octets, size + (is_length_of(parameter, around.next) ? 0 : 1));
        break;
    case Form::positions: {
        // Of two octets each. The first is read even when their number is 0.
        call.last_length = size / 2;
        if (!argument.exists)
            break;
        auto *numbers = reinterpret_cast<int32_t *>(machine.keep({}, (call.last_length + 1) * sizeof(int32_t)));
        Draw octets(reinterpret_cast<const uint8_t *>(argument.octets.data()), size);
        for (size_t i = 0; i < call.last_length; ++i)
            numbers[i] = static_cast<int16_t>(octets.number(2));
        word.pointer = numbers;
        break;
    }
    case Form::room: {
        // Without a size beside it there is room for anything.
        const bool has_size = is_length_of(parameter, around.next) ||
                              (around.next.form == Form::place && around.next.size == sizeof(int32_t));
        call.last_length = argument.first;
        if (argument.exists)
            word.pointer = has_size ? machine.keep({}, argument.first) : Machine::large_buffer();
        break;
    }
    default:
        argument.place = machine.keep({}, parameter.size);
        if (around.previous.form == Form::room && parameter.size == sizeof(int32_t)) {
            const auto room = static_cast<int32_t>(call.last_length);
            std::memcpy(argument.place, &room, sizeof room);
        }
        word.pointer = argument.exists ? argument.place : nullptr;
    }
    return word;
}

constexpr bool has(std::string_view name, std::string_view part) {
    return name.find(part) != std::string_view::npos;
}

// A value that is got from a value, and a JSON value that is found in another or put into it, belong to that one.
size_t owner_of_result(const Call &call, HandleKind kind) {
    const bool is_got =
        call.function.parameters.size() == 1 && !has(call.function.name, "_new") && !has(call.function.name, "_create");
    if (kind == HandleKind::json || (kind == HandleKind::value && is_got))
        return call.first(kind);
    return Machine::none;
}

// So does an element of a list. What else is stored in a place is new.
size_t owner_of_place(const Call &call) {
    return call.function.name == "kovra_asn1_list_get" ? call.first(HandleKind::value) : Machine::none;
}

// After a success: functions that take over what they are given. Those with a flag do so when it is 0.
void hand_over(Machine &machine, const Call &call) {
    const auto take = [&](size_t given, size_t owner) {
        if (given != Machine::none && owner != Machine::none)
            machine.hand_over(given, owner);
    };
    const auto handle = [&](size_t i) { return call.handles[i].index; };
    if (call.function.name == "kovra_asn1_list_put" || call.function.name == "kovra_json_addarrayitem" ||
        call.function.name == "kovra_json_addobjectitem" ||
        (call.function.name == "kovra_x500name_addrdn" && call.last_number == 0))
        take(handle(1), handle(0));
    constexpr size_t revoked_certificates = 5;
    if (call.function.name == "kovra_x509TBSCertList_new" && call.last_number == 0)
        take(handle(revoked_certificates), machine.newest());
}

void *pointer_in(const void *place) {
    void *pointer = nullptr;
    std::memcpy(&pointer, place, sizeof pointer);
    return pointer;
}

// What came of a call: handles for the machine, and memory, which is the caller's unless it is constant.
void settle(Machine &machine, const Call &call, const std::vector<Argument> &arguments, const Word &result) {
    const Parameter &given = call.function.result;
    if (given.form == Form::handle)
        machine.add(given.kind, result.pointer, owner_of_result(call, given.kind));
    else if (given.form == Form::new_text || given.form == Form::room)
        kovra_free(result.pointer);
    else if (given.form == Form::text && result.pointer != nullptr)
        check(std::strlen(static_cast<const char *>(result.pointer)) < SIZE_MAX, "a text ends");
    for (const Argument &argument : arguments) {
        if (argument.parameter->form == Form::place_of_handle)
            machine.add(argument.parameter->kind, pointer_in(argument.place), owner_of_place(call));
        else if (argument.parameter->form == Form::place_of_memory)
            kovra_free(pointer_in(argument.place));
    }
    if (given.form == Form::integer ? result.integer == 1 : result.pointer != nullptr)
        hand_over(machine, call);
}

std::vector<Argument> drawn(Draw &input, const Export &function) {
    std::vector<Argument> arguments;
    for (size_t i = 0; i < function.parameters.size(); ++i)
        arguments.push_back(drawn(input, function.parameters, i));
    return arguments;
}

// A stream of the input's octets that gives one at a time, knows no size and cannot be rewound.
struct Trickling {
    const char *at;
    const char *end;
};
int32_t read_one(void *user, void *buffer, int32_t size, int32_t *out_count) {
    auto &from = *static_cast<Trickling *>(user);
    *out_count = from.at != from.end && size > 0 ? 1 : 0;
    if (*out_count == 1)
        *static_cast<char *>(buffer) = *from.at++;
    return 1;
}
kovra_stream *new_trickle(const char *octets, int64_t length, kovra_err_ctx *ctx) noexcept {
    kovra_stream_callbacks callbacks = {};
    callbacks.read = read_one;
    callbacks.close = [](void *user) { delete static_cast<Trickling *>(user); };
    const bool has_octets = octets != nullptr && length > 0;
    auto *from = new Trickling{octets, has_octets ? octets + length : octets};
    kovra_stream *stream = kovra_stream_new_callbacks(&callbacks, from, ctx);
    if (stream == nullptr)
        delete from;
    return stream;
}

const Export new_trickle_row = [] {
    static constexpr Parameter parameters[] = {
        {Form::text}, {Form::integer, {}, true, sizeof(int64_t)}, {Form::handle, HandleKind::context, false}};
    return Export{"new_trickle", parameters, {Form::handle, HandleKind::stream, false}, [](const Word *arguments) {
                      Word result;
                      result.pointer =
                          new_trickle(static_cast<const char *>(arguments[0].pointer), arguments[1].integer,
                                      static_cast<kovra_err_ctx *>(arguments[2].pointer));
                      return result;
                  }};
}();

// Those that the targets replace, that take paths or functions, and two that do by contract what nothing else may: one
// leaves a value unreleased, one releases an argument.
bool is_left_out(std::string_view name) {
    static const std::set<std::string_view> all = {"kovra_malloc",
                                                   "kovra_realloc",
                                                   "kovra_free",
                                                   "kovra_stream_free",
                                                   "kovra_stream_new_file",
                                                   "kovra_stream_new_callbacks",
                                                   "kovra_x500attribute_new",
                                                   "kovra_x509basicconstraints_new"};
    return all.count(name) != 0;
}

} // namespace

bool Function::takes_one_handle() const {
    return row->parameters.size() == 1 && row->parameters[0].form == Form::handle;
}

void Function::skip(Draw &input) const {
    drawn(input, *row);
}

void Function::call(Machine &machine, Draw &input) const {
    std::vector<Argument> arguments = drawn(input, *row);
    Call call{*row, {}};
    std::vector<Word> words;
    for (size_t i = 0; i < arguments.size(); ++i)
        words.push_back(resolved(arguments[i], Neighbours(row->parameters, i), machine, call));
    const int64_t blocks = live_blocks();
    const Word result = row->call(words.data());
    if (row->result.form != Form::nothing)
        settle(machine, call, arguments, result);
    // Whether a handle was released shows in the memory: what is borrowed, or of another kind, is left alone.
    else if (has(row->name, "_free") && live_blocks() != blocks)
        machine.remove_group(call.handles[0].index);
}

uint16_t selector_of(std::string_view name) {
    uint32_t hash = 2166136261U;
    for (const char c : name)
        hash = (hash ^ static_cast<uint8_t>(c)) * 16777619U;
    return static_cast<uint16_t>(hash >> 16 ^ hash);
}

const std::vector<Function> &functions() {
    static const std::vector<Function> all = [] {
        std::vector<Function> made = {{&new_trickle_row, selector_of(new_trickle_row.name)}};
        for (const Export &row : test::exports())
            if (!is_left_out(row.name))
                made.push_back({&row, selector_of(row.name)});
        std::sort(made.begin(), made.end(), [](const Function &left, const Function &right) {
            return std::pair(left.selector, left.row->name) < std::pair(right.selector, right.row->name);
        });
        return made;
    }();
    return all;
}

const Function &function_of(uint16_t selector) {
    const auto found = std::lower_bound(functions().begin(), functions().end(), selector,
                                        [](const Function &one, uint16_t wanted) { return one.selector < wanted; });
    return found != functions().end() ? *found : functions().front();
}

} // namespace kovra::fuzz
