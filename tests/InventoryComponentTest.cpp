// QRMInventoryComponent: the ten fields of an inventory-collector entry, their
// accessors, copying and comparison.
#include "QRMInventoryComponent.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace {

// A component with every field set to a distinct value.
QRMInventoryComponent FilledComponent()
{
    QRMInventoryComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetSchemaVersion(VELString("2.0")));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetReleaseID(VELString("R123")));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetReleaseDate(VELTime(1700000000ULL)));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetVendorVersion(VELString("A04")));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetTolvarVersion(VELString("5.1")));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetOSCode(VELString("LIN64")));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetMD5Hash(VELString("0123456789abcdef0123456789abcdef")));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetPath(VELString("collectors/invcol.bin")));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetDateTime(VELTime(1710000000ULL)));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetSize(4096ULL));
    return component;
}

void ExpectFilledValues(const QRMInventoryComponent& component)
{
    EXPECT_EQ("2.0", component.GetSchemaVersion().GetUTF8String());
    EXPECT_EQ("R123", component.GetReleaseID().GetUTF8String());
    EXPECT_EQ(1700000000ULL, component.GetReleaseDate().GetValue());
    EXPECT_EQ("A04", component.GetVendorVersion().GetUTF8String());
    EXPECT_EQ("5.1", component.GetTolvarVersion().GetUTF8String());
    EXPECT_EQ("LIN64", component.GetOSCode().GetUTF8String());
    EXPECT_EQ("0123456789abcdef0123456789abcdef", component.GetMD5Hash().GetUTF8String());
    EXPECT_EQ("collectors/invcol.bin", component.GetPath().GetUTF8String());
    EXPECT_EQ(1710000000ULL, component.GetDateTime().GetValue());
    EXPECT_EQ(4096ULL, component.GetSize());
}

// Changes one field of a filled component and checks that it no longer
// equals an untouched one, in both directions.
void ExpectDifferenceMakesUnequal(const std::function<QRMKitReturnCode(QRMInventoryComponent&)>& change)
{
    const QRMInventoryComponent reference = FilledComponent();
    QRMInventoryComponent changed = FilledComponent();
    ASSERT_TRUE(changed == reference);
    EXPECT_EQ(QRM_KIT_SUCCESS, change(changed));
    EXPECT_FALSE(changed == reference);
    EXPECT_FALSE(reference == changed);
    EXPECT_TRUE(changed != reference);
    EXPECT_TRUE(reference != changed);
}

}  // namespace

TEST(QRMInventoryComponent, NewComponentHasEmptyTextsDefaultTimesAndSizeZero)
{
    QRMInventoryComponent component;
    EXPECT_TRUE(component.GetSchemaVersion().IsEmpty());
    EXPECT_TRUE(component.GetReleaseID().IsEmpty());
    EXPECT_EQ(VELTime().GetValue(), component.GetReleaseDate().GetValue());
    EXPECT_TRUE(component.GetVendorVersion().IsEmpty());
    EXPECT_TRUE(component.GetTolvarVersion().IsEmpty());
    EXPECT_TRUE(component.GetOSCode().IsEmpty());
    EXPECT_TRUE(component.GetMD5Hash().IsEmpty());
    EXPECT_TRUE(component.GetPath().IsEmpty());
    EXPECT_EQ(VELTime().GetValue(), component.GetDateTime().GetValue());
}

TEST(QRMInventoryComponent, GetSizeIsZeroOnANewComponent)
{
    QRMInventoryComponent component;
    EXPECT_EQ(0ULL, component.GetSize());
}

TEST(QRMInventoryComponent, NewComponentsAreEqual)
{
    QRMInventoryComponent left;
    QRMInventoryComponent right;
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}

TEST(QRMInventoryComponent, SetSchemaVersionReturnsSuccessAndIsReadBack)
{
    QRMInventoryComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetSchemaVersion(VELString("3.1")));
    EXPECT_EQ("3.1", component.GetSchemaVersion().GetUTF8String());
}

TEST(QRMInventoryComponent, SetReleaseIDReturnsSuccessAndIsReadBack)
{
    QRMInventoryComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetReleaseID(VELString("X9Y8")));
    EXPECT_EQ("X9Y8", component.GetReleaseID().GetUTF8String());
}

TEST(QRMInventoryComponent, SetReleaseDateReturnsSuccessAndIsReadBack)
{
    QRMInventoryComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetReleaseDate(VELTime(12345ULL)));
    EXPECT_EQ(12345ULL, component.GetReleaseDate().GetValue());
    EXPECT_TRUE(component.GetReleaseDate() == VELTime(12345ULL));
}

TEST(QRMInventoryComponent, SetVendorVersionReturnsSuccessAndIsReadBack)
{
    QRMInventoryComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetVendorVersion(VELString("1.2.3")));
    EXPECT_EQ("1.2.3", component.GetVendorVersion().GetUTF8String());
}

TEST(QRMInventoryComponent, SetTolvarVersionReturnsSuccessAndIsReadBack)
{
    QRMInventoryComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetTolvarVersion(VELString("7.0.1")));
    EXPECT_EQ("7.0.1", component.GetTolvarVersion().GetUTF8String());
}

TEST(QRMInventoryComponent, SetOSCodeReturnsSuccessAndIsReadBack)
{
    QRMInventoryComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetOSCode(VELString("WIN64")));
    EXPECT_EQ("WIN64", component.GetOSCode().GetUTF8String());
}

TEST(QRMInventoryComponent, SetMD5HashReturnsSuccessAndIsReadBack)
{
    QRMInventoryComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetMD5Hash(VELString("d41d8cd98f00b204e9800998ecf8427e")));
    EXPECT_EQ("d41d8cd98f00b204e9800998ecf8427e", component.GetMD5Hash().GetUTF8String());
}

TEST(QRMInventoryComponent, SetPathReturnsSuccessAndIsReadBack)
{
    QRMInventoryComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetPath(VELString("FOLDER01/invcol_W.exe")));
    EXPECT_EQ("FOLDER01/invcol_W.exe", component.GetPath().GetUTF8String());
}

TEST(QRMInventoryComponent, SetDateTimeReturnsSuccessAndIsReadBack)
{
    QRMInventoryComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetDateTime(VELTime(987654321ULL)));
    EXPECT_EQ(987654321ULL, component.GetDateTime().GetValue());
}

TEST(QRMInventoryComponent, SetSizeReturnsSuccessAndIsReadBack)
{
    QRMInventoryComponent component;
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetSize(18446744073709551615ULL));
    EXPECT_EQ(18446744073709551615ULL, component.GetSize());
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetSize(0ULL));
    EXPECT_EQ(0ULL, component.GetSize());
}

TEST(QRMInventoryComponent, SettersStoreEmptyTextsAsGiven)
{
    QRMInventoryComponent component = FilledComponent();
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetOSCode(VELString("")));
    EXPECT_EQ(QRM_KIT_SUCCESS, component.SetPath(VELString("")));
    EXPECT_TRUE(component.GetOSCode().IsEmpty());
    EXPECT_TRUE(component.GetPath().IsEmpty());
    EXPECT_EQ("A04", component.GetVendorVersion().GetUTF8String());
}

TEST(QRMInventoryComponent, EachSetterChangesOnlyItsOwnField)
{
    QRMInventoryComponent component = FilledComponent();
    ExpectFilledValues(component);
}

TEST(QRMInventoryComponent, GettersReturnCopies)
{
    QRMInventoryComponent component = FilledComponent();
    VELString osCode = component.GetOSCode();
    osCode = VELString("changed");
    VELTime date = component.GetDateTime();
    date = VELTime(1ULL);
    EXPECT_EQ("LIN64", component.GetOSCode().GetUTF8String());
    EXPECT_EQ(1710000000ULL, component.GetDateTime().GetValue());
}

TEST(QRMInventoryComponent, ComponentsWithAllFieldsEqualAreEqual)
{
    QRMInventoryComponent left = FilledComponent();
    QRMInventoryComponent right = FilledComponent();
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}

TEST(QRMInventoryComponent, DifferentSchemaVersionMakesComponentsUnequal)
{
    ExpectDifferenceMakesUnequal([](QRMInventoryComponent& c) { return c.SetSchemaVersion(VELString("2.1")); });
}

TEST(QRMInventoryComponent, DifferentReleaseIDMakesComponentsUnequal)
{
    ExpectDifferenceMakesUnequal([](QRMInventoryComponent& c) { return c.SetReleaseID(VELString("r123")); });
}

TEST(QRMInventoryComponent, DifferentReleaseDateMakesComponentsUnequal)
{
    ExpectDifferenceMakesUnequal([](QRMInventoryComponent& c) { return c.SetReleaseDate(VELTime(1700000001ULL)); });
}

TEST(QRMInventoryComponent, DifferentVendorVersionMakesComponentsUnequal)
{
    ExpectDifferenceMakesUnequal([](QRMInventoryComponent& c) { return c.SetVendorVersion(VELString("A05")); });
}

TEST(QRMInventoryComponent, DifferentTolvarVersionMakesComponentsUnequal)
{
    ExpectDifferenceMakesUnequal([](QRMInventoryComponent& c) { return c.SetTolvarVersion(VELString("5.10")); });
}

TEST(QRMInventoryComponent, DifferentOSCodeMakesComponentsUnequal)
{
    ExpectDifferenceMakesUnequal([](QRMInventoryComponent& c) { return c.SetOSCode(VELString("lin64")); });
}

TEST(QRMInventoryComponent, DifferentMD5HashMakesComponentsUnequal)
{
    ExpectDifferenceMakesUnequal(
        [](QRMInventoryComponent& c) { return c.SetMD5Hash(VELString("0123456789ABCDEF0123456789abcdef")); });
}

TEST(QRMInventoryComponent, DifferentPathMakesComponentsUnequal)
{
    ExpectDifferenceMakesUnequal(
        [](QRMInventoryComponent& c) { return c.SetPath(VELString("collectors/invcol.bin ")); });
}

TEST(QRMInventoryComponent, DifferentDateTimeMakesComponentsUnequal)
{
    ExpectDifferenceMakesUnequal([](QRMInventoryComponent& c) { return c.SetDateTime(VELTime(0ULL)); });
}

TEST(QRMInventoryComponent, DifferentSizeMakesComponentsUnequal)
{
    ExpectDifferenceMakesUnequal([](QRMInventoryComponent& c) { return c.SetSize(4097ULL); });
}

TEST(QRMInventoryComponent, ReleaseDateAndDateTimeAreNotInterchangeable)
{
    QRMInventoryComponent left;
    QRMInventoryComponent right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetReleaseDate(VELTime(5ULL)));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetDateTime(VELTime(5ULL)));
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMInventoryComponent, CopyConstructorCopiesEveryField)
{
    const QRMInventoryComponent source = FilledComponent();
    QRMInventoryComponent copy(source);
    ExpectFilledValues(copy);
    EXPECT_TRUE(copy == source);
    EXPECT_FALSE(copy != source);
}

TEST(QRMInventoryComponent, ChangingOrDestroyingTheCopyLeavesTheSourceUntouched)
{
    QRMInventoryComponent source = FilledComponent();
    {
        std::unique_ptr<QRMInventoryComponent> copy(new QRMInventoryComponent(source));
        EXPECT_EQ(QRM_KIT_SUCCESS, copy->SetOSCode(VELString("WIN32")));
        EXPECT_EQ(QRM_KIT_SUCCESS, copy->SetSize(1ULL));
        EXPECT_EQ(QRM_KIT_SUCCESS, copy->SetReleaseDate(VELTime(2ULL)));
        EXPECT_TRUE(*copy != source);
    }
    ExpectFilledValues(source);
}

TEST(QRMInventoryComponent, AssignmentCopiesEveryField)
{
    const QRMInventoryComponent source = FilledComponent();
    QRMInventoryComponent target;
    EXPECT_EQ(QRM_KIT_SUCCESS, target.SetOSCode(VELString("OTHER")));
    EXPECT_EQ(QRM_KIT_SUCCESS, target.SetSize(7ULL));
    target = source;
    ExpectFilledValues(target);
    EXPECT_TRUE(target == source);

    EXPECT_EQ(QRM_KIT_SUCCESS, target.SetPath(VELString("elsewhere")));
    EXPECT_EQ("collectors/invcol.bin", source.GetPath().GetUTF8String());
}

TEST(QRMInventoryComponent, AssigningANewComponentResetsEveryField)
{
    QRMInventoryComponent target = FilledComponent();
    target = QRMInventoryComponent();
    EXPECT_TRUE(target == QRMInventoryComponent());
    EXPECT_EQ(0ULL, target.GetSize());
    EXPECT_TRUE(target.GetOSCode().IsEmpty());
}

TEST(QRMInventoryComponent, SelfAssignmentKeepsEveryField)
{
    QRMInventoryComponent component = FilledComponent();
    QRMInventoryComponent& alias = component;
    component = alias;
    ExpectFilledValues(component);
}
