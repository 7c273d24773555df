#pragma once

#include "core/ThreadHeap.h"

#include <cstddef>
#include <limits>
#include <new>

namespace Quorvex
{

/// A base for classes whose objects are small and come and go in great numbers: they are taken from the thread's own
/// heap. A class derived from such a class is too, unless it has operators of its own.
class ThreadHeapOperators
{
public:
    /// @throws std::bad_alloc
    static void* operator new(std::size_t size)
    {
        return static_cast<unsigned char*>(ThreadHeap::allocate(bytesOf(size))) + inFront(size);
    }
    static void* operator new(std::size_t size, const std::nothrow_t&) noexcept
    {
        try
        {
            return operator new(size);
        }
        catch (const std::bad_alloc&)
        {
            return nullptr;
        }
    }
    static void* operator new(std::size_t, void* place) noexcept { return place; }

    static void operator delete(void* block, std::size_t size) noexcept
    {
        if (block != nullptr)
        {
            ThreadHeap::deallocate(static_cast<unsigned char*>(block) - inFront(size), bytesOf(size));
        }
    }
    static void operator delete(void*, void*) noexcept {}

private:
    /// A small block is aligned behind its first bytes only.
    static constexpr std::size_t inFront(std::size_t size)
    {
        return ThreadHeap::isSmall(size, ThreadHeap::sm_Offset) ? ThreadHeap::sm_Offset : 0;
    }
    static constexpr std::size_t bytesOf(std::size_t size)
    {
        return inFront(size) == 0 ? size : ThreadHeap::rounded(size + inFront(size));
    }
};

/// Lets a container take its small blocks from the thread's own heap. `T` is aligned as a pointer is.
template <typename T>
struct ThreadHeapAllocator
{
    using value_type = T;
    static_assert(alignof(T) <= ThreadHeap::sm_Offset);

    ThreadHeapAllocator() = default;
    template <typename U>
    // NOLINTNEXTLINE(google-explicit-constructor): containers convert their allocators
    ThreadHeapAllocator(const ThreadHeapAllocator<U>&) noexcept
    {
    }

    /// @throws std::bad_alloc
    T* allocate(std::size_t count)
    {
        if (count > std::numeric_limits<std::size_t>::max() / sizeof(T))
        {
            throw std::bad_alloc();
        }
        return static_cast<T*>(ThreadHeap::allocate(count * sizeof(T)));
    }
    void deallocate(T* block, std::size_t count) noexcept { ThreadHeap::deallocate(block, count * sizeof(T)); }

    friend bool operator==(const ThreadHeapAllocator&, const ThreadHeapAllocator&) { return true; }
    friend bool operator!=(const ThreadHeapAllocator&, const ThreadHeapAllocator&) { return false; }
};

} // namespace Quorvex
