// The manual page and the bash completion of qrmkit, written from the
// command line the tool really parses, so that neither can fall behind an
// option. The build writes both with the hidden options
// --generate-man-page and --generate-bash-completion and installs them.
#ifndef QRMKIT_TOOL_MANUAL_H
#define QRMKIT_TOOL_MANUAL_H

#include <CLI/CLI.hpp>

#include <string>

namespace qrmtool {

// A man(7) page: name, synopsis, description, the global options, every
// command with its options and example, the environment, the exit statuses.
std::string ManPage(const CLI::App& app, const std::string& version, const std::string& exitStatuses);

// A bash script defining the completion of qrmkit: commands, their options
// and the global ones, the choices of options that have a fixed set, and
// file names where a file is expected.
std::string BashCompletion(const CLI::App& app);

}  // namespace qrmtool

#endif
