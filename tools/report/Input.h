// How qrmkit (the tool and the Python package) reads the documents it is
// given: "-" is standard input; anything that is not a regular file (a
// pipe, /dev/stdin, a process substitution) is read like it; compressed input (gzip, xz,
// zstd, bzip2) and an archive holding one XML file (cabinet, zip) are
// recognised by their content and unpacked in memory. The library then
// reads a plain XML file, exactly as it reads any other: the original file
// when it is a plain regular file (no copy), otherwise an in-memory file
// holding the document.
#ifndef QRMKIT_REPORT_INPUT_H
#define QRMKIT_REPORT_INPUT_H

#include <cstddef>
#include <string>
#include <vector>

namespace qrmtool {

// The most a document may take once read or unpacked into memory, unless
// $QRMKIT_UNPACK_LIMIT (a number of bytes) says otherwise: 1 GiB.
constexpr std::size_t kDefaultUnpackLimit = std::size_t(1) << 30;
std::size_t UnpackLimit();

// The name a command-line path is given in messages ("standard input" for "-").
std::string InputName(const std::string& path);

// A "usage" ToolError when more than one of the paths reads standard input
// ("-", /dev/stdin), which can be read only once.
void CheckStandardInputOnce(const std::vector<std::string>& paths);

// Unpacks the bytes of a compressed document or of an archive holding one
// XML file; gives plain data back as it is. Throws a ToolError naming
// `name` ("bad-archive": corrupt, truncated, no or several XML members;
// "too-large": more than `limit` bytes unpacked; "empty-input").
std::string Unpack(const std::string& name, const std::string& data, std::size_t limit);

// A document named on the command line, ready for the library.
class InputFile {
public:
    // Opens `path` and reads or unpacks it when it must be; throws a
    // ToolError ("file-missing", "not-a-file", "not-readable", and those of
    // Unpack) naming the file.
    explicit InputFile(const std::string& path);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    // The path the library is to read.
    const std::string& LibraryPath() const { return mLibraryPath; }
    // The first bytes of the document (up to 64 KiB), for a look at its
    // root element.
    const std::string& Head() const { return mHead; }
    // What was done to it: "" for a plain file, else "gzip", "xz",
    // "cabinet", ... or "standard input".
    const std::string& How() const { return mHow; }

private:
    std::string mLibraryPath;
    std::string mHead;
    std::string mHow;
    int mMemoryFile = -1;
};

// The name of the document's root element, read from its first bytes
// (past a byte-order mark, the XML declaration, processing instructions,
// comments and a document type declaration); "" when none is there.
std::string RootElementName(const std::string& head);

// For a document the library refused: "line L, column C: what is wrong"
// when it is not well-formed XML, "" when it is.
std::string XmlProblem(const std::string& libraryPath);

}  // namespace qrmtool

#endif
