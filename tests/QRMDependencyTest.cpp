// QRMDependency: a supported device's dependency; how two compare (one
// table of differing fields, then the all-pairs rules of its texts and
// lists) and copying.
#include "QRMDependency.h"
#include "QRMPCIInfo.h"
#include "QRMPnPInfo.h"

#include "FieldDifferences.h"
#include "ModelBuilders.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <ostream>

#include <string>
#include <utility>
#include <vector>

using builders::MakeGUID;
using builders::MakePCI;
using builders::MakePnP;
using builders::U8;

namespace {

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

using DependencyDifference = FieldDifference<QRMDependency>;

const DependencyDifference kDependencyDifferences[] = {
    {"DifferentTypeMakesThemUnequal", [](QRMDependency&, QRMDependency& b) { b.SetType(4); }, false},
    {"DifferentNameMakesThemUnequal", [](QRMDependency&, QRMDependency& b) { b.SetName("runtime"); }, false},
    {"DifferentVersionMakesThemUnequal", [](QRMDependency&, QRMDependency& b) { b.SetVersion("4.6"); }, false},
    {"DifferentIdentifierMakesThemUnequal", [](QRMDependency&, QRMDependency& b) { b.SetIdentifier(MakeGUID(10)); },
     false},
    {"DifferentPathMakesThemUnequal", [](QRMDependency&, QRMDependency& b) { b.SetPath("deps/b.exe"); }, false},
    {"DifferentSizeMakesThemUnequal", [](QRMDependency&, QRMDependency& b) { b.SetSize(0x100000001ULL); }, false},
    {"DifferentFlagsMakeThemUnequal", [](QRMDependency&, QRMDependency& b) { b.SetFlags(7); }, false},
};

class QRMDependencyEquality : public testing::TestWithParam<DependencyDifference> {};

}  // namespace

TEST_F(QRMDependencyEquality, DependenciesWithEveryFieldEqualAreEqual)
{
    EXPECT_TRUE(MakeDependency() == MakeDependency());
    EXPECT_FALSE(MakeDependency() != MakeDependency());
    EXPECT_TRUE(QRMDependency() == QRMDependency());
}

TEST_P(QRMDependencyEquality, FieldDiffers) { ExpectDifference(GetParam(), MakeDependency(), MakeDependency()); }

INSTANTIATE_TEST_SUITE_P(, QRMDependencyEquality, testing::ValuesIn(kDependencyDifferences), NameOfDifference());

TEST_F(QRMDependencyEquality, DisplayValuesCompareByTheLanguageMatchingRule)
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

TEST_F(QRMDependencyEquality, PCIListsCompareByTheAllPairsRule)
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

TEST_F(QRMDependencyEquality, PnPListsCompareByTheAllPairsRule)
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
