// How the cost grows with the body: the exponent of the cost per body over a hundredfold size, and bodies far beyond
// anything that is sent, on a small stack, of which four times as much takes four times as long.

#include "Bodies.h"

#include <malloc.h>
#include <pthread.h>

#include <cmath>
#include <stdexcept>

namespace
{

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

/// What is timed, with all that it works on.
using Action = std::function<void()>;

/// The action for a quarter of the count, and then for all of it.
void quadruple(benchmark::State& state, Action (*prepare)(std::size_t count), std::size_t count)
{
    const auto seconds = [prepare](std::size_t size) {
        const Action action = prepare(size);
        double best = 0;
        onSmallStack([&] { best = bestSeconds(action, 5); });
        return best;
    };
    // Large blocks come fresh from the system each time, whatever was freed before: otherwise the C library would keep
    // the smaller body's and not the larger one's.
    ::mallopt(M_MMAP_THRESHOLD, 128 * 1024);
    for (auto _ : state)
    {
        const double quarter = seconds(count / 4);
        const double whole = seconds(count);
        state.counters["ms"] = whole * 1e3;
        state.counters["of a quarter"] = whole / quarter;
    }
}

Action reading(const std::string& body)
{
    return [hBytes = bytesOf(body)] { readOnce(hBytes); };
}

Action readAttributes(std::size_t count)
{
    return reading(bodyOfAttributes(count));
}

Action readSections(std::size_t count)
{
    return reading(bodyOfSections(count));
}

/// So many formats are refused in a body; that must not take long either.
Action refuseFormats(std::size_t count)
{
    const std::string body = sessionHead() + "m=audio 49170 RTP/AVP" + repeated(" 96", count) + "\r\n";
    return [hBytes = bytesOf(body)] {
        try
        {
            readOnce(hBytes);
        }
        catch (const LmSdpParseError&)
        {
            return;
        }
        throw std::runtime_error("these formats were expected to be refused");
    };
}

Action findFormat(std::size_t count)
{
    return [formats = repeated(" 96", count)] {
        LmSdpMediaField field("audio 49170 RTP/AVP 96");
        field.setMediaFormats(formats.c_str());
        benchmark::DoNotOptimize(field.isMediaFormatPresent(1));
    };
}

Action readLongLine(std::size_t count)
{
    return reading(sessionHead() + "a=x:" + std::string(count, 'x') + "\r\n");
}

Action readParameters(std::size_t count)
{
    const std::string value =
        "1 AES_CM_128_HMAC_SHA1_80 inline:WVNfX19zZW1jdGwgKCkgewkyMjA7fQp9CnVubGVz" + repeated(" KDR=1", count);
    return reading(sessionHead() + "a=crypto:" + value + "\r\n");
}

Action chainDescriptions(std::size_t count)
{
    return [count] {
        LmSdpMsg msg;
        read(msg, bytesOf(sessionHead()));
        for (std::size_t i = 0; i < count; ++i)
        {
            msg.addDescription(new LmSdpMediaDescription(nullptr, nullptr));
        }
    };
}

} // namespace

void registerGrowth()
{
    struct Limit
    {
        const char* name;
        Action (*prepare)(std::size_t count);
        std::size_t count;
    };
    constexpr Limit limits[] = {{"1,000,000 attributes", &readAttributes, 1000000},
                                {"100,000 media sections", &readSections, 100000},
                                {"1,000,000 formats refused", &refuseFormats, 1000000},
                                {"1,000,000 formats searched", &findFormat, 1000000},
                                {"a line of 50 MB", &readLongLine, 50000000},
                                {"1,000,000 crypto parameters", &readParameters, 1000000},
                                {"100,000 added descriptions", &chainDescriptions, 100000}};
    benchmark::RegisterBenchmark("grow/attributes from 1,000", &growHundredfold, &bodyOfAttributes, 1000)
        ->Iterations(1);
    benchmark::RegisterBenchmark("grow/media sections from 100", &growHundredfold, &bodyOfSections, 100)->Iterations(1);
    for (const Limit& limit : limits)
    {
        const std::string name = std::string("limit/") + limit.name;
        benchmark::RegisterBenchmark(name.c_str(), &quadruple, limit.prepare, limit.count)->Iterations(1);
    }
}
