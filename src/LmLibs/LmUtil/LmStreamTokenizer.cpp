#include "LmLibs/LmUtil/LmStreamTokenizer.h"

#include "LmLibs/LmUtil/LmLine.h"

#include <algorithm>
#include <cstring>

namespace
{

/// The bytes that end a token. Nearly always they are few enough to be looked for in many bytes at once.
class Delimiters
{
public:
    explicit Delimiters(std::string_view bytes) : m_Bytes(bytes)
    {
        for (std::size_t i = 0; i < sizeof m_Few && !bytes.empty(); ++i)
        {
            m_Few[i] = bytes[std::min(i, bytes.size() - 1)];
        }
    }

    template <typename Cursor>
    std::string_view takeInFront(Cursor& cursor) const
    {
        if (!m_Bytes.empty() && m_Bytes.size() <= sizeof m_Few)
        {
            return cursor.takeUntilOneOf(m_Few);
        }
        return cursor.takeUntil([this](int c) { return m_Bytes.find(static_cast<char>(c)) != std::string_view::npos; });
    }

private:
    const std::string_view m_Bytes;
    LmFewBytes m_Few = {};
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
    const Delimiters stops(delimiters);
    return lmWithCursor(in, [&stops, buffer, size](auto& cursor) {
        cursor.skipWhile(lmIsSpace);
        const bool atEnd = cursor.peek() == -1;
        return store(stops.takeInFront(cursor), buffer, size) && !atEnd;
    });
}

unsigned int LmStreamTokenizer::sGetUnsigned(LmInputStream& in)
{
    return lmWithCursor(in, [](auto& cursor) { return lmTakeUnsigned(cursor); });
}
