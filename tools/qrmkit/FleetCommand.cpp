#include "FleetCommand.h"

#include "Commands.h"
#include "Fleet.h"
#include "FleetReport.h"
#include "Library.h"

#include <QRMKit.h>

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>

namespace qrmtool {

namespace {

// Where the report goes: standard output or the --output file, with the
// first write error remembered. A discarding output writes nothing.
class Output {
public:
    Output(const std::string& path, bool discard) : mPath(path.empty() ? "standard output" : path), mDiscard(discard)
    {
        mFile = path.empty() ? stdout : std::fopen(path.c_str(), "w");
        if (mFile == nullptr) {
            mError = errno;
        }
    }
    ~Output()
    {
        if (mFile != nullptr && mFile != stdout) {
            std::fclose(mFile);
        }
    }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    bool IsOpen() const { return mFile != nullptr; }
    bool IsTerminal() const { return mFile != nullptr && isatty(fileno(mFile)) != 0; }
    Style StyleFor(const std::string& color) const { return qrmtool::StyleFor(fileno(mFile), color); }
    void Write(const std::string& text)
    {
        if (!mDiscard && mError == 0 &&
            (std::fwrite(text.data(), 1, text.size(), mFile) != text.size() || std::fflush(mFile) != 0)) {
            mError = errno != 0 ? errno : EIO;
        }
    }
    // Closes a file; true when everything was written.
    bool Close()
    {
        if (mFile != nullptr && mFile != stdout && std::fclose(mFile) != 0 && mError == 0) {
            mError = errno;
        }
        if (mFile != stdout) {
            mFile = nullptr;
        }
        return mError == 0;
    }
    std::string Problem() const { return "cannot write to " + mPath + ": " + std::strerror(mError); }

private:
    std::string mPath;
    bool mDiscard;
    std::FILE* mFile = nullptr;
    int mError = 0;
};

}  // namespace

bool ParseShard(const std::string& text, unsigned& index, unsigned& count)
{
    auto number = [](const std::string& digits, unsigned& value) {
        if (digits.empty() || digits.size() > 9 || digits.find_first_not_of("0123456789") != std::string::npos) {
            return false;
        }
        value = static_cast<unsigned>(std::stoul(digits));
        return true;
    };
    const std::size_t slash = text.find('/');
    unsigned k = 0;
    unsigned n = 0;
    if (slash == std::string::npos || !number(text.substr(0, slash), k) || !number(text.substr(slash + 1), n) ||
        k < 1 || k > n) {
        return false;
    }
    index = k;
    count = n;
    return true;
}

int RunFleet(const FleetCommand& command)
{
    // --quiet silences standard output only: a report file is still written.
    Output output(command.output, command.quiet && command.output.empty());
    if (!output.IsOpen()) {
        std::cerr << "qrmkit: " << output.Problem() << "\n";
        return kExitFailure;
    }
    const std::string format = !command.format.empty() ? command.format : output.IsTerminal() ? "table" : "jsonl";

    std::vector<FleetInput> inputs;
    try {
        inputs = LoadFleet(command.catalog, command.inventories, command.shardIndex, command.shardCount);
    } catch (const ToolError& error) {
        if (format == "jsonl") {
            output.Write(JsonText(ErrorDocument(error), -1) + "\n");
        } else {
            std::cerr << "qrmkit: " << error.what() << "\n";
        }
        output.Close();
        if (format != "jsonl" && !command.output.empty()) {
            std::remove(command.output.c_str());  // nothing was evaluated: no empty report is left behind
        }
        return kExitFailure;
    }

    FleetHeader header;
    header.catalog = command.catalog;
    header.catalogRelease = Utf8(QRMKitAPI::Instance()->GetCatalogReleaseID());
    header.bundleType = command.bundleType;
    std::unique_ptr<FleetReport> report = MakeFleetReport(format, header, output.StyleFor(command.color),
                                                          [&output](const std::string& text) { output.Write(text); });

    FleetRun run;
    run.catalog = command.catalog;
    run.bundleType = command.bundleType;
    run.jobs = command.jobs == 0 ? ProcessorCount() : command.jobs;
    run.timeoutSeconds = command.timeoutSeconds;
    Note("evaluating " + std::to_string(inputs.size()) + " inventories, " + std::to_string(run.jobs) + " at once");

    bool failed = false;
    bool newer = false;
    FleetProgress progress(inputs.size(), !command.quiet);
    EvaluateFleet(
        inputs, run,
        [&](const FleetResult& result) {
            failed = failed || result.outcome == FleetOutcome::Failed;
            newer = newer || result.outcome == FleetOutcome::EvaluatedWithNewer;
            report->Add(result);
        },
        [&progress](std::size_t done) { progress.Update(done); });
    progress.Finish();
    report->Finish();
    if (!output.Close()) {
        std::cerr << "qrmkit: " << output.Problem() << "\n";
        return kExitFailure;
    }
    if (failed) {
        return kExitInventoryFailed;
    }
    return command.check && newer ? kExitNewer : 0;
}

}  // namespace qrmtool
