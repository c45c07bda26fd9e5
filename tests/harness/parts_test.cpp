// What each constructor puts where, and what each getter gives: the functions of a type, by name, against its
// components. Whether the components themselves are right is for the tables of encodings.
#include <algorithm>
#include <map>
#include <set>

#include "core/choice.hpp"
#include "core/structure.hpp"
#include "tests/failing_memory.hpp"
#include "tests/harness/functions.hpp"

namespace kovra::test {
namespace {

const Function *function_named(const std::string &name) {
    const std::vector<Function> &all = functions();
    const auto found = std::find_if(all.begin(), all.end(), [&](const Function &one) { return one.row->name == name; });
    return found != all.end() ? &*found : nullptr;
}

// One value in, the answer out: what is borrowed, or a number, which may be stored.
struct Answer {
    const core::Value *value;
    int64_t number;
};
Answer ask(const std::string &name, Handle value) {
    const Function *function = function_named(name);
    EXPECT_NE(function, nullptr) << name;
    static Call call;
    call.made = {};
    call.numbers = {-1};
    call.values = {value};
    const int64_t result = function != nullptr ? (*function)(call) : 0;
    const bool is_stored = function != nullptr && function->letters == "v-";
    return {record_of(call.made[0]), is_stored ? call.numbers[0] : result};
}

std::vector<std::string> words(const std::string &text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

// A value for a component that is unlike those of the components before it, and unlike a default. Where only some
// records are allowed, version 1 makes one of them.
Kept value_for(const core::Component &component, size_t place, bool is_any_allowed) {
    const core::Type &type = *component.copied_as;
    const auto digit = static_cast<char>((is_any_allowed ? 0x20 : 1) + place);
    std::string data;
    if (type.number == KOVRA_ASN1_TYPE_BOOLEAN) {
        data = octets(component.fallback == &core::default_true ? "01 01 00" : "01 01 FF");
    } else if (type.number == KOVRA_ASN1_TYPE_INTEGER) {
        data = octets("02 01") + digit;
    } else if (type.number == KOVRA_ASN1_TYPE_OCTET_STRING) {
        data = octets("04 08") + std::string(8, digit);
    } else if (type.number == KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER) {
        data = octets("06 02 2A") + digit;
    } else {
        std::vector<std::string> found;
        for (const Sample &sample : samples(type.number))
            if (sample.what != "long" && decode(type.number, sample.octets).result == 1)
                found.push_back(sample.octets);
        data = found[place % found.size()];
    }
    return {type.number, data, decode(type.number, data).value};
}

struct Row {
    uint32_t type;
    std::string prefix, maker;
    std::vector<size_t> order; // of the constructor's arguments
    std::vector<std::string> getters;
    uint32_t holder = 0; // the signed type that is asked for what stands in its first component; 0: none
};

// A constructor of another prefix is told by its whole name.
std::string whole_name(const std::string &prefix, const std::string &maker) {
    return maker.starts_with("kovra_") ? maker : prefix + "_" + maker;
}

// The getter of an alternative.
std::string getter_of(const std::string &prefix, const std::string &word) {
    return prefix + (prefix == "kovra_ecpkparameters" ? "_" : "_get") + word;
}

const core::StructureShape &shape_of(const Row &row) {
    return *static_cast<const core::StructureShape *>(core::row(row.type).shape);
}

// Getters give just the components; a part with a default is never missing. Who asks whether there is one is told.
void expect_parts(const Row &row, Handle value) {
    const auto *record = static_cast<const core::Structure *>(record_of(value));
    if (row.holder != 0)
        record = static_cast<const core::Structure *>(record->slot(0));
    for (size_t i = 0; i < row.getters.size(); ++i) {
        if (row.getters[i] == "-")
            continue;
        const core::Value *slot = record->slot(static_cast<uint8_t>(i));
        const std::string get = row.prefix + "_get" + row.getters[i], has = row.prefix + "_has" + row.getters[i];
        EXPECT_EQ(ask(get, value).value, slot) << get;
        if (function_named(has) != nullptr) {
            EXPECT_EQ(ask(has, value).number, slot != nullptr) << has;
        }
    }
}

// Is the record made of those of the values that are given? Each is copied, and no defaulted component is missing.
bool expect_made(const Row &row, const std::vector<Kept> &values, uint32_t given) {
    SCOPED_TRACE(row.maker);
    const core::StructureShape &shape = shape_of(row);
    std::vector<const Kept *> arguments;
    for (const size_t i : row.order)
        arguments.push_back((given >> i & 1) != 0 ? &values[i] : nullptr);
    bool is_made = false;
    call_with(*function_named(row.maker), arguments, 0, [&](const Call &call) {
        is_made = call.made[0] != nullptr;
        if (!is_made)
            return;
        const auto *made = static_cast<const core::Structure *>(record_of(call.made[0]));
        for (uint8_t i = 0; i < shape.count; ++i) {
            const core::Component &component = shape.components[i];
            if ((given >> i & 1) != 0) {
                EXPECT_NE(static_cast<const void *>(made->slot(i)), values[i].value.get());
                EXPECT_EQ(hex(encode(values[i].type, made->slot(i)).octets),
                          hex(encode(values[i].type, values[i].value.get()).octets))
                    << component.name;
            } else if (std::find(row.order.begin(), row.order.end(), i) != row.order.end()) {
                EXPECT_EQ(made->slot(i) != nullptr, component.presence == core::Presence::defaulted) << component.name;
            }
        }
        expect_parts(row, call.made[0]);
        const std::string whole = encode(row.type, call.made[0]).octets;
        const Value again = decode(row.type, whole).value;
        EXPECT_TRUE(again || !is_written_as_read(core::row(row.type))) << hex(whole);
        for (uint8_t i = 0; i < shape.count && again; ++i) {
            const auto *read = static_cast<const core::Structure *>(record_of(again.get()));
            EXPECT_EQ(hex(encode(values[i].type, read->slot(i)).octets),
                      hex(encode(values[i].type, made->slot(i)).octets))
                << shape.components[i].name << " of " << hex(whole);
        }
    });
    return is_made;
}

TEST(Parts, ConstructorsFillAndGettersGiveTheComponentsOfTheirNames) {
    for (const auto &fields : table("parts.txt")) {
        if (fields[2].starts_with("gettype") || fields[0] == "other")
            continue;
        Row row = {static_cast<uint32_t>(std::stoul(fields[0])), "kovra_" + fields[1], {}, {}, words(fields[3])};
        SCOPED_TRACE(fields[0] + " " + row.prefix);
        const std::vector<std::string> maker = words(fields[2]);
        row.maker = whole_name(row.prefix, maker[0]);
        if (const size_t inside = fields[0].find(" in "); inside != std::string::npos)
            row.holder = static_cast<uint32_t>(std::stoul(fields[0].substr(inside + 4)));
        ASSERT_EQ(row.getters.size(), shape_of(row).count);
        const Value boolean = decoded(1, "01 01 FF"), integer = decoded(2, "02 01 05");
        for (const std::string &getter : row.getters)
            for (Handle none : {Handle{nullptr}, boolean.get(), integer.get()})
                EXPECT_EQ(getter == "-" ? nullptr : ask(row.prefix + "_get" + getter, none).value, nullptr) << getter;
        // A structure whose content is a list has that always.
        std::vector<Combination> values_of_type = combinations(row.type);
        if (values_of_type.empty())
            values_of_type = {{1, samples(row.type).at(1).octets}};
        uint32_t present = 0;
        const std::vector<Sample> around = component_values(core::row(row.holder));
        for (const Combination &combination : values_of_type) {
            std::string data = combination.octets;
            if (row.holder != 0)
                data = element(data[0], data + around.at(1).octets + around.at(2).octets);
            const Value value = decode(row.holder != 0 ? row.holder : row.type, data).value;
            ASSERT_TRUE(value);
            expect_parts(row, value.get());
            present |= combination.present;
        }
        EXPECT_EQ(present, (uint32_t{1} << shape_of(row).count) - 1) << "a component is never there";
        if (maker[0] == "-")
            continue;
        const Function *function = function_named(row.maker);
        ASSERT_NE(function, nullptr) << row.maker;
        for (size_t i = 0; i < function->values(); ++i)
            row.order.push_back(maker.size() > 1 ? std::stoul(maker[i + 1]) : i);
        std::vector<Kept> values;
        std::map<const core::Type *, size_t> places;
        for (size_t i = 0; i < shape_of(row).count; ++i) {
            const core::Type *type = shape_of(row).components[i].copied_as;
            values.push_back(value_for(shape_of(row).components[i], places[type]++, shape_of(row).allows == nullptr));
        }
        // Two flags exclude each other; of some structures only some records are allowed.
        uint32_t taken = 0, required = 0;
        for (const size_t i : row.order) {
            const bool is_required = shape_of(row).components[i].presence == core::Presence::required;
            taken |= uint32_t{1} << i;
            required |= static_cast<uint32_t>(is_required) << i;
        }
        int made = 0, possible = 0;
        for (uint32_t given = 0; given < uint32_t{1} << values.size(); ++given) {
            if ((given & ~taken) != 0)
                continue;
            const bool can_be = (given & required) == required, is_made = expect_made(row, values, given);
            EXPECT_TRUE(can_be || !is_made) << row.maker << " made of " << given;
            possible += can_be ? 1 : 0;
            made += is_made ? 1 : 0;
        }
        EXPECT_GE(made, shape_of(row).allows == nullptr ? possible / 2 : 1) << row.maker;
        // One loses a BOOLEAN when it fails; what another may change is a copy, which needs memory as well.
        if (row.maker == "kovra_x509basicconstraints_new" || function->may_change())
            continue;
        std::vector<const Kept *> all;
        for (const size_t i : row.order)
            all.push_back(&values[i]);
        fail_each_allocation([&] { return call_with(*function, all) == 1 || made < possible; });
    }
}

// A getter of a choice gives the value of its own alternative; `*` says that it gives that of any.
TEST(Parts, ChoicesTellTheirNumberAndGiveTheirValue) {
    for (const auto &fields : table("parts.txt")) {
        const std::string prefix = "kovra_" + fields[1];
        const std::vector<std::string> teller = words(fields[2]);
        if (teller[0] != "gettype" || fields[0] == "other")
            continue;
        const auto type = static_cast<uint32_t>(std::stoul(fields[0]));
        SCOPED_TRACE(fields[0] + " " + prefix);
        EXPECT_EQ(ask(prefix + "_gettype", nullptr).number, std::stoi(teller[1]));
        EXPECT_EQ(ask(prefix + "_gettype", decoded(1, "01 01 FF").get()).number, std::stoi(teller[1]));
        const auto &shape = *static_cast<const core::ChoiceShape *>(core::row(type).shape);
        std::vector<std::vector<std::string>> rows;
        for (size_t i = 3; i < fields.size(); ++i)
            rows.push_back(words(fields[i])); // number, getter, constructor
        ASSERT_EQ(rows.size(), shape.count);
        std::vector<bool> seen(rows.size());
        for (const Sample &sample : samples(type)) {
            const Value value = decode(type, sample.octets).value;
            const auto *choice = static_cast<const core::Choice *>(record_of(value.get()));
            const std::vector<std::string> &own = rows[choice->alternative];
            SCOPED_TRACE(hex(sample.octets));
            seen[choice->alternative] = true;
            EXPECT_EQ(ask(prefix + "_gettype", value.get()).number, std::stoi(own[0]));
            for (const std::vector<std::string> &other : rows)
                if (other[1] != "-") {
                    EXPECT_EQ(ask(getter_of(prefix, other[1]), value.get()).value,
                              other[1] == own[1] || teller.size() > 2 ? choice->value : nullptr)
                        << getter_of(prefix, other[1]);
                }
            if (own[2] == "-")
                continue;
            const core::Type *of = shape.alternatives[choice->alternative].copied_as;
            Kept kept = {of->number, encode(of->number, choice->value).octets, {}};
            kept.value = decode(kept.type, kept.octets).value;
            if (!kept.value && !is_written_as_read(*of))
                continue;
            const std::string maker = prefix + "_" + own[2];
            const Function *function = function_named(maker);
            ASSERT_NE(function, nullptr) << maker;
            const std::vector<const Kept *> arguments(function->values(), &kept); // none for a NULL
            call_with(*function, arguments, 0, [&](const Call &call) {
                ASSERT_NE(call.made[0], nullptr) << maker;
                EXPECT_EQ(ask(prefix + "_gettype", call.made[0]).number, std::stoi(own[0])) << maker;
                EXPECT_EQ(encode(type, call.made[0]).octets, encode(type, value.get()).octets) << maker;
            });
        }
        EXPECT_EQ(std::count(seen.begin(), seen.end(), false), 0);
    }
}

// Whatever is exported and takes or gives a value is walked by the tests above, or said to do something else.
TEST(Parts, EachFunctionIsInTheTable) {
    std::set<std::string> walked, others;
    for (const auto &fields : table("parts.txt")) {
        const std::string prefix = "kovra_" + fields[1];
        if (fields[0] == "other") {
            others.insert(fields[1]);
        } else if (fields[2].starts_with("gettype")) {
            walked.insert(prefix + "_gettype");
            for (size_t i = 3; i < fields.size(); ++i)
                walked.insert({getter_of(prefix, words(fields[i])[1]), prefix + "_" + words(fields[i])[2]});
        } else {
            walked.insert(whole_name(prefix, words(fields[2])[0]));
            for (const std::string &word : words(fields[3]))
                walked.insert({prefix + "_get" + word, prefix + "_has" + word});
        }
    }
    const auto is_of_value = [](const Parameter &one) {
        return one.kind == HandleKind::value && (one.form == Form::handle || one.form == Form::place_of_handle);
    };
    for (const Export &row : exports()) {
        const std::string name(row.name);
        const bool is_other = others.erase(name) != 0;
        if (is_of_value(row.result) || std::any_of(row.parameters.begin(), row.parameters.end(), is_of_value)) {
            EXPECT_NE(walked.count(name) != 0 || name.starts_with("kovra_asn1_"), is_other) << name;
        }
    }
    EXPECT_EQ(others, std::set<std::string>()) << "there is no such function";
}

} // namespace
} // namespace kovra::test
