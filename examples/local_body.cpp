// Says what this side offers: streams and codecs in, the text of a body out.

#include "LmSdpObject.h"

#include <iostream>

int main()
try
{
    LmHandle<LmMediaStream> audio = new LmMediaStream(LmMediaStream::AUDIO, 49170, LmInetAddress());
    audio->addCodec(LmCodecDescription(0, "PCMU"));
    audio->addCodec(LmCodecDescription(8, "PCMA"));

    // A stream that is received elsewhere has an address of its own.
    LmHandle<LmMediaStream> video =
        new LmMediaStream(LmMediaStream::VIDEO, 51372, LmInetAddress("192.0.2.20", nullptr, 0));
    video->addCodec(LmCodecDescription(96, "H263"));

    LmHandle<LmMediaSession> session = new LmMediaSession(audio);
    session->addStream(video);

    // The text belongs to the session. The time and the address of this host are in it.
    std::cout.write(static_cast<const char*>(session->getBody()), session->getBodyLength());
}
catch (const LmException& exception)
{
    std::cerr << exception.getMessage() << '\n';
    return 1;
}
