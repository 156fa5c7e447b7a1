// QRMInstallInstruction: how a package is installed: a command text, its
// arguments, and localised texts. No reader fills it; callers may.
#ifndef QRMKIT_INSTALL_INSTRUCTION_H
#define QRMKIT_INSTALL_INSTRUCTION_H

#include "QRMDisplay.h"
#include "QRMKitTypes.h"
#include "VELString.h"
#include "detail/QRMDisplayTexts.h"

#include <vector>

class QRMKIT_API QRMInstallInstruction {
public:
    VELString GetCommand() const;
    QRMKitReturnCode SetCommand(VELString command);
    VELString GetArguments() const;
    QRMKitReturnCode SetArguments(VELString arguments);

    // The texts, under the display-text rule (QRMDisplay.h).
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // Command, then arguments, then the texts by the language-matching rule.
    bool operator==(const QRMInstallInstruction& other) const;
    bool operator!=(const QRMInstallInstruction& other) const;

private:
    VELString mCommand;
    VELString mArguments;
    qrm::detail::DisplayTexts mTexts;
};

#endif
