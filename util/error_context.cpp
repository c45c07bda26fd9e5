#include <algorithm>

#include "base/handle.hpp"
#include "base/sizes.hpp"
#include "base/thresholds.hpp"
#include "kovra/util_error.h"

namespace kovra::util {
namespace {

constexpr const char *module = "UTIL_Error";
constexpr auto inline_entries = threshold<int32_t>(8, 1);
constexpr auto first_heap_entries = threshold<size_t>(24, 1);
constexpr auto inline_source = threshold<size_t>(32, 3);
constexpr auto inline_message = threshold<size_t>(96, 3);
constexpr auto chunk_size = threshold<size_t>(2048, 3);

struct Entry {
    const char *source;
    const char *message;
    int32_t line;
    int32_t code;
};

// Texts lie behind the header; chunks never move, so texts handed out stay where they are until the context is cleared.
struct TextChunk {
    TextChunk *next;
    size_t used;
    size_t size;
};

// The room that each of the first entries has for its texts without any allocation.
struct InlineText {
    char source[inline_source];
    char message[inline_message];
};

// The longest beginning of a UTF-8 text that fits in `room` octets and does not cut a character.
size_t truncated_length(const char *text, size_t room) {
    size_t length = room;
    while (length > 0 && (static_cast<uint8_t>(text[length]) & 0xC0) == 0x80)
        --length;
    return length;
}

} // namespace
} // namespace kovra::util

using namespace kovra;
using namespace kovra::util;

struct kovra_err_ctx {
    static constexpr uint32_t magic_of_type = magic_word("ERRC");
    uint32_t magic;
    int32_t count;
    int32_t heap_capacity;
    Entry *heap; // entries behind the first
    TextChunk *chunks;
    Entry first[inline_entries];
    InlineText texts[inline_entries];
};

namespace kovra::util {
namespace {

Entry &entry_at(const kovra_err_ctx &ctx, int32_t index) {
    auto &writable = const_cast<kovra_err_ctx &>(ctx);
    return index < inline_entries ? writable.first[index] : writable.heap[index - inline_entries];
}

// Room for `size` octets of text from the heap, or null.
char *take_text(kovra_err_ctx &ctx, size_t size) {
    if (ctx.chunks == nullptr || ctx.chunks->size - ctx.chunks->used < size) {
        const size_t text_size = std::max(size, chunk_size);
        auto *chunk = static_cast<TextChunk *>(kovra_malloc(sum(sizeof(TextChunk), text_size), module, __LINE__));
        if (chunk == nullptr)
            return nullptr;
        *chunk = {ctx.chunks, 0, text_size};
        ctx.chunks = chunk;
    }
    char *text = reinterpret_cast<char *>(ctx.chunks + 1) + ctx.chunks->used;
    ctx.chunks->used += size;
    return text;
}

// Keeps a copy of the text: in `room` where it fits, else on the heap, else what fits of it. A text equal to
// `previous`, the one of the entry before, shares its copy: thousands of like warnings then cost an entry each and no
// text.
const char *keep_text(kovra_err_ctx &ctx, const char *text, const char *previous, char *room, size_t room_size) {
    if (text == nullptr || *text == '\0')
        return "";
    if (previous != nullptr && std::strcmp(previous, text) == 0)
        return previous;
    const size_t length = std::strlen(text);
    if (length < room_size) {
        std::memcpy(room, text, length + 1);
        return room;
    }
    if (char *kept = take_text(ctx, sum(length, 1))) {
        std::memcpy(kept, text, length + 1);
        return kept;
    }
    if (room_size == 0)
        return "";
    const size_t fitting = truncated_length(text, room_size - 1);
    std::memcpy(room, text, fitting);
    room[fitting] = '\0';
    return room;
}

bool make_room_for_entry(kovra_err_ctx &ctx) {
    const int32_t on_heap = ctx.count - inline_entries;
    if (on_heap < ctx.heap_capacity)
        return true;
    const auto capacity = static_cast<size_t>(ctx.heap_capacity);
    const size_t wanted = next_capacity(capacity, std::max(first_heap_entries, capacity));
    if (wanted > static_cast<size_t>(INT32_MAX - inline_entries))
        return false;
    void *grown = kovra_realloc(ctx.heap, product(wanted, sizeof(Entry)), module, __LINE__);
    if (grown == nullptr)
        return false;
    ctx.heap = static_cast<Entry *>(grown);
    ctx.heap_capacity = static_cast<int32_t>(wanted);
    return true;
}

} // namespace
} // namespace kovra::util

kovra_err_ctx *kovra_err_ctx_new() noexcept {
    return make_record<kovra_err_ctx>(module);
}

void kovra_err_ctx_free(kovra_err_ctx *ctx) noexcept {
    if (!is_valid(ctx))
        return;
    kovra_err_ctx_clear(ctx);
    release_record(ctx);
}

void kovra_err_ctx_put(kovra_err_ctx *ctx, const char *source, int32_t line, int32_t code,
                       const char *message) noexcept {
    if (!is_valid(ctx))
        return;
    const int32_t index = ctx->count;
    if (index >= inline_entries && !make_room_for_entry(*ctx))
        return;
    const Entry *previous = index > 0 ? &entry_at(*ctx, index - 1) : nullptr;
    InlineText *room = index < inline_entries ? &ctx->texts[index] : nullptr;
    const char *kept_source = keep_text(*ctx, source, previous ? previous->source : nullptr,
                                        room ? room->source : nullptr, room ? inline_source : 0);
    const char *kept_message = keep_text(*ctx, message, previous ? previous->message : nullptr,
                                         room ? room->message : nullptr, room ? inline_message : 0);
    entry_at(*ctx, index) = {kept_source, kept_message, line, code};
    ctx->count = index + 1;
}

int32_t kovra_err_ctx_getcount(const kovra_err_ctx *ctx) noexcept {
    return is_valid(ctx) ? ctx->count : 0;
}

int32_t kovra_err_ctx_getentry(const kovra_err_ctx *ctx, int32_t index, const char **out_source, int32_t *out_line,
                               int32_t *out_code, const char **out_message) noexcept {
    if (!is_valid(ctx) || index < 0 || index >= ctx->count)
        return 0;
    const Entry &entry = entry_at(*ctx, index);
    if (out_source != nullptr)
        *out_source = entry.source;
    if (out_line != nullptr)
        *out_line = entry.line;
    if (out_code != nullptr)
        *out_code = entry.code;
    if (out_message != nullptr)
        *out_message = entry.message;
    return 1;
}

void kovra_err_ctx_clear(kovra_err_ctx *ctx) noexcept {
    if (!is_valid(ctx))
        return;
    while (ctx->chunks != nullptr) {
        TextChunk *next = ctx->chunks->next;
        kovra_free(ctx->chunks);
        ctx->chunks = next;
    }
    kovra_free(ctx->heap);
    ctx->heap = nullptr;
    ctx->heap_capacity = 0;
    ctx->count = 0;
}

const char *kovra_igetGeneralError(int32_t code) noexcept {
    switch (code) {
    case KOVRA_ERR_NO_MEMORY:
        return "out of memory";
    case KOVRA_ERR_BAD_ARGUMENT:
        return "an argument is out of range or does not fit the others";
    case KOVRA_ERR_NULL_ARGUMENT:
        return "a required argument is null";
    case KOVRA_ERR_SHORT_COPY:
        return "fewer octets were copied than the length announced";
    default:
        return "";
    }
}

const char *kovra_igetStreamError(int32_t code) noexcept {
    switch (code) {
    case KOVRA_ERR_STREAM_READ:
        return "reading from the stream failed, or it ended too early";
    case KOVRA_ERR_STREAM_WRITE:
        return "writing to the stream failed";
    case KOVRA_ERR_STREAM_OPEN:
        return "the file cannot be opened";
    case KOVRA_ERR_STREAM_SEEK:
        return "the stream cannot be positioned there";
    case KOVRA_ERR_STREAM_REWIND:
        return "the stream cannot be rewound, or is not at its end";
    case KOVRA_ERR_STREAM_COMMAND:
        return "unknown stream command";
    case KOVRA_ERR_STREAM_BASE64:
        return "the text is not valid base64";
    case KOVRA_ERR_STREAM_SIZE:
        return "the size of the stream cannot be told";
    case KOVRA_ERR_STREAM_PEM:
        return "the text holds no valid PEM block of the wanted label";
    default:
        return "";
    }
}
