// QRMOperatingSystem: one operating system with its version and service-pack
// level, as a catalog component supports it or an inventory reports it.
// Version numbers are held as text, exactly as given.
#ifndef QRMKIT_OPERATING_SYSTEM_H
#define QRMKIT_OPERATING_SYSTEM_H

#include "QRMDisplay.h"
#include "detail/QRMDisplayTexts.h"
#include "detail/QRMOwnedList.h"

class QRMKIT_API QRMOperatingSystem {
public:
    QRMOperatingSystem();
    QRMOperatingSystem(const QRMOperatingSystem& other);
    QRMOperatingSystem& operator=(const QRMOperatingSystem& other);
    QRMOperatingSystem(QRMOperatingSystem&& other);
    QRMOperatingSystem& operator=(QRMOperatingSystem&& other);
    ~QRMOperatingSystem();

    VELString GetCode() const;
    QRMKitReturnCode SetCode(VELString code);
    VELString GetVendor() const;
    QRMKitReturnCode SetVendor(VELString vendor);
    QRMOSArchitectureEnum GetArchitecture() const;
    QRMKitReturnCode SetArchitecture(QRMOSArchitectureEnum architecture);
    VELString GetMajorVersion() const;
    QRMKitReturnCode SetMajorVersion(VELString version);
    VELString GetMinorVersion() const;
    QRMKitReturnCode SetMinorVersion(VELString version);
    VELString GetServicePackMajorVersion() const;
    QRMKitReturnCode SetServicePackMajorVersion(VELString version);
    VELString GetServicePackMinorVersion() const;
    QRMKitReturnCode SetServicePackMinorVersion(VELString version);
    bool IsForPreInstallEnvironment() const;
    QRMKitReturnCode SetPreInstallEnvironment(bool preInstallEnvironment);
    unsigned long long GetSuiteMask() const;
    QRMKitReturnCode SetSuiteMask(unsigned long long suiteMask);

    // Numeric tags: no reader fills them; they are copied and compared with
    // the object. Adding refuses a tag already held (QRM_KIT_ALREADY_EXISTS).
    QRMKitReturnCode AddNumericTag(unsigned int tag);
    void GetNumericTags(std::vector<unsigned int>& out) const;

    // The texts, under the display-text rule (QRMDisplay.h).
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // Code, vendor, architecture, the four version texts, the
    // pre-install flag, the suite mask, the tags by the all-pairs rule, then
    // the texts by the language-matching rule.
    bool operator==(const QRMOperatingSystem& other) const;
    bool operator!=(const QRMOperatingSystem& other) const;

private:
    qrm::detail::DisplayTexts mTexts;
    VELString mCode;
    VELString mVendor;
    QRMOSArchitectureEnum mArchitecture;
    VELString mMajorVersion;
    VELString mMinorVersion;
    VELString mServicePackMajorVersion;
    VELString mServicePackMinorVersion;
    bool mPreInstallEnvironment;
    unsigned long long mSuiteMask;
    qrm::detail::OwnedList<unsigned int> mNumericTags;
};

#endif
