// QRMDevice: one piece of hardware a catalog component supports: a component
// id, an embedded flag, its PCI and plug-and-play identities, texts, and
// related records (sub-components, dependencies, soft dependencies,
// applicability entries, rollback information).
#ifndef QRMKIT_DEVICE_H
#define QRMKIT_DEVICE_H

#include "QRMDependency.h"
#include "QRMDeviceApplicability.h"
#include "QRMDisplay.h"
#include "QRMPCIInfo.h"
#include "QRMPnPInfo.h"
#include "QRMRollbackInformation.h"
#include "QRMSoftDependency.h"
#include "QRMSubComponent.h"
#include "detail/QRMDisplayTexts.h"
#include "detail/QRMOwnedList.h"
#include "detail/QRMSeldom.h"

#include <vector>

class QRMKIT_API QRMDevice {
public:
    QRMDevice();
    QRMDevice(const QRMDevice& other);
    QRMDevice& operator=(const QRMDevice& other);
    QRMDevice(QRMDevice&& other);
    QRMDevice& operator=(QRMDevice&& other);
    ~QRMDevice();

    unsigned long long GetComponentID() const;
    QRMKitReturnCode SetComponentID(const unsigned long long& componentID);
    bool IsEmbedded() const;
    QRMKitReturnCode SetEmbedded(bool embedded);
    QRMRollbackInformation GetRollbackInformation() const;
    QRMKitReturnCode SetRollbackInformation(QRMRollbackInformation& rollbackInformation);

    // Appends the held PCI records themselves, in order, without clearing
    // `out`; they stay valid until the device is changed or destroyed.
    void GetPCIInfo(std::vector<QRMPCIInfo*>& out) const;
    // The other lists hand out copies, appended in order.
    void GetPnPInfo(std::vector<QRMPnPInfo>& out) const;
    void GetSubComponents(std::vector<QRMSubComponent>& out) const;
    void GetDependencies(std::vector<QRMDependency>& out) const;
    void GetSoftDependencies(std::vector<QRMSoftDependency>& out) const;
    void GetApplicability(std::vector<QRMDeviceApplicability>& out) const;

    // Add: QRM_KIT_ALREADY_EXISTS when an equal entry is held, else a copy
    // is appended. Remove: QRM_KIT_NOT_FOUND when none is equal; otherwise
    // the entry is taken out and the list closes up, and when it was not the
    // last one the entry that followed it is reset to a new, empty record
    // and stays in the list. Kept for compatibility: removal has always
    // behaved this way.
    QRMKitReturnCode AddPCIInfo(QRMPCIInfo pciInfo);
    QRMKitReturnCode RemovePCIInfo(const QRMPCIInfo& pciInfo);
    QRMKitReturnCode AddPnPInfo(QRMPnPInfo pnpInfo);
    QRMKitReturnCode RemovePnPInfo(const QRMPnPInfo& pnpInfo);
    QRMKitReturnCode AddSubComponent(QRMSubComponent& subComponent);
    QRMKitReturnCode RemoveSubComponent(QRMSubComponent& subComponent);
    QRMKitReturnCode AddDependency(QRMDependency& dependency);
    QRMKitReturnCode RemoveDependency(QRMDependency& dependency);
    QRMKitReturnCode AddSoftDependency(QRMSoftDependency& softDependency);
    QRMKitReturnCode RemoveSoftDependency(QRMSoftDependency& softDependency);
    QRMKitReturnCode AddApplicability(QRMDeviceApplicability& applicability);
    QRMKitReturnCode RemoveApplicability(QRMDeviceApplicability& applicability);

    // True when a held record equals the argument exactly (no wildcards).
    bool HasPCI(const QRMPCIInfo& pciInfo) const;
    bool HasPnP(const QRMPnPInfo& pnpInfo) const;

    // The texts, under the display-text rule (QRMDisplay.h).
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // Component id, embedded flag, rollback information; then every list by
    // the all-pairs rule, the texts included (whole texts, language and
    // value: two devices with two different texts each are never equal).
    bool operator==(const QRMDevice& other) const;
    bool operator!=(const QRMDevice& other) const;

private:
    qrm::detail::DisplayTexts mTexts;
    struct Records;

    qrm::detail::OwnedList<QRMPCIInfo> mPCIInfo;
    qrm::detail::Seldom<Records> mRecords;
    unsigned long long mComponentID;
    bool mEmbedded;
};

#endif
