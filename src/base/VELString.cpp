#include "VELString.h"

#include "base/VELCombinations.h"

#include <utf8.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <sstream>
#include <utility>

namespace {

bool IsASCII(const char* bytes, std::size_t length)
{
    for (std::size_t i = 0; i < length; ++i) {
        if (static_cast<unsigned char>(bytes[i]) >= 0x80) {
            return false;
        }
    }
    return true;
}

std::u16string DecodeUTF8(const char* bytes, std::size_t length)
{
    if (length == 0) {
        return std::u16string();
    }
    if (IsASCII(bytes, length)) {
        return std::u16string(bytes, bytes + length);
    }
    std::string valid;
    valid.reserve(length);
    utf8::replace_invalid(bytes, bytes + length, std::back_inserter(valid), 0xFFFDu);
    std::u16string units;
    units.reserve(valid.size());
    utf8::unchecked::utf8to16(valid.begin(), valid.end(), std::back_inserter(units));
    return units;
}

bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

std::string EncodeUTF8(const std::u16string& units)
{
    bool ascii = true;
    for (char16_t unit : units) {
        if (unit >= 0x80) {
            ascii = false;
            break;
        }
    }
    if (ascii) {
        return std::string(units.begin(), units.end());
    }
    // Unpaired surrogates cannot be encoded: they become U+FFFD.
    std::u16string paired;
    paired.reserve(units.size());
    for (std::size_t i = 0; i < units.size(); ++i) {
        char16_t unit = units[i];
        if (IsHighSurrogate(unit) && i + 1 < units.size() && IsLowSurrogate(units[i + 1])) {
            paired.push_back(unit);
            paired.push_back(units[++i]);
        } else if (IsHighSurrogate(unit) || IsLowSurrogate(unit)) {
            paired.push_back(u'\xFFFD');
        } else {
            paired.push_back(unit);
        }
    }
    std::string bytes;
    bytes.reserve(paired.size() * 3);
    utf8::unchecked::utf16to8(paired.begin(), paired.end(), std::back_inserter(bytes));
    return bytes;
}

bool IsStreamSpace(char16_t unit)
{
    return unit == u' ' || unit == u'\t' || unit == u'\n' || unit == u'\v' || unit == u'\f' ||
           unit == u'\r';
}

int DigitValue(char16_t unit, unsigned int base)
{
    if (unit >= u'0' && unit <= u'9') {
        int digit = unit - u'0';
        return digit < static_cast<int>(base) ? digit : -1;
    }
    if (base == 16) {
        if (unit >= u'a' && unit <= u'f') {
            return 10 + (unit - u'a');
        }
        if (unit >= u'A' && unit <= u'F') {
            return 10 + (unit - u'A');
        }
    }
    return -1;
}

// The number extraction of the standard stream (classic locale) for an
// unsigned int in base 10 or 16, without building a stream.
unsigned int ExtractUnsigned(const std::u16string& text, unsigned int base)
{
    std::size_t pos = 0;
    const std::size_t end = text.size();
    while (pos < end && IsStreamSpace(text[pos])) {
        ++pos;
    }
    if (pos == end) {
        return 0;
    }
    bool negative = false;
    if (text[pos] == u'-' || text[pos] == u'+') {
        negative = text[pos] == u'-';
        ++pos;
    }
    bool foundZero = false;
    unsigned int digitsSeen = 0;
    while (pos < end) {
        char16_t c = text[pos];
        if (c == u'0' && (!foundZero || base == 10)) {
            foundZero = true;
            ++digitsSeen;
        } else if (foundZero && (c == u'x' || c == u'X')) {
            if (base != 16) {
                break;
            }
            foundZero = false;
            digitsSeen = 0;
        } else {
            break;
        }
        ++pos;
        if (pos < end && !foundZero) {
            break;
        }
    }
    const unsigned int max = 0xFFFFFFFFu;
    const unsigned int smax = max / base;
    unsigned int result = 0;
    bool overflow = false;
    for (; pos < end; ++pos) {
        int digit = DigitValue(text[pos], base);
        if (digit < 0) {
            break;
        }
        if (result > smax) {
            overflow = true;
        } else {
            result *= base;
            overflow |= result > max - static_cast<unsigned int>(digit);
            result += static_cast<unsigned int>(digit);
            ++digitsSeen;
        }
    }
    if (digitsSeen == 0 && !foundZero) {
        return 0;
    }
    if (overflow) {
        return max;
    }
    return negative ? 0u - result : result;
}

}  // namespace

VELString::VELString() = default;

VELString::VELString(const char* text, VELCharEncodingType /*encoding*/)
    : mUnits(text != nullptr ? DecodeUTF8(text, std::strlen(text)) : std::u16string())
{
}

VELString::VELString(const std::u16string& units) : mUnits(units) {}

VELString::VELString(std::u16string&& units) : mUnits(std::move(units)) {}

VELString::VELString(const VELString& other) = default;

VELString::VELString(VELString&& other) noexcept : mUnits(std::move(other.mUnits)) {}

VELString& VELString::operator=(const VELString& other) = default;

VELString& VELString::operator=(VELString&& other) noexcept
{
    mUnits = std::move(other.mUnits);
    return *this;
}

VELString::~VELString() = default;

VELString VELString::FromUTF8(const char* bytes, std::size_t length)
{
    return VELString(DecodeUTF8(bytes, bytes != nullptr ? length : 0));
}

unsigned int VELString::GetLength() const { return static_cast<unsigned int>(mUnits.size()); }

bool VELString::IsEmpty() const { return mUnits.empty(); }

std::string VELString::GetUTF8String() const { return EncodeUTF8(mUnits); }

const std::u16string& VELString::GetUTF16String() const { return mUnits; }

unsigned int VELString::GetIntValue(NumberBase base) const
{
    if (base == static_cast<NumberBase>(std::dec)) {
        return ExtractUnsigned(mUnits, 10);
    }
    if (base == static_cast<NumberBase>(std::hex)) {
        return ExtractUnsigned(mUnits, 16);
    }
    // Any other manipulator: ask the stream itself.
    std::istringstream stream(GetUTF8String());
    unsigned int value = 0;
    if (base != nullptr) {
        stream >> base;
    }
    stream >> value;
    return value;
}

VELString VELString::SubString(unsigned int start, unsigned int count) const
{
    if (start >= mUnits.size()) {
        return VELString();
    }
    return VELString(mUnits.substr(start, count));
}

VELString& VELString::ReplaceAll(const VELString& what, const VELString& with)
{
    const std::u16string& pattern = what.mUnits;
    if (pattern.empty() || mUnits.size() < pattern.size()) {
        return *this;
    }
    std::size_t pos = mUnits.find(pattern);
    if (pos == std::u16string::npos) {
        return *this;
    }
    std::u16string result;
    result.reserve(mUnits.size());
    std::size_t from = 0;
    while (pos != std::u16string::npos) {
        result.append(mUnits, from, pos - from);
        result.append(with.mUnits);
        from = pos + pattern.size();
        pos = mUnits.find(pattern, from);
    }
    result.append(mUnits, from, std::u16string::npos);
    mUnits = std::move(result);
    return *this;
}

bool VELString::ContainsOnlyAlphabets() const
{
    if (mUnits.empty()) {
        return false;
    }
    return std::all_of(mUnits.begin(), mUnits.end(), [](char16_t unit) {
        return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
    });
}

VELString VELString::RemoveVowels() const
{
    std::u16string kept;
    kept.reserve(mUnits.size());
    for (char16_t unit : mUnits) {
        switch (unit) {
        case u'A': case u'E': case u'I': case u'O': case u'U':
        case u'a': case u'e': case u'i': case u'o': case u'u':
            break;
        default:
            kept.push_back(unit);
        }
    }
    return VELString(std::move(kept));
}

void VELString::ListCombinationsOfString(char* buffer, unsigned int start, unsigned int end,
                                         unsigned int index, unsigned int size,
                                         std::vector<VELString>& out) const
{
    if (index > size) {
        return;
    }
    // The first `index` characters were chosen by the caller and stand in
    // the buffer already.
    std::u16string chosen(size, u'\0');
    if (buffer != nullptr) {
        buffer[size] = '\0';
        for (unsigned int i = 0; i < index; ++i) {
            chosen[i] = static_cast<unsigned char>(buffer[i]);
        }
    }
    const std::size_t count = size - index;
    if (count == 0) {
        out.emplace_back(chosen);
        return;
    }
    if (mUnits.empty() || start >= mUnits.size()) {
        return;
    }
    vel::CombinationCursor cursor(start, std::min<std::size_t>(end, mUnits.size() - 1), count);
    while (cursor.Next()) {
        for (std::size_t i = 0; i < count; ++i) {
            char16_t unit = mUnits[cursor.Positions()[i]];
            chosen[index + i] = unit;
            if (buffer != nullptr) {
                buffer[index + i] = unit < 0x80 ? static_cast<char>(unit) : '?';
            }
        }
        out.emplace_back(chosen);
    }
}

bool operator==(const VELString& left, const VELString& right)
{
    return left.GetUTF16String() == right.GetUTF16String();
}

bool operator!=(const VELString& left, const VELString& right) { return !(left == right); }

bool operator<(const VELString& left, const VELString& right)
{
    // char16_t is unsigned, so this is the code-unit order.
    return left.GetUTF16String() < right.GetUTF16String();
}

namespace {

bool EqualsLiteral(const char* literal, const VELString& text)
{
    if (literal == nullptr) {
        return text.IsEmpty();
    }
    const std::u16string& units = text.GetUTF16String();
    std::size_t i = 0;
    for (; literal[i] != '\0'; ++i) {
        unsigned char byte = static_cast<unsigned char>(literal[i]);
        if (byte >= 0x80) {
            return VELString(literal) == text;
        }
        if (i >= units.size() || units[i] != byte) {
            return false;
        }
    }
    return i == units.size();
}

}  // namespace

bool operator==(const char* left, const VELString& right) { return EqualsLiteral(left, right); }
bool operator==(const VELString& left, const char* right) { return EqualsLiteral(right, left); }
bool operator!=(const char* left, const VELString& right) { return !EqualsLiteral(left, right); }
bool operator!=(const VELString& left, const char* right) { return !EqualsLiteral(right, left); }

VELString operator+(const VELString& left, const char* right)
{
    return VELString(left.GetUTF16String() + VELString(right).GetUTF16String());
}

VELString operator+(const char* left, const VELString& right)
{
    return VELString(VELString(left).GetUTF16String() + right.GetUTF16String());
}

VELString operator+(const VELString& left, const VELString& right)
{
    return VELString(left.GetUTF16String() + right.GetUTF16String());
}
