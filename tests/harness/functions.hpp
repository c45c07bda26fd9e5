// Every exported function that takes a value, and calls of it with values of every kind.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include "core/value.hpp"
#include "tests/asn1_testing.hpp"
#include "tests/harness/exports.hpp"
#include "tests/harness/samples.hpp"

namespace kovra::test {

using Handle = kovra_asn1_value *;

inline const core::Value *record_of(const kovra_asn1_value *handle) {
    return static_cast<const core::Value *>(handle);
}

// What a value is: its kind, and the table that it is a value of.
using Identity = std::tuple<core::Kind, const void *>;
Identity identity(const kovra_asn1_value *handle);

// Is it the root of its own memory, which nobody has taken over?
bool is_free(const kovra_asn1_value *handle);

// Values of every kind.
struct Kept {
    uint32_t type;
    std::string octets;
    Value value;
};
const std::vector<Kept> &pool();

// Numbers that are lengths, tags, indices or modes.
constexpr int32_t numbers[] = {0, 1, 4, 12, -1};

// What a call is made with besides the values, and what came of it.
struct Call {
    std::vector<kovra_asn1_value *> values;
    int32_t number = 0;
    Stream stream;
    Errors errors;
    std::vector<char> buffer = std::vector<char>(size_t{1} << 16);
    std::array<kovra_asn1_value *, 2> made = {}; // the result, and what was put into a place
    std::array<int32_t, 4> numbers = {};
};

// A function that takes values or makes one; each parameter is told by a letter: v a value, w one that may be changed,
// o the place of one, b a buffer, - anything else.
struct Function {
    const Export *row;
    std::string letters;

    [[nodiscard]] std::string name() const { return std::string(row->name); }
    [[nodiscard]] size_t values() const; // how many values it takes
    [[nodiscard]] bool may_change() const { return letters.find('w') != letters.npos; }
    // Returns an answer by which success and failure are told apart: that something was made is told by 1.
    int64_t operator()(Call &call) const;
};

const std::vector<Function> &functions();
bool releases(const Function &function);

// Calls with values of the pool (null: none) and a number, and releases what was made. What may be changed is a
// copy. `look` sees the call before that. Returns an answer by which success and failure are told apart.
int64_t call_with(const Function &function, const std::vector<const Kept *> &arguments, int32_t number = 0,
                  const std::function<void(const Call &)> &look = nullptr);

// The kinds of values that a function of one value does something with: those for which its answer is not that for
// no value.
const std::vector<Identity> &kinds_of(const Function &function);

// Hands a value to every function of one value that is for its kind and changes nothing.
void read_everything(kovra_asn1_value *value);
// The same with all values that it is made of.
void read_everything_within(kovra_asn1_value *value);

} // namespace kovra::test
