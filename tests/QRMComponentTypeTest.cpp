// QRMComponentType: its enumerated value, stored unchecked, and equality by
// value, then by the texts.
#include "QRMComponentType.h"

#include "TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

TEST(QRMComponentTypeValue, NewComponentTypeHoldsZero)
{
    QRMComponentType type;
    EXPECT_EQ(QRM_COMPONENT_SBDL, type.GetValue());
    EXPECT_EQ(0, static_cast<int>(type.GetValue()));
}

TEST(QRMComponentTypeValue, SetValueReturnsSuccessForEveryEnumerator)
{
    const QRMComponentTypeValueEnum values[] = {QRM_COMPONENT_SBDL, QRM_COMPONENT_FRMW, QRM_COMPONENT_BIOS,
                                                QRM_COMPONENT_APAC, QRM_COMPONENT_APP,  QRM_COMPONENT_DRVR};
    QRMComponentType type;
    for (QRMComponentTypeValueEnum value : values) {
        EXPECT_EQ(QRM_KIT_SUCCESS, type.SetValue(value));
        EXPECT_EQ(value, type.GetValue());
    }
}

TEST(QRMComponentTypeValue, OutOfRangeValuesAreStoredUnchecked)
{
    QRMComponentType type;
    EXPECT_EQ(QRM_KIT_SUCCESS, type.SetValue(static_cast<QRMComponentTypeValueEnum>(42)));
    EXPECT_EQ(42, static_cast<int>(type.GetValue()));
    EXPECT_EQ(QRM_KIT_SUCCESS, type.SetValue(static_cast<QRMComponentTypeValueEnum>(-1)));
    EXPECT_EQ(-1, static_cast<int>(type.GetValue()));
}

TEST(QRMComponentTypeEquality, DifferentValuesAreUnequalWhateverTheTexts)
{
    QRMComponentType left;
    QRMComponentType right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetValue(QRM_COMPONENT_FRMW));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetValue(QRM_COMPONENT_BIOS));
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);

    AddTexts(left, {{"en", "Firmware"}});
    AddTexts(right, {{"en", "Firmware"}});
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);

    AddTexts(left, {{"de", "X"}});
    AddTexts(right, {{"fr", "Y"}});
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMComponentTypeEquality, EqualValuesCompareByTheTexts)
{
    QRMComponentType left;
    QRMComponentType right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetValue(static_cast<QRMComponentTypeValueEnum>(42)));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetValue(static_cast<QRMComponentTypeValueEnum>(42)));
    AddTexts(left, {{"en", "X"}});
    AddTexts(right, {{"en", "X"}});
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
    EXPECT_EQ(QRM_KIT_SUCCESS, right.RemoveDisplayValue(VELString("en")));
    AddTexts(right, {{"en", "Z"}});
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}
