// Standard input where it is no file: octets are there when they come.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace kovra::tool {

class StandardInput {
public:
    // `before_reading` is called each time before the tool may have to wait.
    explicit StandardInput(std::function<void()> before_reading);

    // Pipes, terminals and devices; of a file all octets are there at once.
    [[nodiscard]] static bool arrives_in_pieces();

    // Appends what has come, waiting for the first octet of it; false at the end.
    bool read(std::vector<uint8_t> &octets);
    // The rest.
    void read_all(std::vector<uint8_t> &octets);
    // Has nothing come, nor the end, for half a second? Where that cannot be told: no.
    [[nodiscard]] static bool pauses();

    // What the system says when reading fails; empty when it does not.
    [[nodiscard]] const std::string &failure() const { return failure_; }

private:
    std::function<void()> before_reading_;
    std::string failure_;
};

} // namespace kovra::tool
