// QRMLUCategory: its code, compared before the texts.
#include "QRMLUCategory.h"

#include "TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

TEST(QRMLUCategoryCode, SetCodeReturnsSuccessAndGetCodeGivesItBack)
{
    QRMLUCategory category;
    EXPECT_TRUE(category.GetCode().IsEmpty());
    EXPECT_EQ(QRM_KIT_SUCCESS, category.SetCode(VELString("DV")));
    EXPECT_EQ("DV", category.GetCode().GetUTF8String());
}

TEST(QRMLUCategoryEquality, CodeIsComparedBeforeTheTexts)
{
    QRMLUCategory left;
    QRMLUCategory right;
    AddTexts(left, {{"en", "X"}});
    AddTexts(right, {{"de", "Y"}});
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCode(VELString("DV")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCode(VELString("DV")));
    EXPECT_TRUE(left == right);
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCode(VELString("DW")));
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}
