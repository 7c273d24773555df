#include "core/ThreadHeap.h"

#include <algorithm>
#include <mutex>
#include <new>
#include <utility>

namespace Quorvex
{
namespace
{

constexpr std::size_t s_ListBytes = 32 * 1024;
constexpr std::size_t s_SmallestChunk = 512;
constexpr std::size_t s_CacheLine = 64;

/// Memory from the system, to be cut into blocks. The link keeps each chunk in reach of whoever looks for leaks.
struct Chunk
{
    Chunk* next;
    std::size_t bytes;
    std::size_t padding; ///< puts the first block where ThreadHeap::allocate says
};
static_assert(sizeof(Chunk) % 16 == 8);

/// An object that is never destroyed, since what needs it may outlive any order of static destruction.
template <typename T>
T& immortal()
{
    alignas(T) static unsigned char s_Storage[sizeof(T)];
    static T* const s_Object = new (s_Storage) T;
    return *s_Object;
}

} // namespace

__thread ThreadHeap::Heap* ThreadHeap::st_Heap __attribute__((tls_model("initial-exec"))) = nullptr;
__thread bool ThreadHeap::st_Ended __attribute__((tls_model("initial-exec"))) = false;

/// What all threads share: lists by size, and the chunks.
struct ThreadHeap::Depot
{
    std::mutex mutex;
    std::array<Block*, sm_Classes> lists{};
    Chunk* chunks = nullptr;

    void put(std::size_t sizeClass, Block* list)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        list->nextList = lists[sizeClass];
        lists[sizeClass] = list;
    }

    Block* take(std::size_t sizeClass)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        Block* const list = lists[sizeClass];
        if (list != nullptr)
        {
            lists[sizeClass] = list->nextList;
        }
        return list;
    }

    void keep(Chunk* chunk)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        chunk->next = chunks;
        chunks = chunk;
    }
};

/// Where a thread's blocks of one size come from when its list has run out, and go to when that is full: a full list
/// kept aside, a chunk to be cut up, and the depot.
class ThreadHeap::Supply
{
public:
    static List emptyList(std::size_t sizeClass)
    {
        List list;
        list.room = s_ListBytes / bytesOf(sizeClass);
        return list;
    }

    void* refill(std::size_t sizeClass, List& list)
    {
        if (m_Aside != nullptr)
        {
            list.head = std::exchange(m_Aside, nullptr);
            list.room = 0;
            return list.pop();
        }
        if (m_Unused < bytesOf(sizeClass))
        {
            list.head = immortal<Depot>().take(sizeClass);
            if (list.head != nullptr)
            {
                // Taken for a full one, as nearly all are there: to count its blocks would touch each of them.
                list.room = 0;
                return list.pop();
            }
            takeChunk(bytesOf(sizeClass));
        }
        return carve(sizeClass);
    }

    /// Makes room in a list that is full.
    void setAside(std::size_t sizeClass, List& list)
    {
        if (m_Aside != nullptr)
        {
            immortal<Depot>().put(sizeClass, m_Aside);
        }
        m_Aside = list.head;
        list = emptyList(sizeClass);
    }

private:
    void* carve(std::size_t sizeClass)
    {
        void* const block = m_Chunk;
        m_Chunk += bytesOf(sizeClass);
        m_Unused -= bytesOf(sizeClass);
        return block;
    }

    void takeChunk(std::size_t blockBytes)
    {
        const std::size_t room = std::clamp(m_Taken / 4, s_SmallestChunk, s_ListBytes) - sizeof(Chunk);
        const std::size_t bytes = room - room % blockBytes;
        // In cache lines of its own: the next chunk may be another thread's.
        auto* const chunk = static_cast<Chunk*>(::operator new(sizeof(Chunk) + bytes, std::align_val_t(s_CacheLine)));
        chunk->bytes = bytes;
        immortal<Depot>().keep(chunk);
        m_Chunk = reinterpret_cast<unsigned char*>(chunk + 1);
        m_Unused = bytes;
        m_Taken += bytes;
    }

    Block* m_Aside = nullptr;
    unsigned char* m_Chunk = nullptr;
    std::size_t m_Unused = 0;
    std::size_t m_Taken = 0;
};

ThreadHeap::Heap::Heap()
{
    for (std::size_t sizeClass = 0; sizeClass < sm_Classes; ++sizeClass)
    {
        current[sizeClass] = Supply::emptyList(sizeClass);
    }
}

/// A heap with its supplies. When its thread has ended it waits for the next one, with all its blocks: were these dealt
/// out to several threads, neighbours in one cache line would make the threads wait for each other.
struct ThreadHeap::WholeHeap
{
    Heap heap;
    std::array<Supply, sm_Classes> supplies;
    WholeHeap* nextIdle = nullptr;
};

/// All heaps; its lock is also the one of the figures that stand in the accounts themselves.
struct ThreadHeap::Heaps
{
    std::mutex mutex;
    Heap* first = nullptr;
    WholeHeap* idle = nullptr;

    /// A heap that no thread has; null when there is none and none can be made.
    WholeHeap* lend()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (idle != nullptr)
        {
            return std::exchange(idle, idle->nextIdle);
        }
        auto* const whole = new (std::nothrow) WholeHeap;
        if (whole != nullptr)
        {
            whole->heap.supplies = whole->supplies.data();
            whole->heap.next = std::exchange(first, &whole->heap);
        }
        return whole;
    }

    void takeBack(WholeHeap* whole)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        whole->nextIdle = std::exchange(idle, whole);
    }
};

/// Holds a heap for a thread. What the thread frees after its end goes straight to the depot.
struct ThreadHeap::HeapOwner
{
    HeapOwner() : whole(immortal<Heaps>().lend()) {}

    ~HeapOwner()
    {
        st_Ended = true;
        st_Heap = nullptr;
        if (whole != nullptr)
        {
            immortal<Heaps>().takeBack(whole);
        }
    }

    WholeHeap* const whole;
};

/// Gives null in a thread that is past the end of its thread-local objects, and where no heap can be made.
ThreadHeap::Heap* ThreadHeap::sMakeHeap()
{
    if (!st_Ended)
    {
        thread_local HeapOwner t_Owner;
        st_Heap = t_Owner.whole != nullptr ? &t_Owner.whole->heap : nullptr;
    }
    return st_Heap;
}

__attribute__((noinline, cold)) void* ThreadHeap::sAllocateSlowly(std::size_t size)
{
    Heap* const heap = st_Heap != nullptr ? st_Heap : sMakeHeap();
    if (isSmall(size))
    {
        const std::size_t sizeClass = classOf(size);
        return heap != nullptr
                   ? heap->supplies[sizeClass].refill(sizeClass, heap->current[sizeClass])
                   : static_cast<unsigned char*>(::operator new(bytesOf(sizeClass) + sm_Offset)) + sm_Offset;
    }
    return ::operator new(size);
}

__attribute__((noinline, cold)) void ThreadHeap::sDeallocateSlowly(void* block, std::size_t size) noexcept
{
    if (isSmall(size))
    {
        const std::size_t sizeClass = classOf(size);
        auto* const freed = static_cast<Block*>(block);
        if (Heap* const heap = st_Heap)
        {
            heap->supplies[sizeClass].setAside(sizeClass, heap->current[sizeClass]);
            heap->current[sizeClass].push(freed);
            return;
        }
        freed->next = nullptr;
        immortal<Depot>().put(sizeClass, freed);
        return;
    }
    ::operator delete(block);
}

void ThreadHeap::sCountTaken(MemAccount& account, std::size_t bytes) noexcept
{
    if (MemAccount::Figures* const figures = ownFigures(account))
    {
        figures->take(bytes);
        return;
    }
    const std::lock_guard<std::mutex> lock(immortal<Heaps>().mutex);
    account.m_Ended.take(bytes);
}

void ThreadHeap::sCountGivenBack(MemAccount& account, std::size_t bytes) noexcept
{
    if (MemAccount::Figures* const figures = ownFigures(account))
    {
        figures->giveBack(bytes);
        return;
    }
    const std::lock_guard<std::mutex> lock(immortal<Heaps>().mutex);
    account.m_Ended.giveBack(bytes);
}

MemAccount::Usage ThreadHeap::usage(const MemAccount& account)
{
    Heaps& heaps = immortal<Heaps>();
    const std::lock_guard<std::mutex> lock(heaps.mutex);
    MemAccount::Figures sum;
    account.m_Ended.addTo(sum);
    for (Heap* heap = heaps.first; heap != nullptr; heap = heap->next)
    {
        if (const MemAccount::Figures* const figures = figuresOf(*heap, account))
        {
            figures->addTo(sum);
        }
    }
    return sum.usage();
}

void* MemAccount::allocateSlowly(std::size_t size, std::size_t ofPointers)
{
    if (ThreadHeap::isSmall(size, sizeof(Header)))
    {
        void* const block = ThreadHeap::allocate(smallBytes(size, ofPointers));
        ThreadHeap::sCountTaken(*this, size);
        return new (block) Header{size} + 1;
    }
    constexpr std::size_t inFront = ThreadHeap::sm_Offset + sizeof(Header);
    if (size + inFront < size)
    {
        throw std::bad_alloc();
    }
    auto* const block = static_cast<unsigned char*>(ThreadHeap::allocate(size + inFront));
    ThreadHeap::sCountTaken(*this, size);
    return new (block + ThreadHeap::sm_Offset) Header{size} + 1;
}

void MemAccount::deallocateSlowly(Header* header, std::size_t ofPointers) noexcept
{
    const std::size_t size = header->size;
    ThreadHeap::sCountGivenBack(*this, size);
    if (ThreadHeap::isSmall(size, sizeof(Header)))
    {
        ThreadHeap::deallocate(header, smallBytes(size, ofPointers));
        return;
    }
    ThreadHeap::deallocate(reinterpret_cast<unsigned char*>(header) - ThreadHeap::sm_Offset,
                           size + ThreadHeap::sm_Offset + sizeof(Header));
}

} // namespace Quorvex
