// The XML document model: a parser that reads a file into a document that
// owns its nodes, and element nodes with name, text, attribute and child
// queries.
//
// Documents may be UTF-8 or UTF-16 (little or big endian, with a byte-order
// mark). A document type declaration is skipped: entities it defines are
// never expanded and external entities are never read.
#ifndef VEL_XML_H
#define VEL_XML_H

#include "VELExport.h"
#include "VELFile.h"
#include "VELString.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <vector>

namespace pugi {
struct xml_node_struct;
}

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
    // The attribute's text as the document holds it (UTF-8, NUL-terminated),
    // or null when the element has no such attribute. Valid while the
    // document lives; for readers that convert the text themselves.
    const char* GetAttributeText(const char* name) const;

    // Append the direct child elements (all, or those named exactly `name`)
    // in document order. An element without children is no failure.
    VELErrorCodeEnum GetChildren(std::vector<VELXMLNode*>& children) const;
    VELErrorCodeEnum GetChildren(const VELString& name, std::vector<VELXMLNode*>& children) const;
    VELErrorCodeEnum GetChildren(const char* name, std::vector<VELXMLNode*>& children) const;

    // Navigation by value, for readers that walk a large document without
    // the document keeping an object for every element they visit. A node
    // for which IsNull() holds stands for "no element" (and converts to
    // false); its queries fail or give empty results.
    bool IsNull() const { return mNode == nullptr; }
    explicit operator bool() const { return mNode != nullptr; }
    // The first child element, or the first named exactly `name`.
    VELXMLNode FirstChildElement() const;
    VELXMLNode FirstChildElement(const char* name) const;
    // The next sibling element, or the next named exactly `name`.
    VELXMLNode NextSiblingElement() const;
    VELXMLNode NextSiblingElement(const char* name) const;
    // Writes the names and texts (UTF-8, as the document holds them) of the
    // first `capacity` attributes, in document order, and returns how many
    // attributes the element has. For readers that look up many attributes
    // of one element.
    std::size_t GetAttributeTexts(const char** names, const char** texts, std::size_t capacity) const;
    // The same for the child elements: their names and nodes.
    std::size_t GetChildElements(const char** names, VELXMLNode* children, std::size_t capacity) const;

    // The child element named exactly `name` when there is exactly one;
    // a null node when there is none or more than one.
    VELXMLNode GetOnlyChild(const char* name) const;

    // Takes this element, with everything inside it, out of its document
    // and frees their memory now rather than with the document, for readers
    // that are done with one part of a large document. This node then reads
    // as null; any other node object for this element or for an element
    // inside it must not be used afterwards. The root cannot be discarded.
    void Discard();

    VELXMLNode(pugi::xml_node_struct* node, VELXMLDocument* document);
    // A null node.
    VELXMLNode() : mNode(nullptr), mDocument(nullptr) {}

private:
    pugi::xml_node_struct* mNode;
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
    struct Impl;
    VELXMLNode* Wrap(pugi::xml_node_struct* node);

    std::unique_ptr<Impl> mImpl;
    std::deque<VELXMLNode> mNodes;
};

class VEL_API VELDOMParser {
public:
    // Reads and parses the file. On success returns a new document that the
    // caller owns and deletes, leaving `errorCode` as it was (callers set it
    // to 0 first). On failure sets `errorCode` to a non-zero value and
    // `errorText` to a description, and returns null.
    static VELXMLDocument* Parse(const VELFile& file, int& errorCode, VELString& errorText);
};

#endif
