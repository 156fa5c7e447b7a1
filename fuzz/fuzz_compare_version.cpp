// Version comparison: the input holds two version texts separated by the
// first NUL byte (no NUL: the second text is empty). Both are compared both
// ways, as UTF-8 text and as raw UTF-16 code units.
//
// What is checked holds for any texts: a result is one of -2, -1, 0, 1; a
// text equals itself; -2 comes in both orders or in neither; otherwise the
// two orders give opposite results. For ASCII texts, -2 never comes and the
// result must be the one of the plain field-by-field rule written out below
// (fields cut as strtok cuts them at ".-_", the shorter field padded on the
// left with "0", a text with more fields newer than its own prefix).
#include "FuzzSupport.h"

#include "api/QRMVersion.h"

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

using namespace qrmfuzz;

namespace {

bool IsASCII(const VELString& text)
{
    for (char16_t unit : text.GetUTF16String()) {
        if (unit >= 0x80) {
            return false;
        }
    }
    return true;
}

// The fields of a text as strtok cuts its UTF-8 form (which ends at the
// first NUL) at ".-_".
std::vector<std::string> Fields(const VELString& text)
{
    std::string bytes = text.GetUTF8String();
    std::vector<char> buffer(bytes.begin(), bytes.end());
    buffer.push_back('\0');
    std::vector<std::string> fields;
    char* state = nullptr;
    for (char* field = strtok_r(buffer.data(), ".-_", &state); field != nullptr;
         field = strtok_r(nullptr, ".-_", &state)) {
        fields.push_back(field);
    }
    return fields;
}

int ReferenceCompare(const VELString& first, const VELString& second)
{
    if (first == second) {
        return 0;
    }
    std::vector<std::string> a = Fields(first);
    std::vector<std::string> b = Fields(second);
    for (std::size_t i = 0;; ++i) {
        if (i == a.size() && i == b.size()) {
            return 0;
        }
        if (i == a.size()) {
            return -1;
        }
        if (i == b.size()) {
            return 1;
        }
        std::string x = a[i];
        std::string y = b[i];
        if (x.size() < y.size()) {
            x.insert(0, y.size() - x.size(), '0');
        } else if (y.size() < x.size()) {
            y.insert(0, x.size() - y.size(), '0');
        }
        int order = x.compare(y);
        if (order != 0) {
            return order > 0 ? 1 : -1;
        }
    }
}

void CheckAppendedOnly(const VELString& original, const VELString& padded)
{
    const std::u16string& before = original.GetUTF16String();
    const std::u16string& after = padded.GetUTF16String();
    Check(after.size() >= before.size() && after.compare(0, before.size(), before) == 0 &&
              (after.size() - before.size()) % 2 == 0,
          "MakeEqualLength: a text was changed other than by appending");
    for (std::size_t i = before.size(); i < after.size(); i += 2) {
        Check(after[i] == u'.' && after[i + 1] == u'0', "MakeEqualLength: appended something other than \".0\"");
    }
}

void CheckPair(QRMKitAPI& api, const VELString& first, const VELString& second)
{
    const int forward = api.CompareVersion(first, second);
    const int backward = api.CompareVersion(second, first);
    Check(forward >= -2 && forward <= 1 && backward >= -2 && backward <= 1, "CompareVersion: a result outside -2..1");
    Check(api.CompareVersion(first, first) == 0 && api.CompareVersion(second, second) == 0,
          "CompareVersion: a text does not equal itself");
    Check((forward == -2) == (backward == -2), "CompareVersion: -2 in one order only");
    Check(forward == -2 || forward == -backward, "CompareVersion: the two orders do not give opposite results");
    if (IsASCII(first) && IsASCII(second)) {
        Check(forward == ReferenceCompare(first, second),
              "CompareVersion: not the field-by-field order for ASCII texts");
    }

    // Padding to the same number of fields: for ASCII texts it succeeds, and
    // it only ever appends ".0".
    VELString a = first;
    VELString b = second;
    const int padded = qrm::PadToSameFieldCount(a, b);
    Check(padded == 0 || padded == -1, "MakeEqualLength: a result other than 0 or -1");
    if (padded == -1) {
        Check(a == first && b == second, "MakeEqualLength: a text changed although it failed");
        return;
    }
    // Fields end at a NUL, so the count is only comparable without one.
    if (first.GetUTF16String().find(u'\0') == std::u16string::npos &&
        second.GetUTF16String().find(u'\0') == std::u16string::npos) {
        Check(Fields(a).size() == Fields(b).size(),
              "MakeEqualLength: the texts still differ in their number of fields");
    }
    CheckAppendedOnly(first, a);
    CheckAppendedOnly(second, b);
    Check(a == first || b == second, "MakeEqualLength: both texts were padded");
    if (IsASCII(first) && IsASCII(second)) {
        Check(padded == 0, "MakeEqualLength: fails on ASCII texts");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    const char* bytes = reinterpret_cast<const char*>(data);
    const void* nul = std::memchr(data, 0, size);
    const std::size_t split = nul != nullptr ? static_cast<std::size_t>(static_cast<const uint8_t*>(nul) - data) : size;
    const std::size_t rest = split < size ? split + 1 : size;

    // As UTF-8 text (the second may hold further NULs).
    VELString first = VELString::FromUTF8(bytes, split);
    VELString second = VELString::FromUTF8(bytes + rest, size - rest);
    CheckPair(*api, first, second);

    // The same bytes as UTF-16 code units (little endian), unpaired
    // surrogates and NULs included.
    std::u16string units;
    for (std::size_t i = 0; i + 1 < size; i += 2) {
        units.push_back(static_cast<char16_t>(data[i] | (data[i + 1] << 8)));
    }
    const std::size_t half = units.size() / 2;
    CheckPair(*api, VELString(units.substr(0, half)), VELString(units.substr(half)));
    return 0;
}
