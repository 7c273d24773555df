// The reading operations in an order that the input chooses: both kinds of stream agree on each result, and no buffer
// is written beyond its size.

#include "Fuzz.h"

#include <functional>
#include <memory>

namespace
{

constexpr const char* s_Delimiters[] = {"=", ":", " ", "= \r\n", ";| \r\n", ""};

/// A buffer of `size` bytes in a heap block of its own, so that one byte too many shows.
std::string intoBuffer(unsigned int size, const std::function<bool(char*, unsigned int)>& read)
{
    const std::unique_ptr<char[]> buffer(new char[size]);
    const bool taken = read(buffer.get(), size);
    return (taken ? "+" : "-") + std::string(size == 0 ? "" : buffer.get());
}

std::string perform(unsigned int operation, unsigned int size, LmInputStream& in)
{
    switch (operation)
    {
    case 0:
        return std::to_string(LmStreamTokenizer::sDiscardWhite(in));
    case 1:
        return LmStreamTokenizer::sIsEmptyLine(in) ? "empty" : "not empty";
    case 2:
        return std::string(LmStreamTokenizer::sGetLine(in).view());
    case 3:
        return std::to_string(LmStreamTokenizer::sGetUnsigned(in));
    case 4:
    {
        LmString word;
        in >> word;
        return std::string(word.view());
    }
    case 5:
        return std::to_string(in.read());
    case 6:
        return intoBuffer(
            size, [&in](char* buffer, unsigned int room) { return LmStreamTokenizer::sGetLine(in, buffer, room); });
    default:
        return intoBuffer(size, [&in, operation](char* buffer, unsigned int room) {
            return LmStreamTokenizer::sGetToken(in, s_Delimiters[operation % 6], buffer, room);
        });
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view all = viewOf(data, size);
    const std::size_t steps = std::min<std::size_t>(all.size(), 8);
    const std::string_view program = all.substr(0, steps);
    readBothWays(all.substr(steps), [program](LmInputStream& in) {
        std::string results;
        for (const char step : program)
        {
            const auto code = static_cast<unsigned char>(step);
            results += perform(code % 13, code / 13U * 20U, in) + "\n" + std::to_string(in.available()) + "\n";
        }
        return results;
    });
    return 0;
}
