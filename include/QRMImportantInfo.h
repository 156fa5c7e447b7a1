// QRMImportantInfo: where a catalog entry's important notes are published
// (attribute "URL" of "ImportantInfo"), with its texts.
#ifndef QRMKIT_IMPORTANT_INFO_H
#define QRMKIT_IMPORTANT_INFO_H

#include "QRMDisplay.h"
#include "QRMKitTypes.h"
#include "VELString.h"
#include "detail/QRMDisplayTexts.h"

#include <vector>

class QRMKIT_API QRMImportantInfo {
public:
    VELString GetURL() const;
    QRMKitReturnCode SetURL(VELString url);

    // The texts, under the display-text rule (QRMDisplay.h).
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // URL, then the texts by the language-matching rule.
    bool operator==(const QRMImportantInfo& other) const;
    bool operator!=(const QRMImportantInfo& other) const;

private:
    VELString mURL;
    qrm::detail::DisplayTexts mTexts;
};

#endif
