#include "LmLibs/LmUtil/LmCharacters.h"

#include <limits>

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
