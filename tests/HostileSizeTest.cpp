// Documents of hostile size: one attribute of 50 MB, elements nested 100,000
// deep, 1,000,000 entries side by side. Each read must give its exact
// result, keep what it must keep, and stay within a memory bound
// proportional to the input; the queries must answer afterwards.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace {

QRMKitAPI* API() { return QRMKitAPI::Instance(); }

const std::string kExampleCatalog = std::string(QRMKIT_EXAMPLES_DIR) + "/catalog.xml";
const std::string kExampleInventory = std::string(QRMKIT_EXAMPLES_DIR) + "/inventory.xml";

const std::size_t kMegabyte = 1024 * 1024;

// A bundle of Windows x64 type for system 0A6B whose "Contents" holds
// `packages`.
std::string Bundle(const std::string& packages)
{
    return "<SoftwareBundle bundleID=\"B.00001\" bundleType=\"BTW64\"><Name><Display lang=\"en\">Bundle</Display>"
           "</Name><ComponentType value=\"SBDL\"/><TargetSystems><Brand key=\"1\" prefix=\"P\">"
           "<Model systemID=\"0A6B\"/></Brand></TargetSystems><Contents>" +
           packages + "</Contents></SoftwareBundle>\n";
}

const std::string kPackage = "<Package path=\"PKG.EXE\" packageID=\"P1\"/>";

// A BIOS component in file dir/PKG.EXE whose "SupportedDevices" holds
// `devices`, named `name`.
std::string Component(const std::string& devices, const std::string& name = "Component",
                      const std::string& version = "2.4.1")
{
    return "<SoftwareComponent path=\"dir/PKG.EXE\" vendorVersion=\"" + version + "\"><Name><Display lang=\"en\">" +
           name +
           "</Display></Name><ComponentType value=\"BIOS\"/><Category value=\"BI\"><Display lang=\"en\">BIOS"
           "</Display></Category><SupportedDevices>" +
           devices + "</SupportedDevices></SoftwareComponent>\n";
}

const std::string kDevice159 = "<Device componentID=\"159\"/>";

std::string Catalog(const std::string& rootAttributes, const std::string& entries)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<Manifest " + rootAttributes + ">\n" + entries +
           "</Manifest>\n";
}

// An inventory of system 0A6B (the example's, so that reading the example
// after it adds no second system) with the given root children after it.
std::string Inventory(const std::string& children)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<SVMInventory lang=\"en\">\n"
           "<System systemID=\"0A6B\" display=\"S740\" serviceTag=\"ABC1234\" systemIDType=\"BIOS\"/>\n" +
           children + "</SVMInventory>\n";
}

std::map<QRMIApplication*, QRMSoftwareComponent*> Updates()
{
    std::map<QRMIApplication*, QRMSoftwareComponent*> updates;
    EXPECT_EQ(QRM_KIT_SUCCESS, API()->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    return updates;
}

// With the example inventory read after this catalog, its BIOS (device 159)
// gets the catalog's one component.
void ExpectTheBIOSGetsTheComponent()
{
    ASSERT_TRUE(API()->IsCatalogParsed());
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(kExampleInventory)));
    std::map<QRMIApplication*, QRMSoftwareComponent*> updates = Updates();
    ASSERT_EQ(1u, updates.size());
    EXPECT_EQ(VELString("BIOS"), updates.begin()->first->GetDisplay());
    ASSERT_EQ(1u, StoredComponents().size());
    EXPECT_EQ(StoredComponents().front(), updates.begin()->second);
}

// With the example catalog read after this inventory, `count` applications
// get an update.
void ExpectTheExampleCatalogUpdates(std::size_t count)
{
    ASSERT_TRUE(API()->IsInventoryParsed());
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
    EXPECT_EQ(count, Updates().size());
}

std::string Nested(const std::string& name, std::size_t depth, bool closed = true)
{
    std::string xml = Repeat("<" + name + ">", depth);
    if (closed) {
        xml += Repeat("</" + name + ">", depth);
    }
    return xml;
}

const std::size_t kDepth = 100000;
const std::size_t kMillion = 1000000;

}  // namespace

// ------------------------------------------------------ 50 MB attributes

TEST(HostileSize, CatalogAttributeOf50MegabytesIsKeptWhole)
{
    TempDir dir;
    const std::string base = "b" + std::string(50 * kMegabyte - 2, 'x') + "e";
    const std::string xml =
        Catalog("baseLocation=\"" + base + "\"",
                Bundle(kPackage) + Component(kDevice159) + "<InventoryComponent osCode=\"W22\" path=\"c.exe\"/>");
    const std::string path = dir.Write("big.xml", xml);
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(path)));
    {
        const VELString stored = API()->GetBaseLocation();
        ASSERT_EQ(base.size(), stored.GetLength());
        EXPECT_EQ(u'b', stored.GetUTF16String().front());
        EXPECT_EQ(u'e', stored.GetUTF16String().back());
        const VELString file = API()->GetInventoryFile(QRM_OS_ARCH_X64, VELString("W22"));
        EXPECT_EQ(base.size() + 6, file.GetLength());
        EXPECT_EQ(VELString("/c.exe"), file.SubString(static_cast<unsigned int>(base.size()), 6));
    }
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 16));
    ExpectTheBIOSGetsTheComponent();
}

TEST(HostileSize, CatalogTextOf50MegabytesOutsideASCIIIsKeptWhole)
{
    TempDir dir;
    // 25 * 2^20 two-byte characters.
    std::string name = Repeat("\xC3\xA9", 25 * kMegabyte);
    const std::string xml = Catalog("baseLocation=\"b\"", Bundle(kPackage) + Component(kDevice159, name));
    name.clear();
    name.shrink_to_fit();
    const std::string path = dir.Write("big.xml", xml);
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(path)));
    {
        ASSERT_EQ(1u, StoredComponents().size());
        std::vector<QRMDisplay> names;
        StoredComponents().front()->GetName().GetDisplayValues(names);
        ASSERT_EQ(1u, names.size());
        const VELString stored = names[0].GetValue();
        ASSERT_EQ(25 * kMegabyte, stored.GetLength());
        EXPECT_EQ(u'\u00E9', stored.GetUTF16String().front());
        EXPECT_EQ(u'\u00E9', stored.GetUTF16String().back());
    }
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 16));
    ExpectTheBIOSGetsTheComponent();
}

TEST(HostileSize, InventoryVersionOf50MegabytesLosesItsBlanks)
{
    TempDir dir;
    const std::string xml = Inventory("<Device componentID=\"159\" display=\"BIOS\"><Application componentType=\"BIOS\""
                                      " version=\"" +
                                      Repeat("7 ", 25 * kMegabyte) + "\" display=\"BIOS\"/></Device>\n");
    const std::string path = dir.Write("big.xml", xml);
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(path)));
    {
        ASSERT_EQ(1u, StoredDevices().size());
        ASSERT_EQ(1u, ApplicationsOf(*StoredDevices()[0]).size());
        const VELString version = ApplicationsOf(*StoredDevices()[0])[0]->GetVersion();
        ASSERT_EQ(25 * kMegabyte, version.GetLength());
        EXPECT_EQ(std::u16string::npos, version.GetUTF16String().find(u' '));
    }
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 16));
    ExpectTheExampleCatalogUpdates(1);
}

// ------------------------------------------------- 100,000 levels deep

TEST(HostileSize, CatalogElementNested100000DeepIsSkipped)
{
    TempDir dir;
    const std::string xml =
        Catalog("baseLocation=\"b\"", Nested("Deep", kDepth) + Bundle(kPackage) + Component(kDevice159));
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("deep.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    EXPECT_EQ(1u, StoredBundles().size());
    ExpectTheBIOSGetsTheComponent();
}

TEST(HostileSize, CatalogBundlesNested100000DeepStopAtTheOutermost)
{
    TempDir dir;
    // The outermost bundle has no "Name": the catalog is refused there.
    const std::string xml = Catalog("baseLocation=\"b\"", Component(kDevice159) + Nested("SoftwareBundle", kDepth));
    const std::size_t before = PeakResidentBytes();
    EXPECT_EQ(QRM_KIT_ELEMENT_MISSING, API()->Parse(VELFile(dir.Write("deep.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    EXPECT_FALSE(API()->IsCatalogParsed());
    EXPECT_EQ(0u, StoredBundles().size());
    EXPECT_EQ(1u, StoredComponents().size());
    EXPECT_TRUE(API()->GetBaseLocation().IsEmpty());
}

TEST(HostileSize, PackagesAndDevicesNested100000DeepCountOnce)
{
    TempDir dir;
    std::string package = "<Package path=\"PKG.EXE\" packageID=\"P1\">" + Nested("Package", kDepth) + "</Package>";
    std::string device = "<Device componentID=\"159\">" + Nested("Device", kDepth) + "</Device>";
    const std::string xml = Catalog("baseLocation=\"b\"", Bundle(package) + Component(device));
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("deep.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    ASSERT_EQ(1u, StoredBundles().size());
    std::vector<QRMBundleContent> contents;
    StoredBundles().front()->GetContents(contents);
    ASSERT_EQ(1u, contents.size());
    EXPECT_EQ(VELString("PKG.EXE"), contents[0].GetPath());
    ASSERT_EQ(1u, StoredComponents().size());
    std::vector<QRMDevice*> devices;
    StoredComponents().front()->GetSupportedDevices(devices);
    ASSERT_EQ(1u, devices.size());
    EXPECT_EQ(159u, devices[0]->GetComponentID());
    ExpectTheBIOSGetsTheComponent();
}

TEST(HostileSize, CatalogNested100000DeepAndNeverClosedFails)
{
    TempDir dir;
    const std::string xml = Catalog("baseLocation=\"b\"", Nested("Deep", kDepth, false));
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
    const std::size_t before = PeakResidentBytes();
    EXPECT_EQ(QRM_KIT_FAILURE, API()->Parse(VELFile(dir.Write("open.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    ExpectNoCatalog();
    ExpectExampleUpdates();
}

TEST(HostileSize, InventoryApplicationNested100000DeepIsReadOnce)
{
    TempDir dir;
    // The outer "Device" of the nest has no "display" and is dropped; the
    // device after it is read, with its one application.
    const std::string xml = Inventory(Nested("Device", kDepth) +
                                      "<Device componentID=\"159\" display=\"BIOS\">"
                                      "<Application componentType=\"BIOS\" version=\"2.3.9\" display=\"BIOS\">" +
                                      Nested("Application", kDepth) + "</Application></Device>\n");
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("deep.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    ASSERT_EQ(1u, StoredDevices().size());
    ASSERT_EQ(1u, ApplicationsOf(*StoredDevices()[0]).size());
    EXPECT_EQ(VELString("2.3.9"), ApplicationsOf(*StoredDevices()[0])[0]->GetVersion());
    ExpectTheExampleCatalogUpdates(1);
}

TEST(HostileSize, InventoryNested100000DeepAndNeverClosedFails)
{
    TempDir dir;
    const std::string xml = Inventory("<Device componentID=\"159\" display=\"BIOS\">" + Nested("x", kDepth, false));
    const std::size_t before = PeakResidentBytes();
    EXPECT_EQ(QRM_KIT_FAILURE, API()->ParseInventory(VELFile(dir.Write("open.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    ExpectNoInventory();
    ExpectExampleUpdates();
}

// ------------------------------------------- 1,000,000 entries side by side

TEST(HostileSize, CatalogRootWithAMillionUnknownChildrenReadsItsEntries)
{
    TempDir dir;
    const std::string xml =
        Catalog("baseLocation=\"b\"", Repeat("<x/>", kMillion) + Bundle(kPackage) + Component(kDevice159));
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("wide.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    EXPECT_EQ(1u, StoredBundles().size());
    ExpectTheBIOSGetsTheComponent();
}

TEST(HostileSize, BundleWithAMillionPackagesKeepsThemAll)
{
    TempDir dir;
    const std::string xml =
        Catalog("baseLocation=\"b\"",
                Bundle(Repeat("<Package path=\"x.exe\"/>", kMillion - 1) + kPackage) + Component(kDevice159));
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("wide.xml", xml))));
    ASSERT_EQ(1u, StoredBundles().size());
    {
        std::vector<QRMBundleContent> contents;
        StoredBundles().front()->GetContents(contents);
        ASSERT_EQ(kMillion, contents.size());
        EXPECT_EQ(VELString("x.exe"), contents.front().GetPath());
        EXPECT_EQ(VELString("PKG.EXE"), contents.back().GetPath());
        EXPECT_EQ(VELString("P1"), contents.back().GetPackageID());
    }
    ExpectTheBIOSGetsTheComponent();
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
}

TEST(HostileSize, AMillionEmptyBundlesStopAtTheFirst)
{
    TempDir dir;
    const std::string xml =
        Catalog("baseLocation=\"b\"", Component(kDevice159) + Repeat("<SoftwareBundle/>", kMillion));
    const std::size_t before = PeakResidentBytes();
    EXPECT_EQ(QRM_KIT_ELEMENT_MISSING, API()->Parse(VELFile(dir.Write("wide.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    EXPECT_FALSE(API()->IsCatalogParsed());
    EXPECT_EQ(0u, StoredBundles().size());
    EXPECT_EQ(1u, StoredComponents().size());
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(kExampleInventory)));
    std::map<QRMIApplication*, QRMSoftwareComponent*> updates;
    EXPECT_EQ(QRM_KIT_FAILURE, API()->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    EXPECT_TRUE(updates.empty());
}

TEST(HostileSize, ComponentWithAMillionEqualDevicesKeepsOne)
{
    TempDir dir;
    const std::string xml = Catalog("baseLocation=\"b\"", Bundle(kPackage) + Component(Repeat(kDevice159, kMillion)));
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("wide.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    ASSERT_EQ(1u, StoredComponents().size());
    std::vector<QRMDevice*> devices;
    StoredComponents().front()->GetSupportedDevices(devices);
    EXPECT_EQ(1u, devices.size());
    ExpectTheBIOSGetsTheComponent();
}

TEST(HostileSize, InventoryOfAMillionDevicesWithoutDisplayFails)
{
    TempDir dir;
    const std::string xml = Inventory(Repeat("<Device componentID=\"159\"/>", kMillion));
    const std::size_t before = PeakResidentBytes();
    // Every device is dropped, the last one too: the read fails, and only
    // the system read before them is kept.
    EXPECT_EQ(QRM_KIT_FAILURE, API()->ParseInventory(VELFile(dir.Write("wide.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    EXPECT_FALSE(API()->IsInventoryParsed());
    std::vector<QRMIDevice*> devices;
    EXPECT_EQ(QRM_KIT_FAILURE, API()->GetInventory(devices));
    EXPECT_TRUE(devices.empty());
    EXPECT_EQ(0x0A6Bu, API()->GetSystemIDFromInventory());
    // The example holds the same system: read after it, the stores work.
    ExpectExampleUpdates();
}

TEST(HostileSize, InventoryRootWithAMillionUnknownChildrenReadsItsDevices)
{
    TempDir dir;
    const std::string xml = Inventory(Repeat("<x/>", kMillion) +
                                      "<Device componentID=\"159\" display=\"BIOS\"><Application componentType=\"BIOS\""
                                      " version=\"2.3.9\" display=\"BIOS\"/></Device>\n");
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("wide.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    EXPECT_EQ(1u, StoredDevices().size());
    ExpectTheExampleCatalogUpdates(1);
}

TEST(HostileSize, DeviceWithAMillionEqualApplicationsKeepsOne)
{
    TempDir dir;
    const std::string xml = Inventory(
        "<Device componentID=\"159\" display=\"BIOS\">" +
        Repeat("<Application componentType=\"BIOS\" version=\"2.3.9\" display=\"BIOS\"/>", kMillion) + "</Device>\n");
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("wide.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    ASSERT_EQ(1u, StoredDevices().size());
    EXPECT_EQ(1u, ApplicationsOf(*StoredDevices()[0]).size());
    ExpectTheExampleCatalogUpdates(1);
}

TEST(HostileSize, DeviceWithAMillionTextsInOneLanguageKeepsTheFirst)
{
    TempDir dir;
    std::string texts;
    for (std::size_t i = 0; i < kMillion; ++i) {
        texts += "<Display lang=\"en\">T" + std::to_string(i) + "</Display>";
    }
    const std::string xml = Inventory("<Device componentID=\"159\" display=\"BIOS\">" + texts +
                                      "<Application componentType=\"BIOS\" version=\"2.3.9\" display=\"BIOS\"/>"
                                      "</Device>\n");
    texts.clear();
    texts.shrink_to_fit();
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("wide.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    ASSERT_EQ(1u, StoredDevices().size());
    std::vector<QRMDisplay> displays;
    StoredDevices()[0]->GetDisplayValues(displays);
    ASSERT_EQ(1u, displays.size());
    EXPECT_EQ(VELString("T0"), displays[0].GetValue());
    ExpectTheExampleCatalogUpdates(1);
}

// ------------------------------- a thousand attributes and children per entry

namespace {

std::string ExtraAttributes(std::size_t count)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += " x" + std::to_string(i) + "=\"" + std::to_string(i) + "\"";
    }
    return text;
}

// A catalog whose bundle, component and operating system carry a thousand
// attributes and children they do not know before the ones they read.
std::string CrowdedCatalog(const std::string& category)
{
    const std::string extra = ExtraAttributes(1000);
    const std::string children = Repeat("<Extra/>", 1000);
    return Catalog("baseLocation=\"b\"" + extra,
                   "<SoftwareBundle" + extra + " bundleID=\"B.00009\" bundleType=\"BTW64\">" + children +
                       "<Name><Display lang=\"en\">Bundle</Display></Name><ComponentType value=\"SBDL\"/>"
                       "<TargetSystems><Brand key=\"1\" prefix=\"P\"><Model systemID=\"0A6B\"/></Brand>"
                       "</TargetSystems><Contents>" +
                       kPackage +
                       "</Contents></SoftwareBundle>\n"
                       "<SoftwareComponent" +
                       extra + " path=\"dir/PKG.EXE\" vendorVersion=\"2.4.1\">" + children +
                       "<Name><Display lang=\"en\">Component</Display></Name><ComponentType value=\"BIOS\"/>" +
                       category + "<SupportedDevices>" + kDevice159 +
                       "</SupportedDevices><SupportedOperatingSystems><OperatingSystem" + extra +
                       " osArch=\"x64\" osCode=\"W22\" osVendor=\"Example\"/></SupportedOperatingSystems>"
                       "</SoftwareComponent>\n");
}

}  // namespace

TEST(HostileSize, EntriesWithAThousandAttributesAndChildrenAreReadWhole)
{
    TempDir dir;
    const std::string xml = CrowdedCatalog("<Category value=\"BI\"><Display lang=\"en\">BIOS</Display></Category>");
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("crowded.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    ASSERT_EQ(1u, StoredBundles().size());
    EXPECT_EQ(VELString("B.00009"), StoredBundles().front()->GetBundleID());
    EXPECT_EQ(QRM_BUNDLE_BTW64, StoredBundles().front()->GetBundleType());
    ASSERT_EQ(1u, StoredComponents().size());
    const QRMSoftwareComponent& component = *StoredComponents().front();
    EXPECT_EQ(VELString("2.4.1"), component.GetVendorVersion());
    EXPECT_EQ(VELString("BI"), component.GetCategory().GetCode());
    std::vector<QRMOperatingSystem> oses;
    component.GetSupportedOperatingSystems().GetOSes(oses);
    ASSERT_EQ(1u, oses.size());
    EXPECT_EQ(VELString("W22"), oses[0].GetCode());
    EXPECT_EQ(QRM_OS_ARCH_X64, oses[0].GetArchitecture());
    ExpectTheBIOSGetsTheComponent();
}

TEST(HostileSize, AChildWrittenTwiceAmongAThousandCountsAsMissing)
{
    TempDir dir;
    const std::string category = "<Category value=\"BI\"><Display lang=\"en\">BIOS</Display></Category>";
    const std::string xml = CrowdedCatalog(category + category);
    EXPECT_EQ(QRM_KIT_ELEMENT_MISSING, API()->Parse(VELFile(dir.Write("crowded.xml", xml))));
    EXPECT_FALSE(API()->IsCatalogParsed());
    EXPECT_EQ(1u, StoredBundles().size());
    EXPECT_EQ(0u, StoredComponents().size());
}
