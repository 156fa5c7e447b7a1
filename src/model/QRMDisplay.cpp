#include "QRMDisplay.h"

#include "model/QRMStore.h"

QRMDisplay::QRMDisplay() = default;
QRMDisplay::QRMDisplay(VELString language, VELString value)
    : mLanguage(std::move(language)), mValue(std::move(value))
{
}
QRMDisplay::QRMDisplay(const QRMDisplay& other) = default;
QRMDisplay& QRMDisplay::operator=(const QRMDisplay& other) = default;
QRMDisplay::QRMDisplay(QRMDisplay&& other) = default;
QRMDisplay& QRMDisplay::operator=(QRMDisplay&& other) = default;
QRMDisplay::~QRMDisplay() = default;

VELString QRMDisplay::GetLanguage() const { return mLanguage; }
VELString QRMDisplay::GetValue() const { return mValue; }
QRMKitReturnCode QRMDisplay::SetLanguage(VELString language) { return qrm::Store(mLanguage, std::move(language)); }
QRMKitReturnCode QRMDisplay::SetValue(VELString value) { return qrm::Store(mValue, std::move(value)); }

bool QRMDisplay::operator==(const QRMDisplay& other) const
{
    return mValue == other.mValue && mLanguage == other.mLanguage;
}

bool QRMDisplay::operator!=(const QRMDisplay& other) const { return !(*this == other); }
