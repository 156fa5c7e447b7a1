// The XML document model: parsing files, and the name, text, attribute and
// child queries of an element.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

// Parses a file and reports the error code it left behind.
struct ParseOutcome {
    std::unique_ptr<VELXMLDocument> document;
    int errorCode = 0;
    VELString errorText;
};

ParseOutcome ParseFile(const std::string& path)
{
    ParseOutcome outcome;
    outcome.document.reset(VELDOMParser::Parse(VELFile(path), outcome.errorCode, outcome.errorText));
    return outcome;
}

std::vector<std::string> NamesOf(const std::vector<VELXMLNode*>& nodes)
{
    std::vector<std::string> names;
    for (const VELXMLNode* node : nodes) {
        names.push_back(node->GetName().GetUTF8String());
    }
    return names;
}

// Parses `xml` written to a file and returns its root (the document stays
// alive in `holder`).
VELXMLNode* RootOf(const TempDir& dir, const std::string& xml, ParseOutcome& holder)
{
    holder = ParseFile(dir.Write("doc.xml", xml));
    EXPECT_EQ(0, holder.errorCode) << holder.errorText.GetUTF8String();
    if (!holder.document) {
        ADD_FAILURE() << "the document did not parse";
        return nullptr;
    }
    VELXMLNode* root = holder.document->GetRoot();
    EXPECT_NE(nullptr, root);
    return root;
}

VELXMLNode* OnlyChild(const VELXMLNode& node, const char* name)
{
    std::vector<VELXMLNode*> children;
    node.GetChildren(name, children);
    EXPECT_EQ(1u, children.size()) << "children named " << name;
    return children.empty() ? nullptr : children.front();
}

}  // namespace

TEST(VELDOMParser, WellFormedFileLeavesErrorCodeZero)
{
    TempDir dir;
    ParseOutcome outcome = ParseFile(dir.Write("ok.xml", "<?xml version=\"1.0\"?><Manifest a=\"1\"/>"));
    EXPECT_EQ(0, outcome.errorCode);
    ASSERT_NE(nullptr, outcome.document);
    ASSERT_NE(nullptr, outcome.document->GetRoot());
    EXPECT_EQ(VELString("Manifest"), outcome.document->GetRoot()->GetName());
}

TEST(VELDOMParser, ErrorCodeIsLeftAsTheCallerSetItOnSuccess)
{
    TempDir dir;
    int errorCode = 0;
    VELString errorText("untouched");
    std::unique_ptr<VELXMLDocument> document(
        VELDOMParser::Parse(VELFile(dir.Write("ok.xml", "<r/>")), errorCode, errorText));
    EXPECT_NE(nullptr, document);
    EXPECT_EQ(0, errorCode);
}

TEST(VELDOMParser, MalformedXMLGivesErrorAndNoDocument)
{
    TempDir dir;
    ParseOutcome outcome = ParseFile(dir.Write("bad.xml", "<Manifest><SoftwareBundle></Manifest>"));
    EXPECT_NE(0, outcome.errorCode);
    EXPECT_EQ(nullptr, outcome.document);
    EXPECT_FALSE(outcome.errorText.IsEmpty());
}

TEST(VELDOMParser, UnclosedRootGivesError)
{
    TempDir dir;
    ParseOutcome outcome = ParseFile(dir.Write("bad.xml", "<Manifest baseLocation=\"x\">"));
    EXPECT_NE(0, outcome.errorCode);
    EXPECT_EQ(nullptr, outcome.document);
}

TEST(VELDOMParser, MissingFileGivesError)
{
    TempDir dir;
    ParseOutcome outcome = ParseFile(dir.PathOf("missing.xml"));
    EXPECT_NE(0, outcome.errorCode);
    EXPECT_EQ(nullptr, outcome.document);
}

TEST(VELDOMParser, EmptyFileGivesError)
{
    TempDir dir;
    ParseOutcome outcome = ParseFile(dir.Write("empty.xml", ""));
    EXPECT_NE(0, outcome.errorCode);
    EXPECT_EQ(nullptr, outcome.document);
}

TEST(VELDOMParser, DocumentWithoutAnElementGivesError)
{
    TempDir dir;
    ParseOutcome outcome = ParseFile(dir.Write("noroot.xml", "<?xml version=\"1.0\"?>\n<!-- nothing here -->\n"));
    EXPECT_NE(0, outcome.errorCode);
    EXPECT_EQ(nullptr, outcome.document);
}

TEST(VELDOMParser, DirectoryGivesError)
{
    TempDir dir;
    dir.Write("sub/a.xml", "<a/>");
    ParseOutcome outcome = ParseFile(dir.PathOf("sub"));
    EXPECT_NE(0, outcome.errorCode);
    EXPECT_EQ(nullptr, outcome.document);
}

TEST(VELDOMParser, TextThatIsNotXMLGivesError)
{
    TempDir dir;
    ParseOutcome outcome = ParseFile(dir.Write("text.xml", "just some words, no markup\n"));
    EXPECT_NE(0, outcome.errorCode);
    EXPECT_EQ(nullptr, outcome.document);
}

TEST(VELXMLNode, RootNameIsTheDocumentElement)
{
    TempDir dir;
    ParseOutcome holder;
    VELXMLNode* root = RootOf(dir, "<?xml version=\"1.0\"?>\n<!-- lead -->\n<CatalogRoot><a/></CatalogRoot>", holder);
    ASSERT_NE(nullptr, root);
    EXPECT_EQ(VELString("CatalogRoot"), root->GetName());
}

TEST(VELXMLNode, GetChildrenListsElementChildrenOnlyInDocumentOrder)
{
    TempDir dir;
    ParseOutcome holder;
    VELXMLNode* root =
        RootOf(dir, "<r>text<a/><!-- comment --><b><inner/></b><![CDATA[data]]><?pi x?><c/>tail</r>", holder);
    ASSERT_NE(nullptr, root);
    std::vector<VELXMLNode*> children;
    EXPECT_EQ(VEL_SUCCESS, root->GetChildren(children));
    EXPECT_EQ((std::vector<std::string>{"a", "b", "c"}), NamesOf(children));
}

TEST(VELXMLNode, GetChildrenAppendsToTheCallersList)
{
    TempDir dir;
    ParseOutcome holder;
    VELXMLNode* root = RootOf(dir, "<r><a/><b/></r>", holder);
    ASSERT_NE(nullptr, root);
    std::vector<VELXMLNode*> children = {root};
    EXPECT_EQ(VEL_SUCCESS, root->GetChildren(children));
    EXPECT_EQ((std::vector<std::string>{"r", "a", "b"}), NamesOf(children));
    EXPECT_EQ(VEL_SUCCESS, root->GetChildren("b", children));
    EXPECT_EQ((std::vector<std::string>{"r", "a", "b", "b"}), NamesOf(children));
}

TEST(VELXMLNode, GetChildrenByNameIsExactAndCaseSensitive)
{
    TempDir dir;
    ParseOutcome holder;
    VELXMLNode* root = RootOf(
        dir, "<r><Item n=\"1\"/><item n=\"2\"/><ItemX n=\"3\"/><Item n=\"4\"><Item n=\"5\"/></Item><Ite n=\"6\"/></r>",
        holder);
    ASSERT_NE(nullptr, root);
    std::vector<VELXMLNode*> items;
    EXPECT_EQ(VEL_SUCCESS, root->GetChildren(VELString("Item"), items));
    ASSERT_EQ(2u, items.size());
    VELString n;
    items[0]->GetAttributeValue("n", n);
    EXPECT_EQ(VELString("1"), n);
    items[1]->GetAttributeValue("n", n);
    EXPECT_EQ(VELString("4"), n);

    std::vector<VELXMLNode*> lower;
    EXPECT_EQ(VEL_SUCCESS, root->GetChildren("item", lower));
    EXPECT_EQ(1u, lower.size());
    std::vector<VELXMLNode*> none;
    EXPECT_EQ(VEL_SUCCESS, root->GetChildren("ITEM", none));
    EXPECT_TRUE(none.empty());
}

TEST(VELXMLNode, ChildlessElementReturnsSuccessAndAppendsNothing)
{
    TempDir dir;
    ParseOutcome holder;
    VELXMLNode* root = RootOf(dir, "<r><empty/><texty>only text</texty></r>", holder);
    ASSERT_NE(nullptr, root);
    VELXMLNode* empty = OnlyChild(*root, "empty");
    VELXMLNode* texty = OnlyChild(*root, "texty");
    ASSERT_NE(nullptr, empty);
    ASSERT_NE(nullptr, texty);
    std::vector<VELXMLNode*> children = {root};
    EXPECT_EQ(VEL_SUCCESS, empty->GetChildren(children));
    EXPECT_EQ(VEL_SUCCESS, empty->GetChildren("x", children));
    EXPECT_EQ(VEL_SUCCESS, texty->GetChildren(children));
    ASSERT_EQ(1u, children.size());
    EXPECT_EQ(root, children.front());
}

TEST(VELXMLNode, ChildPointersStayValidWhileTheDocumentLives)
{
    TempDir dir;
    ParseOutcome holder;
    VELXMLNode* root = RootOf(dir, "<r><a x=\"1\"/><b/></r>", holder);
    ASSERT_NE(nullptr, root);
    std::vector<VELXMLNode*> first;
    root->GetChildren(first);
    for (int i = 0; i < 100; ++i) {
        std::vector<VELXMLNode*> more;
        root->GetChildren(more);
    }
    ASSERT_EQ(2u, first.size());
    EXPECT_EQ(VELString("a"), first[0]->GetName());
    VELString x;
    EXPECT_EQ(VEL_SUCCESS, first[0]->GetAttributeValue("x", x));
    EXPECT_EQ(VELString("1"), x);
}

TEST(VELXMLNode, GetAttributeValueWritesThePresentValue)
{
    TempDir dir;
    ParseOutcome holder;
    VELXMLNode* root = RootOf(dir, "<r baseLocation=\"downloads.example.net\" releaseID=\"A01\"/>", holder);
    ASSERT_NE(nullptr, root);
    VELString value("preset");
    EXPECT_EQ(VEL_SUCCESS, root->GetAttributeValue(VELString("baseLocation"), value));
    EXPECT_EQ(VELString("downloads.example.net"), value);
    EXPECT_EQ(VEL_SUCCESS, root->GetAttributeValue("releaseID", value));
    EXPECT_EQ(VELString("A01"), value);
}

TEST(VELXMLNode, GetAttributeValueMissingFailsAndLeavesTheValue)
{
    TempDir dir;
    ParseOutcome holder;
    VELXMLNode* root = RootOf(dir, "<r version=\"1\"/>", holder);
    ASSERT_NE(nullptr, root);
    VELString value("preset");
    EXPECT_NE(VEL_SUCCESS, root->GetAttributeValue(VELString("dateTime"), value));
    EXPECT_EQ(VELString("preset"), value);
    // Attribute names are case-sensitive.
    EXPECT_NE(VEL_SUCCESS, root->GetAttributeValue("Version", value));
    EXPECT_EQ(VELString("preset"), value);
}

TEST(VELXMLNode, GetAttributeValuePresentButEmptySucceedsWithEmptyText)
{
    TempDir dir;
    ParseOutcome holder;
    VELXMLNode* root = RootOf(dir, "<r path=\"\"/>", holder);
    ASSERT_NE(nullptr, root);
    VELString value("preset");
    EXPECT_EQ(VEL_SUCCESS, root->GetAttributeValue("path", value));
    EXPECT_TRUE(value.IsEmpty());
}

TEST(VELXMLNode, GetAttributeValueDecodesPredefinedEntities)
{
    TempDir dir;
    ParseOutcome holder;
    VELXMLNode* root = RootOf(dir, "<r t=\"a &amp; b &lt;c&gt; &quot;d&quot; &#233;\"/>", holder);
    ASSERT_NE(nullptr, root);
    VELString value;
    EXPECT_EQ(VEL_SUCCESS, root->GetAttributeValue("t", value));
    EXPECT_EQ(VELString(u"a & b <c> \"d\" \u00E9"), value);
}

TEST(VELXMLNode, GetValueOfTextAndCDATA)
{
    TempDir dir;
    ParseOutcome holder;
    VELXMLNode* root =
        RootOf(dir, "<r><t>Dell &amp; Co</t><c><![CDATA[<raw> & text]]></c><e/><n><x/>after</n></r>", holder);
    ASSERT_NE(nullptr, root);
    VELXMLNode* t = OnlyChild(*root, "t");
    VELXMLNode* c = OnlyChild(*root, "c");
    VELXMLNode* e = OnlyChild(*root, "e");
    VELXMLNode* n = OnlyChild(*root, "n");
    ASSERT_TRUE(t && c && e && n);
    EXPECT_EQ(VELString("Dell & Co"), t->GetValue());
    EXPECT_EQ(VELString("<raw> & text"), c->GetValue());
    EXPECT_TRUE(e->GetValue().IsEmpty());
    // The first text child, even when an element comes before it.
    EXPECT_EQ(VELString("after"), n->GetValue());
}

TEST(VELXMLNode, FirstChildNodeNameOfTextIsTheText)
{
    TempDir dir;
    ParseOutcome holder;
    VELXMLNode* root = RootOf(dir, "<r><d>Systems Management<x/></d></r>", holder);
    ASSERT_NE(nullptr, root);
    VELXMLNode* d = OnlyChild(*root, "d");
    ASSERT_NE(nullptr, d);
    EXPECT_EQ(VELString("Systems Management"), d->GetFirstChildNodeName());
}

TEST(VELXMLNode, FirstChildNodeNameOfCDATAIsItsText)
{
    TempDir dir;
    ParseOutcome holder;
    VELXMLNode* root = RootOf(dir, "<r><d><![CDATA[Network & Storage]]></d></r>", holder);
    ASSERT_NE(nullptr, root);
    VELXMLNode* d = OnlyChild(*root, "d");
    ASSERT_NE(nullptr, d);
    EXPECT_EQ(VELString("Network & Storage"), d->GetFirstChildNodeName());
}

TEST(VELXMLNode, FirstChildNodeNameOfElementIsItsName)
{
    TempDir dir;
    ParseOutcome holder;
    VELXMLNode* root = RootOf(dir, "<r><d><Inner>text</Inner>more</d></r>", holder);
    ASSERT_NE(nullptr, root);
    VELXMLNode* d = OnlyChild(*root, "d");
    ASSERT_NE(nullptr, d);
    EXPECT_EQ(VELString("Inner"), d->GetFirstChildNodeName());
}

TEST(VELXMLNode, FirstChildNodeNameWithoutChildrenIsEmpty)
{
    TempDir dir;
    ParseOutcome holder;
    VELXMLNode* root = RootOf(dir, "<r><d lang=\"en\"/><e></e></r>", holder);
    ASSERT_NE(nullptr, root);
    VELXMLNode* d = OnlyChild(*root, "d");
    VELXMLNode* e = OnlyChild(*root, "e");
    ASSERT_TRUE(d && e);
    EXPECT_TRUE(d->GetFirstChildNodeName().IsEmpty());
    EXPECT_TRUE(e->GetFirstChildNodeName().IsEmpty());
}

namespace {

const char* const kEncodedDocument = "<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n"
                                     "<Wurzel art=\"caf\xC3\xA9\">"
                                     "<Gr\xC3\xB6\xC3\x9F"
                                     "e wert=\"\xE2\x82\xAC 5\">Gr\xC3\xBC\xC3\x9F"
                                     "e \xF0\x9F\x98\x80</Gr\xC3\xB6\xC3\x9F"
                                     "e>"
                                     "<Plain>ascii</Plain>"
                                     "</Wurzel>";

void ExpectEncodedDocumentContents(const VELXMLNode& root)
{
    EXPECT_EQ(VELString("Wurzel"), root.GetName());
    VELString art;
    EXPECT_EQ(VEL_SUCCESS, root.GetAttributeValue("art", art));
    EXPECT_EQ(VELString(u"caf\u00E9"), art);
    std::vector<VELXMLNode*> children;
    root.GetChildren(children);
    ASSERT_EQ(2u, children.size());
    EXPECT_EQ(VELString(u"Gr\u00F6\u00DFe"), children[0]->GetName());
    VELString wert;
    EXPECT_EQ(VEL_SUCCESS, children[0]->GetAttributeValue(VELString(u"wert"), wert));
    EXPECT_EQ(VELString(u"\u20AC 5"), wert);
    EXPECT_EQ(VELString(u"Gr\u00FC\u00DFe \U0001F600"), children[0]->GetValue());
    std::vector<VELXMLNode*> byName;
    root.GetChildren(VELString(u"Gr\u00F6\u00DFe"), byName);
    EXPECT_EQ(1u, byName.size());
    EXPECT_EQ(VELString("Plain"), children[1]->GetName());
    EXPECT_EQ(VELString("ascii"), children[1]->GetValue());
}

}  // namespace

TEST(VELDOMParserEncoding, UTF8DocumentWithNonASCIIText)
{
    TempDir dir;
    std::string utf8 = kEncodedDocument;
    utf8.replace(utf8.find("UTF-16"), 6, "UTF-8");
    ParseOutcome outcome = ParseFile(dir.Write("utf8.xml", utf8));
    EXPECT_EQ(0, outcome.errorCode);
    ASSERT_NE(nullptr, outcome.document);
    ASSERT_NE(nullptr, outcome.document->GetRoot());
    ExpectEncodedDocumentContents(*outcome.document->GetRoot());
}

TEST(VELDOMParserEncoding, UTF16LittleEndianWithBOMReadsLikeUTF8)
{
    TempDir dir;
    ParseOutcome outcome = ParseFile(dir.Write("le.xml", ToUTF16LE(kEncodedDocument)));
    EXPECT_EQ(0, outcome.errorCode) << outcome.errorText.GetUTF8String();
    ASSERT_NE(nullptr, outcome.document);
    ASSERT_NE(nullptr, outcome.document->GetRoot());
    ExpectEncodedDocumentContents(*outcome.document->GetRoot());
}

TEST(VELDOMParserEncoding, UTF16BigEndianWithBOMReadsLikeUTF8)
{
    TempDir dir;
    ParseOutcome outcome = ParseFile(dir.Write("be.xml", ToUTF16BE(kEncodedDocument)));
    EXPECT_EQ(0, outcome.errorCode) << outcome.errorText.GetUTF8String();
    ASSERT_NE(nullptr, outcome.document);
    ASSERT_NE(nullptr, outcome.document->GetRoot());
    ExpectEncodedDocumentContents(*outcome.document->GetRoot());
}

// Entities a document type declaration defines are never expanded: a
// document that refers to one fails, and the error text says where and what.
std::string ReferenceRefused(const std::string& name)
{
    return "a reference to an entity other than lt, gt, amp, apos and quot: &" + name +
           "; (entities a document declares are never expanded)";
}

TEST(VELDOMParserEntities, ReferenceToAnInternalEntityFailsTheParse)
{
    TempDir dir;
    const std::string doctype = "<?xml version=\"1.0\"?>\n"
                                "<!DOCTYPE r [\n"
                                "  <!ENTITY greeting \"EXPANDED-ENTITY-TEXT\">\n"
                                "]>\n";
    // In an attribute value (column 8) and in a text (column 21): the error
    // points at the first reference.
    for (const auto& body : std::vector<std::pair<std::string, std::string>>{
             {"<r a=\"x&greeting;y\"><t>before &greeting; after</t></r>", "line 5, column 8: "},
             {"<r a=\"xy\"><t>before &greeting; after</t></r>", "line 5, column 21: "}}) {
        ParseOutcome outcome = ParseFile(dir.Write("doc.xml", doctype + body.first));
        EXPECT_EQ(nullptr, outcome.document) << body.first;
        EXPECT_NE(0, outcome.errorCode) << body.first;
        EXPECT_EQ(body.second + ReferenceRefused("greeting"), outcome.errorText.GetUTF8String());
    }
}

TEST(VELDOMParserEntities, InternalEntityDeclaredButNotReferencedIsReadAndNeverExpanded)
{
    TempDir dir;
    ParseOutcome holder;
    VELXMLNode* root = RootOf(dir,
                              "<?xml version=\"1.0\"?>\n"
                              "<!DOCTYPE r [\n"
                              "  <!ENTITY greeting \"EXPANDED-ENTITY-TEXT\">\n"
                              "]>\n"
                              "<r a=\"x&amp;y\"><t>before greeting after</t></r>",
                              holder);
    ASSERT_NE(nullptr, root);
    VELXMLNode* t = OnlyChild(*root, "t");
    ASSERT_NE(nullptr, t);
    EXPECT_EQ(VELString("before greeting after"), t->GetValue());
    VELString a;
    EXPECT_EQ(VEL_SUCCESS, root->GetAttributeValue("a", a));
    EXPECT_EQ(VELString("x&y"), a);
}

TEST(VELDOMParserEntities, ReferenceToAnExternalEntityFailsTheParseAndNeverReadsTheFile)
{
    TempDir dir;
    std::string secret = dir.Write("secret.txt", "SECRET-FILE-CONTENTS");
    const std::string doctype = "<?xml version=\"1.0\"?>\n"
                                "<!DOCTYPE r [\n"
                                "  <!ENTITY local SYSTEM \"file://" +
                                secret +
                                "\">\n"
                                "  <!ENTITY passwd SYSTEM \"file:///etc/passwd\">\n"
                                "]>\n";
    // Both references, and each alone: the error points at the first one.
    for (const auto& body : std::vector<std::pair<std::string, std::string>>{
             {"<r><t>[&local;]</t><u>[&passwd;]</u></r>", "line 6, column 8: " + ReferenceRefused("local")},
             {"<r><t>[local]</t><u>[&passwd;]</u></r>", "line 6, column 22: " + ReferenceRefused("passwd")},
             {"<r><t>[&local;]</t></r>", "line 6, column 8: " + ReferenceRefused("local")}}) {
        ParseOutcome outcome = ParseFile(dir.Write("doc.xml", doctype + body.first));
        EXPECT_EQ(nullptr, outcome.document) << body.first;
        EXPECT_NE(0, outcome.errorCode) << body.first;
        const std::string text = outcome.errorText.GetUTF8String();
        EXPECT_EQ(body.second, text);
        EXPECT_EQ(std::string::npos, text.find("SECRET-FILE-CONTENTS")) << text;
        EXPECT_EQ(std::string::npos, text.find("root:")) << text;
    }
}

TEST(VELDOMParserEntities, ExternalEntityDeclaredButNotReferencedIsReadAndTheFileNeverRead)
{
    TempDir dir;
    std::string secret = dir.Write("secret.txt", "SECRET-FILE-CONTENTS");
    ParseOutcome holder;
    VELXMLNode* root = RootOf(dir,
                              "<?xml version=\"1.0\"?>\n"
                              "<!DOCTYPE r SYSTEM \"file://" +
                                  secret +
                                  "\" [\n"
                                  "  <!ENTITY local SYSTEM \"file://" +
                                  secret +
                                  "\">\n"
                                  "  <!ENTITY passwd SYSTEM \"file:///etc/passwd\">\n"
                                  "]>\n"
                                  "<r><t>[local]</t><u>[passwd]</u></r>",
                              holder);
    ASSERT_NE(nullptr, root);
    VELXMLNode* t = OnlyChild(*root, "t");
    VELXMLNode* u = OnlyChild(*root, "u");
    ASSERT_TRUE(t && u);
    EXPECT_EQ(VELString("[local]"), t->GetValue());
    EXPECT_EQ(VELString("[passwd]"), u->GetValue());
    std::vector<VELXMLNode*> children;
    root->GetChildren(children);
    EXPECT_EQ((std::vector<std::string>{"t", "u"}), NamesOf(children));
}
