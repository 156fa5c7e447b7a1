#include "QRMDisplay.h"

#include "model/QRMStore.h"

QRMDisplay::QRMDisplay() = default;
QRMDisplay::QRMDisplay(const VELString& language, const VELString& value)
    : mLanguage(language), mValue(value)
{
}
QRMDisplay::QRMDisplay(const QRMDisplay& other) = default;
QRMDisplay& QRMDisplay::operator=(const QRMDisplay& other) = default;
QRMDisplay::~QRMDisplay() = default;

VELString QRMDisplay::GetLanguage() const { return mLanguage; }
VELString QRMDisplay::GetValue() const { return mValue; }
QRMKitReturnCode QRMDisplay::SetLanguage(const VELString& language) { return qrm::Store(mLanguage, language); }
QRMKitReturnCode QRMDisplay::SetValue(const VELString& value) { return qrm::Store(mValue, value); }

bool QRMDisplay::operator==(const QRMDisplay& other) const
{
    return mValue == other.mValue && mLanguage == other.mLanguage;
}

bool QRMDisplay::operator!=(const QRMDisplay& other) const { return !(*this == other); }
