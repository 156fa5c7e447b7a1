// QRMFMPWrapperInformation: how a package is wrapped for firmware delivery:
// flags, a name, an identifier and paths. No reader fills it; callers may.
#ifndef QRMKIT_FMP_WRAPPER_INFORMATION_H
#define QRMKIT_FMP_WRAPPER_INFORMATION_H

#include "QRMKitTypes.h"
#include "VELGUID.h"
#include "VELString.h"

class QRMKIT_API QRMFMPWrapperInformation {
public:
    QRMFMPWrapperInformation();
    QRMFMPWrapperInformation(const QRMFMPWrapperInformation& other);
    QRMFMPWrapperInformation& operator=(const QRMFMPWrapperInformation& other);
    QRMFMPWrapperInformation(QRMFMPWrapperInformation&& other);
    QRMFMPWrapperInformation& operator=(QRMFMPWrapperInformation&& other);
    ~QRMFMPWrapperInformation();

    bool IsDigitallySigned() const;
    QRMKitReturnCode SetDigitallySigned(bool value);
    VELString GetName() const;
    QRMKitReturnCode SetName(VELString value);
    bool IsInventorySupported() const;
    QRMKitReturnCode SetInventorySupported(bool value);
    bool IsUpdateSupported() const;
    QRMKitReturnCode SetUpdateSupported(bool value);
    VELGUID GetIdentifier() const;
    QRMKitReturnCode SetIdentifier(const VELGUID& value);
    VELString GetFilePath() const;
    QRMKitReturnCode SetFilePath(VELString value);
    VELString GetDriverName() const;
    QRMKitReturnCode SetDriverName(VELString value);
    VELString GetDriverVersion() const;
    QRMKitReturnCode SetDriverVersion(VELString value);
    bool IsRollbackSupported() const;
    QRMKitReturnCode SetRollbackSupported(bool value);

    // Every field equal, in field order.
    bool operator==(const QRMFMPWrapperInformation& other) const;
    bool operator!=(const QRMFMPWrapperInformation& other) const;

private:
    bool mDigitallySigned;
    VELString mName;
    bool mInventorySupported;
    bool mUpdateSupported;
    VELGUID mIdentifier;
    VELString mFilePath;
    VELString mDriverName;
    VELString mDriverVersion;
    bool mRollbackSupported;
};

#endif
