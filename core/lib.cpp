// Identifier and length octets (X.690, 8.1.2 and 8.1.3) on any stream.

#include "kovra/asn1_lib.h"

#include "core/content.hpp"
#include "core/decoder.hpp"

using namespace kovra::asn1;

namespace {

Site lib(int32_t line = __builtin_LINE()) {
    return {"ASN1_Lib", line};
}

Result write_all(kovra_stream *stream, const uint8_t *octets, int32_t count, int32_t *out_written, kovra_err_ctx *ctx) {
    const Result result = kovra_stream_writen(stream, octets, count, nullptr, ctx);
    if (result == success && out_written != nullptr)
        *out_written = count;
    return result;
}

Result refuse(kovra_err_ctx *ctx, int32_t code, int32_t line = __builtin_LINE()) {
    report(ctx, lib(line), code);
    return failure;
}

} // namespace

int32_t kovra_asn1_identifier_length(int32_t tag) noexcept {
    return identifier_length(tag);
}

int32_t kovra_asn1_length_length(int32_t length) noexcept {
    return length_length(length);
}

int32_t kovra_asn1_encode_identifier(kovra_stream *stream, uint32_t tag_class, int32_t form, int32_t tag,
                                     int32_t *out_written, kovra_err_ctx *ctx) noexcept {
    if (stream == nullptr)
        return refuse(ctx, code::null_argument);
    if ((tag_class & ~0xC0U) != 0)
        return refuse(ctx, code::invalid_class);
    if (tag < 0)
        return refuse(ctx, code::bad_tag);
    uint8_t octets[max_identifier_octets];
    const int32_t count =
        put_identifier(octets, static_cast<Class>(tag_class), form == 0 ? Form::constructed : Form::primitive, tag);
    return write_all(stream, octets, count, out_written, ctx);
}

int32_t kovra_asn1_encode_length(kovra_stream *stream, int32_t length, int32_t *out_written,
                                 kovra_err_ctx *ctx) noexcept {
    if (stream == nullptr)
        return refuse(ctx, code::null_argument);
    if (length < indefinite)
        return refuse(ctx, code::bad_length);
    uint8_t octets[max_length_octets];
    return write_all(stream, octets, put_length(octets, length), out_written, ctx);
}

int32_t kovra_asn1_decode_identifier(kovra_stream *stream, uint32_t *out_class, int32_t *out_form, int32_t *out_tag,
                                     int32_t *out_read, kovra_err_ctx *ctx) noexcept {
    if (stream == nullptr || out_class == nullptr || out_form == nullptr || out_tag == nullptr)
        return refuse(ctx, code::null_argument);
    StreamSource source(stream, ctx);
    Identifier identifier;
    if (const Result result = read_identifier(source, lib(), identifier); result != success)
        return result;
    *out_class = static_cast<uint32_t>(identifier.tag_class);
    *out_form = static_cast<int32_t>(identifier.form);
    *out_tag = identifier.tag;
    if (out_read != nullptr)
        *out_read = static_cast<int32_t>(source.position());
    return success;
}

int32_t kovra_asn1_decode_length(kovra_stream *stream, int32_t *out_length, int32_t *out_read,
                                 kovra_err_ctx *ctx) noexcept {
    if (stream == nullptr || out_length == nullptr)
        return refuse(ctx, code::null_argument);
    StreamSource source(stream, ctx);
    if (const Result result = read_length(source, lib(), *out_length); result != success)
        return result;
    if (out_read != nullptr)
        *out_read = static_cast<int32_t>(source.position());
    return success;
}

int32_t kovra_asn1_decode_eoc_length(kovra_stream *stream, int32_t *out_read, kovra_err_ctx *ctx) noexcept {
    if (stream == nullptr)
        return refuse(ctx, code::null_argument);
    StreamSource source(stream, ctx);
    if (const Result result = read_end_of_contents_length(source, lib()); result != success)
        return result;
    if (out_read != nullptr)
        *out_read = static_cast<int32_t>(source.position());
    return success;
}
