// QRMDeviceApplicability: where a supported device applies, as a
// language-tagged text: the same shape and behaviour as QRMDisplay (both
// texts copied, both compared exactly), as a type of its own.
#ifndef QRMKIT_DEVICE_APPLICABILITY_H
#define QRMKIT_DEVICE_APPLICABILITY_H

#include "QRMDisplay.h"
#include "QRMKitTypes.h"
#include "VELString.h"

class QRMKIT_API QRMDeviceApplicability {
public:
    QRMDeviceApplicability();
    QRMDeviceApplicability(VELString language, VELString value);

    VELString GetLanguage() const;
    VELString GetValue() const;
    QRMKitReturnCode SetLanguage(VELString language);
    QRMKitReturnCode SetValue(VELString value);

    // Both texts equal, exactly.
    bool operator==(const QRMDeviceApplicability& other) const;
    bool operator!=(const QRMDeviceApplicability& other) const;

private:
    QRMDisplay mText;
};

#endif
