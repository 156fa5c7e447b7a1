// Version comparison: versions are cut into fields at ".", "-" and "_" and
// compared field by field, the shorter field padded on the left with "0", so
// digits compare numerically without ever being parsed as numbers.
#include "QRMKitAPI.h"

#include "api/QRMVersion.h"
#include "base/VELNumber.h"

#include <algorithm>
#include <string>

namespace {

// A version text can be cut only when its UTF-8 form fits a work buffer of
// its length in code units, that is, when it is ASCII.
bool FitsWorkBuffer(const VELString& text)
{
    std::u16string_view units = text.GetUTF16View();
    return vel::IsASCII(units.data(), units.size());
}

bool IsSeparator(char16_t unit) { return unit == u'.' || unit == u'-' || unit == u'_'; }

// Walks the fields of a version text as the C library's strtok would cut it
// with the separators ".-_": runs of separators count as one, leading and
// trailing separators give nothing, and the text ends at its first NUL.
class FieldCursor {
public:
    explicit FieldCursor(std::u16string_view text)
        : mText(text), mEnd(std::min(text.size(), text.find(u'\0'))), mPos(0), mStart(0), mLength(0)
    {}

    bool Next()
    {
        while (mPos < mEnd && IsSeparator(mText[mPos])) {
            ++mPos;
        }
        if (mPos == mEnd) {
            return false;
        }
        mStart = mPos;
        while (mPos < mEnd && !IsSeparator(mText[mPos])) {
            ++mPos;
        }
        mLength = mPos - mStart;
        return true;
    }

    std::size_t Start() const { return mStart; }
    std::size_t Length() const { return mLength; }

private:
    std::u16string_view mText;
    std::size_t mEnd;
    std::size_t mPos;
    std::size_t mStart;
    std::size_t mLength;
};

std::size_t CountFields(std::u16string_view text)
{
    FieldCursor cursor(text);
    std::size_t count = 0;
    while (cursor.Next()) {
        ++count;
    }
    return count;
}

// Compares two fields as if the shorter were left-padded with "0" to the
// length of the longer: 1, 0 or -1.
int CompareFields(std::u16string_view a, std::size_t aStart, std::size_t aLength, std::u16string_view b,
                  std::size_t bStart, std::size_t bLength)
{
    const std::size_t width = std::max(aLength, bLength);
    const std::size_t aPad = width - aLength;
    const std::size_t bPad = width - bLength;
    for (std::size_t i = 0; i < width; ++i) {
        char16_t x = i < aPad ? u'0' : a[aStart + i - aPad];
        char16_t y = i < bPad ? u'0' : b[bStart + i - bPad];
        if (x != y) {
            return x > y ? 1 : -1;
        }
    }
    return 0;
}

}  // namespace

int QRMKitAPI::MakeEqualLength(VELString& first, VELString& second) const
{
    return qrm::PadToSameFieldCount(first, second);
}

int qrm::PadToSameFieldCount(VELString& first, VELString& second)
{
    if (!FitsWorkBuffer(first) || !FitsWorkBuffer(second)) {
        return -1;
    }
    std::size_t firstCount = CountFields(first.GetUTF16View());
    std::size_t secondCount = CountFields(second.GetUTF16View());
    // One ".0" per missing field, appended in one go.
    auto pad = [](VELString& text, std::size_t fields) {
        std::u16string padded(text.GetUTF16View());
        padded.reserve(padded.size() + 2 * fields);
        for (std::size_t i = 0; i < fields; ++i) {
            padded.append(u".0");
        }
        text = VELString(std::move(padded));
    };
    if (firstCount > secondCount) {
        pad(second, firstCount - secondCount);
    } else if (secondCount > firstCount) {
        pad(first, secondCount - firstCount);
    }
    return 0;
}

int QRMKitAPI::CompareVersion(const VELString& first, const VELString& second) const
{
    if (first == second) {
        return 0;
    }
    // Padding both texts to the same number of fields can only fail, never
    // change the answer: the fields are compared on the unpadded texts, so a
    // text with more fields is newer than its own prefix (1.0 < 1.0.0). The
    // padding fails exactly when a text does not fit its work buffer.
    if (!FitsWorkBuffer(first) || !FitsWorkBuffer(second)) {
        return -2;
    }
    std::u16string_view a = first.GetUTF16View();
    std::u16string_view b = second.GetUTF16View();
    FieldCursor left(a);
    FieldCursor right(b);
    for (;;) {
        bool hasLeft = left.Next();
        bool hasRight = right.Next();
        if (!hasLeft && !hasRight) {
            return 0;
        }
        if (!hasLeft) {
            return -1;
        }
        if (!hasRight) {
            return 1;
        }
        int order = CompareFields(a, left.Start(), left.Length(), b, right.Start(), right.Length());
        if (order != 0) {
            return order;
        }
    }
}
