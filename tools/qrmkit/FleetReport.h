// The three ways `qrmkit fleet` reports: JSON lines (one object per
// inventory, as the children wrote them), a table of computers with totals,
// and a self-contained HTML page. Each receives the results in input order
// and writes through one function, so the same report can go to standard
// output or a file.
#ifndef QRMKIT_TOOL_FLEET_REPORT_H
#define QRMKIT_TOOL_FLEET_REPORT_H

#include "Commands.h"
#include "Fleet.h"
#include "Table.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>

namespace qrmtool {

// What a report says about the run as a whole.
struct FleetHeader {
    std::string catalog;         // as given
    std::string catalogRelease;  // the catalog's release id
    std::string bundleType;      // "auto" or a bundle type
};

// One computer's result, as the table and the page show it.
struct ComputerSummary {
    std::string inventory;
    std::string systemID;  // "" when the inventory names no single system
    std::string bundleID;
    std::string bundleType;
    std::string errorCode;  // "" when evaluated
    std::string errorMessage;
    std::size_t newer = 0;
    std::size_t same = 0;
    std::size_t older = 0;
    std::size_t unknown = 0;
    // The highest criticality among the packages newer than what is
    // installed: "3" above "2" above "1" above "unspecified"; "" when no
    // package is newer.
    std::string highestCriticality;
};

ComputerSummary Summarize(const Json& result);

// What the table and the page total over the computers.
struct FleetTotals {
    std::size_t evaluated = 0;
    std::size_t failed = 0;
    std::size_t withNewer = 0;
    std::size_t newer = 0;
    std::size_t same = 0;
    std::size_t older = 0;
    std::size_t unknown = 0;

    void Add(const ComputerSummary& computer);
};

class FleetReport {
public:
    virtual ~FleetReport() = default;
    virtual void Add(const FleetResult& result) = 0;
    // Writes what is written only once every result is in.
    virtual void Finish() = 0;
};

using FleetWriter = std::function<void(const std::string& text)>;

// `format` is "jsonl", "table" or "html"; the style lays out the table.
std::unique_ptr<FleetReport> MakeFleetReport(const std::string& format, const FleetHeader& header, const Style& style,
                                             FleetWriter write);
std::unique_ptr<FleetReport> MakeHtmlFleetReport(const FleetHeader& header, FleetWriter write);

// A progress line (done / total, rate, time left) rewritten in place on
// standard error, when it is wanted and standard error is a terminal;
// silent otherwise.
class FleetProgress {
public:
    FleetProgress(std::size_t total, bool wanted);
    void Update(std::size_t done);
    // Clears the line.
    void Finish();

private:
    std::size_t mTotal;
    bool mEnabled;
    std::chrono::steady_clock::time_point mStart;
    std::chrono::steady_clock::time_point mLast;
    bool mShown = false;
};

}  // namespace qrmtool

#endif
