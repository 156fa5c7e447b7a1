// Documents that are not well-formed XML fail to parse, each with the line,
// column and reason of its first fault; the encodings the XML layer reads
// give the same text as UTF-8.
#include "TestSupport.h"
#include "Texts.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace {

struct Parsed {
    std::unique_ptr<VELXMLDocument> document;
    int errorCode = 0;
    std::string errorText;
};

Parsed ParseBytes(const std::string& bytes)
{
    TempDir dir;
    Parsed parsed;
    VELString text;
    parsed.document.reset(VELDOMParser::Parse(VELFile(dir.Write("doc.xml", bytes)), parsed.errorCode, text));
    parsed.errorText = text.GetUTF8String();
    return parsed;
}

// A document that must be refused, and the start of the error text: its
// line, column and reason.
struct Refused {
    const char* name;
    std::string document;
    std::string error;
};

std::ostream& operator<<(std::ostream& out, const Refused& refused) { return out << refused.name; }

class NotWellFormed : public ::testing::TestWithParam<Refused> {};

TEST_P(NotWellFormed, FailsWithItsLineColumnAndReason)
{
    const Parsed parsed = ParseBytes(GetParam().document);
    EXPECT_EQ(nullptr, parsed.document);
    EXPECT_NE(0, parsed.errorCode);
    EXPECT_NE(1, parsed.errorCode);  // not "file cannot be opened"
    EXPECT_EQ(0u, parsed.errorText.rfind(GetParam().error, 0)) << parsed.errorText;
}

const std::string kLongNames = [] {
    std::string attributes;
    for (int i = 0; i < 70; ++i) {
        attributes += " attribute" + std::to_string(i) + "=\"v\"";
    }
    return attributes;
}();

INSTANTIATE_TEST_SUITE_P(
    XmlLayer, NotWellFormed,
    ::testing::Values(
        Refused{"TextBeforeTheRoot", "oops<a/>", "line 1, column 1: text before the root element"},
        Refused{"TextAfterTheRoot", "<a/>\nmore", "line 2, column 1: text after the root element"},
        Refused{"ASecondRoot", "<a/>\n<b/>", "line 2, column 1: a second root element"},
        Refused{"TwoDocumentsInOneFile", "<?xml version=\"1.0\"?><a/>\n<?xml version=\"1.0\"?><a/>",
                "line 2, column 1: an XML declaration that is not at the start of the document"},
        Refused{"CDATAOutsideTheRoot", "<a/><![CDATA[x]]>", "line 1, column 5: text after the root element"},
        Refused{"ADocumentTypeAfterTheRoot", "<a/><!DOCTYPE a>",
                "line 1, column 5: a document type declaration after the root element"},
        Refused{"TwoDocumentTypes", "<!DOCTYPE a><!DOCTYPE a><a/>",
                "line 1, column 13: a second document type declaration"},
        Refused{"AnAttributeTwice", "<a x=\"1\" y=\"2\" x=\"3\"/>", "line 1, column 16: an attribute given twice: x"},
        Refused{"AnAttributeTwiceWithBlanksAroundItsEquals", "<a x = \"1\"\n\tx\t=\r\n'2'/>",
                "line 2, column 2: an attribute given twice: x"},
        Refused{"AnAttributeTwiceTheFirstOnALineOfItsOwn", "<a\nx=\"1\"\ty=\"2\" x=\"3\"/>",
                "line 2, column 13: an attribute given twice: x"},
        Refused{"AnAttributeTwiceAmongSeventyOneSorted", "<a" + kLongNames + " attribute3='w'/>",
                "line 1, column 1114: an attribute given twice: attribute3"},
        Refused{"AnAttributeTwiceAmongSeventeenHashed",
                "<a a1='' a2='' a3='' a4='' a5='' a6='' a7='' a8='' a9='' b1='' b2='' b3='' b4='' b5='' b6='' "
                "b7='' a5=''/>",
                "line 1, column 100: an attribute given twice: a5"},
        Refused{"ACharacterReferenceToNul", "<a>&#0;</a>",
                "line 1, column 4: a character reference to a character XML does not allow"},
        Refused{"ACharacterReferenceToASurrogate", "<a b='&#xD800;'/>",
                "line 1, column 7: a character reference to a character XML does not allow"},
        Refused{"ACharacterReferenceBeyondUnicode", "<a>&#x110000;</a>",
                "line 1, column 4: a character reference to a character XML does not allow"},
        Refused{"ACharacterReferenceWithAnUpperCaseX", "<a>&#X41;</a>",
                "line 1, column 4: a malformed character reference"},
        Refused{"AControlCharacter", "<a>\x01</a>", "line 1, column 4: a character XML does not allow"},
        Refused{"UFFFEInText", "<a>\xEF\xBF\xBE</a>", "line 1, column 4: a character XML does not allow"},
        Refused{"BytesThatAreNotUTF8", "<a>\xC3\x28</a>", "line 1, column 4: bytes that are not UTF-8"},
        Refused{"AnEncodedSurrogate", "<a>\xED\xA0\x80</a>", "line 1, column 4: bytes that are not UTF-8"},
        Refused{"AnUndeclaredEntity", "<a>&nbsp;</a>",
                "line 1, column 4: a reference to an entity other than lt, gt, amp, apos and quot"},
        Refused{"ADeclaredEntity", "<!DOCTYPE a [<!ENTITY e \"x\">]>\n<a>&e;</a>",
                "line 2, column 4: a reference to an entity other than lt, gt, amp, apos and quot"},
        Refused{"AParameterEntityReference", "<!DOCTYPE a [<!ENTITY % e \"\"> %e;]><a/>",
                "line 1, column 31: a parameter-entity reference"},
        Refused{"ABareAmpersand", "<a>fish & chips</a>", "line 1, column 9: an '&' that starts no reference"},
        Refused{"DoubleHyphenInAComment", "<a><!-- a -- b --></a>", "line 1, column 11: \"--\" inside a comment"},
        Refused{"ACommentEndingInThreeHyphens", "<!-- a ---><a/>", "line 1, column 8: \"--\" inside a comment"},
        Refused{"LessThanInAnAttributeValue", "<a b=\"x<y\"/>", "line 1, column 8: '<' in an attribute value"},
        Refused{"CDATAEndInText", "<a>x]]>y</a>", "line 1, column 5: \"]]>\" in text"},
        Refused{"ADeclarationAfterBlanks", " <?xml version=\"1.0\"?><a/>",
                "line 1, column 2: an XML declaration that is not at the start of the document"},
        Refused{"ADeclarationWithoutVersion", "<?xml encoding=\"UTF-8\"?><a/>",
                "line 1, column 7: the XML declaration does not start with its version"},
        Refused{"ADeclarationOutOfOrder", "<?xml version=\"1.0\" standalone=\"yes\" encoding=\"UTF-8\"?><a/>",
                "line 1, column 38: the XML declaration is malformed"},
        Refused{"AnUpperCaseXmlInstruction", "<a><?XML version=\"1.0\"?></a>",
                "line 1, column 4: an XML declaration that is not at the start of the document"},
        Refused{"UTF8DeclaredUTF16", "<?xml version=\"1.0\" encoding=\"UTF-16\"?><a/>",
                "line 1, column 31: the document is in UTF-8 but its declaration names UTF-16"},
        Refused{"AnEncodingTheLayerDoesNotRead", "<?xml version=\"1.0\" encoding=\"Shift_JIS\"?><a/>",
                "line 1, column 31: the document's declared encoding Shift_JIS is not one this library reads"},
        Refused{"NonASCIIDeclaredUSASCII", "<?xml version=\"1.0\" encoding=\"US-ASCII\"?><a>\xC3\xA9</a>",
                "line 1, column 45: a byte outside ASCII in a document declared US-ASCII"},
        Refused{"UFEFFAfterAUTF16ByteOrderMark", ToUTF16LE("\xEF\xBB\xBF<a/>"),
                "line 1, column 1: text before the root element"},
        Refused{"UTF32", std::string("\x00\x00\xFE\xFF", 4) + "<a/>",
                "line 1, column 1: a document in UTF-32, which this library does not read"},
        Refused{"ANameCharacterXMLForbids", "<a\xC3\x97/>",
                "line 1, column 2: an element name with a character XML does not allow in names"},
        Refused{"AnAttributeNameCharacterXMLForbids", "<a \xC3\xB7=\"1\"/>",
                "line 1, column 4: an attribute name with a character XML does not allow in names"},
        // Names are read character by character only in tags that hold a
        // character beyond ASCII: wherever in the tag it is, and whatever
        // came before.
        Refused{"ANameCharacterXMLForbidsAfterTagsAllASCII",
                "<r>" + Repeat("<x a=\"1\" b=\"2\"/>", 10) + "<y\xC3\x97/></r>",
                "line 1, column 165: an element name with a character XML does not allow in names"},
        Refused{"ANameCharacterXMLForbidsInATagThatEndsTwoWindowsLater",
                "<r>" + std::string(57, 'x') + "<yyy\xC3\x97" + kLongNames + "/></r>",
                "line 1, column 62: an element name with a character XML does not allow in names"},
        Refused{"AnAttributeNameCharacterXMLForbidsAfterTextBeyondASCII",
                "<r>caf\xC3\xA9<x a=\"1\"/>" + Repeat("<x a=\"1\" b=\"2\"/>", 10) + "<y \xC3\xB7=\"1\"/></r>",
                "line 1, column 181: an attribute name with a character XML does not allow in names"},
        Refused{"MismatchedTagsAsTheParserSaysFirst", "<a>\n<b>\n</a>\n", "line 3, column 3: start-end tags mismatch"},
        Refused{"AnEmptyFile", "", "line 1, column 1: no root element"},
        Refused{"BlanksOnly", " \n ", "line 2, column 2: no root element"},
        Refused{"ATruncatedDocumentAsTheParserSays", "<a><b>text", "line 1, column 10: start-end tags mismatch"}),
    [](const ::testing::TestParamInfo<Refused>& info) { return std::string(info.param.name); });

// Documents that must be read, and the text of their root's first child.
struct Accepted {
    const char* name;
    std::string document;
    std::string text;
};

std::ostream& operator<<(std::ostream& out, const Accepted& accepted) { return out << accepted.name; }

class WellFormed : public ::testing::TestWithParam<Accepted> {};

TEST_P(WellFormed, IsReadWithItsText)
{
    const Parsed parsed = ParseBytes(GetParam().document);
    ASSERT_NE(nullptr, parsed.document) << parsed.errorText;
    EXPECT_EQ(0, parsed.errorCode);
    const VELXMLNode* root = parsed.document->GetRoot();
    ASSERT_NE(nullptr, root);
    std::vector<VELXMLNode*> children;
    root->GetChildren(children);
    ASSERT_EQ(1u, children.size());
    EXPECT_EQ(GetParam().text, children[0]->GetValue().GetUTF8String());
}

const std::string kCatalogLike = "<r><t>caf\xC3\xA9 &lt;&#x1F600;&#233;&amp;</t></r>";

INSTANTIATE_TEST_SUITE_P(
    XmlLayer, WellFormed,
    ::testing::Values(
        Accepted{"UTF8", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + kCatalogLike,
                 "caf\xC3\xA9 <\xF0\x9F\x98\x80\xC3\xA9&"},
        Accepted{"UTF8WithByteOrderMark", "\xEF\xBB\xBF<?xml version=\"1.0\"?>" + kCatalogLike,
                 "caf\xC3\xA9 <\xF0\x9F\x98\x80\xC3\xA9&"},
        Accepted{"UTF16LittleEndianWithByteOrderMark", ToUTF16LE(kCatalogLike),
                 "caf\xC3\xA9 <\xF0\x9F\x98\x80\xC3\xA9&"},
        Accepted{"UTF16BigEndianWithoutByteOrderMark",
                 ToUTF16BE("<?xml version=\"1.0\" encoding=\"UTF-16\"?>" + kCatalogLike).substr(2),
                 "caf\xC3\xA9 <\xF0\x9F\x98\x80\xC3\xA9&"},
        Accepted{"UTF16WithADanglingByte", ToUTF16LE(kCatalogLike) + "x", "caf\xC3\xA9 <\xF0\x9F\x98\x80\xC3\xA9&"},
        Accepted{"ISO88591AsDeclared", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><r><t>caf\xE9 \xFF</t></r>",
                 "caf\xC3\xA9 \xC3\xBF"},
        Accepted{"USASCIIAsDeclared", "<?xml version='1.0' encoding='us-ascii' standalone='no' ?><r><t>x</t></r>", "x"},
        Accepted{"ADocumentTypeWithDeclarationsNoneUsed",
                 "<!DOCTYPE r PUBLIC \"-//Example//Catalog 1.0//EN\" \"catalog.dtd\" [\n"
                 "  <!ELEMENT r (t)>\n  <!ATTLIST t x CDATA \"a>b\">\n  <!ENTITY e \"never\">\n"
                 "  <!-- a comment --> <?pi in the subset?>\n]>\n<r><t>y</t></r>",
                 "y"},
        Accepted{"CommentsAndInstructionsAroundTheRoot",
                 "<!-- c --><?pi a?>\n<r><!-- c --><?pi?><t>z</t></r><!-- c -->\n<?pi?>\n", "z"},
        Accepted{"MarkupCharactersWhereAllowed",
                 "<r><t a=\"x>y'z\" b='\"]]>'>]] &gt; \"'</t><!-- & < ]]> --><![CDATA[<&]]></r>", "]] > \"'"},
        Accepted{"NonASCIINamesXMLAllows", "<r><\xCE\xB1\xCE\xB2 \xE4\xB8\xAD=\"1\">w</\xCE\xB1\xCE\xB2></r>", "w"},
        Accepted{"SeventyDistinctAttributes", "<r><t" + kLongNames + ">v</t></r>", "v"}),
    [](const ::testing::TestParamInfo<Accepted>& info) { return std::string(info.param.name); });

TEST(XmlLayerErrors, AnUnreadableFileIsNotCalledMalformed)
{
    int errorCode = 0;
    VELString errorText;
    std::unique_ptr<VELXMLDocument> document(
        VELDOMParser::Parse(VELFile("/no/such/dir/file.xml"), errorCode, errorText));
    EXPECT_EQ(nullptr, document);
    EXPECT_EQ(1, errorCode);
    EXPECT_EQ("file cannot be opened", errorText.GetUTF8String());
}

}  // namespace
