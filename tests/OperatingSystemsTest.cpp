// Operating systems: the single record (fields, texts, numeric tags, copying
// and equality) and the owned list of them a component or bundle supports.
#include "QRMOperatingSystem.h"
#include "QRMSupportedOperatingSystems.h"

#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

std::string U8(const VELString& text) { return text.GetUTF8String(); }

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

std::vector<std::string> CodesOf(const QRMSupportedOperatingSystems& list)
{
    std::vector<QRMOperatingSystem> copies;
    list.GetOSes(copies);
    std::vector<std::string> codes;
    for (const QRMOperatingSystem& os : copies) {
        codes.push_back(U8(os.GetCode()));
    }
    return codes;
}

std::vector<unsigned int> TagsOf(const QRMOperatingSystem& os)
{
    std::vector<unsigned int> tags;
    os.GetNumericTags(tags);
    return tags;
}

}  // namespace

// ---- QRMOperatingSystem: fields

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

// ---- QRMOperatingSystem: display values

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

// ---- QRMOperatingSystem: equality, one field at a time

TEST(QRMOperatingSystemEquality, TwoNewObjectsAreEqual)
{
    QRMOperatingSystem a;
    QRMOperatingSystem b;
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
}

TEST(QRMOperatingSystemEquality, ObjectsWithAllFieldsEqualAreEqual)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    a.AddNumericTag(4);
    b.AddNumericTag(4);
    a.AddDisplayValue("en", "Server");
    b.AddDisplayValue("en", "Server");
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
}

TEST(QRMOperatingSystemEquality, DifferentCodeMakesThemUnequal)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN32");
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
}

TEST(QRMOperatingSystemEquality, CodesDifferingOnlyInCaseAreUnequal)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("win64");
    EXPECT_FALSE(a == b);
}

TEST(QRMOperatingSystemEquality, DifferentVendorMakesThemUnequal)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    b.SetVendor("Other");
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
}

TEST(QRMOperatingSystemEquality, VendorsDifferingOnlyInCaseAreUnequal)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    a.SetVendor("Acme");
    b.SetVendor("ACME");
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
}

TEST(QRMOperatingSystemEquality, DifferentArchitectureMakesThemUnequal)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    b.SetArchitecture(QRM_OS_ARCH_IA32);
    EXPECT_FALSE(a == b);
}

TEST(QRMOperatingSystemEquality, DifferentMajorVersionMakesThemUnequal)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    b.SetMajorVersion("11");
    EXPECT_FALSE(a == b);
}

TEST(QRMOperatingSystemEquality, VersionTextsAreComparedAsTextNotAsNumbers)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    a.SetMajorVersion("10");
    b.SetMajorVersion("010");
    EXPECT_FALSE(a == b);
}

TEST(QRMOperatingSystemEquality, DifferentMinorVersionMakesThemUnequal)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    b.SetMinorVersion("3");
    EXPECT_FALSE(a == b);
}

TEST(QRMOperatingSystemEquality, DifferentServicePackMajorVersionMakesThemUnequal)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    b.SetServicePackMajorVersion("4");
    EXPECT_FALSE(a == b);
}

TEST(QRMOperatingSystemEquality, DifferentServicePackMinorVersionMakesThemUnequal)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    b.SetServicePackMinorVersion("2");
    EXPECT_FALSE(a == b);
}

TEST(QRMOperatingSystemEquality, DifferentPreInstallFlagMakesThemUnequal)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    b.SetPreInstallEnvironment(false);
    EXPECT_FALSE(a == b);
}

TEST(QRMOperatingSystemEquality, DifferentSuiteMaskMakesThemUnequal)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    b.SetSuiteMask(0x111ULL);
    EXPECT_FALSE(a == b);
}

TEST(QRMOperatingSystemEquality, SuiteMasksDifferingOnlyInTheHighWordAreUnequal)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    a.SetSuiteMask(0x0000000100000000ULL);
    b.SetSuiteMask(0x0000000200000000ULL);
    EXPECT_FALSE(a == b);
}

TEST(QRMOperatingSystemEquality, ATagOnOneSideOnlyMakesThemUnequal)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    a.AddNumericTag(1);
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(b == a);
}

TEST(QRMOperatingSystemEquality, DifferentSingleTagsMakeThemUnequal)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    a.AddNumericTag(1);
    b.AddNumericTag(2);
    EXPECT_FALSE(a == b);
}

TEST(QRMOperatingSystemEquality, TwoDifferentTagsOnEachSideAreUnequalEvenInTheSameOrder)
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

TEST(QRMOperatingSystemEquality, SameTextOfTheSameLanguageKeepsThemEqual)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    a.AddDisplayValue("en", "Server");
    b.AddDisplayValue("en", "Server");
    EXPECT_TRUE(a == b);
}

TEST(QRMOperatingSystemEquality, DifferentTextsOfTheSameLanguageMakeThemUnequal)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    a.AddDisplayValue("en", "Server");
    b.AddDisplayValue("en", "Desktop");
    EXPECT_FALSE(a == b);
}

TEST(QRMOperatingSystemEquality, DifferentNumbersOfTextsMakeThemUnequal)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    a.AddDisplayValue("en", "Server");
    a.AddDisplayValue("de", "Dienst");
    b.AddDisplayValue("en", "Server");
    EXPECT_FALSE(a == b);
}

TEST(QRMOperatingSystemEquality, OneTextEachInDifferentLanguagesCompareEqual)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    a.AddDisplayValue("en", "Server");
    b.AddDisplayValue("fr", "Serveur");
    EXPECT_TRUE(a == b);
}

TEST(QRMOperatingSystemEquality, TextsInAnotherOrderCompareEqual)
{
    QRMOperatingSystem a = MakeOS("WIN64");
    QRMOperatingSystem b = MakeOS("WIN64");
    a.AddDisplayValue("en", "Server");
    a.AddDisplayValue("de", "Dienst");
    b.AddDisplayValue("de", "Dienst");
    b.AddDisplayValue("en", "Server");
    EXPECT_TRUE(a == b);
}

// ---- QRMOperatingSystem: copying and assignment

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

// ---- QRMSupportedOperatingSystems

TEST(QRMSupportedOperatingSystems, NewListHoldsNothing)
{
    QRMSupportedOperatingSystems list;
    EXPECT_TRUE(CodesOf(list).empty());
}

TEST(QRMSupportedOperatingSystems, AddOSAppendsCopiesInOrderAndReturnsSuccess)
{
    QRMSupportedOperatingSystems list;
    QRMOperatingSystem first = MakeOS("WIN64");
    QRMOperatingSystem second = MakeOS("LINUX");
    EXPECT_EQ(QRM_KIT_SUCCESS, list.AddOS(first));
    EXPECT_EQ(QRM_KIT_SUCCESS, list.AddOS(second));
    EXPECT_EQ((std::vector<std::string>{"WIN64", "LINUX"}), CodesOf(list));
}

TEST(QRMSupportedOperatingSystems, AddOSStoresACopyThatLaterChangesToTheArgumentDoNotReach)
{
    QRMSupportedOperatingSystems list;
    QRMOperatingSystem os = MakeOS("WIN64");
    os.AddDisplayValue("en", "Server");
    ASSERT_EQ(QRM_KIT_SUCCESS, list.AddOS(os));
    os.SetCode("CHANGED");
    os.RemoveDisplayValue("en");
    std::vector<QRMOperatingSystem> held;
    list.GetOSes(held);
    ASSERT_EQ(1u, held.size());
    EXPECT_EQ("WIN64", U8(held[0].GetCode()));
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Server"}}), TextsOf(held[0]));
}

TEST(QRMSupportedOperatingSystems, AddOSOfAnEqualSystemReturnsAlreadyExistsAndLeavesTheListAsItWas)
{
    QRMSupportedOperatingSystems list;
    QRMOperatingSystem first = MakeOS("WIN64");
    QRMOperatingSystem second = MakeOS("LINUX");
    ASSERT_EQ(QRM_KIT_SUCCESS, list.AddOS(first));
    ASSERT_EQ(QRM_KIT_SUCCESS, list.AddOS(second));
    QRMOperatingSystem again = MakeOS("WIN64");
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, list.AddOS(again));
    EXPECT_EQ((std::vector<std::string>{"WIN64", "LINUX"}), CodesOf(list));
}

TEST(QRMSupportedOperatingSystems, AddOSRefusesASystemEqualOnlyUnderTheLanguageMatchingTextRule)
{
    QRMSupportedOperatingSystems list;
    QRMOperatingSystem held = MakeOS("WIN64");
    held.AddDisplayValue("en", "Server");
    ASSERT_EQ(QRM_KIT_SUCCESS, list.AddOS(held));
    QRMOperatingSystem other = MakeOS("WIN64");
    other.AddDisplayValue("fr", "Serveur");
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, list.AddOS(other));
    EXPECT_EQ(1u, CodesOf(list).size());
}

TEST(QRMSupportedOperatingSystems, AddOSDifferingOnlyInSuiteMaskIsAdded)
{
    QRMSupportedOperatingSystems list;
    QRMOperatingSystem first = MakeOS("WIN64");
    QRMOperatingSystem second = MakeOS("WIN64");
    second.SetSuiteMask(0x200ULL);
    EXPECT_EQ(QRM_KIT_SUCCESS, list.AddOS(first));
    EXPECT_EQ(QRM_KIT_SUCCESS, list.AddOS(second));
    std::vector<QRMOperatingSystem> held;
    list.GetOSes(held);
    ASSERT_EQ(2u, held.size());
    EXPECT_EQ(0x110ULL, held[0].GetSuiteMask());
    EXPECT_EQ(0x200ULL, held[1].GetSuiteMask());
}

TEST(QRMSupportedOperatingSystems, RemoveOSOnAnEmptyListReturnsNotFound)
{
    QRMSupportedOperatingSystems list;
    QRMOperatingSystem os = MakeOS("WIN64");
    EXPECT_EQ(QRM_KIT_NOT_FOUND, list.RemoveOS(os));
    EXPECT_TRUE(CodesOf(list).empty());
}

TEST(QRMSupportedOperatingSystems, RemoveOSOfASystemNotHeldReturnsNotFoundAndKeepsTheList)
{
    QRMSupportedOperatingSystems list;
    QRMOperatingSystem held = MakeOS("WIN64");
    list.AddOS(held);
    QRMOperatingSystem other = MakeOS("WIN64");
    other.SetSuiteMask(0x1ULL);
    EXPECT_EQ(QRM_KIT_NOT_FOUND, list.RemoveOS(other));
    EXPECT_EQ((std::vector<std::string>{"WIN64"}), CodesOf(list));
}

TEST(QRMSupportedOperatingSystems, RemoveOSTakesOutExactlyTheMatchingSystemAndKeepsTheOthersInOrder)
{
    QRMSupportedOperatingSystems list;
    QRMOperatingSystem a = MakeOS("A");
    QRMOperatingSystem b = MakeOS("B");
    QRMOperatingSystem c = MakeOS("C");
    c.AddDisplayValue("en", "Third");
    list.AddOS(a);
    list.AddOS(b);
    list.AddOS(c);
    EXPECT_EQ(QRM_KIT_SUCCESS, list.RemoveOS(b));
    std::vector<QRMOperatingSystem> held;
    list.GetOSes(held);
    ASSERT_EQ(2u, held.size());
    EXPECT_TRUE(held[0] == a);
    EXPECT_TRUE(held[1] == c);
    // The system that followed the removed one keeps all of its contents.
    EXPECT_EQ("C", U8(held[1].GetCode()));
    EXPECT_EQ("Acme", U8(held[1].GetVendor()));
    EXPECT_EQ(0x110ULL, held[1].GetSuiteMask());
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Third"}}), TextsOf(held[1]));
}

TEST(QRMSupportedOperatingSystems, RemoveOSOfTheFirstOfTwoLeavesTheSecondIntact)
{
    QRMSupportedOperatingSystems list;
    QRMOperatingSystem first = MakeOS("WIN64");
    QRMOperatingSystem second = MakeOS("LINUX");
    list.AddOS(first);
    list.AddOS(second);
    EXPECT_EQ(QRM_KIT_SUCCESS, list.RemoveOS(first));
    std::vector<QRMOperatingSystem> held;
    list.GetOSes(held);
    ASSERT_EQ(1u, held.size());
    EXPECT_TRUE(held[0] == second);
}

TEST(QRMSupportedOperatingSystems, RemoveOSOfTheLastLeavesTheEarlierOnes)
{
    QRMSupportedOperatingSystems list;
    QRMOperatingSystem first = MakeOS("WIN64");
    QRMOperatingSystem second = MakeOS("LINUX");
    list.AddOS(first);
    list.AddOS(second);
    EXPECT_EQ(QRM_KIT_SUCCESS, list.RemoveOS(second));
    EXPECT_EQ((std::vector<std::string>{"WIN64"}), CodesOf(list));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, list.RemoveOS(second));
}

TEST(QRMSupportedOperatingSystems, ARemovedSystemCanBeAddedAgainAtTheEnd)
{
    QRMSupportedOperatingSystems list;
    QRMOperatingSystem first = MakeOS("WIN64");
    QRMOperatingSystem second = MakeOS("LINUX");
    list.AddOS(first);
    list.AddOS(second);
    ASSERT_EQ(QRM_KIT_SUCCESS, list.RemoveOS(first));
    EXPECT_EQ(QRM_KIT_SUCCESS, list.AddOS(first));
    EXPECT_EQ((std::vector<std::string>{"LINUX", "WIN64"}), CodesOf(list));
}

TEST(QRMSupportedOperatingSystems, GetOSesKeepsExistingItemsInFront)
{
    QRMSupportedOperatingSystems list;
    QRMOperatingSystem os = MakeOS("WIN64");
    list.AddOS(os);
    std::vector<QRMOperatingSystem> out(1, MakeOS("EARLIER"));
    list.GetOSes(out);
    ASSERT_EQ(2u, out.size());
    EXPECT_EQ("EARLIER", U8(out[0].GetCode()));
    EXPECT_EQ("WIN64", U8(out[1].GetCode()));
}

TEST(QRMSupportedOperatingSystems, TwoEmptyListsAreEqual)
{
    QRMSupportedOperatingSystems a;
    QRMSupportedOperatingSystems b;
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
}

TEST(QRMSupportedOperatingSystems, ListsEachHoldingTheSameSingleSystemAreEqual)
{
    QRMSupportedOperatingSystems a;
    QRMSupportedOperatingSystems b;
    QRMOperatingSystem os = MakeOS("WIN64");
    a.AddOS(os);
    b.AddOS(os);
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
}

TEST(QRMSupportedOperatingSystems, ListsEachHoldingADifferentSingleSystemAreUnequal)
{
    QRMSupportedOperatingSystems a;
    QRMSupportedOperatingSystems b;
    QRMOperatingSystem first = MakeOS("WIN64");
    QRMOperatingSystem second = MakeOS("LINUX");
    a.AddOS(first);
    b.AddOS(second);
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
}

TEST(QRMSupportedOperatingSystems, ListsOfDifferentLengthsAreUnequal)
{
    QRMSupportedOperatingSystems a;
    QRMSupportedOperatingSystems b;
    QRMOperatingSystem os = MakeOS("WIN64");
    a.AddOS(os);
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(b == a);
}

TEST(QRMSupportedOperatingSystems, ListsEachHoldingTheSameTwoSystemsInTheSameOrderAreUnequal)
{
    QRMSupportedOperatingSystems a;
    QRMSupportedOperatingSystems b;
    QRMOperatingSystem first = MakeOS("WIN64");
    QRMOperatingSystem second = MakeOS("LINUX");
    a.AddOS(first);
    a.AddOS(second);
    b.AddOS(first);
    b.AddOS(second);
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
}

TEST(QRMSupportedOperatingSystems, AListOfTwoDifferentSystemsIsUnequalToItselfAndToItsCopy)
{
    QRMSupportedOperatingSystems list;
    QRMOperatingSystem first = MakeOS("WIN64");
    QRMOperatingSystem second = MakeOS("LINUX");
    list.AddOS(first);
    list.AddOS(second);
    const QRMSupportedOperatingSystems& alias = list;
    EXPECT_FALSE(list == alias);
    EXPECT_TRUE(list != alias);
    QRMSupportedOperatingSystems copy(list);
    EXPECT_FALSE(copy == list);
}

TEST(QRMSupportedOperatingSystems, ListsHoldingSystemsEqualOnlyByTheTextRuleAreEqual)
{
    QRMSupportedOperatingSystems a;
    QRMSupportedOperatingSystems b;
    QRMOperatingSystem english = MakeOS("WIN64");
    english.AddDisplayValue("en", "Server");
    QRMOperatingSystem french = MakeOS("WIN64");
    french.AddDisplayValue("fr", "Serveur");
    a.AddOS(english);
    b.AddOS(french);
    EXPECT_TRUE(a == b);
}

TEST(QRMSupportedOperatingSystems, CopyHoldsTheSameSystemsAndIsIndependent)
{
    QRMSupportedOperatingSystems source;
    QRMOperatingSystem first = MakeOS("WIN64");
    QRMOperatingSystem second = MakeOS("LINUX");
    source.AddOS(first);
    {
        QRMSupportedOperatingSystems copy(source);
        EXPECT_EQ((std::vector<std::string>{"WIN64"}), CodesOf(copy));
        EXPECT_TRUE(copy == source);
        EXPECT_EQ(QRM_KIT_SUCCESS, copy.AddOS(second));
        EXPECT_EQ(QRM_KIT_SUCCESS, copy.RemoveOS(first));
        EXPECT_EQ((std::vector<std::string>{"LINUX"}), CodesOf(copy));
    }
    EXPECT_EQ((std::vector<std::string>{"WIN64"}), CodesOf(source));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, source.AddOS(first));
}

TEST(QRMSupportedOperatingSystems, AssignmentReplacesTheHeldSystems)
{
    QRMSupportedOperatingSystems target;
    QRMSupportedOperatingSystems source;
    QRMOperatingSystem first = MakeOS("WIN64");
    QRMOperatingSystem second = MakeOS("LINUX");
    QRMOperatingSystem third = MakeOS("SOLARIS");
    target.AddOS(first);
    source.AddOS(second);
    source.AddOS(third);
    target = source;
    EXPECT_EQ((std::vector<std::string>{"LINUX", "SOLARIS"}), CodesOf(target));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.RemoveOS(second));
    EXPECT_EQ((std::vector<std::string>{"LINUX", "SOLARIS"}), CodesOf(target));
}

TEST(QRMSupportedOperatingSystems, SelfAssignmentEmptiesTheList)
{
    QRMSupportedOperatingSystems list;
    QRMOperatingSystem os = MakeOS("WIN64");
    list.AddOS(os);
    QRMSupportedOperatingSystems& alias = list;
    list = alias;
    EXPECT_TRUE(CodesOf(list).empty());
}
