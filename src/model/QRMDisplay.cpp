#include "QRMDisplay.h"
#include "QRMDeviceApplicability.h"

#include "model/QRMStore.h"

QRMDisplay::QRMDisplay() = default;
QRMDisplay::QRMDisplay(VELString language, VELString value) : mLanguage(std::move(language)), mValue(std::move(value))
{}
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

// ---- QRMDeviceApplicability: a QRMDisplay under another name.

QRMDeviceApplicability::QRMDeviceApplicability() = default;
QRMDeviceApplicability::QRMDeviceApplicability(VELString language, VELString value)
    : mText(std::move(language), std::move(value))
{}
VELString QRMDeviceApplicability::GetLanguage() const { return mText.GetLanguage(); }
VELString QRMDeviceApplicability::GetValue() const { return mText.GetValue(); }
QRMKitReturnCode QRMDeviceApplicability::SetLanguage(VELString language)
{
    return mText.SetLanguage(std::move(language));
}
QRMKitReturnCode QRMDeviceApplicability::SetValue(VELString value) { return mText.SetValue(std::move(value)); }
bool QRMDeviceApplicability::operator==(const QRMDeviceApplicability& other) const { return mText == other.mText; }
bool QRMDeviceApplicability::operator!=(const QRMDeviceApplicability& other) const { return !(*this == other); }
