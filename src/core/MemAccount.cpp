#include "core/MemAccount.h"

#include "core/ThreadHeap.h"

#include <mutex>

namespace Quorvex
{
namespace
{

std::mutex s_Making;

std::size_t atLeastZero(std::int64_t figure)
{
    return figure > 0 ? static_cast<std::size_t>(figure) : 0;
}

} // namespace

std::atomic<MemAccount*> MemAccount::sm_First{nullptr};

MemAccount::Usage MemAccount::Figures::usage() const
{
    Usage usage;
    usage.liveObjects = atLeastZero(m_Objects.load(std::memory_order_relaxed));
    usage.liveBytes = atLeastZero(m_Bytes.load(std::memory_order_relaxed));
    usage.totalAllocations = atLeastZero(m_Total.load(std::memory_order_relaxed));
    return usage;
}

MemAccount::MemAccount(const char* account, unsigned int index, MemAccount* next)
    : m_Name(account), m_Index(index), m_Next(next)
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
        made = new MemAccount(account, first == nullptr ? 0 : first->m_Index + 1, first);
        sm_First.store(made, std::memory_order_release);
    }
    return *made;
}

MemAccount::Usage MemAccount::usage(const char* account)
{
    const MemAccount* const found = sFind(account);
    return found == nullptr ? Usage() : ThreadHeap::usage(*found);
}

} // namespace Quorvex
