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
QRMFMPWrapperInformation::~QRMFMPWrapperInformation() = default;

bool QRMFMPWrapperInformation::IsDigitallySigned() const { return mDigitallySigned; }
QRMKitReturnCode QRMFMPWrapperInformation::SetDigitallySigned(bool value) { return qrm::Store(mDigitallySigned, value); }
VELString QRMFMPWrapperInformation::GetName() const { return mName; }
QRMKitReturnCode QRMFMPWrapperInformation::SetName(const VELString& value) { return qrm::Store(mName, value); }
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
QRMKitReturnCode QRMFMPWrapperInformation::SetFilePath(const VELString& value) { return qrm::Store(mFilePath, value); }
VELString QRMFMPWrapperInformation::GetDriverName() const { return mDriverName; }
QRMKitReturnCode QRMFMPWrapperInformation::SetDriverName(const VELString& value) { return qrm::Store(mDriverName, value); }
VELString QRMFMPWrapperInformation::GetDriverVersion() const { return mDriverVersion; }
QRMKitReturnCode QRMFMPWrapperInformation::SetDriverVersion(const VELString& value)
{
    return qrm::Store(mDriverVersion, value);
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
QRMSoftwareComponent::~QRMSoftwareComponent() = default;

QRMName QRMSoftwareComponent::GetName() const { return mName; }
QRMKitReturnCode QRMSoftwareComponent::SetName(const QRMName& name) { return qrm::Store(mName, name); }
QRMComponentType QRMSoftwareComponent::GetComponentType() const { return mComponentType; }
QRMKitReturnCode QRMSoftwareComponent::SetComponentType(const QRMComponentType& componentType)
{
    return qrm::Store(mComponentType, componentType);
}
QRMCategory QRMSoftwareComponent::GetCategory() const { return mCategory; }
QRMKitReturnCode QRMSoftwareComponent::SetCategory(const QRMCategory& category) { return qrm::Store(mCategory, category); }
QRMLUCategory QRMSoftwareComponent::GetLUCategory() const { return mLUCategory; }
QRMKitReturnCode QRMSoftwareComponent::SetLUCategory(const QRMLUCategory& category)
{
    return qrm::Store(mLUCategory, category);
}
QRMSupportedSystems QRMSoftwareComponent::GetSupportedSystems() const { return mSupportedSystems; }
QRMKitReturnCode QRMSoftwareComponent::SetSupportedSystems(const QRMSupportedSystems& systems)
{
    return qrm::Store(mSupportedSystems, systems);
}
QRMSupportedOperatingSystems QRMSoftwareComponent::GetSupportedOperatingSystems() const
{
    return mSupportedOperatingSystems;
}
QRMKitReturnCode QRMSoftwareComponent::SetSupportedOperatingSystems(const QRMSupportedOperatingSystems& systems)
{
    return qrm::Store(mSupportedOperatingSystems, systems);
}
QRMInstallInstruction QRMSoftwareComponent::GetInstallInstruction() const { return mInstallInstruction; }
QRMKitReturnCode QRMSoftwareComponent::SetInstallInstruction(const QRMInstallInstruction& instruction)
{
    return qrm::Store(mInstallInstruction, instruction);
}
QRMRevisionHistory QRMSoftwareComponent::GetRevisionHistory() const { return mRevisionHistory; }
QRMKitReturnCode QRMSoftwareComponent::SetRevisionHistory(const QRMRevisionHistory& history)
{
    return qrm::Store(mRevisionHistory, history);
}
QRMImportantInfo QRMSoftwareComponent::GetImportantInfo() const { return mImportantInfo; }
QRMKitReturnCode QRMSoftwareComponent::SetImportantInfo(const QRMImportantInfo& info)
{
    return qrm::Store(mImportantInfo, info);
}
QRMCriticality QRMSoftwareComponent::GetCriticality() const { return mCriticality; }
QRMKitReturnCode QRMSoftwareComponent::SetCriticality(const QRMCriticality& criticality)
{
    return qrm::Store(mCriticality, criticality);
}
VELGUID QRMSoftwareComponent::GetMSIID() const { return mMSIID; }
QRMKitReturnCode QRMSoftwareComponent::SetMSIID(VELGUID& id) { return qrm::Store(mMSIID, id); }
VELString QRMSoftwareComponent::GetSchemaVersion() const { return mSchemaVersion; }
QRMKitReturnCode QRMSoftwareComponent::SetSchemaVersion(const VELString& value) { return qrm::Store(mSchemaVersion, value); }
VELString QRMSoftwareComponent::GetReleaseID() const { return mReleaseID; }
QRMKitReturnCode QRMSoftwareComponent::SetReleaseID(const VELString& value) { return qrm::Store(mReleaseID, value); }
VELTime QRMSoftwareComponent::GetReleaseDate() const { return mReleaseDate; }
QRMKitReturnCode QRMSoftwareComponent::SetReleaseDate(const VELTime& value) { return qrm::Store(mReleaseDate, value); }
VELString QRMSoftwareComponent::GetVendorVersion() const { return mVendorVersion; }
QRMKitReturnCode QRMSoftwareComponent::SetVendorVersion(const VELString& value) { return qrm::Store(mVendorVersion, value); }
VELString QRMSoftwareComponent::GetTolvarVersion() const { return mTolvarVersion; }
QRMKitReturnCode QRMSoftwareComponent::SetTolvarVersion(const VELString& value) { return qrm::Store(mTolvarVersion, value); }
VELString QRMSoftwareComponent::GetPackageType() const { return mPackageType; }
QRMKitReturnCode QRMSoftwareComponent::SetPackageType(const VELString& value) { return qrm::Store(mPackageType, value); }
VELString QRMSoftwareComponent::GetXMLGenVersion() const { return mXMLGenVersion; }
QRMKitReturnCode QRMSoftwareComponent::SetXMLGenVersion(const VELString& value) { return qrm::Store(mXMLGenVersion, value); }
VELString QRMSoftwareComponent::GetPath() const { return mPath; }
QRMKitReturnCode QRMSoftwareComponent::SetPath(const VELString& value) { return qrm::Store(mPath, value); }
VELString QRMSoftwareComponent::GetPackageID() const { return mPackageID; }
QRMKitReturnCode QRMSoftwareComponent::SetPackageID(const VELString& value) { return qrm::Store(mPackageID, value); }
VELTime QRMSoftwareComponent::GetDateTime() const { return mDateTime; }
QRMKitReturnCode QRMSoftwareComponent::SetDateTime(const VELTime& value) { return qrm::Store(mDateTime, value); }
VELString QRMSoftwareComponent::GetMD5Hash() const { return mHashMD5; }
QRMKitReturnCode QRMSoftwareComponent::SetMD5Hash(const VELString& value) { return qrm::Store(mHashMD5, value); }
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

QRMKitReturnCode QRMSoftwareComponent::AddDescriptionDisplayValue(const VELString& language,
                                                                  const VELString& value)
{
    return mDescription.AddDisplayValue(language, value);
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
