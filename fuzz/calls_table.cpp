#include "fuzz/calls_table.hpp"

#include <algorithm>
#include <cstring>
#include <tuple>
#include <type_traits>
#include <utility>

#include "fuzz/machine.hpp"
#include "fuzz/memory.hpp"

namespace kovra::fuzz {

namespace {

// Which kind a handle type is; `exists` is false for other types.
template <class T> struct HandleOf { static constexpr bool exists = false; };
template <HandleKind k> struct IsHandle {
    static constexpr bool exists = true;
    static constexpr HandleKind kind = k;
};
template <> struct HandleOf<kovra_asn1_value> : IsHandle<HandleKind::value> {};
template <> struct HandleOf<kovra_bitset> : IsHandle<HandleKind::bitset> {};
template <> struct HandleOf<kovra_biginteger> : IsHandle<HandleKind::biginteger> {};
template <> struct HandleOf<kovra_data_blob> : IsHandle<HandleKind::blob> {};
template <> struct HandleOf<kovra_err_ctx> : IsHandle<HandleKind::context> {};
template <> struct HandleOf<kovra_json> : IsHandle<HandleKind::json> {};
template <> struct HandleOf<kovra_stream> : IsHandle<HandleKind::stream> {};
template <> struct HandleOf<kovra_time> : IsHandle<HandleKind::time> {};
template <> struct HandleOf<kovra_ustring> : IsHandle<HandleKind::text> {};
template <> struct HandleOf<kovra_asn1_decode_any_ctx> : IsHandle<HandleKind::any_context> {};
template <> struct HandleOf<kovra_asn1_decode_octetstring_ctx> : IsHandle<HandleKind::string_context> {};

template <class T> using Pointee = std::remove_const_t<std::remove_pointer_t<T>>;
template <class T> constexpr bool is_handle = std::is_pointer_v<T> &&HandleOf<Pointee<T>>::exists;

// A parameter by its type and those of its neighbours.
template <class Type, class Next> constexpr bool names_length() {
    if constexpr (std::is_same_v<Type, const void *> || std::is_same_v<Type, void *> ||
                  std::is_same_v<Type, const int32_t *>)
        return std::is_same_v<Next, int32_t> || std::is_same_v<Next, int64_t>;
    else
        return std::is_same_v<Type, const char *> && std::is_same_v<Next, int64_t>;
}

template <size_t i, class... P> struct At { using Type = void; };
template <size_t i, class... P>
requires(i < sizeof...(P)) struct At<i, P...> {
    using Type = std::tuple_element_t<i, std::tuple<P...>>;
};

// Octets of the input, as many as one or two octets say; not there with the count 0xFF.
struct Octets {
    bool exists;
    std::string_view octets;
    explicit Octets(Draw &input) {
        constexpr uint8_t two = 0xF0, null = 0xFF;
        const uint8_t first = input.octet();
        exists = first != null;
        octets = input.octets(first < two ? first : exists ? (first - two) * size_t{256} + input.octet() : 0);
    }
};

// A call as it is being made: the handles among its arguments, in order, and what an argument says of the next.
struct Call {
    struct Chosen {
        HandleKind kind; // that the function asks for
        size_t index;
    };
    std::string_view name;
    size_t arguments;
    std::vector<Chosen> handles;
    size_t last_length;
    int64_t last_number;

    [[nodiscard]] size_t first(HandleKind kind) const {
        const auto found =
            std::find_if(handles.begin(), handles.end(), [kind](const Chosen &one) { return one.kind == kind; });
        return found != handles.end() ? found->index : Machine::none;
    }
};

size_t owner_of_place(const Call &call);

// The arguments. Each draws its octets when it is made, and is resolved to what is passed when all are drawn.

template <class Type, class Previous, class Next> struct Argument;

template <class Type, class Previous, class Next>
requires is_handle<Type>
struct Argument<Type, Previous, Next> {
    static constexpr HandleKind kind = HandleOf<Pointee<Type>>::kind;
    uint8_t choice;
    explicit Argument(Draw &input) : choice(input.octet()) {}
    Type resolve(Machine &machine, Call &call) {
        const size_t index = machine.choose(kind, choice);
        call.handles.push_back({kind, index});
        return static_cast<Type>(machine.handle(index));
    }
    void settle(Machine &, const Call &) {}
};

template <class Type, class Previous, class Next>
requires std::is_arithmetic_v<Type>
struct Argument<Type, Previous, Next> {
    static constexpr bool is_length = names_length<Previous, Type>();
    uint64_t number = 0;
    uint8_t first;
    explicit Argument(Draw &input) : first(input.octet()) {
        constexpr uint8_t one_octet = 0xF0;
        number = is_length || first < one_octet ? first : input.number(sizeof(Type));
    }
    Type resolve([[maybe_unused]] Machine &machine, [[maybe_unused]] Call &call) {
        if constexpr (is_length) {
            // Mostly what it is; shorter; or nothing that is a length.
            if (first < 0xE0)
                return static_cast<Type>(call.last_length);
            if (first < 0xF0)
                return static_cast<Type>(call.last_length / (first < 0xE8 ? 2 : 8));
            return first < 0xF8 ? Type{0} : static_cast<Type>(first < 0xFF ? -1 : -2147483647 - 1);
        } else if constexpr (std::is_same_v<Type, double>) {
            double result = 0;
            static_assert(sizeof result == sizeof number);
            std::memcpy(&result, &number, sizeof result);
            return first < 0xF0 ? first - 2 : result;
        } else {
            // -1 and -2 are lengths, 1 and 2 modes.
            const auto value = static_cast<Type>(std::is_same_v<Type, uint32_t> || first >= 0xF0 ? number : number - 2);
            call.last_number = static_cast<int64_t>(value);
            return value;
        }
    }
    void settle(Machine &, const Call &) {}
};

template <class Previous, class Next> struct Argument<const void *, Previous, Next> {
    // What has no length beside it is a UUID; a length of -1 means zero-terminated, so there is always a zero.
    Octets drawn;
    explicit Argument(Draw &input) : drawn(input) {}
    const void *resolve([[maybe_unused]] Machine &machine, [[maybe_unused]] Call &call) {
        constexpr size_t uuid = 16;
        call.last_length = drawn.octets.size();
        if (!drawn.exists)
            return nullptr;
        return machine.keep(drawn.octets, names_length<const void *, Next>() ? drawn.octets.size() + 1 : uuid);
    }
    void settle(Machine &, const Call &) {}
};

template <class Previous, class Next> struct Argument<const char *, Previous, Next> {
    Octets drawn;
    explicit Argument(Draw &input) : drawn(input) {}
    const char *resolve([[maybe_unused]] Machine &machine, [[maybe_unused]] Call &call) {
        call.last_length = drawn.octets.size();
        if (!drawn.exists)
            return nullptr;
        return machine.keep(drawn.octets, drawn.octets.size() + (names_length<const char *, Next>() ? 0 : 1));
    }
    void settle(Machine &, const Call &) {}
};

template <class Previous, class Next> struct Argument<const int32_t *, Previous, Next> {
    Octets drawn;
    explicit Argument(Draw &input) : drawn(input) {}
    const int32_t *resolve([[maybe_unused]] Machine &machine, [[maybe_unused]] Call &call) {
        // Positions of two octets each. The first is read even when their number is 0.
        call.last_length = drawn.octets.size() / 2;
        if (!drawn.exists)
            return nullptr;
        auto *numbers = reinterpret_cast<int32_t *>(machine.keep({}, (call.last_length + 1) * sizeof(int32_t)));
        Draw octets(reinterpret_cast<const uint8_t *>(drawn.octets.data()), drawn.octets.size());
        for (size_t i = 0; i < call.last_length; ++i)
            numbers[i] = static_cast<int16_t>(octets.number(2));
        return numbers;
    }
    void settle(Machine &, const Call &) {}
};

// Places that a function fills; without a size beside it there is room for anything.
template <class Previous, class Next> struct Argument<void *, Previous, Next> {
    static constexpr bool has_size = names_length<void *, Next>() || std::is_same_v<Next, int32_t *>;
    uint8_t size;
    explicit Argument(Draw &input) : size(input.octet()) {}
    void *resolve([[maybe_unused]] Machine &machine, [[maybe_unused]] Call &call) {
        call.last_length = size;
        if (size == 0xFF)
            return nullptr;
        return has_size ? machine.keep({}, size) : Machine::large_buffer();
    }
    void settle(Machine &, const Call &) {}
};

template <class Type, class Previous, class Next>
requires(std::is_pointer_v<Type> && !std::is_const_v<std::remove_pointer_t<Type>> &&
         (std::is_arithmetic_v<Pointee<Type>> ||
          std::is_pointer_v<Pointee<Type>>)) struct Argument<Type, Previous, Next> {
    using Place = Pointee<Type>;
    bool exists;
    Place *place = nullptr;
    explicit Argument(Draw &input) : exists(input.octet() != 0xFF) {}
    Type resolve([[maybe_unused]] Machine &machine, [[maybe_unused]] Call &call) {
        place = reinterpret_cast<Place *>(machine.keep({}, sizeof(Place)));
        if constexpr (std::is_same_v<Type, int32_t *> && std::is_same_v<Previous, void *>)
            *place = static_cast<int32_t>(call.last_length);
        return exists ? place : nullptr;
    }
    // Memory that is stored is the caller's, unless it is constant.
    void settle([[maybe_unused]] Machine &machine, [[maybe_unused]] const Call &call) {
        if constexpr (is_handle<Place>)
            machine.add(HandleOf<Pointee<Place>>::kind, *place, owner_of_place(call));
        else if constexpr (std::is_same_v<Place, void *>)
            kovra_free(*place);
    }
};

constexpr bool has(std::string_view name, std::string_view part) {
    return name.find(part) != std::string_view::npos;
}

// A value that is got from a value, and a JSON value that is found in another or put into it, belong to that one.
size_t owner_of_result(const Call &call, HandleKind kind) {
    const bool is_got = call.arguments == 1 && !has(call.name, "_new") && !has(call.name, "_create");
    if (kind == HandleKind::json || (kind == HandleKind::value && is_got))
        return call.first(kind);
    return Machine::none;
}

// So does an element of a list. What else is stored in a place is new.
size_t owner_of_place(const Call &call) {
    return call.name == "kovra_asn1_list_get" ? call.first(HandleKind::value) : Machine::none;
}

// After a success: functions that take over what they are given. Those with a flag do so when it is 0.
void hand_over(Machine &machine, const Call &call) {
    const auto take = [&](size_t given, size_t owner) {
        if (given != Machine::none && owner != Machine::none)
            machine.hand_over(given, owner);
    };
    const auto handle = [&](size_t i) { return call.handles[i].index; };
    if (call.name == "kovra_asn1_list_put" || call.name == "kovra_json_addarrayitem" ||
        call.name == "kovra_json_addobjectitem" || (call.name == "kovra_x500name_addrdn" && call.last_number == 0))
        take(handle(1), handle(0));
    constexpr size_t revoked_certificates = 5;
    if (call.name == "kovra_x509TBSCertList_new" && call.last_number == 0)
        take(handle(revoked_certificates), machine.newest());
}

void use_text(const char *text) {
    check(text == nullptr || std::strlen(text) < SIZE_MAX, "a text ends");
}

template <class R>
void take([[maybe_unused]] Machine &machine, [[maybe_unused]] const Call &call, [[maybe_unused]] R result) {
    if constexpr (is_handle<R>) {
        constexpr HandleKind kind = HandleOf<Pointee<R>>::kind;
        machine.add(kind, result, owner_of_result(call, kind));
    } else if constexpr (std::is_same_v<R, char *> || std::is_same_v<R, void *>) {
        kovra_free(result);
    } else if constexpr (std::is_same_v<R, const char *>) {
        use_text(result);
    }
}

template <class R> bool is_success(R result) {
    if constexpr (std::is_integral_v<R>)
        return result == 1;
    else
        return result != R{};
}

template <class R, class... P> struct Caller {
    using Function = R (*)(P...) noexcept;
    using Indices = std::index_sequence_for<P...>;
    template <size_t i>
    using ArgumentAt =
        Argument<typename At<i, P...>::Type, typename At<i - 1, P...>::Type, typename At<i + 1, P...>::Type>;

    template <size_t... i> static auto draw([[maybe_unused]] Draw &input, std::index_sequence<i...>) {
        // Braces keep the order of the arguments.
        return std::tuple<ArgumentAt<i>...>{ArgumentAt<i>(input)...};
    }

    template <size_t... i>
    static void run(Function function, std::string_view name, Machine &machine, Draw &input,
                    std::index_sequence<i...> indices) {
        auto arguments = draw(input, indices);
        Call call{name, sizeof...(P), {}, 0, 0};
        const std::tuple<P...> values{std::get<i>(arguments).resolve(machine, call)...};
        const int64_t blocks = live_blocks();
        if constexpr (std::is_void_v<R>) {
            std::apply(function, values);
            // Whether a handle was released shows in the memory: what is borrowed, or of another kind, is left alone.
            if (has(name, "_free") && live_blocks() != blocks)
                machine.remove_group(call.handles[0].index);
        } else {
            R result = std::apply(function, values);
            take(machine, call, result);
            (std::get<i>(arguments).settle(machine, call), ...);
            if (is_success(result))
                hand_over(machine, call);
        }
    }
};

template <class R, class... P> Caller<R, P...> caller_of(R (*)(P...) noexcept);
template <class R, class... P> constexpr bool takes_one_handle(R (*)(P...) noexcept) {
    return sizeof...(P) == 1 && (is_handle<P> || ...);
}

template <auto function> struct Name { static inline std::string_view name; };

template <auto function> Function row(std::string_view name) {
    using Calling = decltype(caller_of(function));
    Name<function>::name = name;
    return {name, selector_of(name), takes_one_handle(function),
            [](Machine &machine, Draw &input) {
                Calling::run(function, Name<function>::name, machine, input, typename Calling::Indices());
            },
            [](Draw &input) { Calling::draw(input, typename Calling::Indices()); }};
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

} // namespace

uint16_t selector_of(std::string_view name) {
    uint32_t hash = 2166136261U;
    for (const char c : name)
        hash = (hash ^ static_cast<uint8_t>(c)) * 16777619U;
    return static_cast<uint16_t>(hash >> 16 ^ hash);
}

const std::vector<Function> &functions() {
    static const std::vector<Function> all = [] {
        std::vector<Function> made = {
#include "functions.inc"
            row<new_trickle>("new_trickle"),
        };
        std::sort(made.begin(), made.end(), [](const Function &left, const Function &right) {
            return std::pair(left.selector, left.name) < std::pair(right.selector, right.name);
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
