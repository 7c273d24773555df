// What a program does with one body after the other: reads it, writes it, or works through the facade. Each with
// logging as a host leaves it that never sets it up, the plain reading also with its levels off and with debug lines
// that go nowhere.

#include "Bodies.h"
#include "support/Allocations.h"

#include <log4cplus/logger.h>
#include <log4cplus/nullappender.h>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace
{

/// Besides the time of one body: bytes of text per second, and what each body asks of the system's allocator.
void measure(benchmark::State& state, const std::string& body, const std::function<void()>& action)
{
    action();
    const Allocations before = Allocations::soFar();
    for (auto _ : state)
    {
        action();
    }
    const Allocations after = Allocations::soFar();
    const auto iterations = static_cast<double>(state.iterations());
    const double calls = static_cast<double>(after.calls - before.calls) / iterations;
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(body.size()));
    state.counters["calls/body"] = calls;
    state.counters["calls/line"] = calls / static_cast<double>(countLines(body));
    state.counters["bytes/body"] = static_cast<double>(after.bytes - before.bytes) / iterations;
}

void readBody(benchmark::State& state, const std::string& name)
{
    const std::string body = bodyNamed(name);
    const LmHandle<LmByteArray> hBytes = bytesOf(body);
    measure(state, body, [&hBytes] {
        LmSdpMsg msg;
        read(msg, hBytes);
    });
}

void readAndWriteBody(benchmark::State& state, const std::string& name)
{
    const std::string body = bodyNamed(name);
    const LmHandle<LmByteArray> hBytes = bytesOf(body);
    measure(state, body, [&hBytes] {
        LmSdpMsg msg;
        read(msg, hBytes);
        LmStringOutputStream out;
        msg.serialize(out);
    });
}

void writeBody(benchmark::State& state, const std::string& name)
{
    const std::string body = bodyNamed(name);
    LmSdpMsg msg;
    read(msg, bytesOf(body));
    LmStringOutputStream out;
    measure(state, body, [&msg, &out] {
        out.clear();
        msg.serialize(out);
    });
}

void readStreams(benchmark::State& state, const std::string& name)
{
    std::string body = bodyNamed(name);
    measure(state, body, [&body] {
        benchmark::DoNotOptimize(
            LmMediaSession::sCreateSession(body.data(), static_cast<unsigned int>(body.size())).isNull());
    });
}

/// Builds the local body of the streams that a body has.
void buildLocalBody(benchmark::State& state, const std::string& name)
{
    std::string body = bodyNamed(name);
    const LmHandle<LmMediaSession> hSession =
        LmMediaSession::sCreateSession(body.data(), static_cast<unsigned int>(body.size()));
    if (hSession.isNull() || hSession->getStreams().empty())
    {
        state.SkipWithError("no streams in this body");
        return;
    }
    const std::vector<LmHandle<LmMediaStream>>& streams = hSession->getStreams();
    std::string built;
    const auto build = [&streams](std::string* text) {
        LmMediaSession session(streams.front());
        std::for_each(streams.begin() + 1, streams.end(),
                      [&session](const LmHandle<LmMediaStream>& hStream) { session.addStream(hStream); });
        const auto* const begin = static_cast<const char*>(session.getBody());
        if (text != nullptr)
        {
            text->assign(begin, session.getBodyLength());
        }
    };
    build(&built);
    measure(state, built, [&build] { build(nullptr); });
}

/// The bytes that the calling process has more when it holds a tree, out of many.
double bytesOfTree(const LmHandle<LmByteArray>& hBytes)
{
    constexpr std::size_t trees = 400;
    std::vector<LmSdpMsg> msgs(trees);
    const std::size_t before = bytesInUse();
    for (LmSdpMsg& msg : msgs)
    {
        read(msg, hBytes);
    }
    return static_cast<double>(bytesInUse() - before) / trees;
}

/// What a tree takes for each byte of its text. In a process of its own, where no block of an earlier tree serves it.
void holdTree(benchmark::State& state, const std::string& name)
{
    const std::string body = bodyNamed(name);
    const LmHandle<LmByteArray> hBytes = bytesOf(body);
    for (auto _ : state)
    {
        int ends[2] = {};
        if (::pipe(ends) != 0)
        {
            throw std::runtime_error("no pipe");
        }
        const pid_t child = ::fork();
        if (child == 0)
        {
            const double held = bytesOfTree(hBytes);
            ::_exit(::write(ends[1], &held, sizeof held) == sizeof held ? 0 : 1);
        }
        ::close(ends[1]);
        double held = 0;
        if (::read(ends[0], &held, sizeof held) != sizeof held)
        {
            state.SkipWithError("the process that holds the trees has failed");
        }
        ::close(ends[0]);
        ::waitpid(child, nullptr, 0);
        state.counters["bytes/body"] = held;
        state.counters["times the text"] = held / static_cast<double>(body.size());
    }
}

void switchLevelsOff(const benchmark::State&)
{
    log4cplus::Logger::getRoot().setLogLevel(log4cplus::OFF_LOG_LEVEL);
}

void listenAndDrop(const benchmark::State&)
{
    log4cplus::Logger::getRoot().setLogLevel(log4cplus::DEBUG_LOG_LEVEL);
    log4cplus::Logger::getRoot().addAppender(log4cplus::SharedAppenderPtr(new log4cplus::NullAppender));
}

void leaveAsItWas(const benchmark::State&)
{
    log4cplus::Logger::getRoot().removeAllAppenders();
    log4cplus::Logger::getRoot().setLogLevel(log4cplus::DEBUG_LOG_LEVEL);
}

using Run = void (*)(benchmark::State&, const std::string& name);

benchmark::internal::Benchmark* add(const std::string& what, const char* name, Run run)
{
    return benchmark::RegisterBenchmark((what + "/" + name).c_str(), run, std::string(name));
}

struct Task
{
    const char* what;
    Run run;
};
constexpr Task g_Tasks[] = {{"read", &readBody},
                            {"read+write", &readAndWriteBody},
                            {"write", &writeBody},
                            {"streams", &readStreams},
                            {"build local body", &buildLocalBody}};

} // namespace

void registerMessages()
{
    for (const char* const name : g_Names)
    {
        add("hold", name, &holdTree)->Iterations(1);
    }
    for (const Task& task : g_Tasks)
    {
        for (const char* const name : g_Names)
        {
            add(task.what, name, task.run);
        }
    }
    for (const char* const name : g_Names)
    {
        add("read, levels off", name, &readBody)->Setup(&switchLevelsOff)->Teardown(&leaveAsItWas);
        add("read, debug lines dropped", name, &readBody)->Setup(&listenAndDrop)->Teardown(&leaveAsItWas);
    }
    for (const Task& task : g_Tasks)
    {
        for (const GeneratedBody& body : g_Generated)
        {
            add(task.what, body.name, task.run);
        }
    }
}
