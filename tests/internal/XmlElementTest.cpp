// The readers' walk over a document by value (XmlElement): null nodes,
// element-only navigation, named lookups, the only-child query, attribute
// and child gathering into arrays, and discarding parts of a document that
// a reader is done with.
#include "TestSupport.h"

#include "base/VELXMLElement.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using qrm::detail::XmlElement;

// A parsed document that lives as long as this object.
class Parsed {
public:
    explicit Parsed(const std::string& xml)
    {
        int errorCode = 0;
        VELString errorText;
        mDocument.reset(VELDOMParser::Parse(VELFile(mDir.Write("doc.xml", xml)), errorCode, errorText));
        EXPECT_EQ(0, errorCode) << errorText.GetUTF8String();
        EXPECT_NE(nullptr, mDocument);
    }

    // The root by value (a null node when the document did not parse).
    XmlElement Root() const
    {
        if (!mDocument || mDocument->GetRoot() == nullptr) {
            return XmlElement();
        }
        return XmlElement::Of(*mDocument->GetRoot());
    }

    // The root as the document model hands it out.
    VELXMLNode* RootNode() const { return mDocument ? mDocument->GetRoot() : nullptr; }

    VELXMLDocument* Document() const { return mDocument.get(); }

private:
    TempDir mDir;
    std::unique_ptr<VELXMLDocument> mDocument;
};

std::string Name(const XmlElement& node) { return node.GetName().GetUTF8String(); }

// The "id" attribute, or "(none)".
std::string Id(const XmlElement& node)
{
    const char* text = node.GetAttributeText("id");
    return text == nullptr ? "(none)" : text;
}

// Names of the child elements, walked with FirstChildElement/NextSiblingElement.
std::vector<std::string> WalkedNames(const XmlElement& parent)
{
    std::vector<std::string> names;
    for (XmlElement child = parent.FirstChildElement(); child; child = child.NextSiblingElement()) {
        names.push_back(Name(child));
    }
    return names;
}

// Names of the child elements, from GetChildren.
std::vector<std::string> ListedNames(const VELXMLNode& parent)
{
    std::vector<VELXMLNode*> children;
    EXPECT_EQ(VEL_SUCCESS, parent.GetChildren(children));
    std::vector<std::string> names;
    for (const VELXMLNode* child : children) {
        names.push_back(child->GetName().GetUTF8String());
    }
    return names;
}

// "<d>" nested `depth` times inside the root element.
std::string Nested(std::size_t depth)
{
    std::string xml = "<root>";
    xml.reserve(depth * 7 + 16);
    for (std::size_t i = 0; i < depth; ++i) {
        xml += "<d>";
    }
    for (std::size_t i = 0; i < depth; ++i) {
        xml += "</d>";
    }
    return xml + "</root>";
}

// How many "d" elements lie on the chain of first children below `node`.
// A root holding "keep" (id k1), "top" with a chain of `depth` - 1 nested
// "d" inside it, and "keep" (id k2). Each level holds text, a leaf before
// and after the chain, and an attribute, so that taking the chain apart
// meets every kind of node.
std::string KeptAroundAChain(std::size_t depth)
{
    std::string xml = "<root><keep id=\"k1\"/><top>";
    for (std::size_t i = 1; i < depth; ++i) {
        xml += "<d a=\"" + std::to_string(i) + "\">t<leaf/>";
    }
    for (std::size_t i = 1; i < depth; ++i) {
        xml += "<after/></d>";
    }
    return xml + "</top><keep id=\"k2\"/></root>";
}

std::size_t ChainDepth(XmlElement node)
{
    std::size_t depth = 0;
    for (node = node.FirstChildElement(); node; node = node.FirstChildElement()) {
        ++depth;
    }
    return depth;
}

}  // namespace

// ---- Null nodes

TEST(XmlElementNull, DefaultConstructedNodeIsNullAndConvertsToFalse)
{
    XmlElement node;
    EXPECT_TRUE(node.IsNull());
    EXPECT_FALSE(static_cast<bool>(node));
    EXPECT_TRUE(!node);
}

TEST(XmlElementNull, ParsedRootIsNotNullAndConvertsToTrue)
{
    Parsed doc("<root/>");
    XmlElement root = doc.Root();
    EXPECT_FALSE(root.IsNull());
    EXPECT_TRUE(static_cast<bool>(root));
    EXPECT_EQ("root", Name(root));
}

TEST(XmlElementNull, EveryQueryOnANullNodeFailsOrGivesAnEmptyResult)
{
    XmlElement node;
    EXPECT_EQ(nullptr, node.GetAttributeText("id"));
    VELString value("kept");
    EXPECT_FALSE(node.GetAttributeValue("id", value));
    EXPECT_EQ("kept", value.GetUTF8String());
    EXPECT_TRUE(node.GetOnlyChild("a").IsNull());
    EXPECT_TRUE(node.FirstChildElement().IsNull());
    EXPECT_TRUE(node.FirstChildElement("a").IsNull());
    EXPECT_TRUE(node.NextSiblingElement().IsNull());
    EXPECT_TRUE(node.NextSiblingElement("a").IsNull());
    EXPECT_TRUE(node.GetName().IsEmpty());
    EXPECT_TRUE(node.GetValue().IsEmpty());
    EXPECT_TRUE(node.GetFirstChildNodeName().IsEmpty());
    const char* names[2] = {"untouched", "untouched"};
    const char* texts[2] = {"untouched", "untouched"};
    EXPECT_EQ(0u, node.GetAttributeTexts(names, texts, 2));
    EXPECT_STREQ("untouched", names[0]);
    EXPECT_STREQ("untouched", texts[0]);
    XmlElement nodes[2];
    EXPECT_EQ(0u, node.GetChildElements(names, nodes, 2));
    EXPECT_STREQ("untouched", names[0]);
    node.Discard();
    EXPECT_TRUE(node.IsNull());
}

TEST(XmlElementNull, NavigationPastTheEndGivesNullNodes)
{
    Parsed doc("<root><only/></root>");
    XmlElement only = doc.Root().FirstChildElement();
    ASSERT_FALSE(only.IsNull());
    EXPECT_TRUE(only.NextSiblingElement().IsNull());
    EXPECT_TRUE(only.NextSiblingElement("only").IsNull());
    EXPECT_TRUE(only.FirstChildElement().IsNull());
    EXPECT_TRUE(doc.Root().NextSiblingElement().IsNull());
    EXPECT_TRUE(only.FirstChildElement().FirstChildElement().IsNull());
}

// ---- Element-only navigation

TEST(XmlElement, FirstAndNextSkipTextCDATAAndCommentsInDocumentOrder)
{
    Parsed doc("<root>lead text<!-- a comment --><![CDATA[<x/>]]><a/>between<b><inner/></b>"
               "<!-- another --><![CDATA[more]]><c/>tail</root>");
    EXPECT_EQ((std::vector<std::string>{"a", "b", "c"}), WalkedNames(doc.Root()));
    EXPECT_EQ(ListedNames(*doc.RootNode()), WalkedNames(doc.Root()));
}

TEST(XmlElement, ElementWithOnlyTextOrCDATAHasNoChildElement)
{
    Parsed doc("<root><t>text</t><c><![CDATA[<d/>]]></c><m><!-- <e/> --></m></root>");
    XmlElement t = doc.Root().FirstChildElement();
    ASSERT_EQ("t", Name(t));
    EXPECT_TRUE(t.FirstChildElement().IsNull());
    XmlElement c = t.NextSiblingElement();
    ASSERT_EQ("c", Name(c));
    EXPECT_TRUE(c.FirstChildElement().IsNull());
    EXPECT_TRUE(c.FirstChildElement("d").IsNull());
    XmlElement m = c.NextSiblingElement();
    ASSERT_EQ("m", Name(m));
    EXPECT_TRUE(m.FirstChildElement().IsNull());
    EXPECT_TRUE(m.FirstChildElement("e").IsNull());
}

TEST(XmlElement, NodesObtainedByValueReadTheSameElementAsThePointersOfGetChildren)
{
    Parsed doc("<root><a id=\"1\">one</a><b id=\"2\">two</b></root>");
    std::vector<VELXMLNode*> listed;
    ASSERT_EQ(VEL_SUCCESS, doc.RootNode()->GetChildren(listed));
    ASSERT_EQ(2u, listed.size());
    XmlElement first = doc.Root().FirstChildElement();
    XmlElement second = first.NextSiblingElement();
    EXPECT_EQ(XmlElement::Of(*listed[0]).GetAttributeText("id"), first.GetAttributeText("id"));
    EXPECT_EQ(XmlElement::Of(*listed[1]).GetAttributeText("id"), second.GetAttributeText("id"));
    EXPECT_EQ("one", first.GetValue().GetUTF8String());
    EXPECT_EQ("two", second.GetValue().GetUTF8String());
    XmlElement copy = second;
    EXPECT_EQ("2", Id(copy));
}

TEST(XmlElement, NamedVariantsReturnOnlyElementsOfExactlyThatName)
{
    Parsed doc("<root>a<![CDATA[a]]><A id=\"upper\"/><a id=\"1\"/><ab id=\"ab\"/><b id=\"b\"/>"
               "<a id=\"2\"><a id=\"nested\"/></a>text<a id=\"3\"/><b id=\"b2\"/></root>");
    XmlElement root = doc.Root();
    std::vector<std::string> ids;
    for (XmlElement a = root.FirstChildElement("a"); a; a = a.NextSiblingElement("a")) {
        ids.push_back(Id(a));
    }
    EXPECT_EQ((std::vector<std::string>{"1", "2", "3"}), ids);
    EXPECT_EQ("upper", Id(root.FirstChildElement("A")));
    EXPECT_TRUE(root.FirstChildElement("A").NextSiblingElement("A").IsNull());
    EXPECT_EQ("ab", Id(root.FirstChildElement("ab")));
    EXPECT_TRUE(root.FirstChildElement("x").IsNull());
    EXPECT_TRUE(root.FirstChildElement("").IsNull());
    EXPECT_TRUE(root.FirstChildElement(nullptr).IsNull());
    XmlElement first = root.FirstChildElement("a");
    EXPECT_EQ("b", Id(first.NextSiblingElement("b")));
    EXPECT_EQ("b2", Id(first.NextSiblingElement("b").NextSiblingElement("b")));
    EXPECT_TRUE(first.NextSiblingElement("ab").NextSiblingElement("ab").IsNull());
    EXPECT_TRUE(first.NextSiblingElement(nullptr).IsNull());
    // A sibling lookup never looks back or down.
    EXPECT_TRUE(first.NextSiblingElement("A").IsNull());
    XmlElement second = first.NextSiblingElement("a");
    EXPECT_EQ("nested", Id(second.FirstChildElement("a")));
    EXPECT_EQ("3", Id(second.NextSiblingElement("a")));
}

// ---- Only child

TEST(XmlElement, GetOnlyChildGivesTheChildWhenExactlyOneHasThatName)
{
    Parsed doc("<root>text<a id=\"x\"/><b id=\"1\"/><c/><b id=\"2\"/><d><e/></d></root>");
    XmlElement root = doc.Root();
    EXPECT_EQ("x", Id(root.GetOnlyChild("a")));
    EXPECT_EQ("c", Name(root.GetOnlyChild("c")));
    EXPECT_TRUE(root.GetOnlyChild("b").IsNull());
    EXPECT_TRUE(root.GetOnlyChild("missing").IsNull());
    EXPECT_TRUE(root.GetOnlyChild("e").IsNull());  // a grandchild does not count
    EXPECT_EQ("e", Name(root.GetOnlyChild("d").GetOnlyChild("e")));
    EXPECT_TRUE(root.GetOnlyChild("A").IsNull());
}

TEST(XmlElement, GetOnlyChildWithThreeOfTheNameIsNull)
{
    Parsed doc("<root><a/><a/><a/></root>");
    EXPECT_TRUE(doc.Root().GetOnlyChild("a").IsNull());
}

// ---- Attributes

TEST(XmlElementAttributes, GetAttributeTextGivesTheDocumentsUTF8TextOrNull)
{
    Parsed doc("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
               "<root plain=\"value\" empty=\"\" accented=\"caf\xC3\xA9\" face=\"\xF0\x9F\x98\x80\" "
               "escaped=\"a&amp;b&lt;c&quot;\"/>");
    XmlElement root = doc.Root();
    EXPECT_STREQ("value", root.GetAttributeText("plain"));
    ASSERT_NE(nullptr, root.GetAttributeText("empty"));
    EXPECT_STREQ("", root.GetAttributeText("empty"));
    EXPECT_STREQ("caf\xC3\xA9", root.GetAttributeText("accented"));
    EXPECT_STREQ("\xF0\x9F\x98\x80", root.GetAttributeText("face"));
    EXPECT_STREQ("a&b<c\"", root.GetAttributeText("escaped"));
    EXPECT_EQ(nullptr, root.GetAttributeText("missing"));
    EXPECT_EQ(nullptr, root.GetAttributeText("Plain"));
    EXPECT_EQ(nullptr, root.GetAttributeText(nullptr));
}

TEST(XmlElementAttributes, AttributeTextOfAUTF16DocumentIsUTF8)
{
    Parsed doc(ToUTF16LE("<root name=\"gr\xC3\xBC\xC3\x9F \xF0\x9F\x98\x80\"/>"));
    EXPECT_STREQ("gr\xC3\xBC\xC3\x9F \xF0\x9F\x98\x80", doc.Root().GetAttributeText("name"));
}

namespace {

// Parses `xml`, which must fail, and gives the error text.
std::string ErrorOfAFailingParse(const TempDir& dir, const std::string& xml)
{
    int errorCode = 0;
    VELString errorText;
    std::unique_ptr<VELXMLDocument> parsed(
        VELDOMParser::Parse(VELFile(dir.Write("doc.xml", xml)), errorCode, errorText));
    EXPECT_EQ(nullptr, parsed) << xml;
    EXPECT_NE(0, errorCode) << xml;
    return errorText.GetUTF8String();
}

}  // namespace

TEST(XmlElementAttributes, DuplicateAttributeFailsTheParseAndTheErrorSaysWhere)
{
    TempDir dir;
    // The second "id" starts at column 28.
    EXPECT_EQ("line 1, column 28: an attribute given twice: id",
              ErrorOfAFailingParse(dir, "<root id=\"first\" other=\"o\" id=\"second\"/>"));
    // Among ten attributes, on a child: the two "id" start at columns 28 and
    // 59 of line 2, and the error is at the second.
    const std::string many = ErrorOfAFailingParse(
        dir,
        "<root>\n<e a=\"1\" b=\"2\" c=\"3\" d=\"4\" id=\"5\" f=\"6\" g=\"7\" h=\"8\" i=\"9\" id=\"10\"/>\n</root>");
    EXPECT_EQ("line 2, column 59: an attribute given twice: id", many);
    // The same value twice is no less a duplicate.
    EXPECT_EQ("line 1, column 13: an attribute given twice: a", ErrorOfAFailingParse(dir, "<root a=\"1\" a=\"1\"/>"));
}

TEST(XmlElementAttributes, SameAttributeNameOnTwoElementsOrInAnotherCaseIsNoDuplicate)
{
    Parsed doc("<root id=\"first\" ID=\"upper\"><child id=\"second\"/></root>");
    XmlElement root = doc.Root();
    ASSERT_FALSE(root.IsNull());
    EXPECT_STREQ("first", root.GetAttributeText("id"));
    EXPECT_STREQ("upper", root.GetAttributeText("ID"));
    EXPECT_STREQ("second", root.GetOnlyChild("child").GetAttributeText("id"));
}

TEST(XmlElementAttributes, GetAttributeTextsFillsInDocumentOrderAndCountsAll)
{
    Parsed doc("<root a=\"1\" b=\"2\" c=\"\" d=\"4\" e=\"5\"/>");
    XmlElement root = doc.Root();
    const char* names[8];
    const char* texts[8];
    for (std::size_t i = 0; i < 8; ++i) {
        names[i] = "unset";
        texts[i] = "unset";
    }
    ASSERT_EQ(5u, root.GetAttributeTexts(names, texts, 8));
    const char* expectedNames[] = {"a", "b", "c", "d", "e"};
    const char* expectedTexts[] = {"1", "2", "", "4", "5"};
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_STREQ(expectedNames[i], names[i]) << i;
        EXPECT_STREQ(expectedTexts[i], texts[i]) << i;
    }
    EXPECT_STREQ("unset", names[5]);
    EXPECT_STREQ("unset", texts[5]);
    EXPECT_EQ(root.GetAttributeText("d"), texts[3]);
}

TEST(XmlElementAttributes, GetAttributeTextsWithTooSmallACapacityWritesOnlyThatManyAndCountsAll)
{
    Parsed doc("<root a=\"1\" b=\"2\" c=\"3\" d=\"4\" e=\"5\"/>");
    XmlElement root = doc.Root();
    const char* names[5] = {"unset", "unset", "unset", "unset", "unset"};
    const char* texts[5] = {"unset", "unset", "unset", "unset", "unset"};
    EXPECT_EQ(5u, root.GetAttributeTexts(names, texts, 2));
    EXPECT_STREQ("a", names[0]);
    EXPECT_STREQ("1", texts[0]);
    EXPECT_STREQ("b", names[1]);
    EXPECT_STREQ("2", texts[1]);
    for (std::size_t i = 2; i < 5; ++i) {
        EXPECT_STREQ("unset", names[i]) << i;
        EXPECT_STREQ("unset", texts[i]) << i;
    }
    EXPECT_EQ(5u, root.GetAttributeTexts(nullptr, nullptr, 0));
}

TEST(XmlElementAttributes, ElementWithoutAttributesHasNone)
{
    Parsed doc("<root><child>text</child></root>");
    const char* names[1] = {"unset"};
    const char* texts[1] = {"unset"};
    EXPECT_EQ(0u, doc.Root().GetAttributeTexts(names, texts, 1));
    EXPECT_STREQ("unset", names[0]);
    EXPECT_EQ(nullptr, doc.Root().FirstChildElement().GetAttributeText("child"));
}

// ---- Child gathering

TEST(XmlElementChildren, GetChildElementsFillsNamesAndNodesInDocumentOrder)
{
    Parsed doc("<root>t<a id=\"1\"/><![CDATA[c]]><b id=\"2\"/><!-- x --><a id=\"3\"/>u<c id=\"4\"/></root>");
    const char* names[6];
    XmlElement nodes[6];
    for (const char*& name : names) {
        name = "unset";
    }
    ASSERT_EQ(4u, doc.Root().GetChildElements(names, nodes, 6));
    const char* expectedNames[] = {"a", "b", "a", "c"};
    const char* expectedIds[] = {"1", "2", "3", "4"};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_STREQ(expectedNames[i], names[i]) << i;
        EXPECT_EQ(expectedIds[i], Id(nodes[i])) << i;
        EXPECT_EQ(expectedNames[i], Name(nodes[i])) << i;
    }
    EXPECT_STREQ("unset", names[4]);
    EXPECT_TRUE(nodes[4].IsNull());
    EXPECT_TRUE(nodes[5].IsNull());
    // The gathered nodes navigate like any other.
    EXPECT_EQ("2", Id(nodes[0].NextSiblingElement()));
    EXPECT_EQ("4", Id(nodes[2].NextSiblingElement()));
}

TEST(XmlElementChildren, GetChildElementsWithTooSmallACapacityWritesOnlyThatManyAndCountsAll)
{
    Parsed doc("<root><a/><b/><c/><d/><e/></root>");
    const char* names[5] = {"unset", "unset", "unset", "unset", "unset"};
    XmlElement nodes[5];
    EXPECT_EQ(5u, doc.Root().GetChildElements(names, nodes, 3));
    EXPECT_STREQ("a", names[0]);
    EXPECT_STREQ("b", names[1]);
    EXPECT_STREQ("c", names[2]);
    EXPECT_STREQ("unset", names[3]);
    EXPECT_STREQ("unset", names[4]);
    EXPECT_EQ("c", Name(nodes[2]));
    EXPECT_TRUE(nodes[3].IsNull());
    EXPECT_TRUE(nodes[4].IsNull());
    EXPECT_EQ(5u, doc.Root().GetChildElements(nullptr, nullptr, 0));
}

TEST(XmlElementChildren, ElementWithoutChildElementsHasNone)
{
    Parsed doc("<root><leaf>only text<![CDATA[and cdata]]></leaf></root>");
    const char* names[1] = {"unset"};
    XmlElement nodes[1];
    EXPECT_EQ(0u, doc.Root().FirstChildElement().GetChildElements(names, nodes, 1));
    EXPECT_STREQ("unset", names[0]);
    EXPECT_TRUE(nodes[0].IsNull());
}

// ---- Discard

TEST(XmlElementDiscard, DiscardedElementLeavesItsParentAndTheNodeReadsNull)
{
    Parsed doc("<root><a id=\"1\"/>text<b id=\"2\"><x/><y>t</y></b><c id=\"3\"/></root>");
    XmlElement root = doc.Root();
    XmlElement b = root.FirstChildElement("b");
    ASSERT_FALSE(b.IsNull());
    b.Discard();
    EXPECT_TRUE(b.IsNull());
    EXPECT_FALSE(static_cast<bool>(b));
    EXPECT_EQ((std::vector<std::string>{"a", "c"}), WalkedNames(root));
    EXPECT_EQ((std::vector<std::string>{"a", "c"}), ListedNames(*doc.RootNode()));
    EXPECT_TRUE(root.FirstChildElement("b").IsNull());
    EXPECT_TRUE(root.GetOnlyChild("b").IsNull());
    EXPECT_EQ("3", Id(root.FirstChildElement("a").NextSiblingElement()));
    const char* names[4];
    XmlElement nodes[4];
    EXPECT_EQ(2u, root.GetChildElements(names, nodes, 4));
    // The rest of the document reads as before.
    EXPECT_EQ("1", Id(root.FirstChildElement("a")));
    EXPECT_EQ("root", doc.Document()->GetRoot()->GetName().GetUTF8String());
}

TEST(XmlElementDiscard, DiscardingTheFirstOrLastChildKeepsTheOthersInOrder)
{
    Parsed doc("<root><a/><b/><c/><d/></root>");
    XmlElement root = doc.Root();
    XmlElement first = root.FirstChildElement();
    first.Discard();
    EXPECT_EQ((std::vector<std::string>{"b", "c", "d"}), WalkedNames(root));
    XmlElement last = root.FirstChildElement("d");
    last.Discard();
    EXPECT_EQ((std::vector<std::string>{"b", "c"}), WalkedNames(root));
    EXPECT_TRUE(root.FirstChildElement("c").NextSiblingElement().IsNull());
}

TEST(XmlElementDiscard, DiscardingANestedElementLeavesItsSiblingsAndAncestors)
{
    Parsed doc("<root><a><x id=\"x\"/><y><z/></y><w/></a><b/></root>");
    XmlElement root = doc.Root();
    XmlElement y = root.FirstChildElement("a").FirstChildElement("y");
    y.Discard();
    EXPECT_EQ((std::vector<std::string>{"x", "w"}), WalkedNames(root.FirstChildElement("a")));
    EXPECT_EQ((std::vector<std::string>{"a", "b"}), WalkedNames(root));
    EXPECT_EQ("x", Id(root.FirstChildElement("a").GetOnlyChild("x")));
}

TEST(XmlElementDiscard, DiscardingTheRootDoesNothing)
{
    Parsed doc("<root id=\"r\"><a/><b/></root>");
    XmlElement root = doc.Root();
    root.Discard();
    EXPECT_FALSE(root.IsNull());
    EXPECT_EQ("root", Name(root));
    EXPECT_EQ("r", Id(root));
    EXPECT_EQ((std::vector<std::string>{"a", "b"}), WalkedNames(root));
    ASSERT_NE(nullptr, doc.Document()->GetRoot());
    EXPECT_EQ("root", doc.Document()->GetRoot()->GetName().GetUTF8String());
    EXPECT_EQ((std::vector<std::string>{"a", "b"}), ListedNames(*doc.Document()->GetRoot()));
}

TEST(XmlElementDiscard, ReaderCanDiscardEveryEntryWhileWalking)
{
    std::string xml = "<root>";
    for (int i = 0; i < 10000; ++i) {
        xml += "<e id=\"" + std::to_string(i) + "\"><v>" + std::to_string(i) + "</v></e>\n";
    }
    xml += "</root>";
    Parsed doc(xml);
    XmlElement root = doc.Root();
    int seen = 0;
    for (XmlElement entry = root.FirstChildElement(); entry;) {
        XmlElement next = entry.NextSiblingElement();
        ASSERT_EQ(std::to_string(seen), Id(entry));
        ASSERT_EQ(std::to_string(seen), entry.GetOnlyChild("v").GetValue().GetUTF8String());
        entry.Discard();
        ASSERT_TRUE(entry.IsNull());
        entry = next;
        ++seen;
    }
    EXPECT_EQ(10000, seen);
    EXPECT_TRUE(root.FirstChildElement().IsNull());
    EXPECT_TRUE(ListedNames(*doc.RootNode()).empty());
}

TEST(XmlElementDiscard, SubtreesAroundTheDepthWhereTakingApartChangesAreDiscardedWhole)
{
    for (std::size_t depth : {1u, 2u, 62u, 63u, 64u, 65u, 66u, 1000u}) {
        SCOPED_TRACE(depth);
        Parsed doc(KeptAroundAChain(depth));
        XmlElement top = doc.Root().FirstChildElement("top");
        ASSERT_FALSE(top.IsNull());
        std::size_t levels = 0;
        for (XmlElement d = top.FirstChildElement("d"); d; d = d.FirstChildElement("d")) {
            ++levels;
        }
        ASSERT_EQ(depth - 1, levels);
        top.Discard();
        EXPECT_TRUE(top.IsNull());
        EXPECT_EQ((std::vector<std::string>{"keep", "keep"}), WalkedNames(doc.Root()));
        EXPECT_EQ("k2", Id(doc.Root().FirstChildElement().NextSiblingElement()));
    }
}

// The readers discard through the document model, where the depth the
// checks found in the document decides whether a subtree is looked at
// before it is freed: on either side of that depth, the same result.
TEST(XmlElementDiscard, DocumentModelNodesAroundTheDepthWhereTakingApartChangesAreDiscardedWhole)
{
    for (std::size_t depth : {1u, 2u, 61u, 62u, 63u, 64u, 65u, 66u, 1000u}) {
        SCOPED_TRACE(depth);
        Parsed doc(KeptAroundAChain(depth));
        XmlElement top = doc.Root().FirstChildElement("top");
        ASSERT_FALSE(top.IsNull());
        VELXMLNode node = XmlElement::NodeOf(top, doc.Document());
        XmlElement::Discard(node);
        EXPECT_TRUE(XmlElement::Of(node).IsNull());
        EXPECT_EQ((std::vector<std::string>{"keep", "keep"}), WalkedNames(doc.Root()));
        EXPECT_EQ("k2", Id(doc.Root().FirstChildElement().NextSiblingElement()));
    }
}

TEST(XmlElementDiscard, DocumentModelNodeWithAMillionNestedLevelsIsDiscardedWithoutCrashing)
{
    Parsed doc(Nested(1000000));
    XmlElement root = doc.Root();
    VELXMLNode node = XmlElement::NodeOf(root.FirstChildElement(), doc.Document());
    XmlElement::Discard(node);
    EXPECT_TRUE(XmlElement::Of(node).IsNull());
    EXPECT_TRUE(root.FirstChildElement().IsNull());
    EXPECT_TRUE(ListedNames(*doc.RootNode()).empty());
}

TEST(XmlElementDiscard, ElementWithAHundredThousandNestedLevelsIsDiscardedWithoutCrashing)
{
    Parsed doc(Nested(100000));
    XmlElement root = doc.Root();
    XmlElement top = root.FirstChildElement();
    ASSERT_EQ("d", Name(top));
    EXPECT_EQ(99999u, ChainDepth(top));
    top.Discard();
    EXPECT_TRUE(top.IsNull());
    EXPECT_TRUE(root.FirstChildElement().IsNull());
    EXPECT_TRUE(ListedNames(*doc.RootNode()).empty());
}

TEST(XmlElementDiscard, ElementAHundredThousandLevelsDownIsDiscarded)
{
    Parsed doc(Nested(100000));
    XmlElement root = doc.Root();
    XmlElement deepest = root;
    XmlElement parent;
    for (XmlElement node = root.FirstChildElement(); node; node = node.FirstChildElement()) {
        parent = deepest;
        deepest = node;
    }
    ASSERT_EQ("d", Name(deepest));
    deepest.Discard();
    EXPECT_TRUE(deepest.IsNull());
    EXPECT_TRUE(parent.FirstChildElement().IsNull());
    EXPECT_EQ(99999u, ChainDepth(root));
}

TEST(XmlElementDiscard, ElementHalfWayDownAHundredThousandLevelsIsDiscarded)
{
    Parsed doc(Nested(100000));
    XmlElement root = doc.Root();
    XmlElement node = root;
    for (int level = 0; level < 50000; ++level) {
        node = node.FirstChildElement();
        ASSERT_FALSE(node.IsNull()) << level;
    }
    node.Discard();
    EXPECT_EQ(49999u, ChainDepth(root));
}
