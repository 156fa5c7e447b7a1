// The API object as a value: a copy remembers what the original remembered,
// assignment carries the initialisation over, and neither a copy nor its
// destruction touches the two process-wide stores or the instance.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

const std::string kExampleCatalog = std::string(QRMKIT_EXAMPLES_DIR) + "/catalog.xml";

std::size_t ComponentCount(const QRMKitAPI& api)
{
    std::vector<QRMSoftwareComponent*> components;
    api.GetSoftwareComponents(components);
    return components.size();
}

}  // namespace

TEST(QRMKitAPICopy, CopyKeepsTheInitializationAndSharesTheStores)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Initialize(VELFile(kExampleCatalog)));
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(kExampleCatalog)));
    std::unique_ptr<QRMKitAPI> copy = QRMKitAPITestPeer::Copy(*api);
    EXPECT_TRUE(copy->IsInitialized());
    EXPECT_TRUE(copy->IsCatalogParsed());
    EXPECT_EQ(48u, ComponentCount(*copy));
    // The copy is an object of its own; the stores are not.
    EXPECT_EQ(QRM_KIT_SUCCESS, copy->Reset());
    EXPECT_FALSE(copy->IsInitialized());
    EXPECT_TRUE(api->IsInitialized());
    EXPECT_FALSE(api->IsCatalogParsed());
    EXPECT_EQ(0u, ComponentCount(*api));
}

TEST(QRMKitAPICopy, DestroyingACopyLeavesTheInstanceAndTheStores)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(kExampleCatalog)));
    QRMKitAPITestPeer::Copy(*api).reset();
    EXPECT_EQ(api, QRMKitAPI::Instance());
    EXPECT_TRUE(api->IsCatalogParsed());
    EXPECT_EQ(48u, ComponentCount(*api));
    EXPECT_EQ(VELString("updates.example.com/catalog"), api->GetBaseLocation());
}

TEST(QRMKitAPICopy, AssignmentCarriesTheInitializationOver)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    std::unique_ptr<QRMKitAPI> uninitialized = QRMKitAPITestPeer::Copy(*api);
    ASSERT_FALSE(uninitialized->IsInitialized());
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Initialize(VELFile(kExampleCatalog)));
    std::unique_ptr<QRMKitAPI> other = QRMKitAPITestPeer::Copy(*uninitialized);
    QRMKitAPI& assigned = (*other = *api);
    EXPECT_EQ(other.get(), &assigned);
    EXPECT_TRUE(other->IsInitialized());
    *api = *uninitialized;
    EXPECT_FALSE(api->IsInitialized());
}

TEST(QRMKitAPICopy, AssigningTheInstanceToItselfChangesNothing)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Initialize(VELFile(kExampleCatalog)));
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(kExampleCatalog)));
    const QRMKitAPI& same = *api;
    EXPECT_EQ(api, &(*api = same));
    EXPECT_TRUE(api->IsInitialized());
    EXPECT_TRUE(api->IsCatalogParsed());
    EXPECT_EQ(48u, ComponentCount(*api));
}
