#pragma once

#include "core/FileLogger.h"

namespace Quorvex
{

/// Marks an operation in the log at trace level: "Entering " and its name at the start, "Leaving " and its name at
/// every way out, exceptions included. It costs a level test when nobody listens, and changes nothing else.
class HARNWICK_CORE_API TraceScope
{
public:
    /// `name` is a string literal; `pLogger` may be null, which makes a silent scope.
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): a silent scope has nothing to remember
    TraceScope(const Logger* pLogger, const char* name) : m_Active(false)
    {
        if (__builtin_expect(pLogger != nullptr, 0))
        {
            begin(pLogger, name);
        }
    }

    /// The same with the logger of a source file.
    TraceScope(FileLogger& fileLogger, const char* name) : TraceScope(fileLogger.listening(eTrace), name) {}

    TraceScope(const TraceScope&) = delete;
    TraceScope& operator=(const TraceScope&) = delete;

    ~TraceScope()
    {
        if (__builtin_expect(m_Active, 0))
        {
            dtorLog();
        }
    }

protected:
    ///@{
    /// Write the two lines.
    [[gnu::cold]] void ctorLog() const;
    [[gnu::cold]] void dtorLog() const;
    ///@}

private:
    /// The way of a logger that somebody may listen to.
    [[gnu::cold]] void begin(const Logger* pLogger, const char* name);

    const Logger* m_pLogger;
    const char* m_Name;
    bool m_Active;
};

} // namespace Quorvex
