#include "core/Assertion.h"

#include "support/LiveObjects.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace
{

using Quorvex::Assertion;

std::vector<std::string> g_Raised;

void collect(const char* expression, const char* file, int line)
{
    g_Raised.push_back(std::string(expression) + " " + file + " " + std::to_string(line));
}

TEST(Assertion, CallsTheHandlerWhenTheConditionHasFailed)
{
    g_Raised.clear();
    const Assertion::Handler former = Assertion::setHandler(&collect);
    Assertion(false, "a == b", "SomeFile", 7);
    Assertion(true, "a == b", "SomeFile", 8);
    EXPECT_EQ(Assertion::setHandler(nullptr), &collect);
    EXPECT_EQ(Assertion::setHandler(nullptr), former) << "a null pointer restores the default";
    EXPECT_THAT(g_Raised, testing::ElementsAre("a == b SomeFile 7"));
}

TEST(Assertion, ReportsAtFatalLevelByDefaultAndReturns)
{
    const LogCapture capture("harnwick.core.Assertion", 10000);
    Assertion(false, "a == b", "SomeFile", 7);
    ASSERT_EQ(capture.lines().size(), 1u);
    const LogLine& line = capture.lines().front();
    EXPECT_EQ(line.logger, "harnwick.core.Assertion");
    EXPECT_EQ(line.level, 50000);
    EXPECT_EQ(line.source, "SomeFile");
    EXPECT_THAT(line.message, testing::HasSubstr("a == b"));
}

} // namespace
