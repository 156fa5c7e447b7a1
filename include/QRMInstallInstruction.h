// QRMInstallInstruction: how a package is installed: a command text, its
// arguments, and localised texts. No reader fills it; callers may.
#ifndef QRMKIT_INSTALL_INSTRUCTION_H
#define QRMKIT_INSTALL_INSTRUCTION_H

#include "QRMDisplayList.h"

// Compared by command, then arguments, then the language-matching rule.
class QRMKIT_API QRMInstallInstruction : public QRMTextsDisplayList<QRMInstallInstruction, 2> {
public:
    VELString GetCommand() const { return GetText(0); }
    QRMKitReturnCode SetCommand(VELString command) { return SetText(0, std::move(command)); }
    VELString GetArguments() const { return GetText(1); }
    QRMKitReturnCode SetArguments(VELString arguments) { return SetText(1, std::move(arguments)); }
};

#endif
