#include "sdp/fields/LmSdpSessionNameField.h"

#include "sdp/frame/LmSdpLine.h"

LmSdpSessionNameField::LmSdpSessionNameField() : LmSdpField("s") {}

LmSdpSessionNameField::LmSdpSessionNameField(const char* text) : LmSdpField("s"), m_SessionName(text)
{
    lmRefuseBlank<LmSdpParseError>(m_SessionName, "Attempting to create LmSdpSessionNameField with blank string");
}

LmSdpSessionNameField::~LmSdpSessionNameField() = default;

void LmSdpSessionNameField::setSessionName(const char* text)
{
    change(m_SessionName, text);
}

void LmSdpSessionNameField::parse(LmInputStream& in)
{
    m_SessionName = LmStreamTokenizer::sIsEmptyLine(in) ? LmString("empty") : LmStreamTokenizer::sGetLine(in);
}

void LmSdpSessionNameField::serialize(LmOutputStream& out) const
{
    lmRefuseBlank<LmException>(m_SessionName, "LmSdpSessionNameField::serialize() Incomplete Session Name Field");
    lmWriteLine(out, *this, m_SessionName);
}

LmSdpField* LmSdpSessionNameField::sConstruct()
{
    return new LmSdpSessionNameField;
}
