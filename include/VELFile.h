// VELFile: a file path value with an existence test.
#ifndef VEL_FILE_H
#define VEL_FILE_H

#include "QRMKitExport.h"
#include "VELString.h"

#include <string>

class VEL_API VELFile {
public:
    VELFile();
    VELFile(const VELString& path);
    VELFile(const char* path);
    VELFile(const std::string& path);
    VELFile(const VELFile& other);
    VELFile& operator=(const VELFile& other);
    virtual ~VELFile();

    VELString GetPath() const;
    // True when a regular file exists at the path (a directory is not one).
    bool Exists() const;

private:
    VELString mPath;
};

#endif
