#include "api/QRMXMLRead.h"

#include "base/VELNumber.h"

#include <cstring>

namespace qrm {

QRMKitReturnCode OpenDocument(const VELFile& file, std::unique_ptr<VELXMLDocument>& document, VELXMLNode*& root)
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

namespace {

bool SameName(const char* stored, const char* name) { return stored[0] == name[0] && std::strcmp(stored, name) == 0; }

VELString TextOrEmpty(const char* text)
{
    return text != nullptr ? VELString::FromUTF8(text, std::strlen(text)) : VELString();
}

// Read straight from the document's bytes: the number is the same as that
// of the converted text, without building the text.
unsigned int NumberOf(const char* text, unsigned int base)
{
    return text != nullptr ? vel::ReadUnsigned(text, std::strlen(text), base) : 0;
}

}  // namespace

Element::Element(const XmlElement& node) : mNode(node)
{
    mAttributeCount = node.GetAttributeTexts(mAttributeNames, mAttributeTexts, kCapacity);
    mChildCount = node.GetChildElements(mChildNames, mChildren, kCapacity);
}

const char* Element::Text(const char* name) const
{
    if (mAttributeCount > kCapacity) {
        return mNode.GetAttributeText(name);
    }
    for (std::size_t i = 0; i < mAttributeCount; ++i) {
        if (SameName(mAttributeNames[i], name)) {
            return mAttributeTexts[i];
        }
    }
    return nullptr;
}

XmlElement Element::OnlyChild(const char* name) const
{
    if (mChildCount > kCapacity) {
        return mNode.GetOnlyChild(name);
    }
    XmlElement found;
    for (std::size_t i = 0; i < mChildCount; ++i) {
        if (SameName(mChildNames[i], name)) {
            if (found) {
                return XmlElement();
            }
            found = mChildren[i];
        }
    }
    return found;
}

XmlElement SingleChild(const XmlElement& node, const char* name) { return node.GetOnlyChild(name); }

XmlElement SingleChild(const Element& element, const char* name) { return element.OnlyChild(name); }

VELString AttributeOrEmpty(const XmlElement& node, const char* name)
{
    return TextOrEmpty(node.GetAttributeText(name));
}

bool ReadAttribute(const XmlElement& node, const char* name, VELString& value)
{
    const char* text = node.GetAttributeText(name);
    value = TextOrEmpty(text);
    return text != nullptr;
}

VELString AttributeOrEmpty(const Element& element, const char* name) { return TextOrEmpty(element.Text(name)); }

unsigned int AttributeNumber(const XmlElement& node, const char* name, unsigned int base)
{
    return NumberOf(node.GetAttributeText(name), base);
}

bool ReadAttributeNumber(const XmlElement& node, const char* name, unsigned int base, unsigned int& value)
{
    const char* text = node.GetAttributeText(name);
    if (text == nullptr) {
        return false;
    }
    value = NumberOf(text, base);
    return true;
}

unsigned int AttributeNumber(const Element& element, const char* name, unsigned int base)
{
    return NumberOf(element.Text(name), base);
}

}  // namespace qrm
