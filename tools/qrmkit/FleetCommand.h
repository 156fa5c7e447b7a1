// `qrmkit fleet`: the catalog read once, then every inventory evaluated in a
// child process of its own and reported in input order.
#ifndef QRMKIT_TOOL_FLEET_COMMAND_H
#define QRMKIT_TOOL_FLEET_COMMAND_H

#include <string>
#include <vector>

namespace qrmtool {

struct FleetCommand {
    std::string catalog;
    std::string bundleType = "auto";
    std::vector<std::string> inventories;
    unsigned jobs = 0;        // 0: one per processor
    unsigned shardIndex = 1;  // --shard K/N
    unsigned shardCount = 1;
    std::string format;  // "table", "jsonl", "html"; "": table on a terminal, jsonl otherwise
    std::string output;  // "": standard output
    bool check = false;
    double timeoutSeconds = 0;
    std::string color = "auto";  // --color: "auto", "always" or "never"
    bool quiet = false;          // --quiet: no report on standard output, no progress
};

// Runs the command and returns its exit status. Reports its own failures.
int RunFleet(const FleetCommand& command);

// "K/N" with 1 <= K <= N: true and the two numbers; false otherwise.
bool ParseShard(const std::string& text, unsigned& index, unsigned& count);

}  // namespace qrmtool

#endif
