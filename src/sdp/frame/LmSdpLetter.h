#pragma once

#include "LmLibs/LmUtil/LmString.h"
#include "sdp/LmSdpExport.h"

/// The token of a line or description as a text. The letters a to z are made once and shared, so that the token of a
/// line takes no memory.
LMSDP_API LmString lmSdpToken(const char* token);
