// What the fuzz targets share: octets of the input in portions, checks that end the process, decoding and encoding with
// all that can be seen of it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "fuzz/draw.hpp"
#include "kovra/asn1.h"
#include "kovra/util.h"
#include "tests/util_handles.hpp"

// What a target defines: one run over one input.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace kovra::fuzz {

using test::size_of;
using test::text_of;

// What a target defines when its inputs hold elements: the offset where they begin, or the size when there are none.
size_t elements_begin(const uint8_t *data, size_t size);

// The entries of a context as text, a line each: source, code and message. Whose line of the source found it is not
// part of what is promised.
std::string entries(const kovra_err_ctx *ctx);

// Octets as a stream that gives one at a time, knows no size and cannot be rewound.
class Trickle {
public:
    explicit Trickle(std::string_view octets);
    Trickle(const Trickle &) = delete;
    kovra_stream *stream() const { return stream_.get(); }
    size_t taken() const { return position_; }

private:
    static int32_t read(void *user, void *buffer, int32_t size, int32_t *out_count);
    std::string_view octets_;
    size_t position_ = 0;
    Stream stream_;
};

// All that decoding shows.
struct Decoded {
    int32_t result = 0;
    Value value;
    size_t taken = 0;
    std::string entries;
};
Decoded decode(kovra_stream *stream, uint32_t type);
Decoded decode_from_memory(const Exact &octets, uint32_t type);
Decoded decode_from_trickle(const Exact &octets, uint32_t type);

// END OF CONTENTS and NULL are decoded without a record.
constexpr bool has_record(uint32_t type) {
    return type != KOVRA_ASN1_TYPE_END_OF_CONTENTS && type != KOVRA_ASN1_TYPE_NULL;
}

// Types that are written otherwise than they are read, or not at all, as their headers say, and those around them.
bool comes_back(uint32_t type);

// The encoding, which has to succeed and to be what all functions that encode and measure say; where it does not come
// back, whatever it is.
std::string encode(uint32_t type, const kovra_asn1_value *value);

// All octets of a growable memory stream, which is empty afterwards.
std::string drain(kovra_stream *stream);

} // namespace kovra::fuzz
