#include "LmLibs/LmUtil/LmStreamTokenizer.h"

#include "LmLibs/LmUtil/LmLine.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace
{

constexpr std::uint64_t s_NoNumber = 0xFFFFFFFF;

/// A set of bytes, asked for each byte of a token.
class ByteSet
{
public:
    explicit ByteSet(const char* bytes)
    {
        for (; *bytes != '\0'; ++bytes)
        {
            const auto byte = static_cast<unsigned char>(*bytes);
            m_Bits[byte / 64] |= std::uint64_t(1) << (byte % 64);
        }
    }

    bool has(int byte) const { return (m_Bits[byte / 64] >> (byte % 64) & 1) != 0; }

private:
    std::uint64_t m_Bits[4] = {};
};

/// Copies the text with a NUL behind it; where it does not fit, `buffer` gets the empty text.
bool store(std::string_view text, char* buffer, unsigned int size)
{
    const bool fits = text.size() < size;
    if (fits)
    {
        std::memcpy(buffer, text.data(), text.size());
    }
    if (size != 0)
    {
        buffer[fits ? text.size() : 0] = '\0';
    }
    return fits;
}

} // namespace

LmString LmStreamTokenizer::sGetLine(LmInputStream& in)
{
    return LmString(LmLine(in).view());
}

bool LmStreamTokenizer::sGetLine(LmInputStream& in, char* buffer, unsigned int size)
{
    return lmWithCursor(in, [buffer, size](auto& cursor) {
        const bool atEnd = cursor.peek() == -1;
        return store(lmTakeLine(cursor), buffer, size) && !atEnd;
    });
}

bool LmStreamTokenizer::sGetToken(LmInputStream& in, const char* delimiters, char* buffer, unsigned int size)
{
    const ByteSet stops(delimiters);
    return lmWithCursor(in, [&stops, buffer, size](auto& cursor) {
        cursor.skipWhile(lmIsSpace);
        const bool atEnd = cursor.peek() == -1;
        const auto isStop = [&stops](int c) { return stops.has(c); };
        return store(cursor.takeUntil(isStop), buffer, size) && !atEnd;
    });
}

unsigned int LmStreamTokenizer::sGetUnsigned(LmInputStream& in)
{
    return lmWithCursor(in, [](auto& cursor) {
        std::uint64_t number = lmIsDigit(cursor.peek()) ? 0 : s_NoNumber;
        cursor.skipWhile([&number](int c) {
            if (lmIsDigit(c))
            {
                number = std::min(number * 10 + static_cast<std::uint64_t>(c - '0'), s_NoNumber);
            }
            return lmIsDigit(c);
        });
        return static_cast<unsigned int>(number);
    });
}
