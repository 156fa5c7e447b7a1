#include "VELFile.h"

#include <sys/stat.h>

VELFile::VELFile() = default;
VELFile::VELFile(const VELString& path) : mPath(path) {}
VELFile::VELFile(const char* path) : mPath(path) {}
VELFile::VELFile(const std::string& path) : mPath(VELString::FromUTF8(path.data(), path.size())) {}
VELFile::VELFile(const VELFile& other) = default;
VELFile& VELFile::operator=(const VELFile& other) = default;
VELFile::~VELFile() = default;

VELString VELFile::GetPath() const { return mPath; }

bool VELFile::Exists() const
{
    std::string path = mPath.GetUTF8String();
    if (path.empty() || path.find('\0') != std::string::npos) {
        return false;
    }
    struct stat info;
    return ::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}
