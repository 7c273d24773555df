#include "Bodies.h"

#include "support/ProcessorTime.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <limits>
#include <stdexcept>

std::string bodyNamed(const std::string& name)
{
    for (const GeneratedBody& generated : g_Generated)
    {
        if (name == generated.name)
        {
            return generated.generate(generated.count);
        }
    }
    const std::string path = std::string(LMSDP_BENCH_BODIES) + "/" + name + ".sdp";
    std::ifstream in(path, std::ios::binary);
    if (!in)
    {
        throw std::runtime_error("cannot open " + path);
    }
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::string sessionHead()
{
    return "v=0\r\no=- 2890844526 2890842807 IN IP4 192.0.2.1\r\ns=-\r\nc=IN IP4 192.0.2.1\r\nt=0 0\r\n";
}

std::string repeated(const std::string& piece, std::size_t count)
{
    std::string text;
    text.reserve(piece.size() * count);
    for (; count != 0; --count)
    {
        text += piece;
    }
    return text;
}

std::string bodyOfAttributes(std::size_t count)
{
    std::string body = sessionHead() + "m=audio 49170 RTP/AVP 0\r\n";
    for (std::size_t i = 0; i < count; ++i)
    {
        body += "a=x-attribute-" + std::to_string(i % 1000) + ":value " + std::to_string(i) + "\r\n";
    }
    return body;
}

std::string bodyOfSections(std::size_t count)
{
    return sessionHead() +
           repeated("m=audio 49170 RTP/AVP 0 101\r\na=rtpmap:101 telephone-event/8000\r\na=sendrecv\r\n", count);
}

std::size_t countLines(const std::string& body)
{
    return static_cast<std::size_t>(std::count(body.begin(), body.end(), '\n'));
}

LmHandle<LmByteArray> bytesOf(const std::string& body)
{
    return LmByteArray::sCreate(static_cast<unsigned int>(body.size()), body.data());
}

void read(LmSdpMsg& msg, const LmHandle<LmByteArray>& hBytes)
{
    LmByteArrayInputStream in(hBytes, 0, 0);
    msg.parse(in);
}

double bestSeconds(const std::function<void()>& action, int runs)
{
    double best = std::numeric_limits<double>::max();
    for (; runs > 0; --runs)
    {
        const double start = processorSeconds();
        action();
        best = std::min(best, processorSeconds() - start);
    }
    return best;
}
