// The codes that failures record, by what they are used for. Their texts stand in core/messages.cpp; where the text of
// a code tells of something else, both are kept: callers search for them.
#pragma once

#include <cstdint>

#include "kovra/util_error.h"

namespace kovra::asn1::code {

// General codes, with the texts of the companion library.
inline constexpr int32_t no_memory = KOVRA_ERR_NO_MEMORY;
inline constexpr int32_t bad_argument = KOVRA_ERR_BAD_ARGUMENT;
inline constexpr int32_t null_argument = KOVRA_ERR_NULL_ARGUMENT;
inline constexpr int32_t short_copy = KOVRA_ERR_SHORT_COPY;

// Stream codes, likewise.
inline constexpr int32_t stream_read = KOVRA_ERR_STREAM_READ;
inline constexpr int32_t stream_control = KOVRA_ERR_STREAM_REWIND;
inline constexpr int32_t stream_size = KOVRA_ERR_STREAM_SIZE;

// Codes of the codec.
inline constexpr int32_t invalid_class = 0x10200;
inline constexpr int32_t bad_tag = 0x10201;
inline constexpr int32_t tag_too_large = 0x10202; // also for a length that is too large
inline constexpr int32_t bad_length = 0x10203;
inline constexpr int32_t length_too_large = 0x10204;
inline constexpr int32_t bad_end_of_contents = 0x10205;
inline constexpr int32_t definite_wanted = 0x10206;
inline constexpr int32_t bad_unused_bits = 0x10207;
inline constexpr int32_t bad_time_type = 0x10208;
inline constexpr int32_t misplaced_end_of_contents = 0x10209;
inline constexpr int32_t incorrect_item = 0x1020a;
inline constexpr int32_t incorrect_length = 0x1020b;
inline constexpr int32_t incorrect_size = 0x1020c;
inline constexpr int32_t decode_bit_string = 0x10214;
inline constexpr int32_t decode_octet_string = 0x10219;
inline constexpr int32_t encode_any = 0x10235;
inline constexpr int32_t decode_any = 0x10236;
inline constexpr int32_t encode_time = 0x10238;
inline constexpr int32_t form_error = 0x1026a;
inline constexpr int32_t unsupported_type = 0x1026b;
inline constexpr int32_t unsupported_encode = 0x1026c;
inline constexpr int32_t unsupported_decode = 0x1026d;
inline constexpr int32_t octets_left = 0x1027f;

// From here on the text of a code is that of the code two above it.
inline constexpr int32_t not_minimal_integer = 0x102e3;
inline constexpr int32_t write_identifier = 0x102e4;
inline constexpr int32_t read_identifier = 0x102e5;
inline constexpr int32_t write_length = 0x102e6;
inline constexpr int32_t read_length = 0x102e7;
inline constexpr int32_t write_end_of_contents = 0x102e8;
inline constexpr int32_t read_end_of_contents = 0x102e9;
inline constexpr int32_t no_length = 0x102ea;
inline constexpr int32_t bad_oid_content = 0x102eb;
inline constexpr int32_t bad_time_text = 0x102ec;

// One past the last code that has a text.
inline constexpr int32_t first = 0x10200;
inline constexpr int32_t end = 0x103D4;

} // namespace kovra::asn1::code
