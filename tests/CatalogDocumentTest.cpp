// Reading a catalog file as a whole: the root's manifest attributes, the walk
// over the root's entries, and what the store holds after each kind of
// failure.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace {

const char* const kManifest =
    "baseLocation=\"downloads.example.net/catalog\" dateTime=\"1763683200\" releaseID=\"QX9K2\" "
    "version=\"24.11.00\"";

QRMKitAPI* API() { return QRMKitAPI::Instance(); }

QRMKitReturnCode ParseText(const TempDir& dir, const std::string& xml, const std::string& name = "catalog.xml")
{
    return API()->Parse(VELFile(dir.Write(name, xml)));
}

std::vector<QRMInventoryComponent> InventoryComponents()
{
    std::vector<QRMInventoryComponent> components;
    API()->GetInventoryComponents(components);
    return components;
}

std::vector<std::string> InventoryOSCodes()
{
    std::vector<std::string> codes;
    for (const QRMInventoryComponent& component : InventoryComponents()) {
        codes.push_back(component.GetOSCode().GetUTF8String());
    }
    return codes;
}

void ExpectStoreEmptyAndNotParsed()
{
    EXPECT_FALSE(API()->IsCatalogParsed());
    EXPECT_EQ(0u, ComponentCount());
    EXPECT_EQ(0u, BundleCount());
    EXPECT_TRUE(InventoryComponents().empty());
    EXPECT_TRUE(API()->GetBaseLocation().IsEmpty());
    EXPECT_TRUE(API()->GetCatalogReleaseID().IsEmpty());
    EXPECT_TRUE(API()->GetCatalogVersion().IsEmpty());
}

// A catalog that parses completely, to be replaced by the text under test.
void ParseAFullCatalogFirst(const TempDir& dir)
{
    std::string xml = CatalogXML::Document(kManifest, CatalogXML::Bundle("B1") + CatalogXML::Component("C1") +
                                                          CatalogXML::InventoryComponent("WIN", "inv/win.exe"));
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, xml, "earlier.xml"));
    ASSERT_TRUE(API()->IsCatalogParsed());
    ASSERT_EQ(1u, BundleCount());
    ASSERT_EQ(1u, ComponentCount());
    ASSERT_EQ(1u, InventoryComponents().size());
}

}  // namespace

TEST(CatalogDocument, RootWithoutChildrenParsesEmptyWithItsManifest)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document(kManifest, "")));
    EXPECT_TRUE(API()->IsCatalogParsed());
    EXPECT_EQ(0u, ComponentCount());
    EXPECT_EQ(0u, BundleCount());
    EXPECT_TRUE(InventoryComponents().empty());
    EXPECT_EQ(VELString("downloads.example.net/catalog"), API()->GetBaseLocation());
    EXPECT_EQ(VELString("QX9K2"), API()->GetCatalogReleaseID());
    EXPECT_EQ(VELString("24.11.00"), API()->GetCatalogVersion());
    EXPECT_EQ(1763683200ull, API()->GetCatalogDateTime().GetValue());
}

TEST(CatalogDocument, SelfClosingRootParses)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, "<Manifest baseLocation=\"here\"/>"));
    EXPECT_TRUE(API()->IsCatalogParsed());
    EXPECT_EQ(VELString("here"), API()->GetBaseLocation());
}

TEST(CatalogDocument, AnyRootNameIsAccepted)
{
    TempDir dir;
    std::string entries =
        CatalogXML::Bundle("B1") + CatalogXML::Component("C1") + CatalogXML::InventoryComponent("WIN", "w.exe");
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document(kManifest, entries, "whatever-Root")));
    EXPECT_TRUE(API()->IsCatalogParsed());
    EXPECT_EQ(1u, BundleCount());
    EXPECT_EQ(1u, ComponentCount());
    EXPECT_EQ(1u, InventoryComponents().size());
    EXPECT_EQ(VELString("downloads.example.net/catalog"), API()->GetBaseLocation());
}

TEST(CatalogDocument, EntriesNestedDeeperAreNotRead)
{
    TempDir dir;
    std::string entries = "<Group>" + CatalogXML::Component("Nested") + CatalogXML::Bundle("Nested") +
                          CatalogXML::InventoryComponent("NESTED", "n.exe") + "</Group>" + CatalogXML::Component("Top");
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document(kManifest, entries)));
    EXPECT_TRUE(API()->IsCatalogParsed());
    EXPECT_EQ(1u, ComponentCount());
    EXPECT_EQ(0u, BundleCount());
    EXPECT_TRUE(InventoryComponents().empty());
}

TEST(CatalogDocument, NestedIncompleteEntryDoesNotAbort)
{
    TempDir dir;
    // Only direct children of the root are looked at, so an incomplete entry
    // further down cannot stop the parse.
    std::string entries = "<Group>" + CatalogXML::Component("Nested", "Name") + "</Group>" + CatalogXML::Bundle("B1");
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document(kManifest, entries)));
    EXPECT_TRUE(API()->IsCatalogParsed());
    EXPECT_EQ(1u, BundleCount());
    EXPECT_EQ(0u, ComponentCount());
}

TEST(CatalogDocument, EntryNamesAreCaseSensitive)
{
    TempDir dir;
    std::string entries =
        "<softwarecomponent/><SOFTWAREBUNDLE/><inventoryComponent osCode=\"X\" path=\"x\"/>" + CatalogXML::Bundle("B1");
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document(kManifest, entries)));
    EXPECT_TRUE(API()->IsCatalogParsed());
    EXPECT_EQ(1u, BundleCount());
    EXPECT_EQ(0u, ComponentCount());
    EXPECT_TRUE(InventoryComponents().empty());
}

TEST(CatalogDocument, UnknownEntriesAreSkipped)
{
    TempDir dir;
    std::string entries = "<Extra a=\"1\"><SoftwareBundle/></Extra>" + CatalogXML::Bundle("B1") +
                          "<Notes>text</Notes>" + CatalogXML::Component("C1");
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document(kManifest, entries)));
    EXPECT_EQ(1u, BundleCount());
    EXPECT_EQ(1u, ComponentCount());
}

TEST(CatalogDocument, MixedEntriesKeepDocumentOrderOfEachKind)
{
    TempDir dir;
    std::string entries = CatalogXML::InventoryComponent("I1", "1") + CatalogXML::Component("C1") +
                          CatalogXML::Bundle("B1") + CatalogXML::InventoryComponent("I2", "2") +
                          CatalogXML::Bundle("B2") + CatalogXML::Component("C2") + CatalogXML::Component("C3") +
                          CatalogXML::InventoryComponent("I3", "3") + CatalogXML::Bundle("B3");
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document(kManifest, entries)));
    EXPECT_EQ(3u, BundleCount());
    EXPECT_EQ(3u, ComponentCount());
    EXPECT_EQ((std::vector<std::string>{"I1", "I2", "I3"}), InventoryOSCodes());
}

TEST(CatalogDocument, NewParseReplacesThePreviousCatalog)
{
    TempDir dir;
    ParseAFullCatalogFirst(dir);
    std::string entries = CatalogXML::InventoryComponent("LIN", "l.bin");
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document("baseLocation=\"second\"", entries), "second.xml"));
    EXPECT_EQ(0u, BundleCount());
    EXPECT_EQ(0u, ComponentCount());
    EXPECT_EQ((std::vector<std::string>{"LIN"}), InventoryOSCodes());
    EXPECT_EQ(VELString("second"), API()->GetBaseLocation());
    EXPECT_TRUE(API()->GetCatalogReleaseID().IsEmpty());
    EXPECT_TRUE(API()->GetCatalogVersion().IsEmpty());
}

TEST(CatalogDocumentManifest, MissingAttributesGiveEmptyTextsAndZeroTime)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document("", CatalogXML::Bundle("B1"))));
    EXPECT_TRUE(API()->IsCatalogParsed());
    EXPECT_TRUE(API()->GetBaseLocation().IsEmpty());
    EXPECT_TRUE(API()->GetCatalogReleaseID().IsEmpty());
    EXPECT_TRUE(API()->GetCatalogVersion().IsEmpty());
    EXPECT_EQ(0ull, API()->GetCatalogDateTime().GetValue());
    EXPECT_EQ(1u, BundleCount());
}

TEST(CatalogDocumentManifest, EachAttributeIsReadOnItsOwn)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document("version=\"1.0\" releaseID=\"R1\"", "")));
    EXPECT_TRUE(API()->GetBaseLocation().IsEmpty());
    EXPECT_EQ(VELString("R1"), API()->GetCatalogReleaseID());
    EXPECT_EQ(VELString("1.0"), API()->GetCatalogVersion());
    EXPECT_EQ(0ull, API()->GetCatalogDateTime().GetValue());
}

TEST(CatalogDocumentManifest, AttributeNamesAreCaseSensitive)
{
    TempDir dir;
    EXPECT_EQ(
        QRM_KIT_SUCCESS,
        ParseText(dir, CatalogXML::Document("BaseLocation=\"x\" datetime=\"5\" releaseid=\"r\" Version=\"v\"", "")));
    EXPECT_TRUE(API()->GetBaseLocation().IsEmpty());
    EXPECT_TRUE(API()->GetCatalogReleaseID().IsEmpty());
    EXPECT_TRUE(API()->GetCatalogVersion().IsEmpty());
    EXPECT_EQ(0ull, API()->GetCatalogDateTime().GetValue());
}

TEST(CatalogDocumentManifest, TextAttributesAreKeptAsTheyStand)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_SUCCESS,
              ParseText(dir, CatalogXML::Document(
                                 "baseLocation=\" dir/with space/ \" releaseID=\"caf\xC3\xA9\" version=\"\"", "")));
    EXPECT_EQ(VELString(" dir/with space/ "), API()->GetBaseLocation());
    EXPECT_EQ(VELString(u"caf\u00E9"), API()->GetCatalogReleaseID());
    EXPECT_TRUE(API()->GetCatalogVersion().IsEmpty());
}

TEST(CatalogDocumentManifest, DecimalDateTimeIsStoredExactly)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document("dateTime=\"1763683200\"", "")));
    EXPECT_EQ(1763683200ull, API()->GetCatalogDateTime().GetValue());
}

TEST(CatalogDocumentManifest, LargestThirtyTwoBitDateTimeIsStoredExactly)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document("dateTime=\"4294967295\"", "")));
    EXPECT_EQ(4294967295ull, API()->GetCatalogDateTime().GetValue());
}

TEST(CatalogDocumentManifest, DateTimeBeyondThirtyTwoBitsGivesTheMaximum)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document("dateTime=\"4294967296\"", "")));
    EXPECT_EQ(4294967295ull, API()->GetCatalogDateTime().GetValue());
    EXPECT_TRUE(API()->IsCatalogParsed());
}

TEST(CatalogDocumentManifest, DateTimeIsReadInDecimal)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document("dateTime=\"0x1F\"", "")));
    EXPECT_EQ(0ull, API()->GetCatalogDateTime().GetValue());
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document("dateTime=\"0010\"", ""), "b.xml"));
    EXPECT_EQ(10ull, API()->GetCatalogDateTime().GetValue());
}

TEST(CatalogDocumentManifest, NonNumericDateTimeGivesZeroAndTheWalkGoesOn)
{
    TempDir dir;
    std::string xml = CatalogXML::Document("baseLocation=\"loc\" dateTime=\"tomorrow\"",
                                           CatalogXML::Bundle("B1") + CatalogXML::Component("C1"));
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, xml));
    EXPECT_EQ(0ull, API()->GetCatalogDateTime().GetValue());
    EXPECT_TRUE(API()->IsCatalogParsed());
    EXPECT_EQ(1u, BundleCount());
    EXPECT_EQ(1u, ComponentCount());
    EXPECT_EQ(VELString("loc"), API()->GetBaseLocation());
}

TEST(CatalogDocumentManifest, DateTimeWithTrailingTextKeepsItsLeadingNumber)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document("dateTime=\"1700000000Z\"", "")));
    EXPECT_EQ(1700000000ull, API()->GetCatalogDateTime().GetValue());
}

TEST(CatalogDocumentFailures, MissingFileIsNotFoundAndEmptiesTheStore)
{
    TempDir dir;
    ParseAFullCatalogFirst(dir);
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Parse(VELFile(dir.PathOf("missing.xml"))));
    ExpectStoreEmptyAndNotParsed();
}

TEST(CatalogDocumentFailures, MissingFileOnAFreshStoreIsNotFound)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Parse(VELFile(dir.PathOf("missing.xml"))));
    ExpectStoreEmptyAndNotParsed();
}

TEST(CatalogDocumentFailures, DirectoryIsNotFound)
{
    TempDir dir;
    ParseAFullCatalogFirst(dir);
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Parse(VELFile(dir.Path())));
    ExpectStoreEmptyAndNotParsed();
}

TEST(CatalogDocumentFailures, MalformedXMLFailsAndEmptiesTheStore)
{
    TempDir dir;
    ParseAFullCatalogFirst(dir);
    std::string xml = "<?xml version=\"1.0\"?><Manifest " + std::string(kManifest) + ">" + CatalogXML::Bundle("B9") +
                      "<SoftwareComponent></Manifest>";
    EXPECT_EQ(QRM_KIT_FAILURE, ParseText(dir, xml));
    ExpectStoreEmptyAndNotParsed();
}

TEST(CatalogDocumentFailures, TextThatIsNotXMLFails)
{
    TempDir dir;
    ParseAFullCatalogFirst(dir);
    EXPECT_EQ(QRM_KIT_FAILURE, ParseText(dir, "PK\x03\x04 this is not a catalog at all\n"));
    ExpectStoreEmptyAndNotParsed();
}

TEST(CatalogDocumentFailures, EmptyFileFails)
{
    TempDir dir;
    ParseAFullCatalogFirst(dir);
    EXPECT_EQ(QRM_KIT_FAILURE, ParseText(dir, ""));
    ExpectStoreEmptyAndNotParsed();
}

TEST(CatalogDocumentFailures, DocumentWithoutRootElementFails)
{
    TempDir dir;
    ParseAFullCatalogFirst(dir);
    EXPECT_EQ(QRM_KIT_FAILURE, ParseText(dir, "<?xml version=\"1.0\"?>\n<!-- a catalog without its root -->\n"));
    ExpectStoreEmptyAndNotParsed();
}

TEST(CatalogDocumentFailures, InventoryComponentOfAnyShapeDoesNotStopTheWalk)
{
    TempDir dir;
    std::string entries = CatalogXML::Bundle("B1") +
                          "<InventoryComponent/>"
                          "<InventoryComponent dateTime=\"never\" releaseDate=\"-\" "
                          "osCode=\"ODD\"><Name/><Child>x</Child></InventoryComponent>" +
                          CatalogXML::InventoryComponent("WIN", "w.exe") + CatalogXML::Bundle("B2") +
                          CatalogXML::Component("C1");
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document(kManifest, entries)));
    EXPECT_TRUE(API()->IsCatalogParsed());
    EXPECT_EQ(2u, BundleCount());
    EXPECT_EQ(1u, ComponentCount());
    EXPECT_EQ((std::vector<std::string>{"", "ODD", "WIN"}), InventoryOSCodes());
}

TEST(CatalogDocumentFailures, BundleWhoseNameLacksDisplayIsSkippedAndTheWalkGoesOn)
{
    TempDir dir;
    std::string broken = "<SoftwareBundle bundleID=\"BAD\" bundleType=\"BTW64\">"
                         "<Name><Text>no display</Text></Name>"
                         "<ComponentType value=\"SBDL\"/><Contents/></SoftwareBundle>";
    std::string entries = CatalogXML::Bundle("B1") + broken + CatalogXML::Bundle("B2") + CatalogXML::Component("C1");
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document(kManifest, entries)));
    EXPECT_TRUE(API()->IsCatalogParsed());
    EXPECT_EQ(2u, BundleCount());
    EXPECT_EQ(1u, ComponentCount());
}

TEST(CatalogDocumentFailures, ComponentWhoseNameLacksDisplayIsSkippedAndTheWalkGoesOn)
{
    TempDir dir;
    std::string broken = "<SoftwareComponent packageID=\"BAD\"><Name/>"
                         "<ComponentType value=\"BIOS\"/><Category value=\"BI\"/><SupportedDevices/>"
                         "</SoftwareComponent>";
    std::string entries = CatalogXML::Component("C1") + broken + CatalogXML::Component("C2") + CatalogXML::Bundle("B1");
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document(kManifest, entries)));
    EXPECT_TRUE(API()->IsCatalogParsed());
    EXPECT_EQ(2u, ComponentCount());
    EXPECT_EQ(1u, BundleCount());
}

namespace {

// One required child of an entry that is missing or written twice.
struct IncompleteEntry {
    const char* label;
    bool bundle;
    const char* leaveOut;
    const char* twice;
};

// Shown in test listings instead of the bytes of the structure.
void PrintTo(const IncompleteEntry& entry, std::ostream* out) { *out << entry.label; }

std::string IncompleteEntryName(const ::testing::TestParamInfo<IncompleteEntry>& info) { return info.param.label; }

class CatalogDocumentIncompleteEntry : public ::testing::TestWithParam<IncompleteEntry> {
protected:
    std::string Incomplete() const
    {
        const IncompleteEntry& entry = GetParam();
        return entry.bundle ? CatalogXML::Bundle("B3", entry.leaveOut, entry.twice)
                            : CatalogXML::Component("C3", entry.leaveOut, entry.twice);
    }
};

}  // namespace

TEST_P(CatalogDocumentIncompleteEntry, StopsWithElementMissingAndKeepsEarlierEntries)
{
    TempDir dir;
    // A component and two bundles before the incomplete entry, with an
    // inventory component between; more of every kind after it.
    std::string entries = CatalogXML::Component("C1") + CatalogXML::Bundle("B1") +
                          CatalogXML::InventoryComponent("WIN", "w.exe") + CatalogXML::Bundle("B2") + Incomplete() +
                          CatalogXML::Bundle("B4") + CatalogXML::Component("C4") +
                          CatalogXML::InventoryComponent("LIN", "l.bin");
    EXPECT_EQ(QRM_KIT_ELEMENT_MISSING, ParseText(dir, CatalogXML::Document(kManifest, entries)));
    EXPECT_EQ(5, static_cast<int>(ParseText(dir, CatalogXML::Document(kManifest, entries), "again.xml")));
    EXPECT_FALSE(API()->IsCatalogParsed());
    EXPECT_EQ(2u, BundleCount());
    EXPECT_EQ(1u, ComponentCount());
    EXPECT_EQ((std::vector<std::string>{"WIN"}), InventoryOSCodes());
    // Not parsed, so no base location is reported.
    EXPECT_TRUE(API()->GetBaseLocation().IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    RequiredChildren, CatalogDocumentIncompleteEntry,
    ::testing::Values(IncompleteEntry{"BundleWithoutContents", true, "Contents", ""},
                      IncompleteEntry{"BundleWithoutName", true, "Name", ""},
                      IncompleteEntry{"BundleWithoutComponentType", true, "ComponentType", ""},
                      IncompleteEntry{"BundleWithTwoNames", true, "", "Name"},
                      IncompleteEntry{"BundleWithTwoContents", true, "", "Contents"},
                      IncompleteEntry{"ComponentWithoutName", false, "Name", ""},
                      IncompleteEntry{"ComponentWithoutComponentType", false, "ComponentType", ""},
                      IncompleteEntry{"ComponentWithoutCategory", false, "Category", ""},
                      IncompleteEntry{"ComponentWithoutSupportedDevices", false, "SupportedDevices", ""},
                      IncompleteEntry{"ComponentWithTwoNames", false, "", "Name"},
                      IncompleteEntry{"ComponentWithTwoCategories", false, "", "Category"},
                      IncompleteEntry{"ComponentWithTwoSupportedDevices", false, "", "SupportedDevices"}),
    IncompleteEntryName);

TEST(CatalogDocumentIncomplete, FirstEntryIncompleteLeavesOnlyTheManifestUnreported)
{
    TempDir dir;
    std::string entries = CatalogXML::Bundle("B1", "Contents") + CatalogXML::Bundle("B2");
    EXPECT_EQ(QRM_KIT_ELEMENT_MISSING, ParseText(dir, CatalogXML::Document(kManifest, entries)));
    EXPECT_FALSE(API()->IsCatalogParsed());
    EXPECT_EQ(0u, BundleCount());
    EXPECT_TRUE(API()->GetBaseLocation().IsEmpty());
}

TEST(CatalogDocumentIncomplete, NextParseEmptiesThePartialStore)
{
    TempDir dir;
    std::string entries = CatalogXML::Bundle("B1") + CatalogXML::Bundle("B2") + CatalogXML::Bundle("B3", "Name");
    ASSERT_EQ(QRM_KIT_ELEMENT_MISSING, ParseText(dir, CatalogXML::Document(kManifest, entries)));
    ASSERT_EQ(2u, BundleCount());
    EXPECT_EQ(QRM_KIT_SUCCESS,
              ParseText(dir, CatalogXML::Document(kManifest, CatalogXML::Component("C1")), "next.xml"));
    EXPECT_TRUE(API()->IsCatalogParsed());
    EXPECT_EQ(0u, BundleCount());
    EXPECT_EQ(1u, ComponentCount());
}

TEST(CatalogDocumentIncomplete, ResetEmptiesThePartialStore)
{
    TempDir dir;
    std::string entries = CatalogXML::Component("C1") + CatalogXML::Component("C2", "Category");
    ASSERT_EQ(QRM_KIT_ELEMENT_MISSING, ParseText(dir, CatalogXML::Document(kManifest, entries)));
    ASSERT_EQ(1u, ComponentCount());
    EXPECT_EQ(QRM_KIT_SUCCESS, API()->Reset());
    EXPECT_EQ(0u, ComponentCount());
    EXPECT_FALSE(API()->IsCatalogParsed());
}

TEST(CatalogDocumentIncomplete, EmptyContentsAndEmptySupportedDevicesAreAccepted)
{
    TempDir dir;
    std::string entries =
        "<SoftwareBundle bundleID=\"B1\"><Name><Display lang=\"en\">B</Display></Name>"
        "<ComponentType value=\"SBDL\"/><Contents/></SoftwareBundle>"
        "<SoftwareComponent packageID=\"C1\"><Name><Display lang=\"en\">C</Display></Name>"
        "<ComponentType value=\"BIOS\"/><Category value=\"BI\"><Display lang=\"en\">BIOS</Display></Category>"
        "<SupportedDevices/></SoftwareComponent>";
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseText(dir, CatalogXML::Document(kManifest, entries)));
    EXPECT_EQ(1u, BundleCount());
    EXPECT_EQ(1u, ComponentCount());
}

namespace {

std::string EncodedCatalog()
{
    return CatalogXML::Document("baseLocation=\"downloads.example.net/k\xC3\xA4t\" dateTime=\"1763683200\" "
                                "releaseID=\"R\xC3\xA9"
                                "1\" version=\"24.11\"",
                                CatalogXML::Bundle("B1") +
                                    CatalogXML::InventoryComponent("WIN", "inv/\xE2\x82\xAC.exe") +
                                    CatalogXML::Component("C1") + CatalogXML::Bundle("B2") +
                                    CatalogXML::InventoryComponent("LIN", "inv/lin.bin"));
}

struct StoreSnapshot {
    VELString baseLocation;
    VELString releaseID;
    VELString version;
    unsigned long long dateTime = 0;
    std::size_t bundles = 0;
    std::size_t components = 0;
    std::vector<QRMInventoryComponent> inventory;
};

StoreSnapshot Snapshot()
{
    StoreSnapshot snapshot;
    snapshot.baseLocation = API()->GetBaseLocation();
    snapshot.releaseID = API()->GetCatalogReleaseID();
    snapshot.version = API()->GetCatalogVersion();
    snapshot.dateTime = API()->GetCatalogDateTime().GetValue();
    snapshot.bundles = BundleCount();
    snapshot.components = ComponentCount();
    snapshot.inventory = InventoryComponents();
    return snapshot;
}

void ExpectSameStore(const StoreSnapshot& expected, const StoreSnapshot& actual)
{
    EXPECT_EQ(expected.baseLocation, actual.baseLocation);
    EXPECT_EQ(expected.releaseID, actual.releaseID);
    EXPECT_EQ(expected.version, actual.version);
    EXPECT_EQ(expected.dateTime, actual.dateTime);
    EXPECT_EQ(expected.bundles, actual.bundles);
    EXPECT_EQ(expected.components, actual.components);
    ASSERT_EQ(expected.inventory.size(), actual.inventory.size());
    for (std::size_t i = 0; i < expected.inventory.size(); ++i) {
        EXPECT_TRUE(expected.inventory[i] == actual.inventory[i]) << "inventory component " << i;
    }
}

}  // namespace

TEST(CatalogDocumentEncoding, UTF8CatalogWithNonASCIIValues)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, EncodedCatalog()));
    StoreSnapshot store = Snapshot();
    EXPECT_EQ(VELString(u"downloads.example.net/k\u00E4t"), store.baseLocation);
    EXPECT_EQ(VELString(u"R\u00E91"), store.releaseID);
    EXPECT_EQ(VELString("24.11"), store.version);
    EXPECT_EQ(1763683200ull, store.dateTime);
    EXPECT_EQ(2u, store.bundles);
    EXPECT_EQ(1u, store.components);
    ASSERT_EQ(2u, store.inventory.size());
    EXPECT_EQ(VELString("WIN"), store.inventory[0].GetOSCode());
    EXPECT_EQ(VELString(u"inv/\u20AC.exe"), store.inventory[0].GetPath());
    EXPECT_EQ(VELString("LIN"), store.inventory[1].GetOSCode());
}

TEST(CatalogDocumentEncoding, UTF16LittleEndianCatalogParsesLikeItsUTF8Twin)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, EncodedCatalog(), "utf8.xml"));
    StoreSnapshot utf8 = Snapshot();

    std::string twin = EncodedCatalog();
    twin.replace(twin.find("utf-8"), 5, "UTF-16");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, ToUTF16LE(twin), "utf16le.xml"));
    EXPECT_TRUE(API()->IsCatalogParsed());
    ExpectSameStore(utf8, Snapshot());
}

TEST(CatalogDocumentEncoding, UTF16BigEndianCatalogParsesLikeItsUTF8Twin)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, EncodedCatalog(), "utf8.xml"));
    StoreSnapshot utf8 = Snapshot();

    std::string twin = EncodedCatalog();
    twin.replace(twin.find("utf-8"), 5, "UTF-16");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseText(dir, ToUTF16BE(twin), "utf16be.xml"));
    EXPECT_TRUE(API()->IsCatalogParsed());
    ExpectSameStore(utf8, Snapshot());
}
