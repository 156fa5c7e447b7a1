// Ordering version texts field by field, and padding two versions to the
// same number of fields.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

int Compare(const VELString& first, const VELString& second)
{
    return QRMKitAPI::Instance()->CompareVersion(first, second);
}

int Compare(const char* first, const char* second) { return Compare(VELString(first), VELString(second)); }

struct Expected {
    const char* first;
    const char* second;
    int result;
};

}  // namespace

TEST(CompareVersion, EqualTextsAreEqual)
{
    EXPECT_EQ(0, Compare("1.2.3", "1.2.3"));
    EXPECT_EQ(0, Compare("A05", "A05"));
}

TEST(CompareVersion, HigherLastFieldIsNewerNumerically)
{
    EXPECT_EQ(1, Compare("1.2.10", "1.2.9"));
    EXPECT_EQ(-1, Compare("1.2.9", "1.2.10"));
}

TEST(CompareVersion, EarlierFieldDecidesBeforeLaterOnes)
{
    EXPECT_EQ(1, Compare("2.0.0", "1.99.99"));
    EXPECT_EQ(-1, Compare("1.2.99", "1.3.0"));
}

TEST(CompareVersion, MoreFieldsIsNewerThanItsPrefix)
{
    EXPECT_EQ(-1, Compare("1.0", "1.0.0"));
    EXPECT_EQ(1, Compare("1.0.0", "1.0"));
    EXPECT_EQ(-1, Compare("2.1", "2.1.0"));
    EXPECT_EQ(1, Compare("2.1.0", "2.1"));
    EXPECT_EQ(-1, Compare("1", "1.0.0.0"));
}

TEST(CompareVersion, FewerFieldsCanStillBeNewer)
{
    EXPECT_EQ(1, Compare("1.3", "1.2.9"));
    EXPECT_EQ(-1, Compare("1.2.9", "1.3"));
}

TEST(CompareVersion, LeadingZerosDoNotCount)
{
    EXPECT_EQ(0, Compare("1.05", "1.5"));
    EXPECT_EQ(0, Compare("01.2", "1.2"));
    EXPECT_EQ(0, Compare("1.2", "01.2"));
    EXPECT_EQ(0, Compare("0001.0002.0003", "1.2.3"));
}

TEST(CompareVersion, LettersComparedAfterLeftPaddingWithZero)
{
    EXPECT_EQ(1, Compare("A05", "A5"));  // A5 becomes 0A5, and A is above 0
    EXPECT_EQ(-1, Compare("A5", "A05"));
    EXPECT_EQ(1, Compare("A10", "A9"));
    EXPECT_EQ(-1, Compare("A9", "A10"));
    EXPECT_EQ(-1, Compare("A01", "A02"));
    EXPECT_EQ(1, Compare("A02", "A01"));
    EXPECT_EQ(1, Compare("X12", "X9"));
}

TEST(CompareVersion, LowerCaseIsAboveUpperCase)
{
    EXPECT_EQ(1, Compare("a", "B"));
    EXPECT_EQ(-1, Compare("B", "a"));
    EXPECT_EQ(1, Compare("x12", "X12"));
    EXPECT_EQ(-1, Compare("X12", "x12"));
}

TEST(CompareVersion, RunsOfSeparatorsCountAsOne)
{
    EXPECT_EQ(0, Compare("1..2", "1.2"));
    EXPECT_EQ(0, Compare("1.2", "1..2"));
    EXPECT_EQ(0, Compare("1.-_2", "1.2"));
}

TEST(CompareVersion, SeparatorsAtTheEndsGiveNoFields)
{
    EXPECT_EQ(0, Compare(".1.2.", "1.2"));
    EXPECT_EQ(0, Compare("1.2", ".1.2."));
    EXPECT_EQ(0, Compare("...", ""));
    EXPECT_EQ(0, Compare("", "..."));
    EXPECT_EQ(0, Compare("._-", "..."));
}

TEST(CompareVersion, SeparatorsAreInterchangeable)
{
    EXPECT_EQ(0, Compare("1-2", "1_2"));
    EXPECT_EQ(0, Compare("1.2.3", "1-2-3"));
    EXPECT_EQ(0, Compare("1-2-3", "1_2.3"));
    EXPECT_EQ(0, Compare("1.2.3", "1_2.3"));
    EXPECT_EQ(0, Compare("1_2.3", "1.2.3"));
}

TEST(CompareVersion, EmptyTexts)
{
    EXPECT_EQ(0, Compare("", ""));
    EXPECT_EQ(-1, Compare("", "1"));
    EXPECT_EQ(1, Compare("1", ""));
    EXPECT_EQ(-1, Compare("...", "0"));
    EXPECT_EQ(1, Compare("0", "..."));
}

TEST(CompareVersion, ZeroFieldIsStillAField)
{
    EXPECT_EQ(0, Compare("0", "00"));
    EXPECT_EQ(1, Compare("1.0", "1"));
}

TEST(CompareVersion, OtherCharactersBelongToTheField)
{
    // Only ".", "-" and "_" separate fields; a blank or "+" is compared by its
    // code unit like any other character.
    EXPECT_EQ(1, Compare("1 2", "1.2"));  // field "1 2" against "1" padded to "001"
    EXPECT_EQ(1, Compare("1+2", "1"));    // "1+2" against "001"
    EXPECT_EQ(-1, Compare(" 9", "19"));   // the blank is below every digit
}

TEST(CompareVersion, NonASCIITextCannotBeCompared)
{
    VELString accented(u"1.\u00E9");
    VELString plain("1.0");
    EXPECT_EQ(-2, Compare(accented, plain));
    EXPECT_EQ(-2, Compare(plain, accented));
    EXPECT_EQ(-2, Compare(VELString(u"\U0001F600"), VELString("1")));
    EXPECT_EQ(-2, Compare(VELString("1"), VELString(u"\U0001F600")));
}

TEST(CompareVersion, IdenticalNonASCIITextsAreEqual)
{
    VELString accented(u"1.\u00E9");
    EXPECT_EQ(0, Compare(accented, VELString(u"1.\u00E9")));
}

TEST(CompareVersion, VeryLongFieldsCompareWithoutParsingNumbers)
{
    const std::string big = "123456789012345678901234567890";
    const std::string bigger = "123456789012345678901234567891";
    const std::string shorter = "99999999999999999999999999999";  // 29 digits
    EXPECT_EQ(-1, Compare(("1." + big).c_str(), ("1." + bigger).c_str()));
    EXPECT_EQ(1, Compare(("1." + bigger).c_str(), ("1." + big).c_str()));
    EXPECT_EQ(1, Compare(big.c_str(), shorter.c_str()));
    EXPECT_EQ(-1, Compare(shorter.c_str(), big.c_str()));
    EXPECT_EQ(0, Compare(("000" + big).c_str(), big.c_str()));
    EXPECT_EQ(1, Compare((big + ".1").c_str(), big.c_str()));
}

TEST(CompareVersion, DoesNotChangeItsArguments)
{
    VELString first("1");
    VELString second("1.2.3");
    Compare(first, second);
    EXPECT_EQ(VELString("1"), first);
    EXPECT_EQ(VELString("1.2.3"), second);
}

TEST(CompareVersion, TableOfPairs)
{
    const Expected table[] = {
        {"1.2.3", "1.2.3", 0},  {"1.2.10", "1.2.9", 1}, {"1.0", "1.0.0", -1},    {"2.1", "2.1.0", -1},
        {"1.05", "1.5", 0},     {"01.2", "1.2", 0},     {"A05", "A5", 1},        {"A10", "A9", 1},
        {"A01", "A02", -1},     {"a", "B", 1},          {"1..2", "1.2", 0},      {".1.2.", "1.2", 0},
        {"1-2", "1_2", 0},      {"X12", "X9", 1},       {"x12", "X12", 1},       {"", "", 0},
        {"", "1", -1},          {"1", "", 1},           {"...", "", 0},          {"10", "9", 1},
        {"1.10.0", "1.9.9", 1}, {"2.0", "10.0", -1},    {"1.2.3.4", "1.2.3", 1}, {"A00", "A01", -1},
        {"1.0a", "1.0b", -1},   {"1.0a", "1.0", 1},     {"1.0.0-1", "1.0.0", 1}, {"4.3.2_1", "4.3.2.1", 0},
    };
    for (const Expected& row : table) {
        EXPECT_EQ(row.result, Compare(row.first, row.second)) << "'" << row.first << "' against '" << row.second << "'";
    }
}

TEST(CompareVersion, SwappingTheArgumentsNegatesTheResultForVariedPairs)
{
    const std::pair<const char*, const char*> pairs[] = {
        {"1.2.3", "1.2.3"},
        {"1.2.10", "1.2.9"},
        {"1.0", "1.0.0"},
        {"2.1", "2.1.0"},
        {"1.05", "1.5"},
        {"01.2", "1.2"},
        {"A05", "A5"},
        {"A10", "A9"},
        {"A01", "A02"},
        {"a", "B"},
        {"1..2", "1.2"},
        {".1.2.", "1.2"},
        {"1-2", "1_2"},
        {"1.2.3", "1-2-3"},
        {"1-2-3", "1_2.3"},
        {"X12", "X9"},
        {"x12", "X12"},
        {"", ""},
        {"", "1"},
        {"...", ""},
        {"...", "0"},
        {"0", "00"},
        {"1 2", "1.2"},
        {"1+2", "1"},
        {"9.9.9", "10"},
        {"1.0a", "1.0b"},
        {"A", "0A"},
        {"1.2.3.4.5", "1.2.3.4"},
        {"_1_", "-1-"},
        {"zz", "ZZZ"},
        {"0.0.1", "0.0.01"},
        {"3.10.2", "3.9.12"},
        {"123456789012345678901234567890", "123456789012345678901234567891"},
    };
    for (const auto& pair : pairs) {
        int forward = Compare(pair.first, pair.second);
        int backward = Compare(pair.second, pair.first);
        EXPECT_EQ(forward, -backward) << "'" << pair.first << "' and '" << pair.second << "'";
        EXPECT_TRUE(forward >= -1 && forward <= 1) << "'" << pair.first << "' and '" << pair.second << "'";
    }
}

TEST(CompareVersion, SwappingTheArgumentsNegatesTheResultForAllPairsOfAList)
{
    const char* const versions[] = {
        "",    "...",   "0",     "00",     "0.0",   "1",    "1.0",   "1.0.0",       "1.0.0.0",  "1.2",
        "1-2", "1_2.3", "1.2.3", "1.2.10", "1.2.9", "1.10", "01.10", "A5",          "A05",      "A10",
        "a",   "B",     "X9",    "X12",    "x12",   "2.1",  "2.1.0", "10.0.1-beta", "10.0.1_b",
    };
    int asymmetric = 0;
    for (const char* first : versions) {
        for (const char* second : versions) {
            int forward = Compare(first, second);
            int backward = Compare(second, first);
            if (forward != -backward) {
                ++asymmetric;
                ADD_FAILURE() << "'" << first << "' against '" << second << "' gives " << forward << ", the reverse "
                              << backward;
            }
            if (std::string(first) == second) {
                EXPECT_EQ(0, forward) << "'" << first << "'";
            }
        }
    }
    EXPECT_EQ(0, asymmetric);
}

TEST(CompareVersion, OrderIsTransitiveOverASortedList)
{
    // Strictly increasing by the rules of the comparison.
    // A longer field is the larger once leading zeros are set aside, so a
    // letter alone sorts below 10, and A05 above A9.
    const char* const ascending[] = {"",  "0.9", "1",     "1.0", "1.0.0", "1.0.1", "1.1", "1.2.9", "1.2.10", "1.10",
                                     "2", "2.1", "2.1.0", "a",   "10",    "A5",    "A9",  "A05",   "A10"};
    const std::size_t count = sizeof(ascending) / sizeof(ascending[0]);
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t j = 0; j < count; ++j) {
            int expected = i < j ? -1 : (i > j ? 1 : 0);
            EXPECT_EQ(expected, Compare(ascending[i], ascending[j]))
                << "'" << ascending[i] << "' against '" << ascending[j] << "'";
        }
    }
}
