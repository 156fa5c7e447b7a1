// QRMLUCategory: a component's second category code with its texts; the same
// shape and behaviour as QRMCategory.
#ifndef QRMKIT_LU_CATEGORY_H
#define QRMKIT_LU_CATEGORY_H

#include "QRMDisplay.h"
#include "QRMKitTypes.h"
#include "VELString.h"
#include "detail/QRMDisplayTexts.h"

#include <vector>

class QRMKIT_API QRMLUCategory {
public:
    VELString GetCode() const;
    QRMKitReturnCode SetCode(VELString code);

    // The texts, under the display-text rule (QRMDisplay.h).
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // Code, then the texts by the language-matching rule.
    bool operator==(const QRMLUCategory& other) const;
    bool operator!=(const QRMLUCategory& other) const;

private:
    VELString mCode;
    qrm::detail::DisplayTexts mTexts;
};

#endif
