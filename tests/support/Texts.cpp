#include "Texts.h"

std::string Repeat(const std::string& text, std::size_t count)
{
    std::string all;
    all.reserve(text.size() * count);
    for (std::size_t i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

namespace {

std::string ToUTF16(const std::string& utf8, bool littleEndian)
{
    std::u16string units = VELString::FromUTF8(utf8.data(), utf8.size()).GetUTF16String();
    std::string bytes;
    auto put = [&bytes, littleEndian](char16_t unit) {
        char low = static_cast<char>(unit & 0xFF);
        char high = static_cast<char>(unit >> 8);
        bytes.push_back(littleEndian ? low : high);
        bytes.push_back(littleEndian ? high : low);
    };
    put(u'\xFEFF');
    for (char16_t unit : units) {
        put(unit);
    }
    return bytes;
}

}  // namespace

std::string ToUTF16LE(const std::string& utf8) { return ToUTF16(utf8, true); }
std::string ToUTF16BE(const std::string& utf8) { return ToUTF16(utf8, false); }
