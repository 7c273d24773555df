#pragma once

#include "Json.h"
#include "LmSdpObject.h"

namespace lmsdp
{

/// The media word of a stream.
const char* kindOf(const LmMediaStream& stream);

/// A list with the kind, port, address and codecs of each stream.
Json streamsJson(const std::vector<LmHandle<LmMediaStream>>& streams);

} // namespace lmsdp
