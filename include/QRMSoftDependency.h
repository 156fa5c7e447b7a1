// QRMSoftDependency: a dependency that applies only where its applicability
// entries say; everything else as QRMDependency (the same fields and
// operations, with the same results). No reader fills it.
#ifndef QRMKIT_SOFT_DEPENDENCY_H
#define QRMKIT_SOFT_DEPENDENCY_H

#include "QRMDependency.h"
#include "QRMDeviceApplicability.h"
#include "detail/QRMOwnedList.h"

#include <vector>

class QRMKIT_API QRMSoftDependency {
public:
    QRMSoftDependency();
    QRMSoftDependency(const QRMSoftDependency& other);
    QRMSoftDependency& operator=(const QRMSoftDependency& other);
    QRMSoftDependency(QRMSoftDependency&& other);
    QRMSoftDependency& operator=(QRMSoftDependency&& other);
    ~QRMSoftDependency();

    // The operations of QRMDependency.
    unsigned int GetType() const;
    QRMKitReturnCode SetType(unsigned int type);
    VELString GetName() const;
    QRMKitReturnCode SetName(VELString name);
    VELString GetVersion() const;
    QRMKitReturnCode SetVersion(VELString version);
    VELGUID GetIdentifier() const;
    QRMKitReturnCode SetIdentifier(const VELGUID& identifier);
    VELString GetPath() const;
    QRMKitReturnCode SetPath(VELString path);
    unsigned long long GetSize() const;
    QRMKitReturnCode SetSize(unsigned long long size);
    unsigned int GetFlags() const;
    QRMKitReturnCode SetFlags(unsigned int flags);
    QRMKitReturnCode AddPCIInfo(QRMPCIInfo pciInfo);
    void GetPCIInfo(std::vector<QRMPCIInfo>& out) const;
    QRMKitReturnCode AddPnPInfo(QRMPnPInfo pnpInfo);
    void GetPnPInfo(std::vector<QRMPnPInfo>& out) const;
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // QRM_KIT_ALREADY_EXISTS when an equal entry is held, else appends a
    // copy; the getter appends copies in order.
    QRMKitReturnCode AddApplicability(QRMDeviceApplicability applicability);
    void GetApplicability(std::vector<QRMDeviceApplicability>& out) const;

    // As a dependency, then the applicability entries by the all-pairs rule.
    bool operator==(const QRMSoftDependency& other) const;
    bool operator!=(const QRMSoftDependency& other) const;

private:
    QRMDependency mDependency;
    qrm::detail::OwnedList<QRMDeviceApplicability> mApplicability;
};

#endif
