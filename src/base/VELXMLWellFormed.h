// Well-formedness of a document, the rules of XML 1.0 that the parser behind
// the document model does not enforce itself, and the decoding of a file's
// bytes into the UTF-8 text that parser reads.
//
// A document the XML layer reads is well-formed XML: exactly one root
// element, nothing but blanks, comments, processing instructions and one
// document type declaration around it; every character one XML allows;
// every reference a character reference to such a character or one of the
// five predefined entities (lt, gt, amp, apos, quot). Entities that a
// document type declaration defines are never expanded, so a document that
// refers to one is refused rather than read with the reference left as text.
//
// The checks run on the text before it is parsed, in one pass that visits
// only the bytes that start or end markup ('<', '>', quotes, '&', ']') and
// reads a byte's character only where 64 bytes are not all plain ASCII, so
// that they cost little next to the parse.
#ifndef VEL_XML_WELL_FORMED_H
#define VEL_XML_WELL_FORMED_H

#include <cstddef>
#include <string>

namespace qrm::detail {

// Why a document is not well-formed XML and where: a byte offset into the
// decoded text (UTF-8, byte-order mark included when the file has one).
struct XmlFault {
    std::string what;
    std::size_t offset = 0;
};

// The file's bytes, owned through the XML parser's own allocator so that the
// parser can take them over.
class XmlBytes {
public:
    XmlBytes() = default;
    ~XmlBytes();
    XmlBytes(const XmlBytes&) = delete;
    XmlBytes& operator=(const XmlBytes&) = delete;

    char* Data() const { return static_cast<char*>(mData); }
    std::size_t Size() const { return mSize; }
    // Frees the bytes held and holds `data` (from the parser's allocator).
    void Reset(void* data, std::size_t size);
    // Hands the bytes over to the caller, who frees them.
    void* Release();

private:
    void* mData = nullptr;
    std::size_t mSize = 0;
};

// Turns the file's bytes into UTF-8 text for the parser, in place or into a
// new buffer (the old one is then freed): UTF-8 (with or without byte-order
// mark) as it is, UTF-16 (little or big endian, with a byte-order mark or
// starting with an XML declaration) and ISO-8859-1 (declared) converted.
// Checks the XML declaration, when there is one, and that the encoding it
// names is the one the document is in. Returns false with `fault` set when
// the declaration is malformed, names an encoding the bytes are not in or
// that this layer does not read, or the bytes are not valid in their
// encoding. Returns false with an empty `fault` when memory runs out.
bool DecodeXmlText(XmlBytes& bytes, XmlFault& fault);

// Checks decoded text (as DecodeXmlText leaves it) for the well-formedness
// rules the parser does not enforce. Returns false with `fault` set at the
// first violation found. When the text is well-formed and `depth` is given,
// sets it to the deepest nesting of elements (1 for a root alone), which
// the walk over the tags finds at no extra cost.
bool CheckXmlText(const char* text, std::size_t size, XmlFault& fault, std::size_t* depth = nullptr);

// "line L, column C: what" for an offset into decoded text: lines counted at
// each line feed, columns in characters, both from 1.
std::string DescribeXmlPosition(const char* text, std::size_t size, std::size_t offset, const std::string& what);

}  // namespace qrm::detail

#endif
