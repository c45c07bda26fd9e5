// generate DIRECTORY: writes the man page of kovra-asn1 and its completions for bash, zsh and fish, from the
// description that the tool itself is made from.
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "arguments.hpp"

namespace {

using namespace kovra::tool;

struct Choice {
    std::string name; // with its dashes
    std::string help;
    std::string value;               // what stands for its value; empty: it takes none
    std::vector<std::string> values; // all that it can be, when they are few
};

struct Part {
    std::string name;
    std::string help;
    std::string files; // what stands for its files; empty: it takes none
    std::vector<Choice> choices;
};

std::vector<std::string> values_of(const std::string &type) {
    std::vector<std::string> values;
    const size_t begin = type.find('{');
    for (size_t at = begin; at != std::string::npos && at + 1 < type.size();) {
        const size_t end = type.find_first_of(",}", at + 1);
        values.push_back(type.substr(at + 1, end - at - 1));
        at = type[end] == ',' ? end : std::string::npos;
    }
    return values;
}

Part part_of(const CLI::App &app) {
    Part part{app.get_name(), app.get_description(), "", {}};
    for (const CLI::Option *option : app.get_options()) {
        if (option->get_positional()) {
            part.files = option->get_name(true);
            continue;
        }
        // Those for help are the tool's, and its commands' only because the parser gives them to each.
        const bool is_help = !option->get_lnames().empty() && option->get_lnames()[0].substr(0, 4) == "help";
        if (option->get_lnames().empty() || (is_help && app.get_subcommands({}).empty()))
            continue;
        Choice choice{"--" + option->get_lnames()[0], option->get_description(), "", {}};
        if (option->get_items_expected_max() > 0) {
            choice.values = values_of(option->get_type_name());
            choice.value = choice.name == "--out"      ? "FILE"
                           : choice.name == "--indent" ? "NUMBER"
                           : choice.name == "--type"   ? "TYPE"
                                                       : "WHEN";
        }
        part.choices.push_back(choice);
    }
    return part;
}

// Text for the formatter of man pages.
std::string man(const std::string &text) {
    std::string safe;
    for (const char c : text) {
        if (c == '-' || c == '\\')
            safe += '\\';
        safe += c;
    }
    return safe;
}

void write_man(std::ostream &out, const Part &tool, const std::vector<Part> &commands) {
    const auto options = [&](const Part &part) {
        for (const Choice &choice : part.choices) {
            out << ".TP\n\\fB" << man(choice.name) << "\\fR";
            if (!choice.value.empty())
                out << " \\fI" << choice.value << "\\fR";
            out << '\n' << man(choice.help) << ".\n";
        }
    };
    out << ".\\\" Written by tools/share/generate.cpp.\n"
           ".TH KOVRA\\-ASN1 1 \"\" \"kovra_asn1\" \"User Commands\"\n"
           ".SH NAME\nkovra\\-asn1 \\- look into files of ASN.1 values in BER and DER\n"
           ".SH SYNOPSIS\n.B kovra\\-asn1\n[\\fIOPTION\\fR]... \\fICOMMAND\\fR [\\fIOPTION\\fR]... [\\fIFILE\\fR]...\n"
           ".SH DESCRIPTION\n"
           "Files are certificates, revocation lists, requests, messages, time stamps, keys and any other values, as\n"
           "DER, BER, PEM, base64 or hexadecimal; what a file is, is found out. Without a file, or for \\fB\\-\\fR,\n"
           "standard input is read. Options stand before or behind the command.\n"
           ".SH COMMANDS\n";
    for (const Part &command : commands) {
        out << ".SS \"" << man(command.name) << (command.files.empty() ? "" : " [" + command.files + "]...") << "\"\n"
            << man(command.help) << ".\n";
        options(command);
    }
    out << ".SH OPTIONS\n";
    options(tool);
    out << ".SH EXIT STATUS\n"
           ".TP\n.B 0\nAll good.\n.TP\n.B 1\nMalformed input.\n.TP\n.B 2\nUsage.\n.TP\n.B 3\nFile or I/O.\n.PP\n"
           "Of several inputs the worst counts.\n"
           ".SH ENVIRONMENT\n.TP\n.B NO_COLOR\nTurns colors off, unless \\fB\\-\\-color\\fR asks for them.\n"
           ".SH EXAMPLES\n"
           ".TP\nWhat is in a file:\n.B kovra\\-asn1 show server.pem\n"
           ".TP\nThe tree of it, with offsets and lengths:\n.B kovra\\-asn1 dump server.pem\n"
           ".TP\nIs everything below a directory well formed?\n.B kovra\\-asn1 check /etc/ssl/certs\n"
           ".TP\nTake it apart, change something, and put it together:\n"
           ".B kovra\\-asn1 json server.der > server.json; kovra\\-asn1 der server.json > changed.der\n";
}

// The names and numbers that --type takes are asked of the tool itself.
constexpr char types[] = "kovra-asn1 types 2>/dev/null | awk '{ print $NF }'";

void write_bash(std::ostream &out, const Part &tool, const std::vector<Part> &commands) {
    out << "# Completion of kovra-asn1 for bash. Written by tools/share/generate.cpp.\n"
           "_kovra_asn1() {\n"
           "    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command= i\n"
           "    for ((i = 1; i < COMP_CWORD; ++i)); do\n"
           "        case ${COMP_WORDS[i]} in\n"
           "        --out | --color | --type | --indent) ((++i)) ;;\n"
           "        -*) ;;\n"
           "        *) command=${command:-${COMP_WORDS[i]}} ;;\n"
           "        esac\n"
           "    done\n"
           "    case $before in\n"
           "    --out) mapfile -t COMPREPLY < <(compgen -f -- \"$word\") && return ;;\n"
           "    --type) mapfile -t COMPREPLY < <(compgen -W \"$("
        << types << ")\" -- \"$word\") && return ;;\n";
    for (const Choice &choice : tool.choices)
        if (!choice.values.empty()) {
            out << "    " << choice.name << ") mapfile -t COMPREPLY < <(compgen -W \"";
            for (size_t i = 0; i < choice.values.size(); ++i)
                out << (i > 0 ? " " : "") << choice.values[i];
            out << "\" -- \"$word\") && return ;;\n";
        }
    const auto names = [](const Part &part) {
        std::string all;
        for (const Choice &choice : part.choices)
            all += (all.empty() ? "" : " ") + choice.name;
        return all;
    };
    out << "    --indent) return ;;\n"
           "    esac\n"
           "    local options=\""
        << names(tool)
        << "\"\n"
           "    case $command in\n";
    for (const Part &command : commands)
        if (!command.choices.empty())
            out << "    " << command.name << ") options+=\" " << names(command) << "\" ;;\n";
    out << "    esac\n"
           "    case $word in\n"
           "    -*) mapfile -t COMPREPLY < <(compgen -W \"$options\" -- \"$word\") && return ;;\n"
           "    esac\n"
           "    case $command in\n"
           "    '') mapfile -t COMPREPLY < <(compgen -W \"";
    for (size_t i = 0; i < commands.size(); ++i)
        out << (i > 0 ? " " : "") << commands[i].name;
    out << "\" -- \"$word\") ;;\n    ";
    bool is_first = true;
    for (const Part &command : commands)
        if (command.files.empty()) {
            out << (is_first ? "" : " | ") << command.name;
            is_first = false;
        }
    out << ") ;;\n"
           "    *) mapfile -t COMPREPLY < <(compgen -f -- \"$word\") ;;\n"
           "    esac\n"
           "}\n"
           "complete -o filenames -F _kovra_asn1 kovra-asn1\n";
}

// A help text within single quotes, for zsh and fish.
std::string quoted(const std::string &text) {
    std::string safe;
    for (const char c : text)
        safe += c == '\'' ? "'\\''" : std::string(1, c);
    return safe;
}

void write_zsh(std::ostream &out, const Part &tool, const std::vector<Part> &commands) {
    const auto option = [&](const Choice &choice) {
        std::string help = quoted(choice.help);
        for (size_t at = 0; (at = help.find_first_of("[]:", at)) != std::string::npos; at += 2)
            help.insert(at, "\\");
        out << " \\\n        '" << choice.name << "[" << help << "]";
        if (choice.name == "--out")
            out << ":file:_files";
        else if (choice.name == "--type")
            out << ":type:->types";
        else if (!choice.values.empty()) {
            out << ":" << choice.value << ":(";
            for (size_t i = 0; i < choice.values.size(); ++i)
                out << (i > 0 ? " " : "") << choice.values[i];
            out << ")";
        } else if (!choice.value.empty())
            out << ":" << choice.value << ":";
        out << "'";
    };
    out << "#compdef kovra-asn1\n# Completion of kovra-asn1 for zsh. Written by tools/share/generate.cpp.\n"
           "local -a commands\nlocal state\ncommands=(\n";
    for (const Part &command : commands) {
        std::string help = quoted(command.help);
        for (size_t at = 0; (at = help.find(':', at)) != std::string::npos; at += 2)
            help.insert(at, "\\");
        out << "    '" << command.name << ":" << help << "'\n";
    }
    out << ")\n"
           "_kovra_asn1_command() {\n    case $words[1] in\n";
    for (const Part &command : commands) {
        out << "    " << command.name << ")\n        _arguments";
        for (const Choice &choice : tool.choices)
            option(choice);
        for (const Choice &choice : command.choices)
            option(choice);
        if (!command.files.empty())
            out << " \\\n        '*:file:_files'";
        out << "\n        ;;\n";
    }
    out << "    esac\n"
           "    [[ $state != types ]] || compadd ${(f)\"$("
        << types
        << ")\"}\n"
           "}\n"
           "_arguments -C";
    for (const Choice &choice : tool.choices)
        option(choice);
    out << " \\\n        '1:command:->commands' \\\n        '*::argument:->arguments'\n"
           "case $state in\n"
           "commands) _describe command commands ;;\n"
           "arguments) _kovra_asn1_command ;;\n"
           "esac\n";
}

void write_fish(std::ostream &out, const Part &tool, const std::vector<Part> &commands) {
    const auto option = [&](const std::string &condition, const Choice &choice) {
        out << "complete -c kovra-asn1" << condition << " -l " << choice.name.substr(2);
        if (choice.name == "--out")
            out << " -r -F";
        else if (choice.name == "--type")
            out << " -x -a '("
                << "kovra-asn1 types 2>/dev/null | string replace -r \".* \" \"\""
                << ")'";
        else if (!choice.values.empty()) {
            out << " -x -a '";
            for (size_t i = 0; i < choice.values.size(); ++i)
                out << (i > 0 ? " " : "") << choice.values[i];
            out << "'";
        } else if (!choice.value.empty())
            out << " -x";
        out << " -d '" << quoted(choice.help) << "'\n";
    };
    out << "# Completion of kovra-asn1 for fish. Written by tools/share/generate.cpp.\n";
    for (const Choice &choice : tool.choices)
        option("", choice);
    for (const Part &command : commands) {
        out << "complete -c kovra-asn1 -n __fish_use_subcommand -f -a " << command.name << " -d '"
            << quoted(command.help) << "'\n";
        for (const Choice &choice : command.choices)
            option(" -n '__fish_seen_subcommand_from " + command.name + "'", choice);
        if (command.files.empty())
            out << "complete -c kovra-asn1 -n '__fish_seen_subcommand_from " << command.name << "' -f\n";
    }
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 2) {
        std::cerr << "usage: generate DIRECTORY\n";
        return 2;
    }
    Session session;
    Arguments arguments;
    const Command *chosen = nullptr;
    CLI::App app;
    describe(app, session, arguments, chosen);
    std::vector<Part> commands;
    for (const CLI::App *command : app.get_subcommands({}))
        commands.push_back(part_of(*command));
    const Part tool = part_of(app);
    const std::string directory = argv[1];
    const auto write = [&](const char *name, auto writer) {
        std::ofstream out(directory + "/" + name, std::ios::binary);
        writer(out, tool, commands);
        return out.good();
    };
    const bool is_good = write("kovra-asn1.1", write_man) & write("kovra-asn1.bash", write_bash) &
                         write("_kovra-asn1", write_zsh) & write("kovra-asn1.fish", write_fish);
    return is_good ? 0 : 3;
}
