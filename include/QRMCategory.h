// QRMCategory: a component's category code ("BI", "SF2") with its texts.
#ifndef QRMKIT_CATEGORY_H
#define QRMKIT_CATEGORY_H

#include "QRMDisplay.h"
#include "QRMKitTypes.h"
#include "VELString.h"
#include "detail/QRMDisplayTexts.h"

#include <vector>

class QRMKIT_API QRMCategory {
public:
    VELString GetCode() const;
    QRMKitReturnCode SetCode(VELString code);

    // The texts, under the display-text rule (QRMDisplay.h).
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // Code, then the texts by the language-matching rule.
    bool operator==(const QRMCategory& other) const;
    bool operator!=(const QRMCategory& other) const;

private:
    VELString mCode;
    qrm::detail::DisplayTexts mTexts;
};

#endif
