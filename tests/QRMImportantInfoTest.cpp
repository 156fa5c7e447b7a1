// QRMImportantInfo: its URL, and how the URL and the texts take part in
// equality.
#include "QRMImportantInfo.h"

#include "TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

TEST(QRMImportantInfoURL, SetURLReturnsSuccessAndGetURLGivesItBack)
{
    QRMImportantInfo info;
    EXPECT_TRUE(info.GetURL().IsEmpty());
    EXPECT_EQ(QRM_KIT_SUCCESS, info.SetURL(VELString("https://notes.example/a b?x=1")));
    EXPECT_EQ("https://notes.example/a b?x=1", info.GetURL().GetUTF8String());
}

TEST(QRMImportantInfoEquality, DifferentURLsAreUnequalWithEqualTexts)
{
    QRMImportantInfo left;
    QRMImportantInfo right;
    AddTexts(left, {{"en", "Read me"}});
    AddTexts(right, {{"en", "Read me"}});
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetURL(VELString("https://a.example/")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetURL(VELString("https://b.example/")));
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetURL(VELString("https://a.example/")));
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}

TEST(QRMImportantInfoEquality, EqualURLsWithConflictingTextsAreUnequal)
{
    QRMImportantInfo left;
    QRMImportantInfo right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetURL(VELString("https://a.example/")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetURL(VELString("https://a.example/")));
    AddTexts(left, {{"en", "Read me"}});
    AddTexts(right, {{"en", "Ignore me"}});
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}
