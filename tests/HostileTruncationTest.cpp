// Documents cut short: every prefix of the example catalog and inventory, at
// a coarse step, must be refused as a whole (a cut document is not a
// document), must never crash, and must leave stores that every query can
// answer from, and that the whole document can be read into again.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace {

QRMKitAPI* API() { return QRMKitAPI::Instance(); }

const std::string kExampleCatalog = std::string(QRMKIT_EXAMPLES_DIR) + "/catalog.xml";
const std::string kExampleInventory = std::string(QRMKIT_EXAMPLES_DIR) + "/inventory.xml";

const int kCatalogCuts = 50;
const int kInventoryCuts = 40;

std::string Contents(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

std::size_t Count(const std::string& text, const std::string& what)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) {
        ++count;
    }
    return count;
}

class TruncatedCatalog : public ::testing::TestWithParam<int> {};

class TruncatedInventory : public ::testing::TestWithParam<int> {};

}  // namespace

TEST_P(TruncatedCatalog, IsRefusedAndLeavesAnEmptyStoreThatStillAnswers)
{
    const std::string whole = Contents(kExampleCatalog);
    ASSERT_GT(whole.size(), 10000u);
    const std::size_t size = whole.size() * static_cast<std::size_t>(GetParam()) / kCatalogCuts;
    TempDir dir;
    const std::string cut = dir.Write("cut.xml", whole.substr(0, size));

    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
    std::map<VELString, VELString> categories;
    API()->GetCategoryValues(categories);
    const std::size_t categoryCount = categories.size();
    ASSERT_GT(categoryCount, 0u);

    const std::size_t before = PeakResidentBytes();
    EXPECT_EQ(QRM_KIT_FAILURE, API()->Parse(VELFile(cut))) << size << " of " << whole.size() << " bytes";
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(whole.size(), 64));
    ExpectNoCatalog();

    // The category texts of the earlier read stay, and acronyms can still be
    // made from them.
    categories.clear();
    API()->GetCategoryValues(categories);
    EXPECT_EQ(categoryCount, categories.size());
    std::map<VELString, VELString> acronyms;
    API()->GetAcronymForCategoryValues(acronyms);
    EXPECT_EQ(categoryCount, acronyms.size());
    std::map<VELString, std::vector<VELString>> listed;
    API()->ListCatalogAndRVUGeneratedCategoryValues(listed);
    EXPECT_FALSE(listed.empty());

    // A second cut read changes nothing, and the whole document reads again.
    EXPECT_EQ(QRM_KIT_FAILURE, API()->Parse(VELFile(cut)));
    ExpectNoCatalog();
    ExpectExampleUpdates();
}

INSTANTIATE_TEST_SUITE_P(EveryFiftiethOfTheExample, TruncatedCatalog, ::testing::Range(0, kCatalogCuts));

TEST_P(TruncatedInventory, IsRefusedAndStoresNothing)
{
    const std::string whole = Contents(kExampleInventory);
    ASSERT_GT(whole.size(), 1000u);
    const std::size_t size = whole.size() * static_cast<std::size_t>(GetParam()) / kInventoryCuts;
    TempDir dir;
    const std::string cut = dir.Write("cut.xml", whole.substr(0, size));

    const std::size_t before = PeakResidentBytes();
    EXPECT_EQ(QRM_KIT_FAILURE, API()->ParseInventory(VELFile(cut))) << size << " of " << whole.size() << " bytes";
    EXPECT_EQ(QRM_KIT_FAILURE, API()->ParseInventory(VELFile(cut)));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(whole.size(), 64));
    ExpectNoInventory();
    ExpectExampleUpdates();
}

INSTANTIATE_TEST_SUITE_P(EveryFortiethOfTheExample, TruncatedInventory, ::testing::Range(0, kInventoryCuts));

// Cut between two entries and closed again, the catalog is a document: it
// reads, with every entry before the cut.
TEST(TruncatedCatalogClosedAgain, ReadsTheEntriesBeforeEachCut)
{
    const std::string whole = Contents(kExampleCatalog);
    const std::string close = "</Manifest>\n";
    std::vector<std::size_t> starts;
    for (const char* entry : {"\n  <SoftwareBundle", "\n  <SoftwareComponent", "\n  <InventoryComponent"}) {
        for (std::size_t at = whole.find(entry); at != std::string::npos; at = whole.find(entry, at + 1)) {
            starts.push_back(at);
        }
    }
    ASSERT_EQ(6u + 48u + 2u, starts.size());
    TempDir dir;
    for (std::size_t start : starts) {
        const std::string prefix = whole.substr(0, start);
        ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("closed.xml", prefix + close)))) << start;
        EXPECT_TRUE(API()->IsCatalogParsed());
        EXPECT_EQ(Count(prefix, "\n  <SoftwareBundle"), BundleCount());
        EXPECT_EQ(Count(prefix, "\n  <SoftwareComponent"), ComponentCount());
        EXPECT_EQ(Count(prefix, "\n  <InventoryComponent"), CollectorCount());
        EXPECT_EQ(VELString("updates.example.com/catalog"), API()->GetBaseLocation());
    }
    // Cut at the same places and not closed, none of them is a document.
    for (std::size_t start : starts) {
        EXPECT_EQ(QRM_KIT_FAILURE, API()->Parse(VELFile(dir.Write("open.xml", whole.substr(0, start))))) << start;
        ExpectNoCatalog();
    }
    ExpectExampleUpdates();
}
