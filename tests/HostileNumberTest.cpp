// Numbers of 10,000 digits and version texts of 100,000 fields, given to the
// base string directly, to CompareVersion, and inside both documents. A
// number too large for 32 bits reads as the largest one; leading zeros and
// blanks cost nothing; versions of any length compare field by field.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <ios>
#include <map>
#include <string>
#include <vector>

namespace {

QRMKitAPI* API() { return QRMKitAPI::Instance(); }

const std::string kExampleCatalog = std::string(QRMKIT_EXAMPLES_DIR) + "/catalog.xml";
const std::string kExampleInventory = std::string(QRMKIT_EXAMPLES_DIR) + "/inventory.xml";

const unsigned int kLargest = 4294967295u;

const std::string kNines(10000, '9');
const std::string kEffs(10000, 'F');
const std::string kZeros(10000, '0');

unsigned int Decimal(const std::string& text) { return VELString(text.c_str()).GetIntValue(std::dec); }
unsigned int Hexadecimal(const std::string& text) { return VELString(text.c_str()).GetIntValue(std::hex); }

std::string Bundle(const std::string& attributes, const std::string& brand)
{
    return "<SoftwareBundle " + attributes +
           "><Name><Display lang=\"en\">Bundle</Display></Name><ComponentType value=\"SBDL\"/>"
           "<TargetSystems>" +
           brand + "</TargetSystems><Contents><Package path=\"PKG.EXE\"/></Contents></SoftwareBundle>\n";
}

std::string Component(const std::string& attributes, const std::string& children)
{
    return "<SoftwareComponent path=\"dir/PKG.EXE\" " + attributes +
           "><Name><Display lang=\"en\">Component</Display></Name><ComponentType value=\"BIOS\"/>"
           "<Category value=\"BI\"><Display lang=\"en\">BIOS</Display></Category>" +
           children + "</SoftwareComponent>\n";
}

std::string Catalog(const std::string& rootAttributes, const std::string& entries)
{
    return "<?xml version=\"1.0\"?>\n<Manifest " + rootAttributes + ">\n" + entries + "</Manifest>\n";
}

// A hundred thousand fields of "7", and the same with an "8" at the end.
const std::size_t kFields = 100000;
const std::string kSevens = Repeat("7.", kFields - 1) + "7";
const std::string kSevensThenEight = Repeat("7.", kFields - 1) + "8";

// Two BIOS components for device 159 in files listed by one bundle for
// system 0A6B, with these versions, in this order.
std::string TwoVersionsCatalog(const std::string& first, const std::string& second)
{
    std::string entries = Bundle("bundleID=\"B.1\" bundleType=\"BTW64\"",
                                 "<Brand key=\"1\" prefix=\"P\"><Model systemID=\"0A6B\"/></Brand>");
    for (const std::string* version : {&first, &second}) {
        entries += Component("vendorVersion=\"" + *version + "\"",
                             "<SupportedDevices><Device componentID=\"159\"/></SupportedDevices>");
    }
    return Catalog("baseLocation=\"b\"", entries);
}

}  // namespace

// -------------------------------------------------- 10,000-digit numbers

TEST(HostileNumber, TenThousandDigitsReadAsTheLargestNumber)
{
    EXPECT_EQ(kLargest, Decimal(kNines));
    EXPECT_EQ(kLargest, Hexadecimal(kEffs));
    EXPECT_EQ(kLargest, Hexadecimal(kNines));
    EXPECT_EQ(kLargest, Decimal("1" + kZeros));
    EXPECT_EQ(kLargest, Decimal(kZeros + kNines));
    EXPECT_EQ(kLargest, Decimal(kNines + "x"));
    // A minus sign does not bring an overflowed number back.
    EXPECT_EQ(kLargest, Decimal("-" + kNines));
    EXPECT_EQ(kLargest, Hexadecimal("-" + kEffs));
    EXPECT_EQ(kLargest, Decimal("+" + kNines));
}

TEST(HostileNumber, TenThousandLeadingZerosOrBlanksCostNothing)
{
    EXPECT_EQ(0u, Decimal(kZeros));
    EXPECT_EQ(0u, Hexadecimal(kZeros));
    EXPECT_EQ(42u, Decimal(kZeros + "42"));
    EXPECT_EQ(0x42u, Hexadecimal(kZeros + "42"));
    EXPECT_EQ(0x1Fu, Hexadecimal("0x" + kZeros + "1F"));
    EXPECT_EQ(5u, Decimal(std::string(10000, ' ') + "5"));
    EXPECT_EQ(0xA6Bu, Hexadecimal(std::string(10000, '\t') + "0A6B"));
    EXPECT_EQ(0u, Decimal(std::string(10000, ' ')));
    EXPECT_EQ(0u, Decimal(std::string(10000, 'x') + "5"));
}

TEST(HostileNumber, CatalogNumbersOfTenThousandDigits)
{
    TempDir dir;
    std::string entries;
    entries += Bundle("bundleID=\"S740W64." + kNines + "\" bundleType=\"BTW64\" dateTime=\"" + kNines + "\"",
                      "<Brand key=\"" + kNines + "\" prefix=\"P\"><Model systemID=\"" + kEffs + "\"/></Brand>");
    entries += Bundle("bundleID=\"S740LX." + kZeros + "42\" bundleType=\"BTLX\"",
                      "<Brand key=\"1\" prefix=\"P\"><Model systemID=\"" + kZeros + "A6B\"/></Brand>");
    entries += Component("vendorVersion=\"1\" dateTime=\"" + kNines + "\" releaseDate=\"" + kZeros + "7\"",
                         "<SupportedDevices>"
                         "<Device componentID=\"" +
                             kNines + "\" embedded=\"" + kZeros +
                             "\">"
                             "<PCIInfo deviceID=\"" +
                             kEffs + "\" vendorID=\"" + kNines + "\" subDeviceID=\"" + kZeros + "1\" subVendorID=\"-" +
                             kNines +
                             "\"/></Device>"
                             "<Device componentID=\"" +
                             kZeros + "159\" embedded=\"" + kNines +
                             "\"/>"
                             "</SupportedDevices><SupportedSystems display=\"" +
                             kZeros + "1\"/>");
    entries += "<InventoryComponent osCode=\"W22\" path=\"c.exe\" dateTime=\"" + kNines + "\" releaseDate=\"" + kZeros +
               "\"/>\n";
    const std::string xml = Catalog("baseLocation=\"b\" dateTime=\"" + kNines + "\"", entries);
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("numbers.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));

    EXPECT_EQ(kLargest, API()->GetCatalogDateTime().GetValue());
    ASSERT_EQ(2u, StoredBundles().size());
    const QRMSoftwareBundle& windows = *StoredBundles()[0];
    EXPECT_EQ(kLargest, windows.GetDateTime().GetValue());
    std::vector<unsigned int> systemIDs;
    windows.GetSupportedSystemIDs(systemIDs);
    EXPECT_EQ(std::vector<unsigned int>{kLargest}, systemIDs);
    const QRMSupportedSystems targetSystems = windows.GetTargetSystems();
    std::vector<QRMBrand*> brands;
    targetSystems.GetBrands(brands);
    ASSERT_EQ(1u, brands.size());
    EXPECT_EQ(kLargest, brands[0]->GetKey());
    systemIDs.clear();
    StoredBundles()[1]->GetSupportedSystemIDs(systemIDs);
    EXPECT_EQ(std::vector<unsigned int>{0xA6Bu}, systemIDs);
    EXPECT_EQ(kLargest, API()->GetGreatestBundleNumber(QRM_BUNDLE_BTW64));
    EXPECT_EQ(42u, API()->GetGreatestBundleNumber(QRM_BUNDLE_BTLX));

    ASSERT_EQ(1u, StoredComponents().size());
    const QRMSoftwareComponent& component = *StoredComponents()[0];
    EXPECT_EQ(kLargest, component.GetDateTime().GetValue());
    EXPECT_EQ(7u, component.GetReleaseDate().GetValue());
    EXPECT_TRUE(component.GetSupportedSystems().GetDisplay());
    std::vector<QRMDevice*> devices;
    component.GetSupportedDevices(devices);
    ASSERT_EQ(2u, devices.size());
    EXPECT_EQ(kLargest, devices[0]->GetComponentID());
    EXPECT_FALSE(devices[0]->IsEmbedded());
    std::vector<QRMPCIInfo*> pci;
    devices[0]->GetPCIInfo(pci);
    ASSERT_EQ(1u, pci.size());
    EXPECT_EQ(kLargest, pci[0]->GetDeviceID());
    EXPECT_EQ(kLargest, pci[0]->GetVendorID());
    EXPECT_EQ(1u, pci[0]->GetSubDeviceID());
    EXPECT_EQ(kLargest, pci[0]->GetSubVendorID());
    EXPECT_EQ(159u, devices[1]->GetComponentID());
    EXPECT_TRUE(devices[1]->IsEmbedded());

    std::vector<QRMInventoryComponent> collectors;
    API()->GetInventoryComponents(collectors);
    ASSERT_EQ(1u, collectors.size());
    EXPECT_EQ(kLargest, collectors[0].GetDateTime().GetValue());
    EXPECT_EQ(0u, collectors[0].GetReleaseDate().GetValue());

    // An inventory whose numbers are as long: the largest system id finds
    // the bundle made for it, the largest component id the device made for
    // it.
    const std::string inventory = "<SVMInventory lang=\"en\" timeStamp=\"" + kNines +
                                  "\">\n"
                                  "<OperatingSystem osVendor=\"Example\" suiteMask=\"" +
                                  kNines +
                                  "\"/>\n"
                                  "<System systemID=\"" +
                                  kEffs +
                                  "\"/>\n"
                                  "<Device componentID=\"" +
                                  kNines + "\" display=\"Big\" bus=\"" + kNines + "\" device=\"" + kZeros +
                                  "\" function=\"-" + kNines + "\" vendorID=\"" + kEffs + "\" deviceID=\"" + kZeros +
                                  "1\" subDeviceID=\"" + kNines + "\" subVendorID=\"" + kEffs +
                                  "\" componentInstance=\"" + kNines +
                                  "\">"
                                  "<Application componentType=\"BIOS\" version=\"1\" display=\"Big BIOS\"/></Device>\n"
                                  "<Device componentID=\"" +
                                  kZeros +
                                  "159\" display=\"BIOS\">"
                                  "<Application componentType=\"BIOS\" version=\"0\" display=\"BIOS\"/></Device>\n"
                                  "</SVMInventory>\n";
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("inventory.xml", inventory))));
    EXPECT_EQ(kLargest, API()->GetInventoryTimeStamp().GetValue());
    std::vector<QRMOperatingSystem> oses;
    API()->GetInventoryOperatingSystems(oses);
    ASSERT_EQ(1u, oses.size());
    EXPECT_EQ(kLargest, oses[0].GetSuiteMask());
    EXPECT_EQ(kLargest, API()->GetSystemIDFromInventory());
    ASSERT_EQ(2u, StoredDevices().size());
    const QRMIDevice& big = *StoredDevices()[0];
    EXPECT_EQ(kLargest, big.GetComponentID());
    EXPECT_EQ(-1, big.GetBus());
    EXPECT_EQ(0, big.GetDevice());
    EXPECT_EQ(-1, big.GetFunction());
    EXPECT_EQ(-1, big.GetVendorID());
    EXPECT_EQ(1, big.GetDeviceID());
    EXPECT_EQ(-1, big.GetSubDeviceID());
    EXPECT_EQ(-1, big.GetSubVendorID());
    EXPECT_EQ(-1, big.GetComponentInstance());
    EXPECT_EQ(159u, StoredDevices()[1]->GetComponentID());

    EXPECT_EQ(StoredBundles()[0], API()->GetApplicableBundle(QRM_BUNDLE_BTW64));
    EXPECT_EQ(nullptr, API()->GetApplicableBundle(QRM_BUNDLE_BTLX));
    std::map<QRMIApplication*, QRMSoftwareComponent*> updates;
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    ASSERT_EQ(2u, updates.size());
    EXPECT_EQ(StoredComponents()[0], updates[ApplicationsOf(big)[0]]);
    EXPECT_EQ(StoredComponents()[0], updates[ApplicationsOf(*StoredDevices()[1])[0]]);
    EXPECT_EQ(QRM_KIT_FAILURE, API()->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTLX));
}

// --------------------------------------------- 100,000-field version texts

TEST(HostileNumber, VersionsOfAHundredThousandFieldsCompareFieldByField)
{
    const VELString sevens(kSevens.c_str());
    const VELString eight(kSevensThenEight.c_str());
    EXPECT_EQ(0, API()->CompareVersion(sevens, sevens));
    EXPECT_EQ(-1, API()->CompareVersion(sevens, eight));
    EXPECT_EQ(1, API()->CompareVersion(eight, sevens));
    // More fields that agree with all of the shorter one: newer.
    EXPECT_EQ(1, API()->CompareVersion(sevens, VELString("7")));
    EXPECT_EQ(-1, API()->CompareVersion(VELString("7"), sevens));
    EXPECT_EQ(-1, API()->CompareVersion(sevens, VELString((kSevens + ".0").c_str())));
    // Other separators and leading zeros change nothing.
    std::string mixed = kSevens;
    for (std::size_t i = 1; i < mixed.size(); i += 2) {
        mixed[i] = "._-"[(i / 2) % 3];
    }
    EXPECT_EQ(0, API()->CompareVersion(VELString(mixed.c_str()), sevens));
    EXPECT_EQ(0, API()->CompareVersion(VELString((Repeat("007.", kFields - 1) + "007").c_str()), sevens));
    EXPECT_EQ(1, API()->CompareVersion(VELString((Repeat("007.", kFields - 1) + "008").c_str()), sevens));
}

TEST(HostileNumber, VersionsOfNothingButSeparatorsHaveNoFields)
{
    const VELString dots(std::string(kFields, '.').c_str());
    EXPECT_EQ(0, API()->CompareVersion(dots, VELString("")));
    EXPECT_EQ(0, API()->CompareVersion(dots, VELString(Repeat("-_", kFields).c_str())));
    EXPECT_EQ(-1, API()->CompareVersion(dots, VELString("0")));
    EXPECT_EQ(1, API()->CompareVersion(VELString((std::string(kFields, '.') + "1").c_str()), dots));
}

TEST(HostileNumber, VersionFieldOfAHundredThousandDigitsComparesAsANumber)
{
    const VELString large(("1" + std::string(kFields - 1, '0')).c_str());
    const VELString nines(std::string(kFields - 1, '9').c_str());
    EXPECT_EQ(1, API()->CompareVersion(large, nines));
    EXPECT_EQ(-1, API()->CompareVersion(nines, large));
    EXPECT_EQ(0, API()->CompareVersion(VELString(("000" + std::string(kFields - 1, '9')).c_str()), nines));
}

TEST(HostileNumber, CatalogVersionsOfAHundredThousandFieldsPickTheNewer)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(kExampleInventory)));
    for (bool newerFirst : {false, true}) {
        const std::string xml =
            newerFirst ? TwoVersionsCatalog(kSevensThenEight, kSevens) : TwoVersionsCatalog(kSevens, kSevensThenEight);
        ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("versions.xml", xml))));
        ASSERT_EQ(2u, StoredComponents().size());
        std::map<QRMIApplication*, QRMSoftwareComponent*> updates;
        ASSERT_EQ(QRM_KIT_SUCCESS, API()->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
        ASSERT_EQ(1u, updates.size());
        EXPECT_EQ(VELString(kSevensThenEight.c_str()), updates.begin()->second->GetVendorVersion());
        EXPECT_EQ(StoredComponents()[newerFirst ? 0 : 1], updates.begin()->second);
    }
}

TEST(HostileNumber, InventoryVersionOfAHundredThousandFieldsLosesItsBlanks)
{
    TempDir dir;
    std::string spaced = Repeat("7 . ", kFields - 1) + " 7 ";
    const std::string xml = "<SVMInventory lang=\"en\"><System systemID=\"0A6B\"/>"
                            "<Device componentID=\"159\" display=\"BIOS\"><Application componentType=\"BIOS\""
                            " version=\"" +
                            spaced + "\" display=\"BIOS\"/></Device></SVMInventory>\n";
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("inventory.xml", xml))));
    ASSERT_EQ(1u, StoredDevices().size());
    ASSERT_EQ(1u, ApplicationsOf(*StoredDevices()[0]).size());
    const VELString version = ApplicationsOf(*StoredDevices()[0])[0]->GetVersion();
    EXPECT_EQ(VELString(kSevens.c_str()), version);
    EXPECT_EQ(-1, API()->CompareVersion(version, VELString(kSevensThenEight.c_str())));
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
    std::map<QRMIApplication*, QRMSoftwareComponent*> updates;
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    EXPECT_EQ(1u, updates.size());
}
