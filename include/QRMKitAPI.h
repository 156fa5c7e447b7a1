// QRMKitAPI: the library's single entry object.
//
// A process-wide singleton that owns, through two static stores, everything
// that parsing produces: the catalog store (emptied by Reset and by every
// Parse) and the inventory store (filled by ParseInventory, never emptied).
// The library starts no threads and takes no locks: callers serialise every
// call.
#ifndef QRMKIT_API_H
#define QRMKIT_API_H

#include "QRMInventoryComponent.h"
#include "QRMKitTypes.h"
#include "QRMSoftwareBundle.h"
#include "QRMSoftwareComponent.h"
#include "VELFile.h"
#include "VELString.h"
#include "VELTime.h"
#include "VELXML.h"

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
    friend class QRMKitAPITestPeer;

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
