#include "sdp/frame/LmSdpMediaDescription.h"

const LmSdpDescription::FieldTokens& LmSdpMediaDescription::sFieldTokens()
{
    static const FieldTokens& s_Tokens = *new FieldTokens("micbka"); // outlives every object
    return s_Tokens;
}

LmSdpMediaDescription::LmSdpMediaDescription() : LmSdpDescription("m", sFieldTokens()) {}

LmSdpMediaDescription::~LmSdpMediaDescription() = default;

void LmSdpMediaDescription::parse(LmInputStream& in)
{
    LmSdpDescription::parse(in);
}

LmSdpDescription* LmSdpMediaDescription::sConstruct()
{
    return new LmSdpMediaDescription;
}
