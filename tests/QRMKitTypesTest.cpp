// Return codes and the coded enumerations: their numeric values are part of
// the exported interface, and each stands for one exact XML text.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>

TEST(QRMKitReturnCode, NumericValuesAreFixed)
{
    EXPECT_EQ(0, static_cast<int>(QRM_KIT_SUCCESS));
    EXPECT_EQ(1, static_cast<int>(QRM_KIT_FAILURE));
    EXPECT_EQ(3, static_cast<int>(QRM_KIT_ALREADY_EXISTS));
    EXPECT_EQ(4, static_cast<int>(QRM_KIT_NOT_FOUND));
    EXPECT_EQ(5, static_cast<int>(QRM_KIT_ELEMENT_MISSING));
    EXPECT_EQ(4u, sizeof(QRMKitReturnCode));
}

TEST(QRMKitReturnCode, NamesAreTheEnumeratorsAndTwoHasNone)
{
    EXPECT_STREQ("QRM_KIT_SUCCESS", QRMKitReturnCodeName(QRM_KIT_SUCCESS));
    EXPECT_STREQ("QRM_KIT_FAILURE", QRMKitReturnCodeName(QRM_KIT_FAILURE));
    EXPECT_STREQ("QRM_KIT_ALREADY_EXISTS", QRMKitReturnCodeName(QRM_KIT_ALREADY_EXISTS));
    EXPECT_STREQ("QRM_KIT_NOT_FOUND", QRMKitReturnCodeName(QRM_KIT_NOT_FOUND));
    EXPECT_STREQ("QRM_KIT_ELEMENT_MISSING", QRMKitReturnCodeName(QRM_KIT_ELEMENT_MISSING));
    EXPECT_STREQ("", QRMKitReturnCodeName(static_cast<QRMKitReturnCode>(2)));
    EXPECT_STREQ("", QRMKitReturnCodeName(static_cast<QRMKitReturnCode>(6)));
    EXPECT_STREQ("", QRMKitReturnCodeName(static_cast<QRMKitReturnCode>(-1)));
}

TEST(QRMComponentType, NumericValuesAndTexts)
{
    EXPECT_EQ(0, static_cast<int>(QRM_COMPONENT_SBDL));
    EXPECT_EQ(1, static_cast<int>(QRM_COMPONENT_FRMW));
    EXPECT_EQ(2, static_cast<int>(QRM_COMPONENT_BIOS));
    EXPECT_EQ(3, static_cast<int>(QRM_COMPONENT_APAC));
    EXPECT_EQ(4, static_cast<int>(QRM_COMPONENT_APP));
    EXPECT_EQ(5, static_cast<int>(QRM_COMPONENT_DRVR));
    EXPECT_STREQ("SBDL", QRMComponentTypeText(QRM_COMPONENT_SBDL));
    EXPECT_STREQ("FRMW", QRMComponentTypeText(QRM_COMPONENT_FRMW));
    EXPECT_STREQ("BIOS", QRMComponentTypeText(QRM_COMPONENT_BIOS));
    EXPECT_STREQ("APAC", QRMComponentTypeText(QRM_COMPONENT_APAC));
    EXPECT_STREQ("APP", QRMComponentTypeText(QRM_COMPONENT_APP));
    EXPECT_STREQ("DRVR", QRMComponentTypeText(QRM_COMPONENT_DRVR));
    EXPECT_STREQ("", QRMComponentTypeText(static_cast<QRMComponentTypeValueEnum>(6)));
    EXPECT_STREQ("", QRMComponentTypeText(static_cast<QRMComponentTypeValueEnum>(-1)));
}

TEST(QRMBundleType, NumericValuesAndTexts)
{
    EXPECT_EQ(0, static_cast<int>(QRM_BUNDLE_BTW32));
    EXPECT_EQ(1, static_cast<int>(QRM_BUNDLE_BTW64));
    EXPECT_EQ(2, static_cast<int>(QRM_BUNDLE_BTLX));
    EXPECT_EQ(3, static_cast<int>(QRM_BUNDLE_BTRPM));
    EXPECT_EQ(4, static_cast<int>(QRM_BUNDLE_BTDEB));
    EXPECT_EQ(5, static_cast<int>(QRM_BUNDLE_BTOSIND));
    EXPECT_STREQ("BTW32", QRMBundleTypeText(QRM_BUNDLE_BTW32));
    EXPECT_STREQ("BTW64", QRMBundleTypeText(QRM_BUNDLE_BTW64));
    EXPECT_STREQ("BTLX", QRMBundleTypeText(QRM_BUNDLE_BTLX));
    EXPECT_STREQ("BTRPM", QRMBundleTypeText(QRM_BUNDLE_BTRPM));
    EXPECT_STREQ("BTDEB", QRMBundleTypeText(QRM_BUNDLE_BTDEB));
    EXPECT_STREQ("BTOSIND", QRMBundleTypeText(QRM_BUNDLE_BTOSIND));
    EXPECT_STREQ("", QRMBundleTypeText(static_cast<QRMBundleTypeEnum>(6)));
}

TEST(QRMOSArchitecture, NumericValuesAndTexts)
{
    EXPECT_EQ(0, static_cast<int>(QRM_OS_ARCH_X86));
    EXPECT_EQ(1, static_cast<int>(QRM_OS_ARCH_X64));
    EXPECT_EQ(2, static_cast<int>(QRM_OS_ARCH_IA64));
    EXPECT_EQ(3, static_cast<int>(QRM_OS_ARCH_IA32));
    EXPECT_STREQ("x86", QRMOSArchitectureText(QRM_OS_ARCH_X86));
    EXPECT_STREQ("x64", QRMOSArchitectureText(QRM_OS_ARCH_X64));
    EXPECT_STREQ("ia64", QRMOSArchitectureText(QRM_OS_ARCH_IA64));
    EXPECT_STREQ("ia32", QRMOSArchitectureText(QRM_OS_ARCH_IA32));
    EXPECT_STREQ("", QRMOSArchitectureText(static_cast<QRMOSArchitectureEnum>(4)));
}

TEST(QRMCriticality, NumericValuesAndTextsAreOneMoreThanTheValue)
{
    EXPECT_EQ(0, static_cast<int>(QRM_CRITICALITY_LEVEL1));
    EXPECT_EQ(1, static_cast<int>(QRM_CRITICALITY_LEVEL2));
    EXPECT_EQ(2, static_cast<int>(QRM_CRITICALITY_LEVEL3));
    EXPECT_EQ(3, static_cast<int>(QRM_CRITICALITY_UNSPECIFIED));
    EXPECT_STREQ("1", QRMCriticalityText(QRM_CRITICALITY_LEVEL1));
    EXPECT_STREQ("2", QRMCriticalityText(QRM_CRITICALITY_LEVEL2));
    EXPECT_STREQ("3", QRMCriticalityText(QRM_CRITICALITY_LEVEL3));
    EXPECT_STREQ("", QRMCriticalityText(QRM_CRITICALITY_UNSPECIFIED));
}

TEST(QRMInventoryLanguage, NumericValuesAndTexts)
{
    const QRMInventoryLanguageEnum values[] = {QRM_LANG_EN,      QRM_LANG_FR,      QRM_LANG_DE, QRM_LANG_ES,
                                               QRM_LANG_ZH_HANS, QRM_LANG_ZH_HANT, QRM_LANG_JA, QRM_LANG_HI,
                                               QRM_LANG_KN,      QRM_LANG_TE,      QRM_LANG_TA};
    const char* const texts[] = {"en", "fr", "de", "es", "zh-Hans", "zh-Hant", "ja", "hi", "kn", "te", "ta"};
    for (int i = 0; i < 11; ++i) {
        EXPECT_EQ(i, static_cast<int>(values[i]));
        EXPECT_STREQ(texts[i], QRMInventoryLanguageText(values[i]));
    }
    EXPECT_STREQ("", QRMInventoryLanguageText(static_cast<QRMInventoryLanguageEnum>(11)));
}

TEST(QRMSystemIDType, NumericValuesAndTexts)
{
    const QRMSystemIDTypeEnum values[] = {QRM_SYSTEMID_TYPE_BIOS, QRM_SYSTEMID_TYPE_MULTISYSTEMCHASSIS,
                                          QRM_SYSTEMID_TYPE_RAIDCHASSIS, QRM_SYSTEMID_TYPE_ROUTER,
                                          QRM_SYSTEMID_TYPE_NETWORKSWITCH};
    const char* const texts[] = {"BIOS", "MULTISYSTEMCHASSIS", "RAIDCHASSIS", "ROUTER", "NETWORKSWITCH"};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(i, static_cast<int>(values[i]));
        EXPECT_STREQ(texts[i], QRMSystemIDTypeText(values[i]));
    }
    EXPECT_STREQ("", QRMSystemIDTypeText(static_cast<QRMSystemIDTypeEnum>(5)));
}

TEST(QRMComponentTypeFromText, EveryTextGivesItsValue)
{
    const char* const texts[] = {"SBDL", "FRMW", "BIOS", "APAC", "APP", "DRVR"};
    for (int i = 0; i < 6; ++i) {
        QRMComponentTypeValueEnum value = static_cast<QRMComponentTypeValueEnum>(99);
        EXPECT_TRUE(QRMComponentTypeFromText(VELString(texts[i]), value)) << texts[i];
        EXPECT_EQ(i, static_cast<int>(value)) << texts[i];
    }
}

TEST(QRMComponentTypeFromText, LowerCaseMatchesNothingAndKeepsTheValue)
{
    QRMComponentTypeValueEnum value = QRM_COMPONENT_DRVR;
    EXPECT_FALSE(QRMComponentTypeFromText(VELString("bios"), value));
    EXPECT_EQ(QRM_COMPONENT_DRVR, value);
    EXPECT_TRUE(QRMComponentTypeFromText(VELString("BIOS"), value));
    EXPECT_EQ(2, static_cast<int>(value));
}

TEST(QRMComponentTypeFromText, NearMissesMatchNothing)
{
    const char* const texts[] = {"", " BIOS", "BIOS ", "BIO", "BIOSS", "Bios", "AP", "APPS", "drvr"};
    for (const char* text : texts) {
        QRMComponentTypeValueEnum value = QRM_COMPONENT_APAC;
        EXPECT_FALSE(QRMComponentTypeFromText(VELString(text), value)) << "'" << text << "'";
        EXPECT_EQ(QRM_COMPONENT_APAC, value) << "'" << text << "'";
    }
}

TEST(QRMBundleTypeFromText, EveryTextGivesItsValueAndOthersNone)
{
    const char* const texts[] = {"BTW32", "BTW64", "BTLX", "BTRPM", "BTDEB", "BTOSIND"};
    for (int i = 0; i < 6; ++i) {
        QRMBundleTypeEnum value = static_cast<QRMBundleTypeEnum>(99);
        EXPECT_TRUE(QRMBundleTypeFromText(VELString(texts[i]), value)) << texts[i];
        EXPECT_EQ(i, static_cast<int>(value)) << texts[i];
    }
    const char* const misses[] = {"", "btw64", "BTW", "BTW6", "BTLX ", "BTOS"};
    for (const char* text : misses) {
        QRMBundleTypeEnum value = QRM_BUNDLE_BTDEB;
        EXPECT_FALSE(QRMBundleTypeFromText(VELString(text), value)) << "'" << text << "'";
        EXPECT_EQ(QRM_BUNDLE_BTDEB, value) << "'" << text << "'";
    }
}

TEST(QRMOSArchitectureFromText, EveryTextGivesItsValueAndOthersNone)
{
    const char* const texts[] = {"x86", "x64", "ia64", "ia32"};
    for (int i = 0; i < 4; ++i) {
        QRMOSArchitectureEnum value = static_cast<QRMOSArchitectureEnum>(99);
        EXPECT_TRUE(QRMOSArchitectureFromText(VELString(texts[i]), value)) << texts[i];
        EXPECT_EQ(i, static_cast<int>(value)) << texts[i];
    }
    const char* const misses[] = {"", "X86", "X64", "IA64", "amd64", "x86_64", "ia6"};
    for (const char* text : misses) {
        QRMOSArchitectureEnum value = QRM_OS_ARCH_IA32;
        EXPECT_FALSE(QRMOSArchitectureFromText(VELString(text), value)) << "'" << text << "'";
        EXPECT_EQ(QRM_OS_ARCH_IA32, value) << "'" << text << "'";
    }
}

TEST(QRMCriticalityFromText, DigitsOneToThreeGiveOneLess)
{
    QRMCriticalityValueEnum value = QRM_CRITICALITY_UNSPECIFIED;
    EXPECT_TRUE(QRMCriticalityFromText(VELString("1"), value));
    EXPECT_EQ(0, static_cast<int>(value));
    EXPECT_TRUE(QRMCriticalityFromText(VELString("2"), value));
    EXPECT_EQ(1, static_cast<int>(value));
    EXPECT_TRUE(QRMCriticalityFromText(VELString("3"), value));
    EXPECT_EQ(2, static_cast<int>(value));
}

TEST(QRMCriticalityFromText, OtherDigitsLeadingZeroAndEmptyMatchNothing)
{
    const char* const misses[] = {"0", "4", "01", "", " 1", "1 ", "3.0", "one"};
    for (const char* text : misses) {
        QRMCriticalityValueEnum value = QRM_CRITICALITY_UNSPECIFIED;
        EXPECT_FALSE(QRMCriticalityFromText(VELString(text), value)) << "'" << text << "'";
        EXPECT_EQ(QRM_CRITICALITY_UNSPECIFIED, value) << "'" << text << "'";
    }
}

TEST(QRMInventoryLanguageFromText, EveryTextGivesItsValueAndOthersNone)
{
    const char* const texts[] = {"en", "fr", "de", "es", "zh-Hans", "zh-Hant", "ja", "hi", "kn", "te", "ta"};
    for (int i = 0; i < 11; ++i) {
        QRMInventoryLanguageEnum value = static_cast<QRMInventoryLanguageEnum>(99);
        EXPECT_TRUE(QRMInventoryLanguageFromText(VELString(texts[i]), value)) << texts[i];
        EXPECT_EQ(i, static_cast<int>(value)) << texts[i];
    }
    const char* const misses[] = {"", "EN", "zh-hans", "zh", "en-US", "it"};
    for (const char* text : misses) {
        QRMInventoryLanguageEnum value = QRM_LANG_KN;
        EXPECT_FALSE(QRMInventoryLanguageFromText(VELString(text), value)) << "'" << text << "'";
        EXPECT_EQ(QRM_LANG_KN, value) << "'" << text << "'";
    }
}

TEST(QRMSystemIDTypeFromText, EveryTextGivesItsValueAndOthersNone)
{
    const char* const texts[] = {"BIOS", "MULTISYSTEMCHASSIS", "RAIDCHASSIS", "ROUTER", "NETWORKSWITCH"};
    for (int i = 0; i < 5; ++i) {
        QRMSystemIDTypeEnum value = static_cast<QRMSystemIDTypeEnum>(99);
        EXPECT_TRUE(QRMSystemIDTypeFromText(VELString(texts[i]), value)) << texts[i];
        EXPECT_EQ(i, static_cast<int>(value)) << texts[i];
    }
    const char* const misses[] = {"", "bios", "Router", "NETWORK SWITCH", "RAID"};
    for (const char* text : misses) {
        QRMSystemIDTypeEnum value = QRM_SYSTEMID_TYPE_ROUTER;
        EXPECT_FALSE(QRMSystemIDTypeFromText(VELString(text), value)) << "'" << text << "'";
        EXPECT_EQ(QRM_SYSTEMID_TYPE_ROUTER, value) << "'" << text << "'";
    }
}

TEST(QRMKitTypes, ExcludedComponentIdIsTheOneThatNeverReceivesUpdates)
{
    EXPECT_EQ(2331ULL, QRM_EXCLUDED_COMPONENT_ID);
}
