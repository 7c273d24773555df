// What a program does with one body after the other: reads it, writes it, or works through the facade. Each with
// logging as a host leaves it that never sets it up, the plain reading also with its levels off and with debug lines
// that go nowhere.

#include "Bodies.h"
#include "support/Allocations.h"

#include <log4cplus/logger.h>
#include <log4cplus/nullappender.h>

#include <vector>

namespace
{

void measure(benchmark::State& state, const std::string& body, const std::function<void()>& action)
{
    action();
    const std::uint64_t before = Allocations::soFar().calls;
    for (auto _ : state)
    {
        action();
    }
    const auto calls = static_cast<double>(Allocations::soFar().calls - before);
    report(state, body.size(), calls);
    state.counters["calls/line"] =
        calls / static_cast<double>(state.iterations()) / static_cast<double>(countLines(body));
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

/// The bytes that a tree holds for each byte of its text, of many trees at once.
void holdTree(benchmark::State& state, const std::string& name)
{
    constexpr std::size_t trees = 400;
    const std::string body = bodyNamed(name);
    const LmHandle<LmByteArray> hBytes = bytesOf(body);
    for (auto _ : state)
    {
        std::vector<LmSdpMsg> msgs(trees);
        const std::size_t before = bytesInUse();
        for (LmSdpMsg& msg : msgs)
        {
            read(msg, hBytes);
        }
        const auto held = static_cast<double>(bytesInUse() - before) / trees;
        state.counters["bytes/body"] = held;
        state.counters["times the text"] = held / static_cast<double>(body.size());
    }
}

void buildLocalBody(benchmark::State& state)
{
    const LmHandle<LmMediaStream> hStream =
        new LmMediaStream(LmMediaStream::AUDIO, 49170, LmInetAddress("192.0.2.1", nullptr, 0));
    hStream->addCodecs(
        {LmCodecDescription(0, "PCMU"), LmCodecDescription(8, "PCMA"), LmCodecDescription(101, "telephone-event")});
    unsigned int length = 0;
    const std::uint64_t before = Allocations::soFar().calls;
    for (auto _ : state)
    {
        LmMediaSession session(hStream);
        benchmark::DoNotOptimize(session.getBody());
        length = session.getBodyLength();
    }
    const auto calls = static_cast<double>(Allocations::soFar().calls - before);
    report(state, length, calls);
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

void nameAll(const char* what, void (*run)(benchmark::State&, const std::string&))
{
    for (const std::string name : g_Names)
    {
        benchmark::RegisterBenchmark((what + name).c_str(), run, name);
    }
}

/// The tree is held first of all, when no block of an earlier body can serve it.
const bool s_Registered = [] {
    for (const std::string name : g_Names)
    {
        benchmark::RegisterBenchmark(("hold/" + name).c_str(), &holdTree, name)->Iterations(1);
    }
    nameAll("read/", &readBody);
    nameAll("read+write/", &readAndWriteBody);
    nameAll("write/", &writeBody);
    nameAll("streams/", &readStreams);
    benchmark::RegisterBenchmark("build local body", &buildLocalBody);
    for (const std::string name : g_Names)
    {
        benchmark::RegisterBenchmark(("read, levels off/" + name).c_str(), &readBody, name)
            ->Setup(&switchLevelsOff)
            ->Teardown(&leaveAsItWas);
        benchmark::RegisterBenchmark(("read, debug lines dropped/" + name).c_str(), &readBody, name)
            ->Setup(&listenAndDrop)
            ->Teardown(&leaveAsItWas);
    }
    return true;
}();

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
    {
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    return s_Registered ? 0 : 1;
}
