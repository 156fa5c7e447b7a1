#include "VELXML.h"

#include <pugixml.hpp>

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

struct VELXMLDocument::Impl {
    pugi::xml_document document;
};

namespace {

VELString FromPugi(const pugi::char_t* text)
{
    return VELString::FromUTF8(text, std::strlen(text));
}

pugi::xml_node Node(pugi::xml_node_struct* node) { return pugi::xml_node(node); }

}  // namespace

VELXMLNode::VELXMLNode(pugi::xml_node_struct* node, VELXMLDocument* document)
    : mNode(node), mDocument(document)
{
}

VELString VELXMLNode::GetName() const { return FromPugi(Node(mNode).name()); }

VELString VELXMLNode::GetValue() const { return FromPugi(Node(mNode).child_value()); }

VELString VELXMLNode::GetFirstChildNodeName() const
{
    pugi::xml_node child = Node(mNode).first_child();
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

VELErrorCodeEnum VELXMLNode::GetAttributeValue(const VELString& name, VELString& value) const
{
    return GetAttributeValue(name.GetUTF8String().c_str(), value);
}

VELErrorCodeEnum VELXMLNode::GetAttributeValue(const char* name, VELString& value) const
{
    const char* text = GetAttributeText(name);
    if (text == nullptr) {
        return VEL_FAILURE;
    }
    value = FromPugi(text);
    return VEL_SUCCESS;
}

const char* VELXMLNode::GetAttributeText(const char* name) const
{
    if (mNode == nullptr || name == nullptr) {
        return nullptr;
    }
    pugi::xml_attribute attribute = Node(mNode).attribute(name);
    return attribute ? attribute.value() : nullptr;
}

std::size_t VELXMLNode::GetAttributeTexts(const char** names, const char** texts,
                                          std::size_t capacity) const
{
    std::size_t count = 0;
    for (pugi::xml_attribute attribute = Node(mNode).first_attribute(); attribute;
         attribute = attribute.next_attribute(), ++count) {
        if (count < capacity) {
            names[count] = attribute.name();
            texts[count] = attribute.value();
        }
    }
    return count;
}

std::size_t VELXMLNode::GetChildElements(const char** names, VELXMLNode* children,
                                         std::size_t capacity) const
{
    std::size_t count = 0;
    for (pugi::xml_node child = Node(mNode).first_child(); child; child = child.next_sibling()) {
        if (child.type() != pugi::node_element) {
            continue;
        }
        if (count < capacity) {
            names[count] = child.name();
            children[count] = VELXMLNode(child.internal_object(), mDocument);
        }
        ++count;
    }
    return count;
}

VELErrorCodeEnum VELXMLNode::GetChildren(std::vector<VELXMLNode*>& children) const
{
    if (mNode == nullptr || mDocument == nullptr) {
        return VEL_FAILURE;
    }
    for (pugi::xml_node child = Node(mNode).first_child(); child; child = child.next_sibling()) {
        if (child.type() == pugi::node_element) {
            children.push_back(mDocument->Wrap(child.internal_object()));
        }
    }
    return VEL_SUCCESS;
}

VELErrorCodeEnum VELXMLNode::GetChildren(const VELString& name,
                                         std::vector<VELXMLNode*>& children) const
{
    return GetChildren(name.GetUTF8String().c_str(), children);
}

VELErrorCodeEnum VELXMLNode::GetChildren(const char* name, std::vector<VELXMLNode*>& children) const
{
    if (mNode == nullptr || mDocument == nullptr || name == nullptr) {
        return VEL_FAILURE;
    }
    for (pugi::xml_node child = Node(mNode).child(name); child; child = child.next_sibling(name)) {
        children.push_back(mDocument->Wrap(child.internal_object()));
    }
    return VEL_SUCCESS;
}

namespace {

// The first element among `node` and its following siblings.
pugi::xml_node ElementFrom(pugi::xml_node node)
{
    while (node && node.type() != pugi::node_element) {
        node = node.next_sibling();
    }
    return node;
}

}  // namespace

VELXMLNode VELXMLNode::FirstChildElement() const
{
    return VELXMLNode(ElementFrom(Node(mNode).first_child()).internal_object(), mDocument);
}

// Only elements carry names in the documents the parser builds, so the
// parser's own named lookups find elements.
VELXMLNode VELXMLNode::FirstChildElement(const char* name) const
{
    if (name == nullptr) {
        return VELXMLNode(nullptr, mDocument);
    }
    return VELXMLNode(Node(mNode).child(name).internal_object(), mDocument);
}

VELXMLNode VELXMLNode::NextSiblingElement() const
{
    return VELXMLNode(ElementFrom(Node(mNode).next_sibling()).internal_object(), mDocument);
}

VELXMLNode VELXMLNode::NextSiblingElement(const char* name) const
{
    if (name == nullptr) {
        return VELXMLNode(nullptr, mDocument);
    }
    return VELXMLNode(Node(mNode).next_sibling(name).internal_object(), mDocument);
}

VELXMLNode VELXMLNode::GetOnlyChild(const char* name) const
{
    VELXMLNode first = FirstChildElement(name);
    if (first.IsNull() || !first.NextSiblingElement(name).IsNull()) {
        return VELXMLNode(nullptr, mDocument);
    }
    return first;
}

void VELXMLNode::Discard()
{
    pugi::xml_node top = Node(mNode);
    pugi::xml_node parent = top.parent();
    if (!top || !parent || parent.type() == pugi::node_document) {
        return;
    }
    // The parser frees a subtree recursively. A hostile document may nest
    // elements very deeply, so a deep subtree is taken apart from its
    // leaves upwards instead, one node at a time.
    const int shallow = 64;
    bool deep = false;
    int depth = 0;
    for (pugi::xml_node node = top.first_child(); node && !deep;) {
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
    mNode = nullptr;
}

VELXMLDocument::VELXMLDocument() : mImpl(new Impl) {}

VELXMLDocument::~VELXMLDocument() = default;

VELXMLNode* VELXMLDocument::GetRoot() const
{
    pugi::xml_node root = mImpl->document.document_element();
    if (!root) {
        return nullptr;
    }
    return const_cast<VELXMLDocument*>(this)->Wrap(root.internal_object());
}

VELXMLNode* VELXMLDocument::Wrap(pugi::xml_node_struct* node)
{
    mNodes.emplace_back(node, this);
    return &mNodes.back();
}

namespace {

// Reads a whole regular file into memory obtained from the XML parser's own
// allocator, so that the parser can take the buffer over and parse in place.
pugi::xml_parse_status ReadFile(const std::string& path, void*& contents, std::size_t& size)
{
    contents = nullptr;
    size = 0;
    if (path.empty() || path.find('\0') != std::string::npos) {
        return pugi::status_file_not_found;
    }
    int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        return pugi::status_file_not_found;
    }
    struct stat info;
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        ::close(fd);
        return pugi::status_io_error;
    }
    std::size_t length = static_cast<std::size_t>(info.st_size);
    void* buffer = pugi::get_memory_allocation_function()(length > 0 ? length : 1);
    if (buffer == nullptr) {
        ::close(fd);
        return pugi::status_out_of_memory;
    }
    std::size_t done = 0;
    while (done < length) {
        ssize_t got = ::read(fd, static_cast<char*>(buffer) + done, length - done);
        if (got <= 0) {
            break;
        }
        done += static_cast<std::size_t>(got);
    }
    ::close(fd);
    if (done != length) {
        pugi::get_memory_deallocation_function()(buffer);
        return pugi::status_io_error;
    }
    contents = buffer;
    size = length;
    return pugi::status_ok;
}

}  // namespace

VELXMLDocument* VELDOMParser::Parse(const VELFile& file, int& errorCode, VELString& errorText)
{
    void* contents = nullptr;
    std::size_t size = 0;
    pugi::xml_parse_status status = ReadFile(file.GetPath().GetUTF8String(), contents, size);
    if (status != pugi::status_ok) {
        errorCode = static_cast<int>(status);
        errorText = status == pugi::status_file_not_found ? "file cannot be opened"
                    : status == pugi::status_out_of_memory ? "out of memory"
                                                           : "file cannot be read";
        return nullptr;
    }
    // The file's bytes are freed here until the parser has taken them over.
    std::unique_ptr<void, pugi::deallocation_function> bytes(contents, pugi::get_memory_deallocation_function());
    std::unique_ptr<VELXMLDocument> document(new VELXMLDocument);
    pugi::xml_parse_result result = document->mImpl->document.load_buffer_inplace_own(
        bytes.release(), size, pugi::parse_default, pugi::encoding_auto);
    if (!result) {
        errorCode = static_cast<int>(result.status);
        std::string text = std::string(result.description()) + " at offset " +
                           std::to_string(static_cast<long long>(result.offset));
        errorText = VELString::FromUTF8(text.data(), text.size());
        return nullptr;
    }
    return document.release();
}
