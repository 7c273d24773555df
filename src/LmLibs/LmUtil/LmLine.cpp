#include "LmLibs/LmUtil/LmLine.h"

#include "LmLibs/LmUtil/LmStreamCursor.h"

#include <cstddef>

/// The same from m_End on, whatever the line has there.
void LmLine::markRest(const char* end)
{
    const auto nextControlOrColon = [end](const char* from) {
        return lmFindFirst(
            from, end, [](int c) { return c <= '\r' || c == ':'; },
            LM_HITS(_mm_or_si128(lmHitsUpTo(bytes, '\r'), lmHitsOf(bytes, ':'))));
    };
    const char* place = nextControlOrColon(m_End);
    for (; place != end && !lmIsLineEnd(*place); place = nextControlOrColon(place + 1))
    {
        m_Colon = *place == ':' && m_Colon == nullptr ? place : m_Colon;
        m_HasNul |= *place == '\0';
    }
    m_End = place;
}

void LmLine::copy(LmInputStream& in, const char* emptyMessage)
{
    LmByteCursor cursor(in);
    const int next = emptyMessage == nullptr ? 0 : cursor.peek();
    if (next == -1 || lmIsLineEnd(next))
    {
        LmException::sThrow(emptyMessage);
    }
    m_Copy = std::make_unique<std::string>(lmTakeLine(cursor));
    mark(m_Copy->data(), m_Copy->data() + m_Copy->size());
}
