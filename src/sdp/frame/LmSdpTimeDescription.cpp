#include "sdp/frame/LmSdpTimeDescription.h"

const LmSdpDescription::FieldTokens& LmSdpTimeDescription::sFieldTokens()
{
    static const FieldTokens& s_Tokens = *new FieldTokens("tr"); // outlives every object
    return s_Tokens;
}

LmSdpTimeDescription::LmSdpTimeDescription() : LmSdpDescription("t", sFieldTokens()) {}

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
