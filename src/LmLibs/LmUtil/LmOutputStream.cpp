#include "LmLibs/LmUtil/LmOutputStream.h"

#include <charconv>

LmOutputStream::~LmOutputStream() = default;

void LmOutputStream::flush() {}

LmOutputStream& LmOutputStream::operator<<(unsigned int number)
{
    char digits[10];
    const std::to_chars_result result = std::to_chars(digits, digits + sizeof digits, number);
    writeAll({digits, static_cast<std::size_t>(result.ptr - digits)});
    return *this;
}

void LmOutputStream::writeBeyondRoom(std::string_view text)
{
    constexpr std::size_t largest = 0x40000000;
    for (; text.size() > largest; text.remove_prefix(largest))
    {
        write(text.data(), static_cast<unsigned int>(largest));
    }
    if (!text.empty())
    {
        write(text.data(), static_cast<unsigned int>(text.size()));
    }
}
