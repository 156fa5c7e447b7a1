#include "Input.h"

#include "Library.h"

#include <VELXML.h>

#include <archive.h>
#include <archive_entry.h>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>
#include <vector>

namespace qrmtool {

namespace {

constexpr std::size_t kHeadSize = 64 * 1024;

// What the bytes begin as: "gzip", "xz", "zstd", "bzip2", "cabinet" or
// "zip", the compressed data and archives the tool unpacks; "" otherwise.
std::string PackedKind(const std::string& data)
{
    auto startsWith = [&data](const char* magic, std::size_t length) {
        return data.size() >= length && std::memcmp(data.data(), magic, length) == 0;
    };
    if (startsWith("\x1F\x8B", 2)) {
        return "gzip";
    }
    if (startsWith("\xFD"
                   "7zXZ\x00",
                   6)) {
        return "xz";
    }
    if (startsWith("\x28\xB5\x2F\xFD", 4)) {
        return "zstd";
    }
    if (startsWith("BZh", 3)) {
        return "bzip2";
    }
    if (startsWith("MSCF\0\0\0\0", 8)) {
        return "cabinet";
    }
    if (startsWith("PK\x03\x04", 4) || startsWith("PK\x05\x06", 4)) {
        return "zip";
    }
    return std::string();
}

bool IsPacked(const std::string& data) { return !PackedKind(data).empty(); }

std::string Bytes(std::size_t count)
{
    if (count % (std::size_t(1) << 30) == 0) {
        return std::to_string(count >> 30) + " GiB";
    }
    if (count % (std::size_t(1) << 20) == 0) {
        return std::to_string(count >> 20) + " MiB";
    }
    return std::to_string(count) + " bytes";
}

ToolError TooLarge(const std::string& name, const std::string& what, std::size_t limit)
{
    return ToolError("too-large",
                     name + ": " + what + " more than " + Bytes(limit) +
                         " (the limit; set QRMKIT_UNPACK_LIMIT to a number of bytes to change it)",
                     name);
}

bool EndsWithXml(const char* name)
{
    const std::size_t length = name == nullptr ? 0 : std::strlen(name);
    if (length < 4) {
        return false;
    }
    std::string end(name + length - 4);
    for (char& c : end) {
        c = static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    }
    return end == ".xml";
}

struct ArchiveFree {
    void operator()(archive* handle) const { archive_read_free(handle); }
};

// Reads everything from `fd`, at most `limit` bytes.
std::string ReadAll(int fd, const std::string& name, std::size_t limit)
{
    std::string data;
    std::vector<char> buffer(64 * 1024);
    for (;;) {
        const ssize_t got = ::read(fd, buffer.data(), buffer.size());
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            throw ToolError("not-readable", name + ": cannot be read: " + std::strerror(errno), name);
        }
        if (got == 0) {
            return data;
        }
        if (data.size() + static_cast<std::size_t>(got) > limit) {
            throw TooLarge(name, "the input holds", limit);
        }
        data.append(buffer.data(), static_cast<std::size_t>(got));
    }
}

ToolError OpenError(const std::string& path, int error)
{
    switch (error) {
    case ENOENT:
        return ToolError("file-missing", path + ": the file does not exist", path);
    case ENOTDIR:
        return ToolError("file-missing", path + ": the file does not exist (a part of its path is not a directory)",
                         path);
    case EACCES:
    case EPERM:
        return ToolError("not-readable", path + ": permission denied", path);
    default:
        return ToolError("not-readable", path + ": cannot be opened: " + std::strerror(error), path);
    }
}

}  // namespace

std::size_t UnpackLimit()
{
    const char* text = std::getenv("QRMKIT_UNPACK_LIMIT");
    if (text == nullptr || *text == '\0') {
        return kDefaultUnpackLimit;
    }
    char* end = nullptr;
    const unsigned long long value = std::strtoull(text, &end, 10);
    return *end == '\0' && value > 0 ? static_cast<std::size_t>(value) : kDefaultUnpackLimit;
}

std::string InputName(const std::string& path) { return path == "-" ? "standard input" : path; }

void CheckStandardInputOnce(const std::vector<std::string>& paths)
{
    std::size_t readers = 0;
    for (const std::string& path : paths) {
        readers += path == "-" || path == "/dev/stdin" || path == "/proc/self/fd/0" || path == "/dev/fd/0" ? 1 : 0;
    }
    if (readers > 1) {
        throw ToolError("usage", "standard input can be read only once, and " + std::to_string(readers) +
                                     " of the files given are standard input");
    }
}

std::string Unpack(const std::string& name, const std::string& data, std::size_t limit)
{
    if (!IsPacked(data)) {
        return data;
    }
    std::unique_ptr<archive, ArchiveFree> reader(archive_read_new());
    if (!reader) {
        throw ToolError("internal", name + ": no memory to unpack it", name);
    }
    archive* a = reader.get();
    archive_read_support_filter_gzip(a);
    archive_read_support_filter_xz(a);
    archive_read_support_filter_zstd(a);
    archive_read_support_filter_bzip2(a);
    archive_read_support_format_cab(a);
    archive_read_support_format_zip(a);
    archive_read_support_format_raw(a);
    const std::string kind = PackedKind(data);
    const bool isArchive = kind == "cabinet" || kind == "zip";
    auto failure = [&]() {
        const char* detail = archive_error_string(a);
        return ToolError("bad-archive",
                         name + ": the " + kind + (isArchive ? " archive" : " data") + " is corrupt or truncated" +
                             (detail != nullptr ? std::string(" (") + detail + ")" : std::string()),
                         name);
    };
    if (archive_read_open_memory(a, data.data(), data.size()) != ARCHIVE_OK) {
        throw failure();
    }

    std::string document;
    std::vector<std::string> members;
    archive_entry* entry = nullptr;
    int status = ARCHIVE_OK;
    while ((status = archive_read_next_header(a, &entry)) == ARCHIVE_OK) {
        const bool raw = archive_format(a) == ARCHIVE_FORMAT_RAW;
        const char* member = archive_entry_pathname(entry);
        if (!raw && (archive_entry_filetype(entry) != AE_IFREG || !EndsWithXml(member))) {
            continue;  // not an XML member: its data is skipped by the next header
        }
        members.push_back(member != nullptr ? member : "");
        if (members.size() > 1) {
            continue;
        }
        char buffer[64 * 1024];
        for (;;) {
            const la_ssize_t got = archive_read_data(a, buffer, sizeof buffer);
            if (got < 0) {
                throw failure();
            }
            if (got == 0) {
                break;
            }
            if (document.size() + static_cast<std::size_t>(got) > limit) {
                throw TooLarge(name, "unpacks to", limit);
            }
            document.append(buffer, static_cast<std::size_t>(got));
        }
    }
    if (status != ARCHIVE_EOF) {
        throw failure();
    }
    if (members.empty()) {
        throw ToolError("bad-archive", name + ": the archive holds no XML file; it must hold exactly one", name);
    }
    if (members.size() > 1) {
        std::string list;
        for (std::size_t i = 0; i < members.size() && i < 3; ++i) {
            list += (i == 0 ? "" : ", ") + members[i];
        }
        throw ToolError("bad-archive",
                        name + ": the archive holds " + std::to_string(members.size()) + " XML files (" + list +
                            (members.size() > 3 ? ", ..." : "") + "); it must hold exactly one",
                        name);
    }
    if (document.empty()) {
        throw ToolError("empty-input", name + ": the document unpacks to nothing", name);
    }
    return document;
}

InputFile::InputFile(const std::string& path)
{
    const std::string name = InputName(path);
    const int fd = path == "-" ? ::fcntl(0, F_DUPFD_CLOEXEC, 3) : ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        throw OpenError(name, errno);
    }
    struct Closer {
        int fd;
        ~Closer() { ::close(fd); }
    } closer{fd};
    struct stat info;
    if (::fstat(fd, &info) != 0) {
        throw OpenError(name, errno);
    }
    if (S_ISDIR(info.st_mode)) {
        throw ToolError("not-a-file", name + ": this is a directory, not a file", name);
    }
    const std::size_t limit = UnpackLimit();
    std::string data;
    if (S_ISREG(info.st_mode) && path != "-") {
        mHead.resize(kHeadSize);
        const ssize_t got = ::pread(fd, &mHead[0], mHead.size(), 0);
        if (got < 0) {
            throw ToolError("not-readable", name + ": cannot be read: " + std::strerror(errno), name);
        }
        mHead.resize(static_cast<std::size_t>(got));
        if (!IsPacked(mHead)) {
            mLibraryPath = path;  // a plain file: the library reads it where it is
            return;
        }
        data = ReadAll(fd, name, limit);
    } else {
        data = ReadAll(fd, name, limit);
        mHow = path == "-" ? "standard input" : "a pipe";
    }
    if (data.empty()) {
        throw ToolError("empty-input", name + ": the input is empty", name);
    }
    if (IsPacked(data)) {
        mHow = PackedKind(data) + (mHow.empty() ? "" : ", " + mHow);
        data = Unpack(name, data, limit);
    }

    mMemoryFile = ::memfd_create("qrmkit-input", MFD_CLOEXEC);
    if (mMemoryFile < 0) {
        throw ToolError("internal", name + ": no in-memory file for it: " + std::strerror(errno), name);
    }
    for (std::size_t done = 0; done < data.size();) {
        const ssize_t wrote = ::write(mMemoryFile, data.data() + done, data.size() - done);
        if (wrote < 0 && errno == EINTR) {
            continue;
        }
        if (wrote <= 0) {
            const int error = errno;
            ::close(mMemoryFile);
            mMemoryFile = -1;
            throw ToolError("internal", name + ": cannot hold it in memory: " + std::strerror(error), name);
        }
        done += static_cast<std::size_t>(wrote);
    }
    mHead = data.substr(0, kHeadSize);
    mLibraryPath = "/proc/self/fd/" + std::to_string(mMemoryFile);
}

InputFile::~InputFile()
{
    if (mMemoryFile >= 0) {
        ::close(mMemoryFile);
    }
}

std::string RootElementName(const std::string& head)
{
    std::size_t at = head.compare(0, 3, "\xEF\xBB\xBF") == 0 ? 3 : 0;
    auto skipPast = [&](const char* end) {
        const std::size_t found = head.find(end, at);
        at = found == std::string::npos ? head.size() : found + std::strlen(end);
    };
    while (at < head.size()) {
        const char c = head[at];
        if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
            ++at;
        } else if (head.compare(at, 2, "<?") == 0) {
            skipPast("?>");
        } else if (head.compare(at, 4, "<!--") == 0) {
            skipPast("-->");
        } else if (head.compare(at, 9, "<!DOCTYPE") == 0) {
            // Up to the '>' that is not inside the internal subset.
            int depth = 0;
            for (; at < head.size(); ++at) {
                if (head[at] == '[') {
                    ++depth;
                } else if (head[at] == ']') {
                    --depth;
                } else if (head[at] == '>' && depth <= 0) {
                    ++at;
                    break;
                }
            }
        } else if (c == '<') {
            const std::size_t start = at + 1;
            const std::size_t end = head.find_first_of(" \t\r\n/>", start);
            return end == std::string::npos ? std::string() : head.substr(start, end - start);
        } else {
            return std::string();
        }
    }
    return std::string();
}

std::string XmlProblem(const std::string& libraryPath)
{
    // The XML layer's own decision and description, so that the tool never
    // disagrees with the library on what is XML.
    int code = 0;
    VELString text;
    std::unique_ptr<VELXMLDocument> document(VELDOMParser::Parse(VELFile(libraryPath), code, text));
    if (code == 0 && document != nullptr) {
        return std::string();
    }
    if (code >= 1 && code <= 3) {  // not opened, not read, out of memory: no XML problem
        return std::string();
    }
    return text.GetUTF8String();
}

}  // namespace qrmtool
