#include "LmLibs/LmUtil/LmLine.h"

#include "LmLibs/LmUtil/LmStreamCursor.h"

#include <cstddef>

void LmLine::mark(const char* begin, const char* end)
{
    const char* place = begin;
    const char* colon = nullptr;
    unsigned int controls = 0;
#ifdef __SSE2__
    // Line ends show among the control characters, of which a line has hardly any others: up to the first of those,
    // sixteen bytes are looked at together.
    constexpr std::ptrdiff_t blockSize = 16;
    const auto maskOf = [](__m128i hits) { return static_cast<unsigned int>(_mm_movemask_epi8(hits)); };
    for (; controls == 0 && end - place >= blockSize; place += controls == 0 ? blockSize : __builtin_ctz(controls))
    {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(place));
        controls = maskOf(lmHitsUpTo(bytes, '\r'));
        if (__builtin_expect(colon == nullptr, 1))
        {
            const unsigned int colons = maskOf(lmHitsOf(bytes, ':')) & ~controls & (controls - 1);
            colon = colons != 0 ? place + __builtin_ctz(colons) : nullptr;
        }
    }
#endif
    m_Begin = begin;
    m_End = place;
    m_Colon = colon;
    m_HasNul = false;
    if (__builtin_expect(controls == 0 || !lmIsLineEnd(*place), 0))
    {
        markRest(end);
    }
}

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
