#pragma once

#include "core/CoreExport.h"

#include <log4cplus/logger.h>
#include <log4cplus/spi/loggerimpl.h>

#include <cstdint>

namespace Quorvex
{

/// The log levels in use, with log4cplus's numbers.
enum LogLevel : int
{
    eNotSet = -1,
    eTrace = 0,
    eDebug = 10000,
    eError = 40000,
    eFatal = 50000
};

/// A log4cplus logger that also says whether a line would reach anybody.
class HARNWICK_CORE_API Logger : public log4cplus::Logger
{
public:
    /// The logger of `category`, shared with everybody who asks log4cplus for that name.
    explicit Logger(const char* category);

    ///@{
    /// A copy writes to the same place.
    Logger(const Logger&) = default;
    Logger& operator=(const Logger&) = default;
    ///@}
    ~Logger() override;

    /// The level set for this logger itself, `eNotSet` when it takes the level of those above it.
    LogLevel getLogLevel() const { return static_cast<LogLevel>(log4cplus::Logger::getLogLevel()); }

    /// log4cplus's own answer. Most statements are below the level in force, and learn so without a call.
    bool isEnabledFor(int level) const { return level >= chainedLevel() && log4cplus::Logger::isEnabledFor(level); }

    /// True when a line at `level` can be dropped without asking any further: the level in force is above it, or no
    /// appender listens. It reads log4cplus's state without a lock and without a call, so a line that is written
    /// while another thread sets logging up may be missed.
    bool isSilentAt(int level) const { return !isHeard() || level < chainedLevel(); }

    /// Not zero when at least one appender, of this logger or of those above it, would take a line now.
    virtual std::uint64_t isReady() const;

    /// The name under which log4cplus knows this logger.
    virtual const char* getCategory() const;

    /// Writes `message` without asking the levels again. `source` names the source file, and `line` its line.
    virtual void log(LogLevel level, const log4cplus::tstring& message, const char* source, int line) const;

private:
    /// Opens the protected state of log4cplus's logger: its own way to it locks and copies the appender list.
    struct Impl : log4cplus::spi::LoggerImpl
    {
        static int level(const LoggerImpl& impl) { return impl.*(&Impl::ll); }
        static const LoggerImpl* above(const LoggerImpl& impl) { return (impl.*(&Impl::parent)).get(); }
        static bool hasAppender(const LoggerImpl& impl) { return !(impl.*(&Impl::appenderList)).empty(); }
        static bool isAdditive(const LoggerImpl& impl) { return impl.*(&Impl::additive); }
    };

    int chainedLevel() const
    {
        const log4cplus::spi::LoggerImpl* impl = value;
        while (Impl::level(*impl) == eNotSet && Impl::above(*impl) != nullptr)
        {
            impl = Impl::above(*impl);
        }
        return Impl::level(*impl);
    }

    bool isHeard() const
    {
        const log4cplus::spi::LoggerImpl* impl = value;
        // Without appenders, which is the case to be quick in, all links are walked and none is jumped over.
        while (__builtin_expect(!Impl::hasAppender(*impl), 1))
        {
            if (__builtin_expect(!Impl::isAdditive(*impl) || Impl::above(*impl) == nullptr, 0))
            {
                return false;
            }
            impl = Impl::above(*impl);
        }
        return true;
    }
};

} // namespace Quorvex
