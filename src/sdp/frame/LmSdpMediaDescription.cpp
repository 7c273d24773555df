#include "sdp/frame/LmSdpMediaDescription.h"

#include <type_traits>

namespace
{

constexpr const char* s_FieldTokens = "micbka";

} // namespace

LmSdpMediaDescription::LmSdpMediaDescription()
    : LmSdpDescription("m", s_FieldTokens, std::integral_constant<std::uint32_t, sLettersOf(s_FieldTokens)>::value)
{
}

LmSdpMediaDescription::~LmSdpMediaDescription() = default;

void LmSdpMediaDescription::parse(LmInputStream& in)
{
    LmSdpDescription::parse(in);
}

LmSdpDescription* LmSdpMediaDescription::sConstruct()
{
    return new LmSdpMediaDescription;
}
