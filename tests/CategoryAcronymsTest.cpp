// Category values of the catalog, the acronyms derived from them, and the
// listing of codes and acronyms by category text.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

typedef std::map<std::string, std::string> TextMap;
typedef std::map<std::string, std::vector<std::string>> ListMap;
typedef std::vector<std::pair<std::string, std::string>> Categories;

// A component whose category has the given code and text; the text is the
// category Display's first child node, written as CDATA.
std::string CategoryComponent(const std::string& packageID, const std::string& code, const std::string& text)
{
    return "<SoftwareComponent packageID=\"" + packageID + "\" path=\"" + packageID +
           ".EXE\" vendorVersion=\"1.0\">"
           "<Name><Display lang=\"en\">Package " +
           packageID +
           "</Display></Name>"
           "<ComponentType value=\"DRVR\"/>"
           "<Category value=\"" +
           code + "\"><Display lang=\"en\"><![CDATA[" + text +
           "]]></Display></Category>"
           "<SupportedDevices/></SoftwareComponent>";
}

std::string CatalogOf(const Categories& categories)
{
    std::string entries;
    int number = 0;
    for (const auto& category : categories) {
        entries += CategoryComponent("PKG" + std::to_string(++number), category.first, category.second);
    }
    return CatalogXML::Document("releaseID=\"R1\"", entries);
}

std::map<VELString, VELString> ToVEL(const TextMap& map)
{
    std::map<VELString, VELString> converted;
    for (const auto& entry : map) {
        converted[VELString(entry.first.c_str())] = VELString(entry.second.c_str());
    }
    return converted;
}

TextMap ToStd(const std::map<VELString, VELString>& map)
{
    TextMap converted;
    for (const auto& entry : map) {
        converted[entry.first.GetUTF8String()] = entry.second.GetUTF8String();
    }
    return converted;
}

std::map<VELString, std::vector<VELString>> ToVEL(const ListMap& map)
{
    std::map<VELString, std::vector<VELString>> converted;
    for (const auto& entry : map) {
        std::vector<VELString>& values = converted[VELString(entry.first.c_str())];
        for (const std::string& value : entry.second) {
            values.push_back(VELString(value.c_str()));
        }
    }
    return converted;
}

ListMap ToStd(const std::map<VELString, std::vector<VELString>>& map)
{
    ListMap converted;
    for (const auto& entry : map) {
        std::vector<std::string>& values = converted[entry.first.GetUTF8String()];
        for (const VELString& value : entry.second) {
            values.push_back(value.GetUTF8String());
        }
    }
    return converted;
}

class CategoryAcronyms : public testing::Test {
protected:
    void Parse(const Categories& categories)
    {
        ASSERT_EQ(QRM_KIT_SUCCESS, api->Parse(VELFile(dir.Write("catalog.xml", CatalogOf(categories)))));
    }

    TextMap Values()
    {
        std::map<VELString, VELString> values;
        api->GetCategoryValues(values);
        return ToStd(values);
    }

    TextMap Acronyms()
    {
        std::map<VELString, VELString> acronyms;
        api->GetAcronymForCategoryValues(acronyms);
        return ToStd(acronyms);
    }

    ListMap List()
    {
        std::map<VELString, std::vector<VELString>> list;
        api->ListCatalogAndRVUGeneratedCategoryValues(list);
        return ToStd(list);
    }

    QRMKitAPI* api = QRMKitAPI::Instance();
    TempDir dir;
};

}  // namespace

// ---- Codes that are their own acronym ----

TEST_F(CategoryAcronyms, CodeOfUpToFourLettersIsItsOwnAcronymAsWritten)
{
    Parse({{"ab", "Alpha Beta"}, {"BIOS", "BIOS Updates"}, {"x", "Extras"}, {"Drv", "Drivers"}});
    EXPECT_EQ((TextMap{{"BIOS", "BIOS Updates"}, {"Drv", "Drivers"}, {"ab", "Alpha Beta"}, {"x", "Extras"}}),
              Acronyms());
}

TEST_F(CategoryAcronyms, OwnAcronymIsRecordedAsUsedInUpperCase)
{
    // "A1E" sorts before "bc", yet "bc" already holds BC when A1E's acronym
    // is chosen: the next free selection is BD.
    Parse({{"bc", "Bee"}, {"A1E", "Vowels"}});
    EXPECT_EQ((TextMap{{"BD", "Vowels"}, {"bc", "Bee"}}), Acronyms());
}

// ---- Generated acronyms ----

TEST_F(CategoryAcronyms, LetterCodeLongerThanFourGetsGeneratedAcronym)
{
    Parse({{"Storage", "Storage Drivers"}});
    EXPECT_EQ((TextMap{{"ST", "Storage Drivers"}}), Acronyms());
}

TEST_F(CategoryAcronyms, ShortCodeWithDigitGetsGeneratedAcronym)
{
    Parse({{"Nt1", "Net One"}});
    EXPECT_EQ((TextMap{{"NT", "Net One"}}), Acronyms());
}

TEST_F(CategoryAcronyms, ShortCodeWithBlankGetsGeneratedAcronym)
{
    Parse({{"Ab c", "Blank Code"}});
    EXPECT_EQ((TextMap{{"BC", "Blank Code"}}), Acronyms());
}

TEST_F(CategoryAcronyms, NetbookAndNetworkGetNTAndNW)
{
    Parse({{"Network", "Network Drivers"}, {"Netbook", "Netbook Tools"}});
    EXPECT_EQ((TextMap{{"NT", "Netbook Tools"}, {"NW", "Network Drivers"}}), Acronyms());
}

TEST_F(CategoryAcronyms, SelectionsAreTriedInPositionOrder)
{
    // NTWRK: NT and NW are taken by codes, NR is the next selection.
    Parse({{"Nt", "Alpha"}, {"Nw", "Beta"}, {"Network", "Network Drivers"}});
    EXPECT_EQ((TextMap{{"NR", "Network Drivers"}, {"Nt", "Alpha"}, {"Nw", "Beta"}}), Acronyms());
}

TEST_F(CategoryAcronyms, SelectionEqualToACategoryTextInUpperCaseIsNotTaken)
{
    Parse({{"Netbook", "Netbook Tools"}, {"Q", "nt"}});
    EXPECT_EQ((TextMap{{"NB", "Netbook Tools"}, {"Q", "nt"}}), Acronyms());
}

TEST_F(CategoryAcronyms, CodeOfVowelsAndDigitsGetsBC)
{
    Parse({{"A1E", "Vowels"}});
    EXPECT_EQ((TextMap{{"BC", "Vowels"}}), Acronyms());
}

TEST_F(CategoryAcronyms, ThreeLettersOnlyWhenEveryTwoLetterSelectionIsTaken)
{
    Parse({{"BC", "t1"}, {"BD", "t2"}, {"BF", "t3"}, {"CD", "t4"}, {"CF", "t5"}, {"DF", "t6"}, {"BCDF1", "Long"}});
    EXPECT_EQ(
        (TextMap{{"BC", "t1"}, {"BD", "t2"}, {"BF", "t3"}, {"BCD", "Long"}, {"CD", "t4"}, {"CF", "t5"}, {"DF", "t6"}}),
        Acronyms());
}

TEST_F(CategoryAcronyms, ThreeLetterSelectionsAlsoSkipTakenOnes)
{
    Parse({{"BC", "t1"}, {"BD", "t2"}, {"BF", "t3"}, {"CD", "t4"}, {"CF", "t5"}, {"DF", "bcd"}, {"BCDF1", "Long"}});
    EXPECT_EQ(
        (TextMap{{"BC", "t1"}, {"BD", "t2"}, {"BF", "t3"}, {"BCF", "Long"}, {"CD", "t4"}, {"CF", "t5"}, {"DF", "bcd"}}),
        Acronyms());
}

TEST_F(CategoryAcronyms, WholeBaseBecomesAcronymUncheckedWhenEverySelectionIsTaken)
{
    // B1C reduces to BC, whose only selection equals the text "BC"; the
    // whole base is then taken anyway.
    Parse({{"B1C", "Bee One Cee"}, {"Q", "BC"}});
    EXPECT_EQ((TextMap{{"BC", "Bee One Cee"}, {"Q", "BC"}}), Acronyms());
}

TEST_F(CategoryAcronyms, OneLetterBaseBecomesTheAcronym)
{
    Parse({{"X9", "Ex Nine"}});
    EXPECT_EQ((TextMap{{"X", "Ex Nine"}}), Acronyms());
}

TEST_F(CategoryAcronyms, WholeBaseAlreadyPresentAsKeyLeavesTheEarlierText)
{
    Parse({{"BC", "Bee Cee"}, {"B1C", "Bee One Cee"}});
    EXPECT_EQ((TextMap{{"BC", "Bee Cee"}}), Acronyms());
    EXPECT_EQ((ListMap{{"Bee Cee", {"BC"}}, {"Bee One Cee", {"B1C"}}}), List());
}

TEST_F(CategoryAcronyms, TwoCodesFallingBackToOneBaseKeepTheFirst)
{
    Parse({{"B2C", "Second"}, {"B1C", "First"}, {"Q", "bc"}});
    EXPECT_EQ((TextMap{{"BC", "First"}, {"Q", "bc"}}), Acronyms());
}

// ---- The caller's maps ----

TEST_F(CategoryAcronyms, GetAcronymForCategoryValuesTwiceGivesTheSameMap)
{
    Parse({{"Network", "Network Drivers"}, {"Netbook", "Netbook Tools"}, {"BI", "BIOS"}});
    const TextMap expected{{"BI", "BIOS"}, {"NT", "Netbook Tools"}, {"NW", "Network Drivers"}};
    EXPECT_EQ(expected, Acronyms());
    EXPECT_EQ(expected, Acronyms());
}

TEST_F(CategoryAcronyms, GetAcronymForCategoryValuesOverwritesSameKeysAndKeepsOthers)
{
    Parse({{"Network", "Network Drivers"}, {"Netbook", "Netbook Tools"}});
    std::map<VELString, VELString> acronyms = ToVEL(TextMap{{"NT", "stale"}, {"ZZ", "keep"}});
    api->GetAcronymForCategoryValues(acronyms);
    EXPECT_EQ((TextMap{{"NT", "Netbook Tools"}, {"NW", "Network Drivers"}, {"ZZ", "keep"}}), ToStd(acronyms));
}

TEST_F(CategoryAcronyms, GetCategoryValuesCopiesCodeToTextWithTheFirstTextOfACode)
{
    Parse({{"NW", "Network"}, {"BI", "BIOS"}, {"NW", "Other text"}});
    EXPECT_EQ((TextMap{{"BI", "BIOS"}, {"NW", "Network"}}), Values());
}

TEST_F(CategoryAcronyms, GetCategoryValuesOverwritesSameKeysAndKeepsOthers)
{
    Parse({{"NW", "Network"}, {"BI", "BIOS"}});
    std::map<VELString, VELString> values = ToVEL(TextMap{{"NW", "stale"}, {"keep", "me"}});
    api->GetCategoryValues(values);
    EXPECT_EQ((TextMap{{"BI", "BIOS"}, {"NW", "Network"}, {"keep", "me"}}), ToStd(values));
}

TEST_F(CategoryAcronyms, CategoryTextIsTheDisplaysCDATAAsWritten)
{
    Parse({{"DR", "Drivers <x64> & Tools"}});
    EXPECT_EQ((TextMap{{"DR", "Drivers <x64> & Tools"}}), Values());
}

// ---- Lifetime of the category maps ----

TEST_F(CategoryAcronyms, CategoryValuesSurviveResetAndANewParse)
{
    Parse({{"Netbook", "Netbook Tools"}});
    ASSERT_EQ(QRM_KIT_SUCCESS, api->Reset());
    EXPECT_EQ((TextMap{{"Netbook", "Netbook Tools"}}), Values());

    Parse({{"BI", "BIOS"}});
    std::vector<QRMSoftwareComponent*> components;
    api->GetSoftwareComponents(components);
    ASSERT_EQ(1u, components.size());
    EXPECT_EQ((TextMap{{"BI", "BIOS"}, {"Netbook", "Netbook Tools"}}), Values());
    EXPECT_EQ((TextMap{{"BI", "BIOS"}, {"NT", "Netbook Tools"}}), Acronyms());
}

TEST_F(CategoryAcronyms, CategoryValuesSurviveAParseOfAMissingFile)
{
    Parse({{"BI", "BIOS"}});
    ASSERT_EQ(QRM_KIT_NOT_FOUND, api->Parse(VELFile(dir.PathOf("missing.xml"))));
    EXPECT_EQ((TextMap{{"BI", "BIOS"}}), Values());
}

TEST_F(CategoryAcronyms, AcronymsOfAnEarlierCatalogStayWithTheirText)
{
    // Network alone gets NT. Once Netbook joins, a fresh computation would
    // give NT to Netbook, but the key NT keeps its first text; Network's
    // recomputed NW is added beside it.
    Parse({{"Network", "Network Drivers"}});
    EXPECT_EQ((TextMap{{"NT", "Network Drivers"}}), Acronyms());

    Parse({{"Netbook", "Netbook Tools"}});
    EXPECT_EQ((TextMap{{"NT", "Network Drivers"}, {"NW", "Network Drivers"}}), Acronyms());
    EXPECT_EQ((ListMap{{"Netbook Tools", {"Netbook"}}, {"Network Drivers", {"Network", "NT"}}}), List());
}

// ---- Listing codes and acronyms by text ----

TEST_F(CategoryAcronyms, ListShowsOnlyTheCodeOfACategoryThatIsItsOwnAcronym)
{
    Parse({{"BI", "BIOS"}});
    EXPECT_EQ((ListMap{{"BIOS", {"BI"}}}), List());
}

TEST_F(CategoryAcronyms, ListShowsCodeThenGeneratedAcronym)
{
    Parse({{"Netbook", "Netbook Tools"}, {"BI", "BIOS"}});
    EXPECT_EQ((ListMap{{"BIOS", {"BI"}}, {"Netbook Tools", {"Netbook", "NT"}}}), List());
}

TEST_F(CategoryAcronyms, ListOfTwoGeneratedCodesSharingATextFollowsEachWithTheFirstAcronym)
{
    // Acronyms NT and NW both carry "Net Stuff"; after each code comes the
    // first of them, in key order, that differs from the code.
    Parse({{"Network", "Net Stuff"}, {"Netbook", "Net Stuff"}});
    EXPECT_EQ((ListMap{{"Net Stuff", {"Netbook", "NT", "Network", "NT"}}}), List());
}

TEST_F(CategoryAcronyms, ListOfOwnAndGeneratedCodesSharingAText)
{
    // Acronyms in key order: NT (from Network), then Nic (its own).
    Parse({{"Nic", "Network Drivers"}, {"Network", "Network Drivers"}});
    EXPECT_EQ((ListMap{{"Network Drivers", {"Network", "NT", "Nic", "NT"}}}), List());
}

TEST_F(CategoryAcronyms, ListOfTwoOwnCodesSharingATextNamesTheOther)
{
    Parse({{"BIOS", "BIOS"}, {"BI", "BIOS"}});
    EXPECT_EQ((ListMap{{"BIOS", {"BI", "BIOS", "BIOS", "BI"}}}), List());
}

TEST_F(CategoryAcronyms, ListAppendsToTheCallersVectors)
{
    Parse({{"BI", "BIOS"}, {"Netbook", "Netbook Tools"}});
    std::map<VELString, std::vector<VELString>> list = ToVEL(ListMap{{"BIOS", {"pre"}}, {"Other", {"x"}}});
    api->ListCatalogAndRVUGeneratedCategoryValues(list);
    EXPECT_EQ((ListMap{{"BIOS", {"pre", "BI"}}, {"Netbook Tools", {"Netbook", "NT"}}, {"Other", {"x"}}}), ToStd(list));
}

TEST_F(CategoryAcronyms, ListTwiceAppendsTheSameEntriesAgain)
{
    Parse({{"Netbook", "Netbook Tools"}});
    std::map<VELString, std::vector<VELString>> list;
    api->ListCatalogAndRVUGeneratedCategoryValues(list);
    api->ListCatalogAndRVUGeneratedCategoryValues(list);
    EXPECT_EQ((ListMap{{"Netbook Tools", {"Netbook", "NT", "Netbook", "NT"}}}), ToStd(list));
}

// ---- No categories ----

TEST_F(CategoryAcronyms, WithoutCategoriesEveryOperationLeavesTheMapsUnchanged)
{
    // A parsed catalog without components has no categories.
    ASSERT_EQ(QRM_KIT_SUCCESS,
              api->Parse(VELFile(dir.Write("catalog.xml", CatalogXML::Document("", CatalogXML::Bundle("B.1"))))));

    const TextMap prefilled{{"BI", "caller's"}};
    std::map<VELString, VELString> values = ToVEL(prefilled);
    api->GetCategoryValues(values);
    EXPECT_EQ(prefilled, ToStd(values));

    api->SetAcronymForCategoryValues();
    std::map<VELString, VELString> acronyms = ToVEL(prefilled);
    api->GetAcronymForCategoryValues(acronyms);
    EXPECT_EQ(prefilled, ToStd(acronyms));

    const ListMap prefilledList{{"BIOS", {"BI"}}};
    std::map<VELString, std::vector<VELString>> list = ToVEL(prefilledList);
    api->ListCatalogAndRVUGeneratedCategoryValues(list);
    EXPECT_EQ(prefilledList, ToStd(list));

    std::map<VELString, VELString> empty;
    api->GetAcronymForCategoryValues(empty);
    EXPECT_TRUE(empty.empty());
}

TEST_F(CategoryAcronyms, WithoutAnyCatalogEveryOperationLeavesTheMapsUnchanged)
{
    const TextMap prefilled{{"NT", "caller's"}};
    std::map<VELString, VELString> values = ToVEL(prefilled);
    api->GetCategoryValues(values);
    EXPECT_EQ(prefilled, ToStd(values));

    std::map<VELString, VELString> acronyms = ToVEL(prefilled);
    api->GetAcronymForCategoryValues(acronyms);
    EXPECT_EQ(prefilled, ToStd(acronyms));

    std::map<VELString, std::vector<VELString>> list;
    api->ListCatalogAndRVUGeneratedCategoryValues(list);
    EXPECT_TRUE(list.empty());
}
