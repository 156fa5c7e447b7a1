#include "TestSupport.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <utility>
#include <vector>

#include <sys/resource.h>

TempDir::TempDir()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "qrmkit-test-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) {
        ADD_FAILURE() << "cannot create a temporary directory";
    }
    mPath = pattern;
}

TempDir::~TempDir()
{
    std::error_code error;
    std::filesystem::remove_all(mPath, error);
}

std::string TempDir::PathOf(const std::string& name) const { return mPath + "/" + name; }

std::string TempDir::Write(const std::string& name, const std::string& contents) const
{
    std::string path = PathOf(name);
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream out(path, std::ios::binary);
    out.write(contents.data(), static_cast<std::streamsize>(contents.size()));
    return path;
}

StdoutCapture::StdoutCapture() : mDone(false) { testing::internal::CaptureStdout(); }

StdoutCapture::~StdoutCapture() { Text(); }

std::string StdoutCapture::Text()
{
    if (!mDone) {
        mText = testing::internal::GetCapturedStdout();
        mDone = true;
    }
    return mText;
}

std::size_t PeakResidentBytes()
{
    struct rusage usage;
    if (::getrusage(RUSAGE_SELF, &usage) != 0) {
        ADD_FAILURE() << "getrusage failed";
        return 0;
    }
    // Linux reports kilobytes.
    return static_cast<std::size_t>(usage.ru_maxrss) * 1024;
}

std::size_t MemoryAllowance(std::size_t inputBytes, std::size_t factor)
{
    const std::size_t megabyte = 1024 * 1024;
#if defined(__SANITIZE_ADDRESS__)
    // Freed blocks stay in quarantine (256 MB by default), and every block
    // carries redzones and shadow memory.
    return 512 * megabyte + 3 * factor * inputBytes;
#else
    return 64 * megabyte + factor * inputBytes;
#endif
}

std::vector<QRMSoftwareComponent*> StoredComponents()
{
    std::vector<QRMSoftwareComponent*> components;
    QRMKitAPI::Instance()->GetSoftwareComponents(components);
    return components;
}

std::vector<QRMSoftwareBundle*> StoredBundles()
{
    std::vector<QRMSoftwareBundle*> bundles;
    QRMKitAPI::Instance()->GetSoftwareBundles(bundles);
    return bundles;
}

std::vector<QRMIDevice*> StoredDevices()
{
    std::vector<QRMIDevice*> devices;
    QRMKitAPI::Instance()->GetInventory(devices);
    return devices;
}

std::vector<QRMIApplication*> ApplicationsOf(const QRMIDevice& device)
{
    std::vector<QRMIApplication*> applications;
    device.GetApplications(applications);
    return applications;
}

std::size_t ComponentCount() { return StoredComponents().size(); }
std::size_t BundleCount() { return StoredBundles().size(); }
std::size_t DeviceCount() { return StoredDevices().size(); }

std::size_t CollectorCount()
{
    std::vector<QRMInventoryComponent> collectors;
    QRMKitAPI::Instance()->GetInventoryComponents(collectors);
    return collectors.size();
}

void ExpectNoCatalog()
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    EXPECT_FALSE(api->IsCatalogParsed());
    std::vector<QRMSoftwareComponent*> components;
    api->GetSoftwareComponents(components);
    EXPECT_EQ(0u, components.size());
    std::vector<QRMSoftwareBundle*> bundles;
    api->GetSoftwareBundles(bundles);
    EXPECT_EQ(0u, bundles.size());
    std::vector<QRMInventoryComponent> collectors;
    api->GetInventoryComponents(collectors);
    EXPECT_EQ(0u, collectors.size());
    EXPECT_TRUE(api->GetBaseLocation().IsEmpty());
    EXPECT_TRUE(api->GetCatalogReleaseID().IsEmpty());
    EXPECT_TRUE(api->GetCatalogVersion().IsEmpty());
    EXPECT_EQ(nullptr, api->GetApplicableBundle(QRM_BUNDLE_BTW64));
    EXPECT_EQ(0u, api->GetGreatestBundleNumber(QRM_BUNDLE_BTW64));
    {
        StdoutCapture capture;
        EXPECT_TRUE(api->GetInventoryFile(QRM_OS_ARCH_X64, VELString("W22")).IsEmpty());
        EXPECT_EQ(nullptr, api->GetInventoryComponent(QRM_OS_ARCH_X64, VELString("W22")));
        EXPECT_EQ("Catalog not initialized\nCatalog not initialized\n", capture.Text());
    }
    QRMIApplication application;
    std::map<QRMIApplication*, QRMSoftwareComponent*> updates{{&application, nullptr}};
    EXPECT_EQ(QRM_KIT_FAILURE, api->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    ASSERT_EQ(1u, updates.size());
    EXPECT_EQ(nullptr, updates.begin()->second);
}

void ExpectNoInventory()
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    EXPECT_FALSE(api->IsInventoryParsed());
    std::vector<QRMIDevice*> devices{nullptr};
    EXPECT_EQ(QRM_KIT_FAILURE, api->GetInventory(devices));
    EXPECT_EQ(1u, devices.size());
    EXPECT_EQ(0u, api->GetSystemIDFromInventory());
    std::vector<QRMISystem> systems;
    api->GetInventorySystems(systems);
    EXPECT_EQ(0u, systems.size());
    std::vector<QRMOperatingSystem> oses;
    api->GetInventoryOperatingSystems(oses);
    EXPECT_EQ(0u, oses.size());
    std::map<QRMIApplication*, QRMSoftwareComponent*> updates;
    EXPECT_EQ(QRM_KIT_FAILURE, api->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    EXPECT_TRUE(updates.empty());
}

void ExpectExampleUpdates()
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    const std::string examples = QRMKIT_EXAMPLES_DIR;
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(examples + "/catalog.xml")));
    std::vector<QRMSoftwareComponent*> components;
    api->GetSoftwareComponents(components);
    EXPECT_EQ(48u, components.size());
    ASSERT_EQ(QRM_KIT_SUCCESS, api->ParseInventory(VELFile(examples + "/inventory.xml")));
    EXPECT_EQ(0x0A6Bu, api->GetSystemIDFromInventory());
    std::map<QRMIApplication*, QRMSoftwareComponent*> updates;
    ASSERT_EQ(QRM_KIT_SUCCESS, api->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    EXPECT_EQ(10u, updates.size());
}
