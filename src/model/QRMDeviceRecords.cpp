// The records a supported device holds: PCI and plug-and-play identities,
// rollback information, dependencies.
#include "QRMDependency.h"
#include "QRMPCIInfo.h"
#include "QRMPnPInfo.h"
#include "QRMRollbackInformation.h"
#include "QRMSoftDependency.h"

#include "model/QRMDisplayValues.h"
#include "model/QRMStore.h"

// ---- QRMPCIInfo

QRMPCIInfo::QRMPCIInfo() : mDeviceID(0), mVendorID(0), mSubDeviceID(0), mSubVendorID(0) {}
QRMPCIInfo::QRMPCIInfo(const QRMPCIInfo& other) = default;
QRMPCIInfo& QRMPCIInfo::operator=(const QRMPCIInfo& other) = default;
QRMPCIInfo::QRMPCIInfo(QRMPCIInfo&& other) = default;
QRMPCIInfo& QRMPCIInfo::operator=(QRMPCIInfo&& other) = default;
QRMPCIInfo::~QRMPCIInfo() = default;

unsigned int QRMPCIInfo::GetDeviceID() const { return mDeviceID; }
QRMKitReturnCode QRMPCIInfo::SetDeviceID(unsigned int id) { return qrm::Store(mDeviceID, id); }
unsigned int QRMPCIInfo::GetVendorID() const { return mVendorID; }
QRMKitReturnCode QRMPCIInfo::SetVendorID(unsigned int id) { return qrm::Store(mVendorID, id); }
unsigned int QRMPCIInfo::GetSubDeviceID() const { return mSubDeviceID; }
QRMKitReturnCode QRMPCIInfo::SetSubDeviceID(unsigned int id) { return qrm::Store(mSubDeviceID, id); }
unsigned int QRMPCIInfo::GetSubVendorID() const { return mSubVendorID; }
QRMKitReturnCode QRMPCIInfo::SetSubVendorID(unsigned int id) { return qrm::Store(mSubVendorID, id); }

bool QRMPCIInfo::operator==(const QRMPCIInfo& other) const
{
    return mVendorID == other.mVendorID && mDeviceID == other.mDeviceID && mSubVendorID == other.mSubVendorID &&
           mSubDeviceID == other.mSubDeviceID;
}

bool QRMPCIInfo::operator!=(const QRMPCIInfo& other) const { return !(*this == other); }

// ---- QRMPnPInfo

namespace {

template <class Part>
std::unique_ptr<Part> CopyOf(const std::unique_ptr<Part>& part)
{
    return part ? std::unique_ptr<Part>(new Part(*part)) : std::unique_ptr<Part>();
}

template <class Part>
bool SameOptional(const std::unique_ptr<Part>& left, const std::unique_ptr<Part>& right)
{
    return left && right ? *left == *right : !left && !right;
}

}  // namespace

QRMPnPInfo::QRMPnPInfo() : mValue{} {}

QRMPnPInfo::QRMPnPInfo(const QRMPnPInfo& other)
    : mPrimary(CopyOf(other.mPrimary)), mSecondary(CopyOf(other.mSecondary)), mValue(other.mValue)
{}

QRMPnPInfo& QRMPnPInfo::operator=(const QRMPnPInfo& other)
{
    if (this != &other) {
        mPrimary = CopyOf(other.mPrimary);
        mSecondary = CopyOf(other.mSecondary);
        mValue = other.mValue;
    }
    return *this;
}

QRMPnPInfo::~QRMPnPInfo() = default;

bool QRMPnPInfo::HasPrimary() const { return mPrimary != nullptr; }
QRMPnPInfo::Primary QRMPnPInfo::GetPrimary() const { return mPrimary ? *mPrimary : Primary{}; }
QRMKitReturnCode QRMPnPInfo::SetPrimary(const Primary& primary)
{
    mPrimary.reset(new Primary(primary));
    return QRM_KIT_SUCCESS;
}
QRMKitReturnCode QRMPnPInfo::ClearPrimary()
{
    mPrimary.reset();
    return QRM_KIT_SUCCESS;
}
bool QRMPnPInfo::HasSecondary() const { return mSecondary != nullptr; }
QRMPnPInfo::Secondary QRMPnPInfo::GetSecondary() const { return mSecondary ? *mSecondary : Secondary{}; }
QRMKitReturnCode QRMPnPInfo::SetSecondary(const Secondary& secondary)
{
    mSecondary.reset(new Secondary(secondary));
    return QRM_KIT_SUCCESS;
}
QRMKitReturnCode QRMPnPInfo::ClearSecondary()
{
    mSecondary.reset();
    return QRM_KIT_SUCCESS;
}
QRMPnPInfo::Value QRMPnPInfo::GetValue() const { return mValue; }
QRMKitReturnCode QRMPnPInfo::SetValue(const Value& value) { return qrm::Store(mValue, value); }

bool QRMPnPInfo::operator==(const QRMPnPInfo& other) const
{
    return SameOptional(mPrimary, other.mPrimary) && SameOptional(mSecondary, other.mSecondary) &&
           mValue == other.mValue;
}

bool QRMPnPInfo::operator!=(const QRMPnPInfo& other) const { return !(*this == other); }

// ---- QRMRollbackInformation

QRMRollbackInformation::QRMRollbackInformation() : mSequence(0), mFlags(0) {}
QRMRollbackInformation::QRMRollbackInformation(const QRMRollbackInformation& other) = default;
QRMRollbackInformation& QRMRollbackInformation::operator=(const QRMRollbackInformation& other) = default;
QRMRollbackInformation::QRMRollbackInformation(QRMRollbackInformation&& other) = default;
QRMRollbackInformation& QRMRollbackInformation::operator=(QRMRollbackInformation&& other) = default;
QRMRollbackInformation::~QRMRollbackInformation() = default;

VELGUID QRMRollbackInformation::GetRollbackIdentifier() const { return mRollbackIdentifier; }
QRMKitReturnCode QRMRollbackInformation::SetRollbackIdentifier(const VELGUID& identifier)
{
    return qrm::Store(mRollbackIdentifier, identifier);
}
VELString QRMRollbackInformation::GetRollbackVersion() const { return mRollbackVersion; }
QRMKitReturnCode QRMRollbackInformation::SetRollbackVersion(VELString version)
{
    return qrm::Store(mRollbackVersion, std::move(version));
}
VELGUID QRMRollbackInformation::GetPackageIdentifier() const { return mPackageIdentifier; }
QRMKitReturnCode QRMRollbackInformation::SetPackageIdentifier(const VELGUID& identifier)
{
    return qrm::Store(mPackageIdentifier, identifier);
}
VELString QRMRollbackInformation::GetPackagePath() const { return mPackagePath; }
QRMKitReturnCode QRMRollbackInformation::SetPackagePath(VELString path)
{
    return qrm::Store(mPackagePath, std::move(path));
}
VELGUID QRMRollbackInformation::GetSessionIdentifier() const { return mSessionIdentifier; }
QRMKitReturnCode QRMRollbackInformation::SetSessionIdentifier(const VELGUID& identifier)
{
    return qrm::Store(mSessionIdentifier, identifier);
}
unsigned short QRMRollbackInformation::GetSequence() const { return mSequence; }
QRMKitReturnCode QRMRollbackInformation::SetSequence(unsigned short sequence)
{
    return qrm::Store(mSequence, sequence);
}
unsigned char QRMRollbackInformation::GetFlags() const { return mFlags; }
QRMKitReturnCode QRMRollbackInformation::SetFlags(unsigned char flags) { return qrm::Store(mFlags, flags); }
VELString QRMRollbackInformation::GetNote() const { return mNote; }
QRMKitReturnCode QRMRollbackInformation::SetNote(VELString note) { return qrm::Store(mNote, std::move(note)); }

bool QRMRollbackInformation::operator==(const QRMRollbackInformation& other) const
{
    return mRollbackIdentifier == other.mRollbackIdentifier && mRollbackVersion == other.mRollbackVersion &&
           mPackageIdentifier == other.mPackageIdentifier && mPackagePath == other.mPackagePath &&
           mSessionIdentifier == other.mSessionIdentifier && mSequence == other.mSequence && mFlags == other.mFlags &&
           mNote == other.mNote;
}

bool QRMRollbackInformation::operator!=(const QRMRollbackInformation& other) const { return !(*this == other); }

// ---- QRMDependency

QRMDependency::QRMDependency() : mType(0), mSize(0), mFlags(0) {}
QRMDependency::QRMDependency(const QRMDependency& other) = default;
QRMDependency& QRMDependency::operator=(const QRMDependency& other) = default;
QRMDependency::QRMDependency(QRMDependency&& other) = default;
QRMDependency& QRMDependency::operator=(QRMDependency&& other) = default;
QRMDependency::~QRMDependency() = default;

QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(QRMDependency, mTexts)

unsigned int QRMDependency::GetType() const { return mType; }
QRMKitReturnCode QRMDependency::SetType(unsigned int type) { return qrm::Store(mType, type); }
VELString QRMDependency::GetName() const { return mName; }
QRMKitReturnCode QRMDependency::SetName(VELString name) { return qrm::Store(mName, std::move(name)); }
VELString QRMDependency::GetVersion() const { return mVersion; }
QRMKitReturnCode QRMDependency::SetVersion(VELString version) { return qrm::Store(mVersion, std::move(version)); }
VELGUID QRMDependency::GetIdentifier() const { return mIdentifier; }
QRMKitReturnCode QRMDependency::SetIdentifier(const VELGUID& identifier) { return qrm::Store(mIdentifier, identifier); }
VELString QRMDependency::GetPath() const { return mPath; }
QRMKitReturnCode QRMDependency::SetPath(VELString path) { return qrm::Store(mPath, std::move(path)); }
unsigned long long QRMDependency::GetSize() const { return mSize; }
QRMKitReturnCode QRMDependency::SetSize(unsigned long long size) { return qrm::Store(mSize, size); }
unsigned int QRMDependency::GetFlags() const { return mFlags; }
QRMKitReturnCode QRMDependency::SetFlags(unsigned int flags) { return qrm::Store(mFlags, flags); }

QRMKitReturnCode QRMDependency::AddPCIInfo(QRMPCIInfo pciInfo) { return mPCIInfo.AddUnique(std::move(pciInfo)); }
void QRMDependency::GetPCIInfo(std::vector<QRMPCIInfo>& out) const { mPCIInfo.AppendCopiesTo(out); }
QRMKitReturnCode QRMDependency::AddPnPInfo(QRMPnPInfo pnpInfo) { return mPnPInfo.AddUnique(std::move(pnpInfo)); }
void QRMDependency::GetPnPInfo(std::vector<QRMPnPInfo>& out) const { mPnPInfo.AppendCopiesTo(out); }

bool QRMDependency::operator==(const QRMDependency& other) const
{
    return mType == other.mType && mName == other.mName && mVersion == other.mVersion &&
           mIdentifier == other.mIdentifier && mPath == other.mPath && mSize == other.mSize && mFlags == other.mFlags &&
           mTexts.Same(other.mTexts) && mPCIInfo.AllPairsEqual(other.mPCIInfo) &&
           mPnPInfo.AllPairsEqual(other.mPnPInfo);
}

bool QRMDependency::operator!=(const QRMDependency& other) const { return !(*this == other); }

// ---- QRMSoftDependency

QRMSoftDependency::QRMSoftDependency() = default;
QRMSoftDependency::QRMSoftDependency(const QRMSoftDependency& other) = default;
QRMSoftDependency& QRMSoftDependency::operator=(const QRMSoftDependency& other) = default;
QRMSoftDependency::QRMSoftDependency(QRMSoftDependency&& other) = default;
QRMSoftDependency& QRMSoftDependency::operator=(QRMSoftDependency&& other) = default;
QRMSoftDependency::~QRMSoftDependency() = default;

unsigned int QRMSoftDependency::GetType() const { return mDependency.GetType(); }
QRMKitReturnCode QRMSoftDependency::SetType(unsigned int type) { return mDependency.SetType(type); }
VELString QRMSoftDependency::GetName() const { return mDependency.GetName(); }
QRMKitReturnCode QRMSoftDependency::SetName(VELString name) { return mDependency.SetName(std::move(name)); }
VELString QRMSoftDependency::GetVersion() const { return mDependency.GetVersion(); }
QRMKitReturnCode QRMSoftDependency::SetVersion(VELString version) { return mDependency.SetVersion(std::move(version)); }
VELGUID QRMSoftDependency::GetIdentifier() const { return mDependency.GetIdentifier(); }
QRMKitReturnCode QRMSoftDependency::SetIdentifier(const VELGUID& identifier)
{
    return mDependency.SetIdentifier(identifier);
}
VELString QRMSoftDependency::GetPath() const { return mDependency.GetPath(); }
QRMKitReturnCode QRMSoftDependency::SetPath(VELString path) { return mDependency.SetPath(std::move(path)); }
unsigned long long QRMSoftDependency::GetSize() const { return mDependency.GetSize(); }
QRMKitReturnCode QRMSoftDependency::SetSize(unsigned long long size) { return mDependency.SetSize(size); }
unsigned int QRMSoftDependency::GetFlags() const { return mDependency.GetFlags(); }
QRMKitReturnCode QRMSoftDependency::SetFlags(unsigned int flags) { return mDependency.SetFlags(flags); }
QRMKitReturnCode QRMSoftDependency::AddPCIInfo(QRMPCIInfo pciInfo)
{
    return mDependency.AddPCIInfo(std::move(pciInfo));
}
void QRMSoftDependency::GetPCIInfo(std::vector<QRMPCIInfo>& out) const { mDependency.GetPCIInfo(out); }
QRMKitReturnCode QRMSoftDependency::AddPnPInfo(QRMPnPInfo pnpInfo)
{
    return mDependency.AddPnPInfo(std::move(pnpInfo));
}
void QRMSoftDependency::GetPnPInfo(std::vector<QRMPnPInfo>& out) const { mDependency.GetPnPInfo(out); }
QRMKitReturnCode QRMSoftDependency::AddDisplayValue(VELString language, VELString value)
{
    return mDependency.AddDisplayValue(std::move(language), std::move(value));
}
QRMKitReturnCode QRMSoftDependency::RemoveDisplayValue(const VELString& language)
{
    return mDependency.RemoveDisplayValue(language);
}
void QRMSoftDependency::GetDisplayValues(std::vector<QRMDisplay>& out) const { mDependency.GetDisplayValues(out); }

QRMKitReturnCode QRMSoftDependency::AddApplicability(QRMDeviceApplicability applicability)
{
    return mApplicability.AddUnique(std::move(applicability));
}

void QRMSoftDependency::GetApplicability(std::vector<QRMDeviceApplicability>& out) const
{
    mApplicability.AppendCopiesTo(out);
}

bool QRMSoftDependency::operator==(const QRMSoftDependency& other) const
{
    return mDependency == other.mDependency && mApplicability.AllPairsEqual(other.mApplicability);
}

bool QRMSoftDependency::operator!=(const QRMSoftDependency& other) const { return !(*this == other); }
