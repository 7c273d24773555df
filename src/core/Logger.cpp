#include "core/Logger.h"

namespace Quorvex
{

Logger::Logger(const char* category) : log4cplus::Logger(log4cplus::Logger::getInstance(category)) {}

Logger::~Logger() = default;

std::uint64_t Logger::isReady() const
{
    return isHeard() ? 1 : 0;
}

const char* Logger::getCategory() const
{
    return getName().c_str();
}

void Logger::log(LogLevel level, const log4cplus::tstring& message, const char* source, int line) const
{
    forcedLog(level, message, source, line, "");
}

} // namespace Quorvex
