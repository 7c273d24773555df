#pragma once

#include "LmLibs/LmUtil/LmHandle.h"
#include "sdp/frame/LmSdpField.h"

#include <cstdint>
#include <new>
#include <utility>

/// The slots of a description, each with the chain of the lines of one letter.
///
/// Most stay empty. So a slot holds a handle only from when it is taken, and nobody walks over those that are not.
class LmSdpSlots
{
public:
    /// One slot for each letter.
    static constexpr unsigned int sm_Count = 15;

    /// The lines of one letter.
    struct Chain
    {
        LmHandle<LmSdpField> hFirst; ///< leads to the others

        /// Where the search for the last line begins: one that was the last when it was looked for.
        LmSdpField* pLast;
    };

    // NOLINTNEXTLINE(modernize-use-equals-default): the union must not be made
    LmSdpSlots() noexcept {}
    LmSdpSlots(const LmSdpSlots&) = delete;
    LmSdpSlots& operator=(const LmSdpSlots&) = delete;
    ~LmSdpSlots()
    {
        for (std::uint32_t left = m_Taken; left != 0; left &= left - 1)
        {
            m_Chains[lowestOf(left)].~Chain();
        }
    }

    ///@{
    /// The chain of a slot, and its first line; null where the slot is empty.
    Chain* chain(unsigned int slot) { return isTaken(slot) ? &m_Chains[slot] : nullptr; }
    LmSdpField* first(unsigned int slot) const { return isTaken(slot) ? m_Chains[slot].hFirst.untested() : nullptr; }
    ///@}

    /// Begins the chain of an empty slot.
    void take(unsigned int slot, LmHandle<LmSdpField>&& hFirst) noexcept
    {
        LmSdpField* const pFirst = hFirst.untested();
        new (&m_Chains[slot]) Chain{std::move(hFirst), pFirst};
        m_Taken |= bitOf(slot);
    }

    /// Calls `operation` with the first line of each slot from `begin` up to, but not including, `end`, in the order of
    /// the slots.
    template <typename Operation>
    void forEach(unsigned int begin, unsigned int end, Operation operation) const
    {
        const std::uint32_t wanted = (bitOf(end) - 1) & ~(bitOf(begin) - 1);
        for (std::uint32_t left = m_Taken & wanted; left != 0; left &= left - 1)
        {
            operation(*m_Chains[lowestOf(left)].hFirst.untested());
        }
    }

private:
    bool isTaken(unsigned int slot) const { return (m_Taken & bitOf(slot)) != 0; }

    static constexpr std::uint32_t bitOf(unsigned int slot) { return std::uint32_t(1) << slot; }
    static unsigned int lowestOf(std::uint32_t slots) { return static_cast<unsigned int>(__builtin_ctz(slots)); }

    union
    {
        Chain m_Chains[sm_Count];
    };
    std::uint32_t m_Taken = 0;
};
