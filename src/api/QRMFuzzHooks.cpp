// The hooks of QRMFuzzHooks.h. Compiled into the library's objects by the
// fuzz build only (fuzz/CMakeLists.txt); never part of the shipped library.
#ifndef QRMKIT_FUZZING
#error "QRMFuzzHooks.cpp belongs to the fuzz build only (see fuzz/CMakeLists.txt)"
#endif

#include "api/QRMFuzzHooks.h"

#include "QRMKitAPI.h"
#include "api/QRMIInventory.h"
#include "api/QRMManifest.h"

#include <new>

namespace qrm::fuzzing {
namespace {

// Where the process-wide state lives: the two stores and the instance
// pointer are private static members of QRMKitAPI, and the public header
// stays exactly as it ships (no friend declaration for a hook that the
// shipped library does not have). Access is not checked on the template
// arguments of an explicit instantiation, so the one instantiation below
// may name those members; it hands their addresses out through its friend.
struct LibraryState {
    QRMManifest* catalog;
    QRMIInventory* inventory;
    QRMKitAPI** instance;
    bool QRMKitAPI::*initialized;
    VELFile QRMKitAPI::*catalogFile;
};

LibraryState State();

template <QRMManifest* Catalog, QRMIInventory* Inventory, QRMKitAPI** Instance, bool QRMKitAPI::*Initialized,
          VELFile QRMKitAPI::*CatalogFile>
struct StateAccess {
    friend LibraryState State() { return LibraryState{Catalog, Inventory, Instance, Initialized, CatalogFile}; }
};

template struct StateAccess<&QRMKitAPI::mCatalogManifest, &QRMKitAPI::mInventory, &QRMKitAPI::mAPI,
                            &QRMKitAPI::mInitialized, &QRMKitAPI::mCatalogFile>;

// Ends the store's life (its destructor frees everything it owns) and makes
// a new one in its place: the very state the store has when the library is
// loaded, whatever members its class gains later. Neither class has const
// or reference members, so the store's name denotes the new object, and
// their default constructors allocate nothing, so nothing can throw in
// between.
template <class Store>
void Renew(Store& store)
{
    store.~Store();
    ::new (static_cast<void*>(&store)) Store();
}

}  // namespace

void ResetCatalogStore()
{
    const LibraryState state = State();
    Renew(*state.catalog);
    // The instance is kept (pointers to it stay valid), but forgets the
    // catalog file.
    if (QRMKitAPI* api = *state.instance) {
        api->*state.initialized = false;
        api->*state.catalogFile = VELFile();
    }
}

void ResetInventoryStore() { Renew(*State().inventory); }

void ResetStores()
{
    ResetCatalogStore();
    ResetInventoryStore();
}

}  // namespace qrm::fuzzing
