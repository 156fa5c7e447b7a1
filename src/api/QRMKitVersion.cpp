#include "QRMKitVersion.h"

#ifndef QRMKIT_LIBRARY_VERSION
#error "the build defines QRMKIT_LIBRARY_VERSION"
#endif

const char* QRMKitVersion() { return QRMKIT_LIBRARY_VERSION; }
