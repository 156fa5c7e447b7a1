// QRMSubComponent: a part of a supported device that is updated with it: its
// name, its version, and localised texts. No reader fills it; callers may.
#ifndef QRMKIT_SUB_COMPONENT_H
#define QRMKIT_SUB_COMPONENT_H

#include "QRMDisplay.h"
#include "QRMKitTypes.h"
#include "VELString.h"
#include "detail/QRMDisplayTexts.h"

#include <vector>

class QRMKIT_API QRMSubComponent {
public:
    VELString GetName() const;
    QRMKitReturnCode SetName(VELString name);
    VELString GetVersion() const;
    QRMKitReturnCode SetVersion(VELString version);

    // The texts, under the display-text rule (QRMDisplay.h).
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // Name, then version, then the texts by the language-matching rule.
    bool operator==(const QRMSubComponent& other) const;
    bool operator!=(const QRMSubComponent& other) const;

private:
    VELString mName;
    VELString mVersion;
    qrm::detail::DisplayTexts mTexts;
};

#endif
