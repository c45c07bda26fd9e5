// What holds for all types, over values made from their tables and over what comes of changing them.
#include <set>

#include "core/choice.hpp"
#include "core/list.hpp"
#include "core/registry.hpp"
#include "core/structure.hpp"
#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"
#include "tests/harness/functions.hpp"
#include "tests/harness/samples.hpp"

namespace kovra::test {
namespace {

constexpr uint32_t type_count = KOVRA_ASN1_TYPE_COUNT;

// Types whose values are none.
bool has_no_value(uint32_t type) {
    return type == KOVRA_ASN1_TYPE_END_OF_CONTENTS || type == KOVRA_ASN1_TYPE_NULL;
}

// Types of which there are contents only.
bool has_no_whole(uint32_t type) {
    return core::row(type).operations->refuses_whole;
}

bool is_leaf(uint32_t type) {
    const core::Type &row = core::row(type);
    return !is_structure(row) && !is_list(row) && (!is_choice(row) || row.operations == &core::any_time_operations);
}

std::string name_of(uint32_t type, const Sample &sample) {
    return "type " + std::to_string(type) + ", " + sample.what + ": " + hex(sample.octets.substr(0, 200));
}

// Result and entries (code, source, text) of decoding, and the value.
struct Outcome {
    int32_t result = 0;
    size_t consumed = 0;
    std::string entries;
    Value value;
};

Outcome outcome(uint32_t type, const std::string &data, Feed feed) {
    Outcome found;
    const Errors ctx(kovra_err_ctx_new());
    const Input input(data, feed);
    kovra_asn1_value *value = nullptr;
    int32_t read = -7;
    found.result = kovra_asn1_decode(input.stream(), type, &value, &read, ctx.get());
    found.value = Value(type, value);
    found.consumed = input.consumed();
    EXPECT_EQ(read, found.result == 1 ? static_cast<int32_t>(found.consumed) : -7);
    EXPECT_TRUE(found.result == 1 || value == nullptr);
    const char *source = nullptr, *text = nullptr;
    for (int32_t i = 0, line = 0, code = 0; kovra_err_ctx_getentry(ctx.get(), i, &source, &line, &code, &text) == 1;
         ++i)
        found.entries.append(std::to_string(code)).append(source).append(text).append(1, '\n');
    // A segment that is no end of contents, at the place of one, is refused without a word by a string alone.
    EXPECT_TRUE(found.result == 1 || !found.entries.empty() || is_leaf(type)) << "a failure without an entry";
    // An INTEGER without content is zero, which is noted and is no failure.
    EXPECT_TRUE(found.result != 1 || found.entries.empty() || found.entries.starts_with("66275")) << found.entries;
    return found;
}

// From memory that ends where the octets end, and octet by octet: it comes to the same.
Outcome outcome(uint32_t type, const std::string &data) {
    Outcome memory = outcome(type, data, Feed::memory);
    const Outcome trickle = outcome(type, data, Feed::trickle);
    EXPECT_EQ(memory.result, trickle.result);
    EXPECT_EQ(memory.entries, trickle.entries);
    if (memory.result == 1) {
        EXPECT_EQ(memory.consumed, trickle.consumed);
        EXPECT_EQ(encode(type, memory.value.get()).octets, encode(type, trickle.value.get()).octets);
    }
    return memory;
}

// Takes one octet at a time, and refuses when it has as many as it wants.
struct Sink {
    static constexpr int32_t refusal = -4711;

    std::string octets;
    size_t room;

    static int32_t write(void *user, const void *data, int32_t size, int32_t *out_count) {
        Sink &self = *static_cast<Sink *>(user);
        *out_count = 0;
        if (self.octets.size() == self.room)
            return refusal;
        self.octets.append(static_cast<const char *>(data), size > 0 ? 1 : 0);
        *out_count = size > 0 ? 1 : 0;
        return 1;
    }
    Stream stream() {
        kovra_stream_callbacks callbacks = {};
        callbacks.write = write;
        return Stream(kovra_stream_new_callbacks(&callbacks, this, nullptr));
    }
};

// Any stream gets the same octets, and what it says when it wants no more is passed up.
void expect_written(uint32_t type, kovra_asn1_value *value, const std::string &octets) {
    for (size_t room = 0; room <= octets.size(); ++room) {
        Sink sink{"", room};
        const Stream stream = sink.stream();
        const Errors ctx(kovra_err_ctx_new());
        int32_t written = -7;
        const int32_t result = kovra_asn1_encode(stream.get(), type, value, &written, ctx.get());
        const bool is_whole = room == octets.size();
        ASSERT_EQ(result, is_whole ? 1 : Sink::refusal) << "room for " << room;
        EXPECT_EQ(written, is_whole ? size_of(octets) : -7);
        EXPECT_EQ(kovra_err_ctx_getcount(ctx.get()) == 0, is_whole);
        EXPECT_EQ(hex(sink.octets), hex(octets.substr(0, room)));
    }
}

// What was read can be written as long as announced, and that is read as what is written alike.
void expect_sound(uint32_t type, kovra_asn1_value *value) {
    const core::Type &row = core::row(type);
    const Encoded first = encode(type, value);
    if (first.result != 1) {
        EXPECT_FALSE(first.codes.empty());
        EXPECT_FALSE(is_written_as_read(row)) << "is read and not written: " << first.codes;
        return;
    }
    EXPECT_EQ(first.codes, Codes());
    const int32_t length = kovra_asn1_length(type, value);
    EXPECT_TRUE(length == size_of(first.octets) || length == core::indefinite || !is_as_long_as_measured(row))
        << length;
    const Decoded again = decode(type, first.octets);
    if (!is_written_as_read(row) && again.result != 1)
        return;
    ASSERT_EQ(again.result, 1) << "not read again: " << hex(first.octets) << again.codes;
    EXPECT_EQ(again.consumed, first.octets.size());
    EXPECT_EQ(hex(encode(type, again.value.get()).octets), hex(first.octets));
}

// The content octets by themselves, of the announced length and of indefinite length.
void expect_sound_content(uint32_t type, kovra_asn1_value *value) {
    const core::Type &row = core::row(type);
    const int32_t length = kovra_asn1_content_length(type, value);
    ASSERT_NE(length, core::unknown);
    const Encoded content = encode_content(type, value, length);
    ASSERT_EQ(content.result, 1) << content.codes;
    if (length >= 0 && is_as_long_as_measured(row)) {
        EXPECT_EQ(size_of(content.octets), length);
    }
    if (is_choice(row) || !is_written_as_read(row))
        return;
    const int32_t form = row.form == core::Form::constructed || length < 0 ? 0 : 1;
    const Decoded again = decode_content(type, content.octets, form, length);
    ASSERT_EQ(again.result, 1) << again.codes;
    EXPECT_EQ(hex(encode_content(type, again.value.get(), length).octets), hex(content.octets));
    if (row.form != core::Form::constructed || length < 0)
        return;
    const Encoded open = encode_content(type, value, core::indefinite);
    EXPECT_EQ(hex(open.octets), hex(content.octets) + "0000");
    EXPECT_EQ(hex(encode_content(type, decode_content(type, open.octets, 0, -1).value.get(), length).octets),
              hex(content.octets));
}

TEST(Rows, WhatIsReadIsWrittenAndReadAgain) {
    size_t count = 0;
    for (uint32_t type = 0; type < type_count; ++type) {
        for (const Sample &sample : samples(type)) {
            SCOPED_TRACE(name_of(type, sample));
            ++count;
            const Outcome read = outcome(type, sample.octets);
            if (has_no_whole(type)) {
                EXPECT_EQ(read.result, 0);
                const std::string content = sample.octets.substr(2);
                const Value value = decode_content(type, content, 1, size_of(content)).value;
                expect_sound_content(type, value.get());
                EXPECT_EQ(encode(type, value.get()).result, 0);
                break;
            }
            ASSERT_EQ(read.result, 1) << read.entries;
            EXPECT_EQ(read.consumed, sample.octets.size());
            if (has_no_value(type)) {
                EXPECT_EQ(encode(type, nullptr).octets, sample.octets);
                continue;
            }
            expect_sound(type, read.value.get());
            const Encoded written = encode(type, read.value.get());
            if (written.result != 1)
                continue;
            expect_sound_content(type, read.value.get());
            if (sample.what != "long")
                expect_written(type, read.value.get(), written.octets);
            Value copy(type, kovra_asn1_dupobject(type, read.value.get(), nullptr));
            EXPECT_TRUE(copy || !is_written_as_read(core::row(type)));
            if (copy) {
                EXPECT_EQ(hex(encode(type, copy.get()).octets), hex(written.octets));
            }
            // All of the samples is definite and as short as can be, but for the forms of the leaves.
            if (sample.what == "minimal" || sample.what == "full" || sample.what == "long") {
                EXPECT_TRUE(hex(written.octets) == hex(sample.octets) || !is_written_as_read(core::row(type)))
                    << hex(written.octets);
            }
            // To release takes no memory.
            {
                const ScarceMemory scarce(0);
                copy = Value();
                EXPECT_FALSE(ScarceMemory::has_failed());
            }
            // What stands behind a value is left where it is.
            const Outcome followed = outcome(type, sample.octets + "\x30\x80");
            EXPECT_EQ(followed.result, 1);
            EXPECT_EQ(followed.consumed, sample.octets.size());
        }
    }
    RecordProperty("values", static_cast<int>(count));
}

// Whatever combination of components is there, just these are in the record, and are written again.
TEST(Rows, PresenceOfComponents) {
    size_t count = 0;
    for (uint32_t type = 0; type < type_count; ++type) {
        for (const Combination &combination : combinations(type)) {
            SCOPED_TRACE("type " + std::to_string(type) + ": " + hex(combination.octets));
            ++count;
            const Outcome read = outcome(type, combination.octets);
            ASSERT_EQ(read.result, 1) << read.entries;
            const auto &record =
                *static_cast<const core::Structure *>(static_cast<const core::Value *>(read.value.get()));
            for (uint8_t i = 0; i < record.shape->count; ++i) {
                const core::Component &component = record.shape->components[i];
                const bool is_there = (combination.present >> i & 1) != 0;
                if (component.presence == core::Presence::defaulted) {
                    ASSERT_NE(record.slot(i), nullptr) << component.name;
                    EXPECT_NE(component.fallback->is(*record.slot(i)), is_there) << component.name;
                } else {
                    EXPECT_EQ(record.slot(i) != nullptr, is_there) << component.name;
                }
            }
            expect_sound(type, read.value.get());
            if (is_written_as_read(core::row(type))) {
                EXPECT_EQ(encoding(read.value), hex(combination.octets));
            }
        }
    }
    EXPECT_GT(count, 500u);
}

TEST(Rows, Truncations) {
    size_t passed_up = 0, replaced = 0;
    for (uint32_t type = 0; type < type_count; ++type) {
        for (const Sample &sample : samples(type)) {
            if (sample.what == "long")
                continue;
            SCOPED_TRACE(name_of(type, sample));
            for (size_t end = 0; end < sample.octets.size(); ++end) {
                ASSERT_NE(outcome(type, sample.octets.substr(0, end)).result, 1) << "cut at " << end;
                // What a stream says that has no more is passed up, but by a list whose element ends there and by a
                // BIT STRING whose marker does.
                const Input input(sample.octets, Feed::trickle, end, Sink::refusal);
                kovra_asn1_value *out = nullptr;
                const int32_t result = kovra_asn1_decode(input.stream(), type, &out, nullptr, nullptr);
                ASSERT_TRUE(result == Sink::refusal || (result == 0 && end > 0) || has_no_whole(type))
                    << "refused at " << end;
                ++(result == 0 ? replaced : passed_up);
                ASSERT_EQ(out, nullptr);
            }
        }
    }
    EXPECT_GT(passed_up, 3 * replaced);
}

// Where an element stands.
struct Place {
    size_t begin, header, end;
    std::vector<size_t> around; // the places that hold it, the outermost first
};

void find_places(const std::string &data, size_t begin, size_t end, std::vector<size_t> &around,
                 std::vector<Place> &places) {
    for (size_t at = begin; at < end;) {
        // Tags above 30 and indefinite lengths are within samples only as leaves.
        const auto first = static_cast<uint8_t>(data[at]), second = static_cast<uint8_t>(data[at + 1]);
        if ((first & 0x1F) == 0x1F || second == 0x80)
            return;
        const size_t more = second < 0x80 ? 0 : second & 0x7F;
        size_t length = more == 0 ? second : 0;
        for (size_t i = 0; i < more; ++i)
            length = length << 8 | static_cast<uint8_t>(data[at + 2 + i]);
        const Place place = {at, 2 + more, at + 2 + more + length, around};
        places.push_back(place);
        if ((first & 0x20) != 0) {
            around.push_back(places.size() - 1);
            find_places(data, at + place.header, place.end, around, places);
            around.pop_back();
        }
        at = place.end;
    }
}

// The octets with another element in a place, and lengths around it that are right.
std::string with(const std::string &data, const std::vector<Place> &places, const Place &place,
                 const std::string &instead) {
    std::string changed = instead;
    size_t begin = place.begin, end = place.end;
    for (auto outer = place.around.rbegin(); outer != place.around.rend(); ++outer) {
        const Place &holder = places[*outer];
        const size_t content = holder.begin + holder.header;
        changed = element(data[holder.begin],
                          data.substr(content, begin - content) + changed + data.substr(end, holder.end - end));
        begin = holder.begin;
        end = holder.end;
    }
    return data.substr(0, begin) + changed + data.substr(end);
}

std::vector<std::string> changes_of(const std::string &data, const std::vector<Place> &places, const Place &place) {
    std::vector<std::string> changed;
    const std::string whole = data.substr(place.begin, place.end - place.begin);
    const std::string content = whole.substr(place.header);
    const int identifier = static_cast<uint8_t>(whole[0]);
    auto put = [&](const std::string &instead) { changed.push_back(with(data, places, place, instead)); };
    for (const int other : {identifier ^ 0x20, identifier ^ 0x80, identifier ^ 1, identifier + 2, 0x00, 0xFF, 0x04,
                            0x05, 0x0C, 0x17, 0x24, 0x30, 0x31, 0xA0})
        if (other != identifier)
            put(std::string(1, static_cast<char>(other)) + whole.substr(1));
    put("");
    put(whole + whole);
    put(element(0xA0, whole));
    put(element(identifier, content + '\0'));
    put(element(identifier, content.substr(0, content.size() / 2)));
    put(element(identifier, ""));
    put(open_element(identifier | 0x20, content));
    put(std::string{static_cast<char>(identifier), '\x84'} + in_four_octets(content.size()) + content);
    for (const char *length : {"\x84\x7F\xFF\xFF\xFF", "\x84\x80", "\x84\xFF\xFF\xFF\xFF", "\x85\x01"})
        put(whole.substr(0, 1) + (std::string(length) + std::string(4, '\0')).substr(0, 1 + (length[0] & 7)) + content);
    // Lengths that are wrong.
    const size_t last = place.begin + place.header - 1;
    for (const int octet : {data[last] + 1, data[last] - 1, 0x00, 0x80, 0x84, 0xFF}) {
        changed.push_back(data);
        changed.back()[last] = static_cast<char>(octet);
    }
    return changed;
}

// Each element of each value with another tag, form, length or content, missing, twice ...: it is refused, or what
// came of it is sound. A quarter of the types at a time.
class Changes : public testing::TestWithParam<uint32_t> {};

TEST_P(Changes, AreRefusedOrSound) {
    size_t accepted = 0, refused = 0;
    read_everything(pool()[0].value.get()); // what it keeps for later is no leak
    for (uint32_t type = GetParam(); type < type_count; type += 4) {
        std::set<std::string> seen;
        for (const Sample &sample : samples(type)) {
            if (sample.what == "long")
                continue;
            SCOPED_TRACE(name_of(type, sample));
            std::vector<Place> places;
            std::vector<size_t> around;
            find_places(sample.octets, 0, sample.octets.size(), around, places);
            for (const Place &place : places) {
                for (const std::string &changed : changes_of(sample.octets, places, place)) {
                    if (!seen.insert(changed).second)
                        continue;
                    const int64_t before = live_blocks();
                    {
                        SCOPED_TRACE("at " + std::to_string(place.begin) + ": " + hex(changed));
                        const Outcome read = outcome(type, changed);
                        ++(read.result == 1 ? accepted : refused);
                        if (read.value) {
                            expect_sound(type, read.value.get());
                            read_everything(read.value.get());
                        }
                    }
                    ASSERT_TRUE(live_blocks() == before || !is_memory_watched());
                }
            }
            if (HasFailure())
                break;
        }
    }
    RecordProperty("accepted", static_cast<int>(accepted));
    RecordProperty("refused", static_cast<int>(refused));
    EXPECT_GT(accepted, 1000u);
    EXPECT_GT(refused, 10000u);
}

INSTANTIATE_TEST_SUITE_P(Rows, Changes, testing::Range(0u, 4u));

// Content of another length than the value has is refused, with one entry, and nothing is written.
TEST(Rows, ContentOfAnotherLengthIsNotEncoded) {
    for (uint32_t type = 0; type < type_count; ++type)
        for (const Sample &sample : samples(type)) {
            const Value value = decode(type, sample.octets).value;
            const int32_t length = kovra_asn1_content_length(type, value.get());
            if (!is_leaf(type) || type == KOVRA_ASN1_TYPE_ANY || !value || length < 0)
                continue;
            for (const int32_t other : {length - 1, length + 1, 0, -2, INT32_MAX, INT32_MIN}) {
                if (other == length || other == -1)
                    continue;
                const Encoded refused = encode_content(type, value.get(), other);
                EXPECT_NE(refused.result, 1) << name_of(type, sample) << ' ' << other;
                EXPECT_EQ(refused.codes.size(), 1u) << name_of(type, sample) << ' ' << other;
            }
        }
}

// What every structure and every list says to the same faults.
TEST(Rows, FormsTagsAndArguments) {
    for (uint32_t type = 0; type < type_count; ++type) {
        const core::Type &row = core::row(type);
        if (!is_structure(row) && !is_list(row) && !is_choice(row))
            continue;
        const std::string &data = minimal_sample(type);
        SCOPED_TRACE("type " + std::to_string(type) + ": " + hex(data));
        const Value value = decode(type, data).value;
        kovra_asn1_value *out = nullptr;
        EXPECT_EQ(kovra_asn1_decode(nullptr, type, &out, nullptr, nullptr), 0);
        if (has_no_whole(type) || has_no_value(type))
            continue;
        EXPECT_EQ(encode_with([&](auto *, auto *written, auto *ctx) {
                      return kovra_asn1_encode(nullptr, type, value.get(), written, ctx);
                  }).codes.at(0),
                  0x10002);
        EXPECT_EQ(encode(type, nullptr).codes.at(0), 0x10002);
        EXPECT_EQ(kovra_asn1_length(type, nullptr), -2);
        if (is_list(row)) {
            const bool may_be_empty = !static_cast<const core::ListShape *>(row.shape)->nonempty;
            EXPECT_EQ(decode(type, element(data[0], "")).result, may_be_empty ? 1 : 0);
            EXPECT_EQ(decode(type, std::string{data[0], '\x80', 0, 0}).result, may_be_empty ? 1 : 0);
        }
        if (is_choice(row)) {
            if (row.operations != &core::any_time_operations) {
                EXPECT_EQ(decode_content(type, data.substr(2), 0, size_of(data) - 2).codes.at(0), 0x1026d);
                EXPECT_EQ(encode_content(type, value.get(), -2).codes, Codes({0x10001}));
            }
            continue;
        }
        // Refused before anything is read.
        const Decoded primitive = decode_content(type, data.substr(2), 1, size_of(data) - 2);
        EXPECT_EQ(primitive.codes, Codes({0x1026a}));
        EXPECT_EQ(primitive.consumed, 0u);
        EXPECT_EQ(decode_content(type, data, 0, -2).codes,
                  Codes({row.operations == &core::any_list_operations ? 0x10203 : 0x10001}));
        EXPECT_EQ(encode_content(type, value.get(), -2).codes, Codes({0x10001}));
        EXPECT_EQ(encode_content(type, nullptr, 0).codes, Codes({0x10002}));
        const bool keeps_octets = row.operations == &core::kept_structure_operations;
        if (is_written_as_read(row)) {
            const std::string content = encode_content(type, value.get(), -1).octets;
            const std::string open = std::string{data[0], '\x80'} + content;
            EXPECT_EQ(encoding(decode(type, open).value), hex(keeps_octets ? open : data));
        }
    }
}

// Where the components of a structure stand in its octets.
struct Part {
    const core::Component &component;
    size_t place; // of the outermost identifier
};

// Calls look(combination, places, part) with each component of each structure, in each of the combinations.
template <class Look> void for_each_component(Look look) {
    for (uint32_t type = 0; type < type_count; ++type) {
        for (const Combination &combination : combinations(type)) {
            const auto &shape = *static_cast<const core::StructureShape *>(core::row(type).shape);
            std::vector<Place> places;
            std::vector<size_t> around;
            find_places(combination.octets, 0, combination.octets.size(), around, places);
            uint8_t slot = 0;
            for (size_t i = 1; i < places.size(); ++i) {
                if (places[i].around.size() != 1)
                    continue;
                while ((combination.present >> slot & 1) == 0)
                    ++slot;
                SCOPED_TRACE("type " + std::to_string(type) + ", " + shape.components[slot].name + ": " +
                             hex(combination.octets));
                look(type, combination.octets, places, Part{shape.components[slot++], i});
            }
        }
    }
}

// Where a component is broken, one of the entries has its code.
TEST(Rows, EntriesNameTheComponent) {
    size_t count = 0;
    for_each_component([&](uint32_t type, const std::string &data, const std::vector<Place> &places, const Part &part) {
        const core::Type &row = core::row(type);
        if (row.operations == &core::kept_structure_operations ||
            static_cast<const core::StructureShape *>(row.shape)->is_signed)
            return; // walked first, which finds the fault
        // What an explicit tag holds is the component.
        const bool is_explicit = part.component.tag.tagging == core::Tagging::explicit_;
        const Place &place = places[part.place + (is_explicit ? 1 : 0)];
        const Decoded read =
            decode(type, with(data, places, place, data.substr(place.begin, 1) + octets("84 7F FF FF FF")));
        EXPECT_EQ(read.result, 0);
        const int32_t code = core::decode_code(part.component);
        EXPECT_TRUE(code == core::no_code || std::find(read.codes.begin(), read.codes.end(), code) != read.codes.end())
            << read.codes << std::hex << code;
        ++count;
    });
    EXPECT_GT(count, 1000u);
}

// An identifier that no component begins with is refused, and so is what an explicit tag holds too much or too little.
TEST(Rows, IdentifiersAreTheirComponents) {
    size_t count = 0;
    for_each_component([&](uint32_t type, const std::string &data, const std::vector<Place> &places, const Part &part) {
        const auto &shape = *static_cast<const core::StructureShape *>(core::row(type).shape);
        const Place &place = places[part.place];
        const std::string whole = data.substr(place.begin, place.end - place.begin);
        const auto expect_refused = [&](const std::string &instead) {
            ++count;
            EXPECT_EQ(decode(type, with(data, places, place, instead)).result, 0) << hex(instead);
        };
        if (part.component.tag.tagging == core::Tagging::explicit_) {
            const std::string content = whole.substr(place.header);
            expect_refused(element(whole[0] ^ 0x20, content));
            expect_refused(element(whole[0], ""));
            expect_refused(element(whole[0], content + content));
            expect_refused(element(whole[0], content + octets("00 00")));
        }
        if (std::any_of(shape.components, shape.components + shape.count,
                        [](const core::Component &other) { return other.type == KOVRA_ASN1_TYPE_ANY; }))
            return;
        for (const int identifier : {0xDE, 0xFE, 0x0E, 0x2E, 0x5E, 0x7E})
            expect_refused(element(identifier, whole.substr(place.header)));
        expect_refused(whole + octets("DE 01 00"));
    });
    EXPECT_GT(count, 5000u);
}

// Every open type is each of the universal types, in each form, and nothing takes it for what it is not.
TEST(Rows, OpenTypesAreAnything) {
    size_t read = 0;
    read_everything(pool()[0].value.get());
    const std::string contents[] = {"", std::string("A\0B", 3), octets("04 01 41"), octets("02 01 05 30 80 00 00"),
                                    std::string(9, '\xFF')};
    for (uint32_t type = 0; type < type_count && !HasFailure(); ++type) {
        if (with_open_type(type, octets("DF 1F 00")).empty())
            continue;
        for (int identifier = 0; identifier < 0x40; ++identifier) {
            for (const std::string &content : contents) {
                const bool is_open = &content == &contents[3];
                const std::string open = (is_open ? open_element : element)(identifier, content);
                for (const std::string &data : with_open_type(type, open)) {
                    SCOPED_TRACE("type " + std::to_string(type) + ": " + hex(data));
                    const Outcome found = outcome(type, data);
                    if (!found.value)
                        continue;
                    ++read;
                    expect_sound(type, found.value.get());
                    read_everything_within(found.value.get());
                }
            }
        }
    }
    EXPECT_GT(read, 5000u);
}

// A quarter of the types at a time.
class Scarcity : public testing::TestWithParam<uint32_t> {};

TEST_P(Scarcity, EveryAllocationMayFail) {
    for (uint32_t type = GetParam(); type < type_count; type += 4) {
        for (const Sample &sample : samples(type)) {
            if (has_no_whole(type))
                continue;
            SCOPED_TRACE(name_of(type, sample));
            const bool is_written =
                decode(type, encode(type, decode(type, sample.octets).value.get()).octets).result == 1;
            for (const auto &[fails_once, feed] :
                 {std::pair(false, Feed::memory), std::pair(true, Feed::memory), std::pair(true, Feed::trickle)}) {
                fail_each_allocation(
                    [&, feed = feed] {
                        const Errors ctx(kovra_err_ctx_new());
                        const Input input(sample.octets, feed);
                        kovra_asn1_value *out = nullptr;
                        if (ctx == nullptr || input.stream() == nullptr)
                            return false;
                        const int32_t result = kovra_asn1_decode(input.stream(), type, &out, nullptr, ctx.get());
                        const Value value(type, out);
                        if (result != 1) {
                            EXPECT_EQ(Codes(ctx.get()).at(0), 0x10000);
                            EXPECT_EQ(out, nullptr);
                            return false;
                        }
                        if (has_no_value(type))
                            return true;
                        const Value copy(type, kovra_asn1_dupobject(type, value.get(), ctx.get()));
                        EXPECT_TRUE(copy || !is_written || kovra_err_ctx_getcount(ctx.get()) != 0);
                        kovra_err_ctx_clear(ctx.get());
                        const Stream stream = memory_stream();
                        const int32_t put =
                            stream == nullptr ? 1 : kovra_asn1_encode(stream.get(), type, out, nullptr, ctx.get());
                        EXPECT_TRUE(put == 1 || !is_written || kovra_err_ctx_getcount(ctx.get()) != 0);
                        const Blob encoding(kovra_asn1_mem_encode(type, value.get()));
                        const Value any(KOVRA_ASN1_TYPE_ANY, kovra_asn1_objecttoany(type, value.get()));
                        kovra_asn1_value *back = nullptr;
                        const bool is_back = kovra_asn1_any_toobject(any.get(), type, &back, nullptr) == 1;
                        EXPECT_EQ(is_back, back != nullptr);
                        const Value again(type, back);
                        return (copy && encoding != nullptr && (!any || again)) || !is_written;
                    },
                    fails_once);
            }
            if (HasFatalFailure())
                return;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, Scarcity, testing::Range(0u, 4u));

// A new value of every kind, and records and choices of several shapes.
std::vector<Value> of_every_kind() {
    std::vector<Value> found;
    for (const uint32_t type : {1u, 2u, 3u, 4u, 6u, 21u, 23u, 24u, 32u, 33u, 34u, 36u, 47u, 62u, 63u, 178u})
        found.push_back(decode(type, minimal_sample(type)).value);
    return found;
}

// A new value of a structure or a choice in which one part is `part`, the other ones being as they should; null where
// they cannot be.
core::Value *holder_of(const core::Type &type, uint8_t place, core::Value *part) {
    if (is_structure(type)) {
        const auto &shape = *static_cast<const core::StructureShape *>(type.shape);
        const std::vector<Sample> values = component_values(type);
        core::Structure *record = core::new_structure(shape);
        for (uint8_t i = 0; i < shape.count; ++i) {
            const uint32_t number = shape.components[i].copied_as->number;
            Value value = i == place ? Value() : decode(number, values[i].octets).value;
            if (!has_no_value(number))
                core::store(*record, i, i == place ? part : static_cast<core::Value *>(value.release()));
        }
        return record;
    }
    auto *choice = core::new_root<core::Choice>();
    choice->shape = static_cast<const core::ChoiceShape *>(type.shape);
    choice->alternative = place;
    choice->value = part;
    EXPECT_TRUE(choice->arena->adopt(part));
    return choice;
}

// A part that is none of what its component takes is not looked into, by whatever way its holder is written.
TEST(Rows, StrangePartsAreRefused) {
    size_t refused = 0;
    for (uint32_t type = 0; type < type_count; ++type) {
        const core::Type &row = core::row(type);
        const bool is_table_choice = row.operations == &core::choice_operations;
        if (!is_structure(row) && !is_table_choice)
            continue;
        const auto *choice = static_cast<const core::ChoiceShape *>(row.shape);
        const auto *structure = static_cast<const core::StructureShape *>(row.shape);
        const uint8_t count = is_table_choice ? choice->count : structure->count;
        for (uint8_t place = 0; place < count; ++place) {
            const core::Component &component =
                is_table_choice ? choice->alternatives[place] : structure->components[place];
            const bool is_content = !is_table_choice && structure->content != nullptr;
            const core::Type &written_as = is_content ? *structure->content : core::row_of(component);
            for (Value &part : of_every_kind()) {
                auto *value = static_cast<core::Value *>(part.get());
                if (core::holds(written_as, value) || has_no_value(component.type))
                    continue;
                SCOPED_TRACE("type " + std::to_string(type) + ", " + component.name + " of type " +
                             std::to_string(part.type()));
                part.release();
                const Value holder(type, holder_of(row, place, value));
                for (const int32_t length : {-2, -1, 0, 1, 100})
                    ASSERT_NE(encode_content(type, holder.get(), length).result, 1);
                ASSERT_LT(kovra_asn1_content_length(type, holder.get()), 0);
                ASSERT_NE(encode(type, holder.get()).result, 1);
                ++refused;
            }
        }
    }
    EXPECT_GT(refused, 3000u);
}

} // namespace
} // namespace kovra::test
