#include "core/MemAccount.h"

#include "core/ThreadHeap.h"

#include <mutex>

namespace Quorvex
{
namespace
{

std::mutex s_Making;

} // namespace

std::atomic<MemAccount*> MemAccount::sm_First{nullptr};

void MemAccount::Figures::addTo(Figures& sum) const
{
    add(sum.m_Taken, m_Taken.load(std::memory_order_relaxed));
    add(sum.m_BytesTaken, m_BytesTaken.load(std::memory_order_relaxed));
    add(sum.m_GivenBack, m_GivenBack.load(std::memory_order_relaxed));
    add(sum.m_BytesGivenBack, m_BytesGivenBack.load(std::memory_order_relaxed));
}

MemAccount::Usage MemAccount::Figures::usage() const
{
    Usage usage;
    usage.totalAllocations = m_Taken.load(std::memory_order_relaxed);
    usage.liveObjects = usage.totalAllocations - m_GivenBack.load(std::memory_order_relaxed);
    usage.liveBytes = m_BytesTaken.load(std::memory_order_relaxed) - m_BytesGivenBack.load(std::memory_order_relaxed);
    return usage;
}

MemAccount::MemAccount(const char* account, std::size_t offset, MemAccount* next)
    : m_Name(account), m_Offset(offset), m_Next(next)
{
}

MemAccount* MemAccount::sFind(const char* account)
{
    MemAccount* found = sm_First.load(std::memory_order_acquire);
    while (found != nullptr && found->m_Name != account)
    {
        found = found->m_Next;
    }
    return found;
}

MemAccount& MemAccount::get(const char* account)
{
    if (MemAccount* const found = sFind(account))
    {
        return *found;
    }
    const std::lock_guard<std::mutex> lock(s_Making);
    MemAccount* made = sFind(account);
    if (made == nullptr)
    {
        MemAccount* const first = sm_First.load(std::memory_order_relaxed);
        made = new MemAccount(account, first == nullptr ? 0 : first->m_Offset + sizeof(Figures), first);
        sm_First.store(made, std::memory_order_release);
    }
    return *made;
}

MemAccount::Usage MemAccount::usage(const char* account)
{
    const MemAccount* const found = sFind(account);
    return found == nullptr ? Usage() : ThreadHeap::usage(*found);
}

MemAccount& MemAccountByName::find()
{
    MemAccount& account = MemAccount::get(m_Name);
    m_pAccount.store(&account, std::memory_order_release);
    return account;
}

} // namespace Quorvex
