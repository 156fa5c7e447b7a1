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
    for (const char* known : {"UTF-8", "UTF-16", "UTF-16LE", "UTF-16BE", "ISO-8859-1", "US-ASCII"}) {
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
    // The library decodes UTF-8, UTF-16 (either byte order), ISO-8859-1 and
    // US-ASCII only; libxml2 decodes many more.
    if (!view.declaredEncoding.empty() && !IsDecodedEncoding(view.declaredEncoding)) {
        return "its XML declaration names an encoding that the library does not decode";
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
