#include "arguments.hpp"

#include "type_names.hpp"

namespace kovra::tool {

namespace {

constexpr Command commands[] = {
    {"dump",
     "Print the tree of any BER or DER: offset, header length, length, tag, "
     "value",
     true, dump},
    {"show", "Print certificates, messages, time stamps, keys and other structures in words", true, show},
    {"json", "Print the JSON description of any BER or DER", true, json},
    {"der", "Write the octets of JSON descriptions", true, der},
    {"check", "Decode, encode again and compare: one line for each bad element, a summary at the end", true, check},
    {"types", "List the type identifiers with tag, form and name", false, types},
    {"version", "Print the version of the library", false, version},
};

std::string check_type(const std::string &text) {
    return find_type(text) < KOVRA_ASN1_TYPE_COUNT ? "" : "no such type; `kovra-asn1 types` lists them";
}

} // namespace

void describe(CLI::App &app, Session &session, Arguments &arguments, const Command *&chosen) {
    Options &options = session.options;
    app.name("kovra-asn1");
    app.description("Looks into files of ASN.1 values in BER and DER.");
    app.require_subcommand(1);
    app.allow_windows_style_options(false); // a path may begin with a slash everywhere
    app.set_help_all_flag("--help-all", "Print this help and that of every command");
    app.footer("Exit codes: 0 all good, 1 malformed input, 2 usage, 3 file or I/O.\n");
    app.add_option("--out", arguments.out, "Write to this file instead of standard output");
    app.add_option("--color", arguments.color, "auto, always or never; NO_COLOR in the environment turns auto off")
        ->check(CLI::IsMember({"auto", "always", "never"}));
    app.add_flag("--quiet", options.is_quiet,
                 "No headings, summary and progress bar, and only the first line of an error");
    for (const Command &command : commands) {
        CLI::App *sub = app.add_subcommand(command.name, command.help)->fallthrough();
        sub->callback([&chosen, &command] { chosen = &command; });
        if (command.takes_files)
            sub->add_option(command.run == check ? "PATH" : "FILE", options.files,
                            command.run == check
                                ? "Files of any form, directories with all in them; - or none: standard input"
                                : "DER, BER, PEM, base64 or hexadecimal; - or none: standard input");
        if (command.run == show || command.run == check)
            sub->add_option("--type", arguments.type, "Name or number of the type; recognised when not given")
                ->check(check_type);
        if (command.run == show)
            sub->add_flag("--secrets", options.has_secrets, "Print private keys too, not only their sizes");
        if (command.run == dump || command.run == show)
            sub->add_flag("--full", options.is_full, "Print long values whole");
        if (command.run == json) {
            auto *indent = sub->add_option("--indent", options.indent, "Blanks a level; 0 prints on one line")
                               ->check(CLI::Range(0, 16));
            sub->add_flag("--compact", arguments.is_compact, "Print on one line")->excludes(indent);
        }
    }
}

} // namespace kovra::tool
