#include "services/ocspcerts.hpp"

#include "core/codec.hpp"
#include "core/descriptors.hpp"
#include "core/list.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_OCSP";

Site here(int32_t line = __builtin_LINE()) {
    return {source, line};
}

int32_t content_length_of_list(const Type &type, Value *value, Measure measure) {
    return list_operations.content_length(type, value, measure);
}

Result encode_content_of_list(Encoder &encoder, const Type &type, Value *value, int32_t length) {
    return list_operations.encode_content(encoder, type, value, length);
}

Result decode_content_of_list(Decoder &decoder, const Type &type, const Element &element, Value *&out) {
    return list_operations.decode_content(decoder, type, element, out);
}

Result decode_whole_list(Decoder &decoder, const Type &type, Value *&out) {
    Identifier identifier;
    int32_t length = 0;
    if (const Result result = decode_identifier(decoder, here(), identifier); result != success)
        return result;
    if (!begins(type, identifier))
        return decoder.fail(here(), code::incorrect_item);
    if (const Result result = decode_length(decoder, here(), length); result != success)
        return result;
    return list_operations.decode_content(decoder, type, {identifier.form, length}, out);
}

size_t reserve_of_list(size_t octets) {
    return list_operations.records_reserve(octets);
}

constexpr Operations operations = {
    .holds = holds_kind<List>,
    .content_length = content_length_of_list,
    .encode_content = encode_content_of_list,
    .decode_content = decode_content_of_list,
    .decode = decode_whole_list,
    .decode_plain = decode_content_of_list,
    .records_reserve = reserve_of_list,
};

constexpr ListShape shape = {.element = KOVRA_ASN1_TYPE_CERTIFICATE, .source = source};
constexpr uint8_t sequence_tag = 16;
constexpr int32_t certificate_base = 0x10258;

} // namespace

constexpr Type ocsp_certificates = {
    KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, Form::constructed, sequence_tag, certificate_base, &operations, &shape};

} // namespace kovra::asn1
