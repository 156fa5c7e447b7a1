// QRMSupportedSystems: the computer brands (with their models) a component
// or bundle supports, and whether they are shown ("display").
#ifndef QRMKIT_SUPPORTED_SYSTEMS_H
#define QRMKIT_SUPPORTED_SYSTEMS_H

#include "QRMBrand.h"
#include "detail/QRMOwnedList.h"

#include <vector>

class QRMKIT_API QRMSupportedSystems {
public:
    QRMSupportedSystems();
    QRMSupportedSystems(const QRMSupportedSystems& other);
    QRMSupportedSystems& operator=(const QRMSupportedSystems& other);
    QRMSupportedSystems(QRMSupportedSystems&& other);
    QRMSupportedSystems& operator=(QRMSupportedSystems&& other);
    ~QRMSupportedSystems();

    // QRM_KIT_ALREADY_EXISTS when an equal brand is held, else appends a copy.
    QRMKitReturnCode AddBrand(QRMBrand brand);
    // Appends the held brands themselves, in order; `out` is not cleared.
    void GetBrands(std::vector<QRMBrand*>& out) const;
    bool GetDisplay() const;
    QRMKitReturnCode SetDisplay(bool display);

    // The display flag, then the brands by the all-pairs rule.
    bool operator==(const QRMSupportedSystems& other) const;
    bool operator!=(const QRMSupportedSystems& other) const;

private:
    qrm::detail::OwnedList<QRMBrand> mBrands;
    bool mDisplay;
};

#endif
