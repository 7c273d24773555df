// Times one library on bodies, in short batches:
//
//     <program> read|write BATCHES MILLISECONDS FILE...
//     <program> losses FILE...
//
// "write" reads, writes and releases. Prints one JSON object for each file: the nanoseconds of processor time per body
// in each batch and the calls of the allocator per body, or why the library does not hold that body or does not write
// all of it.
// "losses" tells which attributes could be lost without the check for that noticing.

#include "peers/Peer.h"
#include "support/Allocations.h"
#include "support/ProcessorTime.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace
{

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

/// How many attributes of the body a tree implies, whatever follows a blank in them.
std::size_t countImplied(const std::string& body, const std::vector<std::vector<std::string>>& implied)
{
    std::size_t count = 0;
    std::size_t section = 0;
    std::istringstream lines(body);
    for (std::string line; std::getline(lines, line);)
    {
        section += line.compare(0, 2, "m=") == 0 ? 1U : 0U;
        line.resize(std::min(line.size(), line.find_first_of(" \r")));
        if (section < implied.size())
        {
            const std::vector<std::string>& here = implied[section];
            count += std::find(here.begin(), here.end(), line) != here.end() ? 1U : 0U;
        }
    }
    return count;
}

/// What the tree of a text does not hold of a body; empty when nothing is missing.
std::string lacking(Peer& peer, const std::string& text, const std::string& body)
{
    const Peer::Content content = peer.content(text);
    const std::size_t sections = countLines(body, 'm');
    const std::size_t attributes = countLines(body, 'a');
    const std::size_t held = content.attributes + countImplied(body, content.implied);
    if (content.sections == sections && held == attributes)
    {
        return {};
    }
    return std::to_string(content.sections) + " of " + std::to_string(sections) + " sections and " +
           std::to_string(held) + " of " + std::to_string(attributes) + " attributes";
}

/// Why there is nothing to time; empty when the library does the whole work.
std::string refusal(Peer& peer, const std::string& body, bool write)
{
    if (const std::string missing = lacking(peer, body, body); !missing.empty())
    {
        return "holds " + missing;
    }
    std::string text;
    if (write)
    {
        peer.readAndWrite(body, [&text](std::string_view written) { text = written; });
    }
    const std::string missing = write ? lacking(peer, text, body) : std::string();
    return missing.empty() ? missing : "writes " + missing;
}

/// The attributes of the body without which its tree passes for whole.
std::vector<std::string> unnoticedLosses(Peer& peer, const std::string& body)
{
    std::vector<std::string> lines;
    for (std::size_t at = body.find("\na="); at != std::string::npos; at = body.find("\na=", at + 1))
    {
        const std::string line = body.substr(at + 1, body.find('\n', at + 1) - at);
        std::string rest = body;
        if (lacking(peer, rest.erase(at + 1, line.size()), body).empty())
        {
            lines.push_back(line);
        }
    }
    return lines;
}

class Timer
{
public:
    Timer(Peer& peer, const std::string& body, bool write) : m_Peer(peer), m_Body(body), m_Write(write) {}

    void once()
    {
        if (m_Write)
        {
            m_Peer.readAndWrite(m_Body, m_Sink);
        }
        else
        {
            m_Peer.read(m_Body);
        }
    }

    double nanoseconds(long bodies)
    {
        const double start = processorSeconds();
        for (long i = 0; i < bodies; ++i)
        {
            once();
        }
        return (processorSeconds() - start) * 1e9;
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
    std::size_t m_Written = 0;
    const Peer::Sink m_Sink = [this](std::string_view text) { m_Written += text.size(); };
};

nlohmann::json measure(Peer& peer, const std::string& body, bool write, int batches, double batch)
{
    if (const std::string reason = refusal(peer, body, write); !reason.empty())
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
    const std::string task = argc > 1 ? argv[1] : "";
    const int first = task == "losses" ? 2 : 4;
    if ((task != "losses" && task != "read" && task != "write") || argc <= first)
    {
        std::cerr << "usage: " << argv[0] << " read|write BATCHES MILLISECONDS FILE...\n"
                  << "       " << argv[0] << " losses FILE...\n";
        return 2;
    }
    const std::unique_ptr<Peer> peer = makePeer();
    for (int i = first; i < argc; ++i)
    {
        const std::string body = contentOf(argv[i]);
        nlohmann::json result;
        try
        {
            if (task == "losses")
            {
                result["unnoticed"] = unnoticedLosses(*peer, body);
            }
            else
            {
                result = measure(*peer, body, task == "write", std::atoi(argv[2]), std::atof(argv[3]) * 1e6);
            }
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
