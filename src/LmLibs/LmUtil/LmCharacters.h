#pragma once

#include "LmLibs/LmUtil/LmUtilExport.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

/// Small operations on bytes that strings and parsers share. None of them depends on the locale.

/// White space of the C locale: blank, tab, CR, LF, VT, FF. Takes what a stream's `read` gives, -1 included.
constexpr bool lmIsSpace(int c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// A decimal digit. A byte of 0x80 or above is none, whether `char` has a sign or not.
constexpr bool lmIsDigit(int c)
{
    return c >= '0' && c <= '9';
}

constexpr bool lmIsLineEnd(int c)
{
    return c == '\r' || c == '\n';
}

/// All of a C string; nothing for a null pointer.
constexpr std::string_view lmViewOf(const char* text)
{
    return text == nullptr ? std::string_view() : std::string_view(text);
}

/// The first of two bytes in a range, or its end. Lines and words are short, so the sixteen bytes at a time are looked
/// at in place rather than in a function of the C library.
inline const char* lmFindEither(const char* text, const char* end, char one, char other)
{
#ifdef __SSE2__
    const __m128i ones = _mm_set1_epi8(one);
    const __m128i others = _mm_set1_epi8(other);
    for (; end - text >= 16; text += 16)
    {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
        const __m128i hits = _mm_or_si128(_mm_cmpeq_epi8(bytes, ones), _mm_cmpeq_epi8(bytes, others));
        const auto mask = static_cast<unsigned int>(_mm_movemask_epi8(hits));
        if (mask != 0)
        {
            return text + __builtin_ctz(mask);
        }
    }
#endif
    while (text != end && *text != one && *text != other)
    {
        ++text;
    }
    return text;
}

/// The first CR or LF in a range, or its end. One pass, so that text with one kind of line end only stays linear.
inline const char* lmFindLineEnd(const char* text, const char* end)
{
    return lmFindEither(text, end, '\r', '\n');
}

/// The first white space in a range, or its end.
inline const char* lmFindSpace(const char* text, const char* end)
{
#ifdef __SSE2__
    const __m128i blanks = _mm_set1_epi8(' ');
    for (; end - text >= 16; text += 16)
    {
        // Control characters that are no white space show here as well, so each hit is looked at once more.
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
        const __m128i hits = _mm_cmpeq_epi8(_mm_min_epu8(bytes, blanks), bytes);
        for (auto mask = static_cast<unsigned int>(_mm_movemask_epi8(hits)); mask != 0; mask &= mask - 1)
        {
            const char* const hit = text + __builtin_ctz(mask);
            if (lmIsSpace(*hit))
            {
                return hit;
            }
        }
    }
#endif
    while (text != end && !lmIsSpace(*text))
    {
        ++text;
    }
    return text;
}

/// The place of the first such byte in the text, or npos.
inline std::size_t lmFindByte(std::string_view text, char byte)
{
    const char* const end = text.data() + text.size();
    const char* const found = lmFindEither(text.data(), end, byte, byte);
    return found == end ? std::string_view::npos : static_cast<std::size_t>(found - text.data());
}

/// The text without white space at both ends.
inline std::string_view lmTrimmed(std::string_view text)
{
    while (!text.empty() && lmIsSpace(text.front()))
    {
        text.remove_prefix(1);
    }
    while (!text.empty() && lmIsSpace(text.back()))
    {
        text.remove_suffix(1);
    }
    return text;
}

/// The first place of `needle` at or behind `start`, or -1. An empty needle is nowhere.
inline int lmIndexOf(std::string_view text, std::string_view needle, int start)
{
    const std::size_t from = start > 0 ? static_cast<std::size_t>(start) : 0;
    const std::size_t place = needle.empty() ? std::string_view::npos : text.find(needle, from);
    return place == std::string_view::npos ? -1 : static_cast<int>(place);
}

/// `length` bytes from `start`, cut at the end of the text. A length of 0 means up to the end.
inline std::string_view lmSubstr(std::string_view text, std::size_t start, std::size_t length)
{
    if (start >= text.size())
    {
        return {};
    }
    return text.substr(start, length == 0 ? std::string_view::npos : length);
}

/// What a C string sees of the text: the bytes in front of the first NUL.
inline std::string_view lmUpToNul(std::string_view text)
{
    return text.substr(0, text.find('\0'));
}

/// What `atol` gives for the text: white space, a sign and digits at its beginning, the nearest value where it is out
/// of range, 0 where there is no number.
LMUTIL_API long lmAtol(std::string_view text);

/// What `atoi` gives for the text: the low bits of `lmAtol`.
inline int lmAtoi(std::string_view text)
{
    return static_cast<int>(lmAtol(text));
}
