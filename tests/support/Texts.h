// Text helpers for tests and fuzz targets: the display texts of a holder as
// plain pairs, repeated text, and UTF-16 encodings of a document.
#ifndef QRMKIT_TEST_TEXTS_H
#define QRMKIT_TEST_TEXTS_H

#include <QRMKit.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

// The texts of anything that carries them, as (language, value) pairs in
// UTF-8, in order.
template <class Holder>
std::vector<std::pair<std::string, std::string>> TextsOf(const Holder& holder)
{
    std::vector<QRMDisplay> copies;
    holder.GetDisplayValues(copies);
    std::vector<std::pair<std::string, std::string>> texts;
    for (const QRMDisplay& display : copies) {
        texts.emplace_back(display.GetLanguage().GetUTF8String(), display.GetValue().GetUTF8String());
    }
    return texts;
}

// How many texts a holder carries.
template <class Holder>
std::size_t TextCount(const Holder& holder)
{
    return TextsOf(holder).size();
}

// `text` written `count` times.
std::string Repeat(const std::string& text, std::size_t count);

// Encodes UTF-8 text as UTF-16 little or big endian with a byte-order mark.
std::string ToUTF16LE(const std::string& utf8);
std::string ToUTF16BE(const std::string& utf8);

#endif
