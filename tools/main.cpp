// kovra-asn1: looks into files of BER and DER. Each command has a file of its own.

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <sstream>

#include "arguments.hpp"
#include "platform.hpp"
#include "type_names.hpp"

namespace {

using namespace kovra::tool;

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
    CLI::App app;
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
