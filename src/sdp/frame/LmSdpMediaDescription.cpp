#include "sdp/frame/LmSdpMediaDescription.h"

LmSdpMediaDescription::LmSdpMediaDescription() : LmSdpDescription("m", "micbka") {}

LmSdpMediaDescription::~LmSdpMediaDescription() = default;

void LmSdpMediaDescription::parse(LmInputStream& in)
{
    LmSdpDescription::parse(in);
}

LmSdpDescription* LmSdpMediaDescription::sConstruct()
{
    return new LmSdpMediaDescription;
}
