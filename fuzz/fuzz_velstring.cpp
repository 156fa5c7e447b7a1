// VELString: every constructor and conversion, the text operations the
// readers use, and GetIntValue, each checked against what its header
// promises.
//
// Input: three parameter bytes, then the text. The text is used as UTF-8
// bytes (valid or not) and, read two bytes at a time (little endian), as raw
// UTF-16 code units (unpaired surrogates and NULs included).
#include "FuzzSupport.h"

#include <cstdint>
#include <cstring>
#include <ios>
#include <sstream>
#include <string>
#include <vector>

using namespace qrmfuzz;

namespace {

bool IsHigh(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLow(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

// Strict UTF-8 decoding: false on any malformed, overlong, surrogate or
// out-of-range sequence; otherwise the UTF-16 code units.
bool DecodeStrict(const std::string& bytes, std::u16string& units)
{
    units.clear();
    std::size_t i = 0;
    while (i < bytes.size()) {
        unsigned char lead = static_cast<unsigned char>(bytes[i]);
        uint32_t cp;
        std::size_t length;
        if (lead < 0x80) {
            cp = lead;
            length = 1;
        } else if (lead >= 0xC2 && lead <= 0xDF) {
            cp = lead & 0x1F;
            length = 2;
        } else if (lead >= 0xE0 && lead <= 0xEF) {
            cp = lead & 0x0F;
            length = 3;
        } else if (lead >= 0xF0 && lead <= 0xF4) {
            cp = lead & 0x07;
            length = 4;
        } else {
            return false;
        }
        if (i + length > bytes.size()) {
            return false;
        }
        for (std::size_t k = 1; k < length; ++k) {
            unsigned char next = static_cast<unsigned char>(bytes[i + k]);
            if ((next & 0xC0) != 0x80) {
                return false;
            }
            cp = (cp << 6) | (next & 0x3F);
        }
        if ((length == 3 && cp < 0x800) || (length == 4 && (cp < 0x10000 || cp > 0x10FFFF)) ||
            (cp >= 0xD800 && cp <= 0xDFFF)) {
            return false;
        }
        if (cp >= 0x10000) {
            cp -= 0x10000;
            units.push_back(static_cast<char16_t>(0xD800 + (cp >> 10)));
            units.push_back(static_cast<char16_t>(0xDC00 + (cp & 0x3FF)));
        } else {
            units.push_back(static_cast<char16_t>(cp));
        }
        i += length;
    }
    return true;
}

// The code units with every unpaired surrogate replaced by U+FFFD.
std::u16string PairedOnly(const std::u16string& units)
{
    std::u16string out;
    for (std::size_t i = 0; i < units.size(); ++i) {
        if (IsHigh(units[i]) && i + 1 < units.size() && IsLow(units[i + 1])) {
            out.push_back(units[i]);
            out.push_back(units[++i]);
        } else if (IsHigh(units[i]) || IsLow(units[i])) {
            out.push_back(u'\xFFFD');
        } else {
            out.push_back(units[i]);
        }
    }
    return out;
}

bool WellFormed(const std::u16string& units) { return PairedOnly(units) == units; }

// What extracting an unsigned int from a string stream gives, as the header
// of GetIntValue describes it.
unsigned int StreamValue(const VELString& text, VELString::NumberBase base)
{
    std::istringstream stream(text.GetUTF8String());
    unsigned int value = 0;
    stream >> base >> value;
    return value;
}

void CheckConversions(const std::string& bytes, const std::u16string& raw)
{
    // From UTF-8: a NUL-terminated byte string and a counted one.
    const VELString counted = VELString::FromUTF8(bytes.data(), bytes.size());
    const std::string terminated(bytes.c_str());
    const VELString fromCString(terminated.c_str());
    const VELString fromCStringUTF8(terminated.c_str(), VEL_CHAR_ENCODING_UTF8);
    Check(fromCString == VELString::FromUTF8(terminated.data(), terminated.size()),
          "VELString: the NUL-terminated and the counted constructor disagree");
    Check(fromCString == fromCStringUTF8, "VELString: the default encoding is not UTF-8");
    Check(counted.GetLength() == counted.GetUTF16String().size(), "GetLength: not the number of code units");
    Check(counted.IsEmpty() == bytes.empty(), "FromUTF8: empty exactly when the bytes are");
    Check(WellFormed(counted.GetUTF16String()), "FromUTF8: unpaired surrogates from UTF-8 input");

    std::u16string strict;
    if (DecodeStrict(bytes, strict)) {
        Check(counted.GetUTF16String() == strict, "FromUTF8: valid UTF-8 not decoded to its code units");
        Check(counted.GetUTF8String() == bytes, "GetUTF8String: valid UTF-8 does not survive a round trip");
    } else {
        std::u16string again;
        Check(DecodeStrict(counted.GetUTF8String(), again) && again == counted.GetUTF16String(),
              "FromUTF8: malformed input not turned into well-formed text");
    }

    // From UTF-16 code units, as they are.
    const VELString units(raw);
    const VELString moved{std::u16string(raw)};
    Check(units.GetUTF16String() == raw && moved == units, "VELString: the code units were not taken as they are");
    std::u16string decoded;
    const std::string encoded = units.GetUTF8String();
    Check(DecodeStrict(encoded, decoded), "GetUTF8String: not valid UTF-8");
    Check(decoded == PairedOnly(raw), "GetUTF8String: not the text with unpaired surrogates as U+FFFD");

    // Copies and moves.
    VELString copy(units);
    VELString assigned;
    assigned = units;
    VELString movedFrom(copy);
    VELString movedTo(std::move(movedFrom));
    VELString moveAssigned;
    moveAssigned = std::move(movedTo);
    Check(copy == units && assigned == units && moveAssigned == units, "VELString: a copy differs");

    // Assignment to itself keeps the text; moving to itself leaves some
    // valid text.
    VELString self(raw);
    const VELString& selfAlias = self;
    self = selfAlias;
    Check(self.GetUTF16String() == raw, "operator=: assigning a text to itself changes it");
    VELString selfMoved(raw);
    VELString& selfMovedAlias = selfMoved;
    selfMoved = std::move(selfMovedAlias);
    Check(selfMoved.GetUTF16String().size() == selfMoved.GetLength(), "operator=: moving a text to itself breaks it");
    Consume(Hash(selfMoved) + selfMoved.GetUTF8String().size());
    VELFile file(units);
    const VELFile& fileAlias = file;
    file = fileAlias;
    Check(file.GetPath() == units, "VELFile: assigning a file to itself changes its path");

    // Comparisons: code unit by code unit, a prefix first.
    Check((units == counted) == (raw == counted.GetUTF16String()), "operator==: not code-unit equality");
    Check((units != counted) != (units == counted), "operator!=: not the negation of ==");
    Check((units < counted) == (raw < counted.GetUTF16String()), "operator<: not the code-unit order");
    if (terminated.size() == bytes.size()) {
        Check((terminated.c_str() == fromCString) && (fromCString == terminated.c_str()) &&
                  !(terminated.c_str() != fromCString) && !(fromCString != terminated.c_str()),
              "operator== with a literal: a text differs from the literal it was made from");
    }
    Check((terminated.c_str() == units) == (fromCString == units),
          "operator== with a literal: not the equality of texts");

    // Concatenation.
    Check((units + "x").GetUTF16String() == raw + u"x" && ("0" + units).GetUTF16String() == u"0" + raw,
          "operator+: not the concatenation with a literal");
    Check((units + counted).GetUTF16String() == raw + counted.GetUTF16String(), "operator+: not the concatenation");

    // A null pointer gives the empty text.
    Check(VELString(static_cast<const char*>(nullptr)).IsEmpty(), "VELString: a null pointer is not the empty text");
}

void CheckTextOperations(const uint8_t* params, const std::u16string& raw)
{
    const VELString text(raw);
    const std::size_t n = raw.size();

    // SubString, clamped to the text.
    const unsigned int start = params[0] % (n + 2);
    const unsigned int count = params[1] == 0xFF ? 0xFFFFFFFFu : params[1] % (n + 2);
    const std::u16string expected = start >= n ? std::u16string() : raw.substr(start, count);
    Check(text.SubString(start, count).GetUTF16String() == expected, "SubString: not the code units asked for");

    // ReplaceAll, left to right, of a piece of the text itself.
    const std::size_t from = params[1] % (n + 1);
    const std::u16string what = raw.substr(from, params[2] % 4);
    const std::u16string with = raw.substr(0, params[0] % 3);
    std::u16string replaced;
    if (what.empty()) {
        replaced = raw;
    } else {
        std::size_t at = 0;
        for (std::size_t hit = raw.find(what); hit != std::u16string::npos; hit = raw.find(what, at)) {
            replaced.append(raw, at, hit - at);
            replaced += with;
            at = hit + what.size();
        }
        replaced.append(raw, at, std::u16string::npos);
    }
    VELString target(raw);
    VELString& self = target.ReplaceAll(VELString(what), VELString(with));
    Check(&self == &target, "ReplaceAll: does not return the text itself");
    Check(target.GetUTF16String() == replaced, "ReplaceAll: not every occurrence replaced, left to right");

    // The text as its own argument: the pattern is the whole text, or the
    // replacement is the text itself.
    VELString whole(raw);
    const VELString& wholeAlias = whole;
    whole.ReplaceAll(wholeAlias, VELString(with));
    Check(whole.GetUTF16String() == (raw.empty() ? raw : with),
          "ReplaceAll: the text as its own pattern is not replaced by the replacement");
    std::u16string expanded;
    if (what.empty()) {
        expanded = raw;
    } else {
        std::size_t at = 0;
        for (std::size_t hit = raw.find(what); hit != std::u16string::npos; hit = raw.find(what, at)) {
            expanded.append(raw, at, hit - at);
            expanded += raw;
            at = hit + what.size();
        }
        expanded.append(raw, at, std::u16string::npos);
    }
    if (expanded.size() <= 4096) {
        VELString growing(raw);
        const VELString& growingAlias = growing;
        growing.ReplaceAll(VELString(what), growingAlias);
        Check(growing.GetUTF16String() == expanded,
              "ReplaceAll: the text as its own replacement is not the text as it was");
    }

    // Letters only, and vowels removed.
    bool letters = !raw.empty();
    std::u16string consonants;
    for (char16_t unit : raw) {
        letters = letters && ((unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z'));
        if (std::u16string(u"AEIOUaeiou").find(unit) == std::u16string::npos) {
            consonants.push_back(unit);
        }
    }
    Check(text.ContainsOnlyAlphabets() == letters, "ContainsOnlyAlphabets: wrong answer");
    Check(text.RemoveVowels().GetUTF16String() == consonants, "RemoveVowels: not the text without A, E, I, O, U");

    // Selections of up to four of the first twelve code units, in position
    // order with the first position changing slowest.
    const VELString shortText(raw.substr(0, 12));
    const std::size_t m = shortText.GetLength();
    const unsigned int size = params[2] % 5;
    const unsigned int first = params[0] % 14;
    const unsigned int last = params[1] % 16;
    std::vector<std::u16string> reference;
    if (size == 0) {
        reference.push_back(std::u16string());
    } else if (m > 0 && first < m) {
        const std::size_t top = std::min<std::size_t>(last, m - 1);
        // Depth-first over positions, which gives exactly that order.
        struct Walker {
            const std::u16string& units;
            std::size_t top;
            unsigned int size;
            std::vector<std::u16string>& out;
            void Go(std::size_t from, std::u16string& chosen)
            {
                if (chosen.size() == size) {
                    out.push_back(chosen);
                    return;
                }
                for (std::size_t p = from; p <= top; ++p) {
                    chosen.push_back(units[p]);
                    Go(p + 1, chosen);
                    chosen.pop_back();
                }
            }
        };
        std::u16string chosen;
        Walker walker{shortText.GetUTF16String(), top, size, reference};
        if (first <= top) {
            walker.Go(first, chosen);
        }
    }
    std::vector<char> buffer(size + 1, '\0');
    std::vector<VELString> selections(1, VELString("kept"));
    shortText.ListCombinationsOfString(buffer.data(), first, last, 0, size, selections);
    Check(selections.front() == VELString("kept"), "ListCombinationsOfString: the caller's entries were changed");
    Check(selections.size() == reference.size() + 1, "ListCombinationsOfString: not every selection, or too many");
    for (std::size_t i = 0; i < reference.size(); ++i) {
        Check(selections[i + 1].GetUTF16String() == reference[i],
              "ListCombinationsOfString: not the selections in position order");
    }
    // Without a work buffer, and with a part already chosen: only exercised.
    std::vector<VELString> more;
    shortText.ListCombinationsOfString(nullptr, first, last, 0, size, more);
    Check(more.size() == reference.size(), "ListCombinationsOfString: a null work buffer changes the selections");
    if (size > 0) {
        more.clear();
        shortText.ListCombinationsOfString(buffer.data(), first, last, params[0] % (size + 1), size, more);
        Consume(more.size());
    }

    // Numbers in the bases the readers use, and one more.
    Check(text.GetIntValue(std::dec) == StreamValue(text, std::dec), "GetIntValue(std::dec): not the stream's value");
    Check(text.GetIntValue(std::hex) == StreamValue(text, std::hex), "GetIntValue(std::hex): not the stream's value");
    Check(text.GetIntValue(std::oct) == StreamValue(text, std::oct), "GetIntValue(std::oct): not the stream's value");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 3) {
        return 0;
    }
    const uint8_t* params = data;
    const std::string bytes(reinterpret_cast<const char*>(data + 3), size - 3);
    std::u16string raw;
    for (std::size_t i = 3; i + 1 < size; i += 2) {
        raw.push_back(static_cast<char16_t>(data[i] | (data[i + 1] << 8)));
    }
    CheckConversions(bytes, raw);
    CheckTextOperations(params, raw);
    // The same operations on the text read as UTF-8, which is where numbers
    // and ASCII letters are easiest for the fuzzer to find.
    CheckTextOperations(params, VELString::FromUTF8(bytes.data(), bytes.size()).GetUTF16String());
    return 0;
}
