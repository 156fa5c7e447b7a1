// QRMCriticality: how urgent a component is, with its texts. A new object
// holds QRM_CRITICALITY_LEVEL1 (0); the catalog reader sets
// QRM_CRITICALITY_UNSPECIFIED when a component says nothing.
#ifndef QRMKIT_CRITICALITY_H
#define QRMKIT_CRITICALITY_H

#include "QRMDisplay.h"
#include "QRMKitTypes.h"
#include "VELString.h"
#include "detail/QRMDisplayTexts.h"

#include <vector>

class QRMKIT_API QRMCriticality {
public:
    // Stored without a range check.
    QRMCriticalityValueEnum GetValue() const;
    QRMKitReturnCode SetValue(QRMCriticalityValueEnum value);

    // The texts, under the display-text rule (QRMDisplay.h).
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // Value, then the texts by the language-matching rule.
    bool operator==(const QRMCriticality& other) const;
    bool operator!=(const QRMCriticality& other) const;

private:
    QRMCriticalityValueEnum mValue = static_cast<QRMCriticalityValueEnum>(0);
    qrm::detail::DisplayTexts mTexts;
};

#endif
