#pragma once

#include <sys/single_threaded.h>

#include <atomic>
#include <cstdint>

/// The count of an object's references, safe when handles to one object live in several threads.
///
/// Three things keep it cheap: a process that has never had a second thread counts without atomic operations; a
/// reference taken or given up by the only owner needs none either; and an immortal object is not counted at all, so
/// that threads that share one do not wait for each other.
class LmReferenceCount
{
public:
    constexpr LmReferenceCount() = default;

    /// A count that never moves, for an object that is never destroyed.
    struct Immortal
    {
    };
    explicit constexpr LmReferenceCount(Immortal) : m_Count(sm_Immortal) {}

    /// The count of a new object that has an owner already.
    struct Owned
    {
    };
    explicit constexpr LmReferenceCount(Owned) : m_Count(1) {}

    /// Gives the count after the call.
    std::uint32_t increment() noexcept
    {
        const std::uint32_t count = m_Count.load(std::memory_order_relaxed);
        // An object without an owner is in the hands of one thread only.
        if (__builtin_expect(count == 0, 1))
        {
            m_Count.store(1, std::memory_order_relaxed);
            return 1;
        }
        if (count == sm_Immortal)
        {
            return count;
        }
        if (__libc_single_threaded)
        {
            m_Count.store(count + 1, std::memory_order_relaxed);
            return count + 1;
        }
        return m_Count.fetch_add(1, std::memory_order_relaxed) + 1;
    }

    /// Gives the count after the call. What other owners did to the object is visible to the caller who gets 0.
    std::uint32_t decrement() noexcept
    {
        if (dropOnlyOwner())
        {
            return 0;
        }
        const std::uint32_t count = m_Count.load(std::memory_order_acquire);
        if (count == sm_Immortal || count == 0)
        {
            return count;
        }
        if (__libc_single_threaded)
        {
            m_Count.store(count - 1, std::memory_order_relaxed);
            return count - 1;
        }
        return m_Count.fetch_sub(1, std::memory_order_acq_rel) - 1;
    }

    /// The same where the caller is the only owner; otherwise it changes nothing and gives false.
    bool dropOnlyOwner() noexcept
    {
        const bool isOnly = isOne();
        if (__builtin_expect(isOnly, 1))
        {
            m_Count.store(0, std::memory_order_relaxed);
        }
        return isOnly;
    }

    /// As `decrement`, but tells only whether the count is 0 now. It is quickest for an immortal object, as most texts
    /// of a body are.
    bool decrementsToZero() noexcept
    {
        const std::uint32_t count = m_Count.load(std::memory_order_acquire);
        if (__builtin_expect(count == sm_Immortal, 1))
        {
            return false;
        }
        if (count == 1)
        {
            m_Count.store(0, std::memory_order_relaxed);
            return true;
        }
        return decrementShared() == 0;
    }

    /// True when the caller, who holds a reference, holds the only one.
    bool isOne() const noexcept { return m_Count.load(std::memory_order_acquire) == 1; }

    /// True before the first owner has come.
    bool isZero() const noexcept { return m_Count.load(std::memory_order_relaxed) == 0; }

private:
    __attribute__((noinline)) std::uint32_t decrementShared() noexcept { return decrement(); }

    static constexpr std::uint32_t sm_Immortal = 0xFFFFFFFF;

    std::atomic<std::uint32_t> m_Count{0};
};
