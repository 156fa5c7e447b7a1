// Small reading helpers shared by the catalog and inventory readers.
#ifndef QRMKIT_XML_READ_H
#define QRMKIT_XML_READ_H

#include "VELString.h"
#include "VELXML.h"

#include <vector>

namespace qrm {

// The direct child of that name when there is exactly one; null when there
// is none or more than one (two "Name" elements count as no "Name").
VELXMLNode* SingleChild(const VELXMLNode& node, const char* name);

// The attribute's text, or the empty text when the attribute is missing.
VELString AttributeOrEmpty(const VELXMLNode& node, const char* name);

}  // namespace qrm

#endif
