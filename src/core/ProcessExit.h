#pragma once

#include "core/CoreExport.h"

namespace Quorvex
{

/// What is to be taken down when the process exits, through ACE_Object_Manager.
class HARNWICK_CORE_API ProcessExit
{
public:
    ProcessExit() = delete;

    /// Has `cleanUp` called with `object` and a null pointer, last one first. `name` is for ACE's eyes.
    static void sAdd(void* object, void (*cleanUp)(void* object, void* parameter), const char* name);
};

} // namespace Quorvex
