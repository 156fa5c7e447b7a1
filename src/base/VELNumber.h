// Scanning text the same way whatever its form (UTF-16 code units or UTF-8
// bytes): the ASCII check, and reading unsigned numbers the way a standard
// stream extracts an unsigned int. Shared by VELString, the version
// comparison and the document readers.
#ifndef VEL_NUMBER_H
#define VEL_NUMBER_H

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace vel {

inline unsigned int CodeOf(char unit) { return static_cast<unsigned char>(unit); }
inline unsigned int CodeOf(char16_t unit) { return unit; }

// True when every unit is ASCII (below 0x80). Bytes are checked eight at a
// time: this runs on every text a document holds.
template <class Unit>
bool IsASCII(const Unit* units, std::size_t length)
{
    std::size_t i = 0;
    if constexpr (sizeof(Unit) == 1) {
        for (; i + 8 <= length; i += 8) {
            std::uint64_t word;
            std::memcpy(&word, units + i, sizeof word);
            if ((word & 0x8080808080808080ull) != 0) {
                return false;
            }
        }
    }
    for (; i < length; ++i) {
        if (CodeOf(units[i]) >= 0x80) {
            return false;
        }
    }
    return true;
}

inline bool IsStreamSpace(unsigned int unit)
{
    return unit == u' ' || unit == u'\t' || unit == u'\n' || unit == u'\v' || unit == u'\f' || unit == u'\r';
}

inline int DigitValue(unsigned int unit, unsigned int base)
{
    if (unit >= u'0' && unit <= u'9') {
        int digit = static_cast<int>(unit - u'0');
        return digit < static_cast<int>(base) ? digit : -1;
    }
    if (base == 16) {
        if (unit >= u'a' && unit <= u'f') {
            return 10 + static_cast<int>(unit - u'a');
        }
        if (unit >= u'A' && unit <= u'F') {
            return 10 + static_cast<int>(unit - u'A');
        }
    }
    return -1;
}

// The number extraction of the standard stream (classic locale) for an
// unsigned int in base 10 or 16, without building a stream, over UTF-16
// code units or UTF-8 bytes alike: only ASCII units take part in a number,
// so a text reads the same in either form.
template <class Unit>
unsigned int ReadUnsigned(const Unit* units, std::size_t length, unsigned int base)
{
    auto text = [units](std::size_t pos) { return CodeOf(units[pos]); };
    std::size_t pos = 0;
    const std::size_t end = length;
    while (pos < end && IsStreamSpace(text(pos))) {
        ++pos;
    }
    if (pos == end) {
        return 0;
    }
    bool negative = false;
    if (text(pos) == u'-' || text(pos) == u'+') {
        negative = text(pos) == u'-';
        ++pos;
    }
    bool foundZero = false;
    unsigned int digitsSeen = 0;
    while (pos < end) {
        unsigned int c = text(pos);
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
        int digit = DigitValue(text(pos), base);
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

}  // namespace vel

#endif
