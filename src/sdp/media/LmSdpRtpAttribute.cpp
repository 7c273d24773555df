#include "sdp/media/LmSdpRtpAttribute.h"

#include "LmLibs/LmUtil/LmCharacters.h"
#include "LmLibs/LmUtil/LmLine.h"
#include "sdp/frame/LmSdpCommonText.h"
#include "sdp/frame/LmSdpLine.h"

#include <utility>

namespace
{

constexpr std::size_t s_None = std::string_view::npos;

} // namespace

LmSdpRtpAttribute::LmSdpRtpAttribute(const char* text) : LmSdpAttribute(text)
{
    lmParseText(*this, text);
}

LmSdpRtpAttribute::LmSdpRtpAttribute(std::string_view line)
{
    read(line);
}

LmSdpRtpAttribute::~LmSdpRtpAttribute() = default;

void LmSdpRtpAttribute::setPayloadType(unsigned int payloadType)
{
    change(m_PayloadType, payloadType);
}

void LmSdpRtpAttribute::setEncodingName(const char* text)
{
    change(m_EncodingName, LmString(text));
}

void LmSdpRtpAttribute::setClockRate(unsigned int clockRate)
{
    change(m_ClockRate, clockRate);
}

void LmSdpRtpAttribute::setNumberOfChannels(unsigned int channels)
{
    change(m_NumberOfChannels, channels);
}

void LmSdpRtpAttribute::setEncodingParameters(const char* text)
{
    change(m_EncodingParameters, LmString(text));
}

void LmSdpRtpAttribute::setPayloadType(const char* text)
{
    change(m_PayloadType, text);
}

void LmSdpRtpAttribute::setClockRate(const char* text)
{
    change(m_ClockRate, text);
}

void LmSdpRtpAttribute::setNumberOfChannels(const char* text)
{
    change(m_NumberOfChannels, text);
}

void LmSdpRtpAttribute::parse(LmInputStream& in)
{
    const LmLine line(in);
    read(line.view());
}

void LmSdpRtpAttribute::read(std::string_view line)
{
    // The numbers nearly always are what stands in front of the blank, and behind the slash.
    const LmLeadingNumber payloadType(line);
    const bool isInFront = payloadType.digits < line.size() && line[payloadType.digits] == ' ';
    const std::size_t blank = isInFront ? payloadType.digits : lmFindByte(line, ' ');
    if (blank == s_None || blank == 0)
    {
        LmSdpParseError::sThrow("RTP attribute payload type: Space not found or misplaced");
    }
    setPayloadType(static_cast<unsigned int>(isInFront ? payloadType.value : lmAtoi(line.substr(0, blank))));

    const std::size_t slash = lmFindByte(line, '/', blank + 1);
    if (slash == s_None)
    {
        LmSdpParseError::sThrow("RTP attribute encoding name: Slash not found or misplaced");
    }
    change(m_EncodingName, lmSdpText(line.substr(blank + 1, slash - (blank + 1))));

    const std::string_view rest = line.substr(slash + 1);
    if (rest.empty())
    {
        LmSdpParseError::sThrow("failed to parde SDP rtpmap attribute : no clock rate found");
    }
    const LmLeadingNumber clockRate(rest);
    const bool isWhole = clockRate.digits == rest.size();
    setClockRate(static_cast<unsigned int>(isWhole ? clockRate.value : lmAtoi(rest)));

    const std::size_t secondSlash = isWhole ? s_None : lmFindByte(rest, '/');
    const std::string_view third = secondSlash == s_None ? std::string_view() : rest.substr(secondSlash + 1);
    if (const int channels = lmAtoi(third); channels != 0)
    {
        setNumberOfChannels(static_cast<unsigned int>(channels));
    }
    else
    {
        change(m_EncodingParameters, lmSdpText(third));
    }
}

void LmSdpRtpAttribute::serialize(LmOutputStream& out) const
{
    lmRefuseBlank<LmException>(m_EncodingName, "LmSdpRtpAttribute::serialize() Incomplete Rtp Attribute Field");
    out << m_PayloadType << " " << m_EncodingName << "/" << m_ClockRate;
    if (m_NumberOfChannels != 0)
    {
        out << "/" << m_NumberOfChannels;
    }
    else if (!m_EncodingParameters.isBlank())
    {
        out << "/" << m_EncodingParameters;
    }
}

/// The flag stays set: the text is built anew each time it is asked for.
void LmSdpRtpAttribute::buildValue() const
{
    char number[16];
    std::snprintf(number, sizeof number, "%d ", static_cast<int>(m_PayloadType));
    LmString value(number);
    value.append(m_EncodingName);
    std::snprintf(number, sizeof number, "/%d", static_cast<int>(m_ClockRate));
    value.append(number);
    if (m_NumberOfChannels != 0)
    {
        std::snprintf(number, sizeof number, "/%d", static_cast<int>(m_NumberOfChannels));
        value.append(number);
    }
    else if (!m_EncodingParameters.isBlank())
    {
        value.append("/");
        value.append(m_EncodingParameters);
    }
    setBuiltValue(value);
}

void LmSdpRtpAttribute::change(unsigned int& member, unsigned int value)
{
    member = value;
    setChangedFlag(true);
}

void LmSdpRtpAttribute::change(unsigned int& member, const char* text)
{
    if (text != nullptr)
    {
        change(member, static_cast<unsigned int>(lmAtoi(text)));
    }
}

void LmSdpRtpAttribute::change(LmString& member, LmString text)
{
    member = std::move(text);
    setChangedFlag(true);
}
