// kovra-asn1: looks into files of ASN.1 values in BER and DER.

#include <CLI/CLI.hpp>

#include <csignal>

#include "command.hpp"

namespace {

using namespace kovra::tool;

struct Command {
    const char *name;
    const char *help;
    Status (*run)(const Options &, Output &);
    bool takes_files;
};

constexpr Command commands[] = {
    {"dump", "the tree of any BER or DER: offset, header length, length, tag, value", dump, true},
    {"json", "the JSON description of any BER or DER", json, true},
    {"der", "the octets of a JSON description", der, true},
    {"types", "the type identifiers, names, tags and forms", types, false},
    {"version", "the version of library and tool", version, false},
};

} // namespace

int main(int argc, char **argv) {
#if !defined(_WIN32)
    std::signal(SIGPIPE, SIG_IGN);
#endif
    Options options;
    CLI::App app(
        "Looks into files of ASN.1 values in BER and DER. The form of a file (DER, PEM, base64, hexadecimal) is "
        "told by its content.\nExit codes: 0 good, 1 malformed input, 2 usage, 3 file or I/O.",
        "kovra-asn1");
    app.require_subcommand(1);
    const Command *chosen = nullptr;
    bool is_compact = false;
    for (const Command &command : commands) {
        CLI::App *sub = app.add_subcommand(command.name, command.help);
        sub->callback([&chosen, &command] { chosen = &command; });
        if (command.takes_files)
            sub->add_option("FILE", options.files, "files; - or none: standard input");
        sub->add_option("--out", options.out, "write to this file");
        sub->add_option("--color", options.color, "auto, always or never (also NO_COLOR)")
            ->check(CLI::IsMember({"auto", "always", "never"}));
        sub->add_flag("--quiet", options.quiet, "no chains below error lines");
        if (command.run == json) {
            sub->add_option("--indent", options.indent, "blanks a level")->check(CLI::Range(0, 16));
            sub->add_flag("--compact", is_compact, "one line for each element");
        }
        if (command.run == der)
            sub->add_option("--pem", options.pem_label, "write PEM with this label");
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? 0 : static_cast<int>(Status::usage);
    }
    if (is_compact)
        options.indent = 0;
    static Output out;
    if (!out.open(options.out))
        return static_cast<int>(Status::io);
    const Status status = chosen->run(options, out);
    return static_cast<int>(worse(status, out.finish()));
}
