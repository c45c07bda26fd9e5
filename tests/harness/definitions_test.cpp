// Each table says what the ASN.1 definition above it says, which is what its author read in the standard.
#include <algorithm>
#include <filesystem>
#include <map>
#include <numeric>
#include <set>

#include "core/choice.hpp"
#include "core/registry.hpp"
#include "core/structure.hpp"
#include "tests/asn1_testing.hpp"
#include "tests/harness/samples.hpp"

namespace kovra::test {
namespace {

// One row of a definition or a table: `name [0] EXPLICIT OPTIONAL`, and the type.
struct Row {
    std::string name, rest, type;
    std::string fallback = {}; // what an absent one stands for: in words, or encoded

    bool operator==(const Row &other) const { return name == other.name && rest == other.rest; }
};
using Rows = std::vector<Row>;

std::string text_of(const Rows &rows) {
    std::string text;
    for (const Row &row : rows)
        text += row.name + row.rest + ", ";
    return text;
}

Rows rows_of(const core::Component *components, size_t count, core::Tag core::Component::*tag) {
    Rows rows;
    for (size_t i = 0; i < count; ++i) {
        const core::Component &component = components[i];
        std::string rest;
        if ((component.*tag).tagging != core::Tagging::none)
            rest += " [" + std::to_string((component.*tag).number) +
                    ((component.*tag).tagging == core::Tagging::implicit ? "] IMPLICIT" : "] EXPLICIT");
        if (component.presence != core::Presence::required)
            rest += component.presence == core::Presence::optional ? " OPTIONAL" : " DEFAULT";
        rows.push_back({component.name, rest, std::to_string(component.type)});
        if (component.presence == core::Presence::defaulted) {
            core::Arena *arena = core::Arena::create(0);
            rows.back().fallback = hex(encode(component.type, component.fallback->make(*arena)).octets);
            core::Arena::destroy(arena);
        }
    }
    return rows;
}

// `name [0] IMPLICIT Type OPTIONAL`
Row parsed(const std::string &text) {
    std::istringstream words(text);
    Row row;
    words >> row.name;
    for (std::string word; words >> word;)
        if (word[0] == '[' || word == "IMPLICIT" || word == "EXPLICIT" || word == "OPTIONAL" || word == "DEFAULT")
            row.rest += ' ' + word;
        else if (row.rest.find("DEFAULT") != row.rest.npos)
            row.fallback += word;
        else
            row.type += (row.type.empty() ? "" : " ") + word;
    return row;
}

// The definitions in the comments of a source file.
void find_definitions(const std::filesystem::path &path, std::vector<Rows> &found) {
    std::ifstream file(path);
    std::string definition;
    for (std::string line; std::getline(file, line);) {
        if (!line.starts_with("//")) {
            definition.clear();
            continue;
        }
        if (line.find("::=") != line.npos)
            definition.clear();
        definition += line.substr(2) + ' ';
        const size_t open = definition.find('{');
        int depth = 0;
        size_t begin = open + 1;
        Rows rows;
        for (size_t at = open; at < definition.size(); ++at) {
            const char c = definition[at];
            depth += c == '{' || c == '(' ? 1 : c == '}' || c == ')' ? -1 : 0;
            if (depth == 0 || (depth == 1 && c == ',')) {
                rows.push_back(parsed(definition.substr(begin, at - begin)));
                begin = at + 1;
            }
            if (depth == 0) {
                if (definition.find("::=") < open || definition.find("SEQUENCE") < open ||
                    definition.find("CHOICE") < open)
                    found.push_back(rows);
                definition.clear();
                break;
            }
        }
    }
}

// What is within the encoding of a default that is given in words.
std::string within(const std::string &words) {
    static const std::map<std::string, std::string> named = {
        {"FALSE", "010100"},
        {"TRUE", "0101FF"},
        {"sha1", "06052B0E03021A"},
        {"mgf1SHA1", "06092A864886F70D010108"},
        {"pSpecifiedEmpty", "06092A864886F70D010109"},
        {"algid-hmacWithSHA1", "06082A864886F70D0207"},
        {"{algorithmid-sha256}", "0609608648016503040201"},
    };
    if (const auto found = named.find(words); found != named.end())
        return found->second;
    // A number, perhaps behind its name.
    const size_t digits = words.find_first_of("0123456789", words.find('(') == words.npos ? 0 : words.find('('));
    return digits != words.npos ? hex(std::string{2, 1, static_cast<char>(std::stoi(words.substr(digits)))})
                                : "unknown";
}

TEST(Definitions, AreWhatTheTablesSay) {
    std::vector<Rows> definitions;
    for (const char *directory : {"core", "types", "pkix", "cms", "services", "keys"})
        for (const auto &entry : std::filesystem::directory_iterator(KOVRA_SOURCE_DIR "/" + std::string(directory)))
            find_definitions(entry.path(), definitions);
    std::set<const void *> seen;
    std::map<std::string, std::set<std::string>> numbers; // of each type that is named
    for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type) {
        const core::Type &row = core::row(type);
        // As it is read, and as it is written where that differs.
        Rows read, written;
        const auto take = [&](const core::Component *components, size_t count) {
            read = rows_of(components, count, &core::Component::tag);
            written = rows_of(components, count, &core::Component::encode_tag);
        };
        if (is_structure(row) && static_cast<const core::StructureShape *>(row.shape)->content == nullptr)
            take(static_cast<const core::StructureShape *>(row.shape)->components,
                 static_cast<const core::StructureShape *>(row.shape)->count);
        else if (row.operations == &core::choice_operations)
            take(static_cast<const core::ChoiceShape *>(row.shape)->alternatives,
                 static_cast<const core::ChoiceShape *>(row.shape)->count);
        if (read.empty() || !seen.insert(row.shape).second)
            continue;
        const auto found = std::find_if(definitions.begin(), definitions.end(), [&](const Rows &definition) {
            return definition == read || definition == written;
        });
        if (found == definitions.end())
            ADD_FAILURE() << "type " << type << ": " << text_of(read);
        else
            for (size_t i = 0; i < read.size(); ++i) {
                if (!read[i].fallback.empty()) {
                    EXPECT_NE(read[i].fallback.find(within((*found)[i].fallback)), std::string::npos)
                        << read[i].name << " is " << read[i].fallback << ", not " << (*found)[i].fallback;
                }
                if (const std::string &name = (*found)[i].type; !name.empty())
                    numbers[name].insert(read[i].type);
            }
    }
    EXPECT_GT(seen.size(), 100u);
    // A name is one type, but for these.
    for (const char *name : {"Name", "SEQUENCE OF ESSCertID", "SET OF ANY", "SET OF SEQUENCE { ... }"}) {
        EXPECT_EQ(numbers[name].size(), 2u) << name;
        numbers.erase(name);
    }
    for (const auto &[name, all] : numbers)
        EXPECT_EQ(all.size(), 1u) << name << " is"
                                  << std::accumulate(all.begin(), all.end(), std::string(),
                                                     [](const std::string &left, const std::string &right) {
                                                         return left + ' ' + right;
                                                     });
}

// The engine asks for the identifier only.
TEST(Registry, TypesWithAUsualIdentifierHaveAPlainDoor) {
    for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type)
        EXPECT_EQ(core::row(type).usual_identifier != 0, core::row(type).operations->decode_plain != nullptr) << type;
}

} // namespace
} // namespace kovra::test
