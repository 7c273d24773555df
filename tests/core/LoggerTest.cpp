#include "core/Logger.h"

#include "core/AceCleanupLogger.h"
#include "core/FileLogger.h"
#include "core/LogStatement.h"
#include "core/TraceScope.h"
#include "support/LogCapture.h"
#include "support/Matchers.h"

#include <gmock/gmock.h>
#include <log4cplus/hierarchy.h>

#include <stdexcept>
#include <vector>

namespace
{

using Quorvex::FileLogger;
using Quorvex::Logger;
using Quorvex::TraceScope;
using testing::ElementsAre;

FileLogger s_FileLogger("test.parent.child");

/// What a statement at each level, and a trace scope, would write with these levels set.
struct LevelRow
{
    const char* name;
    int parent; ///< -1: not set, that of the root counts, which is debug
    int own;
    bool trace;
    bool debug;
    bool error;
};

void expectLevels(const LevelRow& row)
{
    SCOPED_TRACE(row.name);
    const LogCapture parent("test.parent", row.parent);
    const LogCapture own("test.parent.child", row.own);

    EXPECT_EQ(s_FileLogger.get()->getLogLevel(), row.own);
    const auto statement = [&own](Quorvex::LogLevel level) {
        const std::size_t before = own.lines().size();
        int evaluated = 0;
        QUORVEX_LOG(s_FileLogger, level, "LoggerTest", "evaluated " << ++evaluated);
        EXPECT_EQ(own.lines().size() - before, static_cast<std::size_t>(evaluated));
        return evaluated != 0;
    };
    EXPECT_EQ(statement(Quorvex::eDebug), row.debug);
    EXPECT_EQ(statement(Quorvex::eError), row.error);
    const std::size_t before = own.lines().size();
    {
        const TraceScope scope(s_FileLogger, "Class::operation");
    }
    EXPECT_EQ(own.lines().size() - before, row.trace ? 2u : 0u);
    EXPECT_EQ(parent.lines().size(), own.lines().size()) << "the appender above gets the same lines";
}

TEST(LogLevels, DecideWhatIsWritten)
{
    expectLevels({"none set", -1, -1, false, true, true});
    expectLevels({"parent: trace", 0, -1, true, true, true});
    expectLevels({"parent: debug", 10000, -1, false, true, true});
    expectLevels({"parent: error", 40000, -1, false, false, true});
    expectLevels({"parent: off", 60000, -1, false, false, false});
    expectLevels({"own: trace", 60000, 0, true, true, true});
    expectLevels({"own: 1", 0, 1, false, true, true});
    expectLevels({"own: debug", 0, 10000, false, true, true});
    expectLevels({"own: error", 0, 40000, false, false, true});
    expectLevels({"own: off", 0, 60000, false, false, false});
}

TEST(Logger, OwnLevelDecidesATraceScopeWhateverElseIsSwitchedOff)
{
    const LogCapture own("test.parent.child", 0);
    log4cplus::Hierarchy& hierarchy = log4cplus::Logger::getDefaultHierarchy();
    hierarchy.disable(log4cplus::FATAL_LOG_LEVEL);
    {
        const TraceScope scope(s_FileLogger, "Class::operation");
        QUORVEX_LOG(s_FileLogger, Quorvex::eDebug, "LoggerTest", "not written");
    }
    hierarchy.enableAll();
    EXPECT_THAT(own.messages(), ElementsAre("Entering Class::operation", "Leaving Class::operation"));
}

TEST(Logger, LinesCarryTheirLevelSourceAndLine)
{
    const LogCapture own("test.parent.child", 0);
    const int line = __LINE__ + 1;
    QUORVEX_LOG(s_FileLogger, Quorvex::eError, "SourceName", "Can not find key " << 3);
    {
        const TraceScope scope(s_FileLogger, "Class::operation");
    }
    ASSERT_EQ(own.lines().size(), 3u);
    const LogLine& statement = own.lines()[0];
    EXPECT_EQ(statement.logger, "test.parent.child");
    EXPECT_EQ(statement.level, 40000);
    EXPECT_EQ(statement.message, "Can not find key 3");
    EXPECT_EQ(statement.source, "SourceName");
    EXPECT_EQ(statement.line, line);
    EXPECT_EQ(own.lines()[1].level, 0);
    EXPECT_EQ(own.lines()[2].level, 0);
}

TEST(Logger, IsSilentAndEvaluatesNothingWhereNobodyListens)
{
    log4cplus::Logger::getInstance("test.parent").setLogLevel(0);
    EXPECT_EQ(s_FileLogger.get()->isReady(), 0u);
    int evaluated = 0;
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    {
        const TraceScope scope(s_FileLogger, "Class::operation");
        QUORVEX_LOG(s_FileLogger, Quorvex::eError, "LoggerTest", "evaluated " << ++evaluated);
    }
    EXPECT_EQ(testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(evaluated, 0);
    log4cplus::Logger::getInstance("test.parent").setLogLevel(-1);
}

TEST(Logger, IsReadyWhileAnAppenderInReachListens)
{
    const Logger& logger = *s_FileLogger.get();
    {
        const LogCapture above("test", -1);
        EXPECT_NE(logger.isReady(), 0u);
        log4cplus::Logger::getInstance("test.parent").setAdditivity(false);
        EXPECT_EQ(logger.isReady(), 0u) << "cut off from those above";
        log4cplus::Logger::getInstance("test.parent").setAdditivity(true);
    }
    EXPECT_EQ(logger.isReady(), 0u);
}

/// A logger whose answer is the test's to give.
class SwitchedLogger : public Logger
{
public:
    SwitchedLogger() : Logger("test.parent.child") {}

    std::uint64_t isReady() const override { return ready; }
    void log(Quorvex::LogLevel, const log4cplus::tstring& message, const char*, int) const override
    {
        if (fails)
        {
            throw std::runtime_error("the log can't be written");
        }
        messages.push_back(message);
    }

    std::uint64_t ready = 1;
    bool fails = false;
    mutable std::vector<std::string> messages;
};

TEST(TraceScope, IsActiveFromTheStartOrNotAtAll)
{
    const LogCapture own("test.parent.child", 0);
    SwitchedLogger logger;
    {
        const TraceScope scope(&logger, "one");
        logger.ready = 0;
    }
    {
        const TraceScope scope(&logger, "two");
        logger.ready = std::uint64_t(1) << 32;
    }
    EXPECT_THAT(logger.messages, ElementsAre("Entering one", "Leaving one"));
    {
        const TraceScope scope(&logger, "three");
    }
    EXPECT_EQ(logger.messages.size(), 4u) << "any bit of the answer counts";
    const TraceScope withoutLogger(static_cast<const Logger*>(nullptr), "four");
}

TEST(TraceScope, ALogThatFailsOnTheWayOutEndsNothing)
{
    const LogCapture own("test.parent.child", 0);
    SwitchedLogger logger;
    const TraceScope scope(&logger, "one");
    logger.fails = true;
}

TEST(FileLogger, MakesALoggerOfItsCategory)
{
    EXPECT_NE(dynamic_cast<Quorvex::AceCleanupLogger*>(s_FileLogger.get()), nullptr);
    EXPECT_STREQ(s_FileLogger.get()->getCategory(), "test.parent.child");
    // It ends with the process.
    EXPECT_STREQ((new Quorvex::AceCleanupLogger("test.own"))->getCategory(), "test.own");
}

} // namespace
