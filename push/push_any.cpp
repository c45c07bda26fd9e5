// The open-element context: any element, kept as it arrives.

#include "base/handle.hpp"
#include "base/thresholds.hpp"
#include "core/codes.hpp"
#include "core/content.hpp"
#include "kovra/asn1_decode.h"
#include "push/push_walk.hpp"

using namespace kovra::asn1;

struct kovra_asn1_decode_any_ctx {
    static constexpr uint32_t magic_of_type = kovra::magic_word("PUSA");
    uint32_t magic;
    PushWalk walk{Elements::all};
    kovra_stream *octets; // all that were taken
};

namespace {

constexpr const char *module = "ASN1_Decode";
constexpr int64_t initial_size = kovra::threshold(512, 1);
constexpr int32_t more_input_needed = -100;

bool may_feed(const kovra_asn1_decode_any_ctx *ctx, const void *data, int32_t length) {
    return kovra::is_valid(ctx) && length >= 0 && (data != nullptr || length == 0) &&
           ctx->walk.state() != PushState::failed;
}

// Keeps the octets that the walk has taken. More than a length can tell are no element for the rest of the library.
bool keep(kovra_asn1_decode_any_ctx &ctx, const void *data, int32_t count) {
    if (ctx.walk.position() > max_length || kovra_stream_writen(ctx.octets, data, count, nullptr, nullptr) != success)
        ctx.walk.fail();
    return ctx.walk.state() != PushState::failed;
}

Result refuse(kovra_err_ctx *ctx, int32_t code, int32_t line = __builtin_LINE()) {
    report(ctx, {module, line}, code);
    return failure;
}

} // namespace

kovra_asn1_decode_any_ctx *kovra_asn1_decode_any_ctx_new(void) noexcept {
    auto *ctx = kovra::make_record<kovra_asn1_decode_any_ctx>(module);
    if (ctx == nullptr)
        return nullptr;
    ctx->octets = kovra_stream_new_mem(initial_size, nullptr);
    if (ctx->octets != nullptr)
        return ctx;
    kovra::release_record(ctx);
    return nullptr;
}

int32_t kovra_asn1_decode_any_update(kovra_asn1_decode_any_ctx *ctx, const void *data, int32_t length,
                                     int32_t *out_left) noexcept {
    if (out_left == nullptr || !may_feed(ctx, data, length))
        return failure;
    const auto *octets = static_cast<const uint8_t *>(data);
    const auto taken = static_cast<int32_t>(ctx->walk.take(octets, static_cast<size_t>(length), nullptr));
    if (!keep(*ctx, data, taken))
        return failure;
    *out_left = length - taken;
    return success;
}

int32_t kovra_asn1_decode_any_isfinish(const kovra_asn1_decode_any_ctx *ctx) noexcept {
    return kovra::is_valid(ctx) && ctx->walk.state() == PushState::complete ? 1 : 0;
}

int32_t kovra_asn1_decode_any_ctx_iseoc(const kovra_asn1_decode_any_ctx *ctx) noexcept {
    return kovra_asn1_decode_any_isfinish(ctx) != 0 && ctx->walk.identifier().is_end_of_contents() ? 1 : 0;
}

int32_t kovra_asn1_decode_any_identifier_length(kovra_asn1_decode_any_ctx *ctx, int32_t fresh, const void *data,
                                                int32_t length, uint32_t *out_class, int32_t *out_form,
                                                int32_t *out_tag, int32_t *out_length, int32_t *out_left) noexcept {
    if (out_class == nullptr || out_form == nullptr || out_tag == nullptr || out_length == nullptr ||
        out_left == nullptr || !may_feed(ctx, data, length))
        return failure;
    PushWalk &walk = ctx->walk;
    if (fresh != 0 ? walk.state() != PushState::identifier : walk.state() >= PushState::content)
        return failure;
    const auto *octets = static_cast<const uint8_t *>(data);
    const auto taken = static_cast<int32_t>(walk.take_header(octets, static_cast<size_t>(length)));
    if (!keep(*ctx, data, taken))
        return failure;
    *out_left = length - taken;
    if (walk.state() < PushState::content)
        return more_input_needed;
    *out_class = static_cast<uint32_t>(walk.identifier().tag_class);
    *out_form = static_cast<int32_t>(walk.identifier().form);
    *out_tag = walk.identifier().tag;
    *out_length = walk.length();
    return success;
}

int32_t kovra_asn1_decode_any_ctx_toobject(const kovra_asn1_decode_any_ctx *ctx, uint32_t type,
                                           kovra_asn1_value **out_value, kovra_err_ctx *ctx_err) noexcept {
    if (out_value != nullptr)
        *out_value = nullptr;
    if (ctx == nullptr || out_value == nullptr)
        return refuse(ctx_err, code::null_argument);
    if (kovra_asn1_decode_any_isfinish(ctx) == 0)
        return refuse(ctx_err, code::bad_argument);
    const uint8_t *octets = nullptr;
    int64_t length = 0;
    kovra_stream_peek(ctx->octets, &octets, &length);
    Content whole{};
    whole.octets = {octets, 0, static_cast<uint32_t>(length)};
    return decode_from(whole, Arena(), {module, __LINE__}, type, nullptr, out_value, ctx_err);
}

void kovra_asn1_decode_any_ctx_free(kovra_asn1_decode_any_ctx *ctx) noexcept {
    if (!kovra::is_valid(ctx))
        return;
    ctx->walk.release();
    kovra_stream_free(ctx->octets);
    kovra::release_record(ctx);
}
