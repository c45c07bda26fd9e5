#include "tests/harness/samples.hpp"

#include <algorithm>
#include <bit>
#include <map>
#include <set>
#include <span>

#include "base/thresholds.hpp"
#include "core/choice.hpp"
#include "core/list.hpp"
#include "core/registry.hpp"
#include "core/structure.hpp"
#include "kovra/asn1_types.h"
#include "tests/asn1_testing.hpp"

namespace kovra::test {

namespace {

using core::ChoiceShape;
using core::Component;
using core::ListShape;
using core::Presence;
using core::StringChoiceShape;
using core::StructureShape;
using core::Tagging;
using core::Type;

// More than are built at once.
constexpr auto elements_of_long_list = threshold<uint32_t>(70, 5);

template <class Shape> const Shape &shape_of(const Type &type) {
    return *static_cast<const Shape *>(type.shape);
}

bool is_string_choice(const Type &type) {
    return type.operations == &core::string_choice_operations;
}
bool is_table_choice(const Type &type) {
    return type.operations == &core::choice_operations;
}

// What the leaves of a value hold: where a structure allows only some records, one of these is among them.
struct Flavour {
    const char *integer;
    const char *octets;
    const char *any;
    const std::string *open = nullptr; // the octets of every open type, instead
};
constexpr Flavour flavours[] = {
    {"02 01 03", "04 02 AB CD", "05 00"},
    {"02 01 00", "04 08 01 02 03 04 05 06 07 08", "04 01 41"},
    {"02 01 01", "04 08 01 02 03 04 05 06 07 08", "04 01 41"},
    {"02 01 03", "04 10 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 10", "05 00"},
};

// The one that no default is.
constexpr const Flavour &no_default = flavours[0];

enum class Extent : uint8_t { minimal, full };

constexpr int full_depth = 2;

bool is_read(const Type &type, const std::string &data) {
    return decode(type.number, data).result == 1;
}

// All forms of a leaf, the plainest first.
std::vector<std::string> leaves(const Type &type, const Flavour &flavour) {
    const auto *operations = type.operations;
    std::vector<std::string> found;
    auto add = [&](const char *hex) { found.push_back(octets(hex)); };
    auto add_tagged = [&](int tag, const std::string &content) {
        found.push_back(element(tag, content));
        const std::string piece = element(core::tag::octet_string, content);
        found.push_back(element(tag | 0x20, piece + piece));
        found.push_back(open_element(tag | 0x20, piece));
    };
    if (operations == &core::boolean_operations) {
        add("01 01 FF");
        add("01 01 00");
    } else if (operations == &core::integer_operations) {
        for (const char *hex : {flavour.integer, "02 01 80", "02 02 00 80", "02 09 7F 00 00 00 00 00 00 00 01"}) {
            add(hex);
            found.back()[0] = static_cast<char>(type.tag);
        }
    } else if (operations == &core::bit_string_operations) {
        add("03 02 04 F0");
        add("03 01 00");
        add("23 80 03 02 00 AB 03 02 04 F0 00 00");
    } else if (operations == &core::octet_string_operations) {
        add(flavour.octets);
        add("04 00");
        add("24 80 04 01 41 24 03 04 01 42 00 00");
    } else if (operations == &core::untagged_string_operations) {
        add_tagged(12, "text");
    } else if (operations == &core::character_string_operations) {
        add_tagged(type.tag, "text");
    } else if (operations == &core::object_identifier_operations) {
        add("06 03 2A 03 04");
        add("06 01 2A");
        add("06 09 2A 86 48 86 F7 0D 01 01 0B");
        for (std::string &one : found)
            one[0] = static_cast<char>(type.tag);
    } else if (operations == &core::any_time_operations || operations == &core::time_operations) {
        if (type.tag != 24)
            found.push_back(element(23, "300102030405Z"));
        if (type.tag != 23) {
            found.push_back(element(24, "20300102030405Z"));
            found.push_back(element(24, "20300102030405.25Z"));
        }
    } else if (operations == &core::any_operations && flavour.open != nullptr) {
        found.push_back(*flavour.open);
    } else if (operations == &core::any_operations) {
        for (const char *hex : {flavour.any, "A0 03 02 01 05", "7F 83 00 02 05 00", "30 80 02 01 05 24 80 00 00 00 00",
                                "04 03 41 00 42", "DF 1F 00"})
            add(hex);
    } else if (operations == &core::null_operations) {
        add("05 00");
    } else if (operations == &core::end_of_contents_operations) {
        add("00 00");
    }
    EXPECT_FALSE(found.empty()) << "type " << static_cast<int>(type.number) << " has no values here";
    return found;
}

// The identifiers that set an element apart in its place.
std::string under_tag(const std::string &whole, core::Tag tag) {
    if (tag.tagging == Tagging::none)
        return whole;
    if (tag.tagging == Tagging::implicit) {
        std::string changed = whole;
        changed[0] = static_cast<char>(0x80 | (whole[0] & 0x20) | tag.number);
        return changed;
    }
    return element(0xA0 | tag.number, whole);
}

std::string make(const Type &type, Extent extent, const Flavour &flavour, int depth);

std::string make_component(const Component &component, Extent extent, const Flavour &flavour, int depth) {
    if (component.presence == Presence::defaulted && component.taken_as->operations == &core::boolean_operations)
        return under_tag(octets(component.fallback == &core::default_true ? "01 01 00" : "01 01 FF"), component.tag);
    const Flavour &chosen = component.presence == Presence::defaulted ? no_default : flavour;
    return under_tag(make(*component.taken_as, extent, chosen, depth + 1), component.tag);
}

std::string make_structure(const StructureShape &shape, uint32_t present, Extent extent, const Flavour &flavour,
                           int depth) {
    std::string content;
    for (uint32_t i = 0; i < shape.count; ++i)
        if ((present >> i & 1) != 0)
            content += make_component(shape.components[i], extent, flavour, depth);
    return content;
}

uint32_t required_of(const StructureShape &shape) {
    uint32_t bits = 0;
    for (uint32_t i = 0; i < shape.count; ++i)
        bits |= static_cast<uint32_t>(shape.components[i].presence == Presence::required) << i;
    return bits;
}

// All sets of components that may be there, the fewest first.
std::vector<uint32_t> presences(const StructureShape &shape) {
    std::vector<uint32_t> found;
    const uint32_t required = required_of(shape);
    for (uint32_t bits = 0; bits < uint32_t{1} << shape.count; ++bits)
        if ((bits & required) == required)
            found.push_back(bits);
    std::stable_sort(found.begin(), found.end(),
                     [](uint32_t left, uint32_t right) { return std::popcount(left) < std::popcount(right); });
    return found;
}

std::string whole_structure(const Type &type, Extent extent, const Flavour &flavour, int depth) {
    const StructureShape &shape = shape_of<StructureShape>(type);
    if (shape.content != nullptr)
        return make(*shape.content, extent, flavour, depth);
    std::vector<uint32_t> candidates = presences(shape);
    if (extent == Extent::full)
        std::reverse(candidates.begin(), candidates.end());
    std::string first;
    for (const uint32_t present : candidates) {
        std::string whole = element(type.usual_identifier, make_structure(shape, present, extent, flavour, depth));
        if (shape.allows == nullptr || is_read(type, whole))
            return whole;
        if (first.empty())
            first = whole;
    }
    return first;
}

std::string make(const Type &type, Extent extent, const Flavour &flavour, int depth) {
    if (depth > full_depth)
        extent = Extent::minimal;
    if (is_structure(type))
        return whole_structure(type, extent, flavour, depth);
    if (is_list(type)) {
        const ListShape &shape = shape_of<ListShape>(type);
        std::string content;
        if (shape.nonempty || extent == Extent::full)
            content = make(core::row(shape.element), Extent::minimal, flavour, depth + 1);
        if (extent == Extent::full)
            content += make(core::row(shape.element), Extent::full, flavour, depth + 1);
        return element(type.usual_identifier, content);
    }
    if (is_table_choice(type)) {
        const ChoiceShape &shape = shape_of<ChoiceShape>(type);
        return make_component(shape.alternatives[extent == Extent::full ? shape.count - 1 : 0], extent, flavour, depth);
    }
    if (is_string_choice(type))
        return element(std::countr_zero(shape_of<StringChoiceShape>(type).tags), "text");
    return leaves(type, flavour)[0];
}

// With which of the flavours is the value one of the type, and, being full, has most?
const Flavour &flavour_of(const Type &type, Extent extent) {
    const Flavour *best = nullptr;
    size_t most = 0;
    for (const Flavour &flavour : flavours) {
        const std::string whole = make(type, extent, flavour, 0);
        if (is_read(type, whole) && (best == nullptr || (extent == Extent::full && whole.size() > most))) {
            best = &flavour;
            most = whole.size();
        }
    }
    return best != nullptr ? *best : flavours[0];
}

// What stands in the place of a type of which one has to be chosen: alternatives and forms.
std::vector<Sample> alternatives(const Type &type, const Flavour &flavour) {
    std::vector<Sample> found;
    if (is_table_choice(type)) {
        const ChoiceShape &shape = shape_of<ChoiceShape>(type);
        for (uint32_t i = 0; i < shape.count; ++i) {
            const Component &component = shape.alternatives[i];
            for (const Extent extent : {Extent::minimal, Extent::full})
                found.push_back(
                    {std::string("alternative ") + component.name, make_component(component, extent, flavour, 1)});
            for (const Sample &within : alternatives(*component.taken_as, flavour))
                found.push_back({std::string("alternative ") + component.name + ", " + within.what,
                                 under_tag(within.octets, component.tag)});
        }
    } else if (is_string_choice(type)) {
        for (int tag = 0; tag < 32; ++tag)
            if (core::allows(shape_of<StringChoiceShape>(type), tag))
                found.push_back({"tag " + std::to_string(tag), element(tag, std::string(4, 'x'))});
    } else if (!is_structure(type) && !is_list(type)) {
        for (const std::string &leaf : leaves(type, flavour))
            found.push_back({"form " + std::to_string(found.size()), leaf});
    }
    return found;
}

std::vector<Sample> make_samples(const Type &type) {
    std::vector<Sample> found;
    auto add = [&](const std::string &what, const std::string &data) {
        if (std::none_of(found.begin(), found.end(), [&](const Sample &other) { return other.octets == data; }))
            found.push_back({what, data});
    };
    const Flavour &plain = flavour_of(type, Extent::minimal);
    add("minimal", make(type, Extent::minimal, plain, 0));
    add("full", make(type, Extent::full, flavour_of(type, Extent::full), 0));
    for (const Sample &one : alternatives(type, plain))
        add(one.what, one.octets);
    if (is_list(type) || (is_structure(type) && shape_of<StructureShape>(type).content != nullptr)) {
        const Type &list = is_list(type) ? type : *shape_of<StructureShape>(type).content;
        const Type &member = core::row(shape_of<ListShape>(list).element);
        for (const Sample &one : alternatives(member, plain))
            add("of " + one.what, element(type.usual_identifier, one.octets));
        add("long",
            element(type.usual_identifier, repeated(make(member, Extent::minimal, plain, 1), elements_of_long_list)));
    } else if (is_structure(type)) {
        const StructureShape &shape = shape_of<StructureShape>(type);
        for (uint32_t i = 0; i < shape.count && shape.allows == nullptr; ++i) {
            for (const Sample &one : alternatives(*shape.components[i].taken_as, plain)) {
                std::string content;
                for (uint32_t j = 0; j < shape.count; ++j) {
                    if (j == i)
                        content += under_tag(one.octets, shape.components[j].tag);
                    else if (shape.components[j].presence == Presence::required)
                        content += make_component(shape.components[j], Extent::minimal, plain, 0);
                }
                add(std::string(shape.components[i].name) + ": " + one.what, element(type.usual_identifier, content));
            }
        }
    }
    return found;
}

} // namespace

std::string element(int identifier, const std::string &content) {
    std::string whole(1, static_cast<char>(identifier));
    const size_t length = content.size();
    if (length < 0x80) {
        whole += static_cast<char>(length);
    } else {
        const int octets_of_length = length < 0x100 ? 1 : length < 0x10000 ? 2 : length < 0x1000000 ? 3 : 4;
        whole += static_cast<char>(0x80 | octets_of_length);
        for (int i = octets_of_length - 1; i >= 0; --i)
            whole += static_cast<char>(length >> (8 * i));
    }
    return whole + content;
}

std::string open_element(int identifier, const std::string &content) {
    return std::string{static_cast<char>(identifier), '\x80'} + content + std::string(2, '\0');
}

std::string nested_open(char identifier, size_t depth, const std::string &innermost) {
    return repeated(std::string{identifier, '\x80'}, depth) + innermost + std::string(2 * depth, '\0');
}

std::string nested_with_lengths(char identifier, size_t depth, const std::string &innermost) {
    constexpr size_t header = 6;
    std::string nest;
    nest.reserve(header * depth + innermost.size());
    for (size_t left = depth; left-- > 0;) {
        const size_t length = header * left + innermost.size();
        nest += std::string{identifier, '\x84'} + in_four_octets(length);
    }
    return nest + innermost;
}

bool is_structure(const Type &type) {
    return type.operations == &core::structure_operations || type.operations == &core::kept_structure_operations;
}

bool is_list(const Type &type) {
    return !is_structure(type) && !is_table_choice(type) && !is_string_choice(type) && type.shape != nullptr;
}

bool is_choice(const Type &type) {
    return is_table_choice(type) || is_string_choice(type) || type.tag == 0;
}

const std::vector<Sample> &samples(uint32_t type) {
    static std::map<uint32_t, std::vector<Sample>> all;
    const auto found = all.find(type);
    return found != all.end() ? found->second : all.emplace(type, make_samples(core::row(type))).first->second;
}

const std::string &minimal_sample(uint32_t type) {
    return samples(type)[0].octets;
}

std::vector<Combination> combinations(uint32_t number) {
    std::vector<Combination> found;
    const Type &type = core::row(number);
    if (!is_structure(type) || shape_of<StructureShape>(type).content != nullptr)
        return found;
    const StructureShape &shape = shape_of<StructureShape>(type);
    for (const uint32_t present : presences(shape))
        for (const Flavour &flavour : flavours) {
            std::string whole =
                element(type.usual_identifier, make_structure(shape, present, Extent::minimal, flavour, 0));
            // Where only some records are allowed, the others are no samples.
            if (shape.allows == nullptr || is_read(type, whole)) {
                found.push_back({present, whole});
                break;
            }
        }
    return found;
}

std::vector<std::string> with_open_type(uint32_t number, const std::string &open) {
    const Type &type = core::row(number);
    std::vector<std::string> found;
    for (const Extent extent : {Extent::minimal, Extent::full}) {
        Flavour flavour = flavour_of(type, extent);
        flavour.open = &open;
        const std::string whole = make(type, extent, flavour, 0);
        if (whole.find(open) != whole.npos && (found.empty() || found[0] != whole))
            found.push_back(whole);
    }
    return found;
}

namespace {

// A value that is none of those that are taken, like the given one but for an octet.
std::string another(const Type &type, const std::string &data, const std::vector<std::string> &taken) {
    const auto is_free = [&](const std::string &one) {
        return std::find(taken.begin(), taken.end(), one) == taken.end() && is_read(type, one) &&
               encode(type.number, decode(type.number, one).value.get()).octets == one;
    };
    std::string changed = data;
    for (size_t at = data.size(); !is_free(changed) && at-- > 2;)
        for (int step = 0; step < 16 && !is_free(changed); ++step) {
            changed = data;
            changed[at] = static_cast<char>(data[at] ^ (step < 8 ? step : step << 4));
        }
    return is_free(changed) ? changed : data;
}

} // namespace

std::vector<Sample> component_values(const Type &type) {
    std::vector<Sample> found;
    std::vector<std::string> taken;
    if (is_structure(type)) {
        const StructureShape &shape = shape_of<StructureShape>(type);
        const Flavour &flavour = flavour_of(type, Extent::minimal);
        for (uint32_t i = 0; i < shape.count; ++i) {
            const Type &component = *shape.components[i].copied_as;
            std::string data = make(component, Extent::minimal, flavour, 0);
            if (std::find(taken.begin(), taken.end(), data) != taken.end())
                data = make(component, Extent::full, flavour, 0);
            if (shape.allows == nullptr)
                data = another(component, data, taken);
            taken.push_back(data);
            found.push_back({shape.components[i].name, data});
        }
    }
    return found;
}

namespace {

bool is_list_structure(const Type &type) {
    return is_structure(type) && shape_of<StructureShape>(type).content != nullptr;
}

bool keeps_octets(const Type &type) {
    return type.operations == &core::kept_structure_operations ||
           (is_structure(type) && shape_of<StructureShape>(type).is_signed);
}

// The components or alternatives of a type.
std::pair<const Component *, uint8_t> components_of(const Type &type) {
    if (is_structure(type))
        return {shape_of<StructureShape>(type).components, shape_of<StructureShape>(type).count};
    if (is_table_choice(type))
        return {shape_of<ChoiceShape>(type).alternatives, shape_of<ChoiceShape>(type).count};
    return {nullptr, uint8_t{0}};
}

const Type &behind(const Type &type, uint8_t step) {
    return is_list_structure(type) ? *shape_of<StructureShape>(type).content
                                   : *components_of(type).first[step].taken_as;
}

bool is_restricted(const Type &type, const std::vector<uint8_t> &way) {
    const Type *at = &type;
    for (const uint8_t step : way) {
        if (is_structure(*at) && shape_of<StructureShape>(*at).allows != nullptr)
            return true;
        at = &behind(*at, step);
    }
    return false;
}

std::string around(const Type &type, std::span<const uint8_t> way, const std::string &encoding) {
    if (way.empty())
        return encoding;
    const std::string inner = around(behind(type, way[0]), way.subspan(1), encoding);
    if (is_list_structure(type))
        return inner;
    const std::string part = under_tag(inner, components_of(type).first[way[0]].tag);
    if (!is_structure(type))
        return part;
    const StructureShape &shape = shape_of<StructureShape>(type);
    std::string whole;
    // With what is required, or else with all that there may be.
    for (const uint32_t others : {required_of(shape), ~uint32_t{0}}) {
        for (const Flavour &flavour : flavours) {
            std::string content;
            for (uint32_t i = 0; i < shape.count; ++i) {
                if (i == way[0])
                    content += part;
                else if ((others >> i & 1) != 0)
                    content += make_component(shape.components[i], Extent::minimal, flavour, 0);
            }
            whole = element(type.usual_identifier, content);
            if (shape.allows == nullptr || is_read(type, whole))
                return whole;
        }
    }
    return whole;
}

} // namespace

std::string HeldList::in_holder(const std::string &encoding) const {
    return around(*holder, way, encoding);
}

const core::Value *HeldList::of(const core::Value *value) const {
    const Type *type = holder;
    for (const uint8_t step : way) {
        if (value == nullptr)
            return nullptr;
        if (is_structure(*type)) {
            value = static_cast<const core::Structure *>(value)->slot(step);
        } else {
            const auto *choice = static_cast<const core::Choice *>(value);
            value = choice->alternative == step ? choice->value : nullptr;
        }
        type = &behind(*type, step);
    }
    return value;
}

std::vector<HeldList> lists_in(const Type &type) {
    struct State {
        const Type *type;
        HeldList held;
    };
    std::vector<HeldList> found;
    std::set<std::pair<const Type *, const Type *>> seen;
    std::vector<State> states = {{&type, {&type, nullptr, nullptr, {}, ""}}};
    for (size_t at = 0; at < states.size(); ++at) {
        State state = states[at];
        if (keeps_octets(*state.type))
            state.held.kept = state.type;
        if (!seen.emplace(state.type, state.held.kept).second)
            continue;
        if (is_list(*state.type)) {
            state.held.list = state.type;
            const std::string data = state.held.in_holder(
                element(state.type->usual_identifier, may_be_empty(*state.type) ? "" : minimal_member(*state.type)));
            // Where only some records are allowed, those with the list need not be.
            if (!is_restricted(type, state.held.way) || is_read(type, data))
                found.push_back(state.held);
            continue;
        }
        const auto [components, count] = components_of(*state.type);
        for (uint8_t step = 0; step < count; ++step) {
            State next = state;
            next.type = &behind(*state.type, step);
            next.held.way.push_back(step);
            next.held.name.append(".").append(components[step].name);
            states.push_back(next);
        }
    }
    return found;
}

const Type &member_of(const Type &list) {
    return core::row(shape_of<ListShape>(list).element);
}

std::string minimal_member(const Type &list) {
    const Type &member = member_of(list);
    return make(member, Extent::minimal, flavour_of(member, Extent::minimal), 1);
}

bool may_be_empty(const Type &list) {
    return shape_of<ListShape>(list).nonempty == nullptr;
}

namespace {

// Is no component, however deep, one of those that `is_odd` tells?
class Regularity {
public:
    explicit Regularity(bool (*is_odd)(const Component &)) : is_odd_(is_odd) {}

    bool holds(const Type &type) {
        const auto [at, is_new] = known_.emplace(&type, true); // until the contrary is found, which ends cycles
        if (!is_new)
            return at->second;
        bool regular = true;
        if (is_structure(type) && shape_of<StructureShape>(type).content == nullptr)
            regular = holds(shape_of<StructureShape>(type).components, shape_of<StructureShape>(type).count);
        else if (is_structure(type))
            regular = holds(*shape_of<StructureShape>(type).content);
        else if (is_list(type))
            regular = holds(core::row(shape_of<ListShape>(type).element));
        else if (is_table_choice(type))
            regular = holds(shape_of<ChoiceShape>(type).alternatives, shape_of<ChoiceShape>(type).count);
        return known_[&type] = regular;
    }

private:
    bool holds(const Component *components, uint32_t count) {
        return std::all_of(components, components + count, [&](const Component &component) {
            return !is_odd_(component) && holds(*component.taken_as);
        });
    }

    bool (*is_odd_)(const Component &);
    std::map<const Type *, bool> known_;
};

} // namespace

bool is_written_as_read(const Type &type) {
    static Regularity regularity([](const Component &component) {
        return component.tag.tagging != component.encode_tag.tagging ||
               component.tag.number != component.encode_tag.number || component.is_unwritable;
    });
    return regularity.holds(type);
}

bool is_as_long_as_measured(const Type &type) {
    static Regularity regularity(
        [](const Component &component) { return component.encode_tag.tagging == Tagging::bare; });
    return regularity.holds(type);
}

} // namespace kovra::test
