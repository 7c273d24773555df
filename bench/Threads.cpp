// Two threads that each read bodies of their own, against one.

#include "Bodies.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <vector>

namespace
{

using Clock = std::chrono::steady_clock;

/// Bodies per second of so many threads together.
double rate(const std::string& body, unsigned int threadCount)
{
    constexpr int bodies = 4000;
    std::vector<std::thread> threads;
    const Clock::time_point start = Clock::now();
    for (unsigned int i = 0; i < threadCount; ++i)
    {
        threads.emplace_back([&body] {
            const LmHandle<LmByteArray> hBytes = bytesOf(body);
            for (int j = 0; j < bodies; ++j)
            {
                LmSdpMsg msg;
                read(msg, hBytes);
            }
        });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    return bodies * threadCount / std::chrono::duration<double>(Clock::now() - start).count();
}

void readInThreads(benchmark::State& state, const std::string& name)
{
    constexpr int rounds = 9;
    const std::string body = bodyNamed(name);
    for (auto _ : state)
    {
        std::vector<double> ratios;
        for (int i = 0; i < rounds; ++i)
        {
            const double one = rate(body, 1);
            ratios.push_back(rate(body, 2) / one);
        }
        std::sort(ratios.begin(), ratios.end());
        state.counters["two to one"] = ratios[rounds / 2];
    }
}

const bool s_Registered = [] {
    for (const std::string name : g_Names)
    {
        benchmark::RegisterBenchmark(("threads/" + name).c_str(), &readInThreads, name)->Iterations(1);
    }
    return true;
}();

} // namespace
