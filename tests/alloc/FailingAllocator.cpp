#include "FailingAllocator.h"

#include <pugixml.hpp>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<bool> gCounting{false};
std::atomic<std::size_t> gCount{0};
std::atomic<std::size_t> gFailFrom{0};
std::atomic<bool> gFailed{false};

// Null when this allocation is one that must fail.
void* Allocate(std::size_t size)
{
    if (gCounting.load(std::memory_order_relaxed)) {
        const std::size_t number = gCount.fetch_add(1, std::memory_order_relaxed) + 1;
        const std::size_t from = gFailFrom.load(std::memory_order_relaxed);
        if (from != 0 && number >= from) {
            gFailed.store(true, std::memory_order_relaxed);
            return nullptr;
        }
    }
    return std::malloc(size == 0 ? 1 : size);
}

void* AllocateOrThrow(std::size_t size)
{
    void* memory = Allocate(size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

}  // namespace

namespace failing {

void InstallInParser() { pugi::set_memory_management_functions(Allocate, std::free); }

void FailFrom(std::size_t n)
{
    gCount.store(0);
    gFailed.store(false);
    gFailFrom.store(n);
    gCounting.store(true);
}

std::size_t Stop()
{
    gCounting.store(false);
    gFailFrom.store(0);
    return gCount.load();
}

bool Failed() { return gFailed.load(); }

}  // namespace failing

// The replaced global allocation functions: every form the library and the
// standard library may use, all on malloc and free so that any new and
// delete pair up.
void* operator new(std::size_t size) { return AllocateOrThrow(size); }
void* operator new[](std::size_t size) { return AllocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
