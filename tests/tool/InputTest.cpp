// How qrmkit reads its input: standard input, pipes and process
// substitution; compressed documents and archives recognised by their
// content; and the clear refusal of what cannot be read: corrupt or
// truncated data, archives without exactly one XML file, decompression
// bombs, unreadable paths, malformed XML, swapped documents.
#include "ToolTestSupport.h"

#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sys/resource.h>
#include <sys/stat.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace tooltest;
using Json = nlohmann::json;

// `members` written as one archive of `format` ("raw" for a single
// compressed stream), through `filter` ("none", "gzip", "xz", "zstd",
// "bzip2").
std::string Pack(const std::string& format, const std::string& filter,
                 const std::vector<std::pair<std::string, std::string>>& members)
{
    archive* writer = archive_write_new();
    if (format == "raw") {
        archive_write_set_format_raw(writer);
    } else {
        archive_write_set_format_zip(writer);
    }
    if (filter == "gzip") {
        archive_write_add_filter_gzip(writer);
    } else if (filter == "xz") {
        archive_write_add_filter_xz(writer);
    } else if (filter == "zstd") {
        archive_write_add_filter_zstd(writer);
    } else if (filter == "bzip2") {
        archive_write_add_filter_bzip2(writer);
    }
    archive_write_set_bytes_in_last_block(writer, 1);
    std::vector<char> buffer(1 << 24);
    std::size_t used = 0;
    EXPECT_EQ(archive_write_open_memory(writer, buffer.data(), buffer.size(), &used), ARCHIVE_OK)
        << archive_error_string(writer);
    for (const auto& member : members) {
        archive_entry* entry = archive_entry_new();
        archive_entry_set_pathname(entry, member.first.c_str());
        archive_entry_set_filetype(entry, AE_IFREG);
        archive_entry_set_perm(entry, 0644);
        archive_entry_set_size(entry, static_cast<la_int64_t>(member.second.size()));
        EXPECT_EQ(archive_write_header(writer, entry), ARCHIVE_OK) << archive_error_string(writer);
        EXPECT_EQ(archive_write_data(writer, member.second.data(), member.second.size()),
                  static_cast<la_ssize_t>(member.second.size()));
        archive_entry_free(entry);
    }
    archive_write_close(writer);
    archive_write_free(writer);
    return std::string(buffer.data(), used);
}

std::string Compress(const std::string& filter, const std::string& text)
{
    return Pack("raw", filter, {{"data", text}});
}

void Put16(std::string& out, std::uint16_t value)
{
    out += static_cast<char>(value & 0xFF);
    out += static_cast<char>(value >> 8);
}

void Put32(std::string& out, std::uint32_t value)
{
    Put16(out, static_cast<std::uint16_t>(value & 0xFFFF));
    Put16(out, static_cast<std::uint16_t>(value >> 16));
}

// A cabinet holding the members uncompressed, in one folder, without
// checksums.
std::string Cabinet(const std::vector<std::pair<std::string, std::string>>& members)
{
    std::string data;
    std::string files;
    for (const auto& member : members) {
        Put32(files, static_cast<std::uint32_t>(member.second.size()));
        Put32(files, static_cast<std::uint32_t>(data.size()));  // offset in the folder
        Put16(files, 0);                                        // folder
        Put16(files, 0x5821);                                   // date
        Put16(files, 0);                                        // time
        Put16(files, 0x20);                                     // attributes
        files += member.first + '\0';
        data += member.second;
    }
    const std::size_t block = 32768;
    const std::size_t blocks = data.empty() ? 0 : (data.size() + block - 1) / block;
    const std::uint32_t headerSize = 36;
    const std::uint32_t folderSize = 8;
    const std::uint32_t dataStart = headerSize + folderSize + static_cast<std::uint32_t>(files.size());
    const std::uint32_t total = dataStart + static_cast<std::uint32_t>(blocks * 8 + data.size());
    std::string cab = "MSCF";
    Put32(cab, 0);
    Put32(cab, total);
    Put32(cab, 0);
    Put32(cab, headerSize + folderSize);  // the first file entry
    Put32(cab, 0);
    cab += '\x03';
    cab += '\x01';
    Put16(cab, 1);  // folders
    Put16(cab, static_cast<std::uint16_t>(members.size()));
    Put16(cab, 0);  // flags
    Put16(cab, 0);  // set id
    Put16(cab, 0);  // cabinet number
    Put32(cab, dataStart);
    Put16(cab, static_cast<std::uint16_t>(blocks));
    Put16(cab, 0);  // no compression
    cab += files;
    for (std::size_t at = 0; at < data.size(); at += block) {
        const std::string chunk = data.substr(at, block);
        Put32(cab, 0);  // no checksum
        Put16(cab, static_cast<std::uint16_t>(chunk.size()));
        Put16(cab, static_cast<std::uint16_t>(chunk.size()));
        cab += chunk;
    }
    return cab;
}

class InputTest : public ToolTest {
protected:
    void TearDown() override
    {
        for (const auto& saved : mSaved) {
            if (saved.second.first) {
                setenv(saved.first.c_str(), saved.second.second.c_str(), 1);
            } else {
                unsetenv(saved.first.c_str());
            }
        }
        ToolTest::TearDown();
    }

    // Sets an environment variable for the tools this test runs; the test's
    // end restores it.
    void SetEnv(const std::string& name, const std::string& value)
    {
        if (mSaved.count(name) == 0) {
            const char* old = std::getenv(name.c_str());
            mSaved[name] = {old != nullptr, old != nullptr ? old : ""};
        }
        setenv(name.c_str(), value.c_str(), 1);
    }

    // What 'updates --json' gives, without the two paths.
    static Json Answer(const Result& result)
    {
        EXPECT_EQ(result.status, 0) << result.out << result.err;
        Json document = Json::parse(result.out.empty() ? "{}" : result.out);
        document.erase("catalog");
        document.erase("inventory");
        return document;
    }

    Json Plain() { return Answer(Run({"updates", "--catalog", kCatalog, "--inventory", kInventory, "--json"})); }

    // The tool run by bash with `script` (in which $TOOL names it); output
    // in files as for Run.
    Result Bash(const std::string& script)
    {
        SetEnv("TOOL", kTool);
        const std::string outPath = Path("stdout.txt");
        const std::string errPath = Path("stderr.txt");
        const std::string line = "bash -c '" + script + "' >" + outPath + " 2>" + errPath;
        const int status = std::system(line.c_str());
        Result result;
        result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        result.out = ReadFile(outPath);
        result.err = ReadFile(errPath);
        return result;
    }

    std::map<std::string, std::pair<bool, std::string>> mSaved;

    static void ExpectJsonError(const Result& result, const std::string& code, const std::string& file,
                                const std::string& part, int status = 2)
    {
        EXPECT_EQ(result.status, status);
        EXPECT_EQ(result.err, "");
        Json document = Json::parse(result.out);
        EXPECT_EQ(document["error"]["code"], code) << result.out;
        EXPECT_EQ(document["error"]["file"], file) << result.out;
        EXPECT_TRUE(Contains(document["error"]["message"].get<std::string>(), part)) << result.out;
    }
};

TEST_F(InputTest, CompressedDocumentsAreRecognisedByTheirContentNotTheirName)
{
    const Json plain = Plain();
    for (const char* filter : {"gzip", "xz", "zstd", "bzip2"}) {
        const std::string catalog = Path(std::string("catalog-") + filter + ".dat");
        const std::string inventory = Path(std::string("inventory-") + filter + ".xml");
        WriteFile(catalog, Compress(filter, ReadFile(kCatalog)));
        WriteFile(inventory, Compress(filter, ReadFile(kInventory)));
        EXPECT_NE(ReadFile(catalog).substr(0, 5), "<?xml") << filter;
        EXPECT_EQ(Answer(Run({"updates", "--catalog", catalog, "--inventory", inventory, "--json"})), plain) << filter;
    }
}

TEST_F(InputTest, CabinetOrZipWithOneXmlFileIsRead)
{
    const Json plain = Plain();
    const std::string cab = Path("catalog.cab");
    WriteFile(cab, Cabinet({{"readme.txt", "Read me."}, {"Catalog.XML", ReadFile(kCatalog)}}));
    EXPECT_EQ(Answer(Run({"updates", "--catalog", cab, "--inventory", kInventory, "--json"})), plain);

    const std::string zip = Path("inventory.zip");
    WriteFile(zip, Pack("zip", "none", {{"inventory.xml", ReadFile(kInventory)}, {"notes.txt", "x"}}));
    EXPECT_EQ(Answer(Run({"updates", "--catalog", cab, "--inventory", zip, "--json"})), plain);
}

TEST_F(InputTest, ArchiveWithoutExactlyOneXmlFileIsRefused)
{
    const std::string two = Path("two.cab");
    WriteFile(two, Cabinet({{"a.xml", ReadFile(kCatalog)}, {"b.xml", ReadFile(kCatalog)}}));
    ExpectFailure(Run({"catalog", "--catalog", two}),
                  {two + ": the archive holds 2 XML files (a.xml, b.xml); it must hold exactly one"});
    ExpectJsonError(Run({"catalog", "--catalog", two, "--json"}), "bad-archive", two, "2 XML files");

    const std::string none = Path("none.zip");
    WriteFile(none, Pack("zip", "none", {{"readme.txt", "no document here"}}));
    ExpectFailure(Run({"inventory", "--inventory", none}), {none, "holds no XML file"});
}

TEST_F(InputTest, CorruptOrTruncatedCompressedDataIsRefused)
{
    const std::string gzip = Compress("gzip", ReadFile(kCatalog));
    const std::string truncated = Path("truncated.gz");
    WriteFile(truncated, gzip.substr(0, gzip.size() / 2));
    ExpectFailure(Run({"catalog", "--catalog", truncated}), {truncated + ": the gzip data is corrupt or truncated"});
    ExpectJsonError(Run({"catalog", "--catalog", truncated, "--json"}), "bad-archive", truncated, "truncated");

    std::string xz = Compress("xz", ReadFile(kInventory));
    for (std::size_t at = 40; at < xz.size() && at < 80; ++at) {
        xz[at] = static_cast<char>(~xz[at]);
    }
    const std::string corrupt = Path("corrupt.xz");
    WriteFile(corrupt, xz);
    ExpectFailure(Run({"inventory", "--inventory", corrupt}), {corrupt + ": the xz data is corrupt or truncated"});

    const std::string cab = Cabinet({{"catalog.xml", ReadFile(kCatalog)}});
    const std::string cut = Path("cut.cab");
    WriteFile(cut, cab.substr(0, cab.size() - 1000));
    ExpectFailure(Run({"catalog", "--catalog", cut}), {cut + ": the cabinet archive is corrupt or truncated"});
}

TEST_F(InputTest, DecompressionBombStopsAtTheLimit)
{
    const std::string bomb = Path("bomb.gz");
    WriteFile(bomb, Compress("gzip", "<a>" + std::string(20 << 20, ' ') + "</a>"));
    EXPECT_LT(ReadFile(bomb).size(), 100000U);
    SetEnv("QRMKIT_UNPACK_LIMIT", "1000000");
    ExpectFailure(Run({"catalog", "--catalog", bomb}),
                  {bomb + ": unpacks to more than 1000000 bytes (the limit; set QRMKIT_UNPACK_LIMIT"});
    ExpectJsonError(Run({"catalog", "--catalog", bomb, "--json"}), "too-large", bomb, "unpacks to more than");

    Result piped = Bash("head -c 2000000 /dev/zero | \"$TOOL\" catalog --catalog -");
    ExpectFailure(piped, {"standard input: the input holds more than 1000000 bytes"});
}

TEST_F(InputTest, DecompressionBombTakesNoMoreMemoryThanTheLimitAllows)
{
    const std::string bomb = Path("bomb.gz");
    WriteFile(bomb, Compress("gzip", "<a>" + std::string(std::size_t(200) << 20, ' ') + "</a>"));
    EXPECT_LT(ReadFile(bomb).size(), 1000000U);
    SetEnv("QRMKIT_UNPACK_LIMIT", "1000000");
    pid_t child = StartTool({"catalog", "--catalog", bomb}, Path("out.txt"), Path("err.txt"));
    int status = 0;
    rusage usage{};
    ASSERT_EQ(wait4(child, &status, 0, &usage), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 2) << ReadFile(Path("err.txt"));
    EXPECT_TRUE(Contains(ReadFile(Path("err.txt")), "unpacks to more than 1000000 bytes"));
    EXPECT_LT(usage.ru_maxrss, 100L * 1024) << "kilobytes at the peak, for 200 MiB unpacked";
}

TEST_F(InputTest, UnpackingWritesNoFile)
{
    const std::string scratch = Path("scratch");
    ASSERT_EQ(mkdir(scratch.c_str(), 0700), 0);
    SetEnv("TMPDIR", scratch);
    const std::string catalog = Path("catalog.gz");
    WriteFile(catalog, Compress("gzip", ReadFile(kCatalog)));
    SetEnv("CATALOG", catalog);
    SetEnv("INVENTORY", kInventory);
    Result result = Bash("cd \"$TMPDIR\" && \"$TOOL\" updates --catalog \"$CATALOG\" --inventory - < \"$INVENTORY\"");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_TRUE(std::filesystem::is_empty(scratch)) << "nothing in TMPDIR nor in the working directory";
}

TEST_F(InputTest, StandardInputPipesAndProcessSubstitutionAreRead)
{
    const Json plain = Plain();
    SetEnv("CATALOG", kCatalog);
    SetEnv("INVENTORY", kInventory);
    EXPECT_EQ(Answer(Bash("\"$TOOL\" updates --catalog \"$CATALOG\" --inventory - --json < \"$INVENTORY\"")), plain)
        << "standard input from a file";
    EXPECT_EQ(Answer(Bash("cat \"$INVENTORY\" | \"$TOOL\" updates --catalog \"$CATALOG\" --inventory - --json")),
              plain);
    EXPECT_EQ(Answer(Bash("gzip -c \"$CATALOG\" | \"$TOOL\" updates --catalog /dev/stdin --inventory \"$INVENTORY\" "
                          "--json")),
              plain)
        << "/dev/stdin, compressed";
    EXPECT_EQ(Answer(Bash("\"$TOOL\" updates --catalog <(gzip -c \"$CATALOG\") --inventory <(cat \"$INVENTORY\") "
                          "--json")),
              plain)
        << "process substitution";
}

TEST_F(InputTest, StandardInputCanBeReadOnlyOnce)
{
    Result twice = Run({"updates", "--catalog", "-", "--inventory", "/dev/stdin"});
    ExpectFailure(twice, {"standard input can be read only once"}, 64);
    ExpectFailure(Run({"fleet", "--catalog", kCatalog, "-", "-"}), {"standard input can be read only once"}, 64);
}

TEST_F(InputTest, EmptyStandardInputIsRefused)
{
    ExpectFailure(Bash("\"$TOOL\" catalog --catalog - < /dev/null"), {"standard input: the input is empty"});
    Result json = Bash("\"$TOOL\" catalog --catalog - --json < /dev/null");
    ExpectJsonError(json, "empty-input", "standard input", "the input is empty");
}

TEST_F(InputTest, MalformedXmlIsNamedWithLineAndColumn)
{
    const std::string bad = Path("bad.xml");
    WriteFile(bad, "<?xml version=\"1.0\"?>\n<Root>\n  <SoftwareBundle>\n</Root>\n");
    ExpectFailure(Run({"catalog", "--catalog", bad}),
                  {bad + ": not well-formed XML: line 4, column 3: start-end tags mismatch"});
    ExpectJsonError(Run({"inventory", "--inventory", bad, "--json"}), "not-xml", bad, "line 4, column 3");

    const std::string packed = Path("bad.gz");
    WriteFile(packed, Compress("gzip", "<SVMInventory lang=\"en\">\n<Device>\n"));
    ExpectFailure(Run({"inventory", "--inventory", packed}),
                  {packed + ": not well-formed XML: line 2, column 9: start-end tags mismatch"});
}

TEST_F(InputTest, ReadErrorsNameTheirCause)
{
    ExpectFailure(Run({"catalog", "--catalog", mDir}), {mDir + ": this is a directory, not a file"});
    ExpectFailure(Run({"catalog", "--catalog", Path("absent.xml")}), {"absent.xml: the file does not exist"});
    ExpectFailure(Run({"catalog", "--catalog", kCatalog + "/below.xml"}),
                  {"the file does not exist (a part of its path is not a directory)"});

    // Permission denied: a file nobody may read, read by a user who is not
    // its owner (also when the tests run as root).
    const std::string secret = Path("secret.xml");
    WriteFile(secret, ReadFile(kCatalog));
    ASSERT_EQ(chmod(secret.c_str(), 0), 0);
    ASSERT_EQ(chmod(mDir.c_str(), 0777), 0);
    const std::string as = geteuid() == 0 ? "setpriv --reuid=65534 --regid=65534 --clear-groups " : "";
    SetEnv("SECRET", secret);
    Result denied = Bash(as + "\"$TOOL\" catalog --catalog \"$SECRET\" --json");
    ExpectJsonError(denied, "not-readable", secret, "permission denied");
}

TEST_F(InputTest, SwappedDocumentsAreRefusedByTheirRootElement)
{
    ExpectFailure(Run({"updates", "--catalog", kInventory, "--inventory", kCatalog}),
                  {kInventory + ": this looks like an inventory, not a catalog (its root element is SVMInventory); "
                                "did you swap --catalog and --inventory?"});
    ExpectFailure(Run({"catalog", "--catalog", kInventory}), {"this looks like an inventory"});
    ExpectFailure(Run({"inventory", "--inventory", kCatalog}),
                  {kCatalog + ": this looks like a catalog, not an inventory (its root element is Manifest); did "
                              "you swap --catalog and --inventory?"});
    ExpectJsonError(Run({"catalog", "--catalog", kInventory, "--json"}), "not-a-catalog", kInventory, "did you swap");

    // Comments, a declaration and a document type before the root do not hide it.
    const std::string wrapped = Path("wrapped.xml");
    WriteFile(wrapped, "\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<!-- <Manifest> -->\n<!DOCTYPE SVMInventory [\n"
                       "<!ENTITY e \"x\">]>\n" +
                           ReadFile(kInventory).substr(ReadFile(kInventory).find("<SVMInventory")));
    ExpectFailure(Run({"catalog", "--catalog", wrapped}), {"this looks like an inventory"});
    EXPECT_EQ(Run({"inventory", "--inventory", wrapped}).status, 0);
}

TEST_F(InputTest, FleetReadsCompressedInventoriesAndReportsBrokenOnesAsTheirLines)
{
    const std::string catalog = Path("catalog.zst");
    WriteFile(catalog, Compress("zstd", ReadFile(kCatalog)));
    const std::string good = Path("good.xml");
    WriteFile(good, Compress("xz", ReadFile(kInventory)));
    const std::string gzip = Compress("gzip", ReadFile(kInventory));
    const std::string broken = Path("broken.xml");
    WriteFile(broken, gzip.substr(0, gzip.size() - 20));
    Result result = Run({"fleet", "--catalog", catalog, "--format", "jsonl", good, broken});
    EXPECT_EQ(result.status, 3) << result.err;
    std::vector<std::string> lines = Lines(result.out);
    ASSERT_EQ(lines.size(), 2U) << result.out;
    Json first = Json::parse(lines[0]);
    Json second = Json::parse(lines[1]);
    EXPECT_EQ(first["summary"]["newer"], 7);
    EXPECT_EQ(second["inventory"], broken);
    EXPECT_EQ(second["error"]["code"], "bad-archive");
    EXPECT_TRUE(Contains(second["error"]["message"].get<std::string>(), "gzip data is corrupt or truncated"));
}

}  // namespace
