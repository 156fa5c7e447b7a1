// The qrmkit Python extension module (_qrmkit): what its parts share.
#ifndef QRMKIT_PYTHON_MODULE_H
#define QRMKIT_PYTHON_MODULE_H

#include <pybind11/pybind11.h>

#include <mutex>

namespace qrmpy {

// The library serves one caller at a time. Every call into it from Python
// takes this lock, after releasing the GIL (never the other way round, so
// that a thread waiting for the library never holds up Python); so does the
// forking of an isolated child, so that no child is forked while another
// thread is half-way through changing the stores.
class LibraryLock {
public:
    LibraryLock();
    ~LibraryLock();
    LibraryLock(const LibraryLock&) = delete;
    LibraryLock& operator=(const LibraryLock&) = delete;

private:
    std::unique_lock<std::mutex> mLock;
};

// Whether the low-level layer has read a document into this process's
// stores. Until it has, an isolated child forked from this process starts
// from the stores a fresh process has.
bool StoresTouched();
void MarkStoresTouched();

// Whether the process runs other threads than the calling one. A forked copy
// of such a process may start with a lock another thread held at the fork
// (in the memory allocator, say) and wait for it forever, so its isolated
// children are started as fresh processes instead. True when the number
// cannot be read.
bool OtherThreadsRun();

void DefineIsolated(pybind11::module_& module);
void DefineLowLevel(pybind11::module_& module);

}  // namespace qrmpy

#endif
