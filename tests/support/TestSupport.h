// Shared helpers of the unit tests that check with GoogleTest: temporary
// directories with fixture files, captured output, what the stores hold and
// what an empty store reports. With them, the helpers every test program
// shares (CatalogXML.h, Texts.h).
#ifndef QRMKIT_TEST_SUPPORT_H
#define QRMKIT_TEST_SUPPORT_H

#include "CatalogXML.h"
#include "Texts.h"

#include <QRMKit.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

// Display texts as (language, value) pairs, in order.
typedef std::vector<std::pair<std::string, std::string>> TextList;

// Adds each text to a holder, checking that every add succeeds.
template <class Holder>
void AddTexts(Holder& holder, const TextList& texts)
{
    for (const auto& text : texts) {
        ASSERT_EQ(QRM_KIT_SUCCESS,
                  holder.AddDisplayValue(VELString(text.first.c_str()), VELString(text.second.c_str())));
    }
}

// A fresh directory under the system's temporary directory, removed with
// everything in it when the object goes.
class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::string& Path() const { return mPath; }
    // Writes `contents` byte for byte to a file of that name; returns its path.
    std::string Write(const std::string& name, const std::string& contents) const;
    // The path a file of that name would have (whether or not it exists).
    std::string PathOf(const std::string& name) const;

private:
    std::string mPath;
};

// Captures what the library writes to standard output while it lives.
class StdoutCapture {
public:
    StdoutCapture();
    ~StdoutCapture();
    std::string Text();

private:
    bool mDone;
    std::string mText;
};

// Peak resident memory of this process so far (getrusage), in bytes.
std::size_t PeakResidentBytes();

// How much a test that reads `inputBytes` of input may raise the process's
// peak memory: a fixed allowance plus `factor` times the input, both
// loosened in an AddressSanitizer build (shadow memory, quarantine).
std::size_t MemoryAllowance(std::size_t inputBytes, std::size_t factor);

// What the stores hold, in order: catalog components, bundles, inventory
// devices; and a device's applications.
std::vector<QRMSoftwareComponent*> StoredComponents();
std::vector<QRMSoftwareBundle*> StoredBundles();
std::vector<QRMIDevice*> StoredDevices();
std::vector<QRMIApplication*> ApplicationsOf(const QRMIDevice& device);

// How many entries the stores hold: catalog components, bundles, inventory
// collectors, inventory devices.
std::size_t ComponentCount();
std::size_t BundleCount();
std::size_t CollectorCount();
std::size_t DeviceCount();

// What every query reports while no catalog is parsed: an empty store that
// is not parsed, no base location, no bundle, no updates (the caller's map
// left as it was), and "Catalog not initialized" from the two queries of
// the inventory collector.
void ExpectNoCatalog();
// What the inventory queries report in a process that has not read an
// inventory successfully.
void ExpectNoInventory();
// Reads the example catalog and inventory and checks the ten updates they
// give for Windows x64 bundles: the stores work. Call it once per process,
// with an inventory store that holds nothing else.
void ExpectExampleUpdates();

#endif
