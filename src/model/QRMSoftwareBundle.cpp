#include "QRMSoftwareBundle.h"

#include "model/QRMStore.h"

// ---- QRMBundleContent

QRMBundleContent::QRMBundleContent() = default;
QRMBundleContent::QRMBundleContent(const QRMBundleContent& other) = default;
QRMBundleContent& QRMBundleContent::operator=(const QRMBundleContent& other) = default;
QRMBundleContent::~QRMBundleContent() = default;

VELString QRMBundleContent::GetPackageID() const { return mPackageID; }
QRMKitReturnCode QRMBundleContent::SetPackageID(const VELString& packageID) { return qrm::Store(mPackageID, packageID); }
VELString QRMBundleContent::GetPath() const { return mPath; }
QRMKitReturnCode QRMBundleContent::SetPath(const VELString& path) { return qrm::Store(mPath, path); }
VELGUID QRMBundleContent::GetIdentifier() const { return mIdentifier; }
QRMKitReturnCode QRMBundleContent::SetIdentifier(const VELGUID& identifier)
{
    return qrm::Store(mIdentifier, identifier);
}

bool QRMBundleContent::operator==(const QRMBundleContent& other) const
{
    return mPackageID == other.mPackageID && mPath == other.mPath && mIdentifier == other.mIdentifier;
}

bool QRMBundleContent::operator!=(const QRMBundleContent& other) const { return !(*this == other); }

// ---- QRMSoftwareBundle

QRMSoftwareBundle::QRMSoftwareBundle() : mBundleType(QRM_BUNDLE_BTW32) {}
QRMSoftwareBundle::QRMSoftwareBundle(const QRMSoftwareBundle& other) = default;
QRMSoftwareBundle& QRMSoftwareBundle::operator=(const QRMSoftwareBundle& other) = default;
QRMSoftwareBundle::~QRMSoftwareBundle() = default;

QRMName QRMSoftwareBundle::GetName() const { return mName; }
QRMKitReturnCode QRMSoftwareBundle::SetName(const QRMName& name) { return qrm::Store(mName, name); }
QRMComponentType QRMSoftwareBundle::GetComponentType() const { return mComponentType; }
QRMKitReturnCode QRMSoftwareBundle::SetComponentType(const QRMComponentType& componentType)
{
    return qrm::Store(mComponentType, componentType);
}
QRMSupportedSystems QRMSoftwareBundle::GetTargetSystems() const { return mTargetSystems; }
QRMKitReturnCode QRMSoftwareBundle::SetTargetSystems(const QRMSupportedSystems& systems)
{
    return qrm::Store(mTargetSystems, systems);
}
QRMSupportedOperatingSystems QRMSoftwareBundle::GetTargetOSes() const { return mTargetOSes; }
QRMKitReturnCode QRMSoftwareBundle::SetTargetOSes(const QRMSupportedOperatingSystems& oses)
{
    return qrm::Store(mTargetOSes, oses);
}
QRMRevisionHistory QRMSoftwareBundle::GetRevisionHistory() const { return mRevisionHistory; }
QRMKitReturnCode QRMSoftwareBundle::SetRevisionHistory(const QRMRevisionHistory& history)
{
    return qrm::Store(mRevisionHistory, history);
}
QRMImportantInfo QRMSoftwareBundle::GetImportantInfo() const { return mImportantInfo; }
QRMKitReturnCode QRMSoftwareBundle::SetImportantInfo(const QRMImportantInfo& info)
{
    return qrm::Store(mImportantInfo, info);
}
VELString QRMSoftwareBundle::GetSchemaVersion() const { return mSchemaVersion; }
QRMKitReturnCode QRMSoftwareBundle::SetSchemaVersion(const VELString& value) { return qrm::Store(mSchemaVersion, value); }
VELString QRMSoftwareBundle::GetReleaseID() const { return mReleaseID; }
QRMKitReturnCode QRMSoftwareBundle::SetReleaseID(const VELString& value) { return qrm::Store(mReleaseID, value); }
VELTime QRMSoftwareBundle::GetDateTime() const { return mDateTime; }
QRMKitReturnCode QRMSoftwareBundle::SetDateTime(const VELTime& value) { return qrm::Store(mDateTime, value); }
VELString QRMSoftwareBundle::GetVendorVersion() const { return mVendorVersion; }
QRMKitReturnCode QRMSoftwareBundle::SetVendorVersion(const VELString& value) { return qrm::Store(mVendorVersion, value); }
VELString QRMSoftwareBundle::GetPath() const { return mPath; }
QRMKitReturnCode QRMSoftwareBundle::SetPath(const VELString& value) { return qrm::Store(mPath, value); }
VELString QRMSoftwareBundle::GetBundleID() const { return mBundleID; }
QRMKitReturnCode QRMSoftwareBundle::SetBundleID(const VELString& value) { return qrm::Store(mBundleID, value); }
VELGUID QRMSoftwareBundle::GetIdentifier() const { return mIdentifier; }
QRMKitReturnCode QRMSoftwareBundle::SetIdentifier(const VELGUID& value) { return qrm::Store(mIdentifier, value); }
VELGUID QRMSoftwareBundle::GetSecondaryIdentifier() const { return mSecondaryIdentifier; }
QRMKitReturnCode QRMSoftwareBundle::SetSecondaryIdentifier(const VELGUID& value)
{
    return qrm::Store(mSecondaryIdentifier, value);
}
QRMBundleTypeEnum QRMSoftwareBundle::GetBundleType() const { return mBundleType; }
QRMKitReturnCode QRMSoftwareBundle::SetBundleType(QRMBundleTypeEnum value) { return qrm::Store(mBundleType, value); }

void QRMSoftwareBundle::GetDescriptionDisplayValues(std::vector<QRMDisplay>& out) const
{
    mDescription.GetDisplayValues(out);
}

QRMKitReturnCode QRMSoftwareBundle::AddDescriptionDisplayValue(const VELString& language,
                                                               const VELString& value)
{
    return mDescription.AddDisplayValue(language, value);
}

QRMKitReturnCode QRMSoftwareBundle::RemoveDescriptionDisplayValue(const VELString& language)
{
    return mDescription.RemoveDisplayValue(language);
}

QRMKitReturnCode QRMSoftwareBundle::AddContent(const QRMBundleContent& content)
{
    mContents.Append(content);
    return QRM_KIT_SUCCESS;
}

void QRMSoftwareBundle::GetContents(std::vector<QRMBundleContent>& out) const
{
    mContents.AppendCopiesTo(out);
}

void QRMSoftwareBundle::GetSupportedSystemIDs(std::vector<unsigned int>& out) const
{
    std::vector<QRMBrand*> brands;
    mTargetSystems.GetBrands(brands);
    std::vector<QRMModel*> models;
    for (const QRMBrand* brand : brands) {
        models.clear();
        brand->GetModels(models);
        for (const QRMModel* model : models) {
            out.push_back(model->GetSystemID());
        }
    }
}
