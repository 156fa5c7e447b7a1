// Reading "SoftwareComponent" entries of a catalog into the catalog store:
// names, types, categories, devices, systems, operating systems,
// criticality and the component's own attributes; which faults drop one
// component and which abort the whole catalog; and the same catalog read
// from UTF-8 and from UTF-16.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

QRMKitAPI* API() { return QRMKitAPI::Instance(); }

std::string S(const VELString& text) { return text.GetUTF8String(); }

std::vector<std::string> TextsOf(const std::vector<QRMDisplay>& displays)
{
    std::vector<std::string> texts;
    for (const QRMDisplay& display : displays) {
        texts.push_back(S(display.GetLanguage()) + "|" + S(display.GetValue()));
    }
    return texts;
}

// The texts of a display-carrying object as "language|value", in order.
template <class Holder>
std::vector<std::string> Texts(const Holder& holder)
{
    std::vector<QRMDisplay> displays;
    holder.GetDisplayValues(displays);
    return TextsOf(displays);
}

template <class Entry>
std::vector<std::string> DescriptionTexts(const Entry& entry)
{
    std::vector<QRMDisplay> displays;
    entry.GetDescriptionDisplayValues(displays);
    return TextsOf(displays);
}

QRMKitReturnCode ParseEntries(const TempDir& dir, const std::string& entries)
{
    std::string xml = CatalogXML::Document("baseLocation=\"downloads/catalog\"", entries);
    return API()->Parse(VELFile(dir.Write("catalog.xml", xml)));
}

std::vector<std::string> PackageIDs()
{
    std::vector<std::string> ids;
    for (const QRMSoftwareComponent* component : StoredComponents()) {
        ids.push_back(S(component->GetPackageID()));
    }
    return ids;
}

const std::string kName = "<Name><Display lang=\"en\">Storage Driver</Display></Name>";
const std::string kType = "<ComponentType value=\"DRVR\"/>";
const std::string kCategory = "<Category value=\"SF\"><Display lang=\"en\">Storage</Display></Category>";
const std::string kDevices = "<SupportedDevices/>";

std::string ComponentXML(const std::string& attributes, const std::string& children)
{
    return "<SoftwareComponent" + (attributes.empty() ? std::string() : " " + attributes) + ">" + children +
           "</SoftwareComponent>";
}

// A component with the four required children, `extra` after them.
std::string ComponentWith(const std::string& extra, const std::string& attributes = "")
{
    return ComponentXML(attributes, kName + kType + kCategory + kDevices + extra);
}

// A component whose devices are `devices` (the children of SupportedDevices).
std::string ComponentWithDevices(const std::string& devices)
{
    return ComponentXML("", kName + kType + kCategory + "<SupportedDevices>" + devices + "</SupportedDevices>");
}

// A component whose category element is `category`.
std::string ComponentWithCategory(const std::string& category, const std::string& packageID)
{
    return ComponentXML("packageID=\"" + packageID + "\"", kName + kType + category + kDevices);
}

// Parses a catalog holding only `componentXML`, which must be read whole.
bool ParseSingleComponent(const TempDir& dir, const std::string& componentXML, QRMSoftwareComponent& out)
{
    QRMKitReturnCode result = ParseEntries(dir, componentXML);
    if (result != QRM_KIT_SUCCESS) {
        ADD_FAILURE() << "Parse returned " << result;
        return false;
    }
    std::vector<QRMSoftwareComponent*> components = StoredComponents();
    if (components.size() != 1) {
        ADD_FAILURE() << "expected one component, found " << components.size();
        return false;
    }
    out = *components[0];
    return true;
}

std::vector<QRMDevice*> DevicesOf(const QRMSoftwareComponent& component)
{
    std::vector<QRMDevice*> devices;
    component.GetSupportedDevices(devices);
    return devices;
}

std::vector<QRMPCIInfo*> PCIOf(const QRMDevice& device)
{
    std::vector<QRMPCIInfo*> records;
    device.GetPCIInfo(records);
    return records;
}

std::vector<QRMBrand*> BrandsOf(const QRMSupportedSystems& systems)
{
    std::vector<QRMBrand*> brands;
    systems.GetBrands(brands);
    return brands;
}

std::vector<QRMModel*> ModelsOf(const QRMBrand& brand)
{
    std::vector<QRMModel*> models;
    brand.GetModels(models);
    return models;
}

std::vector<QRMOperatingSystem> OSesOf(const QRMSupportedOperatingSystems& oses)
{
    std::vector<QRMOperatingSystem> list;
    oses.GetOSes(list);
    return list;
}

void ExpectAbortAfterFirstComponent(const std::string& leaveOut, const std::string& twice)
{
    TempDir dir;
    std::string entries =
        CatalogXML::Component("C1") + CatalogXML::Component("C2", leaveOut, twice) + CatalogXML::Component("C3");
    EXPECT_EQ(QRM_KIT_ELEMENT_MISSING, ParseEntries(dir, entries));
    EXPECT_EQ(std::vector<std::string>{"C1"}, PackageIDs());
    EXPECT_FALSE(API()->IsCatalogParsed());
}

void ExpectMiddleComponentSkipped(const std::string& middle)
{
    TempDir dir;
    std::string entries = CatalogXML::Component("C1") + middle + CatalogXML::Component("C3");
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, entries));
    EXPECT_EQ((std::vector<std::string>{"C1", "C3"}), PackageIDs());
    EXPECT_TRUE(API()->IsCatalogParsed());
}

}  // namespace

// --- Required children and faults -------------------------------------------

TEST(SoftwareComponentReader, ComponentWithOnlyRequiredChildrenIsAdded)
{
    TempDir dir;
    QRMSoftwareComponent component;
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentXML("", kName + kType + kCategory + kDevices), component));
    EXPECT_TRUE(API()->IsCatalogParsed());
    EXPECT_EQ(std::vector<std::string>{"en|Storage Driver"}, Texts(component.GetName()));
    EXPECT_EQ(QRM_COMPONENT_DRVR, component.GetComponentType().GetValue());
    EXPECT_TRUE(Texts(component.GetComponentType()).empty());
    EXPECT_TRUE(DescriptionTexts(component).empty());
    EXPECT_EQ("SF", S(component.GetCategory().GetCode()));
    EXPECT_EQ("", S(component.GetLUCategory().GetCode()));
    EXPECT_TRUE(Texts(component.GetLUCategory()).empty());
    EXPECT_TRUE(BrandsOf(component.GetSupportedSystems()).empty());
    EXPECT_FALSE(component.GetSupportedSystems().GetDisplay());
    EXPECT_TRUE(OSesOf(component.GetSupportedOperatingSystems()).empty());
    EXPECT_EQ("", S(component.GetImportantInfo().GetURL()));
}

TEST(SoftwareComponentReader, EmptySupportedDevicesIsAcceptedWithNoDevices)
{
    TempDir dir;
    QRMSoftwareComponent component;
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith(""), component));
    EXPECT_TRUE(DevicesOf(component).empty());
}

TEST(SoftwareComponentReaderFaults, MissingSupportedDevicesAbortsTheCatalog)
{
    ExpectAbortAfterFirstComponent("SupportedDevices", "");
}

TEST(SoftwareComponentReaderFaults, TwoSupportedDevicesAbortTheCatalog)
{
    ExpectAbortAfterFirstComponent("", "SupportedDevices");
}

TEST(SoftwareComponentReaderFaults, MissingCategoryAbortsTheCatalog) { ExpectAbortAfterFirstComponent("Category", ""); }

TEST(SoftwareComponentReaderFaults, TwoCategoriesAbortTheCatalog) { ExpectAbortAfterFirstComponent("", "Category"); }

TEST(SoftwareComponentReaderFaults, MissingNameAbortsTheCatalog) { ExpectAbortAfterFirstComponent("Name", ""); }

TEST(SoftwareComponentReaderFaults, TwoNamesAbortTheCatalog) { ExpectAbortAfterFirstComponent("", "Name"); }

TEST(SoftwareComponentReaderFaults, MissingComponentTypeAbortsTheCatalog)
{
    ExpectAbortAfterFirstComponent("ComponentType", "");
}

TEST(SoftwareComponentReaderFaults, TwoComponentTypesAbortTheCatalog)
{
    ExpectAbortAfterFirstComponent("", "ComponentType");
}

TEST(SoftwareComponentReaderFaults, AbortKeepsEarlierBundlesAndLeavesLaterOnesUnread)
{
    TempDir dir;
    std::string entries = CatalogXML::Bundle("B1") + CatalogXML::Component("C2", "Category") + CatalogXML::Bundle("B3");
    EXPECT_EQ(QRM_KIT_ELEMENT_MISSING, ParseEntries(dir, entries));
    std::vector<QRMSoftwareBundle*> bundles;
    API()->GetSoftwareBundles(bundles);
    ASSERT_EQ(1u, bundles.size());
    EXPECT_EQ("B1", S(bundles[0]->GetBundleID()));
    EXPECT_TRUE(StoredComponents().empty());
}

TEST(SoftwareComponentReaderFaults, NameWithoutDisplaySkipsOnlyThatComponent)
{
    ExpectMiddleComponentSkipped(ComponentXML("packageID=\"C2\"", "<Name/>" + kType + kCategory + kDevices));
}

TEST(SoftwareComponentReaderFaults, NameWithoutDisplayIsCheckedBeforeTheMissingCategory)
{
    ExpectMiddleComponentSkipped(ComponentXML("packageID=\"C2\"", "<Name/>" + kType + kDevices));
}

TEST(SoftwareComponentReaderFaults, DescriptionWithoutDisplaySkipsOnlyThatComponent)
{
    ExpectMiddleComponentSkipped(ComponentWith("<Description/>", "packageID=\"C2\""));
}

TEST(SoftwareComponentReaderFaults, DescriptionWithTwoDisplaysSkipsOnlyThatComponent)
{
    ExpectMiddleComponentSkipped(
        ComponentWith("<Description><Display lang=\"en\">A</Display><Display lang=\"de\">B</Display></Description>",
                      "packageID=\"C2\""));
}

TEST(SoftwareComponentReader, DescriptionDisplayGoesToTheDescriptionTexts)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string description = "<Description><Display lang=\"en\">Fixes a hang</Display></Description>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith(description), component));
    EXPECT_EQ(std::vector<std::string>{"en|Fixes a hang"}, DescriptionTexts(component));
}

TEST(SoftwareComponentReader, ComponentListedTwiceYieldsTwoEntries)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, CatalogXML::Component("C1") + CatalogXML::Component("C1")));
    std::vector<QRMSoftwareComponent*> components = StoredComponents();
    ASSERT_EQ(2u, components.size());
    EXPECT_NE(components[0], components[1]);
    EXPECT_TRUE(*components[0] == *components[1]);
    EXPECT_EQ("C1", S(components[1]->GetPackageID()));
}

// --- Devices ------------------------------------------------------------------

TEST(SoftwareComponentReader, DeviceWithTwoPCIInfoGetsBothReadAsHexadecimal)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string devices = "<Device componentID=\"159\" embedded=\"1\">"
                          "<PCIInfo deviceID=\"0A6B\" vendorID=\"8086\" subDeviceID=\"04A3\" subVendorID=\"1028\"/>"
                          "<PCIInfo deviceID=\"10\" vendorID=\"ff\" subDeviceID=\"0\" subVendorID=\"FFFF\"/></Device>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWithDevices(devices), component));
    std::vector<QRMDevice*> list = DevicesOf(component);
    ASSERT_EQ(1u, list.size());
    std::vector<QRMPCIInfo*> pci = PCIOf(*list[0]);
    ASSERT_EQ(2u, pci.size());
    EXPECT_EQ(0x0A6Bu, pci[0]->GetDeviceID());
    EXPECT_EQ(32902u, pci[0]->GetVendorID());
    EXPECT_EQ(1187u, pci[0]->GetSubDeviceID());
    EXPECT_EQ(0x1028u, pci[0]->GetSubVendorID());
    EXPECT_EQ(0x10u, pci[1]->GetDeviceID());
    EXPECT_EQ(0xFFu, pci[1]->GetVendorID());
    EXPECT_EQ(0u, pci[1]->GetSubDeviceID());
    EXPECT_EQ(0xFFFFu, pci[1]->GetSubVendorID());
}

TEST(SoftwareComponentReader, DuplicatePCIInfoInADeviceIsHeldOnceAndTheComponentIsAdded)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string pci = "<PCIInfo deviceID=\"0A6B\" vendorID=\"8086\" subDeviceID=\"04A3\" subVendorID=\"1028\"/>";
    std::string devices = "<Device componentID=\"159\">" + pci + pci + "</Device>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWithDevices(devices), component));
    std::vector<QRMDevice*> list = DevicesOf(component);
    ASSERT_EQ(1u, list.size());
    std::vector<QRMPCIInfo*> records = PCIOf(*list[0]);
    ASSERT_EQ(1u, records.size());
    EXPECT_EQ(32902u, records[0]->GetVendorID());
}

TEST(SoftwareComponentReader, PCIInfoWithoutAttributesReadsAsZeros)
{
    TempDir dir;
    QRMSoftwareComponent component;
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWithDevices("<Device><PCIInfo/></Device>"), component));
    std::vector<QRMDevice*> list = DevicesOf(component);
    ASSERT_EQ(1u, list.size());
    std::vector<QRMPCIInfo*> records = PCIOf(*list[0]);
    ASSERT_EQ(1u, records.size());
    EXPECT_EQ(0u, records[0]->GetDeviceID());
    EXPECT_EQ(0u, records[0]->GetVendorID());
    EXPECT_EQ(0u, records[0]->GetSubDeviceID());
    EXPECT_EQ(0u, records[0]->GetSubVendorID());
}

TEST(SoftwareComponentReader, EmbeddedIsTrueOnlyForANonZeroNumber)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string devices = "<Device componentID=\"1\" embedded=\"1\"/>"
                          "<Device componentID=\"2\" embedded=\"0\"/>"
                          "<Device componentID=\"3\" embedded=\"\"/>"
                          "<Device componentID=\"4\"/>"
                          "<Device componentID=\"5\" embedded=\"7\"/>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWithDevices(devices), component));
    std::vector<QRMDevice*> list = DevicesOf(component);
    ASSERT_EQ(5u, list.size());
    const bool expected[] = {true, false, false, false, true};
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(i + 1, list[i]->GetComponentID());
        EXPECT_EQ(expected[i], list[i]->IsEmbedded()) << "device " << i + 1;
    }
}

TEST(SoftwareComponentReader, ComponentIDIsReadAsDecimal)
{
    TempDir dir;
    QRMSoftwareComponent component;
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWithDevices("<Device componentID=\"0159\"/>"), component));
    std::vector<QRMDevice*> list = DevicesOf(component);
    ASSERT_EQ(1u, list.size());
    EXPECT_EQ(159u, list[0]->GetComponentID());
}

TEST(SoftwareComponentReader, DeviceWithoutComponentIDHasZero)
{
    TempDir dir;
    QRMSoftwareComponent component;
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWithDevices("<Device embedded=\"1\"/>"), component));
    std::vector<QRMDevice*> list = DevicesOf(component);
    ASSERT_EQ(1u, list.size());
    EXPECT_EQ(0u, list[0]->GetComponentID());
    EXPECT_TRUE(PCIOf(*list[0]).empty());
    EXPECT_TRUE(Texts(*list[0]).empty());
}

TEST(SoftwareComponentReader, DeviceDisplayIsRead)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string devices = "<Device componentID=\"7\"><Display lang=\"en\">RAID Controller</Display></Device>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWithDevices(devices), component));
    std::vector<QRMDevice*> list = DevicesOf(component);
    ASSERT_EQ(1u, list.size());
    EXPECT_EQ(std::vector<std::string>{"en|RAID Controller"}, Texts(*list[0]));
}

TEST(SoftwareComponentReader, EveryChildOfSupportedDevicesIsADeviceInOrder)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string devices = "\n<Device componentID=\"30\"/>\n<Thing componentID=\"10\"/>\n"
                          "<x componentID=\"20\"><PCIInfo vendorID=\"1\"/></x>\n";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWithDevices(devices), component));
    std::vector<QRMDevice*> list = DevicesOf(component);
    ASSERT_EQ(3u, list.size());
    EXPECT_EQ(30u, list[0]->GetComponentID());
    EXPECT_EQ(10u, list[1]->GetComponentID());
    EXPECT_EQ(20u, list[2]->GetComponentID());
    EXPECT_EQ(1u, PCIOf(*list[2]).size());
}

TEST(SoftwareComponentReader, PCIInfoNestedDeeperInADeviceIsNotRead)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string devices = "<Device componentID=\"1\"><Group><PCIInfo vendorID=\"8086\"/></Group></Device>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWithDevices(devices), component));
    std::vector<QRMDevice*> list = DevicesOf(component);
    ASSERT_EQ(1u, list.size());
    EXPECT_TRUE(PCIOf(*list[0]).empty());
}

// --- Criticality --------------------------------------------------------------

TEST(SoftwareComponentReader, WithoutCriticalityTheCriticalityIsUnspecified)
{
    TempDir dir;
    QRMSoftwareComponent component;
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith(""), component));
    EXPECT_EQ(QRM_CRITICALITY_UNSPECIFIED, component.GetCriticality().GetValue());
    EXPECT_EQ(3, static_cast<int>(component.GetCriticality().GetValue()));
    EXPECT_TRUE(Texts(component.GetCriticality()).empty());
}

TEST(SoftwareComponentReader, CriticalityValuesOneToThreeMapToLevels)
{
    TempDir dir;
    std::string entries;
    const char* texts[] = {"1", "2", "3"};
    for (const char* text : texts) {
        entries += ComponentWith(std::string("<Criticality value=\"") + text + "\"/>",
                                 std::string("packageID=\"P") + text + "\"");
    }
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, entries));
    std::vector<QRMSoftwareComponent*> components = StoredComponents();
    ASSERT_EQ(3u, components.size());
    EXPECT_EQ(QRM_CRITICALITY_LEVEL1, components[0]->GetCriticality().GetValue());
    EXPECT_EQ(QRM_CRITICALITY_LEVEL2, components[1]->GetCriticality().GetValue());
    EXPECT_EQ(QRM_CRITICALITY_LEVEL3, components[2]->GetCriticality().GetValue());
}

TEST(SoftwareComponentReader, OtherCriticalityValuesAreUnspecified)
{
    TempDir dir;
    std::string entries;
    const char* texts[] = {"0", "4", "01", "", " 1"};
    for (const char* text : texts) {
        entries += ComponentWith(std::string("<Criticality value=\"") + text + "\"/>");
    }
    entries += ComponentWith("<Criticality/>");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, entries));
    std::vector<QRMSoftwareComponent*> components = StoredComponents();
    ASSERT_EQ(6u, components.size());
    for (std::size_t i = 0; i < components.size(); ++i) {
        EXPECT_EQ(QRM_CRITICALITY_UNSPECIFIED, components[i]->GetCriticality().GetValue()) << "entry " << i;
    }
}

TEST(SoftwareComponentReader, CriticalityDisplayIsRead)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string criticality = "<Criticality value=\"2\"><Display lang=\"en\">Recommended</Display></Criticality>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith(criticality), component));
    EXPECT_EQ(QRM_CRITICALITY_LEVEL2, component.GetCriticality().GetValue());
    EXPECT_EQ(std::vector<std::string>{"en|Recommended"}, Texts(component.GetCriticality()));
}

TEST(SoftwareComponentReader, TwoCriticalityElementsCountAsNone)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string criticality = "<Criticality value=\"1\"/>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith(criticality + criticality), component));
    EXPECT_EQ(QRM_CRITICALITY_UNSPECIFIED, component.GetCriticality().GetValue());
}

// --- Component type -------------------------------------------------------------

TEST(SoftwareComponentReader, ComponentTypeTextsMapToTheirCodes)
{
    TempDir dir;
    const char* texts[] = {"SBDL", "FRMW", "BIOS", "APAC", "APP", "DRVR"};
    std::string entries;
    for (const char* text : texts) {
        entries += ComponentXML(std::string("packageID=\"") + text + "\"",
                                kName + "<ComponentType value=\"" + text + "\"/>" + kCategory + kDevices);
    }
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, entries));
    std::vector<QRMSoftwareComponent*> components = StoredComponents();
    ASSERT_EQ(6u, components.size());
    const QRMComponentTypeValueEnum expected[] = {QRM_COMPONENT_SBDL, QRM_COMPONENT_FRMW, QRM_COMPONENT_BIOS,
                                                  QRM_COMPONENT_APAC, QRM_COMPONENT_APP,  QRM_COMPONENT_DRVR};
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(texts[i], S(components[i]->GetPackageID()));
        EXPECT_EQ(expected[i], components[i]->GetComponentType().GetValue()) << texts[i];
    }
}

TEST(SoftwareComponentReader, LowerCaseOrUnknownComponentTypeGivesZero)
{
    TempDir dir;
    const char* texts[] = {"bios", "drvr", "Unknown", ""};
    std::string entries;
    for (const char* text : texts) {
        entries += ComponentXML("", kName + "<ComponentType value=\"" + text + "\"/>" + kCategory + kDevices);
    }
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, entries));
    std::vector<QRMSoftwareComponent*> components = StoredComponents();
    ASSERT_EQ(4u, components.size());
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(0, static_cast<int>(components[i]->GetComponentType().GetValue())) << texts[i];
    }
}

TEST(SoftwareComponentReader, ComponentTypeDisplayWithoutLangTakesTheNameLanguage)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string children = "<Name><Display lang=\"ja\">Treiber</Display></Name>"
                           "<ComponentType value=\"BIOS\"><Display>Basis</Display></ComponentType>" +
                           kCategory + kDevices;
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentXML("", children), component));
    EXPECT_EQ(QRM_COMPONENT_BIOS, component.GetComponentType().GetValue());
    EXPECT_EQ(std::vector<std::string>{"ja|Basis"}, Texts(component.GetComponentType()));
}

// --- Category and LU category ---------------------------------------------------

TEST(SoftwareComponentReader, CategoryCodeAndTextFromCDATA)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string category =
        "<Category value=\"BI\"><Display lang=\"en\"><![CDATA[BIOS & Firmware]]></Display></Category>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWithCategory(category, "P"), component));
    EXPECT_EQ("BI", S(component.GetCategory().GetCode()));
    EXPECT_EQ(std::vector<std::string>{"en|BIOS & Firmware"}, Texts(component.GetCategory()));
}

TEST(SoftwareComponentReader, CategoryTextFromATextNode)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string category = "<Category value=\"NI\"><Display lang=\"de\">Netzwerk</Display></Category>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWithCategory(category, "P"), component));
    EXPECT_EQ("NI", S(component.GetCategory().GetCode()));
    EXPECT_EQ(std::vector<std::string>{"de|Netzwerk"}, Texts(component.GetCategory()));
}

TEST(SoftwareComponentReader, CategoryTextFromAnElementChildIsItsName)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string category = "<Category value=\"SM\"><Display lang=\"en\"><b>Systems</b> Management</Display></Category>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWithCategory(category, "P"), component));
    EXPECT_EQ("SM", S(component.GetCategory().GetCode()));
    EXPECT_EQ(std::vector<std::string>{"en|b"}, Texts(component.GetCategory()));
}

TEST(SoftwareComponentReader, CategoryWithEmptyDisplayHasAnEmptyText)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string category = "<Category value=\"AP\"><Display lang=\"en\"/></Category>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWithCategory(category, "P"), component));
    EXPECT_EQ("AP", S(component.GetCategory().GetCode()));
    EXPECT_EQ(std::vector<std::string>{"en|"}, Texts(component.GetCategory()));
}

TEST(SoftwareComponentReader, CategoryWithoutDisplayHasNoTexts)
{
    TempDir dir;
    std::string entries = ComponentWithCategory("<Category value=\"XX\"/>", "C1") + CatalogXML::Component("C2");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, entries));
    std::vector<QRMSoftwareComponent*> components = StoredComponents();
    ASSERT_EQ(2u, components.size());
    EXPECT_EQ("XX", S(components[0]->GetCategory().GetCode()));
    EXPECT_TRUE(Texts(components[0]->GetCategory()).empty());
    EXPECT_EQ("C2", S(components[1]->GetPackageID()));
}

TEST(SoftwareComponentReader, CategoryWithoutValueHasAnEmptyCode)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string category = "<Category><Display lang=\"en\">Other</Display></Category>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWithCategory(category, "P"), component));
    EXPECT_EQ("", S(component.GetCategory().GetCode()));
    EXPECT_EQ(std::vector<std::string>{"en|Other"}, Texts(component.GetCategory()));
}

TEST(SoftwareComponentReader, LUCategoryCodeAndDisplayAreRead)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string lu = "<LUCategory value=\"LU7\"><Display lang=\"en\">Chipset</Display></LUCategory>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith(lu), component));
    EXPECT_EQ("LU7", S(component.GetLUCategory().GetCode()));
    EXPECT_EQ(std::vector<std::string>{"en|Chipset"}, Texts(component.GetLUCategory()));
}

TEST(SoftwareComponentReader, LUCategoryWithoutDisplayHasOnlyItsCode)
{
    TempDir dir;
    QRMSoftwareComponent component;
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith("<LUCategory value=\"LU1\"/>"), component));
    EXPECT_EQ("LU1", S(component.GetLUCategory().GetCode()));
    EXPECT_TRUE(Texts(component.GetLUCategory()).empty());
}

// --- Supported systems --------------------------------------------------------------

TEST(SoftwareComponentReader, SupportedSystemsDisplayBrandAndModelAreRead)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string systems =
        "<SupportedSystems display=\"1\"><Brand key=\"0012\" prefix=\"PE\">"
        "<Display lang=\"en\">Servers</Display>"
        "<Model systemID=\"04A3\"><Display lang=\"en\">Model 740</Display></Model></Brand></SupportedSystems>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith(systems), component));
    QRMSupportedSystems supported = component.GetSupportedSystems();
    EXPECT_TRUE(supported.GetDisplay());
    std::vector<QRMBrand*> brands = BrandsOf(supported);
    ASSERT_EQ(1u, brands.size());
    EXPECT_EQ(12u, brands[0]->GetKey());
    EXPECT_EQ("PE", S(brands[0]->GetPrefix()));
    EXPECT_EQ(std::vector<std::string>{"en|Servers"}, Texts(*brands[0]));
    std::vector<QRMModel*> models = ModelsOf(*brands[0]);
    ASSERT_EQ(1u, models.size());
    EXPECT_EQ(1187u, models[0]->GetSystemID());
    EXPECT_EQ(std::vector<std::string>{"en|Model 740"}, Texts(*models[0]));
}

TEST(SoftwareComponentReader, SupportedSystemsDisplayFlagIsFalseForZeroEmptyOrMissing)
{
    TempDir dir;
    std::string entries = ComponentWith("<SupportedSystems display=\"0\"/>") +
                          ComponentWith("<SupportedSystems display=\"\"/>") + ComponentWith("<SupportedSystems/>") +
                          ComponentWith("<SupportedSystems display=\"2\"/>");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, entries));
    std::vector<QRMSoftwareComponent*> components = StoredComponents();
    ASSERT_EQ(4u, components.size());
    EXPECT_FALSE(components[0]->GetSupportedSystems().GetDisplay());
    EXPECT_FALSE(components[1]->GetSupportedSystems().GetDisplay());
    EXPECT_FALSE(components[2]->GetSupportedSystems().GetDisplay());
    EXPECT_TRUE(components[3]->GetSupportedSystems().GetDisplay());
    EXPECT_TRUE(BrandsOf(components[2]->GetSupportedSystems()).empty());
}

TEST(SoftwareComponentReader, TwoBrandsInSupportedSystemsLeaveNoBrand)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string systems = "<SupportedSystems display=\"1\"><Brand key=\"1\"/><Brand key=\"2\"/></SupportedSystems>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith(systems), component));
    EXPECT_TRUE(component.GetSupportedSystems().GetDisplay());
    EXPECT_TRUE(BrandsOf(component.GetSupportedSystems()).empty());
}

// --- Supported operating systems ------------------------------------------------------

TEST(SoftwareComponentReader, EveryChildOfSupportedOperatingSystemsIsOneOperatingSystem)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string oses =
        "<SupportedOperatingSystems>"
        "<OperatingSystem osArch=\"x64\" osCode=\"W12\" osVendor=\"ExampleSoft\" majorVersion=\"10\" "
        "minorVersion=\"0\" spMajorVersion=\"1\" spMinorVersion=\"2\"><Display lang=\"en\">Server OS</Display>"
        "</OperatingSystem>"
        "<Linux osArch=\"ia64\" osCode=\"LX\" osVendor=\"Other\" majorVersion=\"7\" minorVersion=\"9\"/>"
        "</SupportedOperatingSystems>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith(oses), component));
    std::vector<QRMOperatingSystem> list = OSesOf(component.GetSupportedOperatingSystems());
    ASSERT_EQ(2u, list.size());
    EXPECT_EQ(QRM_OS_ARCH_X64, list[0].GetArchitecture());
    EXPECT_EQ("W12", S(list[0].GetCode()));
    EXPECT_EQ("ExampleSoft", S(list[0].GetVendor()));
    EXPECT_EQ("10", S(list[0].GetMajorVersion()));
    EXPECT_EQ("0", S(list[0].GetMinorVersion()));
    EXPECT_EQ("1", S(list[0].GetServicePackMajorVersion()));
    EXPECT_EQ("2", S(list[0].GetServicePackMinorVersion()));
    EXPECT_EQ(std::vector<std::string>{"en|Server OS"}, Texts(list[0]));
    EXPECT_EQ(QRM_OS_ARCH_IA64, list[1].GetArchitecture());
    EXPECT_EQ("LX", S(list[1].GetCode()));
    EXPECT_EQ("Other", S(list[1].GetVendor()));
    EXPECT_EQ("7", S(list[1].GetMajorVersion()));
    EXPECT_EQ("9", S(list[1].GetMinorVersion()));
    EXPECT_EQ("", S(list[1].GetServicePackMajorVersion()));
    EXPECT_EQ("", S(list[1].GetServicePackMinorVersion()));
    EXPECT_TRUE(Texts(list[1]).empty());
}

TEST(SoftwareComponentReader, OSArchTextsMapToTheirCodes)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string oses = "<SupportedOperatingSystems><OS osArch=\"ia32\" osCode=\"A\"/><OS osArch=\"x86\" osCode=\"B\"/>"
                       "<OS osArch=\"x64\" osCode=\"C\"/><OS osArch=\"ia64\" osCode=\"D\"/>"
                       "</SupportedOperatingSystems>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith(oses), component));
    std::vector<QRMOperatingSystem> list = OSesOf(component.GetSupportedOperatingSystems());
    ASSERT_EQ(4u, list.size());
    EXPECT_EQ(QRM_OS_ARCH_IA32, list[0].GetArchitecture());
    EXPECT_EQ(QRM_OS_ARCH_X86, list[1].GetArchitecture());
    EXPECT_EQ(QRM_OS_ARCH_X64, list[2].GetArchitecture());
    EXPECT_EQ(QRM_OS_ARCH_IA64, list[3].GetArchitecture());
}

TEST(SoftwareComponentReader, UnknownOSArchKeepsThePreviousArchitecture)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string oses = "<SupportedOperatingSystems><OS osArch=\"x64\" osCode=\"A\"/><OS osArch=\"bogus\" osCode=\"B\"/>"
                       "<OS osCode=\"C\"/><OS osArch=\"X86\" osCode=\"D\"/></SupportedOperatingSystems>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith(oses), component));
    std::vector<QRMOperatingSystem> list = OSesOf(component.GetSupportedOperatingSystems());
    ASSERT_EQ(4u, list.size());
    for (const QRMOperatingSystem& os : list) {
        EXPECT_EQ(QRM_OS_ARCH_X64, os.GetArchitecture()) << S(os.GetCode());
    }
}

TEST(SoftwareComponentReader, UnknownFirstOSArchGivesX86)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string oses = "<SupportedOperatingSystems><OS osArch=\"bogus\" osCode=\"A\"/><OS osCode=\"B\"/>"
                       "<OS osArch=\"ia32\" osCode=\"C\"/></SupportedOperatingSystems>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith(oses), component));
    std::vector<QRMOperatingSystem> list = OSesOf(component.GetSupportedOperatingSystems());
    ASSERT_EQ(3u, list.size());
    EXPECT_EQ(QRM_OS_ARCH_X86, list[0].GetArchitecture());
    EXPECT_EQ(QRM_OS_ARCH_X86, list[1].GetArchitecture());
    EXPECT_EQ(QRM_OS_ARCH_IA32, list[2].GetArchitecture());
}

TEST(SoftwareComponentReader, ArchitectureCarryOverStartsAgainInEachComponent)
{
    TempDir dir;
    std::string first = ComponentWith("<SupportedOperatingSystems><OS osArch=\"ia64\" osCode=\"A\"/>"
                                      "</SupportedOperatingSystems>");
    std::string second = ComponentWith("<SupportedOperatingSystems><OS osArch=\"bogus\" osCode=\"A\"/>"
                                       "</SupportedOperatingSystems>");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, first + second));
    std::vector<QRMSoftwareComponent*> components = StoredComponents();
    ASSERT_EQ(2u, components.size());
    std::vector<QRMOperatingSystem> list = OSesOf(components[1]->GetSupportedOperatingSystems());
    ASSERT_EQ(1u, list.size());
    EXPECT_EQ(QRM_OS_ARCH_X86, list[0].GetArchitecture());
}

TEST(SoftwareComponentReader, EmptySupportedOperatingSystemsHoldsNone)
{
    TempDir dir;
    QRMSoftwareComponent component;
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith("<SupportedOperatingSystems/>"), component));
    EXPECT_TRUE(OSesOf(component.GetSupportedOperatingSystems()).empty());
}

// --- Important info and the component's attributes ------------------------------------

TEST(SoftwareComponentReader, ImportantInfoURLIsRead)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string info = "<ImportantInfo URL=\"https://support.example.com/kb/123\"/>";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith(info), component));
    EXPECT_EQ("https://support.example.com/kb/123", S(component.GetImportantInfo().GetURL()));
}

TEST(SoftwareComponentReader, EveryComponentAttributeIsRead)
{
    TempDir dir;
    QRMSoftwareComponent component;
    std::string attributes =
        "schemaVersion=\"2.0\" releaseID=\"RID77\" dateTime=\"1700000001\" vendorVersion=\"A12\" "
        "releaseDate=\"1690000000\" hashMD5=\"0123456789abcdefABCDEF0123456789\" tolvarVersion=\"3.1.4\" "
        "packageID=\"PKG99\" packageType=\"LWXP\" path=\"FOLDER77/Storage_Driver.EXE\"";
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith("", attributes), component));
    EXPECT_EQ("2.0", S(component.GetSchemaVersion()));
    EXPECT_EQ("RID77", S(component.GetReleaseID()));
    EXPECT_EQ(1700000001ull, component.GetDateTime().GetValue());
    EXPECT_EQ("A12", S(component.GetVendorVersion()));
    EXPECT_EQ(1690000000ull, component.GetReleaseDate().GetValue());
    EXPECT_EQ("0123456789abcdefABCDEF0123456789", S(component.GetMD5Hash()));
    EXPECT_EQ("3.1.4", S(component.GetTolvarVersion()));
    EXPECT_EQ("PKG99", S(component.GetPackageID()));
    EXPECT_EQ("LWXP", S(component.GetPackageType()));
    EXPECT_EQ("FOLDER77/Storage_Driver.EXE", S(component.GetPath()));
}

TEST(SoftwareComponentReader, MissingComponentAttributesAreEmptyOrZero)
{
    TempDir dir;
    QRMSoftwareComponent component;
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith(""), component));
    EXPECT_EQ("", S(component.GetSchemaVersion()));
    EXPECT_EQ("", S(component.GetReleaseID()));
    EXPECT_EQ(0u, component.GetDateTime().GetValue());
    EXPECT_EQ("", S(component.GetVendorVersion()));
    EXPECT_EQ(0u, component.GetReleaseDate().GetValue());
    EXPECT_EQ("", S(component.GetMD5Hash()));
    EXPECT_EQ("", S(component.GetTolvarVersion()));
    EXPECT_EQ("", S(component.GetPackageID()));
    EXPECT_EQ("", S(component.GetPackageType()));
    EXPECT_EQ("", S(component.GetPath()));
}

TEST(SoftwareComponentReader, DatesAreReadAsDecimal)
{
    TempDir dir;
    QRMSoftwareComponent component;
    ASSERT_TRUE(ParseSingleComponent(dir, ComponentWith("", "dateTime=\"0100\" releaseDate=\"0010\""), component));
    EXPECT_EQ(100u, component.GetDateTime().GetValue());
    EXPECT_EQ(10u, component.GetReleaseDate().GetValue());
}

// --- The same catalog in two encodings ------------------------------------------------

namespace {

const char* const kRichCatalogEntries =
    "<SoftwareBundle schemaVersion=\"1.0\" releaseID=\"RB1\" dateTime=\"1700000000\" vendorVersion=\"A01\" "
    "path=\"b/bundle.xml\" bundleID=\"BÜ-1\" bundleType=\"BTW64\">"
    "<Name><Display lang=\"de\">Systempaket für Server</Display></Name>"
    "<ComponentType value=\"SBDL\"><Display>Bündel</Display></ComponentType>"
    "<Description><Display lang=\"ja\">更新プログラム</Display></Description>"
    "<TargetSystems><Brand key=\"3\" prefix=\"PE\"><Display lang=\"en\">Servers</Display>"
    "<Model systemID=\"04A3\"><Display lang=\"en\">Modell Ω</Display></Model></Brand></TargetSystems>"
    "<TargetOSes><OperatingSystem osCode=\"W12\" osVendor=\"ExampleSoft\"><Display lang=\"en\">Server OS</Display>"
    "</OperatingSystem></TargetOSes>"
    "<RevisionHistory><Display lang=\"en\">Erste Ausgabe</Display></RevisionHistory>"
    "<ImportantInfo URL=\"https://example.com/ü\"/>"
    "<Contents><Package path=\"a/ä.exe\" packageID=\"PA\"/><Package path=\"b.exe\" packageID=\"PB\"/></Contents>"
    "</SoftwareBundle>"
    "<InventoryComponent schemaVersion=\"1\" releaseID=\"IR\" dateTime=\"5\" vendorVersion=\"9\" releaseDate=\"6\" "
    "hashMD5=\"abc\" tolvarVersion=\"2\" osCode=\"WIN\" path=\"inv/ç.exe\"/>"
    "<SoftwareComponent schemaVersion=\"2.0\" releaseID=\"RC1\" dateTime=\"1700000001\" vendorVersion=\"1.2.3\" "
    "releaseDate=\"1690000000\" hashMD5=\"ffee\" tolvarVersion=\"4\" packageID=\"C1\" packageType=\"LWXP\" "
    "path=\"c/Trébuchet.exe\">"
    "<Name><Display lang=\"fr\">Pilote réseau</Display></Name>"
    "<ComponentType value=\"DRVR\"><Display lang=\"fr\">Pilote</Display></ComponentType>"
    "<Description><Display lang=\"zh\">网络驱动程序</Display></Description>"
    "<Category value=\"NI\"><Display lang=\"fr\"><![CDATA[Réseau & câbles]]></Display></Category>"
    "<LUCategory value=\"LU\"><Display lang=\"en\">Netz</Display></LUCategory>"
    "<SupportedDevices><Device componentID=\"159\" embedded=\"1\">"
    "<PCIInfo deviceID=\"0A6B\" vendorID=\"8086\" subDeviceID=\"04A3\" subVendorID=\"1028\"/>"
    "<Display lang=\"en\">Netzwerkkarte</Display></Device></SupportedDevices>"
    "<SupportedSystems display=\"1\"><Brand key=\"3\" prefix=\"PE\"><Display lang=\"en\">Servers</Display>"
    "</Brand></SupportedSystems>"
    "<SupportedOperatingSystems><OperatingSystem osArch=\"x64\" osCode=\"W12\" osVendor=\"ExampleSoft\" "
    "majorVersion=\"10\" minorVersion=\"0\" spMajorVersion=\"1\" spMinorVersion=\"0\">"
    "<Display lang=\"en\">Server OS</Display></OperatingSystem></SupportedOperatingSystems>"
    "<ImportantInfo URL=\"https://example.com/kb\"/>"
    "<Criticality value=\"1\"><Display lang=\"en\">Dringend</Display></Criticality>"
    "</SoftwareComponent>"
    "<SoftwareComponent packageID=\"C2\" path=\"c2.exe\" vendorVersion=\"2.0\">"
    "<Name><Display lang=\"en\">Firmware Ü</Display></Name><ComponentType value=\"FRMW\"/>"
    "<Category value=\"FW\"><Display lang=\"en\">Firmware</Display></Category>"
    "<SupportedDevices><Device componentID=\"1\"><PCIInfo vendorID=\"10DE\"/><PCIInfo vendorID=\"10DF\"/>"
    "<Display lang=\"en\">Gerät eins</Display></Device><Device componentID=\"2\" embedded=\"0\"/></SupportedDevices>"
    "<SupportedSystems><Brand key=\"4\" prefix=\"PX\"><Model systemID=\"0500\"><Display lang=\"en\">Ω</Display>"
    "</Model></Brand></SupportedSystems>"
    "<SupportedOperatingSystems><OS osArch=\"x86\" osCode=\"A\"/><OS osArch=\"??\" osCode=\"B\" majorVersion=\"ß\"/>"
    "</SupportedOperatingSystems>"
    "</SoftwareComponent>"
    "<InventoryComponent osCode=\"LX\" path=\"inv/linux.bin\"/>";

struct StoreCopy {
    std::vector<QRMSoftwareBundle> bundles;
    std::vector<QRMSoftwareComponent> components;
    std::vector<QRMInventoryComponent> inventory;
};

StoreCopy CopyStore()
{
    StoreCopy copy;
    std::vector<QRMSoftwareBundle*> bundles;
    API()->GetSoftwareBundles(bundles);
    for (const QRMSoftwareBundle* bundle : bundles) {
        copy.bundles.push_back(*bundle);
    }
    for (const QRMSoftwareComponent* component : StoredComponents()) {
        copy.components.push_back(*component);
    }
    API()->GetInventoryComponents(copy.inventory);
    return copy;
}

void ExpectSameSystems(const QRMSupportedSystems& a, const QRMSupportedSystems& b)
{
    EXPECT_EQ(a.GetDisplay(), b.GetDisplay());
    std::vector<QRMBrand*> brandsA = BrandsOf(a);
    std::vector<QRMBrand*> brandsB = BrandsOf(b);
    ASSERT_EQ(brandsA.size(), brandsB.size());
    for (std::size_t i = 0; i < brandsA.size(); ++i) {
        EXPECT_EQ(brandsA[i]->GetKey(), brandsB[i]->GetKey());
        EXPECT_EQ(S(brandsA[i]->GetPrefix()), S(brandsB[i]->GetPrefix()));
        EXPECT_EQ(Texts(*brandsA[i]), Texts(*brandsB[i]));
        std::vector<QRMModel*> modelsA = ModelsOf(*brandsA[i]);
        std::vector<QRMModel*> modelsB = ModelsOf(*brandsB[i]);
        ASSERT_EQ(modelsA.size(), modelsB.size());
        for (std::size_t j = 0; j < modelsA.size(); ++j) {
            EXPECT_EQ(modelsA[j]->GetSystemID(), modelsB[j]->GetSystemID());
            EXPECT_EQ(Texts(*modelsA[j]), Texts(*modelsB[j]));
        }
    }
}

void ExpectSameOSes(const QRMSupportedOperatingSystems& a, const QRMSupportedOperatingSystems& b)
{
    std::vector<QRMOperatingSystem> listA = OSesOf(a);
    std::vector<QRMOperatingSystem> listB = OSesOf(b);
    ASSERT_EQ(listA.size(), listB.size());
    for (std::size_t i = 0; i < listA.size(); ++i) {
        EXPECT_TRUE(listA[i] == listB[i]) << "operating system " << i;
        EXPECT_EQ(Texts(listA[i]), Texts(listB[i]));
    }
}

void ExpectSameBundle(const QRMSoftwareBundle& a, const QRMSoftwareBundle& b)
{
    EXPECT_EQ(Texts(a.GetName()), Texts(b.GetName()));
    EXPECT_TRUE(a.GetComponentType() == b.GetComponentType());
    EXPECT_EQ(Texts(a.GetComponentType()), Texts(b.GetComponentType()));
    EXPECT_EQ(DescriptionTexts(a), DescriptionTexts(b));
    ExpectSameSystems(a.GetTargetSystems(), b.GetTargetSystems());
    ExpectSameOSes(a.GetTargetOSes(), b.GetTargetOSes());
    EXPECT_EQ(Texts(a.GetRevisionHistory()), Texts(b.GetRevisionHistory()));
    EXPECT_TRUE(a.GetImportantInfo() == b.GetImportantInfo());
    std::vector<QRMBundleContent> contentsA;
    std::vector<QRMBundleContent> contentsB;
    a.GetContents(contentsA);
    b.GetContents(contentsB);
    EXPECT_TRUE(contentsA == contentsB);
    EXPECT_EQ(S(a.GetSchemaVersion()), S(b.GetSchemaVersion()));
    EXPECT_EQ(S(a.GetReleaseID()), S(b.GetReleaseID()));
    EXPECT_EQ(a.GetDateTime().GetValue(), b.GetDateTime().GetValue());
    EXPECT_EQ(S(a.GetVendorVersion()), S(b.GetVendorVersion()));
    EXPECT_EQ(S(a.GetPath()), S(b.GetPath()));
    EXPECT_EQ(S(a.GetBundleID()), S(b.GetBundleID()));
    EXPECT_EQ(a.GetBundleType(), b.GetBundleType());
}

void ExpectSameComponentFields(const QRMSoftwareComponent& a, const QRMSoftwareComponent& b)
{
    EXPECT_EQ(Texts(a.GetName()), Texts(b.GetName()));
    EXPECT_TRUE(a.GetComponentType() == b.GetComponentType());
    EXPECT_EQ(DescriptionTexts(a), DescriptionTexts(b));
    EXPECT_EQ(S(a.GetCategory().GetCode()), S(b.GetCategory().GetCode()));
    EXPECT_EQ(Texts(a.GetCategory()), Texts(b.GetCategory()));
    EXPECT_TRUE(a.GetLUCategory() == b.GetLUCategory());
    std::vector<QRMDevice*> devicesA = DevicesOf(a);
    std::vector<QRMDevice*> devicesB = DevicesOf(b);
    ASSERT_EQ(devicesA.size(), devicesB.size());
    for (std::size_t i = 0; i < devicesA.size(); ++i) {
        EXPECT_EQ(devicesA[i]->GetComponentID(), devicesB[i]->GetComponentID());
        EXPECT_EQ(devicesA[i]->IsEmbedded(), devicesB[i]->IsEmbedded());
        EXPECT_EQ(Texts(*devicesA[i]), Texts(*devicesB[i]));
        std::vector<QRMPCIInfo*> pciA = PCIOf(*devicesA[i]);
        std::vector<QRMPCIInfo*> pciB = PCIOf(*devicesB[i]);
        ASSERT_EQ(pciA.size(), pciB.size());
        for (std::size_t j = 0; j < pciA.size(); ++j) {
            EXPECT_TRUE(*pciA[j] == *pciB[j]);
        }
    }
    ExpectSameSystems(a.GetSupportedSystems(), b.GetSupportedSystems());
    ExpectSameOSes(a.GetSupportedOperatingSystems(), b.GetSupportedOperatingSystems());
    EXPECT_TRUE(a.GetImportantInfo() == b.GetImportantInfo());
    EXPECT_TRUE(a.GetCriticality() == b.GetCriticality());
    EXPECT_EQ(S(a.GetSchemaVersion()), S(b.GetSchemaVersion()));
    EXPECT_EQ(S(a.GetReleaseID()), S(b.GetReleaseID()));
    EXPECT_EQ(a.GetDateTime().GetValue(), b.GetDateTime().GetValue());
    EXPECT_EQ(S(a.GetVendorVersion()), S(b.GetVendorVersion()));
    EXPECT_EQ(a.GetReleaseDate().GetValue(), b.GetReleaseDate().GetValue());
    EXPECT_EQ(S(a.GetMD5Hash()), S(b.GetMD5Hash()));
    EXPECT_EQ(S(a.GetTolvarVersion()), S(b.GetTolvarVersion()));
    EXPECT_EQ(S(a.GetPackageID()), S(b.GetPackageID()));
    EXPECT_EQ(S(a.GetPackageType()), S(b.GetPackageType()));
    EXPECT_EQ(S(a.GetPath()), S(b.GetPath()));
}

}  // namespace

TEST(CatalogEntriesEncoding, UTF8AndUTF16LECatalogsGiveEqualStores)
{
    TempDir dir;
    std::string xml = CatalogXML::Document("baseLocation=\"dl/ä\"", kRichCatalogEntries);
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("utf8.xml", xml))));
    StoreCopy utf8 = CopyStore();

    std::string utf16Text = xml;
    utf16Text.replace(utf16Text.find("utf-8"), 5, "utf-16");
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("utf16.xml", ToUTF16LE(utf16Text)))));
    StoreCopy utf16 = CopyStore();

    // The UTF-8 reading itself is right, so equality is not vacuous.
    ASSERT_EQ(1u, utf8.bundles.size());
    ASSERT_EQ(2u, utf8.components.size());
    ASSERT_EQ(2u, utf8.inventory.size());
    EXPECT_EQ(std::vector<std::string>{"de|Systempaket für Server"}, Texts(utf8.bundles[0].GetName()));
    EXPECT_EQ(std::vector<std::string>{"de|Bündel"}, Texts(utf8.bundles[0].GetComponentType()));
    EXPECT_EQ(std::vector<std::string>{"fr|Réseau & câbles"}, Texts(utf8.components[0].GetCategory()));
    EXPECT_EQ(std::vector<std::string>{"zh|网络驱动程序"}, DescriptionTexts(utf8.components[0]));
    EXPECT_EQ(2u, DevicesOf(utf8.components[1]).size());
    EXPECT_EQ("inv/ç.exe", S(utf8.inventory[0].GetPath()));
    std::vector<unsigned int> ids;
    utf8.bundles[0].GetSupportedSystemIDs(ids);
    EXPECT_EQ(std::vector<unsigned int>{1187u}, ids);

    ASSERT_EQ(utf8.bundles.size(), utf16.bundles.size());
    for (std::size_t i = 0; i < utf8.bundles.size(); ++i) {
        SCOPED_TRACE("bundle " + std::to_string(i));
        ExpectSameBundle(utf8.bundles[i], utf16.bundles[i]);
    }
    ASSERT_EQ(utf8.components.size(), utf16.components.size());
    // The first component has one device, one operating system and no model:
    // its own equality applies.
    EXPECT_TRUE(utf8.components[0] == utf16.components[0]);
    for (std::size_t i = 0; i < utf8.components.size(); ++i) {
        SCOPED_TRACE("component " + std::to_string(i));
        ExpectSameComponentFields(utf8.components[i], utf16.components[i]);
    }
    ASSERT_EQ(utf8.inventory.size(), utf16.inventory.size());
    for (std::size_t i = 0; i < utf8.inventory.size(); ++i) {
        EXPECT_TRUE(utf8.inventory[i] == utf16.inventory[i]) << "inventory component " << i;
    }
}
