#include "fuzz/machine.hpp"

#include <algorithm>
#include <cstring>

#include "kovra/asn1_types.h"

namespace kovra::fuzz {

size_t Machine::choose(HandleKind kind, uint8_t choice) const {
    constexpr uint8_t oldest = 0x40, any = 0x80, null = 0xF0;
    if (choice >= null || entries_.empty())
        return none;
    if (choice >= any)
        return entries_.size() - 1 - (choice - any) % entries_.size();
    const auto is_of_kind = [kind](const Entry &entry) { return entry.kind == kind; };
    const auto count = static_cast<size_t>(std::count_if(entries_.begin(), entries_.end(), is_of_kind));
    if (count == 0)
        return none;
    size_t wanted = choice < oldest ? count - 1 - choice % count : (choice - oldest) % count;
    for (size_t i = 0;; ++i)
        if (is_of_kind(entries_[i]) && wanted-- == 0)
            return i;
}

void Machine::add(HandleKind kind, void *handle, size_t owner) {
    if (handle == nullptr)
        return;
    const bool is_owner = owner == none;
    entries_.push_back({kind, is_owner, is_owner ? groups_++ : entries_[owner].group, handle});
}

void Machine::hand_over(size_t index, size_t owner) {
    const size_t from = entries_[index].group;
    const size_t to = entries_[owner].group;
    check(entries_[index].is_owner && from != to, "only what is nobody's is taken over");
    entries_[index].is_owner = false;
    for (Entry &entry : entries_)
        if (entry.group == from)
            entry.group = to;
}

void Machine::remove_group(size_t index) {
    const size_t group = entries_[index].group;
    std::erase_if(entries_, [group](const Entry &entry) { return entry.group == group; });
}

char *Machine::keep(std::string_view octets, size_t at_least) {
    const size_t size = std::max(octets.size(), at_least);
    kept_.emplace_back(new char[size]());
    if (!octets.empty())
        std::memcpy(kept_.back().get(), octets.data(), octets.size());
    return kept_.back().get();
}

void *Machine::large_buffer() {
    static char buffer[1 << 20];
    return buffer;
}

Machine::~Machine() {
    // A value is released by its real kind, whatever type is named, but for those without a record.
    const auto release = [&](size_t index) {
        test::release(entries_[index].kind, entries_[index].handle,
                      static_cast<uint32_t>(6 + index % (KOVRA_ASN1_TYPE_COUNT - 6)));
    };
    // Values may use streams. Releasing what is borrowed does nothing as long as its owner is there.
    for (const bool is_owner : {false, true})
        for (size_t i = 0; i < entries_.size(); ++i)
            if (entries_[i].is_owner == is_owner && entries_[i].kind != HandleKind::stream)
                release(i);
    for (size_t i = 0; i < entries_.size(); ++i)
        if (entries_[i].kind == HandleKind::stream)
            release(i);
}

} // namespace kovra::fuzz
