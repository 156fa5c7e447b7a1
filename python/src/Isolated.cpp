// The high-level layer's half in C++: every answer is computed by the same
// functions as the qrmkit tool's (tools/report), in a child process forked
// for it, and handed to Python as the JSON text the tool would print. A
// failure is handed over as the tool's error document, never thrown.
#include "Module.h"

#include "Explain.h"
#include "Fleet.h"
#include "Input.h"
#include "Library.h"
#include "Reports.h"

#include <pybind11/stl.h>

#include <signal.h>

#include <memory>
#include <string>
#include <vector>

namespace py = pybind11;

namespace qrmpy {

namespace {

// Runs `work` in an isolated child with the GIL released and the library
// lock held (no other thread is inside the library while the child is
// forked), and returns the child's JSON text.
std::string Isolated(const std::vector<std::string>& paths, const std::function<qrmtool::Json()>& work)
{
    try {
        qrmtool::CheckStandardInputOnce(paths);
    } catch (const qrmtool::ToolError& error) {
        return qrmtool::JsonText(qrmtool::ErrorDocument(error), -1);
    }
    py::gil_scoped_release released;
    LibraryLock lock;
    try {
        return qrmtool::EvaluateIsolated(work);
    } catch (const qrmtool::ToolError& error) {
        return qrmtool::JsonText(qrmtool::ErrorDocument(error), -1);
    }
}

std::string Updates(const std::string& catalog, const std::string& inventory, const std::string& bundleType)
{
    return Isolated({catalog, inventory}, [&] { return qrmtool::CollectUpdates(catalog, inventory, bundleType); });
}

std::string Explain(const std::string& catalog, const std::string& inventory, const std::string& bundleType)
{
    return Isolated({catalog, inventory}, [&] { return qrmtool::CollectExplanation(catalog, inventory, bundleType); });
}

std::string CatalogContents(const std::string& catalog)
{
    return Isolated({catalog}, [&] { return qrmtool::CollectCatalogContents(catalog); });
}

std::string InventoryContents(const std::string& inventory)
{
    return Isolated({inventory}, [&] { return qrmtool::CollectInventory(inventory); });
}

// A fleet evaluated by a coordinating child: it reads the catalog once and
// runs the tool's fleet evaluation (a child per inventory), writing one
// line per inventory, in input order, as each is ready. A catalog that
// cannot be read gives a single error document instead.
class FleetStream {
public:
    FleetStream(const std::string& catalog, const std::vector<std::string>& inventories, const std::string& bundleType,
                unsigned jobs, double timeoutSeconds)
    {
        std::vector<std::string> named = inventories;
        named.push_back(catalog);
        try {
            qrmtool::CheckStandardInputOnce(named);
            qrmtool::RequestedBundleType(bundleType);
        } catch (const qrmtool::ToolError& error) {
            mPending = qrmtool::JsonText(qrmtool::ErrorDocument(error), -1) + "\n";
            return;
        }
        qrmtool::FleetRun run;
        run.catalog = catalog;
        run.bundleType = bundleType;
        run.jobs = jobs == 0 ? qrmtool::ProcessorCount() : jobs;
        run.timeoutSeconds = timeoutSeconds;
        py::gil_scoped_release released;
        LibraryLock lock;
        const bool started = qrmtool::StartIsolated(
            [&](int fd) {
                std::vector<qrmtool::FleetInput> inputs;
                try {
                    inputs = qrmtool::LoadFleet(catalog, inventories);
                } catch (const qrmtool::ToolError& error) {
                    qrmtool::WriteAll(fd, qrmtool::JsonText(qrmtool::ErrorDocument(error), -1) + "\n");
                    return;
                }
                qrmtool::EvaluateFleet(
                    inputs, run,
                    [fd](const qrmtool::FleetResult& result) {
                        if (!qrmtool::WriteAll(fd, result.line + "\n")) {
                            _exit(0);  // the reader has gone: nobody wants the rest
                        }
                    },
                    [](std::size_t) {});
            },
            mChild);
        if (!started) {
            mPending = qrmtool::JsonText(qrmtool::ErrorDocument(qrmtool::ToolError(
                                             "process-failed", "no process could be started to evaluate the fleet")),
                                         -1) +
                       "\n";
        }
    }

    ~FleetStream() { Close(); }
    FleetStream(const FleetStream&) = delete;
    FleetStream& operator=(const FleetStream&) = delete;

    // The next line, without its end; None when there are no more. A
    // coordinator that dies gives one last "process-died" error document.
    py::object Next()
    {
        std::string line;
        {
            py::gil_scoped_release released;
            if (!TakeLine(line)) {
                while (mChild.fd >= 0 && ReadMore()) {
                    if (TakeLine(line)) {
                        break;
                    }
                }
                if (line.empty() && mChild.pid >= 0) {
                    const std::string death = qrmtool::EndIsolated(mChild);
                    if (!death.empty()) {
                        line = qrmtool::JsonText(qrmtool::ErrorDocument(qrmtool::ToolError(
                                                     "process-died", "the process evaluating the fleet " + death)),
                                                 -1);
                    }
                }
            }
        }
        if (line.empty()) {
            return py::none();
        }
        return py::str(line);
    }

    // Stops the evaluation: the coordinator and, through their closed pipe,
    // its children.
    void Close()
    {
        if (mChild.pid >= 0) {
            kill(mChild.pid, SIGKILL);
            py::gil_scoped_release released;
            qrmtool::EndIsolated(mChild);
        }
        mPending.clear();
    }

private:
    bool ReadMore() { return qrmtool::ReadSome(mChild, mPending); }

    bool TakeLine(std::string& line)
    {
        const std::size_t end = mPending.find('\n');
        if (end == std::string::npos) {
            return false;
        }
        line = mPending.substr(0, end);
        mPending.erase(0, end + 1);
        return true;
    }

    qrmtool::IsolatedChild mChild;
    std::string mPending;
};

}  // namespace

void DefineIsolated(py::module_& module)
{
    module.def("_updates", &Updates, py::arg("catalog"), py::arg("inventory"), py::arg("bundle_type"),
               "The `qrmkit updates --json` document as JSON text (or its error document).");
    module.def("_explain", &Explain, py::arg("catalog"), py::arg("inventory"), py::arg("bundle_type"),
               "The `qrmkit explain --json` document as JSON text (or its error document).");
    module.def("_catalog_contents", &CatalogContents, py::arg("catalog"),
               "Every bundle, component, category and collector of a catalog, as JSON text.");
    module.def("_inventory_contents", &InventoryContents, py::arg("inventory"),
               "The `qrmkit inventory --json` document as JSON text (or its error document).");
    module.def(
        "_list_fleet",
        [](const std::vector<std::string>& arguments) {
            py::list paths;
            for (const qrmtool::FleetInput& input : qrmtool::ListFleet(arguments)) {
                paths.append(py::bytes(input.path));
            }
            return paths;
        },
        py::arg("arguments"),
        "The inventories the arguments name, as `qrmkit fleet` lists them (a directory: its *.xml files, by "
        "name); an argument that cannot be listed is kept as it is.");
    py::class_<FleetStream>(module, "_FleetStream", "The lines of `qrmkit fleet --format jsonl`, as they come.")
        .def(py::init<const std::string&, const std::vector<std::string>&, const std::string&, unsigned, double>(),
             py::arg("catalog"), py::arg("inventories"), py::arg("bundle_type"), py::arg("jobs"), py::arg("timeout"))
        .def("next", &FleetStream::Next, "The next line, or None at the end.")
        .def("close", &FleetStream::Close, "Stops the evaluation.");
}

}  // namespace qrmpy
