// Matching catalog components to the applications installed on the
// inventory's devices.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace {

typedef std::map<QRMIApplication*, QRMSoftwareComponent*> Updates;

// One "PCIInfo" of a catalog device, hexadecimal texts.
struct PCIEntry {
    std::string vendorID;
    std::string deviceID;
    std::string subVendorID;
    std::string subDeviceID;
};

// One supported device of a catalog component: a decimal component id
// ("" leaves the attribute out) and its PCI entries.
struct Supported {
    std::string componentID;
    std::vector<PCIEntry> pci;
};

std::string ComponentXML(const std::string& packageID, const std::string& path, const std::string& type,
                         const std::string& version, const std::vector<Supported>& devices)
{
    std::string supported;
    for (const Supported& device : devices) {
        supported += "<Device";
        if (!device.componentID.empty()) {
            supported += " componentID=\"" + device.componentID + "\"";
        }
        supported += ">";
        for (const PCIEntry& pci : device.pci) {
            supported += "<PCIInfo vendorID=\"" + pci.vendorID + "\" deviceID=\"" + pci.deviceID + "\" subVendorID=\"" +
                         pci.subVendorID + "\" subDeviceID=\"" + pci.subDeviceID + "\"/>";
        }
        supported += "<Display lang=\"en\">Device</Display></Device>";
    }
    return "<SoftwareComponent packageID=\"" + packageID + "\" path=\"" + path + "\" vendorVersion=\"" + version +
           "\">"
           "<Name><Display lang=\"en\">Package " +
           packageID +
           "</Display></Name>"
           "<ComponentType value=\"" +
           type +
           "\"/>"
           "<Category value=\"UT\"><Display lang=\"en\"><![CDATA[Updates]]></Display></Category>"
           "<SupportedDevices>" +
           supported + "</SupportedDevices></SoftwareComponent>";
}

// A component of the given type for the devices with that component id.
std::string ComponentForID(const std::string& packageID, const std::string& path, const std::string& type,
                           const std::string& version, const std::string& componentID)
{
    return ComponentXML(packageID, path, type, version, {{componentID, {}}});
}

// A bundle for one system (hexadecimal id) that lists the given package paths.
std::string BundleXML(const std::string& bundleType, const std::string& systemID,
                      const std::vector<std::string>& packages)
{
    std::string contents;
    for (const std::string& path : packages) {
        contents += "<Package path=\"" + path + "\" packageID=\"P-" + path + "\"/>";
    }
    return "<SoftwareBundle bundleID=\"B." + bundleType + "\" bundleType=\"" + bundleType +
           "\">"
           "<Name><Display lang=\"en\">Bundle</Display></Name>"
           "<ComponentType value=\"SBDL\"/>"
           "<TargetSystems><Brand key=\"3\" prefix=\"SRV\"><Model systemID=\"" +
           systemID +
           "\"/></Brand></TargetSystems>"
           "<Contents>" +
           contents + "</Contents></SoftwareBundle>";
}

std::string CatalogOf(const std::string& entries)
{
    return CatalogXML::Document("baseLocation=\"updates.example.com\" releaseID=\"R1\"", entries);
}

struct App {
    std::string type;
    std::string version;
    std::string display;
};

// An inventory "Device" with the given attributes (its "display" included).
std::string DeviceXML(const std::string& attributes, const std::vector<App>& apps)
{
    std::string xml = "<Device " + attributes + ">";
    for (const App& app : apps) {
        xml += "<Application componentType=\"" + app.type + "\" version=\"" + app.version + "\" display=\"" +
               app.display + "\"/>";
    }
    return xml + "</Device>";
}

std::string DeviceWithID(const std::string& componentID, const std::vector<App>& apps)
{
    return DeviceXML("componentID=\"" + componentID + "\" display=\"Device " + componentID + "\"", apps);
}

// The PCI device that the PCI tests inventory: vendor 106B, device 04D2,
// sub-vendor 0007, sub-device 0009, without a component id.
std::string PCIDevice(const std::vector<App>& apps)
{
    return DeviceXML("vendorID=\"106B\" deviceID=\"04D2\" subVendorID=\"0007\" subDeviceID=\"0009\" "
                     "display=\"Network adapter\"",
                     apps);
}

std::string InventoryOf(const std::string& systemID, const std::string& devices)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<SVMInventory lang=\"en\">"
           "<System systemID=\"" +
           systemID + "\" display=\"Server\"/>" + devices + "</SVMInventory>\n";
}

// The result as application display -> component package id.
std::map<std::string, std::string> Describe(const Updates& updates)
{
    std::map<std::string, std::string> described;
    for (const auto& entry : updates) {
        described[entry.first->GetDisplay().GetUTF8String()] = entry.second->GetPackageID().GetUTF8String();
    }
    return described;
}

typedef std::map<std::string, std::string> Described;

class ApplicableUpdates : public testing::Test {
protected:
    void LoadCatalog(const std::string& entries)
    {
        ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(dir.Write("catalog.xml", CatalogOf(entries)))));
    }
    void LoadInventory(const std::string& devices, const std::string& systemID = "0A6B")
    {
        ASSERT_EQ(QRM_KIT_SUCCESS,
                  api->ParseInventory(VELFile(dir.Write("inventory.xml", InventoryOf(systemID, devices)))));
    }
    void Load(const std::string& catalogEntries, const std::string& devices)
    {
        LoadCatalog(catalogEntries);
        LoadInventory(devices);
    }

    // A successful query for BTW64 into an empty map.
    Updates Query(QRMBundleTypeEnum bundleType = QRM_BUNDLE_BTW64)
    {
        Updates updates;
        EXPECT_EQ(QRM_KIT_SUCCESS, api->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, bundleType));
        return updates;
    }

    std::vector<QRMIApplication*> Applications()
    {
        std::vector<QRMIDevice*> devices;
        EXPECT_EQ(QRM_KIT_SUCCESS, api->GetInventory(devices));
        std::vector<QRMIApplication*> applications;
        for (const QRMIDevice* device : devices) {
            device->GetApplications(applications);
        }
        return applications;
    }

    std::vector<QRMSoftwareComponent*> Components()
    {
        std::vector<QRMSoftwareComponent*> components;
        api->GetSoftwareComponents(components);
        return components;
    }

    QRMKitAPI* api = QRMKitAPI::Instance();
    TempDir dir;
};

const App kFirmware{"FRMW", "1.0", "firmware"};

}  // namespace

// ---- Which devices match ----

TEST_F(ApplicableUpdates, DeviceWithComponentID2331NeverGetsAnEntry)
{
    Load(BundleXML("BTW64", "0A6B", {"FW.EXE"}) +
             ComponentXML("FW", "FW.EXE", "FRMW", "2.0", {{"2331", {}}, {"2330", {}}}),
         DeviceWithID("2331", {{"FRMW", "1.0", "excluded firmware"}}) +
             DeviceWithID("2330", {{"FRMW", "1.0", "other firmware"}}));
    EXPECT_EQ((Described{{"other firmware", "FW"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, DeviceWithoutComponentIDMatchesPCIEntryWithTheSameFourIDs)
{
    Load(BundleXML("BTW64", "0A6B", {"NIC.EXE"}) +
             ComponentXML("NIC", "NIC.EXE", "DRVR", "2.0", {{"", {{"106B", "04D2", "0007", "0009"}}}}),
         PCIDevice({{"DRVR", "1.0", "nic driver"}}));
    EXPECT_EQ((Described{{"nic driver", "NIC"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, DeviceWithoutComponentIDMatchesPCIEntryWithoutSubIDs)
{
    Load(BundleXML("BTW64", "0A6B", {"NIC.EXE"}) +
             ComponentXML("NIC", "NIC.EXE", "DRVR", "2.0", {{"", {{"106B", "04D2", "0000", "0000"}}}}),
         PCIDevice({{"DRVR", "1.0", "nic driver"}}));
    EXPECT_EQ((Described{{"nic driver", "NIC"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, PCIEntryWithSubVendorButZeroSubDeviceDoesNotMatch)
{
    Load(BundleXML("BTW64", "0A6B", {"NIC.EXE"}) +
             ComponentXML("NIC", "NIC.EXE", "DRVR", "2.0", {{"", {{"106B", "04D2", "0007", "0000"}}}}),
         PCIDevice({{"DRVR", "1.0", "nic driver"}}));
    EXPECT_TRUE(Query().empty());
}

TEST_F(ApplicableUpdates, PCIEntryWithSubDeviceButZeroSubVendorDoesNotMatch)
{
    Load(BundleXML("BTW64", "0A6B", {"NIC.EXE"}) +
             ComponentXML("NIC", "NIC.EXE", "DRVR", "2.0", {{"", {{"106B", "04D2", "0000", "0009"}}}}),
         PCIDevice({{"DRVR", "1.0", "nic driver"}}));
    EXPECT_TRUE(Query().empty());
}

TEST_F(ApplicableUpdates, PCIEntryWithOtherSubIDsDoesNotMatch)
{
    Load(BundleXML("BTW64", "0A6B", {"NIC.EXE"}) +
             ComponentXML("NIC", "NIC.EXE", "DRVR", "2.0", {{"", {{"106B", "04D2", "0009", "0007"}}}}),
         PCIDevice({{"DRVR", "1.0", "nic driver"}}));
    EXPECT_TRUE(Query().empty());
}

TEST_F(ApplicableUpdates, PCIEntryWithOtherVendorOrDeviceIDDoesNotMatch)
{
    Load(BundleXML("BTW64", "0A6B", {"NIC.EXE"}) +
             ComponentXML("NIC", "NIC.EXE", "DRVR", "2.0",
                          {{"", {{"106C", "04D2", "0007", "0009"}, {"106B", "04D3", "0000", "0000"}}}}),
         PCIDevice({{"DRVR", "1.0", "nic driver"}}));
    EXPECT_TRUE(Query().empty());
}

TEST_F(ApplicableUpdates, LaterPCIEntryOfASupportedDeviceMatches)
{
    Load(BundleXML("BTW64", "0A6B", {"NIC.EXE"}) +
             ComponentXML("NIC", "NIC.EXE", "DRVR", "2.0",
                          {{"", {{"8086", "1593", "0000", "0000"}}},
                           {"", {{"14E4", "165F", "0000", "0000"}, {"106B", "04D2", "0007", "0009"}}}}),
         PCIDevice({{"DRVR", "1.0", "nic driver"}}));
    EXPECT_EQ((Described{{"nic driver", "NIC"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, DeviceWithoutComponentIDIsNotMatchedByCatalogComponentIDZero)
{
    // Without a component id the device is identified by its PCI ids only.
    Load(BundleXML("BTW64", "0A6B", {"NIC.EXE"}) + ComponentForID("NIC", "NIC.EXE", "DRVR", "2.0", "0"),
         PCIDevice({{"DRVR", "1.0", "nic driver"}}));
    EXPECT_TRUE(Query().empty());
}

TEST_F(ApplicableUpdates, DeviceWithComponentIDIsMatchedByComponentIDAndNotByPCIIDs)
{
    const std::string device = DeviceXML("componentID=\"500\" vendorID=\"106B\" deviceID=\"04D2\" subVendorID=\"0007\" "
                                         "subDeviceID=\"0009\" display=\"Controller\"",
                                         {{"FRMW", "1.0", "controller firmware"}});
    Load(BundleXML("BTW64", "0A6B", {"BYPCI.EXE", "BYID.EXE"}) +
             ComponentXML("BYPCI", "BYPCI.EXE", "FRMW", "9.0", {{"501", {{"106B", "04D2", "0007", "0009"}}}}) +
             ComponentForID("BYID", "BYID.EXE", "FRMW", "1.0", "500"),
         device);
    EXPECT_EQ((Described{{"controller firmware", "BYID"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, DeviceWithComponentIDIgnoresMatchingPCIEntry)
{
    const std::string device = DeviceXML("componentID=\"500\" vendorID=\"106B\" deviceID=\"04D2\" subVendorID=\"0007\" "
                                         "subDeviceID=\"0009\" display=\"Controller\"",
                                         {{"FRMW", "1.0", "controller firmware"}});
    Load(BundleXML("BTW64", "0A6B", {"BYPCI.EXE"}) +
             ComponentXML("BYPCI", "BYPCI.EXE", "FRMW", "9.0", {{"", {{"106B", "04D2", "0007", "0009"}}}}),
         device);
    EXPECT_TRUE(Query().empty());
}

TEST_F(ApplicableUpdates, ComponentTypeMustEqualTheApplicationsType)
{
    Load(BundleXML("BTW64", "0A6B", {"DRV.EXE", "BIOS.EXE"}) + ComponentForID("DRV", "DRV.EXE", "DRVR", "2.0", "159") +
             ComponentForID("BIOS", "BIOS.EXE", "BIOS", "2.0", "160"),
         DeviceWithID("159", {{"FRMW", "1.0", "firmware"}, {"DRVR", "1.0", "driver"}}) +
             DeviceWithID("160", {{"FRMW", "1.0", "other firmware"}}));
    EXPECT_EQ((Described{{"driver", "DRV"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, EachApplicationOfADeviceGetsTheComponentOfItsType)
{
    Load(BundleXML("BTW64", "0A6B", {"DRV.EXE", "FW.EXE"}) + ComponentForID("DRV", "DRV.EXE", "DRVR", "2.0", "159") +
             ComponentForID("FW", "FW.EXE", "FRMW", "2.0", "159"),
         DeviceWithID("159", {{"FRMW", "1.0", "firmware"}, {"DRVR", "1.0", "driver"}}));
    EXPECT_EQ((Described{{"firmware", "FW"}, {"driver", "DRV"}}), Describe(Query()));
}

// ---- Which candidate wins ----

namespace {

// Two FRMW components for device 159, listed in the bundle in the given
// package order, the catalog holding them in the order given.
std::string TwoCandidates(const std::string& first, const std::string& firstVersion, const std::string& second,
                          const std::string& secondVersion, const std::vector<std::string>& packages)
{
    return BundleXML("BTW64", "0A6B", packages) + ComponentForID(first, first + ".EXE", "FRMW", firstVersion, "159") +
           ComponentForID(second, second + ".EXE", "FRMW", secondVersion, "159");
}

const std::string kDevice159 = DeviceWithID("159", {kFirmware});

}  // namespace

TEST_F(ApplicableUpdates, NewerVersionWinsWhenFoundSecond)
{
    Load(TwoCandidates("OLD", "1.2", "NEW", "1.10", {"OLD.EXE", "NEW.EXE"}), kDevice159);
    EXPECT_EQ((Described{{"firmware", "NEW"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, NewerVersionWinsWhenFoundFirst)
{
    Load(TwoCandidates("NEW", "1.10", "OLD", "1.2", {"NEW.EXE", "OLD.EXE"}), kDevice159);
    EXPECT_EQ((Described{{"firmware", "NEW"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, NewestOfThreeWinsWherever)
{
    Load(BundleXML("BTW64", "0A6B", {"A.EXE", "B.EXE", "C.EXE"}) + ComponentForID("A", "A.EXE", "FRMW", "1.9", "159") +
             ComponentForID("B", "B.EXE", "FRMW", "1.10", "159") + ComponentForID("C", "C.EXE", "FRMW", "1.2", "159"),
         kDevice159);
    EXPECT_EQ((Described{{"firmware", "B"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, VersionWithMoreZeroFieldsWinsWhenFoundSecond)
{
    Load(TwoCandidates("SHORT", "1.0", "LONG", "1.0.0", {"SHORT.EXE", "LONG.EXE"}), kDevice159);
    EXPECT_EQ((Described{{"firmware", "LONG"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, VersionWithMoreZeroFieldsWinsWhenFoundFirst)
{
    Load(TwoCandidates("LONG", "1.0.0", "SHORT", "1.0", {"LONG.EXE", "SHORT.EXE"}), kDevice159);
    EXPECT_EQ((Described{{"firmware", "LONG"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, AmongEqualVersionsBundlePackageOrderDecides)
{
    // Catalog order A, B; the bundle lists B first.
    Load(TwoCandidates("A", "2.0", "B", "2.0", {"B.EXE", "A.EXE"}), kDevice159);
    EXPECT_EQ((Described{{"firmware", "B"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, AmongEqualVersionsFirstPackageOfTheBundleWins)
{
    Load(TwoCandidates("A", "2.0", "B", "2.0", {"A.EXE", "B.EXE"}), kDevice159);
    EXPECT_EQ((Described{{"firmware", "A"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, AmongEqualVersionsOfOnePackageCatalogOrderDecides)
{
    Load(BundleXML("BTW64", "0A6B", {"PKG.EXE"}) + ComponentForID("ONE", "one/PKG.EXE", "FRMW", "2.0", "159") +
             ComponentForID("TWO", "two/PKG.EXE", "FRMW", "2.0", "159"),
         kDevice159);
    EXPECT_EQ((Described{{"firmware", "ONE"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, AmongEqualVersionsOfOnePackageFirstInCatalogWinsReversed)
{
    Load(BundleXML("BTW64", "0A6B", {"PKG.EXE"}) + ComponentForID("TWO", "two/PKG.EXE", "FRMW", "2.0", "159") +
             ComponentForID("ONE", "one/PKG.EXE", "FRMW", "2.0", "159"),
         kDevice159);
    EXPECT_EQ((Described{{"firmware", "TWO"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, PackageListedTwiceDoesNotChangeTheFirstFoundAmongEquals)
{
    Load(TwoCandidates("A", "2.0", "B", "2.0", {"B.EXE", "A.EXE", "B.EXE", "A.EXE"}), kDevice159);
    EXPECT_EQ((Described{{"firmware", "B"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, NonASCIIVersionNeverReplacesAnEarlierBest)
{
    const std::string nonASCII = "1.\xC3\xA9";
    ASSERT_EQ(-2, api->CompareVersion(VELString::FromUTF8(nonASCII.data(), nonASCII.size()), VELString("1.0")));
    Load(TwoCandidates("ASCII", "1.0", "ACCENT", nonASCII, {"ASCII.EXE", "ACCENT.EXE"}), kDevice159);
    EXPECT_EQ((Described{{"firmware", "ASCII"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, NonASCIIVersionFoundFirstStaysBest)
{
    const std::string nonASCII = "1.\xC3\xA9";
    Load(TwoCandidates("ACCENT", nonASCII, "ASCII", "2.0", {"ACCENT.EXE", "ASCII.EXE"}), kDevice159);
    EXPECT_EQ((Described{{"firmware", "ACCENT"}}), Describe(Query()));
}

// ---- Which components are candidates ----

TEST_F(ApplicableUpdates, PackageEntryMatchesTheFileNameAfterTheLastSlash)
{
    Load(BundleXML("BTW64", "0A6B", {"PKG.EXE"}) + ComponentForID("PKG", "dir/sub/PKG.EXE", "FRMW", "2.0", "159"),
         kDevice159);
    EXPECT_EQ((Described{{"firmware", "PKG"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, PackageEntryIsComparedCaseSensitively)
{
    Load(BundleXML("BTW64", "0A6B", {"pkg.exe"}) + ComponentForID("PKG", "dir/sub/PKG.EXE", "FRMW", "2.0", "159"),
         kDevice159);
    EXPECT_TRUE(Query().empty());
}

TEST_F(ApplicableUpdates, PackageEntryWithADirectoryDoesNotMatch)
{
    Load(BundleXML("BTW64", "0A6B", {"sub/PKG.EXE", "dir/sub/PKG.EXE"}) +
             ComponentForID("PKG", "dir/sub/PKG.EXE", "FRMW", "2.0", "159"),
         kDevice159);
    EXPECT_TRUE(Query().empty());
}

TEST_F(ApplicableUpdates, OnlySlashSeparatesTheFileName)
{
    Load(BundleXML("BTW64", "0A6B", {"PKG.EXE"}) + ComponentForID("PKG", "dir\\PKG.EXE", "FRMW", "2.0", "159"),
         kDevice159);
    EXPECT_TRUE(Query().empty());
}

TEST_F(ApplicableUpdates, ComponentNotListedInTheBundleIsNeverMapped)
{
    // UNLISTED is newer and supports both devices, but the bundle does not
    // name its file.
    Load(BundleXML("BTW64", "0A6B", {"LISTED.EXE"}) + ComponentForID("LISTED", "LISTED.EXE", "FRMW", "1.0", "159") +
             ComponentXML("UNLISTED", "UNLISTED.EXE", "FRMW", "9.0", {{"159", {}}, {"160", {}}}),
         kDevice159 + DeviceWithID("160", {{"FRMW", "1.0", "other firmware"}}));
    EXPECT_EQ((Described{{"firmware", "LISTED"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, ComponentListedOnlyInABundleOfAnotherTypeIsNotMapped)
{
    Load(BundleXML("BTW64", "0A6B", {"W.EXE"}) + BundleXML("BTLX", "0A6B", {"L.BIN"}) +
             ComponentForID("W", "W.EXE", "FRMW", "1.0", "159") + ComponentForID("L", "L.BIN", "FRMW", "9.0", "159"),
         kDevice159);
    EXPECT_EQ((Described{{"firmware", "W"}}), Describe(Query(QRM_BUNDLE_BTW64)));
    EXPECT_EQ((Described{{"firmware", "L"}}), Describe(Query(QRM_BUNDLE_BTLX)));
}

// ---- Failures and the caller's map ----

namespace {

// A caller's entry that the library knows nothing of.
struct ForeignEntry {
    QRMIApplication application;
    QRMSoftwareComponent component;
};

}  // namespace

TEST_F(ApplicableUpdates, BeforeParseInventoryFailsAndLeavesTheMapUnchanged)
{
    LoadCatalog(BundleXML("BTW64", "0A6B", {"FW.EXE"}) + ComponentForID("FW", "FW.EXE", "FRMW", "2.0", "159"));
    ASSERT_FALSE(api->IsInventoryParsed());
    ForeignEntry foreign;
    Updates updates{{&foreign.application, &foreign.component}};
    EXPECT_EQ(QRM_KIT_FAILURE, api->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    EXPECT_EQ((Updates{{&foreign.application, &foreign.component}}), updates);
}

TEST_F(ApplicableUpdates, CatalogNotParsedFailsAndLeavesTheMapUnchanged)
{
    LoadInventory(kDevice159);
    ForeignEntry foreign;
    Updates updates{{&foreign.application, &foreign.component}};
    EXPECT_EQ(QRM_KIT_FAILURE, api->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    EXPECT_EQ((Updates{{&foreign.application, &foreign.component}}), updates);
}

TEST_F(ApplicableUpdates, CatalogWhoseParseWasAbortedCountsAsNotParsed)
{
    LoadInventory(kDevice159);
    // The bundle and the component are stored; the component after them
    // lacks "Category" and aborts the parse.
    const std::string entries = BundleXML("BTW64", "0A6B", {"FW.EXE"}) +
                                ComponentForID("FW", "FW.EXE", "FRMW", "2.0", "159") +
                                CatalogXML::Component("BROKEN", "Category");
    ASSERT_EQ(QRM_KIT_ELEMENT_MISSING, api->Parse(VELFile(dir.Write("catalog.xml", CatalogOf(entries)))));
    ASSERT_NE(nullptr, api->GetApplicableBundle(QRM_BUNDLE_BTW64));
    ASSERT_EQ(1u, Components().size());

    ForeignEntry foreign;
    Updates updates{{&foreign.application, &foreign.component}};
    EXPECT_EQ(QRM_KIT_FAILURE, api->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    EXPECT_EQ((Updates{{&foreign.application, &foreign.component}}), updates);
}

TEST_F(ApplicableUpdates, AfterResetFailsAndLeavesTheMapUnchanged)
{
    Load(BundleXML("BTW64", "0A6B", {"FW.EXE"}) + ComponentForID("FW", "FW.EXE", "FRMW", "2.0", "159"), kDevice159);
    ASSERT_EQ(1u, Query().size());
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Reset());
    ForeignEntry foreign;
    Updates updates{{&foreign.application, &foreign.component}};
    EXPECT_EQ(QRM_KIT_FAILURE, api->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    EXPECT_EQ((Updates{{&foreign.application, &foreign.component}}), updates);
}

TEST_F(ApplicableUpdates, NoBundleForTheSystemFailsAndLeavesTheMapUnchanged)
{
    Load(BundleXML("BTW64", "0A6C", {"FW.EXE"}) + ComponentForID("FW", "FW.EXE", "FRMW", "2.0", "159"), kDevice159);
    ForeignEntry foreign;
    Updates updates{{&foreign.application, &foreign.component}};
    EXPECT_EQ(QRM_KIT_FAILURE, api->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    EXPECT_EQ((Updates{{&foreign.application, &foreign.component}}), updates);
}

TEST_F(ApplicableUpdates, NoBundleOfTheRequestedTypeFailsAndLeavesTheMapUnchanged)
{
    Load(BundleXML("BTW64", "0A6B", {"FW.EXE"}) + ComponentForID("FW", "FW.EXE", "FRMW", "2.0", "159"), kDevice159);
    ForeignEntry foreign;
    Updates updates{{&foreign.application, &foreign.component}};
    EXPECT_EQ(QRM_KIT_FAILURE, api->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTLX));
    EXPECT_EQ((Updates{{&foreign.application, &foreign.component}}), updates);
}

TEST_F(ApplicableUpdates, InventoryWithoutDevicesSucceedsAndLeavesTheMapUnchanged)
{
    Load(BundleXML("BTW64", "0A6B", {"FW.EXE"}) + ComponentForID("FW", "FW.EXE", "FRMW", "2.0", "159"), "");
    ForeignEntry foreign;
    Updates updates{{&foreign.application, &foreign.component}};
    EXPECT_EQ(QRM_KIT_SUCCESS, api->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    EXPECT_EQ((Updates{{&foreign.application, &foreign.component}}), updates);
}

TEST_F(ApplicableUpdates, ExistingEntriesOfTheCallerStay)
{
    Load(BundleXML("BTW64", "0A6B", {"FW.EXE"}) + ComponentForID("FW", "FW.EXE", "FRMW", "2.0", "159"), kDevice159);
    std::vector<QRMIApplication*> applications = Applications();
    ASSERT_EQ(1u, applications.size());
    std::vector<QRMSoftwareComponent*> components = Components();
    ASSERT_EQ(1u, components.size());

    ForeignEntry foreign;
    Updates updates{{&foreign.application, &foreign.component}};
    EXPECT_EQ(QRM_KIT_SUCCESS, api->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    EXPECT_EQ((Updates{{&foreign.application, &foreign.component}, {applications[0], components[0]}}), updates);
}

TEST_F(ApplicableUpdates, ExistingEntryForAnApplicationIsOverwritten)
{
    Load(BundleXML("BTW64", "0A6B", {"FW.EXE"}) + ComponentForID("FW", "FW.EXE", "FRMW", "2.0", "159"), kDevice159);
    std::vector<QRMIApplication*> applications = Applications();
    ASSERT_EQ(1u, applications.size());
    std::vector<QRMSoftwareComponent*> components = Components();
    ASSERT_EQ(1u, components.size());

    QRMSoftwareComponent stale;
    Updates updates{{applications[0], &stale}};
    EXPECT_EQ(QRM_KIT_SUCCESS, api->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    EXPECT_EQ((Updates{{applications[0], components[0]}}), updates);
}

TEST_F(ApplicableUpdates, ExistingEntryForAnApplicationWithoutCandidateStays)
{
    Load(BundleXML("BTW64", "0A6B", {"FW.EXE"}) + ComponentForID("FW", "FW.EXE", "FRMW", "2.0", "159"),
         kDevice159 + DeviceWithID("160", {{"FRMW", "1.0", "unknown firmware"}}));
    std::vector<QRMIApplication*> applications = Applications();
    ASSERT_EQ(2u, applications.size());
    std::vector<QRMSoftwareComponent*> components = Components();
    ASSERT_EQ(1u, components.size());

    QRMSoftwareComponent stale;
    Updates updates{{applications[1], &stale}};
    EXPECT_EQ(QRM_KIT_SUCCESS, api->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    EXPECT_EQ((Updates{{applications[0], components[0]}, {applications[1], &stale}}), updates);
}

// ---- What is not consulted ----

TEST_F(ApplicableUpdates, InstalledVersionIsNotConsulted)
{
    Load(BundleXML("BTW64", "0A6B", {"FW.EXE"}) +
             ComponentXML("FW", "FW.EXE", "FRMW", "2.0", {{"159", {}}, {"160", {}}, {"161", {}}}),
         DeviceWithID("159", {{"FRMW", "1.0", "older firmware"}}) +
             DeviceWithID("160", {{"FRMW", "2.0", "same firmware"}}) +
             DeviceWithID("161", {{"FRMW", "9.9", "newer firmware"}}));
    EXPECT_EQ((Described{{"older firmware", "FW"}, {"same firmware", "FW"}, {"newer firmware", "FW"}}),
              Describe(Query()));
}

TEST_F(ApplicableUpdates, ArchitectureDoesNotChangeTheResult)
{
    Load(BundleXML("BTW64", "0A6B", {"FW.EXE", "NIC.EXE"}) + ComponentForID("FW", "FW.EXE", "FRMW", "2.0", "159") +
             ComponentXML("NIC", "NIC.EXE", "DRVR", "2.0", {{"", {{"106B", "04D2", "0000", "0000"}}}}),
         kDevice159 + PCIDevice({{"DRVR", "1.0", "nic driver"}}));
    Updates x64;
    ASSERT_EQ(QRM_KIT_SUCCESS, api->GetApplicableUpdates(x64, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    ASSERT_EQ((Described{{"firmware", "FW"}, {"nic driver", "NIC"}}), Describe(x64));

    const QRMOSArchitectureEnum others[] = {QRM_OS_ARCH_X86, QRM_OS_ARCH_IA64, QRM_OS_ARCH_IA32,
                                            static_cast<QRMOSArchitectureEnum>(99)};
    for (QRMOSArchitectureEnum architecture : others) {
        Updates updates;
        EXPECT_EQ(QRM_KIT_SUCCESS, api->GetApplicableUpdates(updates, architecture, QRM_BUNDLE_BTW64));
        EXPECT_EQ(x64, updates) << "architecture " << architecture;
    }
}

TEST_F(ApplicableUpdates, RepeatedCallsGiveTheSameResult)
{
    Load(TwoCandidates("A", "2.0", "B", "2.0", {"B.EXE", "A.EXE"}), kDevice159);
    const Updates first = Query();
    ASSERT_EQ(1u, first.size());
    EXPECT_EQ(first, Query());
    EXPECT_EQ(first, Query());
}

TEST_F(ApplicableUpdates, KeysAndValuesPointIntoTheStores)
{
    Load(BundleXML("BTW64", "0A6B", {"FW.EXE", "DRV.EXE", "NIC.EXE"}) +
             ComponentForID("FW", "FW.EXE", "FRMW", "2.0", "159") +
             ComponentForID("DRV", "DRV.EXE", "DRVR", "2.0", "159") +
             ComponentXML("NIC", "NIC.EXE", "DRVR", "2.0", {{"", {{"106B", "04D2", "0007", "0009"}}}}),
         DeviceWithID("159", {{"FRMW", "1.0", "firmware"}, {"DRVR", "1.0", "driver"}}) +
             PCIDevice({{"DRVR", "1.0", "nic driver"}}));
    const std::vector<QRMIApplication*> applications = Applications();
    const std::vector<QRMSoftwareComponent*> components = Components();
    ASSERT_EQ(3u, applications.size());
    ASSERT_EQ(3u, components.size());

    const Updates updates = Query();
    EXPECT_EQ(
        (Updates{{applications[0], components[0]}, {applications[1], components[1]}, {applications[2], components[2]}}),
        updates);
    for (const auto& entry : updates) {
        EXPECT_NE(applications.end(), std::find(applications.begin(), applications.end(), entry.first));
        EXPECT_NE(components.end(), std::find(components.begin(), components.end(), entry.second));
    }
}

// ---- The example documents ----

TEST_F(ApplicableUpdates, ExamplesMapEveryApplicationThatTheCatalogKnows)
{
    const std::string examples = QRMKIT_EXAMPLES_DIR;
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(examples + "/catalog.xml")));
    ASSERT_EQ(QRM_KIT_SUCCESS, api->ParseInventory(VELFile(examples + "/inventory.xml")));
    const std::vector<QRMIApplication*> applications = Applications();
    ASSERT_EQ(11u, applications.size());
    const std::vector<QRMSoftwareComponent*> components = Components();

    const Updates updates = Query(QRM_BUNDLE_BTW64);
    EXPECT_EQ(10u, updates.size());
    for (const QRMIApplication* application : applications) {
        const bool mapped = updates.count(const_cast<QRMIApplication*>(application)) == 1;
        EXPECT_EQ(application->GetDisplay() != VELString("Boot storage driver"), mapped)
            << application->GetDisplay().GetUTF8String();
    }
    for (const auto& entry : updates) {
        EXPECT_EQ(entry.first->GetComponentType(), entry.second->GetComponentType().GetValue())
            << entry.first->GetDisplay().GetUTF8String();
        EXPECT_NE(components.end(), std::find(components.begin(), components.end(), entry.second));
    }
}

// ---- Paths changed by the caller ----

// Reading indexes the components by file name; a caller holding a pointer to
// a stored component may change its path, and the query must see that.
TEST_F(ApplicableUpdates, APathChangedThroughAListedComponentIsSeen)
{
    Load(BundleXML("BTW64", "0A6B", {"NEW.EXE"}) + ComponentForID("PKG", "dir/OLD.EXE", "FRMW", "2.0", "159"),
         kDevice159);
    std::vector<QRMSoftwareComponent*> components = Components();
    ASSERT_EQ(1u, components.size());
    ASSERT_EQ(QRM_KIT_SUCCESS, components[0]->SetPath(VELString("dir/NEW.EXE")));
    EXPECT_EQ((Described{{"firmware", "PKG"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, APathChangedThroughAnAnswerIsSeenByTheNextQuery)
{
    Load(BundleXML("BTW64", "0A6B", {"PKG.EXE", "OTHER.EXE"}) +
             ComponentForID("PKG", "dir/PKG.EXE", "FRMW", "2.0", "159") +
             ComponentForID("OTHER", "dir/ELSEWHERE.EXE", "FRMW", "1.0", "159"),
         kDevice159);
    Updates first = Query();
    ASSERT_EQ((Described{{"firmware", "PKG"}}), Describe(first));
    ASSERT_EQ(QRM_KIT_SUCCESS, first.begin()->second->SetPath(VELString("dir/UNLISTED.EXE")));
    EXPECT_EQ((Described{}), Describe(Query()));
    ASSERT_EQ(QRM_KIT_SUCCESS, Components()[1]->SetPath(VELString("OTHER.EXE")));
    EXPECT_EQ((Described{{"firmware", "OTHER"}}), Describe(Query()));
}

TEST_F(ApplicableUpdates, ANewReadIndexesItsOwnComponents)
{
    Load(BundleXML("BTW64", "0A6B", {"A.EXE"}) + ComponentForID("A", "A.EXE", "FRMW", "2.0", "159"), kDevice159);
    ASSERT_EQ((Described{{"firmware", "A"}}), Describe(Query()));
    LoadCatalog(BundleXML("BTW64", "0A6B", {"B.EXE"}) + ComponentForID("B", "x/B.EXE", "FRMW", "2.0", "159") +
                ComponentForID("A", "A.EXE", "FRMW", "3.0", "159"));
    EXPECT_EQ((Described{{"firmware", "B"}}), Describe(Query()));
}
