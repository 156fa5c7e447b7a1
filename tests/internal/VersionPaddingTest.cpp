// The padding step of version comparison (QRMKitAPI::MakeEqualLength):
// ".0" appended to the text with fewer fields until both have as many.
#include "TestSupport.h"

#include "api/QRMVersion.h"

#include <gtest/gtest.h>

#include <string>

namespace {

const std::size_t kFields = 100000;
// "7.7. ... .7" and the same with a last field of 8.
const std::string kSevens = Repeat("7.", kFields - 1) + "7";
const std::string kSevensThenEight = Repeat("7.", kFields - 1) + "8";

}  // namespace

TEST(VersionPadding, PadsTheTextWithFewerFields)
{
    VELString first("1");
    VELString second("1.2.3");
    EXPECT_EQ(0, qrm::PadToSameFieldCount(first, second));
    EXPECT_EQ(VELString("1.0.0"), first);
    EXPECT_EQ(VELString("1.2.3"), second);
}

TEST(VersionPadding, PadsTheSecondTextWhenItHasFewerFields)
{
    VELString first("4-3-2-1");
    VELString second("7_1");
    EXPECT_EQ(0, qrm::PadToSameFieldCount(first, second));
    EXPECT_EQ(VELString("4-3-2-1"), first);
    EXPECT_EQ(VELString("7_1.0.0"), second);
}

TEST(VersionPadding, SameNumberOfFieldsChangesNeither)
{
    VELString first("1.2");
    VELString second("3_4");
    EXPECT_EQ(0, qrm::PadToSameFieldCount(first, second));
    EXPECT_EQ(VELString("1.2"), first);
    EXPECT_EQ(VELString("3_4"), second);
}

TEST(VersionPadding, CountsFieldsNotSeparators)
{
    VELString first("..1..2..");
    VELString second("1");
    EXPECT_EQ(0, qrm::PadToSameFieldCount(first, second));
    EXPECT_EQ(VELString("..1..2.."), first);
    EXPECT_EQ(VELString("1.0"), second);
}

TEST(VersionPadding, EmptyTextGetsAFieldPerMissingField)
{
    VELString first("");
    VELString second("5.6");
    EXPECT_EQ(0, qrm::PadToSameFieldCount(first, second));
    EXPECT_EQ(VELString(".0.0"), first);
    EXPECT_EQ(VELString("5.6"), second);
}

TEST(VersionPadding, NonASCIITextFailsAndChangesNeither)
{
    VELString first(u"1.\u00E9");
    VELString second("1.2.3");
    EXPECT_EQ(-1, qrm::PadToSameFieldCount(first, second));
    EXPECT_EQ(VELString(u"1.\u00E9"), first);
    EXPECT_EQ(VELString("1.2.3"), second);

    VELString third("1");
    VELString fourth(u"2.\u00E9.3");
    EXPECT_EQ(-1, qrm::PadToSameFieldCount(third, fourth));
    EXPECT_EQ(VELString("1"), third);
    EXPECT_EQ(VELString(u"2.\u00E9.3"), fourth);
}

TEST(VersionPadding, PadsToAHundredThousandFields)
{
    VELString first("7");
    VELString second(kSevens.c_str());
    ASSERT_EQ(0, qrm::PadToSameFieldCount(first, second));
    EXPECT_EQ(VELString(("7" + Repeat(".0", kFields - 1)).c_str()), first);
    EXPECT_EQ(VELString(kSevens.c_str()), second);
    VELString shorter("7");
    VELString longer(kSevensThenEight.c_str());
    ASSERT_EQ(0, qrm::PadToSameFieldCount(longer, shorter));
    EXPECT_EQ(VELString(("7" + Repeat(".0", kFields - 1)).c_str()), shorter);
    EXPECT_EQ(VELString(kSevensThenEight.c_str()), longer);
}
