// GetApplicableUpdates answers from indexes built once per call. This test
// checks on many generated catalog and inventory pairs that it gives
// exactly the map and the result code of the plain walk over (devices,
// applications, bundle packages, catalog components, supported devices, PCI
// entries) that the tests and fuzz targets share as their reference
// (tests/support/ReferenceUpdates.h).
//
// Every case runs in a child process of its own, because the inventory
// store keeps what it read for the life of the process.
#include "ReferenceUpdates.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <sstream>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using reference::UpdateMap;

const char* const kTypes[] = {"SBDL", "FRMW", "BIOS", "APAC", "APP", "DRVR"};
const char* const kBundleTypes[] = {"BTW64", "BTW64", "BTLX"};
// Versions that tie, order by field count, pad with zeros, hold letters, or
// cannot be compared at all.
const char* const kVersions[] = {"1.0", "1.0.0", "1.2", "1.10", "2.1",        "2.1.0", "01.2",
                                 "A5",  "A05",   "3",   "",     "1.\xC3\xA9", "1-2",   "1_10"};
const char* const kFiles[] = {"PKG_A.EXE", "PKG_B.EXE", "PKG_C.EXE", "pkg_a.exe", "PKG_D.BIN"};
const unsigned long long kComponentIDs[] = {0, 0, 2331, 159, 1000, 1001};
const char* const kIDs[] = {"0001", "0002"};
const char* const kSubVendors[] = {"0000", "0007", "0008"};
const char* const kSubDevices[] = {"0000", "0009", "000A"};
const char* const kSystems[] = {"0A6B", "0A6B", "0A6B", "0A6C"};

template <class T, std::size_t N>
const T& Pick(std::mt19937& random, const T (&values)[N])
{
    return values[std::uniform_int_distribution<std::size_t>(0, N - 1)(random)];
}

int Between(std::mt19937& random, int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }

void WriteCatalog(std::mt19937& random, std::ostream& out)
{
    out << "<Manifest baseLocation=\"b\">\n";
    const int bundles = Between(random, 1, 4);
    for (int b = 0; b < bundles; ++b) {
        out << "<SoftwareBundle bundleID=\"X." << b << "\" bundleType=\"" << Pick(random, kBundleTypes)
            << "\"><Name><Display lang=\"en\">b</Display></Name><ComponentType value=\"SBDL\"/>"
            << "<TargetSystems><Brand key=\"1\"><Model systemID=\"" << Pick(random, kSystems)
            << "\"/></Brand></TargetSystems><Contents>";
        const int packages = Between(random, 0, 8);
        for (int p = 0; p < packages; ++p) {
            out << "<Package path=\"" << Pick(random, kFiles) << "\"/>";
        }
        out << "</Contents></SoftwareBundle>\n";
    }
    const int components = Between(random, 1, 30);
    for (int c = 0; c < components; ++c) {
        const char* directory = Between(random, 0, 3) == 0 ? "" : (Between(random, 0, 1) ? "d/" : "d/e/");
        out << "<SoftwareComponent vendorVersion=\"" << Pick(random, kVersions) << "\" path=\"" << directory
            << Pick(random, kFiles) << "\"><Name><Display lang=\"en\">c" << c << "</Display></Name>"
            << "<ComponentType value=\"" << Pick(random, kTypes) << "\"/><Category value=\"C\"/>"
            << "<SupportedDevices>";
        const int devices = Between(random, 0, 3);
        for (int d = 0; d < devices; ++d) {
            out << "<Device componentID=\"" << Pick(random, kComponentIDs) << "\">";
            const int entries = Between(random, 0, 3);
            for (int e = 0; e < entries; ++e) {
                out << "<PCIInfo vendorID=\"" << Pick(random, kIDs) << "\" deviceID=\"" << Pick(random, kIDs)
                    << "\" subVendorID=\"" << Pick(random, kSubVendors) << "\" subDeviceID=\""
                    << Pick(random, kSubDevices) << "\"/>";
            }
            out << "</Device>";
        }
        out << "</SupportedDevices></SoftwareComponent>\n";
    }
    out << "</Manifest>\n";
}

void WriteInventory(std::mt19937& random, std::ostream& out)
{
    out << "<Inventory lang=\"en\"><System systemID=\"" << Pick(random, kSystems) << "\"/>\n";
    const int devices = Between(random, 0, 10);
    for (int d = 0; d < devices; ++d) {
        out << "<Device display=\"dev" << d << "\" componentID=\"" << Pick(random, kComponentIDs) << "\" vendorID=\""
            << Pick(random, kIDs) << "\" deviceID=\"" << Pick(random, kIDs) << "\" subVendorID=\""
            << Pick(random, kSubVendors) << "\" subDeviceID=\"" << Pick(random, kSubDevices) << "\">";
        const int applications = Between(random, 1, 3);
        for (int a = 0; a < applications; ++a) {
            out << "<Application componentType=\"" << Pick(random, kTypes) << "\" version=\"" << Pick(random, kVersions)
                << "\" display=\"app" << a << "\"/>";
        }
        out << "</Device>\n";
    }
    out << "</Inventory>\n";
}

// Runs one generated case. When both answers agree, returns "=" followed by
// the number of entries, or "=-" when both reported failure; otherwise a
// description of the difference.
std::string RunCase(unsigned int seed)
{
    std::mt19937 random(seed);
    std::ostringstream catalog;
    std::ostringstream inventory;
    WriteCatalog(random, catalog);
    WriteInventory(random, inventory);
    // Mostly BTW64; BTW32 has no bundle and gives the failure answer.
    const int typeDraw = Between(random, 0, 9);
    const QRMBundleTypeEnum bundleType = typeDraw == 0   ? QRM_BUNDLE_BTW32
                                         : typeDraw == 1 ? QRM_BUNDLE_BTLX
                                                         : QRM_BUNDLE_BTW64;

    TempDir directory;
    QRMKitAPI* api = QRMKitAPI::Instance();
    if (api->Parse(VELFile(directory.Write("catalog.xml", catalog.str()))) != QRM_KIT_SUCCESS ||
        api->ParseInventory(VELFile(directory.Write("inventory.xml", inventory.str()))) != QRM_KIT_SUCCESS) {
        return "the generated documents do not read";
    }
    UpdateMap fast;
    UpdateMap expected;
    QRMKitReturnCode fastCode = api->GetApplicableUpdates(fast, QRM_OS_ARCH_X64, bundleType);
    QRMKitReturnCode referenceCode = reference::ApplicableUpdates(*api, expected, bundleType);
    if (fastCode != referenceCode || fast != expected) {
        std::ostringstream report;
        report << "codes " << fastCode << " / " << referenceCode << ", entries " << fast.size() << " / "
               << expected.size() << "\n"
               << catalog.str() << inventory.str();
        return report.str();
    }
    return fastCode == QRM_KIT_SUCCESS ? "=" + std::to_string(fast.size()) : std::string("=-");
}

class ApplicableUpdatesEquivalence : public testing::TestWithParam<unsigned int> {};

const unsigned int kCasesPerTest = 120;

}  // namespace

TEST_P(ApplicableUpdatesEquivalence, IndexedAnswerEqualsTheNestedLoopWalk)
{
    unsigned int withEntries = 0;
    unsigned int failures = 0;
    for (unsigned int i = 0; i < kCasesPerTest; ++i) {
        const unsigned int seed = GetParam() * kCasesPerTest + i;
        int channel[2];
        ASSERT_EQ(0, ::pipe(channel));
        pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            ::close(channel[0]);
            std::string outcome = RunCase(seed);
            ssize_t written = ::write(channel[1], outcome.data(), outcome.size());
            ::_exit(written == static_cast<ssize_t>(outcome.size()) ? 0 : 1);
        }
        ::close(channel[1]);
        std::string outcome;
        char buffer[4096];
        ssize_t got;
        while ((got = ::read(channel[0], buffer, sizeof buffer)) > 0) {
            outcome.append(buffer, static_cast<std::size_t>(got));
        }
        ::close(channel[0]);
        int status = 0;
        ASSERT_EQ(child, ::waitpid(child, &status, 0));
        ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "seed " << seed;
        ASSERT_EQ('=', outcome.empty() ? ' ' : outcome[0]) << "seed " << seed << ": " << outcome;
        failures += outcome == "=-" ? 1 : 0;
        withEntries += outcome != "=-" && outcome != "=0" ? 1 : 0;
    }
    // The generated cases must exercise both answers, not agree vacuously.
    EXPECT_GE(withEntries, kCasesPerTest / 6);
    EXPECT_GE(failures, 1u);
}

INSTANTIATE_TEST_SUITE_P(GeneratedCases, ApplicableUpdatesEquivalence, testing::Range(0u, 10u));
