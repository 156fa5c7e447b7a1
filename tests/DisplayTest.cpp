// QRMDisplay: one localised text, its two fields, copying and comparison.
#include "QRMDisplay.h"

#include <gtest/gtest.h>

#include <string>

TEST(QRMDisplay, NewDisplayHasEmptyLanguageAndValue)
{
    QRMDisplay display;
    EXPECT_EQ("", display.GetLanguage().GetUTF8String());
    EXPECT_EQ("", display.GetValue().GetUTF8String());
    EXPECT_TRUE(display.GetLanguage().IsEmpty());
    EXPECT_TRUE(display.GetValue().IsEmpty());
}

TEST(QRMDisplay, ConstructorWithTextsStoresLanguageAndValue)
{
    QRMDisplay display(VELString("zh-Hans"), VELString("Treiber"));
    EXPECT_EQ("zh-Hans", display.GetLanguage().GetUTF8String());
    EXPECT_EQ("Treiber", display.GetValue().GetUTF8String());
}

TEST(QRMDisplay, SetLanguageReturnsSuccessAndStoresTheLanguage)
{
    QRMDisplay display;
    EXPECT_EQ(QRM_KIT_SUCCESS, display.SetLanguage(VELString("fr")));
    EXPECT_EQ("fr", display.GetLanguage().GetUTF8String());
    EXPECT_EQ("", display.GetValue().GetUTF8String());
}

TEST(QRMDisplay, SetValueReturnsSuccessAndStoresTheValue)
{
    QRMDisplay display;
    EXPECT_EQ(QRM_KIT_SUCCESS, display.SetValue(VELString("Micrologiciel")));
    EXPECT_EQ("Micrologiciel", display.GetValue().GetUTF8String());
    EXPECT_EQ("", display.GetLanguage().GetUTF8String());
}

TEST(QRMDisplay, SettersReplaceEarlierTextsAndAcceptEmptyTexts)
{
    QRMDisplay display;
    EXPECT_EQ(QRM_KIT_SUCCESS, display.SetLanguage(VELString("en")));
    EXPECT_EQ(QRM_KIT_SUCCESS, display.SetValue(VELString("BIOS")));
    EXPECT_EQ(QRM_KIT_SUCCESS, display.SetLanguage(VELString("de")));
    EXPECT_EQ(QRM_KIT_SUCCESS, display.SetValue(VELString("Firmware")));
    EXPECT_EQ("de", display.GetLanguage().GetUTF8String());
    EXPECT_EQ("Firmware", display.GetValue().GetUTF8String());
    EXPECT_EQ(QRM_KIT_SUCCESS, display.SetLanguage(VELString("")));
    EXPECT_EQ(QRM_KIT_SUCCESS, display.SetValue(VELString("")));
    EXPECT_TRUE(display.GetLanguage().IsEmpty());
    EXPECT_TRUE(display.GetValue().IsEmpty());
}

TEST(QRMDisplay, GettersReturnCopiesThatDoNotChangeTheDisplay)
{
    QRMDisplay display(VELString("en"), VELString("Driver"));
    VELString language = display.GetLanguage();
    VELString value = display.GetValue();
    language = VELString("xx");
    value.ReplaceAll(VELString("Driver"), VELString("Other"));
    EXPECT_EQ("en", display.GetLanguage().GetUTF8String());
    EXPECT_EQ("Driver", display.GetValue().GetUTF8String());
}

TEST(QRMDisplay, CopyConstructorCopiesBothTextsIndependently)
{
    QRMDisplay source(VELString("en"), VELString("Network"));
    QRMDisplay copy(source);
    EXPECT_EQ("en", copy.GetLanguage().GetUTF8String());
    EXPECT_EQ("Network", copy.GetValue().GetUTF8String());

    EXPECT_EQ(QRM_KIT_SUCCESS, copy.SetLanguage(VELString("es")));
    EXPECT_EQ(QRM_KIT_SUCCESS, copy.SetValue(VELString("Red")));
    EXPECT_EQ("en", source.GetLanguage().GetUTF8String());
    EXPECT_EQ("Network", source.GetValue().GetUTF8String());
}

TEST(QRMDisplay, AssignmentCopiesBothTextsIndependently)
{
    QRMDisplay source(VELString("ja"), VELString("Storage"));
    QRMDisplay target(VELString("en"), VELString("Old"));
    target = source;
    EXPECT_EQ("ja", target.GetLanguage().GetUTF8String());
    EXPECT_EQ("Storage", target.GetValue().GetUTF8String());

    EXPECT_EQ(QRM_KIT_SUCCESS, target.SetValue(VELString("Changed")));
    EXPECT_EQ("Storage", source.GetValue().GetUTF8String());
    EXPECT_EQ("ja", source.GetLanguage().GetUTF8String());
}

TEST(QRMDisplay, SelfAssignmentKeepsBothTexts)
{
    QRMDisplay display(VELString("en"), VELString("Video"));
    QRMDisplay& alias = display;
    display = alias;
    EXPECT_EQ("en", display.GetLanguage().GetUTF8String());
    EXPECT_EQ("Video", display.GetValue().GetUTF8String());
}

TEST(QRMDisplay, DisplaysWithEqualLanguageAndValueAreEqual)
{
    QRMDisplay left(VELString("en"), VELString("Audio"));
    QRMDisplay right;
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetLanguage(VELString("en")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetValue(VELString("Audio")));
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
    EXPECT_TRUE(QRMDisplay() == QRMDisplay());
    EXPECT_FALSE(QRMDisplay() != QRMDisplay());
}

TEST(QRMDisplay, DifferentValueMakesDisplaysUnequal)
{
    QRMDisplay left(VELString("en"), VELString("Audio"));
    QRMDisplay right(VELString("en"), VELString("audio"));
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMDisplay, DifferentLanguageMakesDisplaysUnequal)
{
    QRMDisplay left(VELString("en"), VELString("Audio"));
    QRMDisplay right(VELString("EN"), VELString("Audio"));
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMDisplay, LanguageAndValueSwappedAreUnequal)
{
    QRMDisplay left(VELString("en"), VELString("fr"));
    QRMDisplay right(VELString("fr"), VELString("en"));
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMDisplay, EmptyDisplayDiffersFromOneWithEitherTextSet)
{
    QRMDisplay empty;
    QRMDisplay withLanguage(VELString("en"), VELString(""));
    QRMDisplay withValue(VELString(""), VELString("Text"));
    EXPECT_TRUE(empty != withLanguage);
    EXPECT_TRUE(empty != withValue);
    EXPECT_TRUE(withLanguage != withValue);
    EXPECT_FALSE(empty == withLanguage);
    EXPECT_FALSE(empty == withValue);
}
