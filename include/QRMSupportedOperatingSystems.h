// QRMSupportedOperatingSystems: the operating systems a component or bundle
// supports, in the order they were added.
#ifndef QRMKIT_SUPPORTED_OPERATING_SYSTEMS_H
#define QRMKIT_SUPPORTED_OPERATING_SYSTEMS_H

#include "QRMOperatingSystem.h"
#include "detail/QRMOwnedList.h"

#include <vector>

class QRMKIT_API QRMSupportedOperatingSystems {
public:
    QRMSupportedOperatingSystems();
    QRMSupportedOperatingSystems(const QRMSupportedOperatingSystems& other);
    QRMSupportedOperatingSystems& operator=(const QRMSupportedOperatingSystems& other);
    QRMSupportedOperatingSystems(QRMSupportedOperatingSystems&& other);
    QRMSupportedOperatingSystems& operator=(QRMSupportedOperatingSystems&& other);
    ~QRMSupportedOperatingSystems();

    // Appends a copy of each operating system, in order; `out` is not cleared.
    void GetOSes(std::vector<QRMOperatingSystem>& out) const;
    // QRM_KIT_ALREADY_EXISTS when an equal one is held, else appends a copy.
    QRMKitReturnCode AddOS(QRMOperatingSystem& os);
    // The same, taking over the contents of `os`.
    QRMKitReturnCode AddOS(QRMOperatingSystem&& os);
    // QRM_KIT_NOT_FOUND when none is equal; else releases the first equal one.
    QRMKitReturnCode RemoveOS(QRMOperatingSystem& os);

    // The all-pairs rule: equal only when every operating system on either
    // side equals every one on the other, so two different ones make a list
    // unequal even to itself. Kept for compatibility.
    bool operator==(const QRMSupportedOperatingSystems& other) const;
    bool operator!=(const QRMSupportedOperatingSystems& other) const;

private:
    qrm::detail::OwnedList<QRMOperatingSystem> mOperatingSystems;
};

#endif
