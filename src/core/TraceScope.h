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
    TraceScope(const Logger* pLogger, const char* name) : m_pLogger(pLogger), m_Name(name), m_Active(isTraced(pLogger))
    {
        if (m_Active)
        {
            ctorLog();
        }
    }

    /// The same with the logger of a source file.
    TraceScope(FileLogger& fileLogger, const char* name) : TraceScope(fileLogger.listening(eTrace), name) {}

    TraceScope(const TraceScope&) = delete;
    TraceScope& operator=(const TraceScope&) = delete;

    ~TraceScope()
    {
        if (m_Active)
        {
            dtorLog();
        }
    }

protected:
    ///@{
    /// Write the two lines.
    __attribute__((cold)) void ctorLog() const;
    __attribute__((cold)) void dtorLog() const;
    ///@}

private:
    static bool isTraced(const Logger* pLogger) { return pLogger != nullptr && isWanted(*pLogger); }
    static bool isWanted(const Logger& logger);

    const Logger* m_pLogger;
    const char* m_Name;
    bool m_Active;
};

} // namespace Quorvex
