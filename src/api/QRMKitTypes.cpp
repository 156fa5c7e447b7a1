#include "QRMKitTypes.h"

#include <cstddef>

namespace {

const char* const kComponentTypes[] = {"SBDL", "FRMW", "BIOS", "APAC", "APP", "DRVR"};
const char* const kBundleTypes[] = {"BTW32", "BTW64", "BTLX", "BTRPM", "BTDEB", "BTOSIND"};
const char* const kArchitectures[] = {"x86", "x64", "ia64", "ia32"};
const char* const kCriticalities[] = {"1", "2", "3"};
const char* const kLanguages[] = {"en", "fr", "de", "es", "zh-Hans", "zh-Hant", "ja", "hi", "kn", "te", "ta"};
const char* const kSystemIDTypes[] = {"BIOS", "MULTISYSTEMCHASSIS", "RAIDCHASSIS", "ROUTER", "NETWORKSWITCH"};

template <std::size_t N>
const char* TextOf(const char* const (&table)[N], int value)
{
    return value >= 0 && static_cast<std::size_t>(value) < N ? table[value] : "";
}

// Table order is enumeration order: the first exact match wins.
template <class Enum, std::size_t N>
bool FromText(const char* const (&table)[N], const VELString& text, Enum& value)
{
    for (std::size_t i = 0; i < N; ++i) {
        if (table[i] == text) {
            value = static_cast<Enum>(i);
            return true;
        }
    }
    return false;
}

}  // namespace

const char* QRMComponentTypeText(QRMComponentTypeValueEnum value) { return TextOf(kComponentTypes, value); }
const char* QRMBundleTypeText(QRMBundleTypeEnum value) { return TextOf(kBundleTypes, value); }
const char* QRMOSArchitectureText(QRMOSArchitectureEnum value) { return TextOf(kArchitectures, value); }
const char* QRMCriticalityText(QRMCriticalityValueEnum value) { return TextOf(kCriticalities, value); }
const char* QRMInventoryLanguageText(QRMInventoryLanguageEnum value) { return TextOf(kLanguages, value); }
const char* QRMSystemIDTypeText(QRMSystemIDTypeEnum value) { return TextOf(kSystemIDTypes, value); }

const char* QRMKitReturnCodeName(QRMKitReturnCode code)
{
    switch (code) {
    case QRM_KIT_SUCCESS:
        return "QRM_KIT_SUCCESS";
    case QRM_KIT_FAILURE:
        return "QRM_KIT_FAILURE";
    case QRM_KIT_ALREADY_EXISTS:
        return "QRM_KIT_ALREADY_EXISTS";
    case QRM_KIT_NOT_FOUND:
        return "QRM_KIT_NOT_FOUND";
    case QRM_KIT_ELEMENT_MISSING:
        return "QRM_KIT_ELEMENT_MISSING";
    }
    return "";
}

bool QRMComponentTypeFromText(const VELString& text, QRMComponentTypeValueEnum& value)
{
    return FromText(kComponentTypes, text, value);
}
bool QRMBundleTypeFromText(const VELString& text, QRMBundleTypeEnum& value)
{
    return FromText(kBundleTypes, text, value);
}
bool QRMOSArchitectureFromText(const VELString& text, QRMOSArchitectureEnum& value)
{
    return FromText(kArchitectures, text, value);
}
bool QRMCriticalityFromText(const VELString& text, QRMCriticalityValueEnum& value)
{
    return FromText(kCriticalities, text, value);
}
bool QRMInventoryLanguageFromText(const VELString& text, QRMInventoryLanguageEnum& value)
{
    return FromText(kLanguages, text, value);
}
bool QRMSystemIDTypeFromText(const VELString& text, QRMSystemIDTypeEnum& value)
{
    return FromText(kSystemIDTypes, text, value);
}
