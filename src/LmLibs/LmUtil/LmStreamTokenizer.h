#pragma once

#include "LmLibs/LmUtil/LmInputStream.h"
#include "LmLibs/LmUtil/LmStreamCursor.h"
#include "LmLibs/LmUtil/LmString.h"

/// The reading operations on which every parser rests. All work at the stream's present position.
///
/// White space is blank, tab, CR, LF, VT and FF. A line ends at CR LF, a lone LF, a lone CR, or the end of input.
class LMUTIL_API LmStreamTokenizer
{
public:
    LmStreamTokenizer() = delete;

    /// Consumes white space, line ends included. Gives the next byte as 0 to 255 without consuming it, or -1 at the
    /// end of input.
    static int sDiscardWhite(LmInputStream& in)
    {
        return lmWithCursor(in, [](auto& cursor) {
            cursor.skipWhile(lmIsSpace);
            return cursor.peek();
        });
    }

    /// True when nothing of this line is left. A line of blanks is not empty. Consumes nothing.
    static bool sIsEmptyLine(LmInputStream& in)
    {
        return lmWithCursor(in, [](auto& cursor) {
            const int next = cursor.peek();
            return next == -1 || lmIsLineEnd(next);
        });
    }

    /// The rest of the line, blanks included, without its line end, which is consumed.
    static LmString sGetLine(LmInputStream& in);

    /// The same into `buffer`, with a NUL behind it. A line that does not fit `size` bytes with its NUL is consumed,
    /// leaves the empty text and gives false; so does the end of input with nothing left.
    static bool sGetLine(LmInputStream& in, char* buffer, unsigned int size);

    /// Passes over white space, then copies bytes up to the first of `delimiters` or the end of input into `buffer`,
    /// with a NUL behind them. The delimiter stays unread; a token may be empty. A token that does not fit `size`
    /// bytes with its NUL is consumed, leaves the empty text and gives false; so does the end of input.
    static bool sGetToken(LmInputStream& in, const char* delimiters, char* buffer, unsigned int size);

    /// Reads a decimal number, nothing in front of it passed over, and leaves the byte behind its digits unread.
    /// Gives 0xFFFFFFFF where there is no digit, and for a number that needs more than 32 bits.
    static unsigned int sGetUnsigned(LmInputStream& in);
};
