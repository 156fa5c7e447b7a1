#include "Module.h"

#include <QRMKit.h>

#include <atomic>

#include <dirent.h>

namespace py = pybind11;

namespace qrmpy {

namespace {

std::mutex& TheLibraryMutex()
{
    static std::mutex mutex;
    return mutex;
}

std::atomic<bool> gStoresTouched{false};

}  // namespace

LibraryLock::LibraryLock() : mLock(TheLibraryMutex()) {}

LibraryLock::~LibraryLock() = default;

bool StoresTouched() { return gStoresTouched.load(); }

void MarkStoresTouched() { gStoresTouched.store(true); }

bool OtherThreadsRun()
{
    DIR* tasks = opendir("/proc/self/task");
    if (tasks == nullptr) {
        return true;  // unknown: the safe answer
    }
    int count = 0;
    while (const dirent* entry = readdir(tasks)) {
        if (entry->d_name[0] != '.') {
            ++count;
        }
    }
    closedir(tasks);
    return count != 1;
}

}  // namespace qrmpy

PYBIND11_MODULE(_qrmkit, module)
{
    module.doc() = "The QRMKit library's extension module; use the qrmkit package, not this module.";
    module.attr("library_version") = QRMKitVersion();
    module.def("_stores_touched", &qrmpy::StoresTouched,
               "Whether the low-level layer has read a document into this process's stores.");
    module.def("_other_threads", &qrmpy::OtherThreadsRun,
               "Whether this process runs threads besides the calling one (or their number is unknown).");
    qrmpy::DefineIsolated(module);
    py::module_ lowlevel = module.def_submodule("lowlevel", "The library's own interface.");
    qrmpy::DefineLowLevel(lowlevel);
}
