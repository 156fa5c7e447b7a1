#include "Library.h"

#include "Input.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <vector>

namespace qrmtool {

namespace {

std::string Describe(const std::string& path, QRMKitReturnCode code, bool catalog)
{
    switch (code) {
    case QRM_KIT_SUCCESS:
        return std::string();
    case QRM_KIT_NOT_FOUND: {
        std::error_code error;
        if (std::filesystem::is_directory(std::filesystem::path(path), error)) {
            return "this is a directory, not a file";
        }
        return "the file does not exist";
    }
    case QRM_KIT_FAILURE:
        if (catalog) {
            return "not a readable catalog: the file cannot be read as an XML document";
        }
        return "not a readable inventory: the file cannot be read as an XML document, its root element has no "
               "\"lang\", or an OperatingSystem, System or last Device entry is faulty";
    case QRM_KIT_ELEMENT_MISSING:
        return "a required element is missing: a SoftwareBundle or SoftwareComponent entry lacks one of its "
               "required child elements (or has it more than once)";
    case QRM_KIT_ALREADY_EXISTS:
        break;
    }
    std::string name = QRMKitReturnCodeName(code);
    return "the file could not be read (" + (name.empty() ? "result " + std::to_string(static_cast<int>(code)) : name) +
           ")";
}

std::string CodeWord(const std::string& path, QRMKitReturnCode code, bool catalog)
{
    if (code == QRM_KIT_NOT_FOUND) {
        std::error_code error;
        return std::filesystem::is_directory(std::filesystem::path(path), error) ? "not-a-file" : "file-missing";
    }
    return catalog ? "not-a-catalog" : "not-an-inventory";
}

void Check(const std::string& path, QRMKitReturnCode code, bool catalog)
{
    if (code != QRM_KIT_SUCCESS) {
        throw ToolError(CodeWord(path, code, catalog), path + ": " + Describe(path, code, catalog), path);
    }
}

}  // namespace

int ExitStatusFor(const ToolError& error)
{
    if (error.Code() == "usage") {
        return kExitUsage;
    }
    return error.Code() == "no-bundle" ? kExitNoBundle : kExitFailure;
}

namespace {

// Reads a catalog (or an inventory) named on the command line into the
// library, or throws a ToolError that says why it cannot.
void Load(const std::string& path, bool catalog)
{
    const auto start = std::chrono::steady_clock::now();
    const InputFile input(path);
    const std::string name = InputName(path);
    const std::string root = RootElementName(input.Head());
    if (catalog && root == "SVMInventory") {
        throw ToolError("not-a-catalog",
                        name + ": this looks like an inventory, not a catalog (its root element is SVMInventory); "
                               "did you swap --catalog and --inventory?",
                        name);
    }
    if (!catalog && root == "Manifest") {
        throw ToolError("not-an-inventory",
                        name + ": this looks like a catalog, not an inventory (its root element is Manifest); "
                               "did you swap --catalog and --inventory?",
                        name);
    }
    QRMKitAPI* api = QRMKitAPI::Instance();
    const VELFile file(input.LibraryPath());
    const QRMKitReturnCode code = catalog ? api->Parse(file) : api->ParseInventory(file);
    if (code == QRM_KIT_FAILURE) {
        const std::string problem = XmlProblem(input.LibraryPath());
        if (!problem.empty()) {
            throw ToolError("not-xml", name + ": not well-formed XML: " + problem, name);
        }
    }
    Check(name, code, catalog);
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    char seconds[32];
    std::snprintf(seconds, sizeof seconds, "%.3f s", took.count());
    Note(std::string("read ") + (catalog ? "catalog " : "inventory ") + name +
         (input.How().empty() ? "" : " (" + input.How() + ")") + " in " + seconds);
}

}  // namespace

void LoadCatalog(const std::string& path) { Load(path, true); }

void LoadInventory(const std::string& path) { Load(path, false); }

std::string Utf8(const VELString& text) { return text.GetUTF8String(); }

std::string Hex(unsigned long long value, int digits)
{
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%0*llX", digits, value);
    return buffer;
}

std::string CriticalityWord(QRMCriticalityValueEnum value)
{
    switch (value) {
    case QRM_CRITICALITY_LEVEL1:
        return "1";
    case QRM_CRITICALITY_LEVEL2:
        return "2";
    case QRM_CRITICALITY_LEVEL3:
        return "3";
    case QRM_CRITICALITY_UNSPECIFIED:
        break;
    }
    return "unspecified";
}

namespace {

std::string OrUnknown(const char* text) { return text == nullptr || *text == '\0' ? "unknown" : text; }

}  // namespace

std::string ComponentTypeWord(QRMComponentTypeValueEnum value) { return OrUnknown(QRMComponentTypeText(value)); }

std::string BundleTypeWord(QRMBundleTypeEnum value) { return OrUnknown(QRMBundleTypeText(value)); }

std::string ArchitectureWord(QRMOSArchitectureEnum value) { return OrUnknown(QRMOSArchitectureText(value)); }

std::string StatusWord(int comparison)
{
    switch (comparison) {
    case 1:
        return "newer";
    case 0:
        return "same";
    case -1:
        return "older";
    default:
        return "unknown";
    }
}

namespace {

bool gVerbose = false;

}  // namespace

void SetVerbose(bool verbose) { gVerbose = verbose; }

void Note(const std::string& text)
{
    if (gVerbose) {
        std::fprintf(stderr, "qrmkit: %s\n", text.c_str());
    }
}

}  // namespace qrmtool
