// QRMSoftwareComponent: one update package of the catalog: its identity,
// package file, descriptive texts, and the devices, systems and operating
// systems it applies to. Versions, identifiers and the hash are held as the
// catalog's text.
#ifndef QRMKIT_SOFTWARE_COMPONENT_H
#define QRMKIT_SOFTWARE_COMPONENT_H

#include "QRMCategory.h"
#include "QRMComponentType.h"
#include "QRMCriticality.h"
#include "QRMDevice.h"
#include "QRMFMPWrapperInformation.h"
#include "QRMImportantInfo.h"
#include "QRMInstallInstruction.h"
#include "QRMKitTypes.h"
#include "QRMLUCategory.h"
#include "QRMName.h"
#include "QRMRevisionHistory.h"
#include "QRMSupportedOperatingSystems.h"
#include "QRMSupportedSystems.h"
#include "VELGUID.h"
#include "VELString.h"
#include "detail/QRMDisplayTexts.h"
#include "detail/QRMOwnedList.h"
#include "detail/QRMSeldom.h"

#include "VELTime.h"
#include <string_view>

#include <vector>

class QRMKIT_API QRMSoftwareComponent {
public:
    QRMSoftwareComponent();
    QRMSoftwareComponent(const QRMSoftwareComponent& other);
    QRMSoftwareComponent& operator=(const QRMSoftwareComponent& other);
    QRMSoftwareComponent(QRMSoftwareComponent&& other);
    QRMSoftwareComponent& operator=(QRMSoftwareComponent&& other);
    ~QRMSoftwareComponent();

    // Getters return copies; setters store copies and return QRM_KIT_SUCCESS.
    QRMName GetName() const;
    QRMKitReturnCode SetName(QRMName name);
    QRMComponentType GetComponentType() const;
    QRMKitReturnCode SetComponentType(QRMComponentType componentType);
    QRMCategory GetCategory() const;
    QRMKitReturnCode SetCategory(QRMCategory category);
    QRMLUCategory GetLUCategory() const;
    QRMKitReturnCode SetLUCategory(QRMLUCategory category);
    QRMSupportedSystems GetSupportedSystems() const;
    QRMKitReturnCode SetSupportedSystems(QRMSupportedSystems systems);
    QRMSupportedOperatingSystems GetSupportedOperatingSystems() const;
    QRMKitReturnCode SetSupportedOperatingSystems(QRMSupportedOperatingSystems systems);
    QRMInstallInstruction GetInstallInstruction() const;
    QRMKitReturnCode SetInstallInstruction(QRMInstallInstruction instruction);
    QRMRevisionHistory GetRevisionHistory() const;
    QRMKitReturnCode SetRevisionHistory(QRMRevisionHistory history);
    QRMImportantInfo GetImportantInfo() const;
    QRMKitReturnCode SetImportantInfo(QRMImportantInfo info);
    QRMCriticality GetCriticality() const;
    QRMKitReturnCode SetCriticality(QRMCriticality criticality);
    VELGUID GetMSIID() const;
    QRMKitReturnCode SetMSIID(VELGUID& id);
    VELString GetSchemaVersion() const;
    QRMKitReturnCode SetSchemaVersion(VELString value);
    VELString GetReleaseID() const;
    QRMKitReturnCode SetReleaseID(VELString value);
    VELTime GetReleaseDate() const;
    QRMKitReturnCode SetReleaseDate(const VELTime& value);
    VELString GetVendorVersion() const;
    QRMKitReturnCode SetVendorVersion(VELString value);
    VELString GetTolvarVersion() const;
    QRMKitReturnCode SetTolvarVersion(VELString value);
    VELString GetPackageType() const;
    QRMKitReturnCode SetPackageType(VELString value);
    VELString GetXMLGenVersion() const;
    QRMKitReturnCode SetXMLGenVersion(VELString value);
    VELString GetPath() const;
    // The path in place, without a copy: valid while this object lives and
    // its path is not changed. For callers that scan many entries.
    std::u16string_view GetPathView() const;
    QRMKitReturnCode SetPath(VELString value);
    VELString GetPackageID() const;
    QRMKitReturnCode SetPackageID(VELString value);
    VELTime GetDateTime() const;
    QRMKitReturnCode SetDateTime(const VELTime& value);
    VELString GetMD5Hash() const;
    QRMKitReturnCode SetMD5Hash(VELString value);
    unsigned long long GetSize() const;
    QRMKitReturnCode SetSize(unsigned long long value);
    VELGUID GetIdentifier() const;
    QRMKitReturnCode SetIdentifier(VELGUID& id);
    VELGUID GetPredecessor() const;
    QRMKitReturnCode SetPredecessor(VELGUID& id);
    bool RequiresReboot() const;
    QRMKitReturnCode SetRequiresReboot(bool value);
    bool RequiresContainerPowerCycle() const;
    QRMKitReturnCode SetRequiresContainerPowerCycle(bool value);

    // The description's texts, under the display-text rule (QRMDisplay.h).
    void GetDescriptionDisplayValues(std::vector<QRMDisplay>& out) const;
    QRMKitReturnCode AddDescriptionDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDescriptionDisplayValue(const VELString& language);

    // Appends the held devices themselves, in order, without clearing `out`;
    // they stay valid until the component is changed or destroyed.
    void GetSupportedDevices(std::vector<QRMDevice*>& out) const;
    // QRM_KIT_ALREADY_EXISTS when an equal device is held, else a copy is
    // appended.
    QRMKitReturnCode AddDeviceSupport(QRMDevice& device);
    // The same, taking over the contents of `device`.
    QRMKitReturnCode AddDeviceSupport(QRMDevice&& device);
    // QRM_KIT_NOT_FOUND when none is equal; else releases the first equal one.
    QRMKitReturnCode RemoveDeviceSupport(QRMDevice& device);

    // Appends copies, in order; add and remove as for devices.
    void GetWrappers(std::vector<QRMFMPWrapperInformation>& out) const;
    QRMKitReturnCode AddWrapper(QRMFMPWrapperInformation& wrapper);
    QRMKitReturnCode RemoveWrapper(QRMFMPWrapperInformation& wrapper);

    // Every field in order, stopping at the first difference: texts by the
    // language-matching rule, the devices and wrappers by the all-pairs rule,
    // strings exactly (a hash in upper case differs from the same in lower).
    bool operator==(const QRMSoftwareComponent& other) const;
    bool operator!=(const QRMSoftwareComponent& other) const;

private:
    QRMName mName;
    QRMComponentType mComponentType;
    qrm::detail::DisplayTexts mDescription;
    QRMCategory mCategory;
    QRMLUCategory mLUCategory;
    qrm::detail::OwnedList<QRMDevice> mSupportedDevices;
    QRMSupportedSystems mSupportedSystems;
    QRMSupportedOperatingSystems mSupportedOperatingSystems;
    QRMImportantInfo mImportantInfo;
    QRMCriticality mCriticality;
    // Install instruction, revision history, wrappers, GUIDs, size, flags.
    struct Extras;
    qrm::detail::Seldom<Extras> mExtras;
    VELString mSchemaVersion;
    VELString mReleaseID;
    VELTime mReleaseDate;
    VELString mVendorVersion;
    VELString mTolvarVersion;
    VELString mPackageType;
    VELString mPath;
    VELString mPackageID;
    VELTime mDateTime;
    VELString mHashMD5;
};

#endif
