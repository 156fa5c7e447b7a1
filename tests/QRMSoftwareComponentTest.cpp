// QRMSoftwareComponent: a catalog component's fields, description texts,
// supported devices and wrappers, copying, and how two compare.
#include "QRMSoftwareComponent.h"

#include "FieldDifferences.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <ostream>

#include <string>
#include <utility>
#include <vector>

namespace {

typedef std::vector<std::pair<std::string, std::string>> Texts;

std::string Str(const VELString& text) { return text.GetUTF8String(); }

VELGUID Guid(unsigned char fill)
{
    VELGUID::Bytes bytes;
    bytes.fill(fill);
    return VELGUID(bytes);
}

Texts TextsOf(const std::vector<QRMDisplay>& displays)
{
    Texts result;
    for (const QRMDisplay& display : displays) {
        result.emplace_back(Str(display.GetLanguage()), Str(display.GetValue()));
    }
    return result;
}

Texts DescriptionOf(const QRMSoftwareComponent& component)
{
    std::vector<QRMDisplay> copies;
    component.GetDescriptionDisplayValues(copies);
    return TextsOf(copies);
}

std::vector<QRMDevice*> DevicesOf(const QRMSoftwareComponent& component)
{
    std::vector<QRMDevice*> devices;
    component.GetSupportedDevices(devices);
    return devices;
}

std::vector<QRMFMPWrapperInformation> WrappersOf(const QRMSoftwareComponent& component)
{
    std::vector<QRMFMPWrapperInformation> wrappers;
    component.GetWrappers(wrappers);
    return wrappers;
}

QRMDevice DeviceWithID(unsigned long long componentID)
{
    QRMDevice device;
    device.SetComponentID(componentID);
    return device;
}

QRMFMPWrapperInformation WrapperNamed(const char* name)
{
    QRMFMPWrapperInformation wrapper;
    wrapper.SetName(VELString(name));
    return wrapper;
}

QRMOperatingSystem OSWithCode(const char* code)
{
    QRMOperatingSystem os;
    os.SetCode(VELString(code));
    return os;
}

// A device that holds exactly one entry in each of its lists.
QRMDevice DeviceWithOneEntryPerList()
{
    QRMDevice device;
    device.SetComponentID(4711);
    device.SetEmbedded(true);
    QRMRollbackInformation rollback;
    rollback.SetRollbackVersion(VELString("1.0"));
    rollback.SetRollbackIdentifier(Guid(0x11));
    device.SetRollbackInformation(rollback);
    QRMPCIInfo pci;
    pci.SetVendorID(0x8086);
    pci.SetDeviceID(0x1234);
    pci.SetSubVendorID(0x1028);
    pci.SetSubDeviceID(0x0001);
    device.AddPCIInfo(pci);
    QRMPnPInfo pnp;
    pnp.SetPrimary(QRMPnPInfo::Primary{{1, 2, 3, 4}});
    pnp.SetValue(QRMPnPInfo::Value{{5, 6, 7, 8}});
    device.AddPnPInfo(pnp);
    QRMSubComponent sub;
    sub.SetName(VELString("ROM"));
    sub.SetVersion(VELString("2.1"));
    sub.AddDisplayValue(VELString("en"), VELString("Option ROM"));
    device.AddSubComponent(sub);
    QRMDependency dependency;
    dependency.SetName(VELString("base"));
    dependency.SetVersion(VELString("3"));
    device.AddDependency(dependency);
    QRMSoftDependency softDependency;
    softDependency.SetName(VELString("soft"));
    device.AddSoftDependency(softDependency);
    QRMDeviceApplicability applicability;
    applicability.SetLanguage(VELString("en"));
    applicability.SetValue(VELString("all"));
    device.AddApplicability(applicability);
    device.AddDisplayValue(VELString("en"), VELString("Network adapter"));
    return device;
}

// A component with every scalar and descriptive field set, one device that
// holds one entry per list, and one wrapper.
QRMSoftwareComponent FilledComponent()
{
    QRMSoftwareComponent component;
    QRMName name;
    name.AddDisplayValue(VELString("en"), VELString("Network driver"));
    name.AddDisplayValue(VELString("fr"), VELString("Pilote réseau"));
    component.SetName(name);
    QRMComponentType type;
    type.SetValue(QRM_COMPONENT_DRVR);
    type.AddDisplayValue(VELString("en"), VELString("Driver"));
    component.SetComponentType(type);
    component.AddDescriptionDisplayValue(VELString("en"), VELString("Fixes things"));
    component.AddDescriptionDisplayValue(VELString("de"), VELString("Behebt Dinge"));
    QRMCategory category;
    category.SetCode(VELString("NI"));
    category.AddDisplayValue(VELString("en"), VELString("Network"));
    component.SetCategory(category);
    QRMLUCategory luCategory;
    luCategory.SetCode(VELString("LU"));
    component.SetLUCategory(luCategory);
    QRMDevice device = DeviceWithOneEntryPerList();
    component.AddDeviceSupport(device);
    QRMSupportedSystems systems;
    systems.SetDisplay(true);
    QRMBrand brand;
    brand.SetKey(VELString("3"));
    brand.SetPrefix(VELString("XPS"));
    systems.AddBrand(brand);
    component.SetSupportedSystems(systems);
    QRMSupportedOperatingSystems oses;
    QRMOperatingSystem os = OSWithCode("W11");
    oses.AddOS(os);
    component.SetSupportedOperatingSystems(oses);
    QRMInstallInstruction instruction;
    instruction.SetCommand(VELString("setup.exe"));
    instruction.SetArguments(VELString("/s"));
    component.SetInstallInstruction(instruction);
    QRMRevisionHistory history;
    history.AddDisplayValue(VELString("en"), VELString("First release"));
    component.SetRevisionHistory(history);
    QRMImportantInfo info;
    info.SetURL(VELString("http://example.invalid/info"));
    component.SetImportantInfo(info);
    QRMCriticality criticality;
    criticality.SetValue(QRM_CRITICALITY_LEVEL2);
    component.SetCriticality(criticality);
    VELGUID msiid = Guid(0x21);
    component.SetMSIID(msiid);
    QRMFMPWrapperInformation wrapper = WrapperNamed("capsule");
    wrapper.SetDigitallySigned(true);
    component.AddWrapper(wrapper);
    component.SetSchemaVersion(VELString("2.0"));
    component.SetReleaseID(VELString("R123"));
    component.SetReleaseDate(VELTime(1000));
    component.SetVendorVersion(VELString("A05"));
    component.SetTolvarVersion(VELString("1.2.3"));
    component.SetPackageType(VELString("LWXP"));
    component.SetXMLGenVersion(VELString("3.1"));
    component.SetPath(VELString("FOLDER/driver.exe"));
    component.SetPackageID(VELString("PKG1"));
    component.SetDateTime(VELTime(2000));
    component.SetMD5Hash(VELString("abcdef0123456789abcdef0123456789"));
    component.SetSize(123456789ULL);
    VELGUID identifier = Guid(0x31);
    component.SetIdentifier(identifier);
    VELGUID predecessor = Guid(0x41);
    component.SetPredecessor(predecessor);
    component.SetRequiresReboot(true);
    component.SetRequiresContainerPowerCycle(true);
    return component;
}

using ComponentDifference = FieldDifference<QRMSoftwareComponent>;

const ComponentDifference kComponentDifferences[] = {
    {"HashesDifferingOnlyInCaseMakeComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         left = FilledComponent();
         right = FilledComponent();
         left.SetMD5Hash(VELString("d41d8cd98f00b204e9800998ecf8427e"));
         right.SetMD5Hash(VELString("D41D8CD98F00B204E9800998ECF8427E"));
     },
     false},
    {"NameTextMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         QRMName a, b;
         a.AddDisplayValue(VELString("en"), VELString("A"));
         b.AddDisplayValue(VELString("en"), VELString("B"));
         left.SetName(a);
         right.SetName(b);
     },
     false},
    {"NamesWithDifferentLanguagesOnlyCompareEqual",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         QRMName a, b;
         a.AddDisplayValue(VELString("en"), VELString("A"));
         b.AddDisplayValue(VELString("fr"), VELString("B"));
         left.SetName(a);
         right.SetName(b);
     },
     true},
    {"ComponentTypeValueMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         QRMComponentType a, b;
         a.SetValue(QRM_COMPONENT_FRMW);
         b.SetValue(QRM_COMPONENT_BIOS);
         left.SetComponentType(a);
         right.SetComponentType(b);
     },
     false},
    {"DescriptionTextMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         left.AddDescriptionDisplayValue(VELString("en"), VELString("A"));
         right.AddDescriptionDisplayValue(VELString("en"), VELString("B"));
     },
     false},
    {"DescriptionTextCountMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         left.AddDescriptionDisplayValue(VELString("en"), VELString("A"));
         right.AddDescriptionDisplayValue(VELString("en"), VELString("A"));
         right.AddDescriptionDisplayValue(VELString("fr"), VELString("B"));
     },
     false},
    {"DescriptionsWithDifferentLanguagesOnlyCompareEqual",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         left.AddDescriptionDisplayValue(VELString("en"), VELString("A"));
         right.AddDescriptionDisplayValue(VELString("fr"), VELString("B"));
     },
     true},
    {"CategoryCodeMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         QRMCategory a, b;
         a.SetCode(VELString("NI"));
         b.SetCode(VELString("SF"));
         left.SetCategory(a);
         right.SetCategory(b);
     },
     false},
    {"LUCategoryCodeMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         QRMLUCategory a, b;
         a.SetCode(VELString("NI"));
         b.SetCode(VELString("ni"));
         left.SetLUCategory(a);
         right.SetLUCategory(b);
     },
     false},
    {"DifferentSingleDevicesMakeComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         QRMDevice a = DeviceWithID(1);
         QRMDevice b = DeviceWithID(2);
         left.AddDeviceSupport(a);
         right.AddDeviceSupport(b);
     },
     false},
    {"DeviceCountMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent&) {
         QRMDevice a = DeviceWithID(1);
         left.AddDeviceSupport(a);
     },
     false},
    {"SameSingleDeviceOnBothSidesCompareEqual",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         QRMDevice device = DeviceWithOneEntryPerList();
         left.AddDeviceSupport(device);
         right.AddDeviceSupport(device);
     },
     true},
    {"SameTwoDifferentDevicesInSameOrderCompareUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         QRMDevice a = DeviceWithID(1);
         QRMDevice b = DeviceWithID(2);
         left.AddDeviceSupport(a);
         left.AddDeviceSupport(b);
         right.AddDeviceSupport(a);
         right.AddDeviceSupport(b);
     },
     false},
    {"SupportedSystemsDisplayFlagMakesComponentsUnequal",
     [](QRMSoftwareComponent&, QRMSoftwareComponent& right) {
         QRMSupportedSystems systems;
         systems.SetDisplay(true);
         right.SetSupportedSystems(systems);
     },
     false},
    {"SupportedSystemsBrandMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         QRMSupportedSystems a, b;
         QRMBrand first, second;
         first.SetKey(VELString("1"));
         second.SetKey(VELString("2"));
         a.AddBrand(first);
         b.AddBrand(second);
         left.SetSupportedSystems(a);
         right.SetSupportedSystems(b);
     },
     false},
    {"SupportedOperatingSystemMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         QRMSupportedOperatingSystems a, b;
         QRMOperatingSystem first = OSWithCode("WIN");
         QRMOperatingSystem second = OSWithCode("LIN");
         a.AddOS(first);
         b.AddOS(second);
         left.SetSupportedOperatingSystems(a);
         right.SetSupportedOperatingSystems(b);
     },
     false},
    {"InstallInstructionMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         QRMInstallInstruction a, b;
         a.SetCommand(VELString("setup"));
         b.SetCommand(VELString("setup"));
         b.SetArguments(VELString("/s"));
         left.SetInstallInstruction(a);
         right.SetInstallInstruction(b);
     },
     false},
    {"RevisionHistoryMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         QRMRevisionHistory a, b;
         a.AddDisplayValue(VELString("en"), VELString("v1"));
         b.AddDisplayValue(VELString("en"), VELString("v2"));
         left.SetRevisionHistory(a);
         right.SetRevisionHistory(b);
     },
     false},
    {"ImportantInfoMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         QRMImportantInfo a, b;
         a.SetURL(VELString("http://a.invalid"));
         b.SetURL(VELString("http://b.invalid"));
         left.SetImportantInfo(a);
         right.SetImportantInfo(b);
     },
     false},
    {"CriticalityMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         QRMCriticality a, b;
         a.SetValue(QRM_CRITICALITY_LEVEL1);
         b.SetValue(QRM_CRITICALITY_UNSPECIFIED);
         left.SetCriticality(a);
         right.SetCriticality(b);
     },
     false},
    {"MSIIDMakesComponentsUnequal",
     [](QRMSoftwareComponent&, QRMSoftwareComponent& right) {
         VELGUID id = Guid(3);
         right.SetMSIID(id);
     },
     false},
    {"DifferentSingleWrappersMakeComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         QRMFMPWrapperInformation a = WrapperNamed("a");
         QRMFMPWrapperInformation b = WrapperNamed("b");
         left.AddWrapper(a);
         right.AddWrapper(b);
     },
     false},
    {"WrapperCountMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent&) {
         QRMFMPWrapperInformation a = WrapperNamed("a");
         left.AddWrapper(a);
     },
     false},
    {"SameTwoDifferentWrappersInSameOrderCompareUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         QRMFMPWrapperInformation a = WrapperNamed("a");
         QRMFMPWrapperInformation b = WrapperNamed("b");
         left.AddWrapper(a);
         left.AddWrapper(b);
         right.AddWrapper(a);
         right.AddWrapper(b);
     },
     false},
    {"SchemaVersionMakesComponentsUnequal",
     [](QRMSoftwareComponent&, QRMSoftwareComponent& right) { right.SetSchemaVersion(VELString("1")); }, false},
    {"ReleaseIDMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         left.SetReleaseID(VELString("abc"));
         right.SetReleaseID(VELString("ABC"));
     },
     false},
    {"ReleaseDateMakesComponentsUnequal",
     [](QRMSoftwareComponent&, QRMSoftwareComponent& right) { right.SetReleaseDate(VELTime(1)); }, false},
    {"VendorVersionMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         left.SetVendorVersion(VELString("A01"));
         right.SetVendorVersion(VELString("A02"));
     },
     false},
    {"TolvarVersionMakesComponentsUnequal",
     [](QRMSoftwareComponent&, QRMSoftwareComponent& right) { right.SetTolvarVersion(VELString("1.0")); }, false},
    {"PackageTypeMakesComponentsUnequal",
     [](QRMSoftwareComponent&, QRMSoftwareComponent& right) { right.SetPackageType(VELString("LWXP")); }, false},
    {"XMLGenVersionMakesComponentsUnequal",
     [](QRMSoftwareComponent&, QRMSoftwareComponent& right) { right.SetXMLGenVersion(VELString("2")); }, false},
    {"PathMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         left.SetPath(VELString("a/b.exe"));
         right.SetPath(VELString("a/B.exe"));
     },
     false},
    {"PackageIDMakesComponentsUnequal",
     [](QRMSoftwareComponent&, QRMSoftwareComponent& right) { right.SetPackageID(VELString("P1")); }, false},
    {"DateTimeMakesComponentsUnequal",
     [](QRMSoftwareComponent& left, QRMSoftwareComponent& right) {
         left.SetDateTime(VELTime(5));
         right.SetDateTime(VELTime(6));
     },
     false},
    {"MD5HashMakesComponentsUnequal",
     [](QRMSoftwareComponent&, QRMSoftwareComponent& right) { right.SetMD5Hash(VELString("00")); }, false},
    {"SizeMakesComponentsUnequal", [](QRMSoftwareComponent&, QRMSoftwareComponent& right) { right.SetSize(1); }, false},
    {"IdentifierMakesComponentsUnequal",
     [](QRMSoftwareComponent&, QRMSoftwareComponent& right) {
         VELGUID id = Guid(4);
         right.SetIdentifier(id);
     },
     false},
    {"PredecessorMakesComponentsUnequal",
     [](QRMSoftwareComponent&, QRMSoftwareComponent& right) {
         VELGUID id = Guid(5);
         right.SetPredecessor(id);
     },
     false},
    {"RequiresRebootMakesComponentsUnequal",
     [](QRMSoftwareComponent&, QRMSoftwareComponent& right) { right.SetRequiresReboot(true); }, false},
    {"RequiresContainerPowerCycleMakesComponentsUnequal",
     [](QRMSoftwareComponent&, QRMSoftwareComponent& right) { right.SetRequiresContainerPowerCycle(true); }, false},
};

class QRMSoftwareComponentEquality : public testing::TestWithParam<ComponentDifference> {};

}  // namespace

// ================================================================ defaults

TEST(QRMSoftwareComponentDefaults, NewComponentHasZeroSizeAndBothFlagsClear)
{
    QRMSoftwareComponent component;
    EXPECT_EQ(0ULL, component.GetSize());
    EXPECT_FALSE(component.RequiresReboot());
    EXPECT_FALSE(component.RequiresContainerPowerCycle());
}

TEST(QRMSoftwareComponentDefaults, NewComponentHasNilGuidsAndZeroTimes)
{
    QRMSoftwareComponent component;
    EXPECT_TRUE(component.GetMSIID().IsNil());
    EXPECT_TRUE(component.GetIdentifier().IsNil());
    EXPECT_TRUE(component.GetPredecessor().IsNil());
    EXPECT_EQ(0ULL, component.GetReleaseDate().GetValue());
    EXPECT_EQ(0ULL, component.GetDateTime().GetValue());
}

TEST(QRMSoftwareComponentDefaults, NewComponentHasEmptyTexts)
{
    QRMSoftwareComponent component;
    EXPECT_EQ("", Str(component.GetSchemaVersion()));
    EXPECT_EQ("", Str(component.GetReleaseID()));
    EXPECT_EQ("", Str(component.GetVendorVersion()));
    EXPECT_EQ("", Str(component.GetTolvarVersion()));
    EXPECT_EQ("", Str(component.GetPackageType()));
    EXPECT_EQ("", Str(component.GetXMLGenVersion()));
    EXPECT_EQ("", Str(component.GetPath()));
    EXPECT_EQ("", Str(component.GetPackageID()));
    EXPECT_EQ("", Str(component.GetMD5Hash()));
}

TEST(QRMSoftwareComponentDefaults, NewComponentHasEmptyLists)
{
    QRMSoftwareComponent component;
    EXPECT_TRUE(DescriptionOf(component).empty());
    EXPECT_TRUE(DevicesOf(component).empty());
    EXPECT_TRUE(WrappersOf(component).empty());
    EXPECT_EQ(0u, TextCount(component.GetName()));
    EXPECT_EQ(0u, TextCount(component.GetRevisionHistory()));
    std::vector<QRMOperatingSystem> oses;
    component.GetSupportedOperatingSystems().GetOSes(oses);
    EXPECT_TRUE(oses.empty());
    std::vector<QRMBrand*> brands;
    QRMSupportedSystems systems = component.GetSupportedSystems();
    systems.GetBrands(brands);
    EXPECT_TRUE(brands.empty());
}

TEST(QRMSoftwareComponentDefaults, NewComponentHasEmptyDescriptiveMembers)
{
    QRMSoftwareComponent component;
    EXPECT_EQ(QRM_COMPONENT_SBDL, component.GetComponentType().GetValue());
    EXPECT_EQ(0u, TextCount(component.GetComponentType()));
    EXPECT_EQ(QRM_CRITICALITY_LEVEL1, component.GetCriticality().GetValue());
    EXPECT_EQ("", Str(component.GetCategory().GetCode()));
    EXPECT_EQ("", Str(component.GetLUCategory().GetCode()));
    EXPECT_EQ("", Str(component.GetImportantInfo().GetURL()));
    EXPECT_EQ("", Str(component.GetInstallInstruction().GetCommand()));
    EXPECT_EQ("", Str(component.GetInstallInstruction().GetArguments()));
}

TEST(QRMSoftwareComponentDefaults, TwoNewComponentsAreEqual)
{
    QRMSoftwareComponent first;
    QRMSoftwareComponent second;
    EXPECT_TRUE(first == second);
    EXPECT_FALSE(first != second);
}

// ========================================================= getters, setters

TEST(QRMSoftwareComponentFields, SetNameStoresTheTexts)
{
    QRMSoftwareComponent component;
    QRMName name;
    name.AddDisplayValue(VELString("en"), VELString("Driver"));
    name.AddDisplayValue(VELString("fr"), VELString("Pilote"));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetName(name));
    EXPECT_EQ((Texts{{"en", "Driver"}, {"fr", "Pilote"}}), TextsOf(component.GetName()));
}

TEST(QRMSoftwareComponentFields, SetComponentTypeStoresValueAndTexts)
{
    QRMSoftwareComponent component;
    QRMComponentType type;
    type.SetValue(QRM_COMPONENT_BIOS);
    type.AddDisplayValue(VELString("en"), VELString("BIOS"));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetComponentType(type));
    EXPECT_EQ(QRM_COMPONENT_BIOS, component.GetComponentType().GetValue());
    EXPECT_EQ((Texts{{"en", "BIOS"}}), TextsOf(component.GetComponentType()));
}

TEST(QRMSoftwareComponentFields, SetCategoryStoresCodeAndTexts)
{
    QRMSoftwareComponent component;
    QRMCategory category;
    category.SetCode(VELString("SF2"));
    category.AddDisplayValue(VELString("en"), VELString("Storage"));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetCategory(category));
    EXPECT_EQ("SF2", Str(component.GetCategory().GetCode()));
    EXPECT_EQ((Texts{{"en", "Storage"}}), TextsOf(component.GetCategory()));
}

TEST(QRMSoftwareComponentFields, SetLUCategoryStoresCodeAndTexts)
{
    QRMSoftwareComponent component;
    QRMLUCategory category;
    category.SetCode(VELString("BI"));
    category.AddDisplayValue(VELString("de"), VELString("Firmware"));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetLUCategory(category));
    EXPECT_EQ("BI", Str(component.GetLUCategory().GetCode()));
    EXPECT_EQ((Texts{{"de", "Firmware"}}), TextsOf(component.GetLUCategory()));
}

TEST(QRMSoftwareComponentFields, SetSupportedSystemsStoresFlagAndBrands)
{
    QRMSoftwareComponent component;
    QRMSupportedSystems systems;
    systems.SetDisplay(true);
    QRMBrand brand;
    brand.SetKey(VELString("7"));
    brand.SetPrefix(VELString("OPT"));
    systems.AddBrand(brand);
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetSupportedSystems(systems));
    QRMSupportedSystems stored = component.GetSupportedSystems();
    EXPECT_TRUE(stored.GetDisplay());
    std::vector<QRMBrand*> brands;
    stored.GetBrands(brands);
    ASSERT_EQ(1u, brands.size());
    EXPECT_EQ(7u, brands[0]->GetKey());
    EXPECT_EQ("OPT", Str(brands[0]->GetPrefix()));
}

TEST(QRMSoftwareComponentFields, SetSupportedOperatingSystemsStoresTheList)
{
    QRMSoftwareComponent component;
    QRMSupportedOperatingSystems oses;
    QRMOperatingSystem os = OSWithCode("WIN64");
    os.SetArchitecture(QRM_OS_ARCH_X64);
    oses.AddOS(os);
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetSupportedOperatingSystems(oses));
    std::vector<QRMOperatingSystem> stored;
    component.GetSupportedOperatingSystems().GetOSes(stored);
    ASSERT_EQ(1u, stored.size());
    EXPECT_EQ("WIN64", Str(stored[0].GetCode()));
    EXPECT_EQ(QRM_OS_ARCH_X64, stored[0].GetArchitecture());
}

TEST(QRMSoftwareComponentFields, SetInstallInstructionStoresTextsAndDisplayValues)
{
    QRMSoftwareComponent component;
    QRMInstallInstruction instruction;
    instruction.SetCommand(VELString("install.sh"));
    instruction.SetArguments(VELString("-q"));
    instruction.AddDisplayValue(VELString("en"), VELString("Run it"));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetInstallInstruction(instruction));
    QRMInstallInstruction stored = component.GetInstallInstruction();
    EXPECT_EQ("install.sh", Str(stored.GetCommand()));
    EXPECT_EQ("-q", Str(stored.GetArguments()));
    EXPECT_EQ((Texts{{"en", "Run it"}}), TextsOf(stored));
}

TEST(QRMSoftwareComponentFields, SetRevisionHistoryStoresTheTexts)
{
    QRMSoftwareComponent component;
    QRMRevisionHistory history;
    history.AddDisplayValue(VELString("en"), VELString("Fixed a hang"));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetRevisionHistory(history));
    EXPECT_EQ((Texts{{"en", "Fixed a hang"}}), TextsOf(component.GetRevisionHistory()));
}

TEST(QRMSoftwareComponentFields, SetImportantInfoStoresURLAndTexts)
{
    QRMSoftwareComponent component;
    QRMImportantInfo info;
    info.SetURL(VELString("http://example.invalid/x"));
    info.AddDisplayValue(VELString("en"), VELString("Read me"));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetImportantInfo(info));
    EXPECT_EQ("http://example.invalid/x", Str(component.GetImportantInfo().GetURL()));
    EXPECT_EQ((Texts{{"en", "Read me"}}), TextsOf(component.GetImportantInfo()));
}

TEST(QRMSoftwareComponentFields, SetCriticalityStoresValueAndTexts)
{
    QRMSoftwareComponent component;
    QRMCriticality criticality;
    criticality.SetValue(QRM_CRITICALITY_LEVEL3);
    criticality.AddDisplayValue(VELString("en"), VELString("Urgent"));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetCriticality(criticality));
    EXPECT_EQ(QRM_CRITICALITY_LEVEL3, component.GetCriticality().GetValue());
    EXPECT_EQ((Texts{{"en", "Urgent"}}), TextsOf(component.GetCriticality()));
}

TEST(QRMSoftwareComponentFields, SetMSIIDStoresTheGuid)
{
    QRMSoftwareComponent component;
    VELGUID id = Guid(0x5A);
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetMSIID(id));
    EXPECT_TRUE(component.GetMSIID() == Guid(0x5A));
}

TEST(QRMSoftwareComponentFields, SetIdentifierStoresTheGuid)
{
    QRMSoftwareComponent component;
    VELGUID id = Guid(0x6B);
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetIdentifier(id));
    EXPECT_TRUE(component.GetIdentifier() == Guid(0x6B));
}

TEST(QRMSoftwareComponentFields, SetPredecessorStoresTheGuid)
{
    QRMSoftwareComponent component;
    VELGUID id = Guid(0x7C);
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetPredecessor(id));
    EXPECT_TRUE(component.GetPredecessor() == Guid(0x7C));
}

namespace {

// A text field: its setter returns QRM_KIT_SUCCESS and its getter gives the
// text back exactly as it was set, whatever it holds.
struct TextField {
    const char* name;
    QRMKitReturnCode (QRMSoftwareComponent::*set)(VELString);
    VELString (QRMSoftwareComponent::*get)() const;
    const char* text;
};

void PrintTo(const TextField& field, std::ostream* out) { *out << field.name; }

const TextField kTextFields[] = {
    {"SchemaVersion", &QRMSoftwareComponent::SetSchemaVersion, &QRMSoftwareComponent::GetSchemaVersion, "2.1"},
    {"ReleaseID", &QRMSoftwareComponent::SetReleaseID, &QRMSoftwareComponent::GetReleaseID, "X7K2P"},
    {"VendorVersion", &QRMSoftwareComponent::SetVendorVersion, &QRMSoftwareComponent::GetVendorVersion, "A12"},
    {"TolvarVersion", &QRMSoftwareComponent::SetTolvarVersion, &QRMSoftwareComponent::GetTolvarVersion, "10.0.1"},
    {"PackageType", &QRMSoftwareComponent::SetPackageType, &QRMSoftwareComponent::GetPackageType, "LW64"},
    {"XMLGenVersion", &QRMSoftwareComponent::SetXMLGenVersion, &QRMSoftwareComponent::GetXMLGenVersion, "2.5.0"},
    {"Path", &QRMSoftwareComponent::SetPath, &QRMSoftwareComponent::GetPath, "FOLDER01/pkg.exe"},
    {"PackageID", &QRMSoftwareComponent::SetPackageID, &QRMSoftwareComponent::GetPackageID, "8H2KC"},
    {"MD5HashAsGiven", &QRMSoftwareComponent::SetMD5Hash, &QRMSoftwareComponent::GetMD5Hash,
     "D41D8cd98f00b204e9800998ecf8427e"},
    {"MD5HashMalformedAndUnchecked", &QRMSoftwareComponent::SetMD5Hash, &QRMSoftwareComponent::GetMD5Hash,
     "not a hash"},
};

class QRMSoftwareComponentTextFields : public testing::TestWithParam<TextField> {};

}  // namespace

TEST_P(QRMSoftwareComponentTextFields, StoresTheText)
{
    QRMSoftwareComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, (component.*GetParam().set)(VELString(GetParam().text)));
    EXPECT_EQ(GetParam().text, Str((component.*GetParam().get)()));
}

INSTANTIATE_TEST_SUITE_P(, QRMSoftwareComponentTextFields, testing::ValuesIn(kTextFields),
                         [](const testing::TestParamInfo<TextField>& info) { return std::string(info.param.name); });

TEST(QRMSoftwareComponentFields, SetReleaseDateStoresTheTime)
{
    QRMSoftwareComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetReleaseDate(VELTime(987654321ULL)));
    EXPECT_EQ(987654321ULL, component.GetReleaseDate().GetValue());
}

TEST(QRMSoftwareComponentFields, SetDateTimeStoresTheTime)
{
    QRMSoftwareComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetDateTime(VELTime(42ULL)));
    EXPECT_EQ(42ULL, component.GetDateTime().GetValue());
}

TEST(QRMSoftwareComponentFields, SetSizeStoresTheFullSixtyFourBitValue)
{
    QRMSoftwareComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetSize(0xFFFFFFFFFFFFFFFFULL));
    EXPECT_EQ(0xFFFFFFFFFFFFFFFFULL, component.GetSize());
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetSize(5000000000ULL));
    EXPECT_EQ(5000000000ULL, component.GetSize());
}

TEST(QRMSoftwareComponentFields, SetRequiresRebootStoresTheFlag)
{
    QRMSoftwareComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetRequiresReboot(true));
    EXPECT_TRUE(component.RequiresReboot());
    EXPECT_FALSE(component.RequiresContainerPowerCycle());
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetRequiresReboot(false));
    EXPECT_FALSE(component.RequiresReboot());
}

TEST(QRMSoftwareComponentFields, SetRequiresContainerPowerCycleStoresTheFlag)
{
    QRMSoftwareComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetRequiresContainerPowerCycle(true));
    EXPECT_TRUE(component.RequiresContainerPowerCycle());
    EXPECT_FALSE(component.RequiresReboot());
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetRequiresContainerPowerCycle(false));
    EXPECT_FALSE(component.RequiresContainerPowerCycle());
}

TEST(QRMSoftwareComponentFields, SettersStoreACopyOfTheArgument)
{
    QRMSoftwareComponent component;
    QRMName name;
    name.AddDisplayValue(VELString("en"), VELString("Driver"));
    component.SetName(name);
    QRMCategory category;
    category.SetCode(VELString("NI"));
    component.SetCategory(category);

    name.AddDisplayValue(VELString("fr"), VELString("Pilote"));
    category.SetCode(VELString("CHANGED"));

    EXPECT_EQ((Texts{{"en", "Driver"}}), TextsOf(component.GetName()));
    EXPECT_EQ("NI", Str(component.GetCategory().GetCode()));
}

TEST(QRMSoftwareComponentFields, ClassTypedGettersReturnDeepCopies)
{
    QRMSoftwareComponent component = FilledComponent();

    QRMName name = component.GetName();
    name.AddDisplayValue(VELString("de"), VELString("Treiber"));
    name.RemoveDisplayValue(VELString("en"));
    QRMComponentType type = component.GetComponentType();
    type.SetValue(QRM_COMPONENT_APP);
    type.AddDisplayValue(VELString("fr"), VELString("Pilote"));
    QRMCategory category = component.GetCategory();
    category.SetCode(VELString("XX"));
    QRMRevisionHistory history = component.GetRevisionHistory();
    history.RemoveDisplayValue(VELString("en"));
    QRMInstallInstruction instruction = component.GetInstallInstruction();
    instruction.SetCommand(VELString("other"));
    QRMSupportedOperatingSystems oses = component.GetSupportedOperatingSystems();
    QRMOperatingSystem os = OSWithCode("W11");
    oses.RemoveOS(os);

    EXPECT_EQ((Texts{{"en", "Network driver"}, {"fr", "Pilote réseau"}}), TextsOf(component.GetName()));
    EXPECT_EQ(QRM_COMPONENT_DRVR, component.GetComponentType().GetValue());
    EXPECT_EQ((Texts{{"en", "Driver"}}), TextsOf(component.GetComponentType()));
    EXPECT_EQ("NI", Str(component.GetCategory().GetCode()));
    EXPECT_EQ((Texts{{"en", "First release"}}), TextsOf(component.GetRevisionHistory()));
    EXPECT_EQ("setup.exe", Str(component.GetInstallInstruction().GetCommand()));
    std::vector<QRMOperatingSystem> stored;
    component.GetSupportedOperatingSystems().GetOSes(stored);
    EXPECT_EQ(1u, stored.size());
    EXPECT_TRUE(component == FilledComponent());
}

// ============================================================== description

TEST(QRMSoftwareComponentDescription, AddReturnsSuccessThenAlreadyExistsForTheSameLanguage)
{
    QRMSoftwareComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.AddDescriptionDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, component.AddDescriptionDisplayValue(VELString("en"), VELString("B")));
    EXPECT_EQ((Texts{{"en", "A"}}), DescriptionOf(component));
}

TEST(QRMSoftwareComponentDescription, AddKeepsInsertionOrder)
{
    QRMSoftwareComponent component;
    component.AddDescriptionDisplayValue(VELString("fr"), VELString("B"));
    component.AddDescriptionDisplayValue(VELString("en"), VELString("A"));
    component.AddDescriptionDisplayValue(VELString("de"), VELString("C"));
    EXPECT_EQ((Texts{{"fr", "B"}, {"en", "A"}, {"de", "C"}}), DescriptionOf(component));
}

TEST(QRMSoftwareComponentDescription, LanguagesDifferingOnlyInCaseAreBothAdded)
{
    QRMSoftwareComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.AddDescriptionDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.AddDescriptionDisplayValue(VELString("EN"), VELString("B")));
    EXPECT_EQ((Texts{{"en", "A"}, {"EN", "B"}}), DescriptionOf(component));
}

TEST(QRMSoftwareComponentDescription, RemoveFromEmptyDescriptionReturnsNotFound)
{
    QRMSoftwareComponent component;
    EXPECT_EQ(QRM_KIT_NOT_FOUND, component.RemoveDescriptionDisplayValue(VELString("en")));
    EXPECT_TRUE(DescriptionOf(component).empty());
}

TEST(QRMSoftwareComponentDescription, RemoveOfAbsentLanguageReturnsNotFoundAndKeepsTexts)
{
    QRMSoftwareComponent component;
    component.AddDescriptionDisplayValue(VELString("en"), VELString("A"));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, component.RemoveDescriptionDisplayValue(VELString("fr")));
    EXPECT_EQ((Texts{{"en", "A"}}), DescriptionOf(component));
}

TEST(QRMSoftwareComponentDescription, RemoveOfOnlyTextLeavesDescriptionEmpty)
{
    QRMSoftwareComponent component;
    component.AddDescriptionDisplayValue(VELString("en"), VELString("A"));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.RemoveDescriptionDisplayValue(VELString("en")));
    EXPECT_TRUE(DescriptionOf(component).empty());
}

TEST(QRMSoftwareComponentDescription, RemoveOfLastTextLeavesTheOthersUntouched)
{
    QRMSoftwareComponent component;
    component.AddDescriptionDisplayValue(VELString("en"), VELString("A"));
    component.AddDescriptionDisplayValue(VELString("fr"), VELString("B"));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.RemoveDescriptionDisplayValue(VELString("fr")));
    EXPECT_EQ((Texts{{"en", "A"}}), DescriptionOf(component));
}

TEST(QRMSoftwareComponentDescription, RemoveOfFirstTextClearsTheTextThatFollowed)
{
    QRMSoftwareComponent component;
    component.AddDescriptionDisplayValue(VELString("en"), VELString("A"));
    component.AddDescriptionDisplayValue(VELString("fr"), VELString("B"));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.RemoveDescriptionDisplayValue(VELString("en")));
    EXPECT_EQ((Texts{{"", ""}}), DescriptionOf(component));
}

TEST(QRMSoftwareComponentDescription, GetIntoNonEmptyVectorKeepsExistingItemsInFront)
{
    QRMSoftwareComponent component;
    component.AddDescriptionDisplayValue(VELString("en"), VELString("A"));
    component.AddDescriptionDisplayValue(VELString("fr"), VELString("B"));
    std::vector<QRMDisplay> out;
    out.emplace_back(VELString("xx"), VELString("kept"));
    component.GetDescriptionDisplayValues(out);
    EXPECT_EQ((Texts{{"xx", "kept"}, {"en", "A"}, {"fr", "B"}}), TextsOf(out));
}

TEST(QRMSoftwareComponentDescription, ReturnedTextsAreCopies)
{
    QRMSoftwareComponent component;
    component.AddDescriptionDisplayValue(VELString("en"), VELString("A"));
    std::vector<QRMDisplay> out;
    component.GetDescriptionDisplayValues(out);
    ASSERT_EQ(1u, out.size());
    out[0].SetValue(VELString("changed"));
    EXPECT_EQ((Texts{{"en", "A"}}), DescriptionOf(component));
}

// ========================================================= supported devices

TEST(QRMSoftwareComponentDevices, AddDeviceSupportTwiceWithTheSameDeviceKeepsOne)
{
    QRMSoftwareComponent component;
    QRMDevice device = DeviceWithID(100);
    EXPECT_EQ(QRM_KIT_SUCCESS, component.AddDeviceSupport(device));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, component.AddDeviceSupport(device));
    std::vector<QRMDevice*> devices = DevicesOf(component);
    ASSERT_EQ(1u, devices.size());
    EXPECT_EQ(100ULL, devices[0]->GetComponentID());
}

TEST(QRMSoftwareComponentDevices, AddDeviceSupportRefusesAnEqualButDistinctDevice)
{
    QRMSoftwareComponent component;
    QRMDevice first = DeviceWithOneEntryPerList();
    QRMDevice second = DeviceWithOneEntryPerList();
    EXPECT_EQ(QRM_KIT_SUCCESS, component.AddDeviceSupport(first));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, component.AddDeviceSupport(second));
    EXPECT_EQ(1u, DevicesOf(component).size());
}

TEST(QRMSoftwareComponentDevices, DevicesDifferingOnlyInComponentIDAreBothAdded)
{
    QRMSoftwareComponent component;
    QRMDevice first = DeviceWithOneEntryPerList();
    QRMDevice second = DeviceWithOneEntryPerList();
    second.SetComponentID(4712);
    EXPECT_EQ(QRM_KIT_SUCCESS, component.AddDeviceSupport(first));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.AddDeviceSupport(second));
    std::vector<QRMDevice*> devices = DevicesOf(component);
    ASSERT_EQ(2u, devices.size());
    EXPECT_EQ(4711ULL, devices[0]->GetComponentID());
    EXPECT_EQ(4712ULL, devices[1]->GetComponentID());
}

TEST(QRMSoftwareComponentDevices, AddDeviceSupportStoresACopyAndLeavesTheArgumentToTheCaller)
{
    QRMSoftwareComponent component;
    QRMDevice device = DeviceWithID(7);
    component.AddDeviceSupport(device);
    device.SetComponentID(8);
    std::vector<QRMDevice*> devices = DevicesOf(component);
    ASSERT_EQ(1u, devices.size());
    EXPECT_NE(&device, devices[0]);
    EXPECT_EQ(7ULL, devices[0]->GetComponentID());
}

TEST(QRMSoftwareComponentDevices, RemoveDeviceSupportOnEmptyListReturnsNotFound)
{
    QRMSoftwareComponent component;
    QRMDevice device = DeviceWithID(1);
    EXPECT_EQ(QRM_KIT_NOT_FOUND, component.RemoveDeviceSupport(device));
    EXPECT_TRUE(DevicesOf(component).empty());
}

TEST(QRMSoftwareComponentDevices, RemoveDeviceSupportOfAbsentDeviceReturnsNotFoundAndKeepsTheList)
{
    QRMSoftwareComponent component;
    QRMDevice held = DeviceWithID(1);
    component.AddDeviceSupport(held);
    std::vector<QRMDevice*> before = DevicesOf(component);
    QRMDevice absent = DeviceWithID(2);
    EXPECT_EQ(QRM_KIT_NOT_FOUND, component.RemoveDeviceSupport(absent));
    EXPECT_EQ(before, DevicesOf(component));
    EXPECT_EQ(1ULL, before[0]->GetComponentID());
}

TEST(QRMSoftwareComponentDevices, RemoveDeviceSupportOfFirstDeviceLeavesTheSecond)
{
    QRMSoftwareComponent component;
    QRMDevice first = DeviceWithID(1);
    QRMDevice second = DeviceWithID(2);
    component.AddDeviceSupport(first);
    component.AddDeviceSupport(second);
    std::vector<QRMDevice*> before = DevicesOf(component);
    ASSERT_EQ(2u, before.size());

    EXPECT_EQ(QRM_KIT_SUCCESS, component.RemoveDeviceSupport(first));

    std::vector<QRMDevice*> after = DevicesOf(component);
    ASSERT_EQ(1u, after.size());
    EXPECT_EQ(before[1], after[0]);
    EXPECT_EQ(2ULL, after[0]->GetComponentID());
}

TEST(QRMSoftwareComponentDevices, RemoveDeviceSupportOfLastDeviceLeavesTheFirst)
{
    QRMSoftwareComponent component;
    QRMDevice first = DeviceWithID(1);
    QRMDevice second = DeviceWithID(2);
    component.AddDeviceSupport(first);
    component.AddDeviceSupport(second);
    std::vector<QRMDevice*> before = DevicesOf(component);

    EXPECT_EQ(QRM_KIT_SUCCESS, component.RemoveDeviceSupport(second));

    std::vector<QRMDevice*> after = DevicesOf(component);
    ASSERT_EQ(1u, after.size());
    EXPECT_EQ(before[0], after[0]);
    EXPECT_EQ(1ULL, after[0]->GetComponentID());
}

TEST(QRMSoftwareComponentDevices, RemovedDeviceCanBeAddedAgain)
{
    QRMSoftwareComponent component;
    QRMDevice device = DeviceWithID(1);
    component.AddDeviceSupport(device);
    ASSERT_EQ(QRM_KIT_SUCCESS, component.RemoveDeviceSupport(device));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, component.RemoveDeviceSupport(device));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.AddDeviceSupport(device));
    EXPECT_EQ(1u, DevicesOf(component).size());
}

TEST(QRMSoftwareComponentDevices, GetSupportedDevicesIntoNonEmptyVectorKeepsItemsInFront)
{
    QRMSoftwareComponent component;
    QRMDevice first = DeviceWithID(1);
    QRMDevice second = DeviceWithID(2);
    component.AddDeviceSupport(first);
    component.AddDeviceSupport(second);
    QRMDevice outsider = DeviceWithID(99);
    std::vector<QRMDevice*> out{&outsider};
    component.GetSupportedDevices(out);
    ASSERT_EQ(3u, out.size());
    EXPECT_EQ(&outsider, out[0]);
    EXPECT_EQ(1ULL, out[1]->GetComponentID());
    EXPECT_EQ(2ULL, out[2]->GetComponentID());
}

TEST(QRMSoftwareComponentDevices, GetSupportedDevicesHandsOutTheSamePointersEachTime)
{
    QRMSoftwareComponent component;
    QRMDevice first = DeviceWithID(1);
    QRMDevice second = DeviceWithID(2);
    component.AddDeviceSupport(first);
    component.AddDeviceSupport(second);
    std::vector<QRMDevice*> once = DevicesOf(component);
    std::vector<QRMDevice*> twice = DevicesOf(component);
    ASSERT_EQ(2u, once.size());
    EXPECT_EQ(once, twice);
    EXPECT_NE(once[0], once[1]);
}

TEST(QRMSoftwareComponentDevices, GetSupportedDevicesHandsOutTheHeldDevicesThemselves)
{
    QRMSoftwareComponent component;
    QRMDevice device = DeviceWithID(1);
    component.AddDeviceSupport(device);
    QRMSoftwareComponent before(component);
    ASSERT_TRUE(component == before);

    DevicesOf(component)[0]->SetComponentID(55);

    EXPECT_EQ(55ULL, DevicesOf(component)[0]->GetComponentID());
    EXPECT_EQ(1ULL, DevicesOf(before)[0]->GetComponentID());
    EXPECT_TRUE(component != before);
}

// ================================================================= wrappers

TEST(QRMSoftwareComponentWrappers, AddWrapperReturnsSuccessThenAlreadyExistsForAnEqualWrapper)
{
    QRMSoftwareComponent component;
    QRMFMPWrapperInformation wrapper = WrapperNamed("capsule");
    QRMFMPWrapperInformation same = WrapperNamed("capsule");
    EXPECT_EQ(QRM_KIT_SUCCESS, component.AddWrapper(wrapper));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, component.AddWrapper(same));
    std::vector<QRMFMPWrapperInformation> wrappers = WrappersOf(component);
    ASSERT_EQ(1u, wrappers.size());
    EXPECT_EQ("capsule", Str(wrappers[0].GetName()));
}

TEST(QRMSoftwareComponentWrappers, DifferentWrappersAreKeptInOrder)
{
    QRMSoftwareComponent component;
    QRMFMPWrapperInformation first = WrapperNamed("one");
    QRMFMPWrapperInformation second = WrapperNamed("two");
    EXPECT_EQ(QRM_KIT_SUCCESS, component.AddWrapper(first));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.AddWrapper(second));
    std::vector<QRMFMPWrapperInformation> wrappers = WrappersOf(component);
    ASSERT_EQ(2u, wrappers.size());
    EXPECT_EQ("one", Str(wrappers[0].GetName()));
    EXPECT_EQ("two", Str(wrappers[1].GetName()));
}

TEST(QRMSoftwareComponentWrappers, GetWrappersIntoNonEmptyVectorKeepsItemsInFront)
{
    QRMSoftwareComponent component;
    QRMFMPWrapperInformation wrapper = WrapperNamed("held");
    component.AddWrapper(wrapper);
    std::vector<QRMFMPWrapperInformation> out{WrapperNamed("kept")};
    component.GetWrappers(out);
    ASSERT_EQ(2u, out.size());
    EXPECT_EQ("kept", Str(out[0].GetName()));
    EXPECT_EQ("held", Str(out[1].GetName()));
}

TEST(QRMSoftwareComponentWrappers, GetWrappersReturnsCopies)
{
    QRMSoftwareComponent component;
    QRMFMPWrapperInformation wrapper = WrapperNamed("held");
    component.AddWrapper(wrapper);
    std::vector<QRMFMPWrapperInformation> out = WrappersOf(component);
    ASSERT_EQ(1u, out.size());
    out[0].SetName(VELString("changed"));
    EXPECT_EQ("held", Str(WrappersOf(component)[0].GetName()));
}

TEST(QRMSoftwareComponentWrappers, RemoveWrapperOnEmptyListReturnsNotFound)
{
    QRMSoftwareComponent component;
    QRMFMPWrapperInformation wrapper = WrapperNamed("x");
    EXPECT_EQ(QRM_KIT_NOT_FOUND, component.RemoveWrapper(wrapper));
}

TEST(QRMSoftwareComponentWrappers, RemoveWrapperOfAbsentWrapperReturnsNotFoundAndKeepsTheList)
{
    QRMSoftwareComponent component;
    QRMFMPWrapperInformation held = WrapperNamed("held");
    component.AddWrapper(held);
    QRMFMPWrapperInformation absent = WrapperNamed("absent");
    EXPECT_EQ(QRM_KIT_NOT_FOUND, component.RemoveWrapper(absent));
    ASSERT_EQ(1u, WrappersOf(component).size());
    EXPECT_EQ("held", Str(WrappersOf(component)[0].GetName()));
}

TEST(QRMSoftwareComponentWrappers, RemoveWrapperTakesOutTheEqualWrapperOnly)
{
    QRMSoftwareComponent component;
    QRMFMPWrapperInformation first = WrapperNamed("one");
    QRMFMPWrapperInformation second = WrapperNamed("two");
    component.AddWrapper(first);
    component.AddWrapper(second);
    EXPECT_EQ(QRM_KIT_SUCCESS, component.RemoveWrapper(first));
    std::vector<QRMFMPWrapperInformation> wrappers = WrappersOf(component);
    ASSERT_EQ(1u, wrappers.size());
    EXPECT_EQ("two", Str(wrappers[0].GetName()));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, component.RemoveWrapper(first));
}

// ========================================================== wrapper fields

// ================================================================= equality

TEST_F(QRMSoftwareComponentEquality, FullyFilledComponentsBuiltAlikeAreEqual)
{
    EXPECT_TRUE(FilledComponent() == FilledComponent());
    EXPECT_FALSE(FilledComponent() != FilledComponent());
}

TEST_P(QRMSoftwareComponentEquality, FieldDiffers)
{
    ExpectDifference(GetParam(), QRMSoftwareComponent(), QRMSoftwareComponent());
}

INSTANTIATE_TEST_SUITE_P(, QRMSoftwareComponentEquality, testing::ValuesIn(kComponentDifferences), NameOfDifference());

TEST_F(QRMSoftwareComponentEquality, EachFieldChangedOnAFilledComponentMakesItUnequal)
{
    const QRMSoftwareComponent base = FilledComponent();
    std::vector<QRMSoftwareComponent> changed;
    auto variant = [&](auto change) {
        QRMSoftwareComponent component = FilledComponent();
        change(component);
        changed.push_back(component);
    };
    variant([](QRMSoftwareComponent& c) { c.SetSchemaVersion(VELString("9")); });
    variant([](QRMSoftwareComponent& c) { c.SetReleaseID(VELString("9")); });
    variant([](QRMSoftwareComponent& c) { c.SetReleaseDate(VELTime(9)); });
    variant([](QRMSoftwareComponent& c) { c.SetVendorVersion(VELString("9")); });
    variant([](QRMSoftwareComponent& c) { c.SetTolvarVersion(VELString("9")); });
    variant([](QRMSoftwareComponent& c) { c.SetPackageType(VELString("9")); });
    variant([](QRMSoftwareComponent& c) { c.SetXMLGenVersion(VELString("9")); });
    variant([](QRMSoftwareComponent& c) { c.SetPath(VELString("9")); });
    variant([](QRMSoftwareComponent& c) { c.SetPackageID(VELString("9")); });
    variant([](QRMSoftwareComponent& c) { c.SetDateTime(VELTime(9)); });
    variant([](QRMSoftwareComponent& c) { c.SetMD5Hash(VELString("ABCDEF0123456789ABCDEF0123456789")); });
    variant([](QRMSoftwareComponent& c) { c.SetSize(9); });
    variant([](QRMSoftwareComponent& c) { c.SetRequiresReboot(false); });
    variant([](QRMSoftwareComponent& c) { c.SetRequiresContainerPowerCycle(false); });
    variant([](QRMSoftwareComponent& c) {
        VELGUID id = Guid(9);
        c.SetIdentifier(id);
    });
    variant([](QRMSoftwareComponent& c) {
        VELGUID id = Guid(9);
        c.SetPredecessor(id);
    });
    variant([](QRMSoftwareComponent& c) {
        VELGUID id = Guid(9);
        c.SetMSIID(id);
    });
    variant([](QRMSoftwareComponent& c) {
        QRMFMPWrapperInformation wrapper = WrapperNamed("capsule");
        wrapper.SetDigitallySigned(true);
        c.RemoveWrapper(wrapper);
    });
    variant([](QRMSoftwareComponent& c) { c.RemoveDescriptionDisplayValue(VELString("de")); });
    variant([](QRMSoftwareComponent& c) { DevicesOf(c)[0]->SetEmbedded(false); });
    ASSERT_EQ(20u, changed.size());
    for (std::size_t i = 0; i < changed.size(); ++i) {
        EXPECT_FALSE(changed[i] == base) << "variant " << i;
        EXPECT_TRUE(changed[i] != base) << "variant " << i;
    }
}

// ================================================ copying and assignment

TEST(QRMSoftwareComponentCopy, CopyOfFilledComponentComparesEqual)
{
    QRMSoftwareComponent component = FilledComponent();
    QRMSoftwareComponent copy(component);
    EXPECT_TRUE(copy == component);
    EXPECT_TRUE(component == copy);
}

TEST(QRMSoftwareComponentCopy, CopyCarriesEveryField)
{
    const QRMSoftwareComponent component = FilledComponent();
    QRMSoftwareComponent copy(component);
    EXPECT_EQ((Texts{{"en", "Network driver"}, {"fr", "Pilote réseau"}}), TextsOf(copy.GetName()));
    EXPECT_EQ(QRM_COMPONENT_DRVR, copy.GetComponentType().GetValue());
    EXPECT_EQ((Texts{{"en", "Fixes things"}, {"de", "Behebt Dinge"}}), DescriptionOf(copy));
    EXPECT_EQ("NI", Str(copy.GetCategory().GetCode()));
    EXPECT_EQ("LU", Str(copy.GetLUCategory().GetCode()));
    ASSERT_EQ(1u, DevicesOf(copy).size());
    EXPECT_EQ(4711ULL, DevicesOf(copy)[0]->GetComponentID());
    EXPECT_TRUE(copy.GetSupportedSystems().GetDisplay());
    EXPECT_EQ("setup.exe", Str(copy.GetInstallInstruction().GetCommand()));
    EXPECT_EQ("http://example.invalid/info", Str(copy.GetImportantInfo().GetURL()));
    EXPECT_EQ(QRM_CRITICALITY_LEVEL2, copy.GetCriticality().GetValue());
    EXPECT_TRUE(copy.GetMSIID() == Guid(0x21));
    ASSERT_EQ(1u, WrappersOf(copy).size());
    EXPECT_EQ("capsule", Str(WrappersOf(copy)[0].GetName()));
    EXPECT_EQ("2.0", Str(copy.GetSchemaVersion()));
    EXPECT_EQ("R123", Str(copy.GetReleaseID()));
    EXPECT_EQ(1000ULL, copy.GetReleaseDate().GetValue());
    EXPECT_EQ("A05", Str(copy.GetVendorVersion()));
    EXPECT_EQ("1.2.3", Str(copy.GetTolvarVersion()));
    EXPECT_EQ("LWXP", Str(copy.GetPackageType()));
    EXPECT_EQ("3.1", Str(copy.GetXMLGenVersion()));
    EXPECT_EQ("FOLDER/driver.exe", Str(copy.GetPath()));
    EXPECT_EQ("PKG1", Str(copy.GetPackageID()));
    EXPECT_EQ(2000ULL, copy.GetDateTime().GetValue());
    EXPECT_EQ("abcdef0123456789abcdef0123456789", Str(copy.GetMD5Hash()));
    EXPECT_EQ(123456789ULL, copy.GetSize());
    EXPECT_TRUE(copy.GetIdentifier() == Guid(0x31));
    EXPECT_TRUE(copy.GetPredecessor() == Guid(0x41));
    EXPECT_TRUE(copy.RequiresReboot());
    EXPECT_TRUE(copy.RequiresContainerPowerCycle());
}

TEST(QRMSoftwareComponentCopy, CopyHoldsItsOwnDevicesInSourceOrder)
{
    QRMSoftwareComponent component;
    QRMDevice a = DeviceWithID(1);
    QRMDevice b = DeviceWithID(2);
    component.AddDeviceSupport(a);
    component.AddDeviceSupport(b);
    QRMSoftwareComponent copy(component);
    std::vector<QRMDevice*> source = DevicesOf(component);
    std::vector<QRMDevice*> copied = DevicesOf(copy);
    ASSERT_EQ(2u, copied.size());
    EXPECT_NE(source[0], copied[0]);
    EXPECT_NE(source[1], copied[1]);
    EXPECT_EQ(1ULL, copied[0]->GetComponentID());
    EXPECT_EQ(2ULL, copied[1]->GetComponentID());
}

TEST(QRMSoftwareComponentCopy, CopyWithTwoDifferentDevicesComparesUnequalToItsSource)
{
    QRMSoftwareComponent component;
    QRMDevice a = DeviceWithID(1);
    QRMDevice b = DeviceWithID(2);
    component.AddDeviceSupport(a);
    component.AddDeviceSupport(b);
    QRMSoftwareComponent copy(component);
    EXPECT_FALSE(copy == component);
}

TEST(QRMSoftwareComponentCopy, ChangingTheCopyLeavesTheSourceUntouched)
{
    QRMSoftwareComponent component = FilledComponent();
    std::vector<QRMDevice*> sourceDevices = DevicesOf(component);
    {
        QRMSoftwareComponent copy(component);
        QRMDevice extra = DeviceWithID(9);
        copy.AddDeviceSupport(extra);
        DevicesOf(copy)[0]->SetComponentID(1);
        copy.AddDescriptionDisplayValue(VELString("es"), VELString("Arregla"));
        copy.RemoveDescriptionDisplayValue(VELString("en"));
        QRMFMPWrapperInformation wrapper = WrapperNamed("other");
        copy.AddWrapper(wrapper);
        copy.SetPath(VELString("elsewhere"));
        copy.SetSize(1);
    }
    EXPECT_EQ(sourceDevices, DevicesOf(component));
    EXPECT_EQ(4711ULL, sourceDevices[0]->GetComponentID());
    EXPECT_EQ((Texts{{"en", "Fixes things"}, {"de", "Behebt Dinge"}}), DescriptionOf(component));
    EXPECT_EQ(1u, WrappersOf(component).size());
    EXPECT_EQ("FOLDER/driver.exe", Str(component.GetPath()));
    EXPECT_TRUE(component == FilledComponent());
}

TEST(QRMSoftwareComponentCopy, AssignmentReplacesDevicesWrappersAndFields)
{
    QRMSoftwareComponent source = FilledComponent();
    QRMSoftwareComponent target;
    QRMDevice own = DeviceWithID(77);
    target.AddDeviceSupport(own);
    QRMFMPWrapperInformation ownWrapper = WrapperNamed("own");
    target.AddWrapper(ownWrapper);
    target.AddDescriptionDisplayValue(VELString("it"), VELString("Ciao"));

    target = source;

    std::vector<QRMDevice*> devices = DevicesOf(target);
    ASSERT_EQ(1u, devices.size());
    EXPECT_EQ(4711ULL, devices[0]->GetComponentID());
    EXPECT_NE(DevicesOf(source)[0], devices[0]);
    ASSERT_EQ(1u, WrappersOf(target).size());
    EXPECT_EQ("capsule", Str(WrappersOf(target)[0].GetName()));
    EXPECT_EQ((Texts{{"en", "Fixes things"}, {"de", "Behebt Dinge"}}), DescriptionOf(target));
    EXPECT_TRUE(target == source);
}

TEST(QRMSoftwareComponentCopy, AssignedComponentIsIndependentOfItsSource)
{
    QRMSoftwareComponent target;
    {
        QRMSoftwareComponent source = FilledComponent();
        target = source;
        DevicesOf(source)[0]->SetComponentID(3);
    }
    ASSERT_EQ(1u, DevicesOf(target).size());
    EXPECT_EQ(4711ULL, DevicesOf(target)[0]->GetComponentID());
    EXPECT_TRUE(target == FilledComponent());
}

TEST(QRMSoftwareComponentCopy, SelfAssignmentEmptiesDevicesWrappersAndDescription)
{
    QRMSoftwareComponent component = FilledComponent();
    QRMSoftwareComponent& alias = component;
    component = alias;
    EXPECT_TRUE(DevicesOf(component).empty());
    EXPECT_TRUE(WrappersOf(component).empty());
    EXPECT_TRUE(DescriptionOf(component).empty());
    EXPECT_EQ(0u, TextCount(component.GetName()));
}

TEST(QRMSoftwareComponentCopy, SelfAssignmentKeepsScalarFields)
{
    QRMSoftwareComponent component = FilledComponent();
    QRMSoftwareComponent& alias = component;
    component = alias;
    EXPECT_EQ(123456789ULL, component.GetSize());
    EXPECT_EQ("FOLDER/driver.exe", Str(component.GetPath()));
    EXPECT_EQ("abcdef0123456789abcdef0123456789", Str(component.GetMD5Hash()));
    EXPECT_EQ(1000ULL, component.GetReleaseDate().GetValue());
    EXPECT_TRUE(component.GetIdentifier() == Guid(0x31));
    EXPECT_TRUE(component.GetMSIID() == Guid(0x21));
    EXPECT_TRUE(component.RequiresReboot());
    EXPECT_TRUE(component.RequiresContainerPowerCycle());
    EXPECT_EQ(QRM_COMPONENT_DRVR, component.GetComponentType().GetValue());
    EXPECT_EQ("NI", Str(component.GetCategory().GetCode()));
}
