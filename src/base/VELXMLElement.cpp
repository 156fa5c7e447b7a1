#include "base/VELXMLElement.h"

#include <cstring>

namespace qrm::detail {

namespace {

VELString FromPugi(const pugi::char_t* text) { return VELString::FromUTF8(text, std::strlen(text)); }

// The first element among `node` and its following siblings.
pugi::xml_node ElementFrom(pugi::xml_node node)
{
    while (node && node.type() != pugi::node_element) {
        node = node.next_sibling();
    }
    return node;
}

}  // namespace

XmlElement XmlElement::Of(const VELXMLNode& node)
{
    return XmlElement(pugi::xml_node(reinterpret_cast<pugi::xml_node_struct*>(node.mNode)));
}

VELXMLNode XmlElement::NodeOf(XmlElement element, VELXMLDocument* document)
{
    return VELXMLNode(reinterpret_cast<XmlHandle*>(element.mNode.internal_object()), document);
}

VELString XmlElement::GetName() const { return FromPugi(mNode.name()); }

VELString XmlElement::GetFirstChildNodeName() const
{
    pugi::xml_node child = mNode.first_child();
    if (!child) {
        return VELString();
    }
    switch (child.type()) {
    case pugi::node_pcdata:
    case pugi::node_cdata:
        return FromPugi(child.value());
    case pugi::node_element:
        return FromPugi(child.name());
    default:
        return VELString();
    }
}

VELString XmlElement::GetValue() const { return FromPugi(mNode.child_value()); }

bool XmlElement::GetAttributeValue(const char* name, VELString& value) const
{
    const char* text = GetAttributeText(name);
    if (text == nullptr) {
        return false;
    }
    value = FromPugi(text);
    return true;
}

const char* XmlElement::GetAttributeText(const char* name) const
{
    if (!mNode || name == nullptr) {
        return nullptr;
    }
    pugi::xml_attribute attribute = mNode.attribute(name);
    return attribute ? attribute.value() : nullptr;
}

XmlElement XmlElement::FirstChildElement() const { return XmlElement(ElementFrom(mNode.first_child())); }

// Only elements carry names in the documents the parser builds, so the
// parser's own named lookups find elements.
XmlElement XmlElement::FirstChildElement(const char* name) const
{
    return name == nullptr ? XmlElement() : XmlElement(mNode.child(name));
}

XmlElement XmlElement::NextSiblingElement() const { return XmlElement(ElementFrom(mNode.next_sibling())); }

XmlElement XmlElement::NextSiblingElement(const char* name) const
{
    return name == nullptr ? XmlElement() : XmlElement(mNode.next_sibling(name));
}

XmlElement XmlElement::GetOnlyChild(const char* name) const
{
    XmlElement first = FirstChildElement(name);
    if (first.IsNull() || !first.NextSiblingElement(name).IsNull()) {
        return XmlElement();
    }
    return first;
}

std::size_t XmlElement::GetAttributeTexts(const char** names, const char** texts, std::size_t capacity) const
{
    std::size_t count = 0;
    for (pugi::xml_attribute attribute = mNode.first_attribute(); attribute;
         attribute = attribute.next_attribute(), ++count) {
        if (count < capacity) {
            names[count] = attribute.name();
            texts[count] = attribute.value();
        }
    }
    return count;
}

std::size_t XmlElement::GetChildElements(const char** names, XmlElement* children, std::size_t capacity) const
{
    std::size_t count = 0;
    for (pugi::xml_node child = mNode.first_child(); child; child = child.next_sibling()) {
        if (child.type() != pugi::node_element) {
            continue;
        }
        if (count < capacity) {
            names[count] = child.name();
            children[count] = XmlElement(child);
        }
        ++count;
    }
    return count;
}

void XmlElement::Discard() { TakeOut(kAnyDepth); }

void XmlElement::TakeOut(std::size_t documentDepth)
{
    pugi::xml_node top = mNode;
    pugi::xml_node parent = top.parent();
    if (!top || !parent || parent.type() == pugi::node_document) {
        return;
    }
    // The parser frees a subtree recursively. A hostile document may nest
    // elements very deeply, so a deep subtree is taken apart from its
    // leaves upwards instead, one node at a time. Whether it is deep is
    // looked at only when the document itself may be: in a document no
    // deeper than that, no subtree is.
    const int shallow = 64;
    bool deep = false;
    int depth = 0;
    pugi::xml_node first = documentDepth > shallow ? top.first_child() : pugi::xml_node();
    for (pugi::xml_node node = first; node && !deep;) {
        if (node.first_child()) {
            node = node.first_child();
            deep = ++depth >= shallow;
            continue;
        }
        while (node != top && !node.next_sibling()) {
            node = node.parent();
            --depth;
        }
        node = node == top ? pugi::xml_node() : node.next_sibling();
    }
    if (deep) {
        pugi::xml_node node = top;
        for (;;) {
            if (pugi::xml_node last = node.last_child()) {
                node = last;
                continue;
            }
            if (node == top) {
                break;
            }
            pugi::xml_node up = node.parent();
            up.remove_child(node);
            node = up;
        }
    }
    parent.remove_child(top);
    mNode = pugi::xml_node();
}

}  // namespace qrm::detail
