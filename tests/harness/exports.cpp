#include "tests/harness/exports.hpp"

#include <type_traits>
#include <utility>

// Values get a type of their own here, so that signatures tell them from octets.
#define KOVRA_ASN1_VALUE_H
struct kovra_asn1_value;
#include "kovra/util.h"
// In front of the headers of the codec.
#include "kovra/asn1.h"

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
    switch (kind) {
    case HandleKind::value:
        return kovra_asn1_value_free(type, static_cast<kovra_asn1_value *>(handle));
    case HandleKind::bitset:
        return kovra_bitset_free(static_cast<kovra_bitset *>(handle));
    case HandleKind::biginteger:
        return kovra_biginteger_free(static_cast<kovra_biginteger *>(handle));
    case HandleKind::blob:
        return kovra_data_blob_free(static_cast<kovra_data_blob *>(handle));
    case HandleKind::context:
        return kovra_err_ctx_free(static_cast<kovra_err_ctx *>(handle));
    case HandleKind::json:
        return kovra_json_free(static_cast<kovra_json *>(handle));
    case HandleKind::stream:
        return kovra_stream_free(static_cast<kovra_stream *>(handle));
    case HandleKind::time:
        return kovra_time_free(static_cast<kovra_time *>(handle));
    case HandleKind::text:
        return kovra_ustring_free(static_cast<kovra_ustring *>(handle));
    case HandleKind::any_context:
        return kovra_asn1_decode_any_ctx_free(static_cast<kovra_asn1_decode_any_ctx *>(handle));
    case HandleKind::string_context:
        return kovra_asn1_decode_octetstring_ctx_free(static_cast<kovra_asn1_decode_octetstring_ctx *>(handle));
    }
}

std::span<const Export> exports() {
    static constexpr Export all[] = {
#include "exports.inc"
    };
    return all;
}

} // namespace kovra::test
