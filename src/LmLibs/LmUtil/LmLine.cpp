#include "LmLibs/LmUtil/LmLine.h"

#include "LmLibs/LmUtil/LmStreamCursor.h"

LmLine::LmLine(LmInputStream& in)
{
    if (in.hasWindow())
    {
        LmWindowCursor cursor(in);
        m_View = lmTakeLine(cursor);
        return;
    }
    LmByteCursor cursor(in);
    m_Copy = lmTakeLine(cursor);
    m_View = m_Copy;
}
