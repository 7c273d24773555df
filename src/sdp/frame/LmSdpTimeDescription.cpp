#include "sdp/frame/LmSdpTimeDescription.h"

#include <type_traits>

namespace
{

constexpr const char* s_FieldTokens = "tr";

} // namespace

LmSdpTimeDescription::LmSdpTimeDescription()
    : LmSdpDescription("t", s_FieldTokens, std::integral_constant<std::uint32_t, sLettersOf(s_FieldTokens)>::value)
{
}

LmSdpTimeDescription::~LmSdpTimeDescription() = default;

void LmSdpTimeDescription::parse(LmInputStream& in)
{
    LmSdpDescription::parse(in);
}

void LmSdpTimeDescription::serialize(LmOutputStream& out)
{
    LmSdpDescription::serialize(out);
}

LmSdpDescription* LmSdpTimeDescription::sConstruct()
{
    return new LmSdpTimeDescription;
}
