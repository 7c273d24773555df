#pragma once

#include "LmLibs/LmUtil/LmUtilExport.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

/// Small operations on bytes that strings and parsers share. None of them depends on the locale.

/// White space of the C locale: blank, tab, CR, LF, VT, FF. Takes what a stream's `read` gives, -1 included.
constexpr bool lmIsSpace(int c)
{
    // Nearly every byte of a body is above these, and is told by one comparison.
    return __builtin_expect(c <= ' ', 0) && (c == ' ' || (c >= '\t' && c <= '\r'));
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

/// The first byte in a range that passes a test, or its end. Lines and words are short, so sixteen bytes at a time are
/// looked at in place rather than in a function of the C library, and no byte outside the range is touched: the last
/// blocks overlap. `isHit` tests one byte; `hits` tests sixteen and sets each that passes to 0xFF.
template <typename IsHit, typename Hits>
inline const char* lmFindFirst(const char* text, const char* end, [[maybe_unused]] IsHit isHit,
                               [[maybe_unused]] Hits hits)
{
#ifdef __SSE2__
    const auto maskOf = [&hits](__m128i bytes) { return static_cast<unsigned int>(_mm_movemask_epi8(hits(bytes))); };
    const auto wordAt = [](const char* place) {
        std::int32_t word;
        std::memcpy(&word, place, sizeof word);
        return _mm_cvtsi32_si128(word);
    };
    const auto longAt = [](const char* place) { return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(place)); };
    const auto blockAt = [](const char* place) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(place)); };

    if (end - text >= 16)
    {
        do
        {
            const unsigned int mask = maskOf(blockAt(text));
            if (__builtin_expect(mask != 0, 1))
            {
                return text + __builtin_ctz(mask);
            }
            text += 16;
        } while (end - text >= 16);
        const unsigned int mask = maskOf(blockAt(end - 16));
        return mask != 0 ? end - 16 + __builtin_ctz(mask) : end;
    }
    if (end - text >= 8)
    {
        const unsigned int mask = maskOf(_mm_unpacklo_epi64(longAt(text), longAt(end - 8)));
        const int hit = mask != 0 ? __builtin_ctz(mask) : 16;
        return hit < 8 ? text + hit : end - 16 + hit;
    }
    if (end - text >= 4)
    {
        const unsigned int mask = maskOf(_mm_unpacklo_epi32(wordAt(text), wordAt(end - 4))) & 0xFF;
        const int hit = mask != 0 ? __builtin_ctz(mask) : 8;
        return hit < 4 ? text + hit : end - 8 + hit;
    }
#endif
    while (text != end && !isHit(static_cast<unsigned char>(*text)))
    {
        ++text;
    }
    return text;
}

#ifdef __SSE2__
inline __m128i lmHitsOf(__m128i bytes, char byte)
{
    return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(byte));
}

/// Those not above `highest`.
inline __m128i lmHitsUpTo(__m128i bytes, char highest)
{
    return _mm_cmpeq_epi8(_mm_min_epu8(bytes, _mm_set1_epi8(highest)), bytes);
}
#define LM_HITS(expression) [&](__m128i bytes) { return expression; }
#else
#define LM_HITS(expression) 0
#endif

/// The first CR or LF in a range, or its end. One pass, so that text with one kind of line end only stays linear.
inline const char* lmFindLineEnd(const char* text, const char* end)
{
    return lmFindFirst(text, end, lmIsLineEnd, LM_HITS(_mm_or_si128(lmHitsOf(bytes, '\r'), lmHitsOf(bytes, '\n'))));
}

/// The first white space in a range, or its end.
inline const char* lmFindSpace(const char* text, const char* end)
{
    return lmFindFirst(
        text, end, lmIsSpace,
        LM_HITS(_mm_or_si128(lmHitsOf(bytes, ' '), lmHitsUpTo(_mm_sub_epi8(bytes, _mm_set1_epi8('\t')), '\r' - '\t'))));
}

/// A few bytes to look for; where there are fewer than these, one is repeated.
using LmFewBytes = char[5];

/// The first byte in a range that is one of a few, or its end.
inline const char* lmFindOneOf(const char* text, const char* end, const LmFewBytes& wanted)
{
    const auto isWanted = [&wanted](int c) {
        const char byte = static_cast<char>(c);
        return byte == wanted[0] || byte == wanted[1] || byte == wanted[2] || byte == wanted[3] || byte == wanted[4];
    };
    const auto hits = LM_HITS(_mm_or_si128(
        _mm_or_si128(_mm_or_si128(lmHitsOf(bytes, wanted[0]), lmHitsOf(bytes, wanted[1])), lmHitsOf(bytes, wanted[2])),
        _mm_or_si128(lmHitsOf(bytes, wanted[3]), lmHitsOf(bytes, wanted[4]))));
    return lmFindFirst(text, end, isWanted, hits);
}

/// The place of the first such byte in the text at or behind `start`, or npos.
inline std::size_t lmFindByte(std::string_view text, char byte, std::size_t start = 0)
{
    const char* const end = text.data() + text.size();
    const char* const found = lmFindFirst(
        text.data() + std::min(start, text.size()), end, [byte](int c) { return static_cast<char>(c) == byte; },
        LM_HITS(lmHitsOf(bytes, byte)));
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
    return text.substr(0, lmFindByte(text, '\0'));
}

/// What `atol` gives for the text: white space, a sign and digits at its beginning, the nearest value where it is out
/// of range, 0 where there is no number.
LMUTIL_API long lmAtol(std::string_view text);

/// The number that a text begins with, and of how many digits: none where it begins otherwise, or with more digits
/// than surely fit.
struct LmLeadingNumber
{
    explicit LmLeadingNumber(std::string_view text)
    {
        constexpr std::size_t safeDigits = 9;
        while (digits < text.size() && lmIsDigit(text[digits]))
        {
            if (__builtin_expect(digits == safeDigits, 0))
            {
                digits = 0;
                return;
            }
            value = value * 10 + (text[digits] - '0');
            ++digits;
        }
    }

    int value = 0;
    std::size_t digits = 0;
};

/// What `atoi` gives for the text: the low bits of `lmAtol`.
inline int lmAtoi(std::string_view text)
{
    const LmLeadingNumber number(text);
    return number.digits != 0 || text.empty() ? number.value : static_cast<int>(lmAtol(text));
}
