#pragma once

#include "LmLibs/LmUtil/LmByteArrayInputStream.h"

/// What every constructor from a value text does: lets the object's own `parse` read the text as it would read the
/// line of a body. A null pointer reads nothing.
template <typename Parser>
void lmParseText(Parser& parser, const char* text)
{
    if (text != nullptr)
    {
        const LmHandle<LmByteArray> hBytes = LmByteArray::sCreate(text);
        LmByteArrayInputStream in(hBytes, 0, 0);
        parser.Parser::parse(in);
    }
}
