// How a received body becomes a session.

#include "LmLibs/LmUtil/LmByteArrayInputStream.h"
#include "LmLibs/LmUtil/LmCharacters.h"
#include "media/LmMediaSession.h"
#include "media/LmMediaWord.h"
#include "sdp/fields/LmSdpConnectionField.h"
#include "sdp/fields/LmSdpOriginField.h"
#include "sdp/frame/LmSdpMsg.h"
#include "sdp/frame/LmSdpParseError.h"
#include "sdp/frame/LmSdpWords.h"
#include "sdp/media/LmSdpAttributeField.h"
#include "sdp/media/LmSdpMediaField.h"
#include "sdp/media/LmSdpRtpAttribute.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <vector>

namespace
{

/// The session-level `c=` line counts, and without one the `o=` line.
LmInetAddress addressOf(LmSdpMsg& message)
{
    if (const LmHandle<LmSdpConnectionField> hConnection = message.getConnectionField())
    {
        return LmInetAddress(hConnection->getAddress(), nullptr, 250);
    }
    if (const LmHandle<LmSdpOriginField> hOrigin = message.getOriginField())
    {
        return LmInetAddress(hOrigin->getAddress(), nullptr, 250);
    }
    LmSdpParseError::sThrow("Invalid SDP Message, both Connection field  and Origin Field are missing\n");
}

const LmMediaWord* findWord(const char* word)
{
    const auto isWord = [word](const LmMediaWord& known) { return std::strcmp(known.word, word) == 0; };
    const auto found = std::find_if(std::begin(lmMediaWords), std::end(lmMediaWords), isWord);
    return found == std::end(lmMediaWords) ? nullptr : found;
}

using Codecs = std::vector<LmCodecDescription>;

/// Each format is a codec under the empty name.
void addFormats(Codecs& codecs, const LmString& formats)
{
    for (const LmString& format : lmWords(lmTrimmed(formats.view())))
    {
        if (!format.isBlank())
        {
            codecs.emplace_back(static_cast<unsigned int>(lmAtoi(format.view())), "");
        }
    }
}

/// Adding a codec again gives it its name.
void addNames(Codecs& codecs, LmHandle<LmSdpField> hField)
{
    for (; hField; hField = hField->getNext())
    {
        const LmHandle<LmSdpAttributeField> hAttribute = hField;
        const LmHandle<LmSdpRtpAttribute> hRtp = hAttribute ? hAttribute->getAttribute() : nullptr;
        if (hRtp)
        {
            codecs.emplace_back(hRtp->getPayloadType(), hRtp->getEncodingName());
        }
    }
}

/// The stream of a media description; an empty handle where its media word is not known.
LmHandle<LmMediaStream> makeStream(LmSdpMediaDescription& description, const LmInetAddress& address)
{
    const LmHandle<LmSdpMediaField> hMedia = description.getMediaField();
    const LmMediaWord* const known = hMedia ? findWord(hMedia->getMediaType()) : nullptr;
    if (known == nullptr)
    {
        return nullptr;
    }
    Codecs codecs;
    addFormats(codecs, hMedia->getMediaFormats());
    addNames(codecs, description.getField("a"));
    LmHandle<LmMediaStream> hStream = new LmMediaStream(known->type, hMedia->getPort(), address);
    hStream->addCodecs(codecs);
    return hStream;
}

} // namespace

LmHandle<LmMediaSession> LmMediaSession::sCreateSession(void* body, unsigned int length)
{
    if (body == nullptr || length == 0)
    {
        return nullptr;
    }
    const LmHandle<LmByteArrayInputStream> hIn = new LmByteArrayInputStream(LmByteArray::sCreate(length, body), 0, 0);
    LmSdpMsg message;
    message.parse(*hIn);
    const LmInetAddress address = addressOf(message);
    LmHandle<LmMediaSession> hSession;
    for (LmHandle<LmSdpMediaDescription> hMedia = message.getMediaDescription(); hMedia; hMedia = hMedia->getNext())
    {
        const LmHandle<LmMediaStream> hStream = makeStream(*hMedia, address);
        if (hStream.isNull())
        {
            continue;
        }
        if (hSession.isNull())
        {
            hSession = new LmMediaSession(hStream);
        }
        else
        {
            hSession->addStream(hStream);
        }
    }
    return hSession;
}
