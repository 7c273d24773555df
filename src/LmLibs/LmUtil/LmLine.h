#pragma once

#include "LmLibs/LmUtil/LmInputStream.h"
#include "LmLibs/LmUtil/LmStreamCursor.h"

#include <memory>
#include <string>
#include <string_view>

/// The rest of a line, taken from a stream together with its line end, to be cut up without a copy.
///
/// It lies in the stream's window where there is one, so the stream must not be changed while the line is looked at.
class LmLine
{
public:
    explicit LmLine(LmInputStream& in)
    {
        if (in.hasWindow())
        {
            LmWindowCursor cursor(in);
            m_View = lmTakeLine(cursor);
        }
        else
        {
            LmByteCursor cursor(in);
            m_Copy = std::make_unique<std::string>(lmTakeLine(cursor));
            m_View = *m_Copy;
        }
    }

    LmLine(const LmLine&) = delete;
    LmLine& operator=(const LmLine&) = delete;

    std::string_view view() const { return m_View; }

private:
    std::unique_ptr<const std::string> m_Copy;
    std::string_view m_View;
};
