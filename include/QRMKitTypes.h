// Return codes and enumerations of QRMKit, with the XML texts they stand for.
#ifndef QRMKIT_TYPES_H
#define QRMKIT_TYPES_H

#include "QRMKitExport.h"
#include "VELString.h"

// The result of every mutating operation. Callers test by equality; the
// codes are never combined. The value 2 is unassigned and never returned.
enum QRMKitReturnCode : int {
    QRM_KIT_SUCCESS = 0,
    QRM_KIT_FAILURE = 1,
    QRM_KIT_ALREADY_EXISTS = 3,
    QRM_KIT_NOT_FOUND = 4,
    QRM_KIT_ELEMENT_MISSING = 5
};

// The "value" attribute of a "ComponentType" element.
enum QRMComponentTypeValueEnum : int {
    QRM_COMPONENT_SBDL = 0,  // "SBDL"
    QRM_COMPONENT_FRMW = 1,  // "FRMW"
    QRM_COMPONENT_BIOS = 2,  // "BIOS"
    QRM_COMPONENT_APAC = 3,  // "APAC"
    QRM_COMPONENT_APP = 4,   // "APP"
    QRM_COMPONENT_DRVR = 5   // "DRVR"
};

// The "bundleType" attribute of a software bundle.
enum QRMBundleTypeEnum : int {
    QRM_BUNDLE_BTW32 = 0,   // "BTW32"
    QRM_BUNDLE_BTW64 = 1,   // "BTW64"
    QRM_BUNDLE_BTLX = 2,    // "BTLX"
    QRM_BUNDLE_BTRPM = 3,   // "BTRPM"
    QRM_BUNDLE_BTDEB = 4,   // "BTDEB"
    QRM_BUNDLE_BTOSIND = 5  // "BTOSIND"
};

// The "osArch" attribute of an operating-system entry.
enum QRMOSArchitectureEnum : int {
    QRM_OS_ARCH_X86 = 0,   // "x86"
    QRM_OS_ARCH_X64 = 1,   // "x64"
    QRM_OS_ARCH_IA64 = 2,  // "ia64"
    QRM_OS_ARCH_IA32 = 3   // "ia32"
};

// The "value" attribute of a component's "Criticality": the XML digit is one
// more than the enumerator.
enum QRMCriticalityValueEnum : int {
    QRM_CRITICALITY_LEVEL1 = 0,      // "1"
    QRM_CRITICALITY_LEVEL2 = 1,      // "2"
    QRM_CRITICALITY_LEVEL3 = 2,      // "3"
    QRM_CRITICALITY_UNSPECIFIED = 3  // no "Criticality", or any other text
};

// The "lang" attribute of an inventory's root element.
enum QRMInventoryLanguageEnum : int {
    QRM_LANG_EN = 0,       // "en", and any text not listed
    QRM_LANG_FR = 1,       // "fr"
    QRM_LANG_DE = 2,       // "de"
    QRM_LANG_ES = 3,       // "es"
    QRM_LANG_ZH_HANS = 4,  // "zh-Hans"
    QRM_LANG_ZH_HANT = 5,  // "zh-Hant"
    QRM_LANG_JA = 6,       // "ja"
    QRM_LANG_HI = 7,       // "hi"
    QRM_LANG_KN = 8,       // "kn"
    QRM_LANG_TE = 9,       // "te"
    QRM_LANG_TA = 10       // "ta"
};

// The "systemIDType" attribute of an inventory "System".
enum QRMSystemIDTypeEnum : int {
    QRM_SYSTEMID_TYPE_BIOS = 0,                // "BIOS", and any text not listed
    QRM_SYSTEMID_TYPE_MULTISYSTEMCHASSIS = 1,  // "MULTISYSTEMCHASSIS"
    QRM_SYSTEMID_TYPE_RAIDCHASSIS = 2,         // "RAIDCHASSIS"
    QRM_SYSTEMID_TYPE_ROUTER = 3,              // "ROUTER"
    QRM_SYSTEMID_TYPE_NETWORKSWITCH = 4        // "NETWORKSWITCH"
};

// The component id of inventory devices that never receive updates:
// GetApplicableUpdates gives their applications no entry, whatever the
// catalog says.
constexpr unsigned long long QRM_EXCLUDED_COMPONENT_ID = 2331;

// Text of each enumerator as the XML writes it; an empty text for a value
// outside the enumeration.
QRMKIT_API const char* QRMComponentTypeText(QRMComponentTypeValueEnum value);
QRMKIT_API const char* QRMBundleTypeText(QRMBundleTypeEnum value);
QRMKIT_API const char* QRMOSArchitectureText(QRMOSArchitectureEnum value);
QRMKIT_API const char* QRMCriticalityText(QRMCriticalityValueEnum value);
QRMKIT_API const char* QRMInventoryLanguageText(QRMInventoryLanguageEnum value);
QRMKIT_API const char* QRMSystemIDTypeText(QRMSystemIDTypeEnum value);
// The enumerator's own name ("QRM_KIT_NOT_FOUND"); empty for other values.
QRMKIT_API const char* QRMKitReturnCodeName(QRMKitReturnCode code);

// Text to value: compares the text exactly (case-sensitive) with each XML
// text in enumeration order; on the first match stores the value and returns
// true, otherwise leaves `value` as it was and returns false.
QRMKIT_API bool QRMComponentTypeFromText(const VELString& text, QRMComponentTypeValueEnum& value);
QRMKIT_API bool QRMBundleTypeFromText(const VELString& text, QRMBundleTypeEnum& value);
QRMKIT_API bool QRMOSArchitectureFromText(const VELString& text, QRMOSArchitectureEnum& value);
// "1", "2", "3" only; the reader maps every other text to unspecified.
QRMKIT_API bool QRMCriticalityFromText(const VELString& text, QRMCriticalityValueEnum& value);
QRMKIT_API bool QRMInventoryLanguageFromText(const VELString& text, QRMInventoryLanguageEnum& value);
QRMKIT_API bool QRMSystemIDTypeFromText(const VELString& text, QRMSystemIDTypeEnum& value);

#endif
