#include "sdp/fields/LmSdpProtocolVersionField.h"

#include "LmLibs/LmUtil/LmCharacters.h"
#include "LmLibs/LmUtil/LmLine.h"
#include "sdp/frame/LmSdpCommonText.h"
#include "sdp/frame/LmSdpLine.h"

#include <algorithm>

LmSdpProtocolVersionField::LmSdpProtocolVersionField() : LmSdpField("v") {}

LmSdpProtocolVersionField::LmSdpProtocolVersionField(const char* text) : LmSdpProtocolVersionField()
{
    lmParseText(*this, text);
}

LmSdpProtocolVersionField::~LmSdpProtocolVersionField() = default;

void LmSdpProtocolVersionField::setProtocolVersion(const char* text)
{
    change(m_ProtocolVersion, text);
}

void LmSdpProtocolVersionField::parse(LmInputStream& in)
{
    if (LmStreamTokenizer::sIsEmptyLine(in))
    {
        m_ProtocolVersion = LmString();
        return;
    }
    const LmLine line(in);
    if (!std::all_of(line.view().begin(), line.view().end(), lmIsDigit))
    {
        LmSdpParseError::sThrow("LmSdpProtocolVersionField::parse()Invalid character in Sdp Protocol Version Field");
    }
    m_ProtocolVersion = lmSdpText(line.view());
}

void LmSdpProtocolVersionField::serialize(LmOutputStream& out) const
{
    lmRefuseBlank<LmException>(m_ProtocolVersion,
                               "LmSdpProtocolVersionField::serialize() Incomplete Protocol Version Field");
    lmWriteLine(out, *this, m_ProtocolVersion);
}

LmSdpField* LmSdpProtocolVersionField::sConstruct()
{
    return new LmSdpProtocolVersionField;
}
