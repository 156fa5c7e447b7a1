// QRMName: the localised names of a catalog entry.
#ifndef QRMKIT_NAME_H
#define QRMKIT_NAME_H

#include "QRMDisplay.h"
#include "QRMKitTypes.h"
#include "VELString.h"
#include "detail/QRMDisplayTexts.h"

#include <vector>

class QRMKIT_API QRMName {
public:
    // Appends the held objects themselves, in order, without clearing `out`.
    // The caller may read them but must not delete them; they become invalid
    // when the name is destroyed, assigned to, or has a text removed.
    void GetDisplayValues(std::vector<QRMDisplay*>& out) const;

    // The texts, under the display-text rule (QRMDisplay.h).
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // The texts by the language-matching rule.
    bool operator==(const QRMName& other) const;
    bool operator!=(const QRMName& other) const;

private:
    qrm::detail::DisplayTexts mTexts;
};

#endif
