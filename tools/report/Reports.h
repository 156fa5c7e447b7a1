// The answers of the qrmkit commands as JSON documents, shared by the tool
// (its --json output, and the tables it renders from them) and the Python
// package, so that the two can never disagree. Each "Collect" function loads
// what it needs and gathers everything into one document. Failures are
// thrown as ToolError.
#ifndef QRMKIT_REPORT_REPORTS_H
#define QRMKIT_REPORT_REPORTS_H

#include <QRMKit.h>
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace qrmtool {

using Json = nlohmann::ordered_json;

// The version of the shape of every JSON document the tool prints: raised
// when a member changes meaning or goes away (new members do not raise it).
constexpr int kSchemaVersion = 1;

// An empty JSON document that names its schema version ("schema_version"
// first): every document the tool prints starts as one.
Json NewDocument();

// A new document about one computer, for the catalog and inventory the
// library has read: their paths, the catalog's release and the system id.
Json ComputerDocument(const std::string& catalog, const std::string& inventory);

// The document as JSON text: indented by `indent` spaces, or on one line
// when `indent` is negative. Text that is not valid UTF-8 is replaced, never
// thrown on.
std::string JsonText(const Json& document, int indent);

// `bundleType` is "auto" or a bundle type text ("BTW64").
Json CollectUpdates(const std::string& catalog, const std::string& inventory, const std::string& bundleType);
// Whether an updates document has a package newer than what is installed
// (what --check asks).
bool HasNewer(const Json& updates);

// The same document for a catalog the library has read already: reads only
// the inventory. `catalog` is the path the document names. Every way of
// asking for updates (one computer or a fleet) goes through this function,
// so they cannot disagree.
Json EvaluateUpdates(const std::string& catalog, const std::string& inventory, const std::string& bundleType);

// An update's row: the device, the application and its installed version,
// the package that updates it (version, status, type, criticality,
// category, name, ids, path and location under the catalog's base).
Json UpdateEntry(const QRMIDevice& device, const QRMIApplication& application, const QRMSoftwareComponent& component,
                 const std::string& base);

// The bundle updates come from, for the inventory read last: of the type
// named, or with "auto" the first type, in enumeration order, with a bundle
// for the system. `bundle` is null when none applies.
struct BundleChoice {
    QRMSoftwareBundle* bundle = nullptr;
    QRMBundleTypeEnum type = QRM_BUNDLE_BTW32;
    bool automatic = false;
};
BundleChoice ChooseBundle(const std::string& bundleType);

class ToolError;
// The failure when no bundle applies: "no-bundle", naming the inventory.
ToolError NoBundle(const std::string& catalog, const std::string& inventory, const std::string& bundleType);

// "0A6B", or null when the inventory does not name exactly one system.
Json SystemID(unsigned int id);
// "system 0A6B" or "an inventory without a single system".
std::string SystemPhrase(const Json& systemID);
// A JSON value as text: strings as they are, null as "", others as JSON.
std::string Text(const Json& value);
// "1 update", "2 updates".
std::string Plural(std::size_t count, const std::string& one, const std::string& many);
// The texts of a list, with the separator between them.
std::string Join(const Json& list, const char* separator = ", ");
// The bundle type a "--bundle-type" text names (QRM_BUNDLE_BTW32 for
// "auto"), or a "usage" ToolError for a text that names none.
QRMBundleTypeEnum RequestedBundleType(const std::string& bundleType);

Json CollectBundles(const std::string& catalog, const std::string& inventory);

Json CollectCatalog(const std::string& catalog);

Json CollectInventory(const std::string& inventory);

Json CollectCategories(const std::string& catalog);

// Everything the catalog holds, listed: the catalog document's fields, then
// every bundle (id, type, name, path, versions, systems, operating systems,
// packages) and every component (ids, name, version, type, criticality,
// category, path and location, systems, operating systems, supported
// devices with their PCI ids) in catalog order, the categories as
// CollectCategories gives them, and the inventory collectors.
Json CollectCatalogContents(const std::string& catalog);

// Where the inventory collector for an operating system code lies: the
// document names the catalog, the code and the full location; rendered, the
// location alone on a line.
Json CollectCollector(const std::string& catalog, const std::string& osCode);

// How two versions order: "order" -1, 0 or 1 and "relation" "<", "=" or
// ">"; rendered "V1 < V2". Versions that cannot be compared are a ToolError.
Json CollectComparison(const std::string& first, const std::string& second);

// {"error": {"code", "message", "file"}}: what --json prints for a failure
// ("file" null when no file is at fault).
Json ErrorDocument(const ToolError& error);

// Keeps only the rows of the document's list `list` whose "status" or
// "outcome" is one of `words` (all of them when it is empty) and records
// the filter as "only"; the summary still counts every row.
void KeepOnly(Json& document, const char* list, const std::vector<std::string>& words);

}  // namespace qrmtool

#endif
