// From an encoding to its JSON description: one pass over the octets, with a stack of the constructed values that are
// open.

#include "base/stack.hpp"
#include "base/thresholds.hpp"
#include "core/any.hpp"
#include "core/codec.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_json.h"
#include "kovra/asn1_oid.h"
#include "kovra/asn1_time.h"
#include "kovra/util_ustring.h"
#include "json/kinds.hpp"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_JSON";

Site here(int32_t line = __builtin_LINE()) {
    return {source, line};
}

// A constructed value whose members are being converted.
struct Frame {
    kovra_json *members; // array of a list, or object of a tagged value
    int64_t end;         // offset behind the content; -1: up to the end-of-contents octets
    bool is_tagged;      // has one member, "value"
    bool is_walked;      // the headers of the members were checked as those of an enclosing indefinite element
};

class Converter {
public:
    Converter(const uint8_t *octets, uint32_t length) : octets_(octets), length_(length) {}
    ~Converter() { Arena::destroy(arena_); }
    Converter(const Converter &) = delete;
    Converter &operator=(const Converter &) = delete;

    // The description of the one element that the octets are; null when they are not, or a part cannot be converted.
    kovra_json *run() {
        constexpr auto records = threshold<size_t>(4096, 64);
        arena_ = Arena::create(records);
        if (arena_ == nullptr)
            return nullptr;
        arena_->octets = octets_;
        arena_->octets_length = length_;
        Decoder decoder(*arena_, 0);
        kovra_json *root = kovra_json_newobject();
        if (root == nullptr)
            return nullptr;
        if (!convert(decoder, root, false) || !members(decoder) || decoder.position() != length_) {
            kovra_json_free(root);
            return nullptr;
        }
        return root;
    }

private:
    // Converts members of open frames until all are closed.
    bool members(Decoder &decoder) {
        while (frames_.size() != 0) {
            const Frame frame = frames_.top();
            const int64_t position = decoder.position();
            if (frame.end >= 0 && position == frame.end) {
                frames_.pop();
                continue;
            }
            if (frame.end >= 0 && position > frame.end)
                return false;
            if (frame.end < 0 && is_end_of_contents(decoder)) {
                frames_.pop();
                continue;
            }
            kovra_json *object = kovra_json_putobject(frame.members, frame.is_tagged ? "value" : nullptr);
            if (object == nullptr || !convert(decoder, object, frame.is_walked))
                return false;
        }
        return true;
    }

    // Steps over the octets 00 00 of an indefinite element, whose header was walked already.
    bool is_end_of_contents(Decoder &decoder) {
        const uint32_t position = decoder.position();
        if (length_ - position < 2 || octets_[position] != 0 || octets_[position + 1] != 0)
            return false;
        decoder.rewind(position + 2);
        return true;
    }

    bool open(kovra_json *members, int64_t end, bool is_tagged) {
        return frames_.push({members, end, is_tagged, end < 0});
    }

    // Fills an object with the description of the element at the decoder's position, and steps over it, or into it
    // when its members are to follow.
    bool convert(Decoder &decoder, kovra_json *object, bool is_walked) {
        const uint32_t start = decoder.position();
        Extent extent{};
        if (is_walked) {
            // An enclosing walk has checked all of it: the header is enough, and what needs the end walks the rest
            // again.
            if (read_identifier(decoder, here(), extent.identifier) != success ||
                read_length(decoder, here(), extent.length) != success)
                return false;
            extent.start = start;
            extent.content = decoder.position();
        } else if (walk_element(decoder, extent) != success) {
            return false;
        }
        if (extent.identifier.is_end_of_contents())
            return false;
        if (extent.identifier.tag_class != Class::universal)
            return tagged(decoder, object, extent);
        const JsonKind *kind = kind_of_tag(extent.identifier.tag);
        if (kind == nullptr)
            return step_over(decoder, extent) && whole(decoder, object, any_name, start);
        if (kind->notation == Notation::list) {
            decoder.rewind(extent.content);
            kovra_json *array = put_type(object, kind->name) ? kovra_json_putarray(object, "value") : nullptr;
            return array != nullptr && open(array, end_of(extent), false);
        }
        decoder.rewind(start);
        return leaf(decoder, object, *kind);
    }

    static int64_t end_of(const Extent &extent) {
        return extent.length == indefinite ? -1 : static_cast<int64_t>(extent.content) + extent.length;
    }

    static bool step_over(Decoder &decoder, const Extent &extent) {
        Extent again{};
        decoder.rewind(extent.start);
        return walk_element(decoder, again) == success;
    }

    static bool put_type(kovra_json *object, const char *name) {
        return kovra_json_putstring(object, "type", name, -1) != nullptr;
    }

    // The whole encoding of what the decoder has stepped over since `start`.
    bool whole(Decoder &decoder, kovra_json *object, const char *name, uint32_t start) {
        return put_type(object, name) && put_whole(decoder, object, start);
    }
    bool put_whole(Decoder &decoder, kovra_json *object, uint32_t start) {
        return kovra_json_puthex(object, "hexencode", octets_ + start,
                                 static_cast<int32_t>(decoder.position() - start)) != nullptr;
    }

    // A constructed value of another class is taken for an explicit tag when its content is just one element.
    bool tagged(Decoder &decoder, kovra_json *object, const Extent &extent) {
        Extent inner{};
        decoder.rewind(extent.content);
        const bool is_explicit = extent.identifier.form == Form::constructed && extent.length > 0 &&
                                 static_cast<uint32_t>(extent.length) <= length_ - extent.content &&
                                 walk_element(decoder, inner) == success && decoder.position() == end_of(extent) &&
                                 !inner.identifier.is_end_of_contents();
        if (!is_explicit)
            return step_over(decoder, extent) && whole(decoder, object, any_name, extent.start);
        decoder.rewind(extent.content);
        const char *name = class_names[static_cast<uint8_t>(extent.identifier.tag_class) >> 6];
        return put_type(object, tagged_name) && kovra_json_putstring(object, "class", name, -1) != nullptr &&
               kovra_json_putnumber(object, "number", extent.identifier.tag) != nullptr &&
               kovra_json_putboolean(object, "explicit", 1) != nullptr && open(object, end_of(extent), true);
    }

    // A value that is decoded as the type of its tag.
    bool leaf(Decoder &decoder, kovra_json *object, const JsonKind &kind) {
        const uint32_t start = decoder.position();
        const Arena::Mark mark = arena_->mark();
        Value *value = nullptr;
        const bool is_good = decode(decoder, row(kind.type), value) == success && put_type(object, kind.name) &&
                             put_value(decoder, object, kind, value, start);
        arena_->reset(mark);
        return is_good;
    }

    bool put_value(Decoder &decoder, kovra_json *object, const JsonKind &kind, Value *value, uint32_t start) {
        switch (kind.notation) {
        case Notation::none:
            return true;
        case Notation::boolean:
            return kovra_json_putboolean(object, "value", static_cast<const Boolean *>(value)->word != 0 ? 1 : 0) !=
                   nullptr;
        case Notation::hex:
            return put_hex(object, value->kind == Kind::integer ? static_cast<const Integer *>(value)->octets
                                                                : static_cast<const String *>(value)->content.octets);
        case Notation::bits:
            return put_bits(object, *static_cast<const BitString *>(value));
        case Notation::oid: {
            const char *text = kovra_asn1_oid_getstring(value);
            return text != nullptr && kovra_json_putstring(object, "value", text, -1) != nullptr;
        }
        case Notation::time:
            return put_time(object, value);
        case Notation::octets:
            return put_whole(decoder, object, start);
        default:
            return put_string(decoder, object, kind.notation, static_cast<const String *>(value)->content.octets,
                              start);
        }
    }

    bool put_hex(kovra_json *object, const Octets &octets) {
        return kovra_json_puthex(object, "value", octets.data(*arena_), static_cast<int32_t>(octets.length)) != nullptr;
    }

    bool put_bits(kovra_json *object, const BitString &bits) {
        kovra_json *value = kovra_json_putobject(object, "value");
        return value != nullptr && kovra_json_putnumber(value, "unusedbits", bits.unused_bits) != nullptr &&
               put_hex(value, bits.content.octets);
    }

    static bool put_time(kovra_json *object, const Value *value) {
        kovra_time *time = kovra_asn1_time_getutctime(value);
        if (time == nullptr)
            return false;
        const struct {
            const char *name;
            int32_t number;
        } numbers[] = {
            {"year", kovra_time_getyear(time)},     {"month", kovra_time_getmonth(time)},
            {"day", kovra_time_getday(time)},       {"hour", kovra_time_gethour(time)},
            {"minute", kovra_time_getminute(time)}, {"second", kovra_time_getsecond(time)},
            {"ns", kovra_time_getns(time)},
        };
        const bool is_utc = kovra_time_isutctime(time) == 1;
        kovra_time_free(time);
        kovra_json *fields = kovra_json_putobject(object, "value");
        if (fields == nullptr)
            return false;
        for (const auto &[name, number] : numbers)
            if (kovra_json_putnumber(fields, name, number) == nullptr)
                return false;
        return kovra_json_putboolean(fields, "utc", is_utc ? 1 : 0) != nullptr;
    }

    // A string outside its repertoire is written as its whole encoding.
    bool put_string(Decoder &decoder, kovra_json *object, Notation notation, const Octets &octets, uint32_t start) {
        const uint8_t *data = octets.data(*arena_);
        const auto length = static_cast<int32_t>(octets.length);
        if (notation != Notation::utf8 && notation != Notation::utf32 && notation != Notation::bmp)
            return is_in_repertoire(notation, data, octets.length)
                       ? kovra_json_putstring(object, "value", data, length) != nullptr
                       : put_whole(decoder, object, start);
        kovra_ustring *text = notation == Notation::utf8    ? kovra_ustring_newutf8(data, length)
                              : notation == Notation::utf32 ? kovra_ustring_newutf32be(data, length)
                                                            : kovra_ustring_newbmp(data, length);
        if (text == nullptr)
            return put_whole(decoder, object, start);
        kovra_data_blob *utf8 = notation == Notation::utf8 ? nullptr : kovra_ustring_toutf8(text);
        kovra_ustring_free(text);
        if (notation == Notation::utf8)
            return kovra_json_putstring(object, "value", data, length) != nullptr;
        const bool is_put = utf8 != nullptr && kovra_json_putstring(object, "value", kovra_data_blob_getdata(utf8),
                                                                    kovra_data_blob_getlength(utf8)) != nullptr;
        kovra_data_blob_free(utf8);
        return is_put;
    }

    const uint8_t *octets_;
    uint32_t length_;
    Arena *arena_ = nullptr;
    Stack<Frame, threshold<size_t>(32, 1)> frames_{source};
};

} // namespace

} // namespace kovra::asn1

kovra_json *kovra_asn1_tojson(const void *encoding, int32_t length) noexcept {
    if (encoding == nullptr || length <= 0)
        return nullptr;
    return kovra::asn1::Converter(static_cast<const uint8_t *>(encoding), static_cast<uint32_t>(length)).run();
}
