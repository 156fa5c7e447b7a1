// QRMRollbackInformation: what a device needs to return to an earlier
// package: identifiers and texts of the rollback package. No reader fills
// it; callers may.
#ifndef QRMKIT_ROLLBACK_INFORMATION_H
#define QRMKIT_ROLLBACK_INFORMATION_H

#include "QRMKitTypes.h"
#include "VELGUID.h"
#include "VELString.h"

class QRMKIT_API QRMRollbackInformation {
public:
    QRMRollbackInformation();
    QRMRollbackInformation(const QRMRollbackInformation& other);
    QRMRollbackInformation& operator=(const QRMRollbackInformation& other);
    QRMRollbackInformation(QRMRollbackInformation&& other);
    QRMRollbackInformation& operator=(QRMRollbackInformation&& other);
    ~QRMRollbackInformation();

    VELGUID GetRollbackIdentifier() const;
    QRMKitReturnCode SetRollbackIdentifier(const VELGUID& identifier);
    VELString GetRollbackVersion() const;
    QRMKitReturnCode SetRollbackVersion(VELString version);
    VELGUID GetPackageIdentifier() const;
    QRMKitReturnCode SetPackageIdentifier(const VELGUID& identifier);
    VELString GetPackagePath() const;
    QRMKitReturnCode SetPackagePath(VELString path);
    VELGUID GetSessionIdentifier() const;
    QRMKitReturnCode SetSessionIdentifier(const VELGUID& identifier);
    unsigned short GetSequence() const;
    QRMKitReturnCode SetSequence(unsigned short sequence);
    unsigned char GetFlags() const;
    QRMKitReturnCode SetFlags(unsigned char flags);
    VELString GetNote() const;
    QRMKitReturnCode SetNote(VELString note);

    // Every field equal, in field order.
    bool operator==(const QRMRollbackInformation& other) const;
    bool operator!=(const QRMRollbackInformation& other) const;

private:
    VELGUID mRollbackIdentifier;
    VELString mRollbackVersion;
    VELGUID mPackageIdentifier;
    VELString mPackagePath;
    VELGUID mSessionIdentifier;
    unsigned short mSequence;
    unsigned char mFlags;
    VELString mNote;
};

#endif
