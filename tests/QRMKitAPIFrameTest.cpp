// The singleton and its lifecycle: Instance, Initialize, Reset, the
// argument-less Parse, and the inspection of the catalog store.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::string TwoOfEachCatalog()
{
    return CatalogXML::Document(
        "baseLocation=\"downloads.example.net\" dateTime=\"1763683200\" releaseID=\"R42\" version=\"7.1\"",
        CatalogXML::Bundle("B1") + CatalogXML::Component("C1") + CatalogXML::InventoryComponent("WIN", "inv/win.exe") +
            CatalogXML::Bundle("B2") + CatalogXML::Component("C2") +
            CatalogXML::InventoryComponent("LIN", "inv/lin.bin"));
}

std::vector<QRMInventoryComponent> InventoryComponents()
{
    std::vector<QRMInventoryComponent> components;
    QRMKitAPI::Instance()->GetInventoryComponents(components);
    return components;
}

}  // namespace

TEST(QRMKitAPIInstance, TwoCallsGiveTheSamePointer)
{
    QRMKitAPI* first = QRMKitAPI::Instance();
    QRMKitAPI* second = QRMKitAPI::Instance();
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(first, second);
}

TEST(QRMKitAPIInstance, DeletedInstanceIsReplacedByAFreshOneWhileTheStoresStay)
{
    const std::string examples = QRMKIT_EXAMPLES_DIR;
    QRMKitAPI* first = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, first->Initialize(VELFile(examples + "/catalog.xml")));
    ASSERT_EQ(QRM_KIT_SUCCESS, first->Parse(VELFile(examples + "/catalog.xml")));
    // Callers are told never to do this; when one does, the next Instance()
    // must not hand out the deleted object.
    delete first;
    QRMKitAPI* second = QRMKitAPI::Instance();
    ASSERT_NE(nullptr, second);
    EXPECT_EQ(second, QRMKitAPI::Instance());
    // The instance's own state is new ...
    EXPECT_FALSE(second->IsInitialized());
    // ... the stores belong to the process, not to the instance.
    EXPECT_TRUE(second->IsCatalogParsed());
    std::vector<QRMSoftwareComponent*> components;
    second->GetSoftwareComponents(components);
    EXPECT_EQ(48u, components.size());
}

TEST(QRMKitAPIInstance, IsNotInitializedBeforeInitialize) { EXPECT_FALSE(QRMKitAPI::Instance()->IsInitialized()); }

TEST(QRMKitAPIInstance, StoreIsEmptyAndNotParsedAtFirst)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    EXPECT_FALSE(api->IsCatalogParsed());
    EXPECT_EQ(0u, ComponentCount());
    EXPECT_EQ(0u, BundleCount());
    EXPECT_TRUE(InventoryComponents().empty());
    EXPECT_TRUE(api->GetCatalogReleaseID().IsEmpty());
    EXPECT_TRUE(api->GetCatalogVersion().IsEmpty());
    EXPECT_EQ(0ull, api->GetCatalogDateTime().GetValue());
}

TEST(QRMKitAPIInitialize, ExistingFileSucceedsAndInitializes)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    EXPECT_EQ(QRM_KIT_SUCCESS, api->Initialize(VELFile(dir.Write("catalog.xml", "<Manifest/>"))));
    EXPECT_TRUE(api->IsInitialized());
}

TEST(QRMKitAPIInitialize, ReadsNothingFromTheFile)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    // Not even XML: Initialize only looks at whether the file is there.
    EXPECT_EQ(QRM_KIT_SUCCESS, api->Initialize(VELFile(dir.Write("catalog.xml", "not xml at all"))));
    EXPECT_TRUE(api->IsInitialized());
    EXPECT_FALSE(api->IsCatalogParsed());
    EXPECT_EQ(0u, BundleCount());
}

TEST(QRMKitAPIInitialize, MissingFileIsNotFoundAndStaysUninitialized)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    EXPECT_EQ(QRM_KIT_NOT_FOUND, api->Initialize(VELFile(dir.PathOf("missing.xml"))));
    EXPECT_FALSE(api->IsInitialized());
}

TEST(QRMKitAPIInitialize, MissingFileAfterSuccessKeepsItInitialized)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Initialize(VELFile(dir.Write("catalog.xml", "<Manifest/>"))));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, api->Initialize(VELFile(dir.PathOf("missing.xml"))));
    EXPECT_TRUE(api->IsInitialized());
}

TEST(QRMKitAPIInitialize, DirectoryIsNotFound)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    EXPECT_EQ(QRM_KIT_NOT_FOUND, api->Initialize(VELFile(dir.Path())));
    EXPECT_EQ(4, static_cast<int>(api->Initialize(VELFile(dir.Path()))));
    EXPECT_FALSE(api->IsInitialized());
}

TEST(QRMKitAPIInitialize, EmptyPathIsNotFound)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    EXPECT_EQ(QRM_KIT_NOT_FOUND, api->Initialize(VELFile()));
    EXPECT_FALSE(api->IsInitialized());
}

TEST(QRMKitAPIParseWithoutArguments, SucceedsWithoutInitialize)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    EXPECT_EQ(QRM_KIT_SUCCESS, api->Parse());
    EXPECT_FALSE(api->IsInitialized());
    EXPECT_FALSE(api->IsCatalogParsed());
    EXPECT_EQ(0u, BundleCount());
}

TEST(QRMKitAPIParseWithoutArguments, DoesNotReadTheInitializedFile)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Initialize(VELFile(dir.Write("catalog.xml", TwoOfEachCatalog()))));
    EXPECT_EQ(QRM_KIT_SUCCESS, api->Parse());
    EXPECT_FALSE(api->IsCatalogParsed());
    EXPECT_EQ(0u, BundleCount());
    EXPECT_EQ(0u, ComponentCount());
    EXPECT_TRUE(api->GetBaseLocation().IsEmpty());
    EXPECT_TRUE(api->IsInitialized());
}

TEST(QRMKitAPIParseWithoutArguments, LeavesAParsedStoreUntouched)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(dir.Write("catalog.xml", TwoOfEachCatalog()))));
    std::vector<QRMSoftwareComponent*> componentsBefore;
    api->GetSoftwareComponents(componentsBefore);
    std::vector<QRMSoftwareBundle*> bundlesBefore;
    api->GetSoftwareBundles(bundlesBefore);
    std::vector<QRMInventoryComponent> inventoryBefore = InventoryComponents();

    EXPECT_EQ(QRM_KIT_SUCCESS, api->Parse());

    EXPECT_TRUE(api->IsCatalogParsed());
    EXPECT_EQ(VELString("downloads.example.net"), api->GetBaseLocation());
    EXPECT_EQ(VELString("R42"), api->GetCatalogReleaseID());
    EXPECT_EQ(VELString("7.1"), api->GetCatalogVersion());
    EXPECT_EQ(1763683200ull, api->GetCatalogDateTime().GetValue());
    std::vector<QRMSoftwareComponent*> componentsAfter;
    api->GetSoftwareComponents(componentsAfter);
    std::vector<QRMSoftwareBundle*> bundlesAfter;
    api->GetSoftwareBundles(bundlesAfter);
    EXPECT_EQ(componentsBefore, componentsAfter);
    EXPECT_EQ(bundlesBefore, bundlesAfter);
    EXPECT_EQ(2u, componentsAfter.size());
    EXPECT_EQ(2u, bundlesAfter.size());
    EXPECT_EQ(inventoryBefore, InventoryComponents());
    EXPECT_EQ(2u, inventoryBefore.size());
}

TEST(QRMKitAPIReset, EmptiesTheStoreAndForgetsInitialize)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    std::string path = dir.Write("catalog.xml", TwoOfEachCatalog());
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Initialize(VELFile(path)));
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(path)));
    ASSERT_TRUE(api->IsCatalogParsed());
    ASSERT_EQ(2u, BundleCount());

    EXPECT_EQ(QRM_KIT_SUCCESS, api->Reset());

    EXPECT_FALSE(api->IsInitialized());
    EXPECT_FALSE(api->IsCatalogParsed());
    EXPECT_EQ(0u, ComponentCount());
    EXPECT_EQ(0u, BundleCount());
    EXPECT_TRUE(InventoryComponents().empty());
    EXPECT_TRUE(api->GetBaseLocation().IsEmpty());
    EXPECT_TRUE(api->GetCatalogReleaseID().IsEmpty());
    EXPECT_TRUE(api->GetCatalogVersion().IsEmpty());
}

TEST(QRMKitAPIReset, KeepsTheCatalogDateTime)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(dir.Write("catalog.xml", TwoOfEachCatalog()))));
    EXPECT_EQ(QRM_KIT_SUCCESS, api->Reset());
    EXPECT_EQ(1763683200ull, api->GetCatalogDateTime().GetValue());
}

TEST(QRMKitAPIReset, SucceedsOnAFreshInstance)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    EXPECT_EQ(QRM_KIT_SUCCESS, api->Reset());
    EXPECT_EQ(QRM_KIT_SUCCESS, api->Reset());
    EXPECT_FALSE(api->IsInitialized());
    EXPECT_FALSE(api->IsCatalogParsed());
}

TEST(QRMKitAPIReset, AllowsANewInitializeAndParse)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    std::string path = dir.Write("catalog.xml", TwoOfEachCatalog());
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Initialize(VELFile(path)));
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(path)));
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Reset());
    EXPECT_EQ(QRM_KIT_SUCCESS, api->Initialize(VELFile(path)));
    EXPECT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(path)));
    EXPECT_TRUE(api->IsInitialized());
    EXPECT_TRUE(api->IsCatalogParsed());
    EXPECT_EQ(2u, BundleCount());
    EXPECT_EQ(2u, ComponentCount());
    EXPECT_EQ(VELString("downloads.example.net"), api->GetBaseLocation());
}

TEST(QRMKitAPIBaseLocation, EmptyBeforeAnyParse) { EXPECT_TRUE(QRMKitAPI::Instance()->GetBaseLocation().IsEmpty()); }

TEST(QRMKitAPIBaseLocation, EmptyAfterInitializeWithoutParse)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Initialize(VELFile(dir.Write("catalog.xml", TwoOfEachCatalog()))));
    EXPECT_TRUE(api->GetBaseLocation().IsEmpty());
}

TEST(QRMKitAPIBaseLocation, ReportedAfterParseAndEmptyAfterReset)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(dir.Write("catalog.xml", TwoOfEachCatalog()))));
    EXPECT_EQ(VELString("downloads.example.net"), api->GetBaseLocation());
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Reset());
    EXPECT_TRUE(api->GetBaseLocation().IsEmpty());
}

TEST(QRMKitAPIParseFile, DoesNotInitialize)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(dir.Write("catalog.xml", TwoOfEachCatalog()))));
    EXPECT_FALSE(api->IsInitialized());
}

TEST(QRMKitAPIParseFile, KeepsAnEarlierInitialize)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Initialize(VELFile(dir.Write("first.xml", "<Manifest/>"))));
    EXPECT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(dir.Write("second.xml", TwoOfEachCatalog()))));
    EXPECT_TRUE(api->IsInitialized());
    EXPECT_EQ(QRM_KIT_NOT_FOUND, api->Parse(VELFile(dir.PathOf("missing.xml"))));
    EXPECT_TRUE(api->IsInitialized());
}

TEST(QRMKitAPIStore, SameComponentTwiceGivesTwoEntries)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    std::string catalog = CatalogXML::Document("", CatalogXML::Component("SAME") + CatalogXML::Component("SAME"));
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(dir.Write("catalog.xml", catalog))));
    std::vector<QRMSoftwareComponent*> components;
    api->GetSoftwareComponents(components);
    ASSERT_EQ(2u, components.size());
    EXPECT_NE(components[0], components[1]);
}

TEST(QRMKitAPIStore, SameBundleAndInventoryComponentTwiceGiveTwoEntries)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    std::string catalog = CatalogXML::Document("", CatalogXML::Bundle("SAME") + CatalogXML::Bundle("SAME") +
                                                       CatalogXML::InventoryComponent("WIN", "a.exe") +
                                                       CatalogXML::InventoryComponent("WIN", "a.exe"));
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(dir.Write("catalog.xml", catalog))));
    EXPECT_EQ(2u, BundleCount());
    std::vector<QRMInventoryComponent> inventory = InventoryComponents();
    ASSERT_EQ(2u, inventory.size());
    EXPECT_EQ(inventory[0], inventory[1]);
}

TEST(QRMKitAPIStore, ComponentGetterAppendsWithoutClearing)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(dir.Write("catalog.xml", TwoOfEachCatalog()))));
    QRMSoftwareComponent callersOwn;
    std::vector<QRMSoftwareComponent*> components = {&callersOwn};
    api->GetSoftwareComponents(components);
    ASSERT_EQ(3u, components.size());
    EXPECT_EQ(&callersOwn, components[0]);
    api->GetSoftwareComponents(components);
    ASSERT_EQ(5u, components.size());
    EXPECT_EQ(components[1], components[3]);
    EXPECT_EQ(components[2], components[4]);
}

TEST(QRMKitAPIStore, BundleGetterAppendsWithoutClearing)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(dir.Write("catalog.xml", TwoOfEachCatalog()))));
    QRMSoftwareBundle callersOwn;
    std::vector<QRMSoftwareBundle*> bundles = {&callersOwn};
    api->GetSoftwareBundles(bundles);
    ASSERT_EQ(3u, bundles.size());
    EXPECT_EQ(&callersOwn, bundles[0]);
    EXPECT_NE(bundles[1], bundles[2]);
}

TEST(QRMKitAPIStore, InventoryComponentGetterAppendsCopiesWithoutClearing)
{
    TempDir dir;
    QRMKitAPI* api = QRMKitAPI::Instance();
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(dir.Write("catalog.xml", TwoOfEachCatalog()))));
    QRMInventoryComponent callersOwn;
    callersOwn.SetOSCode(VELString("PRE"));
    std::vector<QRMInventoryComponent> components = {callersOwn};
    api->GetInventoryComponents(components);
    ASSERT_EQ(3u, components.size());
    EXPECT_EQ(VELString("PRE"), components[0].GetOSCode());
    EXPECT_EQ(VELString("WIN"), components[1].GetOSCode());
    EXPECT_EQ(VELString("inv/win.exe"), components[1].GetPath());
    EXPECT_EQ(VELString("LIN"), components[2].GetOSCode());
    EXPECT_EQ(VELString("inv/lin.bin"), components[2].GetPath());

    // The entries are copies: changing them leaves the store alone.
    components[1].SetOSCode(VELString("CHANGED"));
    std::vector<QRMInventoryComponent> again = InventoryComponents();
    ASSERT_EQ(2u, again.size());
    EXPECT_EQ(VELString("WIN"), again[0].GetOSCode());
}
