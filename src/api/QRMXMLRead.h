// Small reading helpers shared by the catalog and inventory readers.
#ifndef QRMKIT_XML_READ_H
#define QRMKIT_XML_READ_H

#include "QRMKitTypes.h"
#include "VELString.h"
#include "VELXML.h"
#include "base/VELXMLElement.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace qrm {

using detail::XmlElement;

// Reads an XML file: QRM_KIT_NOT_FOUND when it does not exist,
// QRM_KIT_FAILURE when it does not parse or has no root element; otherwise
// QRM_KIT_SUCCESS with the document and its root.
QRMKitReturnCode OpenDocument(const VELFile& file, std::unique_ptr<VELXMLDocument>& document, VELXMLNode*& root);

// The direct child of that name when there is exactly one; a null node when
// there is none or more than one (two "Name" elements count as no "Name").
XmlElement SingleChild(const XmlElement& node, const char* name);

// The attribute's text, or the empty text when the attribute is missing.
VELString AttributeOrEmpty(const XmlElement& node, const char* name);

// When the element has the attribute, writes its text into `value` (emptied
// first) and returns true; otherwise returns false and `value` is empty.
bool ReadAttribute(const XmlElement& node, const char* name, VELString& value);

// The attribute's number in base 10 or 16, read as VELString::GetIntValue
// reads it with std::dec or std::hex; a missing attribute reads as the empty
// text does (0).
unsigned int AttributeNumber(const XmlElement& node, const char* name, unsigned int base);

// When the element has the attribute, writes its number (as AttributeNumber
// reads it) into `value` and returns true; otherwise returns false and
// leaves `value`.
bool ReadAttributeNumber(const XmlElement& node, const char* name, unsigned int base, unsigned int& value);

// One element with its attributes and child elements gathered in a single
// pass, for the elements the readers query many times by name (a component,
// a bundle, an operating system): each query then scans a short local list
// instead of walking the document again. Answers exactly as the node itself
// would: the first attribute of a name, the only child of a name.
class Element {
public:
    explicit Element(const XmlElement& node);
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;

    const XmlElement& Node() const { return mNode; }
    // The attribute's text as the document holds it, or null.
    const char* Text(const char* name) const;
    // The child element of that name when there is exactly one, else a null
    // node.
    XmlElement OnlyChild(const char* name) const;

private:
    static constexpr std::size_t kCapacity = 24;

    const XmlElement& mNode;
    std::size_t mAttributeCount;
    const char* mAttributeNames[kCapacity];
    const char* mAttributeTexts[kCapacity];
    std::size_t mChildCount;
    const char* mChildNames[kCapacity];
    XmlElement mChildren[kCapacity];
};

XmlElement SingleChild(const Element& element, const char* name);
VELString AttributeOrEmpty(const Element& element, const char* name);
unsigned int AttributeNumber(const Element& element, const char* name, unsigned int base);

// A step whose result the readers test: only QRM_KIT_FAILURE fails it
// (QRM_KIT_ALREADY_EXISTS from an add is no failure: the item is skipped).
inline bool Failed(QRMKitReturnCode code) { return code == QRM_KIT_FAILURE; }

}  // namespace qrm

#endif
