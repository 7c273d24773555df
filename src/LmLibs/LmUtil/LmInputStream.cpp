#include "LmLibs/LmUtil/LmInputStream.h"

#include "LmLibs/LmUtil/LmCharacters.h"
#include "LmLibs/LmUtil/LmStreamCursor.h"

LmInputStream::~LmInputStream() = default;

LmInputStream& operator>>(LmInputStream& in, LmString& word)
{
    lmWithCursor(in, [&word](auto& cursor) {
        cursor.skipWhile([](int c) { return lmIsSpace(c) && !lmIsLineEnd(c); });
        word = LmString(cursor.takeUntil([](int c) { return lmIsSpace(c); }));
    });
    return in;
}
