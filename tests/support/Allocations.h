/// Counts what the program takes from the heap, by `new` and by the libraries' own calls alike.
#pragma once

#include <cstdint>

namespace tvok::test {

/// False in sanitizer builds, which have a heap of their own.
bool CanCountAllocations();

/// Heap blocks asked for so far, by all threads.
std::uint64_t Allocations();

} // namespace tvok::test
