#include "VELXML.h"

#include "base/VELXMLElement.h"
#include "base/VELXMLWellFormed.h"

#include <pugixml.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

struct VELXMLDocument::Impl {
    pugi::xml_document document;
    // The deepest nesting of elements in the document, as the checks found
    // it before parsing; any depth until then.
    std::size_t depth = qrm::detail::XmlElement::kAnyDepth;
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

// Defined here, where the document's depth is known.
void qrm::detail::XmlElement::Discard(VELXMLNode& node)
{
    XmlElement element = Of(node);
    element.TakeOut(node.mDocument != nullptr ? node.mDocument->mImpl->depth : kAnyDepth);
    if (element.IsNull()) {
        node.mNode = nullptr;
    }
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

using qrm::detail::XmlBytes;
using qrm::detail::XmlFault;

// Reads a whole regular file into memory obtained from the XML parser's own
// allocator, so that the parser can take the buffer over and parse in place.
pugi::xml_parse_status ReadFile(const std::string& path, XmlBytes& bytes)
{
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
    bytes.Reset(buffer, length);
    std::size_t done = 0;
    while (done < length) {
        ssize_t got = ::read(fd, static_cast<char*>(buffer) + done, length - done);
        if (got <= 0) {
            break;
        }
        done += static_cast<std::size_t>(got);
    }
    ::close(fd);
    return done == length ? pugi::status_ok : pugi::status_io_error;
}

// Reads the file and decodes it into the UTF-8 text the parser reads, and
// checks that text for what the parser does not check. On a document that
// is not well-formed returns status_ok with `fault` set; on one that is,
// sets `depth` to its deepest nesting of elements.
pugi::xml_parse_status ReadText(const std::string& path, XmlBytes& bytes, XmlFault& fault, std::size_t& depth)
{
    const pugi::xml_parse_status status = ReadFile(path, bytes);
    if (status != pugi::status_ok) {
        return status;
    }
    if (!qrm::detail::DecodeXmlText(bytes, fault)) {
        return fault.what.empty() ? pugi::status_out_of_memory : pugi::status_ok;
    }
    qrm::detail::CheckXmlText(bytes.Data(), bytes.Size(), fault, &depth);
    return pugi::status_ok;
}

// The error code of a document that is not well-formed XML by a rule the
// parser does not enforce itself (the parser's own codes are smaller).
constexpr int kNotWellFormed = 100;

// Where the parser, reading a copy of the text, stops and why; false when it
// reads the text to the end.
bool ParserFault(const XmlBytes& text, XmlFault& fault, int& code)
{
    pugi::xml_document document;
    const pugi::xml_parse_result result =
        document.load_buffer(text.Data(), text.Size(), pugi::parse_default, pugi::encoding_utf8);
    if (result) {
        return false;
    }
    fault.what = result.description();
    if (!fault.what.empty() && fault.what[0] >= 'A' && fault.what[0] <= 'Z') {
        fault.what[0] = static_cast<char>(fault.what[0] - 'A' + 'a');
    }
    fault.offset = static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, result.offset));
    code = static_cast<int>(result.status);
    return true;
}

void Refuse(int code, const std::string& text, int& errorCode, VELString& errorText)
{
    errorCode = code;
    errorText = VELString::FromUTF8(text.data(), text.size());
}

// A document that is not XML: the first fault in it, the checks' or the
// parser's, with its line and column.
void RefuseText(const XmlBytes& text, XmlFault fault, int& errorCode, VELString& errorText)
{
    int code = kNotWellFormed;
    XmlFault parser;
    int parserCode = 0;
    if (ParserFault(text, parser, parserCode) && (fault.what.empty() || parser.offset < fault.offset)) {
        fault = parser;
        code = parserCode;
    }
    Refuse(code, qrm::detail::DescribeXmlPosition(text.Data(), text.Size(), fault.offset, fault.what), errorCode,
           errorText);
}

}  // namespace

VELXMLDocument* VELDOMParser::Parse(const VELFile& file, int& errorCode, VELString& errorText)
{
    const std::string path = file.GetPath().GetUTF8String();
    XmlBytes bytes;
    XmlFault fault;
    std::size_t depth = XmlElement::kAnyDepth;
    const pugi::xml_parse_status status = ReadText(path, bytes, fault, depth);
    if (status != pugi::status_ok) {
        Refuse(static_cast<int>(status),
               status == pugi::status_file_not_found  ? "file cannot be opened"
               : status == pugi::status_out_of_memory ? "out of memory"
                                                      : "file cannot be read",
               errorCode, errorText);
        return nullptr;
    }
    if (!fault.what.empty()) {
        RefuseText(bytes, fault, errorCode, errorText);
        return nullptr;
    }
    std::unique_ptr<VELXMLDocument> document(new VELXMLDocument);
    const std::size_t size = bytes.Size();
    pugi::xml_parse_result result = document->mImpl->document.load_buffer_inplace_own(
        bytes.Release(), size, pugi::parse_default, pugi::encoding_utf8);
    if (!result) {
        // The parser changed the text in place: the text is read afresh to
        // say where it stopped.
        XmlBytes again;
        XmlFault ignored;
        std::size_t ignoredDepth = 0;
        if (ReadText(path, again, ignored, ignoredDepth) == pugi::status_ok) {
            RefuseText(again, XmlFault(), errorCode, errorText);
        }
        if (errorCode == 0) {
            Refuse(static_cast<int>(result.status), result.description(), errorCode, errorText);
        }
        return nullptr;
    }
    document->mImpl->depth = depth;
    return document.release();
}
