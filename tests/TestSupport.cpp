#include "TestSupport.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

TempDir::TempDir()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "qrmkit-test-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) {
        ADD_FAILURE() << "cannot create a temporary directory";
    }
    mPath = pattern;
}

TempDir::~TempDir()
{
    std::error_code error;
    std::filesystem::remove_all(mPath, error);
}

std::string TempDir::PathOf(const std::string& name) const { return mPath + "/" + name; }

std::string TempDir::Write(const std::string& name, const std::string& contents) const
{
    std::string path = PathOf(name);
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream out(path, std::ios::binary);
    out.write(contents.data(), static_cast<std::streamsize>(contents.size()));
    return path;
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

StdoutCapture::StdoutCapture() : mDone(false) { testing::internal::CaptureStdout(); }

StdoutCapture::~StdoutCapture() { Text(); }

std::string StdoutCapture::Text()
{
    if (!mDone) {
        mText = testing::internal::GetCapturedStdout();
        mDone = true;
    }
    return mText;
}
