// `der`: the octets of JSON descriptions, as `json` prints them.

#include <memory>

#include "command.hpp"
#include "kovra/asn1.h"
#include "kovra/util.h"

namespace kovra::tool {

namespace {

struct Free {
    void operator()(kovra_json *value) const { kovra_json_free(value); }
    void operator()(kovra_data_blob *blob) const { kovra_data_blob_free(blob); }
};

bool is_space(char character) {
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

// Where the next text begins: blanks and lines that begin with # are passed over.
size_t text_begin(std::string_view text, size_t at) {
    if (at == 0 && text.starts_with("\xEF\xBB\xBF"))
        at = 3;
    for (;;) {
        while (at < text.size() && is_space(text[at]))
            ++at;
        if (at == text.size() || text[at] != '#')
            return at;
        at = std::min(text.find('\n', at), text.size());
    }
}

// Where the text that begins here ends: behind the bracket that closes its first one. What is no object or array goes
// to the end, for the parser to refuse.
size_t text_end(std::string_view text, size_t at) {
    size_t depth = 0;
    bool is_string = false;
    for (; at < text.size(); ++at) {
        const char character = text[at];
        if (is_string) {
            if (character == '\\')
                ++at;
            else if (character == '"')
                is_string = false;
        } else if (character == '"') {
            is_string = true;
        } else if (character == '{' || character == '[') {
            ++depth;
        } else if ((character == '}' || character == ']') && (depth == 0 || --depth == 0)) {
            return at + 1;
        }
    }
    return text.size();
}

Trouble trouble(size_t octet, const char *text) {
    return {octet, {{KOVRA_ERR_BAD_ARGUMENT, text, "kovra-asn1"}}};
}

// Prints the encoding of one text; the octet and what is wrong there when it has none.
void encode(Session &session, std::string_view all, size_t begin, size_t end, const Message &place) {
    int64_t offset = 0;
    const std::unique_ptr<kovra_json, Free> value(
        kovra_json_parse(all.data() + begin, static_cast<int64_t>(end - begin), &offset));
    if (value == nullptr)
        return session.report(place, trouble(begin + static_cast<size_t>(offset), "not JSON"));
    const std::unique_ptr<kovra_data_blob, Free> encoding(kovra_asn1_encodejson(value.get()));
    if (encoding == nullptr)
        return session.report(place, trouble(begin, "not the description of a value"));
    session.out.put_data({reinterpret_cast<const char *>(kovra_data_blob_getdata(encoding.get())),
                          static_cast<size_t>(kovra_data_blob_getlength(encoding.get()))});
}

} // namespace

void der(Session &session) {
    session.for_each_file([&](std::vector<uint8_t> &&octets, const Message &file) {
        const std::string_view text(reinterpret_cast<const char *>(octets.data()), octets.size());
        size_t begin = text_begin(text, 0);
        size_t number = 0;
        do {
            const size_t end = text_end(text, begin);
            encode(session, text, begin, end, Place{file, ++number}.text());
            begin = text_begin(text, end);
        } while (begin < text.size() && !session.out.is_over());
    });
}

} // namespace kovra::tool
