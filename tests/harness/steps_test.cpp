// Calls of exported functions one after another, as tests/data/steps.txt has them: what they give, and that nothing is
// lost or broken when any of their allocations fails.
#include <algorithm>
#include <deque>
#include <map>
#include <set>

#include "tests/failing_memory.hpp"
#include "tests/harness/functions.hpp"
#include "tests/notation.hpp"

namespace kovra::test {
namespace {

std::string trimmed(std::string text) {
    text.erase(0, text.find_first_not_of(' '));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

// What stands between commas that are neither in brackets nor in quotation marks.
std::vector<std::string> split(const std::string &text) {
    std::vector<std::string> found(text.empty() ? 0 : 1);
    char quote = '\0';
    int depth = 0;
    for (const char c : text) {
        if (quote != '\0')
            quote = c == quote ? '\0' : quote;
        else if (c == '"' || c == '\'')
            quote = c;
        else
            depth += c == '(' || c == '[' ? 1 : c == ')' || c == ']' ? -1 : 0;
        if (c == ',' && depth == 0 && quote == '\0')
            found.emplace_back();
        else
            found.back() += c;
    }
    std::transform(found.begin(), found.end(), found.begin(), trimmed);
    return found;
}

// "TYPE: notation"?
bool is_value(const std::string &text) {
    const size_t digits = text.find_first_not_of("0123456789");
    return digits != 0 && digits != text.npos && text[digits] == ':';
}
uint32_t number_in(const std::string &text) {
    return static_cast<uint32_t>(std::stoll(text, nullptr, 0));
}
std::string quoted(const std::string &octets) {
    return '\'' + hex(octets) + '\'';
}

// The steps of one case, and the handles that they make and name.
class Case {
public:
    // What steps give is as they say if it `is_checked`; otherwise memory may be short.
    Case(const Notation &octets, bool is_checked) : notation_(octets), is_checked_(is_checked) {}
    Case(const Case &) = delete;

    // Values first, since they may be over streams, and the others as they were made, the last first: what is within
    // another goes with that.
    ~Case() {
        std::set<Handle> free_values;
        for (const auto &[kind, handle] : made_)
            if (kind == HandleKind::value && is_free(static_cast<Handle>(handle)))
                free_values.insert(static_cast<Handle>(handle));
        for (const Handle value : free_values)
            kovra_asn1_value_free(KOVRA_ASN1_TYPE_ANY, value);
        for (auto at = made_.rbegin(); at != made_.rend(); ++at)
            if (at->first != HandleKind::value)
                release(at->first, at->second, 0);
    }

    void step(const std::string &text) {
        const auto [action, outcome] = sides_of(text);
        const size_t equals = action.substr(0, action.find('(')).find('=');
        pieces_.clear();
        codes_.clear();
        placed_ = nullptr;
        Word result = call(action.substr(equals == action.npos ? 0 : equals + 1), true);
        if (placed_ != nullptr)
            result.pointer = placed_;
        if (equals != action.npos)
            names_[trimmed(action.substr(0, equals))] = result;
        std::string expected, found;
        const std::vector<std::string> wanted = split(outcome);
        for (const std::string &one : wanted)
            expected += plain(one) + ", ";
        for (size_t i = 0; i < pieces_.size(); ++i)
            found += shown(pieces_[i], i < wanted.size() ? wanted[i] : "") + ", ";
        if (!codes_.empty())
            found += '!' + listed(codes_) + ", ";
        if (is_checked_ && text.find("->") != text.npos) {
            EXPECT_EQ(found, expected) << text;
        } else if (is_checked_) {
            EXPECT_TRUE(codes_.empty() && found[0] != '-' && found[0] != '0') << text << " gives " << found;
        }
    }

private:
    // What a call gave: a value, or what is shown of anything else.
    struct Piece {
        std::string text;
        Handle value = nullptr;
    };

    // What is expected, as it is shown.
    std::string plain(const std::string &wanted) const {
        if (wanted.starts_with("0x"))
            return std::to_string(number_in(wanted));
        return wanted[0] == '\'' || wanted[0] == '"' || is_value(wanted) ? quoted(octets_in(wanted)) : wanted;
    }
    std::string shown(const Piece &piece, const std::string &wanted) const {
        if (piece.value == nullptr)
            return piece.text;
        if (is_value(wanted))
            return quoted(encode(number_in(wanted), piece.value).octets);
        const auto named = names_.find(wanted);
        return named != names_.end() && named->second.pointer == piece.value ? wanted : "+";
    }
    void show_value(void *handle) {
        pieces_.push_back(handle == nullptr ? Piece{"-"} : Piece{"", static_cast<Handle>(handle)});
        keep(HandleKind::value, handle);
    }
    void keep(HandleKind kind, void *handle) {
        const std::pair one(kind, handle);
        if (handle != nullptr && std::find(made_.begin(), made_.end(), one) == made_.end())
            made_.push_back(one);
    }

    // Of 'notation', "text" and TYPE: notation.
    std::string octets_in(const std::string &text) const {
        return text[0] == '"'    ? unquoted(text)
               : text[0] == '\'' ? notation_.octets(text.substr(1, text.size() - 2))
                                 : notation_.octets(text.substr(text.find(':') + 1));
    }

    Word argument(const std::string &text, const Parameter &parameter) {
        Word word;
        if (const auto named = names_.find(text); named != names_.end())
            return named->second;
        if (text == "null")
            return word;
        if (text == "len") {
            word.integer = length_;
        } else if (is_value(text)) {
            Value value = decode(number_in(text), octets_in(text)).value;
            EXPECT_TRUE(value || !is_checked_) << text;
            word.pointer = value.release();
            keep(HandleKind::value, word.pointer);
        } else if (parameter.is_handle(HandleKind::stream) && text.find_first_of("'\"") < 5) {
            const Feed feed = text.starts_with("slow") ? Feed::trickle : Feed::memory;
            word.pointer = inputs_.emplace_back(octets_in(text.substr(text.find_first_of("'\""))), feed).stream();
        } else if ((text[0] == '"' || text[0] == '\'') && parameter.form != Form::handle) {
            const std::string octets = octets_in(text);
            length_ = size_of(octets);
            // A text ends with a zero, octets where their memory does.
            const std::string end(parameter.form == Form::text ? 1 : 0, '\0');
            word.pointer = const_cast<char *>(kept_.emplace_back(octets + end).begin());
        } else if (text[0] == '[') {
            std::istringstream numbers(text.substr(1));
            const std::vector<int32_t> found = {std::istream_iterator<int32_t>(numbers), {}};
            const std::string_view octets(reinterpret_cast<const char *>(found.data()), found.size() * sizeof found[0]);
            length_ = static_cast<int32_t>(found.size());
            word.pointer = const_cast<char *>(kept_.emplace_back(octets).begin());
        } else if (text.find('(') != text.npos) {
            return call(text, false);
        } else if (parameter.form == Form::real) {
            word.real = std::stod(text);
        } else {
            word.integer = std::stoll(text, nullptr, 0);
        }
        return word;
    }

    // Calls of the tests' own, which look at more than is shown.
    Word coded(const std::string &name, const std::vector<std::string> &arguments, bool is_outer) {
        const auto number = [&](size_t i) { return static_cast<int32_t>(number_in(arguments.at(i))); };
        const uint32_t type = number_in(arguments.at(0));
        Word value;
        if (name.starts_with("encode")) {
            value = argument(arguments.at(1), {Form::handle});
            const auto *handle = static_cast<Handle>(value.pointer);
            const Encoded made = name == "encode" ? encode(type, handle) : encode_content(type, handle, number(2));
            pieces_.push_back({made.result == 1 ? quoted(made.octets) : "-"});
            codes_ = made.codes;
            return value;
        }
        const std::string octets = octets_in(arguments.at(1));
        Decoded made = name == "decode" ? decode(type, octets) : decode_content(type, octets, number(2), number(3));
        value.pointer = made.value.release();
        keep(HandleKind::value, value.pointer);
        codes_ = made.codes;
        if (is_outer)
            show_value(value.pointer);
        return value;
    }

    // Calls what is written as "function(argument, ...)"; what the outer one gives is shown. Contexts are there without
    // being asked for.
    Word call(const std::string &text, bool is_outer) {
        const size_t open = text.find('('), close = text.rfind(')');
        const std::string name = trimmed(text.substr(0, open));
        const std::vector<std::string> arguments = split(trimmed(text.substr(open + 1, close - open - 1)));
        if (name.starts_with("encode") || name.starts_with("decode"))
            return coded(name, arguments, is_outer);
        const auto row = std::find_if(exports().begin(), exports().end(),
                                      [&](const Export &one) { return one.name == "kovra_" + name; });
        if (row == exports().end()) {
            ADD_FAILURE() << "there is no " << name;
            return Word();
        }
        const Errors errors(kovra_err_ctx_new());
        const Stream out = memory_stream();
        const size_t count = row->parameters.size();
        std::vector<Word> words(count);
        std::vector<int64_t> places(count);
        std::vector<std::string> given(count);
        std::vector<std::vector<char>> rooms(count); // which end where their memory does
        size_t next = 0;
        for (size_t i = 0; i < count; ++i) {
            const Parameter &parameter = row->parameters[i];
            if (parameter.is_handle(HandleKind::context)) {
                words[i].pointer = errors.get();
                continue;
            }
            given[i] = next < arguments.size() ? arguments[next] : "null";
            ++next;
            if (given[i][0] == '_') {
                places[i] = given[i].size() > 1 ? std::stoll(given[i].substr(1)) : 0;
                words[i].pointer = &places[i];
                if (void *const mark = unwritten(); parameter.form == Form::place_of_handle)
                    std::memcpy(&places[i], &mark, sizeof mark);
            } else if (parameter.form == Form::room && given[i] != "null") {
                rooms[i].resize(number_in(given[i]));
                words[i].pointer = rooms[i].data();
            } else if (given[i] == "out") {
                words[i].pointer = out.get();
            } else {
                words[i] = argument(given[i], parameter);
            }
        }
        EXPECT_EQ(next, arguments.size()) << "arguments of " << name;
        const Word result = row->call(words.data());
        if (row->result.form == Form::handle)
            keep(row->result.kind, result.pointer);
        if (!is_outer)
            return result;
        const int64_t length = places.empty() ? 0 : *std::max_element(places.begin(), places.end());
        show_result(row->result, result, length);
        for (size_t i = 0; i < count; ++i) {
            if (given[i][0] == '_')
                show_place(row->parameters[i], places[i]);
            else if (given[i] == "out")
                pieces_.push_back({quoted(taken(out))});
            else if (!rooms[i].empty())
                pieces_.push_back({quoted({rooms[i].data(), rooms[i].size()})});
        }
        codes_ = errors.get();
        return result;
    }

    void show_place(const Parameter &parameter, const int64_t &place) {
        if (parameter.form == Form::place) {
            int32_t number = 0;
            std::memcpy(&number, &place, sizeof number);
            pieces_.push_back({std::to_string(parameter.size == sizeof number ? number : place)});
            return;
        }
        void *handle = nullptr;
        std::memcpy(&handle, &place, sizeof handle);
        if (handle == unwritten())
            return pieces_.push_back({"unwritten"});
        show_value(placed_ = handle);
    }

    // Memory that is the caller's is released.
    void show_result(const Parameter &parameter, const Word &result, int64_t length) {
        const auto *text = static_cast<const char *>(result.pointer);
        switch (parameter.form) {
        case Form::nothing:
            return;
        case Form::integer:
        case Form::natural:
            return pieces_.push_back({std::to_string(result.integer)});
        default:
            break;
        }
        if (text == nullptr)
            pieces_.push_back({"-"});
        else if (parameter.is_handle(HandleKind::value))
            show_value(result.pointer);
        else if (parameter.is_handle(HandleKind::blob))
            pieces_.push_back({quoted(text_of(static_cast<kovra_data_blob *>(result.pointer)))});
        else if (parameter.form == Form::room)
            pieces_.push_back({quoted({text, static_cast<size_t>(length)})});
        else if (parameter.form == Form::text || parameter.form == Form::new_text)
            pieces_.push_back({quoted(text)});
        else
            pieces_.push_back({"+"});
        if (parameter.form == Form::room || parameter.form == Form::new_text)
            kovra_free(result.pointer);
    }

    const Notation &notation_;
    bool is_checked_;
    std::map<std::string, Word> names_;
    std::vector<std::pair<HandleKind, void *>> made_;
    std::deque<Exact> kept_; // octets that are passed and may be kept
    std::deque<Input> inputs_;
    int32_t length_ = 0; // of the octets that were passed last
    // Of one step:
    std::vector<Piece> pieces_;
    Codes codes_;
    void *placed_ = nullptr; // a value that was put into a place
};

// Takes the steps of a row. `each x y in 1 2 3 4` has those behind it taken for 1 and 2 and for 3 and 4, as $x and $y.
void take(Case &to, std::span<const std::string> steps, const std::map<std::string, std::string> &names = {}) {
    for (size_t i = 0; i < steps.size(); ++i) {
        std::string text = steps[i];
        for (const auto &[name, word] : names)
            for (size_t at; (at = text.find(name)) != text.npos;)
                text.replace(at, name.size(), word);
        if (!text.starts_with("each ")) {
            to.step(text);
            continue;
        }
        std::istringstream words(text.substr(5));
        std::vector<std::string> own;
        for (std::string word; words >> word && word != "in";)
            own.push_back('$' + word);
        std::map<std::string, std::string> all = names;
        while (std::all_of(own.begin(), own.end(), [&](const auto &name) { return bool(words >> all[name]); }))
            take(to, steps.subspan(i + 1), all);
        return;
    }
}

TEST(Steps, GiveWhatTheySay) {
    const std::vector<std::vector<std::string>> rows = table("steps.txt");
    for (size_t begin = 0, end = 0; begin < rows.size(); begin = end) {
        const std::vector<std::string> &title = rows[begin];
        ASSERT_EQ(title[0], "case");
        for (end = begin + 1; end < rows.size() && rows[end][0] != "case";)
            ++end;
        SCOPED_TRACE(title.at(1));
        const auto run = [&](bool is_checked) {
            Case one(notation(title.size() > 2 ? title[2] : "structures.txt"), is_checked);
            for (size_t i = begin + 1; i < end; ++i)
                take(one, rows[i]);
            return true;
        };
        run(true);
        // Who owns what is another matter where a step may fail.
        for (const bool fails_once : {false, true})
            if (title.back() != "plenty")
                fail_each_allocation([&] { return run(false); }, fails_once);
    }
}

} // namespace
} // namespace kovra::test
