// QRMDevice: a supported device's identifier and flag, its PCI and
// plug-and-play identities, texts and lists of related records; adding,
// removing, copying, and how two devices compare.
#include "QRMDevice.h"

#include "FieldDifferences.h"
#include "ModelBuilders.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <ostream>

#include <string>
#include <utility>
#include <vector>

using builders::MakePCI;
using builders::U8;

namespace {

QRMPnPInfo MakePnP(unsigned char first, bool withPrimary = true)
{
    QRMPnPInfo pnp;
    if (withPrimary) {
        pnp.SetPrimary(QRMPnPInfo::Primary{{first, 2, 3, 4}});
    }
    pnp.SetSecondary(QRMPnPInfo::Secondary{{5, 6, first}});
    pnp.SetValue(QRMPnPInfo::Value{{first, 0, 0, 9}});
    return pnp;
}

QRMSubComponent MakeSubComponent(const char* name, const char* version)
{
    QRMSubComponent sub;
    sub.SetName(name);
    sub.SetVersion(version);
    sub.AddDisplayValue("en", name);
    return sub;
}

QRMDependency MakeDependency(const char* name)
{
    QRMDependency dependency;
    dependency.SetType(2);
    dependency.SetName(name);
    dependency.SetVersion("1.0");
    dependency.SetPath("pkg/dep.exe");
    dependency.SetSize(1234);
    dependency.SetFlags(1);
    dependency.AddPCIInfo(MakePCI(0x8086, 0x1000, 0, 0));
    return dependency;
}

QRMSoftDependency MakeSoftDependency(const char* name)
{
    QRMSoftDependency dependency;
    dependency.SetName(name);
    dependency.SetVersion("2.0");
    dependency.AddApplicability(QRMDeviceApplicability("en", name));
    return dependency;
}

std::vector<QRMPCIInfo*> PCIOf(const QRMDevice& device)
{
    std::vector<QRMPCIInfo*> out;
    device.GetPCIInfo(out);
    return out;
}

std::vector<QRMPnPInfo> PnPOf(const QRMDevice& device)
{
    std::vector<QRMPnPInfo> out;
    device.GetPnPInfo(out);
    return out;
}

std::vector<QRMSubComponent> SubComponentsOf(const QRMDevice& device)
{
    std::vector<QRMSubComponent> out;
    device.GetSubComponents(out);
    return out;
}

std::vector<QRMDependency> DependenciesOf(const QRMDevice& device)
{
    std::vector<QRMDependency> out;
    device.GetDependencies(out);
    return out;
}

std::vector<QRMSoftDependency> SoftDependenciesOf(const QRMDevice& device)
{
    std::vector<QRMSoftDependency> out;
    device.GetSoftDependencies(out);
    return out;
}

std::vector<QRMDeviceApplicability> ApplicabilityOf(const QRMDevice& device)
{
    std::vector<QRMDeviceApplicability> out;
    device.GetApplicability(out);
    return out;
}

void ExpectPCI(const QRMPCIInfo& pci, unsigned int vendorID, unsigned int deviceID, unsigned int subVendorID,
               unsigned int subDeviceID)
{
    EXPECT_EQ(vendorID, pci.GetVendorID());
    EXPECT_EQ(deviceID, pci.GetDeviceID());
    EXPECT_EQ(subVendorID, pci.GetSubVendorID());
    EXPECT_EQ(subDeviceID, pci.GetSubDeviceID());
}

QRMRollbackInformation MakeRollback(const char* version)
{
    QRMRollbackInformation rollback;
    rollback.SetRollbackIdentifier(VELGUID(VELGUID::Bytes{{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}}));
    rollback.SetRollbackVersion(version);
    rollback.SetPackagePath("C:\\pkg");
    rollback.SetSequence(3);
    rollback.SetFlags(1);
    rollback.SetNote("note");
    return rollback;
}

// A device whose every list holds one entry.
QRMDevice MakeFullDevice()
{
    QRMDevice device;
    device.SetComponentID(77);
    device.SetEmbedded(true);
    QRMRollbackInformation rollback = MakeRollback("A00");
    device.SetRollbackInformation(rollback);
    device.AddPCIInfo(MakePCI(0x8086, 0x1000, 0x1028, 0x0001));
    device.AddPnPInfo(MakePnP(1));
    device.AddDisplayValue("en", "Network adapter");
    QRMSubComponent sub = MakeSubComponent("Boot agent", "1.2");
    device.AddSubComponent(sub);
    QRMDependency dependency = MakeDependency("Runtime");
    device.AddDependency(dependency);
    QRMSoftDependency soft = MakeSoftDependency("Utility");
    device.AddSoftDependency(soft);
    QRMDeviceApplicability applicability("en", "Desktop");
    device.AddApplicability(applicability);
    return device;
}

using DeviceDifference = FieldDifference<QRMDevice>;

const DeviceDifference kDeviceDifferences[] = {
    {"DifferentComponentIdsMakeThemUnequal",
     [](QRMDevice& a, QRMDevice& b) {
         a = MakeFullDevice();
         b = MakeFullDevice();
         b.SetComponentID(78);
     },
     false},
    {"DifferentEmbeddedFlagsMakeThemUnequal",
     [](QRMDevice& a, QRMDevice& b) {
         a = MakeFullDevice();
         b = MakeFullDevice();
         b.SetEmbedded(false);
     },
     false},
    {"DifferentRollbackInformationMakesThemUnequal",
     [](QRMDevice& a, QRMDevice& b) {
         a = MakeFullDevice();
         b = MakeFullDevice();
         QRMRollbackInformation rollback = MakeRollback("A99");
         b.SetRollbackInformation(rollback);
     },
     false},
    {"SameIdFlagAndOneIdenticalPCIEntryEachAreEqual",
     [](QRMDevice& a, QRMDevice& b) {
         a.SetComponentID(5);
         b.SetComponentID(5);
         a.SetEmbedded(true);
         b.SetEmbedded(true);
         a.AddPCIInfo(MakePCI(1, 2, 3, 4));
         b.AddPCIInfo(MakePCI(1, 2, 3, 4));
     },
     true},
    {"OneDifferentPCIEntryEachMakesThemUnequal",
     [](QRMDevice& a, QRMDevice& b) {
         a.AddPCIInfo(MakePCI(1, 2, 3, 4));
         b.AddPCIInfo(MakePCI(1, 2, 3, 5));
     },
     false},
    {"TheSameTwoDifferentPCIEntriesEachMakeThemUnequal",
     [](QRMDevice& a, QRMDevice& b) {
         a.AddPCIInfo(MakePCI(1, 2, 3, 4));
         a.AddPCIInfo(MakePCI(5, 6, 7, 8));
         b.AddPCIInfo(MakePCI(1, 2, 3, 4));
         b.AddPCIInfo(MakePCI(5, 6, 7, 8));
     },
     false},
    {"DifferentNumbersOfPCIEntriesMakeThemUnequal", [](QRMDevice& a, QRMDevice&) { a.AddPCIInfo(MakePCI(1, 2, 3, 4)); },
     false},
    {"OneIdenticalPnPEntryEachKeepsThemEqual",
     [](QRMDevice& a, QRMDevice& b) {
         a.AddPnPInfo(MakePnP(1));
         b.AddPnPInfo(MakePnP(1));
     },
     true},
    {"DifferentPnPEntriesMakeThemUnequal",
     [](QRMDevice& a, QRMDevice& b) {
         a.AddPnPInfo(MakePnP(1));
         b.AddPnPInfo(MakePnP(2));
     },
     false},
    {"TheSameTwoDifferentPnPEntriesEachMakeThemUnequal",
     [](QRMDevice& a, QRMDevice& b) {
         a.AddPnPInfo(MakePnP(1));
         a.AddPnPInfo(MakePnP(2));
         b.AddPnPInfo(MakePnP(1));
         b.AddPnPInfo(MakePnP(2));
     },
     false},
    {"DifferentNumbersOfPnPEntriesMakeThemUnequal", [](QRMDevice& a, QRMDevice&) { a.AddPnPInfo(MakePnP(1)); }, false},
    {"OneIdenticalTextEachKeepsThemEqual",
     [](QRMDevice& a, QRMDevice& b) {
         a.AddDisplayValue("en", "Adapter");
         b.AddDisplayValue("en", "Adapter");
     },
     true},
    {"OneTextEachOfTheSameLanguageButDifferentValueMakesThemUnequal",
     [](QRMDevice& a, QRMDevice& b) {
         a.AddDisplayValue("en", "Adapter");
         b.AddDisplayValue("en", "Controller");
     },
     false},
    {"OneTextEachInDifferentLanguagesMakesThemUnequal",
     [](QRMDevice& a, QRMDevice& b) {
         a.AddDisplayValue("en", "Adapter");
         b.AddDisplayValue("fr", "Adapter");
     },
     false},
    {"DifferentNumbersOfTextsMakeThemUnequal", [](QRMDevice& a, QRMDevice&) { a.AddDisplayValue("en", "Adapter"); },
     false},
};

class QRMDeviceEquality : public testing::TestWithParam<DeviceDifference> {};

// A device list compared by the all-pairs rule (kept for compatibility):
// one entry against none is unequal, the same entry on both sides equal,
// two different entries on both sides unequal (each is compared with the
// other too), and one entry against another unequal.
template <class Entry>
void ExpectAllPairsList(QRMKitReturnCode (QRMDevice::*add)(Entry&), Entry& first, Entry& second)
{
    QRMDevice a;
    QRMDevice b;
    (a.*add)(first);
    EXPECT_FALSE(a == b);
    (b.*add)(first);
    EXPECT_TRUE(a == b);
    (a.*add)(second);
    (b.*add)(second);
    EXPECT_FALSE(a == b);

    QRMDevice c;
    QRMDevice d;
    (c.*add)(first);
    (d.*add)(second);
    EXPECT_FALSE(c == d);
}

}  // namespace

TEST(QRMDeviceFields, NewDeviceHasIdZeroIsNotEmbeddedAndHoldsNothing)
{
    QRMDevice device;
    EXPECT_EQ(0ULL, device.GetComponentID());
    EXPECT_FALSE(device.IsEmbedded());
    EXPECT_TRUE(device.GetRollbackInformation() == QRMRollbackInformation());
    EXPECT_TRUE(PCIOf(device).empty());
    EXPECT_TRUE(PnPOf(device).empty());
    EXPECT_TRUE(TextsOf(device).empty());
    EXPECT_TRUE(SubComponentsOf(device).empty());
    EXPECT_TRUE(DependenciesOf(device).empty());
    EXPECT_TRUE(SoftDependenciesOf(device).empty());
    EXPECT_TRUE(ApplicabilityOf(device).empty());
}

TEST(QRMDeviceFields, SettersReturnSuccessAndStoreTheValues)
{
    QRMDevice device;
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetComponentID(0xFFFFFFFF00000002ULL));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetEmbedded(true));
    QRMRollbackInformation rollback = MakeRollback("A01");
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetRollbackInformation(rollback));
    EXPECT_EQ(0xFFFFFFFF00000002ULL, device.GetComponentID());
    EXPECT_TRUE(device.IsEmbedded());
    QRMRollbackInformation held = device.GetRollbackInformation();
    EXPECT_TRUE(held == rollback);
    EXPECT_EQ("A01", U8(held.GetRollbackVersion()));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetEmbedded(false));
    EXPECT_FALSE(device.IsEmbedded());
}

TEST(QRMDeviceFields, RollbackInformationIsStoredAndHandedOutAsACopy)
{
    QRMDevice device;
    QRMRollbackInformation rollback = MakeRollback("A01");
    device.SetRollbackInformation(rollback);
    rollback.SetRollbackVersion("CHANGED");
    QRMRollbackInformation handedOut = device.GetRollbackInformation();
    handedOut.SetNote("CHANGED");
    EXPECT_EQ("A01", U8(device.GetRollbackInformation().GetRollbackVersion()));
    EXPECT_EQ("note", U8(device.GetRollbackInformation().GetNote()));
}

TEST(QRMDeviceTexts, AddAndRemoveFollowTheOneTextPerLanguageRule)
{
    QRMDevice device;
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveDisplayValue("en"));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddDisplayValue("en", "Adapter"));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddDisplayValue("en", "Other"));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddDisplayValue("de", "Adapter DE"));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.RemoveDisplayValue("de"));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveDisplayValue("de"));
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Adapter"}}), TextsOf(device));
}

TEST(QRMDeviceTexts, GetDisplayValuesKeepsExistingItemsInFront)
{
    QRMDevice device;
    device.AddDisplayValue("en", "Adapter");
    std::vector<QRMDisplay> out(1, QRMDisplay("xx", "earlier"));
    device.GetDisplayValues(out);
    ASSERT_EQ(2u, out.size());
    EXPECT_EQ("earlier", U8(out[0].GetValue()));
    EXPECT_EQ("Adapter", U8(out[1].GetValue()));
}

TEST(QRMDevicePCI, AddPCIInfoAppendsACopyAndReturnsSuccess)
{
    QRMDevice device;
    QRMPCIInfo pci = MakePCI(0x8086, 0x1000, 0x1028, 0x0001);
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddPCIInfo(pci));
    std::vector<QRMPCIInfo*> held = PCIOf(device);
    ASSERT_EQ(1u, held.size());
    EXPECT_NE(&pci, held[0]);
    ExpectPCI(*held[0], 0x8086, 0x1000, 0x1028, 0x0001);
    pci.SetVendorID(0x10DE);
    EXPECT_EQ(0x8086u, held[0]->GetVendorID());
}

TEST(QRMDevicePCI, AddPCIInfoEqualInAllFourNumbersReturnsAlreadyExists)
{
    QRMDevice device;
    ASSERT_EQ(QRM_KIT_SUCCESS, device.AddPCIInfo(MakePCI(0x8086, 0x1000, 0x1028, 0x0001)));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddPCIInfo(MakePCI(0x8086, 0x1000, 0x1028, 0x0001)));
    EXPECT_EQ(1u, PCIOf(device).size());
}

TEST(QRMDevicePCI, AddPCIInfoDifferingOnlyInSubDeviceIdIsAdded)
{
    QRMDevice device;
    ASSERT_EQ(QRM_KIT_SUCCESS, device.AddPCIInfo(MakePCI(0x8086, 0x1000, 0x1028, 0x0001)));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddPCIInfo(MakePCI(0x8086, 0x1000, 0x1028, 0x0002)));
    std::vector<QRMPCIInfo*> held = PCIOf(device);
    ASSERT_EQ(2u, held.size());
    ExpectPCI(*held[0], 0x8086, 0x1000, 0x1028, 0x0001);
    ExpectPCI(*held[1], 0x8086, 0x1000, 0x1028, 0x0002);
}

TEST(QRMDevicePCI, AddPCIInfoDifferingInAnySingleNumberIsAdded)
{
    QRMDevice device;
    ASSERT_EQ(QRM_KIT_SUCCESS, device.AddPCIInfo(MakePCI(1, 2, 3, 4)));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddPCIInfo(MakePCI(9, 2, 3, 4)));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddPCIInfo(MakePCI(1, 9, 3, 4)));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddPCIInfo(MakePCI(1, 2, 9, 4)));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddPCIInfo(MakePCI(1, 2, 3, 9)));
    EXPECT_EQ(5u, PCIOf(device).size());
}

TEST(QRMDevicePCI, GetPCIInfoAppendsTheHeldPointersBehindExistingItems)
{
    QRMDevice device;
    device.AddPCIInfo(MakePCI(1, 2, 3, 4));
    device.AddPCIInfo(MakePCI(5, 6, 7, 8));
    QRMPCIInfo outside;
    std::vector<QRMPCIInfo*> out{&outside};
    device.GetPCIInfo(out);
    ASSERT_EQ(3u, out.size());
    EXPECT_EQ(&outside, out[0]);
    ExpectPCI(*out[1], 1, 2, 3, 4);
    ExpectPCI(*out[2], 5, 6, 7, 8);
}

TEST(QRMDevicePCI, GetPCIInfoHandsOutTheSamePointersEachTimeWhileTheDeviceIsUnchanged)
{
    QRMDevice device;
    device.AddPCIInfo(MakePCI(1, 2, 3, 4));
    device.AddPCIInfo(MakePCI(5, 6, 7, 8));
    std::vector<QRMPCIInfo*> first = PCIOf(device);
    std::vector<QRMPCIInfo*> second = PCIOf(device);
    EXPECT_EQ(first, second);
    ExpectPCI(*first[0], 1, 2, 3, 4);
    ExpectPCI(*first[1], 5, 6, 7, 8);
}

TEST(QRMDevicePCI, ChangingAHeldRecordThroughItsPointerChangesTheDevice)
{
    QRMDevice device;
    device.AddPCIInfo(MakePCI(1, 2, 3, 4));
    PCIOf(device)[0]->SetSubDeviceID(40);
    EXPECT_TRUE(device.HasPCI(MakePCI(1, 2, 3, 40)));
    EXPECT_FALSE(device.HasPCI(MakePCI(1, 2, 3, 4)));
}

TEST(QRMDevicePCI, HasPCIOnADeviceWithoutPCIEntriesIsFalse)
{
    QRMDevice device;
    EXPECT_FALSE(device.HasPCI(MakePCI(0x8086, 0x1000, 0, 0)));
    EXPECT_FALSE(device.HasPCI(QRMPCIInfo()));
}

TEST(QRMDevicePCI, HasPCIIsTrueForAnExactMatchOfAnyEntry)
{
    QRMDevice device;
    device.AddPCIInfo(MakePCI(1, 2, 3, 4));
    device.AddPCIInfo(MakePCI(0x8086, 0x1000, 0x1028, 0x0001));
    EXPECT_TRUE(device.HasPCI(MakePCI(1, 2, 3, 4)));
    EXPECT_TRUE(device.HasPCI(MakePCI(0x8086, 0x1000, 0x1028, 0x0001)));
}

TEST(QRMDevicePCI, HasPCIIsFalseWhenOnlyTheSubIdsDiffer)
{
    QRMDevice device;
    device.AddPCIInfo(MakePCI(0x8086, 0x1000, 0x1028, 0x0001));
    EXPECT_FALSE(device.HasPCI(MakePCI(0x8086, 0x1000, 0x1028, 0x0002)));
    EXPECT_FALSE(device.HasPCI(MakePCI(0x8086, 0x1000, 0x1029, 0x0001)));
}

TEST(QRMDevicePCI, HasPCIIsFalseWhenVendorOrDeviceIdDiffers)
{
    QRMDevice device;
    device.AddPCIInfo(MakePCI(0x8086, 0x1000, 0x1028, 0x0001));
    EXPECT_FALSE(device.HasPCI(MakePCI(0x8087, 0x1000, 0x1028, 0x0001)));
    EXPECT_FALSE(device.HasPCI(MakePCI(0x8086, 0x1001, 0x1028, 0x0001)));
}

TEST(QRMDevicePCI, ZeroSubIdsAreNoWildcards)
{
    QRMDevice generic;
    generic.AddPCIInfo(MakePCI(0x8086, 0x1000, 0, 0));
    EXPECT_FALSE(generic.HasPCI(MakePCI(0x8086, 0x1000, 0x1028, 0x0001)));
    EXPECT_TRUE(generic.HasPCI(MakePCI(0x8086, 0x1000, 0, 0)));

    QRMDevice specific;
    specific.AddPCIInfo(MakePCI(0x8086, 0x1000, 0x1028, 0x0001));
    EXPECT_FALSE(specific.HasPCI(MakePCI(0x8086, 0x1000, 0, 0)));
}

TEST(QRMDevicePCI, RemovePCIInfoOnADeviceWithoutEntriesReturnsNotFound)
{
    QRMDevice device;
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemovePCIInfo(MakePCI(1, 2, 3, 4)));
}

TEST(QRMDevicePCI, RemovePCIInfoOfAnAbsentIdentityReturnsNotFoundAndKeepsTheList)
{
    QRMDevice device;
    device.AddPCIInfo(MakePCI(1, 2, 3, 4));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemovePCIInfo(MakePCI(1, 2, 3, 5)));
    std::vector<QRMPCIInfo*> held = PCIOf(device);
    ASSERT_EQ(1u, held.size());
    ExpectPCI(*held[0], 1, 2, 3, 4);
}

TEST(QRMDevicePCI, RemovingTheOnlyEntryEmptiesTheList)
{
    QRMDevice device;
    device.AddPCIInfo(MakePCI(1, 2, 3, 4));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.RemovePCIInfo(MakePCI(1, 2, 3, 4)));
    EXPECT_TRUE(PCIOf(device).empty());
    EXPECT_FALSE(device.HasPCI(MakePCI(1, 2, 3, 4)));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemovePCIInfo(MakePCI(1, 2, 3, 4)));
}

TEST(QRMDevicePCI, RemovingTheLastOfTwoLeavesTheFirstIntact)
{
    QRMDevice device;
    device.AddPCIInfo(MakePCI(1, 2, 3, 4));
    device.AddPCIInfo(MakePCI(5, 6, 7, 8));
    std::vector<QRMPCIInfo*> before = PCIOf(device);
    EXPECT_EQ(QRM_KIT_SUCCESS, device.RemovePCIInfo(MakePCI(5, 6, 7, 8)));
    std::vector<QRMPCIInfo*> after = PCIOf(device);
    ASSERT_EQ(1u, after.size());
    EXPECT_EQ(before[0], after[0]);
    ExpectPCI(*after[0], 1, 2, 3, 4);
    EXPECT_FALSE(device.HasPCI(MakePCI(5, 6, 7, 8)));
}

TEST(QRMDevicePCI, RemovingTheFirstOfTwoLeavesTheSecondPointerResetToAllZeros)
{
    QRMDevice device;
    device.AddPCIInfo(MakePCI(1, 2, 3, 4));
    device.AddPCIInfo(MakePCI(5, 6, 7, 8));
    std::vector<QRMPCIInfo*> before = PCIOf(device);
    ASSERT_EQ(2u, before.size());
    EXPECT_EQ(QRM_KIT_SUCCESS, device.RemovePCIInfo(MakePCI(1, 2, 3, 4)));
    std::vector<QRMPCIInfo*> after = PCIOf(device);
    ASSERT_EQ(1u, after.size());
    EXPECT_EQ(before[1], after[0]);
    ExpectPCI(*after[0], 0, 0, 0, 0);
    EXPECT_FALSE(device.HasPCI(MakePCI(5, 6, 7, 8)));
    EXPECT_FALSE(device.HasPCI(MakePCI(1, 2, 3, 4)));
    EXPECT_TRUE(device.HasPCI(QRMPCIInfo()));
}

TEST(QRMDevicePCI, RemovingTheMiddleOfThreeResetsTheEntryThatFollowedAndKeepsTheOthers)
{
    QRMDevice device;
    device.AddPCIInfo(MakePCI(1, 1, 1, 1));
    device.AddPCIInfo(MakePCI(2, 2, 2, 2));
    device.AddPCIInfo(MakePCI(3, 3, 3, 3));
    std::vector<QRMPCIInfo*> before = PCIOf(device);
    EXPECT_EQ(QRM_KIT_SUCCESS, device.RemovePCIInfo(MakePCI(2, 2, 2, 2)));
    std::vector<QRMPCIInfo*> after = PCIOf(device);
    ASSERT_EQ(2u, after.size());
    EXPECT_EQ(before[0], after[0]);
    EXPECT_EQ(before[2], after[1]);
    ExpectPCI(*after[0], 1, 1, 1, 1);
    ExpectPCI(*after[1], 0, 0, 0, 0);
}

TEST(QRMDevicePCI, AfterRemovalTheRemovedIdentityCanBeAddedAgain)
{
    QRMDevice device;
    device.AddPCIInfo(MakePCI(1, 2, 3, 4));
    device.AddPCIInfo(MakePCI(5, 6, 7, 8));
    ASSERT_EQ(QRM_KIT_SUCCESS, device.RemovePCIInfo(MakePCI(1, 2, 3, 4)));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddPCIInfo(MakePCI(1, 2, 3, 4)));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddPCIInfo(QRMPCIInfo()));
    std::vector<QRMPCIInfo*> held = PCIOf(device);
    ASSERT_EQ(2u, held.size());
    ExpectPCI(*held[1], 1, 2, 3, 4);
}

TEST(QRMDevicePnP, AddPnPInfoReturnsSuccessThenAlreadyExistsForAnEqualRecord)
{
    QRMDevice device;
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddPnPInfo(MakePnP(1)));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddPnPInfo(MakePnP(1)));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddPnPInfo(MakePnP(1, false)));
    EXPECT_EQ(2u, PnPOf(device).size());
}

TEST(QRMDevicePnP, GetPnPInfoAppendsCopiesInOrderBehindExistingItems)
{
    QRMDevice device;
    device.AddPnPInfo(MakePnP(1));
    device.AddPnPInfo(MakePnP(2));
    std::vector<QRMPnPInfo> out(1, MakePnP(9));
    device.GetPnPInfo(out);
    ASSERT_EQ(3u, out.size());
    EXPECT_TRUE(out[0] == MakePnP(9));
    EXPECT_TRUE(out[1] == MakePnP(1));
    EXPECT_TRUE(out[2] == MakePnP(2));
}

TEST(QRMDevicePnP, HasPnPIsTrueOnlyForAnEqualRecord)
{
    QRMDevice device;
    EXPECT_FALSE(device.HasPnP(MakePnP(1)));
    device.AddPnPInfo(MakePnP(1));
    EXPECT_TRUE(device.HasPnP(MakePnP(1)));
    EXPECT_FALSE(device.HasPnP(MakePnP(2)));
    EXPECT_FALSE(device.HasPnP(MakePnP(1, false)));
}

TEST(QRMDevicePnP, RemovePnPInfoOfAnAbsentRecordReturnsNotFound)
{
    QRMDevice device;
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemovePnPInfo(MakePnP(1)));
    device.AddPnPInfo(MakePnP(1));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemovePnPInfo(MakePnP(2)));
    EXPECT_EQ(1u, PnPOf(device).size());
}

TEST(QRMDevicePnP, RemovingTheLastOfTwoLeavesTheFirstIntact)
{
    QRMDevice device;
    device.AddPnPInfo(MakePnP(1));
    device.AddPnPInfo(MakePnP(2));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.RemovePnPInfo(MakePnP(2)));
    std::vector<QRMPnPInfo> held = PnPOf(device);
    ASSERT_EQ(1u, held.size());
    EXPECT_TRUE(held[0] == MakePnP(1));
}

TEST(QRMDevicePnP, RemovingTheFirstOfTwoLeavesOneRecordResetToNew)
{
    QRMDevice device;
    device.AddPnPInfo(MakePnP(1));
    device.AddPnPInfo(MakePnP(2));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.RemovePnPInfo(MakePnP(1)));
    std::vector<QRMPnPInfo> held = PnPOf(device);
    ASSERT_EQ(1u, held.size());
    EXPECT_FALSE(held[0].HasPrimary());
    EXPECT_FALSE(held[0].HasSecondary());
    EXPECT_EQ((QRMPnPInfo::Value{{0, 0, 0, 0}}), held[0].GetValue());
    EXPECT_FALSE(device.HasPnP(MakePnP(2)));
}

TEST(QRMDeviceSubComponents, AddSubComponentReturnsSuccessThenAlreadyExistsForAnEqualOne)
{
    QRMDevice device;
    QRMSubComponent sub = MakeSubComponent("Boot agent", "1.2");
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddSubComponent(sub));
    QRMSubComponent same = MakeSubComponent("Boot agent", "1.2");
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddSubComponent(same));
    QRMSubComponent other = MakeSubComponent("Boot agent", "1.3");
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddSubComponent(other));
    std::vector<QRMSubComponent> held = SubComponentsOf(device);
    ASSERT_EQ(2u, held.size());
    EXPECT_EQ("1.2", U8(held[0].GetVersion()));
    EXPECT_EQ("1.3", U8(held[1].GetVersion()));
}

TEST(QRMDeviceSubComponents, GetSubComponentsKeepsExistingItemsInFront)
{
    QRMDevice device;
    QRMSubComponent sub = MakeSubComponent("Boot agent", "1.2");
    device.AddSubComponent(sub);
    std::vector<QRMSubComponent> out(1, MakeSubComponent("Earlier", "0"));
    device.GetSubComponents(out);
    ASSERT_EQ(2u, out.size());
    EXPECT_EQ("Earlier", U8(out[0].GetName()));
    EXPECT_EQ("Boot agent", U8(out[1].GetName()));
}

TEST(QRMDeviceSubComponents, RemoveSubComponentReturnsNotFoundWhenNoneIsEqual)
{
    QRMDevice device;
    QRMSubComponent sub = MakeSubComponent("Boot agent", "1.2");
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveSubComponent(sub));
    device.AddSubComponent(sub);
    QRMSubComponent other = MakeSubComponent("Boot agent", "9");
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveSubComponent(other));
    EXPECT_EQ(1u, SubComponentsOf(device).size());
}

TEST(QRMDeviceSubComponents, RemovingTheLastOfTwoLeavesTheFirstIntact)
{
    QRMDevice device;
    QRMSubComponent first = MakeSubComponent("A", "1");
    QRMSubComponent second = MakeSubComponent("B", "2");
    device.AddSubComponent(first);
    device.AddSubComponent(second);
    EXPECT_EQ(QRM_KIT_SUCCESS, device.RemoveSubComponent(second));
    std::vector<QRMSubComponent> held = SubComponentsOf(device);
    ASSERT_EQ(1u, held.size());
    EXPECT_TRUE(held[0] == first);
    EXPECT_EQ("A", U8(held[0].GetName()));
}

TEST(QRMDeviceSubComponents, RemovingTheFirstOfTwoLeavesOneEntryResetToNew)
{
    QRMDevice device;
    QRMSubComponent first = MakeSubComponent("A", "1");
    QRMSubComponent second = MakeSubComponent("B", "2");
    device.AddSubComponent(first);
    device.AddSubComponent(second);
    EXPECT_EQ(QRM_KIT_SUCCESS, device.RemoveSubComponent(first));
    std::vector<QRMSubComponent> held = SubComponentsOf(device);
    ASSERT_EQ(1u, held.size());
    EXPECT_EQ("", U8(held[0].GetName()));
    EXPECT_EQ("", U8(held[0].GetVersion()));
    EXPECT_TRUE(TextsOf(held[0]).empty());
}

TEST(QRMDeviceDependencies, AddDependencyReturnsSuccessThenAlreadyExistsForAnEqualOne)
{
    QRMDevice device;
    QRMDependency dependency = MakeDependency("Runtime");
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddDependency(dependency));
    QRMDependency same = MakeDependency("Runtime");
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddDependency(same));
    QRMDependency other = MakeDependency("Library");
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddDependency(other));
    std::vector<QRMDependency> held = DependenciesOf(device);
    ASSERT_EQ(2u, held.size());
    EXPECT_EQ("Runtime", U8(held[0].GetName()));
    EXPECT_EQ("Library", U8(held[1].GetName()));
    std::vector<QRMPCIInfo> pci;
    held[0].GetPCIInfo(pci);
    ASSERT_EQ(1u, pci.size());
    EXPECT_EQ(0x8086u, pci[0].GetVendorID());
}

TEST(QRMDeviceDependencies, GetDependenciesKeepsExistingItemsInFront)
{
    QRMDevice device;
    QRMDependency dependency = MakeDependency("Runtime");
    device.AddDependency(dependency);
    std::vector<QRMDependency> out(1, MakeDependency("Earlier"));
    device.GetDependencies(out);
    ASSERT_EQ(2u, out.size());
    EXPECT_EQ("Earlier", U8(out[0].GetName()));
    EXPECT_EQ("Runtime", U8(out[1].GetName()));
}

TEST(QRMDeviceDependencies, RemoveDependencyReturnsNotFoundWhenNoneIsEqual)
{
    QRMDevice device;
    QRMDependency dependency = MakeDependency("Runtime");
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveDependency(dependency));
    device.AddDependency(dependency);
    QRMDependency other = MakeDependency("Runtime");
    other.SetSize(1);
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveDependency(other));
    EXPECT_EQ(1u, DependenciesOf(device).size());
}

TEST(QRMDeviceDependencies, RemovingTheLastOfTwoLeavesTheFirstIntact)
{
    QRMDevice device;
    QRMDependency first = MakeDependency("A");
    QRMDependency second = MakeDependency("B");
    device.AddDependency(first);
    device.AddDependency(second);
    EXPECT_EQ(QRM_KIT_SUCCESS, device.RemoveDependency(second));
    std::vector<QRMDependency> held = DependenciesOf(device);
    ASSERT_EQ(1u, held.size());
    EXPECT_TRUE(held[0] == first);
}

TEST(QRMDeviceDependencies, RemovingTheFirstOfTwoLeavesOneEntryResetToNew)
{
    QRMDevice device;
    QRMDependency first = MakeDependency("A");
    QRMDependency second = MakeDependency("B");
    device.AddDependency(first);
    device.AddDependency(second);
    EXPECT_EQ(QRM_KIT_SUCCESS, device.RemoveDependency(first));
    std::vector<QRMDependency> held = DependenciesOf(device);
    ASSERT_EQ(1u, held.size());
    EXPECT_TRUE(held[0] == QRMDependency());
    EXPECT_EQ("", U8(held[0].GetName()));
    EXPECT_EQ(0ULL, held[0].GetSize());
    std::vector<QRMPCIInfo> pci;
    held[0].GetPCIInfo(pci);
    EXPECT_TRUE(pci.empty());
}

TEST(QRMDeviceSoftDependencies, AddSoftDependencyReturnsSuccessThenAlreadyExistsForAnEqualOne)
{
    QRMDevice device;
    QRMSoftDependency dependency = MakeSoftDependency("Utility");
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddSoftDependency(dependency));
    QRMSoftDependency same = MakeSoftDependency("Utility");
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddSoftDependency(same));
    QRMSoftDependency other = MakeSoftDependency("Utility");
    other.AddApplicability(QRMDeviceApplicability("de", "Nur Laptops"));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddSoftDependency(other));
    std::vector<QRMSoftDependency> held = SoftDependenciesOf(device);
    ASSERT_EQ(2u, held.size());
    std::vector<QRMDeviceApplicability> entries;
    held[1].GetApplicability(entries);
    EXPECT_EQ(2u, entries.size());
}

TEST(QRMDeviceSoftDependencies, GetSoftDependenciesKeepsExistingItemsInFront)
{
    QRMDevice device;
    QRMSoftDependency dependency = MakeSoftDependency("Utility");
    device.AddSoftDependency(dependency);
    std::vector<QRMSoftDependency> out(1, MakeSoftDependency("Earlier"));
    device.GetSoftDependencies(out);
    ASSERT_EQ(2u, out.size());
    EXPECT_EQ("Earlier", U8(out[0].GetName()));
    EXPECT_EQ("Utility", U8(out[1].GetName()));
}

TEST(QRMDeviceSoftDependencies, RemoveSoftDependencyReturnsNotFoundWhenNoneIsEqual)
{
    QRMDevice device;
    QRMSoftDependency dependency = MakeSoftDependency("Utility");
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveSoftDependency(dependency));
    device.AddSoftDependency(dependency);
    QRMSoftDependency other = MakeSoftDependency("Other");
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveSoftDependency(other));
    EXPECT_EQ(1u, SoftDependenciesOf(device).size());
}

TEST(QRMDeviceSoftDependencies, RemovingTheLastOfTwoLeavesTheFirstIntact)
{
    QRMDevice device;
    QRMSoftDependency first = MakeSoftDependency("A");
    QRMSoftDependency second = MakeSoftDependency("B");
    device.AddSoftDependency(first);
    device.AddSoftDependency(second);
    EXPECT_EQ(QRM_KIT_SUCCESS, device.RemoveSoftDependency(second));
    std::vector<QRMSoftDependency> held = SoftDependenciesOf(device);
    ASSERT_EQ(1u, held.size());
    EXPECT_TRUE(held[0] == first);
}

TEST(QRMDeviceSoftDependencies, RemovingTheFirstOfTwoLeavesOneEntryResetToNew)
{
    QRMDevice device;
    QRMSoftDependency first = MakeSoftDependency("A");
    QRMSoftDependency second = MakeSoftDependency("B");
    device.AddSoftDependency(first);
    device.AddSoftDependency(second);
    EXPECT_EQ(QRM_KIT_SUCCESS, device.RemoveSoftDependency(first));
    std::vector<QRMSoftDependency> held = SoftDependenciesOf(device);
    ASSERT_EQ(1u, held.size());
    EXPECT_TRUE(held[0] == QRMSoftDependency());
    std::vector<QRMDeviceApplicability> entries;
    held[0].GetApplicability(entries);
    EXPECT_TRUE(entries.empty());
}

TEST(QRMDeviceApplicabilityList, AddApplicabilityReturnsSuccessThenAlreadyExistsForAnEqualOne)
{
    QRMDevice device;
    QRMDeviceApplicability entry("en", "Desktop");
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddApplicability(entry));
    QRMDeviceApplicability same("en", "Desktop");
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddApplicability(same));
    QRMDeviceApplicability otherText("en", "Laptop");
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddApplicability(otherText));
    std::vector<QRMDeviceApplicability> held = ApplicabilityOf(device);
    ASSERT_EQ(2u, held.size());
    EXPECT_EQ("Desktop", U8(held[0].GetValue()));
    EXPECT_EQ("Laptop", U8(held[1].GetValue()));
}

TEST(QRMDeviceApplicabilityList, GetApplicabilityKeepsExistingItemsInFront)
{
    QRMDevice device;
    QRMDeviceApplicability entry("en", "Desktop");
    device.AddApplicability(entry);
    std::vector<QRMDeviceApplicability> out(1, QRMDeviceApplicability("xx", "earlier"));
    device.GetApplicability(out);
    ASSERT_EQ(2u, out.size());
    EXPECT_EQ("earlier", U8(out[0].GetValue()));
    EXPECT_EQ("Desktop", U8(out[1].GetValue()));
}

TEST(QRMDeviceApplicabilityList, RemoveApplicabilityReturnsNotFoundWhenNoneIsEqual)
{
    QRMDevice device;
    QRMDeviceApplicability entry("en", "Desktop");
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveApplicability(entry));
    device.AddApplicability(entry);
    QRMDeviceApplicability sameLanguage("en", "Laptop");
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveApplicability(sameLanguage));
    EXPECT_EQ(1u, ApplicabilityOf(device).size());
}

TEST(QRMDeviceApplicabilityList, RemovingTheLastOfTwoLeavesTheFirstIntact)
{
    QRMDevice device;
    QRMDeviceApplicability first("en", "Desktop");
    QRMDeviceApplicability second("en", "Laptop");
    device.AddApplicability(first);
    device.AddApplicability(second);
    EXPECT_EQ(QRM_KIT_SUCCESS, device.RemoveApplicability(second));
    std::vector<QRMDeviceApplicability> held = ApplicabilityOf(device);
    ASSERT_EQ(1u, held.size());
    EXPECT_EQ("en", U8(held[0].GetLanguage()));
    EXPECT_EQ("Desktop", U8(held[0].GetValue()));
}

TEST(QRMDeviceApplicabilityList, RemovingTheFirstOfTwoLeavesOneEntryResetToEmptyTexts)
{
    QRMDevice device;
    QRMDeviceApplicability first("en", "Desktop");
    QRMDeviceApplicability second("en", "Laptop");
    device.AddApplicability(first);
    device.AddApplicability(second);
    EXPECT_EQ(QRM_KIT_SUCCESS, device.RemoveApplicability(first));
    std::vector<QRMDeviceApplicability> held = ApplicabilityOf(device);
    ASSERT_EQ(1u, held.size());
    EXPECT_EQ("", U8(held[0].GetLanguage()));
    EXPECT_EQ("", U8(held[0].GetValue()));
}

TEST_F(QRMDeviceEquality, TwoNewDevicesAreEqual)
{
    QRMDevice a;
    QRMDevice b;
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
}

TEST_F(QRMDeviceEquality, DevicesWithOneEqualEntryInEveryListAreEqual)
{
    QRMDevice a = MakeFullDevice();
    QRMDevice b = MakeFullDevice();
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
}

TEST_P(QRMDeviceEquality, FieldDiffers) { ExpectDifference(GetParam(), QRMDevice(), QRMDevice()); }

INSTANTIATE_TEST_SUITE_P(, QRMDeviceEquality, testing::ValuesIn(kDeviceDifferences), NameOfDifference());

TEST_F(QRMDeviceEquality, ADeviceWithTwoDifferentPCIEntriesIsUnequalToItself)
{
    QRMDevice device;
    device.AddPCIInfo(MakePCI(1, 2, 3, 4));
    device.AddPCIInfo(MakePCI(5, 6, 7, 8));
    const QRMDevice& alias = device;
    EXPECT_FALSE(device == alias);
}

TEST_F(QRMDeviceEquality, TwoDifferentTextsEachAreNeverEqual)
{
    QRMDevice a;
    QRMDevice b;
    a.AddDisplayValue("en", "Adapter");
    a.AddDisplayValue("de", "Adapter DE");
    b.AddDisplayValue("en", "Adapter");
    b.AddDisplayValue("de", "Adapter DE");
    EXPECT_FALSE(a == b);
    const QRMDevice& alias = a;
    EXPECT_FALSE(a == alias);
}

TEST_F(QRMDeviceEquality, SubComponentListsCompareByTheAllPairsRule)
{
    QRMSubComponent first = MakeSubComponent("A", "1");
    QRMSubComponent second = MakeSubComponent("B", "2");
    ExpectAllPairsList(&QRMDevice::AddSubComponent, first, second);
}

TEST_F(QRMDeviceEquality, DependencyListsCompareByTheAllPairsRule)
{
    QRMDependency first = MakeDependency("A");
    QRMDependency second = MakeDependency("B");
    ExpectAllPairsList(&QRMDevice::AddDependency, first, second);
}

TEST_F(QRMDeviceEquality, SoftDependencyListsCompareByTheAllPairsRule)
{
    QRMSoftDependency first = MakeSoftDependency("A");
    QRMSoftDependency second = MakeSoftDependency("B");
    ExpectAllPairsList(&QRMDevice::AddSoftDependency, first, second);
}

TEST_F(QRMDeviceEquality, ApplicabilityListsCompareByTheAllPairsRule)
{
    QRMDeviceApplicability first("en", "Desktop");
    QRMDeviceApplicability second("en", "Laptop");
    ExpectAllPairsList(&QRMDevice::AddApplicability, first, second);
}

TEST(QRMDeviceCopy, CopyCarriesEveryFieldAndEveryList)
{
    QRMDevice source = MakeFullDevice();
    QRMDevice copy(source);
    EXPECT_EQ(77ULL, copy.GetComponentID());
    EXPECT_TRUE(copy.IsEmbedded());
    EXPECT_TRUE(copy.GetRollbackInformation() == MakeRollback("A00"));
    std::vector<QRMPCIInfo*> pci = PCIOf(copy);
    ASSERT_EQ(1u, pci.size());
    ExpectPCI(*pci[0], 0x8086, 0x1000, 0x1028, 0x0001);
    EXPECT_NE(PCIOf(source)[0], pci[0]);
    std::vector<QRMPnPInfo> pnp = PnPOf(copy);
    ASSERT_EQ(1u, pnp.size());
    EXPECT_TRUE(pnp[0] == MakePnP(1));
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Network adapter"}}), TextsOf(copy));
    std::vector<QRMSubComponent> subs = SubComponentsOf(copy);
    ASSERT_EQ(1u, subs.size());
    EXPECT_EQ("Boot agent", U8(subs[0].GetName()));
    std::vector<QRMDependency> dependencies = DependenciesOf(copy);
    ASSERT_EQ(1u, dependencies.size());
    EXPECT_EQ("Runtime", U8(dependencies[0].GetName()));
    std::vector<QRMSoftDependency> soft = SoftDependenciesOf(copy);
    ASSERT_EQ(1u, soft.size());
    EXPECT_EQ("Utility", U8(soft[0].GetName()));
    std::vector<QRMDeviceApplicability> applicability = ApplicabilityOf(copy);
    ASSERT_EQ(1u, applicability.size());
    EXPECT_EQ("Desktop", U8(applicability[0].GetValue()));
    EXPECT_TRUE(copy == source);
}

TEST(QRMDeviceCopy, ChangingOrDestroyingACopyLeavesTheSourceUntouched)
{
    QRMDevice source = MakeFullDevice();
    {
        QRMDevice copy(source);
        PCIOf(copy)[0]->SetVendorID(0x10DE);
        copy.AddPCIInfo(MakePCI(1, 2, 3, 4));
        copy.RemovePnPInfo(MakePnP(1));
        copy.RemoveDisplayValue("en");
        QRMSubComponent sub = MakeSubComponent("Boot agent", "1.2");
        copy.RemoveSubComponent(sub);
        QRMDependency dependency = MakeDependency("Runtime");
        copy.RemoveDependency(dependency);
        QRMSoftDependency soft = MakeSoftDependency("Utility");
        copy.RemoveSoftDependency(soft);
        QRMDeviceApplicability applicability("en", "Desktop");
        copy.RemoveApplicability(applicability);
        copy.SetComponentID(1);
    }
    EXPECT_TRUE(source == MakeFullDevice());
    std::vector<QRMPCIInfo*> pci = PCIOf(source);
    ASSERT_EQ(1u, pci.size());
    ExpectPCI(*pci[0], 0x8086, 0x1000, 0x1028, 0x0001);
    EXPECT_EQ(1u, PnPOf(source).size());
    EXPECT_EQ(1u, TextsOf(source).size());
    EXPECT_EQ(1u, SubComponentsOf(source).size());
    EXPECT_EQ(1u, DependenciesOf(source).size());
    EXPECT_EQ(1u, SoftDependenciesOf(source).size());
    EXPECT_EQ(1u, ApplicabilityOf(source).size());
}

TEST(QRMDeviceCopy, AssignmentReplacesFieldsAndEveryList)
{
    QRMDevice target;
    target.SetComponentID(1);
    target.AddPCIInfo(MakePCI(9, 9, 9, 9));
    target.AddPCIInfo(MakePCI(8, 8, 8, 8));
    target.AddPnPInfo(MakePnP(7));
    target.AddDisplayValue("fr", "Ancien");
    QRMSubComponent oldSub = MakeSubComponent("Old", "0");
    target.AddSubComponent(oldSub);
    QRMDependency oldDependency = MakeDependency("Old");
    target.AddDependency(oldDependency);
    QRMSoftDependency oldSoft = MakeSoftDependency("Old");
    target.AddSoftDependency(oldSoft);
    QRMDeviceApplicability oldApplicability("fr", "Ancien");
    target.AddApplicability(oldApplicability);

    QRMDevice source = MakeFullDevice();
    target = source;
    EXPECT_TRUE(target == source);
    EXPECT_EQ(77ULL, target.GetComponentID());
    EXPECT_TRUE(target.IsEmbedded());
    std::vector<QRMPCIInfo*> pci = PCIOf(target);
    ASSERT_EQ(1u, pci.size());
    ExpectPCI(*pci[0], 0x8086, 0x1000, 0x1028, 0x0001);
    EXPECT_NE(PCIOf(source)[0], pci[0]);
    EXPECT_FALSE(target.HasPnP(MakePnP(7)));
    EXPECT_TRUE(target.HasPnP(MakePnP(1)));
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Network adapter"}}), TextsOf(target));
    ASSERT_EQ(1u, SubComponentsOf(target).size());
    EXPECT_EQ("Boot agent", U8(SubComponentsOf(target)[0].GetName()));
    ASSERT_EQ(1u, DependenciesOf(target).size());
    EXPECT_EQ("Runtime", U8(DependenciesOf(target)[0].GetName()));
    ASSERT_EQ(1u, SoftDependenciesOf(target).size());
    EXPECT_EQ("Utility", U8(SoftDependenciesOf(target)[0].GetName()));
    ASSERT_EQ(1u, ApplicabilityOf(target).size());
    EXPECT_EQ("Desktop", U8(ApplicabilityOf(target)[0].GetValue()));
}

TEST(QRMDeviceCopy, AssignmentAfterARemovalLeavesAConsistentDevice)
{
    QRMDevice device;
    device.AddPCIInfo(MakePCI(1, 2, 3, 4));
    device.AddPCIInfo(MakePCI(5, 6, 7, 8));
    ASSERT_EQ(QRM_KIT_SUCCESS, device.RemovePCIInfo(MakePCI(1, 2, 3, 4)));
    QRMDevice source;
    source.AddPCIInfo(MakePCI(9, 9, 9, 9));
    device = source;
    std::vector<QRMPCIInfo*> held = PCIOf(device);
    ASSERT_EQ(1u, held.size());
    ExpectPCI(*held[0], 9, 9, 9, 9);
}

TEST(QRMDeviceCopy, SelfAssignmentEmptiesEveryListButKeepsIdFlagAndRollback)
{
    QRMDevice device = MakeFullDevice();
    QRMDevice& alias = device;
    device = alias;
    EXPECT_EQ(77ULL, device.GetComponentID());
    EXPECT_TRUE(device.IsEmbedded());
    EXPECT_TRUE(device.GetRollbackInformation() == MakeRollback("A00"));
    EXPECT_TRUE(PCIOf(device).empty());
    EXPECT_TRUE(PnPOf(device).empty());
    EXPECT_TRUE(TextsOf(device).empty());
    EXPECT_TRUE(SubComponentsOf(device).empty());
    EXPECT_TRUE(DependenciesOf(device).empty());
    EXPECT_TRUE(SoftDependenciesOf(device).empty());
    EXPECT_TRUE(ApplicabilityOf(device).empty());
}
