// QRMSoftwareBundle: the set of update packages a catalog offers for one
// kind of system and operating system, with its bundle type ("BTW64",
// "BTLX", ...) and bundle id.
#ifndef QRMKIT_SOFTWARE_BUNDLE_H
#define QRMKIT_SOFTWARE_BUNDLE_H

#include "QRMBundleContent.h"
#include "QRMComponentType.h"
#include "QRMImportantInfo.h"
#include "QRMKitTypes.h"
#include "QRMName.h"
#include "QRMRevisionHistory.h"
#include "QRMSupportedOperatingSystems.h"
#include "QRMSupportedSystems.h"
#include "VELGUID.h"
#include "VELString.h"
#include "VELTime.h"
#include "detail/QRMDisplayTexts.h"
#include "detail/QRMOwnedList.h"

#include <vector>

class QRMKIT_API QRMSoftwareBundle {
public:
    QRMSoftwareBundle();
    QRMSoftwareBundle(const QRMSoftwareBundle& other);
    QRMSoftwareBundle& operator=(const QRMSoftwareBundle& other);
    QRMSoftwareBundle(QRMSoftwareBundle&& other);
    QRMSoftwareBundle& operator=(QRMSoftwareBundle&& other);
    ~QRMSoftwareBundle();

    // Getters return copies; setters store copies and return QRM_KIT_SUCCESS.
    QRMName GetName() const;
    QRMKitReturnCode SetName(QRMName name);
    QRMComponentType GetComponentType() const;
    QRMKitReturnCode SetComponentType(QRMComponentType componentType);
    QRMSupportedSystems GetTargetSystems() const;
    QRMKitReturnCode SetTargetSystems(QRMSupportedSystems systems);
    QRMSupportedOperatingSystems GetTargetOSes() const;
    QRMKitReturnCode SetTargetOSes(QRMSupportedOperatingSystems oses);
    QRMRevisionHistory GetRevisionHistory() const;
    QRMKitReturnCode SetRevisionHistory(QRMRevisionHistory history);
    QRMImportantInfo GetImportantInfo() const;
    QRMKitReturnCode SetImportantInfo(QRMImportantInfo info);
    VELString GetSchemaVersion() const;
    QRMKitReturnCode SetSchemaVersion(VELString value);
    VELString GetReleaseID() const;
    QRMKitReturnCode SetReleaseID(VELString value);
    VELTime GetDateTime() const;
    QRMKitReturnCode SetDateTime(const VELTime& value);
    VELString GetVendorVersion() const;
    QRMKitReturnCode SetVendorVersion(VELString value);
    VELString GetPath() const;
    QRMKitReturnCode SetPath(VELString value);
    VELString GetBundleID() const;
    QRMKitReturnCode SetBundleID(VELString value);
    // The two identifiers are never set by the catalog reader.
    VELGUID GetIdentifier() const;
    QRMKitReturnCode SetIdentifier(const VELGUID& value);
    VELGUID GetSecondaryIdentifier() const;
    QRMKitReturnCode SetSecondaryIdentifier(const VELGUID& value);
    QRMBundleTypeEnum GetBundleType() const;
    QRMKitReturnCode SetBundleType(QRMBundleTypeEnum value);

    // The description's texts, under the display-text rule (QRMDisplay.h).
    void GetDescriptionDisplayValues(std::vector<QRMDisplay>& out) const;
    QRMKitReturnCode AddDescriptionDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDescriptionDisplayValue(const VELString& language);

    // Appends a copy of the package entry; duplicates are kept.
    QRMKitReturnCode AddContent(QRMBundleContent content);
    // Appends copies of the package entries, in order; `out` is not cleared.
    void GetContents(std::vector<QRMBundleContent>& out) const;

    // Appends the system id of every model of every brand of the target
    // systems, in order; `out` is not cleared.
    void GetSupportedSystemIDs(std::vector<unsigned int>& out) const;

private:
    QRMName mName;
    QRMComponentType mComponentType;
    qrm::detail::DisplayTexts mDescription;
    QRMSupportedSystems mTargetSystems;
    QRMSupportedOperatingSystems mTargetOSes;
    QRMRevisionHistory mRevisionHistory;
    QRMImportantInfo mImportantInfo;
    qrm::detail::OwnedList<QRMBundleContent> mContents;
    VELString mSchemaVersion;
    VELString mReleaseID;
    VELTime mDateTime;
    VELString mVendorVersion;
    VELString mPath;
    VELString mBundleID;
    VELGUID mIdentifier;
    VELGUID mSecondaryIdentifier;
    QRMBundleTypeEnum mBundleType;
};

#endif
