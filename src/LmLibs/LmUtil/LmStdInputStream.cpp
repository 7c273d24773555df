#include "LmLibs/LmUtil/LmStdInputStream.h"

#include <algorithm>
#include <limits>

LmStdInputStream::LmStdInputStream(std::istream& in) : m_In(in) {}

LmStdInputStream::~LmStdInputStream() = default;

unsigned int LmStdInputStream::read(void* buffer, unsigned int offset, unsigned int length)
{
    auto* const out = static_cast<unsigned char*>(buffer) + offset;
    unsigned int count = 0;
    for (int next = 0; count < length && (next = read()) != -1; ++count)
    {
        out[count] = static_cast<unsigned char>(next);
    }
    return count;
}

int LmStdInputStream::read()
{
    if (!isKept())
    {
        const int next = m_In.rdbuf()->sbumpc();
        if (next == std::istream::traits_type::eof())
        {
            return -1;
        }
        m_Kept.push_back(static_cast<char>(next));
    }
    return static_cast<unsigned char>(m_Kept[m_Next++]);
}

unsigned int LmStdInputStream::skip(unsigned int count)
{
    unsigned int passed = 0;
    while (passed < count && read() != -1)
    {
        ++passed;
    }
    return passed;
}

unsigned int LmStdInputStream::available()
{
    const bool atEnd = m_In.rdbuf()->sgetc() == std::istream::traits_type::eof();
    const std::streamsize waiting = atEnd ? 0 : std::max<std::streamsize>(m_In.rdbuf()->in_avail(), 1);
    const std::size_t all = m_Kept.size() - m_Next + static_cast<std::size_t>(waiting);
    return static_cast<unsigned int>(std::min<std::size_t>(all, std::numeric_limits<unsigned int>::max()));
}

bool LmStdInputStream::markSupported()
{
    return true;
}

void LmStdInputStream::mark(unsigned int)
{
    // Cut only when that drops more than it keeps, so that marking each byte stays linear.
    if (m_Next > m_Kept.size() / 2)
    {
        m_Kept.erase(0, m_Next);
        m_Next = 0;
    }
    m_Mark = m_Next;
}

void LmStdInputStream::reset()
{
    m_Next = m_Mark;
}
