#include "VELXML.h"

#include "base/VELXMLElement.h"

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

using qrm::detail::XmlElement;

VELXMLNode::VELXMLNode(qrm::detail::XmlHandle* node, VELXMLDocument* document) : mNode(node), mDocument(document) {}

VELString VELXMLNode::GetName() const { return XmlElement::Of(*this).GetName(); }

VELString VELXMLNode::GetValue() const { return XmlElement::Of(*this).GetValue(); }

VELString VELXMLNode::GetFirstChildNodeName() const { return XmlElement::Of(*this).GetFirstChildNodeName(); }

VELErrorCodeEnum VELXMLNode::GetAttributeValue(const VELString& name, VELString& value) const
{
    return GetAttributeValue(name.GetUTF8String().c_str(), value);
}

VELErrorCodeEnum VELXMLNode::GetAttributeValue(const char* name, VELString& value) const
{
    return XmlElement::Of(*this).GetAttributeValue(name, value) ? VEL_SUCCESS : VEL_FAILURE;
}

VELErrorCodeEnum VELXMLNode::GetChildren(std::vector<VELXMLNode*>& children) const
{
    if (mNode == nullptr || mDocument == nullptr) {
        return VEL_FAILURE;
    }
    for (XmlElement child = XmlElement::Of(*this).FirstChildElement(); child; child = child.NextSiblingElement()) {
        children.push_back(mDocument->Wrap(XmlElement::NodeOf(child, mDocument)));
    }
    return VEL_SUCCESS;
}

VELErrorCodeEnum VELXMLNode::GetChildren(const VELString& name, std::vector<VELXMLNode*>& children) const
{
    return GetChildren(name.GetUTF8String().c_str(), children);
}

VELErrorCodeEnum VELXMLNode::GetChildren(const char* name, std::vector<VELXMLNode*>& children) const
{
    if (mNode == nullptr || mDocument == nullptr || name == nullptr) {
        return VEL_FAILURE;
    }
    for (XmlElement child = XmlElement::Of(*this).FirstChildElement(name); child;
         child = child.NextSiblingElement(name)) {
        children.push_back(mDocument->Wrap(XmlElement::NodeOf(child, mDocument)));
    }
    return VEL_SUCCESS;
}

VELXMLDocument::VELXMLDocument() : mImpl(new Impl) {}

VELXMLDocument::~VELXMLDocument() = default;

VELXMLNode* VELXMLDocument::GetRoot() const
{
    XmlElement root(mImpl->document.document_element());
    if (!root) {
        return nullptr;
    }
    VELXMLDocument* self = const_cast<VELXMLDocument*>(this);
    return self->Wrap(XmlElement::NodeOf(root, self));
}

VELXMLNode* VELXMLDocument::Wrap(const VELXMLNode& node)
{
    mNodes.push_back(node);
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
        errorText = status == pugi::status_file_not_found  ? "file cannot be opened"
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
        std::string text =
            std::string(result.description()) + " at offset " + std::to_string(static_cast<long long>(result.offset));
        errorText = VELString::FromUTF8(text.data(), text.size());
        return nullptr;
    }
    return document.release();
}
