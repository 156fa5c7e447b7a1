#include "VELString.h"

#include "base/VELCombinations.h"
#include "base/VELNumber.h"

#include <utf8.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <locale>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace {

// For text that is not plain ASCII (FromUTF8 copies that directly).
std::u16string DecodeUTF8(const char* bytes, std::size_t length)
{
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

std::string EncodeUTF8(std::u16string_view units)
{
    if (vel::IsASCII(units.data(), units.size())) {
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

// mSlots[7] tells the two forms apart. Held in place: mSlots[0..6] are the
// units and mSlots[7] is kInlineTag | length. On the heap: the first eight
// bytes are the block's address, the next four the length and the last four
// zero.
constexpr std::size_t kInline = 7;
constexpr char16_t kInlineTag = 0x8000;

}  // namespace

inline bool VELString::IsInline() const { return (mSlots[kInline] & kInlineTag) != 0; }

inline char16_t* VELString::HeapUnits() const
{
    char16_t* units;
    std::memcpy(&units, mSlots, sizeof units);
    return units;
}

inline const char16_t* VELString::Data() const { return IsInline() ? mSlots : HeapUnits(); }

inline std::size_t VELString::Size() const
{
    if (IsInline()) {
        return static_cast<std::size_t>(mSlots[kInline] & ~kInlineTag & 0xFFFF);
    }
    std::uint32_t size;
    std::memcpy(&size, reinterpret_cast<const unsigned char*>(mSlots) + sizeof(char16_t*), sizeof size);
    return size;
}

inline void VELString::MakeEmpty() noexcept
{
    std::memset(mSlots, 0, sizeof mSlots);
    mSlots[kInline] = kInlineTag;
}

inline void VELString::TakeFrom(VELString& other) noexcept
{
    std::memcpy(mSlots, other.mSlots, sizeof mSlots);
    other.MakeEmpty();
}

inline void VELString::Release()
{
    if (!IsInline()) {
        ReleaseHeap();
    }
    MakeEmpty();
}

VELString::VELString() noexcept { MakeEmpty(); }

VELString::VELString(VELString&& other) noexcept { TakeFrom(other); }

VELString& VELString::operator=(VELString&& other) noexcept
{
    if (this != &other) {
        Release();
        TakeFrom(other);
    }
    return *this;
}

std::u16string_view VELString::GetUTF16View() const { return std::u16string_view(Data(), Size()); }

VELString::VELString(const char* text, VELCharEncodingType /*encoding*/) : VELString()
{
    if (text != nullptr) {
        *this = FromUTF8(text, std::strlen(text));
    }
}

VELString::VELString(const std::u16string& units) : VELString() { Assign(units.data(), units.size()); }

VELString::VELString(std::u16string&& units) : VELString() { Assign(units.data(), units.size()); }

VELString::VELString(const VELString& other) : VELString() { Assign(other.Data(), other.Size()); }

VELString& VELString::operator=(const VELString& other)
{
    if (this != &other) {
        Assign(other.Data(), other.Size());
    }
    return *this;
}

VELString::~VELString()
{
    if (!IsInline()) {
        ReleaseHeap();
    }
}

void VELString::ReleaseHeap() { delete[] HeapUnits(); }

char16_t* VELString::Reset(std::size_t length)
{
    Release();
    if (length <= kInline) {
        mSlots[kInline] = static_cast<char16_t>(kInlineTag | length);
        return mSlots;
    }
    if (length > 0xFFFFFFFFu) {
        throw std::length_error("VELString: text too long");
    }
    char16_t* units = new char16_t[length];
    std::uint32_t size = static_cast<std::uint32_t>(length);
    std::memset(mSlots, 0, sizeof mSlots);
    std::memcpy(mSlots, &units, sizeof units);
    std::memcpy(reinterpret_cast<unsigned char*>(mSlots) + sizeof(char16_t*), &size, sizeof size);
    return units;
}

void VELString::Assign(const char16_t* units, std::size_t length)
{
    // Built aside first: `units` may lie inside this very text.
    VELString fresh;
    if (length > 0) {
        std::copy(units, units + length, fresh.Reset(length));
    }
    Release();
    TakeFrom(fresh);
}

VELString VELString::FromUTF8(const char* bytes, std::size_t length)
{
    VELString text;
    if (bytes == nullptr || length == 0) {
        return text;
    }
    if (vel::IsASCII(bytes, length)) {
        char16_t* units = text.Reset(length);
        for (std::size_t i = 0; i < length; ++i) {
            units[i] = static_cast<unsigned char>(bytes[i]);
        }
        return text;
    }
    std::u16string units = DecodeUTF8(bytes, length);
    text.Assign(units.data(), units.size());
    return text;
}

unsigned int VELString::GetLength() const { return static_cast<unsigned int>(Size()); }

bool VELString::IsEmpty() const { return Size() == 0; }

std::string VELString::GetUTF8String() const { return EncodeUTF8(GetUTF16View()); }

std::u16string VELString::GetUTF16String() const { return std::u16string(GetUTF16View()); }

unsigned int VELString::GetIntValue(NumberBase base) const
{
    // The base is what the manipulator sets on a stream, not its address: a
    // program's std::dec need not have the address the library sees, and
    // every caller must get the number the library's own readers get. (The
    // address test only spares the library's own decimal reads the probe.)
    std::ios_base::fmtflags field = std::ios_base::dec;
    if (base != nullptr && base != static_cast<NumberBase>(std::dec)) {
        std::ios probe(nullptr);
        base(probe);
        field = probe.flags() & std::ios_base::basefield;
    }
    if (field == std::ios_base::dec) {
        return vel::ReadUnsigned(Data(), Size(), 10);
    }
    if (field == std::ios_base::hex) {
        return vel::ReadUnsigned(Data(), Size(), 16);
    }
    // Any other base: the stream itself, in the classic locale, so that a
    // program's global locale (digit grouping, ...) changes nothing.
    std::istringstream stream(GetUTF8String());
    stream.imbue(std::locale::classic());
    unsigned int value = 0;
    if (base != nullptr) {
        stream >> base;
    }
    stream >> value;
    return value;
}

VELString VELString::SubString(unsigned int start, unsigned int count) const
{
    std::u16string_view units = GetUTF16View();
    if (start >= units.size()) {
        return VELString();
    }
    std::u16string_view part = units.substr(start, count);
    VELString text;
    text.Assign(part.data(), part.size());
    return text;
}

VELString& VELString::ReplaceAll(const VELString& what, const VELString& with)
{
    std::u16string_view units = GetUTF16View();
    std::u16string_view pattern = what.GetUTF16View();
    if (pattern.empty() || units.size() < pattern.size()) {
        return *this;
    }
    std::size_t pos = units.find(pattern);
    if (pos == std::u16string::npos) {
        return *this;
    }
    std::u16string result;
    result.reserve(units.size());
    std::size_t from = 0;
    while (pos != std::u16string::npos) {
        result.append(units.substr(from, pos - from));
        result.append(with.GetUTF16View());
        from = pos + pattern.size();
        pos = units.find(pattern, from);
    }
    result.append(units.substr(from));
    Assign(result.data(), result.size());
    return *this;
}

bool VELString::ContainsOnlyAlphabets() const
{
    std::u16string_view units = GetUTF16View();
    if (units.empty()) {
        return false;
    }
    return std::all_of(units.begin(), units.end(),
                       [](char16_t unit) { return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z'); });
}

VELString VELString::RemoveVowels() const
{
    std::u16string kept;
    std::u16string_view units = GetUTF16View();
    kept.reserve(units.size());
    for (char16_t unit : units) {
        switch (unit) {
        case u'A':
        case u'E':
        case u'I':
        case u'O':
        case u'U':
        case u'a':
        case u'e':
        case u'i':
        case u'o':
        case u'u':
            break;
        default:
            kept.push_back(unit);
        }
    }
    return VELString(std::move(kept));
}

void VELString::ListCombinationsOfString(char* buffer, unsigned int start, unsigned int end, unsigned int index,
                                         unsigned int size, std::vector<VELString>& out) const
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
    std::u16string_view units = GetUTF16View();
    if (units.empty() || start >= units.size()) {
        return;
    }
    vel::CombinationCursor cursor(start, std::min<std::size_t>(end, units.size() - 1), count);
    while (cursor.Next()) {
        for (std::size_t i = 0; i < count; ++i) {
            char16_t unit = units[cursor.Positions()[i]];
            chosen[index + i] = unit;
            if (buffer != nullptr) {
                buffer[index + i] = unit < 0x80 ? static_cast<char>(unit) : '?';
            }
        }
        out.emplace_back(chosen);
    }
}

bool operator==(const VELString& left, const VELString& right) { return left.GetUTF16View() == right.GetUTF16View(); }

bool operator!=(const VELString& left, const VELString& right) { return !(left == right); }

bool operator<(const VELString& left, const VELString& right)
{
    // char16_t is unsigned, so this is the code-unit order.
    return left.GetUTF16View() < right.GetUTF16View();
}

namespace {

bool EqualsLiteral(const char* literal, const VELString& text)
{
    if (literal == nullptr) {
        return text.IsEmpty();
    }
    std::u16string_view units = text.GetUTF16View();
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

VELString operator+(const VELString& left, const char* right) { return left + VELString(right); }

VELString operator+(const char* left, const VELString& right) { return VELString(left) + right; }

VELString operator+(const VELString& left, const VELString& right)
{
    std::u16string joined(left.GetUTF16View());
    joined.append(right.GetUTF16View());
    return VELString(std::move(joined));
}
