#include "tests/harness/exports.hpp"

#include <cstring>
#include <type_traits>
#include <utility>

#include "kovra/asn1.h"
#include "kovra/util.h"

namespace kovra::test {

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

// Handles of one kind do not pass for those of another without a cast.
static_assert(!std::is_convertible_v<void *, kovra_asn1_value *>);
static_assert(!std::is_convertible_v<kovra_stream *, const kovra_asn1_value *>);
static_assert(!std::is_convertible_v<kovra_err_ctx *, const kovra_asn1_value *>);

template <class T> using Pointee = std::remove_const_t<std::remove_pointer_t<T>>;
template <class T> constexpr bool points_to_handle = std::is_pointer_v<T> &&HandleOf<Pointee<T>>::exists;

template <class T> constexpr Parameter parameter() {
    if constexpr (std::is_void_v<T>)
        return {Form::nothing};
    else if constexpr (points_to_handle<T>)
        return {Form::handle, HandleOf<Pointee<T>>::kind, std::is_const_v<std::remove_pointer_t<T>>};
    else if constexpr (std::is_same_v<T, double>)
        return {Form::real, {}, true, sizeof(T)};
    else if constexpr (std::is_integral_v<T>)
        return {std::is_signed_v<T> ? Form::integer : Form::natural, {}, true, sizeof(T)};
    else if constexpr (std::is_same_v<T, const char *>)
        return {Form::text};
    else if constexpr (std::is_same_v<T, char *>)
        return {Form::new_text};
    else if constexpr (std::is_same_v<T, const void *> || std::is_same_v<T, const uint8_t *>)
        return {Form::octets};
    else if constexpr (std::is_same_v<T, void *>)
        return {Form::room};
    else if constexpr (std::is_same_v<T, const int32_t *>)
        return {Form::positions};
    else if constexpr (points_to_handle<Pointee<T>>)
        return {Form::place_of_handle, HandleOf<Pointee<Pointee<T>>>::kind, false, sizeof(Pointee<T>)};
    else if constexpr (std::is_same_v<T, void **>)
        return {Form::place_of_memory, {}, false, sizeof(Pointee<T>)};
    else if constexpr (std::is_arithmetic_v<Pointee<T>> || std::is_pointer_v<Pointee<T>>)
        return {Form::place, {}, false, sizeof(Pointee<T>)};
    else
        return {Form::other};
}

template <class T> T unpacked(const Word &word) {
    if constexpr (std::is_pointer_v<T>)
        return static_cast<T>(word.pointer);
    else if constexpr (std::is_same_v<T, double>)
        return word.real;
    else
        return static_cast<T>(word.integer);
}

template <class T> Word packed(T result) {
    Word word;
    if constexpr (std::is_pointer_v<T>)
        word.pointer = const_cast<void *>(static_cast<const void *>(result));
    else if constexpr (std::is_same_v<T, double>)
        word.real = result;
    else
        word.integer = result;
    return word;
}

template <auto release> void released_by(void *handle) {
    [handle]<class T>(void (*releaser)(T *) noexcept) { releaser(static_cast<T *>(handle)); }(release);
}

template <auto function> struct Row;
template <class R, class... P, R (*function)(P...) noexcept> struct Row<function> {
    static constexpr Parameter parameters[] = {parameter<P>()..., {Form::nothing}};

    template <size_t... i> static Word call(const Word *arguments, std::index_sequence<i...>) {
        if constexpr (std::is_void_v<R>)
            return function(unpacked<P>(arguments[i])...), Word();
        else
            return packed<R>(function(unpacked<P>(arguments[i])...));
    }
    static constexpr Export named(const char *name) {
        return {name, std::span(parameters, sizeof...(P)), parameter<R>(),
                [](const Word *arguments) { return call(arguments, std::index_sequence_for<P...>()); }};
    }
};

} // namespace

void release(HandleKind kind, void *handle, uint32_t type) {
    // In the order of the kinds, behind values.
    static constexpr void (*all[])(void *) = {released_by<kovra_bitset_free>,
                                              released_by<kovra_biginteger_free>,
                                              released_by<kovra_data_blob_free>,
                                              released_by<kovra_err_ctx_free>,
                                              released_by<kovra_json_free>,
                                              released_by<kovra_stream_free>,
                                              released_by<kovra_time_free>,
                                              released_by<kovra_ustring_free>,
                                              released_by<kovra_asn1_decode_any_ctx_free>,
                                              released_by<kovra_asn1_decode_octetstring_ctx_free>};
    if (kind == HandleKind::value)
        kovra_asn1_value_free(type, static_cast<kovra_asn1_value *>(handle));
    else
        all[static_cast<size_t>(kind) - 1](handle);
}

void release_given(const Export &row, const Word *arguments, const Word &result) {
    const auto release_one = [](const Parameter &parameter, void *given, bool is_handle, bool is_memory) {
        if (is_handle)
            release(parameter.kind, given, KOVRA_ASN1_TYPE_ANY);
        else if (is_memory)
            kovra_free(given);
    };
    const Form form = row.result.form;
    release_one(row.result, result.pointer, form == Form::handle, form == Form::new_text || form == Form::room);
    for (size_t i = 0; i < row.parameters.size(); ++i) {
        const Parameter &parameter = row.parameters[i];
        const bool is_handle = parameter.form == Form::place_of_handle;
        if (is_handle || parameter.form == Form::place_of_memory) {
            void *stored = nullptr;
            std::memcpy(&stored, arguments[i].pointer, sizeof stored);
            release_one(parameter, stored, is_handle, !is_handle);
        }
    }
}

std::span<const Export> exports() {
    static constexpr Export all[] = {
#include "exports.inc"
    };
    return all;
}

} // namespace kovra::test
