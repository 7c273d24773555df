#pragma once

#include "core/FileLogger.h"

#include <sstream>

/// Writes one log line at `level` (a Quorvex::LogLevel) through the FileLogger `fileLogger`. `source` names the source
/// file. `message` is a chain of insertions (`"a=" << a`), evaluated only when the line is going to be written.
#define QUORVEX_LOG(fileLogger, level, source, message)                                                                \
    do                                                                                                                 \
    {                                                                                                                  \
        const Quorvex::Logger* const pQuorvexLogger = (fileLogger).get();                                              \
        if (pQuorvexLogger != nullptr && !pQuorvexLogger->isSilentAt(level) && pQuorvexLogger->isEnabledFor(level) &&  \
            pQuorvexLogger->isReady() != 0)                                                                            \
        {                                                                                                              \
            std::ostringstream quorvexText;                                                                            \
            quorvexText << message;                                                                                    \
            pQuorvexLogger->log(level, quorvexText.str(), source, __LINE__);                                           \
        }                                                                                                              \
    } while (false)
