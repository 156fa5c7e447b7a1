// QRMComponentType: a component's type ("BIOS", "FRMW", ...) with its texts.
// A new object holds QRM_COMPONENT_SBDL (0).
#ifndef QRMKIT_COMPONENT_TYPE_H
#define QRMKIT_COMPONENT_TYPE_H

#include "QRMDisplay.h"
#include "QRMKitTypes.h"
#include "VELString.h"
#include "detail/QRMDisplayTexts.h"

#include <vector>

class QRMKIT_API QRMComponentType {
public:
    // Stored without a range check.
    QRMComponentTypeValueEnum GetValue() const;
    QRMKitReturnCode SetValue(QRMComponentTypeValueEnum value);

    // The texts, under the display-text rule (QRMDisplay.h).
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // Value, then the texts by the language-matching rule.
    bool operator==(const QRMComponentType& other) const;
    bool operator!=(const QRMComponentType& other) const;

private:
    QRMComponentTypeValueEnum mValue = static_cast<QRMComponentTypeValueEnum>(0);
    qrm::detail::DisplayTexts mTexts;
};

#endif
