// QRMBundleContent: one package of a software bundle (a child of the
// bundle's "Contents"): its package id and its file name.
#ifndef QRMKIT_BUNDLE_CONTENT_H
#define QRMKIT_BUNDLE_CONTENT_H

#include "QRMKitTypes.h"
#include "VELGUID.h"
#include "VELString.h"

#include <string_view>

class QRMKIT_API QRMBundleContent {
public:
    QRMBundleContent();
    QRMBundleContent(const QRMBundleContent& other);
    QRMBundleContent& operator=(const QRMBundleContent& other);
    QRMBundleContent(QRMBundleContent&& other);
    QRMBundleContent& operator=(QRMBundleContent&& other);
    ~QRMBundleContent();

    VELString GetPackageID() const;
    QRMKitReturnCode SetPackageID(VELString packageID);
    VELString GetPath() const;
    // The path in place, without a copy: valid while this object lives and
    // its path is not changed. For callers that scan many entries.
    std::u16string_view GetPathView() const;
    QRMKitReturnCode SetPath(VELString path);
    // Never set by the catalog reader: the nil GUID unless a caller sets it.
    VELGUID GetIdentifier() const;
    QRMKitReturnCode SetIdentifier(const VELGUID& identifier);

    bool operator==(const QRMBundleContent& other) const;
    bool operator!=(const QRMBundleContent& other) const;

private:
    VELString mPackageID;
    VELString mPath;
    VELGUID mIdentifier;
};

#endif
