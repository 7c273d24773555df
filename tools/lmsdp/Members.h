#pragma once

#include "Json.h"
#include "LmSdpObject.h"
#include "Text.h"

namespace lmsdp
{

/// What a typed line holds, by name; empty for a line without a class of its own. Values that a line need not have
/// are left out where it has none.
Json membersOf(LmSdpField& field, Keys keys);

} // namespace lmsdp
