#include "Commands.h"
#include "Report.h"
#include "StreamJson.h"

#include <algorithm>
#include <iomanip>
#include <iostream>

namespace lmsdp
{
namespace
{

using Streams = std::vector<LmHandle<LmMediaStream>>;

std::string codecsInWords(const Json& codecs)
{
    std::string words;
    for (const Json& codec : codecs)
    {
        words += (words.empty() ? "" : ", ") + codec["number"].dump();
        if (codec.contains("name"))
        {
            words += ' ' + printable(codec["name"].get<std::string>());
        }
    }
    return words;
}

void printRow(const std::string& kind, const std::string& port, const std::string& address, const std::string& codecs)
{
    std::cout << std::left << std::setw(13) << kind << std::setw(12) << port << std::setw(17) << address << codecs
              << '\n';
}

void printTable(const Json& streams)
{
    printRow("kind", "port", "address", "codecs");
    for (const Json& stream : streams)
    {
        printRow(stream["kind"].get<std::string>(), stream["port"].dump(), stream.value("address", "-"),
                 codecsInWords(stream["codecs"]));
    }
}

/// Where reading stopped; the failure of the session itself when the message could be read.
Refusal refusalOf(const Body& body, const Failure& failure)
{
    const Reading reading = read(body);
    return reading.refusal ? refusalOf(body, reading) : Refusal{failure, 0, ""};
}

} // namespace

int streams(const StreamsOptions& options)
{
    int status = exitClean;
    Json bodies = Json::array();
    status = forEachBody({options.file}, [&](Body body) -> int {
        LmHandle<LmMediaSession> session;
        const std::optional<Failure> failure = attempt([&] {
            session = LmMediaSession::sCreateSession(body.bytes.data(), static_cast<unsigned int>(body.bytes.size()));
        });
        Json result{{"file", body.name}};
        if (failure)
        {
            const Refusal refusal = refusalOf(body, *failure);
            report(body, refusal, options.keys);
            result["error"] = jsonOf(refusal, options.keys);
        }
        else
        {
            result["streams"] = streamsJson(session ? session->getStreams() : Streams());
        }
        bodies.push_back(std::move(result));
        return failure ? exitRefused : exitClean;
    });
    if (options.json)
    {
        std::cout << documentText(makeDocument("streams", std::move(bodies)));
    }
    else if (status == exitClean)
    {
        printTable(bodies.front()["streams"]);
    }
    return status;
}

} // namespace lmsdp
