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

// The arguments. Each draws its octets when it is made, and is resolved to what is passed when all are drawn.

template <class Type, class Previous, class Next> struct Argument;

template <class Type, class Previous, class Next>
requires is_handle<Type>
struct Argument<Type, Previous, Next> {
    static constexpr HandleKind kind = HandleOf<Pointee<Type>>::kind;
    uint8_t choice;
    size_t index = Machine::none;
    explicit Argument(Draw &input) : choice(input.octet()) {}
    Type resolve(Machine &machine) {
        index = machine.choose(kind, choice);
        return static_cast<Type>(machine.handle(index));
    }
    void settle(Machine &, size_t) {}
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
    Type resolve(Machine &machine) {
        if constexpr (is_length) {
            // Mostly what it is; shorter; or nothing that is a length.
            if (first < 0xE0)
                return static_cast<Type>(machine.last_length);
            if (first < 0xF0)
                return static_cast<Type>(machine.last_length / (first < 0xE8 ? 2 : 8));
            return first < 0xF8 ? Type{0} : static_cast<Type>(first < 0xFF ? -1 : -2147483647 - 1);
        } else if constexpr (std::is_same_v<Type, double>) {
            double result = 0;
            static_assert(sizeof result == sizeof number);
            std::memcpy(&result, &number, sizeof result);
            return first < 0xF0 ? first - 2 : result;
        } else {
            // -1 and -2 are lengths, 1 and 2 modes.
            return static_cast<Type>(std::is_same_v<Type, uint32_t> || first >= 0xF0 ? number : number - 2);
        }
    }
    void settle(Machine &, size_t) {}
};

template <class Previous, class Next> struct Argument<const void *, Previous, Next> {
    // What has no length beside it is a UUID; a length of -1 means zero-terminated, so there is always a zero.
    Octets drawn;
    explicit Argument(Draw &input) : drawn(input) {}
    const void *resolve(Machine &machine) {
        constexpr size_t uuid = 16;
        machine.last_length = drawn.octets.size();
        if (!drawn.exists)
            return nullptr;
        return machine.keep(drawn.octets, names_length<const void *, Next>() ? drawn.octets.size() + 1 : uuid);
    }
    void settle(Machine &, size_t) {}
};

template <class Previous, class Next> struct Argument<const char *, Previous, Next> {
    Octets drawn;
    explicit Argument(Draw &input) : drawn(input) {}
    const char *resolve(Machine &machine) {
        machine.last_length = drawn.octets.size();
        if (!drawn.exists)
            return nullptr;
        return machine.keep(drawn.octets, drawn.octets.size() + (names_length<const char *, Next>() ? 0 : 1));
    }
    void settle(Machine &, size_t) {}
};

template <class Previous, class Next> struct Argument<const int32_t *, Previous, Next> {
    Octets drawn;
    explicit Argument(Draw &input) : drawn(input) {}
    const int32_t *resolve(Machine &machine) {
        // Positions of two octets each. The first is read even when their number is 0.
        machine.last_length = drawn.octets.size() / 2;
        if (!drawn.exists)
            return nullptr;
        auto *numbers = reinterpret_cast<int32_t *>(machine.keep({}, (machine.last_length + 1) * sizeof(int32_t)));
        Draw octets(reinterpret_cast<const uint8_t *>(drawn.octets.data()), drawn.octets.size());
        for (size_t i = 0; i < machine.last_length; ++i)
            numbers[i] = static_cast<int16_t>(octets.number(2));
        return numbers;
    }
    void settle(Machine &, size_t) {}
};

// Places that a function fills; without a size beside it there is room for anything.
template <class Previous, class Next> struct Argument<void *, Previous, Next> {
    static constexpr bool has_size = names_length<void *, Next>() || std::is_same_v<Next, int32_t *>;
    uint8_t size;
    explicit Argument(Draw &input) : size(input.octet()) {}
    void *resolve(Machine &machine) {
        machine.last_length = size;
        if (size == 0xFF)
            return nullptr;
        return has_size ? machine.keep({}, size) : Machine::large_buffer();
    }
    void settle(Machine &, size_t) {}
};

template <class Type, class Previous, class Next>
requires(std::is_pointer_v<Type> && !std::is_const_v<std::remove_pointer_t<Type>> &&
         (std::is_arithmetic_v<Pointee<Type>> ||
          std::is_pointer_v<Pointee<Type>>)) struct Argument<Type, Previous, Next> {
    using Place = Pointee<Type>;
    bool exists;
    Place *place = nullptr;
    explicit Argument(Draw &input) : exists(input.octet() != 0xFF) {}
    Type resolve(Machine &machine) {
        place = reinterpret_cast<Place *>(machine.keep({}, sizeof(Place)));
        if constexpr (std::is_same_v<Type, int32_t *> && std::is_same_v<Previous, void *>)
            *place = static_cast<int32_t>(machine.last_length);
        return exists ? place : nullptr;
    }
    // A handle is new, or borrowed from `owner`; other memory is the caller's, unless it is constant.
    void settle(Machine &machine, size_t owner) {
        if constexpr (is_handle<Place>)
            machine.add(HandleOf<Pointee<Place>>::kind, *place, owner);
        else if constexpr (std::is_same_v<Place, void *>)
            kovra_free(*place);
    }
};

constexpr bool has(std::string_view name, std::string_view part) {
    return name.find(part) != std::string_view::npos;
}

// The index of the first argument that is a handle of the kind; none when there is none.
template <class Arguments> size_t first_handle(const Arguments &arguments, HandleKind kind) {
    size_t found = Machine::none;
    std::apply(
        [&](const auto &...argument) {
            const auto look = [&](const auto &one) {
                if constexpr (requires { one.index; })
                    if (found == Machine::none && one.kind == kind)
                        found = one.index;
            };
            (look(argument), ...);
        },
        arguments);
    return found;
}

template <size_t i, class Arguments> size_t index_at(const Arguments &arguments) {
    if constexpr (i < std::tuple_size_v<Arguments>)
        if constexpr (requires { std::get<i>(arguments).index; })
            return std::get<i>(arguments).index;
    return Machine::none;
}

// Functions that take over what they are given. Those with a flag do so when it is 0.
template <class Arguments, class... P>
void hand_over(Machine &machine, std::string_view name, const Arguments &arguments, const std::tuple<P...> &values) {
    size_t given = Machine::none;
    size_t owner = index_at<0>(arguments);
    if constexpr (sizeof...(P) == 2) {
        if (name == "kovra_asn1_list_put" || name == "kovra_json_addarrayitem")
            given = index_at<1>(arguments);
    } else if constexpr (std::is_same_v<std::tuple<P...>,
                                        std::tuple<kovra_asn1_value *, kovra_asn1_value *, int32_t>>) {
        if (name == "kovra_x500name_addrdn" && std::get<2>(values) == 0)
            given = index_at<1>(arguments);
    } else if constexpr (sizeof...(P) == 3) {
        if (name == "kovra_json_addobjectitem")
            given = index_at<2>(arguments);
    } else if constexpr (sizeof...(P) == 8 && std::is_same_v<typename At<6, P...>::Type, int32_t>) {
        if (name == "kovra_x509TBSCertList_new" && std::get<6>(values) == 0) {
            given = index_at<5>(arguments);
            owner = machine.newest();
        }
    }
    if (given != Machine::none && owner != Machine::none)
        machine.hand_over(given, owner);
}

template <class T> void use_text(const T *text) {
    if (text != nullptr && std::strlen(reinterpret_cast<const char *>(text)) == SIZE_MAX)
        std::abort();
}

template <class R, class... P> struct Caller {
    using Indices = std::index_sequence_for<P...>;
    template <size_t i>
    using ArgumentAt =
        Argument<typename At<i, P...>::Type, typename At<i - 1, P...>::Type, typename At<i + 1, P...>::Type>;

    template <size_t... i> static auto draw(Draw &input, std::index_sequence<i...>) {
        // Braces keep the order of the arguments.
        return std::tuple<ArgumentAt<i>...>{ArgumentAt<i>(input)...};
    }

    template <size_t... i>
    static void call(R (*function)(P...) noexcept, std::string_view name, Machine &machine, Draw &input,
                     std::index_sequence<i...> indices) {
        auto arguments = draw(input, indices);
        const std::tuple<P...> values{std::get<i>(arguments).resolve(machine)...};
        if (has(name, "_free")) {
            release(function, machine, arguments, values);
            return;
        }
        // Only what lists and JSON containers store is borrowed by a place.
        const size_t owner = name == "kovra_asn1_list_get" ? first_handle(arguments, HandleKind::value) : Machine::none;
        bool has_succeeded = true;
        if constexpr (std::is_void_v<R>) {
            std::apply(function, values);
        } else {
            R result = std::apply(function, values);
            if constexpr (std::is_integral_v<R>)
                has_succeeded = result == 1;
            else
                has_succeeded = result != R{};
            take(machine, name, arguments, result);
        }
        (std::get<i>(arguments).settle(machine, owner), ...);
        if (has_succeeded)
            hand_over(machine, name, arguments, values);
    }

    // A getter of values has one argument; of JSON values, whatever is got from one or put into one is its.
    template <class Arguments, class Result>
    static void take(Machine &machine, std::string_view name, const Arguments &arguments, Result result) {
        if constexpr (is_handle<Result>) {
            constexpr HandleKind kind = HandleOf<Pointee<Result>>::kind;
            size_t owner = Machine::none;
            if (kind == HandleKind::json ||
                (kind == HandleKind::value && sizeof...(P) == 1 && !has(name, "_new") && !has(name, "_create")))
                owner = first_handle(arguments, kind);
            machine.add(kind, result, owner);
        } else if constexpr (std::is_same_v<Result, char *> || std::is_same_v<Result, void *>) {
            kovra_free(result);
        } else if constexpr (std::is_same_v<Result, const char *>) {
            use_text(result);
        }
    }

    // Whether a handle was released shows in the memory: what is borrowed, or of another kind, is left alone.
    template <class Arguments>
    static void release(R (*function)(P...) noexcept, Machine &machine, const Arguments &arguments,
                        const std::tuple<P...> &values) {
        const int64_t before = live_blocks();
        std::apply(function, values);
        if (live_blocks() == before)
            return;
        std::apply(
            [&](const auto &...argument) {
                const auto look = [&](const auto &one) {
                    if constexpr (requires { one.index; })
                        if (one.index != Machine::none)
                            machine.remove_group(one.index);
                };
                (look(argument), ...);
            },
            arguments);
    }
};

template <class R, class... P> Caller<R, P...> caller_of(R (*)(P...) noexcept);
template <class R, class... P> constexpr size_t handles_of(R (*)(P...) noexcept) {
    return sizeof...(P) == 1 ? (is_handle<P> + ... + 0) : 0;
}

template <auto function> struct Name { static inline std::string_view name; };

template <auto function> Function row(std::string_view name) {
    using Calling = decltype(caller_of(function));
    Name<function>::name = name;
    return {name, selector_of(name), handles_of(function) == 1,
            [](Machine &machine, Draw &input) {
                Calling::call(function, Name<function>::name, machine, input, typename Calling::Indices());
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
