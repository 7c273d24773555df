#pragma once

#include "LmLibs/LmUtil/LmException.h"
#include "LmLibs/LmUtil/LmOutputStream.h"
#include "LmLibs/LmUtil/LmStreamTokenizer.h"
#include "LmLibs/LmUtil/LmString.h"
#include "sdp/frame/LmSdpField.h"
#include "sdp/frame/LmSdpParseError.h"
#include "sdp/frame/LmSdpText.h"

/// What the line classes share.

/// Raises an `Error` with that message when the value is blank.
template <typename Error>
void lmRefuseBlank(const LmString& value, const char* message)
{
    if (value.isBlank())
    {
        Error::sThrow(message);
    }
}

/// Raises an LmException with that message when nothing is left of the line.
inline void lmRefuseEmptyLine(LmInputStream& in, const char* message)
{
    if (LmStreamTokenizer::sIsEmptyLine(in))
    {
        LmException::sThrow(message);
    }
}

/// Writes what stands in front of a line's value: the letter and "=". The classes of the library have one letter each.
inline void lmWriteToken(LmOutputStream& out, const LmSdpField& field)
{
    const char letter[] = {field.getToken()[0], '='};
    out.writeAll({letter, sizeof letter});
}

/// Writes one whole line: the letter, "=", the parts of the value and the line end.
template <typename... Parts>
void lmWriteLine(LmOutputStream& out, const LmSdpField& field, const Parts&... parts)
{
    lmWriteToken(out, field);
    (out << ... << parts) << "\r\n";
}
