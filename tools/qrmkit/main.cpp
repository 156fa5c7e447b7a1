// qrmkit: the command-line face of QRMKit. Reads an update catalog and a
// computer's inventory and tells which packages update which installed
// applications, which bundle applies, and what the two documents hold.
// The exit statuses are kExitStatuses below.
#include "Commands.h"
#include "Explain.h"
#include "FleetCommand.h"
#include "Input.h"
#include "Library.h"
#include "Manual.h"
#include "Table.h"

#include <CLI/CLI.hpp>
#include <QRMKit.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <exception>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

#ifndef QRMKIT_TOOL_VERSION
#define QRMKIT_TOOL_VERSION "unknown"
#endif

namespace {

using qrmtool::kExitFailure;
using qrmtool::kExitNewer;
using qrmtool::kExitUsage;

struct Options {
    // Global options, accepted before or after the command.
    std::string color = "auto";
    bool quiet = false;
    bool verbose = false;

    std::string catalog;
    std::string inventory;
    std::string bundleType = "auto";
    std::string osCode;
    std::string first;
    std::string second;
    bool json = false;
    bool check = false;
    std::vector<std::string> only;
    std::string topic;  // help COMMAND
};

// Whether the command line asks for JSON: then every outcome, a failure
// too, is a JSON document on standard output.
bool AsksForJson(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::string(argv[i]) == "--json") {
            return true;
        }
    }
    return false;
}

// The exit statuses of every command, as 'qrmkit --help' and docs/tool.md
// give them.
const char kExitStatuses[] = "Exit status:\n"
                             "  0    done\n"
                             "  2    bad input: a file is missing, unreadable or not the document expected\n"
                             "  3    fleet: at least one inventory failed; the others are reported\n"
                             "  4    no applicable bundle for the computer's system\n"
                             "  64   bad usage\n"
                             "  100  with --check: at least one package is newer than what is installed";

const char kGlobalOptions[] =
    "Global options, before or after the command: --color WHEN, -q/--quiet, -v/--verbose (see 'qrmkit --help').";

CLI::App* AddCommand(CLI::App& app, const char* name, const char* description, const char* example)
{
    CLI::App* command = app.add_subcommand(name, description);
    command->footer(std::string("Example:\n  ") + example + "\n\n" + kGlobalOptions);
    return command;
}

// A file option that the environment variable stands in for when it is not
// given: the variable's text is the default, and the option is required
// only when the variable is unset or empty. (The option parser's own
// environment lookup fills the options of every command, also those not
// run, which share their targets here.)
void DefaultFromEnvironment(CLI::Option* option, std::string& target, const char* variable)
{
    const char* value = std::getenv(variable);
    if (value != nullptr && *value != '\0') {
        target = value;
    } else {
        option->required();
    }
}

void AddCatalog(CLI::App* command, std::string& catalog)
{
    DefaultFromEnvironment(
        command->add_option("--catalog", catalog, "The update catalog (XML); default: $QRMKIT_CATALOG")
            ->type_name("FILE"),
        catalog, "QRMKIT_CATALOG");
}

void AddBundleType(CLI::App* command, std::string& bundleType, const char* automatic)
{
    command
        ->add_option("--bundle-type", bundleType,
                     std::string("The bundle type to take the packages from; auto: ") + automatic)
        ->capture_default_str()
        ->check(CLI::IsMember({"auto", "BTW32", "BTW64", "BTLX", "BTRPM", "BTDEB", "BTOSIND"}))
        ->type_name("TYPE");
}

void AddInventory(CLI::App* command, Options& options)
{
    DefaultFromEnvironment(
        command
            ->add_option("--inventory", options.inventory, "The computer's inventory (XML); default: $QRMKIT_INVENTORY")
            ->type_name("FILE"),
        options.inventory, "QRMKIT_INVENTORY");
}

void AddJson(CLI::App* command, Options& options)
{
    command->add_flag("--json", options.json, "Print a JSON document instead of a table");
}

using Render = std::string (*)(const qrmtool::Json&, const qrmtool::Style&);

// The command's output: the document as JSON, or rendered for standard
// output (its width and colour).
std::string Emit(const qrmtool::Json& document, const Options& options, Render render)
{
    if (options.json) {
        return qrmtool::JsonText(document, 2) + "\n";
    }
    return render(document, qrmtool::StyleFor(1, options.color));
}

// The number of single-character edits that turn one text into the other.
std::size_t EditDistance(const std::string& a, const std::string& b)
{
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) {
        row[j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t above = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, diagonal + (a[i - 1] == b[j - 1] ? 0 : 1)});
            diagonal = above;
        }
    }
    return row[b.size()];
}

std::vector<const CLI::App*> Commands(const CLI::App& app)
{
    return app.get_subcommands([](const CLI::App*) { return true; });
}

// A usage error for a word that is no command: it names the word and the
// nearest command, or lists the commands when none is near.
qrmtool::ToolError UnknownCommand(const CLI::App& app, const std::string& word)
{
    std::string nearest;
    std::size_t best = std::string::npos;
    std::string names;
    for (const CLI::App* command : Commands(app)) {
        const std::string& name = command->get_name();
        names += (names.empty() ? "" : ", ") + name;
        const std::size_t distance = EditDistance(word, name);
        if (distance < best) {
            best = distance;
            nearest = name;
        }
    }
    std::string message = "unknown command '" + word + "'";
    if (best <= std::max<std::size_t>(2, word.size() / 3)) {
        message += "; did you mean '" + nearest + "'?";
    } else {
        message += "; the commands are " + names;
    }
    return qrmtool::ToolError("usage", message);
}

// Refuses a command line whose command is no command, before the option
// parser would call it an unexpected argument. The command is the first
// argument that is neither an option nor the value of a global option.
void CheckCommandName(const CLI::App& app, int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--") {
            return;
        }
        if (arg == "--color") {
            ++i;  // its value
            continue;
        }
        if (!arg.empty() && arg[0] == '-') {
            continue;
        }
        for (const CLI::App* command : Commands(app)) {
            if (command->get_name() == arg) {
                return;
            }
        }
        throw UnknownCommand(app, arg);
    }
}

int Run(int argc, char** argv)
{
    Options options;
    CLI::App app("qrmkit: which catalog packages update the applications of a computer's inventory, and what an "
                 "update catalog and an inventory hold.",
                 "qrmkit");
    app.set_version_flag("-V,--version",
                         std::string("qrmkit ") + QRMKIT_TOOL_VERSION + "\nlibqrmkit " + QRMKitVersion(),
                         "Print the version of the tool and of the library it runs with, and exit");
    app.require_subcommand(1);
    // Global options may come before or after the command: a command passes
    // the options it does not know on to the tool.
    app.fallthrough();
    app.add_option("--color", options.color,
                   "Colour the statuses: auto (on a terminal, unless $NO_COLOR is set), always or never")
        ->capture_default_str()
        ->check(CLI::IsMember({"auto", "always", "never"}))
        ->type_name("WHEN");
    app.add_flag("-q,--quiet", options.quiet,
                 "Print nothing on standard output (the exit status tells the outcome); failures are still "
                 "reported");
    app.add_flag("-v,--verbose", options.verbose,
                 "Say on standard error what is read and chosen, and how long reading takes");
    app.failure_message([](const CLI::App*, const CLI::Error& error) {
        return "qrmkit: " + std::string(error.what()) +
               "\nRun 'qrmkit --help' or 'qrmkit COMMAND --help' for more information.\n";
    });
    app.footer("Example:\n  qrmkit updates --catalog catalog.xml --inventory inventory.xml\n\n"
               "Run 'qrmkit help COMMAND' or 'qrmkit COMMAND --help' for the options of a command.\n\n" +
               std::string(kExitStatuses));

    std::function<std::string()> action;
    int status = 0;  // the exit status when the action succeeds
    // A command that writes as it goes and chooses its own exit status.
    std::function<int()> direct;

    CLI::App* updates =
        AddCommand(app, "updates", "List the packages that update the inventory's applications",
                   "qrmkit updates --catalog catalog.xml --inventory inventory.xml --bundle-type BTW64");
    AddCatalog(updates, options.catalog);
    AddInventory(updates, options);
    AddBundleType(updates, options.bundleType, "the first type, in the order listed, with a bundle for this system");
    updates->add_flag("--check", options.check,
                      "Exit with 100 when at least one available version is newer than the installed one");
    updates
        ->add_option("--only", options.only,
                     "Show only the updates of this status (repeatable); the summary still counts all")
        ->check(CLI::IsMember({"newer", "same", "older", "unknown"}))
        ->type_name("STATUS");
    AddJson(updates, options);
    updates->callback([&] {
        action = [&] {
            qrmtool::Json document = qrmtool::CollectUpdates(options.catalog, options.inventory, options.bundleType);
            if (options.check && qrmtool::HasNewer(document)) {
                status = kExitNewer;
            }
            qrmtool::KeepOnly(document, "updates", options.only);
            return Emit(document, options, qrmtool::RenderUpdates);
        };
    });

    CLI::App* explain = AddCommand(
        app, "explain", "Say for every installed application whether a package updates it and, when none does, why not",
        "qrmkit explain --catalog catalog.xml --inventory inventory.xml --only no-supporting-package");
    AddCatalog(explain, options.catalog);
    AddInventory(explain, options);
    AddBundleType(explain, options.bundleType, "the first type, in the order listed, with a bundle for this system");
    explain
        ->add_option("--only", options.only,
                     "Show only the applications with this outcome, or the updates of this status (repeatable); "
                     "the summary still counts all")
        ->check(CLI::IsMember({"update", "device-excluded", "no-bundle", "no-supporting-package", "not-in-bundle",
                               "type-mismatch", "sub-id-mismatch", "newer", "same", "older", "unknown"}))
        ->type_name("OUTCOME");
    AddJson(explain, options);
    explain->callback([&] {
        action = [&] {
            qrmtool::Json document =
                qrmtool::CollectExplanation(options.catalog, options.inventory, options.bundleType);
            qrmtool::KeepOnly(document, "applications", options.only);
            return Emit(document, options, qrmtool::RenderExplanation);
        };
    });

    CLI::App* bundle = AddCommand(app, "bundle", "Show the applicable bundle of every bundle type",
                                  "qrmkit bundle --catalog catalog.xml --inventory inventory.xml");
    AddCatalog(bundle, options.catalog);
    AddInventory(bundle, options);
    AddJson(bundle, options);
    bundle->callback([&] {
        action = [&] {
            return Emit(qrmtool::CollectBundles(options.catalog, options.inventory), options, qrmtool::RenderBundles);
        };
    });

    CLI::App* catalog =
        AddCommand(app, "catalog", "Summarise an update catalog", "qrmkit catalog --catalog catalog.xml --json");
    AddCatalog(catalog, options.catalog);
    AddJson(catalog, options);
    catalog->callback([&] {
        action = [&] { return Emit(qrmtool::CollectCatalog(options.catalog), options, qrmtool::RenderCatalog); };
    });

    CLI::App* inventory = AddCommand(app, "inventory", "Show the system, operating systems and devices of an inventory",
                                     "qrmkit inventory --inventory inventory.xml");
    AddInventory(inventory, options);
    AddJson(inventory, options);
    inventory->callback([&] {
        action = [&] { return Emit(qrmtool::CollectInventory(options.inventory), options, qrmtool::RenderInventory); };
    });

    CLI::App* categories = AddCommand(app, "categories", "List the catalog's categories with their codes and acronyms",
                                      "qrmkit categories --catalog catalog.xml");
    AddCatalog(categories, options.catalog);
    AddJson(categories, options);
    categories->callback([&] {
        action = [&] { return Emit(qrmtool::CollectCategories(options.catalog), options, qrmtool::RenderCategories); };
    });

    CLI::App* collector =
        AddCommand(app, "collector", "Print where the inventory collector for an operating system lies",
                   "qrmkit collector --catalog catalog.xml --os-code W22");
    AddCatalog(collector, options.catalog);
    collector->add_option("--os-code", options.osCode, "The operating system code (as in the catalog)")
        ->required()
        ->type_name("CODE");
    AddJson(collector, options);
    collector->callback([&] {
        action = [&] {
            return Emit(qrmtool::CollectCollector(options.catalog, options.osCode), options, qrmtool::RenderCollector);
        };
    });

    CLI::App* compare = AddCommand(app, "compare", "Compare two version texts", "qrmkit compare 1.2.10 1.2.9");
    compare->add_option("V1", options.first, "The first version")->required();
    compare->add_option("V2", options.second, "The second version")->required();
    AddJson(compare, options);
    compare->callback([&] {
        action = [&] {
            return Emit(qrmtool::CollectComparison(options.first, options.second), options, qrmtool::RenderComparison);
        };
    });

    qrmtool::FleetCommand fleetCommand;
    std::string shard;
    CLI::App* fleet =
        AddCommand(app, "fleet",
                   "Evaluate many inventories against one catalog: the catalog is read once and every inventory is "
                   "evaluated on its own, exactly as 'updates --json' would",
                   "qrmkit fleet --catalog catalog.xml --format html --output report.html inventories/");
    AddCatalog(fleet, fleetCommand.catalog);
    AddBundleType(fleet, fleetCommand.bundleType,
                  "for each computer, the first type, in the order listed, with a bundle for its system");
    fleet
        ->add_option("--jobs,-j", fleetCommand.jobs,
                     "Inventories evaluated at once (default: the number of processors)")
        ->check(CLI::Range(1U, 1024U))
        ->type_name("N");
    fleet
        ->add_option("--shard", shard,
                     "Evaluate only the inventories at positions p (from 0, in input order) with p mod N = K-1, "
                     "to spread one fleet over several runs; their jsonl outputs concatenate")
        ->check([](const std::string& text) {
            unsigned index = 0;
            unsigned count = 0;
            return qrmtool::ParseShard(text, index, count) ? std::string()
                                                           : "takes K/N with 1 <= K <= N, not \"" + text + "\"";
        })
        ->type_name("K/N");
    fleet
        ->add_option("--format", fleetCommand.format,
                     "jsonl: one JSON object per inventory and line; table: one line per computer and totals; "
                     "html: a self-contained page (default: table on a terminal, jsonl otherwise)")
        ->check(CLI::IsMember({"table", "jsonl", "html"}))
        ->type_name("FORMAT");
    fleet->add_option("--output,-o", fleetCommand.output, "Write the report to this file instead of standard output")
        ->type_name("FILE");
    fleet->add_flag("--check", fleetCommand.check,
                    "Exit with 100 when every inventory was evaluated and at least one package is newer than what "
                    "is installed");
    fleet
        ->add_option("--timeout", fleetCommand.timeoutSeconds,
                     "Stop an inventory's evaluation after this many seconds and report it as failed (default: no "
                     "limit)")
        ->check(CLI::NonNegativeNumber)
        ->type_name("SECONDS");
    fleet
        ->add_option("INVENTORY", fleetCommand.inventories,
                     "Inventory files, or directories: every *.xml file directly in one, sorted by name")
        ->required()
        ->type_name("FILE");
    fleet->footer("Example:\n  qrmkit fleet --catalog catalog.xml --format html --output report.html inventories/\n\n" +
                  std::string(kGlobalOptions) +
                  "\n\nExit status:\n"
                  "  0    every inventory evaluated\n"
                  "  2    the catalog cannot be read: nothing is evaluated\n"
                  "  3    at least one inventory failed; the others are reported\n"
                  "  64   bad usage\n"
                  "  100  with --check: every inventory evaluated and at least one package is newer than what is "
                  "installed");
    fleet->callback([&] {
        qrmtool::ParseShard(shard.empty() ? "1/1" : shard, fleetCommand.shardIndex, fleetCommand.shardCount);
        fleetCommand.color = options.color;
        fleetCommand.quiet = options.quiet;
        direct = [&] { return qrmtool::RunFleet(fleetCommand); };
    });

    CLI::App* help = AddCommand(app, "help", "Show the help of the tool or of a command", "qrmkit help updates");
    help->add_option("COMMAND", options.topic, "The command to show the help of")->type_name("COMMAND");
    help->callback([&] {
        action = [&]() -> std::string {
            if (options.topic.empty()) {
                // What 'qrmkit --help' prints.
                return app.get_formatter()->make_help(&app, "qrmkit", CLI::AppFormatMode::Normal);
            }
            for (const CLI::App* command : Commands(app)) {
                if (command->get_name() == options.topic) {
                    // What 'qrmkit COMMAND --help' prints.
                    return command->help("qrmkit");
                }
            }
            throw UnknownCommand(app, options.topic);
        };
    });

    // For the build: the manual page and the bash completion, written from
    // this very command line.
    app.add_flag_callback("--generate-man-page",
                          [&app] {
                              std::cout << qrmtool::ManPage(app, QRMKIT_TOOL_VERSION, kExitStatuses);
                              throw CLI::Success();
                          })
        ->group("");
    app.add_flag_callback("--generate-bash-completion",
                          [&app] {
                              std::cout << qrmtool::BashCompletion(app);
                              throw CLI::Success();
                          })
        ->group("");

    try {
        CheckCommandName(app, argc, argv);
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0 && AsksForJson(argc, argv)) {
            throw qrmtool::ToolError("usage", error.what());
        }
        return app.exit(error) == 0 ? 0 : kExitUsage;
    }
    qrmtool::SetVerbose(options.verbose);
    std::vector<std::string> inputs = {options.catalog, options.inventory, fleetCommand.catalog};
    inputs.insert(inputs.end(), fleetCommand.inventories.begin(), fleetCommand.inventories.end());
    qrmtool::CheckStandardInputOnce(inputs);
    if (direct) {
        return direct();
    }
    if (!action) {
        return kExitUsage;
    }
    // Everything is gathered before anything is printed.
    std::string output = action();
    if (options.quiet) {
        return status;
    }
    std::cout << output << std::flush;
    if (!std::cout) {
        std::cerr << "qrmkit: cannot write to standard output\n";
        return kExitFailure;
    }
    return status;
}

}  // namespace

int main(int argc, char** argv)
{
    const bool json = AsksForJson(argc, argv);
    // A failure: one JSON document on standard output with --json, one line
    // on standard error otherwise.
    auto fail = [json](const qrmtool::ToolError& error) {
        if (json) {
            std::cout << qrmtool::JsonText(qrmtool::ErrorDocument(error), 2) << "\n" << std::flush;
        } else {
            std::cerr << "qrmkit: " << error.what() << "\n";
        }
        return qrmtool::ExitStatusFor(error);
    };
    try {
        try {
            return Run(argc, argv);
        } catch (const qrmtool::ToolError& error) {
            return fail(error);
        } catch (const std::exception& error) {
            return fail(qrmtool::ToolError("internal", std::string("internal error: ") + error.what()));
        }
    } catch (...) {
        std::cerr << "qrmkit: internal error\n";
    }
    return kExitFailure;
}
