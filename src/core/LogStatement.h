#pragma once

#include "core/FileLogger.h"

#include <sstream>

/// Writes one log line at `level` (a Quorvex::LogLevel). `logger` is the FileLogger of the source file, or what its
/// `listening` gave. `source` names the source file. `message` is a chain of insertions (`"a=" << a`), evaluated only
/// when the line is going to be written.
#define QUORVEX_LOG(logger, level, source, message)                                                                    \
    do                                                                                                                 \
    {                                                                                                                  \
        const Quorvex::Logger* const pQuorvexLogger = Quorvex::listening(logger, level);                               \
        if (pQuorvexLogger != nullptr && pQuorvexLogger->isEnabledFor(level) && pQuorvexLogger->isReady() != 0)        \
        {                                                                                                              \
            std::ostringstream quorvexText;                                                                            \
            quorvexText << message;                                                                                    \
            pQuorvexLogger->log(level, quorvexText.str(), source, __LINE__);                                           \
        }                                                                                                              \
    } while (false)
