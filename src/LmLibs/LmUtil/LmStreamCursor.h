#pragma once

#include "LmLibs/LmUtil/LmCharacters.h"
#include "LmLibs/LmUtil/LmInputStream.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Two ways of walking over input with the same operations, so that each reading operation is written once: over text
/// in memory, such as the window of a stream that has one, and through the virtual operations of any other stream.

/// Walks over text in memory; nothing is copied.
class LmTextCursor
{
public:
    explicit LmTextCursor(std::string_view text) : LmTextCursor(text.data(), text.data() + text.size()) {}
    LmTextCursor(const char* begin, const char* end) : m_Next(begin), m_End(end) {}
    LmTextCursor(const LmTextCursor&) = delete;
    LmTextCursor& operator=(const LmTextCursor&) = delete;

    bool isAtEnd() const { return m_Next == m_End; }

    /// The next byte, unread, or -1 at the end of input.
    int peek() const { return isAtEnd() ? -1 : static_cast<unsigned char>(*m_Next); }
    void advance() { ++m_Next; }

    template <typename Predicate>
    void skipWhile(Predicate isWanted)
    {
        while (m_Next != m_End && isWanted(static_cast<unsigned char>(*m_Next)))
        {
            ++m_Next;
        }
    }

    /// Takes two bytes where they come next.
    bool takePair(char first, char second)
    {
        const bool isPair = m_End - m_Next >= 2 && m_Next[0] == first && m_Next[1] == second;
        m_Next += isPair ? 2 : 0;
        return isPair;
    }

    /// The bytes in front of the first that is a stop, valid until the next `takeUntil` or until the text goes.
    template <typename Predicate>
    std::string_view takeUntil(Predicate isStop)
    {
        const char* const begin = m_Next;
        skipWhile([&isStop](int c) { return !isStop(c); });
        return {begin, static_cast<std::size_t>(m_Next - begin)};
    }

    std::string_view takeUntilLineEnd() { return takeTo(lmFindLineEnd(m_Next, m_End)); }
    std::string_view takeUntilSpace() { return takeTo(lmFindSpace(m_Next, m_End)); }
    std::string_view takeUntilOneOf(const LmFewBytes& stops) { return takeTo(lmFindOneOf(m_Next, m_End, stops)); }

protected:
    const char* position() const { return m_Next; }

private:
    std::string_view takeTo(const char* position)
    {
        const char* const begin = m_Next;
        m_Next = position;
        return {begin, static_cast<std::size_t>(position - begin)};
    }

    const char* m_Next;
    const char* const m_End;
};

/// Walks over a stream's window. The stream follows when the cursor goes.
class LmWindowCursor : public LmTextCursor
{
public:
    explicit LmWindowCursor(LmInputStream& in) : LmTextCursor(in.windowBegin(), in.windowEnd()), m_In(in) {}
    ~LmWindowCursor() { m_In.consumeTo(position()); }

private:
    LmInputStream& m_In;
};

/// Walks over a stream byte by byte.
class LmByteCursor
{
public:
    /// `readLimit` is what the stream's `mark` is given, at least as much as is read in front of a `reset`.
    explicit LmByteCursor(LmInputStream& in, unsigned int readLimit = 1) : m_In(in), m_ReadLimit(readLimit) {}
    LmByteCursor(const LmByteCursor&) = delete;
    LmByteCursor& operator=(const LmByteCursor&) = delete;

    /// What the stream itself says, no byte being read for it.
    bool isAtEnd() { return m_In.available() == 0; }

    int peek()
    {
        m_In.mark(m_ReadLimit);
        const int next = m_In.read();
        m_In.reset();
        return next;
    }
    void advance() { m_In.read(); }

    bool takePair(char first, char second)
    {
        m_In.mark(std::max(m_ReadLimit, 2U));
        if (m_In.read() == static_cast<unsigned char>(first) && m_In.read() == static_cast<unsigned char>(second))
        {
            return true;
        }
        m_In.reset();
        return false;
    }

    template <typename Predicate>
    void skipWhile(Predicate isWanted)
    {
        for (int next = peek(); next != -1 && isWanted(next); next = peek())
        {
            advance();
        }
    }

    /// The bytes in front of the first that is a stop, valid until the next `takeUntil` or until the cursor goes.
    template <typename Predicate>
    std::string_view takeUntil(Predicate isStop)
    {
        m_Taken.clear();
        skipWhile([this, &isStop](int c) {
            const bool wanted = !isStop(c);
            if (wanted)
            {
                m_Taken.push_back(static_cast<char>(c));
            }
            return wanted;
        });
        return m_Taken;
    }

    std::string_view takeUntilLineEnd()
    {
        return takeUntil([](int c) { return lmIsLineEnd(c); });
    }
    std::string_view takeUntilSpace()
    {
        return takeUntil([](int c) { return lmIsSpace(c); });
    }
    std::string_view takeUntilOneOf(const LmFewBytes& stops)
    {
        return takeUntil([&stops](int c) {
            const char byte = static_cast<char>(c);
            return lmFindOneOf(&byte, &byte + 1, stops) == &byte;
        });
    }

private:
    LmInputStream& m_In;
    const unsigned int m_ReadLimit;
    std::string m_Taken;
};

/// The way of streams without a window, kept out of the way of the other.
template <typename Operation>
__attribute__((noinline, cold)) auto lmWithByteCursor(LmInputStream& in, Operation& operation, unsigned int readLimit)
{
    LmByteCursor cursor(in, readLimit);
    return operation(cursor);
}

/// Calls `operation` with the cursor that fits the stream. `readLimit` is for one without a window.
template <typename Operation>
inline auto lmWithCursor(LmInputStream& in, Operation operation, unsigned int readLimit = 1)
{
    if (__builtin_expect(in.hasWindow(), 1))
    {
        LmWindowCursor cursor(in);
        return operation(cursor);
    }
    return lmWithByteCursor(in, operation, readLimit);
}

/// Takes the next byte where it is the wanted one.
template <typename Cursor>
bool lmTakeIf(Cursor& cursor, char wanted)
{
    const bool isNext = cursor.peek() == static_cast<unsigned char>(wanted);
    if (isNext)
    {
        cursor.advance();
    }
    return isNext;
}

/// Takes the next byte, whatever it is, and gives it; -1 at the end of input.
template <typename Cursor>
int lmTakeByte(Cursor& cursor)
{
    const int next = cursor.peek();
    if (next != -1)
    {
        cursor.advance();
    }
    return next;
}

/// Takes the rest of a line and consumes its line end: CR LF, a lone LF, a lone CR or the end of input. The view is
/// valid as that of `takeUntil` is.
template <typename Cursor>
std::string_view lmTakeLine(Cursor& cursor)
{
    const std::string_view line = cursor.takeUntilLineEnd();
    if (lmTakeByte(cursor) == '\r')
    {
        lmTakeIf(cursor, '\n');
    }
    return line;
}

/// Takes the next word of this line: white space other than line ends is passed over, and the word ends in front of
/// any white space. Nothing where the line or the input ends first. The view is valid as that of `takeUntil` is.
template <typename Cursor>
std::string_view lmTakeWord(Cursor& cursor)
{
    cursor.skipWhile([](int c) { return lmIsSpace(c) && !lmIsLineEnd(c); });
    return cursor.takeUntilSpace();
}

/// Takes a decimal number, nothing in front of it passed over; the byte behind its digits stays. Gives 0xFFFFFFFF where
/// there is no digit, and for a number that needs more than 32 bits.
template <typename Cursor>
unsigned int lmTakeUnsigned(Cursor& cursor)
{
    constexpr std::uint64_t none = 0xFFFFFFFF;
    std::uint64_t number = lmIsDigit(cursor.peek()) ? 0 : none;
    for (int next = cursor.peek(); lmIsDigit(next); next = cursor.peek())
    {
        number = std::min(number * 10 + static_cast<std::uint64_t>(next - '0'), none);
        cursor.advance();
    }
    return static_cast<unsigned int>(number);
}
