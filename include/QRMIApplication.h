// QRMIApplication: one application, driver, firmware or BIOS installed for
// an inventory device, with its installed version.
#ifndef QRMKIT_I_APPLICATION_H
#define QRMKIT_I_APPLICATION_H

#include "QRMDisplay.h"
#include "QRMKitTypes.h"
#include "VELString.h"
#include "detail/QRMDisplayTexts.h"

class QRMKIT_API QRMIApplication {
public:
    QRMIApplication();
    QRMIApplication(const QRMIApplication& other);
    QRMIApplication& operator=(const QRMIApplication& other);
    QRMIApplication(QRMIApplication&& other);
    QRMIApplication& operator=(QRMIApplication&& other);
    ~QRMIApplication();

    QRMComponentTypeValueEnum GetComponentType() const;
    QRMKitReturnCode SetComponentType(const QRMComponentTypeValueEnum& componentType);
    VELString GetVersion() const;
    QRMKitReturnCode SetVersion(VELString version);
    VELString GetDisplay() const;
    QRMKitReturnCode SetDisplay(VELString display);
    VELString GetSubComponentID() const;
    QRMKitReturnCode SetSubComponentID(VELString subComponentID);

    // The texts, under the display-text rule (QRMDisplay.h).
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // Component type, version, display, sub-component id, then the texts by
    // the language-matching rule (same count; texts agree where languages
    // coincide).
    bool operator==(const QRMIApplication& other) const;
    bool operator!=(const QRMIApplication& other) const;

private:
    qrm::detail::DisplayTexts mTexts;
    QRMComponentTypeValueEnum mComponentType;
    VELString mVersion;
    VELString mDisplay;
    VELString mSubComponentID;
};

#endif
