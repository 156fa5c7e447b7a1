#include "base/VELXMLWellFormed.h"

#include <pugixml.hpp>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

#if defined(__SSE2__)
#include <immintrin.h>
#endif

namespace qrm::detail {

namespace {

// ---------------------------------------------------------------------------
// Characters and names

bool IsXmlChar(std::uint32_t c)
{
    return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF) || (c >= 0xE000 && c <= 0xFFFD) ||
           (c >= 0x10000 && c <= 0x10FFFF);
}

bool IsBlank(unsigned char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

bool IsNameStartChar(std::uint32_t c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' || (c >= 0xC0 && c <= 0xD6) ||
           (c >= 0xD8 && c <= 0xF6) || (c >= 0xF8 && c <= 0x2FF) || (c >= 0x370 && c <= 0x37D) ||
           (c >= 0x37F && c <= 0x1FFF) || (c >= 0x200C && c <= 0x200D) || (c >= 0x2070 && c <= 0x218F) ||
           (c >= 0x2C00 && c <= 0x2FEF) || (c >= 0x3001 && c <= 0xD7FF) || (c >= 0xF900 && c <= 0xFDCF) ||
           (c >= 0xFDF0 && c <= 0xFFFD) || (c >= 0x10000 && c <= 0xEFFFF);
}

bool IsNameChar(std::uint32_t c)
{
    return IsNameStartChar(c) || c == '-' || c == '.' || (c >= '0' && c <= '9') || c == 0xB7 ||
           (c >= 0x300 && c <= 0x36F) || (c >= 0x203F && c <= 0x2040);
}

// Decodes the UTF-8 sequence at `p` (at most `left` bytes). Returns its
// length and the code point, or 0 when the bytes are no valid sequence
// (truncated, overlong, a surrogate, beyond U+10FFFF).
std::size_t DecodeUtf8(const unsigned char* p, std::size_t left, std::uint32_t& c)
{
    const unsigned char b = p[0];
    if (b < 0x80) {
        c = b;
        return 1;
    }
    std::size_t length = 0;
    std::uint32_t min = 0;
    if (b >= 0xC2 && b <= 0xDF) {
        length = 2;
        c = b & 0x1Fu;
        min = 0x80;
    } else if (b >= 0xE0 && b <= 0xEF) {
        length = 3;
        c = b & 0x0Fu;
        min = 0x800;
    } else if (b >= 0xF0 && b <= 0xF4) {
        length = 4;
        c = b & 0x07u;
        min = 0x10000;
    } else {
        return 0;
    }
    if (left < length) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((p[i] & 0xC0u) != 0x80u) {
            return 0;
        }
        c = (c << 6) | (p[i] & 0x3Fu);
    }
    if (c < min || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
        return 0;
    }
    return length;
}

void AppendUtf8(std::uint32_t c, char*& out)
{
    if (c < 0x80) {
        *out++ = static_cast<char>(c);
    } else if (c < 0x800) {
        *out++ = static_cast<char>(0xC0 | (c >> 6));
        *out++ = static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        *out++ = static_cast<char>(0xE0 | (c >> 12));
        *out++ = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        *out++ = static_cast<char>(0x80 | (c & 0x3F));
    } else {
        *out++ = static_cast<char>(0xF0 | (c >> 18));
        *out++ = static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        *out++ = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        *out++ = static_cast<char>(0x80 | (c & 0x3F));
    }
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b)
{
    if (a.size() != b.size()) {
        return false;
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        const char x = (a[i] >= 'a' && a[i] <= 'z') ? static_cast<char>(a[i] - 'a' + 'A') : a[i];
        const char y = (b[i] >= 'a' && b[i] <= 'z') ? static_cast<char>(b[i] - 'a' + 'A') : b[i];
        if (x != y) {
            return false;
        }
    }
    return true;
}

bool IsOneOf(std::string_view name, std::initializer_list<std::string_view> names)
{
    return std::any_of(names.begin(), names.end(), [&](std::string_view n) { return EqualsIgnoringCase(name, n); });
}

// ---------------------------------------------------------------------------
// The XML declaration

enum class Encoding { Utf8, Utf16LE, Utf16BE };

struct Declaration {
    bool present = false;
    std::string_view encoding;  // empty when the declaration names none
    std::size_t encodingOffset = 0;
    std::size_t end = 0;  // just after "?>"
};

// A cursor over the text of the declaration; every step fails at the end.
class DeclarationReader {
public:
    DeclarationReader(const char* text, std::size_t size, std::size_t at) : mText(text), mSize(size), mAt(at) {}

    std::size_t At() const { return mAt; }
    unsigned char Peek() const { return mAt < mSize ? static_cast<unsigned char>(mText[mAt]) : 0; }
    bool SkipBlanks()
    {
        const std::size_t from = mAt;
        while (mAt < mSize && IsBlank(static_cast<unsigned char>(mText[mAt]))) {
            ++mAt;
        }
        return mAt > from;
    }
    bool Take(std::string_view word)
    {
        if (mSize - mAt < word.size() || std::memcmp(mText + mAt, word.data(), word.size()) != 0) {
            return false;
        }
        mAt += word.size();
        return true;
    }
    // Eq, then a quoted value whose characters all satisfy `allowed`.
    template <class Allowed>
    bool Value(std::string_view& value, Allowed allowed)
    {
        SkipBlanks();
        if (!Take("=")) {
            return false;
        }
        SkipBlanks();
        const unsigned char quote = Peek();
        if (quote != '"' && quote != '\'') {
            return false;
        }
        const std::size_t start = ++mAt;
        while (mAt < mSize && static_cast<unsigned char>(mText[mAt]) != quote) {
            if (!allowed(static_cast<unsigned char>(mText[mAt]), mAt - start)) {
                return false;
            }
            ++mAt;
        }
        if (mAt >= mSize) {
            return false;
        }
        value = std::string_view(mText + start, mAt - start);
        ++mAt;
        return true;
    }

private:
    const char* mText;
    std::size_t mSize;
    std::size_t mAt;
};

bool IsDigit(unsigned char c) { return c >= '0' && c <= '9'; }
bool IsLetter(unsigned char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// Reads the XML declaration when the text (after any byte-order mark, at
// `at`) starts with one. The text is ASCII-compatible here (UTF-8 or
// ISO-8859-1 bytes, or UTF-16 already converted).
bool ReadDeclaration(const char* text, std::size_t size, std::size_t at, Declaration& declaration, XmlFault& fault)
{
    if (size - at < 6 || std::memcmp(text + at, "<?xml", 5) != 0 ||
        !IsBlank(static_cast<unsigned char>(text[at + 5]))) {
        return true;
    }
    declaration.present = true;
    DeclarationReader reader(text, size, at + 5);
    auto fail = [&](const char* what) {
        fault.what = what;
        fault.offset = reader.At();
        return false;
    };
    reader.SkipBlanks();
    std::string_view version;
    if (!reader.Take("version")) {
        return fail("the XML declaration does not start with its version");
    }
    const bool versionRead = reader.Value(version, [](unsigned char c, std::size_t i) {
        return i == 0 ? c == '1' : i == 1 ? c == '.' : IsDigit(c);
    });
    if (!versionRead || version.size() < 2) {  // "1." too, as conforming parsers read it
        return fail("the XML declaration's version is not 1.0 (or 1.x)");
    }
    bool blank = reader.SkipBlanks();
    if (blank && reader.Take("encoding")) {
        if (!reader.Value(declaration.encoding,
                          [](unsigned char c, std::size_t i) {
                              return i == 0 ? IsLetter(c)
                                            : IsLetter(c) || IsDigit(c) || c == '.' || c == '_' || c == '-';
                          }) ||
            declaration.encoding.empty()) {
            return fail("the XML declaration names no valid encoding");
        }
        declaration.encodingOffset = static_cast<std::size_t>(declaration.encoding.data() - text);
        blank = reader.SkipBlanks();
    }
    if (blank && reader.Take("standalone")) {
        std::string_view standalone;
        if (!reader.Value(standalone, [](unsigned char c, std::size_t) { return IsLetter(c); }) ||
            (standalone != "yes" && standalone != "no")) {
            return fail("the XML declaration's standalone is neither \"yes\" nor \"no\"");
        }
        reader.SkipBlanks();
    }
    if (!reader.Take("?>")) {
        return fail("the XML declaration is malformed (version, encoding, standalone, in that order)");
    }
    declaration.end = reader.At();
    return true;
}

// ---------------------------------------------------------------------------
// Decoding

void* Allocate(std::size_t size) { return pugi::get_memory_allocation_function()(size > 0 ? size : 1); }

// UTF-16 to UTF-8, refusing unpaired surrogates and a dangling byte.
bool ConvertUtf16(XmlBytes& bytes, Encoding encoding, std::size_t skip, XmlFault& fault)
{
    const unsigned char* in = reinterpret_cast<const unsigned char*>(bytes.Data());
    const std::size_t units = (bytes.Size() - skip) / 2;
    // Each code unit gives at most three bytes (a pair gives four).
    char* out = static_cast<char*>(Allocate(units * 3));
    if (out == nullptr) {
        return false;
    }
    char* at = out;
    const bool little = encoding == Encoding::Utf16LE;
    auto unit = [&](std::size_t i) -> std::uint32_t {
        const unsigned char* p = in + skip + 2 * i;
        return little ? static_cast<std::uint32_t>(p[0] | (p[1] << 8)) : static_cast<std::uint32_t>((p[0] << 8) | p[1]);
    };
    for (std::size_t i = 0; i < units; ++i) {
        std::uint32_t c = unit(i);
        if (c >= 0xD800 && c <= 0xDBFF && i + 1 < units && unit(i + 1) >= 0xDC00 && unit(i + 1) <= 0xDFFF) {
            c = 0x10000 + ((c - 0xD800) << 10) + (unit(i + 1) - 0xDC00);
            ++i;
        } else if (c >= 0xD800 && c <= 0xDFFF) {
            fault.what = "a UTF-16 surrogate without its pair";
            fault.offset = static_cast<std::size_t>(at - out);
            pugi::get_memory_deallocation_function()(out);
            return false;
        }
        AppendUtf8(c, at);
    }
    // A dangling byte after the last code unit is no character: it is left
    // out, as conforming parsers do.
    const std::size_t size = static_cast<std::size_t>(at - out);
    bytes.Reset(out, size);
    return true;
}

bool ConvertLatin1(XmlBytes& bytes)
{
    const unsigned char* in = reinterpret_cast<const unsigned char*>(bytes.Data());
    std::size_t size = bytes.Size();
    for (std::size_t i = 0; i < bytes.Size(); ++i) {
        size += in[i] >= 0x80 ? 1 : 0;
    }
    if (size == bytes.Size()) {
        return true;
    }
    char* out = static_cast<char*>(Allocate(size));
    if (out == nullptr) {
        return false;
    }
    char* at = out;
    for (std::size_t i = 0; i < bytes.Size(); ++i) {
        AppendUtf8(in[i], at);
    }
    bytes.Reset(out, size);
    return true;
}

bool StartsWith(const unsigned char* p, std::size_t size, std::initializer_list<unsigned char> prefix)
{
    return size >= prefix.size() && std::equal(prefix.begin(), prefix.end(), p);
}

// ---------------------------------------------------------------------------
// The checks on decoded text

// The bytes the walk over markup stops at, each a bit of a set of stops.
enum Stop : unsigned { kLt = 1, kGt = 2, kDq = 4, kSq = 8, kAmp = 16, kBracket = 32 };

// The stop each byte is, 0 for the others.
struct StopTable {
    unsigned char stop[256] = {};
    constexpr StopTable() : stop()
    {
        stop[static_cast<unsigned char>('<')] = kLt;
        stop[static_cast<unsigned char>('>')] = kGt;
        stop[static_cast<unsigned char>('"')] = kDq;
        stop[static_cast<unsigned char>('\'')] = kSq;
        stop[static_cast<unsigned char>('&')] = kAmp;
        stop[static_cast<unsigned char>(']')] = kBracket;
    }
};
constexpr StopTable kStops;

unsigned StopOf(unsigned char c) { return kStops.stop[c]; }

// What the walk over markup needs of 64 bytes: a bit per stop, and a bit
// per byte that is not a plain ASCII character XML allows (a control other
// than a blank, or a byte from 0x80), which the character check then reads.
struct WindowBits {
    std::uint64_t stops;
    std::uint64_t unusual;
};

#if defined(__SSE2__)
WindowBits ScanWindowSse2(const char* p)
{
    WindowBits bits{0, 0};
    for (int part = 0; part < 4; ++part) {
        const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + 16 * part));
        const __m128i a = _mm_or_si128(_mm_cmpeq_epi8(v, _mm_set1_epi8('<')), _mm_cmpeq_epi8(v, _mm_set1_epi8('>')));
        const __m128i b = _mm_or_si128(_mm_cmpeq_epi8(v, _mm_set1_epi8('"')), _mm_cmpeq_epi8(v, _mm_set1_epi8('\'')));
        const __m128i c = _mm_or_si128(_mm_cmpeq_epi8(v, _mm_set1_epi8('&')), _mm_cmpeq_epi8(v, _mm_set1_epi8(']')));
        const unsigned stops = static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(_mm_or_si128(a, b), c)));
        // Signed: bytes from 0x80 are negative, so below 0x20 too.
        const __m128i low = _mm_cmplt_epi8(v, _mm_set1_epi8(0x20));
        const __m128i blank =
            _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(v, _mm_set1_epi8('\t')), _mm_cmpeq_epi8(v, _mm_set1_epi8('\n'))),
                         _mm_cmpeq_epi8(v, _mm_set1_epi8('\r')));
        const unsigned unusual = static_cast<unsigned>(_mm_movemask_epi8(_mm_andnot_si128(blank, low)));
        bits.stops |= static_cast<std::uint64_t>(stops) << (16 * part);
        bits.unusual |= static_cast<std::uint64_t>(unusual) << (16 * part);
    }
    return bits;
}

#if defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
#define VEL_XML_AVX2 1
// The same with 32 bytes at a time, on processors that have AVX2.
__attribute__((target("avx2"))) WindowBits ScanWindowAvx2(const char* p)
{
    WindowBits bits{0, 0};
    for (int part = 0; part < 2; ++part) {
        const __m256i v = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p + 32 * part));
        const __m256i a =
            _mm256_or_si256(_mm256_cmpeq_epi8(v, _mm256_set1_epi8('<')), _mm256_cmpeq_epi8(v, _mm256_set1_epi8('>')));
        const __m256i b =
            _mm256_or_si256(_mm256_cmpeq_epi8(v, _mm256_set1_epi8('"')), _mm256_cmpeq_epi8(v, _mm256_set1_epi8('\'')));
        const __m256i c =
            _mm256_or_si256(_mm256_cmpeq_epi8(v, _mm256_set1_epi8('&')), _mm256_cmpeq_epi8(v, _mm256_set1_epi8(']')));
        const unsigned stops = static_cast<unsigned>(_mm256_movemask_epi8(_mm256_or_si256(_mm256_or_si256(a, b), c)));
        const __m256i low = _mm256_cmpgt_epi8(_mm256_set1_epi8(0x20), v);
        const __m256i blank = _mm256_or_si256(
            _mm256_or_si256(_mm256_cmpeq_epi8(v, _mm256_set1_epi8('\t')), _mm256_cmpeq_epi8(v, _mm256_set1_epi8('\n'))),
            _mm256_cmpeq_epi8(v, _mm256_set1_epi8('\r')));
        const unsigned unusual = static_cast<unsigned>(_mm256_movemask_epi8(_mm256_andnot_si256(blank, low)));
        bits.stops |= static_cast<std::uint64_t>(stops) << (32 * part);
        bits.unusual |= static_cast<std::uint64_t>(unusual) << (32 * part);
    }
    return bits;
}
#endif

// The scan this processor runs best, chosen once when the library loads
// (not at every window).
using ScanFunction = WindowBits (*)(const char*);
ScanFunction BestScan()
{
#if defined(VEL_XML_AVX2)
    __builtin_cpu_init();  // may run before the runtime's own constructors
    if (__builtin_cpu_supports("avx2")) {
        return ScanWindowAvx2;
    }
#endif
    return ScanWindowSse2;
}
const ScanFunction ScanWindow = BestScan();

// Whether `p[0..15]` holds only ASCII characters XML allows.
bool PlainAscii(const char* p)
{
    const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    // Signed: bytes of 0x80 and above are negative, so below 0x20 too.
    const __m128i low = _mm_cmplt_epi8(v, _mm_set1_epi8(0x20));
    const __m128i blank =
        _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(v, _mm_set1_epi8('\t')), _mm_cmpeq_epi8(v, _mm_set1_epi8('\n'))),
                     _mm_cmpeq_epi8(v, _mm_set1_epi8('\r')));
    return _mm_movemask_epi8(_mm_andnot_si128(blank, low)) == 0;
}
#else
WindowBits ScanWindow(const char* p)
{
    WindowBits bits{0, 0};
    for (int i = 0; i < 64; ++i) {
        const unsigned char c = static_cast<unsigned char>(p[i]);
        bits.stops |= StopOf(c) != 0 ? std::uint64_t(1) << i : 0;
        bits.unusual |= (c >= 0x80 || (c < 0x20 && !IsBlank(c))) ? std::uint64_t(1) << i : 0;
    }
    return bits;
}

bool PlainAscii(const char* p)
{
    for (int i = 0; i < 16; ++i) {
        const unsigned char c = static_cast<unsigned char>(p[i]);
        if (c >= 0x80 || (c < 0x20 && !IsBlank(c))) {
            return false;
        }
    }
    return true;
}
#endif

const char* const kParameterEntityReference =
    "a parameter-entity reference (entities a document declares are never expanded)";

class Checker {
public:
    Checker(const char* text, std::size_t size, XmlFault& fault)
        : mText(text), mBytes(reinterpret_cast<const unsigned char*>(text)), mSize(size), mFault(fault)
    {}

    bool Run()
    {
        std::size_t start = 0;
        if (mSize >= 3 && mBytes[0] == 0xEF && mBytes[1] == 0xBB && mBytes[2] == 0xBF) {
            start = 3;
        }
        mChecked = start;
        // The declaration was read while decoding; it is skipped here.
        Declaration declaration;
        XmlFault ignored;
        if (ReadDeclaration(mText, mSize, start, declaration, ignored) && declaration.present) {
            start = declaration.end;
        }
        std::size_t at = start;
        const bool walked = DocumentLevel(at) && (at < mSize ? WalkMarkup(at) : Fail(mSize, "no root element"));
        // The characters the walk did not load, up to its fault if it found
        // one: an earlier fault among them is the one reported.
        const bool characters = CheckCharacters(walked ? mSize : std::min(mSize, mFault.offset + 1));
        return walked && characters;
    }

    // The deepest nesting of elements the walk met.
    std::size_t Deepest() const { return mDeepest; }

private:
    // Keeps the first fault in the text: checks in step may find a later
    // one first.
    bool Fail(std::size_t at, const char* what)
    {
        if (!mFault.what.empty() && (mHalted || mFault.offset <= at)) {
            return false;
        }
        mFault.what = what;
        mFault.offset = at;
        return false;
    }

    unsigned char At(std::size_t i) const { return i < mSize ? mBytes[i] : 0; }

    bool Follows(std::size_t at, std::string_view word) const
    {
        return mSize - std::min(at, mSize) >= word.size() && std::memcmp(mText + at, word.data(), word.size()) == 0;
    }

    std::size_t Find(std::size_t from, std::string_view word) const
    {
        if (from >= mSize) {
            return mSize;
        }
        const std::size_t found = std::string_view(mText, mSize).find(word, from);
        return found == std::string_view::npos ? mSize : found;
    }

    // Every character up to `end` (and to the end of a sequence that
    // starts before it) is one XML allows, and every byte is valid UTF-8.
    // Checked in step with the walk over markup, as it loads the bytes, and
    // the rest at the end.
    bool CheckCharacters(std::size_t end)
    {
        std::size_t at = mChecked;
        while (at < end) {
            if (mSize - at >= 16 && PlainAscii(mText + at)) {
                at += 16;
                continue;
            }
            const std::size_t block = std::min(mSize, at + 16);
            while (at < block) {
                std::uint32_t c = 0;
                const std::size_t length = DecodeUtf8(mBytes + at, mSize - at, c);
                if (length == 0) {
                    return Fail(at, "bytes that are not UTF-8");
                }
                if (!IsXmlChar(c)) {
                    return Fail(at, "a character XML does not allow");
                }
                if (length > 1) {
                    mNonAsciiEnd = at + length;
                }
                at += length;
            }
        }
        mChecked = std::max(mChecked, at);
        return true;
    }

    // Scans a name at `at`: returns its end, which is `at` itself when no
    // name starts there.
    std::size_t NameEnd(std::size_t at) const
    {
        std::size_t i = at;
        while (i < mSize) {
            std::uint32_t c = 0;
            const std::size_t length = DecodeUtf8(mBytes + i, mSize - i, c);
            if (length == 0 || !(i == at ? IsNameStartChar(c) : IsNameChar(c))) {
                break;
            }
            i += length;
        }
        return i;
    }

    // Outside the root element: blanks, comments, processing instructions
    // and one document type declaration before the root.
    bool DocumentLevel(std::size_t& at)
    {
        for (;;) {
            while (at < mSize && IsBlank(mBytes[at])) {
                ++at;
            }
            if (at >= mSize) {
                return true;
            }
            if (mBytes[at] != '<') {
                return Fail(at, mRootSeen ? "text after the root element" : "text before the root element");
            }
            if (Follows(at, "<!--")) {
                if (!Comment(at)) {
                    return false;
                }
            } else if (Follows(at, "<?")) {
                if (!ProcessingInstruction(at)) {
                    return false;
                }
            } else if (Follows(at, "<!DOCTYPE")) {
                if (mRootSeen) {
                    return Fail(at, "a document type declaration after the root element");
                }
                if (mDoctypeSeen) {
                    return Fail(at, "a second document type declaration");
                }
                mDoctypeSeen = true;
                if (!DocumentType(at)) {
                    return false;
                }
            } else if (Follows(at, "<![CDATA[")) {
                return Fail(at, mRootSeen ? "text after the root element" : "text before the root element");
            } else if (mRootSeen) {
                return Fail(at, "a second root element");
            } else {
                return true;  // the root element starts here
            }
        }
    }

    // A comment at `at` ("<!--"): no "--" inside, "-->" at the end. Moves
    // `at` past it.
    bool Comment(std::size_t& at)
    {
        const std::size_t dashes = Find(at + 4, "--");
        if (dashes >= mSize) {
            return Fail(at, "a comment that does not end");
        }
        if (At(dashes + 2) != '>') {
            return Fail(dashes, "\"--\" inside a comment");
        }
        at = dashes + 3;
        return true;
    }

    // A processing instruction at `at` ("<?"): a target name other than
    // "xml" in any case, a blank before any content. Moves `at` past it.
    bool ProcessingInstruction(std::size_t& at)
    {
        const std::size_t target = at + 2;
        const std::size_t end = NameEnd(target);
        if (end == target) {
            return Fail(target, "a processing instruction without a target name");
        }
        if (EqualsIgnoringCase(std::string_view(mText + target, end - target), "xml")) {
            return Fail(at, "an XML declaration that is not at the start of the document");
        }
        if (!Follows(end, "?>") && !IsBlank(At(end))) {
            return Fail(end, "a processing instruction's target is not followed by a blank");
        }
        const std::size_t close = Find(end, "?>");
        if (close >= mSize) {
            return Fail(at, "a processing instruction that does not end");
        }
        at = close + 2;
        return true;
    }

    // A quoted literal at `at`; moves `at` past its closing quote.
    bool Literal(std::size_t& at)
    {
        const unsigned char quote = At(at);
        if (quote != '"' && quote != '\'') {
            return Fail(at, "a quoted literal expected in the document type declaration");
        }
        const void* close = std::memchr(mText + at + 1, quote, mSize - at - 1);
        if (close == nullptr) {
            return Fail(at, "a literal that does not end");
        }
        at = static_cast<std::size_t>(static_cast<const char*>(close) - mText) + 1;
        return true;
    }

    bool Blanks(std::size_t& at)
    {
        const std::size_t from = at;
        while (at < mSize && IsBlank(mBytes[at])) {
            ++at;
        }
        return at > from;
    }

    // SYSTEM literal | PUBLIC literal literal, with the blanks between.
    bool ExternalId(std::size_t& at, bool systemOptional)
    {
        if (Follows(at, "SYSTEM")) {
            at += 6;
            return (Blanks(at) || Fail(at, "a blank expected after SYSTEM")) && Literal(at);
        }
        if (Follows(at, "PUBLIC")) {
            at += 6;
            if (!Blanks(at) && !Fail(at, "a blank expected after PUBLIC")) {
                return false;
            }
            const std::size_t start = at + 1;
            if (!Literal(at)) {
                return false;
            }
            for (std::size_t i = start; i + 1 < at; ++i) {
                const unsigned char c = mBytes[i];
                if (!(IsLetter(c) || IsDigit(c) || c == ' ' || c == '\r' || c == '\n' ||
                      std::strchr("-'()+,./:=?;!*#@$_%", c) != nullptr)) {
                    return Fail(i, "a character a public identifier may not hold");
                }
            }
            const std::size_t before = at;
            const bool blank = Blanks(at);
            if (At(at) == '"' || At(at) == '\'') {
                return (blank || Fail(at, "a blank expected between the public and system identifiers")) && Literal(at);
            }
            at = before;
            return systemOptional || Fail(at, "a system identifier expected after the public identifier");
        }
        return Fail(at, "SYSTEM or PUBLIC expected");
    }

    // The '>' that ends a declaration at `i`; moves `at` past it.
    bool Close(std::size_t i, std::size_t& at, const char* what)
    {
        if (At(i) != '>') {
            return Fail(i, what);
        }
        at = i + 1;
        return true;
    }

    // Takes `word` at `at` and moves past it.
    bool Take(std::size_t& at, std::string_view word)
    {
        if (!Follows(at, word)) {
            return false;
        }
        at += word.size();
        return true;
    }

    // A name at `at`; moves past it.
    bool Name(std::size_t& at, const char* what)
    {
        const std::size_t end = NameEnd(at);
        if (end == at) {
            return Fail(at, what);
        }
        at = end;
        return true;
    }

    // A name token (name characters, any first) at `at`; moves past it.
    bool NameToken(std::size_t& at)
    {
        const std::size_t start = at;
        while (at < mSize) {
            std::uint32_t c = 0;
            const std::size_t length = DecodeUtf8(mBytes + at, mSize - at, c);
            if (length == 0 || !IsNameChar(c)) {
                break;
            }
            at += length;
        }
        return at > start || Fail(start, "a name token expected in an attribute-list declaration");
    }

    // A quoted literal at `at` whose references must be well formed: an
    // entity value ('%' refused: parameter entities are never expanded) or
    // an attribute's default value ('<' refused). Moves past it.
    bool CheckedLiteral(std::size_t& at, bool entityValue)
    {
        const unsigned char quote = At(at);
        if (quote != '"' && quote != '\'') {
            return Fail(at, "a quoted value expected in the document type declaration");
        }
        std::size_t i = at + 1;
        while (i < mSize && mBytes[i] != quote) {
            if (mBytes[i] == '&') {
                const std::size_t end = NameEnd(i + 1);
                if (!entityValue || At(i + 1) == '#' || end == i + 1 || At(end) != ';') {
                    if (!Reference(i)) {
                        return false;
                    }
                } else {
                    i = end + 1;  // expanded only where it is used, which is refused
                }
            } else if (entityValue && mBytes[i] == '%') {
                return Fail(i, kParameterEntityReference);
            } else if (!entityValue && mBytes[i] == '<') {
                return Fail(i, "'<' in an attribute's default value");
            } else {
                ++i;
            }
        }
        if (i >= mSize) {
            return Fail(at, "a literal that does not end");
        }
        at = i + 1;
        return true;
    }

    // One of ? * + after a content particle, if there.
    void Occurrence(std::size_t& at)
    {
        if (At(at) == '?' || At(at) == '*' || At(at) == '+') {
            ++at;
        }
    }

    // A content particle, choice or sequence of an element declaration:
    // a name or a parenthesised list joined by all '|' or all ','.
    bool ContentParticle(std::size_t& at, int depth)
    {
        if (depth > 1000) {
            return Fail(at, "content particles nested too deep");
        }
        if (At(at) != '(') {
            if (!Name(at, "a name or '(' expected in an element declaration")) {
                return false;
            }
            Occurrence(at);
            return true;
        }
        ++at;
        Blanks(at);
        if (!ContentParticle(at, depth + 1)) {
            return false;
        }
        unsigned char joint = 0;
        for (;;) {
            Blanks(at);
            const unsigned char c = At(at);
            if (c == ')') {
                ++at;
                break;
            }
            if ((c != '|' && c != ',') || (joint != 0 && c != joint)) {
                return Fail(at, "'|' or ',' (the same throughout a list) or ')' expected in an element declaration");
            }
            joint = c;
            ++at;
            Blanks(at);
            if (!ContentParticle(at, depth + 1)) {
                return false;
            }
        }
        Occurrence(at);
        return true;
    }

    // The content of an element declaration: EMPTY, ANY, mixed content or
    // children.
    bool ContentSpec(std::size_t& at)
    {
        if (Take(at, "EMPTY") || Take(at, "ANY")) {
            return true;
        }
        std::size_t i = at;
        if (At(i) == '(') {
            ++i;
            Blanks(i);
            if (Take(i, "#PCDATA")) {
                bool names = false;
                for (;;) {
                    Blanks(i);
                    if (At(i) == ')') {
                        ++i;
                        break;
                    }
                    if (At(i) != '|') {
                        return Fail(i, "'|' or ')' expected in mixed content");
                    }
                    ++i;
                    Blanks(i);
                    if (!Name(i, "a name expected in mixed content")) {
                        return false;
                    }
                    names = true;
                }
                if (At(i) == '*') {
                    ++i;
                } else if (names) {
                    return Fail(i, "\")*\" expected after mixed content with names");
                }
                at = i;
                return true;
            }
        } else {
            return Fail(at, "EMPTY, ANY or '(' expected in an element declaration");
        }
        return ContentParticle(at, 0);
    }

    // The attribute definitions of an attribute-list declaration, up to
    // its '>'.
    bool AttributeDefinitions(std::size_t& at)
    {
        for (;;) {
            const bool blank = Blanks(at);
            if (At(at) == '>') {
                return true;
            }
            if (!blank) {
                return Fail(at, "a blank expected before an attribute definition");
            }
            if (!Name(at, "an attribute name expected in an attribute-list declaration")) {
                return false;
            }
            if (!Blanks(at)) {
                return Fail(at, "a blank expected after the attribute's name");
            }
            // The type.
            const bool notation = Take(at, "NOTATION");
            if (notation && !Blanks(at)) {
                return Fail(at, "a blank expected after NOTATION");
            }
            if (notation || At(at) == '(') {
                if (At(at) != '(') {
                    return Fail(at, "'(' expected after NOTATION");
                }
                do {
                    ++at;
                    Blanks(at);
                    if (!(notation ? Name(at, "a notation name expected") : NameToken(at))) {
                        return false;
                    }
                    Blanks(at);
                } while (At(at) == '|');
                if (At(at) != ')') {
                    return Fail(at, "')' expected at the end of an enumeration");
                }
                ++at;
            } else {
                bool typed = false;
                for (const char* type :
                     {"CDATA", "IDREFS", "IDREF", "ID", "ENTITIES", "ENTITY", "NMTOKENS", "NMTOKEN"}) {
                    if (Take(at, type)) {
                        typed = true;
                        break;
                    }
                }
                if (!typed) {
                    return Fail(at, "an attribute type expected in an attribute-list declaration");
                }
            }
            if (!Blanks(at)) {
                return Fail(at, "a blank expected after the attribute's type");
            }
            // The default.
            if (Take(at, "#REQUIRED") || Take(at, "#IMPLIED")) {
                continue;
            }
            if (Take(at, "#FIXED") && !Blanks(at)) {
                return Fail(at, "a blank expected after #FIXED");
            }
            if (!CheckedLiteral(at, false)) {
                return false;
            }
        }
    }

    // A markup declaration of the internal subset at `at` ("<!" and a
    // keyword): an element, attribute-list, entity or notation declaration,
    // each by its grammar. Moves `at` past it.
    bool MarkupDeclaration(std::size_t& at)
    {
        std::size_t i = at + 2;
        enum { kElement, kAttributes, kEntity, kNotation } kind;
        if (Take(i, "ELEMENT")) {
            kind = kElement;
        } else if (Take(i, "ATTLIST")) {
            kind = kAttributes;
        } else if (Take(i, "ENTITY")) {
            kind = kEntity;
        } else if (Take(i, "NOTATION")) {
            kind = kNotation;
        } else {
            return Fail(at, "an unknown declaration in the document type declaration");
        }
        if (!Blanks(i)) {
            return Fail(i, "a blank expected in a declaration");
        }
        bool parameter = false;
        if (kind == kEntity && At(i) == '%') {
            ++i;
            parameter = true;
            if (!Blanks(i)) {
                return Fail(i, "a blank expected after '%' in an entity declaration");
            }
        }
        if (!Name(i, "a name expected in a declaration")) {
            return false;
        }
        if (kind == kAttributes) {
            if (!AttributeDefinitions(i)) {
                return false;
            }
        } else {
            if (!Blanks(i)) {
                return Fail(i, "a blank expected after the declared name");
            }
            if (kind == kElement) {
                if (!ContentSpec(i)) {
                    return false;
                }
            } else if (kind == kNotation) {
                if (!ExternalId(i, true)) {
                    return false;
                }
            } else if (At(i) == '"' || At(i) == '\'') {
                if (!CheckedLiteral(i, true)) {
                    return false;
                }
            } else if (!ExternalId(i, false)) {
                return false;
            } else if (!parameter) {
                const std::size_t before = i;
                if (Blanks(i) && Take(i, "NDATA")) {
                    if (!Blanks(i)) {
                        return Fail(i, "a blank expected after NDATA");
                    }
                    if (!Name(i, "a notation name expected after NDATA")) {
                        return false;
                    }
                } else {
                    i = before;
                }
            }
            Blanks(i);
        }
        return Close(i, at, "'>' expected at the end of a declaration");
    }

    // A document type declaration at `at` ("<!DOCTYPE"): a name, an
    // optional external identifier, an optional internal subset of
    // declarations, comments and processing instructions. Moves `at` past
    // it.
    bool DocumentType(std::size_t& at)
    {
        std::size_t i = at + 9;
        Blanks(i);  // required by the grammar, not by conforming parsers
        if (!Name(i, "a name expected in the document type declaration")) {
            return false;
        }
        std::size_t before = i;
        if (Blanks(i) && (Follows(i, "SYSTEM") || Follows(i, "PUBLIC"))) {
            if (!ExternalId(i, false)) {
                return false;
            }
            before = i;
        }
        i = before;
        Blanks(i);
        if (At(i) == '[') {
            ++i;
            for (;;) {
                Blanks(i);
                if (i >= mSize) {
                    return Fail(at, "a document type declaration that does not end");
                }
                if (mBytes[i] == ']') {
                    ++i;
                    break;
                }
                if (Follows(i, "<!--")) {
                    if (!Comment(i)) {
                        return false;
                    }
                } else if (Follows(i, "<?")) {
                    if (!ProcessingInstruction(i)) {
                        return false;
                    }
                } else if (Follows(i, "<!")) {
                    if (!MarkupDeclaration(i)) {
                        return false;
                    }
                } else if (mBytes[i] == '%') {
                    return Fail(i, kParameterEntityReference);
                } else {
                    return Fail(i, "something other than a declaration in the internal subset");
                }
            }
            Blanks(i);
        }
        return Close(i, at, "'>' expected at the end of the document type declaration");
    }

    // A reference at `at` ('&'): a character reference to a character XML
    // allows, or one of the five predefined entities. Moves `at` past it.
    bool Reference(std::size_t& at)
    {
        std::size_t i = at + 1;
        if (At(i) == '#') {
            ++i;
            const bool hex = At(i) == 'x';
            i += hex ? 1 : 0;
            std::uint32_t value = 0;
            const std::size_t digits = i;
            for (;; ++i) {
                const unsigned char c = At(i);
                std::uint32_t digit = 0;
                if (IsDigit(c)) {
                    digit = c - '0';
                } else if (hex && c >= 'a' && c <= 'f') {
                    digit = c - 'a' + 10;
                } else if (hex && c >= 'A' && c <= 'F') {
                    digit = c - 'A' + 10;
                } else {
                    break;
                }
                value = std::min<std::uint32_t>(value * (hex ? 16 : 10) + digit, 0x110000);
            }
            if (i == digits || At(i) != ';') {
                return Fail(at, "a malformed character reference");
            }
            if (!IsXmlChar(value)) {
                return Fail(at, "a character reference to a character XML does not allow");
            }
            at = i + 1;
            return true;
        }
        const std::size_t end = NameEnd(i);
        if (end == i || At(end) != ';') {
            return Fail(at, "an '&' that starts no reference");
        }
        const std::string_view name(mText + i, end - i);
        if (name != "lt" && name != "gt" && name != "amp" && name != "apos" && name != "quot") {
            const std::string what = "a reference to an entity other than lt, gt, amp, apos and quot: &" +
                                     std::string(name) + "; (entities a document declares are never expanded)";
            return Fail(at, what.c_str());
        }
        at = end + 1;
        return true;
    }

    // The window bits of the 64 bytes from `from` (past the text's end,
    // plain blanks).
    WindowBits ScanAt(std::size_t from) const
    {
        if (mSize - from >= 64) {
            return ScanWindow(mText + from);
        }
        char tail[64] = {};
        std::memcpy(tail, mText + from, mSize - from);
        WindowBits bits = ScanWindow(tail);
        bits.unusual &= (std::uint64_t(1) << (mSize - from)) - 1;
        return bits;
    }

    // Makes the 64 bytes from `from` the walk's window: finds their stops
    // and checks their characters (and any skipped since the last window;
    // only where some byte is not plain ASCII does the check read them one
    // by one). False when a character is at fault: the walk then stops, and
    // its own fault after this one is its consequence. Kept out of line so
    // that the search the walk makes at every stop stays small.
    [[gnu::noinline]] bool Load(std::size_t from, std::size_t& window, std::uint64_t& stops)
    {
        const WindowBits bits = ScanAt(from);
        const std::size_t end = std::min(mSize, from + 64);
        if (mChecked < from || bits.unusual != 0) {
            if (!CheckCharacters(end)) {
                mHalted = true;
                return false;
            }
        } else {
            mChecked = std::max(mChecked, end);
        }
        window = from;
        stops = bits.stops;
        return true;
    }

    // A start tag's character that is neither in a value nor allowed there.
    bool BadInTag(std::size_t at) { return Fail(at, "a character a tag may not hold outside its attribute values"); }

    // The fault of an attribute name that repeats one before it.
    bool Twice(std::string_view name)
    {
        return Fail(static_cast<std::size_t>(name.data() - mText),
                    ("an attribute given twice: " + std::string(name)).c_str());
    }

    // The name of attribute `k` of the start tag at `start`, from where
    // the values open and end (mQuotes holds both): back from the value's
    // opening quote over blanks, '=' and blanks to where the name ends, and
    // forward from the end of the value before over blanks, or back to a
    // blank for the first attribute.
    std::string_view AttributeName(std::size_t start, std::size_t k) const
    {
        // Blanks are the only characters up to a space here (the
        // characters of the tag are checked before its values are found).
        const auto blank = [this](std::size_t i) { return mBytes[i] <= ' '; };
        std::size_t end = mQuotes[2 * k];
        if (mBytes[end - 1] == '=' && !blank(end - 2)) {
            --end;  // name="...": the usual way
        } else {
            while (end > start && blank(end - 1)) {
                --end;
            }
            if (end > start && mBytes[end - 1] == '=') {
                --end;
            }
            while (end > start && blank(end - 1)) {
                --end;
            }
        }
        std::size_t begin = end;
        if (k == 0) {
            while (begin > start && !blank(begin - 1)) {
                --begin;
            }
        } else {
            begin = std::min(end, mQuotes[2 * k - 1]);
            while (begin < end && blank(begin)) {
                ++begin;
            }
        }
        return std::string_view(mText + begin, end - begin);
    }

    // The start tag from `start` ('<') to `close` ('>'): no attribute
    // twice, and, when `nonAscii` says the tag holds characters beyond
    // ASCII, names XML allows (the parser checks ASCII names itself).
    bool CheckAttributes(std::size_t start, std::size_t close, bool nonAscii)
    {
        const std::size_t count = mQuotes.size() / 2;
        if (nonAscii) {
            const std::size_t end = NameEnd(start + 1);
            if (end == start + 1 || !(IsBlank(At(end)) || At(end) == '/' || end == close)) {
                return Fail(start + 1, "an element name with a character XML does not allow in names");
            }
            for (std::size_t k = 0; k < count; ++k) {
                const std::string_view name = AttributeName(start, k);
                const std::size_t at = static_cast<std::size_t>(name.data() - mText);
                if (NameEnd(at) != at + name.size()) {
                    return Fail(at, "an attribute name with a character XML does not allow in names");
                }
            }
        }
        if (count < 2) {
            return true;
        }
        // Few attributes: each name against a 64-bit set of hashes, compared
        // in full only when its hash was seen. Many: sorted.
        mNames.clear();
        if (count <= 64) {
            std::uint64_t seen = 0;
            for (std::size_t k = 0; k < count; ++k) {
                const std::string_view name = AttributeName(start, k);
                const unsigned hash =
                    name.empty()
                        ? 0
                        : static_cast<unsigned>(
                              name.size() * 31 + static_cast<unsigned char>(name[name.size() / 2]) * 7 +
                              static_cast<unsigned char>(name.back()) * 3 + static_cast<unsigned char>(name.front()));
                const std::uint64_t bit = std::uint64_t(1) << (hash & 63);
                // The name is compared and stored by value: copied through
                // memory, it costs more than the rest of the loop.
                if ((seen & bit) != 0 && std::any_of(mNames.begin(), mNames.end(),
                                                     [name](std::string_view seenName) { return seenName == name; })) {
                    return Twice(name);
                }
                seen |= bit;
                mNames.emplace_back(name.data(), name.size());
            }
            return true;
        }
        for (std::size_t k = 0; k < count; ++k) {
            mNames.push_back(AttributeName(start, k));
        }
        // In document order among equal names, so that the fault is at the
        // first name that repeats one before it, as with few attributes.
        std::stable_sort(mNames.begin(), mNames.end());
        const std::string_view* first = nullptr;
        for (std::size_t k = 1; k < mNames.size(); ++k) {
            if (mNames[k] == mNames[k - 1] && (first == nullptr || mNames[k].data() < first->data())) {
                first = &mNames[k];
            }
        }
        return first == nullptr || Twice(*first);
    }

    // From the root element's '<' at `at` to the end of the text. Only the
    // bytes that start or end markup are visited ('<', '>', quotes, '&',
    // ']'), found 64 bytes at a time; the state of that search stays in
    // local variables, as this loop is most of the checks' time.
    bool WalkMarkup(std::size_t at)
    {
        mRootSeen = true;
        std::size_t depth = 0;
        std::size_t window = static_cast<std::size_t>(-1) - 64;
        std::uint64_t stops = 0;
        // The next byte at or after `from` that is one of the stops in
        // `set`, or the end of the text.
        auto next = [&](unsigned set, std::size_t from) {
            for (;;) {
                if (from >= mSize) {
                    return mSize;
                }
                if (from - window >= 64 && !Load(from, window, stops)) {  // also when `from` is before the window
                    return mSize;
                }
                for (std::uint64_t bits = stops >> (from - window); bits != 0; bits &= bits - 1) {
                    const std::size_t found = from + static_cast<std::size_t>(__builtin_ctzll(bits));
                    if ((StopOf(mBytes[found]) & set) != 0) {
                        return found;
                    }
                }
                from = window + 64;
            }
        };
        for (;;) {
            // At a '<' inside the root element or at its start.
            const unsigned char second = At(at + 1);
            if (second == '/') {
                const std::size_t close = next(kGt | kLt | kAmp | kDq | kSq, at + 2);
                if (close >= mSize || mBytes[close] != '>') {
                    return Fail(at, "a malformed end tag");
                }
                if (depth == 0) {
                    return Fail(at, "an end tag without its start tag");
                }
                at = close + 1;
                if (--depth == 0) {
                    return DocumentLevel(at);
                }
            } else if (second == '!') {
                if (Follows(at, "<!--")) {
                    if (!Comment(at)) {
                        return false;
                    }
                } else if (Follows(at, "<![CDATA[") && depth > 0) {
                    std::size_t end = next(kBracket, at + 9);
                    while (end < mSize && !Follows(end, "]]>")) {
                        end = next(kBracket, end + 1);
                    }
                    if (end >= mSize) {
                        return Fail(at, "a CDATA section that does not end");
                    }
                    at = end + 3;
                } else {
                    return Fail(at, "\"<!\" that starts neither a comment nor a CDATA section inside the root element");
                }
            } else if (second == '?') {
                if (!ProcessingInstruction(at)) {
                    return false;
                }
            } else {
                // A start tag: its attribute values, up to the '>' outside
                // them.
                const std::size_t start = at;
                mQuotes.clear();
                std::size_t i = next(kDq | kSq | kGt | kLt | kAmp, at + 1);
                while (i < mSize && mBytes[i] != '>') {
                    const unsigned char quote = mBytes[i];
                    if (quote != '"' && quote != '\'') {
                        return BadInTag(i);
                    }
                    mQuotes.push_back(i);
                    const unsigned set = (quote == '"' ? kDq : kSq) | kLt | kAmp;
                    std::size_t end = next(set, i + 1);
                    while (end < mSize && mBytes[end] != quote) {
                        if (mBytes[end] == '<') {
                            return Fail(end, "'<' in an attribute value");
                        }
                        if (!Reference(end)) {
                            return false;
                        }
                        end = next(set, end);
                    }
                    if (end >= mSize) {
                        return Fail(i, "an attribute value that does not end");
                    }
                    mQuotes.push_back(end + 1);
                    i = next(kDq | kSq | kGt | kLt | kAmp, end + 1);
                }
                if (i >= mSize) {
                    return Fail(start, "a start tag that does not end");
                }
                // The tag's characters are all checked by now: one beyond
                // ASCII that ends after its '<' is in it, or just after it.
                const bool nonAscii = mNonAsciiEnd > start;
                if ((mQuotes.size() >= 4 || nonAscii) && !CheckAttributes(start, i, nonAscii)) {
                    return false;
                }
                at = i + 1;
                mDeepest = std::max(mDeepest, depth + 1);
                if (mBytes[i - 1] != '/') {
                    ++depth;
                } else if (depth == 0) {
                    return DocumentLevel(at);
                }
            }
            if (depth == 0) {
                return Fail(at, "a malformed root element");
            }
            // Text up to the next '<': references well-formed, no "]]>".
            std::size_t i = next(kLt | kAmp | kBracket, at);
            while (i < mSize && mBytes[i] != '<') {
                if (mBytes[i] == '&') {
                    if (!Reference(i)) {
                        return false;
                    }
                } else if (Follows(i, "]]>")) {
                    return Fail(i, "\"]]>\" in text");
                } else {
                    ++i;
                }
                i = next(kLt | kAmp | kBracket, i);
            }
            if (i >= mSize) {
                return Fail(mSize, "the document ends before its root element does");
            }
            at = i;
        }
    }

    const char* mText;
    const unsigned char* mBytes;
    std::size_t mSize;
    XmlFault& mFault;
    bool mRootSeen = false;
    bool mDoctypeSeen = false;
    // A fault among the characters stops the walk over markup.
    bool mHalted = false;
    // The characters up to here are checked.
    std::size_t mChecked = 0;
    // Where the last character beyond ASCII checked so far ends (0: none).
    std::size_t mNonAsciiEnd = 0;
    // The deepest nesting of elements so far.
    std::size_t mDeepest = 0;
    // Where each value of the current start tag opens and ends.
    std::vector<std::size_t> mQuotes;
    std::vector<std::string_view> mNames;
};

}  // namespace

XmlBytes::~XmlBytes() { Reset(nullptr, 0); }

void XmlBytes::Reset(void* data, std::size_t size)
{
    if (mData != nullptr && data != mData) {
        pugi::get_memory_deallocation_function()(mData);
    }
    mData = data;
    mSize = size;
}

void* XmlBytes::Release()
{
    void* data = mData;
    mData = nullptr;
    mSize = 0;
    return data;
}

bool DecodeXmlText(XmlBytes& bytes, XmlFault& fault)
{
    const unsigned char* p = reinterpret_cast<const unsigned char*>(bytes.Data());
    const std::size_t size = bytes.Size();
    if (StartsWith(p, size, {0x00, 0x00, 0xFE, 0xFF}) || StartsWith(p, size, {0xFF, 0xFE, 0x00, 0x00}) ||
        StartsWith(p, size, {0x00, 0x00, 0x00, 0x3C}) || StartsWith(p, size, {0x3C, 0x00, 0x00, 0x00})) {
        fault.what = "a document in UTF-32, which this library does not read";
        return false;
    }
    if (StartsWith(p, size, {0x4C, 0x6F, 0xA7, 0x94})) {
        fault.what = "a document in EBCDIC, which this library does not read";
        return false;
    }
    Encoding encoding = Encoding::Utf8;
    std::size_t bom = 0;
    if (StartsWith(p, size, {0xEF, 0xBB, 0xBF})) {
        bom = 3;
    } else if (StartsWith(p, size, {0xFF, 0xFE})) {
        encoding = Encoding::Utf16LE;
        bom = 2;
    } else if (StartsWith(p, size, {0xFE, 0xFF})) {
        encoding = Encoding::Utf16BE;
        bom = 2;
    } else if (StartsWith(p, size, {0x3C, 0x00, 0x3F, 0x00})) {
        encoding = Encoding::Utf16LE;
    } else if (StartsWith(p, size, {0x00, 0x3C, 0x00, 0x3F})) {
        encoding = Encoding::Utf16BE;
    }
    if (encoding != Encoding::Utf8) {
        if (!ConvertUtf16(bytes, encoding, bom, fault)) {
            return false;
        }
        // U+FEFF after the byte-order mark is a character before the root,
        // not a second mark.
        const unsigned char* text = reinterpret_cast<const unsigned char*>(bytes.Data());
        if (StartsWith(text, bytes.Size(), {0xEF, 0xBB, 0xBF})) {
            fault.what = "text before the root element";
            return false;
        }
    }
    const char* text = bytes.Data();
    const std::size_t start = encoding == Encoding::Utf8 ? bom : 0;
    Declaration declaration;
    if (!ReadDeclaration(text, bytes.Size(), start, declaration, fault)) {
        return false;
    }
    const std::string_view named = declaration.encoding;
    if (named.empty()) {
        return true;
    }
    auto refuse = [&](const std::string& what) {
        fault.what = what;
        fault.offset = declaration.encodingOffset;
        return false;
    };
    if (encoding != Encoding::Utf8) {
        const bool little = encoding == Encoding::Utf16LE;
        if (IsOneOf(named, {"UTF-16", "UTF16"}) || EqualsIgnoringCase(named, little ? "UTF-16LE" : "UTF-16BE")) {
            return true;
        }
        return refuse("the document is in UTF-16 but its declaration names " + std::string(named));
    }
    if (IsOneOf(named, {"UTF-8", "UTF8"})) {
        return true;
    }
    if (bom == 0 && IsOneOf(named, {"US-ASCII", "ASCII"})) {
        const auto nonAscii = std::find_if(p, p + size, [](unsigned char c) { return c >= 0x80; });
        if (nonAscii != p + size) {
            fault.what = "a byte outside ASCII in a document declared US-ASCII";
            fault.offset = static_cast<std::size_t>(nonAscii - p);
            return false;
        }
        return true;
    }
    if (bom == 0 && IsOneOf(named, {"ISO-8859-1", "ISO_8859-1", "ISO8859-1", "LATIN1", "ISO-LATIN-1", "L1"})) {
        return ConvertLatin1(bytes);
    }
    if (IsOneOf(named, {"UTF-16", "UTF16", "UTF-16LE", "UTF-16BE"})) {
        return refuse("the document is in UTF-8 but its declaration names " + std::string(named));
    }
    return refuse("the document's declared encoding " + std::string(named) +
                  " is not one this library reads (UTF-8, UTF-16, ISO-8859-1, US-ASCII)");
}

bool CheckXmlText(const char* text, std::size_t size, XmlFault& fault, std::size_t* depth)
{
    Checker checker(text, size, fault);
    if (!checker.Run()) {
        return false;
    }
    if (depth != nullptr) {
        *depth = checker.Deepest();
    }
    return true;
}

std::string DescribeXmlPosition(const char* text, std::size_t size, std::size_t offset, const std::string& what)
{
    offset = std::min(offset, size);
    std::size_t line = 1;
    std::size_t column = 1;
    for (std::size_t i = 0; i < offset; ++i) {
        const unsigned char c = static_cast<unsigned char>(text[i]);
        if (c == '\n') {
            ++line;
            column = 1;
        } else if ((c & 0xC0U) != 0x80U) {
            ++column;
        }
    }
    return "line " + std::to_string(line) + ", column " + std::to_string(column) + ": " + what;
}

}  // namespace qrm::detail
