#include "core/Assertion.h"

#include "core/FileLogger.h"
#include "core/LogStatement.h"

#include <atomic>

namespace Quorvex
{
namespace
{

FileLogger s_Logger("harnwick.core.Assertion");

void report(const char* expression, const char* file, int line)
{
    QUORVEX_LOG(s_Logger, eFatal, file, "Assertion failed: " << expression << ", line " << line);
}

std::atomic<Assertion::Handler> s_Handler{&report};

} // namespace

Assertion::Assertion(bool condition, const char* expression, const char* file, int line)
{
    if (!condition)
    {
        s_Handler.load()(expression, file, line);
    }
}

Assertion::Handler Assertion::setHandler(Handler handler)
{
    return s_Handler.exchange(handler != nullptr ? handler : &report);
}

} // namespace Quorvex
