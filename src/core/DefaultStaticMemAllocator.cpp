#include "core/DefaultStaticMemAllocator.h"

namespace Quorvex
{

void* DefaultStaticMemAllocator::allocate(std::size_t size, const char* account)
{
    return MemAccount::get(account).allocate(size);
}

void DefaultStaticMemAllocator::deallocate(void* block, std::size_t, const char* account) noexcept
{
    if (block != nullptr)
    {
        MemAccount::get(account).deallocate(block);
    }
}

} // namespace Quorvex
