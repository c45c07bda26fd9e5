// Elements that arrive in pieces.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>

#include "inputs.hpp"
#include "kovra/asn1.h"
#include "kovra/util.h"

namespace {

constexpr size_t piece = size_t{64} * 1024;

// 100 MB of content, in the definite form or in segments of a size.
std::string octet_string(size_t segment) {
    constexpr size_t size = 100'000'000;
    const auto header = [](size_t length) {
        std::string octets("\x04\x84");
        for (int shift = 24; shift >= 0; shift -= 8)
            octets += static_cast<char>(length >> shift);
        return octets;
    };
    if (segment == 0)
        return header(size) + std::string(size, 'x');
    std::string octets("\x24\x80");
    for (size_t i = 0; i < size / segment; ++i)
        octets += header(segment) + std::string(segment, 'x');
    return octets + std::string(2, '\0');
}

template <class Take> void in_pieces(const std::string &octets, Take take) {
    for (size_t at = 0; at < octets.size(); at += piece)
        take(octets.data() + at, std::min(piece, octets.size() - at));
}

// Where the content goes: a buffer that is written over and over.
struct Sink {
    std::string buffer = std::string(piece, '\0');

    static int32_t write(void *user, const void *data, int32_t size, int32_t *out_count) {
        *out_count = std::min(size, static_cast<int32_t>(piece));
        std::memcpy(static_cast<Sink *>(user)->buffer.data(), data, static_cast<size_t>(*out_count));
        return 1;
    }
};

void octet_string_memcpy(benchmark::State &state) {
    const std::string octets = octet_string(0);
    Sink sink;
    for (auto _ : state)
        in_pieces(octets, [&](const char *data, size_t size) {
            std::memcpy(sink.buffer.data(), data, size);
            benchmark::ClobberMemory();
        });
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(octets.size()));
}
BENCHMARK(octet_string_memcpy)->Unit(benchmark::kMillisecond);

// The argument is the size of the segments; 0 is the definite form.
void octet_string_pushed(benchmark::State &state) {
    const std::string octets = octet_string(static_cast<size_t>(state.range(0)));
    Sink sink;
    kovra_stream_callbacks callbacks = {};
    callbacks.write = Sink::write;
    kovra_stream *out = kovra_stream_new_callbacks(&callbacks, &sink, nullptr);
    const double memory_before = kovra::bench::peak_memory();
    for (auto _ : state) {
        kovra_asn1_decode_octetstring_ctx *ctx = kovra_asn1_decode_octetstring_ctx_new();
        int32_t left = 0;
        in_pieces(octets, [&](const char *data, size_t size) {
            kovra_asn1_decode_octetstring_update(ctx, data, static_cast<int32_t>(size), out, &left);
        });
        if (kovra_asn1_decode_octetstring_ctx_isfinish(ctx) != 1)
            state.SkipWithError("the string was refused");
        kovra_asn1_decode_octetstring_ctx_free(ctx);
    }
    kovra_stream_free(out);
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(octets.size()));
    state.counters["memory"] = kovra::bench::peak_memory() - memory_before;
}
BENCHMARK(octet_string_pushed)->Arg(0)->Arg(8192)->Arg(100)->Unit(benchmark::kMillisecond);

void element_pushed(benchmark::State &state, const std::string &octets) {
    for (auto _ : state) {
        kovra_asn1_decode_any_ctx *ctx = kovra_asn1_decode_any_ctx_new();
        int32_t left = 0;
        in_pieces(octets, [&](const char *data, size_t size) {
            kovra_asn1_decode_any_update(ctx, data, static_cast<int32_t>(size), &left);
        });
        if (kovra_asn1_decode_any_isfinish(ctx) != 1)
            state.SkipWithError("the element was refused");
        kovra_asn1_decode_any_ctx_free(ctx);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(octets.size()));
}

void crl_pushed(benchmark::State &state) {
    element_pushed(state, kovra::bench::make_crl(1'000'000));
}
BENCHMARK(crl_pushed)->Unit(benchmark::kMillisecond);

// The argument is the depth: the time grows as it does.
void indefinite_nest_pushed(benchmark::State &state) {
    std::string octets;
    for (int64_t i = 0; i < state.range(0); ++i)
        octets.append("\x30\x80", 2);
    element_pushed(state, octets + std::string(octets.size(), '\0'));
}
BENCHMARK(indefinite_nest_pushed)->Arg(250'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

// Each holds the next and a NULL.
void definite_nest_pushed(benchmark::State &state) {
    std::string headers, tails;
    size_t length = 0;
    for (int64_t i = 0; i < state.range(0); ++i) {
        tails.append("\x05\x00", 2);
        length += 2;
        for (int shift = 0; shift < 32; shift += 8)
            headers += static_cast<char>(length >> shift);
        headers.append("\x84\x30");
        length += 6;
    }
    std::reverse(headers.begin(), headers.end());
    element_pushed(state, headers + tails);
}
BENCHMARK(definite_nest_pushed)->Arg(250'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

} // namespace
