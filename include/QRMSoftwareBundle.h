// QRMSoftwareBundle: a catalog's set of packages for one kind of system and
// operating system.
#ifndef QRMKIT_SOFTWARE_BUNDLE_H
#define QRMKIT_SOFTWARE_BUNDLE_H

#include "QRMKitTypes.h"

class QRMKIT_API QRMSoftwareBundle {
public:
    QRMSoftwareBundle();
    QRMSoftwareBundle(const QRMSoftwareBundle& other);
    QRMSoftwareBundle& operator=(const QRMSoftwareBundle& other);
    ~QRMSoftwareBundle();
};

#endif
