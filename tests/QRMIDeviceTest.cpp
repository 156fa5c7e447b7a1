// QRMIDevice: a device of the inventory and the applications installed for
// it; fields, the application list, copying, and how two compare.
#include "QRMIDevice.h"
#include "QRMIApplication.h"

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

QRMIDevice FilledDevice()
{
    QRMIDevice device;
    device.SetDisplay(VELString("Ethernet controller"));
    device.SetBus(2);
    device.SetDevice(3);
    device.SetFunction(1);
    device.SetComponentID(25179ULL);
    device.SetVendorID(0x8086);
    device.SetDeviceID(0x10D3);
    device.SetSubDeviceID(0x0487);
    device.SetSubVendorID(0x1028);
    device.SetComponentInstance(1);
    device.AddDisplayValue(VELString("en"), VELString("Ethernet"));
    device.AddDisplayValue(VELString("fr"), VELString("Réseau"));
    return device;
}

using InventoryDeviceDifference = FieldDifference<QRMIDevice>;

const InventoryDeviceDifference kInventoryDeviceDifferences[] = {
    {"DevicesWithDifferentApplicationsCompareEqual",
     [](QRMIDevice& left, QRMIDevice& right) {
         left.AddApplication(Application("Driver", "1.0"));
         right.AddApplication(Application("Driver", "2.0"));
     },
     true},
    {"NumberOfApplicationsIsNotCompared",
     [](QRMIDevice& left, QRMIDevice&) {
         left.AddApplication(Application("Driver", "1.0"));
         left.AddApplication(Application("Firmware", "3.0"));
     },
     true},
    {"ASharedApplicationAnywhereMakesDevicesUnequal",
     [](QRMIDevice& left, QRMIDevice& right) {
         left = QRMIDevice();
         right = QRMIDevice();
         left.AddApplication(Application("a", "1"));
         left.AddApplication(Application("b", "2"));
         right.AddApplication(Application("c", "3"));
         right.AddApplication(Application("b", "2"));
     },
     false},
    {"DisplayMakesDevicesUnequal",
     [](QRMIDevice&, QRMIDevice& right) { right.SetDisplay(VELString("ethernet controller")); }, false},
    {"BusMakesDevicesUnequal", [](QRMIDevice&, QRMIDevice& right) { right.SetBus(9); }, false},
    {"DeviceNumberMakesDevicesUnequal", [](QRMIDevice&, QRMIDevice& right) { right.SetDevice(9); }, false},
    {"FunctionMakesDevicesUnequal", [](QRMIDevice&, QRMIDevice& right) { right.SetFunction(9); }, false},
    {"ComponentIDMakesDevicesUnequal", [](QRMIDevice&, QRMIDevice& right) { right.SetComponentID(9); }, false},
    {"VendorIDMakesDevicesUnequal", [](QRMIDevice&, QRMIDevice& right) { right.SetVendorID(9); }, false},
    {"DeviceIDMakesDevicesUnequal", [](QRMIDevice&, QRMIDevice& right) { right.SetDeviceID(9); }, false},
    {"SubDeviceIDMakesDevicesUnequal", [](QRMIDevice&, QRMIDevice& right) { right.SetSubDeviceID(9); }, false},
    {"SubVendorIDMakesDevicesUnequal", [](QRMIDevice&, QRMIDevice& right) { right.SetSubVendorID(9); }, false},
    {"ComponentInstanceMakesDevicesUnequal", [](QRMIDevice&, QRMIDevice& right) { right.SetComponentInstance(9); },
     false},
    {"SameLanguageWithDifferentTextsMakesDevicesUnequal",
     [](QRMIDevice& left, QRMIDevice& right) {
         left = QRMIDevice();
         right = QRMIDevice();
         left.AddDisplayValue(VELString("en"), VELString("X"));
         right.AddDisplayValue(VELString("en"), VELString("Y"));
     },
     false},
    {"NumberOfTextsIsNotCompared",
     [](QRMIDevice& left, QRMIDevice& right) {
         left = QRMIDevice();
         right = QRMIDevice();
         left.AddDisplayValue(VELString("en"), VELString("X"));
         right.AddDisplayValue(VELString("en"), VELString("X"));
         right.AddDisplayValue(VELString("fr"), VELString("Y"));
     },
     true},
    {"OneTextEachInDifferentLanguagesCompareEqual",
     [](QRMIDevice& left, QRMIDevice& right) {
         left = QRMIDevice();
         right = QRMIDevice();
         left.AddDisplayValue(VELString("en"), VELString("X"));
         right.AddDisplayValue(VELString("fr"), VELString("Y"));
     },
     true},
    {"DifferingTextInALongerListMakesDevicesUnequal",
     [](QRMIDevice& left, QRMIDevice& right) {
         left = QRMIDevice();
         right = QRMIDevice();
         left.AddDisplayValue(VELString("de"), VELString("Z"));
         right.AddDisplayValue(VELString("fr"), VELString("Y"));
         right.AddDisplayValue(VELString("de"), VELString("W"));
     },
     false},
};

class QRMIDeviceEquality : public testing::TestWithParam<InventoryDeviceDifference> {};

}  // namespace

// ============================================================ application

// ================================================================= device

TEST(QRMIDeviceDefaults, NewDeviceReportsZeroForEveryNumber)
{
    QRMIDevice device;
    EXPECT_EQ(0, device.GetVendorID());
    EXPECT_EQ(0, device.GetDeviceID());
    EXPECT_EQ(0, device.GetSubVendorID());
    EXPECT_EQ(0, device.GetSubDeviceID());
    EXPECT_EQ(0ULL, device.GetComponentID());
    EXPECT_EQ(0, device.GetBus());
    EXPECT_EQ(0, device.GetDevice());
    EXPECT_EQ(0, device.GetFunction());
    EXPECT_EQ(0, device.GetComponentInstance());
}

TEST(QRMIDeviceDefaults, NewDeviceHasEmptyDisplayTextsAndApplications)
{
    QRMIDevice device;
    EXPECT_EQ("", Str(device.GetDisplay()));
    EXPECT_TRUE(TextsOf(device).empty());
    EXPECT_TRUE(ApplicationsOf(device).empty());
}

TEST(QRMIDeviceDefaults, TwoNewDevicesAreEqual)
{
    QRMIDevice left, right;
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}

TEST(QRMIDeviceFields, SetBusReturnsSuccessAndStoresTheValue)
{
    QRMIDevice device;
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetBus(4));
    EXPECT_EQ(4, device.GetBus());
}

TEST(QRMIDeviceFields, SetDeviceReturnsSuccessAndStoresTheValue)
{
    QRMIDevice device;
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetDevice(31));
    EXPECT_EQ(31, device.GetDevice());
}

TEST(QRMIDeviceFields, SetFunctionReturnsSuccessAndStoresTheValue)
{
    QRMIDevice device;
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetFunction(7));
    EXPECT_EQ(7, device.GetFunction());
}

TEST(QRMIDeviceFields, SetVendorIDReturnsSuccessAndStoresTheValue)
{
    QRMIDevice device;
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetVendorID(0x8086));
    EXPECT_EQ(0x8086, device.GetVendorID());
}

TEST(QRMIDeviceFields, SetDeviceIDReturnsSuccessAndStoresTheValue)
{
    QRMIDevice device;
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetDeviceID(0x10D3));
    EXPECT_EQ(0x10D3, device.GetDeviceID());
}

TEST(QRMIDeviceFields, SetSubVendorIDReturnsSuccessAndStoresTheValue)
{
    QRMIDevice device;
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetSubVendorID(0x1028));
    EXPECT_EQ(0x1028, device.GetSubVendorID());
    EXPECT_EQ(0, device.GetSubDeviceID());
}

TEST(QRMIDeviceFields, SetSubDeviceIDReturnsSuccessAndStoresTheValue)
{
    QRMIDevice device;
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetSubDeviceID(0x0487));
    EXPECT_EQ(0x0487, device.GetSubDeviceID());
    EXPECT_EQ(0, device.GetSubVendorID());
}

TEST(QRMIDeviceFields, SetComponentInstanceReturnsSuccessAndStoresTheValue)
{
    QRMIDevice device;
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetComponentInstance(3));
    EXPECT_EQ(3, device.GetComponentInstance());
}

TEST(QRMIDeviceFields, SetComponentIDStoresTheFullSixtyFourBitValue)
{
    QRMIDevice device;
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetComponentID(0xFFFFFFFFFFFFFFFFULL));
    EXPECT_EQ(0xFFFFFFFFFFFFFFFFULL, device.GetComponentID());
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetComponentID(25179ULL));
    EXPECT_EQ(25179ULL, device.GetComponentID());
}

TEST(QRMIDeviceFields, SetDisplayReturnsSuccessAndStoresTheText)
{
    QRMIDevice device;
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetDisplay(VELString("RAID controller")));
    EXPECT_EQ("RAID controller", Str(device.GetDisplay()));
}

TEST(QRMIDeviceFields, NegativeNumbersAreStoredUnchecked)
{
    QRMIDevice device;
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetBus(-1));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetVendorID(-2));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.SetComponentInstance(-3));
    EXPECT_EQ(-1, device.GetBus());
    EXPECT_EQ(-2, device.GetVendorID());
    EXPECT_EQ(-3, device.GetComponentInstance());
}

TEST(QRMIDeviceDisplayValues, AddAndRemoveReturnTheirCodes)
{
    QRMIDevice device;
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddDisplayValue(VELString("en"), VELString("B")));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveDisplayValue(VELString("fr")));
    EXPECT_EQ((Texts{{"en", "A"}}), TextsOf(device));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.RemoveDisplayValue(VELString("en")));
    EXPECT_TRUE(TextsOf(device).empty());
}

// ============================================================ applications

TEST(QRMIDeviceApplications, AddApplicationTwiceWithEqualApplicationsKeepsOne)
{
    QRMIDevice device;
    QRMIApplication first = Application("Driver", "1.0");
    QRMIApplication second = Application("Driver", "1.0");
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddApplication(first));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddApplication(second));
    std::vector<QRMIApplication*> applications = ApplicationsOf(device);
    ASSERT_EQ(1u, applications.size());
    EXPECT_EQ("Driver", Str(applications[0]->GetDisplay()));
}

TEST(QRMIDeviceApplications, ApplicationsDifferingOnlyInSubComponentIDAreBothKept)
{
    QRMIDevice device;
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddApplication(Application("Driver", "1.0", "A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddApplication(Application("Driver", "1.0", "B")));
    std::vector<QRMIApplication*> applications = ApplicationsOf(device);
    ASSERT_EQ(2u, applications.size());
    EXPECT_EQ("A", Str(applications[0]->GetSubComponentID()));
    EXPECT_EQ("B", Str(applications[1]->GetSubComponentID()));
}

TEST(QRMIDeviceApplications, AddApplicationStoresACopy)
{
    QRMIDevice device;
    QRMIApplication application = Application("Driver", "1.0");
    application.AddDisplayValue(VELString("en"), VELString("X"));
    device.AddApplication(application);
    application.SetVersion(VELString("9.9"));
    std::vector<QRMIApplication*> applications = ApplicationsOf(device);
    ASSERT_EQ(1u, applications.size());
    EXPECT_NE(&application, applications[0]);
    EXPECT_EQ("1.0", Str(applications[0]->GetVersion()));
    EXPECT_EQ((Texts{{"en", "X"}}), TextsOf(*applications[0]));
}

TEST(QRMIDeviceApplications, GetApplicationsCalledTwiceLeavesEachPointerTwice)
{
    QRMIDevice device;
    device.AddApplication(Application("one", "1"));
    device.AddApplication(Application("two", "2"));
    std::vector<QRMIApplication*> out;
    device.GetApplications(out);
    device.GetApplications(out);
    ASSERT_EQ(4u, out.size());
    EXPECT_EQ(out[0], out[2]);
    EXPECT_EQ(out[1], out[3]);
    EXPECT_NE(out[0], out[1]);
    EXPECT_EQ("one", Str(out[0]->GetDisplay()));
    EXPECT_EQ("two", Str(out[1]->GetDisplay()));
}

TEST(QRMIDeviceApplications, GetApplicationsKeepsExistingItemsInFront)
{
    QRMIDevice device;
    device.AddApplication(Application("held", "1"));
    QRMIApplication outsider = Application("outsider", "0");
    std::vector<QRMIApplication*> out{&outsider};
    device.GetApplications(out);
    ASSERT_EQ(2u, out.size());
    EXPECT_EQ(&outsider, out[0]);
    EXPECT_EQ("held", Str(out[1]->GetDisplay()));
}

TEST(QRMIDeviceApplications, GetApplicationsHandsOutTheHeldApplicationsThemselves)
{
    QRMIDevice device;
    device.AddApplication(Application("Driver", "1.0"));
    ApplicationsOf(device)[0]->SetVersion(VELString("2.0"));
    EXPECT_EQ("2.0", Str(ApplicationsOf(device)[0]->GetVersion()));
    EXPECT_EQ(ApplicationsOf(device), ApplicationsOf(device));
}

TEST(QRMIDeviceApplications, RemoveApplicationOfPresentApplicationRemovesItAndReturnsNotFound)
{
    QRMIDevice device;
    device.AddApplication(Application("one", "1"));
    device.AddApplication(Application("two", "2"));
    std::vector<QRMIApplication*> before = ApplicationsOf(device);

    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveApplication(Application("one", "1")));

    std::vector<QRMIApplication*> after = ApplicationsOf(device);
    ASSERT_EQ(1u, after.size());
    EXPECT_EQ(before[1], after[0]);
    EXPECT_EQ("two", Str(after[0]->GetDisplay()));
}

TEST(QRMIDeviceApplications, RemoveApplicationOfLastApplicationLeavesTheOthers)
{
    QRMIDevice device;
    device.AddApplication(Application("one", "1"));
    device.AddApplication(Application("two", "2"));
    std::vector<QRMIApplication*> before = ApplicationsOf(device);

    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveApplication(Application("two", "2")));

    std::vector<QRMIApplication*> after = ApplicationsOf(device);
    ASSERT_EQ(1u, after.size());
    EXPECT_EQ(before[0], after[0]);
    EXPECT_EQ("one", Str(after[0]->GetDisplay()));
}

TEST(QRMIDeviceApplications, RemoveApplicationOfOnlyApplicationEmptiesTheList)
{
    QRMIDevice device;
    device.AddApplication(Application("one", "1"));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveApplication(Application("one", "1")));
    EXPECT_TRUE(ApplicationsOf(device).empty());
}

TEST(QRMIDeviceApplications, RemoveApplicationOfAbsentApplicationChangesNothingAndReturnsNotFound)
{
    QRMIDevice device;
    device.AddApplication(Application("one", "1"));
    device.AddApplication(Application("two", "2"));
    std::vector<QRMIApplication*> before = ApplicationsOf(device);

    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveApplication(Application("three", "3")));

    EXPECT_EQ(before, ApplicationsOf(device));
    EXPECT_EQ("one", Str(before[0]->GetDisplay()));
    EXPECT_EQ("two", Str(before[1]->GetDisplay()));
}

TEST(QRMIDeviceApplications, RemoveApplicationOnEmptyDeviceReturnsNotFound)
{
    QRMIDevice device;
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveApplication(Application("one", "1")));
    EXPECT_TRUE(ApplicationsOf(device).empty());
}

TEST(QRMIDeviceApplications, RemovedApplicationStaysReadableThroughAnEarlierPointer)
{
    QRMIDevice device;
    QRMIApplication application = Application("Driver", "4.5", "S");
    application.AddDisplayValue(VELString("en"), VELString("Network"));
    device.AddApplication(application);
    QRMIApplication* held = ApplicationsOf(device)[0];

    device.RemoveApplication(application);
    ASSERT_TRUE(ApplicationsOf(device).empty());

    EXPECT_EQ("Driver", Str(held->GetDisplay()));
    EXPECT_EQ("4.5", Str(held->GetVersion()));
    EXPECT_EQ("S", Str(held->GetSubComponentID()));
    EXPECT_EQ((Texts{{"en", "Network"}}), TextsOf(*held));
    EXPECT_TRUE(*held == application);
}

TEST(QRMIDeviceApplications, RemovedApplicationStaysReadableAfterFurtherChanges)
{
    QRMIDevice device;
    device.AddApplication(Application("one", "1"));
    device.AddApplication(Application("two", "2"));
    QRMIApplication* held = ApplicationsOf(device)[0];

    device.RemoveApplication(Application("one", "1"));
    device.AddApplication(Application("three", "3"));
    device.AddApplication(Application("one", "1"));
    device.RemoveApplication(Application("two", "2"));

    EXPECT_EQ("one", Str(held->GetDisplay()));
    EXPECT_EQ("1", Str(held->GetVersion()));
    std::vector<QRMIApplication*> now = ApplicationsOf(device);
    ASSERT_EQ(2u, now.size());
    EXPECT_EQ("three", Str(now[0]->GetDisplay()));
    EXPECT_EQ("one", Str(now[1]->GetDisplay()));
    EXPECT_NE(held, now[1]);
}

TEST(QRMIDeviceApplications, RemoveApplicationOfTwoAdjacentEqualEntriesTakesOutOnlyTheFirst)
{
    QRMIDevice device;
    device.AddApplication(Application("Driver", "1", "A"));
    device.AddApplication(Application("Driver", "1", "B"));
    std::vector<QRMIApplication*> before = ApplicationsOf(device);
    ASSERT_EQ(2u, before.size());
    // Made equal behind the device's back, through the handed-out pointer.
    before[1]->SetSubComponentID(VELString("A"));

    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveApplication(Application("Driver", "1", "A")));

    std::vector<QRMIApplication*> after = ApplicationsOf(device);
    ASSERT_EQ(1u, after.size());
    EXPECT_EQ(before[1], after[0]);
}

TEST(QRMIDeviceApplications, RemoveApplicationTakesOutEqualEntriesThatAreNotAdjacent)
{
    QRMIDevice device;
    device.AddApplication(Application("Driver", "1", "A"));
    device.AddApplication(Application("Other", "2"));
    device.AddApplication(Application("Driver", "1", "C"));
    std::vector<QRMIApplication*> before = ApplicationsOf(device);
    ASSERT_EQ(3u, before.size());
    before[2]->SetSubComponentID(VELString("A"));

    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveApplication(Application("Driver", "1", "A")));

    std::vector<QRMIApplication*> after = ApplicationsOf(device);
    ASSERT_EQ(1u, after.size());
    EXPECT_EQ(before[1], after[0]);
}

// ================================================================ equality

TEST_F(QRMIDeviceEquality, CopyWithoutApplicationsComparesEqual)
{
    QRMIDevice device = FilledDevice();
    QRMIDevice copy(device);
    EXPECT_TRUE(device == copy);
    EXPECT_FALSE(device != copy);
}

TEST_F(QRMIDeviceEquality, CopyWithOneApplicationComparesUnequal)
{
    QRMIDevice device = FilledDevice();
    device.AddApplication(Application("Driver", "1.0"));
    QRMIDevice copy(device);
    EXPECT_FALSE(device == copy);
    EXPECT_TRUE(device != copy);
}

TEST_F(QRMIDeviceEquality, DeviceWithAnApplicationIsUnequalToItself)
{
    QRMIDevice device;
    device.AddApplication(Application("Driver", "1.0"));
    const QRMIDevice& alias = device;
    EXPECT_FALSE(device == alias);
}

TEST_P(QRMIDeviceEquality, FieldDiffers) { ExpectDifference(GetParam(), FilledDevice(), FilledDevice()); }

INSTANTIATE_TEST_SUITE_P(, QRMIDeviceEquality, testing::ValuesIn(kInventoryDeviceDifferences), NameOfDifference());

// ===================================================== copying, assignment

TEST(QRMIDeviceCopy, CopyConstructorCopiesApplicationsDeeply)
{
    QRMIDevice device = FilledDevice();
    QRMIApplication first = Application("Driver", "1.0", "A");
    first.AddDisplayValue(VELString("en"), VELString("X"));
    device.AddApplication(first);
    device.AddApplication(Application("Firmware", "2.0", "B"));

    QRMIDevice copy(device);

    std::vector<QRMIApplication*> source = ApplicationsOf(device);
    std::vector<QRMIApplication*> copied = ApplicationsOf(copy);
    ASSERT_EQ(2u, copied.size());
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_NE(source[i], copied[i]) << i;
        EXPECT_TRUE(*source[i] == *copied[i]) << i;
    }
    EXPECT_EQ("Driver", Str(copied[0]->GetDisplay()));
    EXPECT_EQ("Firmware", Str(copied[1]->GetDisplay()));
    EXPECT_EQ((Texts{{"en", "X"}}), TextsOf(*copied[0]));
}

TEST(QRMIDeviceCopy, CopyConstructorCopiesFieldsAndTexts)
{
    QRMIDevice copy(FilledDevice());
    EXPECT_EQ("Ethernet controller", Str(copy.GetDisplay()));
    EXPECT_EQ(2, copy.GetBus());
    EXPECT_EQ(3, copy.GetDevice());
    EXPECT_EQ(1, copy.GetFunction());
    EXPECT_EQ(25179ULL, copy.GetComponentID());
    EXPECT_EQ(0x8086, copy.GetVendorID());
    EXPECT_EQ(0x10D3, copy.GetDeviceID());
    EXPECT_EQ(0x0487, copy.GetSubDeviceID());
    EXPECT_EQ(0x1028, copy.GetSubVendorID());
    EXPECT_EQ(1, copy.GetComponentInstance());
    EXPECT_EQ((Texts{{"en", "Ethernet"}, {"fr", "Réseau"}}), TextsOf(copy));
}

TEST(QRMIDeviceCopy, ChangingTheCopyLeavesTheSourceUntouched)
{
    QRMIDevice device = FilledDevice();
    device.AddApplication(Application("Driver", "1.0"));
    QRMIApplication* held = ApplicationsOf(device)[0];
    {
        QRMIDevice copy(device);
        ApplicationsOf(copy)[0]->SetVersion(VELString("5.0"));
        copy.AddApplication(Application("More", "1"));
        copy.RemoveDisplayValue(VELString("en"));
        copy.SetBus(77);
    }
    ASSERT_EQ(1u, ApplicationsOf(device).size());
    EXPECT_EQ(held, ApplicationsOf(device)[0]);
    EXPECT_EQ("1.0", Str(held->GetVersion()));
    EXPECT_EQ((Texts{{"en", "Ethernet"}, {"fr", "Réseau"}}), TextsOf(device));
    EXPECT_EQ(2, device.GetBus());
}

TEST(QRMIDeviceCopy, AssignmentDoesNotCarryApplicationsOver)
{
    QRMIDevice source = FilledDevice();
    source.AddApplication(Application("Driver", "1.0"));
    source.AddApplication(Application("Firmware", "2.0"));
    QRMIDevice target;

    target = source;

    EXPECT_TRUE(ApplicationsOf(target).empty());
    EXPECT_EQ(2u, ApplicationsOf(source).size());
}

TEST(QRMIDeviceCopy, AssignmentCopiesDisplayNumbersAndTexts)
{
    QRMIDevice source = FilledDevice();
    source.AddApplication(Application("Driver", "1.0"));
    source.AddApplication(Application("Firmware", "2.0"));
    QRMIDevice target;
    target.AddDisplayValue(VELString("de"), VELString("Alt"));

    target = source;

    EXPECT_EQ("Ethernet controller", Str(target.GetDisplay()));
    EXPECT_EQ(2, target.GetBus());
    EXPECT_EQ(3, target.GetDevice());
    EXPECT_EQ(1, target.GetFunction());
    EXPECT_EQ(25179ULL, target.GetComponentID());
    EXPECT_EQ(0x8086, target.GetVendorID());
    EXPECT_EQ(0x10D3, target.GetDeviceID());
    EXPECT_EQ(0x0487, target.GetSubDeviceID());
    EXPECT_EQ(0x1028, target.GetSubVendorID());
    EXPECT_EQ(1, target.GetComponentInstance());
    EXPECT_EQ((Texts{{"en", "Ethernet"}, {"fr", "Réseau"}}), TextsOf(target));
    // No application of the one equals one of the other: the target has none.
    EXPECT_TRUE(target == source);
}

TEST(QRMIDeviceCopy, AssignmentKeepsTheTargetsOwnApplications)
{
    QRMIDevice source = FilledDevice();
    source.AddApplication(Application("Driver", "1.0"));
    QRMIDevice target;
    target.AddApplication(Application("Own", "7"));
    QRMIApplication* own = ApplicationsOf(target)[0];

    target = source;

    std::vector<QRMIApplication*> applications = ApplicationsOf(target);
    ASSERT_EQ(1u, applications.size());
    EXPECT_EQ(own, applications[0]);
    EXPECT_EQ("Own", Str(applications[0]->GetDisplay()));
    EXPECT_EQ("7", Str(applications[0]->GetVersion()));
}

TEST(QRMIDeviceCopy, SelfAssignmentEmptiesTextsAndKeepsNumbersAndApplications)
{
    QRMIDevice device = FilledDevice();
    device.AddApplication(Application("Driver", "1.0"));
    std::vector<QRMIApplication*> before = ApplicationsOf(device);
    QRMIDevice& alias = device;
    device = alias;
    EXPECT_TRUE(TextsOf(device).empty());
    EXPECT_EQ(before, ApplicationsOf(device));
    EXPECT_EQ("Ethernet controller", Str(device.GetDisplay()));
    EXPECT_EQ(2, device.GetBus());
    EXPECT_EQ(25179ULL, device.GetComponentID());
    EXPECT_EQ(0x8086, device.GetVendorID());
}
