// Shared pieces of the libFuzzer targets: a scratch file per process for the
// readers (they read files by path), a watch on standard output (the library
// may print nothing but its one message), walks over every getter of the
// value classes, and the fixed documents the targets load at start-up.
#ifndef QRMKIT_FUZZ_SUPPORT_H
#define QRMKIT_FUZZ_SUPPORT_H

#include <QRMKit.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace qrmfuzz {

// Reports a broken promise of the library and aborts, so that libFuzzer
// saves the input as a crash.
[[noreturn]] void Fail(const char* what);

// Fail(what) unless `condition` holds.
inline void Check(bool condition, const char* what)
{
    if (!condition) {
        Fail(what);
    }
}

// A scratch file of this process: in memory (memfd_create), reached by the
// path /proc/self/fd/N, or, where that is not available, a file under
// $TMPDIR (or /tmp) named qrmkit-fuzz-<stem>-XXXXXX, removed when the
// process exits normally.
class ScratchFile {
public:
    explicit ScratchFile(const char* stem);
    ~ScratchFile();
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;

    // Replaces the file's contents with these bytes.
    void Write(const uint8_t* data, std::size_t size);
    void Write(const std::string& text) { Write(reinterpret_cast<const uint8_t*>(text.data()), text.size()); }
    const std::string& Path() const { return mPath; }
    VELFile File() const { return VELFile(mPath); }
    int Descriptor() const { return mFd; }

private:
    std::string mPath;
    int mFd;
    bool mNamed;
};

// From Install on, standard output goes to a scratch file. The library's
// only output is the line "Catalog not initialized"; TakeMessages returns
// how many such lines were written since the last call and fails on any
// other output.
namespace StdoutWatch {
void Install();
std::size_t TakeMessages();
}  // namespace StdoutWatch

// Every getter of a value object, recursively, folded into a number so that
// nothing is optimised away. Copies, assignments and the equality operators
// are exercised too (operator!= must be the negation of operator==).
uint64_t Walk(const QRMSoftwareComponent& component);
uint64_t Walk(const QRMSoftwareBundle& bundle);
uint64_t Walk(const QRMInventoryComponent& component);
uint64_t Walk(const QRMIDevice& device);
uint64_t Walk(const QRMIApplication& application);
uint64_t Walk(const QRMISystem& system);
uint64_t Walk(const QRMOperatingSystem& os);
uint64_t Hash(const VELString& text);

// Sinks the walked numbers.
void Consume(uint64_t value);

// Bundle selection and the applicable updates, for every bundle type (and
// one past the last): GetApplicableBundle is the first bundle of the type
// that lists the inventory's system id, GetGreatestBundleNumber the greatest
// number after the last "." of the bundle ids; GetApplicableUpdates
// succeeds exactly when both stores are parsed and a bundle applies, never
// clears the caller's map, leaves it alone on failure, and maps exactly the
// applications that a plain walk of the selection rules maps, to the same
// components, for every stored device.
void CheckApplicableUpdates(QRMKitAPI& api);

// A small catalog (bundles for system 0A6B and for system id 0, components
// matched by component id and by PCI ids) and a small inventory (system
// 0A6B, devices by component id and by PCI ids, one with component id 2331)
// that the targets read at start-up (and fuzz_inventory again before every
// other input).
extern const char kFixedCatalog[];
extern const char kFixedInventory[];

}  // namespace qrmfuzz

#endif
