// The API object as a value: assigning the instance to itself changes
// nothing. (Copies cannot be made by a caller: the copy constructor is
// private.)
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
