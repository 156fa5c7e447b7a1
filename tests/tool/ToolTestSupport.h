// What the tests of the qrmkit tool share: running the built tool as a
// child process with its output in files, a scratch directory per test, and
// small text helpers.
#ifndef QRMKIT_TOOL_TEST_SUPPORT_H
#define QRMKIT_TOOL_TEST_SUPPORT_H

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fcntl.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace tooltest {

inline const std::string kTool = QRMKIT_TOOL;
inline const std::string kExamples = QRMKIT_EXAMPLES_DIR;
inline const std::string kCatalog = kExamples + "/catalog.xml";
inline const std::string kInventory = kExamples + "/inventory.xml";

struct Result {
    int status = -1;
    std::string out;
    std::string err;
};

inline std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

inline void WriteFile(const std::string& path, const std::string& text)
{
    std::ofstream out(path, std::ios::binary);
    out << text;
}

inline std::string Replace(std::string text, const std::string& what, const std::string& with)
{
    std::size_t at = text.find(what);
    if (at != std::string::npos) {
        text.replace(at, what.size(), with);
    }
    return text;
}

inline std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

// The text without its colour escape sequences ("\x1B[...m").
inline std::string Plain(const std::string& text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\x1B' && i + 1 < text.size() && text[i + 1] == '[') {
            const std::size_t end = text.find('m', i);
            if (end != std::string::npos) {
                i = end;
                continue;
            }
        }
        plain += text[i];
    }
    return plain;
}

// The code points of a line as a terminal shows them (colour escapes take
// no room).
inline std::size_t CodePoints(const std::string& text)
{
    const std::string line = Plain(text);
    std::size_t count = 0;
    for (char c : line) {
        if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U) {
            ++count;
        }
    }
    return count;
}

// The first line that contains every one of the texts ("" when none does).
inline std::string LineWith(const std::string& text, const std::vector<std::string>& parts)
{
    for (const std::string& line : Lines(text)) {
        bool all = true;
        for (const std::string& part : parts) {
            all = all && line.find(part) != std::string::npos;
        }
        if (all) {
            return line;
        }
    }
    return std::string();
}

inline bool Contains(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

class ToolTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "qrmkit-tool-XXXXXX").string();
        std::vector<char> buffer(pattern.begin(), pattern.end());
        buffer.push_back('\0');
        ASSERT_NE(mkdtemp(buffer.data()), nullptr);
        mDir = buffer.data();
    }

    void TearDown() override
    {
        std::error_code ignored;
        std::filesystem::remove_all(mDir, ignored);
    }

    std::string Path(const std::string& name) const { return mDir + "/" + name; }

    // A copy of an example file with one text replaced, in the test's directory.
    std::string Variant(const std::string& source, const std::string& name, const std::string& what,
                        const std::string& with) const
    {
        std::string text = ReadFile(source);
        EXPECT_TRUE(Contains(text, what)) << what;
        std::string path = Path(name);
        WriteFile(path, Replace(text, what, with));
        return path;
    }

    // Starts the tool with the arguments, standard output and error going
    // to the files named, without waiting for it.
    static pid_t StartTool(const std::vector<std::string>& args, const std::string& outPath, const std::string& errPath)
    {
        pid_t child = fork();
        if (child == 0) {
            int out = open(outPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
            int err = open(errPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
            if (out < 0 || err < 0 || dup2(out, 1) < 0 || dup2(err, 2) < 0) {
                _exit(127);
            }
            ExecTool(args);
        }
        return child;
    }

    // In a child process: becomes the tool with the arguments.
    [[noreturn]] static void ExecTool(const std::vector<std::string>& args)
    {
        std::vector<char*> argv;
        argv.push_back(const_cast<char*>(kTool.c_str()));
        for (const std::string& arg : args) {
            argv.push_back(const_cast<char*>(arg.c_str()));
        }
        argv.push_back(nullptr);
        execv(kTool.c_str(), argv.data());
        _exit(127);
    }

    // Runs the tool with the arguments; standard output and error go to
    // files in the test's directory. Every run is checked for the library's
    // console message, which the tool must never let through.
    Result Run(const std::vector<std::string>& args)
    {
        const std::string outPath = Path("stdout.txt");
        const std::string errPath = Path("stderr.txt");
        pid_t child = StartTool(args, outPath, errPath);
        Result result;
        int status = 0;
        EXPECT_GT(child, 0);
        EXPECT_EQ(waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status)) << "the tool did not exit normally";
        result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        result.out = ReadFile(outPath);
        result.err = ReadFile(errPath);
        EXPECT_FALSE(Contains(result.out, "Catalog not initialized"));
        EXPECT_FALSE(Contains(result.err, "Catalog not initialized"));
        return result;
    }

    static int ExitStatus(pid_t pid)
    {
        int status = 0;
        EXPECT_EQ(waitpid(pid, &status, 0), pid);
        EXPECT_TRUE(WIFEXITED(status));
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    // Runs the tool on a terminal of its own, `columns` wide (standard
    // output too, unless `outPath` names a file for it), and gives what the
    // terminal showed, with its line ends ("\r\n") as "\n". The tool sees no COLUMNS
    // and no NO_COLOR and TERM=xterm, unless `environment` says otherwise
    // ("NAME=VALUE" sets, "NAME" unsets).
    std::string RunOnTerminal(const std::vector<std::string>& args, const std::string& outPath, int& status,
                              unsigned short columns = 100, const std::vector<std::string>& environment = {})
    {
        int terminal = -1;
        winsize size{};
        size.ws_row = 50;
        size.ws_col = columns;
        pid_t child = forkpty(&terminal, nullptr, nullptr, &size);
        if (child == 0) {
            unsetenv("COLUMNS");
            unsetenv("NO_COLOR");
            setenv("TERM", "xterm", 1);
            for (const std::string& setting : environment) {
                const std::size_t equals = setting.find('=');
                if (equals == std::string::npos) {
                    unsetenv(setting.c_str());
                } else {
                    setenv(setting.substr(0, equals).c_str(), setting.substr(equals + 1).c_str(), 1);
                }
            }
            int out = outPath.empty() ? 1 : open(outPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
            if (out < 0 || dup2(out, 1) < 0) {
                _exit(127);
            }
            ExecTool(args);
        }
        EXPECT_GE(child, 0);
        std::string screen;
        char buffer[4096];
        for (ssize_t count; (count = read(terminal, buffer, sizeof buffer)) > 0;) {
            screen.append(buffer, static_cast<std::size_t>(count));
        }
        close(terminal);
        status = ExitStatus(child);
        std::string text;
        for (std::size_t i = 0; i < screen.size(); ++i) {
            if (screen[i] != '\r' || i + 1 == screen.size() || screen[i + 1] != '\n') {
                text += screen[i];
            }
        }
        return text;
    }

    // The same, as a Result: what the terminal showed is the output.
    Result RunOnTerminal(const std::vector<std::string>& args, unsigned short columns = 100,
                         const std::vector<std::string>& environment = {})
    {
        Result result;
        result.out = RunOnTerminal(args, std::string(), result.status, columns, environment);
        return result;
    }

    // The width of the widest line, in code points.
    static std::size_t Widest(const std::string& text)
    {
        std::size_t widest = 0;
        for (const std::string& line : Lines(text)) {
            widest = std::max(widest, CodePoints(line));
        }
        return widest;
    }

    // Every line at most `columns` code points wide.
    static void ExpectFits(const std::string& text, std::size_t columns = 100)
    {
        for (const std::string& line : Lines(text)) {
            EXPECT_LE(CodePoints(line), columns) << line;
        }
    }

    // A failure: status 2 (or the one given), nothing on standard output, one line on standard
    // error that starts with "qrmkit: " and contains every given text.
    static void ExpectFailure(const Result& result, const std::vector<std::string>& parts, int status = 2)
    {
        EXPECT_EQ(result.status, status);
        EXPECT_EQ(result.out, "");
        std::vector<std::string> lines = Lines(result.err);
        ASSERT_EQ(lines.size(), 1U) << result.err;
        EXPECT_EQ(lines[0].rfind("qrmkit: ", 0), 0U) << lines[0];
        for (const std::string& part : parts) {
            EXPECT_TRUE(Contains(lines[0], part)) << "\"" << part << "\" not in: " << lines[0];
        }
    }

    std::string mDir;
};

}  // namespace tooltest

#endif
