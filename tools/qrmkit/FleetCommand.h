// `qrmkit fleet`: the catalog read once, then every inventory evaluated in a
// child process of its own and reported in input order.
#ifndef QRMKIT_TOOL_FLEET_COMMAND_H
#define QRMKIT_TOOL_FLEET_COMMAND_H

#include <string>
#include <vector>

namespace qrmtool {

// Exit statuses of `qrmkit fleet` beyond 0 (every inventory evaluated),
// 1 (bad usage) and 2 (the catalog cannot be read, or the output cannot be
// written).
constexpr int kExitInventoryFailed = 3;  // at least one inventory failed; the others were reported
constexpr int kExitNewer = 100;          // --check: all evaluated, at least one package is newer

struct FleetCommand {
    std::string catalog;
    std::string bundleType = "auto";
    std::vector<std::string> inventories;
    unsigned jobs = 0;         // 0: one per processor
    unsigned shardIndex = 1;   // --shard K/N
    unsigned shardCount = 1;
    std::string format;        // "table", "jsonl", "html"; "": table on a terminal, jsonl otherwise
    std::string output;        // "": standard output
    bool check = false;
    double timeoutSeconds = 0;
};

// Runs the command and returns its exit status. Reports its own failures.
int RunFleet(const FleetCommand& command);

// "K/N" with 1 <= K <= N: true and the two numbers; false otherwise.
bool ParseShard(const std::string& text, unsigned& index, unsigned& count);

}  // namespace qrmtool

#endif
