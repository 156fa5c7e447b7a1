#include "Reports.h"

#include "Library.h"

#include <QRMKit.h>

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace qrmtool {

// ---------------------------------------------------------------- helpers

std::string Text(const Json& value)
{
    if (value.is_string()) {
        return value.get<std::string>();
    }
    if (value.is_null()) {
        return std::string();
    }
    return value.dump();
}

std::string Plural(std::size_t count, const std::string& one, const std::string& many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string Join(const Json& list, const char* separator)
{
    std::string out;
    for (const Json& item : list) {
        if (!out.empty()) {
            out += separator;
        }
        out += Text(item);
    }
    return out;
}

std::string SystemPhrase(const Json& systemID)
{
    return systemID.is_null() ? std::string("an inventory without a single system") : "system " + Text(systemID);
}

Json SystemID(unsigned int id) { return id == 0 ? Json() : Json(Hex(id)); }

namespace {

// ---------------------------------------------------------------- updates

QRMOSArchitectureEnum InventoryArchitecture()
{
    std::vector<QRMOperatingSystem> oses;
    QRMKitAPI::Instance()->GetInventoryOperatingSystems(oses);
    return oses.empty() ? QRM_OS_ARCH_X64 : oses.front().GetArchitecture();
}

}  // namespace

Json UpdateEntry(const QRMIDevice& device, const QRMIApplication& application, const QRMSoftwareComponent& component,
                 const std::string& base)
{
    const QRMCategory category = component.GetCategory();
    const std::string path = Utf8(component.GetPath());
    Json entry;
    entry["device"] = Utf8(device.GetDisplay());
    entry["application"] = Utf8(application.GetDisplay());
    entry["installed_version"] = Utf8(application.GetVersion());
    entry["available_version"] = Utf8(component.GetVendorVersion());
    entry["status"] =
        StatusWord(QRMKitAPI::Instance()->CompareVersion(component.GetVendorVersion(), application.GetVersion()));
    entry["component_type"] = ComponentTypeWord(component.GetComponentType().GetValue());
    entry["criticality"] = CriticalityWord(component.GetCriticality().GetValue());
    entry["category"] = {{"code", Utf8(category.GetCode())}, {"text", FirstText(category)}};
    entry["name"] = FirstText(component.GetName());
    entry["package_id"] = Utf8(component.GetPackageID());
    entry["path"] = path;
    entry["location"] = base + "/" + path;
    entry["release_id"] = Utf8(component.GetReleaseID());
    return entry;
}

QRMBundleTypeEnum RequestedBundleType(const std::string& bundleType)
{
    QRMBundleTypeEnum type = QRM_BUNDLE_BTW32;
    if (bundleType != "auto" && !QRMBundleTypeFromText(VELString(bundleType.c_str()), type)) {
        throw ToolError("usage", "unknown bundle type \"" + bundleType + "\"");
    }
    return type;
}

Json NewDocument()
{
    Json document;
    document["schema_version"] = kSchemaVersion;
    return document;
}

Json ComputerDocument(const std::string& catalog, const std::string& inventory)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    Json document = NewDocument();
    document["catalog"] = catalog;
    document["inventory"] = inventory;
    document["catalog_release"] = Utf8(api->GetCatalogReleaseID());
    document["system_id"] = SystemID(api->GetSystemIDFromInventory());
    return document;
}

std::string JsonText(const Json& document, int indent)
{
    return document.dump(indent, ' ', false, Json::error_handler_t::replace);
}

bool HasNewer(const Json& updates) { return updates["summary"]["newer"].get<std::size_t>() > 0; }

Json CollectUpdates(const std::string& catalog, const std::string& inventory, const std::string& bundleType)
{
    RequestedBundleType(bundleType);
    LoadCatalog(catalog);
    return EvaluateUpdates(catalog, inventory, bundleType);
}

BundleChoice ChooseBundle(const std::string& bundleType)
{
    BundleChoice choice;
    choice.automatic = bundleType == "auto";
    QRMKitAPI* api = QRMKitAPI::Instance();
    if (!choice.automatic) {
        choice.type = RequestedBundleType(bundleType);
        choice.bundle = api->GetApplicableBundle(choice.type);
    } else {
        for (QRMBundleTypeEnum candidate : kBundleTypes) {
            choice.bundle = api->GetApplicableBundle(candidate);
            if (choice.bundle != nullptr) {
                choice.type = candidate;
                break;
            }
        }
    }
    if (choice.bundle != nullptr) {
        Note("bundle " + Utf8(choice.bundle->GetBundleID()) + " of type " + BundleTypeWord(choice.type) +
             (choice.automatic ? " (auto: the first type with a bundle for this system)" : ""));
    }
    return choice;
}

ToolError NoBundle(const std::string& catalog, const std::string& inventory, const std::string& bundleType)
{
    const std::string what = bundleType == "auto" ? "no bundle of any type" : "no " + bundleType + " bundle";
    return ToolError("no-bundle",
                     inventory + ": " + what + " in " + catalog + " applies to " +
                         SystemPhrase(SystemID(QRMKitAPI::Instance()->GetSystemIDFromInventory())),
                     inventory);
}

Json EvaluateUpdates(const std::string& catalog, const std::string& inventory, const std::string& bundleType)
{
    RequestedBundleType(bundleType);
    LoadInventory(inventory);
    QRMKitAPI* api = QRMKitAPI::Instance();

    const BundleChoice choice = ChooseBundle(bundleType);
    if (choice.bundle == nullptr) {
        throw NoBundle(catalog, inventory, bundleType);
    }
    QRMSoftwareBundle* bundle = choice.bundle;
    const QRMBundleTypeEnum type = choice.type;

    std::map<QRMIApplication*, QRMSoftwareComponent*> updates;
    QRMKitReturnCode code = api->GetApplicableUpdates(updates, InventoryArchitecture(), type);
    if (code != QRM_KIT_SUCCESS) {
        throw ToolError("evaluation-failed",
                        inventory + ": the applicable updates could not be determined (" + QRMKitReturnCodeName(code) +
                            ")",
                        inventory);
    }
    std::vector<QRMIDevice*> devices;
    api->GetInventory(devices);

    const std::string base = Utf8(api->GetBaseLocation());
    Json list = Json::array();
    std::map<std::string, std::size_t> counts = {{"newer", 0}, {"same", 0}, {"older", 0}, {"unknown", 0}};
    std::size_t applicationCount = 0;
    for (const QRMIDevice* device : devices) {
        std::vector<QRMIApplication*> applications;
        device->GetApplications(applications);
        for (QRMIApplication* application : applications) {
            ++applicationCount;
            auto found = updates.find(application);
            if (found == updates.end()) {
                continue;
            }
            Json entry = UpdateEntry(*device, *application, *found->second, base);
            ++counts[entry["status"].get<std::string>()];
            list.push_back(std::move(entry));
        }
    }

    std::vector<QRMBundleContent> contents;
    bundle->GetContents(contents);
    Json document = ComputerDocument(catalog, inventory);
    document["base_location"] = base;
    document["bundle"] = {{"id", Utf8(bundle->GetBundleID())},
                          {"type", BundleTypeWord(type)},
                          {"selection", choice.automatic ? "auto" : "requested"},
                          {"path", Utf8(bundle->GetPath())},
                          {"vendor_version", Utf8(bundle->GetVendorVersion())},
                          {"packages", contents.size()}};
    document["updates"] = std::move(list);
    document["summary"] = {{"updates", document["updates"].size()},
                           {"newer", counts["newer"]},
                           {"same", counts["same"]},
                           {"older", counts["older"]},
                           {"unknown", counts["unknown"]},
                           {"applications", applicationCount},
                           {"without_update", applicationCount - document["updates"].size()}};
    return document;
}

// ---------------------------------------------------------------- bundle

Json CollectBundles(const std::string& catalog, const std::string& inventory)
{
    LoadCatalog(catalog);
    LoadInventory(inventory);
    QRMKitAPI* api = QRMKitAPI::Instance();
    Json types = Json::array();
    for (QRMBundleTypeEnum type : kBundleTypes) {
        Json entry;
        entry["type"] = BundleTypeWord(type);
        const QRMSoftwareBundle* bundle = api->GetApplicableBundle(type);
        if (bundle == nullptr) {
            entry["applicable_bundle"] = nullptr;
        } else {
            std::vector<QRMBundleContent> contents;
            bundle->GetContents(contents);
            entry["applicable_bundle"] = {{"id", Utf8(bundle->GetBundleID())},
                                          {"path", Utf8(bundle->GetPath())},
                                          {"vendor_version", Utf8(bundle->GetVendorVersion())},
                                          {"packages", contents.size()}};
        }
        entry["greatest_bundle_number"] = api->GetGreatestBundleNumber(type);
        types.push_back(std::move(entry));
    }
    Json document = ComputerDocument(catalog, inventory);
    document["bundle_types"] = std::move(types);
    return document;
}

// ---------------------------------------------------------------- catalog

namespace {

// A new document about the catalog the library has read: its path, base
// location, release, version and time.
Json CatalogDocument(const std::string& catalog)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    Json document = NewDocument();
    document["catalog"] = catalog;
    document["base_location"] = Utf8(api->GetBaseLocation());
    document["release_id"] = Utf8(api->GetCatalogReleaseID());
    document["version"] = Utf8(api->GetCatalogVersion());
    document["date_time"] = api->GetCatalogDateTime().GetValue();
    return document;
}

// The catalog's inventory collectors, in catalog order.
Json CollectorList()
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    const std::string base = Utf8(api->GetBaseLocation());
    std::vector<QRMInventoryComponent> collectors;
    api->GetInventoryComponents(collectors);
    Json list = Json::array();
    for (const QRMInventoryComponent& collector : collectors) {
        const std::string path = Utf8(collector.GetPath());
        list.push_back({{"os_code", Utf8(collector.GetOSCode())},
                        {"path", path},
                        {"location", base + "/" + path},
                        {"vendor_version", Utf8(collector.GetVendorVersion())},
                        {"release_id", Utf8(collector.GetReleaseID())}});
    }
    return list;
}

}  // namespace

Json CollectCatalog(const std::string& catalog)
{
    LoadCatalog(catalog);
    QRMKitAPI* api = QRMKitAPI::Instance();

    std::vector<QRMSoftwareBundle*> bundles;
    api->GetSoftwareBundles(bundles);
    Json bundlesByType = Json::object();
    for (QRMBundleTypeEnum type : kBundleTypes) {
        bundlesByType[BundleTypeWord(type)] = 0;
    }
    for (const QRMSoftwareBundle* bundle : bundles) {
        Json& slot = bundlesByType[BundleTypeWord(bundle->GetBundleType())];
        slot = (slot.is_null() ? 0 : slot.get<std::size_t>()) + 1;
    }

    std::vector<QRMSoftwareComponent*> components;
    api->GetSoftwareComponents(components);
    Json componentsByType = Json::object();
    for (QRMComponentTypeValueEnum type : kComponentTypes) {
        componentsByType[ComponentTypeWord(type)] = 0;
    }
    Json componentsByCriticality = Json::object();
    for (QRMCriticalityValueEnum level : kCriticalities) {
        componentsByCriticality[CriticalityWord(level)] = 0;
    }
    for (const QRMSoftwareComponent* component : components) {
        Json& typeSlot = componentsByType[ComponentTypeWord(component->GetComponentType().GetValue())];
        typeSlot = (typeSlot.is_null() ? 0 : typeSlot.get<std::size_t>()) + 1;
        Json& levelSlot = componentsByCriticality[CriticalityWord(component->GetCriticality().GetValue())];
        levelSlot = (levelSlot.is_null() ? 0 : levelSlot.get<std::size_t>()) + 1;
    }

    Json document = CatalogDocument(catalog);
    document["bundles"] = {{"total", bundles.size()}, {"by_type", std::move(bundlesByType)}};
    document["components"] = {{"total", components.size()},
                              {"by_type", std::move(componentsByType)},
                              {"by_criticality", std::move(componentsByCriticality)}};
    document["inventory_collectors"] = CollectorList();
    return document;
}

// ---------------------------------------------------------------- inventory

Json CollectInventory(const std::string& inventory)
{
    LoadInventory(inventory);
    QRMKitAPI* api = QRMKitAPI::Instance();

    std::vector<QRMISystem> systems;
    api->GetInventorySystems(systems);
    Json systemList = Json::array();
    for (const QRMISystem& system : systems) {
        systemList.push_back({{"system_id", Hex(system.GetSystemID())},
                              {"id_type", QRMSystemIDTypeText(system.GetSystemIDType())},
                              {"display", Utf8(system.GetDisplay())},
                              {"service_tag", Utf8(system.GetServiceTag())}});
    }

    std::vector<QRMOperatingSystem> oses;
    api->GetInventoryOperatingSystems(oses);
    Json osList = Json::array();
    for (const QRMOperatingSystem& os : oses) {
        osList.push_back({{"code", Utf8(os.GetCode())},
                          {"vendor", Utf8(os.GetVendor())},
                          {"architecture", ArchitectureWord(os.GetArchitecture())},
                          {"major_version", Utf8(os.GetMajorVersion())},
                          {"minor_version", Utf8(os.GetMinorVersion())},
                          {"sp_major_version", Utf8(os.GetServicePackMajorVersion())},
                          {"sp_minor_version", Utf8(os.GetServicePackMinorVersion())},
                          {"preinstallation_environment", os.IsForPreInstallEnvironment()},
                          {"suite_mask", os.GetSuiteMask()},
                          {"display", FirstText(os)}});
    }

    std::vector<QRMIDevice*> devices;
    api->GetInventory(devices);
    Json deviceList = Json::array();
    std::size_t applicationCount = 0;
    for (const QRMIDevice* device : devices) {
        std::vector<QRMIApplication*> applications;
        device->GetApplications(applications);
        Json applicationList = Json::array();
        for (const QRMIApplication* application : applications) {
            ++applicationCount;
            applicationList.push_back({{"type", ComponentTypeWord(application->GetComponentType())},
                                       {"version", Utf8(application->GetVersion())},
                                       {"display", Utf8(application->GetDisplay())}});
        }
        auto id = [](int value) { return Hex(static_cast<unsigned int>(value)); };
        deviceList.push_back({{"display", Utf8(device->GetDisplay())},
                              {"component_id", device->GetComponentID()},
                              {"pci",
                               {{"vendor_id", id(device->GetVendorID())},
                                {"device_id", id(device->GetDeviceID())},
                                {"sub_vendor_id", id(device->GetSubVendorID())},
                                {"sub_device_id", id(device->GetSubDeviceID())},
                                {"bus", device->GetBus()},
                                {"device", device->GetDevice()},
                                {"function", device->GetFunction()}}},
                              {"applications", std::move(applicationList)}});
    }

    Json document = NewDocument();
    document["inventory"] = inventory;
    document["system_id"] = SystemID(api->GetSystemIDFromInventory());
    document["language"] = QRMInventoryLanguageText(api->GetInventoryLanguage());
    document["inventory_schema_version"] = Utf8(api->GetInventorySchemaVersion());
    document["time_stamp"] = api->GetInventoryTimeStamp().GetValue();
    document["systems"] = std::move(systemList);
    document["operating_systems"] = std::move(osList);
    document["devices"] = std::move(deviceList);
    document["summary"] = {{"devices", devices.size()}, {"applications", applicationCount}};
    return document;
}

// ---------------------------------------------------------------- categories

namespace {

// The category texts with their codes, acronyms and listed values, and the
// acronym map, as the library has them now.
void CategoryLists(Json& categories, Json& acronymMap)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    std::map<VELString, VELString> codes;
    api->GetCategoryValues(codes);
    std::map<VELString, std::vector<VELString>> listed;
    api->ListCatalogAndRVUGeneratedCategoryValues(listed);
    std::map<VELString, VELString> acronyms;
    api->GetAcronymForCategoryValues(acronyms);

    categories = Json::array();
    for (const auto& category : listed) {
        Json codeList = Json::array();
        Json acronymList = Json::array();
        Json values = Json::array();
        for (const VELString& value : category.second) {
            values.push_back(Utf8(value));
            auto code = codes.find(value);
            bool isCode = code != codes.end() && code->second == category.first;
            Json& target = isCode ? codeList : acronymList;
            if (std::find(target.begin(), target.end(), Json(Utf8(value))) == target.end()) {
                target.push_back(Utf8(value));
            }
        }
        categories.push_back({{"text", Utf8(category.first)},
                              {"codes", std::move(codeList)},
                              {"acronyms", std::move(acronymList)},
                              {"listed", std::move(values)}});
    }
    acronymMap = Json::object();
    for (const auto& acronym : acronyms) {
        acronymMap[Utf8(acronym.first)] = Utf8(acronym.second);
    }
}

}  // namespace

Json CollectCategories(const std::string& catalog)
{
    LoadCatalog(catalog);
    Json categories;
    Json acronymMap;
    CategoryLists(categories, acronymMap);
    Json document = NewDocument();
    document["catalog"] = catalog;
    document["categories"] = std::move(categories);
    document["acronyms"] = std::move(acronymMap);
    return document;
}

// ---------------------------------------------------------------- contents

namespace {

Json SystemIDsOf(const QRMSupportedSystems& systems)
{
    std::vector<QRMBrand*> brands;
    systems.GetBrands(brands);
    Json ids = Json::array();
    for (const QRMBrand* brand : brands) {
        std::vector<QRMModel*> models;
        brand->GetModels(models);
        for (const QRMModel* model : models) {
            ids.push_back(Hex(model->GetSystemID()));
        }
    }
    return ids;
}

Json OSCodesOf(const QRMSupportedOperatingSystems& systems)
{
    std::vector<QRMOperatingSystem> oses;
    systems.GetOSes(oses);
    Json codes = Json::array();
    for (const QRMOperatingSystem& os : oses) {
        codes.push_back(Utf8(os.GetCode()));
    }
    return codes;
}

Json BundleContents(const QRMSoftwareBundle& bundle)
{
    std::vector<QRMBundleContent> contents;
    bundle.GetContents(contents);
    Json packages = Json::array();
    for (const QRMBundleContent& content : contents) {
        packages.push_back({{"package_id", Utf8(content.GetPackageID())}, {"path", Utf8(content.GetPath())}});
    }
    return {{"id", Utf8(bundle.GetBundleID())},
            {"type", BundleTypeWord(bundle.GetBundleType())},
            {"name", FirstText(bundle.GetName())},
            {"path", Utf8(bundle.GetPath())},
            {"vendor_version", Utf8(bundle.GetVendorVersion())},
            {"release_id", Utf8(bundle.GetReleaseID())},
            {"date_time", bundle.GetDateTime().GetValue()},
            {"systems", SystemIDsOf(bundle.GetTargetSystems())},
            {"operating_systems", OSCodesOf(bundle.GetTargetOSes())},
            {"packages", std::move(packages)}};
}

Json ComponentContents(const QRMSoftwareComponent& component, const std::string& base)
{
    std::vector<QRMDevice*> devices;
    component.GetSupportedDevices(devices);
    Json deviceList = Json::array();
    for (const QRMDevice* device : devices) {
        std::vector<QRMPCIInfo*> pcis;
        device->GetPCIInfo(pcis);
        Json pciList = Json::array();
        for (const QRMPCIInfo* pci : pcis) {
            pciList.push_back({{"vendor_id", Hex(pci->GetVendorID())},
                               {"device_id", Hex(pci->GetDeviceID())},
                               {"sub_vendor_id", Hex(pci->GetSubVendorID())},
                               {"sub_device_id", Hex(pci->GetSubDeviceID())}});
        }
        deviceList.push_back(
            {{"component_id", device->GetComponentID()}, {"display", FirstText(*device)}, {"pci", std::move(pciList)}});
    }
    const QRMCategory category = component.GetCategory();
    const std::string path = Utf8(component.GetPath());
    return {{"package_id", Utf8(component.GetPackageID())},
            {"name", FirstText(component.GetName())},
            {"vendor_version", Utf8(component.GetVendorVersion())},
            {"release_id", Utf8(component.GetReleaseID())},
            {"component_type", ComponentTypeWord(component.GetComponentType().GetValue())},
            {"criticality", CriticalityWord(component.GetCriticality().GetValue())},
            {"category", {{"code", Utf8(category.GetCode())}, {"text", FirstText(category)}}},
            {"path", path},
            {"location", base + "/" + path},
            {"date_time", component.GetDateTime().GetValue()},
            {"systems", SystemIDsOf(component.GetSupportedSystems())},
            {"operating_systems", OSCodesOf(component.GetSupportedOperatingSystems())},
            {"devices", std::move(deviceList)}};
}

}  // namespace

Json CollectCatalogContents(const std::string& catalog)
{
    LoadCatalog(catalog);
    QRMKitAPI* api = QRMKitAPI::Instance();
    Json document = CatalogDocument(catalog);
    const std::string base = Text(document["base_location"]);

    std::vector<QRMSoftwareBundle*> bundles;
    api->GetSoftwareBundles(bundles);
    Json bundleList = Json::array();
    for (const QRMSoftwareBundle* bundle : bundles) {
        bundleList.push_back(BundleContents(*bundle));
    }
    std::vector<QRMSoftwareComponent*> components;
    api->GetSoftwareComponents(components);
    Json componentList = Json::array();
    for (const QRMSoftwareComponent* component : components) {
        componentList.push_back(ComponentContents(*component, base));
    }
    Json categories;
    Json acronyms;
    CategoryLists(categories, acronyms);

    document["bundles"] = std::move(bundleList);
    document["components"] = std::move(componentList);
    document["categories"] = std::move(categories);
    document["acronyms"] = std::move(acronyms);
    document["inventory_collectors"] = CollectorList();
    return document;
}

// ---------------------------------------------------------------- collector

Json CollectCollector(const std::string& catalog, const std::string& osCode)
{
    LoadCatalog(catalog);
    QRMKitAPI* api = QRMKitAPI::Instance();
    const VELString code(osCode.c_str());
    std::vector<QRMInventoryComponent> collectors;
    api->GetInventoryComponents(collectors);
    std::string known;
    bool found = false;
    for (const QRMInventoryComponent& collector : collectors) {
        found = found || collector.GetOSCode() == code;
        known += (known.empty() ? "" : ", ") + Utf8(collector.GetOSCode());
    }
    if (!found) {
        throw ToolError("unknown-os-code",
                        catalog + ": no inventory collector for operating system code \"" + osCode + "\" (" +
                            (known.empty() ? std::string("the catalog lists none") : "known codes: " + known) + ")",
                        catalog);
    }
    Json document = NewDocument();
    document["catalog"] = catalog;
    document["os_code"] = osCode;
    // The catalog is parsed, so this lookup stays silent.
    document["location"] = Utf8(api->GetInventoryFile(InventoryArchitecture(), code));
    return document;
}

// ---------------------------------------------------------------- compare

Json CollectComparison(const std::string& first, const std::string& second)
{
    const int order = QRMKitAPI::Instance()->CompareVersion(VELString(first.c_str()), VELString(second.c_str()));
    if (order < -1 || order > 1) {
        throw ToolError("not-comparable", "cannot compare \"" + first + "\" with \"" + second +
                                              "\": only versions written in ASCII characters can be compared");
    }
    Json document = NewDocument();
    document["first"] = first;
    document["second"] = second;
    document["order"] = order;
    document["relation"] = order > 0 ? ">" : order < 0 ? "<" : "=";
    return document;
}

Json ErrorDocument(const ToolError& error)
{
    Json document = NewDocument();
    document["error"] = {{"code", error.Code()},
                         {"message", error.what()},
                         {"file", error.File().empty() ? Json() : Json(error.File())}};
    return document;
}

void KeepOnly(Json& document, const char* list, const std::vector<std::string>& words)
{
    if (words.empty()) {
        return;
    }
    auto listed = [&words](const Json& row, const char* field) {
        return row.contains(field) && row[field].is_string() &&
               std::find(words.begin(), words.end(), row[field].get<std::string>()) != words.end();
    };
    Json kept = Json::array();
    for (Json& row : document[list]) {
        if (listed(row, "status") || listed(row, "outcome")) {
            kept.push_back(std::move(row));
        }
    }
    document[list] = std::move(kept);
    document["only"] = words;
}
}  // namespace qrmtool
