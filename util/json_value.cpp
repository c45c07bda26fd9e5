// The JSON model: making values, putting them together, asking them.

#include <array>
#include <cmath>

#include "base/sizes.hpp"
#include "util/json_document.hpp"
#include "util/json_index.hpp"

using namespace kovra::util;

namespace kovra::util {
namespace {

// Octets of a string argument; false when it is none.
bool text_length(const void *utf8, int32_t length, size_t &out) {
    if (length < -1 || (utf8 == nullptr && length != 0))
        return false;
    out = length == -1 ? std::strlen(static_cast<const char *>(utf8)) : static_cast<size_t>(length);
    return out <= most_json_items;
}

kovra_json *make_text(Document &document, const void *utf8, size_t length) {
    kovra_json *value = document.make_string(length);
    if (value != nullptr && length != 0)
        std::memcpy(value->text(), utf8, length);
    return value;
}

// The root of a new document: what `make(document)` gives, of no more than `size` octets.
template <class Make> kovra_json *root(size_t size, Make make) {
    Document *document = Document::create(size);
    if (document == nullptr)
        return nullptr;
    kovra_json *value = make(*document);
    value->head |= json_root;
    return value;
}

// True when a container takes one item more, of that name or without one.
bool takes_item(const Container *container, const char *name) {
    return container != nullptr && (container->kind() == KOVRA_JSON_OBJECT) == (name != nullptr) &&
           container->count != most_json_items;
}

// False when memory is short.
bool intern(Document &document, const char *name, const char *&out) {
    out = name != nullptr ? document.intern(name, std::strlen(name)) : nullptr;
    return out != nullptr || name == nullptr;
}

// Puts what `make(document)` gives at the end of a container.
template <class Make> kovra_json *put(kovra_json *value, const char *name, Make make) {
    Container *container = json_container(value);
    const char *interned = nullptr;
    if (!takes_item(container, name) || !intern(*container->document, name, interned))
        return nullptr;
    kovra_json *item = make(*container->document);
    if (item != nullptr)
        container->append(item, interned);
    return item;
}

int32_t add(kovra_json *value, const char *name, kovra_json *item) {
    Container *container = json_container(value);
    const char *interned = nullptr;
    if (!takes_item(container, name) || !is_json(item) || (item->head & json_root) == 0 ||
        !intern(*container->document, name, interned) || !container->document->adopt(item))
        return 0;
    container->append(item, interned);
    return 1;
}

constexpr auto hex_pairs = []() {
    constexpr char digits[] = "0123456789abcdef";
    std::array<std::array<char, 2>, 256> pairs{};
    for (size_t i = 0; i < pairs.size(); ++i)
        pairs[i] = {digits[i >> 4], digits[i & 0x0F]};
    return pairs;
}();

} // namespace
} // namespace kovra::util

kovra_json *kovra_json_newstring(const void *utf8, int32_t length) noexcept {
    size_t octets = 0;
    if (!text_length(utf8, length, octets))
        return nullptr;
    return root(kovra::sum(sizeof(kovra_json), octets, 1),
                [=](Document &document) { return make_text(document, utf8, octets); });
}

kovra_json *kovra_json_newnumber(double number) noexcept {
    return std::isfinite(number)
               ? root(sizeof(Number), [=](Document &document) { return document.make_number(number); })
               : nullptr;
}

kovra_json *kovra_json_newboolean(int32_t truth) noexcept {
    return root(sizeof(kovra_json),
                [=](Document &document) { return document.make_plain(KOVRA_JSON_BOOLEAN, truth != 0); });
}

kovra_json *kovra_json_newnull(void) noexcept {
    return root(sizeof(kovra_json), [](Document &document) { return document.make_plain(KOVRA_JSON_NULL, false); });
}

kovra_json *kovra_json_newobject(void) noexcept {
    return root(sizeof(Container), [](Document &document) { return document.make_container(KOVRA_JSON_OBJECT); });
}

kovra_json *kovra_json_newarray(void) noexcept {
    return root(sizeof(Container), [](Document &document) { return document.make_container(KOVRA_JSON_ARRAY); });
}

void kovra_json_free(kovra_json *value) noexcept {
    if (is_json(value) && (value->head & json_root) != 0)
        Document::destroy(Document::of_root(value));
}

int32_t kovra_json_addobjectitem(kovra_json *object, const char *name, kovra_json *value) noexcept {
    return name != nullptr ? add(object, name, value) : 0;
}

int32_t kovra_json_addarrayitem(kovra_json *array, kovra_json *value) noexcept {
    return add(array, nullptr, value);
}

kovra_json *kovra_json_putstring(kovra_json *container, const char *name, const void *utf8, int32_t length) noexcept {
    size_t octets = 0;
    if (!text_length(utf8, length, octets))
        return nullptr;
    return put(container, name, [=](Document &document) { return make_text(document, utf8, octets); });
}

kovra_json *kovra_json_putnumber(kovra_json *container, const char *name, double number) noexcept {
    return std::isfinite(number)
               ? put(container, name, [=](Document &document) { return document.make_number(number); })
               : nullptr;
}

kovra_json *kovra_json_putboolean(kovra_json *container, const char *name, int32_t truth) noexcept {
    return put(container, name,
               [=](Document &document) { return document.make_plain(KOVRA_JSON_BOOLEAN, truth != 0); });
}

kovra_json *kovra_json_putnull(kovra_json *container, const char *name) noexcept {
    return put(container, name, [](Document &document) { return document.make_plain(KOVRA_JSON_NULL, false); });
}

kovra_json *kovra_json_putobject(kovra_json *container, const char *name) noexcept {
    return put(container, name, [](Document &document) { return document.make_container(KOVRA_JSON_OBJECT); });
}

kovra_json *kovra_json_putarray(kovra_json *container, const char *name) noexcept {
    return put(container, name, [](Document &document) { return document.make_container(KOVRA_JSON_ARRAY); });
}

kovra_json *kovra_json_puthex(kovra_json *container, const char *name, const void *octets, int32_t length) noexcept {
    if (length < 0 || (octets == nullptr && length > 0))
        return nullptr;
    const auto count = static_cast<size_t>(length);
    kovra_json *item =
        put(container, name, [=](Document &document) { return document.make_string(kovra::product(count, 2)); });
    if (item == nullptr)
        return nullptr;
    const auto *from = static_cast<const uint8_t *>(octets);
    char *text = item->text();
    for (size_t i = 0; i < count; ++i)
        std::memcpy(text + 2 * i, hex_pairs[from[i]].data(), 2);
    return item;
}

int32_t kovra_json_gettype(const kovra_json *value) noexcept {
    return is_json(value) ? value->kind() : 0;
}

const char *kovra_json_getstring(const kovra_json *value) noexcept {
    return is_json(value, KOVRA_JSON_STRING) ? value->text() : nullptr;
}

int32_t kovra_json_getstringlength(const kovra_json *value) noexcept {
    return is_json(value, KOVRA_JSON_STRING) ? static_cast<int32_t>(value->count) : 0;
}

int32_t kovra_json_getnumber(const kovra_json *value, double *out_number) noexcept {
    if (!is_json(value, KOVRA_JSON_NUMBER) || out_number == nullptr)
        return 0;
    *out_number = static_cast<const Number *>(value)->number;
    return 1;
}

int32_t kovra_json_istrue(const kovra_json *value) noexcept {
    return is_json(value, KOVRA_JSON_BOOLEAN) && value->count != 0 ? 1 : 0;
}

int32_t kovra_json_getobjectsize(const kovra_json *object) noexcept {
    return is_json(object, KOVRA_JSON_OBJECT) ? static_cast<int32_t>(object->count) : 0;
}

kovra_json *kovra_json_getobjectvalue(const kovra_json *object, const char *name) noexcept {
    Container *container = json_container(object, KOVRA_JSON_OBJECT);
    return container != nullptr && name != nullptr ? const_cast<kovra_json *>(last_member(*container, name)) : nullptr;
}

kovra_json *kovra_json_getobjectitem(const kovra_json *object, int32_t index, const char **out_name) noexcept {
    Container *container = json_container(object, KOVRA_JSON_OBJECT);
    const bool is_inside = container != nullptr && index >= 0 && static_cast<uint32_t>(index) < container->count;
    const kovra_json *item = is_inside ? item_at(*container, static_cast<uint32_t>(index)) : nullptr;
    if (out_name != nullptr)
        *out_name = item != nullptr ? item->name : nullptr;
    return const_cast<kovra_json *>(item);
}

int32_t kovra_json_getarraysize(const kovra_json *array) noexcept {
    return is_json(array, KOVRA_JSON_ARRAY) ? static_cast<int32_t>(array->count) : 0;
}

kovra_json *kovra_json_getarrayitem(const kovra_json *array, int32_t index) noexcept {
    Container *container = json_container(array, KOVRA_JSON_ARRAY);
    const bool is_inside = container != nullptr && index >= 0 && static_cast<uint32_t>(index) < container->count;
    return is_inside ? const_cast<kovra_json *>(item_at(*container, static_cast<uint32_t>(index))) : nullptr;
}
