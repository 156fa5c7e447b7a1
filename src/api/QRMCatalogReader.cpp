// The readers of the catalog's entries: "SoftwareBundle",
// "SoftwareComponent" and "InventoryComponent".
#include "QRMKitAPI.h"

#include "api/QRMManifest.h"
#include "api/QRMXMLRead.h"

namespace {

bool HasAll(const VELXMLNode& node, std::initializer_list<const char*> names)
{
    for (const char* name : names) {
        if (qrm::SingleChild(node, name) == nullptr) {
            return false;
        }
    }
    return true;
}

}  // namespace

QRMKitReturnCode QRMKitAPI::ParseSoftwareBundle(VELXMLNode*& node)
{
    if (!HasAll(*node, {"Name", "ComponentType", "Contents"})) {
        return QRM_KIT_ELEMENT_MISSING;
    }
    return mCatalogManifest.AddSoftwareBundle(QRMSoftwareBundle());
}

QRMKitReturnCode QRMKitAPI::ParseSoftwareComponent(VELXMLNode*& node)
{
    if (!HasAll(*node, {"Name", "ComponentType", "Category", "SupportedDevices"})) {
        return QRM_KIT_ELEMENT_MISSING;
    }
    return mCatalogManifest.AddSoftwareComponent(QRMSoftwareComponent());
}

QRMKitReturnCode QRMKitAPI::ParseInventoryComponent(VELXMLNode*& node)
{
    QRMInventoryComponent component;
    component.SetOSCode(qrm::AttributeOrEmpty(*node, "osCode"));
    component.SetPath(qrm::AttributeOrEmpty(*node, "path"));
    return mCatalogManifest.AddInventoryComponent(component);
}
