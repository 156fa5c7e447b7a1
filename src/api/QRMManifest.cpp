#include "api/QRMManifest.h"

#include "model/QRMStore.h"

#include <algorithm>
#include <functional>

namespace {

void CopyInto(const QRMManifest::TextMap& from, QRMManifest::TextMap& to)
{
    for (const auto& entry : from) {
        to[entry.first] = entry.second;
    }
}

}  // namespace

QRMManifest::QRMManifest() : mParsed(false) {}

void QRMManifest::Clear()
{
    mInventoryComponents.Clear();
    mSoftwareComponents.Clear();
    mSoftwareBundles.Clear();
    mFileNames.clear();
    mFileNamesTrusted = false;
    mBaseLocation = VELString();
    mReleaseID = VELString();
    mVersion = VELString();
    mParsed = false;
}

void QRMManifest::SetBaseLocation(const VELString& value) { mBaseLocation = value; }

void QRMManifest::SetReleaseID(const VELString& value) { mReleaseID = value; }

void QRMManifest::SetVersion(const VELString& value) { mVersion = value; }

void QRMManifest::SetDateTime(const VELTime& value) { mDateTime = value; }

VELString QRMManifest::GetBaseLocation() const { return mBaseLocation; }
VELString QRMManifest::GetReleaseID() const { return mReleaseID; }
VELString QRMManifest::GetVersion() const { return mVersion; }
VELTime QRMManifest::GetDateTime() const { return mDateTime; }

void QRMManifest::SetParsed() { mParsed = true; }

bool QRMManifest::IsParsed() const { return mParsed; }

namespace {

std::uint32_t FileNameHash(std::u16string_view fileName)
{
    return static_cast<std::uint32_t>(std::hash<std::u16string_view>()(fileName));
}

}  // namespace

void QRMManifest::AddSoftwareComponent(std::unique_ptr<QRMSoftwareComponent> component)
{
    const std::uint32_t hash = FileNameHash(qrm::FileNameOf(component->GetPathView()));
    QRMSoftwareComponent* stored = mSoftwareComponents.Append(std::move(component));
    // Should this fail, the read fails and the index is never trusted.
    mFileNames.push_back({hash, static_cast<std::uint32_t>(mFileNames.size()), stored});
}

bool QRMManifest::FindByFileName(std::u16string_view fileName, std::vector<QRMSoftwareComponent*>& components) const
{
    if (!mFileNamesTrusted) {
        return false;
    }
    const std::uint32_t hash = FileNameHash(fileName);
    auto first = std::lower_bound(mFileNames.begin(), mFileNames.end(), hash,
                                  [](const FileNameEntry& entry, std::uint32_t value) { return entry.hash < value; });
    for (auto entry = first; entry != mFileNames.end() && entry->hash == hash; ++entry) {
        if (qrm::FileNameOf(entry->component->GetPathView()) == fileName) {
            components.push_back(entry->component);
        }
    }
    return true;
}

void QRMManifest::TrustFileNames()
{
    // Places are unique, so no two entries tie: equal names keep catalog
    // order without a stable sort's buffer.
    std::sort(mFileNames.begin(), mFileNames.end(), [](const FileNameEntry& a, const FileNameEntry& b) {
        return a.hash != b.hash ? a.hash < b.hash : a.place < b.place;
    });
    mFileNamesTrusted = true;
}

void QRMManifest::DistrustFileNames() const { mFileNamesTrusted = false; }

void QRMManifest::AddSoftwareBundle(std::unique_ptr<QRMSoftwareBundle> bundle)
{
    mSoftwareBundles.Append(std::move(bundle));
}

void QRMManifest::AddInventoryComponent(const QRMInventoryComponent& component)
{
    mInventoryComponents.Append(component);
}

void QRMManifest::AddCategoryValue(const VELString& code, const VELString& text)
{
    mCategoryValues.emplace(code, text);
}

void QRMManifest::AddCategoryAcronym(const VELString& acronym, const VELString& text)
{
    mCategoryAcronyms.emplace(acronym, text);
}

void QRMManifest::GetCategoryValueMap(TextMap& values) const { CopyInto(mCategoryValues, values); }

void QRMManifest::GetCategoryAcronymMap(TextMap& acronyms) const { CopyInto(mCategoryAcronyms, acronyms); }

const qrm::detail::OwnedList<QRMSoftwareComponent>& QRMManifest::SoftwareComponents() const
{
    return mSoftwareComponents;
}

const qrm::detail::OwnedList<QRMSoftwareBundle>& QRMManifest::SoftwareBundles() const { return mSoftwareBundles; }

const qrm::detail::OwnedList<QRMInventoryComponent>& QRMManifest::InventoryComponents() const
{
    return mInventoryComponents;
}
