#include "core/list.hpp"

#include <algorithm>
#include <cstring>

#include "core/any.hpp"
#include "core/codec.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_codec.h"
#include "kovra/asn1_list.h"
#include "kovra/asn1_types.h"
#include "kovra/util_memory.h"

namespace kovra::asn1 {

namespace {

Site here(int32_t line = __builtin_LINE()) {
    return {"ASN1_List", line};
}

constexpr uint32_t first_capacity = threshold<uint32_t>(32, 1);

// Position behind the last element of a list of indefinite length: none.
constexpr uint32_t no_end = UINT32_MAX;

// A decoded list of more elements keeps their places and builds them when they are asked for.
constexpr uint32_t most_built_at_once = threshold<uint32_t>(32, 2);

const ListShape &shape_of(const Type &type) {
    return *static_cast<const ListShape *>(type.shape);
}

Site in(const ListShape &shape, int32_t line = __builtin_LINE()) {
    return {shape.source, line};
}

// Slots for at least `wanted` elements, those of elements that are not built being null.
bool make_slots(List &list, uint32_t wanted) {
    if (list.items != nullptr && wanted <= list.capacity)
        return true;
    constexpr size_t step = 16;
    constexpr size_t even_steps_to = 1024;
    const uint32_t old_slots = list.items != nullptr ? list.capacity : 0;
    size_t capacity = list.capacity;
    while (capacity < wanted)
        capacity = next_capacity(capacity, capacity < even_steps_to ? step : capacity / 4);
    if (capacity > static_cast<size_t>(max_length) / sizeof(Value *))
        return false;
    const size_t size = product(capacity, sizeof(Value *));
    Arena::Block *block = nullptr;
    if (list.items_block != nullptr) {
        block = list.arena->resize_linked(list.items_block, size);
        if (block == nullptr)
            return false;
    } else {
        block = Arena::new_block(size);
        if (block == nullptr)
            return false;
        list.arena->link(block, &list);
        if (old_slots != 0)
            std::memcpy(block->memory(), list.items, old_slots * sizeof(Value *));
    }
    list.items_block = block;
    list.items = reinterpret_cast<Value **>(block->memory());
    std::fill(list.items + old_slots, list.items + capacity, nullptr);
    list.capacity = static_cast<uint32_t>(capacity);
    return true;
}

// Calls visit(element) with each element, in order, until one call gives something else than success. An element that
// is not built is built for the call only, which fails when memory is short.
template <class Visit> Result for_each(List &list, kovra_err_ctx *ctx, Visit visit) {
    for (uint32_t i = 0; i < list.count; ++i) {
        Value *element = list.items != nullptr ? list.items[i] : nullptr;
        if (element == nullptr) {
            if (list.places == nullptr)
                return failure; // of a value that was only checked
            Decoder decoder(*list.arena, list.places[i]);
            const Decoder::Scratch scratch(decoder, false);
            if (!scratch.has_begun() || decode(decoder, *list.element, element) != success) {
                report(ctx, here(), code::no_memory);
                return failure;
            }
            if (const Result result = visit(element); result != success)
                return result;
            continue;
        }
        if (const Result result = visit(element); result != success)
            return result;
    }
    return success;
}

int32_t measure_list(List *list, const Type &element) {
    if (list == nullptr)
        return unknown;
    int64_t total = 0;
    list->measured = unknown;
    const Result result = for_each(*list, nullptr, [&](Value *value) {
        const int32_t length = whole_length(element, value);
        total = length < 0 ? length : total + length;
        return length < 0 || total > max_length ? failure : success;
    });
    if (result != success && total >= 0)
        return unknown;
    list->measured = static_cast<int32_t>(total);
    return list->measured;
}

Result encode_elements(Encoder &encoder, const Type &element, List *list, int32_t length, bool is_any) {
    if (!encoder.has_stream() || list == nullptr)
        return encoder.fail(here(), code::null_argument);
    if (length < indefinite)
        return encoder.fail(here(), code::bad_argument);
    const Result result = for_each(*list, encoder.ctx(), [&](Value *value) {
        // What was measured holds only as long as all of the list could be measured, and only for elements that stay.
        const bool is_measured = length >= 0 && list->measured >= 0 && list->places == nullptr;
        const Result put = encode(encoder, element, value, is_measured ? Measure::known : Measure::fresh);
        return put == success ? success : encoder.fail(here(), is_any ? code::encode_any : element.base, put);
    });
    if (result != success)
        return result;
    if (length == indefinite)
        if (const Result end = encoder.end_of_contents(here()); end != success)
            return encoder.fail(here(), code::write_end_of_contents, end);
    return success;
}

// The elements of a list that is being decoded: built, and together with the list, as long as they are few.
class Collector {
public:
    explicit Collector(Decoder &decoder) : decoder_(decoder), mark_(decoder.arena().mark()) {}

    [[nodiscard]] uint32_t count() const { return count_; }
    [[nodiscard]] bool is_full() const { return count_ == most_built_at_once; }

    // Where the next element is put, which begins at `place`; there is room while the collector is not full.
    Value *&next(uint32_t place) {
        places_[count_] = place;
        built_[count_] = nullptr;
        return built_[count_];
    }
    void add() { ++count_; }
    void add(Value *element, uint32_t place) {
        next(place) = element;
        add();
    }

    // The list with what was added; null when memory is short.
    List *finish(const Type &element) const {
        Arena &arena = decoder_.arena();
        auto *list = static_cast<List *>(arena.allocate(sizeof(List) + size_t{count_} * sizeof(Value *)));
        if (list == nullptr)
            return nullptr;
        auto **items = reinterpret_cast<Value **>(list + 1);
        list->kind = Kind::list;
        list->measured = 0;
        list->arena = &arena;
        list->items = items;
        list->items_block = nullptr;
        list->places = nullptr;
        list->element = &element;
        list->count = count_;
        list->capacity = count_;
        list->placed = 0;
        for (uint32_t i = 0; i < count_; ++i)
            items[i] = built_[i];
        return list;
    }

private:
    friend class LongCollector;

    Decoder &decoder_;
    Arena::Mark mark_;
    uint32_t count_ = 0;
    Value *built_[most_built_at_once];
    uint32_t places_[most_built_at_once];
};

// The elements of a list that has become long: what was built makes room for places, and those that follow are built
// in a scratch area, to be checked.
class LongCollector {
public:
    // Goes on where the other is full.
    explicit LongCollector(const Collector &first)
        : keeps_places_(!first.decoder_.checking()), list_(begin_list(first)), scratch_(first.decoder_, true) {}
    ~LongCollector() { Arena::drop_block(places_); }
    LongCollector(const LongCollector &) = delete;
    LongCollector &operator=(const LongCollector &) = delete;

    // The places of those that the other has; false when memory is short.
    bool begin(const Collector &first) {
        if (list_ == nullptr || !scratch_.has_begun())
            return false;
        for (const uint32_t place : first.places_)
            if (!add(place))
                return false;
        return true;
    }

    // An element that begins at `place` was decoded; false when memory is short.
    bool add(uint32_t place) {
        scratch_.clear();
        if (keeps_places_ && !keep(place))
            return false;
        ++count_;
        return true;
    }

    List *finish(const Type &element) {
        list_->element = &element;
        list_->count = list_->capacity = list_->placed = count_;
        if (places_ != nullptr) {
            list_->arena->link(places_, list_);
            list_->places = reinterpret_cast<const uint32_t *>(places_->memory());
            places_ = nullptr;
        }
        return list_;
    }

private:
    // In the arena of the value, not in the scratch area: it stays.
    static List *begin_list(const Collector &first) {
        Arena &arena = first.decoder_.arena();
        arena.reset(first.mark_);
        return new_record<List>(arena);
    }

    bool keep(uint32_t place) {
        if (count_ == capacity_) {
            constexpr size_t first_places = threshold<size_t>(128, 1);
            const size_t capacity = capacity_ == 0 ? first_places : next_capacity(capacity_, capacity_);
            const size_t size = product(capacity, sizeof(uint32_t));
            Arena::Block *block = places_ == nullptr ? Arena::new_block(size) : Arena::resize_block(places_, size);
            if (block == nullptr)
                return false;
            places_ = block;
            capacity_ = capacity;
        }
        reinterpret_cast<uint32_t *>(places_->memory())[count_] = place;
        return true;
    }

    const bool keeps_places_;
    List *list_;
    Decoder::Scratch scratch_;
    uint32_t count_ = 0;
    size_t capacity_ = 0;
    Arena::Block *places_ = nullptr;
};

// What is left of a list whose elements are being read.
enum class Next : uint8_t { element, end, fault };

// Goes on where a collector is full, and its next element, at `place`, was read.
template <class Read>
Result collect_many(Decoder &decoder, const ListShape &shape, const Collector &first, uint32_t place, Read read,
                    Value *&out) {
    LongCollector collector(first);
    if (!collector.begin(first) || !collector.add(place))
        return decoder.fail(in(shape), code::no_memory);
    for (;;) {
        Value *value = nullptr;
        Result result = success;
        place = decoder.position();
        const Next next = read(value, result);
        if (next == Next::fault)
            return result;
        if (next == Next::end)
            break;
        if (!collector.add(place))
            return decoder.fail(in(shape), code::no_memory);
    }
    out = collector.finish(row(shape.element));
    return success;
}

// Reads what is left of the elements of a list, each by read(value, result), which tells what it met; `result` is that
// of a fault.
template <class Read>
Result collect(Decoder &decoder, const ListShape &shape, Collector &collector, Read read, Value *&out) {
    for (;;) {
        Value *value = nullptr;
        Result result = success;
        const uint32_t place = decoder.position();
        const Next next = read(value, result);
        if (next == Next::fault)
            return result;
        if (next == Next::end)
            break;
        if (collector.is_full())
            return collect_many(decoder, shape, collector, place, read, out);
        collector.add(value, place);
    }
    if (shape.nonempty != nullptr && collector.count() == 0)
        return decoder.fail({shape.nonempty, __builtin_LINE()}, code::incorrect_size);
    out = collector.finish(row(shape.element));
    return out != nullptr ? success : decoder.fail(in(shape), code::no_memory);
}

// Reads one element of a list, unless the end-of-contents of an indefinite one stands in its place.
Next read_element(Decoder &decoder, const ListShape &shape, bool is_indefinite, Result &result, Value *&out) {
    const Type &element = row(shape.element);
    const auto fault = [&](Result given) {
        result = given;
        return Next::fault;
    };
    const uint32_t start = decoder.position();
    Identifier identifier;
    int32_t length = 0;
    if (shape.reading == ListReading::whole && !is_indefinite) {
        const Result decoded = decode(decoder, element, out);
        return decoded == success ? Next::element : fault(fail_decode(decoder, in(shape), element, decoded));
    }
    if (const Result read = decode_identifier(decoder, in(shape), identifier); read != success)
        return fault(read);
    if (is_indefinite && identifier.is_end_of_contents()) {
        const Result read = decode_end_of_contents_length(decoder, in(shape));
        return read == success ? Next::end : fault(read);
    }
    if (shape.reading == ListReading::whole) {
        decoder.rewind(start);
        const Result decoded = decode(decoder, element, out);
        return decoded == success ? Next::element : fault(fail_decode(decoder, in(shape), element, decoded));
    }
    if (!begins(element, identifier))
        return fault(decoder.fail(in(shape), code::incorrect_item));
    if (const Result read = decode_length(decoder, in(shape), length); read != success)
        return fault(read);
    const Result decoded = decode_behind(decoder, element, identifier, {identifier.form, length, start}, out);
    if (decoded == success)
        return Next::element;
    if (shape.reading == ListReading::tagged)
        return fault(fail_decode(decoder, in(shape), element));
    return fault(shape.reading == ListReading::inlined ? decoded : fail_decode(decoder, in(shape), element, decoded));
}

// Lists of open-type values have codes of their own for what goes wrong.
Result decode_any_list(Decoder &decoder, const Type &type, const Element &element, Value *&out) {
    if (const Result result = check_source_and_place(decoder, here()); result != success)
        return result;
    if (element.form == Form::primitive)
        return decoder.fail(here(), code::form_error);
    if (element.length < indefinite)
        return decoder.fail(here(), code::bad_length);
    const bool is_indefinite = element.length == indefinite;
    const uint32_t end = is_indefinite ? no_end : decoder.position() + static_cast<uint32_t>(element.length);
    Collector collector(decoder);
    const auto read = [&](Value *&value, Result &result) {
        const auto fault = [&](int32_t code, Result given = failure) {
            result = decoder.fail(here(), code, given);
            return Next::fault;
        };
        if (decoder.position() >= end)
            return decoder.position() == end ? Next::end : fault(code::incorrect_length);
        Extent extent;
        if (const Result walked = walk_element(decoder, extent); walked != success)
            return fault(code::decode_any, walked);
        if (extent.identifier.is_end_of_contents())
            return is_indefinite ? Next::end : fault(code::misplaced_end_of_contents);
        value = new_any(decoder, extent);
        return value != nullptr ? Next::element : fault(code::no_memory);
    };
    return collect(decoder, shape_of(type), collector, read, out);
}

Result encode_any_list_content(Encoder &encoder, const Type &type, Value *value, int32_t length) {
    return encode_elements(encoder, row(shape_of(type).element), static_cast<List *>(value), length, true);
}

} // namespace

Result decode_list(Decoder &decoder, const Type &type, const Element &element, Value *&out) {
    const ListShape &shape = shape_of(type);
    const Type &member = row(shape.element);
    if (const Result result = check_source_and_place(decoder, in(shape)); result != success)
        return result;
    if (element.form == Form::primitive)
        return decoder.fail(in(shape), code::form_error);
    if (element.length < indefinite)
        return decoder.fail(in(shape), code::bad_argument);
    const bool is_indefinite = element.length == indefinite;
    const uint32_t end = is_indefinite ? no_end : decoder.position() + static_cast<uint32_t>(element.length);
    // Of a type that begins with nothing but its own identifier, elements are entered at once. This loop does only what
    // `read` and `collect` below do, without what they need for all other lists: three in a hundred instructions of a
    // certificate.
    const Operations &operations = *member.operations;
    const bool is_plain =
        shape.reading != ListReading::whole && operations.begins == nullptr && operations.decode_behind == nullptr;
    Collector collector(decoder);
    while (is_plain && decoder.position() != end && !collector.is_full()) {
        const uint32_t start = decoder.position();
        uint32_t length = 0;
        if (!decoder.enter(member.usual_identifier, length))
            break;
        const Result result =
            operations.decode_content(decoder, member, member.usual_element(length, start), collector.next(start));
        if (result != success)
            return fail_decode(decoder, in(shape), member);
        if (decoder.position() > end)
            return decoder.fail(in(shape), code::incorrect_length);
        collector.add();
    }
    const auto read = [&](Value *&value, Result &result) {
        const uint32_t start = decoder.position();
        uint32_t length = 0;
        if (start == end)
            return Next::end;
        if (is_plain && decoder.enter(member.usual_identifier, length)) {
            result = operations.decode_content(decoder, member, member.usual_element(length, start), value);
            if (result != success) {
                result = fail_decode(decoder, in(shape), member);
                return Next::fault;
            }
        } else if (const Next next = read_element(decoder, shape, is_indefinite, result, value);
                   next != Next::element) {
            return next;
        }
        if (decoder.position() <= end)
            return Next::element;
        result = decoder.fail(in(shape), code::incorrect_length);
        return Next::fault;
    };
    return collect(decoder, shape, collector, read, out);
}

int32_t list_content_length(const Type &type, Value *value, Measure measure) {
    if (measure == Measure::known && value != nullptr)
        return value->measured;
    return measure_list(static_cast<List *>(value), row(shape_of(type).element));
}

Result encode_list_content(Encoder &encoder, const Type &type, Value *value, int32_t length) {
    return encode_elements(encoder, row(shape_of(type).element), static_cast<List *>(value), length, false);
}

size_t list_reserve(size_t octets) {
    return 256 + 3 * octets;
}

constexpr Operations list_operations = {
    .holds = holds_kind<List>,
    .content_length = list_content_length,
    .encode_content = encode_list_content,
    .decode_content = decode_list,
    .decode_plain = decode_list,
    .records_reserve = list_reserve,
};

constexpr Operations any_list_operations = {
    .holds = holds_kind<List>,
    .content_length = list_content_length,
    .encode_content = encode_any_list_content,
    .decode_content = decode_any_list,
    .decode_plain = decode_any_list,
    .records_reserve = list_reserve,
};

constexpr ListShape list_of_any = {.element = KOVRA_ASN1_TYPE_ANY};
constexpr ListShape list_of_any_1 = {.element = KOVRA_ASN1_TYPE_ANY, .nonempty = "ASN1_List"};

List *new_list(Arena &arena) {
    auto *list = new_record<List>(arena);
    if (list == nullptr)
        return nullptr;
    list->items = static_cast<Value **>(arena.allocate(first_capacity * sizeof(Value *)));
    if (list->items == nullptr)
        return nullptr;
    std::fill_n(list->items, first_capacity, nullptr);
    list->capacity = first_capacity;
    return list;
}

Value *list_element(List &list, uint32_t index) {
    if (index >= list.count)
        return nullptr;
    if (list.items != nullptr && list.items[index] != nullptr)
        return list.items[index];
    if (list.places == nullptr || !make_slots(list, list.count))
        return nullptr;
    Decoder decoder(*list.arena, list.places[index]);
    Value *value = nullptr;
    if (decode(decoder, *list.element, value) != success)
        return nullptr;
    return list.items[index] = value;
}

bool list_append(List &list, Value *element) {
    if (list.count == static_cast<uint32_t>(max_length) || !make_slots(list, list.count + 1) ||
        !list.arena->adopt(element))
        return false;
    list.items[list.count++] = element;
    return true;
}

namespace {

struct SortItem {
    const uint8_t *octets;
    size_t length;
    Value *element;
};

// Encodings are compared as if the shorter one ended with zero octets (X.690, 11.6).
bool precedes(const SortItem &left, const SortItem &right) {
    const size_t common = std::min(left.length, right.length);
    if (const int order = std::memcmp(left.octets, right.octets, common); order != 0)
        return order < 0;
    return std::any_of(right.octets + common, right.octets + right.length, [](uint8_t octet) { return octet != 0; });
}

} // namespace

Result sort_list(List *list, const Type &element) {
    if (list == nullptr)
        return failure;
    if (list->count < 2)
        return success;
    auto *items = static_cast<SortItem *>(kovra_malloc(product(list->count, sizeof(SortItem)), "ASN1_List", __LINE__));
    if (items == nullptr)
        return failure;
    // All encodings stand one after the other; where each begins is known when none moves any more.
    Encoder encoder(static_cast<kovra_err_ctx *>(nullptr));
    bool all_encoded = true;
    for (uint32_t i = 0; i < list->count && all_encoded; ++i) {
        const size_t begin = encoder.size();
        items[i].element = list_element(*list, i);
        all_encoded = items[i].element != nullptr && encode(encoder, element, items[i].element) == success;
        items[i].length = encoder.size() - begin;
    }
    if (all_encoded) {
        const uint8_t *octets = encoder.data();
        for (uint32_t i = 0; i < list->count; octets += items[i++].length)
            items[i].octets = octets;
        std::sort(items, items + list->count, precedes);
        for (uint32_t i = 0; i < list->count; ++i)
            list->items[i] = items[i].element;
        // The places stand in the former order: they are dropped.
        list->places = nullptr;
    }
    kovra_free(items);
    return all_encoded ? success : failure;
}

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_asn1_list_new(void) noexcept {
    Arena *arena = Arena::create(sizeof(List) + first_capacity * sizeof(Value *));
    if (arena == nullptr)
        return nullptr;
    List *list = new_list(*arena);
    if (list == nullptr)
        Arena::destroy(arena);
    else
        arena->root = list;
    return list;
}

void kovra_asn1_list_free(kovra_asn1_value *list, uint32_t type) noexcept {
    // Whatever the elements are, they are released as what they are.
    static_cast<void>(type);
    if (as<List>(list) != nullptr)
        kovra_asn1_value_free(KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, list);
}

int32_t kovra_asn1_list_put(kovra_asn1_value *list, kovra_asn1_value *element) noexcept {
    auto *record = as<List>(list);
    auto *value = static_cast<Value *>(element);
    if (record == nullptr || value == nullptr || value->kind < Kind::boolean || value->kind > Kind::structure)
        return 0;
    return list_append(*record, value) ? 1 : 0;
}

int32_t kovra_asn1_list_get(kovra_asn1_value *list, int32_t index, kovra_asn1_value **out_element) noexcept {
    auto *record = as<List>(list);
    if (out_element != nullptr)
        *out_element = nullptr;
    if (record == nullptr || out_element == nullptr || index < 0)
        return 0;
    Value *element = list_element(*record, static_cast<uint32_t>(index));
    if (element == nullptr)
        return 0;
    *out_element = element;
    return 1;
}

int32_t kovra_asn1_list_getsize(const kovra_asn1_value *list) noexcept {
    const auto *record = as<List>(list);
    return record != nullptr ? static_cast<int32_t>(record->count) : 0;
}
