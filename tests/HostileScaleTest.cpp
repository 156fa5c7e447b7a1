// Long lists of entries that all differ: every one must be kept, in order,
// whatever the count, and the queries must answer over all of them. Each
// reader refuses an entry equal to one it holds, so these lists are the
// ones where the cost of that check shows.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace {

QRMKitAPI* API() { return QRMKitAPI::Instance(); }

const std::string kExampleCatalog = std::string(QRMKIT_EXAMPLES_DIR) + "/catalog.xml";
const std::string kExampleInventory = std::string(QRMKIT_EXAMPLES_DIR) + "/inventory.xml";

// The number of entries of every list below but the applications of one
// device, of which there are a hundred thousand.
const std::size_t kMany = 10000;
const std::size_t kApplications = 100000;

std::string Number(std::size_t value) { return std::to_string(value); }

std::string Hex(std::size_t value)
{
    static const char digits[] = "0123456789ABCDEF";
    std::string text;
    do {
        text.insert(text.begin(), digits[value % 16]);
        value /= 16;
    } while (value != 0);
    return text;
}

// A catalog with one bundle for system 0A6B listing PKG.EXE and one BIOS
// component in dir/PKG.EXE with these supported devices and these other
// children.
std::string Catalog(const std::string& devices, const std::string& more = "")
{
    return "<?xml version=\"1.0\"?>\n<Manifest baseLocation=\"b\">\n"
           "<SoftwareBundle bundleID=\"B.1\" bundleType=\"BTW64\"><Name><Display lang=\"en\">Bundle</Display></Name>"
           "<ComponentType value=\"SBDL\"/><TargetSystems><Brand key=\"1\" prefix=\"P\"><Model systemID=\"0A6B\"/>"
           "</Brand></TargetSystems><Contents><Package path=\"PKG.EXE\"/></Contents></SoftwareBundle>\n"
           "<SoftwareComponent path=\"dir/PKG.EXE\" vendorVersion=\"2.4.1\"><Name><Display lang=\"en\">Component"
           "</Display></Name><ComponentType value=\"BIOS\"/><Category value=\"BI\"><Display lang=\"en\">BIOS"
           "</Display></Category><SupportedDevices>" +
           devices + "</SupportedDevices>" + more + "</SoftwareComponent>\n</Manifest>\n";
}

// An inventory whose root holds these children, after the example's system.
std::string Inventory(const std::string& children)
{
    return "<?xml version=\"1.0\"?>\n<SVMInventory lang=\"en\">\n"
           "<System systemID=\"0A6B\" display=\"S740\" serviceTag=\"ABC1234\" systemIDType=\"BIOS\"/>\n" +
           children + "</SVMInventory>\n";
}

std::map<QRMIApplication*, QRMSoftwareComponent*> Updates()
{
    std::map<QRMIApplication*, QRMSoftwareComponent*> updates;
    EXPECT_EQ(QRM_KIT_SUCCESS, API()->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    return updates;
}

}  // namespace

TEST(HostileScale, DeviceWithAHundredThousandApplicationsKeepsThemAll)
{
    TempDir dir;
    std::string applications;
    for (std::size_t i = 0; i < kApplications; ++i) {
        applications += "<Application componentType=\"BIOS\" version=\"2.3." + Number(i) + "\" display=\"BIOS " +
                        Number(i) + "\"/>";
    }
    const std::string xml = Inventory("<Device componentID=\"159\" display=\"BIOS\">" + applications + "</Device>\n");
    applications.clear();
    applications.shrink_to_fit();
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("applications.xml", xml))));
    ASSERT_EQ(1u, StoredDevices().size());
    const std::vector<QRMIApplication*> stored = ApplicationsOf(*StoredDevices()[0]);
    ASSERT_EQ(kApplications, stored.size());
    EXPECT_EQ(VELString("2.3.0"), stored.front()->GetVersion());
    EXPECT_EQ(VELString("BIOS 99999"), stored.back()->GetDisplay());

    // Every one of them is a BIOS of device 159: each gets the example's
    // BIOS package.
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
    std::map<QRMIApplication*, QRMSoftwareComponent*> updates = Updates();
    ASSERT_EQ(kApplications, updates.size());
    EXPECT_EQ(VELString("FOLDER01/BIOS/BIOS_S740_2.4.1.EXE"), updates[stored.back()]->GetPath());
    EXPECT_EQ(updates[stored.front()], updates[stored.back()]);
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
}

TEST(HostileScale, ApplicationTextsCarryOverToEveryLaterApplication)
{
    // One application object serves every application of a device in turn,
    // so its texts accumulate: the k-th application holds k texts, and the
    // store holds n (n + 1) / 2 of them for n applications.
    TempDir dir;
    const std::size_t count = 1000;
    std::string applications;
    for (std::size_t i = 0; i < count; ++i) {
        applications += "<Application componentType=\"BIOS\" version=\"2.3.9\" display=\"BIOS\"><Display lang=\"l" +
                        Number(i) + "\">Text " + Number(i) + "</Display></Application>";
    }
    const std::string xml = Inventory("<Device componentID=\"159\" display=\"BIOS\">" + applications + "</Device>\n");
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("texts.xml", xml))));
    ASSERT_EQ(1u, StoredDevices().size());
    const std::vector<QRMIApplication*> stored = ApplicationsOf(*StoredDevices()[0]);
    ASSERT_EQ(count, stored.size());
    std::size_t texts = 0;
    for (std::size_t i = 0; i < count; ++i) {
        EXPECT_EQ(i + 1, TextCount(*stored[i])) << i;
        texts += TextCount(*stored[i]);
    }
    EXPECT_EQ(count * (count + 1) / 2, texts);
    std::vector<QRMDisplay> last;
    stored.back()->GetDisplayValues(last);
    ASSERT_EQ(count, last.size());
    EXPECT_EQ(VELString("l0"), last.front().GetLanguage());
    EXPECT_EQ(VELString("Text 999"), last.back().GetValue());
    // A bound in what the store must hold, not in the input.
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(texts * 256, 4));
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
    EXPECT_EQ(count, Updates().size());
}

TEST(HostileScale, DeviceWithTextsInManyLanguagesKeepsThemAll)
{
    TempDir dir;
    const std::size_t count = kMany / 2;
    std::string texts;
    for (std::size_t i = 0; i < count; ++i) {
        texts += "<Display lang=\"l" + Number(i) + "\">Text " + Number(i) + "</Display>";
    }
    const std::string xml = Inventory("<Device componentID=\"159\" display=\"BIOS\">" + texts +
                                      "<Application componentType=\"BIOS\" version=\"2.3.9\" display=\"BIOS\"/>"
                                      "</Device>\n");
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("texts.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    ASSERT_EQ(1u, StoredDevices().size());
    std::vector<QRMDisplay> displays;
    StoredDevices()[0]->GetDisplayValues(displays);
    ASSERT_EQ(count, displays.size());
    EXPECT_EQ(VELString("Text 0"), displays.front().GetValue());
    EXPECT_EQ(VELString(("l" + Number(count - 1)).c_str()), displays.back().GetLanguage());
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
    EXPECT_EQ(1u, Updates().size());
}

TEST(HostileScale, InventoryWithManyDistinctDevicesKeepsThemAll)
{
    TempDir dir;
    std::string devices;
    for (std::size_t i = 0; i < kMany; ++i) {
        devices += "<Device componentID=\"159\" display=\"BIOS " + Number(i) +
                   "\"><Application componentType=\"BIOS\" version=\"2.3.9\" display=\"BIOS\"/></Device>\n";
    }
    const std::string xml = Inventory(devices);
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("devices.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    ASSERT_EQ(kMany, StoredDevices().size());
    EXPECT_EQ(VELString(("BIOS " + Number(kMany - 1)).c_str()), StoredDevices().back()->GetDisplay());
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
    EXPECT_EQ(kMany, Updates().size());
}

TEST(HostileScale, InventoryWithManyDistinctSystemsKeepsThemAllAndNamesNone)
{
    TempDir dir;
    std::string systems;
    for (std::size_t i = 0; i < kMany; ++i) {
        systems += "<System systemID=\"" + Hex(i + 1) + "\" display=\"S" + Number(i) + "\"/>\n";
    }
    const std::string xml = "<?xml version=\"1.0\"?>\n<SVMInventory lang=\"en\">\n" + systems + "</SVMInventory>\n";
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("systems.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    std::vector<QRMISystem> stored;
    API()->GetInventorySystems(stored);
    ASSERT_EQ(kMany, stored.size());
    EXPECT_EQ(kMany, stored.back().GetSystemID());
    // With more than one system there is no system id, and no bundle.
    EXPECT_EQ(0u, API()->GetSystemIDFromInventory());
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
    EXPECT_EQ(nullptr, API()->GetApplicableBundle(QRM_BUNDLE_BTW64));
    std::map<QRMIApplication*, QRMSoftwareComponent*> updates;
    EXPECT_EQ(QRM_KIT_FAILURE, API()->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
}

TEST(HostileScale, InventoryWithManyDistinctOperatingSystemsKeepsThemAll)
{
    TempDir dir;
    std::string oses;
    for (std::size_t i = 0; i < kMany; ++i) {
        oses += "<OperatingSystem osArch=\"x64\" osCode=\"W" + Number(i) + "\" osVendor=\"Example\"/>\n";
    }
    const std::string xml = Inventory(oses + "<Device componentID=\"159\" display=\"BIOS\"><Application "
                                             "componentType=\"BIOS\" version=\"2.3.9\" display=\"BIOS\"/></Device>\n");
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("oses.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    std::vector<QRMOperatingSystem> stored;
    API()->GetInventoryOperatingSystems(stored);
    ASSERT_EQ(kMany, stored.size());
    EXPECT_EQ(VELString(("W" + Number(kMany - 1)).c_str()), stored.back().GetCode());
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
    EXPECT_EQ(1u, Updates().size());
}

TEST(HostileScale, ComponentWithManyDistinctDevicesKeepsThemAll)
{
    TempDir dir;
    std::string devices;
    for (std::size_t i = 0; i < kMany; ++i) {
        devices += "<Device componentID=\"" + Number(100000 + i) + "\"/>";
    }
    devices += "<Device componentID=\"159\"/>";
    const std::string xml = Catalog(devices);
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("devices.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    ASSERT_EQ(1u, StoredComponents().size());
    std::vector<QRMDevice*> stored;
    StoredComponents().front()->GetSupportedDevices(stored);
    ASSERT_EQ(kMany + 1, stored.size());
    EXPECT_EQ(100000u, stored.front()->GetComponentID());
    EXPECT_EQ(159u, stored.back()->GetComponentID());
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(kExampleInventory)));
    EXPECT_EQ(1u, Updates().size());
}

TEST(HostileScale, DeviceWithManyDistinctPCIRecordsKeepsThemAll)
{
    TempDir dir;
    std::string records;
    for (std::size_t i = 0; i < kMany; ++i) {
        records += "<PCIInfo vendorID=\"8086\" deviceID=\"" + Hex(i) + "\"/>";
    }
    // The example's 25GbE adapter: vendor 8086, device 1593.
    records += "<PCIInfo vendorID=\"8086\" deviceID=\"1593\" subVendorID=\"1028\" subDeviceID=\"0A6B\"/>";
    const std::string xml = Catalog("<Device>" + records + "</Device>");
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("pci.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    ASSERT_EQ(1u, StoredComponents().size());
    std::vector<QRMDevice*> devices;
    StoredComponents().front()->GetSupportedDevices(devices);
    ASSERT_EQ(1u, devices.size());
    std::vector<QRMPCIInfo*> stored;
    devices[0]->GetPCIInfo(stored);
    // Device id 1593 is among the first ones too, without sub-ids.
    ASSERT_EQ(kMany + 1, stored.size());
    EXPECT_EQ(0x1593u, stored.back()->GetDeviceID());
    EXPECT_EQ(0x1028u, stored.back()->GetSubVendorID());
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(kExampleInventory)));
    // The catalog component is a BIOS; the adapter's applications are
    // firmware and a driver: no update.
    EXPECT_EQ(0u, Updates().size());
}

TEST(HostileScale, ComponentWithManyDistinctOperatingSystemsKeepsThemAll)
{
    TempDir dir;
    std::string oses;
    for (std::size_t i = 0; i < kMany; ++i) {
        oses += "<OperatingSystem osArch=\"x64\" osCode=\"W" + Number(i) + "\" osVendor=\"Example\"/>";
    }
    const std::string xml =
        Catalog("<Device componentID=\"159\"/>", "<SupportedOperatingSystems>" + oses + "</SupportedOperatingSystems>");
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("oses.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    ASSERT_EQ(1u, StoredComponents().size());
    std::vector<QRMOperatingSystem> stored;
    StoredComponents().front()->GetSupportedOperatingSystems().GetOSes(stored);
    ASSERT_EQ(kMany, stored.size());
    EXPECT_EQ(VELString(("W" + Number(kMany - 1)).c_str()), stored.back().GetCode());
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(kExampleInventory)));
    EXPECT_EQ(1u, Updates().size());
}
