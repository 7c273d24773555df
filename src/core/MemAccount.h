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
    /// What one account holds.
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
        /// Counts a block that was taken.
        void take(std::uint64_t bytes)
        {
            add(m_Taken, 1);
            add(m_BytesTaken, bytes);
        }

        /// Counts a block that was given back.
        void giveBack(std::uint64_t bytes)
        {
            add(m_GivenBack, 1);
            add(m_BytesGivenBack, bytes);
        }

        /// Adds these figures to those of `sum`.
        void addTo(Figures& sum) const;

        /// What these figures come to.
        Usage usage() const;

    private:
        using Figure = std::atomic<std::uint64_t>;

        static void add(Figure& figure, std::uint64_t by)
        {
            figure.store(figure.load(std::memory_order_relaxed) + by, std::memory_order_relaxed);
        }

        Figure m_Taken{0};
        Figure m_BytesTaken{0};
        Figure m_GivenBack{0};
        Figure m_BytesGivenBack{0};
    };

    /// The account of that name, made at first use; it lives as long as the process. Safe from several threads.
    /// @throws std::bad_alloc when the account can't be made
    static MemAccount& get(const char* account);

    /// What the account holds now, all threads together. All zero for a name that no one has used.
    static Usage usage(const char* account);

    MemAccount(const MemAccount&) = delete;
    MemAccount& operator=(const MemAccount&) = delete;

    /// Takes `size` bytes, aligned for anything, and counts them here. Where `size` is `ofPointers`, they need be
    /// aligned as a pointer only, which saves some.
    /// @throws std::bad_alloc
    void* allocate(std::size_t size, std::size_t ofPointers = 0);

    /// Gives back what `allocate` of the same account gave with the same `ofPointers`, from whatever thread. A null
    /// pointer does nothing.
    void deallocate(void* block, std::size_t ofPointers = 0) noexcept;

private:
    friend class ThreadHeap;
    struct Header;

    MemAccount(const char* account, std::size_t offset, MemAccount* next);
    ~MemAccount() = default;

    static MemAccount* sFind(const char* account);
    static constexpr std::size_t smallBytes(std::size_t size, std::size_t ofPointers);

    ///@{
    /// The way of blocks that are large, or for which the thread has nothing at hand.
    [[gnu::cold]] void* allocateSlowly(std::size_t size, std::size_t ofPointers);
    [[gnu::cold]] void deallocateSlowly(Header* header, std::size_t ofPointers) noexcept;
    ///@}

    static std::atomic<MemAccount*> sm_First;

    const std::string m_Name;
    const std::size_t m_Offset; ///< of the account among the figures of each thread, in bytes
    MemAccount* const m_Next;
    Figures m_Ended; ///< of blocks counted without a thread's heap
};

/// An account that is looked up by its name at first use; it needs no constructor to run before that.
class HARNWICK_CORE_API MemAccountByName
{
public:
    /// `name` is a string literal.
    explicit constexpr MemAccountByName(const char* name) : m_Name(name) {}

    MemAccountByName(const MemAccountByName&) = delete;
    MemAccountByName& operator=(const MemAccountByName&) = delete;

    /// Safe from several threads. @throws std::bad_alloc when the account can't be made
    MemAccount& get()
    {
        MemAccount* const pAccount = m_pAccount.load(std::memory_order_acquire);
        return __builtin_expect(pAccount != nullptr, 1) ? *pAccount : find();
    }

private:
    [[gnu::cold]] MemAccount& find();

    const char* m_Name;
    std::atomic<MemAccount*> m_pAccount{nullptr};
};

} // namespace Quorvex
