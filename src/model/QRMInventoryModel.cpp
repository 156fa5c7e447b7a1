// The inventory's devices and their installed applications.
#include "QRMIApplication.h"
#include "QRMIDevice.h"
#include "QRMISystem.h"

#include "model/QRMDisplayValues.h"
#include "model/QRMStore.h"

#include <string_view>
#include <unordered_map>

// ---- QRMIApplication

QRMIApplication::QRMIApplication() : mComponentType(QRM_COMPONENT_SBDL) {}
QRMIApplication::QRMIApplication(const QRMIApplication& other) = default;
QRMIApplication& QRMIApplication::operator=(const QRMIApplication& other) = default;
QRMIApplication::QRMIApplication(QRMIApplication&& other) = default;
QRMIApplication& QRMIApplication::operator=(QRMIApplication&& other) = default;
QRMIApplication::~QRMIApplication() = default;

QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(QRMIApplication, mTexts)

QRMComponentTypeValueEnum QRMIApplication::GetComponentType() const { return mComponentType; }
QRMKitReturnCode QRMIApplication::SetComponentType(const QRMComponentTypeValueEnum& componentType)
{
    return qrm::Store(mComponentType, componentType);
}
VELString QRMIApplication::GetVersion() const { return mVersion; }
QRMKitReturnCode QRMIApplication::SetVersion(VELString version) { return qrm::Store(mVersion, std::move(version)); }
VELString QRMIApplication::GetDisplay() const { return mDisplay; }
QRMKitReturnCode QRMIApplication::SetDisplay(VELString display) { return qrm::Store(mDisplay, std::move(display)); }
VELString QRMIApplication::GetSubComponentID() const { return mSubComponentID; }
QRMKitReturnCode QRMIApplication::SetSubComponentID(VELString subComponentID)
{
    return qrm::Store(mSubComponentID, std::move(subComponentID));
}

bool QRMIApplication::operator==(const QRMIApplication& other) const
{
    return mComponentType == other.mComponentType && mVersion == other.mVersion && mDisplay == other.mDisplay &&
           mSubComponentID == other.mSubComponentID && mTexts.Same(other.mTexts);
}

bool QRMIApplication::operator!=(const QRMIApplication& other) const { return !(*this == other); }

// ---- QRMIDevice

namespace qrm::detail {

// Applications by a hash of the texts their equality compares exactly, so
// that equal applications always share a bucket.
struct ApplicationList::Index {
    static std::size_t HashOf(const QRMIApplication& application)
    {
        std::hash<std::u16string_view> text;
        std::size_t hash = static_cast<std::size_t>(application.GetComponentType());
        for (const VELString& part :
             {application.GetVersion(), application.GetDisplay(), application.GetSubComponentID()}) {
            hash = hash * 1000003u ^ text(part.GetUTF16View());
        }
        return hash;
    }

    std::unordered_multimap<std::size_t, const QRMIApplication*> byHash;
};

ApplicationList::ApplicationList() : mHandedOut(false) {}

ApplicationList::ApplicationList(const ApplicationList& other) : mEntries(other.mEntries), mHandedOut(false) {}

ApplicationList::~ApplicationList() = default;

void ApplicationList::HandOut(std::vector<QRMIApplication*>& out) const
{
    mHandedOut = true;
    mIndex.reset();
    mEntries.AppendPointersTo(out);
}

QRMKitReturnCode ApplicationList::AddUnique(QRMIApplication application)
{
    if (mHandedOut) {
        return mEntries.AddUnique(std::move(application));
    }
    if (!mIndex) {
        mIndex.reset(new Index);
        for (const QRMIApplication* held : mEntries) {
            mIndex->byHash.emplace(Index::HashOf(*held), held);
        }
    }
    const std::size_t hash = Index::HashOf(application);
    auto sameHash = mIndex->byHash.equal_range(hash);
    for (auto entry = sameHash.first; entry != sameHash.second; ++entry) {
        if (*entry->second == application) {
            return QRM_KIT_ALREADY_EXISTS;
        }
    }
    const QRMIApplication* added = mEntries.Append(std::move(application));
    mIndex->byHash.emplace(hash, added);
    return QRM_KIT_SUCCESS;
}

void ApplicationList::RetireEqual(const QRMIApplication& application)
{
    // Removal clears and moves entries: the index is rebuilt when needed.
    mIndex.reset();
    // After taking an entry out, the walk moves one place on from where it
    // stood, so the entry that moved into the freed place is not examined.
    std::size_t position = 0;
    while (position < mEntries.Size()) {
        if (*mEntries.At(position) == application) {
            mEntries.Retire(position);
        }
        ++position;
    }
}

}  // namespace qrm::detail

QRMIDevice::QRMIDevice()
    : mBus(0), mDevice(0), mFunction(0), mComponentID(0), mVendorID(0), mDeviceID(0), mSubDeviceID(0), mSubVendorID(0),
      mComponentInstance(0)
{}

QRMIDevice::QRMIDevice(const QRMIDevice& other)
    : mTexts(other.mTexts), mApplications(other.mApplications), mDisplay(other.mDisplay), mBus(other.mBus),
      mDevice(other.mDevice), mFunction(other.mFunction), mComponentID(other.mComponentID), mVendorID(other.mVendorID),
      mDeviceID(other.mDeviceID), mSubDeviceID(other.mSubDeviceID), mSubVendorID(other.mSubVendorID),
      mComponentInstance(other.mComponentInstance)
{}

QRMIDevice& QRMIDevice::operator=(const QRMIDevice& other)
{
    mDisplay = other.mDisplay;
    mBus = other.mBus;
    mDevice = other.mDevice;
    mFunction = other.mFunction;
    mComponentID = other.mComponentID;
    mVendorID = other.mVendorID;
    mDeviceID = other.mDeviceID;
    mSubDeviceID = other.mSubDeviceID;
    mSubVendorID = other.mSubVendorID;
    mComponentInstance = other.mComponentInstance;
    mTexts = other.mTexts;
    return *this;
}

QRMIDevice::~QRMIDevice() = default;

QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(QRMIDevice, mTexts)

int QRMIDevice::GetBus() const { return mBus; }
QRMKitReturnCode QRMIDevice::SetBus(int bus) { return qrm::Store(mBus, bus); }
int QRMIDevice::GetDevice() const { return mDevice; }
QRMKitReturnCode QRMIDevice::SetDevice(int device) { return qrm::Store(mDevice, device); }
int QRMIDevice::GetFunction() const { return mFunction; }
QRMKitReturnCode QRMIDevice::SetFunction(int function) { return qrm::Store(mFunction, function); }
int QRMIDevice::GetVendorID() const { return mVendorID; }
QRMKitReturnCode QRMIDevice::SetVendorID(int vendorID) { return qrm::Store(mVendorID, vendorID); }
int QRMIDevice::GetDeviceID() const { return mDeviceID; }
QRMKitReturnCode QRMIDevice::SetDeviceID(int deviceID) { return qrm::Store(mDeviceID, deviceID); }
int QRMIDevice::GetSubVendorID() const { return mSubVendorID; }
QRMKitReturnCode QRMIDevice::SetSubVendorID(int subVendorID) { return qrm::Store(mSubVendorID, subVendorID); }
int QRMIDevice::GetSubDeviceID() const { return mSubDeviceID; }
QRMKitReturnCode QRMIDevice::SetSubDeviceID(int subDeviceID) { return qrm::Store(mSubDeviceID, subDeviceID); }
int QRMIDevice::GetComponentInstance() const { return mComponentInstance; }
QRMKitReturnCode QRMIDevice::SetComponentInstance(int componentInstance)
{
    return qrm::Store(mComponentInstance, componentInstance);
}
unsigned long long QRMIDevice::GetComponentID() const { return mComponentID; }
QRMKitReturnCode QRMIDevice::SetComponentID(unsigned long long componentID)
{
    return qrm::Store(mComponentID, componentID);
}
VELString QRMIDevice::GetDisplay() const { return mDisplay; }
QRMKitReturnCode QRMIDevice::SetDisplay(VELString display) { return qrm::Store(mDisplay, std::move(display)); }

void QRMIDevice::GetApplications(std::vector<QRMIApplication*>& out) const { mApplications.HandOut(out); }

QRMKitReturnCode QRMIDevice::AddApplication(QRMIApplication application)
{
    return mApplications.AddUnique(std::move(application));
}

QRMKitReturnCode QRMIDevice::RemoveApplication(const QRMIApplication& application)
{
    mApplications.RetireEqual(application);
    return QRM_KIT_NOT_FOUND;
}

namespace {

// True when some application of `left` equals some application of `right`.
bool ShareAnApplication(const qrm::detail::OwnedList<QRMIApplication>& left,
                        const qrm::detail::OwnedList<QRMIApplication>& right)
{
    for (const QRMIApplication* a : left) {
        for (const QRMIApplication* b : right) {
            if (*a == *b) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace

bool QRMIDevice::operator==(const QRMIDevice& other) const
{
    // The numbers first: they tell most devices apart at once, which keeps
    // the duplicate check of a large inventory fast.
    return mComponentID == other.mComponentID && mVendorID == other.mVendorID && mDeviceID == other.mDeviceID &&
           mSubDeviceID == other.mSubDeviceID && mSubVendorID == other.mSubVendorID && mBus == other.mBus &&
           mDevice == other.mDevice && mFunction == other.mFunction && mComponentInstance == other.mComponentInstance &&
           mDisplay == other.mDisplay && mTexts.Agree(other.mTexts) &&
           !ShareAnApplication(mApplications.Entries(), other.mApplications.Entries()) &&
           !ShareAnApplication(other.mApplications.Entries(), mApplications.Entries());
}

bool QRMIDevice::operator!=(const QRMIDevice& other) const { return !(*this == other); }

// ---- QRMISystem

QRMISystem::QRMISystem() : mSystemID(0), mSystemIDType(QRM_SYSTEMID_TYPE_BIOS) {}
QRMISystem::QRMISystem(const QRMISystem& other) = default;
QRMISystem& QRMISystem::operator=(const QRMISystem& other) = default;
QRMISystem::QRMISystem(QRMISystem&& other) = default;
QRMISystem& QRMISystem::operator=(QRMISystem&& other) = default;
QRMISystem::~QRMISystem() = default;

QRMKIT_DEFINE_DISPLAY_VALUE_OPERATIONS(QRMISystem, mTexts)

unsigned int QRMISystem::GetSystemID() const { return mSystemID; }
QRMKitReturnCode QRMISystem::SetSystemID(unsigned int systemID) { return qrm::Store(mSystemID, systemID); }
QRMSystemIDTypeEnum QRMISystem::GetSystemIDType() const { return mSystemIDType; }
QRMKitReturnCode QRMISystem::SetSystemIDType(QRMSystemIDTypeEnum systemIDType)
{
    return qrm::Store(mSystemIDType, systemIDType);
}
VELString QRMISystem::GetDisplay() const { return mDisplay; }
QRMKitReturnCode QRMISystem::SetDisplay(VELString display) { return qrm::Store(mDisplay, std::move(display)); }
VELString QRMISystem::GetServiceTag() const { return mServiceTag; }
QRMKitReturnCode QRMISystem::SetServiceTag(VELString serviceTag)
{
    return qrm::Store(mServiceTag, std::move(serviceTag));
}

bool QRMISystem::operator==(const QRMISystem& other) const
{
    return mSystemID == other.mSystemID && mSystemIDType == other.mSystemIDType && mDisplay == other.mDisplay &&
           mServiceTag == other.mServiceTag && mTexts.Same(other.mTexts);
}

bool QRMISystem::operator!=(const QRMISystem& other) const { return !(*this == other); }
