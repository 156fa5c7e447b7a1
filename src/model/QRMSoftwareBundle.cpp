#include "QRMSoftwareBundle.h"

#include "model/QRMStore.h"

// ---- QRMBundleContent

QRMBundleContent::QRMBundleContent() = default;
QRMBundleContent::QRMBundleContent(const QRMBundleContent& other) = default;
QRMBundleContent& QRMBundleContent::operator=(const QRMBundleContent& other) = default;
QRMBundleContent::QRMBundleContent(QRMBundleContent&& other) = default;
QRMBundleContent& QRMBundleContent::operator=(QRMBundleContent&& other) = default;
QRMBundleContent::~QRMBundleContent() = default;

VELString QRMBundleContent::GetPackageID() const { return mPackageID; }
QRMKitReturnCode QRMBundleContent::SetPackageID(VELString packageID)
{
    return qrm::Store(mPackageID, std::move(packageID));
}
VELString QRMBundleContent::GetPath() const { return mPath; }
std::u16string_view QRMBundleContent::GetPathView() const { return mPath.GetUTF16View(); }
QRMKitReturnCode QRMBundleContent::SetPath(VELString path) { return qrm::Store(mPath, std::move(path)); }
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
QRMSoftwareBundle::QRMSoftwareBundle(QRMSoftwareBundle&& other) = default;
QRMSoftwareBundle& QRMSoftwareBundle::operator=(QRMSoftwareBundle&& other) = default;
QRMSoftwareBundle::~QRMSoftwareBundle() = default;

QRMName QRMSoftwareBundle::GetName() const { return mName; }
QRMKitReturnCode QRMSoftwareBundle::SetName(QRMName name) { return qrm::Store(mName, std::move(name)); }
QRMComponentType QRMSoftwareBundle::GetComponentType() const { return mComponentType; }
QRMKitReturnCode QRMSoftwareBundle::SetComponentType(QRMComponentType componentType)
{
    return qrm::Store(mComponentType, std::move(componentType));
}
QRMSupportedSystems QRMSoftwareBundle::GetTargetSystems() const { return mTargetSystems; }
QRMKitReturnCode QRMSoftwareBundle::SetTargetSystems(QRMSupportedSystems systems)
{
    return qrm::Store(mTargetSystems, std::move(systems));
}
QRMSupportedOperatingSystems QRMSoftwareBundle::GetTargetOSes() const { return mTargetOSes; }
QRMKitReturnCode QRMSoftwareBundle::SetTargetOSes(QRMSupportedOperatingSystems oses)
{
    return qrm::Store(mTargetOSes, std::move(oses));
}
QRMRevisionHistory QRMSoftwareBundle::GetRevisionHistory() const { return mRevisionHistory; }
QRMKitReturnCode QRMSoftwareBundle::SetRevisionHistory(QRMRevisionHistory history)
{
    return qrm::Store(mRevisionHistory, std::move(history));
}
QRMImportantInfo QRMSoftwareBundle::GetImportantInfo() const { return mImportantInfo; }
QRMKitReturnCode QRMSoftwareBundle::SetImportantInfo(QRMImportantInfo info)
{
    return qrm::Store(mImportantInfo, std::move(info));
}
VELString QRMSoftwareBundle::GetSchemaVersion() const { return mSchemaVersion; }
QRMKitReturnCode QRMSoftwareBundle::SetSchemaVersion(VELString value)
{
    return qrm::Store(mSchemaVersion, std::move(value));
}
VELString QRMSoftwareBundle::GetReleaseID() const { return mReleaseID; }
QRMKitReturnCode QRMSoftwareBundle::SetReleaseID(VELString value) { return qrm::Store(mReleaseID, std::move(value)); }
VELTime QRMSoftwareBundle::GetDateTime() const { return mDateTime; }
QRMKitReturnCode QRMSoftwareBundle::SetDateTime(const VELTime& value) { return qrm::Store(mDateTime, value); }
VELString QRMSoftwareBundle::GetVendorVersion() const { return mVendorVersion; }
QRMKitReturnCode QRMSoftwareBundle::SetVendorVersion(VELString value)
{
    return qrm::Store(mVendorVersion, std::move(value));
}
VELString QRMSoftwareBundle::GetPath() const { return mPath; }
QRMKitReturnCode QRMSoftwareBundle::SetPath(VELString value) { return qrm::Store(mPath, std::move(value)); }
VELString QRMSoftwareBundle::GetBundleID() const { return mBundleID; }
QRMKitReturnCode QRMSoftwareBundle::SetBundleID(VELString value) { return qrm::Store(mBundleID, std::move(value)); }
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
    mDescription.AppendCopiesTo(out);
}

QRMKitReturnCode QRMSoftwareBundle::AddDescriptionDisplayValue(VELString language, VELString value)
{
    return mDescription.Add(std::move(language), std::move(value));
}

QRMKitReturnCode QRMSoftwareBundle::RemoveDescriptionDisplayValue(const VELString& language)
{
    return mDescription.Remove(language);
}

QRMKitReturnCode QRMSoftwareBundle::AddContent(QRMBundleContent content)
{
    mContents.Append(std::move(content));
    return QRM_KIT_SUCCESS;
}

void QRMSoftwareBundle::GetContents(std::vector<QRMBundleContent>& out) const { mContents.AppendCopiesTo(out); }

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
