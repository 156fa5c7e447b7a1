// VELString: a text value held as UTF-16 code units.
//
// A text of up to seven code units is held inside the object; a longer one
// takes one heap block of exactly its length. Catalogs hold millions of
// texts, so the object is kept small (24 bytes on 64-bit systems).
//
// Equality and ordering are code unit by code unit (unsigned), a prefix
// ordering before the longer text; this is the key order of every map keyed
// by VELString. Conversion from UTF-8 never fails: malformed input becomes
// U+FFFD. Conversion to UTF-8 turns unpaired surrogates into U+FFFD.
#ifndef VEL_STRING_H
#define VEL_STRING_H

#include "QRMKitExport.h"

#include <cstddef>
#include <ios>
#include <string>
#include <string_view>
#include <vector>

// The encoding a character-array constructor assumes for its bytes.
enum VELCharEncodingType { VEL_CHAR_ENCODING_UTF8 = 1 };

class VEL_API VELString {
public:
    // A stream manipulator such as std::dec or std::hex.
    typedef std::ios_base& (*NumberBase)(std::ios_base&);

    VELString() noexcept;
    // Builds the text from a NUL-terminated byte string (UTF-8; a null
    // pointer gives the empty text).
    VELString(const char* text, VELCharEncodingType encoding = VEL_CHAR_ENCODING_UTF8);
    // Takes the code units as they are.
    explicit VELString(const std::u16string& units);
    explicit VELString(std::u16string&& units);
    VELString(const VELString& other);
    VELString(VELString&& other) noexcept;
    VELString& operator=(const VELString& other);
    VELString& operator=(VELString&& other) noexcept;
    virtual ~VELString();

    // Builds the text from `length` bytes of UTF-8 (no terminator needed).
    static VELString FromUTF8(const char* bytes, std::size_t length);

    // Length in UTF-16 code units.
    unsigned int GetLength() const;
    bool IsEmpty() const;

    std::string GetUTF8String() const;
    // The code units, as a new string.
    std::u16string GetUTF16String() const;
    // The code units in place: valid until this text is changed or
    // destroyed.
    std::u16string_view GetUTF16View() const;

    // The unsigned integer that extracting an `unsigned int` from a
    // std::istringstream of the UTF-8 text after applying `base` would store:
    // leading white space skipped, an optional sign (a minus negates modulo
    // 2^32), for std::hex an optional 0x prefix, digits up to the first
    // non-digit; the maximum on overflow; 0 when no number can be read.
    // The stream is read in the classic locale: the number is the same
    // whoever calls and whatever the program's global locale.
    unsigned int GetIntValue(NumberBase base) const;

    // The `count` code units that begin at `start` (clamped to the text).
    VELString SubString(unsigned int start, unsigned int count) const;

    // Replaces every occurrence of `what` with `with`, left to right, in
    // place; an empty `what` changes nothing. Returns this text.
    VELString& ReplaceAll(const VELString& what, const VELString& with);

    // True when the text is not empty and every code unit is A-Z or a-z.
    bool ContainsOnlyAlphabets() const;

    // A copy without the vowels A, E, I, O, U in either case (Y stays).
    VELString RemoveVowels() const;

    // Appends to `out` every selection of `size` code units taken from
    // positions `start` to `end` (inclusive, clamped to the text) in their
    // order, the first chosen position changing slowest. `index` is the
    // number already chosen (callers pass 0). `buffer` (room for size + 1
    // bytes, may be null) receives each selection as bytes while it is
    // built, non-ASCII code units written as '?'; the selections appended to
    // `out` always carry the original code units.
    void ListCombinationsOfString(char* buffer, unsigned int start, unsigned int end, unsigned int index,
                                  unsigned int size, std::vector<VELString>& out) const;

private:
    // How the text is laid out in mSlots is known to VELString.cpp alone.
    bool IsInline() const;
    const char16_t* Data() const;
    std::size_t Size() const;
    char16_t* HeapUnits() const;
    // Drops the held text and makes room for `length` units, which the
    // caller then fills in.
    char16_t* Reset(std::size_t length);
    void Assign(const char16_t* units, std::size_t length);
    // Frees a heap block and leaves the text empty.
    void Release();
    void ReleaseHeap();
    void MakeEmpty() noexcept;
    void TakeFrom(VELString& other) noexcept;

    // Sixteen bytes: up to seven code units in place, or a heap block's
    // address and length.
    alignas(8) char16_t mSlots[8];
};

VEL_API bool operator==(const VELString& left, const VELString& right);
VEL_API bool operator!=(const VELString& left, const VELString& right);
VEL_API bool operator<(const VELString& left, const VELString& right);
// True when the literal (read as UTF-8) equals the text exactly.
VEL_API bool operator==(const char* left, const VELString& right);
VEL_API bool operator==(const VELString& left, const char* right);
VEL_API bool operator!=(const char* left, const VELString& right);
VEL_API bool operator!=(const VELString& left, const char* right);

VEL_API VELString operator+(const VELString& left, const char* right);
VEL_API VELString operator+(const char* left, const VELString& right);
VEL_API VELString operator+(const VELString& left, const VELString& right);

#endif
