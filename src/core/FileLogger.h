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
    /// `category` is a string literal. Nothing is made yet.
    explicit constexpr FileLogger(const char* category) : m_Category(category) {}

    FileLogger(const FileLogger&) = delete;
    FileLogger& operator=(const FileLogger&) = delete;

    /// The logger; null once the process is on its way out.
    Logger* get()
    {
        Logger* const pLogger = m_pLogger.load(std::memory_order_acquire);
        return __builtin_expect(pLogger != nullptr, 1) ? pLogger : make();
    }

    /// The logger, unless it would drop a line at `level`: null then, and so it is for every lower level.
    const Logger* listening(int level)
    {
        const Logger* const pLogger = get();
        return __builtin_expect(pLogger == nullptr, 0) || pLogger->isSilentAt(level) ? nullptr : pLogger;
    }

private:
    [[gnu::cold]] Logger* make();

    const char* m_Category;
    std::atomic<Logger*> m_pLogger{nullptr};
    std::atomic<bool> m_Made{false};
};

/// What a log statement asks for its logger: a source file's, or one that was asked before.
inline const Logger* listening(FileLogger& fileLogger, int level)
{
    return fileLogger.listening(level);
}
inline const Logger* listening(const Logger* pLogger, int)
{
    return pLogger;
}

} // namespace Quorvex
