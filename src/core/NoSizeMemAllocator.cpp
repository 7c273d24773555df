#include "core/NoSizeMemAllocator.h"

namespace Quorvex
{

void* NoSizeMemAllocator::allocate(std::size_t size, const char* account)
{
    return MemAccount::get(account).allocate(size);
}

void NoSizeMemAllocator::deallocate(void* block, const char* account) noexcept
{
    if (block != nullptr)
    {
        MemAccount::get(account).deallocate(block);
    }
}

} // namespace Quorvex
