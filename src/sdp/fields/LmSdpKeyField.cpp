#include "sdp/fields/LmSdpKeyField.h"

#include "LmLibs/LmUtil/LmCharacters.h"
#include "LmLibs/LmUtil/LmLine.h"
#include "sdp/frame/LmSdpCommonText.h"
#include "sdp/frame/LmSdpLine.h"

namespace
{

constexpr std::string_view s_UrlStart = "http://";
constexpr const char* s_Invalid = "LmSdpKeyField::parse() Invalid Key Field";

} // namespace

LmSdpKeyField::LmSdpKeyField() : LmSdpField("k") {}

LmSdpKeyField::LmSdpKeyField(const char* text) : LmSdpKeyField()
{
    lmParseText(*this, text);
}

LmSdpKeyField::~LmSdpKeyField() = default;

void LmSdpKeyField::setMethod(const char* text)
{
    change(m_Method, text);
}

void LmSdpKeyField::setKey(const char* text)
{
    change(m_Key, text);
}

void LmSdpKeyField::parse(LmInputStream& in)
{
    const LmLine wholeLine(in, "LmSdpKeyField::parse() Incomplete Key Field");
    const std::string_view line = wholeLine.view();
    if (!wholeLine.hasColon())
    {
        if (line != "prompt")
        {
            LmException::sThrow(s_Invalid);
        }
        m_Method = lmSdpText(line);
        return;
    }
    // With nothing in front of the colon, the method is the whole line.
    const std::size_t colon = wholeLine.inFrontOfColon().size();
    m_Method = lmSdpText(lmSubstr(line, 0, colon));
    if (m_Method.compareWith("clear") == 0 || m_Method.compareWith("base64") == 0)
    {
        m_Key = LmString(line.substr(colon + 1));
    }
    else if (line.substr(0, s_UrlStart.size()) == s_UrlStart)
    {
        m_Method = LmString(line);
    }
    else
    {
        LmException::sThrow(s_Invalid);
    }
}

void LmSdpKeyField::serialize(LmOutputStream& out) const
{
    lmRefuseBlank<LmException>(m_Method, "LmSdpKeyField::serialize() Incomplete Key Field");
    lmWriteLine(out, *this, m_Method, m_Key.isBlank() ? "" : ":", m_Key);
}

LmSdpField* LmSdpKeyField::sConstruct()
{
    return new LmSdpKeyField;
}
