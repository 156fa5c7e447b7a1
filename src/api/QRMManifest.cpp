#include "api/QRMManifest.h"

#include "model/QRMStore.h"

namespace {

void CopyInto(const QRMManifest::TextMap& from, QRMManifest::TextMap& to)
{
    for (const auto& entry : from) {
        to[entry.first] = entry.second;
    }
}

}  // namespace

QRMManifest::QRMManifest() : mParsed(false) {}

QRMKitReturnCode QRMManifest::Clear()
{
    mInventoryComponents.Clear();
    mSoftwareComponents.Clear();
    mSoftwareBundles.Clear();
    mSpareComponents.Clear();
    mBaseLocation = VELString();
    mReleaseID = VELString();
    mVersion = VELString();
    mParsed = false;
    return QRM_KIT_SUCCESS;
}

QRMKitReturnCode QRMManifest::SetBaseLocation(const VELString& value) { return qrm::Store(mBaseLocation, value); }

QRMKitReturnCode QRMManifest::SetReleaseID(const VELString& value) { return qrm::Store(mReleaseID, value); }

QRMKitReturnCode QRMManifest::SetVersion(const VELString& value) { return qrm::Store(mVersion, value); }

QRMKitReturnCode QRMManifest::SetDateTime(const VELTime& value) { return qrm::Store(mDateTime, value); }

VELString QRMManifest::GetBaseLocation() const { return mBaseLocation; }
VELString QRMManifest::GetReleaseID() const { return mReleaseID; }
VELString QRMManifest::GetVersion() const { return mVersion; }
VELTime QRMManifest::GetDateTime() const { return mDateTime; }

QRMKitReturnCode QRMManifest::SetParsed() { return qrm::Store(mParsed, true); }

bool QRMManifest::IsParsed() const { return mParsed; }

QRMKitReturnCode QRMManifest::AddSoftwareComponent(std::unique_ptr<QRMSoftwareComponent> component)
{
    mSoftwareComponents.Append(std::move(component));
    return QRM_KIT_SUCCESS;
}

QRMKitReturnCode QRMManifest::AddSoftwareBundle(std::unique_ptr<QRMSoftwareBundle> bundle)
{
    mSoftwareBundles.Append(std::move(bundle));
    return QRM_KIT_SUCCESS;
}

QRMKitReturnCode QRMManifest::AddInventoryComponent(const QRMInventoryComponent& component)
{
    mInventoryComponents.Append(component);
    return QRM_KIT_SUCCESS;
}

QRMKitReturnCode QRMManifest::AddCategoryValue(const VELString& code, const VELString& text)
{
    mCategoryValues.emplace(code, text);
    return QRM_KIT_SUCCESS;
}

QRMKitReturnCode QRMManifest::AddCategoryAcronym(const VELString& acronym, const VELString& text)
{
    mCategoryAcronyms.emplace(acronym, text);
    return QRM_KIT_SUCCESS;
}

void QRMManifest::GetCategoryValueMap(TextMap& values) const { CopyInto(mCategoryValues, values); }

void QRMManifest::GetCategoryAcronymMap(TextMap& acronyms) const
{
    CopyInto(mCategoryAcronyms, acronyms);
}

const QRMOwnedList<QRMSoftwareComponent>& QRMManifest::SoftwareComponents() const
{
    return mSoftwareComponents;
}

const QRMOwnedList<QRMSoftwareBundle>& QRMManifest::SoftwareBundles() const
{
    return mSoftwareBundles;
}

const QRMOwnedList<QRMInventoryComponent>& QRMManifest::InventoryComponents() const
{
    return mInventoryComponents;
}
