#include "LmLibs/LmUtil/LmByteArrayInputStream.h"

#include <algorithm>
#include <cstring>

LmByteArrayInputStream::LmByteArrayInputStream(const LmByteArray* pArray, unsigned int offset, unsigned int length)
    : m_Array(const_cast<LmByteArray*>(pArray))
{
    const char* const bytes = pArray == nullptr ? "" : reinterpret_cast<const char*>(pArray->getBytes());
    const unsigned int size = pArray == nullptr ? 0 : pArray->getSize();
    const unsigned int begin = std::min(offset, size);
    const unsigned int rest = size - begin;
    setWindow(bytes + begin, bytes + begin + (length == 0 ? rest : std::min(length, rest)));
    m_Mark = windowBegin();
}

LmByteArrayInputStream::~LmByteArrayInputStream() = default;

unsigned int LmByteArrayInputStream::read(void* buffer, unsigned int offset, unsigned int length)
{
    const char* const begin = windowBegin();
    const unsigned int count = skip(length);
    std::memcpy(static_cast<char*>(buffer) + offset, begin, count);
    return count;
}

int LmByteArrayInputStream::read()
{
    if (windowBegin() == windowEnd())
    {
        return -1;
    }
    const int next = static_cast<unsigned char>(*windowBegin());
    consumeTo(windowBegin() + 1);
    return next;
}

unsigned int LmByteArrayInputStream::skip(unsigned int count)
{
    const unsigned int passed = std::min(count, available());
    consumeTo(windowBegin() + passed);
    return passed;
}

unsigned int LmByteArrayInputStream::available()
{
    return static_cast<unsigned int>(windowEnd() - windowBegin());
}

bool LmByteArrayInputStream::markSupported()
{
    return true;
}

void LmByteArrayInputStream::mark(unsigned int)
{
    m_Mark = windowBegin();
}

void LmByteArrayInputStream::reset()
{
    consumeTo(m_Mark);
}
