// QRMInventoryComponent: one inventory-collector program of the catalog (an
// "InventoryComponent" element), found by its operating-system code.
#ifndef QRMKIT_INVENTORY_COMPONENT_H
#define QRMKIT_INVENTORY_COMPONENT_H

#include "QRMKitTypes.h"
#include "VELString.h"
#include "VELTime.h"

class QRMKIT_API QRMInventoryComponent {
public:
    QRMInventoryComponent();
    QRMInventoryComponent(const QRMInventoryComponent& other);
    QRMInventoryComponent& operator=(const QRMInventoryComponent& other);
    QRMInventoryComponent(QRMInventoryComponent&& other);
    QRMInventoryComponent& operator=(QRMInventoryComponent&& other);
    ~QRMInventoryComponent();

    VELString GetSchemaVersion() const;
    QRMKitReturnCode SetSchemaVersion(VELString value);
    VELString GetReleaseID() const;
    QRMKitReturnCode SetReleaseID(VELString value);
    VELTime GetReleaseDate() const;
    QRMKitReturnCode SetReleaseDate(const VELTime& value);
    VELString GetVendorVersion() const;
    QRMKitReturnCode SetVendorVersion(VELString value);
    VELString GetTolvarVersion() const;
    QRMKitReturnCode SetTolvarVersion(VELString value);
    VELString GetOSCode() const;
    QRMKitReturnCode SetOSCode(VELString value);
    VELString GetMD5Hash() const;
    QRMKitReturnCode SetMD5Hash(VELString value);
    VELString GetPath() const;
    QRMKitReturnCode SetPath(VELString value);
    VELTime GetDateTime() const;
    QRMKitReturnCode SetDateTime(const VELTime& value);
    // Not read from the catalog; 0 in a new object.
    unsigned long long GetSize() const;
    QRMKitReturnCode SetSize(unsigned long long value);

    // All ten fields equal, compared in field order.
    bool operator==(const QRMInventoryComponent& other) const;
    bool operator!=(const QRMInventoryComponent& other) const;

private:
    VELString mSchemaVersion;
    VELString mReleaseID;
    VELTime mReleaseDate;
    VELString mVendorVersion;
    VELString mTolvarVersion;
    VELString mOSCode;
    VELString mHashMD5;
    VELString mPath;
    VELTime mDateTime;
    unsigned long long mSize;
};

#endif
