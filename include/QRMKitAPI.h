// QRMKitAPI: the library's single entry object.
//
// A process-wide singleton that owns, through two static stores, everything
// that parsing produces: the catalog store (emptied by Reset and by every
// Parse) and the inventory store (filled by ParseInventory, never emptied).
// The library starts no threads and, apart from a guard on the first
// Instance(), takes no locks: callers serialise every call.
#ifndef QRMKIT_API_H
#define QRMKIT_API_H

#include "QRMIDevice.h"
#include "QRMISystem.h"
#include "QRMInventoryComponent.h"
#include "QRMKitTypes.h"
#include "QRMOperatingSystem.h"
#include "QRMSoftwareBundle.h"
#include "QRMSoftwareComponent.h"
#include "VELFile.h"
#include "VELString.h"
#include "VELTime.h"
#include "VELXML.h"

#include <map>
#include <vector>

class QRMManifest;
class QRMIInventory;

class QRMKIT_API QRMKitAPI {
public:
    // The one instance, created on first use. Never delete it.
    static QRMKitAPI* Instance();

    QRMKitAPI& operator=(const QRMKitAPI& other);
    ~QRMKitAPI();

    // Remembers the catalog file. QRM_KIT_NOT_FOUND (and nothing changed)
    // when it does not exist; nothing is read.
    QRMKitReturnCode Initialize(const VELFile& file);
    // Empties the catalog store (its category maps excepted) and forgets
    // Initialize; the inventory store is not touched.
    QRMKitReturnCode Reset();
    bool IsInitialized() const;

    // Does nothing and returns QRM_KIT_SUCCESS: the file given to Initialize
    // is not parsed by this overload. Kept for compatibility with callers
    // that call it after Initialize; use Parse(file).
    QRMKitReturnCode Parse();
    // Reads a catalog file into the catalog store, replacing what it held.
    QRMKitReturnCode Parse(const VELFile& file);

    // The catalog's "baseLocation"; empty while no catalog is parsed.
    VELString GetBaseLocation() const;

    // Where the inventory collector for an operating system lies. The
    // architecture is accepted and not consulted: the lookup is by code
    // alone. Before a catalog is parsed both print "Catalog not initialized"
    // and return null or an empty text.
    // A new copy of the first inventory component whose code equals `osCode`
    // (the caller deletes it), or null.
    const QRMInventoryComponent* GetInventoryComponent(QRMOSArchitectureEnum architecture, VELString osCode) const;
    // The base location + "/" + the component's path, joined as they stand;
    // empty when no component has that code.
    VELString GetInventoryFile(QRMOSArchitectureEnum architecture, VELString osCode) const;

    // Reads an inventory file into the inventory store, adding to what
    // earlier calls stored (equal items are not stored twice).
    QRMKitReturnCode ParseInventory(const VELFile& file);
    // Appends the stored devices (owned by the store) without clearing
    // `devices`; QRM_KIT_FAILURE and nothing appended before an inventory
    // was read successfully.
    QRMKitReturnCode GetInventory(std::vector<QRMIDevice*>& devices) const;
    // The system id when the inventory holds exactly one system, else 0.
    unsigned int GetSystemIDFromInventory() const;

    // Inspection of the inventory store. List getters append copies.
    void GetInventoryOperatingSystems(std::vector<QRMOperatingSystem>& oses) const;
    void GetInventorySystems(std::vector<QRMISystem>& systems) const;
    QRMInventoryLanguageEnum GetInventoryLanguage() const;
    VELString GetInventorySchemaVersion() const;
    VELTime GetInventoryTimeStamp() const;
    bool IsInventoryParsed() const;

    // The first bundle of that type, in catalog order, that lists the
    // inventory's system id among the models of its target systems; null
    // when none does. The bundle stays owned by the catalog store.
    QRMSoftwareBundle* GetApplicableBundle(QRMBundleTypeEnum bundleType) const;
    // The greatest bundle number (the decimal after the last "." of the
    // bundle id) among the bundles of that type; 0 when there is none.
    unsigned int GetGreatestBundleNumber(QRMBundleTypeEnum bundleType) const;

    // For each installed application of each inventory device, the catalog
    // component that updates it: among the components whose file is listed
    // in the applicable bundle and that support the device (by component id,
    // or by PCI ids when the device's component id is 0) with the
    // application's component type, the newest by CompareVersion, the first
    // found among equals. Devices with component id
    // QRM_EXCLUDED_COMPONENT_ID (2331) are never matched.
    // The installed version and the architecture are not consulted.
    // Entries are added to `updates` (not cleared); QRM_KIT_FAILURE with
    // `updates` untouched when the catalog or the inventory is not parsed,
    // no bundle applies or memory runs out. Keys and values stay owned by
    // the stores.
    QRMKitReturnCode GetApplicableUpdates(std::map<QRMIApplication*, QRMSoftwareComponent*>& updates,
                                          QRMOSArchitectureEnum osArchitecture, QRMBundleTypeEnum bundleType) const;

    // Category code to category text, as gathered from every catalog read
    // since the library was loaded (kept for compatibility: a reset or a new
    // catalog never removes categories). Sets the caller's entry for every
    // code; the caller's other entries stay.
    void GetCategoryValues(std::map<VELString, VELString>& values) const;
    // Gives every category a short upper-case acronym: a code of one to four
    // letters is its own; others get the first free two-letter (then
    // three-letter) selection of the consonants of their code. Acronyms,
    // once given, are kept for the life of the library.
    void SetAcronymForCategoryValues();
    // SetAcronymForCategoryValues, then acronym to category text into the
    // caller's map (entries under the same keys overwritten).
    void GetAcronymForCategoryValues(std::map<VELString, VELString>& acronyms);
    // For each category text: its codes and, after each code, the first
    // acronym (in key order) that carries that text and differs from the
    // code. Appends to the caller's vectors.
    void ListCatalogAndRVUGeneratedCategoryValues(std::map<VELString, std::vector<VELString>>& list);

    // 1 when `first` is the newer version, -1 when `second` is, 0 when they
    // are equal, -2 when a text is not ASCII (it cannot be compared).
    int CompareVersion(const VELString& first, const VELString& second) const;

    // Inspection of the catalog store, parsed or not. List getters append
    // without clearing; pointers stay owned by the store and are valid until
    // the next Reset or Parse.
    void GetSoftwareComponents(std::vector<QRMSoftwareComponent*>& components) const;
    void GetSoftwareBundles(std::vector<QRMSoftwareBundle*>& bundles) const;
    void GetInventoryComponents(std::vector<QRMInventoryComponent>& components) const;
    VELString GetCatalogReleaseID() const;
    VELString GetCatalogVersion() const;
    VELTime GetCatalogDateTime() const;
    bool IsCatalogParsed() const;

private:
    QRMKitAPI();
    QRMKitAPI(const QRMKitAPI& other);

    QRMKitReturnCode ParseSoftwareBundle(VELXMLNode*& node);
    QRMKitReturnCode ParseSoftwareComponent(VELXMLNode*& node);
    QRMKitReturnCode ParseInventoryComponent(VELXMLNode*& node);

    // Appends ".0" to the text with fewer fields until both have as many.
    // 0, or -1 (neither text changed) when a text is not ASCII.
    int MakeEqualLength(VELString& first, VELString& second) const;

    VELFile mCatalogFile;
    bool mInitialized;

    static QRMKitAPI* mAPI;
    static QRMManifest mCatalogManifest;
    static QRMIInventory mInventory;
};

#endif
