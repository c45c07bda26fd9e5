// Text that may be printed as it is, and text that may not. Names of files, labels, strings and values of options can
// hold anything, and a terminal acts on some of it: only the types here reach it, and none is made of a plain string
// without being escaped.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace kovra::tool {

// How text from outside is written. What is not harmless (characters.hpp), and octets that are no UTF-8, are escaped in
// any form.
enum class Form : uint8_t {
    plain,  // as in C: \n, \x1b, \u{202e}; backslashes stay, of which names of files are full
    quoted, // the same, and quotation marks and backslashes too
    name,   // the value of an attribute in RFC 4514: `\` before a special character, `\` and two hexadecimal digits for
            // each octet of what is escaped otherwise
    json,   // as in strings of JSON, of which quotation marks and backslashes are taken to be escaped already
};

// Text that harms no terminal: a literal, or a view of what was escaped.
class Harmless {
public:
    constexpr Harmless() = default;
    // NOLINTNEXTLINE(google-explicit-constructor)
    consteval Harmless(const char *literal) : text_(literal) {}

    [[nodiscard]] constexpr std::string_view view() const { return text_; }
    [[nodiscard]] constexpr size_t size() const { return text_.size(); }
    [[nodiscard]] constexpr bool empty() const { return text_.empty(); }
    friend constexpr bool operator==(Harmless left, Harmless right) { return left.text_ == right.text_; }

private:
    friend class Pieces;
    friend class Message;
    explicit constexpr Harmless(std::string_view text) : text_(text) {}

    std::string_view text_;
};

// Text of any origin, and how it is to be written.
class Outside {
public:
    static constexpr size_t all = SIZE_MAX;

    // Only the characters that begin in the first `shown` octets are written.
    explicit Outside(std::string_view octets, Form form = Form::plain, size_t shown = all)
        : octets_(octets), form_(form), end_(shown < octets.size() ? shown : octets.size()) {}

private:
    friend class Pieces;

    std::string_view octets_;
    Form form_;
    size_t end_;
};

// What is written of it, piece after piece.
class Pieces {
public:
    explicit Pieces(const Outside &text) : text_(text) {}

    // The next piece, valid until the one after; false behind the last one.
    bool next(Harmless &piece);
    // The octets that the pieces so far stand for.
    [[nodiscard]] size_t taken() const { return at_; }

private:
    std::string_view escaped(uint32_t code, size_t size);

    const Outside &text_;
    size_t at_ = 0;
    char escape_[16]; // of one character
};

// Harmless text that is put together while the tool runs.
class Message {
public:
    Message() = default;
    // NOLINTNEXTLINE(google-explicit-constructor)
    Message(Harmless text) : text_(text.view()) {}
    explicit Message(const Outside &text) { *this += text; }

    // A view, valid as long as the message stays as it is.
    // NOLINTNEXTLINE(google-explicit-constructor)
    operator Harmless() const { return Harmless(std::string_view(text_)); }
    [[nodiscard]] size_t size() const { return text_.size(); }
    [[nodiscard]] bool empty() const { return text_.empty(); }

    Message &operator+=(Harmless text) {
        text_ += text.view();
        return *this;
    }
    Message &operator+=(const Outside &text);
    friend Message operator+(Message left, Harmless right) { return std::move(left += right); }
    friend Message operator+(Message left, const Outside &right) { return std::move(left += right); }

private:
    std::string text_;
};

Message decimal(uint64_t number);
Message blanks(size_t count);

} // namespace kovra::tool
