#include "LmLibs/LmUtil/LmByteArray.h"

#include <cstring>
#include <limits>
#include <new>

LmByteArray::LmByteArray(std::size_t size, const void* data) noexcept : m_Size(static_cast<unsigned int>(size))
{
    if (size != 0)
    {
        std::memcpy(static_cast<void*>(this + 1), data, size);
    }
}

LmByteArray::~LmByteArray() = default;

void* LmByteArray::operator new(std::size_t objectSize, std::size_t size)
{
    return ::operator new(objectSize + size);
}

void LmByteArray::operator delete(void* block, std::size_t) noexcept
{
    ::operator delete(block);
}

void LmByteArray::operator delete(void* block) noexcept
{
    ::operator delete(block);
}

LmHandle<LmByteArray> LmByteArray::sCreate(const char* text)
{
    const std::size_t size = text == nullptr ? 0 : std::strlen(text);
    if (size > std::numeric_limits<unsigned int>::max())
    {
        throw std::bad_alloc();
    }
    return new (std::size_t(size)) LmByteArray(size, text);
}

LmHandle<LmByteArray> LmByteArray::sCreate(unsigned int size, const void* data)
{
    return new (std::size_t(size)) LmByteArray(size, data);
}
