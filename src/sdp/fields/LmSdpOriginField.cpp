#include "sdp/fields/LmSdpOriginField.h"

#include "sdp/frame/LmSdpCommonText.h"
#include "sdp/frame/LmSdpLine.h"

LmSdpOriginField::LmSdpOriginField() : LmSdpField("o") {}

LmSdpOriginField::LmSdpOriginField(const char* text) : LmSdpOriginField()
{
    lmParseText(*this, text);
}

LmSdpOriginField::~LmSdpOriginField() = default;

void LmSdpOriginField::setUsername(const char* text)
{
    change(m_Username, text);
}

void LmSdpOriginField::setSessionId(const char* text)
{
    change(m_SessionId, text);
}

void LmSdpOriginField::setSessionVersion(const char* text)
{
    change(m_SessionVersion, text);
}

void LmSdpOriginField::setNetworkType(const char* text)
{
    change(m_NetworkType, text);
}

void LmSdpOriginField::setAddressType(const char* text)
{
    change(m_AddressType, text);
}

void LmSdpOriginField::setAddress(const char* text)
{
    change(m_Address, text);
}

void LmSdpOriginField::parse(LmInputStream& in)
{
    lmSdpTakeWords(in, {&m_Username, &m_SessionId, &m_SessionVersion, &m_NetworkType, &m_AddressType, &m_Address});
    LmStreamTokenizer::sDiscardWhite(in);
}

void LmSdpOriginField::serialize(LmOutputStream& out) const
{
    for (const LmString* pValue :
         {&m_Username, &m_SessionId, &m_SessionVersion, &m_NetworkType, &m_AddressType, &m_Address})
    {
        lmRefuseBlank<LmException>(*pValue, "LmSdpOriginField::serialize() Incomplete Origin Field");
    }
    lmWriteLine(out, *this, m_Username, " ", m_SessionId, " ", m_SessionVersion, " ", m_NetworkType, " ", m_AddressType,
                " ", m_Address);
}

LmSdpField* LmSdpOriginField::sConstruct()
{
    return new LmSdpOriginField;
}
