#include "Manual.h"

#include <sstream>
#include <vector>

namespace qrmtool {

namespace {

// What the option parser knows of one option, in the words both outputs need.
struct OptionInfo {
    std::vector<std::string> names;  // "-q", "--quiet"; a positional's name alone
    std::string value;               // "FILE", "TYPE"; "" for a flag
    std::vector<std::string> choices;
    std::string defaultValue;
    std::string description;
    bool positional = false;
};

std::vector<OptionInfo> OptionsOf(const CLI::App& app)
{
    std::vector<OptionInfo> infos;
    for (const CLI::Option* option : app.get_options()) {
        if (option->get_group().empty()) {
            continue;  // hidden
        }
        OptionInfo info;
        info.positional = option->get_positional();
        if (info.positional) {
            info.names.push_back(option->get_name(true));
        }
        for (const std::string& name : option->get_snames()) {
            info.names.push_back("-" + name);
        }
        for (const std::string& name : option->get_lnames()) {
            info.names.push_back("--" + name);
        }
        if (option->get_type_size_max() > 0 || info.positional) {
            const std::string type = option->get_type_name();
            info.value = type.substr(0, type.find(':'));
            const std::size_t open = type.find(":{");
            if (open != std::string::npos) {
                std::istringstream list(type.substr(open + 2, type.find('}', open) - open - 2));
                for (std::string choice; std::getline(list, choice, ',');) {
                    info.choices.push_back(choice);
                }
            }
        }
        info.defaultValue = option->get_default_str();
        info.description = option->get_description();
        infos.push_back(std::move(info));
    }
    return infos;
}

std::vector<const CLI::App*> CommandsOf(const CLI::App& app)
{
    return app.get_subcommands([](const CLI::App*) { return true; });
}

// Text for roff: backslashes escaped, hyphens as minus signs, and no line
// that roff would take for a request.
std::string Roff(const std::string& text)
{
    std::string out;
    bool lineStart = true;
    for (char c : text) {
        if (lineStart && (c == '.' || c == '\'')) {
            out += "\\&";
        }
        if (c == '\\') {
            out += "\\e";
        } else if (c == '-') {
            out += "\\-";
        } else {
            out += c;
        }
        lineStart = c == '\n';
    }
    return out;
}

void ManOptions(std::ostringstream& out, const std::vector<OptionInfo>& options)
{
    for (const OptionInfo& option : options) {
        out << ".TP\n";
        for (std::size_t i = 0; i < option.names.size(); ++i) {
            out << (i == 0 ? "" : ", ") << (option.positional ? "\\fI" : "\\fB") << Roff(option.names[i]) << "\\fR";
        }
        if (!option.value.empty() && !option.positional) {
            out << " \\fI" << Roff(option.value) << "\\fR";
        }
        std::string description = option.description;
        if (!description.empty() && description.back() != '.') {
            description += '.';
        }
        out << "\n" << Roff(description);
        if (!option.choices.empty()) {
            std::string choices;
            for (const std::string& choice : option.choices) {
                choices += (choices.empty() ? "" : ", ") + choice;
            }
            out << " One of: " << Roff(choices) << ".";
        }
        if (!option.defaultValue.empty()) {
            out << " Default: " << Roff(option.defaultValue) << ".";
        }
        out << "\n";
    }
}

// A footer ("Example:\n  ...") as it stands, lines kept.
void ManFooter(std::ostringstream& out, const std::string& footer)
{
    if (!footer.empty()) {
        out << ".PP\n.nf\n" << Roff(footer) << "\n.fi\n";
    }
}

// Words for bash: options, commands or choices separated by spaces.
std::string Words(const std::vector<std::string>& words)
{
    std::string out;
    for (const std::string& word : words) {
        out += (out.empty() ? "" : " ") + word;
    }
    return out;
}

}  // namespace

std::string ManPage(const CLI::App& app, const std::string& version, const std::string& exitStatuses)
{
    std::ostringstream out;
    out << ".TH QRMKIT 1 \"\" \"qrmkit " << Roff(version) << "\" \"User Commands\"\n";
    out << ".SH NAME\nqrmkit \\- " << Roff(app.get_description().substr(app.get_description().find(": ") + 2)) << "\n";
    out << ".SH SYNOPSIS\n.B qrmkit\n[\\fIGLOBAL OPTIONS\\fR] \\fICOMMAND\\fR [\\fIOPTIONS\\fR]\n";
    out << ".SH DESCRIPTION\n"
           "\\fBqrmkit\\fR reads a vendor's update catalog and a computer's inventory, both XML, and answers "
           "which catalog packages update the computer's installed applications (\\fBupdates\\fR), why an "
           "application gets no update (\\fBexplain\\fR), which bundle applies, and what the two documents "
           "hold; \\fBfleet\\fR evaluates many inventories against one catalog.\n"
           ".PP\n"
           "A table is printed on a terminal, cut to its width; a file or a pipe gets every line whole. With "
           "\\fB\\-\\-json\\fR a command prints one JSON document on standard output, a failure too, and "
           "every document names its \\fBschema_version\\fR.\n";
    out << ".SH GLOBAL OPTIONS\nThese options may come before or after the command.\n";
    ManOptions(out, OptionsOf(app));
    out << ".SH COMMANDS\n";
    for (const CLI::App* command : CommandsOf(app)) {
        out << ".SS \"qrmkit " << Roff(command->get_name()) << "\"\n" << Roff(command->get_description()) << "\n";
        ManOptions(out, OptionsOf(*command));
        ManFooter(out, command->get_footer());
    }
    out << ".SH ENVIRONMENT\n"
           ".TP\n.B QRMKIT_CATALOG\nThe catalog when \\fB\\-\\-catalog\\fR is not given (the option wins).\n"
           ".TP\n.B QRMKIT_INVENTORY\nThe inventory when \\fB\\-\\-inventory\\fR is not given (the option wins).\n"
           ".TP\n.B COLUMNS\nThe width of a terminal that tables are cut to; output to a file or a pipe is "
           "never cut.\n"
           ".TP\n.B NO_COLOR\nWhen set and not empty, no colour unless \\fB\\-\\-color always\\fR.\n"
           ".TP\n.B QRMKIT_UNPACK_LIMIT\nThe most bytes a document read from a pipe or unpacked may take "
           "(default: 1 GiB).\n";
    out << ".SH EXIT STATUS\n.nf\n" << Roff(exitStatuses.substr(exitStatuses.find('\n') + 1)) << "\n.fi\n";
    out << ".SH SEE ALSO\nThe guide to the tool, docs/tool.md, in the QRMKit sources.\n";
    return out.str();
}

std::string BashCompletion(const CLI::App& app)
{
    std::ostringstream out;
    std::vector<std::string> commandNames;
    for (const CLI::App* command : CommandsOf(app)) {
        commandNames.push_back(command->get_name());
    }
    const std::vector<OptionInfo> globals = OptionsOf(app);
    std::vector<std::string> globalNames;
    std::vector<std::string> globalsWithValue;
    for (const OptionInfo& option : globals) {
        globalNames.insert(globalNames.end(), option.names.begin(), option.names.end());
        if (!option.value.empty()) {
            globalsWithValue.insert(globalsWithValue.end(), option.names.begin(), option.names.end());
        }
    }

    // The values an option takes: its choices, file names, or nothing.
    auto values = [&out](const std::string& pattern, const OptionInfo& option) {
        if (!option.choices.empty()) {
            out << "        " << pattern << ") COMPREPLY=($(compgen -W \"" << Words(option.choices)
                << "\" -- \"$cur\")); return ;;\n";
        } else if (option.value == "FILE") {
            out << "        " << pattern << ") _qrmkit_files; return ;;\n";
        } else {
            out << "        " << pattern << ") return ;;\n";
        }
    };

    out << "# bash completion for qrmkit, written by 'qrmkit --generate-bash-completion'.\n"
           "_qrmkit_files()\n{\n"
           "    compopt -o filenames 2>/dev/null\n"
           "    COMPREPLY=($(compgen -f -- \"$cur\"))\n"
           "}\n\n"
           "_qrmkit()\n{\n"
           "    local cur=\"${COMP_WORDS[COMP_CWORD]}\" prev=\"${COMP_WORDS[COMP_CWORD-1]}\"\n"
           "    local command=\"\" i\n"
           "    COMPREPLY=()\n"
           "    # The command: the first word that is neither an option nor a global option's value.\n"
           "    for ((i = 1; i < COMP_CWORD; i++)); do\n"
           "        case \"${COMP_WORDS[i]}\" in\n";
    if (!globalsWithValue.empty()) {
        std::string pattern;
        for (const std::string& name : globalsWithValue) {
            pattern += (pattern.empty() ? "" : "|") + name;
        }
        out << "            " << pattern << ") ((i++)) ;;\n";
    }
    out << "            -*) ;;\n"
           "            *) command=\"${COMP_WORDS[i]}\"; break ;;\n"
           "        esac\n"
           "    done\n"
           "    case \"$prev\" in\n";
    for (const OptionInfo& option : globals) {
        if (!option.value.empty()) {
            std::string pattern;
            for (const std::string& name : option.names) {
                pattern += (pattern.empty() ? "" : "|") + name;
            }
            values(pattern, option);
        }
    }
    out << "    esac\n"
           "    case \"$command\" in\n"
           "        \"\") COMPREPLY=($(compgen -W \""
        << Words(commandNames) << " " << Words(globalNames) << "\" -- \"$cur\")); return ;;\n";
    for (const CLI::App* command : CommandsOf(app)) {
        const std::vector<OptionInfo> options = OptionsOf(*command);
        std::vector<std::string> names;
        const OptionInfo* positional = nullptr;
        for (const OptionInfo& option : options) {
            if (option.positional) {
                positional = &option;
            } else {
                names.insert(names.end(), option.names.begin(), option.names.end());
            }
        }
        out << "        " << command->get_name() << ")\n"
            << "            case \"$prev\" in\n";
        for (const OptionInfo& option : options) {
            if (!option.positional && !option.value.empty()) {
                std::string pattern;
                for (const std::string& name : option.names) {
                    pattern += (pattern.empty() ? "" : "|") + name;
                }
                out << "    ";
                values(pattern, option);
            }
        }
        out << "            esac\n"
            << "            if [[ \"$cur\" == -* ]]; then\n"
            << "                COMPREPLY=($(compgen -W \"" << Words(names) << " " << Words(globalNames)
            << "\" -- \"$cur\"))\n";
        if (positional != nullptr && positional->value == "COMMAND") {  // help COMMAND
            out << "            else\n                COMPREPLY=($(compgen -W \"" << Words(commandNames)
                << "\" -- \"$cur\"))\n";
        } else if (positional != nullptr && positional->value == "FILE") {
            out << "            else\n                _qrmkit_files\n";
        }
        out << "            fi\n            ;;\n";
    }
    out << "    esac\n"
           "}\n"
           "complete -F _qrmkit qrmkit\n";
    return out.str();
}

}  // namespace qrmtool
