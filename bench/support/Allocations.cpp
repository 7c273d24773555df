#include "support/Allocations.h"

#include <malloc.h>

#include <cerrno>

extern "C"
{
    void* __libc_malloc(std::size_t size);
    void* __libc_calloc(std::size_t count, std::size_t size);
    void* __libc_realloc(void* block, std::size_t size);
    void* __libc_memalign(std::size_t alignment, std::size_t size);
    void __libc_free(void* block);
}

namespace
{

__thread std::uint64_t t_Calls = 0;
__thread std::uint64_t t_Bytes = 0;

void count(std::size_t bytes)
{
    ++t_Calls;
    t_Bytes += bytes;
}

} // namespace

// These stand in front of the C library's own, in the whole program.
extern "C"
{
    void* malloc(std::size_t size)
    {
        count(size);
        return __libc_malloc(size);
    }

    void* calloc(std::size_t count, std::size_t size)
    {
        ::count(count * size);
        return __libc_calloc(count, size);
    }

    void* realloc(void* block, std::size_t size)
    {
        count(size);
        return __libc_realloc(block, size);
    }

    void* aligned_alloc(std::size_t alignment, std::size_t size)
    {
        count(size);
        return __libc_memalign(alignment, size);
    }

    int posix_memalign(void** block, std::size_t alignment, std::size_t size)
    {
        *block = aligned_alloc(alignment, size);
        return *block == nullptr ? ENOMEM : 0;
    }

    void free(void* block)
    {
        __libc_free(block);
    }
}

Allocations Allocations::soFar()
{
    return {t_Calls, t_Bytes};
}

std::size_t bytesInUse()
{
    const struct mallinfo2 info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
}
