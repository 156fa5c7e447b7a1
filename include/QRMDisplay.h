// QRMDisplay: one localised text, a language tag ("en", "zh-Hans") and the
// text in that language.
#ifndef QRMKIT_DISPLAY_H
#define QRMKIT_DISPLAY_H

#include "QRMKitTypes.h"
#include "VELString.h"

class QRMKIT_API QRMDisplay {
public:
    QRMDisplay();
    QRMDisplay(VELString language, VELString value);
    QRMDisplay(const QRMDisplay& other);
    QRMDisplay& operator=(const QRMDisplay& other);
    QRMDisplay(QRMDisplay&& other);
    QRMDisplay& operator=(QRMDisplay&& other);
    ~QRMDisplay();

    VELString GetLanguage() const;
    VELString GetValue() const;
    QRMKitReturnCode SetLanguage(VELString language);
    QRMKitReturnCode SetValue(VELString value);

    // Both texts equal, exactly.
    bool operator==(const QRMDisplay& other) const;
    bool operator!=(const QRMDisplay& other) const;

private:
    VELString mLanguage;
    VELString mValue;
};

#endif
