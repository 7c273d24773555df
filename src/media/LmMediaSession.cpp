#include "media/LmMediaSession.h"

#include "LmLibs/LmUtil/LmException.h"
#include "LmLibs/LmUtil/LmInetAddress.h"
#include "media/LmMediaWord.h"
#include "sdp/frame/LmSdpParseError.h"

#include <algorithm>
#include <cstring>
#include <ctime>
#include <iterator>
#include <string>
#include <utility>

namespace
{

/// Of no account to LmInetAddress, and the same wherever one is made.
constexpr int s_AddressFlags = 250;

constexpr unsigned int s_BodyCapacity = 512;

/// A number as "%d" writes it.
std::string asText(unsigned int number)
{
    return std::to_string(static_cast<int>(number));
}

std::string idOfNow()
{
    return std::to_string(static_cast<long long>(std::time(nullptr)));
}

/// Empty for a number that is no kind of stream.
const char* wordOf(LmMediaStream::Type type)
{
    const auto isType = [type](const LmMediaWord& known) { return known.type == type; };
    const auto found = std::find_if(std::begin(lmMediaWords), std::end(lmMediaWords), isType);
    return found == std::end(lmMediaWords) ? "" : found->word;
}

/// The lines of one stream, from its `m=` line on.
void appendStream(LmString& body, const LmMediaStream& stream)
{
    std::string text = std::string("m=") + wordOf(stream.getType()) + " " + asText(stream.getPortNo());
    text += " RTP/AVP";
    for (const LmCodecDescription& codec : stream.getCodecs())
    {
        text += " " + asText(codec.getCodecNo());
    }
    text += "\r\n";
    const LmInetAddress address = stream.getInetAddress();
    if (address != LmInetAddress() && address != LmInetAddress::sGetLocalHost(s_AddressFlags))
    {
        text += std::string("c=IN IP4 ") + address.getHostAddress() + "\r\n";
    }
    for (const LmCodecDescription& codec : stream.getCodecs())
    {
        const char* const name = codec.getCodecName();
        if (name != nullptr && *name != '\0')
        {
            text += "a=rtpmap:" + asText(codec.getCodecNo()) + " " + name + "/8000\r\n";
        }
    }
    body.append(std::string_view(text));
}

} // namespace

LmMediaSession::LmMediaSession(const LmHandle<LmMediaStream>& stream)
{
    addStream(stream);
}

LmMediaSession::~LmMediaSession() = default;

void LmMediaSession::addStream(LmHandle<LmMediaStream> stream)
{
    if (stream.isNull())
    {
        LmException::sThrow("LmMediaSession::addStream() without a stream");
    }
    m_Streams.push_back(std::move(stream));
    m_BodyChanged = true;
}

void* LmMediaSession::getBody()
{
    build();
    return const_cast<char*>(m_Body.c_str());
}

unsigned int LmMediaSession::getBodyLength()
{
    build();
    return m_BodyLength;
}

void LmMediaSession::build()
{
    if (m_BodyChanged)
    {
        setLocalBody();
        m_BodyChanged = false;
    }
}

void LmMediaSession::setLocalBody()
{
    const std::string id = idOfNow();
    const std::string local = LmInetAddress::sGetLocalHost(s_AddressFlags).getHostAddress();
    m_Body = LmString(*LmStringBuffer::sCreate(std::string_view("v=0\r\no="), s_BodyCapacity));
    m_Body.append(std::string_view("user " + id + " " + id + " IN IP4 " + local));
    m_Body.append(std::string_view("\r\ns=SDP Media Session\r\ne=user@" + local));
    m_Body.append(std::string_view("\r\nt=" + id + " 0\r\nc=IN IP4 " + local + "\r\n"));
    if (m_Streams.empty())
    {
        LmSdpParseError::sThrow("No Media Streams to create Media Descriptions from");
    }
    for (const LmHandle<LmMediaStream>& hStream : m_Streams)
    {
        appendStream(m_Body, *hStream);
    }
    m_BodyLength = static_cast<unsigned int>(std::strlen(m_Body.c_str()));
}
