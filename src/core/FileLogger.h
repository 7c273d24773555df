#pragma once

#include "core/Logger.h"

#include <atomic>

namespace Quorvex
{

/// The one logger of a source file, made at first use. A file that logs has one object of this class at file scope.
///
/// First use is safe from several threads. Where making the logger fails, the next use tries anew.
class HARNWICK_CORE_API FileLogger
{
public:
    explicit constexpr FileLogger(const char* category) : m_Category(category) {}

    FileLogger(const FileLogger&) = delete;
    FileLogger& operator=(const FileLogger&) = delete;

    /// The logger; null once the process is on its way out.
    Logger* get()
    {
        Logger* const pLogger = m_pLogger.load(std::memory_order_acquire);
        return pLogger != nullptr ? pLogger : make();
    }

private:
    Logger* make();

    const char* m_Category;
    std::atomic<Logger*> m_pLogger{nullptr};
    std::atomic<bool> m_Made{false};
};

} // namespace Quorvex
