#pragma once

#include "LmLibs/LmUtil/LmHandle.h"
#include "sdp/media/LmSdpAttribute.h"

#include <string_view>

/// The value object of an `a=` line: its class follows from the attribute's name. `text` stands behind the colon.
/// @throws what the class raises on its text
LmHandle<LmSdpAttribute> lmSdpAttributeValue(std::string_view name, std::string_view text);

/// The same for text that has no line end.
LmHandle<LmSdpAttribute> lmSdpAttributeValueOfLine(std::string_view name, std::string_view text);
