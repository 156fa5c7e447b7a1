// Fleet evaluation: one catalog read, many inventories. The library's
// inventory store is process-wide and only grows (callers rely on that), so
// each inventory is evaluated in a child process of its own, forked after the
// catalog has been read: the parsed catalog is shared copy-on-write and no
// inventory ever sees another's devices.
#ifndef QRMKIT_REPORT_FLEET_H
#define QRMKIT_REPORT_FLEET_H

#include "Reports.h"

#include <sys/types.h>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace qrmtool {

// One inventory to evaluate. An argument that could not be expanded (a
// directory that cannot be listed) carries the error to report for it
// instead.
struct FleetInput {
    std::string path;
    std::string errorCode;
    std::string errorMessage;
};

// The inventories the arguments name, in order: a file as it is, a
// directory as every "*.xml" entry directly in it that is not a directory
// and does not start with a dot, sorted by name (byte order).
std::vector<FleetInput> ListFleet(const std::vector<std::string>& arguments);

// The inputs at the 0-based positions p with p mod `count` == `index` - 1
// (`index` from 1 to `count`), in order.
std::vector<FleetInput> ShardOf(const std::vector<FleetInput>& inputs, unsigned index, unsigned count);

// Reads the catalog (a ToolError when it cannot be read), gives back the
// memory reading left free so that every child is cheaper to fork, and
// returns the shard of the inventories the arguments name.
std::vector<FleetInput> LoadFleet(const std::string& catalog, const std::vector<std::string>& arguments,
                                  unsigned shardIndex = 1, unsigned shardCount = 1);

enum class FleetOutcome {
    Evaluated,           // evaluated; no available version is newer than the installed one
    EvaluatedWithNewer,  // evaluated; at least one available version is newer
    Failed,              // not evaluated: the line is an error object
};

struct FleetResult {
    // One JSON object, without a line end: {"inventory": PATH, ...the
    // updates document...} or {"inventory": PATH, "error": {"code", "message"}}.
    std::string line;
    FleetOutcome outcome = FleetOutcome::Failed;
};

struct FleetRun {
    std::string catalog;  // the path the documents name; the library has read it
    std::string bundleType = "auto";
    unsigned jobs = 1;          // children at once
    double timeoutSeconds = 0;  // per inventory; 0: no limit
};

// The number of processors this process may run on.
unsigned ProcessorCount();

// The error object for an inventory, as one line of JSON.
std::string FleetErrorLine(const std::string& inventory, const std::string& code, const std::string& message);

// Evaluates every input, each in its own child process, at most `run.jobs`
// at once, and hands each result to `report` in input order, whatever order
// the children finish in; `progress` is told the number reported so far
// after each. A child that dies (a signal, running out of memory) or
// overruns the timeout becomes that input's error result; the run goes on.
// The catalog must have been read, and nothing may be written but through
// `report` while this runs.
void EvaluateFleet(const std::vector<FleetInput>& inputs, const FleetRun& run,
                   const std::function<void(const FleetResult&)>& report,
                   const std::function<void(std::size_t done)>& progress);

// ---- isolation for callers that live on (the Python package)
//
// A long-lived process cannot read a second inventory into the library's
// stores without mixing it with the first, so each answer is computed in a
// child process forked for it, which starts from a copy of the caller's
// stores and leaves them as they were.

// A forked child and the read end of the pipe it writes its answer to.
struct IsolatedChild {
    pid_t pid = -1;
    int fd = -1;
};

// Forks a child that runs `body` with the write end of the pipe and then
// ends; false (errno set) when no process or pipe can be made. The child
// never returns to the caller's code: it ends with _exit, running no exit
// handlers and flushing no buffers of the caller.
bool StartIsolated(const std::function<void(int fd)>& body, IsolatedChild& child);

// Closes the pipe and waits for the child; "" when it ended normally, else
// what happened to it ("killed by signal 9 (Killed)", ...).
std::string EndIsolated(IsolatedChild& child);

// Reads from the child's pipe into `data`; false at the end of its output.
bool ReadSome(const IsolatedChild& child, std::string& data);

// Writes all of `text` to `fd`; false when it cannot.
bool WriteAll(int fd, const std::string& text);

// The document `work` gives, computed in an isolated child, as one line of
// JSON text; the ToolError it throws becomes its error document
// (ErrorDocument), and a child that dies the error "process-died". Throws
// a ToolError ("process-failed") when no child can be started.
std::string EvaluateIsolated(const std::function<Json()>& work);

}  // namespace qrmtool

#endif
