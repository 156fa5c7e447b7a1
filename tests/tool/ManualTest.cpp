// The manual page and the bash completion the build writes: they hold every
// command and option the tool parses, the page is clean roff, and the
// completion completes commands, options, choices and file names.
#include "ToolTestSupport.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

using namespace tooltest;

const std::string kManPage = QRMKIT_MAN_PAGE;
const std::string kCompletion = QRMKIT_BASH_COMPLETION;

// What a shell command prints on standard output.
std::string Shell(const std::string& command)
{
    std::string out;
    FILE* pipe = popen(command.c_str(), "r");
    EXPECT_NE(pipe, nullptr);
    if (pipe == nullptr) {
        return out;
    }
    char buffer[4096];
    for (std::size_t count; (count = fread(buffer, 1, sizeof buffer, pipe)) > 0;) {
        out.append(buffer, count);
    }
    EXPECT_EQ(pclose(pipe), 0) << command;
    return out;
}

std::string Quote(const std::string& text)
{
    std::string quoted = "'";
    for (char c : text) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
}

// The commands 'qrmkit --help' lists.
std::vector<std::string> CommandsInHelp(const std::string& help)
{
    std::vector<std::string> commands;
    bool inList = false;
    for (const std::string& line : Lines(help)) {
        if (line == "Subcommands:") {
            inList = true;
        } else if (inList && line.empty()) {
            break;
        } else if (inList) {
            std::istringstream words(line);
            std::string name;
            words >> name;
            commands.push_back(name);
        }
    }
    return commands;
}

// The long options a help text shows.
std::set<std::string> LongOptions(const std::string& help)
{
    std::set<std::string> options;
    const std::regex option("(^|[ ,])(--[a-z][a-z-]*)");
    for (const std::string& line : Lines(help)) {
        if (line.rfind("  -", 0) != 0) {
            continue;  // only the option list, not the examples
        }
        for (std::sregex_iterator it(line.begin(), line.end(), option), end; it != end; ++it) {
            options.insert((*it)[2]);
        }
    }
    return options;
}

std::string Roff(std::string text)
{
    for (std::size_t at = 0; (at = text.find('-', at)) != std::string::npos; at += 2) {
        text.replace(at, 1, "\\-");
    }
    return text;
}

class ManualTest : public ToolTest {
protected:
    // What the completion offers for the words typed (the last one is the
    // word being completed).
    std::vector<std::string> Complete(const std::vector<std::string>& words)
    {
        std::string array;
        for (const std::string& word : words) {
            array += " " + Quote(word);
        }
        const std::string script = "source " + Quote(kCompletion) + "; COMP_WORDS=(" + array +
                                   "); COMP_CWORD=" + std::to_string(words.size() - 1) +
                                   "; _qrmkit; printf '%s\\n' \"${COMPREPLY[@]}\"";
        std::vector<std::string> offered;
        for (const std::string& line : Lines(Shell("bash --norc -c " + Quote(script)))) {
            if (!line.empty()) {
                offered.push_back(line);
            }
        }
        return offered;
    }
};

TEST_F(ManualTest, BuildWritesWhatTheToolGenerates)
{
    EXPECT_EQ(ReadFile(kManPage), Run({"--generate-man-page"}).out);
    EXPECT_EQ(ReadFile(kCompletion), Run({"--generate-bash-completion"}).out);
    EXPECT_FALSE(Contains(Run({"--help"}).out, "generate")) << "the generating options are hidden";
}

TEST_F(ManualTest, ManPageHasEveryCommandAndEveryOptionTheHelpShows)
{
    const std::string page = ReadFile(kManPage);
    ASSERT_FALSE(page.empty());
    const std::vector<std::string> commands = CommandsInHelp(Run({"--help"}).out);
    EXPECT_GE(commands.size(), 10U);
    for (const std::string& option : LongOptions(Run({"--help"}).out)) {
        EXPECT_TRUE(Contains(page, "\\fB" + Roff(option) + "\\fR")) << option;
    }
    for (const std::string& command : commands) {
        const std::size_t section = page.find(".SS \"qrmkit " + command + "\"");
        ASSERT_NE(section, std::string::npos) << command;
        const std::string text = page.substr(section, page.find(".SS", section + 1) - section);
        const std::set<std::string> options = LongOptions(Run({command, "--help"}).out);
        EXPECT_FALSE(options.empty()) << command;
        for (const std::string& option : options) {
            EXPECT_TRUE(Contains(text, "\\fB" + Roff(option) + "\\fR")) << command << " " << option;
        }
    }
    EXPECT_TRUE(Contains(page, ".SH EXIT STATUS"));
    EXPECT_TRUE(Contains(page, "  100  with \\-\\-check"));
}

TEST_F(ManualTest, GuideGivesTheExitStatusTableOfTheHelp)
{
    const std::string help = Run({"--help"}).out;
    const std::size_t table = help.find("Exit status:\n");
    ASSERT_NE(table, std::string::npos) << help;
    const std::string block = "```\n" + help.substr(table) + "```\n";
    EXPECT_TRUE(Contains(ReadFile(QRMKIT_TOOL_GUIDE), block)) << block;
}

TEST_F(ManualTest, ManPageIsCleanRoff)
{
    EXPECT_EQ(Shell("groff -man -Tutf8 -ww -z " + Quote(kManPage) + " 2>&1"), "");
    const std::string text = Shell("groff -man -Tutf8 " + Quote(kManPage) + " 2>/dev/null");
    EXPECT_TRUE(Contains(text, "qrmkit explain")) << text;
}

TEST_F(ManualTest, CompletionOffersCommandsOptionsChoicesAndFiles)
{
    EXPECT_EQ(Complete({"qrmkit", "upd"}), (std::vector<std::string>{"updates"}));
    EXPECT_EQ(Complete({"qrmkit", "--color", "never", "ex"}), (std::vector<std::string>{"explain"}));
    EXPECT_EQ(Complete({"qrmkit", "updates", "--bun"}), (std::vector<std::string>{"--bundle-type"}));
    EXPECT_EQ(Complete({"qrmkit", "updates", "--col"}), (std::vector<std::string>{"--color"}))
        << "global options after the command";
    EXPECT_EQ(Complete({"qrmkit", "updates", "--bundle-type", "BTL"}), (std::vector<std::string>{"BTLX"}));
    EXPECT_EQ(Complete({"qrmkit", "explain", "--only", "no-"}),
              (std::vector<std::string>{"no-bundle", "no-supporting-package"}));
    EXPECT_EQ(Complete({"qrmkit", "fleet", "--format", ""}), (std::vector<std::string>{"table", "jsonl", "html"}));
    EXPECT_EQ(Complete({"qrmkit", "help", "fl"}), (std::vector<std::string>{"fleet"}));
    EXPECT_EQ(Complete({"qrmkit", "compare", "--js"}), (std::vector<std::string>{"--json"}));

    WriteFile(Path("catalog.xml"), "x");
    EXPECT_EQ(Complete({"qrmkit", "updates", "--catalog", Path("cat")}),
              (std::vector<std::string>{Path("catalog.xml")}));
    EXPECT_EQ(Complete({"qrmkit", "fleet", "--catalog", Path("catalog.xml"), Path("cat")}),
              (std::vector<std::string>{Path("catalog.xml")}))
        << "fleet's inventories are files";
}

}  // namespace
