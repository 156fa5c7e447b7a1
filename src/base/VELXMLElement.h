// XmlElement: an element of a parsed document by value, the library's own
// access to the parser behind VELXMLNode. For the readers, which walk a large document without the document keeping an
// object for every element they visit. A node for which IsNull() holds
// stands for "no element" (and converts to false); its queries fail or give
// empty results.
#ifndef VEL_XML_ELEMENT_H
#define VEL_XML_ELEMENT_H

#include "VELString.h"
#include "VELXML.h"

#include <pugixml.hpp>

#include <cstddef>

namespace qrm::detail {

class XmlElement {
public:
    // The depth of a document whose nesting is not known: any depth.
    static constexpr std::size_t kAnyDepth = static_cast<std::size_t>(-1);

    // A null node.
    XmlElement() = default;
    explicit XmlElement(pugi::xml_node node) : mNode(node) {}
    // The element behind a node of the document model, and back.
    static XmlElement Of(const VELXMLNode& node);
    static VELXMLNode NodeOf(XmlElement element, VELXMLDocument* document);

    bool IsNull() const { return !mNode; }
    explicit operator bool() const { return static_cast<bool>(mNode); }

    // The element name, as the document holds it (UTF-8).
    const char* Name() const { return mNode.name(); }
    VELString GetName() const;
    // The first child node as the parser reports it: the text of a text or
    // CDATA node, the name of an element node, empty when there is no child.
    VELString GetFirstChildNodeName() const;
    // The element's text: its first text or CDATA child, empty when none.
    VELString GetValue() const;
    // When the element has the attribute, writes its text into `value` and
    // returns true; otherwise returns false and leaves `value`.
    bool GetAttributeValue(const char* name, VELString& value) const;
    // The attribute's text as the document holds it (UTF-8, NUL-terminated),
    // or null when the element has no such attribute. Valid while the
    // document lives.
    const char* GetAttributeText(const char* name) const;

    // The first child element, or the first named exactly `name`.
    XmlElement FirstChildElement() const;
    XmlElement FirstChildElement(const char* name) const;
    // The next sibling element, or the next named exactly `name`.
    XmlElement NextSiblingElement() const;
    XmlElement NextSiblingElement(const char* name) const;
    // The child element named exactly `name` when there is exactly one;
    // a null node when there is none or more than one.
    XmlElement GetOnlyChild(const char* name) const;

    // Writes the names and texts (UTF-8, as the document holds them) of the
    // first `capacity` attributes, in document order, and returns how many
    // attributes the element has. For readers that look up many attributes
    // of one element.
    std::size_t GetAttributeTexts(const char** names, const char** texts, std::size_t capacity) const;
    // The same for the child elements: their names and nodes.
    std::size_t GetChildElements(const char** names, XmlElement* children, std::size_t capacity) const;

    // Takes this element, with everything inside it, out of its document
    // and frees their memory now rather than with the document, for readers
    // that are done with one part of a large document. This node then reads
    // as null; any other node object for this element or for an element
    // inside it must not be used afterwards. The root cannot be discarded.
    void Discard();
    // The same for the element behind a node of the document model, which
    // then reads as null.
    static void Discard(VELXMLNode& node);

private:
    // Discard() in a document whose elements nest at most `documentDepth`
    // deep (kAnyDepth when that is not known).
    void TakeOut(std::size_t documentDepth);

    pugi::xml_node mNode;
};

}  // namespace qrm::detail

#endif
