// QRMDependency: a package that a supported device's update depends on, with
// the hardware identities it concerns. No reader fills it; callers may.
#ifndef QRMKIT_DEPENDENCY_H
#define QRMKIT_DEPENDENCY_H

#include "QRMDisplay.h"
#include "QRMPCIInfo.h"
#include "QRMPnPInfo.h"
#include "VELGUID.h"
#include "detail/QRMDisplayTexts.h"
#include "detail/QRMOwnedList.h"

#include <vector>

class QRMKIT_API QRMDependency {
public:
    QRMDependency();
    QRMDependency(const QRMDependency& other);
    QRMDependency& operator=(const QRMDependency& other);
    QRMDependency(QRMDependency&& other);
    QRMDependency& operator=(QRMDependency&& other);
    ~QRMDependency();

    unsigned int GetType() const;
    QRMKitReturnCode SetType(unsigned int type);
    VELString GetName() const;
    QRMKitReturnCode SetName(VELString name);
    VELString GetVersion() const;
    QRMKitReturnCode SetVersion(VELString version);
    VELGUID GetIdentifier() const;
    QRMKitReturnCode SetIdentifier(const VELGUID& identifier);
    VELString GetPath() const;
    QRMKitReturnCode SetPath(VELString path);
    unsigned long long GetSize() const;
    QRMKitReturnCode SetSize(unsigned long long size);
    unsigned int GetFlags() const;
    QRMKitReturnCode SetFlags(unsigned int flags);

    // QRM_KIT_ALREADY_EXISTS when an equal entry is held, else append a copy;
    // the getters append copies in order.
    QRMKitReturnCode AddPCIInfo(QRMPCIInfo pciInfo);
    void GetPCIInfo(std::vector<QRMPCIInfo>& out) const;
    QRMKitReturnCode AddPnPInfo(QRMPnPInfo pnpInfo);
    void GetPnPInfo(std::vector<QRMPnPInfo>& out) const;

    // The texts, under the display-text rule (QRMDisplay.h).
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // The fields in order, the texts by the language-matching rule, then the
    // PCI and PnP lists by the all-pairs rule.
    bool operator==(const QRMDependency& other) const;
    bool operator!=(const QRMDependency& other) const;

private:
    qrm::detail::DisplayTexts mTexts;
    unsigned int mType;
    VELString mName;
    VELString mVersion;
    VELGUID mIdentifier;
    VELString mPath;
    unsigned long long mSize;
    unsigned int mFlags;
    qrm::detail::OwnedList<QRMPCIInfo> mPCIInfo;
    qrm::detail::OwnedList<QRMPnPInfo> mPnPInfo;
};

#endif
