// The reader of a received body: an empty handle, a session or a failure, and never a crash. What the session then
// builds reads back as the same streams.

#include "Fuzz.h"

namespace
{

std::string streamsOf(const LmMediaSession& session)
{
    std::string text;
    for (const LmHandle<LmMediaStream>& hStream : session.getStreams())
    {
        text += std::to_string(hStream->getType()) + " " + std::to_string(hStream->getPortNo()) + ":";
        for (const LmCodecDescription& codec : hStream->getCodecs())
        {
            text += " " + std::to_string(codec.getCodecNo());
        }
        text += "\n";
    }
    return text;
}

/// A format list is read up to 255 characters, and a number above 31 bits has a sign in a built body. A codec name
/// may be any text, also one that makes no rtpmap line; and a codec whose rtpmap line had no name, which stood behind
/// others, has no such line in a built body and moves to the front.
bool isPlain(const LmMediaSession& session)
{
    for (const LmHandle<LmMediaStream>& hStream : session.getStreams())
    {
        std::size_t length = 0;
        bool named = false;
        for (const LmCodecDescription& codec : hStream->getCodecs())
        {
            const std::string_view name = codec.getCodecName();
            length += 1 + std::to_string(codec.getCodecNo()).size();
            if (codec.getCodecNo() > 0x7FFFFFFF || name.find('/') != std::string_view::npos || (named && name.empty()))
            {
                return false;
            }
            named = !name.empty();
        }
        if (length == 0 || length > 255 || hStream->getPortNo() > 0x7FFFFFFF)
        {
            return false;
        }
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string body(viewOf(data, size));
    LmHandle<LmMediaSession> hSession;
    failureOf([&] { hSession = LmMediaSession::sCreateSession(body.data(), static_cast<unsigned int>(body.size())); });
    if (hSession.isNull())
    {
        return 0;
    }
    const std::string_view built(static_cast<const char*>(hSession->getBody()));
    require(built.size() == hSession->getBodyLength(), "body and length agree");
    if (isPlain(*hSession))
    {
        std::string text(built);
        const LmHandle<LmMediaSession> hAgain =
            LmMediaSession::sCreateSession(text.data(), static_cast<unsigned int>(text.size()));
        require(hAgain && streamsOf(*hAgain) == streamsOf(*hSession), "a built body reads back as its streams");
    }
    return 0;
}
