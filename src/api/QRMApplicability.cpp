// Bundle selection and applicable updates.
#include "QRMKitAPI.h"

#include "QRMKit.h"
#include "api/QRMIInventory.h"
#include "api/QRMManifest.h"

#include <algorithm>
#include <exception>
#include <string_view>
#include <unordered_map>

namespace {

// A bundle id's number: the text after its last ".".
VELString BundleNumberText(const VELString& bundleID)
{
    const std::size_t count = qrm::TextAfterLast(bundleID.GetUTF16View(), u'.').size();
    const unsigned int start = bundleID.GetLength() - static_cast<unsigned int>(count);
    return bundleID.SubString(start, static_cast<unsigned int>(count));
}

}  // namespace

QRMSoftwareBundle* QRMKitAPI::GetApplicableBundle(QRMBundleTypeEnum bundleType) const
{
    const unsigned int systemID = GetSystemIDFromInventory();
    std::vector<unsigned int> systemIDs;
    for (QRMSoftwareBundle* bundle : mCatalogManifest.SoftwareBundles()) {
        if (bundle->GetBundleType() != bundleType) {
            continue;
        }
        systemIDs.clear();
        bundle->GetSupportedSystemIDs(systemIDs);
        if (std::find(systemIDs.begin(), systemIDs.end(), systemID) != systemIDs.end()) {
            return bundle;
        }
    }
    return nullptr;
}

unsigned int QRMKitAPI::GetGreatestBundleNumber(QRMBundleTypeEnum bundleType) const
{
    unsigned int greatest = 0;
    for (const QRMSoftwareBundle* bundle : mCatalogManifest.SoftwareBundles()) {
        if (bundle->GetBundleType() != bundleType) {
            continue;
        }
        greatest = std::max(greatest, BundleNumberText(bundle->GetBundleID()).GetIntValue(std::dec));
    }
    return greatest;
}

namespace {

// One way a catalog component can match: a supported device (identified by
// component id) or one PCI entry of it, reached through one package entry
// of the bundle. Candidates are recorded in exactly the order in which a
// walk over (packages, components in catalog order, supported devices, PCI
// entries) would meet them, so the first-found rule among equal versions is
// kept.
struct Candidate {
    QRMSoftwareComponent* component;
    QRMComponentTypeValueEnum componentType;
    unsigned int subVendorID;
    unsigned int subDeviceID;
};

typedef std::vector<Candidate> Candidates;

unsigned long long PCIKey(unsigned int vendorID, unsigned int deviceID)
{
    return (static_cast<unsigned long long>(vendorID) << 32) | deviceID;
}

// The indexes of one GetApplicableUpdates call: candidates by component id
// and by PCI vendor and device id.
struct CandidateIndex {
    std::unordered_map<unsigned long long, Candidates> byComponentID;
    std::unordered_map<unsigned long long, Candidates> byPCI;

    CandidateIndex(const QRMSoftwareBundle& bundle, const QRMManifest& manifest)
    {
        // The bundle's package entries, each with the catalog's components
        // of that file name in catalog order.
        std::vector<QRMBundleContent> packages;
        bundle.GetContents(packages);
        std::vector<std::vector<QRMSoftwareComponent*>> named(packages.size());
        for (std::size_t i = 0; i < packages.size(); ++i) {
            if (!manifest.FindByFileName(packages[i].GetPathView(), named[i])) {
                named.clear();
                break;
            }
        }
        if (named.size() != packages.size()) {
            // No index to trust: one pass over the catalog, looking up only
            // the names the bundle lists (the catalog may hold many more).
            std::unordered_map<std::u16string_view, std::vector<QRMSoftwareComponent*>> byFileName;
            byFileName.reserve(packages.size());
            for (const QRMBundleContent& package : packages) {
                byFileName[package.GetPathView()];
            }
            for (QRMSoftwareComponent* component : manifest.SoftwareComponents()) {
                auto listed = byFileName.find(qrm::FileNameOf(component->GetPathView()));
                if (listed != byFileName.end()) {
                    listed->second.push_back(component);
                }
            }
            for (const QRMBundleContent& package : packages) {
                // Every listed name was indexed above.
                named.push_back(byFileName.find(package.GetPathView())->second);
            }
        }
        std::vector<QRMDevice*> devices;
        std::vector<QRMPCIInfo*> pciInfo;
        for (const std::vector<QRMSoftwareComponent*>& components : named) {
            for (QRMSoftwareComponent* component : components) {
                const QRMComponentTypeValueEnum type = component->GetComponentType().GetValue();
                devices.clear();
                component->GetSupportedDevices(devices);
                for (const QRMDevice* device : devices) {
                    // Component id 0 means "identified by PCI ids": never looked up.
                    if (device->GetComponentID() != 0) {
                        byComponentID[device->GetComponentID()].push_back({component, type, 0, 0});
                    }
                    pciInfo.clear();
                    device->GetPCIInfo(pciInfo);
                    for (const QRMPCIInfo* pci : pciInfo) {
                        byPCI[PCIKey(pci->GetVendorID(), pci->GetDeviceID())].push_back(
                            {component, type, pci->GetSubVendorID(), pci->GetSubDeviceID()});
                    }
                }
            }
        }
    }
};

// Keeps the first match, replaced only by a match whose version is newer
// (CompareVersion exactly 1).
class NewestMatch {
public:
    explicit NewestMatch(const QRMKitAPI& api) : mAPI(api), mBest(nullptr) {}

    void Offer(QRMSoftwareComponent* component)
    {
        if (mBest == nullptr) {
            mBest = component;
            mBestVersion = component->GetVendorVersion();
            return;
        }
        if (component == mBest) {
            return;  // a repeat compares equal to itself
        }
        VELString version = component->GetVendorVersion();
        if (mAPI.CompareVersion(version, mBestVersion) == 1) {
            mBest = component;
            mBestVersion = std::move(version);
        }
    }

    QRMSoftwareComponent* Best() const { return mBest; }

private:
    const QRMKitAPI& mAPI;
    QRMSoftwareComponent* mBest;
    VELString mBestVersion;
};

const Candidates* Find(const std::unordered_map<unsigned long long, Candidates>& index, unsigned long long key)
{
    auto found = index.find(key);
    return found == index.end() ? nullptr : &found->second;
}

}  // namespace

QRMKitReturnCode QRMKitAPI::GetApplicableUpdates(std::map<QRMIApplication*, QRMSoftwareComponent*>& updates,
                                                 QRMOSArchitectureEnum /*osArchitecture*/,
                                                 QRMBundleTypeEnum bundleType) const
try {
    if (!mCatalogManifest.IsParsed() || !mInventory.IsParsed()) {
        return QRM_KIT_FAILURE;
    }
    const QRMSoftwareBundle* bundle = GetApplicableBundle(bundleType);
    if (bundle == nullptr) {
        return QRM_KIT_FAILURE;
    }
    const CandidateIndex index(*bundle, mCatalogManifest);

    // The answer is built apart and handed over at the end without
    // allocating, so a call that runs out of memory leaves the caller's map
    // as it was.
    std::map<QRMIApplication*, QRMSoftwareComponent*> found;
    std::vector<QRMIApplication*> applications;
    for (const QRMIDevice* device : mInventory.Devices()) {
        const unsigned long long componentID = device->GetComponentID();
        if (componentID == QRM_EXCLUDED_COMPONENT_ID) {
            continue;
        }
        const unsigned int vendorID = static_cast<unsigned int>(device->GetVendorID());
        const unsigned int deviceID = static_cast<unsigned int>(device->GetDeviceID());
        const unsigned int subVendorID = static_cast<unsigned int>(device->GetSubVendorID());
        const unsigned int subDeviceID = static_cast<unsigned int>(device->GetSubDeviceID());
        const bool byComponentID = componentID != 0;
        const Candidates* candidates =
            byComponentID ? Find(index.byComponentID, componentID) : Find(index.byPCI, PCIKey(vendorID, deviceID));
        if (candidates == nullptr) {
            continue;
        }
        applications.clear();
        device->GetApplications(applications);
        for (QRMIApplication* application : applications) {
            const QRMComponentTypeValueEnum type = application->GetComponentType();
            NewestMatch newest(*this);
            for (const Candidate& candidate : *candidates) {
                if (candidate.componentType != type) {
                    continue;
                }
                // A catalog PCI entry without sub-ids matches every sub-vendor
                // and sub-device.
                if (!byComponentID && !(candidate.subDeviceID == subDeviceID && candidate.subVendorID == subVendorID) &&
                    !(candidate.subVendorID == 0 && candidate.subDeviceID == 0)) {
                    continue;
                }
                newest.Offer(candidate.component);
            }
            if (newest.Best() != nullptr) {
                found[application] = newest.Best();
            }
        }
    }
    // The answer hands out pointers to stored components.
    mCatalogManifest.DistrustFileNames();
    // An entry the caller already had for an application is replaced; the
    // others stay.
    while (!found.empty()) {
        auto node = found.extract(found.begin());
        auto placed = updates.insert(std::move(node));
        if (!placed.inserted) {
            placed.position->second = placed.node.mapped();
        }
    }
    return QRM_KIT_SUCCESS;
} catch (const std::exception&) {
    // Out of memory: the call fails and the caller's map is unchanged.
    return QRM_KIT_FAILURE;
}
