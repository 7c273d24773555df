#include "core/ThreadHeap.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <mutex>
#include <new>
#include <utility>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define QUORVEX_SYSTEM_BLOCKS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || __has_feature(memory_sanitizer)
#define QUORVEX_SYSTEM_BLOCKS 1
#endif
#endif

namespace Quorvex
{
namespace
{

constexpr std::size_t s_Granule = 16;
constexpr std::size_t s_Classes = ThreadHeap::sm_LargestBlock / s_Granule;
constexpr std::size_t s_ListBytes = 32 * 1024;
constexpr std::size_t s_SmallestChunk = 512;
/// Accounts beyond these are counted under a lock.
constexpr unsigned int s_OwnAccounts = 32;

/// A free block; the first of a full list that lies in the depot also leads to the next list there.
struct FreeBlock
{
    FreeBlock* next;
    FreeBlock* nextList;
};
static_assert(sizeof(FreeBlock) <= s_Granule, "a free block must fit the smallest size");

std::size_t classOf(std::size_t size)
{
    return size == 0 ? 0 : (size - 1) / s_Granule;
}

std::size_t bytesOf(std::size_t sizeClass)
{
    return (sizeClass + 1) * s_Granule;
}

struct FreeList
{
    FreeBlock* head = nullptr;
    std::size_t count = 0;

    void push(FreeBlock* block)
    {
        block->next = head;
        head = block;
        ++count;
    }

    FreeBlock* pop()
    {
        FreeBlock* const block = head;
        head = block->next;
        --count;
        return block;
    }
};

/// Memory from the system, to be cut into blocks. The link keeps each chunk in reach of whoever looks for leaks.
struct Chunk
{
    Chunk* next;
    std::size_t bytes;
};

/// What all threads share: full lists by size class, and the chunks. It is never destroyed, since objects may outlive
/// any order of static destruction.
struct Depot
{
    std::mutex mutex;
    std::array<FreeBlock*, s_Classes> lists{};
    Chunk* chunks = nullptr;

    void keep(Chunk* chunk)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        chunk->next = chunks;
        chunks = chunk;
    }

    void put(std::size_t sizeClass, FreeList& list)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        list.head->nextList = lists[sizeClass];
        lists[sizeClass] = list.head;
        list = FreeList();
    }

    FreeBlock* take(std::size_t sizeClass)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        FreeBlock* const list = lists[sizeClass];
        if (list != nullptr)
        {
            lists[sizeClass] = list->nextList;
        }
        return list;
    }
};

template <typename T>
T& immortal()
{
    alignas(T) static unsigned char s_Storage[sizeof(T)];
    static T* const s_Object = new (s_Storage) T;
    return *s_Object;
}

/// Blocks of one size: those being handed out, and at most one full list behind them.
class SizeClass
{
public:
    void* allocate(std::size_t sizeClass)
    {
        if (m_Current.count != 0)
        {
            return m_Current.pop();
        }
        return refill(sizeClass);
    }

    void deallocate(std::size_t sizeClass, void* block)
    {
        if (m_Current.count >= s_ListBytes / bytesOf(sizeClass))
        {
            if (m_Spare.count != 0)
            {
                immortal<Depot>().put(sizeClass, m_Spare);
            }
            std::swap(m_Current, m_Spare);
        }
        m_Current.push(static_cast<FreeBlock*>(block));
    }

    void surrender(std::size_t sizeClass)
    {
        while (m_Unused >= bytesOf(sizeClass))
        {
            m_Current.push(static_cast<FreeBlock*>(carve(sizeClass)));
        }
        for (FreeList* list : {&m_Current, &m_Spare})
        {
            if (list->count != 0)
            {
                immortal<Depot>().put(sizeClass, *list);
            }
        }
    }

private:
    void* carve(std::size_t sizeClass)
    {
        void* const block = m_Chunk;
        m_Chunk += bytesOf(sizeClass);
        m_Unused -= bytesOf(sizeClass);
        return block;
    }

    void* refill(std::size_t sizeClass)
    {
        if (m_Spare.count != 0)
        {
            std::swap(m_Current, m_Spare);
            return m_Current.pop();
        }
        if (m_Unused >= bytesOf(sizeClass))
        {
            return carve(sizeClass);
        }
        m_Current.head = immortal<Depot>().take(sizeClass);
        for (const FreeBlock* block = m_Current.head; block != nullptr; block = block->next)
        {
            ++m_Current.count;
        }
        if (m_Current.count != 0)
        {
            return m_Current.pop();
        }
        takeChunk(bytesOf(sizeClass));
        return carve(sizeClass);
    }

    void takeChunk(std::size_t blockBytes)
    {
        const std::size_t room = std::clamp(m_Taken / 4, s_SmallestChunk, s_ListBytes) - sizeof(Chunk);
        const std::size_t bytes = room - room % blockBytes;
        auto* const chunk = static_cast<Chunk*>(::operator new(sizeof(Chunk) + bytes));
        chunk->bytes = bytes;
        immortal<Depot>().keep(chunk);
        m_Chunk = reinterpret_cast<unsigned char*>(chunk + 1);
        m_Unused = bytes;
        m_Taken += bytes;
    }

    FreeList m_Current;
    FreeList m_Spare;
    unsigned char* m_Chunk = nullptr;
    std::size_t m_Unused = 0;
    std::size_t m_Taken = 0;
};

} // namespace

/// One thread's lists and figures.
struct ThreadHeap::Heap
{
    std::array<SizeClass, s_Classes> classes;
    std::array<MemAccount::Figures, s_OwnAccounts> figures;
    Heap* next = nullptr;
};

/// All heaps; its lock is also the one of the figures that stand in the accounts themselves.
struct ThreadHeap::Heaps
{
    std::mutex mutex;
    Heap* first = nullptr;

    void enter(Heap* heap)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        heap->next = first;
        first = heap;
    }

    void leave(Heap* heap)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        Heap** link = &first;
        while (*link != heap)
        {
            link = &(*link)->next;
        }
        *link = heap->next;
        for (MemAccount* account = MemAccount::sm_First.load(); account != nullptr; account = account->m_Next)
        {
            if (account->m_Index < s_OwnAccounts)
            {
                heap->figures[account->m_Index].addTo(account->m_Ended);
            }
        }
    }
};

/// Takes a thread's heap down when the thread ends. What the thread frees after that goes straight to the depot.
struct ThreadHeap::HeapOwner
{
    Heap* heap = nullptr;

    ~HeapOwner()
    {
        st_Ended = true;
        st_Heap = nullptr;
        if (heap != nullptr)
        {
            immortal<Heaps>().leave(heap);
            for (std::size_t sizeClass = 0; sizeClass < s_Classes; ++sizeClass)
            {
                heap->classes[sizeClass].surrender(sizeClass);
            }
            delete heap;
        }
    }
};

__attribute__((tls_model("initial-exec"))) thread_local ThreadHeap::Heap* ThreadHeap::st_Heap = nullptr;
__attribute__((tls_model("initial-exec"))) thread_local bool ThreadHeap::st_Ended = false;

ThreadHeap::Heap* ThreadHeap::sMakeHeap()
{
    if (!st_Ended)
    {
        thread_local HeapOwner t_Owner;
        t_Owner.heap = new Heap;
        immortal<Heaps>().enter(t_Owner.heap);
        st_Heap = t_Owner.heap;
    }
    return st_Heap;
}

/// Null only in a thread that is past the end of its thread-local objects.
ThreadHeap::Heap* ThreadHeap::sHeap()
{
    return st_Heap != nullptr ? st_Heap : sMakeHeap();
}

void* ThreadHeap::allocate(std::size_t size)
{
#ifndef QUORVEX_SYSTEM_BLOCKS
    if (size <= sm_LargestBlock)
    {
        if (Heap* const heap = sHeap())
        {
            return heap->classes[classOf(size)].allocate(classOf(size));
        }
        return ::operator new(bytesOf(classOf(size)));
    }
#endif
    return ::operator new(size);
}

void ThreadHeap::deallocate(void* block, std::size_t size) noexcept
{
#ifndef QUORVEX_SYSTEM_BLOCKS
    if (size <= sm_LargestBlock)
    {
        if (Heap* const heap = st_Heap)
        {
            heap->classes[classOf(size)].deallocate(classOf(size), block);
            return;
        }
        FreeList list;
        list.push(static_cast<FreeBlock*>(block));
        immortal<Depot>().put(classOf(size), list);
        return;
    }
#endif
    static_cast<void>(size);
    ::operator delete(block);
}

void ThreadHeap::count(MemAccount& account, int objects, std::size_t bytes) noexcept
{
    const std::int64_t signedBytes = objects * static_cast<std::int64_t>(bytes);
    const int total = objects > 0 ? 1 : 0;
    if (st_Heap != nullptr && account.m_Index < s_OwnAccounts)
    {
        st_Heap->figures[account.m_Index].add(objects, signedBytes, total);
        return;
    }
    const std::lock_guard<std::mutex> lock(immortal<Heaps>().mutex);
    account.m_Ended.add(objects, signedBytes, total);
}

MemAccount::Usage ThreadHeap::usage(const MemAccount& account)
{
    Heaps& heaps = immortal<Heaps>();
    const std::lock_guard<std::mutex> lock(heaps.mutex);
    MemAccount::Figures sum;
    account.m_Ended.addTo(sum);
    for (const Heap* heap = heaps.first; heap != nullptr && account.m_Index < s_OwnAccounts; heap = heap->next)
    {
        heap->figures[account.m_Index].addTo(sum);
    }
    return sum.usage();
}

} // namespace Quorvex
