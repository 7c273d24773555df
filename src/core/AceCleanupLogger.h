#pragma once

#include "core/Logger.h"

#include <atomic>
#include <cstddef>

namespace Quorvex
{

/// A logger that ends with the process: it is made with `new`, never deleted by its maker, and taken down through
/// ACE_Object_Manager when the process exits.
class HARNWICK_CORE_API AceCleanupLogger : public Logger
{
public:
    explicit AceCleanupLogger(const char* category);

    /// Also empties `slot` when this logger is taken down, so that nobody finds it there afterwards.
    AceCleanupLogger(const char* category, std::atomic<Logger*>* slot);

    AceCleanupLogger(const AceCleanupLogger&) = delete;
    AceCleanupLogger& operator=(const AceCleanupLogger&) = delete;
    ~AceCleanupLogger() override;

    static void* operator new(std::size_t size);
    static void operator delete(void* block);

private:
    static void sCleanUp(void* object, void* parameter);

    std::atomic<Logger*>* m_Slot;
};

} // namespace Quorvex
