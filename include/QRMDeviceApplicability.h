// QRMDeviceApplicability: where a supported device applies, as a
// language-tagged text: the same shape and behaviour as QRMDisplay.
#ifndef QRMKIT_DEVICE_APPLICABILITY_H
#define QRMKIT_DEVICE_APPLICABILITY_H

#include "QRMDisplay.h"

class QRMKIT_API QRMDeviceApplicability : public QRMDisplay {
public:
    using QRMDisplay::QRMDisplay;
};

#endif
