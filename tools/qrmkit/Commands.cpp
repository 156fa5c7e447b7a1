#include "Commands.h"

#include "Explain.h"
#include "Library.h"
#include "Table.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace qrmtool {

namespace {

// Lines of "key  value" pairs under a title, keys padded to one width.
std::string KeyValues(const std::string& title, const std::vector<std::pair<std::string, std::string>>& pairs,
                      const Style& style)
{
    std::size_t keyWidth = 0;
    for (const auto& pair : pairs) {
        keyWidth = std::max(keyWidth, DisplayWidth(pair.first));
    }
    std::string out = Fit(OneLine(title), style.width) + "\n";
    for (const auto& pair : pairs) {
        std::string line = "  " + pair.first + std::string(keyWidth - DisplayWidth(pair.first) + 2, ' ');
        std::size_t room = style.width - std::min(style.width, DisplayWidth(line));
        out += line + Fit(OneLine(pair.second), room) + "\n";
    }
    return out;
}

}  // namespace

std::string RenderUpdates(const Json& document, const Style& style)
{
    const Json& bundle = document["bundle"];
    std::string out;
    out += Fit(OneLine("Updates for " + SystemPhrase(document["system_id"]) + " from catalog " +
                       Text(document["catalog_release"]) + " (" + Text(document["catalog"]) + ")"),
               style.width) +
           "\n";
    std::string how = Text(bundle["selection"]) == "auto" ? " (auto: the first bundle type that applies to this system)"
                                                          : " (as requested)";
    out += Fit(OneLine("Bundle " + Text(bundle["id"]) + ", type " + Text(bundle["type"]) + how), style.width) + "\n\n";

    Table table({{"DEVICE / APPLICATION", true, 12},
                 {"INSTALLED", true, 9},
                 {"AVAILABLE", true, 9},
                 {"STATUS", false, 0, false, StatusPaint},
                 {"TYPE"},
                 {"CRIT"},
                 {"CATEGORY", true, 10}},
                2);
    for (const Json& update : document["updates"]) {
        table.AddGroup(Text(update["device"]));
        table.AddRow({Text(update["application"]), Text(update["installed_version"]), Text(update["available_version"]),
                      Text(update["status"]), Text(update["component_type"]), Text(update["criticality"]),
                      Text(update["category"]["text"])});
        table.AddLine("package " + Text(update["location"]) + " (release " + Text(update["release_id"]) + ")", 4);
    }
    out += table.Render(style);

    const Json& summary = document["summary"];
    const std::size_t count = summary["updates"].get<std::size_t>();
    out += "\n";
    if (document.contains("only")) {
        out += Fit("Showing only: " + Join(document["only"]) + " (" + std::to_string(document["updates"].size()) +
                       " of " + std::to_string(count) + " updates).",
                   style.width) +
               "\n";
    }
    out +=
        Fit(Plural(count, "update", "updates") + " for " +
                Plural(summary["applications"].get<std::size_t>(), "installed application", "installed applications") +
                ": " + Text(summary["newer"]) + " newer, " + Text(summary["same"]) + " same, " +
                Text(summary["older"]) + " older, " + Text(summary["unknown"]) + " unknown; " +
                Text(summary["without_update"]) + " without an update.",
            style.width) +
        "\n";
    if (count > 0) {
        out +=
            Fit("STATUS compares the available version with the installed one; CRIT is the criticality.", style.width) +
            "\n";
    }
    return out;
}

std::string RenderBundles(const Json& document, const Style& style)
{
    std::string out = Fit(OneLine("Bundles for " + SystemPhrase(document["system_id"]) + " in catalog " +
                                  Text(document["catalog_release"]) + " (" + Text(document["catalog"]) + ")"),
                          style.width) +
                      "\n\n";
    Table table({{"TYPE"},
                 {"APPLICABLE BUNDLE", true, 12},
                 {"VERSION", true, 8},
                 {"PACKAGES"},
                 {"GREATEST NUMBER"},
                 {"PATH", true, 12, true}});
    std::size_t applicable = 0;
    for (const Json& entry : document["bundle_types"]) {
        const Json& bundle = entry["applicable_bundle"];
        if (bundle.is_null()) {
            table.AddRow({Text(entry["type"]), "none", "", "", Text(entry["greatest_bundle_number"]), ""});
        } else {
            ++applicable;
            table.AddRow({Text(entry["type"]), Text(bundle["id"]), Text(bundle["vendor_version"]),
                          Text(bundle["packages"]), Text(entry["greatest_bundle_number"]), Text(bundle["path"])});
        }
    }
    out += table.Render(style);
    out += "\n" + std::to_string(applicable) + " of " + std::to_string(document["bundle_types"].size()) +
           " bundle types have an applicable bundle.\n";
    return out;
}

namespace {

std::string CountTable(const std::string& header, const Json& counts, const Json& total, const Style& style)
{
    Table table({{header, true, 8}, {"COUNT"}});
    for (const auto& item : counts.items()) {
        table.AddRow({item.key(), Text(item.value())});
    }
    table.AddRow({"total", Text(total)});
    return table.Render(style);
}

}  // namespace

std::string RenderCatalog(const Json& document, const Style& style)
{
    std::string out = KeyValues("Catalog " + Text(document["catalog"]),
                                {{"base location", Text(document["base_location"])},
                                 {"release", Text(document["release_id"])},
                                 {"version", Text(document["version"])},
                                 {"date", Text(document["date_time"])}},
                                style);
    out += "\n" + CountTable("BUNDLE TYPE", document["bundles"]["by_type"], document["bundles"]["total"], style);
    out +=
        "\n" + CountTable("COMPONENT TYPE", document["components"]["by_type"], document["components"]["total"], style);
    out += "\n" +
           CountTable("CRITICALITY", document["components"]["by_criticality"], document["components"]["total"], style);
    out += "\n";
    if (document["inventory_collectors"].empty()) {
        out += "No inventory collectors.\n";
    } else {
        Table table({{"OS CODE", true, 8}, {"VERSION", true, 8}, {"COLLECTOR LOCATION", true, 20, true}});
        for (const Json& collector : document["inventory_collectors"]) {
            table.AddRow({Text(collector["os_code"]), Text(collector["vendor_version"]), Text(collector["location"])});
        }
        out += table.Render(style);
    }
    return out;
}

std::string RenderInventory(const Json& document, const Style& style)
{
    const Json& systemID = document["system_id"];
    std::string out = KeyValues(
        "Inventory " + Text(document["inventory"]),
        {{"system id", systemID.is_null() ? "none (the inventory does not name exactly one system)" : Text(systemID)},
         {"language", Text(document["language"])},
         {"schema", Text(document["inventory_schema_version"])},
         {"time stamp", Text(document["time_stamp"])}},
        style);

    out += "\n";
    if (document["systems"].empty()) {
        out += "No systems.\n";
    } else {
        Table systems({{"SYSTEM ID"}, {"ID TYPE"}, {"DISPLAY", true, 10}, {"SERVICE TAG", true, 11}});
        for (const Json& system : document["systems"]) {
            systems.AddRow({Text(system["system_id"]), Text(system["id_type"]), Text(system["display"]),
                            Text(system["service_tag"])});
        }
        out += systems.Render(style);
    }

    out += "\n";
    if (document["operating_systems"].empty()) {
        out += "No operating systems.\n";
    } else {
        Table oses({{"OS CODE"},
                    {"VENDOR", true, 8},
                    {"ARCH"},
                    {"VERSION", true, 8},
                    {"SERVICE PACK"},
                    {"DISPLAY", true, 10}});
        for (const Json& os : document["operating_systems"]) {
            oses.AddRow({Text(os["code"]), Text(os["vendor"]), Text(os["architecture"]),
                         Text(os["major_version"]) + "." + Text(os["minor_version"]),
                         Text(os["sp_major_version"]) + "." + Text(os["sp_minor_version"]), Text(os["display"])});
        }
        out += oses.Render(style);
    }

    out += "\n";
    Table devices({{"DEVICE / APPLICATION", true, 16}, {"TYPE"}, {"VERSION", true, 9}, {"IDENTITY", true, 16}});
    for (const Json& device : document["devices"]) {
        const Json& pci = device["pci"];
        std::string identity = device["component_id"].get<unsigned long long>() != 0
                                   ? "component " + Text(device["component_id"])
                                   : "PCI " + Text(pci["vendor_id"]) + ":" + Text(pci["device_id"]) + " " +
                                         Text(pci["sub_vendor_id"]) + ":" + Text(pci["sub_device_id"]) + " at " +
                                         Text(pci["bus"]) + ":" + Text(pci["device"]) + "." + Text(pci["function"]);
        devices.AddRow({Text(device["display"]), "", "", identity});
        for (const Json& application : device["applications"]) {
            devices.AddRow(
                {"  " + Text(application["display"]), Text(application["type"]), Text(application["version"]), ""});
        }
    }
    out += devices.Render(style);
    out += "\n" + Plural(document["summary"]["devices"].get<std::size_t>(), "device", "devices") + ", " +
           Plural(document["summary"]["applications"].get<std::size_t>(), "application", "applications") + ".\n";
    return out;
}

std::string RenderCategories(const Json& document, const Style& style)
{
    std::string out = Fit(OneLine("Categories of catalog " + Text(document["catalog"])), style.width) + "\n\n";
    if (document["categories"].empty()) {
        return out + "No categories.\n";
    }
    Table categories({{"CATEGORY", true, 12}, {"CODES", true, 12}, {"GENERATED ACRONYMS", true, 18}});
    for (const Json& category : document["categories"]) {
        categories.AddRow({Text(category["text"]), Join(category["codes"]), Join(category["acronyms"])});
    }
    out += categories.Render(style) + "\n";
    Table acronyms({{"ACRONYM", true, 8}, {"CATEGORY", true, 12}});
    for (const auto& item : document["acronyms"].items()) {
        acronyms.AddRow({item.key(), Text(item.value())});
    }
    out += acronyms.Render(style);
    out += "\n" + Plural(document["categories"].size(), "category", "categories") + ", " +
           Plural(document["acronyms"].size(), "acronym", "acronyms") + ".\n";
    return out;
}

std::string RenderCollector(const Json& document, const Style&) { return Text(document["location"]) + "\n"; }

std::string RenderComparison(const Json& document, const Style&)
{
    return Text(document["first"]) + " " + Text(document["relation"]) + " " + Text(document["second"]) + "\n";
}
// ---------------------------------------------------------------- explain

namespace {

const char* OutcomePaint(const std::string& outcome) { return outcome == "update" ? "32" : nullptr; }

}  // namespace

std::string RenderExplanation(const Json& document, const Style& style)
{
    std::string out = Fit(OneLine("Why each application of " + SystemPhrase(document["system_id"]) +
                                  " gets an update or not, from catalog " + Text(document["catalog_release"]) + " (" +
                                  Text(document["catalog"]) + ")"),
                          style.width) +
                      "\n";
    const Json& bundle = document["bundle"];
    out += Fit(OneLine(bundle.is_null()
                           ? "No bundle of type " + Text(document["requested_bundle_type"]) + " applies to this system"
                           : "Bundle " + Text(bundle["id"]) + ", type " + Text(bundle["type"]) +
                                 (Text(bundle["selection"]) == "auto" ? " (auto)" : " (as requested)")),
               style.width) +
           "\n\n";

    Table table({{"DEVICE / APPLICATION", true, 12},
                 {"INSTALLED", true, 9},
                 {"OUTCOME", false, 0, false, OutcomePaint},
                 {"REASON", true, 20}},
                2);
    for (const Json& row : document["applications"]) {
        table.AddGroup(Text(row["device"]));
        table.AddRow({Text(row["application"]), Text(row["installed_version"]), Text(row["outcome"]),
                      OneLine(Text(row["reason"]))});
    }
    out += table.Render(style);

    const Json& summary = document["summary"];
    std::string counts;
    for (const char* outcome : kOutcomes) {
        if (summary[outcome].get<std::size_t>() > 0) {
            counts += (counts.empty() ? "" : ", ") + Text(summary[outcome]) + " " + outcome;
        }
    }
    out += "\n";
    if (document.contains("only")) {
        out += Fit("Showing only: " + Join(document["only"]) + " (" + std::to_string(document["applications"].size()) +
                       " of " + Text(summary["applications"]) + " applications).",
                   style.width) +
               "\n";
    }
    out += Fit(Plural(summary["applications"].get<std::size_t>(), "installed application", "installed applications") +
                   (counts.empty() ? "." : ": " + counts + "."),
               style.width) +
           "\n";
    return out;
}

}  // namespace qrmtool
