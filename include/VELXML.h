// The XML document model: a parser that reads a file into a document that
// owns its nodes, and element nodes with name, text, attribute and child
// queries.
//
// Documents must be well-formed XML (see VELDOMParser::Parse) in UTF-8 or
// UTF-16 (little or big endian), or ISO-8859-1 or US-ASCII as declared. A
// document type declaration is checked and skipped: entities it defines are
// never expanded (a document that refers to one is refused) and external
// entities are never read.
#ifndef VEL_XML_H
#define VEL_XML_H

#include "QRMKitExport.h"
#include "VELFile.h"
#include "VELString.h"

#include <deque>
#include <memory>
#include <vector>

namespace qrm::detail {
class XmlElement;
struct XmlHandle;
}  // namespace qrm::detail

enum VELErrorCodeEnum { VEL_SUCCESS = 0, VEL_FAILURE = 1 };

class VELXMLDocument;

// An element of a document. Nodes are handed out as pointers owned by their
// document; they stay valid while the document lives.
class VEL_API VELXMLNode {
public:
    // The element name.
    VELString GetName() const;
    // The element's text: its first text or CDATA child, empty when none.
    VELString GetValue() const;
    // The first child node as the parser reports it: the text of a text or
    // CDATA node, the name of an element node, empty when there is no child.
    VELString GetFirstChildNodeName() const;

    // When the element has the attribute, writes its text into `value` and
    // returns VEL_SUCCESS; otherwise returns VEL_FAILURE and leaves `value`.
    VELErrorCodeEnum GetAttributeValue(const VELString& name, VELString& value) const;
    VELErrorCodeEnum GetAttributeValue(const char* name, VELString& value) const;

    // Append the direct child elements (all, or those named exactly `name`)
    // in document order. An element without children is no failure.
    VELErrorCodeEnum GetChildren(std::vector<VELXMLNode*>& children) const;
    VELErrorCodeEnum GetChildren(const VELString& name, std::vector<VELXMLNode*>& children) const;
    VELErrorCodeEnum GetChildren(const char* name, std::vector<VELXMLNode*>& children) const;

private:
    friend class VELXMLDocument;
    friend class qrm::detail::XmlElement;
    VELXMLNode(qrm::detail::XmlHandle* node, VELXMLDocument* document);

    // The parser's node, opaque here.
    qrm::detail::XmlHandle* mNode;
    VELXMLDocument* mDocument;
};

class VEL_API VELXMLDocument {
public:
    VELXMLDocument();
    ~VELXMLDocument();
    VELXMLDocument(const VELXMLDocument&) = delete;
    VELXMLDocument& operator=(const VELXMLDocument&) = delete;

    // The root element, or null when the document has none.
    VELXMLNode* GetRoot() const;

private:
    friend class VELXMLNode;
    friend class VELDOMParser;
    friend class qrm::detail::XmlElement;
    struct Impl;
    VELXMLNode* Wrap(const VELXMLNode& node);

    std::unique_ptr<Impl> mImpl;
    std::deque<VELXMLNode> mNodes;
};

class VEL_API VELDOMParser {
public:
    // Reads and parses the file. On success returns a new document that the
    // caller owns and deletes, leaving `errorCode` as it was (callers set it
    // to 0 first). On failure sets `errorCode` to a non-zero value and
    // `errorText` to a description, and returns null: 1, 2 and 3 when the
    // file cannot be opened, cannot be read or does not fit in memory; any
    // other value when its bytes are not well-formed XML, and `errorText`
    // is then "line L, column C: what is wrong" (lines counted at line
    // feeds, columns in characters, both from 1).
    //
    // Well-formed means XML 1.0: one root element and, outside it, only
    // blanks, comments, processing instructions, an XML declaration at the
    // very start and one document type declaration before the root; only
    // characters XML allows; attributes once per element; references only
    // to characters XML allows and to the five predefined entities (lt, gt,
    // amp, apos, quot). A document that refers to an entity its document
    // type declaration defines is refused, since such entities are never
    // expanded. The document may be in UTF-8 or UTF-16 (with a byte-order
    // mark, or starting with an XML declaration), or in ISO-8859-1 or
    // US-ASCII when its declaration says so; a declaration that names
    // another encoding, or one the bytes are not in, is refused.
    static VELXMLDocument* Parse(const VELFile& file, int& errorCode, VELString& errorText);
};

#endif
