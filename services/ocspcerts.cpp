#include "services/ocspcerts.hpp"

#include "core/codec.hpp"
#include "core/list.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_OCSP";

Site here(int32_t line = __builtin_LINE()) {
    return {source, line};
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
    return decode_list(decoder, type, {identifier.form, length}, out);
}

constexpr Operations operations = {
    .holds = holds_kind<List>,
    .content_length = list_content_length,
    .encode_content = encode_list_content,
    .decode_content = decode_list,
    .decode = decode_whole_list,
    .decode_plain = decode_list,
    .records_reserve = list_reserve,
};

constexpr ListShape shape = {.element = KOVRA_ASN1_TYPE_CERTIFICATE, .source = source};
constexpr uint8_t sequence_tag = 16;
constexpr int32_t certificate_base = 0x10258;

} // namespace

constexpr Type ocsp_certificates = {
    KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, Form::constructed, sequence_tag, certificate_base, &operations, &shape};

} // namespace kovra::asn1
