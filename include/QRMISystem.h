// QRMISystem: the identity of the inventoried computer ("System" element):
// its system id, id type, display name and service tag.
#ifndef QRMKIT_I_SYSTEM_H
#define QRMKIT_I_SYSTEM_H

#include "QRMDisplay.h"
#include "QRMKitTypes.h"
#include "VELString.h"
#include "detail/QRMDisplayTexts.h"

class QRMKIT_API QRMISystem {
public:
    QRMISystem();
    QRMISystem(const QRMISystem& other);
    QRMISystem& operator=(const QRMISystem& other);
    QRMISystem(QRMISystem&& other);
    QRMISystem& operator=(QRMISystem&& other);
    ~QRMISystem();

    // The number that "systemID" spells in hexadecimal.
    unsigned int GetSystemID() const;
    QRMKitReturnCode SetSystemID(unsigned int systemID);
    QRMSystemIDTypeEnum GetSystemIDType() const;
    QRMKitReturnCode SetSystemIDType(QRMSystemIDTypeEnum systemIDType);
    VELString GetDisplay() const;
    QRMKitReturnCode SetDisplay(VELString display);
    VELString GetServiceTag() const;
    QRMKitReturnCode SetServiceTag(VELString serviceTag);

    // The texts, under the display-text rule (QRMDisplay.h).
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // System id, id type, display, service tag, then the texts by the
    // language-matching rule.
    bool operator==(const QRMISystem& other) const;
    bool operator!=(const QRMISystem& other) const;

private:
    qrm::detail::DisplayTexts mTexts;
    unsigned int mSystemID;
    QRMSystemIDTypeEnum mSystemIDType;
    VELString mDisplay;
    VELString mServiceTag;
};

#endif
