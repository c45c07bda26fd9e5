// fuzz_seeds DIRECTORY: makes the inputs that fuzzing begins with, a directory for each target, from examples/, from
// the samples of every type that the harness has, and from a table of the tests.
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

#include "fuzz/ber_tree.hpp"
#include "fuzz/calls_table.hpp"
#include "fuzz/fuzzing.hpp"
#include "tests/asn1_testing.hpp"
#include "tests/harness/samples.hpp"

namespace kovra::fuzz {

namespace {

namespace fs = std::filesystem;

std::vector<std::string> example_files() {
    std::vector<std::string> files;
    for (const auto &entry : fs::directory_iterator(KOVRA_SOURCE_DIR "/examples")) {
        if (entry.path().extension() == ".c" || entry.path().extension() == ".md")
            continue;
        std::ifstream file(entry.path(), std::ios::binary);
        files.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return files;
}

constexpr size_t largest = 4096;

void gather_elements(const Nodes &nodes, std::set<std::string> &out) {
    for (const Node &node : nodes) {
        if (std::string octets = write_node(node); node.is_element() && octets.size() <= largest)
            out.insert(std::move(octets));
        gather_elements(node.inside, out);
    }
}

// Lists in the last element of lists: few, and more than are built at once in any build.
std::vector<std::string> lists_in_lists(uint32_t type) {
    std::vector<std::string> found;
    const auto &row = test::core::row(type);
    if (!test::is_list(row))
        return found;
    for (const test::HeldList &held : test::lists_in(test::member_of(row)))
        for (const size_t size : {3, 33}) {
            const std::string inner =
                test::element(held.list->usual_identifier, test::repeated(test::minimal_member(*held.list), size));
            found.push_back(test::element(row.usual_identifier,
                                          test::repeated(test::minimal_member(row), size - 1) + held.in_holder(inner)));
        }
    return found;
}

// For each type its samples, and a few elements of the files that it accepts, from the smallest to the largest.
std::map<uint32_t, std::vector<std::string>> elements_by_type(const std::set<std::string> &elements) {
    std::map<uint32_t, std::vector<std::string>> found;
    for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type) {
        for (const test::Sample &sample : test::samples(type))
            if (sample.octets.size() <= largest)
                found[type].push_back(sample.octets);
        for (const std::string &octets : lists_in_lists(type))
            if (octets.size() <= largest)
                found[type].push_back(octets);
        std::map<size_t, std::string> by_size;
        for (const std::string &octets : elements) {
            Value value(type, nullptr);
            if (kovra_asn1_mem_decode(octets.data(), size_of(octets), type, value.place()) == size_of(octets))
                by_size.emplace(octets.size(), octets);
        }
        constexpr size_t most = 8;
        const size_t step = by_size.size() / most + 1;
        size_t i = 0;
        for (const auto &[size, octets] : by_size)
            if (i++ % step == 0)
                found[type].push_back(octets);
    }
    return found;
}

class Directory {
public:
    Directory(const fs::path &all, const std::string &target) : path_(all / target) { fs::create_directories(path_); }
    void add(const std::string &octets) {
        std::ofstream(path_ / ("seed-" + std::to_string(count_++)), std::ios::binary) << octets;
    }

private:
    fs::path path_;
    size_t count_ = 0;
};

// Decodes an element, then calls every function that takes one handle with what comes of it.
std::string calls_with(uint32_t type, const std::string &octets) {
    const auto selector = [](std::string_view name) {
        const uint16_t number = selector_of(name);
        return std::string{static_cast<char>(number >> 8), static_cast<char>(number)};
    };
    std::string calls(1, '\0');
    calls += selector("kovra_asn1_mem_decode");
    calls += static_cast<char>(0xF0 + octets.size() / 256);
    calls += static_cast<char>(octets.size());
    calls += octets;
    calls += '\0';
    calls += static_cast<char>(type);
    calls += '\0';
    for (const Function &function : functions()) {
        constexpr char oldest = 0x40;
        if (function.takes_one_handle() && function.row->name.find("_free") == std::string_view::npos)
            calls += selector(function.row->name) + oldest;
    }
    return calls;
}

std::string json_of(const std::string &octets) {
    const Json json(kovra_asn1_tojson(octets.data(), size_of(octets)));
    const Memory<char> text(kovra_json_print(json.get(), 0, nullptr));
    return json == nullptr ? "" : text.get();
}

void make(const fs::path &all) {
    const std::vector<std::string> files = example_files();
    std::set<std::string> elements;
    for (const std::string &file : files)
        gather_elements(read_nodes(file), elements);
    const auto by_type = elements_by_type(elements);
    Directory decode(all, "decode_fuzz"), json(all, "json_fuzz"), push(all, "push_fuzz"), coding(all, "coding_fuzz");
    Directory text(all, "text_fuzz"), tool(all, "tool_fuzz"), calls(all, "calls_fuzz");
    const auto octet = [](size_t number) { return std::string(1, static_cast<char>(number)); };
    for (const auto &[type, octets_of_type] : by_type) {
        for (size_t i = 0; i < octets_of_type.size(); ++i) {
            const std::string &octets = octets_of_type[i];
            decode.add(octet(type) + octets);
            if (i % 4 == 0) {
                push.add(octet(i * 37) + octet(type) + octets);
                tool.add(octet(2) + octet(type) + octets);
                calls.add(calls_with(type, octets));
            }
        }
    }
    for (const std::string &file : files) {
        coding.add(file);
        push.add(octet(file.size()) + octet(KOVRA_ASN1_TYPE_ANY) + file);
        for (size_t command = 0; command < 4; ++command)
            tool.add(octet(command) + octet(KOVRA_ASN1_TYPE_COUNT) + file);
    }
    for (const std::string &octets : elements) {
        const std::string description = json_of(octets);
        if (description.empty() || octets.size() > 1024)
            continue;
        json.add(octet(0) + octets);
        json.add(octet(1) + description);
    }
    for (const auto &row : test::table("times.txt"))
        text.add(row[1]);
    for (const char *sample :
         {"1.2.840.113549.1.1.11", "2.999.18446744073709551614", "0.39", "8571.3.2", "-12345678901234567890",
          "00ffFF7f", "K\xC3\xA4se \xE6\x9D\xB1 \xF0\x9F\x94\x91", "\xD8\x3D\xDD\x11"})
        text.add(sample);
    text.add(std::string("\0\0\0a\0\1\xF5\x11", 8));
}

} // namespace

} // namespace kovra::fuzz

int main(int argc, char **argv) {
    if (argc != 2)
        return 2;
    kovra::fuzz::make(argv[1]);
}
