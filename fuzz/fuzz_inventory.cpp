// Inventory reader: the input is an inventory file. It is read into the
// inventory store, then the store is listed and walked, and the applicable
// updates are asked for against a fixed small catalog, read once at
// start-up; no inventory read or query changes the catalog store.
//
// Every input starts from the inventory store's state at load time: the
// hook of the fuzz build (qrm::fuzzing::ResetInventoryStore) empties it,
// which nothing in the library ever does. It is emptied again when the
// input is done, so that an input leaves the heap as it found it and
// libFuzzer's leak check after each input stays meaningful. One process
// therefore runs for as long as it is let, at the same speed and size, and
// every finding reproduces on its own. That repeated reads add to the
// inventory store is covered by the unit tests (InventoryReaderStore).
//
// Half the inputs (those of odd size) meet a filled inventory store: the
// fixed inventory is read first, so that the input's items are compared
// with stored ones (equal ones are not stored twice) and a second system
// makes GetSystemIDFromInventory give 0; the fixed catalog has a bundle for
// system id 0 so that the matching of updates stays reachable after that.
#include "FuzzSupport.h"

#include "api/QRMFuzzHooks.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

using namespace qrmfuzz;

namespace {

ScratchFile* gInventory = nullptr;
ScratchFile* gFixedInventory = nullptr;

// The inventory store as at load time (and, for half the inputs, filled by
// the fixed inventory); the fixed catalog still held.
void StartInput(QRMKitAPI& api, bool withFixedInventory)
{
    qrm::fuzzing::ResetInventoryStore();
    std::vector<QRMIDevice*> devices;
    Check(!api.IsInventoryParsed() && api.GetInventory(devices) == QRM_KIT_FAILURE && devices.empty(),
          "ResetInventoryStore: the inventory store is not as at load time");
    Check(api.IsCatalogParsed(), "the fixed catalog is no longer held");
    if (withFixedInventory) {
        Check(api.ParseInventory(gFixedInventory->File()) == QRM_KIT_SUCCESS, "the fixed inventory does not parse");
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    StdoutWatch::Install();
    static ScratchFile inventory("inventory");
    gInventory = &inventory;
    // Written once, read again for every other input.
    static ScratchFile fixedInventory("fixed-inventory");
    fixedInventory.Write(std::string(kFixedInventory));
    gFixedInventory = &fixedInventory;

    ScratchFile catalog("catalog");
    catalog.Write(std::string(kFixedCatalog));
    QRMKitAPI* api = QRMKitAPI::Instance();
    Check(api->Parse(catalog.File()) == QRM_KIT_SUCCESS, "the fixed catalog does not parse");
    Check(!api->IsInventoryParsed(), "the inventory store is parsed before any inventory was read");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    StartInput(*api, size % 2 == 1);
    std::vector<QRMIDevice*> before;
    api->GetInventory(before);
    gInventory->Write(data, size);

    const bool parsedBefore = api->IsInventoryParsed();
    QRMKitReturnCode result = api->ParseInventory(gInventory->File());
    Check(result == QRM_KIT_SUCCESS || result == QRM_KIT_FAILURE,
          "ParseInventory: a result other than success or failure for an existing file");
    const bool parsed = api->IsInventoryParsed();
    Check(parsed == (parsedBefore || result == QRM_KIT_SUCCESS),
          "ParseInventory: the parsed flag does not follow the results");

    uint64_t h = Hash(api->GetInventorySchemaVersion());
    h += static_cast<uint64_t>(api->GetInventoryLanguage());
    h += api->GetInventoryTimeStamp().GetValue();

    std::vector<QRMOperatingSystem> oses;
    api->GetInventoryOperatingSystems(oses);
    for (const QRMOperatingSystem& os : oses) {
        h += Walk(os);
    }
    std::vector<QRMISystem> systems;
    api->GetInventorySystems(systems);
    for (const QRMISystem& system : systems) {
        h += Walk(system);
    }
    const unsigned int systemID = api->GetSystemIDFromInventory();
    Check(systemID == (systems.size() == 1 ? systems.front().GetSystemID() : 0u),
          "GetSystemIDFromInventory: not the id of the one stored system, or not 0");

    // GetInventory appends without clearing.
    std::vector<QRMIDevice*> devices(1, nullptr);
    QRMKitReturnCode listed = api->GetInventory(devices);
    Check(listed == (parsed ? QRM_KIT_SUCCESS : QRM_KIT_FAILURE),
          "GetInventory: result does not follow the parsed flag");
    Check(devices.front() == nullptr && (parsed || devices.size() == 1),
          "GetInventory: the caller's entries were changed");
    // A read adds to the store: what was stored before stays, in order.
    Check(devices.size() - 1 >= before.size() && std::equal(before.begin(), before.end(), devices.begin() + 1),
          "GetInventory: a read removed or reordered stored devices");
    // Only what this input added (the fixed inventory is walked when it is
    // itself the input: it is a seed of the corpus).
    for (std::size_t i = 1 + before.size(); i < devices.size(); ++i) {
        h += Walk(*devices[i]);
    }
    Consume(h);

    // Every stored device: a second system changes the applicable bundle,
    // and so the answer for the devices stored before.
    CheckApplicableUpdates(*api);
    Check(StdoutWatch::TakeMessages() == 0, "the inventory queries printed a message");

    // Nothing is left for the next input: the heap is as the input found it.
    qrm::fuzzing::ResetInventoryStore();
    return 0;
}
