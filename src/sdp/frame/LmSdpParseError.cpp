#include "sdp/frame/LmSdpParseError.h"

LmSdpParseError::LmSdpParseError() = default;

LmSdpParseError::LmSdpParseError(const char* message) : LmException(message) {}

LmSdpParseError::~LmSdpParseError() = default;

void LmSdpParseError::sThrow(const char* message)
{
    LmException::sThrow(new LmSdpParseError(message));
}
