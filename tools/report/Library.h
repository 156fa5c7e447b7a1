// The bridge from qrmkit (the tool and the Python package) to the library:
// loading the two documents with errors in words, and the texts the answers
// give for the library's values.
#ifndef QRMKIT_REPORT_LIBRARY_H
#define QRMKIT_REPORT_LIBRARY_H

#include <QRMKit.h>

#include <array>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace qrmtool {

// A failure to report to the user: one line, exit status 2. The message
// names the file concerned (when there is one) and says what is wrong; the
// code is a short word for the kind of failure ("file-missing",
// "not-an-inventory", "no-bundle", ...) that programs can test, and the
// file is the one at fault ("" when no file is).
class ToolError : public std::runtime_error {
public:
    ToolError(std::string code, const std::string& message, std::string file = std::string())
        : std::runtime_error(message), mCode(std::move(code)), mFile(std::move(file))
    {}
    const std::string& Code() const { return mCode; }
    const std::string& File() const { return mFile; }

private:
    std::string mCode;
    std::string mFile;
};

// Exit statuses of qrmkit, one table for every command.
constexpr int kExitFailure = 2;          // the request could not be carried out (bad input, ...)
constexpr int kExitInventoryFailed = 3;  // fleet: at least one inventory failed; the others were reported
constexpr int kExitNoBundle = 4;         // no applicable bundle for the computer's system
constexpr int kExitUsage = 64;           // bad usage (as sysexits' EX_USAGE)
constexpr int kExitNewer = 100;          // --check: at least one package is newer than what is installed

// The exit status a failure ends the process with.
int ExitStatusFor(const ToolError& error);

// Parse the catalog / the inventory, or throw a ToolError that says why not.
void LoadCatalog(const std::string& path);
void LoadInventory(const std::string& path);

// With --verbose, notes on standard error say what is read and chosen.
void SetVerbose(bool verbose);
// Writes "qrmkit: TEXT" on standard error when verbose.
void Note(const std::string& text);

// Every bundle type, in enumeration order.
constexpr std::array<QRMBundleTypeEnum, 6> kBundleTypes = {QRM_BUNDLE_BTW32, QRM_BUNDLE_BTW64, QRM_BUNDLE_BTLX,
                                                           QRM_BUNDLE_BTRPM, QRM_BUNDLE_BTDEB, QRM_BUNDLE_BTOSIND};
constexpr std::array<QRMComponentTypeValueEnum, 6> kComponentTypes = {QRM_COMPONENT_SBDL, QRM_COMPONENT_FRMW,
                                                                      QRM_COMPONENT_BIOS, QRM_COMPONENT_APAC,
                                                                      QRM_COMPONENT_APP,  QRM_COMPONENT_DRVR};
constexpr std::array<QRMCriticalityValueEnum, 4> kCriticalities = {QRM_CRITICALITY_LEVEL1, QRM_CRITICALITY_LEVEL2,
                                                                   QRM_CRITICALITY_LEVEL3, QRM_CRITICALITY_UNSPECIFIED};

std::string Utf8(const VELString& text);
// The value of the first text of anything that carries texts ("" when it
// has none).
template <class Holder>
std::string FirstText(const Holder& holder)
{
    std::vector<QRMDisplay> texts;
    holder.GetDisplayValues(texts);
    return texts.empty() ? std::string() : Utf8(texts.front().GetValue());
}
// Upper-case hexadecimal with at least `digits` digits ("0A6B").
std::string Hex(unsigned long long value, int digits = 4);
// "1", "2", "3" or "unspecified".
std::string CriticalityWord(QRMCriticalityValueEnum value);
// The XML text of the type; "unknown" for a value outside the enumeration.
std::string ComponentTypeWord(QRMComponentTypeValueEnum value);
std::string BundleTypeWord(QRMBundleTypeEnum value);
std::string ArchitectureWord(QRMOSArchitectureEnum value);
// "newer", "same", "older" or "unknown" from a CompareVersion result
// (available compared with installed).
std::string StatusWord(int comparison);

}  // namespace qrmtool

#endif
