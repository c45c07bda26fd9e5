// `json` prints the JSON description of an encoding while it walks through it; `der` makes the octets of one again.

#include <cstring>
#include <utility>

#include "command.hpp"
#include "element.hpp"
#include "kovra/asn1.h"
#include "kovra/util.h"

namespace kovra::tool {

namespace {

// As the library prints: deeper levels are indented no further.
constexpr size_t deepest_indent = 64;

class JsonWriter {
public:
    JsonWriter(std::string_view octets, int indent, Output &out)
        : octets_(reinterpret_cast<const uint8_t *>(octets.data())), size_(octets.size()), indent_(indent), out_(out) {}

    // Prints the description of the element that begins at `position`, and sets it behind it. The fault, with
    // `position` where it is, if there is one.
    Fault run(size_t &position) {
        size_t end = 0;
        if (const Fault fault = element_end(octets_, position, size_, end); fault != nullptr)
            return fault;
        const Fault fault = walk(position, end);
        out_.put('\n');
        return fault;
    }

private:
    struct Frame {
        bool is_tagged; // one value, not the items of an array
        bool is_first = true;
    };

    void new_line(size_t level) {
        if (indent_ == 0)
            return;
        out_.put('\n');
        out_.pad((level < deepest_indent ? level : deepest_indent) * static_cast<size_t>(indent_));
    }
    void member(const char *name, size_t level, bool is_first = false) {
        if (!is_first)
            out_.put(',');
        new_line(level);
        out_.put('"');
        out_.put(name);
        out_.put(indent_ == 0 ? "\":" : "\": ");
    }

    // Levels of text: an object in an array stands two deeper than the object that has the array, in a tag one.
    Fault walk(size_t &position, size_t end) {
        OpenElements open(end);
        std::vector<Frame> frames;
        size_t level = 0;
        do {
            if (!frames.empty() && !frames.back().is_tagged) {
                if (!std::exchange(frames.back().is_first, false))
                    out_.put(',');
                new_line(level);
            }
            Header header;
            if (const Fault fault = read_header(octets_, position, open.limit(), header); fault != nullptr)
                return fault;
            const size_t content = position + header.size;
            if (header.is_end_of_contents())
                return "end-of-contents where a value should stand";
            const bool is_list = header.is_universal(16) || header.is_universal(17);
            if (is_list || is_explicit_tag(header, content)) {
                out_.put('{');
                member("type", level + 1, true);
                begin(header, is_list, level + 1);
                open.enter(header, content);
                frames.push_back({!is_list});
                level += is_list ? 2 : 1;
                position = content;
            } else if (const Fault fault = leaf(position, header, open.limit(), level); fault != nullptr) {
                return fault;
            }
            // What ends here is closed, each with what it opened.
            for (;;) {
                if (open.ends_at(position)) {
                    open.leave();
                } else if (open.is_indefinite() && position + 2 <= open.limit() && octets_[position] == 0 &&
                           octets_[position + 1] == 0) {
                    open.leave();
                    position += 2;
                } else {
                    break;
                }
                const Frame frame = frames.back();
                frames.pop_back();
                level -= frame.is_tagged ? 1 : 2;
                if (!frame.is_tagged) {
                    if (!frame.is_first)
                        new_line(level + 1);
                    out_.put(']');
                }
                new_line(level);
                out_.put('}');
            }
        } while (open.depth() != 0 && !out_.is_closed());
        return nullptr;
    }

    void begin(const Header &header, bool is_list, size_t level) {
        if (is_list) {
            out_.put(header.tag == 16 ? "\"SEQUENCE\"" : "\"SETOF\"");
            member("value", level);
            out_.put('[');
            return;
        }
        static constexpr const char *classes[] = {"UNIVERSAL", "APPLICATION", "CONTEXT", "PRIVATE"};
        out_.put("\"TAGGEDTYPE\"");
        member("class", level);
        out_.put('"');
        out_.put(classes[header.tag_class >> 6]);
        out_.put('"');
        member("number", level);
        out_.put(std::to_string(header.tag));
        member("explicit", level);
        out_.put("true");
        member("value", level);
    }

    // A constructed value of another class whose content is just one element.
    bool is_explicit_tag(const Header &header, size_t content) const {
        size_t end = 0;
        if (header.tag_class == 0 || !header.is_constructed || header.is_indefinite || header.length == 0)
            return false;
        const size_t limit = content + header.length;
        Header inner;
        return read_header(octets_, content, limit, inner) == nullptr && !inner.is_end_of_contents() &&
               element_end(octets_, content, limit, end) == nullptr && end == limit;
    }

    // A value without members. The two kinds that long lists are full of are printed here, the others by the library.
    Fault leaf(size_t &position, const Header &header, size_t limit, size_t level) {
        size_t end = 0;
        if (const Fault fault = element_end(octets_, position, limit, end); fault != nullptr)
            return fault;
        const uint8_t *content = octets_ + position + header.size;
        if (header.is_universal(2) && header.length != 0) {
            out_.put('{');
            member("type", level + 1, true);
            out_.put("\"INTEGER\"");
            member("value", level + 1);
            out_.put('"');
            out_.put_hex({content, header.length});
            out_.put('"');
            new_line(level);
            out_.put('}');
        } else if (!put_plain_time(header, content, level) && !put_by_library(position, end, level)) {
            return "the value is not one of its type";
        }
        position = end;
        return nullptr;
    }

    bool put_plain_time(const Header &header, const uint8_t *text, size_t level) {
        int fields[6];
        if (!read_plain_time(header, text, fields))
            return false;
        out_.put('{');
        member("type", level + 1, true);
        out_.put("\"UTCTIME\"");
        member("value", level + 1);
        out_.put('{');
        static constexpr const char *names[] = {"year", "month", "day", "hour", "minute", "second"};
        for (int i = 0; i < 6; ++i) {
            member(names[i], level + 2, i == 0);
            put_number(fields[i]);
        }
        member("ns", level + 2);
        out_.put('0');
        member("utc", level + 2);
        out_.put("true");
        new_line(level + 1);
        out_.put('}');
        new_line(level);
        out_.put('}');
        return true;
    }

    void put_number(int number) {
        char digits[4];
        size_t begin = sizeof digits;
        do
            digits[--begin] = static_cast<char>('0' + number % 10);
        while ((number /= 10) != 0);
        out_.put(std::string_view(digits + begin, sizeof digits - begin));
    }

    bool put_by_library(size_t begin, size_t end, size_t level) {
        kovra_json *json = kovra_asn1_tojson(octets_ + begin, static_cast<int32_t>(end - begin));
        int64_t length = 0;
        char *text = kovra_json_print(json, indent_, &length);
        kovra_json_free(json);
        if (text == nullptr)
            return false;
        std::string_view rest(text, static_cast<size_t>(length));
        for (size_t line = rest.find('\n'); line != std::string_view::npos; line = rest.find('\n')) {
            out_.put(rest.substr(0, line));
            new_line(level);
            rest.remove_prefix(line + 1);
        }
        out_.put(rest);
        kovra_free(text);
        return true;
    }

    const uint8_t *octets_;
    size_t size_;
    int indent_;
    Output &out_;
};

// The texts of JSON values that stand one after another, or as the items of one array.
std::vector<std::string_view> split_json(std::string_view text) {
    std::vector<std::string_view> values;
    size_t depth = 0;
    size_t begin = 0;
    bool in_string = false;
    for (size_t i = 0; i < text.size(); ++i) {
        const char character = text[i];
        if (in_string) {
            if (character == '\\')
                ++i;
            else if (character == '"')
                in_string = false;
            continue;
        }
        if (character == '"') {
            in_string = true;
        } else if (character == '{' || character == '[') {
            ++depth;
        } else if ((character == '}' || character == ']') && depth != 0 && --depth == 0) {
            values.push_back(text.substr(begin, i + 1 - begin));
            begin = i + 1;
        }
    }
    const std::string_view rest = text.substr(begin);
    if (rest.find_first_not_of(" \t\r\n") != std::string_view::npos || values.empty())
        values.push_back(rest);
    return values;
}

bool append_encoding(const kovra_json *json, std::string &out) {
    if (kovra_json_gettype(json) == KOVRA_JSON_ARRAY) {
        for (int32_t i = 0; i < kovra_json_getarraysize(json); ++i)
            if (!append_encoding(kovra_json_getarrayitem(json, i), out))
                return false;
        return true;
    }
    kovra_data_blob *encoding = kovra_asn1_encodejson(json);
    if (encoding == nullptr)
        return false;
    out.append(reinterpret_cast<const char *>(kovra_data_blob_getdata(encoding)),
               static_cast<size_t>(kovra_data_blob_getlength(encoding)));
    kovra_data_blob_free(encoding);
    return true;
}

} // namespace

Status json(const Options &options, Output &out) {
    return for_each_item(options, [&](const Item &item, std::string_view file, size_t number, size_t count) {
        JsonWriter writer(item.octets, options.indent, out);
        size_t position = 0;
        do {
            if (const Fault fault = writer.run(position); fault != nullptr) {
                report(options, {file, count > 1 ? number : 0, position, fault});
                return Status::malformed;
            }
        } while (position < item.octets.size() && !out.is_closed());
        return Status::good;
    });
}

Status der(const Options &options, Output &out) {
    Status status = Status::good;
    std::vector<std::string> files = options.files;
    if (files.empty())
        files.emplace_back("-");
    for (const std::string &file : files) {
        std::string text;
        if (!read_file(file, text)) {
            status = worse(status, Status::io);
            continue;
        }
        std::string octets;
        for (const std::string_view value : split_json(text)) {
            const auto begin = static_cast<size_t>(value.data() - text.data());
            int64_t offset = 0;
            kovra_json *json = kovra_json_parse(value.data(), static_cast<int64_t>(value.size()), &offset);
            const bool is_good = json != nullptr && append_encoding(json, octets);
            if (!is_good) {
                report(options, {file, 0, begin + static_cast<size_t>(json == nullptr ? offset : 0),
                                 json == nullptr ? "not JSON" : "not the description of a value"});
                status = worse(status, Status::malformed);
            }
            kovra_json_free(json);
            if (!is_good)
                break;
        }
        if (options.pem_label.empty()) {
            out.put(octets);
            continue;
        }
        char *pem =
            kovra_pemencode(octets.data(), static_cast<int32_t>(octets.size()), options.pem_label.c_str(), nullptr);
        if (pem != nullptr)
            out.put(pem);
        kovra_free(pem);
    }
    return status;
}

} // namespace kovra::tool
