// The qrmkit commands' tables: each "Render" function turns the JSON
// document its "Collect" function gathered (Reports.h, the --json output)
// into the human-readable text the command prints.
#ifndef QRMKIT_TOOL_COMMANDS_H
#define QRMKIT_TOOL_COMMANDS_H

#include "Reports.h"

#include <string>

namespace qrmtool {

struct Style;

// The update table, grouped by device, under the catalog and the bundle.
std::string RenderUpdates(const Json& document, const Style& style);
std::string RenderBundles(const Json& document, const Style& style);
std::string RenderCatalog(const Json& document, const Style& style);
std::string RenderInventory(const Json& document, const Style& style);
std::string RenderCategories(const Json& document, const Style& style);
std::string RenderCollector(const Json& document, const Style& style);
std::string RenderComparison(const Json& document, const Style& style);

// The outcome of every application, grouped by device, with the reason in
// words.
std::string RenderExplanation(const Json& document, const Style& style);

}  // namespace qrmtool

#endif
