// Catalog reader: the input is a catalog file. It is parsed, then every query
// of the library is asked of the result and every value object is walked.
//
// The inventory store holds a fixed small inventory, read once at start-up,
// so that bundle selection and the matching of updates have something to
// match against; no catalog query changes it.
//
// Every input starts from the catalog store's state at load time: the hook
// of the fuzz build (qrm::fuzzing::ResetCatalogStore) empties it, the
// category values and acronyms included, which Parse and Reset keep on
// purpose. It is emptied again when the input is done, so that an input
// leaves the heap as it found it and libFuzzer's leak check after each
// input stays meaningful. One process therefore runs for as long as it is
// let, at the same speed and size, and every finding reproduces on its own.
// That the category maps survive Reset and Parse is covered by the unit
// tests (CategoryAcronyms).
//
// Half the inputs (chosen by size) meet a filled catalog store: a small
// earlier catalog is read first and its categories given acronyms, so that
// Parse replaces entries and the input's categories join maps that already
// hold some. Every other input ends with a Reset, which must leave no entry
// behind.
#include "FuzzSupport.h"

#include "api/QRMFuzzHooks.h"

#include <cstdint>
#include <map>
#include <set>
#include <vector>

using namespace qrmfuzz;

namespace {

ScratchFile* gCatalog = nullptr;
ScratchFile* gEarlierCatalog = nullptr;

void CheckInventoryComponents(QRMKitAPI& api, bool parsed, std::size_t& expectedMessages)
{
    std::vector<QRMInventoryComponent> entries;
    api.GetInventoryComponents(entries);
    for (const QRMInventoryComponent& entry : entries) {
        Consume(Walk(entry));
    }
    if (!parsed) {
        Check(api.GetBaseLocation().IsEmpty(), "GetBaseLocation: not empty while the catalog is not parsed");
    }

    // Look up the first few codes of the catalog, an empty code and one that
    // the catalog does not hold.
    std::vector<VELString> codes;
    for (std::size_t i = 0; i < entries.size() && codes.size() < 4; ++i) {
        codes.push_back(entries[i].GetOSCode());
    }
    codes.push_back(VELString());
    codes.push_back(VELString("no such code"));
    const VELString base = api.GetBaseLocation();
    for (std::size_t i = 0; i < codes.size(); ++i) {
        QRMOSArchitectureEnum architecture = static_cast<QRMOSArchitectureEnum>(i % 5);
        const QRMInventoryComponent* found = api.GetInventoryComponent(architecture, codes[i]);
        VELString file = api.GetInventoryFile(architecture, codes[i]);
        if (!parsed) {
            expectedMessages += 2;
            Check(found == nullptr, "GetInventoryComponent: an entry while the catalog is not parsed");
            Check(file.IsEmpty(), "GetInventoryFile: a path while the catalog is not parsed");
            continue;
        }
        const QRMInventoryComponent* first = nullptr;
        for (const QRMInventoryComponent& entry : entries) {
            if (entry.GetOSCode() == codes[i]) {
                first = &entry;
                break;
            }
        }
        if (first == nullptr) {
            Check(found == nullptr, "GetInventoryComponent: an entry for a code the catalog does not hold");
            Check(file.IsEmpty(), "GetInventoryFile: a path for a code the catalog does not hold");
        } else {
            Check(found != nullptr && *found == *first, "GetInventoryComponent: not the first entry with that code");
            Check(file == base + "/" + first->GetPath(), "GetInventoryFile: not the base location, \"/\" and the path");
        }
        delete found;
    }
}

void CheckCategories(QRMKitAPI& api)
{
    std::map<VELString, VELString> values;
    api.GetCategoryValues(values);
    std::set<VELString> texts;
    for (const auto& entry : values) {
        texts.insert(entry.second);
    }

    api.SetAcronymForCategoryValues();
    std::map<VELString, VELString> acronyms;
    api.GetAcronymForCategoryValues(acronyms);
    std::map<VELString, VELString> again;
    api.GetAcronymForCategoryValues(again);
    Check(acronyms == again, "GetAcronymForCategoryValues: a second call gives another map");
    for (const auto& entry : acronyms) {
        Check(texts.count(entry.second) == 1,
              "GetAcronymForCategoryValues: an acronym for a text that no category has");
        Consume(Hash(entry.first));
    }

    std::map<VELString, std::vector<VELString>> list;
    api.ListCatalogAndRVUGeneratedCategoryValues(list);
    for (const auto& entry : list) {
        Check(texts.count(entry.first) == 1, "ListCatalogAndRVUGeneratedCategoryValues: a text that no category has");
        Check(!entry.second.empty(), "ListCatalogAndRVUGeneratedCategoryValues: a text without its code");
        for (const VELString& item : entry.second) {
            Consume(Hash(item));
        }
    }
}

// A catalog read before the input, for half the inputs: an entry of each
// kind, a category code that is its own acronym and one that gets a
// generated acronym.
const char kEarlierCatalog[] = R"(<?xml version="1.0" encoding="utf-8"?>
<Manifest baseLocation="earlier.example.com" dateTime="1700000000" releaseID="EARLIER" version="0.9">
  <SoftwareBundle bundleID="S740W64.00040" bundleType="BTW64" path="b/earlier.exe">
    <Name><Display lang="en">Earlier bundle</Display></Name>
    <ComponentType value="SBDL"/>
    <TargetSystems><Brand key="3" prefix="SRV"><Model systemID="0A6B"/></Brand></TargetSystems>
    <Contents><Package path="BIOS.EXE" packageID="P1"/><Package path="NICDRV.EXE" packageID="P4"/></Contents>
  </SoftwareBundle>
  <SoftwareComponent packageID="P1" path="BIOS.EXE" vendorVersion="2.0">
    <Name><Display lang="en">System BIOS</Display></Name>
    <ComponentType value="BIOS"/>
    <Category value="BI"><Display lang="en">BIOS</Display></Category>
    <SupportedDevices><Device componentID="159"/></SupportedDevices>
  </SoftwareComponent>
  <SoftwareComponent packageID="P4" path="NICDRV.EXE" vendorVersion="1.0">
    <Name><Display lang="en">Adapter driver</Display></Name>
    <ComponentType value="DRVR"/>
    <Category value="Network Drivers"><Display lang="en">Network Drivers</Display></Category>
    <SupportedDevices><Device componentID="0"><PCIInfo deviceID="1593" vendorID="8086"/></Device></SupportedDevices>
  </SoftwareComponent>
  <InventoryComponent osCode="W22" path="collectors/earlier.exe"/>
</Manifest>
)";

// The catalog store as at load time (and, for half the inputs, filled by
// the earlier catalog); the fixed inventory still held.
void StartInput(QRMKitAPI& api, bool withEarlierCatalog)
{
    qrm::fuzzing::ResetCatalogStore();
    std::map<VELString, VELString> values;
    api.GetCategoryValues(values);
    Check(!api.IsInitialized() && !api.IsCatalogParsed() && values.empty(),
          "ResetCatalogStore: the catalog store is not as at load time");
    Check(api.IsInventoryParsed() && api.GetSystemIDFromInventory() == 0x0A6B, "the fixed inventory is no longer held");
    if (withEarlierCatalog) {
        Check(api.Parse(gEarlierCatalog->File()) == QRM_KIT_SUCCESS, "the earlier catalog does not parse");
        api.SetAcronymForCategoryValues();
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    StdoutWatch::Install();
    static ScratchFile catalog("catalog");
    gCatalog = &catalog;
    static ScratchFile earlierCatalog("earlier-catalog");
    earlierCatalog.Write(std::string(kEarlierCatalog));
    gEarlierCatalog = &earlierCatalog;

    ScratchFile inventory("inventory");
    inventory.Write(std::string(kFixedInventory));
    QRMKitAPI* api = QRMKitAPI::Instance();
    Check(api->ParseInventory(inventory.File()) == QRM_KIT_SUCCESS, "the fixed inventory does not parse");
    Check(api->GetSystemIDFromInventory() == 0x0A6B, "the fixed inventory has not system id 0A6B");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    Check(api == QRMKitAPI::Instance(), "Instance: two different instances");
    StartInput(*api, (size / 2) % 2 == 1);
    gCatalog->Write(data, size);

    Check(api->Initialize(gCatalog->File()) == QRM_KIT_SUCCESS && api->IsInitialized(),
          "Initialize: refuses an existing file");
    Check(api->Parse() == QRM_KIT_SUCCESS, "Parse(): not a no-op");

    QRMKitReturnCode result = api->Parse(gCatalog->File());
    Check(result == QRM_KIT_SUCCESS || result == QRM_KIT_FAILURE || result == QRM_KIT_ELEMENT_MISSING,
          "Parse: a result other than success, failure or element missing for an existing file");
    const bool parsed = api->IsCatalogParsed();
    Check(parsed == (result == QRM_KIT_SUCCESS), "Parse: the parsed flag does not follow the result");

    uint64_t h = Hash(api->GetBaseLocation());
    h += Hash(api->GetCatalogReleaseID()) + Hash(api->GetCatalogVersion());
    h += api->GetCatalogDateTime().GetValue();

    std::vector<QRMSoftwareBundle*> bundles;
    api->GetSoftwareBundles(bundles);
    for (const QRMSoftwareBundle* bundle : bundles) {
        h += Walk(*bundle);
    }
    std::vector<QRMSoftwareComponent*> components;
    api->GetSoftwareComponents(components);
    for (const QRMSoftwareComponent* component : components) {
        h += Walk(*component);
    }
    // The vendor versions of neighbouring components, compared both ways.
    for (std::size_t i = 0; i + 1 < components.size() && i < 16; ++i) {
        VELString a = components[i]->GetVendorVersion();
        VELString b = components[i + 1]->GetVendorVersion();
        int forward = api->CompareVersion(a, b);
        int backward = api->CompareVersion(b, a);
        Check(forward >= -2 && forward <= 1, "CompareVersion: a result outside -2..1");
        Check((forward == -2) == (backward == -2), "CompareVersion: -2 in one order only");
        Check(forward == -2 || forward == -backward, "CompareVersion: not antisymmetric");
    }
    Consume(h);

    std::size_t expectedMessages = 0;
    CheckInventoryComponents(*api, parsed, expectedMessages);
    CheckApplicableUpdates(*api);
    CheckCategories(*api);
    Check(StdoutWatch::TakeMessages() == expectedMessages,
          "\"Catalog not initialized\" not printed exactly once per lookup on an unparsed catalog");

    // Every other input ends with a Reset, which leaves no entry behind
    // (only the category maps, on purpose).
    if (size % 2 == 1) {
        Check(api->Reset() == QRM_KIT_SUCCESS && !api->IsInitialized(), "Reset: still initialised");
        Check(!api->IsCatalogParsed() && api->GetBaseLocation().IsEmpty(), "Reset: the catalog is still parsed");
        std::vector<QRMSoftwareComponent*> leftComponents;
        std::vector<QRMSoftwareBundle*> leftBundles;
        std::vector<QRMInventoryComponent> leftEntries;
        api->GetSoftwareComponents(leftComponents);
        api->GetSoftwareBundles(leftBundles);
        api->GetInventoryComponents(leftEntries);
        Check(leftComponents.empty() && leftBundles.empty() && leftEntries.empty(), "Reset: entries are still held");
    }

    // Nothing is left for the next input: the heap is as the input found it.
    qrm::fuzzing::ResetCatalogStore();
    return 0;
}
