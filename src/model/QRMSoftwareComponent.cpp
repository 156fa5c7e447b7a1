#include "QRMSoftwareComponent.h"

#include "model/QRMStore.h"

// ---- QRMFMPWrapperInformation

QRMFMPWrapperInformation::QRMFMPWrapperInformation()
    : mDigitallySigned(false), mInventorySupported(false), mUpdateSupported(false), mRollbackSupported(false)
{}
QRMFMPWrapperInformation::QRMFMPWrapperInformation(const QRMFMPWrapperInformation& other) = default;
QRMFMPWrapperInformation& QRMFMPWrapperInformation::operator=(const QRMFMPWrapperInformation& other) = default;
QRMFMPWrapperInformation::QRMFMPWrapperInformation(QRMFMPWrapperInformation&& other) = default;
QRMFMPWrapperInformation& QRMFMPWrapperInformation::operator=(QRMFMPWrapperInformation&& other) = default;
QRMFMPWrapperInformation::~QRMFMPWrapperInformation() = default;

bool QRMFMPWrapperInformation::IsDigitallySigned() const { return mDigitallySigned; }
QRMKitReturnCode QRMFMPWrapperInformation::SetDigitallySigned(bool value)
{
    return qrm::Store(mDigitallySigned, value);
}
VELString QRMFMPWrapperInformation::GetName() const { return mName; }
QRMKitReturnCode QRMFMPWrapperInformation::SetName(VELString value) { return qrm::Store(mName, std::move(value)); }
bool QRMFMPWrapperInformation::IsInventorySupported() const { return mInventorySupported; }
QRMKitReturnCode QRMFMPWrapperInformation::SetInventorySupported(bool value)
{
    return qrm::Store(mInventorySupported, value);
}
bool QRMFMPWrapperInformation::IsUpdateSupported() const { return mUpdateSupported; }
QRMKitReturnCode QRMFMPWrapperInformation::SetUpdateSupported(bool value)
{
    return qrm::Store(mUpdateSupported, value);
}
VELGUID QRMFMPWrapperInformation::GetIdentifier() const { return mIdentifier; }
QRMKitReturnCode QRMFMPWrapperInformation::SetIdentifier(const VELGUID& value)
{
    return qrm::Store(mIdentifier, value);
}
VELString QRMFMPWrapperInformation::GetFilePath() const { return mFilePath; }
QRMKitReturnCode QRMFMPWrapperInformation::SetFilePath(VELString value)
{
    return qrm::Store(mFilePath, std::move(value));
}
VELString QRMFMPWrapperInformation::GetDriverName() const { return mDriverName; }
QRMKitReturnCode QRMFMPWrapperInformation::SetDriverName(VELString value)
{
    return qrm::Store(mDriverName, std::move(value));
}
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
           mInventorySupported == other.mInventorySupported && mUpdateSupported == other.mUpdateSupported &&
           mIdentifier == other.mIdentifier && mFilePath == other.mFilePath && mDriverName == other.mDriverName &&
           mDriverVersion == other.mDriverVersion && mRollbackSupported == other.mRollbackSupported;
}

bool QRMFMPWrapperInformation::operator!=(const QRMFMPWrapperInformation& other) const { return !(*this == other); }

// ---- QRMSoftwareComponent

struct QRMSoftwareComponent::Extras {
    QRMInstallInstruction installInstruction;
    QRMRevisionHistory revisionHistory;
    VELGUID msiID;
    qrm::detail::OwnedList<QRMFMPWrapperInformation> wrappers;
    VELString xmlGenVersion;
    unsigned long long size = 0;
    VELGUID identifier;
    VELGUID predecessor;
    bool requiresReboot = false;
    bool requiresContainerPowerCycle = false;
};

QRMSoftwareComponent::QRMSoftwareComponent() = default;
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
QRMKitReturnCode QRMSoftwareComponent::SetCategory(QRMCategory category)
{
    return qrm::Store(mCategory, std::move(category));
}
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
QRMInstallInstruction QRMSoftwareComponent::GetInstallInstruction() const { return mExtras.Get().installInstruction; }
QRMKitReturnCode QRMSoftwareComponent::SetInstallInstruction(QRMInstallInstruction instruction)
{
    return qrm::Store(mExtras.Change().installInstruction, std::move(instruction));
}
QRMRevisionHistory QRMSoftwareComponent::GetRevisionHistory() const { return mExtras.Get().revisionHistory; }
QRMKitReturnCode QRMSoftwareComponent::SetRevisionHistory(QRMRevisionHistory history)
{
    return qrm::Store(mExtras.Change().revisionHistory, std::move(history));
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
VELGUID QRMSoftwareComponent::GetMSIID() const { return mExtras.Get().msiID; }
QRMKitReturnCode QRMSoftwareComponent::SetMSIID(VELGUID& id) { return qrm::Store(mExtras.Change().msiID, id); }
VELString QRMSoftwareComponent::GetSchemaVersion() const { return mSchemaVersion; }
QRMKitReturnCode QRMSoftwareComponent::SetSchemaVersion(VELString value)
{
    return qrm::Store(mSchemaVersion, std::move(value));
}
VELString QRMSoftwareComponent::GetReleaseID() const { return mReleaseID; }
QRMKitReturnCode QRMSoftwareComponent::SetReleaseID(VELString value)
{
    return qrm::Store(mReleaseID, std::move(value));
}
VELTime QRMSoftwareComponent::GetReleaseDate() const { return mReleaseDate; }
QRMKitReturnCode QRMSoftwareComponent::SetReleaseDate(const VELTime& value) { return qrm::Store(mReleaseDate, value); }
VELString QRMSoftwareComponent::GetVendorVersion() const { return mVendorVersion; }
QRMKitReturnCode QRMSoftwareComponent::SetVendorVersion(VELString value)
{
    return qrm::Store(mVendorVersion, std::move(value));
}
VELString QRMSoftwareComponent::GetTolvarVersion() const { return mTolvarVersion; }
QRMKitReturnCode QRMSoftwareComponent::SetTolvarVersion(VELString value)
{
    return qrm::Store(mTolvarVersion, std::move(value));
}
VELString QRMSoftwareComponent::GetPackageType() const { return mPackageType; }
QRMKitReturnCode QRMSoftwareComponent::SetPackageType(VELString value)
{
    return qrm::Store(mPackageType, std::move(value));
}
VELString QRMSoftwareComponent::GetXMLGenVersion() const { return mExtras.Get().xmlGenVersion; }
QRMKitReturnCode QRMSoftwareComponent::SetXMLGenVersion(VELString value)
{
    return qrm::Store(mExtras.Change().xmlGenVersion, std::move(value));
}
VELString QRMSoftwareComponent::GetPath() const { return mPath; }
std::u16string_view QRMSoftwareComponent::GetPathView() const { return mPath.GetUTF16View(); }
QRMKitReturnCode QRMSoftwareComponent::SetPath(VELString value) { return qrm::Store(mPath, std::move(value)); }
VELString QRMSoftwareComponent::GetPackageID() const { return mPackageID; }
QRMKitReturnCode QRMSoftwareComponent::SetPackageID(VELString value)
{
    return qrm::Store(mPackageID, std::move(value));
}
VELTime QRMSoftwareComponent::GetDateTime() const { return mDateTime; }
QRMKitReturnCode QRMSoftwareComponent::SetDateTime(const VELTime& value) { return qrm::Store(mDateTime, value); }
VELString QRMSoftwareComponent::GetMD5Hash() const { return mHashMD5; }
QRMKitReturnCode QRMSoftwareComponent::SetMD5Hash(VELString value) { return qrm::Store(mHashMD5, std::move(value)); }
unsigned long long QRMSoftwareComponent::GetSize() const { return mExtras.Get().size; }
QRMKitReturnCode QRMSoftwareComponent::SetSize(unsigned long long value)
{
    return qrm::Store(mExtras.Change().size, value);
}
VELGUID QRMSoftwareComponent::GetIdentifier() const { return mExtras.Get().identifier; }
QRMKitReturnCode QRMSoftwareComponent::SetIdentifier(VELGUID& id)
{
    return qrm::Store(mExtras.Change().identifier, id);
}
VELGUID QRMSoftwareComponent::GetPredecessor() const { return mExtras.Get().predecessor; }
QRMKitReturnCode QRMSoftwareComponent::SetPredecessor(VELGUID& id)
{
    return qrm::Store(mExtras.Change().predecessor, id);
}
bool QRMSoftwareComponent::RequiresReboot() const { return mExtras.Get().requiresReboot; }
QRMKitReturnCode QRMSoftwareComponent::SetRequiresReboot(bool value)
{
    return qrm::Store(mExtras.Change().requiresReboot, value);
}
bool QRMSoftwareComponent::RequiresContainerPowerCycle() const { return mExtras.Get().requiresContainerPowerCycle; }
QRMKitReturnCode QRMSoftwareComponent::SetRequiresContainerPowerCycle(bool value)
{
    return qrm::Store(mExtras.Change().requiresContainerPowerCycle, value);
}

void QRMSoftwareComponent::GetDescriptionDisplayValues(std::vector<QRMDisplay>& out) const
{
    mDescription.AppendCopiesTo(out);
}

QRMKitReturnCode QRMSoftwareComponent::AddDescriptionDisplayValue(VELString language, VELString value)
{
    return mDescription.Add(std::move(language), std::move(value));
}

QRMKitReturnCode QRMSoftwareComponent::RemoveDescriptionDisplayValue(const VELString& language)
{
    return mDescription.Remove(language);
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
    mExtras.Get().wrappers.AppendCopiesTo(out);
}

QRMKitReturnCode QRMSoftwareComponent::AddWrapper(QRMFMPWrapperInformation& wrapper)
{
    return mExtras.Change().wrappers.AddUnique(wrapper);
}

QRMKitReturnCode QRMSoftwareComponent::RemoveWrapper(QRMFMPWrapperInformation& wrapper)
{
    return mExtras.Change().wrappers.RemoveFirst(wrapper);
}

bool QRMSoftwareComponent::operator==(const QRMSoftwareComponent& other) const
{
    const Extras& mine = mExtras.Get();
    const Extras& theirs = other.mExtras.Get();
    return mName == other.mName && mComponentType == other.mComponentType && mDescription.Same(other.mDescription) &&
           mCategory == other.mCategory && mLUCategory == other.mLUCategory &&
           mSupportedDevices.AllPairsEqual(other.mSupportedDevices) && mSupportedSystems == other.mSupportedSystems &&
           mSupportedOperatingSystems == other.mSupportedOperatingSystems &&
           mine.installInstruction == theirs.installInstruction && mine.revisionHistory == theirs.revisionHistory &&
           mImportantInfo == other.mImportantInfo && mCriticality == other.mCriticality && mine.msiID == theirs.msiID &&
           mine.wrappers.AllPairsEqual(theirs.wrappers) && mSchemaVersion == other.mSchemaVersion &&
           mReleaseID == other.mReleaseID && mReleaseDate == other.mReleaseDate &&
           mVendorVersion == other.mVendorVersion && mTolvarVersion == other.mTolvarVersion &&
           mPackageType == other.mPackageType && mine.xmlGenVersion == theirs.xmlGenVersion && mPath == other.mPath &&
           mPackageID == other.mPackageID && mDateTime == other.mDateTime && mHashMD5 == other.mHashMD5 &&
           mine.size == theirs.size && mine.identifier == theirs.identifier && mine.predecessor == theirs.predecessor &&
           mine.requiresReboot == theirs.requiresReboot &&
           mine.requiresContainerPowerCycle == theirs.requiresContainerPowerCycle;
}

bool QRMSoftwareComponent::operator!=(const QRMSoftwareComponent& other) const { return !(*this == other); }
