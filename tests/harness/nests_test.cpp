// Lists in the elements of lists: every list type in every other that can hold it, three deep, of sizes on both sides
// of each threshold, within whatever keeps its octets.
#include <algorithm>
#include <array>
#include <random>

#include "base/thresholds.hpp"
#include "kovra/asn1_list.h"
#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"
#include "tests/harness/samples.hpp"

namespace kovra::test {
namespace {

using Handle = kovra_asn1_value *;
using Random = std::minstd_rand;

// How many elements a list has: none, few, and one more than is built at once or has room at first.
constexpr size_t sizes[] = {0, 1, 2, 3, threshold<size_t>(33, 4), threshold<size_t>(130, 6)};
constexpr size_t long_one = 4, longest = 5; // of them
constexpr size_t most_levels = 3;

// Which of the elements of a list hold the next list; the others are minimal.
enum class Place : uint8_t { first, last, edge, all };
constexpr size_t place_count = 4;

// Lists in each other: the outermost is in a value of the type, each other in the elements of the one before.
struct Chain {
    uint32_t type;
    std::vector<HeldList> lists;

    [[nodiscard]] bool keeps_octets() const {
        return std::any_of(lists.begin(), lists.end(), [](const HeldList &list) { return list.kept != nullptr; });
    }
};

std::string name_of(const Chain &chain) {
    std::string name = "type " + std::to_string(chain.type);
    for (const HeldList &list : chain.lists)
        name += (list.name.empty() ? "" : " " + list.name) + " {" + std::to_string(list.list->number) + "}";
    return name;
}

void extend(const Chain &chain, std::vector<Chain> &found) {
    const std::vector<HeldList> inner =
        chain.lists.size() < most_levels ? lists_in(member_of(*chain.lists.back().list)) : std::vector<HeldList>{};
    if (inner.empty() && chain.lists.size() > 1)
        found.push_back(chain);
    for (const HeldList &list : inner) {
        Chain longer = chain;
        longer.lists.push_back(list);
        extend(longer, found);
    }
}

const std::vector<Chain> &chains() {
    static const std::vector<Chain> all = [] {
        std::vector<Chain> found;
        for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type)
            for (const HeldList &list : lists_in(core::row(type)))
                extend({type, {list}}, found);
        return found;
    }();
    return all;
}

// A value with the lists of a chain in it.
class Nest {
public:
    struct Level {
        size_t size;
        Place place;
    };

    // With `is_open` the lists are of indefinite length. Elements that hold a list are there once only where all of
    // them would be too many octets.
    Nest(const Chain &chain, const std::vector<Level> &levels, bool is_open = false, size_t most_octets = 16384)
        : chain_(chain), levels_(levels) {
        std::string encoding;
        for (size_t i = levels_.size(); i-- > 0;) {
            const core::Type &list = *chain.lists[i].list;
            Level &level = levels_[i];
            if (level.size == 0 && !may_be_empty(list))
                level.size = 1;
            plain_.insert(plain_.begin(), minimal_member(list));
            deep_.insert(deep_.begin(),
                         i + 1 < levels_.size() ? chain.lists[i + 1].in_holder(encoding) : plain_.front());
            if (level.place == Place::all && level.size * deep_.front().size() > most_octets)
                level.place = Place::last;
            std::string content;
            for (size_t index = 0; index < level.size; ++index)
                content += is_deep(i, index) ? deep_.front() : plain_.front();
            encoding = (is_open ? open_element : element)(list.usual_identifier, content);
        }
        octets_ = chain.lists[0].in_holder(encoding);
    }

    [[nodiscard]] const Chain &chain() const { return chain_; }
    [[nodiscard]] uint32_t type() const { return chain_.type; }
    [[nodiscard]] const std::string &octets() const { return octets_; }
    [[nodiscard]] size_t size(size_t level) const { return levels_[level].size; }
    // Does the element hold the list of the next level?
    [[nodiscard]] bool is_deep(size_t level, size_t index) const {
        const auto [size, place] = levels_[level];
        constexpr size_t edge = sizes[long_one]; // read behind the one that makes the list long, with others behind it
        if (level + 1 == levels_.size())
            return false;
        return place == Place::all || (place == Place::first && index == 0) ||
               (place == Place::last && index + 1 == size) ||
               (place == Place::edge && index == (size > edge ? edge : size / 2));
    }
    [[nodiscard]] const std::string &element_at(size_t level, size_t index) const {
        return is_deep(level, index) ? deep_[level] : plain_[level];
    }
    // Sizes and places, each by its first letter, from the outermost list on.
    [[nodiscard]] std::string name() const {
        std::string name = name_of(chain_);
        for (const Level &level : levels_)
            name += ' ' + std::to_string(level.size) + "flea"[static_cast<size_t>(level.place)];
        return name + ' ' + hex(octets_.substr(0, 64));
    }

private:
    const Chain &chain_;
    std::vector<Level> levels_;
    std::vector<std::string> plain_, deep_; // elements of each level
    std::string octets_;
};

enum class Order : uint8_t { forwards, backwards, random };

// The list of a level in what holds it.
Handle list_of(const Nest &nest, Handle holder, size_t level) {
    return const_cast<core::Value *>(nest.chain().lists[level].of(static_cast<const core::Value *>(holder)));
}

// Reads the elements, and those of the lists in them, and compares each with its octets. Of every `left_out` one is
// left out; 0: none is.
void read(const Nest &nest, Handle value, Order order, Random &random, uint32_t left_out = 0, size_t level = 0) {
    const Handle list = list_of(nest, value, level);
    ASSERT_EQ(kovra_asn1_list_getsize(list), static_cast<int32_t>(nest.size(level)));
    std::vector<size_t> indices(nest.size(level));
    for (size_t i = 0; i < indices.size(); ++i)
        indices[i] = order == Order::backwards ? indices.size() - 1 - i : i;
    if (order == Order::random)
        std::shuffle(indices.begin(), indices.end(), random);
    const core::Type &member = member_of(*nest.chain().lists[level].list);
    for (const size_t index : indices) {
        if (left_out != 0 && random() % left_out == 0)
            continue;
        Handle element = nullptr;
        ASSERT_EQ(kovra_asn1_list_get(list, static_cast<int32_t>(index), &element), 1);
        // Either before or after those in it.
        const auto compare = [&] {
            if (is_written_as_read(member)) {
                ASSERT_EQ(text_of(Blob(kovra_asn1_mem_encode(member.number, element)).get()),
                          nest.element_at(level, index));
            }
        };
        const bool is_first = random() % 2 == 0;
        if (is_first)
            compare();
        if (nest.is_deep(level, index))
            read(nest, element, order, random, left_out, level + 1);
        if (!is_first)
            compare();
        if (testing::Test::HasFatalFailure())
            return;
    }
}

// Measured, written, and copied.
void expect_written(uint32_t type, Handle value, const std::string &octets) {
    const int32_t length = kovra_asn1_length(type, value);
    EXPECT_TRUE(length == size_of(octets) || !is_as_long_as_measured(core::row(type))) << length;
    const Encoded written = encode(type, value);
    ASSERT_EQ(written.result, 1) << written.codes;
    ASSERT_EQ(hex(written.octets), hex(octets));
    const Value copy(type, kovra_asn1_dupobject(type, value, nullptr));
    if (is_written_as_read(core::row(type))) {
        ASSERT_TRUE(copy);
        ASSERT_EQ(encode(type, copy.get()).octets, octets);
    }
}

// An element is put into the outermost list, whatever of it was read before.
void expect_growth(const Nest &nest, Handle list) {
    const core::Type &row = core::row(nest.type()), &member = member_of(row);
    std::string content;
    for (size_t i = 0; i < nest.size(0); ++i)
        content += nest.element_at(0, i);
    const std::string more = minimal_member(row);
    Value element = decode(member.number, more).value;
    ASSERT_EQ(kovra_asn1_list_put(list, element.get()), 1);
    const Handle put = element.release();
    Handle got = nullptr;
    ASSERT_EQ(kovra_asn1_list_get(list, static_cast<int32_t>(nest.size(0)), &got), 1);
    EXPECT_EQ(got, put);
    if (is_written_as_read(row))
        expect_written(nest.type(), list, test::element(row.usual_identifier, content + more));
}

// Everything that is done with a nest that is decoded from these octets and is written as `written`.
void use(const Nest &nest, const std::string &octets, const std::string &written, Random &random) {
    const int64_t before = live_blocks();
    const uint32_t type = nest.type();
    {
        const Decoded decoded = decode(type, octets);
        ASSERT_EQ(decoded.result, 1) << decoded.codes;
        ASSERT_EQ(decoded.consumed, octets.size());
        expect_written(type, decoded.value.get(), written);
        read(nest, decoded.value.get(), Order::forwards, random);
        expect_written(type, decoded.value.get(), written);
    }
    {
        const Value value = decode(type, octets).value;
        read(nest, value.get(), Order::backwards, random);
        expect_written(type, value.get(), written);
    }
    // Written when some of it was read, grown, and released when not all of it was.
    {
        const Feed feed = random() % 4 == 0 ? Feed::trickle : Feed::memory;
        const Value value = decode(type, octets, feed).value;
        read(nest, value.get(), Order::random, random, 2);
        if (random() % 2 == 0)
            expect_written(type, value.get(), written);
        if (is_list(core::row(type)))
            expect_growth(nest, value.get());
        else
            read(nest, value.get(), Order::random, random, 5);
    }
    ASSERT_TRUE(live_blocks() == before || !is_memory_watched());
}

std::string written_as(const Nest &nest) {
    return is_written_as_read(core::row(nest.type()))
               ? nest.octets()
               : encode(nest.type(), decode(nest.type(), nest.octets()).value.get()).octets;
}

Place any_place(Random &random) {
    return static_cast<Place>(random() % place_count);
}

// Calls look(chain, levels) with lists of all sizes in lists of all sizes.
template <class Look> void for_each_nest(Random &random, Look look) {
    for (const Chain &chain : chains()) {
        size_t count = 1;
        for (size_t level = 0; level < chain.lists.size(); ++level)
            count *= std::size(sizes);
        for (size_t i = 0; i < count; ++i) {
            std::vector<Nest::Level> levels;
            for (size_t rest = i; levels.size() < chain.lists.size(); rest /= std::size(sizes))
                levels.push_back({sizes[rest % std::size(sizes)], any_place(random)});
            look(chain, levels);
            if (testing::Test::HasFailure())
                return;
        }
    }
}

constexpr size_t some = 7; // one in so many: no divisor of how many nests there are of a chain

TEST(Nests, AreWrittenAndReadInAnyOrder) {
    Random random(1);
    size_t count = 0, turn = 0;
    for_each_nest(random, [&](const Chain &chain, const std::vector<Nest::Level> &levels) {
        // Around the outermost list there is only what others have too.
        const bool is_usual = !is_list(core::row(chain.type)) && !chain.keeps_octets();
        if (is_usual && turn++ % some != 0)
            return;
        const Nest nest(chain, levels);
        SCOPED_TRACE(nest.name());
        use(nest, nest.octets(), written_as(nest), random);
        ++count;
    });
    RecordProperty("nests", static_cast<int>(count));
    EXPECT_GT(chains().size(), 150u);
}

// Lists of indefinite length, of which the ends are found as they come.
TEST(Nests, OfIndefiniteLength) {
    Random random(2);
    size_t turn = 0;
    for_each_nest(random, [&](const Chain &chain, const std::vector<Nest::Level> &levels) {
        if (turn++ % some != 0)
            return;
        const Nest open(chain, levels, true), closed(chain, levels);
        SCOPED_TRACE(open.name());
        if (!chain.keeps_octets()) {
            use(closed, open.octets(), written_as(closed), random);
            return;
        }
        const Value value = decode(chain.type, open.octets()).value;
        const std::string written = encode(chain.type, value.get()).octets;
        const Value again = decode(chain.type, written).value;
        expect_written(chain.type, value.get(), written);
        expect_written(chain.type, again.get(), written);
    });
}

// Reads as much as memory allows; false when that is not all.
bool read_with_scarce_memory(const Nest &nest, Handle value, size_t level = 0) {
    const Handle list = list_of(nest, value, level);
    bool is_all = true;
    for (size_t index = nest.size(level); index-- > 0;) {
        Handle element = nullptr;
        const bool is_read = kovra_asn1_list_get(list, static_cast<int32_t>(index), &element) == 1;
        is_all &= is_read && (!nest.is_deep(level, index) || read_with_scarce_memory(nest, element, level + 1));
    }
    return is_all;
}

// Decodes, measures, writes, reads and copies as far as memory allows; false when something could not be done.
bool use_with_scarce_memory(const Nest &nest, const std::string &written, Value &out) {
    const uint32_t type = nest.type();
    const auto is_written = [&] {
        const Blob blob(kovra_asn1_mem_encode(type, out.get()));
        EXPECT_TRUE(blob == nullptr || text_of(blob.get()) == written);
        return blob != nullptr;
    };
    Handle value = nullptr;
    const bool is_decoded = kovra_asn1_mem_decode(nest.octets().data(), size_of(nest.octets()), type, &value) > 0;
    out = Value(type, value);
    EXPECT_EQ(is_decoded, value != nullptr);
    if (!is_decoded)
        return false;
    const int32_t length = kovra_asn1_length(type, value);
    const bool is_measured = length >= 0;
    EXPECT_TRUE(length == size_of(written) || !is_measured || !is_as_long_as_measured(core::row(type))) << length;
    const bool is_whole = is_written();
    const bool is_read = read_with_scarce_memory(nest, value);
    const bool is_whole_again = is_written();
    const Value copy(type, kovra_asn1_dupobject(type, value, nullptr));
    return is_measured && is_whole && is_read && is_whole_again && (copy || !is_written_as_read(core::row(type)));
}

// An allocation fails, once and from then on: a few of the first, of the last and of those between. What was decoded is
// whole as soon as there is memory again.
void fail_allocations(const Nest &nest, Random &random) {
    const std::string written = written_as(nest);
    Value value;
    int64_t count = 0;
    {
        const ScarceMemory plenty(INT64_MAX - 1);
        ASSERT_TRUE(use_with_scarce_memory(nest, written, value));
        count = ScarceMemory::asked();
    }
    value = Value();
    constexpr int64_t most = 4;
    for (int64_t turn = 0; turn < 3 * most && turn < count; ++turn) {
        const int64_t between = most + static_cast<int64_t>(random() % static_cast<uint64_t>(count));
        const int64_t good = turn < most       ? turn
                             : turn < 2 * most ? std::min(between, count - 1)
                                               : count - 1 - (turn - 2 * most);
        for (const bool fails_once : {false, true}) {
            SCOPED_TRACE(std::to_string(good) + " of " + std::to_string(count) + " allocations");
            const int64_t before = live_blocks();
            {
                const ScarceMemory scarce(good, fails_once);
                const bool is_done = use_with_scarce_memory(nest, written, value);
                ASSERT_TRUE(ScarceMemory::has_failed());
                // A copy that cannot be had anyway is not missed.
                ASSERT_FALSE(is_done && is_written_as_read(core::row(nest.type())));
            }
            if (value) {
                read(nest, value.get(), Order::random, random);
                expect_written(nest.type(), value.get(), written);
            }
            value = Value();
            ASSERT_EQ(live_blocks(), before);
        }
    }
}

TEST(Nests, SomeAllocationsFail) {
    if (!is_memory_watched())
        GTEST_SKIP() << "the libraries have an allocator of their own here";
    Random random(3);
    for (const Chain &chain : chains()) {
        constexpr std::array<size_t, most_levels> tallies[] = {{sizes[long_one], sizes[long_one], sizes[long_one]},
                                                               {sizes[long_one], 2, sizes[longest]},
                                                               {3, sizes[longest], 1}};
        for (const auto &tally : tallies) {
            std::vector<Nest::Level> levels;
            for (size_t i = 0; i < chain.lists.size(); ++i)
                levels.push_back({tally[i], any_place(random)});
            const Nest nest(chain, levels);
            SCOPED_TRACE(nest.name());
            fail_allocations(nest, random);
            if (HasFailure())
                return;
        }
    }
}

// Values that once were read beyond their memory, or could not be written.
TEST(Nests, LongListsInLongLists) {
    const struct {
        uint32_t type;
        std::vector<std::string> ways;
        std::vector<Nest::Level> levels;
    } rows[] = {
        {KOVRA_ASN1_TYPE_CERTIFICATE_POLICIES, {"", ".policyQualifiers"}, {{40, Place::all}, {40, Place::all}}},
        {KOVRA_ASN1_TYPE_CERTIFICATE_POLICIES, {"", ".policyQualifiers"}, {{41, Place::last}, {1000, Place::all}}},
        {KOVRA_ASN1_TYPE_CMS_SIGNED_DATA, {".signerInfos", ".signedAttrs"}, {{40, Place::all}, {40, Place::all}}},
        {KOVRA_ASN1_TYPE_CMS_SIGNED_DATA, {".signerInfos", ".signedAttrs"}, {{40, Place::all}, {300, Place::all}}},
        {KOVRA_ASN1_TYPE_CRL_DISTRIBUTION_POINTS,
         {"", ".cRLIssuer", ".directoryName.rdnSequence"},
         {{33, Place::last}, {34, Place::first}, {33, Place::all}}},
        {KOVRA_ASN1_TYPE_CRL_DISTRIBUTION_POINTS,
         {"", ".cRLIssuer", ".directoryName.rdnSequence"},
         {{33, Place::last}, {35, Place::edge}, {33, Place::all}}},
    };
    Random random(4);
    for (const auto &row : rows) {
        Chain chain = {row.type, {}};
        const core::Type *holder = &core::row(row.type);
        for (const std::string &way : row.ways) {
            const std::vector<HeldList> lists = lists_in(*holder);
            const auto found =
                std::find_if(lists.begin(), lists.end(), [&](const HeldList &list) { return list.name == way; });
            ASSERT_NE(found, lists.end()) << way;
            chain.lists.push_back(*found);
            holder = &member_of(*found->list);
        }
        const Nest nest(chain, row.levels, false, SIZE_MAX);
        SCOPED_TRACE(nest.name());
        use(nest, nest.octets(), nest.octets(), random);
        if (is_memory_watched())
            fail_allocations(nest, random);
    }
}

} // namespace
} // namespace kovra::test
