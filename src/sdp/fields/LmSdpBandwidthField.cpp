#include "sdp/fields/LmSdpBandwidthField.h"

#include "LmLibs/LmUtil/LmCharacters.h"
#include "LmLibs/LmUtil/LmLine.h"
#include "sdp/frame/LmSdpCommonText.h"
#include "sdp/frame/LmSdpLine.h"

LmSdpBandwidthField::LmSdpBandwidthField() : LmSdpField("b") {}

LmSdpBandwidthField::LmSdpBandwidthField(const char* type, unsigned int amount)
    : LmSdpField("b"), m_Type(type), m_Amount(amount)
{
    lmRefuseBlank<LmSdpParseError>(m_Type, "Trying to create Bandwidth field with blank type field");
}

LmSdpBandwidthField::LmSdpBandwidthField(const char* text) : LmSdpBandwidthField()
{
    lmParseText(*this, text);
}

LmSdpBandwidthField::~LmSdpBandwidthField() = default;

void LmSdpBandwidthField::setType(const char* type)
{
    change(m_Type, type);
}

void LmSdpBandwidthField::setAmount(unsigned int amount)
{
    m_Amount = amount;
    setChangedFlag();
}

void LmSdpBandwidthField::setAmount(const char* amount)
{
    takeAmount(lmViewOf(amount));
}

void LmSdpBandwidthField::parse(LmInputStream& in)
{
    constexpr const char* invalid = "LmSdpBandwidthField::parse() Invalid Bandwidth Field";
    const LmLine line(in, invalid);
    if (!line.hasColon())
    {
        LmSdpParseError::sThrow(invalid);
    }
    // With nothing in front of the colon, the type is the whole line.
    m_Type = lmSdpText(lmSubstr(line.view(), 0, line.inFrontOfColon().size()));
    setChangedFlag();
    takeAmount(line.behindColon());
}

void LmSdpBandwidthField::serialize(LmOutputStream& out) const
{
    lmRefuseBlank<LmException>(m_Type, "LmSdpBandwidthField::serialize() Incomplete Bandwidth Field");
    lmWriteLine(out, *this, m_Type, ":", m_Amount);
}

LmSdpField* LmSdpBandwidthField::sConstruct()
{
    return new LmSdpBandwidthField;
}

void LmSdpBandwidthField::takeAmount(std::string_view text)
{
    m_Amount = static_cast<unsigned int>(lmAtoi(text));
    if (m_Amount == 0 && text != "0")
    {
        LmException::sThrow("Invalid value for Amount in Bandwidth field");
    }
    setChangedFlag();
}
