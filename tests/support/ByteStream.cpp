#include "support/ByteStream.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

ByteStream::ByteStream(const LmHandle<LmByteArray>& hBytes) : m_Bytes(hBytes) {}

unsigned int ByteStream::read(void* buffer, unsigned int offset, unsigned int length)
{
    const unsigned char* const next = m_Bytes->getBytes() + m_Next;
    const unsigned int count = skip(length);
    std::memcpy(static_cast<char*>(buffer) + offset, next, count);
    return count;
}

int ByteStream::read()
{
    return available() == 0 ? -1 : m_Bytes->getBytes()[m_Next++];
}

unsigned int ByteStream::skip(unsigned int count)
{
    const unsigned int passed = std::min(count, available());
    m_Next += passed;
    return passed;
}

unsigned int ByteStream::available()
{
    return m_Bytes->getSize() - m_Next;
}

bool ByteStream::markSupported()
{
    return true;
}

void ByteStream::mark(unsigned int readLimit)
{
    m_Mark = m_Next;
    m_Limit = readLimit;
}

void ByteStream::reset()
{
    if (m_Next - m_Mark > m_Limit)
    {
        throw std::logic_error("more was read than mark() announced");
    }
    m_Next = m_Mark;
}
