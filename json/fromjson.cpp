// From a JSON description to DER: one pass over the tree that gathers the octets of the leaves and the lengths of what
// holds them, and one that writes.

#include <cmath>
#include <cstring>

#include "base/stack.hpp"
#include "base/thresholds.hpp"
#include "core/any.hpp"
#include "core/codec.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_bitstring.h"
#include "kovra/asn1_boolean.h"
#include "kovra/asn1_codec.h"
#include "kovra/asn1_json.h"
#include "kovra/asn1_octetstring.h"
#include "kovra/asn1_oid.h"
#include "kovra/asn1_time.h"
#include "kovra/util_coding.h"
#include "kovra/util_memory.h"
#include "kovra/util_ustring.h"
#include "json/kinds.hpp"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_JSON";

Site here(int32_t line = __builtin_LINE()) {
    return {source, line};
}

// The identifier that an implicit tag puts in the place of another; the form stays that of the value.
struct Override {
    bool is_set = false;
    Class tag_class = Class::context;
    int32_t tag = 0;
};

// A part of the encoding, in the order of writing: a header whose length counts the parts inside it, or octets.
struct Part {
    Identifier identifier;
    bool has_header;
    int64_t length; // content octets of what a header stands before; octets of a leaf
    size_t octets;  // of a leaf: where they stand among the gathered
};

// A constructed value whose items are being encoded.
struct Open {
    const kovra_json *items; // the array, or the one item of a tagged value
    int32_t next;
    int32_t count; // of items; the one item of a tagged value does not stand in an array
    bool is_tagged;
    size_t part; // its header
};

class Author {
public:
    Author() : leaves_(static_cast<kovra_err_ctx *>(nullptr)) {}

    kovra_data_blob *run(const kovra_json *json) {
        if (!value(json))
            return nullptr;
        while (open_.size() != 0) {
            Open &open = open_.top();
            if (open.next == open.count) {
                close();
                continue;
            }
            const int32_t index = open.next++;
            const kovra_json *item = open.is_tagged ? open.items : kovra_json_getarrayitem(open.items, index);
            if (!value(item))
                return nullptr;
        }
        return total_ <= max_length ? write() : nullptr;
    }

private:
    // Counts octets to the innermost open value.
    void count(int64_t octets) {
        if (open_.size() != 0)
            parts_[open_.top().part].length += octets;
        else
            total_ += octets;
    }

    void close() {
        const Part &part = parts_[open_.top().part];
        open_.pop();
        if (part.length > max_length) {
            total_ = INT64_MAX / 2;
            return;
        }
        const auto content = static_cast<int32_t>(part.length);
        count(int64_t{identifier_length(part.identifier.tag)} + length_length(content) + content);
    }

    // Encodes one object, or opens it when items are to follow. Of implicit tags directly inside one another the
    // outermost replaces the identifier of the value; the others do not show.
    bool value(const kovra_json *object) {
        Override tag;
        for (;;) {
            if (kovra_json_gettype(object) != KOVRA_JSON_OBJECT)
                return false;
            bool is_raw = false;
            if (!raw(object, tag, is_raw))
                return false;
            if (is_raw)
                return true;
            const char *name = name_of(kovra_json_getobjectvalue(object, "type"));
            if (name == nullptr)
                return false;
            const kovra_json *inner = kovra_json_getobjectvalue(object, "value");
            if (std::strcmp(name, tagged_name) != 0) {
                const JsonKind *kind = kind_of_name(name);
                return kind != nullptr && typed(*kind, inner, tag);
            }
            Override own;
            bool is_explicit = true;
            if (inner == nullptr || !read_tag(object, own, is_explicit))
                return false;
            if (is_explicit) {
                const Override &shown = tag.is_set ? tag : own;
                return open({shown.tag_class, Form::constructed, shown.tag}, inner, 1, true);
            }
            if (!tag.is_set)
                tag = own;
            object = inner;
        }
    }

    bool open(const Identifier &identifier, const kovra_json *items, int32_t item_count, bool is_tagged) {
        return parts_.push({identifier, true, 0, 0}) &&
               open_.push({items, 0, item_count, is_tagged, parts_.size() - 1});
    }

    static const char *text_of(const kovra_json *json) {
        return kovra_json_gettype(json) == KOVRA_JSON_STRING ? kovra_json_getstring(json) : nullptr;
    }

    // The text as a C string; null for one with a zero inside, which a C string would cut.
    static const char *name_of(const kovra_json *json) {
        const char *text = text_of(json);
        const bool is_whole =
            text != nullptr && std::strlen(text) == static_cast<size_t>(kovra_json_getstringlength(json));
        return is_whole ? text : nullptr;
    }

    // Adds an encoding as it is, or with another identifier.
    bool add(const uint8_t *octets, size_t length, const Override &tag) {
        Part part{{}, false, static_cast<int64_t>(length), leaves_.size()};
        uint8_t identifier[max_identifier_octets];
        size_t skipped = 0;
        if (tag.is_set) {
            Decoder decoder(octets, static_cast<uint32_t>(length), nullptr);
            Identifier own;
            if (read_identifier(decoder, here(), own) != success)
                return false;
            skipped = decoder.position();
            const auto count = static_cast<size_t>(put_identifier(identifier, tag.tag_class, own.form, tag.tag));
            part.length += static_cast<int64_t>(count) - static_cast<int64_t>(skipped);
            if (leaves_.put(here(), identifier, count) != success)
                return false;
        }
        if (leaves_.put(here(), octets + skipped, length - skipped) != success || !parts_.push(part))
            return false;
        count(part.length);
        return true;
    }

    // A ready-made encoding, which must be one element.
    bool raw(const kovra_json *object, const Override &tag, bool &is_raw) {
        const kovra_json *hex = kovra_json_getobjectvalue(object, "hexencode");
        const kovra_json *base64 = hex == nullptr ? kovra_json_getobjectvalue(object, "base64encode") : nullptr;
        const kovra_json *coded = hex != nullptr ? hex : base64;
        if (coded == nullptr)
            return true;
        is_raw = true;
        const char *text = text_of(coded);
        if (text == nullptr)
            return false;
        int32_t length = 0;
        const int32_t text_length = kovra_json_getstringlength(coded);
        void *octets = hex != nullptr ? kovra_hexdecode(text, text_length, &length)
                                      : kovra_base64decode(text, text_length, KOVRA_BASE64_IGNORE_SPACE, &length);
        if (octets == nullptr)
            return false;
        Decoder decoder(octets, static_cast<uint32_t>(length), nullptr);
        Extent extent{};
        const bool is_good = length > 0 && walk_element(decoder, extent) == success &&
                             decoder.position() == static_cast<uint32_t>(length) &&
                             add(static_cast<const uint8_t *>(octets), static_cast<size_t>(length), tag);
        kovra_free(octets);
        return is_good;
    }

    // A whole number that fits into 32 bits; false for any other.
    static bool whole_number(const kovra_json *json, int32_t &out) {
        double number = 0;
        if (kovra_json_gettype(json) != KOVRA_JSON_NUMBER || kovra_json_getnumber(json, &number) != 1 ||
            !(number >= -2147483648.0 && number <= 2147483647.0) || number != std::floor(number))
            return false;
        out = static_cast<int32_t>(number);
        return true;
    }

    static bool truth(const kovra_json *json, bool &out) {
        if (kovra_json_gettype(json) != KOVRA_JSON_BOOLEAN)
            return false;
        out = kovra_json_istrue(json) == 1;
        return true;
    }

    static bool read_tag(const kovra_json *object, Override &out, bool &is_explicit) {
        out.is_set = true;
        if (const kovra_json *json = kovra_json_getobjectvalue(object, "class"); json != nullptr) {
            const char *name = name_of(json);
            uint8_t index = 0;
            while (name != nullptr && index < 4 && std::strcmp(name, class_names[index]) != 0)
                ++index;
            if (name == nullptr || index == 4)
                return false;
            out.tag_class = static_cast<Class>(index << 6);
        }
        const kovra_json *json = kovra_json_getobjectvalue(object, "explicit");
        if (json != nullptr && !truth(json, is_explicit))
            return false;
        return whole_number(kovra_json_getobjectvalue(object, "number"), out.tag) && out.tag >= 0;
    }

    // A value of a kind of the table.
    bool typed(const JsonKind &kind, const kovra_json *json, const Override &tag) {
        if (kind.notation == Notation::none) {
            static constexpr uint8_t null[] = {0x05, 0x00};
            return add(null, sizeof null, tag);
        }
        if (json == nullptr)
            return false;
        if (kind.notation == Notation::list) {
            if (kovra_json_gettype(json) != KOVRA_JSON_ARRAY)
                return false;
            const Identifier identifier{tag.is_set ? tag.tag_class : Class::universal, Form::constructed,
                                        tag.is_set ? tag.tag : kind.tag};
            return open(identifier, json, kovra_json_getarraysize(json), false);
        }
        if (kind.notation == Notation::hex)
            return content(kind, json, tag);
        kovra_asn1_value *made = make(kind, json);
        if (made == nullptr)
            return false;
        Encoder encoder(static_cast<kovra_err_ctx *>(nullptr));
        const bool is_good = encode(encoder, row(kind.type), static_cast<Value *>(made)) == success &&
                             add(encoder.data(), encoder.size(), tag);
        kovra_asn1_value_free(kind.type, made);
        return is_good;
    }

    // A value whose content octets are given. They are written as they are: the constructors would make the content of
    // an INTEGER minimal.
    bool content(const JsonKind &kind, const kovra_json *json, const Override &tag) {
        const char *text = text_of(json);
        if (text == nullptr)
            return false;
        int32_t length = 0;
        void *octets = kovra_hexdecode(text, kovra_json_getstringlength(json), &length);
        if (octets == nullptr)
            return false;
        uint8_t header[max_identifier_octets + max_length_octets];
        int32_t header_length = put_identifier(header, tag.is_set ? tag.tag_class : Class::universal, Form::primitive,
                                               tag.is_set ? tag.tag : kind.tag);
        header_length += put_length(header + header_length, length);
        const Part part{{}, false, int64_t{header_length} + length, leaves_.size()};
        const bool may_be_empty = kind.type == KOVRA_ASN1_TYPE_OCTET_STRING;
        const bool is_good = (length > 0 || may_be_empty) &&
                             leaves_.put(here(), header, static_cast<size_t>(header_length)) == success &&
                             leaves_.put(here(), octets, static_cast<size_t>(length)) == success && parts_.push(part);
        kovra_free(octets);
        if (is_good)
            count(part.length);
        return is_good;
    }

    static kovra_asn1_value *make(const JsonKind &kind, const kovra_json *json) {
        switch (kind.notation) {
        case Notation::boolean: {
            bool is_true = false;
            if (!truth(json, is_true))
                return nullptr;
            return is_true ? kovra_asn1_boolean_true() : kovra_asn1_boolean_false();
        }
        case Notation::bits:
            return make_bits(json);
        case Notation::time:
            return make_time(kind, json);
        default:
            return text_of(json) != nullptr ? make_from_text(kind, json) : nullptr;
        }
    }

    static kovra_asn1_value *make_from_text(const JsonKind &kind, const kovra_json *json) {
        const char *text = kovra_json_getstring(json);
        const int32_t length = kovra_json_getstringlength(json);
        switch (kind.notation) {
        case Notation::oid:
            return kovra_asn1_oid_new(name_of(json));
        case Notation::numeric:
        case Notation::printable:
            if (!is_in_repertoire(kind.notation, reinterpret_cast<const uint8_t *>(text),
                                  static_cast<uint32_t>(length)))
                return nullptr;
            return kovra_asn1_string_new(text, length);
        case Notation::utf32:
        case Notation::bmp: {
            kovra_ustring *string = kovra_ustring_newutf8(text, length);
            kovra_data_blob *octets = string == nullptr                ? nullptr
                                      : kind.notation == Notation::bmp ? kovra_ustring_tobmp(string)
                                                                       : kovra_ustring_toutf32be(string);
            kovra_ustring_free(string);
            kovra_asn1_value *made = octets != nullptr ? kovra_asn1_string_new(kovra_data_blob_getdata(octets),
                                                                               kovra_data_blob_getlength(octets))
                                                       : nullptr;
            kovra_data_blob_free(octets);
            return made;
        }
        default:
            return kovra_asn1_string_new(text, length);
        }
    }

    // An object with "unusedbits" and hexadecimal "value", or booleans for the bits from bit 0 on, either in its
    // place or as its "value".
    static kovra_asn1_value *make_bits(const kovra_json *json) {
        const kovra_json *value = json;
        if (kovra_json_gettype(json) == KOVRA_JSON_OBJECT)
            value = kovra_json_getobjectvalue(json, "value");
        if (kovra_json_gettype(value) == KOVRA_JSON_ARRAY)
            return make_from_booleans(value);
        int32_t unused_bits = 0;
        int32_t count = 0;
        const char *text = text_of(value);
        if (value == json || text == nullptr ||
            !whole_number(kovra_json_getobjectvalue(json, "unusedbits"), unused_bits))
            return nullptr;
        void *octets = kovra_hexdecode(text, kovra_json_getstringlength(value), &count);
        if (octets == nullptr)
            return nullptr;
        kovra_asn1_value *made = kovra_asn1_bitstring_new(unused_bits, octets, count);
        kovra_free(octets);
        return made;
    }

    static kovra_asn1_value *make_from_booleans(const kovra_json *array) {
        kovra_bitset *set = kovra_bitset_empty();
        bool is_good = set != nullptr;
        for (int32_t i = 0, size = kovra_json_getarraysize(array); is_good && i < size; ++i) {
            bool is_set = false;
            is_good = truth(kovra_json_getarrayitem(array, i), is_set) &&
                      (is_set ? kovra_bitset_set(set, i) : kovra_bitset_clear(set, i)) == 1;
        }
        kovra_asn1_value *made = is_good ? kovra_asn1_bitstring_newbitset(set) : nullptr;
        kovra_bitset_free(set);
        return made;
    }

    static kovra_asn1_value *make_time(const JsonKind &kind, const kovra_json *json) {
        if (kovra_json_gettype(json) != KOVRA_JSON_OBJECT)
            return nullptr;
        constexpr const char *names[] = {"year", "month", "day", "hour", "minute", "second", "ns"};
        int32_t numbers[7] = {};
        for (int i = 0; i < 7; ++i) {
            const kovra_json *number = kovra_json_getobjectvalue(json, names[i]);
            const bool may_miss = i == 6;
            if (!(number == nullptr && may_miss) && !whole_number(number, numbers[i]))
                return nullptr;
        }
        const kovra_json *dst = kovra_json_getobjectvalue(json, "isdst");
        bool is_utc = false;
        bool is_dst = false;
        if (!truth(kovra_json_getobjectvalue(json, "utc"), is_utc) || (dst != nullptr && !truth(dst, is_dst)))
            return nullptr;
        const auto &[year, month, day, hour, minute, second, ns] = numbers;
        kovra_time *time = is_utc ? kovra_time_newutctime(year, month, day, hour, minute, second, ns)
                                  : kovra_time_newlocaltime(year, month, day, hour, minute, second, ns, is_dst ? 1 : 0);
        if (time == nullptr)
            return nullptr;
        // Refuses a local time.
        constexpr uint32_t utc_time_flags = 0x00;
        constexpr uint32_t generalized_time_flags = 0x11;
        kovra_asn1_value *made = kovra_asn1_time_newutctime(
            time, kind.type == KOVRA_ASN1_TYPE_UTC_TIME ? utc_time_flags : generalized_time_flags);
        kovra_time_free(time);
        return made;
    }

    kovra_data_blob *write() {
        Encoder encoder(static_cast<kovra_err_ctx *>(nullptr));
        if (encoder.reserve(here(), static_cast<size_t>(total_)) != success)
            return nullptr;
        for (size_t i = 0; i < parts_.size(); ++i) {
            const Part &part = parts_[i];
            Result result = success;
            if (part.has_header) {
                result =
                    encoder.identifier(here(), part.identifier.tag_class, part.identifier.form, part.identifier.tag);
                if (result == success)
                    result = encoder.length(here(), static_cast<int32_t>(part.length));
            } else {
                result = encoder.put(here(), leaves_.data() + part.octets, static_cast<size_t>(part.length));
            }
            if (result != success)
                return nullptr;
        }
        return kovra_data_blob_new(encoder.data(), static_cast<int32_t>(encoder.size()));
    }

    Encoder leaves_;
    static constexpr auto first_items = threshold<size_t>(16, 1);
    Stack<Part, first_items> parts_{source};
    Stack<Open, first_items> open_{source};
    int64_t total_ = 0;
};

} // namespace

} // namespace kovra::asn1

kovra_data_blob *kovra_asn1_encodejson(const kovra_json *json) noexcept {
    return kovra::asn1::Author().run(json);
}
