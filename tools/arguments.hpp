// The commands and options of kovra-asn1: one description, from which the parser, the help, the man page and the
// completions of shells are made.
#pragma once

#include <CLI/CLI.hpp>

#include <string>

#include "command.hpp"

namespace kovra::tool {

// What is given besides the options of the session.
struct Arguments {
    std::string out;
    std::string color = "auto";
    std::string type;
    bool is_compact = false;
};

// Describes all commands to the parser, which stores what is given, and the command in `chosen`.
void describe(CLI::App &app, Session &session, Arguments &arguments, const Command *&chosen);

} // namespace kovra::tool
