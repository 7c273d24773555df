#include "LmLibs/LmUtil/LmLine.h"

#include "LmLibs/LmUtil/LmStreamCursor.h"

void LmLine::mark(const char* begin, const char* end)
{
    // A NUL and the line ends show as control characters, of which a line has hardly any others.
    const auto nextControl = [end](const char* from) {
        return lmFindFirst(
            from, end, [](int c) { return c <= '\r'; }, LM_HITS(lmHitsUpTo(bytes, '\r')));
    };
    const auto nextControlOrColon = [end](const char* from) {
        return lmFindFirst(
            from, end, [](int c) { return c <= '\r' || c == ':'; },
            LM_HITS(_mm_or_si128(lmHitsUpTo(bytes, '\r'), lmHitsOf(bytes, ':'))));
    };
    const char* colon = nullptr;
    bool hasNul = false;
    const char* place = nextControlOrColon(begin);
    while (place != end && !lmIsLineEnd(*place))
    {
        if (*place == ':')
        {
            colon = place;
        }
        hasNul |= *place == '\0';
        place = colon == nullptr ? nextControlOrColon(place + 1) : nextControl(place + 1);
    }
    m_Begin = begin;
    m_End = place;
    m_Colon = colon;
    m_HasNul = hasNul;
}

void LmLine::copy(LmInputStream& in)
{
    LmByteCursor cursor(in);
    m_Copy = std::make_unique<std::string>(lmTakeLine(cursor));
    mark(m_Copy->data(), m_Copy->data() + m_Copy->size());
}
