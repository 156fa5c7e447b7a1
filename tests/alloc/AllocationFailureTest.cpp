// Running out of memory at any point of reading, of the updates query or of
// copying a value object: the call reports QRM_KIT_FAILURE (or, for a copy,
// std::bad_alloc reaches the caller), nothing leaks or is freed twice (the
// sanitizer build checks), and the stores and objects stay usable.
//
// Every allocation of each operation is tried as the point where memory
// runs out; the failure lasts until the operation returns, as when memory
// is exhausted.
#include "FailingAllocator.h"
#include "TestSupport.h"

#include <QRMKit.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <new>
#include <optional>
#include <string>
#include <vector>

namespace {

const std::string kExamples = QRMKIT_EXAMPLES_DIR;
const VELFile kCatalog(kExamples + "/catalog.xml");
const VELFile kInventory(kExamples + "/inventory.xml");

// Every allocation of an operation that asks for `total`.
std::vector<std::size_t> FailurePoints(std::size_t total)
{
    std::vector<std::size_t> points;
    for (std::size_t n = 1; n <= total; ++n) {
        points.push_back(n);
    }
    return points;
}

// A readable account of an object's values. The classes' own equality
// compares lists all against all (kept for compatibility), so an object with
// two different entries in a list is not equal to its own copy: these
// accounts compare entry by entry instead.
template <class Holder>
std::string Texts(const Holder& holder)
{
    std::string text;
    for (const auto& [language, value] : TextsOf(holder)) {
        text += language + "=" + value + ";";
    }
    return text;
}

std::string Describe(const QRMIDevice& device)
{
    std::string text = device.GetDisplay().GetUTF8String() + "|" + std::to_string(device.GetComponentID()) + "|" +
                       std::to_string(device.GetVendorID()) + ":" + std::to_string(device.GetDeviceID()) + ":" +
                       std::to_string(device.GetSubVendorID()) + ":" + std::to_string(device.GetSubDeviceID()) + "|" +
                       std::to_string(device.GetBus()) + "." + std::to_string(device.GetDevice()) + "." +
                       std::to_string(device.GetFunction()) + "#" + std::to_string(device.GetComponentInstance());
    std::vector<QRMIApplication*> applications;
    device.GetApplications(applications);
    for (const QRMIApplication* application : applications) {
        text += "|" + std::to_string(application->GetComponentType()) + "," +
                application->GetVersion().GetUTF8String() + "," + application->GetDisplay().GetUTF8String() + "," +
                application->GetSubComponentID().GetUTF8String();
    }
    return text;
}

std::string Describe(const QRMSoftwareComponent& component)
{
    std::string text = component.GetPackageID().GetUTF8String() + "|" + component.GetPath().GetUTF8String() + "|" +
                       component.GetVendorVersion().GetUTF8String() + "|" + component.GetReleaseID().GetUTF8String() +
                       "|" + component.GetSchemaVersion().GetUTF8String() + "|" +
                       component.GetPackageType().GetUTF8String() + "|" + std::to_string(component.GetSize()) + "|" +
                       std::to_string(component.GetComponentType().GetValue()) + "|" + Texts(component.GetName()) +
                       "|" + Texts(component.GetCategory()) + "|" + Texts(component.GetCriticality()) + "|" +
                       Texts(component.GetComponentType());
    std::vector<QRMDevice*> devices;
    component.GetSupportedDevices(devices);
    for (const QRMDevice* device : devices) {
        text += "|" + std::to_string(device->GetComponentID()) + ":" + Texts(*device);
        std::vector<QRMPCIInfo*> pci;
        device->GetPCIInfo(pci);
        for (const QRMPCIInfo* entry : pci) {
            text += "," + std::to_string(entry->GetVendorID()) + "/" + std::to_string(entry->GetDeviceID()) + "/" +
                    std::to_string(entry->GetSubVendorID()) + "/" + std::to_string(entry->GetSubDeviceID());
        }
    }
    return text;
}

std::string Describe(const QRMSoftwareBundle& bundle)
{
    std::string text = bundle.GetBundleID().GetUTF8String() + "|" + bundle.GetPath().GetUTF8String() + "|" +
                       bundle.GetReleaseID().GetUTF8String() + "|" + bundle.GetVendorVersion().GetUTF8String() + "|" +
                       std::to_string(bundle.GetBundleType()) + "|" + Texts(bundle.GetName()) + "|" +
                       std::to_string(bundle.GetComponentType().GetValue());
    std::vector<QRMBundleContent> contents;
    bundle.GetContents(contents);
    for (const QRMBundleContent& content : contents) {
        text += "|" + content.GetPath().GetUTF8String();
    }
    std::vector<unsigned int> systems;
    bundle.GetSupportedSystemIDs(systems);
    for (unsigned int system : systems) {
        text += "#" + std::to_string(system);
    }
    return text;
}

class AllocationFailure : public ::testing::Test {
protected:
    void SetUp() override { failing::InstallInParser(); }
};

TEST_F(AllocationFailure, CatalogReadFailsWithAReturnCodeWhereverMemoryRunsOut)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    // The first read also fills the category maps, which outlive every
    // later read: the second one is the one every failing read repeats.
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(kCatalog));
    failing::FailFrom(0);
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(kCatalog));
    const std::size_t total = failing::Stop();
    const std::size_t components = ComponentCount();
    const std::size_t bundles = BundleCount();
    ASSERT_EQ(48u, components);
    ASSERT_GT(total, 500u);

    for (std::size_t n : FailurePoints(total)) {
        failing::FailFrom(n);
        const QRMKitReturnCode result = api->Parse(kCatalog);
        failing::Stop();
        ASSERT_TRUE(failing::Failed()) << "allocation " << n << " of " << total;
        ASSERT_EQ(QRM_KIT_FAILURE, result) << "allocation " << n << " of " << total;
        EXPECT_FALSE(api->IsCatalogParsed()) << "allocation " << n;
        // What was read before memory ran out is stored whole, never more.
        EXPECT_LE(ComponentCount(), components) << "allocation " << n;
        EXPECT_LE(BundleCount(), bundles) << "allocation " << n;
    }

    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(kCatalog));
    EXPECT_TRUE(api->IsCatalogParsed());
    EXPECT_EQ(components, ComponentCount());
    EXPECT_EQ(bundles, BundleCount());
}

// The stored devices' accounts, in order.
std::vector<std::string> DescribedDevices()
{
    std::vector<std::string> described;
    for (const QRMIDevice* device : StoredDevices()) {
        described.push_back(Describe(*device));
    }
    return described;
}

TEST_F(AllocationFailure, InventoryReadFailsWithAReturnCodeWhereverMemoryRunsOut)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->ParseInventory(kInventory));
    const std::vector<std::string> example = DescribedDevices();
    ASSERT_EQ(9u, example.size());
    // The inventory store keeps what every read added (a device with two
    // different applications is never a duplicate, even of itself), so each
    // read below may add devices; each one must be one of the file's
    // devices, whole.
    failing::FailFrom(0);
    ASSERT_EQ(QRM_KIT_SUCCESS, api->ParseInventory(kInventory));
    const std::size_t total = failing::Stop();
    ASSERT_GT(total, 100u);

    std::size_t failures = 0;
    for (std::size_t n : FailurePoints(total)) {
        const std::size_t before = DeviceCount();
        failing::FailFrom(n);
        const QRMKitReturnCode result = api->ParseInventory(kInventory);
        failing::Stop();
        if (failing::Failed()) {
            ASSERT_EQ(QRM_KIT_FAILURE, result) << "allocation " << n;
            ++failures;
        } else {
            ASSERT_EQ(QRM_KIT_SUCCESS, result) << "allocation " << n;
        }
        const std::vector<std::string> stored = DescribedDevices();
        ASSERT_GE(stored.size(), before);
        ASSERT_LE(stored.size(), before + example.size());
        for (const std::string& device : stored) {
            ASSERT_NE(example.end(), std::find(example.begin(), example.end(), device))
                << "allocation " << n << ": " << device;
        }
    }
    // Devices already stored make a read ask for a little less: nearly
    // every point is reached.
    EXPECT_GE(failures, total * 9 / 10);

    ASSERT_EQ(QRM_KIT_SUCCESS, api->ParseInventory(kInventory));
    EXPECT_TRUE(api->IsInventoryParsed());
    EXPECT_EQ(0x0A6Bu, api->GetSystemIDFromInventory());
}

TEST_F(AllocationFailure, UpdatesQueryFailsWithAReturnCodeAndLeavesTheCallersMapAsItWas)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(kCatalog));
    ASSERT_EQ(QRM_KIT_SUCCESS, api->ParseInventory(kInventory));

    // An entry the caller had before the call.
    QRMIApplication earlier;
    QRMSoftwareComponent earlierComponent;
    std::map<QRMIApplication*, QRMSoftwareComponent*> updates{{&earlier, &earlierComponent}};
    failing::FailFrom(0);
    ASSERT_EQ(QRM_KIT_SUCCESS, api->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    const std::size_t total = failing::Stop();
    const std::map<QRMIApplication*, QRMSoftwareComponent*> expected = updates;
    ASSERT_EQ(11u, expected.size());
    ASSERT_GT(total, 50u);

    for (std::size_t n : FailurePoints(total)) {
        std::map<QRMIApplication*, QRMSoftwareComponent*> kept{{&earlier, &earlierComponent}};
        failing::FailFrom(n);
        const QRMKitReturnCode result = api->GetApplicableUpdates(kept, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64);
        failing::Stop();
        ASSERT_TRUE(failing::Failed()) << "allocation " << n << " of " << total;
        ASSERT_EQ(QRM_KIT_FAILURE, result) << "allocation " << n;
        ASSERT_EQ(1u, kept.size()) << "allocation " << n;
        EXPECT_EQ(&earlierComponent, kept[&earlier]);
    }

    std::map<QRMIApplication*, QRMSoftwareComponent*> again{{&earlier, &earlierComponent}};
    ASSERT_EQ(QRM_KIT_SUCCESS, api->GetApplicableUpdates(again, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    EXPECT_EQ(expected, again);
}

// Copy construction and copy assignment of `T` from every given object,
// failing at every allocation the two make: std::bad_alloc reaches the
// caller, a copy that was made is whole, and the target of a failed
// assignment stays a valid object: assigning to it again gives what an
// assignment that never failed gives. (An assignment need not copy every
// list: a device's assignment keeps its own applications.)
template <typename T>
void ExpectCopiesSurviveFailure(const std::vector<T*>& sources)
{
    ASSERT_FALSE(sources.empty());
    const T& first = *sources.front();
    for (const T* source : sources) {
        const std::string copied = Describe(*source);
        T reference(first);
        reference = *source;
        const std::string assigned = Describe(reference);

        std::size_t total = 0;
        {
            T target(first);
            failing::FailFrom(0);
            T copy(*source);
            target = *source;
            total = failing::Stop();
        }
        ASSERT_GT(total, 0u);
        for (std::size_t n = 1; n <= total; ++n) {
            T target(first);
            std::optional<T> copy;
            bool threw = false;
            failing::FailFrom(n);
            try {
                copy.emplace(*source);
                target = *source;
            } catch (const std::bad_alloc&) {
                threw = true;
            }
            failing::Stop();
            ASSERT_TRUE(failing::Failed()) << "allocation " << n << " of " << total;
            ASSERT_TRUE(threw) << "allocation " << n << " of " << total;
            if (copy) {
                EXPECT_EQ(copied, Describe(*copy)) << "allocation " << n;
            }
            target = *source;
            EXPECT_EQ(assigned, Describe(target)) << "allocation " << n;
            EXPECT_EQ(copied, Describe(*source)) << "allocation " << n;
        }
    }
}

TEST_F(AllocationFailure, CopiesOfCatalogComponentsAndBundlesThrowBadAllocAndLeaveValidObjects)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(kCatalog));
    std::vector<QRMSoftwareComponent*> components;
    api->GetSoftwareComponents(components);
    ExpectCopiesSurviveFailure(components);
    std::vector<QRMSoftwareBundle*> bundles;
    api->GetSoftwareBundles(bundles);
    ExpectCopiesSurviveFailure(bundles);
}

TEST_F(AllocationFailure, CopiesOfInventoryDevicesThrowBadAllocAndLeaveValidObjects)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->ParseInventory(kInventory));
    std::vector<QRMIDevice*> devices;
    ASSERT_EQ(QRM_KIT_SUCCESS, api->GetInventory(devices));
    ExpectCopiesSurviveFailure(devices);
}

}  // namespace

namespace {

QRMIApplication Application(const char* version)
{
    QRMIApplication application;
    application.SetComponentType(QRM_COMPONENT_FRMW);
    application.SetVersion(VELString(version));
    application.SetDisplay(VELString("Firmware"));
    return application;
}

QRMPCIInfo Pci(unsigned int device)
{
    QRMPCIInfo info;
    info.SetVendorID(0x8086);
    info.SetDeviceID(device);
    return info;
}

}  // namespace

// A removal that keeps the removed entry alive (for the pointers callers
// hold) must make room for it before taking it out: when memory runs out it
// throws and changes nothing.
TEST_F(AllocationFailure, ApplicationRemovalThatRunsOutOfMemoryChangesNothing)
{
    auto makeDevice = [](QRMIDevice& device) {
        for (const char* version : {"1.0", "2.0", "3.0"}) {
            ASSERT_EQ(QRM_KIT_SUCCESS, device.AddApplication(Application(version)));
        }
    };
    const QRMIApplication removed = Application("1.0");
    std::size_t total = 0;
    {
        QRMIDevice device;
        makeDevice(device);
        failing::FailFrom(0);
        device.RemoveApplication(removed);
        total = failing::Stop();
    }
    ASSERT_GT(total, 0U);
    for (std::size_t n = 1; n <= total; ++n) {
        QRMIDevice device;
        makeDevice(device);
        std::vector<QRMIApplication*> before;
        device.GetApplications(before);
        const std::string described = Describe(device);
        bool threw = false;
        failing::FailFrom(n);
        try {
            device.RemoveApplication(removed);
        } catch (const std::bad_alloc&) {
            threw = true;
        }
        failing::Stop();
        ASSERT_TRUE(threw) << "allocation " << n << " of " << total;
        std::vector<QRMIApplication*> after;
        device.GetApplications(after);
        EXPECT_EQ(after, before) << "allocation " << n;
        EXPECT_EQ(Describe(device), described) << "allocation " << n;
        EXPECT_EQ(before[0]->GetVersion().GetUTF8String(), "1.0") << "the entry a caller holds is whole";
    }
}

TEST_F(AllocationFailure, ClosingUpRemovalThatRunsOutOfMemoryChangesNothing)
{
    QRMDevice device;
    for (unsigned int id : {0x1593U, 0x1594U, 0x1595U}) {
        ASSERT_EQ(QRM_KIT_SUCCESS, device.AddPCIInfo(Pci(id)));
    }
    std::vector<QRMPCIInfo*> before;
    device.GetPCIInfo(before);

    bool threw = false;
    failing::FailFrom(1);
    try {
        device.RemovePCIInfo(Pci(0x1593));
    } catch (const std::bad_alloc&) {
        threw = true;
    }
    failing::Stop();
    ASSERT_TRUE(threw);
    std::vector<QRMPCIInfo*> after;
    device.GetPCIInfo(after);
    EXPECT_EQ(after, before);
    ASSERT_EQ(after.size(), 3U);
    EXPECT_EQ(after[0]->GetDeviceID(), 0x1593U);
    EXPECT_EQ(after[1]->GetDeviceID(), 0x1594U);
}
