#include "Explain.h"

#include "Library.h"

#include <QRMKit.h>

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace qrmtool {

namespace {

// How many packages a "not-in-bundle" outcome names.
constexpr std::size_t kNamedPackages = 3;

// The file name a package path is listed under in a bundle: the text after
// its last "/" (all of it when it has none), compared unit for unit.
std::u16string_view FileName(std::u16string_view path)
{
    const std::size_t slash = path.rfind(u'/');
    return slash == std::u16string_view::npos ? path : path.substr(slash + 1);
}

std::string Pci(std::uint32_t first, std::uint32_t second) { return Hex(first) + ":" + Hex(second); }

// An inventory device as the matching rule reads it.
struct DeviceIds {
    unsigned long long componentID = 0;
    std::uint32_t vendor = 0;
    std::uint32_t device = 0;
    std::uint32_t subVendor = 0;
    std::uint32_t subDevice = 0;

    bool ByComponentID() const { return componentID != 0; }
};

DeviceIds IdsOf(const QRMIDevice& device)
{
    DeviceIds ids;
    ids.componentID = device.GetComponentID();
    ids.vendor = static_cast<std::uint32_t>(device.GetVendorID());
    ids.device = static_cast<std::uint32_t>(device.GetDeviceID());
    ids.subVendor = static_cast<std::uint32_t>(device.GetSubVendorID());
    ids.subDevice = static_cast<std::uint32_t>(device.GetSubDeviceID());
    return ids;
}

// A catalog package that supports an inventory device: by component id, or
// by a PCI entry with the device's vendor and device ids.
struct Supporter {
    const QRMSoftwareComponent* component = nullptr;
    QRMComponentTypeValueEnum type = QRM_COMPONENT_SBDL;
    bool inBundle = false;
    // Whether it matches the device: by component id, or by a PCI entry
    // whose sub-ids are the device's (exact) or 0/0; for a PCI match the
    // first such entry's sub-ids.
    bool matches = false;
    bool exact = false;
    std::uint32_t subVendor = 0;
    std::uint32_t subDevice = 0;
    // The sub-id pairs of its entries with the device's vendor and device ids.
    std::vector<std::pair<std::uint32_t, std::uint32_t>> subIds;
};

class Explainer {
public:
    explicit Explainer(const QRMSoftwareBundle* bundle)
    {
        QRMKitAPI::Instance()->GetSoftwareComponents(mComponents);
        // Who supports what, read once: by component id, and by the vendor
        // and device ids of every PCI entry.
        for (std::size_t index = 0; index < mComponents.size(); ++index) {
            std::vector<QRMDevice*> devices;
            mComponents[index]->GetSupportedDevices(devices);
            for (const QRMDevice* device : devices) {
                if (device->GetComponentID() != 0) {
                    mByComponentID[device->GetComponentID()].push_back(index);
                }
                std::vector<QRMPCIInfo*> entries;
                device->GetPCIInfo(entries);
                for (const QRMPCIInfo* entry : entries) {
                    mByPci[PciKey(entry->GetVendorID(), entry->GetDeviceID())].push_back(
                        {index, entry->GetSubVendorID(), entry->GetSubDeviceID()});
                }
            }
        }
        if (bundle == nullptr) {
            return;
        }
        std::vector<QRMBundleContent> contents;
        bundle->GetContents(contents);
        for (const QRMBundleContent& content : contents) {
            mPackagePaths.push_back(content.GetPath().GetUTF16String());
        }
        mListed.insert(mPackagePaths.begin(), mPackagePaths.end());
        for (const QRMSoftwareComponent* component : mComponents) {
            std::u16string name(FileName(component->GetPathView()));
            if (mListed.count(name) != 0) {
                mByFileName[name].push_back(component);
            }
        }
    }

    // Every package supporting the device, in catalog order.
    std::vector<Supporter> SupportersOf(const DeviceIds& ids) const
    {
        std::vector<Supporter> supporters;
        // The entries of one component come one after the other, components
        // in catalog order.
        auto supporterOf = [&](std::size_t index) -> Supporter& {
            if (supporters.empty() || supporters.back().component != mComponents[index]) {
                Supporter supporter;
                supporter.component = mComponents[index];
                supporter.type = supporter.component->GetComponentType().GetValue();
                supporter.inBundle = mListed.count(std::u16string(FileName(supporter.component->GetPathView()))) != 0;
                supporters.push_back(std::move(supporter));
            }
            return supporters.back();
        };
        if (ids.ByComponentID()) {
            auto found = mByComponentID.find(ids.componentID);
            if (found != mByComponentID.end()) {
                for (std::size_t index : found->second) {
                    supporterOf(index).matches = true;
                }
            }
            return supporters;
        }
        auto found = mByPci.find(PciKey(ids.vendor, ids.device));
        if (found == mByPci.end()) {
            return supporters;
        }
        for (const PciEntry& entry : found->second) {
            Supporter& supporter = supporterOf(entry.component);
            supporter.subIds.emplace_back(entry.subVendor, entry.subDevice);
            const bool exact = entry.subVendor == ids.subVendor && entry.subDevice == ids.subDevice;
            if (!supporter.matches && (exact || (entry.subVendor == 0 && entry.subDevice == 0))) {
                supporter.matches = true;
                supporter.exact = exact;
                supporter.subVendor = entry.subVendor;
                supporter.subDevice = entry.subDevice;
            }
        }
        return supporters;
    }

    // The package GetApplicableUpdates chooses among the matching ones:
    // walking the bundle's packages in order and, for each, the catalog's
    // components with that file name in catalog order, a later match
    // replaces the best so far only when its version compares exactly
    // newer.
    const Supporter* Choose(const std::vector<const Supporter*>& matching) const
    {
        std::map<const QRMSoftwareComponent*, const Supporter*> byComponent;
        for (const Supporter* supporter : matching) {
            byComponent[supporter->component] = supporter;
        }
        const Supporter* best = nullptr;
        QRMKitAPI* api = QRMKitAPI::Instance();
        for (const std::u16string& path : mPackagePaths) {
            auto named = mByFileName.find(path);
            if (named == mByFileName.end()) {
                continue;
            }
            for (const QRMSoftwareComponent* component : named->second) {
                auto found = byComponent.find(component);
                if (found == byComponent.end()) {
                    continue;
                }
                if (best == nullptr ||
                    api->CompareVersion(component->GetVendorVersion(), best->component->GetVendorVersion()) == 1) {
                    best = found->second;
                }
            }
        }
        return best;
    }

private:
    struct PciEntry {
        std::size_t component;
        std::uint32_t subVendor;
        std::uint32_t subDevice;
    };

    static std::uint64_t PciKey(std::uint32_t vendor, std::uint32_t device)
    {
        return (std::uint64_t(vendor) << 32) | device;
    }

    std::vector<QRMSoftwareComponent*> mComponents;
    std::unordered_map<unsigned long long, std::vector<std::size_t>> mByComponentID;
    std::unordered_map<std::uint64_t, std::vector<PciEntry>> mByPci;
    std::vector<std::u16string> mPackagePaths;
    std::set<std::u16string> mListed;
    std::unordered_map<std::u16string, std::vector<const QRMSoftwareComponent*>> mByFileName;
};

std::string DeviceIdsText(const DeviceIds& ids)
{
    if (ids.ByComponentID()) {
        return "component id " + std::to_string(ids.componentID);
    }
    return "PCI " + Pci(ids.vendor, ids.device) + ", sub-ids " + Pci(ids.subVendor, ids.subDevice);
}

// The outcome of one application: "outcome", a one-line "reason" and the
// details the outcome names.
Json Explain(const QRMIDevice& device, const QRMIApplication& application, const DeviceIds& ids,
             const std::vector<Supporter>& supporters, const Explainer& explainer, const BundleChoice& choice,
             const std::string& requestedType, const Json& typesWithBundle, const std::string& base)
{
    Json row;
    row["device"] = Utf8(device.GetDisplay());
    row["application"] = Utf8(application.GetDisplay());
    row["component_type"] = ComponentTypeWord(application.GetComponentType());
    row["installed_version"] = Utf8(application.GetVersion());
    row["device_ids"] = ids.ByComponentID() ? Json{{"component_id", ids.componentID}}
                                            : Json{{"vendor_id", Hex(ids.vendor)},
                                                   {"device_id", Hex(ids.device)},
                                                   {"sub_vendor_id", Hex(ids.subVendor)},
                                                   {"sub_device_id", Hex(ids.subDevice)}};
    // The outcome and its reason come first after the ids; they are set last.
    row["outcome"] = nullptr;
    row["reason"] = nullptr;
    auto outcome = [&row](const char* word, const std::string& reason) {
        row["outcome"] = word;
        row["reason"] = reason;
        return row;
    };

    if (ids.componentID == QRM_EXCLUDED_COMPONENT_ID) {
        return outcome("device-excluded",
                       "component id " + std::to_string(QRM_EXCLUDED_COMPONENT_ID) + " never receives updates");
    }
    if (choice.bundle == nullptr) {
        row["bundle_types"] = typesWithBundle;
        return outcome("no-bundle", typesWithBundle.empty()
                                        ? std::string("no bundle of any type lists this system")
                                        : "no " + requestedType + " bundle lists this system; " +
                                              Join(typesWithBundle) +
                                              (typesWithBundle.size() == 1 ? " has one" : " have one"));
    }
    if (supporters.empty()) {
        return outcome("no-supporting-package", "no catalog package supports this device (" + DeviceIdsText(ids) + ")");
    }

    std::vector<const Supporter*> inBundle;
    Json outside = Json::array();
    for (const Supporter& supporter : supporters) {
        if (supporter.inBundle) {
            inBundle.push_back(&supporter);
        } else if (outside.size() < kNamedPackages) {
            outside.push_back(std::string(Utf8(supporter.component->GetPath())));
        }
    }
    if (inBundle.empty()) {
        row["packages"] = outside;
        row["supporting_packages"] = supporters.size();
        return outcome("not-in-bundle", Plural(supporters.size(), "package supports", "packages support") +
                                            " this device, none in the bundle: " + Join(outside) +
                                            (supporters.size() > outside.size() ? ", ..." : ""));
    }

    std::vector<const Supporter*> typed;
    std::set<std::string> typesFound;
    for (const Supporter* supporter : inBundle) {
        if (supporter->type == application.GetComponentType()) {
            typed.push_back(supporter);
        }
        typesFound.insert(ComponentTypeWord(supporter->type));
    }
    if (typed.empty()) {
        row["types"] = typesFound;
        return outcome("type-mismatch", "the bundle's packages for this device are of type " + Join(row["types"]) +
                                            ", not " + Text(row["component_type"]));
    }

    std::vector<const Supporter*> matching;
    std::set<std::string> subIdsFound;
    for (const Supporter* supporter : typed) {
        if (supporter->matches) {
            matching.push_back(supporter);
        }
        for (const auto& pair : supporter->subIds) {
            subIdsFound.insert(Pci(pair.first, pair.second));
        }
    }
    if (matching.empty()) {
        row["sub_ids"] = subIdsFound;
        return outcome("sub-id-mismatch", "no entry has this device's sub-ids " + Pci(ids.subVendor, ids.subDevice) +
                                              " or 0000:0000; the entries have " + Join(row["sub_ids"]));
    }

    const Supporter* chosen = explainer.Choose(matching);
    Json update = UpdateEntry(device, application, *chosen->component, base);
    row["status"] = update["status"];
    update.erase("device");
    update.erase("application");
    update.erase("installed_version");
    std::string how;
    if (ids.ByComponentID()) {
        update["matched_by"] = {{"by", "component-id"}, {"component_id", ids.componentID}};
        how = "component id " + std::to_string(ids.componentID);
    } else {
        update["matched_by"] = {{"by", "pci"},
                                {"vendor_id", Hex(ids.vendor)},
                                {"device_id", Hex(ids.device)},
                                {"sub_vendor_id", Hex(chosen->subVendor)},
                                {"sub_device_id", Hex(chosen->subDevice)},
                                {"sub_ids", chosen->exact ? "exact" : "any"}};
        how = "PCI " + Pci(ids.vendor, ids.device) +
              (chosen->exact ? ", sub-ids " + Pci(chosen->subVendor, chosen->subDevice)
                             : std::string(", any sub-ids (0000:0000 entry)"));
    }
    row["update"] = update;
    return outcome("update", Text(update["available_version"]) + " (" + Text(update["status"]) + "), " +
                                 Text(update["path"]) + ", by " + how);
}

}  // namespace

Json CollectExplanation(const std::string& catalog, const std::string& inventory, const std::string& bundleType)
{
    RequestedBundleType(bundleType);
    LoadCatalog(catalog);
    LoadInventory(inventory);
    QRMKitAPI* api = QRMKitAPI::Instance();
    const BundleChoice choice = ChooseBundle(bundleType);
    Json typesWithBundle = Json::array();
    for (QRMBundleTypeEnum type : kBundleTypes) {
        if (api->GetApplicableBundle(type) != nullptr) {
            typesWithBundle.push_back(BundleTypeWord(type));
        }
    }

    const Explainer explainer(choice.bundle);
    const std::string base = Utf8(api->GetBaseLocation());
    std::vector<QRMIDevice*> devices;
    api->GetInventory(devices);
    Json rows = Json::array();
    std::map<std::string, std::size_t> counts;
    for (const char* outcome : kOutcomes) {
        counts[outcome] = 0;
    }
    for (const QRMIDevice* device : devices) {
        std::vector<QRMIApplication*> applications;
        device->GetApplications(applications);
        if (applications.empty()) {
            continue;
        }
        const DeviceIds ids = IdsOf(*device);
        const std::vector<Supporter> supporters =
            ids.componentID == QRM_EXCLUDED_COMPONENT_ID || choice.bundle == nullptr ? std::vector<Supporter>()
                                                                                     : explainer.SupportersOf(ids);
        for (const QRMIApplication* application : applications) {
            Json row =
                Explain(*device, *application, ids, supporters, explainer, choice, bundleType, typesWithBundle, base);
            ++counts[row["outcome"].get<std::string>()];
            rows.push_back(std::move(row));
        }
    }

    Json document = ComputerDocument(catalog, inventory);
    if (choice.bundle == nullptr) {
        document["bundle"] = nullptr;
        document["requested_bundle_type"] = bundleType;
    } else {
        document["bundle"] = {{"id", Utf8(choice.bundle->GetBundleID())},
                              {"type", BundleTypeWord(choice.type)},
                              {"selection", choice.automatic ? "auto" : "requested"}};
    }
    document["applications"] = rows;
    Json summary = {{"applications", rows.size()}};
    for (const char* outcome : kOutcomes) {
        summary[outcome] = counts[outcome];
    }
    document["summary"] = std::move(summary);
    return document;
}

}  // namespace qrmtool
