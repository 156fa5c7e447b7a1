// QRMIInventory: the inventory store. One per process; ParseInventory adds
// to it and nothing empties it (kept for compatibility: callers rely on
// repeated reads accumulating).
#ifndef QRMKIT_I_INVENTORY_H
#define QRMKIT_I_INVENTORY_H

#include "QRMIDevice.h"
#include "QRMISystem.h"
#include "QRMKitTypes.h"
#include "QRMOperatingSystem.h"
#include "VELString.h"
#include "VELTime.h"
#include "detail/QRMOwnedList.h"

#include <vector>

class QRMIInventory {
public:
    QRMIInventory();
    QRMIInventory(const QRMIInventory&) = delete;
    QRMIInventory& operator=(const QRMIInventory&) = delete;

    void SetLanguage(QRMInventoryLanguageEnum language);
    void SetSchemaVersion(const VELString& schemaVersion);
    void SetTimeStamp(const VELTime& timeStamp);
    void SetParsed();

    // QRM_KIT_ALREADY_EXISTS (nothing stored) when a held item equals the
    // argument; otherwise a copy is stored at the end.
    QRMKitReturnCode AddOperatingSystem(const QRMOperatingSystem& os);
    QRMKitReturnCode AddSystem(const QRMISystem& system);
    QRMKitReturnCode AddDevice(const QRMIDevice& device);

    bool IsParsed() const;
    QRMInventoryLanguageEnum GetLanguage() const;
    VELString GetSchemaVersion() const;
    VELTime GetTimeStamp() const;
    const qrm::detail::OwnedList<QRMOperatingSystem>& OperatingSystems() const;
    const qrm::detail::OwnedList<QRMISystem>& Systems() const;
    const qrm::detail::OwnedList<QRMIDevice>& Devices() const;

private:
    qrm::detail::OwnedList<QRMOperatingSystem> mOperatingSystems;
    qrm::detail::OwnedList<QRMISystem> mSystems;
    qrm::detail::OwnedList<QRMIDevice> mDevices;
    QRMInventoryLanguageEnum mLanguage;
    VELString mSchemaVersion;
    VELTime mTimeStamp;
    bool mParsed;
};

#endif
