#include "sdp/fields/LmSdpConnectionField.h"

#include "LmLibs/LmUtil/LmCharacters.h"
#include "LmLibs/LmUtil/LmInetAddress.h"
#include "LmLibs/LmUtil/LmLine.h"
#include "core/LogStatement.h"
#include "core/TraceScope.h"
#include "sdp/frame/LmSdpCommonText.h"
#include "sdp/frame/LmSdpLine.h"

namespace
{

Quorvex::FileLogger s_Logger("harnwick.lm.LmSdpConnectionField");

constexpr std::size_t s_None = std::string_view::npos;

/// A piece between two places of a line. Where the two meet, it reaches to the end of the line.
std::string_view cut(std::string_view line, std::size_t begin, std::size_t end)
{
    return lmSubstr(line, begin, end - begin);
}

bool isAddress(std::string_view text)
{
    return lmFindByte(text, ' ') == s_None || LmInetAddress().initFromAddress(LmString(text).c_str());
}

} // namespace

LmSdpConnectionField::LmSdpConnectionField() : LmSdpField("c") {}

LmSdpConnectionField::LmSdpConnectionField(const char* networkType, const char* addressType, const char* address)
    : LmSdpField("c"), m_NetworkType(networkType), m_AddressType(addressType), m_Address(address)
{
    lmRefuseBlank<LmSdpParseError>(m_NetworkType, "Error creating Connection field with blank Network Type");
    lmRefuseBlank<LmSdpParseError>(m_AddressType, "Error creating Connection field with blank Address Type");
    lmRefuseBlank<LmSdpParseError>(m_Address, "Error creating Connection field with blank Address");
}

LmSdpConnectionField::LmSdpConnectionField(const char* text) : LmSdpConnectionField()
{
    const Quorvex::TraceScope trace(s_Logger, "LmSdpConnectionField::LmSdpConnectionField(const char *)");
    lmParseText(*this, text);
}

LmSdpConnectionField::~LmSdpConnectionField() = default;

void LmSdpConnectionField::setNetworkType(const char* text)
{
    change(m_NetworkType, text);
}

void LmSdpConnectionField::setAddressType(const char* text)
{
    change(m_AddressType, text);
}

void LmSdpConnectionField::setAddress(const char* text)
{
    change(m_Address, text);
}

void LmSdpConnectionField::parse(LmInputStream& in)
{
    const Quorvex::TraceScope trace(s_Logger, "LmSdpConnectionField::parse");
    const LmLine wholeLine(in, "LmSdpConnectionField::parse() Incomplete Connection Field");
    const std::string_view line = wholeLine.view();
    const std::size_t firstBlank = lmFindByte(line, ' ');
    if (firstBlank == s_None)
    {
        fail(m_NetworkType, "LmSdpConnectionField::parse() Incomplete AddressType Field");
    }
    m_NetworkType = lmSdpText(cut(line, 0, firstBlank));
    setChangedFlag();

    const std::size_t secondBlank = lmFindByte(line, ' ', firstBlank + 1);
    if (secondBlank == s_None)
    {
        fail(m_AddressType, "LmSdpConnectionField::parse() Incomplete Address Field");
    }
    m_AddressType = lmSdpText(lmUpToNul(cut(line, firstBlank + 1, secondBlank)));

    const std::string_view address = line.substr(secondBlank + 1);
    if (!isAddress(address))
    {
        fail(m_Address, "LmSdpConnectionField::parse() Invalid Address Field");
    }
    m_Address = LmString(lmUpToNul(address));
    LmStreamTokenizer::sDiscardWhite(in);
}

void LmSdpConnectionField::serialize(LmOutputStream& out) const
{
    constexpr const char* scope = "LmSdpConnectionField::serialize";
    const Quorvex::TraceScope trace(s_Logger, scope);
    for (const LmString* pValue : {&m_NetworkType, &m_AddressType, &m_Address})
    {
        lmRefuseBlank<LmException>(*pValue, "LmSdpConnectionField::serialize() Incomplete Connection Field");
    }
    QUORVEX_LOG(s_Logger, Quorvex::eDebug, "LmSdpConnectionField",
                scope << " : "
                      << " m_NetworkType.length(): " << m_NetworkType.length() << " m_AddressType.length(): "
                      << m_AddressType.length() << " m_Address.length(): " << m_Address.length());
    lmWriteLine(out, *this, m_NetworkType, " ", m_AddressType, " ", m_Address);
}

LmSdpField* LmSdpConnectionField::sConstruct()
{
    return new LmSdpConnectionField;
}

/// Leaves one blank in the place of what could not be read. A field in that state can be written.
void LmSdpConnectionField::fail(LmString& member, const char* message)
{
    change(member, " ");
    LmException::sThrow(message);
}
