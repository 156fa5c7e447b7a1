#!/usr/bin/python3
"""Writes the XML well-formedness corpus: one small document per case.

Each case is written as exact bytes (so the UTF-16, Latin-1 and broken UTF-8
files hold precisely the bytes meant), then xmllint judges every file and
README.md is written with one line per file: what it holds, what it is meant
to be (well-formed or not), and xmllint's verdict.

    /usr/bin/python3 tests/xml-corpus/make_corpus.py

tests/XmlCorpusAgreementTest.cpp reads every .xml file of this folder and
requires the library's parser to decide as xmllint does, except for the few
files it lists (each also listed in docs/quality.md).
"""

import os
import shutil
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))

WELL_FORMED = True
NOT_WELL_FORMED = False

CASES = []


def case(name, meant, description, data):
    """Adds one corpus file. `data` is str (written as UTF-8) or bytes."""
    if isinstance(data, str):
        data = data.encode("utf-8")
    CASES.append((name + ".xml", meant, description, data))


def utf16le(text, bom=True):
    return (b"\xff\xfe" if bom else b"") + text.encode("utf-16-le")


def utf16be(text, bom=True):
    return (b"\xfe\xff" if bom else b"") + text.encode("utf-16-be")


DECL = '<?xml version="1.0" encoding="UTF-8"?>\n'

# ---------------------------------------------------------------------------
# Not well-formed: what lies outside the root element
# ---------------------------------------------------------------------------
case("text-before-root", NOT_WELL_FORMED,
     "non-blank text before the root element",
     DECL + "hello\n<r/>\n")
case("text-after-root", NOT_WELL_FORMED,
     "non-blank text after the root element",
     DECL + "<r/>\ntrailing words\n")
case("second-root-element", NOT_WELL_FORMED,
     "a second element after the root element",
     DECL + "<a/>\n<b/>\n")
case("two-documents-concatenated", NOT_WELL_FORMED,
     "two whole documents, each with its XML declaration, one after the other",
     DECL + "<Manifest version=\"1\"/>\n" + DECL + "<Manifest version=\"2\"/>\n")
case("cdata-at-document-level", NOT_WELL_FORMED,
     "a CDATA section before the root element",
     DECL + "<![CDATA[text]]>\n<r/>\n")
case("doctype-after-root", NOT_WELL_FORMED,
     "a document type declaration after the root element",
     "<r/>\n<!DOCTYPE r>\n")
case("two-doctypes", NOT_WELL_FORMED,
     "two document type declarations before the root element",
     "<!DOCTYPE r>\n<!DOCTYPE r>\n<r/>\n")
case("empty-file", NOT_WELL_FORMED,
     "an empty file (zero bytes)",
     b"")
case("whitespace-only", NOT_WELL_FORMED,
     "blanks, tabs and line ends only",
     " \t\r\n\n  \n")
case("plain-text", NOT_WELL_FORMED,
     "a plain text file, no markup at all",
     "This is not a catalog.\nJust some lines of text.\n")
case("html-error-page-one-element", NOT_WELL_FORMED,
     "an HTTP error page served instead of a catalog: text around a single <h1> element",
     "503 Service Unavailable\n<h1>Service Unavailable</h1>\n"
     "The server is temporarily unable to handle the request.\n")
case("html-error-page-void-tags", NOT_WELL_FORMED,
     "an HTML error page with an HTML doctype and unclosed <meta> and <br> tags",
     "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>404 Not Found</title></head>\n"
     "<body><h1>Not Found</h1>The requested catalog was not found.<br></body></html>\n")

# ---------------------------------------------------------------------------
# Not well-formed: attributes
# ---------------------------------------------------------------------------
case("duplicate-attribute-same-value", NOT_WELL_FORMED,
     "one element with the same attribute twice, same value",
     DECL + '<r a="1" a="1"/>\n')
case("duplicate-attribute-different-value", NOT_WELL_FORMED,
     "one element with the same attribute twice, different values",
     DECL + '<Manifest version="1" releaseID="A" version="2"/>\n')
case("lt-in-attribute-value", NOT_WELL_FORMED,
     "a raw '<' inside an attribute value",
     DECL + '<r a="1 < 2"/>\n')
case("attribute-without-value", NOT_WELL_FORMED,
     "an attribute name without '=' and value (<a b/>)",
     "<a b/>\n")
case("attribute-value-unquoted", NOT_WELL_FORMED,
     "an attribute value without quotes (<a b=c/>)",
     "<a b=c/>\n")
case("attributes-without-blank-between", NOT_WELL_FORMED,
     "two attributes with no blank between them",
     '<r a="1"b="2"/>\n')

# ---------------------------------------------------------------------------
# Not well-formed: character references to characters XML forbids
# ---------------------------------------------------------------------------
FORBIDDEN_REFERENCES = [
    ("0", "&#0;", "NUL"),
    ("1", "&#1;", "U+0001"),
    ("x1f", "&#x1F;", "U+001F"),
    ("xd800", "&#xD800;", "the surrogate U+D800"),
    ("xfffe", "&#xFFFE;", "the non-character U+FFFE"),
    ("x110000", "&#x110000;", "U+110000, beyond Unicode"),
]
for tag, ref, what in FORBIDDEN_REFERENCES:
    case("charref-%s-in-text" % tag, NOT_WELL_FORMED,
         "the character reference %s (%s) in element text" % (ref, what),
         DECL + "<r>a%sb</r>\n" % ref)
    case("charref-%s-in-attribute" % tag, NOT_WELL_FORMED,
         "the character reference %s (%s) in an attribute value" % (ref, what),
         DECL + '<r a="a%sb"/>\n' % ref)

# ---------------------------------------------------------------------------
# Not well-formed: raw characters XML forbids
# ---------------------------------------------------------------------------
case("raw-control-01-in-text", NOT_WELL_FORMED,
     "a raw 0x01 byte in element text",
     DECL.encode() + b"<r>a\x01b</r>\n")
case("raw-control-0b-in-text", NOT_WELL_FORMED,
     "a raw 0x0B (vertical tab) byte in element text",
     DECL.encode() + b"<r>a\x0bb</r>\n")
case("raw-control-01-in-attribute", NOT_WELL_FORMED,
     "a raw 0x01 byte in an attribute value",
     DECL.encode() + b'<r a="a\x01b"/>\n')
case("raw-control-0b-in-attribute", NOT_WELL_FORMED,
     "a raw 0x0B (vertical tab) byte in an attribute value",
     DECL.encode() + b'<r a="a\x0bb"/>\n')

# ---------------------------------------------------------------------------
# Not well-formed: byte sequences that are not UTF-8
# ---------------------------------------------------------------------------
case("utf8-lone-continuation-byte", NOT_WELL_FORMED,
     "a lone UTF-8 continuation byte (0x80) in text",
     DECL.encode() + b"<r>a\x80b</r>\n")
case("utf8-overlong", NOT_WELL_FORMED,
     "an overlong UTF-8 encoding of '/' (C0 AF) in text",
     DECL.encode() + b"<r>a\xc0\xafb</r>\n")
case("utf8-truncated-sequence", NOT_WELL_FORMED,
     "a three-byte UTF-8 sequence cut after two bytes (E2 82) in text",
     DECL.encode() + b"<r>a\xe2\x82</r>\n")
case("utf8-encoded-surrogate", NOT_WELL_FORMED,
     "the surrogate U+D800 encoded as UTF-8 (ED A0 80) in text",
     DECL.encode() + b"<r>a\xed\xa0\x80b</r>\n")
case("utf8-encoded-fffe", NOT_WELL_FORMED,
     "the non-character U+FFFE encoded as UTF-8 (EF BF BE) in text",
     DECL.encode() + b"<r>a\xef\xbf\xbeb</r>\n")
case("utf8-invalid-in-attribute", NOT_WELL_FORMED,
     "a lone UTF-8 continuation byte (0x80) in an attribute value",
     DECL.encode() + b'<r a="a\x80b"/>\n')
case("utf16le-lone-surrogate", NOT_WELL_FORMED,
     "UTF-16LE with byte-order mark, a lone high surrogate unit in text",
     b"\xff\xfe" + "<r>a".encode("utf-16-le") + b"\x00\xd8" + "b</r>\n".encode("utf-16-le"))
case("utf16le-high-surrogate-at-end", NOT_WELL_FORMED,
     "UTF-16LE with byte-order mark, a lone high surrogate unit as the last code unit, after the root",
     b"\xff\xfe" + "<r>a</r>".encode("utf-16-le") + b"\x00\xd9")

# ---------------------------------------------------------------------------
# Not well-formed: entity and character references
# ---------------------------------------------------------------------------
case("undeclared-entity-nbsp", NOT_WELL_FORMED,
     "a reference to the undeclared entity &nbsp;",
     DECL + "<r>a&nbsp;b</r>\n")
case("undeclared-entity-foo", NOT_WELL_FORMED,
     "a reference to the undeclared entity &foo; in an attribute value",
     DECL + '<r a="&foo;"/>\n')
case("internal-subset-entity-used", WELL_FORMED,
     "an entity declared in the internal DTD subset and used in text: well-formed, "
     "but the library never expands declared entities and refuses it on purpose",
     '<?xml version="1.0"?>\n<!DOCTYPE r [\n  <!ENTITY vendor "Example">\n]>\n<r>&vendor;</r>\n')
case("ampersand-followed-by-blank", NOT_WELL_FORMED,
     "a bare '&' followed by a blank ('& ')",
     DECL + "<r>salt & pepper</r>\n")
case("charref-empty-decimal", NOT_WELL_FORMED,
     "a character reference without digits (&#;)",
     DECL + "<r>a&#;b</r>\n")
case("charref-empty-hex", NOT_WELL_FORMED,
     "a hexadecimal character reference without digits (&#x;)",
     DECL + "<r>a&#x;b</r>\n")
case("charref-decimal-with-letter", NOT_WELL_FORMED,
     "a decimal character reference with a letter in it (&#12a;)",
     DECL + "<r>a&#12a;b</r>\n")
case("charref-uppercase-x", NOT_WELL_FORMED,
     "a hexadecimal character reference written with an upper-case X (&#X41;)",
     DECL + "<r>a&#X41;b</r>\n")
case("entity-reference-without-semicolon", NOT_WELL_FORMED,
     "&amp written without its semicolon",
     DECL + "<r>fish &amp chips</r>\n")

# ---------------------------------------------------------------------------
# Not well-formed: comments, CDATA, processing instructions
# ---------------------------------------------------------------------------
case("comment-double-hyphen-inside", NOT_WELL_FORMED,
     "'--' inside a comment",
     DECL + "<!-- one -- two -->\n<r/>\n")
case("comment-ending-triple-hyphen", NOT_WELL_FORMED,
     "a comment that ends in '--->'",
     DECL + "<r><!-- note ---></r>\n")
case("cdata-end-in-text", NOT_WELL_FORMED,
     "']]>' in element text outside CDATA",
     DECL + "<r>a ]]> b</r>\n")
case("pi-named-xml-inside-root", NOT_WELL_FORMED,
     "a processing instruction named 'xml' inside the root element",
     '<r><?xml version="1.0"?></r>\n')
case("pi-named-xml-uppercase", NOT_WELL_FORMED,
     "a processing instruction named 'XML' (reserved in any case) before the root",
     "<?XML data?>\n<r/>\n")

# ---------------------------------------------------------------------------
# Not well-formed: the XML declaration
# ---------------------------------------------------------------------------
case("xml-declaration-after-whitespace", NOT_WELL_FORMED,
     "the XML declaration after a line end and blanks",
     "\n  " + DECL + "<r/>\n")
case("xml-declaration-after-comment", NOT_WELL_FORMED,
     "the XML declaration after a comment",
     "<!-- first -->" + DECL + "<r/>\n")
case("xml-declaration-twice", NOT_WELL_FORMED,
     "a second XML declaration right after the first",
     DECL + '<?xml version="1.0"?>\n<r/>\n')
case("xml-declaration-without-version", NOT_WELL_FORMED,
     "an XML declaration with encoding but no version",
     '<?xml encoding="UTF-8"?>\n<r/>\n')
case("xml-declaration-wrong-order", NOT_WELL_FORMED,
     "an XML declaration with standalone before encoding",
     '<?xml version="1.0" standalone="yes" encoding="UTF-8"?>\n<r/>\n')
case("xml-declaration-bad-standalone", NOT_WELL_FORMED,
     "an XML declaration with standalone=\"maybe\"",
     '<?xml version="1.0" standalone="maybe"?>\n<r/>\n')

# ---------------------------------------------------------------------------
# Not well-formed: encodings
# ---------------------------------------------------------------------------
case("utf8-bytes-declared-utf16", NOT_WELL_FORMED,
     "UTF-8 bytes, no byte-order mark, declared encoding=\"UTF-16\"",
     '<?xml version="1.0" encoding="UTF-16"?>\n<r>text</r>\n')
case("utf16le-bytes-declared-utf8", NOT_WELL_FORMED,
     "UTF-16LE with byte-order mark, declared encoding=\"UTF-8\"",
     utf16le('<?xml version="1.0" encoding="UTF-8"?>\n<r>text</r>\n'))
case("utf16le-no-bom-declared-utf8", NOT_WELL_FORMED,
     "UTF-16LE without byte-order mark, declared encoding=\"UTF-8\"",
     utf16le('<?xml version="1.0" encoding="UTF-8"?>\n<r>text</r>\n', bom=False))
case("encoding-ebcdic-us", NOT_WELL_FORMED,
     "ASCII bytes declared encoding=\"EBCDIC-US\"",
     '<?xml version="1.0" encoding="EBCDIC-US"?>\n<r>text</r>\n')
case("encoding-bogus", NOT_WELL_FORMED,
     "ASCII bytes declared encoding=\"bogus\", an encoding that does not exist",
     '<?xml version="1.0" encoding="bogus"?>\n<r>text</r>\n')
case("encoding-windows-1252", NOT_WELL_FORMED,
     "declared encoding=\"windows-1252\" with the bytes 0x93 and 0x94 (curly quotes there)",
     b'<?xml version="1.0" encoding="windows-1252"?>\n<r>\x93quoted\x94</r>\n')
case("utf16le-bom-text-after-root", NOT_WELL_FORMED,
     "UTF-16LE with byte-order mark, text after the root element",
     utf16le("<r/>\ntrailing\n"))

# ---------------------------------------------------------------------------
# Not well-formed: truncation and tag structure
# ---------------------------------------------------------------------------
case("truncated-in-tag", NOT_WELL_FORMED,
     "the file ends inside a start tag",
     DECL + "<Manifest><SoftwareComponent")
case("truncated-in-attribute", NOT_WELL_FORMED,
     "the file ends inside an attribute value",
     DECL + '<Manifest><SoftwareComponent path="FOLDER01/BIO')
case("truncated-in-comment", NOT_WELL_FORMED,
     "the file ends inside a comment",
     DECL + "<Manifest><!-- an unfinished comm")
case("truncated-in-cdata", NOT_WELL_FORMED,
     "the file ends inside a CDATA section",
     DECL + "<Manifest><Display><![CDATA[S740 System BI")
case("truncated-missing-end-tag", NOT_WELL_FORMED,
     "the root element's end tag is missing",
     DECL + "<Manifest>\n  <SoftwareComponent/>\n")
case("mismatched-end-tags", NOT_WELL_FORMED,
     "end tags in the wrong order (<a><b></a></b>)",
     "<a><b></a></b>\n")
case("unclosed-inner-element", NOT_WELL_FORMED,
     "an inner element never closed before its parent's end tag",
     "<a><b></a>\n")
case("extra-end-tag", NOT_WELL_FORMED,
     "an end tag with no start tag after the root",
     "<a></a></a>\n")

# ---------------------------------------------------------------------------
# Not well-formed: names
# ---------------------------------------------------------------------------
case("name-starting-with-digit", NOT_WELL_FORMED,
     "an element name that starts with a digit (<1a/>)",
     "<1a/>\n")
case("name-with-multiplication-sign", NOT_WELL_FORMED,
     "an element name holding U+00D7 (multiplication sign), not a name character",
     DECL + "<a\u00d7b/>\n")
case("attribute-name-with-division-sign", NOT_WELL_FORMED,
     "an attribute name starting with U+00F7 (division sign), not a name character",
     DECL + '<r \u00f7a="1"/>\n')

# ---------------------------------------------------------------------------
# Well-formed
# ---------------------------------------------------------------------------
case("minimal-root", WELL_FORMED,
     "only an empty root element, no declaration",
     "<r/>")
case("declaration-version-encoding-standalone", WELL_FORMED,
     "XML declaration with version, encoding and standalone",
     '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n<r/>\n')
case("declaration-single-quotes", WELL_FORMED,
     "XML declaration in single quotes, lower-case encoding name, standalone=\"no\"",
     "<?xml version='1.0' encoding='utf-8' standalone='no' ?>\n<r/>\n")
case("utf8-bom", WELL_FORMED,
     "UTF-8 with byte-order mark and declaration",
     b"\xef\xbb\xbf" + (DECL + "<r>caf\u00e9</r>\n").encode("utf-8"))
case("utf16le-bom", WELL_FORMED,
     "UTF-16LE with byte-order mark, no declaration",
     utf16le("<r a=\"\u00e9\">\u4e2d\u6587 \U0001F600</r>\n"))
case("utf16le-bom-declaration", WELL_FORMED,
     "UTF-16LE with byte-order mark and a declaration naming UTF-16",
     utf16le('<?xml version="1.0" encoding="UTF-16"?>\n<r a="\u00e9">\u4e2d\u6587</r>\n'))
case("utf16be-bom", WELL_FORMED,
     "UTF-16BE with byte-order mark, no declaration",
     utf16be("<r a=\"\u00e9\">\u4e2d\u6587 \U0001F600</r>\n"))
case("utf16be-bom-declaration", WELL_FORMED,
     "UTF-16BE with byte-order mark and a declaration naming UTF-16",
     utf16be('<?xml version="1.0" encoding="UTF-16"?>\n<r a="\u00e9">\u4e2d\u6587</r>\n'))
case("utf16le-no-bom-declaration", WELL_FORMED,
     "UTF-16LE without byte-order mark, starting with a declaration naming UTF-16",
     utf16le('<?xml version="1.0" encoding="UTF-16"?>\n<r>text</r>\n', bom=False))
case("utf16be-no-bom-declaration", WELL_FORMED,
     "UTF-16BE without byte-order mark, starting with a declaration naming UTF-16",
     utf16be('<?xml version="1.0" encoding="UTF-16"?>\n<r>text</r>\n', bom=False))
case("iso-8859-1-latin1-bytes", WELL_FORMED,
     "declared ISO-8859-1, with Latin-1 bytes (E9, FC, D7) in text and an attribute",
     b'<?xml version="1.0" encoding="ISO-8859-1"?>\n<r a="caf\xe9">M\xfcller 2\xd73</r>\n')
case("us-ascii-declared", WELL_FORMED,
     "declared US-ASCII, ASCII bytes only",
     '<?xml version="1.0" encoding="US-ASCII"?>\n<r a="plain">text</r>\n')
case("comments-and-pis-everywhere", WELL_FORMED,
     "comments and processing instructions before, inside and after the root",
     DECL + "<!-- before -->\n<?app-setting mode=\"fast\"?>\n"
     "<r><!-- inside --><?inside data?><c/><!----></r>\n"
     "<!-- after - with single hyphens -->\n<?after?>\n")
case("pi-target-starting-with-xml", WELL_FORMED,
     "a processing instruction whose target starts with 'xml' (xml-stylesheet)",
     DECL + '<?xml-stylesheet type="text/xsl" href="view.xsl"?>\n<r/>\n')
case("doctype-internal-subset-unused", WELL_FORMED,
     "a DOCTYPE with an internal subset (ELEMENT, ATTLIST, ENTITY declarations, "
     "a comment, a PI); no entity is used",
     DECL + "<!DOCTYPE Manifest [\n"
     "  <!-- declarations only -->\n"
     "  <!ELEMENT Manifest (SoftwareComponent*)>\n"
     "  <!ELEMENT SoftwareComponent EMPTY>\n"
     "  <!ATTLIST Manifest version CDATA #REQUIRED releaseID CDATA #IMPLIED>\n"
     "  <!ENTITY vendor \"Example\">\n"
     "  <!ENTITY % local \"INCLUDE\">\n"
     "  <?subset-note kept?>\n"
     "]>\n"
     '<Manifest version="1.0"><SoftwareComponent/></Manifest>\n')
case("doctype-system-id", WELL_FORMED,
     "a DOCTYPE with a SYSTEM identifier (never read)",
     DECL + '<!DOCTYPE Manifest SYSTEM "catalog.dtd">\n<Manifest version="1.0"/>\n')
case("doctype-public-id", WELL_FORMED,
     "a DOCTYPE with PUBLIC and SYSTEM identifiers (never read)",
     DECL + '<!DOCTYPE Manifest PUBLIC "-//Example//DTD Catalog 1.0//EN" '
     '"http://updates.example.com/catalog.dtd">\n<Manifest version="1.0"/>\n')
case("predefined-entities-and-charrefs", WELL_FORMED,
     "the five predefined entities and decimal and hex character references "
     "(astral ones too) in text and attributes",
     DECL + '<r a="&lt;&gt;&amp;&apos;&quot; &#65;&#x42; &#x1F600;&#128512;">'
     "&lt;&gt;&amp;&apos;&quot; &#65;&#x42;&#x43; &#x1F600;&#128512;&#x10FFFF;</r>\n")
case("charrefs-allowed-edges", WELL_FORMED,
     "character references to the edge characters XML allows "
     "(&#9; &#xA; &#xD; &#x20; &#xD7FF; &#xE000; &#xFFFD; &#x10000;), "
     "some with leading zeros",
     DECL + '<r a="&#9;&#xA;&#xD;&#x0020;">&#9;&#xA;&#xD;&#x20;&#xD7FF;&#xE000;&#xFFFD;&#x10000;&#0065;</r>\n')
case("raw-non-ascii-text", WELL_FORMED,
     "raw UTF-8 of two, three and four bytes in text and attributes, "
     "up to U+FFFD and U+10FFFF",
     DECL + '<r a="\u00e9\u20ac\U0001F600">caf\u00e9 \u20ac \uFFFD \U0001F600 \U0010FFFF \t</r>\n')
case("gt-and-brackets-in-text", WELL_FORMED,
     "'>' and ']]' (not followed by '>') in text",
     DECL + "<r>a > b, x]] y, ]]</r>\n")
case("gt-and-quotes-in-attribute", WELL_FORMED,
     "'>' in attribute values, and quotes of the other kind inside each",
     DECL + "<r a=\"it's > 2\" b='say \"hi\" >'/>\n")
case("cdata-with-markup-characters", WELL_FORMED,
     "CDATA sections holding '<', '&', ']]' and '<!--', and an empty one",
     DECL + "<r><![CDATA[a < b && c ]] d <!-- not a comment --> &amp;]]><![CDATA[]]></r>\n")
case("whitespace-inside-tags", WELL_FORMED,
     "blanks, tabs and line ends inside tags (<a  b = \"1\" ></a >)",
     '<a  b = "1"\n\tc\t=\t\'2\' ></a >\n')
case("whitespace-around-root", WELL_FORMED,
     "blank lines before the root (no declaration) and after it",
     "\n\n  \t<r/>\n\n  \n")
case("non-ascii-names", WELL_FORMED,
     "element and attribute names in Greek, CJK and Latin letters with accents",
     DECL + '<\u03ba\u03b1\u03c4\u03ac\u03bb\u03bf\u03b3\u03bf\u03c2 \u540d\u524d="\u5024" '
     '\u00e9t\u00e9="1"><\u90e8\u54c1 x\u00b7y="2"/></\u03ba\u03b1\u03c4\u03ac\u03bb\u03bf\u03b3\u03bf\u03c2>\n')
case("names-with-punctuation", WELL_FORMED,
     "names with '_', '-', '.', digits after the first character",
     '<_r.1-a><x-y.z_2 a.b-c_3="1"/></_r.1-a>\n')
case("namespaces", WELL_FORMED,
     "a default namespace, a prefixed namespace, prefixed elements and attributes",
     DECL + '<Manifest xmlns="urn:example:catalog" xmlns:x="urn:example:extra" x:id="7">'
     "<x:Note x:lang=\"en\">text</x:Note><SoftwareComponent/></Manifest>\n")
case("crlf-line-ends", WELL_FORMED,
     "CR LF line ends throughout, in text and inside a tag",
     (DECL.replace("\n", "\r\n") + "<r\r\n  a=\"1\">\r\n  <c>line one\r\nline two</c>\r\n</r>\r\n"))
case("nested-elements-and-mixed-content", WELL_FORMED,
     "nested elements, mixed text and elements, empty and start-end pairs",
     DECL + "<r>text <b>bold <i>both</i></b> tail<e></e><e/></r>\n")
case("catalog-small", WELL_FORMED,
     "a small realistic catalog: Manifest with baseLocation, dateTime, releaseID, "
     "version and one SoftwareComponent",
     '<?xml version="1.0" encoding="utf-8"?>\n'
     '<Manifest baseLocation="updates.example.com/catalog" dateTime="1763683200" '
     'releaseID="R2026-11" version="26.11.00">\n'
     '  <SoftwareComponent schemaVersion="2.0" releaseID="BIOS_S01" dateTime="1763683200" '
     'vendorVersion="2.4.1"\n'
     '                     releaseDate="1763596800" packageID="PKG-BIOS_S740" packageType="LWXP" '
     'path="FOLDER01/BIOS/BIOS_S740_2.4.1.EXE">\n'
     '    <Name><Display lang="en"><![CDATA[S740 System BIOS]]></Display></Name>\n'
     '    <ComponentType value="BIOS"><Display lang="en"><![CDATA[BIOS]]></Display></ComponentType>\n'
     '    <Category value="BI"><Display lang="en"><![CDATA[BIOS]]></Display></Category>\n'
     '    <SupportedDevices>\n'
     '      <Device componentID="159" embedded="1"><Display lang="en"><![CDATA[S740 System BIOS]]>'
     '</Display></Device>\n'
     '    </SupportedDevices>\n'
     '    <SupportedSystems display="1">\n'
     '      <Brand key="3" prefix="SRV"><Display lang="en"><![CDATA[Example Servers]]></Display>\n'
     '        <Model systemID="0A6B"><Display lang="en"><![CDATA[S740]]></Display></Model>\n'
     '      </Brand>\n'
     '    </SupportedSystems>\n'
     '    <SupportedOperatingSystems>\n'
     '      <OperatingSystem osArch="x64" osCode="W22" osVendor="Example" majorVersion="10" '
     'minorVersion="0" spMajorVersion="0" spMinorVersion="0"/>\n'
     '    </SupportedOperatingSystems>\n'
     '    <Criticality value="2"/>\n'
     '  </SoftwareComponent>\n'
     '</Manifest>\n')
case("inventory-small", WELL_FORMED,
     "a small realistic inventory: root with lang, schemaVersion, timeStamp; "
     "OperatingSystem, System, Device children with Application",
     '<?xml version="1.0" encoding="utf-8"?>\n'
     '<SVMInventory lang="en" schemaVersion="1.0" timeStamp="1763700000">\n'
     '  <OperatingSystem osArch="x64" osCode="W22" osVendor="Example" majorVersion="10" '
     'minorVersion="0"\n'
     '                   spMajorVersion="0" spMinorVersion="0">\n'
     '    <Display lang="en">Server OS 2022</Display>\n'
     '  </OperatingSystem>\n'
     '  <System systemID="0A6B" display="S740" serviceTag="ABC1234" systemIDType="BIOS"/>\n'
     '  <Device componentID="159" display="BIOS">\n'
     '    <Application componentType="BIOS" version="2.3.9" display="BIOS"/>\n'
     '  </Device>\n'
     '  <Device vendorID="8086" deviceID="1593" subVendorID="1028" subDeviceID="0A6B" bus="59" '
     'device="0" function="0"\n'
     '          display="Dual-port 25GbE adapter">\n'
     '    <Application componentType="FRMW" version="22.0.9" display="25GbE adapter firmware"/>\n'
     '    <Application componentType="DRVR" version="1.13.2" display="25GbE adapter driver"/>\n'
     '  </Device>\n'
     '</SVMInventory>\n')
case("inventory-utf16le-bom", WELL_FORMED,
     "a small inventory in UTF-16LE with byte-order mark and a declaration naming UTF-16",
     utf16le('<?xml version="1.0" encoding="UTF-16"?>\n'
             '<SVMInventory lang="en" schemaVersion="1.0" timeStamp="1763700000">\n'
             '  <System systemID="0A6B" display="S740"/>\n'
             '  <Device componentID="159" display="BIOS">\n'
             '    <Application componentType="BIOS" version="2.3.9" display="BIOS \u00e9"/>\n'
             '  </Device>\n'
             '</SVMInventory>\n'))

# Well-formed near misses: what the well-formedness checks must let through
case("utf8-bom-no-declaration", WELL_FORMED,
     "UTF-8 with byte-order mark and no declaration",
     b"\xef\xbb\xbf" + "<r>caf\u00e9</r>\n".encode("utf-8"))
case("declaration-blanks-around-equals", WELL_FORMED,
     "XML declaration with blanks around '=' and before '?>'",
     '<?xml version = "1.0"  encoding = "UTF-8" ?>\n<r/>\n')
case("declaration-version-only", WELL_FORMED,
     "XML declaration with the version alone",
     '<?xml version="1.0"?><r/>')
case("empty-attribute-value", WELL_FORMED,
     "attributes with empty values in both quote kinds",
     "<r a=\"\" b=''/>\n")
case("attribute-names-differing-in-case", WELL_FORMED,
     "attributes a and A on one element (names are case-sensitive, no duplicate)",
     '<r a="1" A="2"/>\n')
case("same-local-name-different-namespaces", WELL_FORMED,
     "attributes x:id and y:id on one element, prefixes bound to different namespaces",
     '<r xmlns:x="urn:example:x" xmlns:y="urn:example:y" x:id="1" y:id="2"/>\n')
case("xml-lang-attribute", WELL_FORMED,
     "the xml:lang and xml:space attributes (the xml prefix needs no declaration)",
     '<r xml:lang="en" xml:space="preserve"> text </r>\n')
case("attribute-with-raw-tab-and-line-end", WELL_FORMED,
     "raw tab, line feed and CR LF inside attribute values",
     b'<r a="one\ttwo\nthree\r\nfour"/>\n')
case("attribute-with-references", WELL_FORMED,
     "character references to '&', '<' and line ends, and entity references, in attribute values",
     '<r a="&#38;&#60;&#x26;&#x3C;" b="line&#10;break&#13;&#9;" c="a &amp; b &lt; c"/>\n')
case("text-with-references-to-markup-characters", WELL_FORMED,
     "character references to '&', '<' and ']]>' spelled with a reference in text",
     "<r>&#38; &#60; &#x26;lt; ]]&gt; ]]&#62;</r>\n")
case("quotes-and-apostrophes-in-text", WELL_FORMED,
     "raw quotes and apostrophes in text",
     "<r>He said \"it's fine\" and 'left'.</r>\n")
case("comment-with-single-hyphens", WELL_FORMED,
     "comments holding single hyphens, '->' and '- -', and an empty comment",
     "<!---->\n<r><!-- a->b - c -x- --><!-- - --></r>\n")
case("references-inside-comment", WELL_FORMED,
     "entity and character references that would be wrong outside, inside a comment",
     DECL + "<r><!-- &nbsp; &#0; &foo & ]]> <a b=c> --></r>\n")
case("references-inside-cdata", WELL_FORMED,
     "entity and character references that would be wrong outside, inside CDATA",
     DECL + "<r><![CDATA[&nbsp; &#0; &#xD800; &foo & <x a=b>]]></r>\n")
case("cdata-ending-in-brackets", WELL_FORMED,
     "CDATA whose content ends in ']]' (<![CDATA[x]]]]>)",
     "<r><![CDATA[x]]]]></r>\n")
case("pi-with-markup-characters", WELL_FORMED,
     "a processing instruction whose data holds '?', '&', '<' and '>'",
     "<?app a?b & <c> -> d ?>\n<r><?app &nbsp; ??></r>\n")
case("doctype-name-only", WELL_FORMED,
     "a DOCTYPE with the root name alone",
     "<!DOCTYPE r>\n<r/>\n")
case("doctype-subset-with-brackets-in-literals", WELL_FORMED,
     "an internal subset whose entity value, comment and PI hold ']>' and quotes; no entity is used",
     "<!DOCTYPE r [\n"
     "  <!ENTITY close \"]>\">\n"
     "  <!ENTITY quote '\"]]>\"'>\n"
     "  <!-- ]> in a comment -->\n"
     "  <?note ]> in a PI?>\n"
     "  <!ATTLIST r a CDATA \"]>\">\n"
     "]>\n<r a=\"x\"/>\n")
case("deep-nesting", WELL_FORMED,
     "elements nested 200 deep",
     "<r>" + "<n>" * 200 + "x" + "</n>" * 200 + "</r>\n")
case("whitespace-only-text", WELL_FORMED,
     "elements holding only blanks, tabs and line ends",
     "<r>\n\t  <c> </c>\n</r>\n")
case("raw-line-separators-in-text", WELL_FORMED,
     "raw U+0085, U+2028 and U+FEFF (after the start) in text",
     DECL + "<r>a\u0085b\u2028c\ufeffd</r>\n")
case("raw-private-use-and-replacement", WELL_FORMED,
     "raw U+E000, U+F8FF, U+FFFD and U+10000 in text and attributes",
     DECL + '<r a="\ue000\ufffd">\uf8ff \ufffd \U00010000</r>\n')
case("catalog-small-utf8-bom", WELL_FORMED,
     "a small catalog with byte-order mark, CDATA texts and a comment before the root",
     b"\xef\xbb\xbf" + (
         '<?xml version="1.0" encoding="utf-8"?>\n'
         "<!-- An example update catalog -->\n"
         '<Manifest baseLocation="updates.example.com/catalog" dateTime="1763683200" '
         'releaseID="R2026-11" version="26.11.00">\n'
         '  <SoftwareComponent releaseID="NIC_01" vendorVersion="22.5.7" packageID="PKG-NIC" '
         'path="FOLDER02/NIC_25G_FW_22.5.7.EXE">\n'
         '    <Name><Display lang="en"><![CDATA[25GbE adapter firmware & <tools>]]></Display>'
         '<Display lang="de"><![CDATA[Firmware f\u00fcr 25GbE-Adapter]]></Display></Name>\n'
         '    <ComponentType value="FRMW"><Display lang="en"><![CDATA[Firmware]]></Display></ComponentType>\n'
         "  </SoftwareComponent>\n"
         "</Manifest>\n").encode("utf-8"))
case("inventory-utf16be-bom", WELL_FORMED,
     "a small inventory in UTF-16BE with byte-order mark and no declaration",
     utf16be('<SVMInventory lang="en" schemaVersion="1.0" timeStamp="1763700000">\n'
             '  <System systemID="0A6B" display="S740"/>\n'
             '  <Device componentID="25227" display="Remote access controller">\n'
             '    <Application componentType="FRMW" version="7.10.30" display="RAC firmware"/>\n'
             '  </Device>\n'
             '</SVMInventory>\n'))

case("nul-after-root", NOT_WELL_FORMED,
     "NUL bytes after the root element (NUL is no XML character)",
     b"<r>text</r>\n" + b"\x00" * 8)
case("us-ascii-non-ascii-after-root", NOT_WELL_FORMED,
     "declared US-ASCII, with bytes outside ASCII after the root element",
     '<?xml version="1.0" encoding="US-ASCII"?>\n<r>text</r>'.encode("ascii") + b"\xff\xff\n")
case("version-one-dot", NOT_WELL_FORMED,
     "an XML declaration whose version is \"1.\" (conforming parsers read it as 1.x)",
     '<?xml version="1."?>\n<r/>\n')
case("doctype-without-blank-before-name", NOT_WELL_FORMED,
     "no blank between DOCTYPE and the name (conforming parsers read it)",
     '<!DOCTYPEr>\n<r/>\n')
case("utf16be-bom-then-feff-before-root", NOT_WELL_FORMED,
     "UTF-16BE with byte-order mark, then U+FEFF (a character) before the root",
     utf16be("\ufeff<r/>"))
case("internal-subset-bad-attlist-type", NOT_WELL_FORMED,
     "an attribute-list declaration with an unknown attribute type",
     '<!DOCTYPE r [<!ATTLIST r a CD TAA "d">]>\n<r/>\n')
case("internal-subset-all-declarations", WELL_FORMED,
     "element (children, mixed), attribute-list (types, enumerations, defaults), entity and notation declarations",
     '<!DOCTYPE r [\n'
     '  <!ELEMENT r (a, (b | c)*, d?)+>\n  <!ELEMENT a (#PCDATA | b)*>\n  <!ELEMENT b EMPTY>\n'
     '  <!ATTLIST r x CDATA #IMPLIED y (one | two) "one" z NOTATION (n) #REQUIRED w ID #IMPLIED>\n'
     '  <!ATTLIST a v NMTOKENS #FIXED "a b">\n'
     '  <!ENTITY e "&#60;x&amp;">\n  <!ENTITY f SYSTEM "f.bin" NDATA n>\n  <!ENTITY % p "">\n'
     '  <!NOTATION n PUBLIC "-//N//EN">\n'
     ']>\n<r/>\n')

# Why xmllint's verdict differs from what a file is meant to be.
SURPRISES = {
    "utf16le-high-surrogate-at-end.xml":
        "xmllint leaves a character cut at the very end of a UTF-16 document out.",
    "nul-after-root.xml":
        "xmllint takes the first NUL byte after the root element for the end of the document.",
    "version-one-dot.xml":
        "xmllint reads version \"1.\" as a version 1.x it does not know, with a warning only; the "
        "library reads it alike.",
    "doctype-without-blank-before-name.xml":
        "xmllint needs no blank between DOCTYPE and the name; the library reads it alike.",
    "us-ascii-non-ascii-after-root.xml":
        "xmllint takes bytes it cannot decode after the root element for the end of the document.",
    "encoding-windows-1252.xml":
        "xmllint decodes windows-1252 (through the system's converters) and accepts the document.",
    "utf16le-bytes-declared-utf8.xml":
        "xmllint keeps the UTF-16 it found from the byte-order mark and ignores the "
        "declared UTF-8 without an error.",
    "utf16le-no-bom-declared-utf8.xml":
        "xmllint keeps the UTF-16 it guessed from the first bytes ('<' '\\0' '?' '\\0') and "
        "ignores the declared UTF-8 without an error.",
}


def xmllint_accepts(path):
    """True when `xmllint --noout --nonet` finds the file well-formed."""
    result = subprocess.run(["xmllint", "--noout", "--nonet", path],
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    if result.returncode not in (0, 1):
        sys.exit("make_corpus: xmllint exited %d on %s" % (result.returncode, path))
    return result.returncode == 0


def markdown_cell(text):
    return text.replace("|", "\\|").replace("<", "&lt;").replace(">", "&gt;")


def main():
    names = [name for name, _, _, _ in CASES]
    if len(names) != len(set(names)):
        sys.exit("make_corpus: two cases share a file name")

    for name in os.listdir(HERE):
        if name.endswith(".xml") and name not in names:
            os.remove(os.path.join(HERE, name))
    for name, _, _, data in CASES:
        with open(os.path.join(HERE, name), "wb") as out:
            out.write(data)

    if shutil.which("xmllint") is None:
        sys.exit("make_corpus: xmllint not found (Debian package libxml2-utils; scripts/setup installs it)")

    rows = []
    surprises = []
    accepted_count = 0
    for name, meant, description, _ in sorted(CASES):
        accepted = xmllint_accepts(os.path.join(HERE, name))
        accepted_count += accepted
        if accepted != meant:
            surprises.append(name)
        rows.append("| `%s` | %s | %s | %s |" % (
            name, markdown_cell(description),
            "well-formed" if meant else NOT_WELL_FORMED,
            "accepted" if accepted else "refused"))

    with open(os.path.join(HERE, "README.md"), "w", encoding="utf-8") as out:
        out.write("# XML well-formedness corpus\n\n")
        out.write(
            "Small documents, one case per file, that the library's XML layer must\n"
            "accept or refuse as a whole: a document that is not well-formed XML\n"
            "fails to parse. `make_corpus.py` writes every file as exact bytes and\n"
            "this page; run it with `/usr/bin/python3 tests/xml-corpus/make_corpus.py`\n"
            "(it needs `xmllint`, from Debian's libxml2-utils, which `scripts/setup`\n"
            "installs).\n\n"
            "`tests/XmlCorpusAgreementTest.cpp` runs `xmllint --noout --nonet` and\n"
            "`VELDOMParser::Parse` on each file and requires the same decision from\n"
            "both, except for the files in its exceptions table, where the library\n"
            "must decide the opposite; each exception is explained in\n"
            "`docs/quality.md`.\n\n")
        out.write("%d files: xmllint accepts %d and refuses %d.\n\n"
                  % (len(CASES), accepted_count, len(CASES) - accepted_count))
        if surprises:
            out.write("Where xmllint's verdict differs from what the file is meant to be:\n\n")
            for name in surprises:
                out.write("- `%s`: %s\n" % (name, markdown_cell(SURPRISES.get(name, "no note yet"))))
            out.write("\n")
        out.write("`internal-subset-entity-used.xml` is well-formed and xmllint accepts it;\n"
                  "the library refuses it on purpose (it is the agreement test's exception).\n\n")
        out.write("| file | what it holds | meant as | xmllint |\n")
        out.write("|---|---|---|---|\n")
        out.write("\n".join(rows) + "\n")

    print("make_corpus: %d files, xmllint accepts %d, refuses %d"
          % (len(CASES), accepted_count, len(CASES) - accepted_count))
    for name in surprises:
        print("make_corpus: xmllint's verdict differs from the intent: %s" % name)


if __name__ == "__main__":
    main()
