#include "core/structure.hpp"

#include <algorithm>
#include <cstring>

#include "core/any.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

const StructureShape &shape_of(const Type &type) {
    return *static_cast<const StructureShape *>(type.shape);
}

bool is_end_of_contents(const Value *value) {
    return value->kind == Kind::any && static_cast<const Any *>(value)->end_of_contents;
}

// Entries name the module of the structure and the line of the component's row.
Site at(const StructureShape &shape, const Component &component) {
    return {shape.source, component.line};
}
Site in(const StructureShape &shape, int32_t line = __builtin_LINE()) {
    return {shape.source, line};
}

bool is_written(const Component &component, const Value *value) {
    if (value == nullptr)
        return false;
    return component.presence != Presence::defaulted || !holds(row_of(component), value) ||
           !component.fallback->is(*value);
}

Octets *kept_of(Structure &record) {
    return reinterpret_cast<Octets *>(record.slots + record.shape->count);
}

// The slots are not cleared: the caller fills them.
Structure *new_record_of(Arena &arena, const StructureShape &shape) {
    const size_t size =
        sizeof(Structure) - sizeof(Structure::slots) + shape.count * sizeof(Value *) + 2 * sizeof(Octets);
    auto *record = static_cast<Structure *>(arena.allocate(size));
    if (record == nullptr)
        return nullptr;
    record->kind = Kind::structure;
    record->measured = 0;
    record->arena = &arena;
    record->shape = &shape;
    Octets *kept = kept_of(*record);
    kept[0] = kept[1] = {};
    return record;
}

// Copies what was just encoded for keeping.
Result keep(Encoder &encoder, Site site, int64_t begin, Arena &arena, Octets &out) {
    const int64_t length = encoder.written() - begin;
    if (length > max_length)
        return encoder.fail(site, code::length_too_large);
    auto *copy = static_cast<uint8_t *>(arena.allocate(static_cast<size_t>(length)));
    if (copy == nullptr)
        return encoder.fail(site, code::no_memory);
    std::memcpy(copy, encoder.since(begin), static_cast<size_t>(length));
    out = {copy, 0, static_cast<uint32_t>(length)};
    return success;
}

int32_t measure(const StructureShape &shape, Structure &record) {
    int64_t total = 0;
    record.measured = unknown;
    if (shape.content != nullptr)
        return record.measured = content_length(*shape.content, record.slots[0]);
    for (uint8_t i = 0; i < shape.count; ++i) {
        Value *value = record.slots[i];
        const Component &component = shape.components[i];
        if (i == 0 && shape.is_signed && is_kept(kept_of(record)[1])) {
            total += kept_of(record)[1].length;
            continue;
        }
        if (value == nullptr && component.presence == Presence::required)
            return record.measured = unknown;
        if (!is_written(component, value))
            continue;
        const int32_t length = component_length(component, value);
        if (length < 0)
            return record.measured = length;
        total += length;
    }
    return record.measured = total <= max_length ? static_cast<int32_t>(total) : unknown;
}

// The signed component is written from the octets that are kept. When there are none yet, those that are written now
// are kept from then on.
Result encode_signed(Encoder &encoder, Site site, const Component &component, Structure &record, Measure measure) {
    Octets &kept = kept_of(record)[1];
    if (is_kept(kept))
        return encoder.put(site, kept.data(*record.arena), kept.length);
    encoder.hold();
    const int64_t begin = encoder.written();
    Value *value = record.slots[0];
    const int32_t length = value != nullptr ? component_length(component, value, measure) : unknown;
    // Short memory is reported under the name under which every encoding begins.
    Result result = length > 0 ? encoder.expect({"ASN1", __LINE__}, static_cast<size_t>(length), record) : success;
    result = result == success ? encode_component(encoder, site, component, value, Measure::known)
                               : fail_encode(encoder, site, component, result);
    if (result == success)
        result = keep(encoder, site, begin, *record.arena, kept);
    encoder.release();
    return result;
}

int32_t structure_content_length(const Type &type, Value *value, Measure known) {
    const StructureShape &shape = shape_of(type);
    auto *record = static_cast<Structure *>(value);
    if (record == nullptr || (shape.length_of_refused == LengthOfRefused::none && !shape.allows(*record)))
        return unknown;
    return known == Measure::known ? record->measured : measure(shape, *record);
}

Result encode_structure_content(Encoder &encoder, const Type &type, Value *value, int32_t length) {
    const StructureShape &shape = shape_of(type);
    auto *record = static_cast<Structure *>(value);
    if (!encoder.has_stream() || record == nullptr)
        return encoder.fail(in(shape), code::null_argument);
    if (length < indefinite)
        return encoder.fail(in(shape), code::bad_argument);
    if (shape.allows != nullptr && !shape.allows(*record))
        return encoder.fail(in(shape), shape.refusal);
    if (shape.content != nullptr)
        return encode_content(encoder, *shape.content, record->slots[0], length);
    // Measuring stops at the first component of indefinite length: what follows it was not measured.
    const Measure measure = length >= 0 && record->measured >= 0 ? Measure::known : Measure::fresh;
    for (uint8_t i = 0; i < shape.count; ++i) {
        const Component &component = shape.components[i];
        const Site site = at(shape, component);
        Result result = success;
        if (i == 0 && shape.is_signed)
            result = encode_signed(encoder, site, component, *record, measure);
        else if (component.presence == Presence::required || is_written(component, record->slots[i]))
            result = encode_component(encoder, site, component, record->slots[i], measure);
        if (result != success)
            return result;
    }
    if (length == indefinite)
        if (const Result result = encoder.end_of_contents(in(shape)); result != success)
            return encoder.fail(in(shape), code::write_end_of_contents, result);
    return success;
}

// A record of another structure is refused as its first component would be, which is not of the right type either.
Result refuse_other_content(Encoder &encoder, const Type &type, const Value &value) {
    const StructureShape &shape = shape_of(type);
    const Component &first = shape.components[0];
    const Value *part = value.kind == Kind::structure ? static_cast<const Structure &>(value).slots[0] : &value;
    return fail_encode(encoder, at(shape, first), first, refuse_value(encoder, part));
}

int32_t kept_length(const Type &type, Value *value, Measure known) {
    auto *record = static_cast<Structure *>(value);
    const int32_t content = structure_content_length(type, value, Measure::known);
    if (record != nullptr && is_kept(*kept_of(*record)) &&
        !(content == unknown && shape_of(type).length_of_refused == LengthOfRefused::none))
        return static_cast<int32_t>(kept_of(*record)->length);
    return whole_length_of(type.tag, structure_content_length(type, value, known));
}

Result encode_kept(Encoder &encoder, const Type &type, Value *value) {
    const StructureShape &shape = shape_of(type);
    auto *record = static_cast<Structure *>(value);
    if (!encoder.has_stream() || record == nullptr)
        return encoder.fail(in(shape), code::null_argument);
    if (shape.allows != nullptr && !shape.allows(*record))
        return encoder.fail(in(shape), shape.refusal);
    Octets &kept = *kept_of(*record);
    if (is_kept(kept))
        return encoder.put(in(shape), kept.data(*record->arena), kept.length);
    const int32_t length = record->measured;
    if (length == unknown)
        return encoder.fail(in(shape), code::no_length);
    encoder.hold();
    const int64_t begin = encoder.written();
    Result result = encoder.identifier(in(shape), Class::universal, Form::constructed, type.tag);
    if (result != success)
        result = encoder.fail(in(shape), code::write_identifier, result);
    else if (result = encoder.length(in(shape), length); result != success)
        result = encoder.fail(in(shape), code::no_length, result);
    else
        result = encode_structure_content(encoder, type, value, length);
    if (result == success)
        result = keep(encoder, in(shape), begin, *record->arena, kept);
    encoder.release();
    return result;
}

// Decoding.

// One walk through the components of a structure. For each component the tests come in this order: an identifier that
// was read and not taken yet must be looked at first; at the end of the content only what may be absent is left; a
// plain element of the component's type, which nearly all are, is decoded at once; all else is read with care, whole
// where nothing but this component can stand here. Behind each component the position is held against the end: an
// element may reach beyond the structure, and is refused only when it was decoded, so that its own fault is reported
// first.
class Reader {
public:
    Reader(Decoder &decoder, const StructureShape &shape, const Element &element, Structure &record)
        : decoder_(decoder), shape_(shape), record_(record),
          end_(element.length == indefinite ? no_end : decoder.position() + static_cast<uint32_t>(element.length)) {}

    Result read() {
        Decoder &decoder = decoder_;
        const uint32_t end = end_;
        const Component *component = shape_.components;
        const Component *const last = component + shape_.count;
        const Component *const required_end = component + shape_.required_end;
        Value **slot = record_.slots;
        uint32_t whole = shape_.read_whole;
        if (shape_.is_signed) {
            *slot = nullptr;
            if (const Result result = read_signed(*component++, *slot++); result != success)
                return result;
            whole >>= 1;
        }
        for (; component != last; ++component, ++slot, whole >>= 1) {
            const uint32_t start = decoder.position();
            uint32_t length = 0;
            Result result = success;
            *slot = nullptr;
            if (state_ != State::between) {
                result = state_ == State::ended ? leave_absent(*component, *slot) : read_tested(*component, *slot);
            } else if (start == end && component >= required_end) {
                result = leave_absent(*component, *slot);
            } else if (component->usual_identifier != 0 && decoder.enter(component->usual_identifier, length)) {
                const Type &type = *component->taken_as;
                const Operations &operations = *type.operations;
                const auto decode_here = (whole & 1) != 0 ? operations.decode_plain : operations.decode_content;
                result = decode_here(decoder, type, type.usual_element(length, start), *slot);
                if (result != success)
                    return fail_decode(decoder, at(shape_, *component), *component, result);
            } else {
                result = (whole & 1) != 0 ? read_whole(*component, *slot) : read_tested(*component, *slot);
            }
            if (result != success)
                return result;
            if (decoder.position() > end)
                return decoder.fail(at(shape_, *component), code::incorrect_length);
        }
        return decoder.position() == end && state_ == State::between ? success : finish();
    }

private:
    static constexpr uint32_t no_end = UINT32_MAX;

    enum class State : uint8_t {
        between, // two components
        pending, // an identifier was read that no component has taken yet
        ended,   // the end-of-contents octets were read in place of a component
    };

    [[nodiscard]] bool is_indefinite() const { return end_ == no_end; }

    // Does the component begin with the identifier that was read?
    [[nodiscard]] bool matches(const Component &component) const {
        const Type &type = row_of(component);
        switch (component.tag.tagging) {
        case Tagging::none:
            return begins(type, identifier_);
        case Tagging::implicit:
            return identifier_.is(Class::context, component.tag.number) &&
                   (identifier_.form == type.form || (type.form != Form::constructed && !component.has_own_form_only));
        case Tagging::explicit_:
        case Tagging::bare:
            return identifier_.is(Class::context, component.tag.number) && identifier_.form == Form::constructed;
        }
        return false;
    }

    Result leave_absent(const Component &component, Value *&slot) {
        if (component.presence != Presence::defaulted)
            return success;
        slot = component.fallback->make(decoder_.arena());
        return slot != nullptr ? success : decoder_.fail(at(shape_, component), code::no_memory);
    }

    Result read_whole(const Component &component, Value *&slot) {
        const Type &type = row_of(component);
        if (const Result result = decode(decoder_, type, slot); result != success)
            return fail_decode(decoder_, at(shape_, component), component, result);
        return type.number == KOVRA_ASN1_TYPE_ANY && is_end_of_contents(slot) ? end_of_contents(component, slot)
                                                                              : success;
    }

    // An end-of-contents marker was read in place of a component.
    Result end_of_contents(const Component &component, Value *&slot) {
        slot = nullptr;
        if (component.presence == Presence::required || !is_indefinite())
            return decoder_.fail(at(shape_, component), code::incorrect_item);
        state_ = State::ended;
        return leave_absent(component, slot);
    }

    Result next_identifier(Site site) {
        identifier_start_ = decoder_.position();
        const Result result = decode_identifier(decoder_, site, identifier_);
        if (result == success)
            state_ = State::pending;
        return result;
    }

    Result read_tested(const Component &component, Value *&slot) {
        if (state_ == State::between) {
            if (component.is_missing_at_end && decoder_.position() == end_)
                return decoder_.fail(at(shape_, component), code::incorrect_item);
            if (const Result result = next_identifier(at(shape_, component)); result != success)
                return result;
        } else if (component.tag.tagging == Tagging::none && component.type == KOVRA_ASN1_TYPE_ANY) {
            state_ = State::between;
            decoder_.rewind(identifier_start_);
            return read_whole(component, slot);
        }
        if (!matches(component))
            return component.presence == Presence::required ? decoder_.fail(at(shape_, component), code::incorrect_item)
                                                            : leave_absent(component, slot);
        state_ = State::between;
        int32_t length = 0;
        if (const Result result = decode_length(decoder_, at(shape_, component), length); result != success)
            return result;
        return component.tag.tagging == Tagging::explicit_
                   ? decode_explicit(decoder_, at(shape_, component), component, length, slot)
                   : read_content(component, length, slot);
    }

    // Behind an identifier that the component begins with, tagged or not.
    Result read_content(const Component &component, int32_t length, Value *&place) {
        const Type &type = row_of(component);
        const bool is_own = component.tag.tagging == Tagging::none;
        const Element element{identifier_.form, length, is_own ? identifier_start_ : Element::no_start};
        const Result result = is_own ? decode_behind(decoder_, type, identifier_, element, place)
                                     : type.operations->decode_content(decoder_, type, element, place);
        return result == success ? success : fail_decode(decoder_, at(shape_, component), component, result);
    }

    // The component is decoded from its exact octets, which stay with the record.
    Result read_signed(const Component &component, Value *&slot) {
        const Site site = at(shape_, component);
        Extent extent;
        if (const Result result = walk_element(decoder_, extent); result != success)
            return decoder_.fail(site, code::decode_any, result);
        if (decoder_.position() > end_)
            return decoder_.fail(site, code::incorrect_length);
        kept_of(record_)[1] = decoder_.octets_from(extent.start);
        const uint32_t end = decoder_.position();
        decoder_.rewind(extent.start);
        const Decoder::Window window(decoder_, end);
        const Result result = read_whole(component, slot);
        ensure(result != success || window.is_used_up());
        return result;
    }

    // What is left when the components were read.
    Result finish() {
        const Site site = in(shape_);
        if (state_ == State::ended)
            return success;
        if (state_ == State::between && is_indefinite() && shape_.tests_end)
            if (const Result result = next_identifier(site); result != success)
                return result;
        if (state_ == State::pending) {
            if (!is_indefinite() || !identifier_.is_end_of_contents())
                return decoder_.fail(site, code::incorrect_item);
            return decode_end_of_contents_length(decoder_, site);
        }
        if (!is_indefinite())
            return decoder_.fail(site, code::incorrect_length);
        Value *none = nullptr;
        const Result result = decode(decoder_, row(KOVRA_ASN1_TYPE_END_OF_CONTENTS), none);
        return result == success ? success : decoder_.fail(site, code::read_end_of_contents, result);
    }

    Decoder &decoder_;
    const StructureShape &shape_;
    Structure &record_;
    const uint32_t end_; // position behind the last component; no_end: end-of-contents octets stand there
    Identifier identifier_;
    uint32_t identifier_start_ = 0;
    State state_ = State::between;
};

// The list that is all of a structure's content.
Result read_list(Decoder &decoder, const Type &list, const Element &element, Structure &record) {
    record.slots[0] = nullptr;
    return list.operations->decode_content(decoder, list, element, record.slots[0]);
}

// What decoding keeps of a structure besides its components.
enum class Keep : uint8_t {
    nothing,
    encoding, // the octets from its identifier on
};

template <Keep keep> Result decode_content_of(Decoder &decoder, const Type &type, const Element &element, Value *&out) {
    const StructureShape &shape = shape_of(type);
    if (const Result result = check_source_and_place(decoder, in(shape)); result != success)
        return result;
    if (element.form == Form::primitive)
        return decoder.fail(in(shape), code::form_error);
    if (element.length < indefinite)
        return decoder.fail(in(shape), code::bad_argument);
    Structure *record = new_record_of(decoder.arena(), *shape.record_shape());
    if (record == nullptr)
        return decoder.fail(in(shape), code::no_memory);
    const Result result = shape.content == nullptr ? Reader(decoder, shape, element, *record).read()
                                                   : read_list(decoder, *shape.content, element, *record);
    if (result != success)
        return result;
    if (shape.allows != nullptr && !shape.allows(*record))
        return decoder.fail(in(shape), shape.refusal);
    if (keep == Keep::encoding && element.start != Element::no_start)
        kept_of(*record)[0] = decoder.octets_from(element.start);
    out = record;
    return success;
}

constexpr auto decode_structure_content = decode_content_of<Keep::nothing>;
constexpr auto decode_kept_content = decode_content_of<Keep::encoding>;

// One of definite length ends where it says: its components do not reach beyond.
Result decode_kept_plain(Decoder &decoder, const Type &type, const Element &element, Value *&out) {
    const Decoder::Window window(decoder, decoder.position() + static_cast<uint32_t>(element.length));
    const Result result = decode_kept_content(decoder, type, element, out);
    ensure(result != success || window.is_used_up());
    return result;
}

Result decode_kept(Decoder &decoder, const Type &type, Value *&out) {
    const StructureShape &shape = shape_of(type);
    if (const Result result = check_source_and_place(decoder, in(shape)); result != success)
        return result;
    Extent extent;
    if (const Result result = walk_element(decoder, extent); result != success)
        return decoder.fail(in(shape), code::decode_any, result);
    if (!extent.identifier.is(Class::universal, type.tag) || extent.identifier.form != Form::constructed)
        return decoder.fail(in(shape), code::incorrect_item);
    const uint32_t end = decoder.position();
    decoder.rewind(extent.content);
    const Decoder::Window window(decoder, end);
    const Result result =
        decode_kept_content(decoder, type, {extent.identifier.form, extent.length, extent.start}, out);
    ensure(result != success || window.is_used_up());
    return result;
}

bool holds_structure(const Type &type, const Value &value) {
    return value.kind == Kind::structure &&
           static_cast<const Structure &>(value).shape == shape_of(type).record_shape();
}

size_t structure_reserve(size_t octets) {
    return 512 + 4 * octets;
}

} // namespace

constexpr Operations structure_operations = {
    .holds = holds_structure,
    .content_length = structure_content_length,
    .encode_content = encode_structure_content,
    .decode_content = decode_structure_content,
    .decode_plain = decode_structure_content,
    .refuse_content = refuse_other_content,
    .records_reserve = structure_reserve,
};

constexpr Operations kept_structure_operations = {
    .holds = holds_structure,
    .content_length = structure_content_length,
    .length = kept_length,
    .encode_content = encode_structure_content,
    .encode = encode_kept,
    .decode_content = decode_kept_content,
    .decode = decode_kept,
    .decode_plain = decode_kept_plain,
    .refuse_content = refuse_other_content,
    .records_reserve = structure_reserve,
};

Structure *new_structure(Arena &arena, const StructureShape &shape) {
    Structure *record = new_record_of(arena, *shape.record_shape());
    if (record != nullptr)
        std::fill_n(record->slots, record->shape->count, nullptr);
    return record;
}

Structure *new_structure(const StructureShape &shape) {
    const StructureShape &own = *shape.record_shape();
    Arena *arena = Arena::create(sizeof(Structure) + own.count * sizeof(Value *) + 2 * sizeof(Octets));
    if (arena == nullptr)
        return nullptr;
    Structure *record = new_structure(*arena, own);
    if (record == nullptr)
        Arena::destroy(arena);
    else
        arena->root = record;
    return record;
}

bool store(Structure &record, uint8_t slot, Value *value) {
    if (value == nullptr || !record.arena->adopt(value))
        return false;
    record.slots[slot] = value;
    return true;
}

bool store_copy(Structure &record, uint8_t slot, const kovra_asn1_value *value) {
    const Component &component = record.shape->components[slot];
    if (value == nullptr) {
        if (component.presence != Presence::defaulted)
            return component.presence == Presence::optional;
        record.slots[slot] = component.fallback->make(*record.arena);
        return record.slots[slot] != nullptr;
    }
    Value *copy = copy_part(*component.copied_as, static_cast<const Value *>(value));
    if (copy == nullptr)
        return false;
    return store(record, slot, copy);
}

Structure *as_structure(const StructureShape &shape, const kovra_asn1_value *handle) {
    auto *record = as<Structure>(const_cast<kovra_asn1_value *>(handle));
    return record != nullptr && record->shape == shape.record_shape() ? record : nullptr;
}

Value *component(const StructureShape &shape, const kovra_asn1_value *handle, uint8_t slot) {
    const Structure *record = as_structure(shape, handle);
    return record != nullptr ? record->slots[slot] : nullptr;
}

void drop_kept_encoding(Structure &record) {
    kept_of(record)[0] = {};
}

Result signed_octets(Structure &record, const uint8_t *&out, uint32_t &out_length) {
    const StructureShape &shape = *record.shape;
    Octets &kept = kept_of(record)[1];
    if (!is_kept(kept)) {
        Encoder encoder(static_cast<kovra_err_ctx *>(nullptr));
        const Component &first = shape.components[0];
        const Result result = encode_signed(encoder, at(shape, first), first, record, Measure::fresh);
        if (result != success)
            return result;
    }
    out = kept.data(*record.arena);
    out_length = kept.length;
    return success;
}

} // namespace kovra::asn1
