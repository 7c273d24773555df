#include "sdp/fields/LmSdpContact.h"

#include "LmLibs/LmUtil/LmCharacters.h"
#include "sdp/frame/LmSdpLine.h"

/// Without a ")" the comment goes to the end of the line.
LmString LmSdpContact::sCommentInParentheses(std::string_view line, std::size_t open)
{
    const std::string_view behind = line.substr(open + 1);
    return LmString(behind.substr(0, behind.find(')')));
}

/// Leaves out the one character in front of the "<".
LmString LmSdpContact::sCommentInFront(std::string_view line, std::size_t open)
{
    return LmString(line.substr(0, open == 0 ? 0 : open - 1));
}

void LmSdpContact::writeLine(LmOutputStream& out, const LmSdpField& field, const char* unknownShape) const
{
    switch (m_Format)
    {
    case eAddressOnly:
        lmWriteLine(out, field, m_Address);
        break;
    case eCommentThenAddress:
        lmWriteLine(out, field, m_Comment, " <", m_Address, ">");
        break;
    case eAddressThenComment:
        lmWriteLine(out, field, m_Address, " (", m_Comment, ")");
        break;
    default:
        LmException::sThrow(unknownShape);
    }
}
