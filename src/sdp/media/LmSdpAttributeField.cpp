#include "sdp/media/LmSdpAttributeField.h"

#include "LmLibs/LmUtil/LmCharacters.h"
#include "LmLibs/LmUtil/LmLine.h"
#include "sdp/frame/LmSdpCommonText.h"
#include "sdp/frame/LmSdpLine.h"
#include "sdp/media/LmSdpAttributeValue.h"

namespace
{

constexpr const char* s_NoName = "Attempting to create Attribute Field with empty Name field";

} // namespace

LmSdpAttributeField::LmSdpAttributeField() : LmSdpField("a") {}

LmSdpAttributeField::LmSdpAttributeField(const char* text) : LmSdpAttributeField()
{
    lmParseText(*this, text);
}

LmSdpAttributeField::LmSdpAttributeField(const char* name, const char* value) : LmSdpField("a"), m_Name(name)
{
    lmRefuseBlank<LmSdpParseError>(m_Name, s_NoName);
    if (value != nullptr)
    {
        m_Attribute = lmSdpAttributeValue(m_Name.view(), value);
    }
}

LmSdpAttributeField::LmSdpAttributeField(const char* name, LmSdpAttribute* pValue)
    : LmSdpField("a"), m_Attribute(pValue)
{
    m_Name = LmString(name);
    lmRefuseBlank<LmSdpParseError>(m_Name, s_NoName);
}

// In one piece with what gives the memory back.
__attribute__((flatten)) LmSdpAttributeField::~LmSdpAttributeField() = default;

void LmSdpAttributeField::setName(const char* name)
{
    change(m_Name, name);
}

LmString LmSdpAttributeField::getValue() const
{
    return hasValue() ? m_Attribute->getValue() : LmString();
}

void LmSdpAttributeField::setValue(LmSdpAttribute* pValue)
{
    m_Attribute = pValue;
    setChangedFlag();
}

void LmSdpAttributeField::parse(LmInputStream& in)
{
    const LmLine line(in, "LmSdpAttributeField::parse Incomplete Attribute Field");
    m_Name = lmSdpText(line.inFrontOfColon());
    if (line.hasColon())
    {
        m_Attribute = lmSdpAttributeValueOfLine(line.inFrontOfColon(), line.behindColon());
    }
}

void LmSdpAttributeField::serialize(LmOutputStream& out) const
{
    lmRefuseBlank<LmException>(m_Name, "Serializing Invalid Attribute Field");
    if (!hasValue())
    {
        lmWriteLine(out, *this, m_Name);
        return;
    }
    lmWriteToken(out, *this);
    out << m_Name << ":";
    const LmSdpAttribute& value = *m_Attribute;
    value.serialize(out);
    out << "\r\n";
}

LmSdpField* LmSdpAttributeField::sConstruct()
{
    return new LmSdpAttributeField;
}
