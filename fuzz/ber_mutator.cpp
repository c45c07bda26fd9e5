// The mutator of targets over elements. It changes a tree and writes it again, so that mostly the lengths around a
// change are right and what is behind it is reached.
#include <algorithm>
#include <cstring>
#include <iterator>
#include <random>

#include "fuzz/ber_tree.hpp"
#include "fuzz/fuzzing.hpp"

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t max_size);

namespace kovra::fuzz {

namespace {

// A node by the list it is in.
struct Place {
    Nodes *list;
    size_t index;
    Node &node() const { return (*list)[index]; }
};

class Mutator {
public:
    Mutator(unsigned seed, size_t max_size) : random_(seed), max_size_(max_size) {}

    size_t below(size_t limit) { return limit == 0 ? 0 : random_() % limit; }
    bool one_in(size_t n) { return below(n) == 0; }

    Place pick(Nodes &nodes) {
        std::vector<Place> places;
        gather(nodes, places);
        return places[below(places.size())];
    }

    void change(Nodes &nodes) {
        if (nodes.empty()) {
            nodes.push_back(fresh());
            return;
        }
        using Change = void (Mutator::*)(Nodes &, Place);
        constexpr Change changes[] = {
            &Mutator::flip_form, &Mutator::retag,     &Mutator::relength,  &Mutator::relength,  &Mutator::toggle_end,
            &Mutator::wrap,      &Mutator::unwrap,    &Mutator::duplicate, &Mutator::remove,    &Mutator::swap,
            &Mutator::splice,    &Mutator::recontent, &Mutator::recontent, &Mutator::recontent, &Mutator::segment,
            &Mutator::refill,    &Mutator::insert,    &Mutator::nest,      &Mutator::lie,       &Mutator::repeat,
            &Mutator::repeat,    &Mutator::enclose};
        (this->*changes[below(std::size(changes))])(nodes, pick(nodes));
    }

    void splice_from(Nodes &nodes, Nodes &others) {
        if (nodes.empty() || others.empty())
            return;
        const Node copy = pick(others).node();
        const Place place = pick(nodes);
        if (one_in(2))
            place.node() = copy;
        else
            place.list->insert(place.list->begin() + static_cast<std::ptrdiff_t>(place.index), copy);
    }

private:
    static void gather(Nodes &nodes, std::vector<Place> &out) {
        for (size_t i = 0; i < nodes.size(); ++i) {
            out.push_back({&nodes, i});
            gather(nodes[i].inside, out);
        }
    }

    char octet() { return static_cast<char>(random_()); }

    std::string any_identifier() {
        constexpr uint8_t common[] = {0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x0A, 0x0C, 0x13, 0x16, 0x17, 0x18,
                                      0x1A, 0x1C, 0x1E, 0x24, 0x23, 0x30, 0x30, 0x31, 0x80, 0x81, 0x82, 0xA0,
                                      0xA0, 0xA1, 0xA2, 0xA3, 0xA4, 0x85, 0x86, 0x87, 0x60, 0xC1};
        switch (below(8)) {
        case 0:
            return {octet()};
        case 1: {
            std::string long_form(1, static_cast<char>(0x1F | (octet() & 0xE0)));
            for (size_t i = below(5); i > 0; --i)
                long_form += static_cast<char>(0x80 | octet());
            return long_form + static_cast<char>(octet() & 0x7F);
        }
        default:
            return {static_cast<char>(common[below(std::size(common))])};
        }
    }

    std::string content_for(char identifier) {
        using std::string_literals::operator""s;
        static const std::string integers[] = {"\0"s,
                                               "\x7F"s,
                                               "\x80"s,
                                               "\xFF"s,
                                               "\1"s,
                                               "\0\x80"s,
                                               "\xFF\x7F"s,
                                               "\0\0"s,
                                               ""s,
                                               "\x80\0\0\0"s,
                                               "\x7F\xFF\xFF\xFF"s,
                                               "\0\xFF\xFF\xFF\xFF"s};
        static const std::string bits[] = {"\0"s,     "\7\x80"s, "\0\xFF"s, "\7"s,
                                           "\x08\0"s, ""s,       "\1\xFF"s, "\4\xF7\x70"s};
        static const std::string oids[] = {"\x2A\x03"s,
                                           "\x55\x1D\x0F"s,
                                           "\x55\x04\x03"s,
                                           "\x80\1"s,
                                           "\x2A\x86"s,
                                           ""s,
                                           "\x88\x37"s,
                                           "\x2A\x81\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x7F"s,
                                           "\x2A\x86\x48\x86\xF7\x0D\1\1\1"s};
        static const std::string times[] = {"500101000000Z"s,       "491231235959Z"s,   "20240229120000Z"s,
                                            "20240101000000.5Z"s,   "2401010000Z"s,     "240101000000+0100"s,
                                            "20240101000000-1200"s, "15820101000000Z"s, "99991231235959Z"s,
                                            "20161231235960Z"s,     "2024010124Z"s,     "20240101.05"s};
        static const std::string booleans[] = {"\xFF"s, "\0"s, "\1"s, "\xFF\xFF"s, ""s};
        switch (identifier & 0x1F) {
        case 1:
            return booleans[below(std::size(booleans))];
        case 2:
        case 10:
            return integers[below(std::size(integers))];
        case 3:
            return bits[below(std::size(bits))];
        case 6:
        case 13:
            return oids[below(std::size(oids))];
        case 23:
        case 24:
            return times[below(std::size(times))];
        default: {
            std::string octets(below(10), '\0');
            for (char &one : octets)
                one = one_in(3) ? octet() : static_cast<char>('a' + below(26));
            return octets;
        }
        }
    }

    Node fresh() {
        Node node;
        node.identifier = any_identifier();
        if (!node.is_constructed())
            node.content = content_for(node.identifier[0]);
        return node;
    }

    void flip_form(Nodes &, Place place) {
        if (place.node().is_element())
            place.node().identifier[0] = static_cast<char>(place.node().identifier[0] ^ 0x20);
    }

    void retag(Nodes &, Place place) { place.node().identifier = any_identifier(); }

    void relength(Nodes &, Place place) {
        constexpr size_t paddings[] = {1, 1, 2, 3, 4, 8, 126};
        place.node().form = one_in(4) ? Node::Length::shortest : Node::Length::padded;
        place.node().padding = paddings[below(std::size(paddings))];
    }

    void toggle_end(Nodes &, Place place) {
        Node &node = place.node();
        node.form = node.form == Node::Length::indefinite ? Node::Length::shortest : Node::Length::indefinite;
    }

    void lie(Nodes &, Place place) {
        using std::string_literals::operator""s;
        static const std::string lengths[] = {"\x80"s,
                                              "\xFF"s,
                                              "\x84\x7F\xFF\xFF\xFF"s,
                                              "\x84\x7F\xFF\xFF\xF0"s,
                                              "\x84\x80\0\0\0"s,
                                              "\x84\xFF\xFF\xFF\xFF"s,
                                              "\x85\1\0\0\0\0"s,
                                              "\x82\x01\0"s,
                                              "\x88\0\0\0\0\0\0\0\1"s};
        Node &node = place.node();
        node.form = Node::Length::given;
        if (node.length.empty() || one_in(2))
            node.length = one_in(2)
                              ? lengths[below(std::size(lengths))]
                              : length_octets(write_nodes(node.inside).size() + node.content.size() + below(5) - 2);
    }

    void wrap(Nodes &, Place place) {
        constexpr uint8_t around[] = {0x30, 0x31, 0xA0, 0xA1, 0xA3, 0x24, 0x04, 0x23, 0x03};
        Node outer;
        outer.identifier = {static_cast<char>(around[below(std::size(around))])};
        if (outer.identifier == "\x03")
            outer.lead = std::string(1, '\0');
        if (one_in(2) && outer.is_constructed())
            outer.form = Node::Length::indefinite;
        outer.inside.push_back(std::move(place.node()));
        place.node() = std::move(outer);
    }

    void unwrap(Nodes &, Place place) {
        Nodes inside = std::move(place.node().inside);
        const auto at = place.list->erase(place.list->begin() + static_cast<std::ptrdiff_t>(place.index));
        place.list->insert(at, std::make_move_iterator(inside.begin()), std::make_move_iterator(inside.end()));
    }

    void duplicate(Nodes &, Place place) {
        const Node copy = place.node();
        place.list->insert(place.list->begin() + static_cast<std::ptrdiff_t>(place.index), copy);
    }

    // So that there are 2 to 200 of it, as far as there is room: before it, where the last may then be made another
    // one, or behind it.
    void repeat(Nodes &nodes, Place place) {
        constexpr size_t most = 200;
        const Node copy = place.node();
        const size_t used = write_nodes(nodes).size();
        const size_t room = used < max_size_ ? (max_size_ - used) / (write_node(copy).size() + 1) : 0;
        const size_t count = std::min(room, 1 + below(most - 1));
        place.list->insert(place.list->begin() + static_cast<std::ptrdiff_t>(place.index + below(2)), count, copy);
    }

    // All elements from this one on in an element like it: a list becomes a list of one list.
    void enclose(Nodes &, Place place) {
        const auto begin = place.list->begin() + static_cast<std::ptrdiff_t>(place.index);
        Node outer;
        outer.identifier = place.node().is_constructed() ? place.node().identifier : "\x30";
        outer.inside.assign(std::make_move_iterator(begin), std::make_move_iterator(place.list->end()));
        place.list->erase(begin, place.list->end());
        place.list->push_back(std::move(outer));
    }

    void remove(Nodes &, Place place) {
        place.list->erase(place.list->begin() + static_cast<std::ptrdiff_t>(place.index));
    }

    void swap(Nodes &, Place place) { std::swap(place.node(), (*place.list)[below(place.list->size())]); }

    void splice(Nodes &nodes, Place place) {
        const Node copy = pick(nodes).node();
        place.node() = copy;
    }

    void insert(Nodes &, Place place) {
        place.list->insert(place.list->begin() + static_cast<std::ptrdiff_t>(place.index + below(2)), fresh());
    }

    // The mutator of the fuzzer, which knows what the code compares with.
    void recontent(Nodes &, Place place) {
        Node &node = place.node();
        std::string &octets = node.content;
        const size_t size = octets.size();
        if (!node.inside.empty() || size > max_size_)
            return;
        octets.resize(size + 16);
        octets.resize(LLVMFuzzerMutate(reinterpret_cast<uint8_t *>(octets.data()), size, octets.size()));
    }

    void refill(Nodes &, Place place) {
        Node &node = place.node();
        if (!node.is_element() || node.is_constructed())
            return;
        node.inside.clear();
        node.lead.clear();
        node.content = content_for(node.identifier[0]);
    }

    // A string as segments.
    void segment(Nodes &, Place place) {
        Node &node = place.node();
        if (!node.is_element() || node.is_constructed())
            return;
        std::string content = node.lead + (node.inside.empty() ? node.content : write_nodes(node.inside));
        const bool is_bits = (node.identifier[0] & 0x1F) == 3;
        const std::string unused = is_bits ? content.substr(0, 1) : "";
        content.erase(0, unused.size());
        node.inside.clear();
        node.lead.clear();
        node.content.clear();
        node.identifier[0] = static_cast<char>(node.identifier[0] | 0x20);
        node.form = one_in(2) ? Node::Length::indefinite : Node::Length::shortest;
        do {
            Node part;
            part.identifier = is_bits ? "\x03" : "\x04";
            const size_t size = std::min(content.size(), below(content.size() + 2));
            part.content =
                (is_bits ? (size == content.size() ? unused : std::string(1, '\0')) : "") + content.substr(0, size);
            content.erase(0, size);
            node.inside.push_back(std::move(part));
        } while (!content.empty() && node.inside.size() < 20);
    }

    // As deep as there is room.
    void nest(Nodes &, Place place) {
        constexpr uint8_t around[] = {0x30, 0x31, 0xA0, 0x24, 0x23};
        const auto identifier = static_cast<char>(around[below(std::size(around))]);
        std::string octets = write_node(place.node());
        const bool is_indefinite = one_in(2);
        const size_t levels = one_in(4) ? max_size_ : below(60);
        for (size_t level = 0; level < levels && octets.size() + 8 < max_size_ / 2; ++level)
            octets = is_indefinite ? std::string{identifier, '\x80'} + octets + std::string(2, '\0')
                                   : identifier + length_octets(octets.size()) + octets;
        Node node;
        node.content = std::move(octets);
        place.node() = std::move(node);
    }

    std::minstd_rand random_;
    size_t max_size_;
};

size_t put(const std::string &octets, uint8_t *data, size_t begin, size_t max_size) {
    const size_t size = std::min(octets.size(), max_size - begin);
    std::copy_n(octets.begin(), size, data + begin);
    return begin + size;
}

std::string_view view(const uint8_t *data, size_t begin, size_t size) {
    return begin < size ? std::string_view(reinterpret_cast<const char *>(data) + begin, size - begin) : "";
}

} // namespace

} // namespace kovra::fuzz

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t max_size, unsigned seed) {
    using namespace kovra::fuzz;
    Mutator mutator(seed, max_size);
    const size_t begin = elements_begin(data, size);
    if (begin >= size || mutator.one_in(8))
        return LLVMFuzzerMutate(data, size, max_size);
    Nodes nodes = read_nodes(view(data, begin, size));
    do
        mutator.change(nodes);
    while (mutator.one_in(3));
    return put(write_nodes(nodes), data, begin, max_size);
}

extern "C" size_t LLVMFuzzerCustomCrossOver(const uint8_t *data, size_t size, const uint8_t *other, size_t other_size,
                                            uint8_t *out, size_t max_size, unsigned seed) {
    using namespace kovra::fuzz;
    Mutator mutator(seed, max_size);
    const size_t begin = elements_begin(data, size);
    const size_t other_begin = elements_begin(other, other_size);
    if (begin > std::min(size, max_size))
        return 0;
    std::copy_n(data, begin, out);
    Nodes nodes = read_nodes(view(data, begin, size));
    Nodes others = read_nodes(view(other, other_begin, other_size));
    mutator.splice_from(nodes, others);
    return put(write_nodes(nodes), out, begin, max_size);
}
