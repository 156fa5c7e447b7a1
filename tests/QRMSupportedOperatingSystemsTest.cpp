// QRMSupportedOperatingSystems: the owned list of operating systems a
// component or bundle supports.
#include "QRMSupportedOperatingSystems.h"
#include "QRMOperatingSystem.h"

#include "ModelBuilders.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

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

}  // namespace

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
