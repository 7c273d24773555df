#pragma once

#include <cstddef>
#include <cstdint>

/// What the calling thread has asked of the system's allocator since it began.
struct Allocations
{
    std::uint64_t calls = 0; ///< of malloc, calloc, realloc and their aligned relatives; freeing is not counted
    std::uint64_t bytes = 0; ///< asked for in these calls

    static Allocations soFar();
};

/// Bytes that the process has from the allocator now, those in its own lists not counted.
std::size_t bytesInUse();
