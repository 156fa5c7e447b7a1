// QRMSubComponent: a part of a supported device that is updated with it: its
// name, its version, and localised texts. No reader fills it; callers may.
#ifndef QRMKIT_SUB_COMPONENT_H
#define QRMKIT_SUB_COMPONENT_H

#include "QRMDisplayList.h"

// Compared by name, then version, then the language-matching rule.
class QRMKIT_API QRMSubComponent : public QRMTextsDisplayList<QRMSubComponent, 2> {
public:
    VELString GetName() const { return GetText(0); }
    QRMKitReturnCode SetName(VELString name) { return SetText(0, std::move(name)); }
    VELString GetVersion() const { return GetText(1); }
    QRMKitReturnCode SetVersion(VELString version) { return SetText(1, std::move(version)); }
};

#endif
