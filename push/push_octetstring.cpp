// The OCTET STRING context: content octets are passed on as they arrive.

#include "base/handle.hpp"
#include "core/failure.hpp"
#include "kovra/asn1_decode.h"
#include "push/push_walk.hpp"

using namespace kovra::asn1;

struct kovra_asn1_decode_octetstring_ctx {
    static constexpr uint32_t magic_of_type = kovra::magic_word("PUSO");
    uint32_t magic;
    PushWalk walk{Elements::octet_strings};
};

kovra_asn1_decode_octetstring_ctx *kovra_asn1_decode_octetstring_ctx_new(void) noexcept {
    return kovra::make_record<kovra_asn1_decode_octetstring_ctx>("ASN1_Decode");
}

int32_t kovra_asn1_decode_octetstring_update(kovra_asn1_decode_octetstring_ctx *ctx, const void *data, int32_t length,
                                             kovra_stream *out_stream, int32_t *out_left) noexcept {
    if (!kovra::is_valid(ctx) || out_left == nullptr || length < 0 || (data == nullptr && length > 0) ||
        ctx->walk.state() == PushState::failed)
        return failure;
    const size_t taken = ctx->walk.take(static_cast<const uint8_t *>(data), static_cast<size_t>(length), out_stream);
    if (ctx->walk.state() == PushState::failed)
        return failure;
    *out_left = length - static_cast<int32_t>(taken);
    return success;
}

int32_t kovra_asn1_decode_octetstring_content_update(kovra_asn1_decode_octetstring_ctx *ctx, const void *data,
                                                     int32_t length, kovra_stream *out_stream,
                                                     int32_t *out_left) noexcept {
    if (!kovra::is_valid(ctx) || ctx->walk.state() < PushState::content)
        return failure;
    return kovra_asn1_decode_octetstring_update(ctx, data, length, out_stream, out_left);
}

int32_t kovra_asn1_decode_octetstring_ctx_setstate(kovra_asn1_decode_octetstring_ctx *ctx, int32_t form,
                                                   int32_t content_length) noexcept {
    if (!kovra::is_valid(ctx) || ctx->walk.state() != PushState::identifier || content_length < indefinite ||
        (form != 0 && content_length == indefinite))
        return failure;
    ctx->walk.begin_content(form == 0 ? Form::constructed : Form::primitive, content_length);
    if (ctx->walk.state() == PushState::failed)
        return failure;
    return success;
}

int64_t kovra_asn1_decode_octetstring_ctx_getencodelength(const kovra_asn1_decode_octetstring_ctx *ctx) noexcept {
    return kovra::is_valid(ctx) ? ctx->walk.position() : unknown;
}

int32_t kovra_asn1_decode_octetstring_ctx_isfinish(const kovra_asn1_decode_octetstring_ctx *ctx) noexcept {
    return kovra::is_valid(ctx) && ctx->walk.state() == PushState::complete ? 1 : 0;
}

void kovra_asn1_decode_octetstring_ctx_free(kovra_asn1_decode_octetstring_ctx *ctx) noexcept {
    if (!kovra::is_valid(ctx))
        return;
    ctx->walk.release();
    kovra::release_record(ctx);
}
