// An allocator that can be told to fail. This executable replaces the global
// operator new and delete, and installs the same allocation function in the
// XML parser, so that every allocation the library makes passes through one
// counter.
#ifndef QRMKIT_FAILING_ALLOCATOR_H
#define QRMKIT_FAILING_ALLOCATOR_H

#include <cstddef>

namespace failing {

// Installs the counting allocation function in the XML parser. Call once,
// before the first document is read.
void InstallInParser();

// From now on, allocation number `n` (1 = the next one) and every later one
// fails: operator new throws std::bad_alloc, the parser's allocation
// function returns null, as when memory runs out. n = 0 only counts.
void FailFrom(std::size_t n);
// Allocations succeed again. Returns how many were asked for since
// FailFrom (the failed ones included).
std::size_t Stop();
// Whether an allocation has failed since FailFrom.
bool Failed();

}  // namespace failing

#endif
