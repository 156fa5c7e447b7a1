// Reading "InventoryComponent" entries of a catalog, and finding the
// inventory collector for an operating system with GetInventoryComponent and
// GetInventoryFile.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

QRMKitAPI* API() { return QRMKitAPI::Instance(); }

std::string S(const VELString& text) { return text.GetUTF8String(); }

QRMKitReturnCode ParseCatalog(const TempDir& dir, const std::string& rootAttributes, const std::string& entries)
{
    std::string xml = CatalogXML::Document(rootAttributes, entries);
    return API()->Parse(VELFile(dir.Write("catalog.xml", xml)));
}

QRMKitReturnCode ParseEntries(const TempDir& dir, const std::string& entries)
{
    return ParseCatalog(dir, "baseLocation=\"downloads/catalog\"", entries);
}

std::vector<QRMInventoryComponent> Stored()
{
    std::vector<QRMInventoryComponent> components;
    API()->GetInventoryComponents(components);
    return components;
}

// The lookup's result, owned here.
std::unique_ptr<const QRMInventoryComponent> Lookup(const char* osCode,
                                                    QRMOSArchitectureEnum architecture = QRM_OS_ARCH_X64)
{
    return std::unique_ptr<const QRMInventoryComponent>(API()->GetInventoryComponent(architecture, VELString(osCode)));
}

std::string File(const char* osCode, QRMOSArchitectureEnum architecture = QRM_OS_ARCH_X64)
{
    return S(API()->GetInventoryFile(architecture, VELString(osCode)));
}

const char* const kFullEntry =
    "<InventoryComponent schemaVersion=\"1.2\" releaseID=\"INV7\" dateTime=\"1700000000\" "
    "vendorVersion=\"22.1.0\" releaseDate=\"1690000000\" hashMD5=\"00112233445566778899AABBCCDDEEFF\" "
    "tolvarVersion=\"5.4\" osCode=\"WIN64\" path=\"FOLDER5/collector.exe\"/>";

}  // namespace

// --- Reading ------------------------------------------------------------------------

TEST(InventoryComponentReader, AllNineAttributesAreRead)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, kFullEntry));
    std::vector<QRMInventoryComponent> stored = Stored();
    ASSERT_EQ(1u, stored.size());
    const QRMInventoryComponent& entry = stored[0];
    EXPECT_EQ("1.2", S(entry.GetSchemaVersion()));
    EXPECT_EQ("INV7", S(entry.GetReleaseID()));
    EXPECT_EQ(1700000000ull, entry.GetDateTime().GetValue());
    EXPECT_EQ("22.1.0", S(entry.GetVendorVersion()));
    EXPECT_EQ(1690000000ull, entry.GetReleaseDate().GetValue());
    EXPECT_EQ("00112233445566778899AABBCCDDEEFF", S(entry.GetMD5Hash()));
    EXPECT_EQ("5.4", S(entry.GetTolvarVersion()));
    EXPECT_EQ("WIN64", S(entry.GetOSCode()));
    EXPECT_EQ("FOLDER5/collector.exe", S(entry.GetPath()));
    EXPECT_EQ(0u, entry.GetSize());
}

TEST(InventoryComponentReader, DatesAreReadAsDecimal)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, "<InventoryComponent dateTime=\"0100\" releaseDate=\"0042\"/>"));
    std::vector<QRMInventoryComponent> stored = Stored();
    ASSERT_EQ(1u, stored.size());
    EXPECT_EQ(100u, stored[0].GetDateTime().GetValue());
    EXPECT_EQ(42u, stored[0].GetReleaseDate().GetValue());
}

TEST(InventoryComponentReader, MissingAttributesAreEmptyOrZero)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, "<InventoryComponent/>"));
    std::vector<QRMInventoryComponent> stored = Stored();
    ASSERT_EQ(1u, stored.size());
    const QRMInventoryComponent& entry = stored[0];
    EXPECT_EQ("", S(entry.GetSchemaVersion()));
    EXPECT_EQ("", S(entry.GetReleaseID()));
    EXPECT_EQ(0u, entry.GetDateTime().GetValue());
    EXPECT_EQ("", S(entry.GetVendorVersion()));
    EXPECT_EQ(0u, entry.GetReleaseDate().GetValue());
    EXPECT_EQ("", S(entry.GetMD5Hash()));
    EXPECT_EQ("", S(entry.GetTolvarVersion()));
    EXPECT_EQ("", S(entry.GetOSCode()));
    EXPECT_EQ("", S(entry.GetPath()));
    EXPECT_EQ(0u, entry.GetSize());
    EXPECT_TRUE(entry == QRMInventoryComponent());
}

TEST(InventoryComponentReader, ChildElementsAreIgnored)
{
    TempDir dir;
    std::string entries = "<InventoryComponent osCode=\"WIN\" path=\"w.exe\"><Display lang=\"en\">Collector</Display>"
                          "<InventoryComponent osCode=\"NESTED\" path=\"n.exe\"/><Name/></InventoryComponent>" +
                          CatalogXML::InventoryComponent("LX", "l.bin");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, entries));
    std::vector<QRMInventoryComponent> stored = Stored();
    ASSERT_EQ(2u, stored.size());
    QRMInventoryComponent expected;
    expected.SetOSCode(VELString("WIN"));
    expected.SetPath(VELString("w.exe"));
    EXPECT_TRUE(stored[0] == expected);
    EXPECT_EQ("LX", S(stored[1].GetOSCode()));
    EXPECT_EQ(nullptr, Lookup("NESTED"));
}

TEST(InventoryComponentReader, EntriesKeepCatalogOrderAmongOtherEntries)
{
    TempDir dir;
    std::string entries = CatalogXML::InventoryComponent("A", "a.exe") + CatalogXML::Bundle("B1") +
                          CatalogXML::InventoryComponent("B", "b.exe") + CatalogXML::Component("C1") +
                          CatalogXML::InventoryComponent("C", "c.exe");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, entries));
    std::vector<QRMInventoryComponent> stored = Stored();
    ASSERT_EQ(3u, stored.size());
    EXPECT_EQ("A", S(stored[0].GetOSCode()));
    EXPECT_EQ("B", S(stored[1].GetOSCode()));
    EXPECT_EQ("C", S(stored[2].GetOSCode()));
}

TEST(InventoryComponentReader, TwoEntriesWithTheSameOSCodeAreBothStoredAndTheFirstIsFound)
{
    TempDir dir;
    std::string entries =
        CatalogXML::InventoryComponent("WIN", "first.exe") + CatalogXML::InventoryComponent("WIN", "second.exe");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, entries));
    std::vector<QRMInventoryComponent> stored = Stored();
    ASSERT_EQ(2u, stored.size());
    EXPECT_EQ("first.exe", S(stored[0].GetPath()));
    EXPECT_EQ("second.exe", S(stored[1].GetPath()));

    std::unique_ptr<const QRMInventoryComponent> found = Lookup("WIN");
    ASSERT_NE(nullptr, found);
    EXPECT_EQ("first.exe", S(found->GetPath()));
    EXPECT_EQ("downloads/catalog/first.exe", File("WIN"));
}

// --- Lookup ---------------------------------------------------------------------------

TEST(InventoryComponentLookup, FoundEntryIsACopyOfTheStoredOne)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, kFullEntry));
    std::unique_ptr<const QRMInventoryComponent> found = Lookup("WIN64");
    ASSERT_NE(nullptr, found);
    std::vector<QRMInventoryComponent> stored = Stored();
    ASSERT_EQ(1u, stored.size());
    EXPECT_TRUE(*found == stored[0]);
    EXPECT_EQ("INV7", S(found->GetReleaseID()));
}

TEST(InventoryComponentLookup, CodeIsComparedExactlyAndWhole)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, CatalogXML::InventoryComponent("WIN64", "w.exe")));
    StdoutCapture capture;
    EXPECT_EQ(nullptr, Lookup("win64"));
    EXPECT_EQ(nullptr, Lookup("WIN"));
    EXPECT_EQ(nullptr, Lookup("WIN64 "));
    EXPECT_EQ(nullptr, Lookup(""));
    EXPECT_NE(nullptr, Lookup("WIN64"));
    EXPECT_EQ("", capture.Text());
}

TEST(InventoryComponentLookup, UnknownCodeGivesEmptyFileAndPrintsNothing)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, CatalogXML::InventoryComponent("WIN", "w.exe")));
    StdoutCapture capture;
    EXPECT_EQ("", File("LINUX"));
    EXPECT_EQ(nullptr, Lookup("LINUX"));
    EXPECT_EQ("", capture.Text());
}

TEST(InventoryComponentLookup, EmptyCatalogFindsNothingAndPrintsNothing)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, ""));
    StdoutCapture capture;
    EXPECT_EQ(nullptr, Lookup("WIN"));
    EXPECT_EQ(nullptr, Lookup(""));
    EXPECT_EQ("", File("WIN"));
    EXPECT_EQ("", capture.Text());
}

TEST(InventoryComponentLookup, EntryWithoutOSCodeIsFoundOnlyByAnEmptyCode)
{
    TempDir dir;
    std::string entries = "<InventoryComponent path=\"nocode.exe\"/>" + CatalogXML::InventoryComponent("WIN", "w.exe");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, entries));
    std::unique_ptr<const QRMInventoryComponent> found = Lookup("");
    ASSERT_NE(nullptr, found);
    EXPECT_EQ("nocode.exe", S(found->GetPath()));
    EXPECT_EQ("downloads/catalog/nocode.exe", File(""));
    std::unique_ptr<const QRMInventoryComponent> win = Lookup("WIN");
    ASSERT_NE(nullptr, win);
    EXPECT_EQ("w.exe", S(win->GetPath()));
    EXPECT_EQ(nullptr, Lookup("nocode.exe"));
}

TEST(InventoryComponentLookup, AnyArchitectureValueReturnsTheSameEntry)
{
    TempDir dir;
    std::string entries =
        CatalogXML::InventoryComponent("LX", "linux.bin") + CatalogXML::InventoryComponent("WIN", "windows.exe");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, entries));
    const QRMOSArchitectureEnum architectures[] = {QRM_OS_ARCH_X86,
                                                   QRM_OS_ARCH_X64,
                                                   QRM_OS_ARCH_IA64,
                                                   QRM_OS_ARCH_IA32,
                                                   static_cast<QRMOSArchitectureEnum>(99),
                                                   static_cast<QRMOSArchitectureEnum>(-1)};
    std::unique_ptr<const QRMInventoryComponent> reference = Lookup("WIN", QRM_OS_ARCH_X86);
    ASSERT_NE(nullptr, reference);
    EXPECT_EQ("windows.exe", S(reference->GetPath()));
    for (QRMOSArchitectureEnum architecture : architectures) {
        std::unique_ptr<const QRMInventoryComponent> found = Lookup("WIN", architecture);
        ASSERT_NE(nullptr, found) << static_cast<int>(architecture);
        EXPECT_TRUE(*found == *reference) << static_cast<int>(architecture);
        EXPECT_EQ("downloads/catalog/windows.exe", File("WIN", architecture)) << static_cast<int>(architecture);
    }
}

TEST(InventoryComponentLookup, CallerOwnsEachReturnedCopy)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, CatalogXML::InventoryComponent("WIN", "w.exe")));
    const QRMInventoryComponent* first = API()->GetInventoryComponent(QRM_OS_ARCH_X64, VELString("WIN"));
    const QRMInventoryComponent* second = API()->GetInventoryComponent(QRM_OS_ARCH_X64, VELString("WIN"));
    ASSERT_NE(nullptr, first);
    ASSERT_NE(nullptr, second);
    EXPECT_NE(first, second);
    delete first;
    // The other copy and the store are untouched by deleting one copy.
    EXPECT_EQ("w.exe", S(second->GetPath()));
    delete second;
    std::vector<QRMInventoryComponent> stored = Stored();
    ASSERT_EQ(1u, stored.size());
    EXPECT_EQ("w.exe", S(stored[0].GetPath()));
    std::unique_ptr<const QRMInventoryComponent> third = Lookup("WIN");
    ASSERT_NE(nullptr, third);
    EXPECT_EQ("w.exe", S(third->GetPath()));
}

// --- Inventory file path ----------------------------------------------------------------

TEST(InventoryComponentFile, BaseLocationAndPathAreJoinedWithOneSlash)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS,
              ParseCatalog(dir, "baseLocation=\"dir\"", CatalogXML::InventoryComponent("WIN", "file.exe")));
    EXPECT_EQ("dir/file.exe", File("WIN"));
}

TEST(InventoryComponentFile, EmptyBaseLocationGivesALeadingSlash)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS,
              ParseCatalog(dir, "baseLocation=\"\"", CatalogXML::InventoryComponent("WIN", "file.exe")));
    EXPECT_EQ("/file.exe", File("WIN"));
}

TEST(InventoryComponentFile, MissingBaseLocationGivesALeadingSlash)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseCatalog(dir, "", CatalogXML::InventoryComponent("WIN", "file.exe")));
    EXPECT_EQ("/file.exe", File("WIN"));
}

TEST(InventoryComponentFile, BaseLocationEndingInSlashGivesADoubledSlash)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS,
              ParseCatalog(dir, "baseLocation=\"dir/\"", CatalogXML::InventoryComponent("WIN", "file.exe")));
    EXPECT_EQ("dir//file.exe", File("WIN"));
}

TEST(InventoryComponentFile, PathsAreJoinedAsTheyStand)
{
    TempDir dir;
    std::string entries = CatalogXML::InventoryComponent("A", "/abs.exe") + CatalogXML::InventoryComponent("B", "") +
                          CatalogXML::InventoryComponent("C", "sub\\win.exe");
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseCatalog(dir, "baseLocation=\"https://dl.example.com/x\"", entries));
    EXPECT_EQ("https://dl.example.com/x//abs.exe", File("A"));
    EXPECT_EQ("https://dl.example.com/x/", File("B"));
    EXPECT_EQ("https://dl.example.com/x/sub\\win.exe", File("C"));
}

// --- Before a catalog is parsed ---------------------------------------------------------

TEST(InventoryComponentNotParsed, InventoryFilePrintsTheMessageOncePerCall)
{
    StdoutCapture capture;
    EXPECT_EQ("", File("WIN"));
    EXPECT_EQ("Catalog not initialized\n", capture.Text());
}

TEST(InventoryComponentNotParsed, InventoryFileTwiceGivesTwoMessages)
{
    StdoutCapture capture;
    EXPECT_EQ("", File("WIN"));
    EXPECT_EQ("", File(""));
    EXPECT_EQ("Catalog not initialized\nCatalog not initialized\n", capture.Text());
}

TEST(InventoryComponentNotParsed, InventoryComponentPrintsTheMessageOncePerCall)
{
    StdoutCapture capture;
    EXPECT_EQ(nullptr, Lookup("WIN"));
    EXPECT_EQ("Catalog not initialized\n", capture.Text());
}

TEST(InventoryComponentNotParsed, InventoryComponentTwiceGivesTwoMessages)
{
    StdoutCapture capture;
    EXPECT_EQ(nullptr, Lookup("WIN", QRM_OS_ARCH_X86));
    EXPECT_EQ(nullptr, Lookup("", static_cast<QRMOSArchitectureEnum>(99)));
    EXPECT_EQ("Catalog not initialized\nCatalog not initialized\n", capture.Text());
}

TEST(InventoryComponentNotParsed, QueriesAfterAnAbortedParsePrintTheMessage)
{
    TempDir dir;
    std::string entries = CatalogXML::InventoryComponent("WIN", "w.exe") + CatalogXML::Component("C1", "Name");
    ASSERT_EQ(QRM_KIT_ELEMENT_MISSING, ParseEntries(dir, entries));
    // The entry read before the fault is held, but the catalog counts as unread.
    std::vector<QRMInventoryComponent> stored = Stored();
    ASSERT_EQ(1u, stored.size());
    EXPECT_EQ("WIN", S(stored[0].GetOSCode()));

    StdoutCapture capture;
    EXPECT_EQ("", File("WIN"));
    EXPECT_EQ(nullptr, Lookup("WIN"));
    EXPECT_EQ("Catalog not initialized\nCatalog not initialized\n", capture.Text());
}

TEST(InventoryComponentNotParsed, QueriesAfterAParseOfAMissingFilePrintTheMessage)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, CatalogXML::InventoryComponent("WIN", "w.exe")));
    ASSERT_EQ("downloads/catalog/w.exe", File("WIN"));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Parse(VELFile(dir.PathOf("absent.xml"))));

    StdoutCapture capture;
    EXPECT_EQ(nullptr, Lookup("WIN"));
    EXPECT_EQ("", File("WIN"));
    EXPECT_EQ("Catalog not initialized\nCatalog not initialized\n", capture.Text());
}

TEST(InventoryComponentNotParsed, QueriesAfterResetPrintTheMessage)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, CatalogXML::InventoryComponent("WIN", "w.exe")));
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Reset());

    StdoutCapture capture;
    EXPECT_EQ("", File("WIN"));
    EXPECT_EQ("Catalog not initialized\n", capture.Text());
}
