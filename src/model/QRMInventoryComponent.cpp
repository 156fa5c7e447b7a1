#include "QRMInventoryComponent.h"

QRMInventoryComponent::QRMInventoryComponent() : mSize(0) {}
QRMInventoryComponent::QRMInventoryComponent(const QRMInventoryComponent& other) = default;
QRMInventoryComponent& QRMInventoryComponent::operator=(const QRMInventoryComponent& other) = default;
QRMInventoryComponent::QRMInventoryComponent(QRMInventoryComponent&& other) = default;
QRMInventoryComponent& QRMInventoryComponent::operator=(QRMInventoryComponent&& other) = default;
QRMInventoryComponent::~QRMInventoryComponent() = default;

VELString QRMInventoryComponent::GetSchemaVersion() const { return mSchemaVersion; }
QRMKitReturnCode QRMInventoryComponent::SetSchemaVersion(VELString value)
{
    mSchemaVersion = std::move(value);
    return QRM_KIT_SUCCESS;
}
VELString QRMInventoryComponent::GetReleaseID() const { return mReleaseID; }
QRMKitReturnCode QRMInventoryComponent::SetReleaseID(VELString value)
{
    mReleaseID = std::move(value);
    return QRM_KIT_SUCCESS;
}
VELTime QRMInventoryComponent::GetReleaseDate() const { return mReleaseDate; }
QRMKitReturnCode QRMInventoryComponent::SetReleaseDate(const VELTime& value)
{
    mReleaseDate = value;
    return QRM_KIT_SUCCESS;
}
VELString QRMInventoryComponent::GetVendorVersion() const { return mVendorVersion; }
QRMKitReturnCode QRMInventoryComponent::SetVendorVersion(VELString value)
{
    mVendorVersion = std::move(value);
    return QRM_KIT_SUCCESS;
}
VELString QRMInventoryComponent::GetTolvarVersion() const { return mTolvarVersion; }
QRMKitReturnCode QRMInventoryComponent::SetTolvarVersion(VELString value)
{
    mTolvarVersion = std::move(value);
    return QRM_KIT_SUCCESS;
}
VELString QRMInventoryComponent::GetOSCode() const { return mOSCode; }
QRMKitReturnCode QRMInventoryComponent::SetOSCode(VELString value)
{
    mOSCode = std::move(value);
    return QRM_KIT_SUCCESS;
}
VELString QRMInventoryComponent::GetMD5Hash() const { return mHashMD5; }
QRMKitReturnCode QRMInventoryComponent::SetMD5Hash(VELString value)
{
    mHashMD5 = value;
    return QRM_KIT_SUCCESS;
}
VELString QRMInventoryComponent::GetPath() const { return mPath; }
QRMKitReturnCode QRMInventoryComponent::SetPath(VELString value)
{
    mPath = std::move(value);
    return QRM_KIT_SUCCESS;
}
VELTime QRMInventoryComponent::GetDateTime() const { return mDateTime; }
QRMKitReturnCode QRMInventoryComponent::SetDateTime(const VELTime& value)
{
    mDateTime = value;
    return QRM_KIT_SUCCESS;
}
unsigned long long QRMInventoryComponent::GetSize() const { return mSize; }
QRMKitReturnCode QRMInventoryComponent::SetSize(unsigned long long value)
{
    mSize = value;
    return QRM_KIT_SUCCESS;
}

bool QRMInventoryComponent::operator==(const QRMInventoryComponent& other) const
{
    return mSchemaVersion == other.mSchemaVersion && mReleaseID == other.mReleaseID &&
           mReleaseDate == other.mReleaseDate && mVendorVersion == other.mVendorVersion &&
           mTolvarVersion == other.mTolvarVersion && mOSCode == other.mOSCode && mHashMD5 == other.mHashMD5 &&
           mPath == other.mPath && mDateTime == other.mDateTime && mSize == other.mSize;
}

bool QRMInventoryComponent::operator!=(const QRMInventoryComponent& other) const { return !(*this == other); }
