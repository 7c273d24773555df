#include "core/TraceScope.h"

#include <string>

namespace Quorvex
{

void TraceScope::begin(const Logger* pLogger, const char* name)
{
    m_pLogger = pLogger;
    m_Name = name;
    const LogLevel level = pLogger->getLogLevel();
    const bool isWanted = level == eNotSet ? pLogger->isEnabledFor(eTrace) : level <= eTrace;
    m_Active = isWanted && pLogger->isReady() != 0;
    if (m_Active)
    {
        ctorLog();
    }
}

void TraceScope::ctorLog() const
{
    m_pLogger->log(eTrace, std::string("Entering ") + m_Name, m_Name, 0);
}

void TraceScope::dtorLog() const
try
{
    m_pLogger->log(eTrace, std::string("Leaving ") + m_Name, m_Name, 0);
}
catch (...)
{
    // A failed line of the log must not end the process on the way out of an operation.
}

} // namespace Quorvex
