// Value semantics of the package entries and bundles of a catalog and of the
// systems and applications of an inventory: copies and moves carry every
// field, assignment replaces every field, inequality is the negation of
// equality, and the identifiers that the reader never sets can be set.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace {

VELGUID Guid(unsigned char first)
{
    VELGUID::Bytes bytes{};
    bytes[0] = first;
    bytes[15] = 0x5A;
    return VELGUID(bytes);
}

QRMBundleContent Content(const char* path, const char* packageID)
{
    QRMBundleContent content;
    content.SetPath(VELString(path));
    content.SetPackageID(VELString(packageID));
    return content;
}

QRMSoftwareBundle Bundle()
{
    QRMSoftwareBundle bundle;
    bundle.SetBundleID(VELString("S740W64.00041"));
    bundle.SetBundleType(QRM_BUNDLE_BTW64);
    bundle.AddDescriptionDisplayValue(VELString("en"), VELString("Everything"));
    bundle.AddDescriptionDisplayValue(VELString("fr"), VELString("Tout"));
    bundle.AddContent(Content("A.EXE", "PA"));
    bundle.AddContent(Content("B.EXE", "PB"));
    return bundle;
}

std::vector<QRMBundleContent> Contents(const QRMSoftwareBundle& bundle)
{
    std::vector<QRMBundleContent> contents;
    bundle.GetContents(contents);
    return contents;
}

QRMISystem System(unsigned int id, const char* tag)
{
    QRMISystem system;
    system.SetSystemID(id);
    system.SetSystemIDType(QRM_SYSTEMID_TYPE_RAIDCHASSIS);
    system.SetDisplay(VELString("S740"));
    system.SetServiceTag(VELString(tag));
    system.AddDisplayValue(VELString("en"), VELString("Server"));
    return system;
}

}  // namespace

TEST(BundleContentValue, IdentifierIsNilUntilSet)
{
    QRMBundleContent content = Content("A.EXE", "PA");
    EXPECT_TRUE(content.GetIdentifier().IsNil());
    EXPECT_EQ(QRM_KIT_SUCCESS, content.SetIdentifier(Guid(7)));
    EXPECT_EQ(Guid(7), content.GetIdentifier());
}

TEST(BundleContentValue, AssignmentCopiesEveryField)
{
    QRMBundleContent source = Content("A.EXE", "PA");
    source.SetIdentifier(Guid(1));
    QRMBundleContent target = Content("B.EXE", "PB");
    EXPECT_TRUE(target != source);
    target = source;
    EXPECT_FALSE(target != source);
    EXPECT_TRUE(target == source);
    EXPECT_EQ(VELString("A.EXE"), target.GetPath());
    EXPECT_EQ(VELString("PA"), target.GetPackageID());
    EXPECT_EQ(Guid(1), target.GetIdentifier());
}

TEST(BundleContentValue, MovesCarryEveryField)
{
    QRMBundleContent source = Content("A.EXE", "PA");
    source.SetIdentifier(Guid(2));
    QRMBundleContent moved(std::move(source));
    EXPECT_EQ(VELString("A.EXE"), moved.GetPath());
    EXPECT_EQ(Guid(2), moved.GetIdentifier());
    QRMBundleContent target = Content("B.EXE", "PB");
    target = std::move(moved);
    EXPECT_EQ(VELString("PA"), target.GetPackageID());
    EXPECT_EQ(Guid(2), target.GetIdentifier());
}

TEST(BundleContentValue, EntriesDifferingOnlyInIdentifierAreUnequal)
{
    QRMBundleContent first = Content("A.EXE", "PA");
    QRMBundleContent second = first;
    EXPECT_FALSE(first != second);
    second.SetIdentifier(Guid(3));
    EXPECT_TRUE(first != second);
    EXPECT_FALSE(first == second);
}

TEST(SoftwareBundleValue, IdentifiersAreNilUntilSetAndIndependent)
{
    QRMSoftwareBundle bundle;
    EXPECT_TRUE(bundle.GetIdentifier().IsNil());
    EXPECT_TRUE(bundle.GetSecondaryIdentifier().IsNil());
    EXPECT_EQ(QRM_KIT_SUCCESS, bundle.SetIdentifier(Guid(4)));
    EXPECT_EQ(Guid(4), bundle.GetIdentifier());
    EXPECT_TRUE(bundle.GetSecondaryIdentifier().IsNil());
    EXPECT_EQ(QRM_KIT_SUCCESS, bundle.SetSecondaryIdentifier(Guid(5)));
    EXPECT_EQ(Guid(5), bundle.GetSecondaryIdentifier());
    EXPECT_EQ(Guid(4), bundle.GetIdentifier());
}

TEST(SoftwareBundleValue, RemovingADescriptionTextFollowsTheDisplayListRule)
{
    QRMSoftwareBundle bundle = Bundle();
    EXPECT_EQ(QRM_KIT_NOT_FOUND, bundle.RemoveDescriptionDisplayValue(VELString("de")));
    EXPECT_EQ(QRM_KIT_SUCCESS, bundle.RemoveDescriptionDisplayValue(VELString("fr")));
    std::vector<QRMDisplay> texts;
    bundle.GetDescriptionDisplayValues(texts);
    ASSERT_EQ(1u, texts.size());
    EXPECT_EQ(VELString("Everything"), texts[0].GetValue());
    EXPECT_EQ(QRM_KIT_NOT_FOUND, bundle.RemoveDescriptionDisplayValue(VELString("fr")));
    // Removing the first of two closes the list up and clears the entry
    // that moves in.
    QRMSoftwareBundle other = Bundle();
    EXPECT_EQ(QRM_KIT_SUCCESS, other.RemoveDescriptionDisplayValue(VELString("en")));
    texts.clear();
    other.GetDescriptionDisplayValues(texts);
    ASSERT_EQ(1u, texts.size());
    EXPECT_TRUE(texts[0].GetLanguage().IsEmpty());
    EXPECT_TRUE(texts[0].GetValue().IsEmpty());
}

TEST(SoftwareBundleValue, CopiesAndMovesCarryContentsAndIdentifiers)
{
    QRMSoftwareBundle source = Bundle();
    source.SetIdentifier(Guid(6));
    source.SetSecondaryIdentifier(Guid(8));
    QRMSoftwareBundle copy(source);
    EXPECT_EQ(2u, Contents(copy).size());
    EXPECT_EQ(Guid(6), copy.GetIdentifier());
    QRMSoftwareBundle assigned;
    assigned.AddContent(Content("X.EXE", "PX"));
    assigned = source;
    ASSERT_EQ(2u, Contents(assigned).size());
    EXPECT_EQ(VELString("B.EXE"), Contents(assigned)[1].GetPath());
    EXPECT_EQ(Guid(8), assigned.GetSecondaryIdentifier());
    QRMSoftwareBundle moved(std::move(copy));
    EXPECT_EQ(VELString("S740W64.00041"), moved.GetBundleID());
    EXPECT_EQ(2u, Contents(moved).size());
    QRMSoftwareBundle target;
    target = std::move(moved);
    EXPECT_EQ(QRM_BUNDLE_BTW64, target.GetBundleType());
    EXPECT_EQ(2u, Contents(target).size());
    EXPECT_EQ(Guid(6), target.GetIdentifier());
}

TEST(InventorySystemValue, AssignmentAndMovesCarryEveryField)
{
    const QRMISystem source = System(0x0A6B, "ABC1234");
    QRMISystem target = System(1, "OTHER");
    EXPECT_TRUE(target != source);
    target = source;
    EXPECT_FALSE(target != source);
    EXPECT_EQ(0x0A6Bu, target.GetSystemID());
    EXPECT_EQ(QRM_SYSTEMID_TYPE_RAIDCHASSIS, target.GetSystemIDType());
    EXPECT_EQ(VELString("ABC1234"), target.GetServiceTag());
    EXPECT_EQ(1u, TextCount(target));
    QRMISystem moved(std::move(target));
    EXPECT_EQ(VELString("S740"), moved.GetDisplay());
    QRMISystem last;
    last = std::move(moved);
    EXPECT_TRUE(last == source);
}

TEST(InventorySystemValue, InequalityIsTheNegationOfEquality)
{
    const QRMISystem system = System(0x0A6B, "ABC1234");
    QRMISystem otherTag = System(0x0A6B, "XYZ");
    QRMISystem otherText = System(0x0A6B, "ABC1234");
    otherText.AddDisplayValue(VELString("fr"), VELString("Serveur"));
    EXPECT_FALSE(system != System(0x0A6B, "ABC1234"));
    EXPECT_TRUE(system != otherTag);
    EXPECT_TRUE(system != otherText);
    EXPECT_TRUE(system != System(0x0A6C, "ABC1234"));
}

TEST(InventoryApplicationValue, MovesCarryEveryField)
{
    QRMIApplication source;
    source.SetComponentType(QRM_COMPONENT_DRVR);
    source.SetVersion(VELString("1.13.2"));
    source.SetDisplay(VELString("Driver"));
    source.SetSubComponentID(VELString("7"));
    source.AddDisplayValue(VELString("en"), VELString("Driver"));
    const QRMIApplication expected = source;
    QRMIApplication moved(std::move(source));
    EXPECT_TRUE(moved == expected);
    QRMIApplication target;
    target = std::move(moved);
    EXPECT_TRUE(target == expected);
    EXPECT_EQ(QRM_COMPONENT_DRVR, target.GetComponentType());
    EXPECT_EQ(VELString("7"), target.GetSubComponentID());
}

TEST(AcrossCatalogRecordsMoves, RollbackInformationCarriesEveryField)
{
    QRMRollbackInformation source;
    source.SetRollbackIdentifier(Guid(9));
    source.SetRollbackVersion(VELString("2.3.9"));
    source.SetPackagePath(VELString("old/BIOS.EXE"));
    source.SetSequence(3);
    source.SetFlags(0x81);
    source.SetNote(VELString("before 2.4"));
    const QRMRollbackInformation expected = source;
    QRMRollbackInformation moved(std::move(source));
    EXPECT_TRUE(moved == expected);
    QRMRollbackInformation target;
    target = std::move(moved);
    EXPECT_FALSE(target != expected);
    EXPECT_EQ(Guid(9), target.GetRollbackIdentifier());
    EXPECT_EQ(3u, target.GetSequence());
    EXPECT_EQ(0x81u, target.GetFlags());
    EXPECT_EQ(VELString("before 2.4"), target.GetNote());
}

TEST(AcrossCatalogRecordsMoves, DependenciesCarryEveryField)
{
    QRMDependency source;
    source.SetType(2);
    source.SetName(VELString("Chipset driver"));
    source.SetVersion(VELString("10.1.19"));
    source.SetSize(123456789012ull);
    QRMPCIInfo pci;
    pci.SetVendorID(0x8086);
    pci.SetDeviceID(0x1593);
    source.AddPCIInfo(pci);
    const QRMDependency expected = source;
    QRMDependency moved(std::move(source));
    EXPECT_TRUE(moved == expected);
    EXPECT_EQ(123456789012ull, moved.GetSize());
    std::vector<QRMPCIInfo> records;
    moved.GetPCIInfo(records);
    ASSERT_EQ(1u, records.size());
    EXPECT_EQ(0x1593u, records[0].GetDeviceID());

    QRMSoftDependency soft;
    QRMDeviceApplicability applicability;
    soft.AddApplicability(applicability);
    const QRMSoftDependency softExpected = soft;
    QRMSoftDependency softMoved(std::move(soft));
    EXPECT_TRUE(softMoved == softExpected);
    std::vector<QRMDeviceApplicability> applicabilities;
    softMoved.GetApplicability(applicabilities);
    EXPECT_EQ(1u, applicabilities.size());
}

TEST(AcrossCatalogRecordsMoves, WrapperInformationCarriesEveryField)
{
    QRMFMPWrapperInformation source;
    source.SetDigitallySigned(true);
    source.SetName(VELString("Wrapper"));
    source.SetIdentifier(Guid(10));
    source.SetFilePath(VELString("fw/wrap.bin"));
    source.SetDriverName(VELString("fmp"));
    source.SetDriverVersion(VELString("1.2"));
    const QRMFMPWrapperInformation expected = source;
    QRMFMPWrapperInformation moved(std::move(source));
    EXPECT_TRUE(moved == expected);
    QRMFMPWrapperInformation target;
    target = std::move(moved);
    EXPECT_FALSE(target != expected);
    EXPECT_EQ(VELString("fw/wrap.bin"), target.GetFilePath());
    EXPECT_EQ(Guid(10), target.GetIdentifier());
}

TEST(AcrossCatalogRecordsMoves, CollectorEntryCarriesEveryField)
{
    QRMInventoryComponent source;
    source.SetOSCode(VELString("W22"));
    source.SetPath(VELString("collectors/w22.exe"));
    source.SetVendorVersion(VELString("3.1"));
    source.SetDateTime(VELTime(1700000000ull));
    const QRMInventoryComponent expected = source;
    QRMInventoryComponent moved(std::move(source));
    EXPECT_TRUE(moved == expected);
    EXPECT_EQ(VELString("collectors/w22.exe"), moved.GetPath());
    EXPECT_EQ(1700000000ull, moved.GetDateTime().GetValue());
}

TEST(AcrossCatalogRecordsMoves, SystemsAndOperatingSystemsCarryEveryField)
{
    QRMOperatingSystem os;
    os.SetCode(VELString("W22"));
    os.SetVendor(VELString("Example"));
    os.SetArchitecture(QRM_OS_ARCH_X64);
    os.AddDisplayValue(VELString("en"), VELString("Server OS"));
    const QRMOperatingSystem osExpected = os;
    QRMOperatingSystem osTarget;
    osTarget = std::move(os);
    EXPECT_TRUE(osTarget == osExpected);
    EXPECT_EQ(QRM_OS_ARCH_X64, osTarget.GetArchitecture());

    QRMModel model;
    model.SetSystemID(0x0A6B);
    model.SetSecondID(2);
    model.SetThirdID(3);
    QRMModel modelTarget;
    modelTarget = std::move(model);
    EXPECT_EQ(0x0A6Bu, modelTarget.GetSystemID());
    EXPECT_EQ(3u, modelTarget.GetThirdID());

    QRMBrand brand;
    brand.SetKey(VELString("3"));
    brand.SetPrefix(VELString("SRV"));
    brand.AddModel(modelTarget);
    QRMBrand brandTarget;
    brandTarget = std::move(brand);
    EXPECT_EQ(3u, brandTarget.GetKey());
    EXPECT_EQ(VELString("SRV"), brandTarget.GetPrefix());
    std::vector<QRMModel*> models;
    brandTarget.GetModels(models);
    ASSERT_EQ(1u, models.size());
    EXPECT_EQ(0x0A6Bu, models[0]->GetSystemID());
}
