#include "support/LogCapture.h"

#include <log4cplus/spi/loggingevent.h>

class LogCapture::Collector : public log4cplus::Appender
{
public:
    ~Collector() override { destructorImpl(); }

    void close() override {}

    std::vector<LogLine> lines;

protected:
    void append(const log4cplus::spi::InternalLoggingEvent& event) override
    {
        lines.push_back(
            {event.getLoggerName(), event.getLogLevel(), event.getMessage(), event.getFile(), event.getLine()});
    }
};

std::ostream& operator<<(std::ostream& out, const LogLine& logLine)
{
    return out << logLine.logger << " " << logLine.level << " " << logLine.source << ":" << logLine.line << " "
               << logLine.message;
}

LogCapture::LogCapture(const char* category, int level)
    : m_Logger(log4cplus::Logger::getInstance(category))
    , m_FormerLevel(m_Logger.getLogLevel())
    , m_Collector(new Collector)
{
    m_Logger.addAppender(log4cplus::SharedAppenderPtr(m_Collector.get()));
    m_Logger.setLogLevel(level);
}

LogCapture::~LogCapture()
{
    m_Logger.setLogLevel(m_FormerLevel);
    m_Logger.removeAppender(log4cplus::SharedAppenderPtr(m_Collector.get()));
}

const std::vector<LogLine>& LogCapture::lines() const
{
    return m_Collector->lines;
}

std::vector<std::string> LogCapture::messages() const
{
    std::vector<std::string> messages;
    for (const LogLine& logLine : lines())
    {
        messages.push_back(logLine.message);
    }
    return messages;
}
