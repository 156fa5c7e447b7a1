#include "QRMDevice.h"

#include "model/QRMStore.h"

QRMDevice::QRMDevice() : mComponentID(0), mEmbedded(false) {}
QRMDevice::QRMDevice(const QRMDevice& other) = default;
QRMDevice& QRMDevice::operator=(const QRMDevice& other) = default;
QRMDevice::QRMDevice(QRMDevice&& other) = default;
QRMDevice& QRMDevice::operator=(QRMDevice&& other) = default;
QRMDevice::~QRMDevice() = default;

unsigned long long QRMDevice::GetComponentID() const { return mComponentID; }
QRMKitReturnCode QRMDevice::SetComponentID(const unsigned long long& componentID)
{
    return qrm::Store(mComponentID, componentID);
}
bool QRMDevice::IsEmbedded() const { return mEmbedded; }
QRMKitReturnCode QRMDevice::SetEmbedded(bool embedded) { return qrm::Store(mEmbedded, embedded); }
QRMRollbackInformation QRMDevice::GetRollbackInformation() const { return mRollbackInformation; }
QRMKitReturnCode QRMDevice::SetRollbackInformation(QRMRollbackInformation& rollbackInformation)
{
    return qrm::Store(mRollbackInformation, rollbackInformation);
}

void QRMDevice::GetPCIInfo(std::vector<QRMPCIInfo*>& out) const { mPCIInfo.AppendPointersTo(out); }
void QRMDevice::GetPnPInfo(std::vector<QRMPnPInfo>& out) const { mPnPInfo.AppendCopiesTo(out); }
void QRMDevice::GetSubComponents(std::vector<QRMSubComponent>& out) const { mSubComponents.AppendCopiesTo(out); }
void QRMDevice::GetDependencies(std::vector<QRMDependency>& out) const { mDependencies.AppendCopiesTo(out); }
void QRMDevice::GetSoftDependencies(std::vector<QRMSoftDependency>& out) const
{
    mSoftDependencies.AppendCopiesTo(out);
}
void QRMDevice::GetApplicability(std::vector<QRMDeviceApplicability>& out) const
{
    mApplicability.AppendCopiesTo(out);
}

QRMKitReturnCode QRMDevice::AddPCIInfo(QRMPCIInfo pciInfo) { return mPCIInfo.AddUnique(std::move(pciInfo)); }
QRMKitReturnCode QRMDevice::RemovePCIInfo(const QRMPCIInfo& pciInfo) { return mPCIInfo.RemoveClosingUpEqual(pciInfo); }
QRMKitReturnCode QRMDevice::AddPnPInfo(QRMPnPInfo pnpInfo) { return mPnPInfo.AddUnique(std::move(pnpInfo)); }
QRMKitReturnCode QRMDevice::RemovePnPInfo(const QRMPnPInfo& pnpInfo) { return mPnPInfo.RemoveClosingUpEqual(pnpInfo); }
QRMKitReturnCode QRMDevice::AddSubComponent(QRMSubComponent& subComponent)
{
    return mSubComponents.AddUnique(subComponent);
}
QRMKitReturnCode QRMDevice::RemoveSubComponent(QRMSubComponent& subComponent)
{
    return mSubComponents.RemoveClosingUpEqual(subComponent);
}
QRMKitReturnCode QRMDevice::AddDependency(QRMDependency& dependency)
{
    return mDependencies.AddUnique(dependency);
}
QRMKitReturnCode QRMDevice::RemoveDependency(QRMDependency& dependency)
{
    return mDependencies.RemoveClosingUpEqual(dependency);
}
QRMKitReturnCode QRMDevice::AddSoftDependency(QRMSoftDependency& softDependency)
{
    return mSoftDependencies.AddUnique(softDependency);
}
QRMKitReturnCode QRMDevice::RemoveSoftDependency(QRMSoftDependency& softDependency)
{
    return mSoftDependencies.RemoveClosingUpEqual(softDependency);
}
QRMKitReturnCode QRMDevice::AddApplicability(QRMDeviceApplicability& applicability)
{
    return mApplicability.AddUnique(applicability);
}
QRMKitReturnCode QRMDevice::RemoveApplicability(QRMDeviceApplicability& applicability)
{
    return mApplicability.RemoveClosingUpEqual(applicability);
}

bool QRMDevice::HasPCI(const QRMPCIInfo& pciInfo) const
{
    return mPCIInfo.Contains(pciInfo);
}

bool QRMDevice::HasPnP(const QRMPnPInfo& pnpInfo) const
{
    return mPnPInfo.Contains(pnpInfo);
}

bool QRMDevice::operator==(const QRMDevice& other) const
{
    return mComponentID == other.mComponentID && mEmbedded == other.mEmbedded &&
           mRollbackInformation == other.mRollbackInformation &&
           mPCIInfo.AllPairsEqual(other.mPCIInfo) && mPnPInfo.AllPairsEqual(other.mPnPInfo) &&
           HasAllPairsEqualTexts(other) && mSubComponents.AllPairsEqual(other.mSubComponents) &&
           mDependencies.AllPairsEqual(other.mDependencies) &&
           mSoftDependencies.AllPairsEqual(other.mSoftDependencies) &&
           mApplicability.AllPairsEqual(other.mApplicability);
}

bool QRMDevice::operator!=(const QRMDevice& other) const { return !(*this == other); }
