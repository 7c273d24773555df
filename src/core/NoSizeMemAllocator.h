#pragma once

#include "core/ThreadHeap.h"

#include <cstddef>

namespace Quorvex
{

/// Memory on an account, given back without its size.
class HARNWICK_CORE_API NoSizeMemAllocator
{
public:
    ///@{
    /// Takes `size` bytes from, and gives them back to, the account of that name. @throws std::bad_alloc
    static void* allocate(std::size_t size, const char* account);
    static void deallocate(void* block, const char* account) noexcept;
    ///@}

    ///@{
    /// The same for a caller that has looked its account up before. `ofPointers` is as MemAccount takes it.
    static void* allocate(std::size_t size, MemAccount& account, std::size_t ofPointers = 0)
    {
        return account.allocate(size, ofPointers);
    }
    static void deallocate(void* block, MemAccount& account, std::size_t ofPointers = 0) noexcept
    {
        account.deallocate(block, ofPointers);
    }
    ///@}
};

} // namespace Quorvex
