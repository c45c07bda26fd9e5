// UTCTime and GeneralizedTime (X.690, 8.25 and 8.26), and the choice of the two: the text as it came.

#include "kovra/asn1_time.h"

#include <cstring>
#include <new>

#include "base/sizes.hpp"
#include "core/codec.hpp"
#include "core/content.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_types.h"
#include "types/segments.hpp"
#include "types/time_text.hpp"

namespace kovra::asn1 {

namespace {

Site here(int32_t line = __builtin_LINE()) {
    return {"ASN1_Time", line};
}

// Is it a time of this type? The choice of both takes either.
bool is_of_row(const Type &type, const Time &time) {
    return type.number == KOVRA_ASN1_TYPE_TIME || type.tag == time.tag;
}

bool read_text(uint8_t tag, const uint8_t *text, uint32_t length, TimeFields &out) {
    const auto *characters = reinterpret_cast<const char *>(text);
    return tag == tag::utc_time ? read_utc_time(characters, length, out)
                                : read_generalized_time(characters, length, out);
}

int32_t time_content_length(const Type &, Value *value, Measure) {
    return value != nullptr ? static_cast<int32_t>(static_cast<const Time *>(value)->text.length) : unknown;
}

// The length of the whole element, which has the tag of the alternative: an identifier of one octet in any case.
int32_t time_length(const Type &type, Value *value, Measure measure) {
    return whole_length_of(tag::utc_time, time_content_length(type, value, measure));
}

Result encode_time_content(Encoder &encoder, const Type &type, Value *value, int32_t length) {
    const auto *time = static_cast<const Time *>(value);
    if (!encoder.has_stream() || time == nullptr || !is_of_row(type, *time))
        return encoder.fail(here(), code::null_argument);
    if (length < 0 || static_cast<uint32_t>(length) != time->text.length)
        return encoder.fail(here(), code::bad_length);
    return encoder.put(here(), time->text.data(*time->arena), time->text.length);
}

Result encode_time(Encoder &encoder, const Type &type, Value *value) {
    const auto *time = static_cast<const Time *>(value);
    if (time == nullptr)
        return encoder.fail(here(), code::null_argument);
    if (!is_of_row(type, *time))
        return encoder.fail(here(), code::bad_time_type);
    const auto length = static_cast<int32_t>(time->text.length);
    Result result = encoder.identifier(here(), Class::universal, Form::primitive, time->tag);
    if (result != success)
        return encoder.fail(here(), code::write_identifier, result);
    if (length < 1)
        return encoder.fail(here(), code::no_length);
    if (result = encoder.length(here(), length); result != success)
        return encoder.fail(here(), code::encode_time, result);
    result = encode_time_content(encoder, type, value, length);
    return result == success ? success : encoder.fail(here(), code::write_length, result);
}

// Makes a record of a text, whose content may stand in segments.
Result take_text(Decoder &decoder, const Element &element, Time *&out) {
    if (const Result result = check_source_and_place(decoder, here()); result != success)
        return result;
    auto *time = new_record<Time>(decoder.arena());
    if (time == nullptr)
        return decoder.fail(here(), code::no_memory);
    Content content{};
    uint32_t unused_bits = 0;
    if (const Result result = decode_segments<false>(decoder, here(), element, content, unused_bits); result != success)
        return result;
    time->text = content.octets;
    out = time;
    return success;
}

Result decode_text(Decoder &decoder, uint8_t tag, const Element &element, Value *&out) {
    Octets octets;
    auto *time = decoder.take<Time>(element, octets);
    if (time != nullptr)
        time->text = octets;
    else if (const Result result = take_text(decoder, element, time); result != success)
        return result;
    time->tag = tag;
    const uint8_t *text = time->text.memory != nullptr ? time->text.memory : decoder.at(time->text.offset);
    TimeFields fields;
    if (!read_text(tag, text, time->text.length, fields))
        return decoder.fail(here(), code::bad_time_text);
    if (!is_certain(fields)) {
        kovra_time *calendar_time = time_of(fields);
        if (calendar_time == nullptr)
            return decoder.fail(here(), code::bad_time_text);
        kovra_time_free(calendar_time);
    }
    out = time;
    return success;
}

Result decode_time_content(Decoder &decoder, const Type &type, const Element &element, Value *&out) {
    return decode_text(decoder, type.tag, element, out);
}

bool time_begins(const Type &, const Identifier &identifier) {
    return identifier.is(Class::universal, tag::utc_time) || identifier.is(Class::universal, tag::generalized_time);
}

Result decode_time_behind(Decoder &decoder, const Type &, const Identifier &identifier, const Element &element,
                          Value *&out) {
    return decode_text(decoder, static_cast<uint8_t>(identifier.tag), element, out);
}

Result decode_time(Decoder &decoder, const Type &type, Value *&out) {
    Identifier identifier{Class::universal, Form::primitive, tag::utc_time};
    int32_t length = 0;
    if (uint32_t octets = 0; decoder.enter(tag::utc_time, octets)) {
        length = static_cast<int32_t>(octets);
    } else {
        if (const Result result = decode_identifier(decoder, here(), identifier); result != success)
            return result;
        if (!time_begins(type, identifier))
            return decoder.fail(here(), code::bad_time_type);
        if (const Result result = decode_length(decoder, here(), length); result != success)
            return result;
    }
    Value *value = nullptr;
    const Result result = decode_time_behind(decoder, type, identifier, {identifier.form, length}, value);
    if (result != success)
        return result;
    if (!is_of_row(type, *static_cast<const Time *>(value)))
        return decoder.fail(here(), code::bad_time_type);
    out = value;
    return success;
}

// A record of a moment in UTC, which is kept beside the text: a second of 60 cannot be read back from every text.
Time *new_time(uint8_t tag, const TimeFields &fields) {
    kovra_time *value = time_of(fields);
    if (value == nullptr)
        return nullptr;
    char text[longest_time_text];
    const uint32_t length = tag == tag::utc_time ? write_utc_time(value, text) : write_generalized_time(value, text);
    kovra_time_free(value);
    auto *time = length != 0 ? new_root<Time>(sum(length, sizeof fields)) : nullptr;
    void *built = time != nullptr ? time->arena->allocate(sizeof fields) : nullptr;
    auto *copy = built != nullptr ? static_cast<uint8_t *>(time->arena->allocate(length)) : nullptr;
    if (copy == nullptr) {
        if (time != nullptr)
            Arena::destroy(time->arena);
        return nullptr;
    }
    std::memcpy(copy, text, length);
    time->tag = tag;
    time->built = new (built) TimeFields(fields);
    time->text = {copy, 0, length};
    return time;
}

// The years that UTCTime is used for.
bool has_utc_time(int32_t year) {
    return year >= 1950 && year <= 2049;
}

} // namespace

constexpr Operations time_operations = {
    .holds = holds_kind<Time>,
    .content_length = time_content_length,
    .length = time_length,
    .encode_content = encode_time_content,
    .encode = encode_time,
    .decode_content = decode_time_content,
    .decode = decode_time,
    .decode_plain = decode_time_content,
    .records_reserve = leaf_reserve<2 * sizeof(Time)>,
};

constexpr Operations any_time_operations = {
    .holds = holds_kind<Time>,
    .content_length = time_content_length,
    .length = time_length,
    .encode_content = encode_time_content,
    .encode = encode_time,
    .decode_content = refuse_decode_content,
    .decode = decode_time,
    .begins = time_begins,
    .decode_behind = decode_time_behind,
    .records_reserve = leaf_reserve<2 * sizeof(Time)>,
};

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_asn1_utctime_new(int32_t year, int32_t month, int32_t day, int32_t hour, int32_t minute,
                                         int32_t second) noexcept {
    if (!has_utc_time(year))
        return nullptr;
    return new_time(tag::utc_time, {year, month, day, hour, minute, second});
}

kovra_asn1_value *kovra_asn1_gentime_new(int32_t year, int32_t month, int32_t day, int32_t hour, int32_t minute,
                                         int32_t second, int32_t ns) noexcept {
    return new_time(tag::generalized_time, {year, month, day, hour, minute, second, ns});
}

kovra_asn1_value *kovra_asn1_time_new(int32_t year, int32_t month, int32_t day, int32_t hour, int32_t minute,
                                      int32_t second, int32_t ns) noexcept {
    return has_utc_time(year) ? kovra_asn1_utctime_new(year, month, day, hour, minute, second)
                              : kovra_asn1_gentime_new(year, month, day, hour, minute, second, ns);
}

kovra_asn1_value *kovra_asn1_time_newutctime(const kovra_time *time, uint32_t flags) noexcept {
    constexpr uint32_t with_ns = 0x10;
    if (time == nullptr || kovra_time_isutctime(time) != 1)
        return nullptr;
    const int32_t year = kovra_time_getyear(time);
    const int32_t month = kovra_time_getmonth(time);
    const int32_t day = kovra_time_getday(time);
    const int32_t hour = kovra_time_gethour(time);
    const int32_t minute = kovra_time_getminute(time);
    const int32_t second = kovra_time_getsecond(time);
    const int32_t ns = (flags & with_ns) != 0 ? kovra_time_getns(time) : 0;
    switch (flags & 0x0F) {
    case 0:
        return kovra_asn1_utctime_new(year, month, day, hour, minute, second);
    case 1:
        return kovra_asn1_gentime_new(year, month, day, hour, minute, second, ns);
    case 2:
        return kovra_asn1_time_new(year, month, day, hour, minute, second, ns);
    default:
        return nullptr;
    }
}

kovra_time *kovra_asn1_time_getutctime(const kovra_asn1_value *time) noexcept {
    const auto *record = as<Time>(time);
    if (record != nullptr && record->built != nullptr)
        return time_of(*record->built);
    TimeFields fields;
    if (record == nullptr || !read_text(record->tag, record->text.data(*record->arena), record->text.length, fields))
        return nullptr;
    return time_of(fields);
}
