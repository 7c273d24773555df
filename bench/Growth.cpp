// How the cost grows with the body: the exponent of the cost per body over a hundredfold size, and bodies far beyond
// anything that is sent, on a small stack, of which four times as much takes four times as long.

#include "Bodies.h"

#include <pthread.h>

#include <cmath>

namespace
{

using Generator = std::string (*)(std::size_t count);

void readOnce(const LmHandle<LmByteArray>& hBytes)
{
    LmSdpMsg msg;
    read(msg, hBytes);
}

double secondsToRead(const std::string& body, int runs)
{
    const LmHandle<LmByteArray> hBytes = bytesOf(body);
    return bestSeconds([&hBytes] { readOnce(hBytes); }, runs);
}

void growHundredfold(benchmark::State& state, Generator generate, std::size_t smallest)
{
    constexpr int runs = 15;
    for (auto _ : state)
    {
        const double few = secondsToRead(generate(smallest), 100 * runs);
        const double some = secondsToRead(generate(smallest * 10), 10 * runs);
        const double many = secondsToRead(generate(smallest * 100), runs);
        state.counters["exponent, first ten"] = std::log10(some / few);
        state.counters["exponent"] = std::log(many / few) / std::log(100.0);
        state.counters["us, smallest"] = few * 1e6;
        state.counters["us, largest"] = many * 1e6;
    }
}

/// 512 KiB, whatever the host's threads have.
void onSmallStack(const std::function<void()>& action)
{
    pthread_attr_t attributes;
    ::pthread_attr_init(&attributes);
    ::pthread_attr_setstacksize(&attributes, 512 * 1024);
    pthread_t thread{};
    const auto run = [](void* argument) -> void* {
        (*static_cast<const std::function<void()>*>(argument))();
        return nullptr;
    };
    ::pthread_create(&thread, &attributes, run, const_cast<std::function<void()>*>(&action));
    ::pthread_join(thread, nullptr);
    ::pthread_attr_destroy(&attributes);
}

/// The action is given a quarter of the count and then all of it.
void quadruple(benchmark::State& state, void (*action)(std::size_t count), std::size_t count)
{
    for (auto _ : state)
    {
        double quarter = 0;
        double whole = 0;
        onSmallStack([&] {
            quarter = bestSeconds([&] { action(count / 4); }, 3);
            whole = bestSeconds([&] { action(count); }, 3);
        });
        state.counters["ms"] = whole * 1e3;
        state.counters["of a quarter"] = whole / quarter;
    }
}

void readAttributes(std::size_t count)
{
    readOnce(bytesOf(bodyOfAttributes(count)));
}

void readSections(std::size_t count)
{
    readOnce(bytesOf(bodyOfSections(count)));
}

void readFormats(std::size_t count)
{
    const std::string body = sessionHead() + "m=audio 49170 RTP/AVP" + repeated(" 96", count) + "\r\n";
    try
    {
        readOnce(bytesOf(body));
    }
    catch (const LmSdpParseError&)
    {
        // So many formats are refused; that must not take long either.
    }
    LmSdpMediaField field("audio 49170 RTP/AVP 96");
    field.setMediaFormats(repeated(" 96", count).c_str());
    benchmark::DoNotOptimize(field.isMediaFormatPresent(1));
}

void readLongLine(std::size_t count)
{
    readOnce(bytesOf(sessionHead() + "a=x:" + std::string(count, 'x') + "\r\n"));
}

void readParameters(std::size_t count)
{
    const std::string value =
        "1 AES_CM_128_HMAC_SHA1_80 inline:WVNfX19zZW1jdGwgKCkgewkyMjA7fQp9CnVubGVz" + repeated(" KDR=1", count);
    readOnce(bytesOf(sessionHead() + "a=crypto:" + value + "\r\n"));
}

void chainDescriptions(std::size_t count)
{
    LmSdpMsg msg;
    read(msg, bytesOf(sessionHead()));
    for (; count != 0; --count)
    {
        msg.addDescription(new LmSdpMediaDescription(nullptr, nullptr));
    }
}

const bool s_Registered = [] {
    struct Limit
    {
        const char* name;
        void (*action)(std::size_t count);
        std::size_t count;
    };
    constexpr Limit limits[] = {{"1,000,000 attributes", &readAttributes, 1000000},
                                {"100,000 media sections", &readSections, 100000},
                                {"1,000,000 formats", &readFormats, 1000000},
                                {"a line of 50 MB", &readLongLine, 50000000},
                                {"1,000,000 crypto parameters", &readParameters, 1000000},
                                {"100,000 added descriptions", &chainDescriptions, 100000}};
    benchmark::RegisterBenchmark("grow/attributes from 1,000", &growHundredfold, &bodyOfAttributes, 1000)
        ->Iterations(1);
    benchmark::RegisterBenchmark("grow/media sections from 100", &growHundredfold, &bodyOfSections, 100)->Iterations(1);
    for (const Limit& limit : limits)
    {
        benchmark::RegisterBenchmark((std::string("limit/") + limit.name).c_str(), &quadruple, limit.action,
                                     limit.count)
            ->Iterations(1);
    }
    return true;
}();

} // namespace
