// Sequences of calls: handles of all kinds in one pool, who owns them, and arguments drawn from the input.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "fuzz/draw.hpp"
#include "tests/harness/exports.hpp"

namespace kovra::fuzz {

using test::HandleKind;

class Machine {
public:
    Machine() = default;
    Machine(const Machine &) = delete;
    // Releases everything, those who use others first.
    ~Machine();

    static constexpr size_t none = SIZE_MAX;

    // What an octet of the input says about a handle: the newest or oldest of the kind, any of any kind, none.
    size_t choose(HandleKind kind, uint8_t choice) const;
    void *handle(size_t index) const { return index == none ? nullptr : entries_[index].handle; }

    // A call gave a handle; what is borrowed belongs to the group of its owner.
    void add(HandleKind kind, void *handle, size_t owner = none);
    // A call made `owner` the owner of the group of another.
    void hand_over(size_t index, size_t owner);
    // A call released the handle, and its group with it.
    void remove_group(size_t index);
    size_t newest() const { return entries_.size() - 1; }
    bool is_full() const { return entries_.size() >= most_entries; }

    // Memory that lives as long as the machine.
    char *keep(std::string_view octets, size_t at_least);
    // Room for whatever a function without a size writes.
    static void *large_buffer();

private:
    static constexpr size_t most_entries = 1024;

    struct Entry {
        HandleKind kind;
        bool is_owner; // of its group: releasing it releases the group
        size_t group;
        void *handle;
    };

    std::vector<Entry> entries_;
    size_t groups_ = 0;
    std::vector<std::unique_ptr<char[]>> kept_;
};

} // namespace kovra::fuzz
