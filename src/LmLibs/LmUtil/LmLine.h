#pragma once

#include "LmLibs/LmUtil/LmInputStream.h"
#include "LmLibs/LmUtil/LmUtilExport.h"

#include <string>
#include <string_view>

/// The rest of a line, taken from a stream together with its line end, to be cut up without a copy.
///
/// It lies in the stream's window where there is one, so the stream must not be changed while the line is looked at.
class LMUTIL_API LmLine
{
public:
    explicit LmLine(LmInputStream& in);

    LmLine(const LmLine&) = delete;
    LmLine& operator=(const LmLine&) = delete;

    std::string_view view() const { return m_View; }

private:
    std::string m_Copy;
    std::string_view m_View;
};
