// XML reader against libxml2: the input is a document. The library's reader
// (VELDOMParser::Parse, from a scratch file) and libxml2 (xmlReadMemory: no
// network, no entity substitution, no DTD loading, errors silenced) each
// decide whether it is accepted; the decisions must agree, but for the
// documents that the library refuses on purpose while libxml2 may accept
// them (see ExpectedRefusal), which the library must refuse. A difference
// aborts with "broken promise", both decisions and why each was taken.
//
// libxml2 is linked into this target only. It is asked for documents of
// any depth (XML_PARSE_HUGE), since the library sets no depth limit.
#include "FuzzSupport.h"

#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlerror.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>

#include <strings.h>

using namespace qrmfuzz;

namespace {

ScratchFile* gDocument = nullptr;

// What libxml2 saw while parsing one document.
struct LibxmlView {
    bool accepted = false;
    // The first error it reported (none are printed).
    std::string error;
    // Its content (not its DTD) refers to an entity other than the five
    // predefined ones.
    bool referencesDtdEntity = false;
    // The encoding that the XML declaration names (empty when it names none
    // or libxml2 refused the document), and the one the first bytes show.
    std::string declaredEncoding;
    xmlCharEncoding detectedEncoding = XML_CHAR_ENCODING_NONE;
    // The document starts with the UTF-8 byte-order mark.
    bool utf8Mark = false;
    // The document holds a byte outside ASCII.
    bool nonAscii = false;
    // The document holds a NUL character (a NUL byte, or a NUL code unit in
    // UTF-16).
    bool nul = false;
    // In UTF-16, its last whole code unit is a high surrogate: its last
    // character is cut in half.
    bool endsInHighSurrogate = false;
};

// The document being parsed; the callbacks below report into it.
LibxmlView* gView = nullptr;

void KeepFirstError(void* /*context*/, xmlErrorPtr error)
{
    if (gView != nullptr && gView->error.empty() && error != nullptr && error->level >= XML_ERR_ERROR) {
        gView->error = error->message != nullptr ? error->message : "(no message)";
        while (!gView->error.empty() && gView->error.back() == '\n') {
            gView->error.pop_back();
        }
    }
}

void IgnoreGenericError(void* /*context*/, const char* /*format*/, ...) {}

// Every entity reference but those to the predefined entities goes
// through here, in content and in attribute values; inside the DTD
// (inSubset != 0) the parser looks entities up for its own bookkeeping.
xmlEntityPtr GetEntity(void* context, const xmlChar* name)
{
    xmlParserCtxtPtr parser = static_cast<xmlParserCtxtPtr>(context);
    xmlEntityPtr entity = xmlSAX2GetEntity(context, name);
    if (gView != nullptr && parser->inSubset == 0 &&
        (entity == nullptr || entity->etype != XML_INTERNAL_PREDEFINED_ENTITY)) {
        gView->referencesDtdEntity = true;
    }
    return entity;
}

LibxmlView ParseWithLibxml(const uint8_t* data, std::size_t size)
{
    LibxmlView view;
    gView = &view;
    if (size >= 4) {
        view.detectedEncoding = xmlDetectCharEncoding(data, static_cast<int>(size));
    }
    if (view.detectedEncoding == XML_CHAR_ENCODING_UTF16LE || view.detectedEncoding == XML_CHAR_ENCODING_UTF16BE) {
        for (std::size_t i = 0; i + 1 < size && !view.nul; i += 2) {
            view.nul = data[i] == 0 && data[i + 1] == 0;
        }
        const std::size_t last = size / 2 * 2 - 2;  // size >= 4 here
        const unsigned high = view.detectedEncoding == XML_CHAR_ENCODING_UTF16LE ? data[last + 1] : data[last];
        view.endsInHighSurrogate = high >= 0xD8 && high <= 0xDB;
    } else {
        view.nul = std::memchr(data, 0, size) != nullptr;
    }
    view.nonAscii = std::find_if(data, data + size, [](uint8_t byte) { return byte >= 0x80; }) != data + size;
    view.utf8Mark = size >= 3 && data[0] == 0xEF && data[1] == 0xBB && data[2] == 0xBF;
    std::unique_ptr<xmlParserCtxt, void (*)(xmlParserCtxtPtr)> parser(xmlNewParserCtxt(), xmlFreeParserCtxt);
    Check(parser != nullptr, "libxml2: no parser context");
    // The context's own handler, which it keeps when it is reset for reading.
    parser->sax->getEntity = GetEntity;
    const int options = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_HUGE;
    xmlDocPtr document = xmlCtxtReadMemory(parser.get(), reinterpret_cast<const char*>(data), static_cast<int>(size),
                                           "input.xml", nullptr, options);
    if (document != nullptr) {
        view.accepted = true;
        if (document->encoding != nullptr) {
            view.declaredEncoding = reinterpret_cast<const char*>(document->encoding);
        }
        xmlFreeDoc(document);
    } else if (view.error.empty()) {
        view.error = "(no message)";
    }
    gView = nullptr;
    return view;
}

// The encodings the library decodes, by the names an XML declaration gives
// them (in any case).
bool IsDecodedEncoding(const std::string& name)
{
    for (const char* known : {"UTF-8", "UTF8", "UTF-16", "UTF16", "UTF-16LE", "UTF-16BE", "ISO-8859-1", "ISO_8859-1",
                              "ISO8859-1", "LATIN1", "ISO-LATIN-1", "L1", "US-ASCII", "ASCII"}) {
        if (name.size() == std::strlen(known) && strncasecmp(name.c_str(), known, name.size()) == 0) {
            return true;
        }
    }
    return false;
}

// The documents that the library refuses on purpose, whatever libxml2
// decides: why, or null when the two must decide alike. One case each,
// with its reason; add new ones here.
const char* ExpectedRefusal(const LibxmlView& view)
{
    // The library expands no entity of a DTD, so it refuses a reference to
    // any entity but the five predefined ones. libxml2 accepts one that the
    // internal subset declares, or that an external subset or parameter
    // entity it does not read might declare (without a DTD, it refuses).
    if (view.referencesDtdEntity) {
        return "it refers to an entity that only a DTD can declare";
    }
    // NUL is no character XML allows; libxml2 takes a NUL byte after the
    // root element for the end of the document.
    if (view.nul) {
        return "it holds a NUL character";
    }
    // An unpaired surrogate is no character. libxml2 leaves a character cut
    // at the very end of a UTF-16 document out, as it does a dangling byte
    // (which the library leaves out too: half a code unit is no character
    // at all).
    if (view.endsInHighSurrogate) {
        return "its last UTF-16 code unit is a high surrogate without its pair";
    }
    // A document declared US-ASCII holds only ASCII; libxml2 takes bytes
    // that it cannot decode after the root element for the end of the
    // document.
    if ((strcasecmp(view.declaredEncoding.c_str(), "US-ASCII") == 0 ||
         strcasecmp(view.declaredEncoding.c_str(), "ASCII") == 0) &&
        view.nonAscii) {
        return "it is declared US-ASCII and holds a byte outside ASCII";
    }
    // The library decodes UTF-8, UTF-16 (either byte order), ISO-8859-1 and
    // US-ASCII only; libxml2 decodes many more.
    if (!view.declaredEncoding.empty() && !IsDecodedEncoding(view.declaredEncoding)) {
        return "its XML declaration names an encoding that the library does not decode";
    }
    // The library refuses a declaration that names an encoding other than
    // the one the byte-order mark (or the UTF-16 first bytes) shows; libxml2
    // keeps the encoding it detected and ignores the declaration.
    const std::string& declared = view.declaredEncoding;
    const bool utf16 =
        view.detectedEncoding == XML_CHAR_ENCODING_UTF16LE || view.detectedEncoding == XML_CHAR_ENCODING_UTF16BE;
    const bool named16 = strncasecmp(declared.c_str(), "UTF-16", 6) == 0 || strcasecmp(declared.c_str(), "UTF16") == 0;
    const bool named8 = strcasecmp(declared.c_str(), "UTF-8") == 0 || strcasecmp(declared.c_str(), "UTF8") == 0;
    if (!declared.empty() && ((utf16 && !named16) || (view.utf8Mark && !named8))) {
        return "its XML declaration names an encoding other than the one its first bytes show";
    }
    switch (view.detectedEncoding) {
    case XML_CHAR_ENCODING_UCS4LE:
    case XML_CHAR_ENCODING_UCS4BE:
    case XML_CHAR_ENCODING_UCS4_2143:
    case XML_CHAR_ENCODING_UCS4_3412:
    case XML_CHAR_ENCODING_EBCDIC:
    case XML_CHAR_ENCODING_UCS2:
        return "its first bytes show an encoding that the library does not decode";
    default:
        return nullptr;
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    static ScratchFile document("xml");
    gDocument = &document;
    xmlInitParser();
    xmlSetGenericErrorFunc(nullptr, IgnoreGenericError);
    xmlSetStructuredErrorFunc(nullptr, KeepFirstError);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    gDocument->Write(data, size);
    int errorCode = 0;
    VELString errorText;
    std::unique_ptr<VELXMLDocument> parsed(VELDOMParser::Parse(gDocument->File(), errorCode, errorText));
    const bool accepted = parsed != nullptr;
    Check(accepted == (errorCode == 0), "VELDOMParser::Parse: the error code does not follow the result");
    parsed.reset();

    const LibxmlView view = ParseWithLibxml(data, size);
    const char* refusal = ExpectedRefusal(view);
    const bool expected = refusal == nullptr && view.accepted;
    if (accepted != expected) {
        std::string what = "the XML reader ";
        what += accepted ? "accepted the document" : "refused the document (\"" + errorText.GetUTF8String() + "\")";
        if (refusal != nullptr) {
            what += ", which it must refuse: " + std::string(refusal) + " (libxml2 ";
            what += view.accepted ? "accepted it)" : "refused it too)";
        } else {
            what += view.accepted ? ", libxml2 accepted it" : ", libxml2 refused it (\"" + view.error + "\")";
        }
        Fail(what.c_str());
    }
    return 0;
}
