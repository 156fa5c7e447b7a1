// QRMSoftDependency: a dependency that applies only where its applicability
// entries say; everything else as QRMDependency. No reader fills it.
#ifndef QRMKIT_SOFT_DEPENDENCY_H
#define QRMKIT_SOFT_DEPENDENCY_H

#include "QRMDependency.h"
#include "QRMDeviceApplicability.h"
#include "QRMOwnedList.h"

#include <vector>

class QRMKIT_API QRMSoftDependency : public QRMDependency {
public:
    QRMSoftDependency();
    QRMSoftDependency(const QRMSoftDependency& other);
    QRMSoftDependency& operator=(const QRMSoftDependency& other);
    QRMSoftDependency(QRMSoftDependency&& other);
    QRMSoftDependency& operator=(QRMSoftDependency&& other);
    ~QRMSoftDependency();

    // QRM_KIT_ALREADY_EXISTS when an equal entry is held, else appends a
    // copy; the getter appends copies in order.
    QRMKitReturnCode AddApplicability(QRMDeviceApplicability applicability);
    void GetApplicability(std::vector<QRMDeviceApplicability>& out) const;

    // As a dependency, then the applicability entries by the all-pairs rule.
    bool operator==(const QRMSoftDependency& other) const;
    bool operator!=(const QRMSoftDependency& other) const;

private:
    QRMOwnedList<QRMDeviceApplicability> mApplicability;
};

#endif
