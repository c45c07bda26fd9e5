#include "pkix/signed.hpp"

#include <cstring>

#include "kovra/util_coding.h"
#include "kovra/util_memory.h"

namespace kovra::asn1 {

namespace {

constexpr int32_t base64_failed = KOVRA_ERR_STREAM_BASE64;
constexpr int32_t pem_failed = KOVRA_ERR_STREAM_PEM;

Value *load_octets(Site site, const Type &type, const void *data, int32_t length, kovra_err_ctx *ctx) {
    Decoder decoder(data, static_cast<uint32_t>(length), ctx);
    Value *value = nullptr;
    if (decode_root(decoder, type, value) != success)
        return nullptr;
    if (decoder.position() == static_cast<uint32_t>(length))
        return value;
    Arena::destroy(value->arena);
    report(ctx, site, code::incorrect_length);
    return nullptr;
}

void *decode_text(const Armour &armour, const char *text, int32_t length, int32_t &out_length) {
    if (*text == 'M')
        return kovra_base64decode(text, length, KOVRA_BASE64_IGNORE_SPACE, &out_length);
    void *octets = kovra_pemdecode(text, length, armour.label, &out_length);
    if (octets == nullptr && armour.other_label != nullptr)
        octets = kovra_pemdecode(text, length, armour.other_label, &out_length);
    return octets;
}

} // namespace

kovra_asn1_value *load(Site site, const Armour &armour, const void *data, int32_t length, kovra_err_ctx *ctx) {
    const auto refuse = [&](int32_t code) {
        report(ctx, site, code);
        return nullptr;
    };
    if (data == nullptr)
        return refuse(code::null_argument);
    if (length <= 0)
        return refuse(code::bad_argument);
    const Type &type = row(armour.type);
    const auto *text = static_cast<const char *>(data);
    if (*text == 0x30)
        return load_octets(site, type, data, length, ctx);
    if (*text != 'M' && *text != '-')
        return refuse(type.base + 1);
    int32_t count = 0;
    void *octets = decode_text(armour, text, length, count);
    if (octets == nullptr)
        return refuse(*text == 'M' ? base64_failed : pem_failed);
    Value *value = load_octets(site, type, octets, count, ctx);
    kovra_free(octets);
    return value;
}

kovra_asn1_value *with_encoding(Structure *object, uint8_t type) {
    if (object == nullptr)
        return nullptr;
    Encoder encoder(static_cast<kovra_err_ctx *>(nullptr));
    if (encode(encoder, row(type), object) == success)
        return object;
    Arena::destroy(object->arena);
    return nullptr;
}

int32_t copy_signed_octets(Structure *record, void *buffer, int32_t *length_in_out) {
    const uint8_t *octets = nullptr;
    uint32_t length = 0;
    if (record == nullptr || length_in_out == nullptr || signed_octets(*record, octets, length) != success)
        return 0;
    const int32_t capacity = *length_in_out;
    *length_in_out = static_cast<int32_t>(length);
    if (buffer == nullptr)
        return 1;
    if (capacity < *length_in_out)
        return 0;
    std::memcpy(buffer, octets, length);
    return 1;
}

} // namespace kovra::asn1
