// kovra-asn1: looks into files of BER and DER. Each command has a file of its own.

#include <CLI/CLI.hpp>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <sstream>

#include "command.hpp"
#include "platform.hpp"
#include "type_names.hpp"

namespace {

using namespace kovra::tool;

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

struct Arguments {
    std::string out;
    std::string color = "auto";
    std::string type;
    bool is_compact = false;
};

std::string check_type(const std::string &text) {
    return find_type(text) < KOVRA_ASN1_TYPE_COUNT ? "" : "no such type; `kovra-asn1 types` lists them";
}

void describe(CLI::App &app, Session &session, Arguments &arguments, const Command *&chosen) {
    Options &options = session.options;
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

bool is_colored(const Arguments &arguments, const Output &out, const Terminal &terminal) {
    const char *no_color = std::getenv("NO_COLOR");
    const bool is_unwanted = no_color != nullptr && *no_color != '\0';
    return arguments.color == "always" ||
           (arguments.color == "auto" && !is_unwanted && out.is_terminal() && terminal.takes_escapes());
}

// The parser's message with the line feeds in values escaped, so that it stays one line.
std::string one_line(const CLI::App *app, const CLI::Error &error) {
    const Message text{Outside(error.what())};
    return CLI::FailureMessage::simple(
        app, CLI::Error(error.get_name(), std::string(Harmless(text).view()), error.get_exit_code()));
}

// Prints help, or why the arguments are not understood.
Status explain(CLI::App &app, const CLI::ParseError &error, Output &out) {
    std::ostringstream help;
    std::ostringstream refusal;
    app.failure_message(one_line);
    const bool is_good = app.exit(error, help, refusal) == 0;
    const std::string text = is_good ? help.str() : refusal.str();
    Message lines;
    for (size_t at = 0; at < text.size();) {
        const size_t end = std::min(text.find('\n', at), text.size());
        lines += Outside(std::string_view(text).substr(at, end - at));
        lines += end < text.size() ? Harmless("\n") : "";
        at = end + 1;
    }
    if (is_good)
        out.put(lines);
    else
        put_error(lines);
    out.flush();
    return is_good ? Status::good : Status::usage;
}

int run(std::vector<std::string> given) {
    const Terminal terminal;
    Session session;
    Arguments arguments;
    const Command *chosen = nullptr;
    CLI::App app("Looks into files of ASN.1 values in BER and DER.", "kovra-asn1");
    describe(app, session, arguments, chosen);
    try {
        // The parser takes the arguments in reverse, without the name of the program.
        if (!given.empty())
            given.erase(given.begin());
        std::reverse(given.begin(), given.end());
        app.parse(std::move(given));
    } catch (const CLI::ParseError &error) {
        return static_cast<int>(explain(app, error, session.out));
    }
    if (arguments.is_compact)
        session.options.indent = 0;
    if (!arguments.type.empty())
        session.options.type = find_type(arguments.type);
    if (session.options.files.empty())
        session.options.files.emplace_back("-");
    session.out.set_path(arguments.out, session.options.has_secrets);
    session.options.is_colored = is_colored(arguments, session.out, terminal);
    chosen->run(session);
    session.out.finish(session.status() == Status::good, !session.is_incomplete());
    if (!session.out.failure().empty())
        session.report_file(session.out.name(), session.out.failure());
    return static_cast<int>(session.status());
}

} // namespace

int main(int argc, char **argv) {
#if defined(SIGPIPE)
    // A closed pipe is to be a failed write, not a signal.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    try {
        return run(utf8_arguments(argc, argv));
    } catch (const std::exception &) {
        // bad_alloc, or length_error where addresses have 32 bits: nothing else is thrown.
        put_error("kovra-asn1: memory is short\n");
        return static_cast<int>(Status::io);
    }
}
