#pragma once

#include <log4cplus/appender.h>
#include <log4cplus/logger.h>

#include <ostream>
#include <string>
#include <vector>

/// One line of the log as an appender got it.
struct LogLine
{
    std::string logger;
    int level = 0;
    std::string message;
    std::string source;
    int line = 0;

    friend std::ostream& operator<<(std::ostream& out, const LogLine& logLine);
};

/// Collects what is logged under a category, and below it, while it lives. It sets the category's level for that
/// time, and puts everything back as it was afterwards.
class LogCapture
{
public:
    /// `level` is one of log4cplus's numbers: 0 trace, 10000 debug, 40000 error, -1 to take that of the one above.
    LogCapture(const char* category, int level);
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    const std::vector<LogLine>& lines() const;

    /// The messages alone.
    std::vector<std::string> messages() const;

private:
    class Collector;

    log4cplus::Logger m_Logger;
    log4cplus::LogLevel m_FormerLevel;
    log4cplus::helpers::SharedObjectPtr<Collector> m_Collector;
};
