// Hooks for the libFuzzer targets, and for nothing else.
//
// They exist only in the fuzz build: fuzz/CMakeLists.txt adds
// QRMFuzzHooks.cpp to the library's objects and defines QRMKIT_FUZZING on
// them; the shipped library has neither the source nor its symbols. Not
// under include/: no caller of the library can reach them.
#ifndef QRMKIT_FUZZ_HOOKS_H
#define QRMKIT_FUZZ_HOOKS_H

namespace qrm::fuzzing {

// Return the process-wide state of the library to what it is when the
// library has just been loaded, so that one fuzzing process can run input
// after input without the stores growing. Everything the emptied stores
// held is freed; pointers into them handed out earlier dangle afterwards.
// The instance itself stays where it is.

// The catalog store is emptied, its category values and acronyms included
// (Reset and Parse keep those on purpose), and the instance, if one was
// made, forgets Initialize, as a new one would not know it.
void ResetCatalogStore();

// The inventory store is emptied and its parsed flag lowered (nothing in
// the library ever empties it).
void ResetInventoryStore();

// Both of the above.
void ResetStores();

}  // namespace qrm::fuzzing

#endif
