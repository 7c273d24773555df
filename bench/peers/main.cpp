// Times one library on bodies, in short batches:
//
//     <program> read|write BATCHES MILLISECONDS FILE...
//
// "write" reads, writes and releases. Prints one JSON object for each file: the nanoseconds per body of each batch and
// the calls of the allocator per body, or why the library does not hold that body.

#include "peers/Peer.h"
#include "support/Allocations.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace
{

using Clock = std::chrono::steady_clock;

std::string contentOf(const std::string& file)
{
    std::ifstream in(file, std::ios::binary);
    if (!in)
    {
        throw std::runtime_error("cannot open " + file);
    }
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::size_t countLines(const std::string& body, char letter)
{
    std::size_t count = 0;
    const std::string line = {'\n', letter, '='};
    for (std::size_t at = body.find(line); at != std::string::npos; at = body.find(line, at + 1))
    {
        ++count;
    }
    return count;
}

/// Why the tree of the body does not hold all of it; empty when it does.
std::string lacking(Peer& peer, const std::string& body)
{
    const Peer::Content content = peer.content(body);
    const std::size_t sections = countLines(body, 'm');
    const std::size_t attributes = countLines(body, 'a');
    if (content.sections == sections && content.attributes == attributes)
    {
        return {};
    }
    return "holds " + std::to_string(content.sections) + " of " + std::to_string(sections) + " sections and " +
           std::to_string(content.attributes) + " of " + std::to_string(attributes) + " attributes";
}

class Timer
{
public:
    Timer(Peer& peer, const std::string& body, bool write) : m_Peer(peer), m_Body(body), m_Write(write) {}

    void once()
    {
        if (m_Write)
        {
            m_Peer.readAndWrite(m_Body);
        }
        else
        {
            m_Peer.read(m_Body);
        }
    }

    double nanoseconds(long bodies)
    {
        const Clock::time_point start = Clock::now();
        for (long i = 0; i < bodies; ++i)
        {
            once();
        }
        return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
    }

    /// How many bodies fill a batch; the bodies read meanwhile warm everything up.
    long bodiesIn(double batch)
    {
        long bodies = 1;
        while (nanoseconds(bodies) < batch / 2)
        {
            bodies *= 2;
        }
        return bodies;
    }

private:
    Peer& m_Peer;
    const std::string& m_Body;
    const bool m_Write;
};

nlohmann::json measure(Peer& peer, const std::string& body, bool write, int batches, double batch)
{
    if (const std::string reason = lacking(peer, body); !reason.empty())
    {
        return {{"refused", reason}};
    }
    Timer timer(peer, body, write);
    const long bodies = timer.bodiesIn(batch);
    const Allocations before = Allocations::soFar();
    timer.once();
    nlohmann::json result = {{"calls", Allocations::soFar().calls - before.calls}, {"ns", nlohmann::json::array()}};
    for (int i = 0; i < batches; ++i)
    {
        result["ns"].push_back(timer.nanoseconds(bodies) / static_cast<double>(bodies));
    }
    return result;
}

} // namespace

int main(int argc, char** argv)
try
{
    if (argc < 5)
    {
        std::cerr << "usage: " << argv[0] << " read|write BATCHES MILLISECONDS FILE...\n";
        return 2;
    }
    const bool write = std::string(argv[1]) == "write";
    const int batches = std::atoi(argv[2]);
    const double batch = std::atof(argv[3]) * 1e6;
    const std::unique_ptr<Peer> peer = makePeer();
    for (int i = 4; i < argc; ++i)
    {
        const std::string body = contentOf(argv[i]);
        nlohmann::json result;
        try
        {
            result = measure(*peer, body, write, batches, batch);
        }
        catch (const std::runtime_error& error)
        {
            result = {{"refused", error.what()}};
        }
        result["body"] = argv[i];
        std::cout << result << '\n';
    }
    return 0;
}
catch (const std::exception& error)
{
    std::cerr << error.what() << '\n';
    return 1;
}
