#include "core/TraceScope.h"

#include <string>

namespace Quorvex
{

bool TraceScope::isWanted(const Logger& logger)
{
    const LogLevel level = logger.getLogLevel();
    const bool wanted = level == eNotSet ? logger.isEnabledFor(eTrace) : level <= eTrace;
    return wanted && logger.isReady() != 0;
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
