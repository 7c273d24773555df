#include "sdp/frame/LmSdpUnusedField.h"

#include "LmLibs/LmUtil/LmStreamTokenizer.h"

LmSdpUnusedField::LmSdpUnusedField(const char* token, const char* value) : LmSdpField(token), m_Field(value) {}

LmSdpUnusedField::LmSdpUnusedField(const char* token) : LmSdpField(token) {}

LmSdpUnusedField::~LmSdpUnusedField() = default;

void LmSdpUnusedField::setField(const char* value)
{
    change(m_Field, value);
}

void LmSdpUnusedField::parse(LmInputStream& in)
{
    m_Field = LmStreamTokenizer::sGetLine(in);
}

void LmSdpUnusedField::serialize(LmOutputStream& out) const
{
    out << getToken() << "=" << m_Field << "\r\n";
}
