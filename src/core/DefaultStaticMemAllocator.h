#pragma once

#include "core/ThreadHeap.h"

#include <cstddef>

namespace Quorvex
{

/// Memory on an account, given back together with its size in bytes.
class HARNWICK_CORE_API DefaultStaticMemAllocator
{
public:
    ///@{
    /// Takes `size` bytes from, and gives them back to, the account of that name. @throws std::bad_alloc
    static void* allocate(std::size_t size, const char* account);
    static void deallocate(void* block, std::size_t size, const char* account) noexcept;
    ///@}

    ///@{
    /// The same for a caller that has looked its account up before.
    static void* allocate(std::size_t size, MemAccount& account) { return account.allocate(size); }
    static void deallocate(void* block, std::size_t, MemAccount& account) noexcept { account.deallocate(block); }
    ///@}
};

} // namespace Quorvex
