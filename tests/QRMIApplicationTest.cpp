// QRMIApplication: an application the inventory lists for a device; its
// fields and texts, copying, and how two compare.
#include "QRMIApplication.h"
#include "QRMIDevice.h"

#include "FieldDifferences.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <ostream>

#include <string>
#include <utility>
#include <vector>

namespace {

typedef std::vector<std::pair<std::string, std::string>> Texts;

std::string Str(const VELString& text) { return text.GetUTF8String(); }

QRMIApplication Application(const char* display, const char* version, const char* subComponentID = "")
{
    QRMIApplication application;
    application.SetComponentType(QRM_COMPONENT_DRVR);
    application.SetDisplay(VELString(display));
    application.SetVersion(VELString(version));
    application.SetSubComponentID(VELString(subComponentID));
    return application;
}

using ApplicationDifference = FieldDifference<QRMIApplication>;

const ApplicationDifference kApplicationDifferences[] = {
    {"ComponentTypeMakesApplicationsUnequal",
     [](QRMIApplication&, QRMIApplication& right) { right.SetComponentType(QRM_COMPONENT_FRMW); }, false},
    {"VersionMakesApplicationsUnequal",
     [](QRMIApplication& a, QRMIApplication& b) {
         a = Application("d", "1.0");
         b = Application("d", "1.1");
     },
     false},
    {"VersionIsComparedCaseSensitively",
     [](QRMIApplication& a, QRMIApplication& b) {
         a = Application("d", "A05");
         b = Application("d", "a05");
     },
     false},
    {"DisplayMakesApplicationsUnequal",
     [](QRMIApplication& a, QRMIApplication& b) {
         a = Application("one", "1");
         b = Application("two", "1");
     },
     false},
    {"SubComponentIDMakesApplicationsUnequal",
     [](QRMIApplication& a, QRMIApplication& b) {
         a = Application("d", "1", "a");
         b = Application("d", "1", "b");
     },
     false},
    {"SameLanguageWithDifferentTextsMakesApplicationsUnequal",
     [](QRMIApplication& left, QRMIApplication& right) {
         left.AddDisplayValue(VELString("en"), VELString("X"));
         right.AddDisplayValue(VELString("en"), VELString("Y"));
     },
     false},
    {"OneTextEachInDifferentLanguagesCompareEqual",
     [](QRMIApplication& left, QRMIApplication& right) {
         left.AddDisplayValue(VELString("en"), VELString("X"));
         right.AddDisplayValue(VELString("fr"), VELString("Y"));
     },
     true},
    {"DifferentNumbersOfTextsMakeApplicationsUnequal",
     [](QRMIApplication& left, QRMIApplication& right) {
         left.AddDisplayValue(VELString("en"), VELString("X"));
         right.AddDisplayValue(VELString("en"), VELString("X"));
         right.AddDisplayValue(VELString("fr"), VELString("Y"));
     },
     false},
    {"OrderOfTextsDoesNotMatter",
     [](QRMIApplication& left, QRMIApplication& right) {
         left.AddDisplayValue(VELString("en"), VELString("X"));
         left.AddDisplayValue(VELString("fr"), VELString("Y"));
         right.AddDisplayValue(VELString("fr"), VELString("Y"));
         right.AddDisplayValue(VELString("en"), VELString("X"));
     },
     true},
};

class QRMIApplicationEquality : public testing::TestWithParam<ApplicationDifference> {};

}  // namespace

// ============================================================ application

TEST(QRMIApplicationDefaults, NewApplicationHasComponentTypeZeroAndEmptyFields)
{
    QRMIApplication application;
    EXPECT_EQ(QRM_COMPONENT_SBDL, application.GetComponentType());
    EXPECT_EQ(0, static_cast<int>(application.GetComponentType()));
    EXPECT_EQ("", Str(application.GetVersion()));
    EXPECT_EQ("", Str(application.GetDisplay()));
    EXPECT_EQ("", Str(application.GetSubComponentID()));
    EXPECT_TRUE(TextsOf(application).empty());
}

TEST(QRMIApplicationDefaults, TwoNewApplicationsAreEqual)
{
    QRMIApplication left, right;
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}

TEST(QRMIApplicationFields, SetComponentTypeReturnsSuccessAndStoresTheValue)
{
    QRMIApplication application;
    EXPECT_EQ(QRM_KIT_SUCCESS, application.SetComponentType(QRM_COMPONENT_BIOS));
    EXPECT_EQ(QRM_COMPONENT_BIOS, application.GetComponentType());
}

TEST(QRMIApplicationFields, SetVersionReturnsSuccessAndStoresTheText)
{
    QRMIApplication application;
    EXPECT_EQ(QRM_KIT_SUCCESS, application.SetVersion(VELString("12.4.0.7")));
    EXPECT_EQ("12.4.0.7", Str(application.GetVersion()));
}

TEST(QRMIApplicationFields, SetDisplayReturnsSuccessAndStoresTheText)
{
    QRMIApplication application;
    EXPECT_EQ(QRM_KIT_SUCCESS, application.SetDisplay(VELString("Network driver")));
    EXPECT_EQ("Network driver", Str(application.GetDisplay()));
}

TEST(QRMIApplicationFields, SetSubComponentIDReturnsSuccessAndStoresTheText)
{
    QRMIApplication application;
    EXPECT_EQ(QRM_KIT_SUCCESS, application.SetSubComponentID(VELString("SUB-7")));
    EXPECT_EQ("SUB-7", Str(application.GetSubComponentID()));
}

TEST(QRMIApplicationDisplayValues, AddReturnsSuccessThenAlreadyExistsAndKeepsTheFirstText)
{
    QRMIApplication application;
    EXPECT_EQ(QRM_KIT_SUCCESS, application.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, application.AddDisplayValue(VELString("en"), VELString("B")));
    EXPECT_EQ((Texts{{"en", "A"}}), TextsOf(application));
}

TEST(QRMIApplicationDisplayValues, RemoveReturnsNotFoundThenSuccess)
{
    QRMIApplication application;
    EXPECT_EQ(QRM_KIT_NOT_FOUND, application.RemoveDisplayValue(VELString("en")));
    application.AddDisplayValue(VELString("en"), VELString("A"));
    EXPECT_EQ(QRM_KIT_SUCCESS, application.RemoveDisplayValue(VELString("en")));
    EXPECT_TRUE(TextsOf(application).empty());
}

TEST_P(QRMIApplicationEquality, FieldDiffers)
{
    ExpectDifference(GetParam(), Application("d", "1"), Application("d", "1"));
}

INSTANTIATE_TEST_SUITE_P(, QRMIApplicationEquality, testing::ValuesIn(kApplicationDifferences), NameOfDifference());

TEST(QRMIApplicationCopy, CopyCarriesEveryFieldAndItsOwnTexts)
{
    QRMIApplication application = Application("Driver", "2.0", "S1");
    application.AddDisplayValue(VELString("en"), VELString("X"));
    application.AddDisplayValue(VELString("de"), VELString("Z"));
    QRMIApplication copy(application);
    EXPECT_EQ(QRM_COMPONENT_DRVR, copy.GetComponentType());
    EXPECT_EQ("2.0", Str(copy.GetVersion()));
    EXPECT_EQ("Driver", Str(copy.GetDisplay()));
    EXPECT_EQ("S1", Str(copy.GetSubComponentID()));
    EXPECT_EQ((Texts{{"en", "X"}, {"de", "Z"}}), TextsOf(copy));
    EXPECT_TRUE(copy == application);

    copy.RemoveDisplayValue(VELString("de"));
    copy.AddDisplayValue(VELString("es"), VELString("W"));
    EXPECT_EQ((Texts{{"en", "X"}, {"de", "Z"}}), TextsOf(application));
}

TEST(QRMIApplicationCopy, AssignmentReplacesFieldsAndTexts)
{
    QRMIApplication source = Application("Driver", "2.0", "S1");
    source.AddDisplayValue(VELString("en"), VELString("X"));
    QRMIApplication target = Application("Other", "1.0", "S2");
    target.SetComponentType(QRM_COMPONENT_APP);
    target.AddDisplayValue(VELString("fr"), VELString("Old"));
    target.AddDisplayValue(VELString("de"), VELString("Alt"));

    target = source;

    EXPECT_EQ(QRM_COMPONENT_DRVR, target.GetComponentType());
    EXPECT_EQ("2.0", Str(target.GetVersion()));
    EXPECT_EQ("Driver", Str(target.GetDisplay()));
    EXPECT_EQ("S1", Str(target.GetSubComponentID()));
    EXPECT_EQ((Texts{{"en", "X"}}), TextsOf(target));
    EXPECT_TRUE(target == source);
}

TEST(QRMIApplicationCopy, SelfAssignmentEmptiesTextsAndKeepsFields)
{
    QRMIApplication application = Application("Driver", "2.0", "S1");
    application.AddDisplayValue(VELString("en"), VELString("X"));
    QRMIApplication& alias = application;
    application = alias;
    EXPECT_TRUE(TextsOf(application).empty());
    EXPECT_EQ(QRM_COMPONENT_DRVR, application.GetComponentType());
    EXPECT_EQ("2.0", Str(application.GetVersion()));
    EXPECT_EQ("Driver", Str(application.GetDisplay()));
    EXPECT_EQ("S1", Str(application.GetSubComponentID()));
}

// ================================================================= device

// ============================================================ applications

// ================================================================ equality

// ===================================================== copying, assignment
