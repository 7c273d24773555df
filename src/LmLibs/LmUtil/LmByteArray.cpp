#include "LmLibs/LmUtil/LmByteArray.h"

#include <cstring>
#include <limits>
#include <new>

LmByteArray::LmByteArray(std::size_t size, const void* data)
    : m_Bytes(static_cast<unsigned char*>(::operator new(size))), m_Size(static_cast<unsigned int>(size))
{
    if (size != 0)
    {
        std::memcpy(m_Bytes, data, size);
    }
}

LmByteArray::~LmByteArray()
{
    ::operator delete(m_Bytes);
}

LmHandle<LmByteArray> LmByteArray::sCreate(const char* text)
{
    const std::size_t size = text == nullptr ? 0 : std::strlen(text);
    if (size > std::numeric_limits<unsigned int>::max())
    {
        throw std::bad_alloc();
    }
    return new LmByteArray(size, text);
}

LmHandle<LmByteArray> LmByteArray::sCreate(unsigned int size, const void* data)
{
    return new LmByteArray(size, data);
}
