// Tests of `qrmkit fleet`: every computer's answer is exactly the one
// `qrmkit updates --json` gives for it alone, in input order, whatever the
// number of jobs or shards; faulty inventories and dying children become
// error lines; the exit statuses, the table, the progress line and the HTML
// page as a real browser builds it.
#include "ToolTestSupport.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <random>
#include <set>
#include <thread>

namespace {

using namespace tooltest;
using Json = nlohmann::json;

// ----------------------------------------------------------- inventories

// Devices the example catalog has packages for (by component id, by PCI ids
// with exact sub-ids or through the catalog's 0/0 entry, or with sub-ids it
// does not list), and one it knows nothing of. %1 and %2 stand for the
// installed versions of the device's applications.
const std::vector<std::string> kDevices = {
    R"(<Device componentID="159" display="BIOS"><Application componentType="BIOS" version="%1" display="BIOS"/></Device>)",
    R"(<Device componentID="25227" display="Remote access controller"><Application componentType="FRMW" version="%1" display="Remote access controller firmware"/></Device>)",
    R"(<Device componentID="27763" display="Power supply"><Application componentType="FRMW" version="%1" display="Power supply firmware"/></Device>)",
    R"(<Device componentID="25803" display="Backplane"><Application componentType="FRMW" version="%1" display="Backplane expander firmware"/></Device>)",
    R"(<Device vendorID="8086" deviceID="1593" subVendorID="1028" subDeviceID="0A6B" bus="59" device="0" function="0" display="Dual-port 25GbE adapter"><Application componentType="FRMW" version="%1" display="25GbE adapter firmware"/><Application componentType="DRVR" version="%2" display="25GbE adapter driver"/></Device>)",
    R"(<Device vendorID="8086" deviceID="1593" subVendorID="1028" subDeviceID="1234" bus="60" device="0" function="0" display="25GbE adapter, other board"><Application componentType="FRMW" version="%1" display="25GbE firmware"/></Device>)",
    R"(<Device vendorID="1000" deviceID="10E2" subVendorID="1028" subDeviceID="2171" bus="24" device="0" function="0" display="RAID controller"><Application componentType="FRMW" version="%1" display="RAID controller firmware"/><Application componentType="DRVR" version="%2" display="RAID controller driver"/></Device>)",
    R"(<Device vendorID="1000" deviceID="10E2" subVendorID="1028" subDeviceID="9999" bus="25" device="0" function="0" display="RAID controller, other board"><Application componentType="DRVR" version="%1" display="RAID driver"/></Device>)",
    R"(<Device vendorID="14E4" deviceID="165F" subVendorID="1028" subDeviceID="1F5B" bus="4" device="0" function="1" display="Quad-port 1GbE adapter"><Application componentType="FRMW" version="%1" display="1GbE adapter firmware"/></Device>)",
    R"(<Device vendorID="144D" deviceID="2262" subVendorID="1028" subDeviceID="2005" bus="7" device="0" function="0" display="NVMe drive"><Application componentType="FRMW" version="%1" display="NVMe firmware"/></Device>)",
    R"(<Device vendorID="102B" deviceID="0536" subVendorID="1028" subDeviceID="0A6B" bus="3" device="0" function="0" display="Video controller"><Application componentType="DRVR" version="%1" display="Video driver"/></Device>)",
    R"(<Device componentID="18981" display="Systems management agent"><Application componentType="APAC" version="%1" display="Systems management agent"/></Device>)",
    R"(<Device componentID="101" display="Update agent"><Application componentType="APP" version="%1" display="Update agent"/></Device>)",
};
const std::string kUnknownDevice =
    R"(<Device vendorID="ABCD" deviceID="%1" subVendorID="1028" subDeviceID="0001" display="Unlisted device %1"><Application componentType="DRVR" version="%2" display="Unlisted driver"/></Device>)";
const std::vector<std::string> kVersions = {"1.0.0",   "2.3.9",  "2.4.1",     "22.0.9", "22.5.7",   "21.85.0",
                                            "7.10.30", "1.13.2", "9. 15 .1",  "5.1.4",  "99.99.99", "0.0.1",
                                            "",        "abc",    "1.2.3.4.5", "3.2.7",  "52.22.0"};

std::string Fill(std::string text, const std::string& first, const std::string& second)
{
    for (const auto& [mark, value] : {std::pair<std::string, std::string>{"%1", first}, {"%2", second}}) {
        for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at + value.size())) {
            text.replace(at, mark.size(), value);
        }
    }
    return text;
}

// A varied inventory, the same for the same number: systems with and
// without bundles (or no single system), 32- and 64-bit, devices the
// catalog knows and does not know with installed versions older, equal,
// newer or not comparable, and now and then a file that does not read.
std::string GeneratedInventory(unsigned number)
{
    std::mt19937 random(number * 7919U + 17U);
    auto pick = [&random](std::size_t count) { return static_cast<std::size_t>(random() % count); };
    const unsigned kind = number % 13;
    if (kind == 5) {
        switch (number % 4) {
        case 0:
            return "";
        case 1:
            return "this is not an inventory\n";
        case 2:
            return "<?xml version=\"1.0\"?>\n<SVMInventory lang=\"en\"><Device componentID=\"159\"";
        default:
            return "<?xml version=\"1.0\"?>\n<SVMInventory schemaVersion=\"1.0\"></SVMInventory>\n";
        }
    }
    const std::vector<std::string> systems = {"0A6B", "0A6B", "0A6C", "0B12", "0FFF", "1234"};
    std::string xml = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<SVMInventory lang=\"en\" schemaVersion=\"1.0\" "
                      "timeStamp=\"1763700000\">\n";
    if (kind != 7) {
        xml += std::string("<OperatingSystem osArch=\"") + (pick(4) == 0 ? "x86" : "x64") +
               "\" osCode=\"W22\" osVendor=\"Example\" majorVersion=\"10\" minorVersion=\"0\" spMajorVersion=\"0\" "
               "spMinorVersion=\"0\" preinstallationEnvironment=\"false\" suiteMask=\"400\"/>\n";
    }
    const std::string system = systems[pick(systems.size())];
    if (kind != 9) {
        xml += "<System systemID=\"" + system + "\" display=\"M\" serviceTag=\"T" + std::to_string(number) +
               "\" systemIDType=\"BIOS\"/>\n";
    }
    if (kind == 11) {  // two systems: no single system id
        xml += "<System systemID=\"0A6C\" display=\"M\" serviceTag=\"U\" systemIDType=\"BIOS\"/>\n";
    }
    if (kind == 3) {  // shares nothing with the catalog
        for (unsigned i = 0; i < 1 + pick(5); ++i) {
            xml += Fill(kUnknownDevice, std::to_string(1000 + i), kVersions[pick(kVersions.size())]) + "\n";
        }
    } else {
        for (const std::string& device : kDevices) {
            if (pick(3) != 0) {
                xml += Fill(device, kVersions[pick(kVersions.size())], kVersions[pick(kVersions.size())]) + "\n";
            }
        }
        if (pick(2) == 0) {
            xml += Fill(kUnknownDevice, "2000", kVersions[pick(kVersions.size())]) + "\n";
        }
    }
    return xml + "</SVMInventory>\n";
}

// An inventory of `devices` distinct devices: reading it takes seconds,
// since every new device is compared with every one stored before it.
std::string SlowInventory(unsigned devices)
{
    std::string xml = "<?xml version=\"1.0\"?>\n<SVMInventory lang=\"en\" schemaVersion=\"1.0\">\n"
                      "<System systemID=\"0A6B\" display=\"M\" serviceTag=\"S\" systemIDType=\"BIOS\"/>\n";
    for (unsigned i = 0; i < devices; ++i) {
        xml += "<Device componentID=\"" + std::to_string(100000 + i) + "\" display=\"D\"/>\n";
    }
    return xml + "</SVMInventory>\n";
}

// ----------------------------------------------------------------- fixture

class FleetTest : public ToolTest {
protected:
    // Writes `count` generated inventories into a directory of their own.
    std::string GenerateFleet(const std::string& name, unsigned first, unsigned count)
    {
        std::string dir = Path(name);
        std::filesystem::create_directory(dir);
        for (unsigned number = first; number < first + count; ++number) {
            char file[32];
            std::snprintf(file, sizeof file, "/inv-%04u.xml", number);
            WriteFile(dir + file, GeneratedInventory(number));
        }
        return dir;
    }

    // The fleet's JSON lines, parsed.
    static std::vector<Json> ParseLines(const std::string& out)
    {
        std::vector<Json> lines;
        for (const std::string& line : Lines(out)) {
            lines.push_back(Json::parse(line));
        }
        return lines;
    }

    // Checks that every fleet line is exactly what `updates --json` says of
    // that inventory alone: the same document, or, where updates fails, an
    // error with the same code and message.
    void ExpectSameAsUpdatesAlone(const std::vector<Json>& lines, const std::string& bundleType, std::size_t& evaluated,
                                  std::size_t& failed)
    {
        for (const Json& line : lines) {
            const std::string inventory = line["inventory"];
            Result alone = Run(
                {"updates", "--catalog", kCatalog, "--inventory", inventory, "--bundle-type", bundleType, "--json"});
            if (alone.status == 0) {
                ++evaluated;
                EXPECT_FALSE(line.contains("error")) << line.dump();
                EXPECT_EQ(line, Json::parse(alone.out)) << inventory;
            } else {
                ++failed;
                ASSERT_TRUE(alone.status == 2 || alone.status == 4) << inventory;
                EXPECT_EQ(alone.status == 4, line["error"]["code"] == "no-bundle") << inventory;
                ASSERT_TRUE(line.contains("error")) << line.dump();
                EXPECT_EQ(line.size(), 3U);
                EXPECT_EQ(line["schema_version"], 1);
                const Json error = Json::parse(alone.out)["error"];
                EXPECT_EQ(line["error"]["code"], error["code"]) << inventory;
                EXPECT_EQ(line["error"]["message"], error["message"]) << inventory;
                EXPECT_EQ(error["file"], inventory);
            }
        }
    }

    // The document headless Chromium builds from a page, after its scripts
    // have run.
    std::string BrowserDom(const std::string& page, const std::string& fragment = "")
    {
        const std::string domPath = Path("dom.html");
        const std::string command =
            "timeout 120 chromium --headless --no-sandbox --disable-gpu --disable-quic --no-first-run "
            "--disable-background-networking --disable-component-update --disable-sync "
            "--user-data-dir=" +
            Path("profile") + " --dump-dom 'file://" + page + fragment + "' > " + domPath + " 2>/dev/null";
        EXPECT_EQ(std::system(command.c_str()), 0) << command;
        return ReadFile(domPath);
    }

    // The inventories of the rows the page shows, in order.
    static std::vector<std::string> RowInventories(const std::string& dom)
    {
        std::vector<std::string> inventories;
        const std::string mark = "data-inventory=\"";
        for (std::size_t at = dom.find(mark); at != std::string::npos; at = dom.find(mark, at + 1)) {
            const std::size_t start = at + mark.size();
            inventories.push_back(dom.substr(start, dom.find('"', start) - start));
        }
        return inventories;
    }

    // Runs a fleet of one job over a slow inventory (written to slow.xml)
    // followed by `inventories`, kills the child evaluating the slow one
    // with `signal`, and gives the fleet's exit status. Output goes to
    // out.txt and err.txt.
    int KillTheFirstChild(const std::vector<std::string>& inventories, int signal)
    {
        WriteFile(Path("slow.xml"), SlowInventory(60000));
        std::vector<std::string> args = {"fleet", "--catalog", kCatalog, "--jobs", "1"};
        args.insert(args.end(), inventories.begin(), inventories.end());
        pid_t tool = StartTool(args, Path("out.txt"), Path("err.txt"));
        // With one job, the first child is the one reading the slow inventory.
        std::vector<pid_t> children;
        for (int tries = 0; tries < 500 && children.empty(); ++tries) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
            children = Children(tool);
        }
        EXPECT_EQ(children.size(), 1U);
        if (children.size() == 1U) {
            EXPECT_EQ(kill(children[0], signal), 0);
        }
        return ExitStatus(tool);
    }

    // The children of a process, from /proc.
    static std::vector<pid_t> Children(pid_t pid)
    {
        std::istringstream in(ReadFile("/proc/" + std::to_string(pid) + "/task/" + std::to_string(pid) + "/children"));
        std::vector<pid_t> children;
        for (pid_t child; in >> child;) {
            children.push_back(child);
        }
        return children;
    }
};

// ------------------------------------------------------------ equivalence

TEST_F(FleetTest, EveryComputerGetsExactlyWhatUpdatesGivesItAlone)
{
    const std::string dir = GenerateFleet("fleet", 0, 260);
    Result fleet = Run({"fleet", "--catalog", kCatalog, "--jobs", "3", dir});
    EXPECT_EQ(fleet.status, 3) << "some generated inventories do not read";
    EXPECT_EQ(fleet.err, "");
    std::vector<Json> lines = ParseLines(fleet.out);
    ASSERT_EQ(lines.size(), 260U);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        char file[32];
        std::snprintf(file, sizeof file, "/inv-%04zu.xml", i);
        EXPECT_EQ(lines[i]["inventory"], dir + file) << "results come in input order";
    }
    for (const std::string& line : Lines(fleet.out)) {
        EXPECT_EQ(line.rfind("{\"inventory\":", 0), 0U) << "the inventory comes first";
    }
    std::size_t evaluated = 0;
    std::size_t failed = 0;
    ExpectSameAsUpdatesAlone(lines, "auto", evaluated, failed);
    EXPECT_GT(evaluated, 120U);
    EXPECT_GT(failed, 40U);

    std::set<std::string> bundles;
    std::set<std::string> codes;
    std::size_t sharesNothing = 0;
    for (const Json& line : lines) {
        if (line.contains("error")) {
            codes.insert(line["error"]["code"].get<std::string>());
        } else {
            bundles.insert(line["bundle"]["id"].get<std::string>());
            sharesNothing += line["updates"].empty() ? 1 : 0;
        }
    }
    EXPECT_EQ(bundles, (std::set<std::string>{"S740W64.00041", "S750W64.00043", "T360W64.00045"}));
    EXPECT_TRUE(codes.count("no-bundle") == 1 && codes.count("not-an-inventory") == 1) << fleet.out;
    EXPECT_GT(sharesNothing, 10U);
}

TEST_F(FleetTest, AnExplicitBundleTypeGivesWhatUpdatesGivesWithIt)
{
    const std::string dir = GenerateFleet("fleet", 300, 60);
    Result fleet = Run({"fleet", "--catalog", kCatalog, "--bundle-type", "BTLX", dir});
    EXPECT_EQ(fleet.status, 3);
    std::vector<Json> lines = ParseLines(fleet.out);
    ASSERT_EQ(lines.size(), 60U);
    std::size_t evaluated = 0;
    std::size_t failed = 0;
    ExpectSameAsUpdatesAlone(lines, "BTLX", evaluated, failed);
    EXPECT_GT(evaluated, 20U);
    for (const Json& line : lines) {
        if (!line.contains("error")) {
            EXPECT_EQ(line["bundle"]["type"], "BTLX");
            EXPECT_EQ(line["bundle"]["selection"], "requested");
        }
    }
}

TEST_F(FleetTest, OneJobAndManyJobsGiveTheSameOutput)
{
    const std::string dir = GenerateFleet("fleet", 400, 40);
    Result one = Run({"fleet", "--catalog", kCatalog, "--jobs", "1", dir});
    Result many = Run({"fleet", "--catalog", kCatalog, "--jobs", "8", dir});
    EXPECT_EQ(one.status, many.status);
    EXPECT_EQ(Lines(one.out).size(), 40U);
    EXPECT_EQ(one.out, many.out);
}

TEST_F(FleetTest, InventoriesDoNotMixEvenWhenTheyAreTheSameFile)
{
    // One process reading the same inventory twice would hold both copies;
    // every fleet child holds one.
    Result fleet = Run({"fleet", "--catalog", kCatalog, kInventory, kInventory, kInventory});
    EXPECT_EQ(fleet.status, 0) << fleet.err;
    std::vector<Json> lines = ParseLines(fleet.out);
    ASSERT_EQ(lines.size(), 3U);
    Result alone = Run({"updates", "--catalog", kCatalog, "--inventory", kInventory, "--json"});
    for (const Json& line : lines) {
        EXPECT_EQ(line, Json::parse(alone.out));
        EXPECT_EQ(line["summary"]["updates"], 10);
    }
}

// ------------------------------------------------------------------ inputs

TEST_F(FleetTest, ADirectoryMeansItsXmlFilesSortedByNameAndArgumentsKeepTheirOrder)
{
    const std::string dir = Path("dir");
    std::filesystem::create_directories(dir + "/sub.xml");
    WriteFile(dir + "/b.xml", ReadFile(kInventory));
    WriteFile(dir + "/a.xml", ReadFile(kInventory));
    WriteFile(dir + "/C.xml", ReadFile(kInventory));
    WriteFile(dir + "/notes.txt", "not an inventory");
    WriteFile(dir + "/.hidden.xml", ReadFile(kInventory));
    WriteFile(dir + "/sub.xml/inner.xml", ReadFile(kInventory));
    const std::string single = Path("single.xml");
    WriteFile(single, ReadFile(kInventory));

    Result fleet = Run({"fleet", "--catalog", kCatalog, single, dir, dir + "/"});
    EXPECT_EQ(fleet.status, 0) << fleet.out;
    std::vector<std::string> order;
    for (const Json& line : ParseLines(fleet.out)) {
        order.push_back(line["inventory"]);
    }
    EXPECT_EQ(order, (std::vector<std::string>{single, dir + "/C.xml", dir + "/a.xml", dir + "/b.xml", dir + "/C.xml",
                                               dir + "/a.xml", dir + "/b.xml"}));
}

TEST_F(FleetTest, AMissingInventoryIsThatInventorysErrorAndTheRunGoesOn)
{
    Result fleet = Run({"fleet", "--catalog", kCatalog, Path("missing.xml"), kInventory});
    EXPECT_EQ(fleet.status, 3);
    std::vector<Json> lines = ParseLines(fleet.out);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0], Json::parse(R"({"inventory": ")" + Path("missing.xml") + R"(", "schema_version": 1,
                  "error": {"code": "file-missing",
                  "message": ")" + Path("missing.xml") +
                                    R"(: the file does not exist"}})"));
    EXPECT_EQ(lines[1]["summary"]["updates"], 10);
}

TEST_F(FleetTest, ShardsTakeEveryNthInventoryAndTogetherGiveTheWhole)
{
    const std::string dir = GenerateFleet("fleet", 500, 23);
    Result whole = Run({"fleet", "--catalog", kCatalog, dir});
    std::vector<std::string> all = Lines(whole.out);
    ASSERT_EQ(all.size(), 23U);
    std::multiset<std::string> together;
    for (unsigned k = 1; k <= 3; ++k) {
        Result shard = Run({"fleet", "--catalog", kCatalog, "--shard", std::to_string(k) + "/3", dir});
        std::vector<std::string> lines = Lines(shard.out);
        std::vector<std::string> expected;
        for (std::size_t p = k - 1; p < all.size(); p += 3) {
            expected.push_back(all[p]);
        }
        EXPECT_EQ(lines, expected) << "shard " << k;
        together.insert(lines.begin(), lines.end());
    }
    EXPECT_EQ(together, std::multiset<std::string>(all.begin(), all.end()));

    Result beyond = Run({"fleet", "--catalog", kCatalog, "--shard", "30/30", dir});
    EXPECT_EQ(beyond.status, 0);
    EXPECT_EQ(beyond.out, "");
}

TEST_F(FleetTest, BadShardsAndJobsAreUsageErrors)
{
    for (const char* shard : {"0/3", "4/3", "3", "a/b", "1/0", "-1/3", "1/3x", "/3"}) {
        Result result = Run({"fleet", "--catalog", kCatalog, "--shard", shard, kInventory});
        EXPECT_EQ(result.status, 64) << shard;
        EXPECT_EQ(result.out, "") << shard;
        EXPECT_TRUE(Contains(result.err, "K/N")) << shard << ": " << result.err;
    }
    for (const char* jobs : {"0", "-2", "many"}) {
        Result result = Run({"fleet", "--catalog", kCatalog, "--jobs", jobs, kInventory});
        EXPECT_EQ(result.status, 64) << jobs;
    }
    Result none = Run({"fleet", "--catalog", kCatalog});
    EXPECT_EQ(none.status, 64);
    EXPECT_TRUE(Contains(none.err, "INVENTORY")) << none.err;
}

// ------------------------------------------------------------ dying children

TEST_F(FleetTest, AChildKilledByASignalIsThatInventorysErrorAndTheRunGoesOn)
{
    const std::string slow = Path("slow.xml");
    EXPECT_EQ(KillTheFirstChild({slow, kInventory}, SIGABRT), 3);
    std::vector<Json> lines = ParseLines(ReadFile(Path("out.txt")));
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0]["inventory"], slow);
    EXPECT_EQ(lines[0]["error"]["code"], "process-died");
    EXPECT_TRUE(Contains(lines[0]["error"]["message"], "killed by signal 6")) << lines[0].dump();
    EXPECT_EQ(lines[1]["summary"]["updates"], 10);
    EXPECT_EQ(ReadFile(Path("err.txt")), "");
}

TEST_F(FleetTest, AChildKilledOutrightIsReportedAsPossiblyOutOfMemory)
{
    EXPECT_EQ(KillTheFirstChild({Path("slow.xml")}, SIGKILL), 3);
    std::vector<Json> lines = ParseLines(ReadFile(Path("out.txt")));
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_TRUE(Contains(lines[0]["error"]["message"], "killed by signal 9")) << lines[0].dump();
    EXPECT_TRUE(Contains(lines[0]["error"]["message"], "out of memory")) << lines[0].dump();
}

TEST_F(FleetTest, AnInventoryThatOverrunsTheTimeoutIsStoppedAndReported)
{
    const std::string slow = Path("slow.xml");
    WriteFile(slow, SlowInventory(60000));
    Result fleet = Run({"fleet", "--catalog", kCatalog, "--timeout", "0.3", kInventory, slow, kInventory});
    EXPECT_EQ(fleet.status, 3);
    std::vector<Json> lines = ParseLines(fleet.out);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[1]["inventory"], slow);
    EXPECT_EQ(lines[1]["error"]["code"], "timeout");
    EXPECT_EQ(lines[1]["error"]["message"], slow + ": the evaluation took longer than 0.3 s and was stopped");
    EXPECT_EQ(lines[0]["summary"]["updates"], 10);
    EXPECT_EQ(lines[2]["summary"]["updates"], 10);
}

// ------------------------------------------------------------ exit status

TEST_F(FleetTest, ExitStatusSaysWhetherEveryInventoryWasEvaluated)
{
    EXPECT_EQ(Run({"fleet", "--catalog", kCatalog, kInventory}).status, 0);
    EXPECT_EQ(Run({"fleet", "--catalog", kCatalog, kInventory, Path("missing.xml")}).status, 3);
}

TEST_F(FleetTest, CheckExitsWith100WhenAPackageIsNewerThanWhatIsInstalled)
{
    EXPECT_EQ(Run({"fleet", "--catalog", kCatalog, "--check", kInventory}).status, 100);
    // Only applications that are current or ahead of the catalog.
    const std::string current = Path("current.xml");
    WriteFile(current, "<?xml version=\"1.0\"?>\n<SVMInventory lang=\"en\">\n"
                       "<System systemID=\"0A6B\" display=\"M\" serviceTag=\"S\" systemIDType=\"BIOS\"/>\n" +
                           Fill(kDevices[0], "99.0.0", "") + "\n" + Fill(kDevices[1], "7.10.30", "") +
                           "\n</SVMInventory>\n");
    Result quiet = Run({"fleet", "--catalog", kCatalog, "--check", current});
    EXPECT_EQ(quiet.status, 0) << quiet.out;
    EXPECT_EQ(ParseLines(quiet.out).at(0)["summary"]["newer"], 0);
    EXPECT_EQ(ParseLines(quiet.out).at(0)["summary"]["updates"], 2);
    // A failed inventory outweighs newer packages.
    EXPECT_EQ(Run({"fleet", "--catalog", kCatalog, "--check", kInventory, Path("missing.xml")}).status, 3);
}

TEST_F(FleetTest, AnUnreadableCatalogIsOneJsonErrorAndStatus2)
{
    const std::string broken = Variant(kCatalog, "broken.xml", "</Manifest>", "");
    Result result = Run({"fleet", "--catalog", broken, "--format", "jsonl", kInventory, kInventory});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.err, "");
    std::vector<Json> lines = ParseLines(result.out);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0]["error"]["code"], "not-xml");
    EXPECT_EQ(lines[0]["error"]["file"], broken);
    EXPECT_TRUE(Contains(lines[0]["error"]["message"], broken + ": not well-formed XML: line ")) << result.out;
}

TEST_F(FleetTest, AnUnreadableCatalogInATableIsOneErrorLineAndNoReportFile)
{
    const std::string report = Path("report.txt");
    Result result =
        Run({"fleet", "--catalog", Path("missing.xml"), "--format", "table", "--output", report, kInventory});
    ExpectFailure(result, {Path("missing.xml"), "the file does not exist"});
    EXPECT_FALSE(std::filesystem::exists(report));
}

// ----------------------------------------------------------------- formats

TEST_F(FleetTest, TableHasOneLinePerComputerThenTotals)
{
    const std::string other = Variant(kInventory, "other.xml", "systemID=\"0A6B\"", "systemID=\"0FFF\"");
    Result result = Run({"fleet", "--catalog", kCatalog, "--format", "table", kInventory, other, kInventory});
    EXPECT_EQ(result.status, 3);
    EXPECT_FALSE(
        LineWith(result.out, {"SYSTEM", "INVENTORY", "NEWER", "SAME", "OLDER", "UNKNOWN", "HIGHEST CRIT"}).empty())
        << result.out;
    // The example: 7 newer (the highest criticality among them 3), 2 same,
    // 1 older, 0 unknown.
    std::vector<std::string> rows;
    for (const std::string& line : Lines(result.out)) {
        if (line.rfind("0A6B ", 0) == 0) {
            rows.push_back(line);
        }
    }
    ASSERT_EQ(rows.size(), 2U) << result.out;
    std::istringstream row(rows[0]);
    std::vector<std::string> cells{std::istream_iterator<std::string>(row), std::istream_iterator<std::string>()};
    EXPECT_EQ(cells, (std::vector<std::string>{"0A6B", kInventory, "7", "2", "1", "0", "3"}));
    EXPECT_FALSE(LineWith(result.out, {"other.xml", "failed"}).empty());
    EXPECT_FALSE(LineWith(result.out, {"error no-bundle", "0FFF"}).empty());
    EXPECT_FALSE(LineWith(result.out, {"3 inventories: 2 evaluated (2 with newer packages), 1 failed."}).empty());
    EXPECT_FALSE(LineWith(result.out, {"Updates: 14 newer, 4 same, 2 older, 0 unknown."}).empty());
}

TEST_F(FleetTest, OutputGoesToTheNamedFile)
{
    const std::string report = Path("fleet.jsonl");
    Result result = Run({"fleet", "--catalog", kCatalog, "--output", report, kInventory});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "");
    std::vector<Json> lines = ParseLines(ReadFile(report));
    ASSERT_EQ(lines.size(), 1U) << "jsonl unless asked otherwise, since a file is no terminal";
    EXPECT_EQ(lines[0]["system_id"], "0A6B");

    Result unwritable = Run({"fleet", "--catalog", kCatalog, "--output", Path("no/such/dir.jsonl"), kInventory});
    ExpectFailure(unwritable, {"cannot write to", "no/such/dir.jsonl"});
}

TEST_F(FleetTest, ProgressIsShownOnATerminalAndOnlyThere)
{
    const std::string dir = GenerateFleet("fleet", 600, 12);
    Result piped = Run({"fleet", "--catalog", kCatalog, dir});
    EXPECT_EQ(piped.err, "");

    int status = -1;
    const std::string screen = RunOnTerminal({"fleet", "--catalog", kCatalog, dir}, Path("out.jsonl"), status);
    EXPECT_EQ(status, 3);
    EXPECT_TRUE(Contains(screen, "\rqrmkit fleet: 12/12 inventories")) << screen;
    EXPECT_TRUE(Contains(screen, "/s")) << screen;
    EXPECT_EQ(Lines(ReadFile(Path("out.jsonl"))).size(), 12U);
}

TEST_F(FleetTest, TableIsTheDefaultOnATerminalAndJsonLinesElsewhere)
{
    int status = -1;
    const std::string screen = RunOnTerminal({"fleet", "--catalog", kCatalog, kInventory}, "", status);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(Contains(screen, "HIGHEST CRIT")) << screen;
    EXPECT_FALSE(Contains(screen, "{\"inventory\"")) << screen;

    Result piped = Run({"fleet", "--catalog", kCatalog, kInventory});
    EXPECT_EQ(ParseLines(piped.out).size(), 1U);
}

TEST_F(FleetTest, HelpGivesTheExitStatuses)
{
    Result help = Run({"--help"});
    EXPECT_EQ(help.status, 0);
    for (const char* text : {"  0    done", "  2    bad input", "  3    fleet: at least one inventory failed",
                             "  4    no applicable bundle", "  64   bad usage", "  100  with --check"}) {
        EXPECT_TRUE(Contains(help.out, text)) << text << "\n" << help.out;
    }
    Result fleetHelp = Run({"fleet", "--help"});
    EXPECT_EQ(fleetHelp.status, 0);
    for (const char* text :
         {"  0    every inventory evaluated", "  64   bad usage", "  2    the catalog cannot be read",
          "  3    at least one inventory failed", "  100  with --check"}) {
        EXPECT_TRUE(Contains(fleetHelp.out, text)) << text;
    }
}

// The page as headless Chromium builds it: the table of computers is made
// by the page's script from the data embedded in it.
TEST_F(FleetTest, HtmlReportShowsComputersAndPendingPackagesInABrowser)
{
    const std::string other = Variant(kInventory, "other.xml", "systemID=\"0A6B\"", "systemID=\"0FFF\"");
    const std::string tricky =
        Variant(kInventory, "tricky.xml", "display=\"Update agent\"/>", "display=\"&lt;/script&gt;&lt;b&gt;agent\"/>");
    const std::string report = Path("report.html");
    Result result =
        Run({"fleet", "--catalog", kCatalog, "--format", "html", "--output", report, kInventory, other, tricky});
    ASSERT_EQ(result.status, 3) << result.err;
    const std::string html = ReadFile(report);
    for (const char* external : {"src=", "href=", "url(", "@import", "http://", "https://"}) {
        EXPECT_FALSE(Contains(html, external)) << "the page must not load anything: " << external;
    }

    const std::string dom = BrowserDom(report);

    // Three computers, each a row the script made, in input order.
    std::size_t at = 0;
    for (const std::string& inventory : {kInventory, other, tricky}) {
        at = dom.find("<tr class=\"computer", at);
        ASSERT_NE(at, std::string::npos) << inventory;
        EXPECT_EQ(dom.find("data-inventory=\"" + inventory + "\"", at), dom.find("data-inventory=", at));
        ++at;
    }
    EXPECT_EQ(dom.find("<tr class=\"computer", at), std::string::npos);
    EXPECT_TRUE(Contains(dom, "<tr class=\"computer failed\" data-inventory=\"" + other + "\">"));
    EXPECT_TRUE(Contains(dom, "no-bundle"));
    // The example's 7 newer packages, for each of the two computers.
    std::size_t packages = 0;
    for (std::size_t p = dom.find("<li class=\"package\""); p != std::string::npos;
         p = dom.find("<li class=\"package\"", p + 1)) {
        ++packages;
    }
    EXPECT_EQ(packages, 14U);
    EXPECT_TRUE(Contains(dom, "BIOS 2.4.1 (installed 2.3.9, criticality 2, BIOS) for BIOS")) << dom;
    EXPECT_TRUE(Contains(dom, "&lt;/script&gt;&lt;b&gt;agent")) << "a text from an inventory stays text";
    EXPECT_TRUE(Contains(dom, "3 of 3 computers"));
    // Totals and charts.
    EXPECT_TRUE(Contains(dom, "data-total=\"computers\"><b>3</b>"));
    EXPECT_TRUE(Contains(dom, "data-total=\"pending packages\"><b>14</b>"));
    EXPECT_TRUE(Contains(dom, "data-label=\"criticality 3\" data-count=\"2\""));
    EXPECT_TRUE(Contains(dom, "data-label=\"failed\" data-count=\"1\""));
    EXPECT_TRUE(Contains(dom, "id=\"chart-categories\""));
}

// The view is kept in the page's address (#filter=...&show=...&sort=...),
// so a filtered or sorted view can be bookmarked and shared.
TEST_F(FleetTest, HtmlReportFiltersAndSortsInABrowser)
{
    const std::string current = Path("current.xml");
    WriteFile(current, "<?xml version=\"1.0\"?>\n<SVMInventory lang=\"en\">\n"
                       "<System systemID=\"0A6C\" display=\"M\" serviceTag=\"S\" systemIDType=\"BIOS\"/>\n" +
                           Fill(kDevices[0], "1.0.0", "") + "\n</SVMInventory>\n");
    const std::string other = Variant(kInventory, "other.xml", "systemID=\"0A6B\"", "systemID=\"0FFF\"");
    const std::string report = Path("report.html");
    ASSERT_EQ(Run({"fleet", "--catalog", kCatalog, "--format", "html", "--output", report, kInventory, other, current})
                  .status,
              3);

    EXPECT_EQ(RowInventories(BrowserDom(report)), (std::vector<std::string>{kInventory, other, current}));
    EXPECT_EQ(RowInventories(BrowserDom(report, "#sort=newer&order=asc")),
              (std::vector<std::string>{other, current, kInventory}));
    EXPECT_EQ(RowInventories(BrowserDom(report, "#sort=newer&order=desc")),
              (std::vector<std::string>{kInventory, current, other}));
    EXPECT_EQ(RowInventories(BrowserDom(report, "#sort=system&order=asc")),
              (std::vector<std::string>{other, kInventory, current}))
        << "a failed computer has no system id and sorts first";
    EXPECT_EQ(RowInventories(BrowserDom(report, "#filter=0a6c")), (std::vector<std::string>{current}));
    EXPECT_EQ(RowInventories(BrowserDom(report, "#filter=adapter%20firmware")), (std::vector<std::string>{kInventory}))
        << "the filter looks into the pending packages";
    EXPECT_EQ(RowInventories(BrowserDom(report, "#show=failed")), (std::vector<std::string>{other}));
    const std::string dom = BrowserDom(report, "#show=pending&filter=S740");
    EXPECT_EQ(RowInventories(dom), (std::vector<std::string>{kInventory}));
    EXPECT_TRUE(Contains(dom, "1 of 3 computers")) << dom;
}

}  // namespace
