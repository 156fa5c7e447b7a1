// QRMManifest: the catalog store. It owns every component, bundle and
// inventory component that parsing produced, in document order, and the
// catalog's category maps.
#ifndef QRMKIT_MANIFEST_H
#define QRMKIT_MANIFEST_H

#include "QRMInventoryComponent.h"
#include "QRMKitTypes.h"
#include "QRMSoftwareBundle.h"
#include "QRMSoftwareComponent.h"
#include "VELString.h"
#include "VELTime.h"
#include "detail/QRMOwnedList.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

namespace qrm {

// The text after the last `separator`; the whole text when there is none.
// Gives a package path's file name and a bundle id's number.
inline std::u16string_view TextAfterLast(std::u16string_view text, char16_t separator)
{
    const std::size_t found = text.rfind(separator);
    return found == std::u16string_view::npos ? text : text.substr(found + 1);
}

// A package path's file name: the text after the last "/".
inline std::u16string_view FileNameOf(std::u16string_view path) { return TextAfterLast(path, u'/'); }

}  // namespace qrm

class QRMManifest {
public:
    typedef std::map<VELString, VELString> TextMap;

    QRMManifest();
    QRMManifest(const QRMManifest&) = delete;
    QRMManifest& operator=(const QRMManifest&) = delete;

    // Releases every entry and empties the lists, the base location, release
    // and version; lowers the parsed flag. The date and both category maps
    // stay: kept for compatibility, callers still see the categories of an
    // earlier catalog after a reset or a new parse.
    void Clear();

    void SetBaseLocation(const VELString& value);
    void SetReleaseID(const VELString& value);
    void SetVersion(const VELString& value);
    void SetDateTime(const VELTime& value);
    VELString GetBaseLocation() const;
    VELString GetReleaseID() const;
    VELString GetVersion() const;
    VELTime GetDateTime() const;

    void SetParsed();
    bool IsParsed() const;

    // Append at the end; duplicates are kept (two catalog entries with the
    // same identifier are both listed). Components and bundles are taken
    // over as the reader built them, never copied.
    void AddSoftwareComponent(std::unique_ptr<QRMSoftwareComponent> component);
    void AddSoftwareBundle(std::unique_ptr<QRMSoftwareBundle> bundle);
    void AddInventoryComponent(const QRMInventoryComponent& component);

    // Insert, not overwrite: a key already present keeps its first text.
    void AddCategoryValue(const VELString& code, const VELString& text);
    void AddCategoryAcronym(const VELString& acronym, const VELString& text);
    // Sets the caller's entry for every stored key (overwriting what the
    // caller held under it); the caller's other entries stay.
    void GetCategoryValueMap(TextMap& values) const;
    void GetCategoryAcronymMap(TextMap& acronyms) const;

    const qrm::detail::OwnedList<QRMSoftwareComponent>& SoftwareComponents() const;

    // The stored components whose path has the file name `fileName`, in
    // catalog order, appended to `components`: true when the index of file
    // names made while reading answered. It answers from the end of a
    // successful read until the first pointer to a stored component leaves
    // the library (a caller may change a path through it); after that, and
    // before, it returns false and the caller reads the paths itself.
    bool FindByFileName(std::u16string_view fileName, std::vector<QRMSoftwareComponent*>& components) const;
    // Called when a read has stored every component: the index answers from
    // now on.
    void TrustFileNames();
    // Called whenever a pointer to a stored component is handed out.
    void DistrustFileNames() const;
    const qrm::detail::OwnedList<QRMSoftwareBundle>& SoftwareBundles() const;
    const qrm::detail::OwnedList<QRMInventoryComponent>& InventoryComponents() const;

private:
    qrm::detail::OwnedList<QRMSoftwareComponent> mSoftwareComponents;
    qrm::detail::OwnedList<QRMSoftwareBundle> mSoftwareBundles;
    qrm::detail::OwnedList<QRMInventoryComponent> mInventoryComponents;
    // Every stored component under (32 bits of) the hash of its file name
    // and its place in the catalog; in catalog order until TrustFileNames
    // sorts it by hash, then place.
    struct FileNameEntry {
        std::uint32_t hash;
        std::uint32_t place;
        QRMSoftwareComponent* component;
    };
    std::vector<FileNameEntry> mFileNames;
    mutable bool mFileNamesTrusted = false;
    TextMap mCategoryValues;
    TextMap mCategoryAcronyms;
    VELString mBaseLocation;
    VELTime mDateTime;
    VELString mReleaseID;
    VELString mVersion;
    bool mParsed;
};

#endif
