// Small reading helpers shared by the catalog and inventory readers.
#ifndef QRMKIT_XML_READ_H
#define QRMKIT_XML_READ_H

#include "QRMKitTypes.h"
#include "VELString.h"
#include "VELXML.h"

#include <cstddef>
#include <ios>
#include <memory>
#include <vector>

namespace qrm {

// Reads an XML file: QRM_KIT_NOT_FOUND when it does not exist,
// QRM_KIT_FAILURE when it does not parse or has no root element; otherwise
// QRM_KIT_SUCCESS with the document and its root.
QRMKitReturnCode OpenDocument(const VELFile& file, std::unique_ptr<VELXMLDocument>& document,
                              VELXMLNode*& root);

// The direct child of that name when there is exactly one; a null node when
// there is none or more than one (two "Name" elements count as no "Name").
VELXMLNode SingleChild(const VELXMLNode& node, const char* name);

// The attribute's text, or the empty text when the attribute is missing.
VELString AttributeOrEmpty(const VELXMLNode& node, const char* name);

// The attribute's number in the given base (std::dec or std::hex); a missing
// attribute reads as the empty text does.
unsigned int AttributeNumber(const VELXMLNode& node, const char* name,
                             std::ios_base& (*base)(std::ios_base&));

// One element with its attributes and child elements gathered in a single
// pass, for the elements the readers query many times by name (a component,
// a bundle, an operating system): each query then scans a short local list
// instead of walking the document again. Answers exactly as the node itself
// would: the first attribute of a name, the only child of a name.
class Element {
public:
    explicit Element(const VELXMLNode& node);
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;

    const VELXMLNode& Node() const { return mNode; }
    // The attribute's text as the document holds it, or null.
    const char* Text(const char* name) const;
    // The child element of that name when there is exactly one, else a null
    // node.
    VELXMLNode OnlyChild(const char* name) const;

private:
    static constexpr std::size_t kCapacity = 24;

    const VELXMLNode& mNode;
    std::size_t mAttributeCount;
    const char* mAttributeNames[kCapacity];
    const char* mAttributeTexts[kCapacity];
    std::size_t mChildCount;
    const char* mChildNames[kCapacity];
    VELXMLNode mChildren[kCapacity];
};

VELXMLNode SingleChild(const Element& element, const char* name);
VELString AttributeOrEmpty(const Element& element, const char* name);
unsigned int AttributeNumber(const Element& element, const char* name,
                             std::ios_base& (*base)(std::ios_base&));

// A step whose result the readers test: only QRM_KIT_FAILURE fails it
// (QRM_KIT_ALREADY_EXISTS from an add is no failure: the item is skipped).
inline bool Failed(QRMKitReturnCode code) { return code == QRM_KIT_FAILURE; }

}  // namespace qrm

#endif
