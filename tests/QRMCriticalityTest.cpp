// QRMCriticality: its enumerated value, stored unchecked, and equality by
// value.
#include "QRMCriticality.h"

#include "TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

TEST(QRMCriticalityValue, NewCriticalityHoldsZero)
{
    QRMCriticality criticality;
    EXPECT_EQ(QRM_CRITICALITY_LEVEL1, criticality.GetValue());
    EXPECT_EQ(0, static_cast<int>(criticality.GetValue()));
}

TEST(QRMCriticalityValue, SetValueReturnsSuccessForEveryEnumerator)
{
    const QRMCriticalityValueEnum values[] = {QRM_CRITICALITY_LEVEL1, QRM_CRITICALITY_LEVEL2, QRM_CRITICALITY_LEVEL3,
                                              QRM_CRITICALITY_UNSPECIFIED};
    QRMCriticality criticality;
    for (QRMCriticalityValueEnum value : values) {
        EXPECT_EQ(QRM_KIT_SUCCESS, criticality.SetValue(value));
        EXPECT_EQ(value, criticality.GetValue());
    }
}

TEST(QRMCriticalityValue, OutOfRangeValuesAreStoredUnchecked)
{
    QRMCriticality criticality;
    EXPECT_EQ(QRM_KIT_SUCCESS, criticality.SetValue(static_cast<QRMCriticalityValueEnum>(42)));
    EXPECT_EQ(42, static_cast<int>(criticality.GetValue()));
}

TEST(QRMCriticalityEquality, DifferentValuesAreUnequalWhateverTheTexts)
{
    QRMCriticality left;
    QRMCriticality right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetValue(QRM_CRITICALITY_LEVEL2));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetValue(QRM_CRITICALITY_LEVEL3));
    AddTexts(left, {{"en", "Urgent"}});
    AddTexts(right, {{"en", "Urgent"}});
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetValue(QRM_CRITICALITY_LEVEL2));
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}
