#include "sdp/fields/LmSdpUriField.h"

#include "sdp/frame/LmSdpLine.h"

LmSdpUriField::LmSdpUriField() : LmSdpField("u") {}

LmSdpUriField::LmSdpUriField(const char* text) : LmSdpField("u"), m_Uri(text)
{
    lmRefuseBlank<LmSdpParseError>(m_Uri, "Attempting to create LmSdpUriField with empty string");
}

LmSdpUriField::~LmSdpUriField() = default;

void LmSdpUriField::setUri(const char* text)
{
    change(m_Uri, text);
}

void LmSdpUriField::parse(LmInputStream& in)
{
    lmRefuseEmptyLine(in, "LmSdpUriField::serialize() Incomplete URI Field");
    m_Uri = LmStreamTokenizer::sGetLine(in);
}

void LmSdpUriField::serialize(LmOutputStream& out) const
{
    lmRefuseBlank<LmException>(m_Uri, "LmSdpUriField::serialize() Incomplete URI Field");
    lmWriteLine(out, *this, m_Uri);
}

LmSdpField* LmSdpUriField::sConstruct()
{
    return new LmSdpUriField;
}
