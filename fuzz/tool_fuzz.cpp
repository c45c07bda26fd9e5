// The commands of the tool over any file: the first octet chooses command and options, the second the type.
#include <sys/mman.h>
#include <unistd.h>

#include "fuzz/fuzzing.hpp"
#include "fuzz/memory.hpp"
#include "tools/command.hpp"

namespace kovra::fuzz {

namespace {

// A file without a place in any directory.
class File {
public:
    explicit File(std::string_view octets) : descriptor_(memfd_create("input", 0)) {
        check(write(descriptor_, octets.data(), octets.size()) == static_cast<ssize_t>(octets.size()),
              "a file can be written");
    }
    File(const File &) = delete;
    ~File() { close(descriptor_); }
    std::string path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

private:
    int descriptor_;
};

constexpr void (*commands[])(tool::Session &) = {tool::dump, tool::json, tool::show, tool::check, tool::der};

void run(Draw input) {
    const uint8_t choice = input.octet();
    const uint8_t type = input.octet();
    const File file(input.rest());
    tool::Session session;
    session.options.files.push_back(file.path());
    session.options.is_full = (choice & 0x10) != 0;
    session.options.is_colored = (choice & 0x20) != 0;
    session.options.is_quiet = (choice & 0x40) != 0;
    session.options.indent = (choice & 0x80) != 0 ? 0 : 2;
    session.options.type = type < KOVRA_ASN1_TYPE_COUNT ? type : KOVRA_ASN1_TYPE_COUNT;
    session.out.set_path("/dev/null", false);
    commands[(choice & 0x0F) % std::size(commands)](session);
    session.out.finish(true, true);
    check(session.status() == tool::Status::good || session.status() == tool::Status::malformed,
          "a file is good or malformed");
}

} // namespace

size_t elements_begin(const uint8_t * /*data*/, size_t /*size*/) {
    return 2;
}

} // namespace kovra::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    kovra::fuzz::begin_memory(int64_t{1} << 30);
    kovra::fuzz::run({data, size});
    kovra::fuzz::end_memory();
    return 0;
}
