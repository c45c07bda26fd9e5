#include "fuzz/fuzzing.hpp"

#include <cstdio>

namespace kovra::fuzz {

std::string entries(const kovra_err_ctx *ctx) {
    std::string text;
    const char *source = nullptr;
    const char *message = nullptr;
    int32_t code = 0;
    for (int32_t i = 0; kovra_err_ctx_getentry(ctx, i, &source, nullptr, &code, &message) == 1; ++i) {
        char number[16];
        std::snprintf(number, sizeof number, " 0x%x ", static_cast<unsigned>(code));
        text += source;
        text += number;
        text += message;
        text += '\n';
    }
    return text;
}

Trickle::Trickle(std::string_view octets) : octets_(octets) {
    kovra_stream_callbacks callbacks = {};
    callbacks.read = read;
    stream_.reset(kovra_stream_new_callbacks(&callbacks, this, nullptr));
}

int32_t Trickle::read(void *user, void *buffer, int32_t size, int32_t *out_count) {
    auto &self = *static_cast<Trickle *>(user);
    *out_count = 0;
    if (self.position_ < self.octets_.size() && size > 0) {
        *static_cast<char *>(buffer) = self.octets_[self.position_++];
        *out_count = 1;
    }
    return 1;
}

Decoded decode(kovra_stream *stream, uint32_t type) {
    Decoded decoded;
    const Errors ctx(kovra_err_ctx_new());
    constexpr int32_t unwritten = -7;
    int32_t read = unwritten;
    kovra_asn1_value *value = nullptr;
    decoded.result = kovra_asn1_decode(stream, type, &value, &read, ctx.get());
    decoded.value = Value(type, value);
    decoded.entries = entries(ctx.get());
    if (decoded.result == 1) {
        check((value != nullptr) == has_record(type), "a success gives a value");
        check(read >= 0, "a success says how many octets it took");
        decoded.taken = static_cast<size_t>(read);
    } else {
        check(value == nullptr && read == unwritten, "nothing comes out of a failure");
    }
    return decoded;
}

Decoded decode_from_memory(const Exact &octets, uint32_t type) {
    const Stream stream(kovra_stream_new_romem(octets.data(), octets.length(), 0, nullptr));
    Decoded decoded = decode(stream.get(), type);
    const uint8_t *unread = nullptr;
    int64_t left = 0;
    check(kovra_stream_peek(stream.get(), &unread, &left) == 1, "memory can be looked at");
    const size_t taken = octets.size() - static_cast<size_t>(left);
    check(decoded.result != 1 || taken == decoded.taken, "what was read was taken from the stream");
    decoded.taken = taken;
    return decoded;
}

Decoded decode_from_trickle(const Exact &octets, uint32_t type) {
    const Trickle trickle(octets.view());
    Decoded decoded = decode(trickle.stream(), type);
    check(decoded.result != 1 || trickle.taken() == decoded.taken, "what was read was taken from the stream");
    decoded.taken = trickle.taken();
    return decoded;
}

std::string drain(kovra_stream *stream) {
    int64_t length = 0;
    const Memory<void> data(kovra_memstreamdeatch(stream, &length));
    return {static_cast<const char *>(data.get()), static_cast<size_t>(length)};
}

bool comes_back(uint32_t type) {
    switch (type) {
    case KOVRA_ASN1_TYPE_PASSWORD_RECIPIENT_INFO:
    case KOVRA_ASN1_TYPE_RECIPIENT_INFO:
    case KOVRA_ASN1_TYPE_RECIPIENT_INFOS:
    case KOVRA_ASN1_TYPE_ENVELOPED_DATA:
    case KOVRA_ASN1_TYPE_AUTHENTICATED_DATA:
    case KOVRA_ASN1_TYPE_OCSP_RESPONDER_ID:
    case KOVRA_ASN1_TYPE_OCSP_CERT_STATUS:
    case KOVRA_ASN1_TYPE_OCSP_SINGLE_RESPONSE:
    case KOVRA_ASN1_TYPE_OCSP_RESPONSES:
    case KOVRA_ASN1_TYPE_OCSP_RESPONSE_DATA:
    case KOVRA_ASN1_TYPE_OCSP_CRL_ID:
        return false;
    default:
        return true;
    }
}

namespace {

std::string encode_content(uint32_t type, const kovra_asn1_value *value, int32_t length) {
    const Stream stream(kovra_stream_new_mem(0, nullptr));
    int32_t written = -1;
    if (kovra_asn1_encode_content(stream.get(), type, value, length, &written, nullptr) != 1)
        return "";
    std::string content = drain(stream.get());
    check(static_cast<size_t>(written) == content.size(), "content is as long as encoding says");
    check(length == -1 || length == written, "content is as long as announced");
    return content;
}

// The content alone, where the type allows that, comes back. It need not be that of octets that were kept.
void check_content(uint32_t type, const kovra_asn1_value *value, int32_t length, const std::string &whole) {
    const std::string content = encode_content(type, value, length);
    const int32_t form = (whole[0] & 0x20) == 0 ? KOVRA_ASN1_PRIMITIVE : KOVRA_ASN1_CONSTRUCTED;
    const Exact exact(content);
    const Stream stream(kovra_stream_new_romem(exact.data(), exact.length(), 0, nullptr));
    Value again(type, nullptr);
    int32_t read = -1;
    if (kovra_asn1_decode_content(stream.get(), type, again.place(), form, length, &read, nullptr) != 1 ||
        !has_record(type))
        return;
    check(read == exact.length(), "content is decoded, all of it");
    check(encode_content(type, again.get(), kovra_asn1_content_length(type, again.get())) == content,
          "and encoded so again");
}

} // namespace

std::string encode(uint32_t type, const kovra_asn1_value *value) {
    const Stream stream(kovra_stream_new_mem(0, nullptr));
    const Errors ctx(kovra_err_ctx_new());
    int32_t written = -1;
    const int32_t result = kovra_asn1_encode(stream.get(), type, value, &written, ctx.get());
    std::string octets = drain(stream.get());
    if (!comes_back(type))
        return result == 1 ? octets : "";
    check(result == 1, entries(ctx.get()).c_str());
    check(static_cast<size_t>(written) == octets.size(), "what was written is as long as encoding says");
    const int32_t length = kovra_asn1_length(type, value);
    check(length == -1 || length == written, "what was written is as long as announced");
    const int32_t content_length = kovra_asn1_content_length(type, value);
    // Of octets that were kept the whole is known even when their content is indefinite.
    check(content_length >= -1 && (length != -1 || content_length == -1), "content and whole agree on being definite");
    check_content(type, value, content_length, octets);
    const Blob blob(kovra_asn1_mem_encode(type, value));
    check(blob != nullptr && text_of(blob.get()) == octets, "encoding to memory gives the same");
    return octets;
}

} // namespace kovra::fuzz
