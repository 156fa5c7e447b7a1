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

unsigned int AttributeNumber(const VELXMLNode& node, const char* name,
                             std::ios_base& (*base)(std::ios_base&))
{
    return AttributeOrEmpty(node, name).GetIntValue(base);
}

}  // namespace qrm
