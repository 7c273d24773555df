#pragma once

#include "core/CoreExport.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string>

namespace Quorvex
{

/// A named account that says how much memory one kind of object holds.
///
/// Figures are kept by each thread for itself and added up when asked, so that counting makes no thread wait.
class HARNWICK_CORE_API MemAccount
{
public:
    struct Usage
    {
        std::size_t liveObjects = 0;      ///< blocks taken and not yet given back
        std::size_t liveBytes = 0;        ///< bytes asked for in those blocks
        std::size_t totalAllocations = 0; ///< blocks ever taken
    };

    /// Figures with one writer, or with a lock around them; anybody may read.
    class Figures
    {
    public:
        void add(std::int64_t objects, std::int64_t bytes, std::int64_t total)
        {
            add(m_Objects, objects);
            add(m_Bytes, bytes);
            add(m_Total, total);
        }

        void addTo(Figures& sum) const
        {
            sum.add(m_Objects.load(std::memory_order_relaxed), m_Bytes.load(std::memory_order_relaxed),
                    m_Total.load(std::memory_order_relaxed));
        }

        Usage usage() const;

    private:
        static void add(std::atomic<std::int64_t>& figure, std::int64_t by)
        {
            figure.store(figure.load(std::memory_order_relaxed) + by, std::memory_order_relaxed);
        }

        std::atomic<std::int64_t> m_Objects{0};
        std::atomic<std::int64_t> m_Bytes{0};
        std::atomic<std::int64_t> m_Total{0};
    };

    /// The account of that name, made at first use; it lives as long as the process. Safe from several threads.
    /// @throws std::bad_alloc when the account can't be made
    static MemAccount& get(const char* account);

    /// What the account holds now, all threads together. All zero for a name that no one has used.
    static Usage usage(const char* account);

    MemAccount(const MemAccount&) = delete;
    MemAccount& operator=(const MemAccount&) = delete;

    /// Takes `size` bytes, aligned as a pointer is, and counts them here.
    /// @throws std::bad_alloc
    void* allocate(std::size_t size);

    /// Gives back what `allocate` of the same account gave, from whatever thread. A null pointer does nothing.
    void deallocate(void* block) noexcept;

private:
    friend class ThreadHeap;
    struct Header;

    MemAccount(const char* account, unsigned int index, MemAccount* next);
    ~MemAccount() = default;

    static MemAccount* sFind(const char* account);

    static std::atomic<MemAccount*> sm_First;

    const std::string m_Name;
    const unsigned int m_Index;
    MemAccount* const m_Next;
    Figures m_Ended; ///< of threads that have ended, and of blocks counted without a thread's heap
};

} // namespace Quorvex
