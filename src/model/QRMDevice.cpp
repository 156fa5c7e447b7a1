#include "QRMDevice.h"

#include "model/QRMDisplayValues.h"
#include "model/QRMStore.h"

struct QRMDevice::Records {
    qrm::detail::OwnedList<QRMPnPInfo> pnpInfo;
    qrm::detail::OwnedList<QRMSubComponent> subComponents;
    qrm::detail::OwnedList<QRMDependency> dependencies;
    qrm::detail::OwnedList<QRMSoftDependency> softDependencies;
    qrm::detail::OwnedList<QRMDeviceApplicability> applicability;
    QRMRollbackInformation rollbackInformation;
};

QRMDevice::QRMDevice() : mComponentID(0), mEmbedded(false) {}
QRMDevice::QRMDevice(const QRMDevice& other) = default;
QRMDevice& QRMDevice::operator=(const QRMDevice& other) = default;
QRMDevice::QRMDevice(QRMDevice&& other) = default;
QRMDevice& QRMDevice::operator=(QRMDevice&& other) = default;
QRMDevice::~QRMDevice() = default;

QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(QRMDevice, mTexts)

unsigned long long QRMDevice::GetComponentID() const { return mComponentID; }
QRMKitReturnCode QRMDevice::SetComponentID(const unsigned long long& componentID)
{
    return qrm::Store(mComponentID, componentID);
}
bool QRMDevice::IsEmbedded() const { return mEmbedded; }
QRMKitReturnCode QRMDevice::SetEmbedded(bool embedded) { return qrm::Store(mEmbedded, embedded); }
QRMRollbackInformation QRMDevice::GetRollbackInformation() const { return mRecords.Get().rollbackInformation; }
QRMKitReturnCode QRMDevice::SetRollbackInformation(QRMRollbackInformation& rollbackInformation)
{
    return qrm::Store(mRecords.Change().rollbackInformation, rollbackInformation);
}

void QRMDevice::GetPCIInfo(std::vector<QRMPCIInfo*>& out) const { mPCIInfo.AppendPointersTo(out); }
void QRMDevice::GetPnPInfo(std::vector<QRMPnPInfo>& out) const { mRecords.Get().pnpInfo.AppendCopiesTo(out); }
void QRMDevice::GetSubComponents(std::vector<QRMSubComponent>& out) const
{
    mRecords.Get().subComponents.AppendCopiesTo(out);
}
void QRMDevice::GetDependencies(std::vector<QRMDependency>& out) const
{
    mRecords.Get().dependencies.AppendCopiesTo(out);
}
void QRMDevice::GetSoftDependencies(std::vector<QRMSoftDependency>& out) const
{
    mRecords.Get().softDependencies.AppendCopiesTo(out);
}
void QRMDevice::GetApplicability(std::vector<QRMDeviceApplicability>& out) const
{
    mRecords.Get().applicability.AppendCopiesTo(out);
}

QRMKitReturnCode QRMDevice::AddPCIInfo(QRMPCIInfo pciInfo) { return mPCIInfo.AddUnique(std::move(pciInfo)); }
QRMKitReturnCode QRMDevice::RemovePCIInfo(const QRMPCIInfo& pciInfo) { return mPCIInfo.RemoveClosingUpEqual(pciInfo); }
QRMKitReturnCode QRMDevice::AddPnPInfo(QRMPnPInfo pnpInfo)
{
    return mRecords.Change().pnpInfo.AddUnique(std::move(pnpInfo));
}
QRMKitReturnCode QRMDevice::RemovePnPInfo(const QRMPnPInfo& pnpInfo)
{
    return mRecords.Change().pnpInfo.RemoveClosingUpEqual(pnpInfo);
}
QRMKitReturnCode QRMDevice::AddSubComponent(QRMSubComponent& subComponent)
{
    return mRecords.Change().subComponents.AddUnique(subComponent);
}
QRMKitReturnCode QRMDevice::RemoveSubComponent(QRMSubComponent& subComponent)
{
    return mRecords.Change().subComponents.RemoveClosingUpEqual(subComponent);
}
QRMKitReturnCode QRMDevice::AddDependency(QRMDependency& dependency)
{
    return mRecords.Change().dependencies.AddUnique(dependency);
}
QRMKitReturnCode QRMDevice::RemoveDependency(QRMDependency& dependency)
{
    return mRecords.Change().dependencies.RemoveClosingUpEqual(dependency);
}
QRMKitReturnCode QRMDevice::AddSoftDependency(QRMSoftDependency& softDependency)
{
    return mRecords.Change().softDependencies.AddUnique(softDependency);
}
QRMKitReturnCode QRMDevice::RemoveSoftDependency(QRMSoftDependency& softDependency)
{
    return mRecords.Change().softDependencies.RemoveClosingUpEqual(softDependency);
}
QRMKitReturnCode QRMDevice::AddApplicability(QRMDeviceApplicability& applicability)
{
    return mRecords.Change().applicability.AddUnique(applicability);
}
QRMKitReturnCode QRMDevice::RemoveApplicability(QRMDeviceApplicability& applicability)
{
    return mRecords.Change().applicability.RemoveClosingUpEqual(applicability);
}

bool QRMDevice::HasPCI(const QRMPCIInfo& pciInfo) const { return mPCIInfo.Contains(pciInfo); }

bool QRMDevice::HasPnP(const QRMPnPInfo& pnpInfo) const { return mRecords.Get().pnpInfo.Contains(pnpInfo); }

bool QRMDevice::operator==(const QRMDevice& other) const
{
    return mComponentID == other.mComponentID && mEmbedded == other.mEmbedded &&
           mRecords.Get().rollbackInformation == other.mRecords.Get().rollbackInformation &&
           mPCIInfo.AllPairsEqual(other.mPCIInfo) &&
           mRecords.Get().pnpInfo.AllPairsEqual(other.mRecords.Get().pnpInfo) && mTexts.AllPairsEqual(other.mTexts) &&
           mRecords.Get().subComponents.AllPairsEqual(other.mRecords.Get().subComponents) &&
           mRecords.Get().dependencies.AllPairsEqual(other.mRecords.Get().dependencies) &&
           mRecords.Get().softDependencies.AllPairsEqual(other.mRecords.Get().softDependencies) &&
           mRecords.Get().applicability.AllPairsEqual(other.mRecords.Get().applicability);
}

bool QRMDevice::operator!=(const QRMDevice& other) const { return !(*this == other); }
