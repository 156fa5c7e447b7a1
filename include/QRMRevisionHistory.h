// QRMRevisionHistory: the localised revision notes of a catalog entry.
#ifndef QRMKIT_REVISION_HISTORY_H
#define QRMKIT_REVISION_HISTORY_H

#include "QRMDisplay.h"
#include "QRMKitTypes.h"
#include "VELString.h"
#include "detail/QRMDisplayTexts.h"

#include <vector>

class QRMKIT_API QRMRevisionHistory {
public:
    // The texts, under the display-text rule (QRMDisplay.h).
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // The texts by the language-matching rule.
    bool operator==(const QRMRevisionHistory& other) const;
    bool operator!=(const QRMRevisionHistory& other) const;

private:
    qrm::detail::DisplayTexts mTexts;
};

#endif
