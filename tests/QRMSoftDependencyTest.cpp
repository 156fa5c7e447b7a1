// QRMSoftDependency: a dependency that also lists applicability entries;
// its own fields, how two compare, and copying.
#include "QRMSoftDependency.h"
#include "QRMDeviceApplicability.h"
#include "QRMPCIInfo.h"

#include "ModelBuilders.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using builders::MakePCI;
using builders::U8;

namespace {

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

std::vector<QRMDeviceApplicability> ApplicabilityOf(const QRMSoftDependency& dependency)
{
    std::vector<QRMDeviceApplicability> out;
    dependency.GetApplicability(out);
    return out;
}

}  // namespace

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
