#include "ReferenceUpdates.h"

namespace reference {

std::u16string FileName(const VELString& path)
{
    const std::u16string units = path.GetUTF16String();
    const std::size_t slash = units.rfind(u'/');
    return slash == std::u16string::npos ? units : units.substr(slash + 1);
}

bool PCIMatches(const QRMPCIInfo& pci, const QRMIDevice& device)
{
    const bool ids = pci.GetDeviceID() == static_cast<unsigned int>(device.GetDeviceID()) &&
                     pci.GetVendorID() == static_cast<unsigned int>(device.GetVendorID());
    const bool subIDs = (pci.GetSubDeviceID() == static_cast<unsigned int>(device.GetSubDeviceID()) &&
                         pci.GetSubVendorID() == static_cast<unsigned int>(device.GetSubVendorID())) ||
                        (pci.GetSubVendorID() == 0 && pci.GetSubDeviceID() == 0);
    return ids && subIDs;
}

bool Supports(const QRMSoftwareComponent& component, const QRMIDevice& device)
{
    std::vector<QRMDevice*> supported;
    component.GetSupportedDevices(supported);
    for (const QRMDevice* entry : supported) {
        if (device.GetComponentID() != 0) {
            if (entry->GetComponentID() == device.GetComponentID()) {
                return true;
            }
            continue;
        }
        std::vector<QRMPCIInfo*> pcis;
        entry->GetPCIInfo(pcis);
        for (const QRMPCIInfo* pci : pcis) {
            if (PCIMatches(*pci, device)) {
                return true;
            }
        }
    }
    return false;
}

QRMSoftwareBundle* ApplicableBundle(QRMKitAPI& api, QRMBundleTypeEnum bundleType)
{
    const unsigned int systemID = api.GetSystemIDFromInventory();
    std::vector<QRMSoftwareBundle*> bundles;
    api.GetSoftwareBundles(bundles);
    for (QRMSoftwareBundle* candidate : bundles) {
        if (candidate->GetBundleType() != bundleType) {
            continue;
        }
        std::vector<unsigned int> ids;
        candidate->GetSupportedSystemIDs(ids);
        for (unsigned int id : ids) {
            if (id == systemID) {
                return candidate;
            }
        }
    }
    return nullptr;
}

Matcher::Matcher(QRMKitAPI& api, const QRMSoftwareBundle& bundle, const std::vector<QRMSoftwareComponent*>& components)
    : mAPI(api)
{
    std::vector<QRMBundleContent> packages;
    bundle.GetContents(packages);
    for (const QRMBundleContent& package : packages) {
        const std::u16string path = package.GetPath().GetUTF16String();
        for (QRMSoftwareComponent* component : components) {
            if (FileName(component->GetPath()) == path) {
                mWalk.push_back(component);
            }
        }
    }
}

QRMSoftwareComponent* Matcher::Best(const QRMIDevice& device, const QRMIApplication& application) const
{
    if (device.GetComponentID() == QRM_EXCLUDED_COMPONENT_ID) {
        return nullptr;
    }
    QRMSoftwareComponent* best = nullptr;
    auto offer = [this, &best](QRMSoftwareComponent* component) {
        if (best == nullptr || mAPI.CompareVersion(component->GetVendorVersion(), best->GetVendorVersion()) == 1) {
            best = component;
        }
    };
    for (QRMSoftwareComponent* component : mWalk) {
        if (component->GetComponentType().GetValue() != application.GetComponentType()) {
            continue;
        }
        std::vector<QRMDevice*> supported;
        component->GetSupportedDevices(supported);
        for (const QRMDevice* entry : supported) {
            if (device.GetComponentID() != 0) {
                if (entry->GetComponentID() == device.GetComponentID()) {
                    offer(component);
                }
                continue;
            }
            std::vector<QRMPCIInfo*> pcis;
            entry->GetPCIInfo(pcis);
            for (const QRMPCIInfo* pci : pcis) {
                if (PCIMatches(*pci, device)) {
                    offer(component);
                }
            }
        }
    }
    return best;
}

QRMKitReturnCode ApplicableUpdates(QRMKitAPI& api, UpdateMap& updates, QRMBundleTypeEnum bundleType)
{
    if (!api.IsCatalogParsed() || !api.IsInventoryParsed()) {
        return QRM_KIT_FAILURE;
    }
    const QRMSoftwareBundle* bundle = ApplicableBundle(api, bundleType);
    if (bundle == nullptr) {
        return QRM_KIT_FAILURE;
    }
    std::vector<QRMSoftwareComponent*> components;
    api.GetSoftwareComponents(components);
    const Matcher matcher(api, *bundle, components);
    std::vector<QRMIDevice*> devices;
    api.GetInventory(devices);
    for (QRMIDevice* device : devices) {
        std::vector<QRMIApplication*> applications;
        device->GetApplications(applications);
        for (QRMIApplication* application : applications) {
            if (QRMSoftwareComponent* best = matcher.Best(*device, *application)) {
                updates[application] = best;
            }
        }
    }
    return QRM_KIT_SUCCESS;
}

}  // namespace reference
