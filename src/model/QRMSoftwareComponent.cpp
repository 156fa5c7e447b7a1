#include "QRMSoftwareComponent.h"

#include "model/QRMStore.h"

// ---- QRMFMPWrapperInformation

QRMFMPWrapperInformation::QRMFMPWrapperInformation()
    : mDigitallySigned(false), mInventorySupported(false), mUpdateSupported(false),
      mRollbackSupported(false)
{
}
QRMFMPWrapperInformation::QRMFMPWrapperInformation(const QRMFMPWrapperInformation& other) = default;
QRMFMPWrapperInformation& QRMFMPWrapperInformation::operator=(const QRMFMPWrapperInformation& other) = default;
QRMFMPWrapperInformation::QRMFMPWrapperInformation(QRMFMPWrapperInformation&& other) = default;
QRMFMPWrapperInformation& QRMFMPWrapperInformation::operator=(QRMFMPWrapperInformation&& other) = default;
QRMFMPWrapperInformation::~QRMFMPWrapperInformation() = default;

bool QRMFMPWrapperInformation::IsDigitallySigned() const { return mDigitallySigned; }
QRMKitReturnCode QRMFMPWrapperInformation::SetDigitallySigned(bool value) { return qrm::Store(mDigitallySigned, value); }
VELString QRMFMPWrapperInformation::GetName() const { return mName; }
QRMKitReturnCode QRMFMPWrapperInformation::SetName(VELString value) { return qrm::Store(mName, std::move(value)); }
bool QRMFMPWrapperInformation::IsInventorySupported() const { return mInventorySupported; }
QRMKitReturnCode QRMFMPWrapperInformation::SetInventorySupported(bool value)
{
    return qrm::Store(mInventorySupported, value);
}
bool QRMFMPWrapperInformation::IsUpdateSupported() const { return mUpdateSupported; }
QRMKitReturnCode QRMFMPWrapperInformation::SetUpdateSupported(bool value) { return qrm::Store(mUpdateSupported, value); }
VELGUID QRMFMPWrapperInformation::GetIdentifier() const { return mIdentifier; }
QRMKitReturnCode QRMFMPWrapperInformation::SetIdentifier(const VELGUID& value) { return qrm::Store(mIdentifier, value); }
VELString QRMFMPWrapperInformation::GetFilePath() const { return mFilePath; }
QRMKitReturnCode QRMFMPWrapperInformation::SetFilePath(VELString value) { return qrm::Store(mFilePath, std::move(value)); }
VELString QRMFMPWrapperInformation::GetDriverName() const { return mDriverName; }
QRMKitReturnCode QRMFMPWrapperInformation::SetDriverName(VELString value) { return qrm::Store(mDriverName, std::move(value)); }
VELString QRMFMPWrapperInformation::GetDriverVersion() const { return mDriverVersion; }
QRMKitReturnCode QRMFMPWrapperInformation::SetDriverVersion(VELString value)
{
    return qrm::Store(mDriverVersion, std::move(value));
}
bool QRMFMPWrapperInformation::IsRollbackSupported() const { return mRollbackSupported; }
QRMKitReturnCode QRMFMPWrapperInformation::SetRollbackSupported(bool value)
{
    return qrm::Store(mRollbackSupported, value);
}

bool QRMFMPWrapperInformation::operator==(const QRMFMPWrapperInformation& other) const
{
    return mDigitallySigned == other.mDigitallySigned && mName == other.mName &&
           mInventorySupported == other.mInventorySupported &&
           mUpdateSupported == other.mUpdateSupported && !(mIdentifier != other.mIdentifier) &&
           mFilePath == other.mFilePath && mDriverName == other.mDriverName &&
           mDriverVersion == other.mDriverVersion && mRollbackSupported == other.mRollbackSupported;
}

bool QRMFMPWrapperInformation::operator!=(const QRMFMPWrapperInformation& other) const
{
    return !(*this == other);
}

// ---- QRMSoftwareComponent

QRMSoftwareComponent::QRMSoftwareComponent()
    : mSize(0), mRequiresReboot(false), mRequiresContainerPowerCycle(false)
{
}
QRMSoftwareComponent::QRMSoftwareComponent(const QRMSoftwareComponent& other) = default;
QRMSoftwareComponent& QRMSoftwareComponent::operator=(const QRMSoftwareComponent& other) = default;
QRMSoftwareComponent::QRMSoftwareComponent(QRMSoftwareComponent&& other) = default;
QRMSoftwareComponent& QRMSoftwareComponent::operator=(QRMSoftwareComponent&& other) = default;
QRMSoftwareComponent::~QRMSoftwareComponent() = default;

QRMName QRMSoftwareComponent::GetName() const { return mName; }
QRMKitReturnCode QRMSoftwareComponent::SetName(QRMName name) { return qrm::Store(mName, std::move(name)); }
QRMComponentType QRMSoftwareComponent::GetComponentType() const { return mComponentType; }
QRMKitReturnCode QRMSoftwareComponent::SetComponentType(QRMComponentType componentType)
{
    return qrm::Store(mComponentType, std::move(componentType));
}
QRMCategory QRMSoftwareComponent::GetCategory() const { return mCategory; }
QRMKitReturnCode QRMSoftwareComponent::SetCategory(QRMCategory category) { return qrm::Store(mCategory, std::move(category)); }
QRMLUCategory QRMSoftwareComponent::GetLUCategory() const { return mLUCategory; }
QRMKitReturnCode QRMSoftwareComponent::SetLUCategory(QRMLUCategory category)
{
    return qrm::Store(mLUCategory, std::move(category));
}
QRMSupportedSystems QRMSoftwareComponent::GetSupportedSystems() const { return mSupportedSystems; }
QRMKitReturnCode QRMSoftwareComponent::SetSupportedSystems(QRMSupportedSystems systems)
{
    return qrm::Store(mSupportedSystems, std::move(systems));
}
QRMSupportedOperatingSystems QRMSoftwareComponent::GetSupportedOperatingSystems() const
{
    return mSupportedOperatingSystems;
}
QRMKitReturnCode QRMSoftwareComponent::SetSupportedOperatingSystems(QRMSupportedOperatingSystems systems)
{
    return qrm::Store(mSupportedOperatingSystems, std::move(systems));
}
QRMInstallInstruction QRMSoftwareComponent::GetInstallInstruction() const { return mInstallInstruction; }
QRMKitReturnCode QRMSoftwareComponent::SetInstallInstruction(QRMInstallInstruction instruction)
{
    return qrm::Store(mInstallInstruction, std::move(instruction));
}
QRMRevisionHistory QRMSoftwareComponent::GetRevisionHistory() const { return mRevisionHistory; }
QRMKitReturnCode QRMSoftwareComponent::SetRevisionHistory(QRMRevisionHistory history)
{
    return qrm::Store(mRevisionHistory, std::move(history));
}
QRMImportantInfo QRMSoftwareComponent::GetImportantInfo() const { return mImportantInfo; }
QRMKitReturnCode QRMSoftwareComponent::SetImportantInfo(QRMImportantInfo info)
{
    return qrm::Store(mImportantInfo, std::move(info));
}
QRMCriticality QRMSoftwareComponent::GetCriticality() const { return mCriticality; }
QRMKitReturnCode QRMSoftwareComponent::SetCriticality(QRMCriticality criticality)
{
    return qrm::Store(mCriticality, std::move(criticality));
}
VELGUID QRMSoftwareComponent::GetMSIID() const { return mMSIID; }
QRMKitReturnCode QRMSoftwareComponent::SetMSIID(VELGUID& id) { return qrm::Store(mMSIID, id); }
VELString QRMSoftwareComponent::GetSchemaVersion() const { return mSchemaVersion; }
QRMKitReturnCode QRMSoftwareComponent::SetSchemaVersion(VELString value) { return qrm::Store(mSchemaVersion, std::move(value)); }
VELString QRMSoftwareComponent::GetReleaseID() const { return mReleaseID; }
QRMKitReturnCode QRMSoftwareComponent::SetReleaseID(VELString value) { return qrm::Store(mReleaseID, std::move(value)); }
VELTime QRMSoftwareComponent::GetReleaseDate() const { return mReleaseDate; }
QRMKitReturnCode QRMSoftwareComponent::SetReleaseDate(const VELTime& value) { return qrm::Store(mReleaseDate, value); }
VELString QRMSoftwareComponent::GetVendorVersion() const { return mVendorVersion; }
QRMKitReturnCode QRMSoftwareComponent::SetVendorVersion(VELString value) { return qrm::Store(mVendorVersion, std::move(value)); }
VELString QRMSoftwareComponent::GetTolvarVersion() const { return mTolvarVersion; }
QRMKitReturnCode QRMSoftwareComponent::SetTolvarVersion(VELString value) { return qrm::Store(mTolvarVersion, std::move(value)); }
VELString QRMSoftwareComponent::GetPackageType() const { return mPackageType; }
QRMKitReturnCode QRMSoftwareComponent::SetPackageType(VELString value) { return qrm::Store(mPackageType, std::move(value)); }
VELString QRMSoftwareComponent::GetXMLGenVersion() const { return mXMLGenVersion; }
QRMKitReturnCode QRMSoftwareComponent::SetXMLGenVersion(VELString value) { return qrm::Store(mXMLGenVersion, std::move(value)); }
VELString QRMSoftwareComponent::GetPath() const { return mPath; }
std::u16string_view QRMSoftwareComponent::GetPathView() const { return mPath.GetUTF16View(); }
QRMKitReturnCode QRMSoftwareComponent::SetPath(VELString value) { return qrm::Store(mPath, std::move(value)); }
VELString QRMSoftwareComponent::GetPackageID() const { return mPackageID; }
QRMKitReturnCode QRMSoftwareComponent::SetPackageID(VELString value) { return qrm::Store(mPackageID, std::move(value)); }
VELTime QRMSoftwareComponent::GetDateTime() const { return mDateTime; }
QRMKitReturnCode QRMSoftwareComponent::SetDateTime(const VELTime& value) { return qrm::Store(mDateTime, value); }
VELString QRMSoftwareComponent::GetMD5Hash() const { return mHashMD5; }
QRMKitReturnCode QRMSoftwareComponent::SetMD5Hash(VELString value) { return qrm::Store(mHashMD5, std::move(value)); }
unsigned long long QRMSoftwareComponent::GetSize() const { return mSize; }
QRMKitReturnCode QRMSoftwareComponent::SetSize(unsigned long long value) { return qrm::Store(mSize, value); }
VELGUID QRMSoftwareComponent::GetIdentifier() const { return mIdentifier; }
QRMKitReturnCode QRMSoftwareComponent::SetIdentifier(VELGUID& id) { return qrm::Store(mIdentifier, id); }
VELGUID QRMSoftwareComponent::GetPredecessor() const { return mPredecessor; }
QRMKitReturnCode QRMSoftwareComponent::SetPredecessor(VELGUID& id) { return qrm::Store(mPredecessor, id); }
bool QRMSoftwareComponent::RequiresReboot() const { return mRequiresReboot; }
QRMKitReturnCode QRMSoftwareComponent::SetRequiresReboot(bool value) { return qrm::Store(mRequiresReboot, value); }
bool QRMSoftwareComponent::RequiresContainerPowerCycle() const { return mRequiresContainerPowerCycle; }
QRMKitReturnCode QRMSoftwareComponent::SetRequiresContainerPowerCycle(bool value)
{
    return qrm::Store(mRequiresContainerPowerCycle, value);
}

void QRMSoftwareComponent::GetDescriptionDisplayValues(std::vector<QRMDisplay>& out) const
{
    mDescription.GetDisplayValues(out);
}

QRMKitReturnCode QRMSoftwareComponent::AddDescriptionDisplayValue(VELString language,
                                                                  VELString value)
{
    return mDescription.AddDisplayValue(std::move(language), std::move(value));
}

QRMKitReturnCode QRMSoftwareComponent::RemoveDescriptionDisplayValue(const VELString& language)
{
    return mDescription.RemoveDisplayValue(language);
}

void QRMSoftwareComponent::GetSupportedDevices(std::vector<QRMDevice*>& out) const
{
    mSupportedDevices.AppendPointersTo(out);
}

QRMKitReturnCode QRMSoftwareComponent::AddDeviceSupport(QRMDevice& device)
{
    return mSupportedDevices.AddUnique(device);
}

QRMKitReturnCode QRMSoftwareComponent::AddDeviceSupport(QRMDevice&& device)
{
    return mSupportedDevices.AddUnique(std::move(device));
}

QRMKitReturnCode QRMSoftwareComponent::RemoveDeviceSupport(QRMDevice& device)
{
    return mSupportedDevices.RemoveFirst(device);
}

void QRMSoftwareComponent::GetWrappers(std::vector<QRMFMPWrapperInformation>& out) const
{
    mWrappers.AppendCopiesTo(out);
}

QRMKitReturnCode QRMSoftwareComponent::AddWrapper(QRMFMPWrapperInformation& wrapper)
{
    return mWrappers.AddUnique(wrapper);
}

QRMKitReturnCode QRMSoftwareComponent::RemoveWrapper(QRMFMPWrapperInformation& wrapper)
{
    return mWrappers.RemoveFirst(wrapper);
}

bool QRMSoftwareComponent::operator==(const QRMSoftwareComponent& other) const
{
    return mName == other.mName && mComponentType == other.mComponentType &&
           mDescription == other.mDescription && mCategory == other.mCategory &&
           mLUCategory == other.mLUCategory &&
           mSupportedDevices.AllPairsEqual(other.mSupportedDevices) &&
           mSupportedSystems == other.mSupportedSystems &&
           mSupportedOperatingSystems == other.mSupportedOperatingSystems &&
           mInstallInstruction == other.mInstallInstruction &&
           mRevisionHistory == other.mRevisionHistory && mImportantInfo == other.mImportantInfo &&
           mCriticality == other.mCriticality && !(mMSIID != other.mMSIID) &&
           mWrappers.AllPairsEqual(other.mWrappers) && mSchemaVersion == other.mSchemaVersion &&
           mReleaseID == other.mReleaseID && !(mReleaseDate != other.mReleaseDate) &&
           mVendorVersion == other.mVendorVersion && mTolvarVersion == other.mTolvarVersion &&
           mPackageType == other.mPackageType && mXMLGenVersion == other.mXMLGenVersion &&
           mPath == other.mPath && mPackageID == other.mPackageID &&
           !(mDateTime != other.mDateTime) && mHashMD5 == other.mHashMD5 && mSize == other.mSize &&
           !(mIdentifier != other.mIdentifier) && !(mPredecessor != other.mPredecessor) &&
           mRequiresReboot == other.mRequiresReboot &&
           mRequiresContainerPowerCycle == other.mRequiresContainerPowerCycle;
}

bool QRMSoftwareComponent::operator!=(const QRMSoftwareComponent& other) const { return !(*this == other); }
