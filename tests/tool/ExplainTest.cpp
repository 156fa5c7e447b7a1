// qrmkit explain: the outcome of every installed application and the first
// reason it gets no update, checked reason by reason and against what
// 'updates' gives on generated catalogs and inventories.
#include "ToolTestSupport.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace {

using namespace tooltest;
using Json = nlohmann::json;

// A catalog package for the documents the tests build.
struct Package {
    std::string path;  // "DIR/NAME.EXE"; the bundle lists NAME.EXE
    std::string version;
    std::string type;  // "FRMW", "DRVR", ...
    // Supported devices: a component id, or (with component id 0) PCI
    // entries "VEND:DEVI:SUBV:SUBD".
    std::vector<std::pair<unsigned, std::vector<std::string>>> devices;
};

// An inventory device: a component id, or PCI ids "VEND:DEVI:SUBV:SUBD",
// with applications (type, version).
struct Machine {
    unsigned componentID = 0;
    std::string pci;
    std::vector<std::pair<std::string, std::string>> applications;
};

std::string Display(const std::string& text) { return "<Display lang=\"en\"><![CDATA[" + text + "]]></Display>"; }

std::string PciAttributes(const std::string& ids, bool inventory)
{
    // VEND:DEVI:SUBV:SUBD
    const std::string vendor = ids.substr(0, 4);
    const std::string device = ids.substr(5, 4);
    const std::string subVendor = ids.substr(10, 4);
    const std::string subDevice = ids.substr(15, 4);
    return std::string(inventory ? " " : "") + "vendorID=\"" + vendor + "\" deviceID=\"" + device +
           "\" subVendorID=\"" + subVendor + "\" subDeviceID=\"" + subDevice + "\"";
}

// A catalog with the packages, a BTW64 bundle for system 0A6B listing the
// file names given, and a BTLX bundle for it listing nothing.
std::string CatalogXml(const std::vector<Package>& packages, const std::vector<std::string>& listed)
{
    auto bundle = [](const std::string& type, const std::string& id, const std::vector<std::string>& files) {
        std::string xml = "<SoftwareBundle schemaVersion=\"2.0\" releaseID=\"R-" + id +
                          "\" dateTime=\"1\" vendorVersion=\"1.0\" path=\"bundles/" + id + "\" bundleID=\"" + id +
                          "\" bundleType=\"" + type + "\"><Name>" + Display("Bundle " + id) +
                          "</Name><ComponentType value=\"SBDL\">" + Display("System Bundle") +
                          "</ComponentType><Description>" + Display("A bundle") +
                          "</Description><TargetSystems><Brand key=\"3\" prefix=\"SRV\">" + Display("Servers") +
                          "<Model systemID=\"0A6B\">" + Display("S740") +
                          "</Model></Brand></TargetSystems><TargetOSes><OperatingSystem osCode=\"W22\" "
                          "osVendor=\"Example\">" +
                          Display("Windows") + "</OperatingSystem></TargetOSes><RevisionHistory>" + Display("First") +
                          "</RevisionHistory><ImportantInfo URL=\"https://example.com\"/><Contents>";
        for (const std::string& file : files) {
            xml += "<Package path=\"" + file + "\" packageID=\"ID-" + file + "\"/>";
        }
        return xml + "</Contents></SoftwareBundle>\n";
    };
    std::string xml = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<Manifest baseLocation=\"example.com\" "
                      "dateTime=\"1\" releaseID=\"R1\" version=\"1.0\">\n";
    xml += bundle("BTW64", "W64", listed) + bundle("BTLX", "LX", {});
    std::size_t number = 0;
    for (const Package& package : packages) {
        ++number;
        xml += "<SoftwareComponent schemaVersion=\"2.0\" releaseID=\"REL" + std::to_string(number) +
               "\" dateTime=\"1\" vendorVersion=\"" + package.version +
               "\" releaseDate=\"1\" hashMD5=\"0\" "
               "tolvarVersion=\"" +
               package.version + "\" packageID=\"PKG" + std::to_string(number) + "\" packageType=\"LWXP\" path=\"" +
               package.path + "\"><Name>" + Display("Package " + std::to_string(number)) +
               "</Name><ComponentType value=\"" + package.type + "\">" + Display(package.type) +
               "</ComponentType><Description>" + Display("A package") + "</Description><Category value=\"NI\">" +
               Display("Network") + "</Category><SupportedDevices>";
        for (const auto& device : package.devices) {
            xml += "<Device componentID=\"" + std::to_string(device.first) + "\" embedded=\"0\">";
            for (const std::string& pci : device.second) {
                xml += "<PCIInfo " + PciAttributes(pci, false) + "/>";
            }
            xml += Display("Device") + "</Device>";
        }
        xml += "</SupportedDevices><SupportedSystems display=\"1\"><Brand key=\"3\" prefix=\"SRV\">" +
               Display("Servers") + "<Model systemID=\"0A6B\">" + Display("S740") +
               "</Model></Brand></SupportedSystems><SupportedOperatingSystems><OperatingSystem osArch=\"x64\" "
               "osCode=\"W22\" osVendor=\"Example\" majorVersion=\"10\" minorVersion=\"0\" spMajorVersion=\"0\" "
               "spMinorVersion=\"0\"/></SupportedOperatingSystems><Criticality value=\"2\"/></SoftwareComponent>\n";
    }
    return xml + "</Manifest>\n";
}

std::string InventoryXml(const std::vector<Machine>& machines)
{
    std::string xml = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<SVMInventory lang=\"en\" schemaVersion=\"1.0\" "
                      "timeStamp=\"1\">\n<OperatingSystem osArch=\"x64\" osCode=\"W22\" osVendor=\"Example\" "
                      "majorVersion=\"10\" minorVersion=\"0\" spMajorVersion=\"0\" spMinorVersion=\"0\" "
                      "preinstallationEnvironment=\"false\" suiteMask=\"400\">" +
                      Display("Server OS") +
                      "</OperatingSystem>\n<System systemID=\"0A6B\" display=\"S740\" serviceTag=\"T\" "
                      "systemIDType=\"BIOS\"/>\n";
    std::size_t number = 0;
    for (const Machine& machine : machines) {
        ++number;
        xml += "<Device display=\"Device " + std::to_string(number) + "\"";
        xml += machine.componentID != 0 ? " componentID=\"" + std::to_string(machine.componentID) + "\""
                                        : PciAttributes(machine.pci, true);
        xml += ">\n";
        std::size_t app = 0;
        for (const auto& application : machine.applications) {
            ++app;
            xml += "<Application componentType=\"" + application.first + "\" version=\"" + application.second +
                   "\" display=\"App " + std::to_string(number) + "." + std::to_string(app) + "\"/>\n";
        }
        xml += "</Device>\n";
    }
    return xml + "</SVMInventory>\n";
}

class ExplainTest : public ToolTest {
protected:
    // explain --json on the two documents, written to the test's directory.
    Json Explain(const std::vector<Package>& packages, const std::vector<std::string>& listed,
                 const std::vector<Machine>& machines, const std::vector<std::string>& extra = {})
    {
        WriteFile(Path("catalog.xml"), CatalogXml(packages, listed));
        WriteFile(Path("inventory.xml"), InventoryXml(machines));
        std::vector<std::string> args = {"explain",     "--catalog",           Path("catalog.xml"),
                                         "--inventory", Path("inventory.xml"), "--json"};
        args.insert(args.end(), extra.begin(), extra.end());
        Result result = Run(args);
        EXPECT_EQ(result.status, 0) << result.out << result.err;
        EXPECT_EQ(result.err, "");
        return Json::parse(result.out);
    }

    // The only row of an explanation.
    static Json Only(const Json& document)
    {
        EXPECT_EQ(document["applications"].size(), 1U) << document.dump(2);
        return document["applications"].empty() ? Json() : document["applications"][0];
    }
};

const std::string kNic = "8086:1593:1028:0A6B";

TEST_F(ExplainTest, ExampleSaysWhichPackageUpdatesEachApplicationAndHowItMatched)
{
    Result result = Run({"explain", "--catalog", kCatalog, "--inventory", kInventory, "--json"});
    ASSERT_EQ(result.status, 0) << result.err;
    Json document = Json::parse(result.out);
    EXPECT_EQ(document["schema_version"], 1);
    EXPECT_EQ(document["bundle"]["id"], "S740W64.00041");
    ASSERT_EQ(document["applications"].size(), 11U);
    const Json& bios = document["applications"][0];
    EXPECT_EQ(bios["outcome"], "update");
    EXPECT_EQ(bios["status"], "newer");
    EXPECT_EQ(bios["update"]["available_version"], "2.4.1");
    EXPECT_EQ(bios["update"]["path"], "FOLDER01/BIOS/BIOS_S740_2.4.1.EXE");
    EXPECT_EQ(bios["update"]["matched_by"], (Json{{"by", "component-id"}, {"component_id", 159}}));
    const Json& raid = document["applications"][4];
    EXPECT_EQ(raid["application"], "RAID controller firmware");
    EXPECT_EQ(raid["update"]["matched_by"]["by"], "pci");
    EXPECT_EQ(raid["update"]["matched_by"]["sub_ids"], "exact");
    EXPECT_EQ(raid["update"]["matched_by"]["sub_device_id"], "2171");
    const Json& nic = document["applications"][2];
    EXPECT_EQ(nic["update"]["matched_by"]["sub_ids"], "any") << "the catalog's 0/0 entry comes first";
    const Json& boot = document["applications"][8];
    EXPECT_EQ(boot["application"], "Boot storage driver");
    EXPECT_EQ(boot["outcome"], "no-supporting-package");
    EXPECT_TRUE(boot["reason"].get<std::string>().find("1B4B:9230") != std::string::npos) << boot.dump();
    EXPECT_EQ(document["summary"]["update"], 10);
    EXPECT_EQ(document["summary"]["no-supporting-package"], 1);

    Result table = Run({"explain", "--catalog", kCatalog, "--inventory", kInventory});
    EXPECT_EQ(table.status, 0);
    EXPECT_FALSE(LineWith(table.out, {"Boot storage driver", "1.2.0", "no-supporting-package",
                                      "no catalog package supports this device"})
                     .empty())
        << table.out;
    EXPECT_FALSE(LineWith(table.out, {"BIOS", "2.3.9", "update", "2.4.1 (newer)", "by component id 159"}).empty());
    EXPECT_FALSE(LineWith(table.out, {"11 installed applications: 10 update, 1 no-supporting-package."}).empty());
}

TEST_F(ExplainTest, DeviceWithTheExcludedComponentIdIsExcludedEvenWhenAPackageSupportsIt)
{
    Json row = Only(Explain({{"D/A.EXE", "2.0", "FRMW", {{2331, {}}}}}, {"A.EXE"}, {{2331, "", {{"FRMW", "1.0"}}}}));
    EXPECT_EQ(row["outcome"], "device-excluded");
    EXPECT_EQ(row["reason"], "component id 2331 never receives updates");
}

TEST_F(ExplainTest, NoBundleNamesTheBundleTypesThatListTheSystem)
{
    const std::vector<Package> packages = {{"D/A.EXE", "2.0", "FRMW", {{101, {}}}}};
    Json document = Explain(packages, {"A.EXE"}, {{101, "", {{"FRMW", "1.0"}}}}, {"--bundle-type", "BTW32"});
    EXPECT_TRUE(document["bundle"].is_null());
    Json row = Only(document);
    EXPECT_EQ(row["outcome"], "no-bundle");
    EXPECT_EQ(row["bundle_types"], (Json{"BTW64", "BTLX"}));
    EXPECT_EQ(row["reason"], "no BTW32 bundle lists this system; BTW64, BTLX have one");
}

TEST_F(ExplainTest, NoSupportingPackageWhenNoPackageNamesTheDevice)
{
    const std::vector<Package> packages = {{"D/A.EXE", "2.0", "FRMW", {{101, {}}, {0, {"8086:1593:0000:0000"}}}}};
    EXPECT_EQ(Only(Explain(packages, {"A.EXE"}, {{102, "", {{"FRMW", "1.0"}}}}))["outcome"], "no-supporting-package");
    EXPECT_EQ(Only(Explain(packages, {"A.EXE"}, {{0, "8086:1594:1028:0A6B", {{"FRMW", "1.0"}}}}))["outcome"],
              "no-supporting-package")
        << "another device id";
}

TEST_F(ExplainTest, NotInBundleNamesUpToThreeSupportingPackages)
{
    std::vector<Package> packages;
    for (const char* name : {"A", "B", "C", "D"}) {
        packages.push_back({std::string("DIR/") + name + ".EXE", "2.0", "FRMW", {{101, {}}}});
    }
    Json row = Only(Explain(packages, {"OTHER.EXE", "dir/A.EXE", "a.exe"}, {{101, "", {{"FRMW", "1.0"}}}}));
    EXPECT_EQ(row["outcome"], "not-in-bundle");
    EXPECT_EQ(row["packages"], (Json{"DIR/A.EXE", "DIR/B.EXE", "DIR/C.EXE"}));
    EXPECT_EQ(row["supporting_packages"], 4);
}

TEST_F(ExplainTest, TypeMismatchGivesTheTypesFound)
{
    const std::vector<Package> packages = {{"D/A.EXE", "2.0", "FRMW", {{0, {kNic}}}},
                                           {"D/B.EXE", "2.0", "APP", {{0, {kNic}}}},
                                           {"D/C.EXE", "2.0", "DRVR", {{0, {kNic}}}}};
    Json row = Only(Explain(packages, {"A.EXE", "B.EXE"}, {{0, kNic, {{"DRVR", "1.0"}}}}));
    EXPECT_EQ(row["outcome"], "type-mismatch") << "the DRVR package is not in the bundle";
    EXPECT_EQ(row["types"], (Json{"APP", "FRMW"}));
}

TEST_F(ExplainTest, SubIdMismatchWhenNoEntryHasTheDeviceSubIdsOrZeros)
{
    const std::vector<Package> packages = {
        {"D/A.EXE", "2.0", "FRMW", {{0, {"8086:1593:1028:2171", "8086:1593:0007:0000"}}}}};
    Json row = Only(Explain(packages, {"A.EXE"}, {{0, kNic, {{"FRMW", "1.0"}}}}));
    EXPECT_EQ(row["outcome"], "sub-id-mismatch");
    EXPECT_EQ(row["sub_ids"], (Json{"0007:0000", "1028:2171"}));
}

TEST_F(ExplainTest, UpdateTakesTheNewestMatchingPackageAndSaysHowItMatched)
{
    const std::vector<Package> packages = {{"D/A.EXE", "1.2", "FRMW", {{0, {"8086:1593:0000:0000"}}}},
                                           {"D/B.EXE", "1.10", "FRMW", {{0, {kNic}}}},
                                           {"D/C.EXE", "1.9", "FRMW", {{0, {kNic}}}}};
    Json row = Only(Explain(packages, {"A.EXE", "B.EXE", "C.EXE"}, {{0, kNic, {{"FRMW", "1.10"}}}}));
    EXPECT_EQ(row["outcome"], "update");
    EXPECT_EQ(row["status"], "same");
    EXPECT_EQ(row["update"]["path"], "D/B.EXE");
    EXPECT_EQ(row["update"]["matched_by"]["sub_ids"], "exact");
    EXPECT_EQ(row["update"]["matched_by"]["sub_vendor_id"], "1028");
}

TEST_F(ExplainTest, OnlyKeepsTheRowsOfTheOutcomesOrStatusesNamed)
{
    Json document = Json::parse(Run({"explain", "--catalog", kCatalog, "--inventory", kInventory, "--json", "--only",
                                     "no-supporting-package", "--only", "older"})
                                    .out);
    ASSERT_EQ(document["applications"].size(), 2U);
    EXPECT_EQ(document["applications"][0]["application"], "1GbE adapter firmware");
    EXPECT_EQ(document["applications"][1]["application"], "Boot storage driver");
    EXPECT_EQ(document["summary"]["applications"], 11) << "the summary still counts all";
    EXPECT_EQ(document["only"], (Json{"no-supporting-package", "older"}));
}

// ------------------------------------------------ agreement with 'updates'

// A random catalog and inventory over small pools of ids, file names,
// versions and types, so that every outcome comes up.
void Generate(std::mt19937& random, std::vector<Package>& packages, std::vector<std::string>& listed,
              std::vector<Machine>& machines)
{
    auto pick = [&random](const auto& pool) { return pool[random() % pool.size()]; };
    const std::vector<unsigned> componentIDs = {101, 102, 103, 2331};
    const std::vector<std::string> pcis = {"8086:1593", "8086:1594", "1000:10E2"};
    const std::vector<std::string> subs = {"0000:0000", "1028:0A6B", "1028:2171", "0007:0000"};
    const std::vector<std::string> types = {"FRMW", "DRVR", "APP"};
    const std::vector<std::string> versions = {"1.0", "1.0.0", "1.2", "1.10", "2.0", "2.0a", "10", "x"};
    const std::vector<std::string> names = {"A.EXE", "B.EXE", "C.EXE", "D.EXE", "E.EXE", "F.EXE"};
    const std::size_t count = 4 + random() % 10;
    for (std::size_t i = 0; i < count; ++i) {
        Package package{
            pick(std::vector<std::string>{"X/", "Y/Z/", ""}) + pick(names), pick(versions), pick(types), {}};
        const std::size_t devices = 1 + random() % 2;
        for (std::size_t d = 0; d < devices; ++d) {
            if (random() % 2 == 0) {
                package.devices.push_back({pick(componentIDs), {}});
            } else {
                std::vector<std::string> entries;
                const std::size_t n = 1 + random() % 3;
                for (std::size_t e = 0; e < n; ++e) {
                    entries.push_back(pick(pcis) + ":" + pick(subs));
                }
                package.devices.push_back({0, entries});
            }
        }
        packages.push_back(package);
    }
    for (const std::string& name : names) {
        if (random() % 3 != 0) {
            listed.push_back(name);
            if (random() % 5 == 0) {
                listed.push_back(name);  // listed twice
            }
        }
    }
    const std::size_t machineCount = 2 + random() % 5;
    for (std::size_t i = 0; i < machineCount; ++i) {
        Machine machine;
        if (random() % 2 == 0) {
            machine.componentID = pick(componentIDs);
        } else {
            machine.pci = pick(pcis) + ":" + pick(subs);
        }
        const std::size_t apps = 1 + random() % 2;
        for (std::size_t a = 0; a < apps; ++a) {
            machine.applications.push_back(
                {pick(std::vector<std::string>{"FRMW", "DRVR", "APP", "BIOS"}), pick(versions)});
        }
        machines.push_back(machine);
    }
}

TEST_F(ExplainTest, UpdateExactlyWhenUpdatesGivesAPackageAndTheSamePackageOnGeneratedCases)
{
    std::map<std::string, std::size_t> outcomes;
    std::mt19937 random(20261124);
    for (int round = 0; round < 150; ++round) {
        std::vector<Package> packages;
        std::vector<std::string> listed;
        std::vector<Machine> machines;
        Generate(random, packages, listed, machines);
        const std::string bundleType = round % 10 == 9 ? "BTW32" : round % 10 == 8 ? "BTLX" : "auto";
        Json explanation = Explain(packages, listed, machines, {"--bundle-type", bundleType});

        Result updates = Run({"updates", "--catalog", Path("catalog.xml"), "--inventory", Path("inventory.xml"),
                              "--bundle-type", bundleType, "--json"});
        std::vector<std::string> expected;
        if (updates.status == 0) {
            const Json document = Json::parse(updates.out);
            for (const Json& update : document["updates"]) {
                expected.push_back(
                    update["device"].get<std::string>() + " / " + update["application"].get<std::string>() + " -> " +
                    update["path"].get<std::string>() + " " + update["available_version"].get<std::string>());
            }
        } else {
            ASSERT_EQ(updates.status, 4) << updates.out;
            EXPECT_TRUE(explanation["bundle"].is_null());
        }
        std::vector<std::string> explained;
        for (const Json& row : explanation["applications"]) {
            ++outcomes[row["outcome"].get<std::string>()];
            if (row["outcome"] == "update") {
                explained.push_back(row["device"].get<std::string>() + " / " + row["application"].get<std::string>() +
                                    " -> " + row["update"]["path"].get<std::string>() + " " +
                                    row["update"]["available_version"].get<std::string>());
            }
        }
        ASSERT_EQ(explained, expected) << "round " << round << "\n"
                                       << ReadFile(Path("catalog.xml")) << ReadFile(Path("inventory.xml"));
    }
    for (const char* outcome : {"update", "device-excluded", "no-bundle", "no-supporting-package", "not-in-bundle",
                                "type-mismatch", "sub-id-mismatch"}) {
        EXPECT_GT(outcomes[outcome], 0U) << "the generated cases never gave " << outcome;
    }
}

}  // namespace
