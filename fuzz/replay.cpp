// A target without a fuzzer: runs once over each file it is given, and over each file in each directory. A directory
// that is not there is one in which nothing is kept yet.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "fuzz/fuzzing.hpp"

namespace {

namespace fs = std::filesystem;

void replay(const fs::path &path) {
    std::ifstream file(path, std::ios::binary);
    const std::string octets{std::istreambuf_iterator<char>(file), {}};
    kovra::fuzz::check(file.good() || file.eof(), "the file can be read");
    // Whoever looks for what ended the process finds it in the last line.
    std::printf("%s\n", path.c_str());
    std::fflush(stdout);
    const kovra::fuzz::Exact exact(octets);
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(exact.data()), exact.size());
}

} // namespace

int main(int argc, char **argv) {
    LLVMFuzzerTestOneInput(nullptr, 0);
    for (int i = 1; i < argc; ++i) {
        if (fs::is_regular_file(argv[i]))
            replay(argv[i]);
        else if (fs::exists(argv[i]))
            for (const auto &entry : fs::recursive_directory_iterator(argv[i]))
                if (entry.is_regular_file())
                    replay(entry.path());
    }
}
