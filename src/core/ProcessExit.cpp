#include "core/ProcessExit.h"

#include <ace/Object_Manager.h>

namespace Quorvex
{

void ProcessExit::sAdd(void* object, void (*cleanUp)(void* object, void* parameter), const char* name)
{
    ACE_Object_Manager::instance()->at_exit(object, cleanUp, nullptr, name);
}

} // namespace Quorvex
