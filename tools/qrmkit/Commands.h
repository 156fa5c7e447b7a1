// The qrmkit commands. Each "Collect" function loads what it needs and
// gathers everything into a JSON document (the command's --json output)
// before anything is printed; the matching "Render" function turns that
// document into the human-readable table. Failures are thrown as ToolError.
#ifndef QRMKIT_TOOL_COMMANDS_H
#define QRMKIT_TOOL_COMMANDS_H

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
std::string RenderUpdates(const Json& document);

Json CollectBundles(const std::string& catalog, const std::string& inventory);
std::string RenderBundles(const Json& document);

Json CollectCatalog(const std::string& catalog);
std::string RenderCatalog(const Json& document);

Json CollectInventory(const std::string& inventory);
std::string RenderInventory(const Json& document);

Json CollectCategories(const std::string& catalog);
std::string RenderCategories(const Json& document);

// Where the inventory collector for an operating system code lies: the
// document names the catalog, the code and the full location; rendered, the
// location alone on a line.
Json CollectCollector(const std::string& catalog, const std::string& osCode);
std::string RenderCollector(const Json& document);

// How two versions order: "order" -1, 0 or 1 and "relation" "<", "=" or
// ">"; rendered "V1 < V2". Versions that cannot be compared are a ToolError.
Json CollectComparison(const std::string& first, const std::string& second);
std::string RenderComparison(const Json& document);

// {"error": {"code", "message", "file"}}: what --json prints for a failure
// ("file" null when no file is at fault).
class ToolError;
Json ErrorDocument(const ToolError& error);

// Keeps only the updates whose status is one of `statuses` (all of them
// when it is empty) and records the filter as "only"; the summary still
// counts every update.
void KeepOnly(Json& document, const std::vector<std::string>& statuses);

}  // namespace qrmtool

#endif
