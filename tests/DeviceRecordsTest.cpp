// The records a supported device holds: PCI and plug-and-play identities,
// sub-components, dependencies and soft dependencies, applicability entries
// and rollback information.
#include "QRMDependency.h"
#include "QRMDeviceApplicability.h"
#include "QRMPCIInfo.h"
#include "QRMPnPInfo.h"
#include "QRMRollbackInformation.h"
#include "QRMSoftDependency.h"
#include "QRMSubComponent.h"

#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

std::string U8(const VELString& text) { return text.GetUTF8String(); }

VELGUID MakeGUID(unsigned char seed)
{
    VELGUID::Bytes bytes{};
    for (unsigned int i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<unsigned char>(seed + i);
    }
    return VELGUID(bytes);
}

QRMPCIInfo MakePCI(unsigned int vendorID, unsigned int deviceID, unsigned int subVendorID, unsigned int subDeviceID)
{
    QRMPCIInfo pci;
    pci.SetVendorID(vendorID);
    pci.SetDeviceID(deviceID);
    pci.SetSubVendorID(subVendorID);
    pci.SetSubDeviceID(subDeviceID);
    return pci;
}

QRMPnPInfo MakePnP(unsigned char seed)
{
    QRMPnPInfo pnp;
    pnp.SetPrimary(QRMPnPInfo::Primary{{seed, 1, 2, 3}});
    pnp.SetSecondary(QRMPnPInfo::Secondary{{4, 5, seed}});
    pnp.SetValue(QRMPnPInfo::Value{{6, seed, 7, 8}});
    return pnp;
}

QRMRollbackInformation MakeRollback()
{
    QRMRollbackInformation rollback;
    rollback.SetRollbackIdentifier(MakeGUID(1));
    rollback.SetRollbackVersion("A01");
    rollback.SetPackageIdentifier(MakeGUID(20));
    rollback.SetPackagePath("pkg/old.exe");
    rollback.SetSessionIdentifier(MakeGUID(40));
    rollback.SetSequence(0xFFFF);
    rollback.SetFlags(0x81);
    rollback.SetNote("keep");
    return rollback;
}

QRMDependency MakeDependency()
{
    QRMDependency dependency;
    dependency.SetType(3);
    dependency.SetName("Runtime");
    dependency.SetVersion("4.5");
    dependency.SetIdentifier(MakeGUID(9));
    dependency.SetPath("deps/runtime.exe");
    dependency.SetSize(0x100000000ULL);
    dependency.SetFlags(6);
    dependency.AddDisplayValue("en", "Runtime library");
    dependency.AddPCIInfo(MakePCI(0x8086, 0x1000, 0, 0));
    dependency.AddPnPInfo(MakePnP(1));
    return dependency;
}

QRMSoftDependency MakeSoftDependency()
{
    QRMSoftDependency dependency;
    dependency.SetType(3);
    dependency.SetName("Utility");
    dependency.SetVersion("1.0");
    dependency.AddDisplayValue("en", "Utility");
    dependency.AddPCIInfo(MakePCI(0x8086, 0x1000, 0, 0));
    dependency.AddApplicability(QRMDeviceApplicability("en", "Desktop"));
    return dependency;
}

// For a dependency or a soft dependency.
template <class Dependency>
std::vector<QRMPCIInfo> PCIOf(const Dependency& dependency)
{
    std::vector<QRMPCIInfo> out;
    dependency.GetPCIInfo(out);
    return out;
}

template <class Dependency>
std::vector<QRMPnPInfo> PnPOf(const Dependency& dependency)
{
    std::vector<QRMPnPInfo> out;
    dependency.GetPnPInfo(out);
    return out;
}

std::vector<QRMDeviceApplicability> ApplicabilityOf(const QRMSoftDependency& dependency)
{
    std::vector<QRMDeviceApplicability> out;
    dependency.GetApplicability(out);
    return out;
}

}  // namespace

// ---- QRMPCIInfo

TEST(QRMPCIInfo, NewRecordHasAllFourIdsZero)
{
    QRMPCIInfo pci;
    EXPECT_EQ(0u, pci.GetVendorID());
    EXPECT_EQ(0u, pci.GetDeviceID());
    EXPECT_EQ(0u, pci.GetSubVendorID());
    EXPECT_EQ(0u, pci.GetSubDeviceID());
}

TEST(QRMPCIInfo, SettersReturnSuccessAndStoreEachIdSeparately)
{
    QRMPCIInfo pci;
    EXPECT_EQ(QRM_KIT_SUCCESS, pci.SetVendorID(0x8086));
    EXPECT_EQ(QRM_KIT_SUCCESS, pci.SetDeviceID(0x1000));
    EXPECT_EQ(QRM_KIT_SUCCESS, pci.SetSubVendorID(0x1028));
    EXPECT_EQ(QRM_KIT_SUCCESS, pci.SetSubDeviceID(0xFFFFFFFFu));
    EXPECT_EQ(0x8086u, pci.GetVendorID());
    EXPECT_EQ(0x1000u, pci.GetDeviceID());
    EXPECT_EQ(0x1028u, pci.GetSubVendorID());
    EXPECT_EQ(0xFFFFFFFFu, pci.GetSubDeviceID());
}

TEST(QRMPCIInfo, RecordsWithAllFourIdsEqualAreEqual)
{
    EXPECT_TRUE(MakePCI(1, 2, 3, 4) == MakePCI(1, 2, 3, 4));
    EXPECT_FALSE(MakePCI(1, 2, 3, 4) != MakePCI(1, 2, 3, 4));
}

TEST(QRMPCIInfo, DifferentVendorIdMakesThemUnequal)
{
    EXPECT_FALSE(MakePCI(1, 2, 3, 4) == MakePCI(9, 2, 3, 4));
    EXPECT_TRUE(MakePCI(1, 2, 3, 4) != MakePCI(9, 2, 3, 4));
}

TEST(QRMPCIInfo, DifferentDeviceIdMakesThemUnequal) { EXPECT_FALSE(MakePCI(1, 2, 3, 4) == MakePCI(1, 9, 3, 4)); }

TEST(QRMPCIInfo, DifferentSubVendorIdMakesThemUnequal) { EXPECT_FALSE(MakePCI(1, 2, 3, 4) == MakePCI(1, 2, 9, 4)); }

TEST(QRMPCIInfo, DifferentSubDeviceIdMakesThemUnequal) { EXPECT_FALSE(MakePCI(1, 2, 3, 4) == MakePCI(1, 2, 3, 9)); }

TEST(QRMPCIInfo, AZeroSubIdMatchesOnlyZero)
{
    EXPECT_FALSE(MakePCI(1, 2, 0, 0) == MakePCI(1, 2, 3, 4));
    EXPECT_FALSE(MakePCI(1, 2, 3, 4) == MakePCI(1, 2, 0, 0));
    EXPECT_TRUE(MakePCI(1, 2, 0, 0) == MakePCI(1, 2, 0, 0));
}

TEST(QRMPCIInfo, VendorAndDeviceIdsAreNotInterchangeable)
{
    EXPECT_FALSE(MakePCI(1, 2, 3, 4) == MakePCI(2, 1, 3, 4));
    EXPECT_FALSE(MakePCI(1, 2, 3, 4) == MakePCI(1, 2, 4, 3));
}

TEST(QRMPCIInfo, CopyAndAssignmentCarryAllFourIds)
{
    QRMPCIInfo source = MakePCI(1, 2, 3, 4);
    QRMPCIInfo copy(source);
    EXPECT_TRUE(copy == source);
    QRMPCIInfo assigned;
    assigned = source;
    EXPECT_EQ(1u, assigned.GetVendorID());
    EXPECT_EQ(2u, assigned.GetDeviceID());
    EXPECT_EQ(3u, assigned.GetSubVendorID());
    EXPECT_EQ(4u, assigned.GetSubDeviceID());
    copy.SetVendorID(7);
    EXPECT_EQ(1u, source.GetVendorID());
}

// ---- QRMPnPInfo

TEST(QRMPnPInfo, NewRecordHasNoOptionalPartsAndAZeroValue)
{
    QRMPnPInfo pnp;
    EXPECT_FALSE(pnp.HasPrimary());
    EXPECT_FALSE(pnp.HasSecondary());
    EXPECT_EQ((QRMPnPInfo::Primary{{0, 0, 0, 0}}), pnp.GetPrimary());
    EXPECT_EQ((QRMPnPInfo::Secondary{{0, 0, 0}}), pnp.GetSecondary());
    EXPECT_EQ((QRMPnPInfo::Value{{0, 0, 0, 0}}), pnp.GetValue());
}

TEST(QRMPnPInfo, SettersReturnSuccessAndStoreTheBytes)
{
    QRMPnPInfo pnp;
    EXPECT_EQ(QRM_KIT_SUCCESS, pnp.SetPrimary(QRMPnPInfo::Primary{{1, 2, 3, 4}}));
    EXPECT_EQ(QRM_KIT_SUCCESS, pnp.SetSecondary(QRMPnPInfo::Secondary{{5, 6, 7}}));
    EXPECT_EQ(QRM_KIT_SUCCESS, pnp.SetValue(QRMPnPInfo::Value{{8, 9, 10, 255}}));
    EXPECT_TRUE(pnp.HasPrimary());
    EXPECT_TRUE(pnp.HasSecondary());
    EXPECT_EQ((QRMPnPInfo::Primary{{1, 2, 3, 4}}), pnp.GetPrimary());
    EXPECT_EQ((QRMPnPInfo::Secondary{{5, 6, 7}}), pnp.GetSecondary());
    EXPECT_EQ((QRMPnPInfo::Value{{8, 9, 10, 255}}), pnp.GetValue());
}

TEST(QRMPnPInfo, ClearingTheOptionalPartsReturnsSuccessAndMakesThemAbsent)
{
    QRMPnPInfo pnp = MakePnP(1);
    EXPECT_EQ(QRM_KIT_SUCCESS, pnp.ClearPrimary());
    EXPECT_FALSE(pnp.HasPrimary());
    EXPECT_EQ((QRMPnPInfo::Primary{{0, 0, 0, 0}}), pnp.GetPrimary());
    EXPECT_TRUE(pnp.HasSecondary());
    EXPECT_EQ(QRM_KIT_SUCCESS, pnp.ClearSecondary());
    EXPECT_FALSE(pnp.HasSecondary());
    EXPECT_EQ((QRMPnPInfo::Value{{6, 1, 7, 8}}), pnp.GetValue());
}

TEST(QRMPnPInfo, RecordsWithEqualPartsAreEqual)
{
    EXPECT_TRUE(MakePnP(1) == MakePnP(1));
    EXPECT_FALSE(MakePnP(1) != MakePnP(1));
}

TEST(QRMPnPInfo, TwoNewRecordsWithBothOptionalPartsAbsentAreEqual)
{
    QRMPnPInfo a;
    QRMPnPInfo b;
    EXPECT_TRUE(a == b);
}

TEST(QRMPnPInfo, AbsentPrimaryOnBothSidesCompareEqualWhateverWasOnceStored)
{
    QRMPnPInfo a = MakePnP(1);
    QRMPnPInfo b = MakePnP(1);
    a.SetPrimary(QRMPnPInfo::Primary{{9, 9, 9, 9}});
    a.ClearPrimary();
    b.ClearPrimary();
    EXPECT_TRUE(a == b);
}

TEST(QRMPnPInfo, PrimaryPresentOnOneSideOnlyMakesThemUnequal)
{
    QRMPnPInfo present = MakePnP(1);
    QRMPnPInfo absent = MakePnP(1);
    absent.ClearPrimary();
    EXPECT_FALSE(present == absent);
    EXPECT_FALSE(absent == present);
    EXPECT_TRUE(present != absent);
}

TEST(QRMPnPInfo, APrimaryOfZeroBytesIsStillUnequalToAnAbsentOne)
{
    QRMPnPInfo zero;
    zero.SetPrimary(QRMPnPInfo::Primary{{0, 0, 0, 0}});
    QRMPnPInfo absent;
    EXPECT_FALSE(zero == absent);
}

TEST(QRMPnPInfo, DifferentPrimaryBytesMakeThemUnequal)
{
    QRMPnPInfo a = MakePnP(1);
    QRMPnPInfo b = MakePnP(1);
    b.SetPrimary(QRMPnPInfo::Primary{{1, 1, 2, 4}});
    EXPECT_FALSE(a == b);
}

TEST(QRMPnPInfo, SecondaryPresentOnOneSideOnlyMakesThemUnequal)
{
    QRMPnPInfo present = MakePnP(1);
    QRMPnPInfo absent = MakePnP(1);
    absent.ClearSecondary();
    EXPECT_FALSE(present == absent);
    EXPECT_FALSE(absent == present);
}

TEST(QRMPnPInfo, DifferentSecondaryBytesMakeThemUnequal)
{
    QRMPnPInfo a = MakePnP(1);
    QRMPnPInfo b = MakePnP(1);
    b.SetSecondary(QRMPnPInfo::Secondary{{4, 5, 2}});
    EXPECT_FALSE(a == b);
}

TEST(QRMPnPInfo, DifferentValueBytesMakeThemUnequal)
{
    QRMPnPInfo a = MakePnP(1);
    QRMPnPInfo b = MakePnP(1);
    b.SetValue(QRMPnPInfo::Value{{6, 1, 7, 9}});
    EXPECT_FALSE(a == b);
}

TEST(QRMPnPInfo, CopyHasItsOwnOptionalPartsOnlyWhereTheSourceHasThem)
{
    QRMPnPInfo source = MakePnP(1);
    source.ClearSecondary();
    QRMPnPInfo copy(source);
    EXPECT_TRUE(copy.HasPrimary());
    EXPECT_FALSE(copy.HasSecondary());
    EXPECT_TRUE(copy == source);
    copy.SetPrimary(QRMPnPInfo::Primary{{7, 7, 7, 7}});
    EXPECT_EQ((QRMPnPInfo::Primary{{1, 1, 2, 3}}), source.GetPrimary());
}

TEST(QRMPnPInfo, AssignmentTakesOverPresenceAndBytesOfTheSource)
{
    QRMPnPInfo target = MakePnP(2);
    QRMPnPInfo source;
    source.SetSecondary(QRMPnPInfo::Secondary{{1, 2, 3}});
    target = source;
    EXPECT_FALSE(target.HasPrimary());
    EXPECT_TRUE(target.HasSecondary());
    EXPECT_EQ((QRMPnPInfo::Secondary{{1, 2, 3}}), target.GetSecondary());
    EXPECT_EQ((QRMPnPInfo::Value{{0, 0, 0, 0}}), target.GetValue());
    EXPECT_TRUE(target == source);
}

// ---- QRMSubComponent

TEST(QRMSubComponent, NewSubComponentHasEmptyTextsAndNoDisplayValues)
{
    QRMSubComponent sub;
    EXPECT_EQ("", U8(sub.GetName()));
    EXPECT_EQ("", U8(sub.GetVersion()));
    EXPECT_TRUE(TextsOf(sub).empty());
}

TEST(QRMSubComponent, SettersReturnSuccessAndStoreTheTexts)
{
    QRMSubComponent sub;
    EXPECT_EQ(QRM_KIT_SUCCESS, sub.SetName("Boot agent"));
    EXPECT_EQ(QRM_KIT_SUCCESS, sub.SetVersion("1.2.3"));
    EXPECT_EQ("Boot agent", U8(sub.GetName()));
    EXPECT_EQ("1.2.3", U8(sub.GetVersion()));
}

TEST(QRMSubComponent, EqualTextsAndDisplayValuesAreEqual)
{
    QRMSubComponent a;
    QRMSubComponent b;
    for (QRMSubComponent* sub : {&a, &b}) {
        sub->SetName("Boot agent");
        sub->SetVersion("1.2");
        sub->AddDisplayValue("en", "Agent");
    }
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
}

TEST(QRMSubComponent, DifferentNameMakesThemUnequal)
{
    QRMSubComponent a;
    QRMSubComponent b;
    a.SetName("Boot agent");
    b.SetName("Boot Agent");
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
}

TEST(QRMSubComponent, DifferentVersionMakesThemUnequal)
{
    QRMSubComponent a;
    QRMSubComponent b;
    a.SetVersion("1.2");
    b.SetVersion("1.3");
    EXPECT_FALSE(a == b);
}

TEST(QRMSubComponent, DisplayValuesCompareByTheLanguageMatchingRule)
{
    QRMSubComponent a;
    QRMSubComponent b;
    a.AddDisplayValue("en", "Agent");
    b.AddDisplayValue("fr", "Agent FR");
    EXPECT_TRUE(a == b);

    QRMSubComponent c;
    c.AddDisplayValue("en", "Other");
    EXPECT_FALSE(a == c);

    QRMSubComponent d;
    d.AddDisplayValue("en", "Agent");
    d.AddDisplayValue("de", "Agent DE");
    EXPECT_FALSE(a == d);
}

TEST(QRMSubComponent, CopyIsDeepAndIndependent)
{
    QRMSubComponent source;
    source.SetName("Boot agent");
    source.SetVersion("1.2");
    source.AddDisplayValue("en", "Agent");
    {
        QRMSubComponent copy(source);
        EXPECT_TRUE(copy == source);
        EXPECT_EQ("Boot agent", U8(copy.GetName()));
        EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Agent"}}), TextsOf(copy));
        copy.SetName("Changed");
        copy.RemoveDisplayValue("en");
    }
    EXPECT_EQ("Boot agent", U8(source.GetName()));
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Agent"}}), TextsOf(source));
}

TEST(QRMSubComponent, SelfAssignmentEmptiesTheDisplayValuesButKeepsTheTexts)
{
    QRMSubComponent sub;
    sub.SetName("Boot agent");
    sub.SetVersion("1.2");
    sub.AddDisplayValue("en", "Agent");
    QRMSubComponent& alias = sub;
    sub = alias;
    EXPECT_EQ("Boot agent", U8(sub.GetName()));
    EXPECT_EQ("1.2", U8(sub.GetVersion()));
    EXPECT_TRUE(TextsOf(sub).empty());
}

// ---- QRMDeviceApplicability

TEST(QRMDeviceApplicability, NewEntryHasEmptyTexts)
{
    QRMDeviceApplicability entry;
    EXPECT_EQ("", U8(entry.GetLanguage()));
    EXPECT_EQ("", U8(entry.GetValue()));
}

TEST(QRMDeviceApplicability, SettersReturnSuccessAndStoreTheTexts)
{
    QRMDeviceApplicability entry;
    EXPECT_EQ(QRM_KIT_SUCCESS, entry.SetLanguage("en"));
    EXPECT_EQ(QRM_KIT_SUCCESS, entry.SetValue("Desktop"));
    EXPECT_EQ("en", U8(entry.GetLanguage()));
    EXPECT_EQ("Desktop", U8(entry.GetValue()));
}

TEST(QRMDeviceApplicability, EqualOnlyWhenBothTextsAreEqual)
{
    EXPECT_TRUE(QRMDeviceApplicability("en", "Desktop") == QRMDeviceApplicability("en", "Desktop"));
    EXPECT_FALSE(QRMDeviceApplicability("en", "Desktop") == QRMDeviceApplicability("en", "Laptop"));
    EXPECT_FALSE(QRMDeviceApplicability("en", "Desktop") == QRMDeviceApplicability("de", "Desktop"));
    EXPECT_TRUE(QRMDeviceApplicability("en", "Desktop") != QRMDeviceApplicability("EN", "Desktop"));
}

TEST(QRMDeviceApplicability, CopyAndAssignmentCarryBothTexts)
{
    QRMDeviceApplicability source("en", "Desktop");
    QRMDeviceApplicability copy(source);
    EXPECT_TRUE(copy == source);
    QRMDeviceApplicability assigned("fr", "Portable");
    assigned = source;
    EXPECT_EQ("en", U8(assigned.GetLanguage()));
    EXPECT_EQ("Desktop", U8(assigned.GetValue()));
}

// ---- QRMRollbackInformation

TEST(QRMRollbackInformation, NewRecordHasNilIdentifiersEmptyTextsAndZeroNumbers)
{
    QRMRollbackInformation rollback;
    EXPECT_TRUE(rollback.GetRollbackIdentifier().IsNil());
    EXPECT_TRUE(rollback.GetPackageIdentifier().IsNil());
    EXPECT_TRUE(rollback.GetSessionIdentifier().IsNil());
    EXPECT_EQ("", U8(rollback.GetRollbackVersion()));
    EXPECT_EQ("", U8(rollback.GetPackagePath()));
    EXPECT_EQ("", U8(rollback.GetNote()));
    EXPECT_EQ(0u, rollback.GetSequence());
    EXPECT_EQ(0u, rollback.GetFlags());
}

TEST(QRMRollbackInformation, SettersReturnSuccessAndStoreEveryField)
{
    QRMRollbackInformation rollback;
    EXPECT_EQ(QRM_KIT_SUCCESS, rollback.SetRollbackIdentifier(MakeGUID(1)));
    EXPECT_EQ(QRM_KIT_SUCCESS, rollback.SetRollbackVersion("A01"));
    EXPECT_EQ(QRM_KIT_SUCCESS, rollback.SetPackageIdentifier(MakeGUID(20)));
    EXPECT_EQ(QRM_KIT_SUCCESS, rollback.SetPackagePath("pkg/old.exe"));
    EXPECT_EQ(QRM_KIT_SUCCESS, rollback.SetSessionIdentifier(MakeGUID(40)));
    EXPECT_EQ(QRM_KIT_SUCCESS, rollback.SetSequence(0xFFFF));
    EXPECT_EQ(QRM_KIT_SUCCESS, rollback.SetFlags(0x81));
    EXPECT_EQ(QRM_KIT_SUCCESS, rollback.SetNote("keep"));
    EXPECT_TRUE(rollback.GetRollbackIdentifier() == MakeGUID(1));
    EXPECT_EQ("A01", U8(rollback.GetRollbackVersion()));
    EXPECT_TRUE(rollback.GetPackageIdentifier() == MakeGUID(20));
    EXPECT_EQ("pkg/old.exe", U8(rollback.GetPackagePath()));
    EXPECT_TRUE(rollback.GetSessionIdentifier() == MakeGUID(40));
    EXPECT_EQ(0xFFFFu, rollback.GetSequence());
    EXPECT_EQ(0x81u, rollback.GetFlags());
    EXPECT_EQ("keep", U8(rollback.GetNote()));
}

TEST(QRMRollbackInformation, RecordsWithEveryFieldEqualAreEqual)
{
    EXPECT_TRUE(MakeRollback() == MakeRollback());
    EXPECT_FALSE(MakeRollback() != MakeRollback());
    EXPECT_TRUE(QRMRollbackInformation() == QRMRollbackInformation());
}

TEST(QRMRollbackInformation, DifferentRollbackIdentifierMakesThemUnequal)
{
    QRMRollbackInformation other = MakeRollback();
    other.SetRollbackIdentifier(MakeGUID(2));
    EXPECT_FALSE(MakeRollback() == other);
    EXPECT_TRUE(MakeRollback() != other);
}

TEST(QRMRollbackInformation, DifferentRollbackVersionMakesThemUnequal)
{
    QRMRollbackInformation other = MakeRollback();
    other.SetRollbackVersion("a01");
    EXPECT_FALSE(MakeRollback() == other);
}

TEST(QRMRollbackInformation, DifferentPackageIdentifierMakesThemUnequal)
{
    QRMRollbackInformation other = MakeRollback();
    other.SetPackageIdentifier(MakeGUID(21));
    EXPECT_FALSE(MakeRollback() == other);
}

TEST(QRMRollbackInformation, DifferentPackagePathMakesThemUnequal)
{
    QRMRollbackInformation other = MakeRollback();
    other.SetPackagePath("pkg/new.exe");
    EXPECT_FALSE(MakeRollback() == other);
}

TEST(QRMRollbackInformation, DifferentSessionIdentifierMakesThemUnequal)
{
    QRMRollbackInformation other = MakeRollback();
    other.SetSessionIdentifier(VELGUID());
    EXPECT_FALSE(MakeRollback() == other);
}

TEST(QRMRollbackInformation, DifferentSequenceMakesThemUnequal)
{
    QRMRollbackInformation other = MakeRollback();
    other.SetSequence(0xFFFE);
    EXPECT_FALSE(MakeRollback() == other);
}

TEST(QRMRollbackInformation, DifferentFlagsMakeThemUnequal)
{
    QRMRollbackInformation other = MakeRollback();
    other.SetFlags(0x80);
    EXPECT_FALSE(MakeRollback() == other);
}

TEST(QRMRollbackInformation, DifferentNoteMakesThemUnequal)
{
    QRMRollbackInformation other = MakeRollback();
    other.SetNote("drop");
    EXPECT_FALSE(MakeRollback() == other);
}

TEST(QRMRollbackInformation, CopyAndAssignmentCarryEveryField)
{
    QRMRollbackInformation source = MakeRollback();
    QRMRollbackInformation copy(source);
    EXPECT_TRUE(copy == source);
    QRMRollbackInformation assigned;
    assigned = source;
    EXPECT_TRUE(assigned == source);
    EXPECT_EQ("keep", U8(assigned.GetNote()));
    copy.SetNote("changed");
    EXPECT_EQ("keep", U8(source.GetNote()));
}

// ---- QRMDependency

// The fields a dependency holds, and a soft dependency holds in the same
// way: both classes run every test of this suite.
template <class Dependency>
class DependencyFields : public ::testing::Test {};
using DependencyClasses = ::testing::Types<QRMDependency, QRMSoftDependency>;
TYPED_TEST_SUITE(DependencyFields, DependencyClasses);

TYPED_TEST(DependencyFields, NewDependencyHasZeroNumbersEmptyTextsNilIdentifierAndEmptyLists)
{
    TypeParam dependency;
    EXPECT_EQ(0u, dependency.GetType());
    EXPECT_EQ("", U8(dependency.GetName()));
    EXPECT_EQ("", U8(dependency.GetVersion()));
    EXPECT_TRUE(dependency.GetIdentifier().IsNil());
    EXPECT_EQ("", U8(dependency.GetPath()));
    EXPECT_EQ(0ULL, dependency.GetSize());
    EXPECT_EQ(0u, dependency.GetFlags());
    EXPECT_TRUE(TextsOf(dependency).empty());
    EXPECT_TRUE(PCIOf(dependency).empty());
    EXPECT_TRUE(PnPOf(dependency).empty());
}

TYPED_TEST(DependencyFields, SettersReturnSuccessAndStoreEveryField)
{
    TypeParam dependency;
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.SetType(3));
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.SetName("Runtime"));
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.SetVersion("4.5"));
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.SetIdentifier(MakeGUID(9)));
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.SetPath("deps/runtime.exe"));
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.SetSize(0x100000000ULL));
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.SetFlags(6));
    EXPECT_EQ(3u, dependency.GetType());
    EXPECT_EQ("Runtime", U8(dependency.GetName()));
    EXPECT_EQ("4.5", U8(dependency.GetVersion()));
    EXPECT_TRUE(dependency.GetIdentifier() == MakeGUID(9));
    EXPECT_EQ("deps/runtime.exe", U8(dependency.GetPath()));
    EXPECT_EQ(0x100000000ULL, dependency.GetSize());
    EXPECT_EQ(6u, dependency.GetFlags());
}

TYPED_TEST(DependencyFields, AddPCIInfoReturnsSuccessThenAlreadyExistsAndGetPCIInfoAppendsCopies)
{
    TypeParam dependency;
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.AddPCIInfo(MakePCI(1, 2, 3, 4)));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, dependency.AddPCIInfo(MakePCI(1, 2, 3, 4)));
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.AddPCIInfo(MakePCI(1, 2, 3, 5)));
    std::vector<QRMPCIInfo> out(1, MakePCI(9, 9, 9, 9));
    dependency.GetPCIInfo(out);
    ASSERT_EQ(3u, out.size());
    EXPECT_TRUE(out[0] == MakePCI(9, 9, 9, 9));
    EXPECT_TRUE(out[1] == MakePCI(1, 2, 3, 4));
    EXPECT_TRUE(out[2] == MakePCI(1, 2, 3, 5));
}

TYPED_TEST(DependencyFields, AddPnPInfoReturnsSuccessThenAlreadyExistsAndGetPnPInfoAppendsCopies)
{
    TypeParam dependency;
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.AddPnPInfo(MakePnP(1)));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, dependency.AddPnPInfo(MakePnP(1)));
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.AddPnPInfo(MakePnP(2)));
    std::vector<QRMPnPInfo> out(1, QRMPnPInfo());
    dependency.GetPnPInfo(out);
    ASSERT_EQ(3u, out.size());
    EXPECT_TRUE(out[0] == QRMPnPInfo());
    EXPECT_TRUE(out[1] == MakePnP(1));
    EXPECT_TRUE(out[2] == MakePnP(2));
}

TYPED_TEST(DependencyFields, DisplayValuesFollowTheOneTextPerLanguageRule)
{
    TypeParam dependency;
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.AddDisplayValue("en", "Runtime"));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, dependency.AddDisplayValue("en", "Other"));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, dependency.RemoveDisplayValue("de"));
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Runtime"}}), TextsOf(dependency));
}

TEST(QRMDependencyEquality, DependenciesWithEveryFieldEqualAreEqual)
{
    EXPECT_TRUE(MakeDependency() == MakeDependency());
    EXPECT_FALSE(MakeDependency() != MakeDependency());
    EXPECT_TRUE(QRMDependency() == QRMDependency());
}

TEST(QRMDependencyEquality, DifferentTypeMakesThemUnequal)
{
    QRMDependency other = MakeDependency();
    other.SetType(4);
    EXPECT_FALSE(MakeDependency() == other);
    EXPECT_TRUE(MakeDependency() != other);
}

TEST(QRMDependencyEquality, DifferentNameMakesThemUnequal)
{
    QRMDependency other = MakeDependency();
    other.SetName("runtime");
    EXPECT_FALSE(MakeDependency() == other);
}

TEST(QRMDependencyEquality, DifferentVersionMakesThemUnequal)
{
    QRMDependency other = MakeDependency();
    other.SetVersion("4.6");
    EXPECT_FALSE(MakeDependency() == other);
}

TEST(QRMDependencyEquality, DifferentIdentifierMakesThemUnequal)
{
    QRMDependency other = MakeDependency();
    other.SetIdentifier(MakeGUID(10));
    EXPECT_FALSE(MakeDependency() == other);
}

TEST(QRMDependencyEquality, DifferentPathMakesThemUnequal)
{
    QRMDependency other = MakeDependency();
    other.SetPath("deps/other.exe");
    EXPECT_FALSE(MakeDependency() == other);
}

TEST(QRMDependencyEquality, DifferentSizeMakesThemUnequal)
{
    QRMDependency other = MakeDependency();
    other.SetSize(0x100000001ULL);
    EXPECT_FALSE(MakeDependency() == other);
}

TEST(QRMDependencyEquality, DifferentFlagsMakeThemUnequal)
{
    QRMDependency other = MakeDependency();
    other.SetFlags(7);
    EXPECT_FALSE(MakeDependency() == other);
}

TEST(QRMDependencyEquality, DisplayValuesCompareByTheLanguageMatchingRule)
{
    QRMDependency sameLanguageOtherText = MakeDependency();
    sameLanguageOtherText.RemoveDisplayValue("en");
    sameLanguageOtherText.AddDisplayValue("en", "Other");
    EXPECT_FALSE(MakeDependency() == sameLanguageOtherText);

    QRMDependency otherLanguage = MakeDependency();
    otherLanguage.RemoveDisplayValue("en");
    otherLanguage.AddDisplayValue("fr", "Bibliotheque");
    EXPECT_TRUE(MakeDependency() == otherLanguage);

    QRMDependency moreTexts = MakeDependency();
    moreTexts.AddDisplayValue("de", "Laufzeit");
    EXPECT_FALSE(MakeDependency() == moreTexts);
}

TEST(QRMDependencyEquality, PCIListsCompareByTheAllPairsRule)
{
    QRMDependency other = MakeDependency();
    other.AddPCIInfo(MakePCI(1, 2, 3, 4));
    EXPECT_FALSE(MakeDependency() == other);

    QRMDependency a;
    QRMDependency b;
    a.AddPCIInfo(MakePCI(1, 2, 3, 4));
    b.AddPCIInfo(MakePCI(1, 2, 3, 5));
    EXPECT_FALSE(a == b);

    QRMDependency c;
    QRMDependency d;
    for (QRMDependency* dependency : {&c, &d}) {
        dependency->AddPCIInfo(MakePCI(1, 2, 3, 4));
        dependency->AddPCIInfo(MakePCI(5, 6, 7, 8));
    }
    EXPECT_FALSE(c == d);
    const QRMDependency& alias = c;
    EXPECT_FALSE(c == alias);
}

TEST(QRMDependencyEquality, PnPListsCompareByTheAllPairsRule)
{
    QRMDependency other = MakeDependency();
    other.AddPnPInfo(MakePnP(2));
    EXPECT_FALSE(MakeDependency() == other);

    QRMDependency a;
    QRMDependency b;
    a.AddPnPInfo(MakePnP(1));
    b.AddPnPInfo(MakePnP(2));
    EXPECT_FALSE(a == b);

    QRMDependency c;
    QRMDependency d;
    for (QRMDependency* dependency : {&c, &d}) {
        dependency->AddPnPInfo(MakePnP(1));
        dependency->AddPnPInfo(MakePnP(2));
    }
    EXPECT_FALSE(c == d);
}

TEST(QRMDependencyCopy, CopyIsDeepAndIndependent)
{
    QRMDependency source = MakeDependency();
    {
        QRMDependency copy(source);
        EXPECT_TRUE(copy == source);
        EXPECT_EQ("Runtime", U8(copy.GetName()));
        EXPECT_EQ(1u, PCIOf(copy).size());
        EXPECT_EQ(1u, PnPOf(copy).size());
        EXPECT_EQ(1u, TextsOf(copy).size());
        copy.AddPCIInfo(MakePCI(1, 2, 3, 4));
        copy.AddPnPInfo(MakePnP(3));
        copy.RemoveDisplayValue("en");
    }
    EXPECT_TRUE(source == MakeDependency());
    EXPECT_EQ(1u, PCIOf(source).size());
    EXPECT_EQ(1u, PnPOf(source).size());
    EXPECT_EQ(1u, TextsOf(source).size());
}

TEST(QRMDependencyCopy, AssignmentReplacesFieldsAndLists)
{
    QRMDependency target;
    target.SetName("Old");
    target.AddPCIInfo(MakePCI(9, 9, 9, 9));
    target.AddPCIInfo(MakePCI(8, 8, 8, 8));
    target.AddPnPInfo(MakePnP(9));
    target.AddDisplayValue("fr", "Ancien");
    QRMDependency source = MakeDependency();
    target = source;
    EXPECT_TRUE(target == source);
    std::vector<QRMPCIInfo> pci = PCIOf(target);
    ASSERT_EQ(1u, pci.size());
    EXPECT_TRUE(pci[0] == MakePCI(0x8086, 0x1000, 0, 0));
    std::vector<QRMPnPInfo> pnp = PnPOf(target);
    ASSERT_EQ(1u, pnp.size());
    EXPECT_TRUE(pnp[0] == MakePnP(1));
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Runtime library"}}), TextsOf(target));
}

TEST(QRMDependencyCopy, SelfAssignmentEmptiesTheListsButKeepsTheFields)
{
    QRMDependency dependency = MakeDependency();
    QRMDependency& alias = dependency;
    dependency = alias;
    EXPECT_EQ(3u, dependency.GetType());
    EXPECT_EQ("Runtime", U8(dependency.GetName()));
    EXPECT_EQ("4.5", U8(dependency.GetVersion()));
    EXPECT_TRUE(dependency.GetIdentifier() == MakeGUID(9));
    EXPECT_EQ("deps/runtime.exe", U8(dependency.GetPath()));
    EXPECT_EQ(0x100000000ULL, dependency.GetSize());
    EXPECT_EQ(6u, dependency.GetFlags());
    EXPECT_TRUE(TextsOf(dependency).empty());
    EXPECT_TRUE(PCIOf(dependency).empty());
    EXPECT_TRUE(PnPOf(dependency).empty());
}

// ---- QRMSoftDependency

TEST(QRMSoftDependency, NewSoftDependencyHasNoApplicabilityEntries)
{
    QRMSoftDependency dependency;
    EXPECT_TRUE(ApplicabilityOf(dependency).empty());
    EXPECT_EQ(0u, dependency.GetType());
    EXPECT_TRUE(PCIOf(dependency).empty());
}

TEST(QRMSoftDependency, AddApplicabilityReturnsSuccessThenAlreadyExistsAndGetAppendsCopies)
{
    QRMSoftDependency dependency;
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.AddApplicability(QRMDeviceApplicability("en", "Desktop")));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, dependency.AddApplicability(QRMDeviceApplicability("en", "Desktop")));
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.AddApplicability(QRMDeviceApplicability("en", "Laptop")));
    std::vector<QRMDeviceApplicability> out(1, QRMDeviceApplicability("xx", "earlier"));
    dependency.GetApplicability(out);
    ASSERT_EQ(3u, out.size());
    EXPECT_EQ("earlier", U8(out[0].GetValue()));
    EXPECT_EQ("Desktop", U8(out[1].GetValue()));
    EXPECT_EQ("Laptop", U8(out[2].GetValue()));
}

TEST(QRMSoftDependency, SoftDependenciesWithEverythingEqualAreEqual)
{
    EXPECT_TRUE(MakeSoftDependency() == MakeSoftDependency());
    EXPECT_FALSE(MakeSoftDependency() != MakeSoftDependency());
}

TEST(QRMSoftDependency, TheDependencyFieldsStillTakePart)
{
    QRMSoftDependency otherName = MakeSoftDependency();
    otherName.SetName("Other");
    EXPECT_FALSE(MakeSoftDependency() == otherName);

    QRMSoftDependency otherSize = MakeSoftDependency();
    otherSize.SetSize(1);
    EXPECT_FALSE(MakeSoftDependency() == otherSize);

    QRMSoftDependency otherPCI = MakeSoftDependency();
    otherPCI.AddPCIInfo(MakePCI(1, 2, 3, 4));
    EXPECT_FALSE(MakeSoftDependency() == otherPCI);

    QRMSoftDependency otherText = MakeSoftDependency();
    otherText.RemoveDisplayValue("en");
    otherText.AddDisplayValue("en", "Something else");
    EXPECT_FALSE(MakeSoftDependency() == otherText);
}

TEST(QRMSoftDependency, AnApplicabilityEntryOnOneSideOnlyMakesThemUnequal)
{
    QRMSoftDependency a = MakeSoftDependency();
    QRMSoftDependency b = MakeSoftDependency();
    b.AddApplicability(QRMDeviceApplicability("en", "Laptop"));
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(b == a);
    EXPECT_TRUE(a != b);
}

TEST(QRMSoftDependency, DifferentSingleApplicabilityEntriesMakeThemUnequal)
{
    QRMSoftDependency a;
    QRMSoftDependency b;
    a.AddApplicability(QRMDeviceApplicability("en", "Desktop"));
    b.AddApplicability(QRMDeviceApplicability("en", "Laptop"));
    EXPECT_FALSE(a == b);

    QRMSoftDependency c;
    c.AddApplicability(QRMDeviceApplicability("de", "Desktop"));
    EXPECT_FALSE(a == c);
}

TEST(QRMSoftDependency, TheSameTwoDifferentApplicabilityEntriesEachMakeThemUnequal)
{
    QRMSoftDependency a;
    QRMSoftDependency b;
    for (QRMSoftDependency* dependency : {&a, &b}) {
        dependency->AddApplicability(QRMDeviceApplicability("en", "Desktop"));
        dependency->AddApplicability(QRMDeviceApplicability("en", "Laptop"));
    }
    EXPECT_FALSE(a == b);
    const QRMSoftDependency& alias = a;
    EXPECT_FALSE(a == alias);
}

TEST(QRMSoftDependency, CopyIsDeepAndIndependent)
{
    QRMSoftDependency source = MakeSoftDependency();
    {
        QRMSoftDependency copy(source);
        EXPECT_TRUE(copy == source);
        EXPECT_EQ("Utility", U8(copy.GetName()));
        ASSERT_EQ(1u, ApplicabilityOf(copy).size());
        copy.AddApplicability(QRMDeviceApplicability("en", "Laptop"));
        copy.AddPCIInfo(MakePCI(1, 2, 3, 4));
    }
    EXPECT_TRUE(source == MakeSoftDependency());
    std::vector<QRMDeviceApplicability> entries = ApplicabilityOf(source);
    ASSERT_EQ(1u, entries.size());
    EXPECT_EQ("Desktop", U8(entries[0].GetValue()));
}

TEST(QRMSoftDependency, AssignmentReplacesTheApplicabilityEntriesAndTheDependencyFields)
{
    QRMSoftDependency target;
    target.SetName("Old");
    target.AddApplicability(QRMDeviceApplicability("fr", "Ancien"));
    target.AddApplicability(QRMDeviceApplicability("fr", "Vieux"));
    QRMSoftDependency source = MakeSoftDependency();
    target = source;
    EXPECT_TRUE(target == source);
    EXPECT_EQ("Utility", U8(target.GetName()));
    std::vector<QRMDeviceApplicability> entries = ApplicabilityOf(target);
    ASSERT_EQ(1u, entries.size());
    EXPECT_EQ("Desktop", U8(entries[0].GetValue()));
}

TEST(QRMSoftDependency, SelfAssignmentEmptiesEveryListButKeepsTheFields)
{
    QRMSoftDependency dependency = MakeSoftDependency();
    QRMSoftDependency& alias = dependency;
    dependency = alias;
    EXPECT_EQ("Utility", U8(dependency.GetName()));
    EXPECT_EQ("1.0", U8(dependency.GetVersion()));
    EXPECT_TRUE(ApplicabilityOf(dependency).empty());
    EXPECT_TRUE(PCIOf(dependency).empty());
    EXPECT_TRUE(TextsOf(dependency).empty());
}
