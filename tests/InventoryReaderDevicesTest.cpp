// Reading the "Device" entries of an inventory: the device attributes and
// texts, the applications installed for each device (with what carries over
// from one application to the next), dropped devices and the result they
// leave, and a UTF-16 inventory.
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

std::string Inventory(const std::string& children, const std::string& rootAttributes = "lang=\"en\"")
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Inventory " + rootAttributes + ">" + children + "</Inventory>";
}

QRMKitReturnCode ParseText(const TempDir& dir, const std::string& name, const std::string& xml)
{
    return API()->ParseInventory(VELFile(dir.Write(name, xml)));
}

// Reads an inventory with the given root children and expects success.
void ParseChildren(const TempDir& dir, const std::string& children)
{
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", Inventory(children)));
    ASSERT_TRUE(API()->IsInventoryParsed());
}

std::vector<QRMIDevice*> Devices()
{
    std::vector<QRMIDevice*> devices;
    EXPECT_EQ(QRM_KIT_SUCCESS, API()->GetInventory(devices));
    return devices;
}

std::vector<std::string> DeviceDisplays()
{
    std::vector<std::string> names;
    for (const QRMIDevice* device : Devices()) {
        names.push_back(U8(device->GetDisplay()));
    }
    return names;
}

// The stored devices, read after a failed call: a well-formed, empty
// inventory is read first so that the store counts as parsed.
std::vector<std::string> DeviceDisplaysAfterAnEmptyRead(const TempDir& dir)
{
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "empty.xml", Inventory("")));
    return DeviceDisplays();
}

// The applications of the only stored device.
std::vector<QRMIApplication*> ApplicationsOfTheOnlyDevice()
{
    std::vector<QRMIDevice*> devices = Devices();
    EXPECT_EQ(1u, devices.size());
    return devices.empty() ? std::vector<QRMIApplication*>() : ApplicationsOf(*devices[0]);
}

std::vector<std::string> ApplicationDisplays(const std::vector<QRMIApplication*>& applications)
{
    std::vector<std::string> names;
    for (const QRMIApplication* application : applications) {
        names.push_back(U8(application->GetDisplay()));
    }
    return names;
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

std::string Device(const std::string& display, const std::string& applications = "", const std::string& attributes = "")
{
    return "<Device display=\"" + display + "\"" + (attributes.empty() ? "" : " " + attributes) + ">" + applications +
           "</Device>";
}

std::string Application(const std::string& attributes, const std::string& children = "")
{
    return "<Application " + attributes + ">" + children + "</Application>";
}

}  // namespace

// ---------------------------------------------------------------------------
// Device attributes and texts

TEST(InventoryReaderDevice, EveryAttributeIsStoredWithPCIIdentifiersInHexadecimal)
{
    TempDir dir;
    ParseChildren(dir, "<Device bus=\"10\" device=\"011\" function=\"7\" componentID=\"25227\" "
                       "display=\"Network adapter\" vendorID=\"8086\" deviceID=\"10fb\" subDeviceID=\"000C\" "
                       "subVendorID=\"1A2B\" componentInstance=\"2\"/>");
    std::vector<QRMIDevice*> devices = Devices();
    ASSERT_EQ(1u, devices.size());
    const QRMIDevice& device = *devices[0];
    EXPECT_EQ(10, device.GetBus());
    EXPECT_EQ(11, device.GetDevice());
    EXPECT_EQ(7, device.GetFunction());
    EXPECT_EQ(25227ull, device.GetComponentID());
    EXPECT_EQ("Network adapter", U8(device.GetDisplay()));
    EXPECT_EQ(32902, device.GetVendorID());
    EXPECT_EQ(0x10FB, device.GetDeviceID());
    EXPECT_EQ(0x000C, device.GetSubDeviceID());
    EXPECT_EQ(0x1A2B, device.GetSubVendorID());
    EXPECT_EQ(2, device.GetComponentInstance());
    EXPECT_TRUE(ApplicationsOf(device).empty());
    EXPECT_TRUE(DisplayTexts(device).empty());
}

TEST(InventoryReaderDevice, BusIsDecimalWhileVendorIDIsHexadecimal)
{
    TempDir dir;
    ParseChildren(dir, "<Device display=\"d\" bus=\"10\" vendorID=\"10\" componentID=\"10\" "
                       "componentInstance=\"10\" deviceID=\"10\"/>");
    std::vector<QRMIDevice*> devices = Devices();
    ASSERT_EQ(1u, devices.size());
    EXPECT_EQ(10, devices[0]->GetBus());
    EXPECT_EQ(16, devices[0]->GetVendorID());
    EXPECT_EQ(16, devices[0]->GetDeviceID());
    EXPECT_EQ(10ull, devices[0]->GetComponentID());
    EXPECT_EQ(10, devices[0]->GetComponentInstance());
}

TEST(InventoryReaderDevice, HexadecimalIdentifiersMayCarryAPrefix)
{
    TempDir dir;
    ParseChildren(dir, "<Device display=\"d\" vendorID=\"0x8086\" subVendorID=\"0XABCD\"/>");
    std::vector<QRMIDevice*> devices = Devices();
    ASSERT_EQ(1u, devices.size());
    EXPECT_EQ(32902, devices[0]->GetVendorID());
    EXPECT_EQ(0xABCD, devices[0]->GetSubVendorID());
}

TEST(InventoryReaderDevice, MissingNumericAttributesStayZero)
{
    TempDir dir;
    ParseChildren(dir, "<Device display=\"Only a name\"/>");
    std::vector<QRMIDevice*> devices = Devices();
    ASSERT_EQ(1u, devices.size());
    const QRMIDevice& device = *devices[0];
    EXPECT_EQ("Only a name", U8(device.GetDisplay()));
    EXPECT_EQ(0, device.GetBus());
    EXPECT_EQ(0, device.GetDevice());
    EXPECT_EQ(0, device.GetFunction());
    EXPECT_EQ(0ull, device.GetComponentID());
    EXPECT_EQ(0, device.GetVendorID());
    EXPECT_EQ(0, device.GetDeviceID());
    EXPECT_EQ(0, device.GetSubDeviceID());
    EXPECT_EQ(0, device.GetSubVendorID());
    EXPECT_EQ(0, device.GetComponentInstance());
}

TEST(InventoryReaderDevice, EmptyDisplayIsPresentAndTheDeviceIsStored)
{
    TempDir dir;
    ParseChildren(dir, "<Device display=\"\" bus=\"4\"/>");
    std::vector<QRMIDevice*> devices = Devices();
    ASSERT_EQ(1u, devices.size());
    EXPECT_EQ("", U8(devices[0]->GetDisplay()));
    EXPECT_EQ(4, devices[0]->GetBus());
}

TEST(InventoryReaderDevice, DisplayChildrenWithLangAreStoredInOrderOthersSkipped)
{
    TempDir dir;
    ParseChildren(dir, "<Device display=\"Adapter\">"
                       "<Display lang=\"en\">Network adapter</Display>"
                       "<Display>Without language</Display>"
                       "<Display lang=\"fr\">Carte r\xC3\xA9seau</Display>"
                       "<Display lang=\"en\">Second English</Display>" +
                           Application("componentType=\"DRVR\" version=\"1\" display=\"Driver\"",
                                       "<Display lang=\"de\">Treiber</Display>") +
                           "</Device>");
    std::vector<QRMIDevice*> devices = Devices();
    ASSERT_EQ(1u, devices.size());
    EXPECT_EQ((Texts{{"en", "Network adapter"}, {"fr", "Carte r\xC3\xA9seau"}}), DisplayTexts(*devices[0]));
    std::vector<QRMIApplication*> applications = ApplicationsOf(*devices[0]);
    ASSERT_EQ(1u, applications.size());
    EXPECT_EQ((Texts{{"de", "Treiber"}}), DisplayTexts(*applications[0]));
}

TEST(InventoryReaderDevice, IdenticalDevicesWithoutApplicationsAreStoredOnce)
{
    TempDir dir;
    std::string device = "<Device display=\"Disk\" bus=\"3\" vendorID=\"1B4B\"><Display lang=\"en\">Disk</Display>"
                         "</Device>";
    ParseChildren(dir, device + device);
    EXPECT_EQ(std::vector<std::string>{"Disk"}, DeviceDisplays());
}

TEST(InventoryReaderDevice, DevicesDifferingInOneNumberAreBothStored)
{
    TempDir dir;
    ParseChildren(dir, "<Device display=\"Disk\" function=\"0\"/><Device display=\"Disk\" function=\"1\"/>");
    std::vector<QRMIDevice*> devices = Devices();
    ASSERT_EQ(2u, devices.size());
    EXPECT_EQ(0, devices[0]->GetFunction());
    EXPECT_EQ(1, devices[1]->GetFunction());
}

TEST(InventoryReaderDevice, DevicesSharingAnApplicationAreBothStored)
{
    TempDir dir;
    std::string device = Device("Disk", Application("componentType=\"FRMW\" version=\"1.0\" display=\"Firmware\""));
    ParseChildren(dir, device + device);
    std::vector<QRMIDevice*> devices = Devices();
    ASSERT_EQ(2u, devices.size());
    EXPECT_EQ(std::vector<std::string>{"Firmware"}, ApplicationDisplays(ApplicationsOf(*devices[0])));
    EXPECT_EQ(std::vector<std::string>{"Firmware"}, ApplicationDisplays(ApplicationsOf(*devices[1])));
}

// ---------------------------------------------------------------------------
// Dropped devices and the result of the call

TEST(InventoryReaderDevice, DeviceWithoutDisplayIsDroppedAndALaterGoodDeviceMakesTheCallSucceed)
{
    TempDir dir;
    std::string xml = Inventory(Device("Before") + "<Device bus=\"9\" vendorID=\"8086\"/>" +
                                "<Device Display=\"Wrong case\"/>" + Device("After"));
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "inventory.xml", xml));
    EXPECT_TRUE(API()->IsInventoryParsed());
    EXPECT_EQ((std::vector<std::string>{"Before", "After"}), DeviceDisplays());
}

TEST(InventoryReaderDevice, DeviceWithoutDisplayAsLastChildFailsTheCallAndKeepsEarlierChildren)
{
    TempDir dir;
    std::string xml =
        Inventory("<OperatingSystem osCode=\"WIN\" osVendor=\"Maker\"/>"
                  "<System systemID=\"0A6B\"/>" +
                      Device("Kept") + "<Device bus=\"2\">" +
                      Application("componentType=\"BIOS\" version=\"1\" display=\"Firmware\"") + "</Device>",
                  "lang=\"de\" schemaVersion=\"3\"");
    EXPECT_EQ(QRM_KIT_FAILURE, ParseText(dir, "inventory.xml", xml));
    EXPECT_FALSE(API()->IsInventoryParsed());
    std::vector<QRMIDevice*> none;
    EXPECT_EQ(QRM_KIT_FAILURE, API()->GetInventory(none));
    EXPECT_TRUE(none.empty());

    std::vector<QRMOperatingSystem> oses;
    API()->GetInventoryOperatingSystems(oses);
    EXPECT_EQ(1u, oses.size());
    EXPECT_EQ(2667u, API()->GetSystemIDFromInventory());
    EXPECT_EQ(QRM_LANG_DE, API()->GetInventoryLanguage());
    EXPECT_EQ("3", U8(API()->GetInventorySchemaVersion()));
    EXPECT_EQ(std::vector<std::string>{"Kept"}, DeviceDisplaysAfterAnEmptyRead(dir));
}

namespace {

struct LaterChild {
    const char* label;
    std::string xml;
    QRMKitReturnCode expected;
    bool parsed;
};

void PrintTo(const LaterChild& child, std::ostream* out) { *out << child.label; }

const char* const kDropped = "<Device bus=\"5\"/>";

}  // namespace

class InventoryReaderDroppedDeviceFollowedBy : public ::testing::TestWithParam<LaterChild> {};

// The earlier children are an operating system, a system and a device; the
// device without display comes next, then the child under test.
TEST_P(InventoryReaderDroppedDeviceFollowedBy, ReturnsTheStatusOfTheLastRecordedChild)
{
    TempDir dir;
    std::string earlier =
        "<OperatingSystem osCode=\"WIN\" osVendor=\"Maker\"/><System systemID=\"1\"/>" + Device("Earlier");
    EXPECT_EQ(GetParam().expected, ParseText(dir, "inventory.xml", Inventory(earlier + kDropped + GetParam().xml)));
    EXPECT_EQ(GetParam().parsed, API()->IsInventoryParsed());
    EXPECT_EQ(1u, API()->GetSystemIDFromInventory());
    std::vector<std::string> displays = DeviceDisplaysAfterAnEmptyRead(dir);
    ASSERT_FALSE(displays.empty());
    EXPECT_EQ("Earlier", displays[0]);
}

INSTANTIATE_TEST_SUITE_P(
    Children, InventoryReaderDroppedDeviceFollowedBy,
    ::testing::Values(
        LaterChild{"Nothing", "", QRM_KIT_FAILURE, false},
        LaterChild{"UnknownElement", "<Unknown display=\"x\"/>", QRM_KIT_FAILURE, false},
        LaterChild{"UnknownElementAfterAGoodDevice", Device("Good") + "<Unknown/>", QRM_KIT_SUCCESS, true},
        LaterChild{"AnotherDroppedDevice", "<Device vendorID=\"1\"/>", QRM_KIT_FAILURE, false},
        LaterChild{"GoodDevice", Device("Good"), QRM_KIT_SUCCESS, true},
        LaterChild{"DuplicateDevice", Device("Earlier"), QRM_KIT_SUCCESS, true},
        LaterChild{"OperatingSystem", "<OperatingSystem osCode=\"LNX\" osVendor=\"Maker\"/>", QRM_KIT_SUCCESS, true},
        LaterChild{"DuplicateOperatingSystem", "<OperatingSystem osCode=\"WIN\" osVendor=\"Maker\"/>", QRM_KIT_SUCCESS,
                   true},
        LaterChild{"DuplicateSystem", "<System systemID=\"1\"/>", QRM_KIT_SUCCESS, true}),
    [](const ::testing::TestParamInfo<LaterChild>& info) { return std::string(info.param.label); });

TEST(InventoryReaderDevice, DroppedDeviceIsNotStoredAndLaterDevicesAre)
{
    TempDir dir;
    ParseChildren(dir, "<Device bus=\"5\"/>" + Device("Good", "", "bus=\"5\""));
    std::vector<QRMIDevice*> devices = Devices();
    ASSERT_EQ(1u, devices.size());
    EXPECT_EQ("Good", U8(devices[0]->GetDisplay()));
    EXPECT_EQ(5, devices[0]->GetBus());
}

// ---------------------------------------------------------------------------
// Applications

TEST(InventoryReaderApplication, EveryFieldIsStored)
{
    TempDir dir;
    ParseChildren(dir, Device("Adapter", Application("componentType=\"DRVR\" version=\"14.2.1\" display=\"Driver\" "
                                                     "subComponentID=\"SUB-7\"",
                                                     "<Display lang=\"en\">Network driver</Display>"
                                                     "<Display>skipped</Display>"
                                                     "<Display lang=\"es\">Controlador</Display>")));
    std::vector<QRMIApplication*> applications = ApplicationsOfTheOnlyDevice();
    ASSERT_EQ(1u, applications.size());
    const QRMIApplication& application = *applications[0];
    EXPECT_EQ(QRM_COMPONENT_DRVR, application.GetComponentType());
    EXPECT_EQ("14.2.1", U8(application.GetVersion()));
    EXPECT_EQ("Driver", U8(application.GetDisplay()));
    EXPECT_EQ("SUB-7", U8(application.GetSubComponentID()));
    EXPECT_EQ((Texts{{"en", "Network driver"}, {"es", "Controlador"}}), DisplayTexts(application));
}

TEST(InventoryReaderApplication, ApplicationsAreStoredInDocumentOrder)
{
    TempDir dir;
    ParseChildren(dir, Device("Adapter", Application("componentType=\"DRVR\" version=\"1\" display=\"Zeta\"") +
                                             Application("componentType=\"FRMW\" version=\"2\" display=\"Alpha\"") +
                                             Application("componentType=\"APP\" version=\"3\" display=\"Mid\"")));
    EXPECT_EQ((std::vector<std::string>{"Zeta", "Alpha", "Mid"}), ApplicationDisplays(ApplicationsOfTheOnlyDevice()));
}

TEST(InventoryReaderApplication, EachComponentTypeTextMapsToItsValue)
{
    TempDir dir;
    ParseChildren(dir, Device("Adapter", Application("componentType=\"FRMW\" version=\"1\" display=\"a\"") +
                                             Application("componentType=\"BIOS\" version=\"1\" display=\"b\"") +
                                             Application("componentType=\"APAC\" version=\"1\" display=\"c\"") +
                                             Application("componentType=\"APP\" version=\"1\" display=\"d\"") +
                                             Application("componentType=\"DRVR\" version=\"1\" display=\"e\"")));
    std::vector<QRMIApplication*> applications = ApplicationsOfTheOnlyDevice();
    ASSERT_EQ(5u, applications.size());
    EXPECT_EQ(QRM_COMPONENT_FRMW, applications[0]->GetComponentType());
    EXPECT_EQ(QRM_COMPONENT_BIOS, applications[1]->GetComponentType());
    EXPECT_EQ(QRM_COMPONENT_APAC, applications[2]->GetComponentType());
    EXPECT_EQ(QRM_COMPONENT_APP, applications[3]->GetComponentType());
    EXPECT_EQ(QRM_COMPONENT_DRVR, applications[4]->GetComponentType());
}

TEST(InventoryReaderApplication, BlanksInTheVersionAreRemoved)
{
    TempDir dir;
    ParseChildren(dir, Device("Adapter", Application("componentType=\"BIOS\" version=\"1. 2 .3\" display=\"a\"") +
                                             Application("componentType=\"BIOS\" version=\"  4 . 5  \" "
                                                         "display=\"b\"")));
    std::vector<QRMIApplication*> applications = ApplicationsOfTheOnlyDevice();
    ASSERT_EQ(2u, applications.size());
    EXPECT_EQ("1.2.3", U8(applications[0]->GetVersion()));
    EXPECT_EQ("4.5", U8(applications[1]->GetVersion()));
}

TEST(InventoryReaderApplication, EmptyVersionIsPresentAndStoredEmpty)
{
    TempDir dir;
    ParseChildren(dir, Device("Adapter", Application("componentType=\"APP\" version=\"\" display=\"Tool\"")));
    std::vector<QRMIApplication*> applications = ApplicationsOfTheOnlyDevice();
    ASSERT_EQ(1u, applications.size());
    EXPECT_EQ("", U8(applications[0]->GetVersion()));
    EXPECT_EQ("Tool", U8(applications[0]->GetDisplay()));
}

TEST(InventoryReaderApplication, ApplicationWithoutDisplayIsNotAddedButTheDeviceIs)
{
    TempDir dir;
    ParseChildren(dir, Device("Adapter", Application("componentType=\"BIOS\" version=\"1.0\"")) +
                           Device("Other", Application("componentType=\"BIOS\" version=\"1.0\"") +
                                               Application("componentType=\"APP\" version=\"2.0\" display=\"Kept\"")));
    std::vector<QRMIDevice*> devices = Devices();
    ASSERT_EQ(2u, devices.size());
    EXPECT_EQ("Adapter", U8(devices[0]->GetDisplay()));
    EXPECT_TRUE(ApplicationsOf(*devices[0]).empty());
    EXPECT_EQ(std::vector<std::string>{"Kept"}, ApplicationDisplays(ApplicationsOf(*devices[1])));
}

TEST(InventoryReaderApplication, ApplicationWithoutComponentTypeIsSkipped)
{
    TempDir dir;
    ParseChildren(dir, Device("Adapter", Application("version=\"1.0\" display=\"NoType\"") +
                                             Application("componentType=\"DRVR\" version=\"2.0\" display=\"Typed\"")));
    std::vector<QRMIApplication*> applications = ApplicationsOfTheOnlyDevice();
    ASSERT_EQ(1u, applications.size());
    EXPECT_EQ("Typed", U8(applications[0]->GetDisplay()));
    EXPECT_EQ("2.0", U8(applications[0]->GetVersion()));
}

TEST(InventoryReaderApplication, ApplicationWithoutVersionIsSkipped)
{
    TempDir dir;
    ParseChildren(dir, Device("Adapter", Application("componentType=\"DRVR\" display=\"NoVersion\"") +
                                             Application("componentType=\"DRVR\" version=\"2.0\" "
                                                         "display=\"Versioned\"")));
    std::vector<QRMIApplication*> applications = ApplicationsOfTheOnlyDevice();
    ASSERT_EQ(1u, applications.size());
    EXPECT_EQ("Versioned", U8(applications[0]->GetDisplay()));
}

TEST(InventoryReaderApplication, ApplicationAttributeNamesAreCaseSensitive)
{
    TempDir dir;
    ParseChildren(dir, Device("Adapter", Application("ComponentType=\"DRVR\" version=\"1\" display=\"a\"") +
                                             Application("componentType=\"DRVR\" Version=\"1\" display=\"b\"") +
                                             Application("componentType=\"DRVR\" version=\"1\" Display=\"c\"") +
                                             "<application componentType=\"DRVR\" version=\"1\" display=\"d\"/>"));
    EXPECT_TRUE(ApplicationsOfTheOnlyDevice().empty());
}

TEST(InventoryReaderApplication, SubComponentIDIsOptional)
{
    TempDir dir;
    ParseChildren(dir, Device("Adapter", Application("componentType=\"FRMW\" version=\"1\" display=\"Firmware\"")));
    std::vector<QRMIApplication*> applications = ApplicationsOfTheOnlyDevice();
    ASSERT_EQ(1u, applications.size());
    EXPECT_EQ("", U8(applications[0]->GetSubComponentID()));
}

TEST(InventoryReaderApplication, AbsentSubComponentIDKeepsThePreviousApplicationsValueWithinADevice)
{
    TempDir dir;
    ParseChildren(
        dir, Device("Adapter", Application("componentType=\"FRMW\" version=\"1\" display=\"a\" subComponentID=\"S1\"") +
                                   Application("componentType=\"FRMW\" version=\"2\" display=\"b\"") +
                                   Application("componentType=\"FRMW\" version=\"3\" display=\"c\" "
                                               "subComponentID=\"\"") +
                                   Application("componentType=\"FRMW\" version=\"4\" display=\"d\"")));
    std::vector<QRMIApplication*> applications = ApplicationsOfTheOnlyDevice();
    ASSERT_EQ(4u, applications.size());
    EXPECT_EQ("S1", U8(applications[0]->GetSubComponentID()));
    EXPECT_EQ("S1", U8(applications[1]->GetSubComponentID()));
    EXPECT_EQ("", U8(applications[2]->GetSubComponentID()));
    EXPECT_EQ("", U8(applications[3]->GetSubComponentID()));
}

TEST(InventoryReaderApplication, SubComponentIDDoesNotCarryOverToTheNextDevice)
{
    TempDir dir;
    ParseChildren(dir, Device("First", Application("componentType=\"FRMW\" version=\"1\" display=\"a\" "
                                                   "subComponentID=\"S1\"")) +
                           Device("Second", Application("componentType=\"FRMW\" version=\"1\" display=\"a\"")));
    std::vector<QRMIDevice*> devices = Devices();
    ASSERT_EQ(2u, devices.size());
    std::vector<QRMIApplication*> first = ApplicationsOf(*devices[0]);
    std::vector<QRMIApplication*> second = ApplicationsOf(*devices[1]);
    ASSERT_EQ(1u, first.size());
    ASSERT_EQ(1u, second.size());
    EXPECT_EQ("S1", U8(first[0]->GetSubComponentID()));
    EXPECT_EQ("", U8(second[0]->GetSubComponentID()));
}

TEST(InventoryReaderApplication, DisplayValuesAccumulateWithinADeviceAndTheEarlierTextWins)
{
    TempDir dir;
    ParseChildren(dir, Device("Adapter", Application("componentType=\"DRVR\" version=\"1\" display=\"a\"",
                                                     "<Display lang=\"en\">First English</Display>") +
                                             Application("componentType=\"DRVR\" version=\"2\" display=\"b\"",
                                                         "<Display lang=\"en\">Second English</Display>"
                                                         "<Display lang=\"fr\">Fran\xC3\xA7"
                                                         "ais</Display>") +
                                             Application("componentType=\"DRVR\" version=\"3\" display=\"c\"")) +
                           Device("Next", Application("componentType=\"DRVR\" version=\"1\" display=\"a\"")));
    std::vector<QRMIDevice*> devices = Devices();
    ASSERT_EQ(2u, devices.size());
    std::vector<QRMIApplication*> applications = ApplicationsOf(*devices[0]);
    ASSERT_EQ(3u, applications.size());
    EXPECT_EQ((Texts{{"en", "First English"}}), DisplayTexts(*applications[0]));
    EXPECT_EQ((Texts{{"en", "First English"},
                     {"fr", "Fran\xC3\xA7"
                            "ais"}}),
              DisplayTexts(*applications[1]));
    EXPECT_EQ((Texts{{"en", "First English"},
                     {"fr", "Fran\xC3\xA7"
                            "ais"}}),
              DisplayTexts(*applications[2]));

    std::vector<QRMIApplication*> next = ApplicationsOf(*devices[1]);
    ASSERT_EQ(1u, next.size());
    EXPECT_TRUE(DisplayTexts(*next[0]).empty());
}

TEST(InventoryReaderApplication, DisplayValuesOfASkippedApplicationCarryOver)
{
    TempDir dir;
    ParseChildren(dir, Device("Adapter", Application("componentType=\"BIOS\"", "<Display lang=\"de\">Vom \xC3\xBC"
                                                                               "bersprungenen</Display>") +
                                             Application("", "<Display lang=\"ja\">skipped too</Display>") +
                                             Application("componentType=\"BIOS\" version=\"1\" display=\"Stored\"")));
    std::vector<QRMIApplication*> applications = ApplicationsOfTheOnlyDevice();
    ASSERT_EQ(1u, applications.size());
    EXPECT_EQ("Stored", U8(applications[0]->GetDisplay()));
    EXPECT_EQ((Texts{{"de", "Vom \xC3\xBC"
                            "bersprungenen"},
                     {"ja", "skipped too"}}),
              DisplayTexts(*applications[0]));
}

TEST(InventoryReaderApplication, ComponentTypeOfASkippedApplicationCarriesOver)
{
    TempDir dir;
    // The first Application has no display: it is skipped after its type
    // (and version) were set.
    ParseChildren(dir, Device("Adapter", Application("componentType=\"APAC\" version=\"9\"") +
                                             Application("componentType=\"SBDL\" version=\"1\" display=\"Stored\"")));
    std::vector<QRMIApplication*> applications = ApplicationsOfTheOnlyDevice();
    ASSERT_EQ(1u, applications.size());
    EXPECT_EQ(QRM_COMPONENT_APAC, applications[0]->GetComponentType());
    EXPECT_EQ("1", U8(applications[0]->GetVersion()));
}

TEST(InventoryReaderApplication, SBDLAndUnknownTypesKeepThePreviousTypeAcrossDevices)
{
    TempDir dir;
    ParseChildren(dir, Device("First", Application("componentType=\"BIOS\" version=\"1\" display=\"a\"")) +
                           Device("Second", Application("componentType=\"SBDL\" version=\"1\" display=\"b\"")) +
                           Device("Third", Application("componentType=\"bios\" version=\"1\" display=\"c\"") +
                                               Application("componentType=\"\" version=\"2\" display=\"d\"")) +
                           Device("Fourth", Application("componentType=\"DRVR\" version=\"1\" display=\"e\"") +
                                                Application("componentType=\"XYZ\" version=\"2\" display=\"f\"")));
    std::vector<QRMIDevice*> devices = Devices();
    ASSERT_EQ(4u, devices.size());
    std::vector<QRMComponentTypeValueEnum> types;
    for (const QRMIDevice* device : devices) {
        for (const QRMIApplication* application : ApplicationsOf(*device)) {
            types.push_back(application->GetComponentType());
        }
    }
    EXPECT_EQ((std::vector<QRMComponentTypeValueEnum>{QRM_COMPONENT_BIOS, QRM_COMPONENT_BIOS, QRM_COMPONENT_BIOS,
                                                      QRM_COMPONENT_BIOS, QRM_COMPONENT_DRVR, QRM_COMPONENT_DRVR}),
              types);
}

TEST(InventoryReaderApplication, ComponentTypeCarriesOverFromADroppedDevice)
{
    TempDir dir;
    ParseChildren(dir, "<Device bus=\"1\">" + Application("componentType=\"FRMW\" version=\"1\" display=\"a\"") +
                           "</Device>" +
                           Device("Kept", Application("componentType=\"SBDL\" version=\"1\" display=\"b\"")));
    std::vector<QRMIApplication*> applications = ApplicationsOfTheOnlyDevice();
    ASSERT_EQ(1u, applications.size());
    EXPECT_EQ(QRM_COMPONENT_FRMW, applications[0]->GetComponentType());
}

TEST(InventoryReaderApplication, FirstUnknownOrSBDLTypeOfACallIsZero)
{
    TempDir dir;
    ParseChildren(dir, Device("First", Application("componentType=\"Firmware\" version=\"1\" display=\"a\"") +
                                           Application("componentType=\"SBDL\" version=\"2\" display=\"b\"")));
    std::vector<QRMIApplication*> applications = ApplicationsOfTheOnlyDevice();
    ASSERT_EQ(2u, applications.size());
    EXPECT_EQ(QRM_COMPONENT_SBDL, applications[0]->GetComponentType());
    EXPECT_EQ(QRM_COMPONENT_SBDL, applications[1]->GetComponentType());
}

TEST(InventoryReaderApplication, ComponentTypeDoesNotCarryOverFromAnEarlierCall)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS,
              ParseText(dir, "one.xml",
                        Inventory(Device("First", Application("componentType=\"APP\" version=\"1\" display=\"a\"")))));
    ASSERT_EQ(
        QRM_KIT_SUCCESS,
        ParseText(dir, "two.xml",
                  Inventory(Device("Second", Application("componentType=\"SBDL\" version=\"1\" display=\"b\"")))));
    std::vector<QRMIDevice*> devices = Devices();
    ASSERT_EQ(2u, devices.size());
    std::vector<QRMIApplication*> first = ApplicationsOf(*devices[0]);
    std::vector<QRMIApplication*> second = ApplicationsOf(*devices[1]);
    ASSERT_EQ(1u, first.size());
    ASSERT_EQ(1u, second.size());
    EXPECT_EQ(QRM_COMPONENT_APP, first[0]->GetComponentType());
    EXPECT_EQ(QRM_COMPONENT_SBDL, second[0]->GetComponentType());
}

TEST(InventoryReaderApplication, IdenticalApplicationsInOneDeviceAreStoredOnce)
{
    TempDir dir;
    std::string application =
        Application("componentType=\"DRVR\" version=\"1.0\" display=\"Driver\"", "<Display lang=\"en\">D</Display>");
    ParseChildren(dir, Device("Adapter", application + application +
                                             Application("componentType=\"DRVR\" version=\"1.1\" display=\"Driver\"")));
    std::vector<QRMIApplication*> applications = ApplicationsOfTheOnlyDevice();
    ASSERT_EQ(2u, applications.size());
    EXPECT_EQ("1.0", U8(applications[0]->GetVersion()));
    EXPECT_EQ("1.1", U8(applications[1]->GetVersion()));
}

TEST(InventoryReaderApplication, ApplicationsBelongToTheirOwnDevice)
{
    TempDir dir;
    ParseChildren(dir, Device("First", Application("componentType=\"DRVR\" version=\"1\" display=\"One\"")) +
                           Device("Second", Application("componentType=\"DRVR\" version=\"2\" display=\"Two\"") +
                                                Application("componentType=\"DRVR\" version=\"3\" display=\"Three\"")));
    std::vector<QRMIDevice*> devices = Devices();
    ASSERT_EQ(2u, devices.size());
    EXPECT_EQ(std::vector<std::string>{"One"}, ApplicationDisplays(ApplicationsOf(*devices[0])));
    EXPECT_EQ((std::vector<std::string>{"Two", "Three"}), ApplicationDisplays(ApplicationsOf(*devices[1])));
}

// ---------------------------------------------------------------------------
// Encoding

TEST(InventoryReaderEncoding, UTF16LittleEndianInventoryReadsLikeItsUTF8Twin)
{
    // The same document after each twin's own, true, declaration.
    const std::string document =
        "<Inventory lang=\"zh-Hans\" schemaVersion=\"1.0\" timeStamp=\"42\">"
        "<OperatingSystem osArch=\"x64\" osCode=\"WIN\" osVendor=\"Maker\" majorVersion=\"10\">"
        "<Display lang=\"ja\">\xE3\x83\x87\xE3\x82\xB9\xE3\x82\xAF</Display></OperatingSystem>"
        "<System systemID=\"0A6B\" display=\"Caf\xC3\xA9 server\"/>"
        "<Device display=\"Carte r\xC3\xA9seau\" bus=\"10\" vendorID=\"8086\">"
        "<Display lang=\"fr\">Carte r\xC3\xA9seau</Display></Device>"
        "<Device display=\"Disk\" bus=\"2\">" +
        Application("componentType=\"FRMW\" version=\"1. 2\" display=\"Firmware \xE2\x82\xAC\" subComponentID=\"S\"",
                    "<Display lang=\"de\">Gr\xC3\xB6\xC3\x9F"
                    "e</Display>") +
        "</Device></Inventory>";
    TempDir dir;

    // The UTF-8 twin first.
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "utf8.xml", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + document));
    std::vector<QRMISystem> systems;
    API()->GetInventorySystems(systems);
    ASSERT_EQ(1u, systems.size());
    EXPECT_EQ("Caf\xC3\xA9 server", U8(systems[0].GetDisplay()));
    std::vector<QRMOperatingSystem> oses;
    API()->GetInventoryOperatingSystems(oses);
    ASSERT_EQ(1u, oses.size());
    EXPECT_EQ((Texts{{"ja", "\xE3\x83\x87\xE3\x82\xB9\xE3\x82\xAF"}}), DisplayTexts(oses[0]));
    std::vector<QRMIDevice*> devices = Devices();
    ASSERT_EQ(2u, devices.size());
    EXPECT_EQ("Carte r\xC3\xA9seau", U8(devices[0]->GetDisplay()));
    EXPECT_EQ(32902, devices[0]->GetVendorID());
    EXPECT_EQ((Texts{{"fr", "Carte r\xC3\xA9seau"}}), DisplayTexts(*devices[0]));
    std::vector<QRMIApplication*> applications = ApplicationsOf(*devices[1]);
    ASSERT_EQ(1u, applications.size());
    EXPECT_EQ("Firmware \xE2\x82\xAC", U8(applications[0]->GetDisplay()));
    EXPECT_EQ("1.2", U8(applications[0]->GetVersion()));
    EXPECT_EQ((Texts{{"de", "Gr\xC3\xB6\xC3\x9F"
                            "e"}}),
              DisplayTexts(*applications[0]));

    // Other root values, so that the UTF-16 read is seen to set them again.
    ASSERT_EQ(QRM_KIT_SUCCESS,
              ParseText(dir, "other-root.xml", Inventory("", "lang=\"fr\" schemaVersion=\"0\" timeStamp=\"0\"")));
    ASSERT_EQ(QRM_LANG_FR, API()->GetInventoryLanguage());

    ASSERT_EQ(QRM_KIT_SUCCESS,
              ParseText(dir, "utf16.xml", ToUTF16LE("<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n" + document)));
    EXPECT_EQ(QRM_LANG_ZH_HANS, API()->GetInventoryLanguage());
    EXPECT_EQ("1.0", U8(API()->GetInventorySchemaVersion()));
    EXPECT_EQ(42ull, API()->GetInventoryTimeStamp().GetValue());
    // What equals the twin's entries is refused as already present: the
    // operating system, the system and the device without applications. The
    // device with an application is stored again, equal field by field.
    oses.clear();
    API()->GetInventoryOperatingSystems(oses);
    EXPECT_EQ(1u, oses.size());
    systems.clear();
    API()->GetInventorySystems(systems);
    EXPECT_EQ(1u, systems.size());
    EXPECT_EQ(2667u, API()->GetSystemIDFromInventory());
    devices = Devices();
    ASSERT_EQ(3u, devices.size());
    EXPECT_EQ("Disk", U8(devices[2]->GetDisplay()));
    EXPECT_EQ(2, devices[2]->GetBus());
    EXPECT_EQ(DisplayTexts(*devices[1]), DisplayTexts(*devices[2]));
    std::vector<QRMIApplication*> again = ApplicationsOf(*devices[2]);
    ASSERT_EQ(1u, again.size());
    EXPECT_TRUE(*applications[0] == *again[0]);
    EXPECT_EQ("Firmware \xE2\x82\xAC", U8(again[0]->GetDisplay()));
    EXPECT_EQ("1.2", U8(again[0]->GetVersion()));
    EXPECT_EQ("S", U8(again[0]->GetSubComponentID()));
    EXPECT_EQ(QRM_COMPONENT_FRMW, again[0]->GetComponentType());
    EXPECT_EQ(DisplayTexts(*applications[0]), DisplayTexts(*again[0]));
}
