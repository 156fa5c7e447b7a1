// QRMPCIInfo: one PCI identity (vendor, device, sub-vendor, sub-device).
#ifndef QRMKIT_PCI_INFO_H
#define QRMKIT_PCI_INFO_H

#include "QRMKitTypes.h"

class QRMKIT_API QRMPCIInfo {
public:
    QRMPCIInfo();
    QRMPCIInfo(const QRMPCIInfo& other);
    QRMPCIInfo& operator=(const QRMPCIInfo& other);
    QRMPCIInfo(QRMPCIInfo&& other);
    QRMPCIInfo& operator=(QRMPCIInfo&& other);
    ~QRMPCIInfo();

    unsigned int GetDeviceID() const;
    QRMKitReturnCode SetDeviceID(unsigned int id);
    unsigned int GetVendorID() const;
    QRMKitReturnCode SetVendorID(unsigned int id);
    unsigned int GetSubDeviceID() const;
    QRMKitReturnCode SetSubDeviceID(unsigned int id);
    unsigned int GetSubVendorID() const;
    QRMKitReturnCode SetSubVendorID(unsigned int id);

    // All four numbers equal; a zero sub-id matches only zero.
    bool operator==(const QRMPCIInfo& other) const;
    bool operator!=(const QRMPCIInfo& other) const;

private:
    unsigned int mDeviceID;
    unsigned int mVendorID;
    unsigned int mSubDeviceID;
    unsigned int mSubVendorID;
};

#endif
