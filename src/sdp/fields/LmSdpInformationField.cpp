#include "sdp/fields/LmSdpInformationField.h"

#include "sdp/frame/LmSdpLine.h"

LmSdpInformationField::LmSdpInformationField() : LmSdpField("i") {}

LmSdpInformationField::LmSdpInformationField(const char* text) : LmSdpField("i"), m_Information(text)
{
    lmRefuseBlank<LmSdpParseError>(m_Information, "Attempting to create LmSdpInformationField with blank string");
}

LmSdpInformationField::~LmSdpInformationField() = default;

void LmSdpInformationField::setInformation(const char* text)
{
    change(m_Information, text);
}

void LmSdpInformationField::parse(LmInputStream& in)
{
    lmRefuseEmptyLine(in, "LmSdpInformationField::parse() Empty Information Field");
    m_Information = LmStreamTokenizer::sGetLine(in);
}

void LmSdpInformationField::serialize(LmOutputStream& out) const
{
    lmRefuseBlank<LmException>(m_Information, "LmSdpInformationField::serialize() Incomplete Information Field");
    lmWriteLine(out, *this, m_Information);
}

LmSdpField* LmSdpInformationField::sConstruct()
{
    return new LmSdpInformationField;
}
