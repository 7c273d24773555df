#include "core/AceCleanupLogger.h"

#include "core/ProcessExit.h"

#include <new>

namespace Quorvex
{

AceCleanupLogger::AceCleanupLogger(const char* category) : AceCleanupLogger(category, nullptr) {}

AceCleanupLogger::AceCleanupLogger(const char* category, std::atomic<Logger*>* slot) : Logger(category), m_Slot(slot)
{
    ProcessExit::sAdd(this, &AceCleanupLogger::sCleanUp, category);
}

AceCleanupLogger::~AceCleanupLogger()
{
    if (m_Slot != nullptr)
    {
        m_Slot->store(nullptr);
    }
}

void* AceCleanupLogger::operator new(std::size_t size)
{
    return ::operator new(size);
}

void AceCleanupLogger::operator delete(void* block)
{
    ::operator delete(block);
}

void AceCleanupLogger::sCleanUp(void* object, void*)
{
    delete static_cast<AceCleanupLogger*>(object);
}

} // namespace Quorvex
