// Catalog documents for tests and fuzz seeds, written as text: an entry of
// each kind the catalog reader reads whole, and the document around them.
#ifndef QRMKIT_TEST_CATALOG_XML_H
#define QRMKIT_TEST_CATALOG_XML_H

#include <string>

// Each entry carries every child its reader requires, so
// that it is read whole; `leaveOut` names one required child that is left
// out, `twice` one that is written two times.
namespace CatalogXML {

// A "SoftwareBundle" with "Name", "ComponentType" and "Contents".
std::string Bundle(const std::string& bundleID, const std::string& leaveOut = "", const std::string& twice = "");
// A "SoftwareComponent" with "Name", "ComponentType", "Category" and
// "SupportedDevices".
std::string Component(const std::string& packageID, const std::string& leaveOut = "", const std::string& twice = "");
// An "InventoryComponent" with "osCode" and "path".
std::string InventoryComponent(const std::string& osCode, const std::string& path);
// A whole catalog: an XML declaration, then the root element with the given
// attribute text (written as it stands) around `entries`.
std::string Document(const std::string& rootAttributes, const std::string& entries,
                     const std::string& rootName = "Manifest");

}  // namespace CatalogXML

#endif
