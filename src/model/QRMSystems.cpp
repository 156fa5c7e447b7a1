// Operating systems and target systems.
#include "QRMBrand.h"
#include "QRMModel.h"
#include "QRMOperatingSystem.h"
#include "QRMSupportedOperatingSystems.h"
#include "QRMSupportedSystems.h"

#include "model/QRMDisplayValues.h"
#include "model/QRMStore.h"

// ---- QRMOperatingSystem

QRMOperatingSystem::QRMOperatingSystem() : mArchitecture(QRM_OS_ARCH_X86), mPreInstallEnvironment(false), mSuiteMask(0)
{}
QRMOperatingSystem::QRMOperatingSystem(const QRMOperatingSystem& other) = default;
QRMOperatingSystem& QRMOperatingSystem::operator=(const QRMOperatingSystem& other) = default;
QRMOperatingSystem::QRMOperatingSystem(QRMOperatingSystem&& other) = default;
QRMOperatingSystem& QRMOperatingSystem::operator=(QRMOperatingSystem&& other) = default;
QRMOperatingSystem::~QRMOperatingSystem() = default;

QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(QRMOperatingSystem, mTexts)

VELString QRMOperatingSystem::GetCode() const { return mCode; }
QRMKitReturnCode QRMOperatingSystem::SetCode(VELString code) { return qrm::Store(mCode, std::move(code)); }
VELString QRMOperatingSystem::GetVendor() const { return mVendor; }
QRMKitReturnCode QRMOperatingSystem::SetVendor(VELString vendor) { return qrm::Store(mVendor, std::move(vendor)); }
QRMOSArchitectureEnum QRMOperatingSystem::GetArchitecture() const { return mArchitecture; }
QRMKitReturnCode QRMOperatingSystem::SetArchitecture(QRMOSArchitectureEnum architecture)
{
    return qrm::Store(mArchitecture, architecture);
}
VELString QRMOperatingSystem::GetMajorVersion() const { return mMajorVersion; }
QRMKitReturnCode QRMOperatingSystem::SetMajorVersion(VELString version)
{
    return qrm::Store(mMajorVersion, std::move(version));
}
VELString QRMOperatingSystem::GetMinorVersion() const { return mMinorVersion; }
QRMKitReturnCode QRMOperatingSystem::SetMinorVersion(VELString version)
{
    return qrm::Store(mMinorVersion, std::move(version));
}
VELString QRMOperatingSystem::GetServicePackMajorVersion() const { return mServicePackMajorVersion; }
QRMKitReturnCode QRMOperatingSystem::SetServicePackMajorVersion(VELString version)
{
    return qrm::Store(mServicePackMajorVersion, std::move(version));
}
VELString QRMOperatingSystem::GetServicePackMinorVersion() const { return mServicePackMinorVersion; }
QRMKitReturnCode QRMOperatingSystem::SetServicePackMinorVersion(VELString version)
{
    return qrm::Store(mServicePackMinorVersion, std::move(version));
}
bool QRMOperatingSystem::IsForPreInstallEnvironment() const { return mPreInstallEnvironment; }
QRMKitReturnCode QRMOperatingSystem::SetPreInstallEnvironment(bool preInstallEnvironment)
{
    return qrm::Store(mPreInstallEnvironment, preInstallEnvironment);
}
unsigned long long QRMOperatingSystem::GetSuiteMask() const { return mSuiteMask; }
QRMKitReturnCode QRMOperatingSystem::SetSuiteMask(unsigned long long suiteMask)
{
    return qrm::Store(mSuiteMask, suiteMask);
}

QRMKitReturnCode QRMOperatingSystem::AddNumericTag(unsigned int tag) { return mNumericTags.AddUnique(tag); }

void QRMOperatingSystem::GetNumericTags(std::vector<unsigned int>& out) const { mNumericTags.AppendCopiesTo(out); }

bool QRMOperatingSystem::operator==(const QRMOperatingSystem& other) const
{
    return mCode == other.mCode && mVendor == other.mVendor && mArchitecture == other.mArchitecture &&
           mMajorVersion == other.mMajorVersion && mMinorVersion == other.mMinorVersion &&
           mServicePackMajorVersion == other.mServicePackMajorVersion &&
           mServicePackMinorVersion == other.mServicePackMinorVersion &&
           mPreInstallEnvironment == other.mPreInstallEnvironment && mSuiteMask == other.mSuiteMask &&
           mNumericTags.AllPairsEqual(other.mNumericTags) && mTexts.Same(other.mTexts);
}

bool QRMOperatingSystem::operator!=(const QRMOperatingSystem& other) const { return !(*this == other); }

// ---- QRMSupportedOperatingSystems

QRMSupportedOperatingSystems::QRMSupportedOperatingSystems() = default;
QRMSupportedOperatingSystems::QRMSupportedOperatingSystems(const QRMSupportedOperatingSystems& other) = default;
QRMSupportedOperatingSystems&
QRMSupportedOperatingSystems::operator=(const QRMSupportedOperatingSystems& other) = default;
QRMSupportedOperatingSystems::QRMSupportedOperatingSystems(QRMSupportedOperatingSystems&& other) = default;
QRMSupportedOperatingSystems& QRMSupportedOperatingSystems::operator=(QRMSupportedOperatingSystems&& other) = default;
QRMSupportedOperatingSystems::~QRMSupportedOperatingSystems() = default;

void QRMSupportedOperatingSystems::GetOSes(std::vector<QRMOperatingSystem>& out) const
{
    mOperatingSystems.AppendCopiesTo(out);
}

QRMKitReturnCode QRMSupportedOperatingSystems::AddOS(QRMOperatingSystem& os) { return mOperatingSystems.AddUnique(os); }

QRMKitReturnCode QRMSupportedOperatingSystems::AddOS(QRMOperatingSystem&& os)
{
    return mOperatingSystems.AddUnique(std::move(os));
}

QRMKitReturnCode QRMSupportedOperatingSystems::RemoveOS(QRMOperatingSystem& os)
{
    return mOperatingSystems.RemoveFirst(os);
}

bool QRMSupportedOperatingSystems::operator==(const QRMSupportedOperatingSystems& other) const
{
    return mOperatingSystems.AllPairsEqual(other.mOperatingSystems);
}

bool QRMSupportedOperatingSystems::operator!=(const QRMSupportedOperatingSystems& other) const
{
    return !(*this == other);
}

// ---- QRMModel

QRMModel::QRMModel() : mSystemID(0), mSecondID(0), mThirdID(0) {}
QRMModel::QRMModel(const QRMModel& other) = default;
QRMModel& QRMModel::operator=(const QRMModel& other) = default;
QRMModel::QRMModel(QRMModel&& other) = default;
QRMModel& QRMModel::operator=(QRMModel&& other) = default;
QRMModel::~QRMModel() = default;

QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(QRMModel, mTexts)

unsigned int QRMModel::GetSystemID() const { return mSystemID; }
QRMKitReturnCode QRMModel::SetSystemID(unsigned int systemID) { return qrm::Store(mSystemID, systemID); }
unsigned int QRMModel::GetSecondID() const { return mSecondID; }
QRMKitReturnCode QRMModel::SetSecondID(unsigned int secondID) { return qrm::Store(mSecondID, secondID); }
unsigned int QRMModel::GetThirdID() const { return mThirdID; }
QRMKitReturnCode QRMModel::SetThirdID(unsigned int thirdID) { return qrm::Store(mThirdID, thirdID); }

QRMKitReturnCode QRMModel::AddSubBrand(QRMBrand brand) { return mSubBrands.AddUnique(std::move(brand)); }

void QRMModel::GetSubBrands(std::vector<QRMBrand*>& out) const { mSubBrands.AppendPointersTo(out); }

// ---- QRMBrand

QRMBrand::QRMBrand() : mKey(0) {}
QRMBrand::QRMBrand(const QRMBrand& other) = default;
QRMBrand& QRMBrand::operator=(const QRMBrand& other) = default;
QRMBrand::QRMBrand(QRMBrand&& other) = default;
QRMBrand& QRMBrand::operator=(QRMBrand&& other) = default;
QRMBrand::~QRMBrand() = default;

QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(QRMBrand, mTexts)

unsigned int QRMBrand::GetKey() const { return mKey; }
QRMKitReturnCode QRMBrand::SetKey(VELString key) { return qrm::Store(mKey, key.GetIntValue(std::dec)); }
VELString QRMBrand::GetPrefix() const { return mPrefix; }
QRMKitReturnCode QRMBrand::SetPrefix(VELString prefix) { return qrm::Store(mPrefix, std::move(prefix)); }

QRMKitReturnCode QRMBrand::AddModel(QRMModel model)
{
    mModels.Append(std::move(model));
    return QRM_KIT_SUCCESS;
}

void QRMBrand::GetModels(std::vector<QRMModel*>& out) const { mModels.AppendPointersTo(out); }

namespace {

// Every model of `left` that shares system id and second id with a model of
// `right` must be that very model.
bool SameIdentifiedModels(const qrm::detail::OwnedList<QRMModel>& left, const qrm::detail::OwnedList<QRMModel>& right)
{
    for (const QRMModel* a : left) {
        for (const QRMModel* b : right) {
            if (b->GetSystemID() == a->GetSystemID() && b->GetSecondID() == a->GetSecondID() && a != b) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace

bool QRMBrand::operator==(const QRMBrand& other) const
{
    return mKey == other.mKey && mPrefix == other.mPrefix && mTexts.Same(other.mTexts) &&
           mModels.Size() == other.mModels.Size() && SameIdentifiedModels(mModels, other.mModels) &&
           SameIdentifiedModels(other.mModels, mModels);
}

bool QRMBrand::operator!=(const QRMBrand& other) const { return !(*this == other); }

// ---- QRMSupportedSystems

QRMSupportedSystems::QRMSupportedSystems() : mDisplay(false) {}
QRMSupportedSystems::QRMSupportedSystems(const QRMSupportedSystems& other) = default;
QRMSupportedSystems& QRMSupportedSystems::operator=(const QRMSupportedSystems& other) = default;
QRMSupportedSystems::QRMSupportedSystems(QRMSupportedSystems&& other) = default;
QRMSupportedSystems& QRMSupportedSystems::operator=(QRMSupportedSystems&& other) = default;
QRMSupportedSystems::~QRMSupportedSystems() = default;

QRMKitReturnCode QRMSupportedSystems::AddBrand(QRMBrand brand) { return mBrands.AddUnique(std::move(brand)); }

void QRMSupportedSystems::GetBrands(std::vector<QRMBrand*>& out) const { mBrands.AppendPointersTo(out); }

bool QRMSupportedSystems::GetDisplay() const { return mDisplay; }
QRMKitReturnCode QRMSupportedSystems::SetDisplay(bool display) { return qrm::Store(mDisplay, display); }

bool QRMSupportedSystems::operator==(const QRMSupportedSystems& other) const
{
    return mDisplay == other.mDisplay && mBrands.AllPairsEqual(other.mBrands);
}

bool QRMSupportedSystems::operator!=(const QRMSupportedSystems& other) const { return !(*this == other); }
