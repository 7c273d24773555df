// Two threads that each read bodies of their own, against one.

#include "Bodies.h"
#include "support/ProcessorTime.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

namespace
{

struct Work
{
    long bodies = 0;
    double processorSeconds = 0;
};

void readUntil(const std::atomic<bool>& stop, const LmHandle<LmByteArray>& hBytes, Work& work)
{
    const double start = processorSeconds();
    while (!stop)
    {
        LmSdpMsg msg;
        read(msg, hBytes);
        ++work.bodies;
    }
    work.processorSeconds = processorSeconds() - start;
}

/// What so many threads do together in the same time.
Work workOf(const std::string& body, std::size_t threadCount)
{
    constexpr std::chrono::milliseconds duration(100);
    std::atomic<bool> stop{false};
    std::vector<Work> works(threadCount);
    std::vector<std::thread> threads;
    for (Work& work : works)
    {
        threads.emplace_back([&stop, &work, &body] {
            Work own;
            readUntil(stop, bytesOf(body), own);
            work = own;
        });
    }
    std::this_thread::sleep_for(duration);
    stop = true;
    Work all;
    for (std::size_t i = 0; i < threadCount; ++i)
    {
        threads[i].join();
        all.bodies += works[i].bodies;
        all.processorSeconds += works[i].processorSeconds;
    }
    return all;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// By the clock, two threads are hindered by whatever else runs on the machine; by the time that they had a processor,
/// only by one another.
void readInThreads(benchmark::State& state, const std::string& name)
{
    constexpr int rounds = 9;
    const std::string body = bodyNamed(name);
    for (auto _ : state)
    {
        std::vector<double> byClock;
        std::vector<double> byProcessor;
        for (int i = 0; i < rounds; ++i)
        {
            const Work one = workOf(body, 1);
            const Work two = workOf(body, 2);
            const double ratio = static_cast<double>(two.bodies) / static_cast<double>(one.bodies);
            byClock.push_back(ratio);
            byProcessor.push_back(2 * ratio * one.processorSeconds / two.processorSeconds);
        }
        state.counters["two to one"] = median(byClock);
        state.counters["two to one, processor time"] = median(byProcessor);
    }
}

} // namespace

void registerThreads()
{
    for (const char* const name : g_Names)
    {
        benchmark::RegisterBenchmark((std::string("threads/") + name).c_str(), &readInThreads, std::string(name))
            ->Iterations(1);
    }
}
