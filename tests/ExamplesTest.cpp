// The bundled example catalog and inventory, which the demo and the
// command-line tool use, read as a caller would.
#include "TestSupport.h"

#include <gtest/gtest.h>

namespace {

const std::string kCatalog = std::string(QRMKIT_EXAMPLES_DIR) + "/catalog.xml";
const std::string kInventory = std::string(QRMKIT_EXAMPLES_DIR) + "/inventory.xml";

}  // namespace

TEST(Examples, CatalogParsesWithEveryEntry)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Initialize(VELFile(kCatalog)));
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(kCatalog)));
    EXPECT_EQ(VELString("updates.example.com/catalog"), api->GetBaseLocation());
    EXPECT_EQ(VELString("R2026-11"), api->GetCatalogReleaseID());

    std::vector<QRMSoftwareBundle*> bundles;
    api->GetSoftwareBundles(bundles);
    ASSERT_EQ(6u, bundles.size());
    EXPECT_EQ(VELString("S740W64.00041"), bundles[0]->GetBundleID());
    EXPECT_EQ(QRM_BUNDLE_BTW64, bundles[0]->GetBundleType());
    EXPECT_EQ(QRM_BUNDLE_BTLX, bundles[1]->GetBundleType());
    std::vector<unsigned int> systemIDs;
    bundles[0]->GetSupportedSystemIDs(systemIDs);
    EXPECT_EQ(std::vector<unsigned int>{0x0A6B}, systemIDs);

    std::vector<QRMSoftwareComponent*> components;
    api->GetSoftwareComponents(components);
    ASSERT_EQ(48u, components.size());
    int byType[6] = {};
    for (const QRMSoftwareComponent* component : components) {
        ++byType[component->GetComponentType().GetValue()];
    }
    EXPECT_EQ(6, byType[QRM_COMPONENT_BIOS]);
    EXPECT_EQ(14, byType[QRM_COMPONENT_FRMW]);
    EXPECT_EQ(14, byType[QRM_COMPONENT_DRVR]);
    EXPECT_EQ(6, byType[QRM_COMPONENT_APAC]);
    EXPECT_EQ(8, byType[QRM_COMPONENT_APP]);

    std::vector<QRMInventoryComponent> collectors;
    api->GetInventoryComponents(collectors);
    ASSERT_EQ(2u, collectors.size());
    EXPECT_EQ(VELString("updates.example.com/catalog/collectors/invcol_w64.exe"),
              api->GetInventoryFile(QRM_OS_ARCH_X64, VELString("W22")));
}

TEST(Examples, InventoryParsesWithEveryDevice)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->ParseInventory(VELFile(kInventory)));
    EXPECT_EQ(0x0A6Bu, api->GetSystemIDFromInventory());
    std::vector<QRMIDevice*> devices;
    ASSERT_EQ(QRM_KIT_SUCCESS, api->GetInventory(devices));
    ASSERT_EQ(9u, devices.size());
    EXPECT_EQ(159u, devices[0]->GetComponentID());
    EXPECT_EQ(0x8086, devices[2]->GetVendorID());
    std::vector<QRMIApplication*> applications;
    devices[2]->GetApplications(applications);
    ASSERT_EQ(2u, applications.size());
    EXPECT_EQ(QRM_COMPONENT_DRVR, applications[1]->GetComponentType());
    applications.clear();
    devices[5]->GetApplications(applications);
    ASSERT_EQ(1u, applications.size());
    EXPECT_EQ(VELString("9.15.1"), applications[0]->GetVersion());
}
