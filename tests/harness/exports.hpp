// Every exported function, what its parameters are, and a way to call it with arguments that are known only when the
// program runs. There is a row for each name in tests/data/exported.txt.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace kovra::test {

enum class HandleKind : uint8_t {
    value,
    bitset,
    biginteger,
    blob,
    context,
    json,
    stream,
    time,
    text,
    any_context,
    string_context,
};

// Does nothing with null. `type` is what a value is said to be.
void release(HandleKind kind, void *handle, uint32_t type);

// What is passed, or given back.
enum class Form : uint8_t {
    nothing,
    integer,
    natural, // a number without a sign
    real,
    handle,
    text,      // of the function's when it is a result
    new_text,  // to be released by kovra_free
    octets,    // constant
    room,      // octets that are written; as a result memory to be released by kovra_free
    positions, // constant integers
    place,     // of a number, or of a pointer to what is constant
    place_of_handle,
    place_of_memory, // to be released by kovra_free
    other,
};

struct Parameter {
    Form form;
    HandleKind kind = {};    // of a handle, or of what is put into a place
    bool is_constant = true; // a handle whose object is not changed
    uint8_t size = 0;        // of a number, or of a place; in octets

    [[nodiscard]] bool is_handle(HandleKind wanted) const { return form == Form::handle && kind == wanted; }
};

union Word {
    void *pointer = nullptr;
    int64_t integer;
    double real;
};

struct Export {
    std::string_view name;
    std::span<const Parameter> parameters;
    Parameter result;
    Word (*call)(const Word *arguments); // a word for each parameter
};

// Releases what a call gave back and what it put into the places among its arguments; what is borrowed stays.
void release_given(const Export &row, const Word *arguments, const Word &result);

// In the order of the list.
std::span<const Export> exports();

} // namespace kovra::test
