// Choosing the software bundle that serves the inventoried system, and the
// greatest bundle number of a bundle type.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// A bundle of the given type. `systemID` is the hexadecimal "systemID" of
// its one target model; "-" leaves "TargetSystems" out, "" writes a
// "TargetSystems" without a "Brand".
std::string BundleXML(const std::string& bundleID, const std::string& bundleType, const std::string& systemID)
{
    std::string targets;
    if (systemID.empty()) {
        targets = "<TargetSystems></TargetSystems>";
    } else if (systemID != "-") {
        targets = "<TargetSystems><Brand key=\"3\" prefix=\"SRV\"><Display lang=\"en\">Servers</Display>"
                  "<Model systemID=\"" +
                  systemID + "\"><Display lang=\"en\">Model</Display></Model></Brand></TargetSystems>";
    }
    return "<SoftwareBundle bundleID=\"" + bundleID + "\" bundleType=\"" + bundleType + "\" path=\"" + bundleID +
           ".exe\">"
           "<Name><Display lang=\"en\">Bundle " +
           bundleID +
           "</Display></Name>"
           "<ComponentType value=\"SBDL\"/>" +
           targets + "<Contents><Package path=\"PKG.EXE\" packageID=\"PKG\"/></Contents></SoftwareBundle>";
}

std::string CatalogXMLOf(const std::string& entries)
{
    return CatalogXML::Document("baseLocation=\"updates.example.com\" releaseID=\"R1\"", entries);
}

// An inventory of one system (or of the given "System" elements as they
// stand) without devices.
std::string InventoryXML(const std::string& systems)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<SVMInventory lang=\"en\">" + systems + "</SVMInventory>\n";
}

std::string SystemXML(const std::string& systemID)
{
    return "<System systemID=\"" + systemID + "\" display=\"Server\"/>";
}

std::vector<QRMSoftwareBundle*> Bundles()
{
    std::vector<QRMSoftwareBundle*> bundles;
    QRMKitAPI::Instance()->GetSoftwareBundles(bundles);
    return bundles;
}

class BundleSelection : public testing::Test {
protected:
    void ParseCatalog(const std::string& entries)
    {
        ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(dir.Write("catalog.xml", CatalogXMLOf(entries)))));
    }
    void ParseInventory(const std::string& systems)
    {
        ASSERT_EQ(QRM_KIT_SUCCESS, api->ParseInventory(VELFile(dir.Write("inventory.xml", InventoryXML(systems)))));
    }

    QRMKitAPI* api = QRMKitAPI::Instance();
    TempDir dir;
};

}  // namespace

TEST_F(BundleSelection, FirstBundleInCatalogOrderWinsWhenTwoListTheSystem)
{
    ParseInventory(SystemXML("0A6B"));
    ParseCatalog(BundleXML("S740W64.00041", "BTW64", "0A6B") + BundleXML("S740W64.00099", "BTW64", "0A6B"));
    std::vector<QRMSoftwareBundle*> bundles = Bundles();
    ASSERT_EQ(2u, bundles.size());

    QRMSoftwareBundle* chosen = api->GetApplicableBundle(QRM_BUNDLE_BTW64);
    EXPECT_EQ(bundles[0], chosen);
    ASSERT_NE(nullptr, chosen);
    EXPECT_EQ(VELString("S740W64.00041"), chosen->GetBundleID());
    // The greater number of the later bundle plays no part in the choice.
    EXPECT_EQ(99u, api->GetGreatestBundleNumber(QRM_BUNDLE_BTW64));
}

TEST_F(BundleSelection, LaterBundleIsChosenWhenTheFirstListsAnotherSystem)
{
    ParseInventory(SystemXML("0A6B"));
    ParseCatalog(BundleXML("A.1", "BTW64", "0A6C") + BundleXML("A.2", "BTW64", "0A6B"));
    std::vector<QRMSoftwareBundle*> bundles = Bundles();
    ASSERT_EQ(2u, bundles.size());
    EXPECT_EQ(bundles[1], api->GetApplicableBundle(QRM_BUNDLE_BTW64));
}

TEST_F(BundleSelection, BundleOfAnotherTypeListingTheSystemIsNeverReturned)
{
    ParseInventory(SystemXML("0A6B"));
    ParseCatalog(BundleXML("L.1", "BTLX", "0A6B") + BundleXML("W.1", "BTW64", "0A6B"));
    std::vector<QRMSoftwareBundle*> bundles = Bundles();
    ASSERT_EQ(2u, bundles.size());

    EXPECT_EQ(bundles[1], api->GetApplicableBundle(QRM_BUNDLE_BTW64));
    EXPECT_EQ(bundles[0], api->GetApplicableBundle(QRM_BUNDLE_BTLX));
    EXPECT_EQ(nullptr, api->GetApplicableBundle(QRM_BUNDLE_BTW32));
    EXPECT_EQ(nullptr, api->GetApplicableBundle(QRM_BUNDLE_BTRPM));
}

TEST_F(BundleSelection, OnlyBundleOfAnotherTypeGivesNull)
{
    ParseInventory(SystemXML("0A6B"));
    ParseCatalog(BundleXML("L.1", "BTLX", "0A6B"));
    ASSERT_EQ(1u, Bundles().size());
    EXPECT_EQ(nullptr, api->GetApplicableBundle(QRM_BUNDLE_BTW64));
}

TEST_F(BundleSelection, BundlesWithoutSystemIDsAreSkipped)
{
    ParseInventory(SystemXML("0A6B"));
    ParseCatalog(BundleXML("W.1", "BTW64", "-") + BundleXML("W.2", "BTW64", "") + BundleXML("W.3", "BTW64", "0A6B"));
    std::vector<QRMSoftwareBundle*> bundles = Bundles();
    ASSERT_EQ(3u, bundles.size());
    std::vector<unsigned int> ids;
    bundles[0]->GetSupportedSystemIDs(ids);
    bundles[1]->GetSupportedSystemIDs(ids);
    EXPECT_TRUE(ids.empty());

    EXPECT_EQ(bundles[2], api->GetApplicableBundle(QRM_BUNDLE_BTW64));
}

TEST_F(BundleSelection, BundlesWithoutSystemIDsDoNotMatchSystemIDZero)
{
    // No inventory: the system id compared against is 0, which an empty list
    // does not hold.
    ParseCatalog(BundleXML("W.1", "BTW64", "-") + BundleXML("W.2", "BTW64", ""));
    ASSERT_EQ(2u, Bundles().size());
    ASSERT_EQ(0u, api->GetSystemIDFromInventory());
    EXPECT_EQ(nullptr, api->GetApplicableBundle(QRM_BUNDLE_BTW64));
}

TEST_F(BundleSelection, WithoutInventoryABundleForSystemIDZeroIsReturned)
{
    ParseCatalog(BundleXML("W.1", "BTW64", "0A6B") + BundleXML("W.2", "BTW64", "0") + BundleXML("W.3", "BTW64", "00"));
    std::vector<QRMSoftwareBundle*> bundles = Bundles();
    ASSERT_EQ(3u, bundles.size());
    ASSERT_FALSE(api->IsInventoryParsed());
    EXPECT_EQ(0u, api->GetSystemIDFromInventory());

    EXPECT_EQ(bundles[1], api->GetApplicableBundle(QRM_BUNDLE_BTW64));
}

TEST_F(BundleSelection, InventoryWithTwoSystemsComparesAgainstZero)
{
    ParseInventory(SystemXML("0A6B") + SystemXML("0A6C"));
    ParseCatalog(BundleXML("W.1", "BTW64", "0A6B") + BundleXML("W.2", "BTW64", "0A6C") +
                 BundleXML("W.3", "BTW64", "0"));
    std::vector<QRMSoftwareBundle*> bundles = Bundles();
    ASSERT_EQ(3u, bundles.size());
    ASSERT_EQ(0u, api->GetSystemIDFromInventory());

    EXPECT_EQ(bundles[2], api->GetApplicableBundle(QRM_BUNDLE_BTW64));
}

TEST_F(BundleSelection, SystemIDIsComparedAsHexadecimalNumber)
{
    // "0a6b" and "A6B" spell the same number as the inventory's "0A6B".
    ParseInventory(SystemXML("0A6B"));
    ParseCatalog(BundleXML("W.1", "BTW64", "A6") + BundleXML("W.2", "BTW64", "0a6b") + BundleXML("L.1", "BTLX", "A6B"));
    std::vector<QRMSoftwareBundle*> bundles = Bundles();
    ASSERT_EQ(3u, bundles.size());
    EXPECT_EQ(bundles[1], api->GetApplicableBundle(QRM_BUNDLE_BTW64));
    EXPECT_EQ(bundles[2], api->GetApplicableBundle(QRM_BUNDLE_BTLX));
}

TEST_F(BundleSelection, BundleNumbersCompareAsIntegersNotAsText)
{
    ParseCatalog(BundleXML("X.9", "BTW64", "0A6B") + BundleXML("X.10", "BTW64", "0A6B") +
                 BundleXML("X.010", "BTW64", "0A6B"));
    EXPECT_EQ(10u, api->GetGreatestBundleNumber(QRM_BUNDLE_BTW64));
}

TEST_F(BundleSelection, GreatestBundleNumberOnlyCountsBundlesOfThatType)
{
    ParseCatalog(BundleXML("X.9", "BTW64", "0A6B") + BundleXML("X.500", "BTLX", "0A6B") +
                 BundleXML("X.12", "BTW64", "0A6B") + BundleXML("X.3", "BTDEB", "0A6B"));
    EXPECT_EQ(12u, api->GetGreatestBundleNumber(QRM_BUNDLE_BTW64));
    EXPECT_EQ(500u, api->GetGreatestBundleNumber(QRM_BUNDLE_BTLX));
    EXPECT_EQ(3u, api->GetGreatestBundleNumber(QRM_BUNDLE_BTDEB));
}

TEST_F(BundleSelection, BundleNumberIsTheDecimalAfterTheLastDot)
{
    ParseCatalog(BundleXML("ABC123.00042", "BTW64", "0A6B") + BundleXML("1.2.3.17", "BTLX", "0A6B"));
    EXPECT_EQ(42u, api->GetGreatestBundleNumber(QRM_BUNDLE_BTW64));
    EXPECT_EQ(17u, api->GetGreatestBundleNumber(QRM_BUNDLE_BTLX));
}

TEST_F(BundleSelection, BundleIDWithoutDotIsItsOwnNumber)
{
    ParseCatalog(BundleXML("7", "BTW64", "0A6B"));
    EXPECT_EQ(7u, api->GetGreatestBundleNumber(QRM_BUNDLE_BTW64));
}

TEST_F(BundleSelection, NonNumericBundleNumberCountsAsZero)
{
    ParseCatalog(BundleXML("X.beta", "BTW64", "0A6B") + BundleXML("Y.", "BTW64", "0A6B"));
    EXPECT_EQ(0u, api->GetGreatestBundleNumber(QRM_BUNDLE_BTW64));
}

TEST_F(BundleSelection, NonNumericBundleNumberDoesNotHideNumericOnes)
{
    ParseCatalog(BundleXML("X.beta", "BTW64", "0A6B") + BundleXML("Y.3", "BTW64", "0A6B") +
                 BundleXML("Z.rc", "BTW64", "0A6B"));
    EXPECT_EQ(3u, api->GetGreatestBundleNumber(QRM_BUNDLE_BTW64));
}

TEST_F(BundleSelection, BundleTypeWithoutBundlesGivesZeroAndNull)
{
    ParseInventory(SystemXML("0A6B"));
    ParseCatalog(BundleXML("X.9", "BTW64", "0A6B"));
    EXPECT_EQ(0u, api->GetGreatestBundleNumber(QRM_BUNDLE_BTLX));
    EXPECT_EQ(nullptr, api->GetApplicableBundle(QRM_BUNDLE_BTLX));
    // The type that has a bundle still answers.
    EXPECT_EQ(9u, api->GetGreatestBundleNumber(QRM_BUNDLE_BTW64));
}

TEST_F(BundleSelection, UnknownBundleTypeValueGivesNullAndZero)
{
    ParseInventory(SystemXML("0A6B"));
    ParseCatalog(BundleXML("X.9", "BTW64", "0A6B") + BundleXML("X.8", "BTLX", "0A6B") +
                 BundleXML("X.7", "BTOSIND", "0A6B"));
    const QRMBundleTypeEnum unknown = static_cast<QRMBundleTypeEnum>(42);
    EXPECT_EQ(nullptr, api->GetApplicableBundle(unknown));
    EXPECT_EQ(0u, api->GetGreatestBundleNumber(unknown));
}

TEST_F(BundleSelection, EmptyCatalogStoreGivesNullAndZero)
{
    ParseInventory(SystemXML("0A6B"));
    ASSERT_FALSE(api->IsCatalogParsed());
    EXPECT_EQ(nullptr, api->GetApplicableBundle(QRM_BUNDLE_BTW64));
    EXPECT_EQ(0u, api->GetGreatestBundleNumber(QRM_BUNDLE_BTW64));
}

TEST_F(BundleSelection, SelectionReadsBundlesOfACatalogWhoseParseWasAborted)
{
    ParseInventory(SystemXML("0A6B"));
    // The second bundle lacks "Contents": the parse stops there, keeping the
    // first bundle, and the catalog does not count as parsed.
    const std::string entries = BundleXML("W.5", "BTW64", "0A6B") + CatalogXML::Bundle("W.6", "Contents");
    ASSERT_EQ(QRM_KIT_ELEMENT_MISSING, api->Parse(VELFile(dir.Write("catalog.xml", CatalogXMLOf(entries)))));
    ASSERT_FALSE(api->IsCatalogParsed());
    std::vector<QRMSoftwareBundle*> bundles = Bundles();
    ASSERT_EQ(1u, bundles.size());

    EXPECT_EQ(bundles[0], api->GetApplicableBundle(QRM_BUNDLE_BTW64));
    EXPECT_EQ(5u, api->GetGreatestBundleNumber(QRM_BUNDLE_BTW64));
}

TEST_F(BundleSelection, ChosenBundleIsOwnedByTheStoreAndStableAcrossCalls)
{
    ParseInventory(SystemXML("0A6B"));
    ParseCatalog(BundleXML("W.1", "BTW64", "0A6B"));
    QRMSoftwareBundle* first = api->GetApplicableBundle(QRM_BUNDLE_BTW64);
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(first, api->GetApplicableBundle(QRM_BUNDLE_BTW64));
    EXPECT_EQ(Bundles()[0], first);
}
