#pragma once

#include "LmLibs/LmUtil/LmInputStream.h"
#include "LmLibs/LmUtil/LmString.h"
#include "sdp/LmSdpExport.h"

#include <string_view>

/// A text of a line, as any other LmString. The words that nearly every body has (letters, attribute names, payload
/// types, encoding names, "IN", "IP4" and the like) are made once and shared, so that they take no memory and no
/// counting; any other text is copied.
LMSDP_API LmString lmSdpText(std::string_view text);

/// The token of a line or description; the single letters are shared.
LMSDP_API LmString lmSdpToken(const char* token);

/// The next word of this line, as `operator>>` takes it.
LMSDP_API LmString lmSdpWord(LmInputStream& in);
