#include "types/segments.hpp"

#include <cstring>

namespace kovra::asn1 {

template <bool of_bits>
Result decode_segments(Decoder &decoder, Site site, const Element &element, Content &out, uint32_t &unused_bits) {
    const uint32_t begin = decoder.position();
    uint32_t total = 0;
    uint32_t pieces = 0;
    uint32_t place = begin;
    const auto measure = [&](uint32_t count) {
        place = decoder.position();
        total += count;
        ++pieces;
        return decoder.skip(site, count);
    };
    if (const Result result = SegmentWalk<of_bits>::run(decoder, site, element, measure, unused_bits);
        result != success)
        return result;
    if (pieces <= 1) {
        out.octets = {nullptr, place, total};
        return success;
    }
    // The first walk has found everything sound: this one only copies.
    const uint32_t end = decoder.position();
    auto *octets = static_cast<uint8_t *>(decoder.arena().allocate(total));
    if (octets == nullptr)
        return decoder.fail(site, code::no_memory);
    out.octets = {octets, 0, total};
    const auto copy = [&](uint32_t count) {
        if (count != 0)
            std::memcpy(octets, decoder.at(decoder.position()), count);
        octets += count;
        return decoder.skip(site, count);
    };
    decoder.rewind(begin);
    const Result result = SegmentWalk<of_bits>::run(decoder, site, element, copy, unused_bits);
    decoder.rewind(end);
    return result;
}

template Result decode_segments<false>(Decoder &, Site, const Element &, Content &, uint32_t &);
template Result decode_segments<true>(Decoder &, Site, const Element &, Content &, uint32_t &);

} // namespace kovra::asn1
