// Reading an inventory file into the inventory store: the root element and
// its attributes, the operating systems and systems it lists, and what the
// store holds after a read that succeeds, fails or repeats.
//
// The store is process-wide and never emptied; every test runs in a process
// of its own and starts from an empty store.
#include "ModelBuilders.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <utility>
#include <vector>

using builders::U8;

namespace {

using Texts = std::vector<std::pair<std::string, std::string>>;

QRMKitAPI* API() { return QRMKitAPI::Instance(); }

// A whole inventory document: the root element with the given attribute text
// around `children`.
std::string Inventory(const std::string& children, const std::string& rootAttributes = "lang=\"en\"",
                      const std::string& rootName = "Inventory")
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<" + rootName + " " + rootAttributes + ">" + children + "</" +
           rootName + ">";
}

QRMKitReturnCode ParseText(const TempDir& dir, const std::string& name, const std::string& xml)
{
    return API()->ParseInventory(VELFile(dir.Write(name, xml)));
}

std::vector<QRMOperatingSystem> OperatingSystems()
{
    std::vector<QRMOperatingSystem> oses;
    API()->GetInventoryOperatingSystems(oses);
    return oses;
}

std::vector<QRMISystem> Systems()
{
    std::vector<QRMISystem> systems;
    API()->GetInventorySystems(systems);
    return systems;
}

template <class Holder>
Texts DisplayTexts(const Holder& holder)
{
    std::vector<QRMDisplay> displays;
    holder.GetDisplayValues(displays);
    Texts texts;
    for (const QRMDisplay& display : displays) {
        texts.emplace_back(U8(display.GetLanguage()), U8(display.GetValue()));
    }
    return texts;
}

std::vector<std::string> DeviceDisplays(const std::vector<QRMIDevice*>& devices)
{
    std::vector<std::string> names;
    for (const QRMIDevice* device : devices) {
        names.push_back(U8(device->GetDisplay()));
    }
    return names;
}

// The stored devices, read after a failed call: a well-formed, empty
// inventory is read first so that the store counts as parsed.
std::vector<std::string> DeviceDisplaysAfterAnEmptyRead(const TempDir& dir)
{
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "empty.xml", Inventory("")));
    std::vector<QRMIDevice*> devices;
    EXPECT_EQ(QRM_KIT_SUCCESS, API()->GetInventory(devices));
    return DeviceDisplays(devices);
}

std::vector<std::string> OSCodes()
{
    std::vector<std::string> codes;
    for (const QRMOperatingSystem& os : OperatingSystems()) {
        codes.push_back(U8(os.GetCode()));
    }
    return codes;
}

std::vector<unsigned int> SystemIDs()
{
    std::vector<unsigned int> ids;
    for (const QRMISystem& system : Systems()) {
        ids.push_back(system.GetSystemID());
    }
    return ids;
}

const char* const kOS = "<OperatingSystem osCode=\"WIN\" osVendor=\"Maker\"/>";
const char* const kSystem = "<System systemID=\"0A6B\"/>";
const char* const kPlainDevice = "<Device display=\"First device\" bus=\"1\"/>";

}  // namespace

// ---------------------------------------------------------------------------
// The root element

TEST(InventoryReaderRoot, RootWithoutLangFailsAndStoresNothing)
{
    TempDir dir;
    std::string xml =
        Inventory(std::string(kOS) + kSystem + kPlainDevice, "schemaVersion=\"2.0\" timeStamp=\"1700000000\"");
    EXPECT_EQ(QRM_KIT_FAILURE, ParseText(dir, "inventory.xml", xml));

    EXPECT_FALSE(API()->IsInventoryParsed());
    EXPECT_TRUE(OperatingSystems().empty());
    EXPECT_TRUE(Systems().empty());
    EXPECT_EQ(0u, API()->GetSystemIDFromInventory());
    EXPECT_EQ("", U8(API()->GetInventorySchemaVersion()));
    EXPECT_EQ(0ull, API()->GetInventoryTimeStamp().GetValue());
    EXPECT_TRUE(DeviceDisplaysAfterAnEmptyRead(dir).empty());
}

TEST(InventoryReaderRoot, LangNameIsCaseSensitive)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_FAILURE, ParseText(dir, "inventory.xml", Inventory(kOS, "Lang=\"en\"")));
    EXPECT_FALSE(API()->IsInventoryParsed());
    EXPECT_TRUE(OperatingSystems().empty());
}

TEST(InventoryReaderRoot, UnknownLanguagePtIsAcceptedAsEnglish)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "german.xml", Inventory("", "lang=\"de\"")));
    ASSERT_EQ(QRM_LANG_DE, API()->GetInventoryLanguage());

    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "portuguese.xml", Inventory(kOS, "lang=\"pt\"")));
    EXPECT_EQ(QRM_LANG_EN, API()->GetInventoryLanguage());
    EXPECT_EQ(1u, OperatingSystems().size());
    EXPECT_TRUE(API()->IsInventoryParsed());
}

TEST(InventoryReaderRoot, EmptyLangIsPresentAndMeansEnglish)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "japanese.xml", Inventory("", "lang=\"ja\"")));
    ASSERT_EQ(QRM_LANG_JA, API()->GetInventoryLanguage());

    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "empty-lang.xml", Inventory(kOS, "lang=\"\"")));
    EXPECT_EQ(QRM_LANG_EN, API()->GetInventoryLanguage());
    EXPECT_EQ(1u, OperatingSystems().size());
}

TEST(InventoryReaderRoot, LanguageTextsAreComparedCaseSensitively)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "french.xml", Inventory("", "lang=\"fr\"")));
    ASSERT_EQ(QRM_LANG_FR, API()->GetInventoryLanguage());

    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "upper.xml", Inventory("", "lang=\"DE\"")));
    EXPECT_EQ(QRM_LANG_EN, API()->GetInventoryLanguage());
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "hans.xml", Inventory("", "lang=\"zh-hans\"")));
    EXPECT_EQ(QRM_LANG_EN, API()->GetInventoryLanguage());
}

TEST(InventoryReaderRoot, EachLanguageTextMapsToItsValue)
{
    // Listed so that every read changes the stored language.
    const std::vector<std::pair<std::string, QRMInventoryLanguageEnum>> languages = {
        {"ta", QRM_LANG_TA}, {"te", QRM_LANG_TE},           {"kn", QRM_LANG_KN},           {"hi", QRM_LANG_HI},
        {"ja", QRM_LANG_JA}, {"zh-Hant", QRM_LANG_ZH_HANT}, {"zh-Hans", QRM_LANG_ZH_HANS}, {"es", QRM_LANG_ES},
        {"de", QRM_LANG_DE}, {"fr", QRM_LANG_FR},           {"en", QRM_LANG_EN},
    };
    TempDir dir;
    for (const auto& [text, value] : languages) {
        std::string xml = Inventory("", "lang=\"" + text + "\"");
        EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory-" + text + ".xml", xml)) << text;
        EXPECT_EQ(value, API()->GetInventoryLanguage()) << text;
    }
}

TEST(InventoryReaderRoot, SchemaVersionAndDecimalTimeStampAreStored)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_SUCCESS,
              ParseText(dir, "inventory.xml",
                        Inventory("", "lang=\"en\" schemaVersion=\"1.1 beta\" timeStamp=\"1700000000\"")));
    EXPECT_EQ("1.1 beta", U8(API()->GetInventorySchemaVersion()));
    EXPECT_EQ(1700000000ull, API()->GetInventoryTimeStamp().GetValue());
    EXPECT_TRUE(API()->IsInventoryParsed());
}

TEST(InventoryReaderRoot, TimeStampWithLeadingZeroIsReadAsDecimal)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", Inventory("", "lang=\"en\" timeStamp=\"0010\"")));
    EXPECT_EQ(10ull, API()->GetInventoryTimeStamp().GetValue());
}

TEST(InventoryReaderRoot, SchemaVersionAndTimeStampAreOptional)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", Inventory(kOS)));
    EXPECT_EQ("", U8(API()->GetInventorySchemaVersion()));
    EXPECT_EQ(0ull, API()->GetInventoryTimeStamp().GetValue());
    EXPECT_EQ(QRM_LANG_EN, API()->GetInventoryLanguage());
    EXPECT_TRUE(API()->IsInventoryParsed());
}

TEST(InventoryReaderRoot, MissingFileReturnsNotFound)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->ParseInventory(VELFile(dir.PathOf("absent.xml"))));
    EXPECT_FALSE(API()->IsInventoryParsed());
}

TEST(InventoryReaderRoot, DirectoryIsNotAFileAndReturnsNotFound)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->ParseInventory(VELFile(dir.Path())));
    EXPECT_FALSE(API()->IsInventoryParsed());
}

TEST(InventoryReaderRoot, MalformedXmlFails)
{
    TempDir dir;
    std::string xml = "<?xml version=\"1.0\"?>\n<Inventory lang=\"en\">" + std::string(kOS) + "<Device display=\"x\">";
    EXPECT_EQ(QRM_KIT_FAILURE, ParseText(dir, "broken.xml", xml));
    EXPECT_FALSE(API()->IsInventoryParsed());
    EXPECT_TRUE(OperatingSystems().empty());
}

TEST(InventoryReaderRoot, EmptyFileFails)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_FAILURE, ParseText(dir, "empty.xml", ""));
    EXPECT_FALSE(API()->IsInventoryParsed());
}

TEST(InventoryReaderRoot, RootNameIsNotChecked)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_SUCCESS,
              ParseText(dir, "inventory.xml", Inventory(std::string(kOS) + kSystem, "lang=\"es\"", "AnyName")));
    EXPECT_EQ(QRM_LANG_ES, API()->GetInventoryLanguage());
    EXPECT_EQ(std::vector<std::string>{"WIN"}, OSCodes());
    EXPECT_EQ(2667u, API()->GetSystemIDFromInventory());
    EXPECT_TRUE(API()->IsInventoryParsed());
}

TEST(InventoryReaderRoot, OtherRootChildrenAreIgnored)
{
    TempDir dir;
    std::string children = "<Comment>text</Comment>"
                           "<operatingsystem osCode=\"LOWER\" osVendor=\"Maker\"/>"
                           "<OperatingSystems><OperatingSystem osCode=\"NESTED\" osVendor=\"Maker\"/>"
                           "</OperatingSystems>"
                           "<system systemID=\"1\"/>"
                           "<device display=\"lower device\"/>"
                           "<Application componentType=\"BIOS\" version=\"1\" display=\"Loose\"/>"
                           "<!-- a comment -->" +
                           std::string(kOS) + "<Unknown osVendor=\"x\" systemID=\"7\" display=\"y\"/>";
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", Inventory(children)));
    EXPECT_EQ(std::vector<std::string>{"WIN"}, OSCodes());
    EXPECT_TRUE(Systems().empty());
    std::vector<QRMIDevice*> devices;
    EXPECT_EQ(QRM_KIT_SUCCESS, API()->GetInventory(devices));
    EXPECT_TRUE(devices.empty());
    EXPECT_TRUE(API()->IsInventoryParsed());
}

TEST(InventoryReaderRoot, FailedReadAfterASuccessfulOneLeavesTheStoreParsed)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "good.xml", Inventory(kPlainDevice, "lang=\"fr\"")));
    ASSERT_TRUE(API()->IsInventoryParsed());

    EXPECT_EQ(QRM_KIT_FAILURE, ParseText(dir, "no-lang.xml", Inventory(kOS, "schemaVersion=\"9\"")));
    EXPECT_TRUE(API()->IsInventoryParsed());
    EXPECT_EQ(QRM_LANG_FR, API()->GetInventoryLanguage());
    EXPECT_EQ("", U8(API()->GetInventorySchemaVersion()));
    EXPECT_TRUE(OperatingSystems().empty());
    std::vector<QRMIDevice*> devices;
    EXPECT_EQ(QRM_KIT_SUCCESS, API()->GetInventory(devices));
    EXPECT_EQ(std::vector<std::string>{"First device"}, DeviceDisplays(devices));
}

// ---------------------------------------------------------------------------
// The store across reads

TEST(InventoryReaderStore, GetInventoryBeforeAnyReadFailsAndLeavesTheVectorUntouched)
{
    QRMIDevice callerDevice;
    std::vector<QRMIDevice*> devices{&callerDevice};
    EXPECT_EQ(QRM_KIT_FAILURE, API()->GetInventory(devices));
    ASSERT_EQ(1u, devices.size());
    EXPECT_EQ(&callerDevice, devices[0]);
    EXPECT_FALSE(API()->IsInventoryParsed());
}

TEST(InventoryReaderStore, GetInventoryAfterOnlyFailedReadsStillFails)
{
    TempDir dir;
    // The read stores the device, then fails on the operating system.
    std::string xml = Inventory(std::string(kPlainDevice) + "<OperatingSystem osCode=\"NOVENDOR\"/>");
    ASSERT_EQ(QRM_KIT_FAILURE, ParseText(dir, "inventory.xml", xml));

    std::vector<QRMIDevice*> devices;
    EXPECT_EQ(QRM_KIT_FAILURE, API()->GetInventory(devices));
    EXPECT_TRUE(devices.empty());
    EXPECT_FALSE(API()->IsInventoryParsed());
}

TEST(InventoryReaderStore, GetInventoryAppendsStoredDevicesInOrderWithoutClearing)
{
    TempDir dir;
    std::string xml = Inventory("<Device display=\"Alpha\" bus=\"1\"/><Device display=\"Beta\" bus=\"2\"/>");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", xml));

    QRMIDevice callerDevice;
    std::vector<QRMIDevice*> devices{&callerDevice};
    EXPECT_EQ(QRM_KIT_SUCCESS, API()->GetInventory(devices));
    ASSERT_EQ(3u, devices.size());
    EXPECT_EQ(&callerDevice, devices[0]);
    EXPECT_EQ("Alpha", U8(devices[1]->GetDisplay()));
    EXPECT_EQ("Beta", U8(devices[2]->GetDisplay()));

    // The pointers are the store's own: a second call hands out the same ones.
    EXPECT_EQ(QRM_KIT_SUCCESS, API()->GetInventory(devices));
    ASSERT_EQ(5u, devices.size());
    EXPECT_EQ(devices[1], devices[3]);
    EXPECT_EQ(devices[2], devices[4]);
}

TEST(InventoryReaderStore, ReadingTheSameFileTwiceStoresOnlyDevicesWithApplicationsAgain)
{
    TempDir dir;
    std::string xml = Inventory(std::string(kOS) + kSystem + kPlainDevice +
                                "<Device display=\"With applications\" bus=\"2\">"
                                "<Application componentType=\"DRVR\" version=\"1.0\" display=\"Driver\"/>"
                                "<Application componentType=\"FRMW\" version=\"2.0\" display=\"Firmware\"/>"
                                "</Device>");
    std::string path = dir.Write("inventory.xml", xml);

    EXPECT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(path)));
    EXPECT_EQ(1u, OperatingSystems().size());
    EXPECT_EQ(1u, Systems().size());
    std::vector<QRMIDevice*> devices;
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->GetInventory(devices));
    EXPECT_EQ((std::vector<std::string>{"First device", "With applications"}), DeviceDisplays(devices));

    EXPECT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(path)));
    EXPECT_EQ(1u, OperatingSystems().size());
    EXPECT_EQ(1u, Systems().size());
    EXPECT_EQ(2667u, API()->GetSystemIDFromInventory());
    devices.clear();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->GetInventory(devices));
    EXPECT_EQ((std::vector<std::string>{"First device", "With applications", "With applications"}),
              DeviceDisplays(devices));
    ASSERT_EQ(3u, devices.size());
    std::vector<QRMIApplication*> applications;
    devices[2]->GetApplications(applications);
    ASSERT_EQ(2u, applications.size());
    EXPECT_EQ("Driver", U8(applications[0]->GetDisplay()));
    EXPECT_EQ("Firmware", U8(applications[1]->GetDisplay()));
}

TEST(InventoryReaderStore, ReadsAccumulateAcrossFiles)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS,
              ParseText(dir, "one.xml",
                        Inventory("<OperatingSystem osCode=\"A\" osVendor=\"Maker\"/>" + std::string(kPlainDevice))));
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "two.xml",
                                         Inventory("<OperatingSystem osCode=\"B\" osVendor=\"Maker\"/>"
                                                   "<Device display=\"Second device\"/>")));
    EXPECT_EQ((std::vector<std::string>{"A", "B"}), OSCodes());
    std::vector<QRMIDevice*> devices;
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->GetInventory(devices));
    EXPECT_EQ((std::vector<std::string>{"First device", "Second device"}), DeviceDisplays(devices));
}

// ---------------------------------------------------------------------------
// Systems

TEST(InventoryReaderSystem, SystemIDIsReadAsHexadecimal)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", Inventory(kSystem)));
    EXPECT_EQ(2667u, API()->GetSystemIDFromInventory());
    EXPECT_EQ(std::vector<unsigned int>{2667u}, SystemIDs());
}

TEST(InventoryReaderSystem, EveryAttributeIsStored)
{
    TempDir dir;
    std::string xml = Inventory("<System systemID=\"ffff\" systemIDType=\"RAIDCHASSIS\" display=\"Rack server\" "
                                "serviceTag=\"TAG-42\"/>");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", xml));
    std::vector<QRMISystem> systems = Systems();
    ASSERT_EQ(1u, systems.size());
    EXPECT_EQ(0xFFFFu, systems[0].GetSystemID());
    EXPECT_EQ(QRM_SYSTEMID_TYPE_RAIDCHASSIS, systems[0].GetSystemIDType());
    EXPECT_EQ("Rack server", U8(systems[0].GetDisplay()));
    EXPECT_EQ("TAG-42", U8(systems[0].GetServiceTag()));
    EXPECT_TRUE(DisplayTexts(systems[0]).empty());
    EXPECT_EQ(0xFFFFu, API()->GetSystemIDFromInventory());
}

TEST(InventoryReaderSystem, OptionalAttributesDefaultToEmptyAndBIOS)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", Inventory("<System systemID=\"10\"/>")));
    std::vector<QRMISystem> systems = Systems();
    ASSERT_EQ(1u, systems.size());
    EXPECT_EQ(16u, systems[0].GetSystemID());
    EXPECT_EQ(QRM_SYSTEMID_TYPE_BIOS, systems[0].GetSystemIDType());
    EXPECT_EQ("", U8(systems[0].GetDisplay()));
    EXPECT_EQ("", U8(systems[0].GetServiceTag()));
}

TEST(InventoryReaderSystem, EachSystemIDTypeTextMapsToItsValueAndOthersToZero)
{
    TempDir dir;
    std::string xml = Inventory("<System systemID=\"1\" systemIDType=\"BIOS\"/>"
                                "<System systemID=\"2\" systemIDType=\"MULTISYSTEMCHASSIS\"/>"
                                "<System systemID=\"3\" systemIDType=\"RAIDCHASSIS\"/>"
                                "<System systemID=\"4\" systemIDType=\"ROUTER\"/>"
                                "<System systemID=\"5\" systemIDType=\"NETWORKSWITCH\"/>"
                                "<System systemID=\"6\" systemIDType=\"router\"/>"
                                "<System systemID=\"7\" systemIDType=\"SWITCH\"/>"
                                "<System systemID=\"8\" systemIDType=\"\"/>"
                                "<System systemID=\"9\"/>");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", xml));
    std::vector<QRMISystem> systems = Systems();
    ASSERT_EQ(9u, systems.size());
    const QRMSystemIDTypeEnum expected[] = {
        QRM_SYSTEMID_TYPE_BIOS,          QRM_SYSTEMID_TYPE_MULTISYSTEMCHASSIS,
        QRM_SYSTEMID_TYPE_RAIDCHASSIS,   QRM_SYSTEMID_TYPE_ROUTER,
        QRM_SYSTEMID_TYPE_NETWORKSWITCH, QRM_SYSTEMID_TYPE_BIOS,
        QRM_SYSTEMID_TYPE_BIOS,          QRM_SYSTEMID_TYPE_BIOS,
        QRM_SYSTEMID_TYPE_BIOS,
    };
    for (std::size_t i = 0; i < systems.size(); ++i) {
        EXPECT_EQ(i + 1, systems[i].GetSystemID());
        EXPECT_EQ(expected[i], systems[i].GetSystemIDType()) << "system " << i + 1;
    }
    EXPECT_EQ(0u, API()->GetSystemIDFromInventory());
}

TEST(InventoryReaderSystem, SystemTypeOfOneSystemDoesNotCarryOverToTheNext)
{
    TempDir dir;
    std::string xml = Inventory("<System systemID=\"1\" systemIDType=\"ROUTER\"/><System systemID=\"2\"/>");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", xml));
    std::vector<QRMISystem> systems = Systems();
    ASSERT_EQ(2u, systems.size());
    EXPECT_EQ(QRM_SYSTEMID_TYPE_ROUTER, systems[0].GetSystemIDType());
    EXPECT_EQ(QRM_SYSTEMID_TYPE_BIOS, systems[1].GetSystemIDType());
}

TEST(InventoryReaderSystem, DisplayChildrenWithLangAreStoredInOrderOthersSkipped)
{
    TempDir dir;
    std::string xml = Inventory("<System systemID=\"1\">"
                                "<Display lang=\"en\">Server</Display>"
                                "<Display>No language</Display>"
                                "<Display lang=\"de\">Rechner</Display>"
                                "<Display lang=\"en\">Second English</Display>"
                                "<display lang=\"fr\">lower case</display>"
                                "</System>");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", xml));
    std::vector<QRMISystem> systems = Systems();
    ASSERT_EQ(1u, systems.size());
    EXPECT_EQ((Texts{{"en", "Server"}, {"de", "Rechner"}}), DisplayTexts(systems[0]));
    EXPECT_TRUE(API()->IsInventoryParsed());
}

TEST(InventoryReaderSystem, NoSystemGivesSystemIDZero)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", Inventory(std::string(kOS) + kPlainDevice)));
    EXPECT_TRUE(Systems().empty());
    EXPECT_EQ(0u, API()->GetSystemIDFromInventory());
}

TEST(InventoryReaderSystem, SystemIDZeroBeforeAnyRead) { EXPECT_EQ(0u, API()->GetSystemIDFromInventory()); }

TEST(InventoryReaderSystem, TwoIdenticalSystemsAreStoredOnce)
{
    TempDir dir;
    std::string system = "<System systemID=\"0A6B\" systemIDType=\"ROUTER\" display=\"Box\" serviceTag=\"T1\">"
                         "<Display lang=\"en\">Box</Display></System>";
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", Inventory(system + system)));
    EXPECT_EQ(std::vector<unsigned int>{2667u}, SystemIDs());
    EXPECT_EQ(2667u, API()->GetSystemIDFromInventory());
}

TEST(InventoryReaderSystem, SystemsWhoseTextsDifferOnlyInLanguageAreEqual)
{
    TempDir dir;
    std::string xml = Inventory("<System systemID=\"0A6B\"><Display lang=\"en\">Box</Display></System>"
                                "<System systemID=\"0A6B\"><Display lang=\"fr\">Boite</Display></System>");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", xml));
    std::vector<QRMISystem> systems = Systems();
    ASSERT_EQ(1u, systems.size());
    EXPECT_EQ((Texts{{"en", "Box"}}), DisplayTexts(systems[0]));
    EXPECT_EQ(2667u, API()->GetSystemIDFromInventory());
}

namespace {

struct SystemVariant {
    const char* label;
    const char* second;
};

void PrintTo(const SystemVariant& variant, std::ostream* out) { *out << variant.label; }

const char* const kBaseSystem =
    "<System systemID=\"1A\" systemIDType=\"RAIDCHASSIS\" display=\"Server\" serviceTag=\"TAG1\">"
    "<Display lang=\"en\">Server</Display></System>";

}  // namespace

class InventoryReaderSystemDiffering : public ::testing::TestWithParam<SystemVariant> {};

TEST_P(InventoryReaderSystemDiffering, LeavesTwoSystemsAndSystemIDZero)
{
    TempDir dir;
    std::string xml = Inventory(std::string(kBaseSystem) + GetParam().second);
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", xml));
    EXPECT_EQ(2u, Systems().size());
    EXPECT_EQ(0u, API()->GetSystemIDFromInventory());
}

INSTANTIATE_TEST_SUITE_P(
    EachComparedField, InventoryReaderSystemDiffering,
    ::testing::Values(
        SystemVariant{"SystemID", "<System systemID=\"1B\" systemIDType=\"RAIDCHASSIS\" display=\"Server\" "
                                  "serviceTag=\"TAG1\"><Display lang=\"en\">Server</Display></System>"},
        SystemVariant{"SystemIDType", "<System systemID=\"1A\" systemIDType=\"ROUTER\" display=\"Server\" "
                                      "serviceTag=\"TAG1\"><Display lang=\"en\">Server</Display></System>"},
        SystemVariant{"Display", "<System systemID=\"1A\" systemIDType=\"RAIDCHASSIS\" display=\"Server 2\" "
                                 "serviceTag=\"TAG1\"><Display lang=\"en\">Server</Display></System>"},
        SystemVariant{"ServiceTag", "<System systemID=\"1A\" systemIDType=\"RAIDCHASSIS\" display=\"Server\" "
                                    "serviceTag=\"TAG2\"><Display lang=\"en\">Server</Display></System>"},
        SystemVariant{"DisplayValueText", "<System systemID=\"1A\" systemIDType=\"RAIDCHASSIS\" display=\"Server\" "
                                          "serviceTag=\"TAG1\"><Display lang=\"en\">Other</Display></System>"},
        SystemVariant{"DisplayValueCount",
                      "<System systemID=\"1A\" systemIDType=\"RAIDCHASSIS\" display=\"Server\" serviceTag=\"TAG1\">"
                      "<Display lang=\"en\">Server</Display><Display lang=\"fr\">Serveur</Display></System>"},
        SystemVariant{"MissingOptionalAttribute", "<System systemID=\"1A\" systemIDType=\"RAIDCHASSIS\" "
                                                  "display=\"Server\"><Display lang=\"en\">Server</Display></System>"}),
    [](const ::testing::TestParamInfo<SystemVariant>& info) { return std::string(info.param.label); });

TEST(InventoryReaderSystem, SystemWithoutSystemIDFailsTheCallAfterEarlierChildrenWereStored)
{
    TempDir dir;
    std::string xml =
        Inventory(std::string(kOS) + kPlainDevice + "<System systemID=\"2\"/>" + "<System display=\"No id\"/>" +
                  "<OperatingSystem osCode=\"LATER\" osVendor=\"Maker\"/>"
                  "<System systemID=\"3\"/><Device display=\"Later device\"/>");
    EXPECT_EQ(QRM_KIT_FAILURE, ParseText(dir, "inventory.xml", xml));
    EXPECT_FALSE(API()->IsInventoryParsed());
    EXPECT_EQ(std::vector<std::string>{"WIN"}, OSCodes());
    EXPECT_EQ(std::vector<unsigned int>{2u}, SystemIDs());
    EXPECT_EQ(std::vector<std::string>{"First device"}, DeviceDisplaysAfterAnEmptyRead(dir));
}

TEST(InventoryReaderSystem, SystemIDNameIsCaseSensitive)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_FAILURE, ParseText(dir, "inventory.xml", Inventory("<System systemid=\"0A6B\"/>")));
    EXPECT_TRUE(Systems().empty());
    EXPECT_FALSE(API()->IsInventoryParsed());
}

// ---------------------------------------------------------------------------
// Operating systems

TEST(InventoryReaderOperatingSystem, EveryAttributeIsStored)
{
    TempDir dir;
    std::string xml = Inventory("<OperatingSystem osArch=\"x64\" osCode=\"WIN64\" osVendor=\"Maker\" "
                                "majorVersion=\"10\" minorVersion=\"0\" spMajorVersion=\"3\" spMinorVersion=\"1\" "
                                "preinstallationEnvironment=\"true\" suiteMask=\"0272\"/>");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", xml));
    std::vector<QRMOperatingSystem> oses = OperatingSystems();
    ASSERT_EQ(1u, oses.size());
    const QRMOperatingSystem& os = oses[0];
    EXPECT_EQ(QRM_OS_ARCH_X64, os.GetArchitecture());
    EXPECT_EQ("WIN64", U8(os.GetCode()));
    EXPECT_EQ("Maker", U8(os.GetVendor()));
    EXPECT_EQ("10", U8(os.GetMajorVersion()));
    EXPECT_EQ("0", U8(os.GetMinorVersion()));
    EXPECT_EQ("3", U8(os.GetServicePackMajorVersion()));
    EXPECT_EQ("1", U8(os.GetServicePackMinorVersion()));
    EXPECT_TRUE(os.IsForPreInstallEnvironment());
    EXPECT_EQ(272ull, os.GetSuiteMask());
    EXPECT_TRUE(DisplayTexts(os).empty());
    EXPECT_TRUE(API()->IsInventoryParsed());
}

TEST(InventoryReaderOperatingSystem, OnlyVendorGivenLeavesEverythingElseEmpty)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", Inventory("<OperatingSystem osVendor=\"Maker\"/>")));
    std::vector<QRMOperatingSystem> oses = OperatingSystems();
    ASSERT_EQ(1u, oses.size());
    const QRMOperatingSystem& os = oses[0];
    EXPECT_EQ(QRM_OS_ARCH_X86, os.GetArchitecture());
    EXPECT_EQ("", U8(os.GetCode()));
    EXPECT_EQ("Maker", U8(os.GetVendor()));
    EXPECT_EQ("", U8(os.GetMajorVersion()));
    EXPECT_EQ("", U8(os.GetMinorVersion()));
    EXPECT_EQ("", U8(os.GetServicePackMajorVersion()));
    EXPECT_EQ("", U8(os.GetServicePackMinorVersion()));
    EXPECT_FALSE(os.IsForPreInstallEnvironment());
    EXPECT_EQ(0ull, os.GetSuiteMask());
}

TEST(InventoryReaderOperatingSystem, EmptyVendorIsPresent)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS,
              ParseText(dir, "inventory.xml", Inventory("<OperatingSystem osCode=\"WIN\" osVendor=\"\"/>")));
    std::vector<QRMOperatingSystem> oses = OperatingSystems();
    ASSERT_EQ(1u, oses.size());
    EXPECT_EQ("", U8(oses[0].GetVendor()));
    EXPECT_EQ("WIN", U8(oses[0].GetCode()));
}

TEST(InventoryReaderOperatingSystem, EachArchitectureTextMapsToItsValueAndOthersToZero)
{
    TempDir dir;
    // An unknown text right after "x64" shows that nothing carries over.
    std::string xml = Inventory("<OperatingSystem osCode=\"a\" osVendor=\"M\" osArch=\"x64\"/>"
                                "<OperatingSystem osCode=\"b\" osVendor=\"M\" osArch=\"amd64\"/>"
                                "<OperatingSystem osCode=\"c\" osVendor=\"M\" osArch=\"ia64\"/>"
                                "<OperatingSystem osCode=\"d\" osVendor=\"M\" osArch=\"X64\"/>"
                                "<OperatingSystem osCode=\"e\" osVendor=\"M\" osArch=\"ia32\"/>"
                                "<OperatingSystem osCode=\"f\" osVendor=\"M\"/>"
                                "<OperatingSystem osCode=\"g\" osVendor=\"M\" osArch=\"x86\"/>"
                                "<OperatingSystem osCode=\"h\" osVendor=\"M\" osArch=\"\"/>");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", xml));
    std::vector<QRMOperatingSystem> oses = OperatingSystems();
    ASSERT_EQ(8u, oses.size());
    const QRMOSArchitectureEnum expected[] = {QRM_OS_ARCH_X64,  QRM_OS_ARCH_X86, QRM_OS_ARCH_IA64, QRM_OS_ARCH_X86,
                                              QRM_OS_ARCH_IA32, QRM_OS_ARCH_X86, QRM_OS_ARCH_X86,  QRM_OS_ARCH_X86};
    for (std::size_t i = 0; i < oses.size(); ++i) {
        EXPECT_EQ(expected[i], oses[i].GetArchitecture()) << U8(oses[i].GetCode());
    }
}

TEST(InventoryReaderOperatingSystem, PreinstallationEnvironmentTrueAndFalseMap)
{
    TempDir dir;
    std::string xml = Inventory("<OperatingSystem osCode=\"PE\" osVendor=\"M\" preinstallationEnvironment=\"true\"/>"
                                "<OperatingSystem osCode=\"FULL\" osVendor=\"M\" "
                                "preinstallationEnvironment=\"false\"/>");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", xml));
    std::vector<QRMOperatingSystem> oses = OperatingSystems();
    ASSERT_EQ(2u, oses.size());
    EXPECT_TRUE(oses[0].IsForPreInstallEnvironment());
    EXPECT_FALSE(oses[1].IsForPreInstallEnvironment());
}

TEST(InventoryReaderOperatingSystem, SuiteMaskIsDecimalAndWidened)
{
    TempDir dir;
    std::string xml = Inventory("<OperatingSystem osCode=\"a\" osVendor=\"M\" suiteMask=\"4294967295\"/>"
                                "<OperatingSystem osCode=\"b\" osVendor=\"M\" suiteMask=\"10\"/>");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", xml));
    std::vector<QRMOperatingSystem> oses = OperatingSystems();
    ASSERT_EQ(2u, oses.size());
    EXPECT_EQ(4294967295ull, oses[0].GetSuiteMask());
    EXPECT_EQ(10ull, oses[1].GetSuiteMask());
}

TEST(InventoryReaderOperatingSystem, DisplayChildrenWithLangAreStoredOthersSkipped)
{
    TempDir dir;
    std::string xml = Inventory("<OperatingSystem osCode=\"WIN\" osVendor=\"Maker\">"
                                "<Display lang=\"en\">Desktop system</Display>"
                                "<Display>No language</Display>"
                                "<Display lang=\"ja\">\xE3\x83\x87\xE3\x82\xB9\xE3\x82\xAF</Display>"
                                "<Display lang=\"en\">Repeated</Display>"
                                "</OperatingSystem>");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", xml));
    std::vector<QRMOperatingSystem> oses = OperatingSystems();
    ASSERT_EQ(1u, oses.size());
    EXPECT_EQ((Texts{{"en", "Desktop system"}, {"ja", "\xE3\x83\x87\xE3\x82\xB9\xE3\x82\xAF"}}), DisplayTexts(oses[0]));
    EXPECT_TRUE(API()->IsInventoryParsed());
}

TEST(InventoryReaderOperatingSystem, IdenticalOperatingSystemIsStoredOnce)
{
    TempDir dir;
    std::string os = "<OperatingSystem osArch=\"x64\" osCode=\"WIN\" osVendor=\"Maker\" majorVersion=\"10\" "
                     "suiteMask=\"3\"><Display lang=\"en\">Desktop</Display></OperatingSystem>";
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", Inventory(os + os)));
    EXPECT_EQ(std::vector<std::string>{"WIN"}, OSCodes());
    EXPECT_TRUE(API()->IsInventoryParsed());
}

TEST(InventoryReaderOperatingSystem, OperatingSystemsDifferingInOneFieldAreBothStored)
{
    TempDir dir;
    std::string xml = Inventory("<OperatingSystem osCode=\"WIN\" osVendor=\"Maker\" majorVersion=\"10\"/>"
                                "<OperatingSystem osCode=\"WIN\" osVendor=\"Maker\" majorVersion=\"11\"/>");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", xml));
    std::vector<QRMOperatingSystem> oses = OperatingSystems();
    ASSERT_EQ(2u, oses.size());
    EXPECT_EQ("10", U8(oses[0].GetMajorVersion()));
    EXPECT_EQ("11", U8(oses[1].GetMajorVersion()));
}

TEST(InventoryReaderOperatingSystem, MissingVendorFailsTheCallAfterEarlierChildrenWereStored)
{
    TempDir dir;
    std::string xml = Inventory(std::string(kSystem) + kPlainDevice +
                                "<OperatingSystem osCode=\"FIRST\" osVendor=\"Maker\"/>"
                                "<OperatingSystem osCode=\"NOVENDOR\" osArch=\"x64\"/>"
                                "<OperatingSystem osCode=\"LATER\" osVendor=\"Maker\"/>"
                                "<Device display=\"Later device\"/>");
    EXPECT_EQ(QRM_KIT_FAILURE, ParseText(dir, "inventory.xml", xml));
    EXPECT_FALSE(API()->IsInventoryParsed());
    EXPECT_EQ(std::vector<std::string>{"FIRST"}, OSCodes());
    EXPECT_EQ(2667u, API()->GetSystemIDFromInventory());
    EXPECT_EQ(std::vector<std::string>{"First device"}, DeviceDisplaysAfterAnEmptyRead(dir));
}

namespace {

struct PreinstallText {
    const char* label;
    const char* text;
};

void PrintTo(const PreinstallText& value, std::ostream* out) { *out << value.label; }

}  // namespace

class InventoryReaderOperatingSystemPreinstall : public ::testing::TestWithParam<PreinstallText> {};

TEST_P(InventoryReaderOperatingSystemPreinstall, OtherTextFailsTheCallAfterEarlierChildrenWereStored)
{
    TempDir dir;
    std::string xml = Inventory(std::string(kOS) + kSystem + kPlainDevice +
                                "<OperatingSystem osCode=\"BAD\" osVendor=\"Maker\" preinstallationEnvironment=\"" +
                                GetParam().text + "\"/>" + "<OperatingSystem osCode=\"LATER\" osVendor=\"Maker\"/>");
    EXPECT_EQ(QRM_KIT_FAILURE, ParseText(dir, "inventory.xml", xml));
    EXPECT_FALSE(API()->IsInventoryParsed());
    EXPECT_EQ(std::vector<std::string>{"WIN"}, OSCodes());
    EXPECT_EQ(2667u, API()->GetSystemIDFromInventory());
    EXPECT_EQ(std::vector<std::string>{"First device"}, DeviceDisplaysAfterAnEmptyRead(dir));
}

INSTANTIATE_TEST_SUITE_P(BadTexts, InventoryReaderOperatingSystemPreinstall,
                         ::testing::Values(PreinstallText{"Yes", "yes"}, PreinstallText{"Empty", ""},
                                           PreinstallText{"CapitalTrue", "True"}, PreinstallText{"One", "1"},
                                           PreinstallText{"PaddedFalse", " false"}),
                         [](const ::testing::TestParamInfo<PreinstallText>& info) {
                             return std::string(info.param.label);
                         });
