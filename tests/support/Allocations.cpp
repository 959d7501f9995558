#include "tests/support/Allocations.h"

#include <atomic>
#include <cstddef>

namespace {
std::atomic<std::uint64_t> allocations{0};
} // namespace

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TVOK_HEAP_OF_ITS_OWN 1
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define TVOK_HEAP_OF_ITS_OWN 1
#endif

#if defined(__GLIBC__) && !defined(TVOK_HEAP_OF_ITS_OWN)

// The C library lets a program put its own functions in place of these and keeps its heap behind other names.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);

void* malloc(std::size_t size) {
    allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) {
    allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_calloc(count, size);
}
void* realloc(void* block, std::size_t size) {
    allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_realloc(block, size);
}
}

bool tvok::test::CanCountAllocations() {
    return true;
}

#else

bool tvok::test::CanCountAllocations() {
    return false;
}

#endif

std::uint64_t tvok::test::Allocations() {
    return allocations.load(std::memory_order_relaxed);
}
