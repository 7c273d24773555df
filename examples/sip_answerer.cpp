// Answers SIP calls on 127.0.0.1, one at a time: just enough of SIP (RFC 3261) to show where the library comes in.
//
//     example_sip_answerer [PORT]        without a number, or with 0, the system picks a port
//
// It prints the port and then one line for each call. An INVITE is answered with 200 and a body, once its own body has
// been read; a BYE is answered with 200, an ACK with nothing. It runs until it is stopped.

#include "LmSdpObject.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <string>

namespace
{

constexpr unsigned int s_AudioPort = 49170;
constexpr unsigned int s_Pcmu = 0;

std::string lineAt(const std::string& request, std::size_t place)
{
    return request.substr(place, request.find("\r\n", place) + 2 - place);
}

/// All header lines of a name, as they stand.
std::string headers(const std::string& request, const std::string& name)
{
    std::string found;
    const std::size_t end = request.find("\r\n\r\n") + 2;
    for (std::size_t at = request.find("\r\n") + 2; at < end; at = request.find("\r\n", at) + 2)
    {
        if (request.compare(at, name.size() + 1, name + ":") == 0)
        {
            found += lineAt(request, at);
        }
    }
    return found;
}

/// An answer with the headers that have to come back, and a tag of ours behind the caller's To.
std::string answer(const std::string& request, const char* status, const std::string& contact, const std::string& body)
{
    std::string to = headers(request, "To");
    if (to.size() > 2 && to.find("tag=") == std::string::npos)
    {
        to.insert(to.size() - 2, ";tag=answerer");
    }
    std::string text = std::string("SIP/2.0 ") + status + "\r\n";
    text += headers(request, "Via") + headers(request, "From") + to + headers(request, "Call-ID");
    text += headers(request, "CSeq") + "Contact: <sip:" + contact + ">\r\n";
    if (!body.empty())
    {
        text += "Content-Type: application/sdp\r\n";
    }
    return text + "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

bool offersPcmu(const LmMediaStream& stream)
{
    const auto& codecs = stream.getCodecs();
    return stream.getType() == LmMediaStream::AUDIO && stream.getPortNo() != 0 &&
           std::any_of(codecs.begin(), codecs.end(), [](const auto& codec) { return codec.getCodecNo() == s_Pcmu; });
}

/// The body of our answer; empty when the caller offers nothing that we take.
std::string localBody(std::string offer)
{
    LmHandle<LmMediaSession> peer =
        LmMediaSession::sCreateSession(offer.data(), static_cast<unsigned int>(offer.size()));
    // One stream is all we have, so one stream is all that an offer may hold (RFC 3264, section 6).
    if (!peer || peer->getStreams().size() != 1 || !offersPcmu(*peer->getStreams().front()))
    {
        return "";
    }
    const LmHandle<LmMediaStream>& stream = peer->getStreams().front();
    std::cout << "call: audio to " << stream->getInetAddress().getHostAddress() << " port " << stream->getPortNo()
              << std::endl;

    LmHandle<LmMediaStream> audio =
        new LmMediaStream(LmMediaStream::AUDIO, s_AudioPort, LmInetAddress("127.0.0.1", nullptr, 0));
    audio->addCodec(LmCodecDescription(s_Pcmu, "PCMU"));
    LmHandle<LmMediaSession> local = new LmMediaSession(audio);
    const unsigned int length = local->getBodyLength();
    return {static_cast<const char*>(local->getBody()), length};
}

std::string answerInvite(const std::string& request, const std::string& contact)
{
    try
    {
        const std::string body = localBody(request.substr(request.find("\r\n\r\n") + 4));
        return answer(request, body.empty() ? "488 Not Acceptable Here" : "200 OK", contact, body);
    }
    catch (const LmException& exception)
    {
        std::cout << "refused: " << exception.getMessage() << std::endl;
        return answer(request, "400 Bad Request", contact, "");
    }
}

/// What to send back; empty for an ACK and for what is no request.
std::string reply(const std::string& request, const std::string& contact)
{
    const std::string method = request.substr(0, request.find(' '));
    if (request.find("\r\n\r\n") == std::string::npos || method == "ACK" || method == "SIP/2.0")
    {
        return "";
    }
    if (method == "INVITE")
    {
        return answerInvite(request, contact);
    }
    return answer(request, method == "BYE" ? "200 OK" : "501 Not Implemented", contact, "");
}

sockaddr* general(sockaddr_in& address)
{
    return reinterpret_cast<sockaddr*>(&address);
}

} // namespace

int main(int argc, char** argv)
{
    sockaddr_in own{};
    own.sin_family = AF_INET;
    own.sin_port = htons(static_cast<std::uint16_t>(argc > 1 ? std::atoi(argv[1]) : 0));
    own.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t ownLength = sizeof own;
    const int udp = ::socket(AF_INET, SOCK_DGRAM, 0);
    if (udp < 0 || ::bind(udp, general(own), ownLength) != 0 || ::getsockname(udp, general(own), &ownLength) != 0)
    {
        std::perror("sip_answerer");
        return 1;
    }
    const std::string port = std::to_string(ntohs(own.sin_port));
    std::cout << "listening on port " << port << std::endl;

    std::array<char, 65536> buffer;
    for (;;)
    {
        sockaddr_in peer{};
        socklen_t peerLength = sizeof peer;
        const ssize_t count = ::recvfrom(udp, buffer.data(), buffer.size(), 0, general(peer), &peerLength);
        if (count <= 0)
        {
            continue;
        }
        const std::string text = reply({buffer.data(), static_cast<std::size_t>(count)}, "127.0.0.1:" + port);
        if (!text.empty())
        {
            ::sendto(udp, text.data(), text.size(), 0, general(peer), peerLength);
        }
    }
}
