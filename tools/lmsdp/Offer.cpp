#include "Commands.h"
#include "Report.h"
#include "StreamJson.h"

#include <iostream>

namespace lmsdp
{

int offer(const OfferOptions& options)
{
    const LmHandle<LmMediaSession> session = new LmMediaSession(options.streams.front());
    for (std::size_t i = 1; i < options.streams.size(); ++i)
    {
        session->addStream(options.streams[i]);
    }
    const unsigned int length = session->getBodyLength();
    const std::string text(static_cast<const char*>(session->getBody()), length);
    if (options.json)
    {
        Json bodies = Json::array();
        bodies.push_back({{"streams", streamsJson(session->getStreams())}, {"text", text}});
        std::cout << documentText(makeDocument("offer", std::move(bodies)));
    }
    else
    {
        std::cout << text;
    }
    return exitClean;
}

} // namespace lmsdp
