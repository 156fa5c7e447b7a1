// QRMOperatingSystem: one supported operating system's fields, texts and
// numeric tags, how two of them compare, and copying.
#include "QRMOperatingSystem.h"

#include "FieldDifferences.h"
#include "ModelBuilders.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <ostream>

#include <string>
#include <utility>
#include <vector>

using builders::U8;

namespace {

// An operating system with every scalar field set to a distinct value.
QRMOperatingSystem MakeOS(const char* code)
{
    QRMOperatingSystem os;
    os.SetCode(code);
    os.SetVendor("Acme");
    os.SetArchitecture(QRM_OS_ARCH_X64);
    os.SetMajorVersion("10");
    os.SetMinorVersion("2");
    os.SetServicePackMajorVersion("3");
    os.SetServicePackMinorVersion("1");
    os.SetPreInstallEnvironment(true);
    os.SetSuiteMask(0x110ULL);
    return os;
}

std::vector<unsigned int> TagsOf(const QRMOperatingSystem& os)
{
    std::vector<unsigned int> tags;
    os.GetNumericTags(tags);
    return tags;
}

using OperatingSystemDifference = FieldDifference<QRMOperatingSystem>;

const OperatingSystemDifference kOperatingSystemDifferences[] = {
    {"ObjectsWithAllFieldsEqualAreEqual",
     [](QRMOperatingSystem& a, QRMOperatingSystem& b) {
         a.AddNumericTag(4);
         b.AddNumericTag(4);
         a.AddDisplayValue("en", "Server");
         b.AddDisplayValue("en", "Server");
     },
     true},
    {"DifferentCodeMakesThemUnequal", [](QRMOperatingSystem&, QRMOperatingSystem& b) { b.SetCode("WIN32"); }, false},
    {"CodesDifferingOnlyInCaseAreUnequal", [](QRMOperatingSystem&, QRMOperatingSystem& b) { b.SetCode("win64"); },
     false},
    {"DifferentVendorMakesThemUnequal", [](QRMOperatingSystem&, QRMOperatingSystem& b) { b.SetVendor("Other"); },
     false},
    {"VendorsDifferingOnlyInCaseAreUnequal",
     [](QRMOperatingSystem& a, QRMOperatingSystem& b) {
         a.SetVendor("Acme");
         b.SetVendor("ACME");
     },
     false},
    {"DifferentArchitectureMakesThemUnequal",
     [](QRMOperatingSystem&, QRMOperatingSystem& b) { b.SetArchitecture(QRM_OS_ARCH_IA32); }, false},
    {"DifferentMajorVersionMakesThemUnequal",
     [](QRMOperatingSystem&, QRMOperatingSystem& b) { b.SetMajorVersion("11"); }, false},
    {"VersionTextsAreComparedAsTextNotAsNumbers",
     [](QRMOperatingSystem& a, QRMOperatingSystem& b) {
         a.SetMajorVersion("10");
         b.SetMajorVersion("010");
     },
     false},
    {"DifferentMinorVersionMakesThemUnequal",
     [](QRMOperatingSystem&, QRMOperatingSystem& b) { b.SetMinorVersion("3"); }, false},
    {"DifferentServicePackMajorVersionMakesThemUnequal",
     [](QRMOperatingSystem&, QRMOperatingSystem& b) { b.SetServicePackMajorVersion("4"); }, false},
    {"DifferentServicePackMinorVersionMakesThemUnequal",
     [](QRMOperatingSystem&, QRMOperatingSystem& b) { b.SetServicePackMinorVersion("2"); }, false},
    {"DifferentPreInstallFlagMakesThemUnequal",
     [](QRMOperatingSystem&, QRMOperatingSystem& b) { b.SetPreInstallEnvironment(false); }, false},
    {"DifferentSuiteMaskMakesThemUnequal", [](QRMOperatingSystem&, QRMOperatingSystem& b) { b.SetSuiteMask(0x111ULL); },
     false},
    {"SuiteMasksDifferingOnlyInTheHighWordAreUnequal",
     [](QRMOperatingSystem& a, QRMOperatingSystem& b) {
         a.SetSuiteMask(0x0000000100000000ULL);
         b.SetSuiteMask(0x0000000200000000ULL);
     },
     false},
    {"ATagOnOneSideOnlyMakesThemUnequal", [](QRMOperatingSystem& a, QRMOperatingSystem&) { a.AddNumericTag(1); },
     false},
    {"DifferentSingleTagsMakeThemUnequal",
     [](QRMOperatingSystem& a, QRMOperatingSystem& b) {
         a.AddNumericTag(1);
         b.AddNumericTag(2);
     },
     false},
    {"SameTextOfTheSameLanguageKeepsThemEqual",
     [](QRMOperatingSystem& a, QRMOperatingSystem& b) {
         a.AddDisplayValue("en", "Server");
         b.AddDisplayValue("en", "Server");
     },
     true},
    {"DifferentTextsOfTheSameLanguageMakeThemUnequal",
     [](QRMOperatingSystem& a, QRMOperatingSystem& b) {
         a.AddDisplayValue("en", "Server");
         b.AddDisplayValue("en", "Desktop");
     },
     false},
    {"DifferentNumbersOfTextsMakeThemUnequal",
     [](QRMOperatingSystem& a, QRMOperatingSystem& b) {
         a.AddDisplayValue("en", "Server");
         a.AddDisplayValue("de", "Dienst");
         b.AddDisplayValue("en", "Server");
     },
     false},
    {"OneTextEachInDifferentLanguagesCompareEqual",
     [](QRMOperatingSystem& a, QRMOperatingSystem& b) {
         a.AddDisplayValue("en", "Server");
         b.AddDisplayValue("fr", "Serveur");
     },
     true},
    {"TextsInAnotherOrderCompareEqual",
     [](QRMOperatingSystem& a, QRMOperatingSystem& b) {
         a.AddDisplayValue("en", "Server");
         a.AddDisplayValue("de", "Dienst");
         b.AddDisplayValue("de", "Dienst");
         b.AddDisplayValue("en", "Server");
     },
     true},
};

class QRMOperatingSystemEquality : public testing::TestWithParam<OperatingSystemDifference> {};

}  // namespace

TEST(QRMOperatingSystemFields, NewObjectHasEmptyTextsArchitectureZeroNoPreInstallAndZeroSuiteMask)
{
    QRMOperatingSystem os;
    EXPECT_EQ("", U8(os.GetCode()));
    EXPECT_EQ("", U8(os.GetVendor()));
    EXPECT_EQ(QRM_OS_ARCH_X86, os.GetArchitecture());
    EXPECT_EQ(0, static_cast<int>(os.GetArchitecture()));
    EXPECT_EQ("", U8(os.GetMajorVersion()));
    EXPECT_EQ("", U8(os.GetMinorVersion()));
    EXPECT_EQ("", U8(os.GetServicePackMajorVersion()));
    EXPECT_EQ("", U8(os.GetServicePackMinorVersion()));
    EXPECT_FALSE(os.IsForPreInstallEnvironment());
    EXPECT_EQ(0ULL, os.GetSuiteMask());
    EXPECT_TRUE(TextsOf(os).empty());
    EXPECT_TRUE(TagsOf(os).empty());
}

TEST(QRMOperatingSystemFields, EverySetterReturnsSuccessAndTheGetterReadsTheStoredValue)
{
    QRMOperatingSystem os;
    EXPECT_EQ(QRM_KIT_SUCCESS, os.SetCode("WIN64"));
    EXPECT_EQ(QRM_KIT_SUCCESS, os.SetVendor("Acme"));
    EXPECT_EQ(QRM_KIT_SUCCESS, os.SetArchitecture(QRM_OS_ARCH_IA64));
    EXPECT_EQ(QRM_KIT_SUCCESS, os.SetMajorVersion("6"));
    EXPECT_EQ(QRM_KIT_SUCCESS, os.SetMinorVersion("1"));
    EXPECT_EQ(QRM_KIT_SUCCESS, os.SetServicePackMajorVersion("2"));
    EXPECT_EQ(QRM_KIT_SUCCESS, os.SetServicePackMinorVersion("0"));
    EXPECT_EQ(QRM_KIT_SUCCESS, os.SetPreInstallEnvironment(true));
    EXPECT_EQ(QRM_KIT_SUCCESS, os.SetSuiteMask(0x8000000000000001ULL));

    EXPECT_EQ("WIN64", U8(os.GetCode()));
    EXPECT_EQ("Acme", U8(os.GetVendor()));
    EXPECT_EQ(QRM_OS_ARCH_IA64, os.GetArchitecture());
    EXPECT_EQ("6", U8(os.GetMajorVersion()));
    EXPECT_EQ("1", U8(os.GetMinorVersion()));
    EXPECT_EQ("2", U8(os.GetServicePackMajorVersion()));
    EXPECT_EQ("0", U8(os.GetServicePackMinorVersion()));
    EXPECT_TRUE(os.IsForPreInstallEnvironment());
    EXPECT_EQ(0x8000000000000001ULL, os.GetSuiteMask());
}

TEST(QRMOperatingSystemFields, VersionTextsAreKeptExactlyAsGivenWithoutParsing)
{
    QRMOperatingSystem os;
    EXPECT_EQ(QRM_KIT_SUCCESS, os.SetMajorVersion(" 06 "));
    EXPECT_EQ(QRM_KIT_SUCCESS, os.SetMinorVersion("x.y"));
    EXPECT_EQ(" 06 ", U8(os.GetMajorVersion()));
    EXPECT_EQ("x.y", U8(os.GetMinorVersion()));
}

TEST(QRMOperatingSystemFields, ArchitectureOutsideTheEnumerationIsStoredUnchecked)
{
    QRMOperatingSystem os;
    EXPECT_EQ(QRM_KIT_SUCCESS, os.SetArchitecture(static_cast<QRMOSArchitectureEnum>(17)));
    EXPECT_EQ(17, static_cast<int>(os.GetArchitecture()));
}

TEST(QRMOperatingSystemFields, PreInstallFlagCanBeClearedAgain)
{
    QRMOperatingSystem os;
    os.SetPreInstallEnvironment(true);
    EXPECT_EQ(QRM_KIT_SUCCESS, os.SetPreInstallEnvironment(false));
    EXPECT_FALSE(os.IsForPreInstallEnvironment());
}

TEST(QRMOperatingSystemFields, AddingANumericTagTwiceReturnsSuccessThenAlreadyExists)
{
    QRMOperatingSystem os;
    EXPECT_EQ(QRM_KIT_SUCCESS, os.AddNumericTag(7));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, os.AddNumericTag(7));
    EXPECT_EQ(QRM_KIT_SUCCESS, os.AddNumericTag(9));
    EXPECT_EQ((std::vector<unsigned int>{7, 9}), TagsOf(os));
}

TEST(QRMOperatingSystemFields, GetNumericTagsKeepsExistingItemsInFront)
{
    QRMOperatingSystem os;
    os.AddNumericTag(5);
    std::vector<unsigned int> tags{100};
    os.GetNumericTags(tags);
    EXPECT_EQ((std::vector<unsigned int>{100, 5}), tags);
}

TEST(QRMOperatingSystemTexts, AddingASecondTextOfTheSameLanguageIsRefusedAndKeepsTheFirst)
{
    QRMOperatingSystem os;
    EXPECT_EQ(QRM_KIT_SUCCESS, os.AddDisplayValue("en", "Server"));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, os.AddDisplayValue("en", "Desktop"));
    EXPECT_EQ(QRM_KIT_SUCCESS, os.AddDisplayValue("EN", "Desktop"));
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Server"}, {"EN", "Desktop"}}), TextsOf(os));
}

TEST(QRMOperatingSystemTexts, RemovingAnAbsentLanguageReturnsNotFoundAndAPresentOneSuccess)
{
    QRMOperatingSystem os;
    EXPECT_EQ(QRM_KIT_NOT_FOUND, os.RemoveDisplayValue("en"));
    os.AddDisplayValue("en", "Server");
    os.AddDisplayValue("de", "Dienst");
    EXPECT_EQ(QRM_KIT_NOT_FOUND, os.RemoveDisplayValue("fr"));
    EXPECT_EQ(QRM_KIT_SUCCESS, os.RemoveDisplayValue("de"));
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Server"}}), TextsOf(os));
}

TEST(QRMOperatingSystemTexts, GetDisplayValuesKeepsExistingItemsInFront)
{
    QRMOperatingSystem os;
    os.AddDisplayValue("en", "Server");
    std::vector<QRMDisplay> out(1, QRMDisplay("xx", "earlier"));
    os.GetDisplayValues(out);
    ASSERT_EQ(2u, out.size());
    EXPECT_EQ("earlier", U8(out[0].GetValue()));
    EXPECT_EQ("en", U8(out[1].GetLanguage()));
    EXPECT_EQ("Server", U8(out[1].GetValue()));
}

TEST_F(QRMOperatingSystemEquality, TwoNewObjectsAreEqual)
{
    QRMOperatingSystem a;
    QRMOperatingSystem b;
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
}

TEST_P(QRMOperatingSystemEquality, FieldDiffers) { ExpectDifference(GetParam(), MakeOS("WIN64"), MakeOS("WIN64")); }

INSTANTIATE_TEST_SUITE_P(, QRMOperatingSystemEquality, testing::ValuesIn(kOperatingSystemDifferences),
                         NameOfDifference());

TEST_F(QRMOperatingSystemEquality, TwoDifferentTagsOnEachSideAreUnequalEvenInTheSameOrder)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    a.AddNumericTag(1);
    a.AddNumericTag(2);
    b.AddNumericTag(1);
    b.AddNumericTag(2);
    EXPECT_FALSE(a == b);
    const QRMOperatingSystem& alias = a;
    EXPECT_FALSE(a == alias);
}

TEST(QRMOperatingSystemCopy, CopyCarriesEveryFieldTextAndTag)
{
    QRMOperatingSystem source = MakeOS("WIN64");
    source.AddDisplayValue("en", "Server");
    source.AddNumericTag(3);
    QRMOperatingSystem copy(source);
    EXPECT_EQ("WIN64", U8(copy.GetCode()));
    EXPECT_EQ("Acme", U8(copy.GetVendor()));
    EXPECT_EQ(QRM_OS_ARCH_X64, copy.GetArchitecture());
    EXPECT_EQ("10", U8(copy.GetMajorVersion()));
    EXPECT_EQ("2", U8(copy.GetMinorVersion()));
    EXPECT_EQ("3", U8(copy.GetServicePackMajorVersion()));
    EXPECT_EQ("1", U8(copy.GetServicePackMinorVersion()));
    EXPECT_TRUE(copy.IsForPreInstallEnvironment());
    EXPECT_EQ(0x110ULL, copy.GetSuiteMask());
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Server"}}), TextsOf(copy));
    EXPECT_EQ((std::vector<unsigned int>{3}), TagsOf(copy));
    EXPECT_TRUE(copy == source);
}

TEST(QRMOperatingSystemCopy, ChangingOrDestroyingACopyLeavesTheSourceUntouched)
{
    QRMOperatingSystem source = MakeOS("WIN64");
    source.AddDisplayValue("en", "Server");
    source.AddNumericTag(3);
    {
        QRMOperatingSystem copy(source);
        copy.SetCode("LINUX");
        copy.RemoveDisplayValue("en");
        copy.AddDisplayValue("de", "Dienst");
        copy.AddNumericTag(8);
    }
    EXPECT_EQ("WIN64", U8(source.GetCode()));
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Server"}}), TextsOf(source));
    EXPECT_EQ((std::vector<unsigned int>{3}), TagsOf(source));
}

TEST(QRMOperatingSystemCopy, AssignmentReplacesFieldsTextsAndTags)
{
    QRMOperatingSystem target = MakeOS("WIN32");
    target.AddDisplayValue("fr", "Vieux");
    target.AddNumericTag(1);
    QRMOperatingSystem source = MakeOS("WIN64");
    source.SetPreInstallEnvironment(false);
    source.AddDisplayValue("en", "Server");
    source.AddNumericTag(2);
    target = source;
    EXPECT_EQ("WIN64", U8(target.GetCode()));
    EXPECT_FALSE(target.IsForPreInstallEnvironment());
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Server"}}), TextsOf(target));
    EXPECT_EQ((std::vector<unsigned int>{2}), TagsOf(target));
    source.AddDisplayValue("de", "Dienst");
    EXPECT_EQ(1u, TextsOf(target).size());
}

TEST(QRMOperatingSystemCopy, SelfAssignmentEmptiesTextsAndTagsButKeepsScalarFields)
{
    QRMOperatingSystem os = MakeOS("WIN64");
    os.AddDisplayValue("en", "Server");
    os.AddNumericTag(3);
    QRMOperatingSystem& alias = os;
    os = alias;
    EXPECT_EQ("WIN64", U8(os.GetCode()));
    EXPECT_EQ("Acme", U8(os.GetVendor()));
    EXPECT_EQ(QRM_OS_ARCH_X64, os.GetArchitecture());
    EXPECT_TRUE(os.IsForPreInstallEnvironment());
    EXPECT_EQ(0x110ULL, os.GetSuiteMask());
    EXPECT_TRUE(TextsOf(os).empty());
    EXPECT_TRUE(TagsOf(os).empty());
}
