#include "api/QRMXMLRead.h"

namespace qrm {

VELXMLNode* SingleChild(const VELXMLNode& node, const char* name)
{
    std::vector<VELXMLNode*> children;
    node.GetChildren(name, children);
    return children.size() == 1 ? children.front() : nullptr;
}

VELString AttributeOrEmpty(const VELXMLNode& node, const char* name)
{
    VELString value;
    node.GetAttributeValue(name, value);
    return value;
}

}  // namespace qrm
