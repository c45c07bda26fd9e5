// Elements in pieces: the first octet says where the others are cut. However that is, the outcome is the same, and it
// is that of decoding the whole, but for what kovra/asn1_decode.h states.
#include <algorithm>

#include "fuzz/fuzzing.hpp"
#include "fuzz/memory.hpp"

namespace kovra::fuzz {

namespace {

// Cuts octets into pieces.
class Pieces {
public:
    // 0 cuts nothing, 1 everything, other numbers here and there.
    Pieces(std::string_view octets, uint8_t how) : rest_(octets), how_(how), state_(how) {}
    bool are_over() const { return rest_.empty(); }
    std::string_view next() {
        size_t size = how_ == 0 ? rest_.size() : 1;
        if (how_ > 1) {
            state_ = state_ * 1103515245U + 12345U;
            size = (state_ >> 16) % (how_ < 64 ? 4U : 40U);
        }
        const std::string_view piece = rest_.substr(0, size);
        rest_.remove_prefix(piece.size());
        return piece;
    }

private:
    std::string_view rest_;
    uint8_t how_;
    uint32_t state_;
};

struct Outcome {
    bool has_failed = false;
    bool is_complete = false;
    size_t taken = 0;
    std::string content; // of an OCTET STRING: the octets passed on
    std::string whole;   // of an element: what it is written as
    std::string entries;

    bool operator==(const Outcome &) const = default;
};

// Gives the pieces to update(piece, out_left) until it fails or nothing is wanted any more.
template <class Update, class IsComplete>
void feed(Pieces pieces, Outcome &outcome, Update update, IsComplete is_complete) {
    while (!pieces.are_over() && !outcome.is_complete) {
        const Exact piece(pieces.next());
        int32_t left = -1;
        const int32_t result = update(piece, &left);
        if (result != 1) {
            check(result == 0 && left == -1, "nothing is stored by a failure");
            outcome.has_failed = true;
            return;
        }
        check(left >= 0 && left <= piece.length(), "what is left is of the piece");
        outcome.taken += piece.size() - static_cast<size_t>(left);
        outcome.is_complete = is_complete();
        check(outcome.is_complete || left == 0, "octets are left behind the end only");
    }
}

void ask_for_object(const kovra_asn1_decode_any_ctx *ctx, uint32_t type, Outcome &outcome) {
    const Errors errors(kovra_err_ctx_new());
    Value value(type, nullptr);
    const int32_t result = kovra_asn1_decode_any_ctx_toobject(ctx, type, value.place(), errors.get());
    outcome.entries = entries(errors.get());
    check(outcome.is_complete || result == 0, "an element that is not complete is no object");
    if (result == 1 && has_record(type))
        outcome.whole = encode(type, value.get());
    else if (result == 1)
        outcome.whole = "no record";
}

Outcome push_any(std::string_view octets, uint8_t how, uint32_t type) {
    Outcome outcome;
    const AnyCtx ctx(kovra_asn1_decode_any_ctx_new());
    feed(
        Pieces(octets, how), outcome,
        [&](const Exact &piece, int32_t *left) {
            return kovra_asn1_decode_any_update(ctx.get(), piece.data(), piece.length(), left);
        },
        [&] { return kovra_asn1_decode_any_isfinish(ctx.get()) == 1; });
    ask_for_object(ctx.get(), type, outcome);
    return outcome;
}

// The same with identifier and length octets asked for; what they say is what reading them whole says.
void check_header(std::string_view octets, uint8_t how, const Outcome &expected) {
    const AnyCtx ctx(kovra_asn1_decode_any_ctx_new());
    Pieces pieces(octets, how);
    size_t taken = 0;
    int32_t result = -100;
    bool is_fresh = true;
    uint32_t tag_class = 0;
    int32_t form = 0, tag = 0, length = 0, left = 0;
    while (result == -100 && !pieces.are_over()) {
        const Exact piece(pieces.next());
        result = kovra_asn1_decode_any_identifier_length(ctx.get(), is_fresh ? 1 : 0, piece.data(), piece.length(),
                                                         &tag_class, &form, &tag, &length, &left);
        // Nothing has moved it from the first state yet.
        is_fresh = is_fresh && piece.size() == 0;
        taken += piece.size() - (result == 0 ? 0 : static_cast<size_t>(left));
    }
    if (result != 1) {
        check(result == -100 || expected.has_failed, "a header is refused only where the element is");
        return;
    }
    const bool is_marker = tag_class == 0 && tag == 0 && form == 1 && length == 0;
    if (is_marker)
        return;
    Outcome outcome;
    outcome.taken = taken;
    outcome.is_complete = kovra_asn1_decode_any_isfinish(ctx.get()) == 1;
    feed(
        Pieces(octets.substr(taken), how), outcome,
        [&](const Exact &piece, int32_t *out_left) {
            return kovra_asn1_decode_any_update(ctx.get(), piece.data(), piece.length(), out_left);
        },
        [&] { return kovra_asn1_decode_any_isfinish(ctx.get()) == 1; });
    check(outcome.has_failed == expected.has_failed && outcome.is_complete == expected.is_complete &&
              (outcome.has_failed || outcome.taken == expected.taken),
          "asking for the header changes nothing");
}

void check_any(std::string_view octets, uint8_t how, uint32_t type) {
    const Outcome whole = push_any(octets, 0, type);
    for (const uint8_t cut : {uint8_t{1}, how}) {
        Outcome cut_up = push_any(octets, cut, type);
        // How far a failing context has got depends on the pieces.
        if (whole.has_failed && cut_up.has_failed)
            cut_up.taken = whole.taken;
        check(cut_up == whole, "how the octets were cut changes nothing");
    }
    check_header(octets, how, whole);
    // Tags of several octets are read in another way.
    if (std::any_of(octets.begin(), octets.end(), [](char octet) { return (octet & 0x1F) == 0x1F; }))
        return;
    const Exact exact(octets);
    const Decoded pulled = decode_from_memory(exact, KOVRA_ASN1_TYPE_ANY);
    if (!whole.is_complete) {
        check(whole.has_failed || pulled.result != 1, "what decoding takes whole is complete");
        return;
    }
    check(pulled.result != 1 || pulled.taken == whole.taken, "an element ends where decoding ends it");
    const Outcome as_any = push_any(octets, how, KOVRA_ASN1_TYPE_ANY);
    check((pulled.result == 1) == !as_any.whole.empty(), "a complete element is ANY when decoding takes it");
    check(pulled.result != 1 || as_any.whole == octets.substr(0, whole.taken), "and kept as it was");
}

struct StringPush : Outcome {
    int64_t length = 0;
};

StringPush push_string(StringCtx ctx, std::string_view octets, uint8_t how, bool is_content) {
    StringPush outcome;
    const Stream stream(kovra_stream_new_mem(0, nullptr));
    const auto update =
        is_content ? kovra_asn1_decode_octetstring_content_update : kovra_asn1_decode_octetstring_update;
    outcome.is_complete = kovra_asn1_decode_octetstring_ctx_isfinish(ctx.get()) == 1;
    feed(
        Pieces(octets, how), outcome,
        [&](const Exact &piece, int32_t *left) {
            return update(ctx.get(), piece.data(), piece.length(), stream.get(), left);
        },
        [&] { return kovra_asn1_decode_octetstring_ctx_isfinish(ctx.get()) == 1; });
    outcome.content = drain(stream.get());
    outcome.length = kovra_asn1_decode_octetstring_ctx_getencodelength(ctx.get());
    return outcome;
}

// A decode of an OCTET STRING, whole or of its content, against what a context made of it.
void check_same(const Decoded &pulled, const StringPush &pushed) {
    check((pulled.result == 1) == pushed.is_complete, "what is complete is what decoding takes");
    if (!pushed.is_complete)
        return;
    check(pulled.taken == pushed.taken, "a string ends where decoding ends it");
    const Blob blob(kovra_asn1_octetstring_getblob(pulled.value.get()));
    check(text_of(blob.get()) == pushed.content, "and has that content");
}

void check_string(std::string_view octets, uint8_t how) {
    const Exact exact(octets);
    const Decoded pulled = decode_from_memory(exact, KOVRA_ASN1_TYPE_OCTET_STRING);
    for (const uint8_t cut : {uint8_t{0}, uint8_t{1}, how}) {
        const StringPush pushed = push_string(StringCtx(kovra_asn1_decode_octetstring_ctx_new()), octets, cut, false);
        check_same(pulled, pushed);
        check(!pushed.is_complete || pushed.length == static_cast<int64_t>(pushed.taken),
              "the encoding is as long as what was taken");
    }
    // The content behind whatever identifier and length octets there are.
    const Stream stream(kovra_stream_new_romem(exact.data(), exact.length(), 0, nullptr));
    uint32_t tag_class = 0;
    int32_t form = 0, tag = 0, length = 0, header = 0, length_read = 0;
    if (kovra_asn1_decode_identifier(stream.get(), &tag_class, &form, &tag, &header, nullptr) != 1 ||
        kovra_asn1_decode_length(stream.get(), &length, &length_read, nullptr) != 1)
        return;
    Decoded content;
    content.value = Value(KOVRA_ASN1_TYPE_OCTET_STRING, nullptr);
    int32_t read = 0;
    content.result = kovra_asn1_decode_content(stream.get(), KOVRA_ASN1_TYPE_OCTET_STRING, content.value.place(), form,
                                               length, &read, nullptr);
    content.taken = static_cast<size_t>(read);
    StringCtx ctx(kovra_asn1_decode_octetstring_ctx_new());
    if (kovra_asn1_decode_octetstring_ctx_setstate(ctx.get(), form, length) != 1) {
        check(content.result != 1, "decoding refuses what no context can be in");
        return;
    }
    check_same(content,
               push_string(std::move(ctx),
                           octets.substr(static_cast<size_t>(header) + static_cast<size_t>(length_read)), how, true));
}

void run(Draw input) {
    const uint8_t how = input.octet();
    const uint32_t type = input.octet() % KOVRA_ASN1_TYPE_COUNT;
    const std::string_view octets = input.rest();
    check_any(octets, how, type);
    check_string(octets, how);
}

} // namespace

size_t elements_begin(const uint8_t * /*data*/, size_t /*size*/) {
    return 2;
}

} // namespace kovra::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    kovra::fuzz::begin_memory(int64_t{1} << 30);
    kovra::fuzz::run({data, size});
    kovra::fuzz::end_memory();
    return 0;
}
