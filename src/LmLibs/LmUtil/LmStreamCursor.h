#pragma once

#include "LmLibs/LmUtil/LmCharacters.h"
#include "LmLibs/LmUtil/LmInputStream.h"

#include <cstddef>
#include <string>
#include <string_view>

/// Two ways of walking over a stream with the same operations, so that each reading operation is written once: over
/// the window of a stream that has one, and through the virtual operations of any other.

/// Walks over a stream's window; nothing is copied. The stream follows when the cursor goes.
class LmWindowCursor
{
public:
    explicit LmWindowCursor(LmInputStream& in) : m_In(in), m_Next(in.windowBegin()), m_End(in.windowEnd()) {}
    LmWindowCursor(const LmWindowCursor&) = delete;
    LmWindowCursor& operator=(const LmWindowCursor&) = delete;
    ~LmWindowCursor() { m_In.consumeTo(m_Next); }

    /// The next byte, unread, or -1 at the end of input.
    int peek() const { return m_Next == m_End ? -1 : static_cast<unsigned char>(*m_Next); }
    void advance() { ++m_Next; }

    template <typename Predicate>
    void skipWhile(Predicate isWanted)
    {
        while (m_Next != m_End && isWanted(static_cast<unsigned char>(*m_Next)))
        {
            ++m_Next;
        }
    }

    /// The bytes in front of the first that is a stop, valid until the next `takeUntil` or until the stream goes.
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

private:
    std::string_view takeTo(const char* position)
    {
        const char* const begin = m_Next;
        m_Next = position;
        return {begin, static_cast<std::size_t>(position - begin)};
    }

    LmInputStream& m_In;
    const char* m_Next;
    const char* const m_End;
};

/// Walks over a stream byte by byte.
class LmByteCursor
{
public:
    explicit LmByteCursor(LmInputStream& in) : m_In(in) {}
    LmByteCursor(const LmByteCursor&) = delete;
    LmByteCursor& operator=(const LmByteCursor&) = delete;

    int peek()
    {
        m_In.mark(1);
        const int next = m_In.read();
        m_In.reset();
        return next;
    }
    void advance() { m_In.read(); }

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
    std::string m_Taken;
};

/// The way of streams without a window, kept out of the way of the other.
template <typename Operation>
__attribute__((noinline)) auto lmWithByteCursor(LmInputStream& in, Operation& operation)
{
    LmByteCursor cursor(in);
    return operation(cursor);
}

/// Calls `operation` with the cursor that fits the stream.
template <typename Operation>
inline auto lmWithCursor(LmInputStream& in, Operation operation)
{
    if (__builtin_expect(in.hasWindow(), 1))
    {
        LmWindowCursor cursor(in);
        return operation(cursor);
    }
    return lmWithByteCursor(in, operation);
}

/// Takes the rest of a line and consumes its line end: CR LF, a lone LF, a lone CR or the end of input. The view is
/// valid as that of `takeUntil` is.
template <typename Cursor>
std::string_view lmTakeLine(Cursor& cursor)
{
    const std::string_view line = cursor.takeUntilLineEnd();
    const int end = cursor.peek();
    if (end != -1)
    {
        cursor.advance();
    }
    if (end == '\r' && cursor.peek() == '\n')
    {
        cursor.advance();
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
