#include "LmLibs/LmUtil/LmCharacters.h"

#include <limits>

namespace
{

/// Numbers of fewer digits are never out of range.
constexpr std::size_t s_SafeDigits = std::numeric_limits<long>::digits10;

} // namespace

long lmAtol(std::string_view text)
{
    constexpr long lowest = std::numeric_limits<long>::min();
    while (!text.empty() && lmIsSpace(text.front()))
    {
        text.remove_prefix(1);
    }
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && (negative || text.front() == '+'))
    {
        text.remove_prefix(1);
    }
    long small = 0;
    std::size_t digits = 0;
    while (digits < text.size() && digits < s_SafeDigits && lmIsDigit(text[digits]))
    {
        small = small * 10 + (text[digits] - '0');
        ++digits;
    }
    if (digits < s_SafeDigits)
    {
        return negative ? -small : small;
    }
    // Counted downwards, where there is room for one number more.
    long number = 0;
    for (; !text.empty() && lmIsDigit(text.front()); text.remove_prefix(1))
    {
        const long digit = text.front() - '0';
        number = number < (lowest + digit) / 10 ? lowest : number * 10 - digit;
    }
    if (negative)
    {
        return number;
    }
    return number == lowest ? std::numeric_limits<long>::max() : -number;
}
