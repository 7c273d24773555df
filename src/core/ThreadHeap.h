#pragma once

#include "core/MemAccount.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <new>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define QUORVEX_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || __has_feature(memory_sanitizer)
#define QUORVEX_SANITIZED 1
#endif
#endif
#ifndef QUORVEX_SANITIZED
#define QUORVEX_SANITIZED 0
#endif

namespace Quorvex
{

/// Small blocks from lists that each thread keeps for itself: a body is read and released in blocks of a dozen sizes,
/// and asking the system for each would cost more than the reading.
///
/// Blocks come from chunks that grow with use. Full lists of a thread that frees more than it takes go to a depot
/// that all threads share, a whole list at a time, so no memory is stranded where one thread reads and another
/// releases. When a thread ends, the next new one gets its lists. Chunks are not given back to the system before the
/// process ends. Under a sanitizer each block is the system's own, so that the sanitizer sees its bounds and its end.
class HARNWICK_CORE_API ThreadHeap
{
public:
    /// Larger blocks come from the system.
    static constexpr std::size_t sm_LargestBlock = 352;

    /// How far a small block of a rounded size lies behind an address that is aligned for anything.
    static constexpr std::size_t sm_Offset = 8;

    /// A size, rounded up to the next multiple of 16.
    static constexpr std::size_t rounded(std::size_t size)
    {
        return (size + sm_Alignment - 1) / sm_Alignment * sm_Alignment;
    }

    /// Small blocks are aligned as a pointer is. Those of a rounded size lie 8 bytes behind an address that is aligned
    /// for anything, so that what stands behind a header of 8 bytes is; large blocks lie on such an address.
    /// @throws std::bad_alloc
    static void* allocate(std::size_t size)
    {
        void* const block = allocateAtHand(size);
        return __builtin_expect(block != nullptr, 1) ? block : sAllocateSlowly(size);
    }

    /// `size` is the number that `block` was taken with.
    static void deallocate(void* block, std::size_t size) noexcept
    {
        if (__builtin_expect(!deallocateAtHand(block, size), 0))
        {
            sDeallocateSlowly(block, size);
        }
    }

    /// The same where the thread has a block at hand; a null pointer otherwise. A caller that leaves all other ways to
    /// one call at its end needs no registers for them.
    static void* allocateAtHand(std::size_t size) noexcept
    {
        Heap* const heap = st_Heap;
        if (__builtin_expect(!isSmall(size) || heap == nullptr, 0))
        {
            return nullptr;
        }
        List& list = heap->current[classOf(size)];
        return __builtin_expect(list.head != nullptr, 1) ? list.pop() : nullptr;
    }

    /// The same where the thread's list has room; false, and nothing done, otherwise.
    static bool deallocateAtHand(void* block, std::size_t size) noexcept
    {
        Heap* const heap = st_Heap;
        if (__builtin_expect(!isSmall(size) || heap == nullptr, 0))
        {
            return false;
        }
        List& list = heap->current[classOf(size)];
        if (__builtin_expect(list.room == 0, 0))
        {
            return false;
        }
        list.push(static_cast<Block*>(block));
        return true;
    }

    /// What all threads together have counted on an account.
    static MemAccount::Usage usage(const MemAccount& account);

    /// Whether a block of that size, with so much in front of it, is a small one.
    static constexpr bool isSmall(std::size_t size, std::size_t inFront = 0)
    {
        return !sm_SystemBlocks && size <= sm_LargestBlock - inFront;
    }

private:
    friend class MemAccount;

    static constexpr bool sm_SystemBlocks = QUORVEX_SANITIZED != 0;
    static constexpr std::size_t sm_Granule = 8;
    static constexpr std::size_t sm_Alignment = 16;
    static constexpr std::size_t sm_Classes = sm_LargestBlock / sm_Granule + 1;

    /// Accounts beyond these are counted under a lock.
    static constexpr unsigned int sm_OwnAccounts = 32;

    /// A free block; the first of a list that lies in the depot also leads to the next list there.
    struct Block
    {
        Block* next;
        Block* nextList;
    };
    /// Free blocks of one size. `room` is how many more make a full list.
    struct List
    {
        Block* head = nullptr;
        std::size_t room = 0;

        void push(Block* block)
        {
            block->next = head;
            head = block;
            --room;
        }

        Block* pop()
        {
            Block* const block = head;
            head = block->next;
            ++room;
            return block;
        }
    };

    class Supply;
    struct Depot;
    struct WholeHeap;
    struct HeapOwner;
    struct Heaps;

    /// One thread's lists and figures.
    struct Heap
    {
        Heap();

        std::array<List, sm_Classes> current; ///< blocks being handed out
        std::array<MemAccount::Figures, sm_OwnAccounts> figures;
        Supply* supplies = nullptr; ///< where more blocks come from, by size
        Heap* next = nullptr;
    };

    /// A thread's figures of an account; null where it keeps none of its own.
    static MemAccount::Figures* figuresOf(Heap& heap, const MemAccount& account)
    {
        if (__builtin_expect(account.m_Offset >= sizeof heap.figures, 0))
        {
            return nullptr;
        }
        char* const first = reinterpret_cast<char*>(heap.figures.data());
        return reinterpret_cast<MemAccount::Figures*>(first + account.m_Offset);
    }

    /// Those of this thread.
    static MemAccount::Figures* ownFigures(const MemAccount& account)
    {
        Heap* const heap = st_Heap;
        return __builtin_expect(heap != nullptr, 1) ? figuresOf(*heap, account) : nullptr;
    }

    /// Counts a block that an account has taken, or has given back.
    static void sCountTaken(MemAccount& account, std::size_t bytes) noexcept;
    static void sCountGivenBack(MemAccount& account, std::size_t bytes) noexcept;

    static constexpr std::size_t classOf(std::size_t size) { return (size + sm_Granule - 1) / sm_Granule; }

    /// The smallest blocks take as much as a free one.
    static constexpr std::size_t bytesOf(std::size_t sizeClass)
    {
        return sizeClass * sm_Granule < sizeof(Block) ? sizeof(Block) : sizeClass * sm_Granule;
    }

    // Told to be cold here too, so that callers lay these ways out behind all others.
    [[gnu::cold]] static void* sAllocateSlowly(std::size_t size);
    [[gnu::cold]] static void sDeallocateSlowly(void* block, std::size_t size) noexcept;
    static Heap* sMakeHeap();

    /// The calling thread's heap; null before its first block and after the thread's end. `__thread`, since it never
    /// needs a constructor, and other libraries would otherwise ask for one at each use.
    static __thread Heap* st_Heap __attribute__((tls_model("initial-exec")));
    static __thread bool st_Ended __attribute__((tls_model("initial-exec")));
};

/// Stands in front of each block of an account, so that it can be given back without its size. A block that is not
/// small has room in front of its header, so that the object behind it is aligned for anything.
struct MemAccount::Header
{
    std::size_t size;
};

/// What a small block takes with its header.
constexpr std::size_t MemAccount::smallBytes(std::size_t size, std::size_t ofPointers)
{
    const std::size_t bytes = size + sizeof(Header);
    return size == ofPointers ? bytes : ThreadHeap::rounded(bytes);
}

inline void* MemAccount::allocate(std::size_t size, std::size_t ofPointers)
{
    if (__builtin_expect(ThreadHeap::isSmall(size, sizeof(Header)), 1))
    {
        if (MemAccount::Figures* const figures = ThreadHeap::ownFigures(*this))
        {
            if (void* const block = ThreadHeap::allocateAtHand(smallBytes(size, ofPointers)))
            {
                figures->take(size);
                return new (block) Header{size} + 1;
            }
        }
    }
    return allocateSlowly(size, ofPointers);
}

inline void MemAccount::deallocate(void* block, std::size_t ofPointers) noexcept
{
    if (block == nullptr)
    {
        return;
    }
    Header* const header = static_cast<Header*>(block) - 1;
    const std::size_t size = header->size;
    if (__builtin_expect(ThreadHeap::isSmall(size, sizeof(Header)), 1))
    {
        MemAccount::Figures* const figures = ThreadHeap::ownFigures(*this);
        if (figures != nullptr && ThreadHeap::deallocateAtHand(header, smallBytes(size, ofPointers)))
        {
            figures->giveBack(size);
            return;
        }
    }
    deallocateSlowly(header, ofPointers);
}

} // namespace Quorvex
