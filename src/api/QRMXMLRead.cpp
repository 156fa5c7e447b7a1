#include "api/QRMXMLRead.h"

namespace qrm {

QRMKitReturnCode OpenDocument(const VELFile& file, std::unique_ptr<VELXMLDocument>& document,
                              VELXMLNode*& root)
{
    if (!file.Exists()) {
        return QRM_KIT_NOT_FOUND;
    }
    int errorCode = 0;
    VELString errorText;
    document.reset(VELDOMParser::Parse(file, errorCode, errorText));
    if (errorCode != 0 || !document) {
        document.reset();
        return QRM_KIT_FAILURE;
    }
    root = document->GetRoot();
    return root != nullptr ? QRM_KIT_SUCCESS : QRM_KIT_FAILURE;
}

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
