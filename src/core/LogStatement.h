#pragma once

#include "core/FileLogger.h"

#include <sstream>

namespace Quorvex
{

/// The part of a log statement that runs only when the line is written, kept out of the way of the code around it.
template <typename Compose>
__attribute__((noinline, cold)) void writeLine(const Logger* pLogger, LogLevel level, const char* source, int line,
                                               const Compose& compose)
{
    if (pLogger->isEnabledFor(level) && pLogger->isReady() != 0)
    {
        std::ostringstream text;
        compose(text);
        pLogger->log(level, text.str(), source, line);
    }
}

} // namespace Quorvex

/// Writes one log line at `level` (a Quorvex::LogLevel). `logger` is the FileLogger of the source file, or what its
/// `listening` gave. `source` names the source file. `message` is a chain of insertions (`"a=" << a`), evaluated only
/// when the line is going to be written.
#define QUORVEX_LOG(logger, level, source, message)                                                                    \
    do                                                                                                                 \
    {                                                                                                                  \
        if (const Quorvex::Logger* const pQuorvexLogger = Quorvex::listening(logger, level))                           \
        {                                                                                                              \
            Quorvex::writeLine(pQuorvexLogger, level, source, __LINE__,                                                \
                               [&](std::ostream& quorvexText) { quorvexText << message; });                            \
        }                                                                                                              \
    } while (false)
