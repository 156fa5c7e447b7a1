// The edges of the base layer that the readers never reach but a caller of
// the exported classes can: literals that are null or not ASCII, selections
// continued from a partly filled buffer, null names,
// documents without a root, and paths that cannot name a file.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

std::vector<std::string> Texts(const std::vector<VELString>& strings)
{
    std::vector<std::string> texts;
    for (const VELString& text : strings) {
        texts.push_back(text.GetUTF8String());
    }
    return texts;
}

}  // namespace

TEST(VELStringLiteralEdges, NullLiteralEqualsOnlyTheEmptyText)
{
    const char* none = nullptr;
    EXPECT_TRUE(none == VELString());
    EXPECT_TRUE(VELString("") == none);
    EXPECT_FALSE(none == VELString("a"));
    EXPECT_TRUE(VELString("a") != none);
    EXPECT_FALSE(none != VELString());
}

TEST(VELStringLiteralEdges, LiteralOutsideASCIIIsReadAsUTF8)
{
    const VELString text = VELString::FromUTF8("caf\xC3\xA9", 5);
    EXPECT_TRUE("caf\xC3\xA9" == text);
    EXPECT_TRUE(text == "caf\xC3\xA9");
    EXPECT_FALSE("caf\xC3\xA8" == text);
    EXPECT_TRUE("caf\xC3\xA8" != text);
    EXPECT_FALSE(text != "caf\xC3\xA9");
    EXPECT_FALSE("\xC3\xA9" == VELString("e"));
}

TEST(VELStringSelections, ContinueAfterTheCharactersAlreadyChosen)
{
    // One character is chosen already and stands in the buffer; the
    // selections complete it with one more.
    const VELString text("NTWRK");
    char buffer[3] = {'X', '\0', '\0'};
    std::vector<VELString> out;
    text.ListCombinationsOfString(buffer, 2, 4, 1, 2, out);
    EXPECT_EQ((std::vector<std::string>{"XW", "XR", "XK"}), Texts(out));
    EXPECT_EQ('X', buffer[0]);
    EXPECT_EQ('\0', buffer[2]);
}

TEST(VELStringSelections, AllCharactersChosenGivesTheBufferItself)
{
    const VELString text("NTWRK");
    char buffer[3] = {'A', 'B', '\0'};
    std::vector<VELString> out;
    text.ListCombinationsOfString(buffer, 0, 4, 2, 2, out);
    EXPECT_EQ(std::vector<std::string>{"AB"}, Texts(out));
}

TEST(VELStringSelections, MoreChosenThanWantedGivesNothing)
{
    const VELString text("NTWRK");
    char buffer[4] = {'A', 'B', 'C', '\0'};
    std::vector<VELString> out;
    text.ListCombinationsOfString(buffer, 0, 4, 3, 2, out);
    EXPECT_TRUE(out.empty());
}

TEST(VELStringSelections, EmptyTextOrStartPastTheEndGivesNothing)
{
    char buffer[3] = {};
    std::vector<VELString> out;
    VELString().ListCombinationsOfString(buffer, 0, 0, 0, 2, out);
    EXPECT_TRUE(out.empty());
    VELString("AB").ListCombinationsOfString(buffer, 2, 5, 0, 1, out);
    EXPECT_TRUE(out.empty());
    VELString("ABC").ListCombinationsOfString(nullptr, 0, 2, 0, 2, out);
    EXPECT_EQ((std::vector<std::string>{"AB", "AC", "BC"}), Texts(out));
}

TEST(VELXMLNullName, AttributeAndChildQueriesFail)
{
    TempDir dir;
    int errorCode = 0;
    VELString errorText;
    std::unique_ptr<VELXMLDocument> document(
        VELDOMParser::Parse(VELFile(dir.Write("a.xml", "<Root lang=\"en\"><Display/></Root>")), errorCode, errorText));
    ASSERT_NE(nullptr, document);
    const VELXMLNode* root = document->GetRoot();
    ASSERT_NE(nullptr, root);
    VELString value("kept");
    EXPECT_EQ(VEL_FAILURE, root->GetAttributeValue(static_cast<const char*>(nullptr), value));
    EXPECT_EQ(VELString("kept"), value);
    std::vector<VELXMLNode*> children;
    EXPECT_EQ(VEL_FAILURE, root->GetChildren(static_cast<const char*>(nullptr), children));
    EXPECT_TRUE(children.empty());
    EXPECT_EQ(VEL_SUCCESS, root->GetChildren("Display", children));
    EXPECT_EQ(1u, children.size());
}

TEST(VELXMLDocumentEdges, NewDocumentHasNoRoot)
{
    VELXMLDocument document;
    EXPECT_EQ(nullptr, document.GetRoot());
}

TEST(VELDOMParserPaths, PathsThatCannotNameAFileGiveAnErrorAndNoDocument)
{
    for (const VELFile& file : {VELFile(""), VELFile(std::string("a\0b.xml", 7)), VELFile(VELString())}) {
        int errorCode = 0;
        VELString errorText;
        std::unique_ptr<VELXMLDocument> document(VELDOMParser::Parse(file, errorCode, errorText));
        EXPECT_EQ(nullptr, document);
        EXPECT_NE(0, errorCode);
        EXPECT_FALSE(errorText.IsEmpty());
        EXPECT_FALSE(file.Exists());
    }
}
