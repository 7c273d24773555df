#include "sdp/frame/LmSdpTimeDescription.h"

LmSdpTimeDescription::LmSdpTimeDescription() : LmSdpDescription("t", "tr") {}

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
