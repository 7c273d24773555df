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
    const char* digit = text.data();
    const char* const end = digit + text.size();
    long small = 0;
    for (; digit != end && lmIsDigit(*digit); ++digit)
    {
        small = static_cast<long>(static_cast<unsigned long>(small) * 10 + static_cast<unsigned long>(*digit - '0'));
    }
    if (static_cast<std::size_t>(digit - text.data()) < s_SafeDigits)
    {
        return negative ? -small : small;
    }
    // Counted downwards, where there is room for one number more.
    long number = 0;
    for (; !text.empty() && lmIsDigit(text.front()); text.remove_prefix(1))
    {
        const long value = text.front() - '0';
        number = number < (lowest + value) / 10 ? lowest : number * 10 - value;
    }
    if (negative)
    {
        return number;
    }
    return number == lowest ? std::numeric_limits<long>::max() : -number;
}
