#pragma once

#include "LmLibs/LmUtil/LmCharacters.h"
#include "LmLibs/LmUtil/LmException.h"
#include "LmLibs/LmUtil/LmInputStream.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

/// The rest of a line, taken from a stream together with its line end, to be cut up without a copy.
///
/// It lies in the stream's window where there is one, so the stream must not be changed while the line is looked at.
class LmLine
{
public:
    explicit LmLine(LmInputStream& in) : LmLine(in, nullptr) {}

    /// The same for a line of which something must be left.
    /// @throws LmException with that message otherwise; nothing has been consumed then
    LmLine(LmInputStream& in, const char* emptyMessage)
    {
        if (__builtin_expect(!in.hasWindow(), 0))
        {
            copy(in, emptyMessage);
            return;
        }
        mark(in.windowBegin(), in.windowEnd());
        if (emptyMessage != nullptr && __builtin_expect(m_End == m_Begin, 0))
        {
            LmException::sThrow(emptyMessage);
        }
        in.consumeTo(behindLineEnd(in.windowEnd()));
    }

    ~LmLine()
    {
        if (__builtin_expect(m_Copy != nullptr, 0))
        {
            m_Copy.reset();
        }
    }

    LmLine(const LmLine&) = delete;
    LmLine& operator=(const LmLine&) = delete;

    std::string_view view() const { return viewFrom(m_Begin); }

    /// Whether the line has a colon, and what stands on either side of the first. What is behind it ends at a NUL
    /// byte, where a C string would end.
    bool hasColon() const { return m_Colon != nullptr; }
    std::string_view inFrontOfColon() const
    {
        return {m_Begin, static_cast<std::size_t>((hasColon() ? m_Colon : m_End) - m_Begin)};
    }
    std::string_view behindColon() const
    {
        const std::string_view rest = viewFrom(hasColon() ? m_Colon + 1 : m_End);
        return __builtin_expect(m_HasNul, 0) ? lmUpToNul(rest) : rest;
    }

private:
    std::string_view viewFrom(const char* begin) const { return {begin, static_cast<std::size_t>(m_End - begin)}; }

    const char* behindLineEnd(const char* end) const
    {
        if (__builtin_expect(m_End == end, 0))
        {
            return end;
        }
        const char* const next = m_End + 1;
        if (__builtin_expect(next == end, 0) || __builtin_expect(*m_End != '\r', 0))
        {
            return next;
        }
        return next + (*next == '\n' ? 1 : 0);
    }

    /// Finds in one pass over the range what there is to know of its first line.
    void mark(const char* begin, const char* end);
    [[gnu::cold]] LMUTIL_API void markRest(const char* end);
    [[gnu::cold]] LMUTIL_API void copy(LmInputStream& in, const char* emptyMessage);

    std::unique_ptr<const std::string> m_Copy;
    const char* m_Begin;
    const char* m_End;
    const char* m_Colon;
    bool m_HasNul;
};

inline void LmLine::mark(const char* begin, const char* end)
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
