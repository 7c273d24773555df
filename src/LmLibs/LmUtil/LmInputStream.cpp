#include "LmLibs/LmUtil/LmInputStream.h"

#include "LmLibs/LmUtil/LmCharacters.h"
#include "LmLibs/LmUtil/LmStreamCursor.h"

LmInputStream::~LmInputStream() = default;

LmInputStream& operator>>(LmInputStream& in, LmString& word)
{
    lmWithCursor(in, [&word](auto& cursor) { word = LmString(lmTakeWord(cursor)); });
    return in;
}
