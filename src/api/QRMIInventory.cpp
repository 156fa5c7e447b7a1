#include "api/QRMIInventory.h"

#include "model/QRMStore.h"

QRMIInventory::QRMIInventory() : mLanguage(QRM_LANG_EN), mParsed(false) {}

void QRMIInventory::SetLanguage(QRMInventoryLanguageEnum language) { mLanguage = language; }

void QRMIInventory::SetSchemaVersion(const VELString& schemaVersion) { mSchemaVersion = schemaVersion; }

void QRMIInventory::SetTimeStamp(const VELTime& timeStamp) { mTimeStamp = timeStamp; }

void QRMIInventory::SetParsed() { mParsed = true; }

QRMKitReturnCode QRMIInventory::AddOperatingSystem(const QRMOperatingSystem& os)
{
    return mOperatingSystems.AddUnique(os);
}

QRMKitReturnCode QRMIInventory::AddSystem(const QRMISystem& system) { return mSystems.AddUnique(system); }

QRMKitReturnCode QRMIInventory::AddDevice(const QRMIDevice& device) { return mDevices.AddUnique(device); }

bool QRMIInventory::IsParsed() const { return mParsed; }
QRMInventoryLanguageEnum QRMIInventory::GetLanguage() const { return mLanguage; }
VELString QRMIInventory::GetSchemaVersion() const { return mSchemaVersion; }
VELTime QRMIInventory::GetTimeStamp() const { return mTimeStamp; }

const qrm::detail::OwnedList<QRMOperatingSystem>& QRMIInventory::OperatingSystems() const { return mOperatingSystems; }
const qrm::detail::OwnedList<QRMISystem>& QRMIInventory::Systems() const { return mSystems; }
const qrm::detail::OwnedList<QRMIDevice>& QRMIInventory::Devices() const { return mDevices; }
