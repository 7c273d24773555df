// Sees what the peer offers, as streams and codecs.

#include "LmSdpObject.h"

#include <iostream>
#include <string>

int main()
try
{
    std::string body = "v=0\r\n"
                       "o=peer 1 1 IN IP4 192.0.2.1\r\n"
                       "s=call\r\n"
                       "c=IN IP4 192.0.2.7\r\n"
                       "t=0 0\r\n"
                       "m=audio 49170 RTP/AVP 0 8 96\r\n"
                       "a=rtpmap:96 telephone-event/8000\r\n"
                       "a=rtpmap:0 PCMU/8000\r\n"
                       "m=video 0 RTP/AVP 34\r\n";
    LmHandle<LmMediaSession> session =
        LmMediaSession::sCreateSession(body.data(), static_cast<unsigned int>(body.size()));
    if (!session)
    {
        std::cout << "no streams\n";
        return 0;
    }
    for (const LmHandle<LmMediaStream>& stream : session->getStreams())
    {
        std::cout << (stream->getType() == LmMediaStream::AUDIO ? "audio" : "other") << " to "
                  << stream->getInetAddress().getHostAddress() << " port " << stream->getPortNo()
                  << (stream->getPortNo() == 0 ? " (rejected)\n" : "\n");
        for (const LmCodecDescription& codec : stream->getCodecs())
        {
            // Names come from a=rtpmap lines alone: 8 is PCMA by its number, and its name is empty here.
            std::cout << "  payload type " << codec.getCodecNo() << ", name \"" << codec.getCodecName() << "\"\n";
        }
    }
}
catch (const LmException& exception)
{
    std::cerr << exception.getMessage() << '\n';
    return 1;
}
