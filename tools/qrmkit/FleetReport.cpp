#include "FleetReport.h"

#include "Table.h"

#include <unistd.h>

#include <cstdio>
#include <utility>
#include <vector>

namespace qrmtool {

namespace {

int CriticalityRank(const std::string& criticality)
{
    if (criticality.empty()) {
        return -1;
    }
    return criticality == "1" ? 1 : criticality == "2" ? 2 : criticality == "3" ? 3 : 0;
}

std::string Count(std::size_t value) { return std::to_string(value); }

class JsonLinesReport : public FleetReport {
public:
    explicit JsonLinesReport(FleetWriter write) : mWrite(std::move(write)) {}
    void Add(const FleetResult& result) override { mWrite(result.line + "\n"); }
    void Finish() override {}

private:
    FleetWriter mWrite;
};

class TableReport : public FleetReport {
public:
    TableReport(FleetHeader header, const Style& style, FleetWriter write)
        : mHeader(std::move(header)), mStyle(style), mWrite(std::move(write)),
          mTable({{"SYSTEM"},
                  {"INVENTORY", true, 12, true},
                  {"NEWER"},
                  {"SAME"},
                  {"OLDER"},
                  {"UNKNOWN"},
                  {"HIGHEST CRIT", false, 0, false, StatusPaint}})
    {}

    void Add(const FleetResult& result) override
    {
        const ComputerSummary computer = Summarize(Json::parse(result.line));
        mTotals.Add(computer);
        if (!computer.errorCode.empty()) {
            mTable.AddRow({"-", computer.inventory, "", "", "", "", "failed"});
            // The row names the inventory already; the message need not.
            std::string message = computer.errorMessage;
            if (message.rfind(computer.inventory + ": ", 0) == 0) {
                message.erase(0, computer.inventory.size() + 2);
            }
            mTable.AddLine("error " + computer.errorCode + ": " + message, 2);
            return;
        }
        mTable.AddRow({computer.systemID.empty() ? "-" : computer.systemID, computer.inventory, Count(computer.newer),
                       Count(computer.same), Count(computer.older), Count(computer.unknown),
                       computer.highestCriticality.empty() ? "none" : computer.highestCriticality});
    }

    void Finish() override
    {
        std::string out = Fit(OneLine("Fleet updates from catalog " + mHeader.catalogRelease + " (" + mHeader.catalog +
                                      "), bundle type " + mHeader.bundleType),
                              mStyle.width) +
                          "\n\n";
        out += mTable.Render(mStyle);
        const FleetTotals& t = mTotals;
        out += "\n" + Count(t.evaluated + t.failed) + " inventories: " + Count(t.evaluated) + " evaluated (" +
               Count(t.withNewer) + " with newer packages), " + Count(t.failed) + " failed.\n";
        out += "Updates: " + Count(t.newer) + " newer, " + Count(t.same) + " same, " + Count(t.older) + " older, " +
               Count(t.unknown) + " unknown.\n";
        if (t.evaluated > 0) {
            out +=
                Fit("NEWER: packages newer than what is installed; HIGHEST CRIT: the highest criticality among them.",
                    mStyle.width) +
                "\n";
        }
        mWrite(out);
    }

private:
    FleetHeader mHeader;
    Style mStyle;
    FleetWriter mWrite;
    Table mTable;
    FleetTotals mTotals;
};

}  // namespace

void FleetTotals::Add(const ComputerSummary& computer)
{
    if (!computer.errorCode.empty()) {
        ++failed;
        return;
    }
    ++evaluated;
    withNewer += computer.newer > 0 ? 1 : 0;
    newer += computer.newer;
    same += computer.same;
    older += computer.older;
    unknown += computer.unknown;
}

ComputerSummary Summarize(const Json& result)
{
    ComputerSummary computer;
    computer.inventory = result.value("inventory", "");
    if (result.contains("error")) {
        computer.errorCode = result["error"].value("code", "");
        computer.errorMessage = result["error"].value("message", "");
        return computer;
    }
    if (result["system_id"].is_string()) {
        computer.systemID = result["system_id"].get<std::string>();
    }
    computer.bundleID = result["bundle"].value("id", "");
    computer.bundleType = result["bundle"].value("type", "");
    const Json& summary = result["summary"];
    computer.newer = summary["newer"].get<std::size_t>();
    computer.same = summary["same"].get<std::size_t>();
    computer.older = summary["older"].get<std::size_t>();
    computer.unknown = summary["unknown"].get<std::size_t>();
    for (const Json& update : result["updates"]) {
        if (update["status"] == "newer") {
            const std::string criticality = update["criticality"].get<std::string>();
            if (CriticalityRank(criticality) > CriticalityRank(computer.highestCriticality)) {
                computer.highestCriticality = criticality;
            }
        }
    }
    return computer;
}

std::unique_ptr<FleetReport> MakeFleetReport(const std::string& format, const FleetHeader& header, const Style& style,
                                             FleetWriter write)
{
    if (format == "html") {
        return MakeHtmlFleetReport(header, std::move(write));
    }
    if (format == "table") {
        return std::make_unique<TableReport>(header, style, std::move(write));
    }
    return std::make_unique<JsonLinesReport>(std::move(write));
}

FleetProgress::FleetProgress(std::size_t total, bool wanted)
    : mTotal(total), mEnabled(wanted && isatty(2) != 0), mStart(std::chrono::steady_clock::now()), mLast(mStart)
{}

void FleetProgress::Update(std::size_t done)
{
    if (!mEnabled) {
        return;
    }
    const auto now = std::chrono::steady_clock::now();
    if (done < mTotal && now - mLast < std::chrono::milliseconds(200)) {
        return;
    }
    mLast = now;
    const double seconds = std::chrono::duration<double>(now - mStart).count();
    const double rate = seconds > 0 ? static_cast<double>(done) / seconds : 0;
    char line[160];
    if (rate > 0) {
        std::snprintf(line, sizeof line, "\rqrmkit fleet: %zu/%zu inventories, %.0f/s, %.0f s left\033[K", done, mTotal,
                      rate, static_cast<double>(mTotal - done) / rate);
    } else {
        std::snprintf(line, sizeof line, "\rqrmkit fleet: %zu/%zu inventories\033[K", done, mTotal);
    }
    std::fputs(line, stderr);
    std::fflush(stderr);
    mShown = true;
}

void FleetProgress::Finish()
{
    if (mShown) {
        std::fputs("\r\033[K", stderr);
        std::fflush(stderr);
    }
}

}  // namespace qrmtool
