#pragma once

#include "core/MemAccount.h"

#include <cstddef>

namespace Quorvex
{

/// Small blocks from lists that each thread keeps for itself: a body is read and released in blocks of a dozen sizes,
/// and asking the system for each would cost more than the reading.
///
/// Blocks come from chunks that grow with use. Full lists of a thread that frees more than it takes go to a depot
/// that all threads share, a whole list at a time, so no memory is stranded where one thread reads and another
/// releases. Chunks are not given back to the system before the process ends. Under a sanitizer each block is the
/// system's own, so that the sanitizer sees its bounds and its end.
class HARNWICK_CORE_API ThreadHeap
{
public:
    /// Larger blocks come from the system.
    static constexpr std::size_t sm_LargestBlock = 256;

    /// @throws std::bad_alloc
    static void* allocate(std::size_t size);

    /// `size` is the number that `block` was taken with.
    static void deallocate(void* block, std::size_t size) noexcept;

    /// Counts a block of `bytes` taken (`objects` 1) or given back (`objects` -1) on an account.
    static void count(MemAccount& account, int objects, std::size_t bytes) noexcept;

    /// What all threads together have counted on an account.
    static MemAccount::Usage usage(const MemAccount& account);

private:
    struct Heap;
    struct HeapOwner;
    struct Heaps;

    static Heap* sMakeHeap();
    static Heap* sHeap();

    static thread_local Heap* st_Heap;
    static thread_local bool st_Ended;
};

} // namespace Quorvex
