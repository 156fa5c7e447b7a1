// Inventory reader: the input is an inventory file. It is read into the
// inventory store, then the store is listed and walked, and the applicable
// updates are asked for against a fixed small catalog read once at start-up.
//
// Process-wide growth: the inventory store is never emptied (the library
// keeps what every ParseInventory stored, by design), so each input adds to
// it and every later input pays for what came before. scripts/fuzz
// therefore runs this target as a series of short-lived processes sharing
// one corpus directory (see fuzz/README.md). A finding that needs the
// store's earlier contents shows up as an input that does not crash when
// run alone; the log of the process that found it holds the whole story.
//
// Once two different systems are stored, GetSystemIDFromInventory gives 0;
// the fixed catalog has a bundle for system id 0 so that the matching of
// updates stays reachable after that.
#include "FuzzSupport.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <vector>

using namespace qrmfuzz;

namespace {

ScratchFile* gInventory = nullptr;

// What has piled up in the process-wide inventory store, for the log.
void ReportGrowth()
{
    std::vector<QRMIDevice*> devices;
    std::vector<QRMOperatingSystem> oses;
    std::vector<QRMISystem> systems;
    QRMKitAPI::Instance()->GetInventory(devices);
    QRMKitAPI::Instance()->GetInventoryOperatingSystems(oses);
    QRMKitAPI::Instance()->GetInventorySystems(systems);
    std::fprintf(stderr, "fuzz_inventory: %zu devices, %zu operating systems and %zu systems held at exit\n",
                 devices.size(), oses.size(), systems.size());
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    StdoutWatch::Install();
    static ScratchFile inventory("inventory");
    gInventory = &inventory;

    ScratchFile catalog("catalog");
    catalog.Write(std::string(kFixedCatalog));
    QRMKitAPI* api = QRMKitAPI::Instance();
    Check(api->Parse(catalog.File()) == QRM_KIT_SUCCESS, "the fixed catalog does not parse");
    Check(!api->IsInventoryParsed(), "the inventory store is parsed before any inventory was read");
    std::atexit(ReportGrowth);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
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
    // Only what this input added: the rest was walked and checked when it
    // came, and neither it nor the catalog has changed since.
    static std::size_t known = 0;
    Check(devices.size() - 1 >= known, "GetInventory: fewer devices than before, although nothing empties the store");
    for (std::size_t i = 1 + known; i < devices.size(); ++i) {
        h += Walk(*devices[i]);
    }
    Consume(h);

    CheckApplicableUpdates(*api, known);
    known = devices.size() - 1;
    Check(StdoutWatch::TakeMessages() == 0, "the inventory queries printed a message");
    return 0;
}
