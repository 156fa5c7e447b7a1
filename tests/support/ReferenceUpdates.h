// The applicable-updates rule written out plainly, through the public
// interface only: the one reference that the tests and the fuzz targets
// check GetApplicableBundle and GetApplicableUpdates against.
#ifndef QRMKIT_TEST_REFERENCE_UPDATES_H
#define QRMKIT_TEST_REFERENCE_UPDATES_H

#include <QRMKit.h>

#include <map>
#include <string>
#include <vector>

namespace reference {

typedef std::map<QRMIApplication*, QRMSoftwareComponent*> UpdateMap;

// The file name of a path: what follows the last "/".
std::u16string FileName(const VELString& path);

// A catalog PCI entry matches the device's vendor and device id, and its
// sub-ids or has none (both 0).
bool PCIMatches(const QRMPCIInfo& pci, const QRMIDevice& device);

// The component supports the device: by component id when the device has
// one, else by a matching PCI entry.
bool Supports(const QRMSoftwareComponent& component, const QRMIDevice& device);

// The first bundle of the type, in catalog order, that lists the inventory's
// system id; null when none does.
QRMSoftwareBundle* ApplicableBundle(QRMKitAPI& api, QRMBundleTypeEnum bundleType);

// A walk over the bundle's packages in order, the catalog's components in
// order, their supported devices and PCI entries: the first match is kept
// and replaced only by a newer one (CompareVersion exactly 1).
class Matcher {
public:
    Matcher(QRMKitAPI& api, const QRMSoftwareBundle& bundle, const std::vector<QRMSoftwareComponent*>& components);

    // The component that updates the application of the device, or null.
    QRMSoftwareComponent* Best(const QRMIDevice& device, const QRMIApplication& application) const;

private:
    QRMKitAPI& mAPI;
    std::vector<QRMSoftwareComponent*> mWalk;
};

// The whole query: QRM_KIT_FAILURE when the catalog or the inventory is not
// parsed or no bundle applies; otherwise an entry for every application
// with an update, added to `updates`.
QRMKitReturnCode ApplicableUpdates(QRMKitAPI& api, UpdateMap& updates, QRMBundleTypeEnum bundleType);

}  // namespace reference

#endif
