#include "sdp/media/LmSdpAttribute.h"

#include <utility>

LmSdpAttribute::LmSdpAttribute() = default;

LmSdpAttribute::LmSdpAttribute(const char* value) : m_Value(value) {}

LmSdpAttribute::LmSdpAttribute(LmString value) : m_Value(std::move(value)) {}

LmSdpAttribute::~LmSdpAttribute() = default;

void LmSdpAttribute::parse(LmInputStream& in)
{
    in >> m_Value;
}

void LmSdpAttribute::serialize(LmOutputStream& out) const
{
    out << m_Value;
}

LmString LmSdpAttribute::getValue() const
{
    if (isChanged())
    {
        buildValue();
    }
    return m_Value;
}

void LmSdpAttribute::buildValue() const {}
