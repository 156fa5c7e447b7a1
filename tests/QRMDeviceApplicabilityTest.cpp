// QRMDeviceApplicability: one applicability entry of a soft dependency.
#include "QRMDeviceApplicability.h"

#include "ModelBuilders.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using builders::U8;

TEST(QRMDeviceApplicability, NewEntryHasEmptyTexts)
{
    QRMDeviceApplicability entry;
    EXPECT_EQ("", U8(entry.GetLanguage()));
    EXPECT_EQ("", U8(entry.GetValue()));
}

TEST(QRMDeviceApplicability, SettersReturnSuccessAndStoreTheTexts)
{
    QRMDeviceApplicability entry;
    EXPECT_EQ(QRM_KIT_SUCCESS, entry.SetLanguage("en"));
    EXPECT_EQ(QRM_KIT_SUCCESS, entry.SetValue("Desktop"));
    EXPECT_EQ("en", U8(entry.GetLanguage()));
    EXPECT_EQ("Desktop", U8(entry.GetValue()));
}

TEST(QRMDeviceApplicability, EqualOnlyWhenBothTextsAreEqual)
{
    EXPECT_TRUE(QRMDeviceApplicability("en", "Desktop") == QRMDeviceApplicability("en", "Desktop"));
    EXPECT_FALSE(QRMDeviceApplicability("en", "Desktop") == QRMDeviceApplicability("en", "Laptop"));
    EXPECT_FALSE(QRMDeviceApplicability("en", "Desktop") == QRMDeviceApplicability("de", "Desktop"));
    EXPECT_TRUE(QRMDeviceApplicability("en", "Desktop") != QRMDeviceApplicability("EN", "Desktop"));
}

TEST(QRMDeviceApplicability, CopyAndAssignmentCarryBothTexts)
{
    QRMDeviceApplicability source("en", "Desktop");
    QRMDeviceApplicability copy(source);
    EXPECT_TRUE(copy == source);
    QRMDeviceApplicability assigned("fr", "Portable");
    assigned = source;
    EXPECT_EQ("en", U8(assigned.GetLanguage()));
    EXPECT_EQ("Desktop", U8(assigned.GetValue()));
}
