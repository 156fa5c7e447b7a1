// The version of the QRMKit library a program runs with.
#ifndef QRMKIT_VERSION_H
#define QRMKIT_VERSION_H

#include "QRMKitExport.h"

// "MAJOR.MINOR.PATCH" of the loaded library, which may be newer than the one
// a program was built against (the major number stays the same for as long
// as the library's file name does). A static text; never null.
VEL_API const char* QRMKitVersion();

#endif
