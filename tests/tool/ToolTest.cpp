// Runs the qrmkit tool as a child process on the example catalog and
// inventory (and on broken copies of them) and checks what it prints and
// the exit status it returns.
#include "ToolTestSupport.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace {

using namespace tooltest;

// ------------------------------------------------------------------ updates

TEST_F(ToolTest, UpdatesTableListsEveryApplicationWithAnUpdate)
{
    Result result = Run({"updates", "--catalog", kCatalog, "--inventory", kInventory});
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.err, "");
    for (const char* application :
         {"BIOS", "Remote access controller firmware", "25GbE adapter firmware", "25GbE adapter driver",
          "RAID controller firmware", "RAID controller driver", "1GbE adapter firmware", "Video driver",
          "Systems management agent", "Update agent"}) {
        EXPECT_TRUE(Contains(result.out, application)) << application;
    }
    EXPECT_FALSE(LineWith(result.out, {"BIOS", "2.3.9", "2.4.1", "newer"}).empty()) << result.out;
    EXPECT_FALSE(LineWith(result.out, {"1GbE adapter firmware", "21.85.0", "21.81.3", "older"}).empty());
    EXPECT_FALSE(LineWith(result.out, {"Remote access controller firmware", "7.10.30", "same"}).empty());
    EXPECT_FALSE(LineWith(result.out, {"updates.example.com/catalog/FOLDER01/BIOS/BIOS_S740_2.4.1.EXE"}).empty());
    EXPECT_FALSE(LineWith(result.out, {"S740W64.00041", "BTW64", "auto"}).empty());
    EXPECT_FALSE(LineWith(result.out, {"10 updates"}).empty());
    EXPECT_FALSE(Contains(result.out, "Boot storage driver"));
}

TEST_F(ToolTest, UpdatesTableFitsTheTerminalWidth)
{
    for (unsigned short columns : {120, 80}) {
        Result result = RunOnTerminal({"updates", "--catalog", kCatalog, "--inventory", kInventory}, columns);
        ASSERT_EQ(result.status, 0);
        EXPECT_FALSE(LineWith(result.out, {"BIOS", "2.3.9", "2.4.1", "newer"}).empty()) << result.out;
        ExpectFits(result.out, columns);
    }
}

TEST_F(ToolTest, ColumnsOverridesTheTerminalWidth)
{
    Result result = RunOnTerminal({"updates", "--catalog", kCatalog, "--inventory", kInventory}, 120, {"COLUMNS=80"});
    ASSERT_EQ(result.status, 0);
    ExpectFits(result.out, 80);
    EXPECT_TRUE(Contains(result.out, "\xE2\x80\xA6")) << "80 columns cut the package lines: " << result.out;

    Result ignored =
        RunOnTerminal({"updates", "--catalog", kCatalog, "--inventory", kInventory}, 120, {"COLUMNS=wide"});
    ExpectFits(ignored.out, 120);
    EXPECT_GT(Widest(ignored.out), 80U) << "a COLUMNS that is no number is ignored";
}

TEST_F(ToolTest, OutputIsNeverCutWhenNotATerminal)
{
    const std::string name = "Update agent with a name long enough to overflow any reasonable column of a table";
    std::string inventory = Variant(kInventory, "long.xml", "display=\"Update agent\"/>", "display=\"" + name + "\"/>");
    setenv("COLUMNS", "40", 1);
    Result result = Run({"updates", "--catalog", kCatalog, "--inventory", inventory});
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_FALSE(LineWith(result.out, {name, "5.1.4", "5.2.0"}).empty()) << result.out;
    EXPECT_FALSE(Contains(result.out, "\xE2\x80\xA6")) << result.out;
    EXPECT_FALSE(
        LineWith(result.out, {"10 updates for 11 installed applications: 7 newer, 2 same, 1 older, 0 unknown; 1 "
                              "without an update."})
            .empty())
        << result.out;
}

TEST_F(ToolTest, StatusesAreColouredOnATerminalUnlessNoColorIsSet)
{
    const std::vector<std::string> args = {"updates", "--catalog", kCatalog, "--inventory", kInventory};
    const std::string green = "\x1B[32mnewer\x1B[0m";
    const std::string yellow = "\x1B[33molder\x1B[0m";

    Result terminal = RunOnTerminal(args);
    EXPECT_TRUE(Contains(terminal.out, green)) << terminal.out;
    EXPECT_TRUE(Contains(terminal.out, yellow)) << terminal.out;
    EXPECT_FALSE(LineWith(terminal.out, {"Remote access controller firmware", "same"}).empty());
    EXPECT_FALSE(Contains(LineWith(terminal.out, {"Remote access controller firmware"}), "\x1B["))
        << "same is not coloured";

    EXPECT_FALSE(Contains(RunOnTerminal(args, 100, {"NO_COLOR=1"}).out, "\x1B["));
    EXPECT_TRUE(Contains(RunOnTerminal(args, 100, {"NO_COLOR="}).out, green)) << "an empty NO_COLOR is unset";
    EXPECT_FALSE(Contains(RunOnTerminal(args, 100, {"TERM=dumb"}).out, "\x1B["));
    std::vector<std::string> never = args;
    never.insert(never.end(), {"--color", "never"});
    EXPECT_FALSE(Contains(RunOnTerminal(never).out, "\x1B["));
    std::vector<std::string> always = args;
    always.insert(always.end(), {"--color", "always"});
    EXPECT_TRUE(Contains(RunOnTerminal(always, 100, {"NO_COLOR=1"}).out, green)) << "the option wins";

    EXPECT_FALSE(Contains(Run(args).out, "\x1B[")) << "no colour into a pipe";
    Result forced = Run(always);
    EXPECT_TRUE(Contains(forced.out, green));
    EXPECT_EQ(Plain(forced.out), Run(args).out) << "colour adds escapes and moves nothing";
}

TEST_F(ToolTest, UpdatesTableCutsLongTextsWithAnEllipsis)
{
    std::string inventory =
        Variant(kInventory, "long.xml", "display=\"Update agent\"/>",
                "display=\"Update agent with a name long enough to overflow any reasonable column of a table\"/>");
    Result result = RunOnTerminal({"updates", "--catalog", kCatalog, "--inventory", inventory});
    ASSERT_EQ(result.status, 0) << result.out;
    ExpectFits(result.out);
    EXPECT_FALSE(LineWith(result.out, {"Update agent with", "\xE2\x80\xA6", "5.1.4", "5.2.0"}).empty()) << result.out;
}

TEST_F(ToolTest, UpdatesJsonHasEveryField)
{
    Result result = Run({"updates", "--catalog", kCatalog, "--inventory", kInventory, "--json"});
    ASSERT_EQ(result.status, 0) << result.err;
    nlohmann::json document = nlohmann::json::parse(result.out);
    EXPECT_EQ(document["catalog"], kCatalog);
    EXPECT_EQ(document["inventory"], kInventory);
    EXPECT_EQ(document["system_id"], "0A6B");
    EXPECT_EQ(document["base_location"], "updates.example.com/catalog");
    EXPECT_EQ(document["bundle"]["type"], "BTW64");
    EXPECT_EQ(document["bundle"]["id"], "S740W64.00041");
    EXPECT_EQ(document["bundle"]["selection"], "auto");
    ASSERT_EQ(document["updates"].size(), 10U);
    for (const auto& update : document["updates"]) {
        for (const char* field :
             {"device", "application", "installed_version", "available_version", "status", "component_type",
              "criticality", "category", "name", "package_id", "path", "location", "release_id"}) {
            EXPECT_TRUE(update.contains(field)) << field;
        }
        EXPECT_TRUE(update["category"].contains("code"));
        EXPECT_TRUE(update["category"].contains("text"));
        EXPECT_EQ(update["location"], "updates.example.com/catalog/" + update["path"].get<std::string>());
    }
    const auto& bios = document["updates"][0];
    EXPECT_EQ(bios["device"], "BIOS");
    EXPECT_EQ(bios["application"], "BIOS");
    EXPECT_EQ(bios["installed_version"], "2.3.9");
    EXPECT_EQ(bios["available_version"], "2.4.1");
    EXPECT_EQ(bios["status"], "newer");
    EXPECT_EQ(bios["component_type"], "BIOS");
    EXPECT_EQ(bios["criticality"], "2");
    EXPECT_EQ(bios["category"]["code"], "BI");
    EXPECT_EQ(bios["category"]["text"], "BIOS");
    EXPECT_EQ(bios["path"], "FOLDER01/BIOS/BIOS_S740_2.4.1.EXE");
    bool sawOlder = false;
    for (const auto& update : document["updates"]) {
        if (update["application"] == "1GbE adapter firmware") {
            sawOlder = true;
            EXPECT_EQ(update["status"], "older");
        }
    }
    EXPECT_TRUE(sawOlder);
    EXPECT_EQ(document["summary"]["updates"], 10);
    EXPECT_EQ(document["summary"]["older"], 1);
    EXPECT_EQ(document["summary"]["same"], 2);
}

TEST_F(ToolTest, UpdatesFromTheLinuxBundle)
{
    Result result =
        Run({"updates", "--catalog", kCatalog, "--inventory", kInventory, "--bundle-type", "BTLX", "--json"});
    ASSERT_EQ(result.status, 0) << result.err;
    nlohmann::json document = nlohmann::json::parse(result.out);
    EXPECT_EQ(document["bundle"]["type"], "BTLX");
    EXPECT_EQ(document["bundle"]["id"], "S740LX.00042");
    EXPECT_EQ(document["bundle"]["selection"], "requested");
    ASSERT_FALSE(document["updates"].empty());
    for (const auto& update : document["updates"]) {
        std::string path = update["path"];
        EXPECT_EQ(path.substr(path.size() - 4), ".BIN") << path;
    }

    Result table = Run({"updates", "--catalog", kCatalog, "--inventory", kInventory, "--bundle-type", "BTLX"});
    ASSERT_EQ(table.status, 0);
    EXPECT_FALSE(LineWith(table.out, {"S740LX.00042", "BTLX"}).empty());
}

TEST_F(ToolTest, UpdatesWithoutAnApplicableBundleOfTheRequestedType)
{
    Result result = Run({"updates", "--catalog", kCatalog, "--inventory", kInventory, "--bundle-type", "BTRPM"});
    ExpectFailure(result, {"BTRPM", "0A6B"}, 4);
}

TEST_F(ToolTest, UpdatesWithoutAnyApplicableBundle)
{
    std::string inventory = Variant(kInventory, "other.xml", "systemID=\"0A6B\"", "systemID=\"0FFF\"");
    Result result = Run({"updates", "--catalog", kCatalog, "--inventory", inventory});
    ExpectFailure(result, {"no bundle", "0FFF"}, 4);
}

TEST_F(ToolTest, UpdatesRejectsAnUnknownBundleType)
{
    Result result = Run({"updates", "--catalog", kCatalog, "--inventory", kInventory, "--bundle-type", "BTXX"});
    EXPECT_EQ(result.status, 64);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(Contains(result.err, "BTXX"));
}

// ------------------------------------------------------------------- bundle

TEST_F(ToolTest, BundleTable)
{
    Result result = RunOnTerminal({"bundle", "--catalog", kCatalog, "--inventory", kInventory}, 80);
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_FALSE(LineWith(result.out, {"BTW64", "S740W64.00041", "26.11.00", "22", "45"}).empty()) << result.out;
    EXPECT_FALSE(LineWith(result.out, {"BTLX", "S740LX.00042", "46", "btlx.tar.gz"}).empty());
    EXPECT_FALSE(LineWith(result.out, {"BTW32", "none"}).empty());
    ExpectFits(result.out, 80);
}

TEST_F(ToolTest, BundleJson)
{
    Result result = Run({"bundle", "--catalog", kCatalog, "--inventory", kInventory, "--json"});
    ASSERT_EQ(result.status, 0) << result.err;
    nlohmann::json document = nlohmann::json::parse(result.out);
    EXPECT_EQ(document["system_id"], "0A6B");
    const auto& types = document["bundle_types"];
    ASSERT_EQ(types.size(), 6U);
    EXPECT_EQ(types[0]["type"], "BTW32");
    EXPECT_TRUE(types[0]["applicable_bundle"].is_null());
    EXPECT_EQ(types[0]["greatest_bundle_number"], 0);
    EXPECT_EQ(types[1]["type"], "BTW64");
    EXPECT_EQ(types[1]["applicable_bundle"]["id"], "S740W64.00041");
    EXPECT_EQ(types[1]["applicable_bundle"]["path"], "bundles/s740-btw64.exe");
    EXPECT_EQ(types[1]["applicable_bundle"]["vendor_version"], "26.11.00");
    EXPECT_EQ(types[1]["applicable_bundle"]["packages"], 22);
    EXPECT_EQ(types[1]["greatest_bundle_number"], 45);
    EXPECT_EQ(types[2]["type"], "BTLX");
    EXPECT_EQ(types[2]["greatest_bundle_number"], 46);
    EXPECT_EQ(types[5]["type"], "BTOSIND");
}

// ------------------------------------------------------------------ catalog

TEST_F(ToolTest, CatalogTable)
{
    Result result = RunOnTerminal({"catalog", "--catalog", kCatalog}, 80);
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_FALSE(LineWith(result.out, {"base location", "updates.example.com/catalog"}).empty()) << result.out;
    EXPECT_FALSE(LineWith(result.out, {"release", "R2026-11"}).empty());
    EXPECT_FALSE(LineWith(result.out, {"version", "26.11.00"}).empty());
    EXPECT_FALSE(LineWith(result.out, {"date", "1763683200"}).empty());
    EXPECT_FALSE(LineWith(result.out, {"W22", "updates.example.com/catalog/collectors/invcol_w64.exe"}).empty());
    EXPECT_FALSE(LineWith(result.out, {"total", "48"}).empty());
    ExpectFits(result.out, 80);
}

TEST_F(ToolTest, CatalogJson)
{
    Result result = Run({"catalog", "--catalog", kCatalog, "--json"});
    ASSERT_EQ(result.status, 0) << result.err;
    nlohmann::json document = nlohmann::json::parse(result.out);
    EXPECT_EQ(document["base_location"], "updates.example.com/catalog");
    EXPECT_EQ(document["release_id"], "R2026-11");
    EXPECT_EQ(document["version"], "26.11.00");
    EXPECT_EQ(document["date_time"], 1763683200ULL);
    EXPECT_EQ(document["bundles"]["total"], 6);
    EXPECT_EQ(document["bundles"]["by_type"]["BTW64"], 3);
    EXPECT_EQ(document["bundles"]["by_type"]["BTW32"], 0);
    EXPECT_EQ(document["components"]["total"], 48);
    EXPECT_EQ(document["components"]["by_type"]["BIOS"], 6);
    EXPECT_EQ(document["components"]["by_criticality"]["2"], 20);
    EXPECT_EQ(document["components"]["by_criticality"]["3"], 28);
    EXPECT_EQ(document["components"]["by_criticality"]["unspecified"], 0);
    ASSERT_EQ(document["inventory_collectors"].size(), 2U);
    EXPECT_EQ(document["inventory_collectors"][0]["os_code"], "W22");
    EXPECT_EQ(document["inventory_collectors"][0]["path"], "collectors/invcol_w64.exe");
    EXPECT_EQ(document["inventory_collectors"][0]["location"], "updates.example.com/catalog/collectors/invcol_w64.exe");
}

// ---------------------------------------------------------------- inventory

TEST_F(ToolTest, InventoryTable)
{
    Result result = RunOnTerminal({"inventory", "--inventory", kInventory}, 80);
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_FALSE(LineWith(result.out, {"system id", "0A6B"}).empty()) << result.out;
    EXPECT_FALSE(LineWith(result.out, {"W22", "Example", "x64", "Server OS 2022"}).empty());
    EXPECT_FALSE(LineWith(result.out, {"Dual-port 25GbE adapter", "8086:1593"}).empty());
    EXPECT_FALSE(LineWith(result.out, {"25GbE adapter driver", "DRVR", "1.13.2"}).empty());
    EXPECT_FALSE(LineWith(result.out, {"9 devices", "11 applications"}).empty());
    ExpectFits(result.out, 80);
}

TEST_F(ToolTest, InventoryJson)
{
    Result result = Run({"inventory", "--inventory", kInventory, "--json"});
    ASSERT_EQ(result.status, 0) << result.err;
    nlohmann::json document = nlohmann::json::parse(result.out);
    EXPECT_EQ(document["system_id"], "0A6B");
    EXPECT_EQ(document["language"], "en");
    EXPECT_EQ(document["inventory_schema_version"], "1.0") << "the inventory's own schema, apart from the tool's";
    ASSERT_EQ(document["systems"].size(), 1U);
    EXPECT_EQ(document["systems"][0]["service_tag"], "ABC1234");
    ASSERT_EQ(document["operating_systems"].size(), 1U);
    EXPECT_EQ(document["operating_systems"][0]["code"], "W22");
    EXPECT_EQ(document["operating_systems"][0]["architecture"], "x64");
    ASSERT_EQ(document["devices"].size(), 9U);
    const auto& bios = document["devices"][0];
    EXPECT_EQ(bios["display"], "BIOS");
    EXPECT_EQ(bios["component_id"], 159);
    ASSERT_EQ(bios["applications"].size(), 1U);
    EXPECT_EQ(bios["applications"][0]["type"], "BIOS");
    EXPECT_EQ(bios["applications"][0]["version"], "2.3.9");
    EXPECT_EQ(bios["applications"][0]["display"], "BIOS");
    const auto& nic = document["devices"][2];
    EXPECT_EQ(nic["pci"]["vendor_id"], "8086");
    EXPECT_EQ(nic["pci"]["sub_device_id"], "0A6B");
    EXPECT_EQ(nic["applications"].size(), 2U);
}

// --------------------------------------------------------------- categories

TEST_F(ToolTest, CategoriesTable)
{
    Result result = RunOnTerminal({"categories", "--catalog", kCatalog}, 80);
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_FALSE(LineWith(result.out, {"Storage Controllers", "SF2"}).empty()) << result.out;
    EXPECT_FALSE(LineWith(result.out, {"Systems Management", "SystemsManagement"}).empty());
    EXPECT_FALSE(LineWith(result.out, {"BI", "BIOS"}).empty());
    ExpectFits(result.out, 80);
}

TEST_F(ToolTest, CategoriesJson)
{
    Result result = Run({"categories", "--catalog", kCatalog, "--json"});
    ASSERT_EQ(result.status, 0) << result.err;
    nlohmann::json document = nlohmann::json::parse(result.out);
    ASSERT_EQ(document["categories"].size(), 13U);
    bool sawStorage = false;
    for (const auto& category : document["categories"]) {
        EXPECT_TRUE(category.contains("codes"));
        EXPECT_TRUE(category.contains("acronyms"));
        EXPECT_TRUE(category.contains("listed"));
        if (category["text"] == "Storage Controllers") {
            sawStorage = true;
            EXPECT_EQ(category["codes"], nlohmann::json::array({"SF2"}));
            EXPECT_EQ(category["listed"][0], "SF2");
        }
    }
    EXPECT_TRUE(sawStorage);
    EXPECT_EQ(document["acronyms"]["BI"], "BIOS");
    EXPECT_EQ(document["acronyms"]["UT"], "Utilities");
    EXPECT_EQ(document["acronyms"].size(), 13U);
}

// ---------------------------------------------------------------- collector

TEST_F(ToolTest, CollectorForAKnownCode)
{
    Result result = Run({"collector", "--catalog", kCatalog, "--os-code", "W22"});
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "updates.example.com/catalog/collectors/invcol_w64.exe\n");
    EXPECT_EQ(result.err, "");
}

TEST_F(ToolTest, CollectorForAnUnknownCode)
{
    Result result = Run({"collector", "--catalog", kCatalog, "--os-code", "XX9"});
    ExpectFailure(result, {kCatalog, "XX9"});
}

TEST_F(ToolTest, CollectorWithAMissingCatalog)
{
    Result result = Run({"collector", "--catalog", Path("absent.xml"), "--os-code", "W22"});
    ExpectFailure(result, {Path("absent.xml"), "does not exist"});
}

// ------------------------------------------------------------------ compare

TEST_F(ToolTest, CompareVersions)
{
    Result greater = Run({"compare", "1.2.10", "1.2.9"});
    EXPECT_EQ(greater.status, 0);
    EXPECT_EQ(greater.out, "1.2.10 > 1.2.9\n");
    Result less = Run({"compare", "1.0", "1.0.0"});
    EXPECT_EQ(less.status, 0);
    EXPECT_EQ(less.out, "1.0 < 1.0.0\n");
    Result equal = Run({"compare", "01.2", "1.2"});
    EXPECT_EQ(equal.status, 0);
    EXPECT_EQ(equal.out, "01.2 = 1.2\n");
}

TEST_F(ToolTest, CompareVersionsThatCannotBeCompared)
{
    Result result = Run({"compare", "1.\xC3\xA9", "1.0"});
    ExpectFailure(result, {"cannot compare"});
}

// ------------------------------------------------------------------- errors

TEST_F(ToolTest, MissingCatalogFile)
{
    const std::string missing = Path("missing-catalog.xml");
    Result result = Run({"updates", "--catalog", missing, "--inventory", kInventory});
    ExpectFailure(result, {missing, "does not exist"});
}

TEST_F(ToolTest, MissingInventoryFile)
{
    const std::string missing = Path("missing-inventory.xml");
    Result result = Run({"inventory", "--inventory", missing});
    ExpectFailure(result, {missing, "does not exist"});
}

TEST_F(ToolTest, MalformedCatalog)
{
    const std::string broken = Path("broken.xml");
    WriteFile(broken, "<Manifest baseLocation=\"x\"><SoftwareBundle>");
    for (const char* command : {"updates", "bundle"}) {
        Result result = Run({command, "--catalog", broken, "--inventory", kInventory});
        ExpectFailure(result, {broken, "XML"});
    }
    ExpectFailure(Run({"catalog", "--catalog", broken}), {broken});
    ExpectFailure(Run({"categories", "--catalog", broken}), {broken});
    ExpectFailure(Run({"collector", "--catalog", broken, "--os-code", "W22"}), {broken});
}

TEST_F(ToolTest, MalformedInventory)
{
    const std::string broken = Path("broken-inventory.xml");
    WriteFile(broken, "not xml at all");
    ExpectFailure(Run({"updates", "--catalog", kCatalog, "--inventory", broken}), {broken, "inventory"});
    ExpectFailure(Run({"inventory", "--inventory", broken}), {broken});
}

TEST_F(ToolTest, CatalogWithABundleLackingContents)
{
    // The first bundle's package list is renamed, so the bundle has none.
    const std::string catalog = Path("no-contents.xml");
    WriteFile(catalog, Replace(Replace(ReadFile(kCatalog), "<Contents>", "<Packages>"), "</Contents>", "</Packages>"));
    Result result = Run({"updates", "--catalog", catalog, "--inventory", kInventory});
    ExpectFailure(result, {catalog, "missing", "element"});
    ExpectFailure(Run({"catalog", "--catalog", catalog}), {catalog, "missing"});
}

// -------------------------------------------------------------------- usage

TEST_F(ToolTest, BadUsageExitsWith64)
{
    Result unknownOption = Run({"catalog", "--catalog", kCatalog, "--bogus"});
    EXPECT_EQ(unknownOption.status, 64);
    EXPECT_EQ(unknownOption.out, "");
    EXPECT_FALSE(unknownOption.err.empty());

    Result missingCatalog = Run({"updates", "--inventory", kInventory});
    EXPECT_EQ(missingCatalog.status, 64);
    EXPECT_TRUE(Contains(missingCatalog.err, "--catalog"));

    EXPECT_EQ(Run({}).status, 64);
    EXPECT_EQ(Run({"frobnicate"}).status, 64);
    EXPECT_EQ(Run({"compare", "1.0"}).status, 64);
    EXPECT_EQ(Run({"collector", "--catalog", kCatalog}).status, 64);
}

TEST_F(ToolTest, HelpCommandPrintsWhatTheHelpOptionPrints)
{
    EXPECT_EQ(Run({"help"}).out, Run({"--help"}).out);
    for (const char* command : {"updates", "explain", "bundle", "catalog", "inventory", "categories", "collector",
                                "compare", "fleet", "help"}) {
        Result help = Run({"help", command});
        EXPECT_EQ(help.status, 0) << command;
        EXPECT_TRUE(Contains(help.out, std::string("Usage: qrmkit ") + command)) << help.out;
        EXPECT_EQ(help.out, Run({command, "--help"}).out) << command;
    }
    Result unknown = Run({"help", "updaets"});
    EXPECT_EQ(unknown.status, 64);
    EXPECT_TRUE(Contains(unknown.err, "did you mean 'updates'?")) << unknown.err;
}

TEST_F(ToolTest, UnknownCommandIsNamedWithTheNearestCommand)
{
    ExpectFailure(Run({"updaets", "--catalog", kCatalog}), {"unknown command 'updaets'; did you mean 'updates'?"}, 64);
    ExpectFailure(Run({"--color", "never", "catlog"}), {"unknown command 'catlog'; did you mean 'catalog'?"}, 64);
    ExpectFailure(Run({"frobnicate"}),
                  {"unknown command 'frobnicate'; the commands are updates, explain, bundle, catalog"}, 64);
    nlohmann::json document = nlohmann::json::parse(Run({"invetnory", "--json"}).out);
    EXPECT_EQ(document["error"]["code"], "usage");
    EXPECT_EQ(document["error"]["message"], "unknown command 'invetnory'; did you mean 'inventory'?");
}

TEST_F(ToolTest, GlobalOptionsComeBeforeOrAfterTheCommand)
{
    const std::vector<std::string> command = {"updates", "--catalog", kCatalog, "--inventory", kInventory};
    std::vector<std::string> after = command;
    after.insert(after.end(), {"--color", "always"});
    std::vector<std::string> before = {"--color", "always"};
    before.insert(before.end(), command.begin(), command.end());
    Result first = Run(before);
    EXPECT_EQ(first.status, 0) << first.err;
    EXPECT_TRUE(Contains(first.out, "\x1B[32mnewer"));
    EXPECT_EQ(first.out, Run(after).out);

    std::vector<std::string> quietAfter = command;
    quietAfter.push_back("-q");
    std::vector<std::string> quietBefore = {"--quiet"};
    quietBefore.insert(quietBefore.end(), command.begin(), command.end());
    EXPECT_EQ(Run(quietAfter).out, "");
    EXPECT_EQ(Run(quietBefore).out, "");
}

TEST_F(ToolTest, QuietPrintsNothingAndKeepsTheExitStatus)
{
    Result check = Run({"-q", "updates", "--catalog", kCatalog, "--inventory", kInventory, "--check"});
    EXPECT_EQ(check.status, 100);
    EXPECT_EQ(check.out, "");
    EXPECT_EQ(check.err, "");
    Result json = Run({"-q", "catalog", "--catalog", kCatalog, "--json"});
    EXPECT_EQ(json.status, 0);
    EXPECT_EQ(json.out, "");
    ExpectFailure(Run({"-q", "catalog", "--catalog", Path("absent.xml")}), {"absent.xml", "does not exist"});

    const std::string report = Path("report.jsonl");
    Result fleet = Run({"-q", "fleet", "--catalog", kCatalog, kInventory});
    EXPECT_EQ(fleet.status, 0);
    EXPECT_EQ(fleet.out, "");
    Result toFile = Run({"-q", "fleet", "--catalog", kCatalog, "--output", report, kInventory});
    EXPECT_EQ(toFile.out, "");
    EXPECT_EQ(Lines(ReadFile(report)).size(), 1U) << "a report file is still written";
}

TEST_F(ToolTest, VerboseSaysOnStandardErrorWhatIsReadAndChosen)
{
    const std::vector<std::string> command = {"updates", "--catalog", kCatalog, "--inventory", kInventory};
    std::vector<std::string> verbose = command;
    verbose.push_back("--verbose");
    Result result = Run(verbose);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, Run(command).out) << "standard output is the same";
    EXPECT_FALSE(LineWith(result.err, {"qrmkit: ", "bundle S740W64.00041 of type BTW64", "auto"}).empty())
        << result.err;
    EXPECT_EQ(Run(command).err, "");
}

TEST_F(ToolTest, HelpForEveryCommand)
{
    Result top = Run({"--help"});
    EXPECT_EQ(top.status, 0);
    EXPECT_TRUE(Contains(top.out, "Example"));
    for (const char* command : {"updates", "bundle", "catalog", "inventory", "categories", "collector", "compare"}) {
        Result result = Run({command, "--help"});
        EXPECT_EQ(result.status, 0) << command;
        EXPECT_TRUE(Contains(result.out, "Example")) << command;
        EXPECT_TRUE(Contains(result.out, std::string("qrmkit ") + command)) << command;
    }
}

TEST_F(ToolTest, VersionNamesTheToolAndTheLibraryItRunsWith)
{
    Result result = Run({"--version"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out,
              std::string("qrmkit ") + QRMKIT_PROJECT_VERSION + "\nlibqrmkit " + QRMKIT_PROJECT_VERSION + "\n");
    EXPECT_EQ(result.err, "");
}

TEST_F(ToolTest, VersionHasAShortOption)
{
    Result result = Run({"-V"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, Run({"--version"}).out);
}

// ------------------------------------------------------- scripts and pipelines

namespace {

// A failure with --json: the given status, standard error empty, and one
// JSON error document on standard output.
nlohmann::json ExpectJsonError(const Result& result, int status, const std::string& code)
{
    EXPECT_EQ(result.status, status) << result.out << result.err;
    EXPECT_EQ(result.err, "");
    nlohmann::json document = nlohmann::json::parse(result.out);
    EXPECT_EQ(document.size(), 2U) << result.out;
    EXPECT_EQ(document["schema_version"], 1);
    EXPECT_EQ(document["error"]["code"], code) << result.out;
    EXPECT_TRUE(document["error"]["message"].is_string());
    EXPECT_TRUE(document["error"].contains("file"));
    return document;
}

}  // namespace

TEST_F(ToolTest, JsonFailuresOfEveryCommandAreJsonOnStandardOutput)
{
    const std::string absent = Path("absent.xml");
    const std::vector<std::vector<std::string>> commands = {
        {"updates", "--catalog", absent, "--inventory", kInventory, "--json"},
        {"bundle", "--catalog", absent, "--inventory", kInventory, "--json"},
        {"catalog", "--catalog", absent, "--json"},
        {"categories", "--catalog", absent, "--json"},
        {"collector", "--catalog", absent, "--os-code", "W22", "--json"},
        {"inventory", "--inventory", absent, "--json"}};
    for (const std::vector<std::string>& command : commands) {
        nlohmann::json document = ExpectJsonError(Run(command), 2, "file-missing");
        EXPECT_EQ(document["error"]["file"], absent) << command[0];
        EXPECT_EQ(document["error"]["message"], absent + ": the file does not exist") << command[0];
    }
}

TEST_F(ToolTest, JsonFailureSaysWhatIsWrongWithWhichFile)
{
    const std::string other = Variant(kInventory, "other.xml", "systemID=\"0A6B\"", "systemID=\"0FFF\"");
    nlohmann::json noBundle =
        ExpectJsonError(Run({"updates", "--catalog", kCatalog, "--inventory", other, "--json"}), 4, "no-bundle");
    EXPECT_EQ(noBundle["error"]["file"], other);
    EXPECT_TRUE(Contains(noBundle["error"]["message"], "0FFF"));

    const std::string garbage = Path("garbage.xml");
    WriteFile(garbage, "not xml at all");
    EXPECT_EQ(ExpectJsonError(Run({"inventory", "--inventory", garbage, "--json"}), 2, "not-xml")["error"]["file"],
              garbage);
    EXPECT_EQ(ExpectJsonError(Run({"catalog", "--catalog", garbage, "--json"}), 2, "not-xml")["error"]["file"],
              garbage);
    const std::string noLanguage = Variant(kInventory, "no-lang.xml", "lang=\"en\" schemaVersion", "schemaVersion");
    EXPECT_EQ(ExpectJsonError(Run({"inventory", "--inventory", noLanguage, "--json"}), 2,
                              "not-an-inventory")["error"]["file"],
              noLanguage);
    const std::string noContents = Variant(kCatalog, "no-contents.xml", "<Contents>", "<Other>");
    const std::string catalog = Replace(ReadFile(noContents), "</Contents>", "</Other>");
    WriteFile(noContents, catalog);
    EXPECT_EQ(ExpectJsonError(Run({"catalog", "--catalog", noContents, "--json"}), 2, "not-a-catalog")["error"]["file"],
              noContents);
    EXPECT_EQ(ExpectJsonError(Run({"catalog", "--catalog", mDir, "--json"}), 2, "not-a-file")["error"]["file"], mDir);
    EXPECT_TRUE(ExpectJsonError(Run({"compare", "1.\xC3\xA9", "1.0", "--json"}), 2, "not-comparable")["error"]["file"]
                    .is_null());
    ExpectJsonError(Run({"collector", "--catalog", kCatalog, "--os-code", "XX", "--json"}), 2, "unknown-os-code");
}

TEST_F(ToolTest, JsonUsageErrorsAreJsonWithStatus64)
{
    nlohmann::json missing = ExpectJsonError(Run({"updates", "--catalog", kCatalog, "--json"}), 64, "usage");
    EXPECT_TRUE(Contains(missing["error"]["message"], "--inventory")) << missing.dump();
    ExpectJsonError(
        Run({"updates", "--catalog", kCatalog, "--inventory", kInventory, "--bundle-type", "BTXX", "--json"}), 64,
        "usage");
    ExpectJsonError(Run({"compare", "1.0", "--json"}), 64, "usage");
    // Without --json the same mistakes stay text on standard error.
    Result text = Run({"updates", "--catalog", kCatalog});
    EXPECT_EQ(text.status, 64);
    EXPECT_EQ(text.out, "");
    EXPECT_TRUE(Contains(text.err, "--inventory"));
}

TEST_F(ToolTest, CompareAndCollectorSpeakJson)
{
    Result compare = Run({"compare", "1.2.10", "1.2.9", "--json"});
    ASSERT_EQ(compare.status, 0) << compare.err;
    EXPECT_EQ(nlohmann::json::parse(compare.out),
              nlohmann::json::parse(
                  R"({"schema_version": 1, "first": "1.2.10", "second": "1.2.9", "order": 1, "relation": ">"})"));
    EXPECT_EQ(nlohmann::json::parse(Run({"compare", "1.0", "1.0.0", "--json"}).out)["order"], -1);
    EXPECT_EQ(nlohmann::json::parse(Run({"compare", "01.2", "1.2", "--json"}).out)["relation"], "=");

    Result collector = Run({"collector", "--catalog", kCatalog, "--os-code", "W22", "--json"});
    ASSERT_EQ(collector.status, 0) << collector.err;
    EXPECT_EQ(nlohmann::json::parse(collector.out),
              nlohmann::json::parse(R"({"schema_version": 1, "catalog": ")" + kCatalog + R"(", "os_code": "W22",
                  "location": "updates.example.com/catalog/collectors/invcol_w64.exe"})"));
}

TEST_F(ToolTest, UpdatesCheckExits100WhenAPackageIsNewer)
{
    Result newer = Run({"updates", "--catalog", kCatalog, "--inventory", kInventory, "--check"});
    EXPECT_EQ(newer.status, 100);
    EXPECT_FALSE(LineWith(newer.out, {"BIOS", "2.3.9", "2.4.1", "newer"}).empty()) << "the report is still printed";
    EXPECT_EQ(Run({"updates", "--catalog", kCatalog, "--inventory", kInventory, "--check", "--json"}).status, 100);
    EXPECT_EQ(Run({"updates", "--catalog", kCatalog, "--inventory", kInventory}).status, 0) << "only with --check";

    // Everything installed is current or ahead of the catalog.
    const std::string current = Path("current.xml");
    WriteFile(current, "<?xml version=\"1.0\"?>\n<SVMInventory lang=\"en\">\n"
                       "<System systemID=\"0A6B\" display=\"M\" serviceTag=\"S\" systemIDType=\"BIOS\"/>\n"
                       "<Device componentID=\"159\" display=\"BIOS\"><Application componentType=\"BIOS\" "
                       "version=\"9.0.0\" display=\"BIOS\"/></Device>\n</SVMInventory>\n");
    Result quiet = Run({"updates", "--catalog", kCatalog, "--inventory", current, "--check", "--json"});
    EXPECT_EQ(quiet.status, 0) << quiet.out;
    EXPECT_EQ(nlohmann::json::parse(quiet.out)["summary"]["updates"], 1);

    // Errors keep their status.
    EXPECT_EQ(Run({"updates", "--catalog", kCatalog, "--inventory", Path("absent.xml"), "--check"}).status, 2);
}

TEST_F(ToolTest, UpdatesOnlyKeepsTheRowsOfTheGivenStatuses)
{
    Result older = Run({"updates", "--catalog", kCatalog, "--inventory", kInventory, "--only", "older", "--json"});
    ASSERT_EQ(older.status, 0) << older.err;
    nlohmann::json document = nlohmann::json::parse(older.out);
    ASSERT_EQ(document["updates"].size(), 1U);
    EXPECT_EQ(document["updates"][0]["application"], "1GbE adapter firmware");
    EXPECT_EQ(document["only"], nlohmann::json::parse(R"(["older"])"));
    EXPECT_EQ(document["summary"]["updates"], 10) << "the summary counts every update";

    Result two = Run(
        {"updates", "--catalog", kCatalog, "--inventory", kInventory, "--only", "same", "--only", "older", "--json"});
    nlohmann::json both = nlohmann::json::parse(two.out);
    ASSERT_EQ(both["updates"].size(), 3U);
    for (const auto& update : both["updates"]) {
        EXPECT_TRUE(update["status"] == "same" || update["status"] == "older") << update.dump();
    }

    Result table = Run({"updates", "--catalog", kCatalog, "--inventory", kInventory, "--only", "older"});
    ASSERT_EQ(table.status, 0);
    EXPECT_FALSE(LineWith(table.out, {"1GbE adapter firmware", "older"}).empty()) << table.out;
    EXPECT_TRUE(LineWith(table.out, {"BIOS", "2.4.1"}).empty()) << table.out;
    EXPECT_FALSE(LineWith(table.out, {"Showing only: older (1 of 10 updates)."}).empty()) << table.out;

    Result without = Run({"updates", "--catalog", kCatalog, "--inventory", kInventory, "--json"});
    EXPECT_FALSE(nlohmann::json::parse(without.out).contains("only"));
    EXPECT_EQ(Run({"updates", "--catalog", kCatalog, "--inventory", kInventory, "--only", "fresh"}).status, 64);
}

TEST_F(ToolTest, EnvironmentNamesTheCatalogAndInventoryWhenTheOptionsDoNot)
{
    setenv("QRMKIT_CATALOG", kCatalog.c_str(), 1);
    setenv("QRMKIT_INVENTORY", kInventory.c_str(), 1);
    Result fromEnvironment = Run({"updates", "--json"});
    Result categories = Run({"categories", "--json"});
    Result fleet = Run({"fleet", kInventory});
    // The option wins over the environment.
    const std::string other = Variant(kInventory, "other.xml", "systemID=\"0A6B\"", "systemID=\"0FFF\"");
    Result optionWins = Run({"updates", "--inventory", other, "--json"});
    Result catalogWins = Run({"catalog", "--catalog", Path("absent.xml"), "--json"});
    unsetenv("QRMKIT_CATALOG");
    unsetenv("QRMKIT_INVENTORY");

    ASSERT_EQ(fromEnvironment.status, 0) << fromEnvironment.out;
    nlohmann::json document = nlohmann::json::parse(fromEnvironment.out);
    EXPECT_EQ(document["catalog"], kCatalog);
    EXPECT_EQ(document["inventory"], kInventory);
    EXPECT_EQ(categories.status, 0);
    EXPECT_EQ(nlohmann::json::parse(categories.out)["catalog"], kCatalog);
    EXPECT_EQ(fleet.status, 0) << fleet.out;
    EXPECT_EQ(nlohmann::json::parse(fleet.out)["catalog"], kCatalog);
    EXPECT_EQ(optionWins.status, 4);
    EXPECT_EQ(nlohmann::json::parse(optionWins.out)["error"]["file"], other);
    EXPECT_EQ(nlohmann::json::parse(catalogWins.out)["error"]["file"], Path("absent.xml"));

    Result neither = Run({"updates", "--json"});
    EXPECT_EQ(neither.status, 64) << "without the options and the environment: a usage error";
}

TEST_F(ToolTest, EveryJsonDocumentNamesItsSchemaVersionFirst)
{
    const std::vector<std::vector<std::string>> commands = {
        {"updates", "--catalog", kCatalog, "--inventory", kInventory, "--json"},
        {"bundle", "--catalog", kCatalog, "--inventory", kInventory, "--json"},
        {"catalog", "--catalog", kCatalog, "--json"},
        {"inventory", "--inventory", kInventory, "--json"},
        {"categories", "--catalog", kCatalog, "--json"},
        {"collector", "--catalog", kCatalog, "--os-code", "W22", "--json"},
        {"compare", "1.0", "1.1", "--json"},
        {"catalog", "--catalog", Path("absent.xml"), "--json"},
        {"updates", "--json"},
        {"fleet", "--catalog", kCatalog, kInventory, Path("absent.xml")},
        {"fleet", "--catalog", Path("absent.xml"), "--format", "jsonl", kInventory}};
    for (const std::vector<std::string>& command : commands) {
        Result result = Run(command);
        std::vector<std::string> lines =
            command[0] == "fleet" ? Lines(result.out) : std::vector<std::string>{result.out};
        ASSERT_FALSE(lines.empty()) << command[0];
        for (const std::string& line : lines) {
            nlohmann::ordered_json document = nlohmann::ordered_json::parse(line);
            ASSERT_TRUE(document.contains("schema_version")) << line;
            EXPECT_EQ(document["schema_version"], 1) << line;
            // First, or right after the inventory a fleet line is about.
            auto key =
                document.begin().key() == "inventory" ? std::next(document.begin()).key() : document.begin().key();
            EXPECT_EQ(key, "schema_version") << line;
        }
    }
}

}  // namespace
