// QRMCategory: its code, and how the code and the texts take part in
// equality.
#include "QRMCategory.h"

#include "TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

TEST(QRMCategoryCode, NewCategoryHasAnEmptyCode)
{
    QRMCategory category;
    EXPECT_TRUE(category.GetCode().IsEmpty());
}

TEST(QRMCategoryCode, SetCodeReturnsSuccessAndGetCodeGivesItBack)
{
    QRMCategory category;
    EXPECT_EQ(QRM_KIT_SUCCESS, category.SetCode(VELString("BI")));
    EXPECT_EQ("BI", category.GetCode().GetUTF8String());
    EXPECT_EQ(QRM_KIT_SUCCESS, category.SetCode(VELString("")));
    EXPECT_EQ("", category.GetCode().GetUTF8String());
}

TEST(QRMCategoryEquality, EqualCodesWithTextsInDifferentLanguagesAreEqual)
{
    QRMCategory left;
    QRMCategory right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCode(VELString("SF2")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCode(VELString("SF2")));
    AddTexts(left, {{"en", "X"}});
    AddTexts(right, {{"de", "Y"}});
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}

TEST(QRMCategoryEquality, EqualCodesWithDifferentTextsInOneLanguageAreUnequal)
{
    QRMCategory left;
    QRMCategory right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCode(VELString("SF2")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCode(VELString("SF2")));
    AddTexts(left, {{"en", "X"}});
    AddTexts(right, {{"en", "Z"}});
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMCategoryEquality, OneEntryAgainstTwoEntriesIsUnequal)
{
    QRMCategory left;
    QRMCategory right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCode(VELString("SF2")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCode(VELString("SF2")));
    AddTexts(left, {{"en", "X"}});
    AddTexts(right, {{"en", "X"}, {"de", "Y"}});
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
    EXPECT_FALSE(right == left);
}

TEST(QRMCategoryEquality, DifferentCodesAreUnequalWithEqualTexts)
{
    QRMCategory left;
    QRMCategory right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCode(VELString("BI")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCode(VELString("SF2")));
    AddTexts(left, {{"en", "X"}});
    AddTexts(right, {{"en", "X"}});
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMCategoryEquality, CodesDifferingOnlyInCaseAreUnequal)
{
    QRMCategory left;
    QRMCategory right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCode(VELString("bi")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCode(VELString("BI")));
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMCategoryEquality, OrderOfEntriesDoesNotMatter)
{
    QRMCategory left;
    QRMCategory right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCode(VELString("NI")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCode(VELString("NI")));
    AddTexts(left, {{"en", "Network"}, {"fr", "Réseau"}, {"de", "Netzwerk"}});
    AddTexts(right, {{"de", "Netzwerk"}, {"en", "Network"}, {"fr", "Réseau"}});
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}
