// libre: an answerer's session, to which its user would add the media that it offers itself.

#include "peers/Peer.h"

#include <re.h>

#include <stdexcept>

namespace
{

bool countAttribute(const char*, const char*, void* argument)
{
    ++*static_cast<std::size_t*>(argument);
    return false;
}

/// The lines that became parts of a format.
std::size_t countFormats(const list* formats)
{
    std::size_t count = 0;
    for (const le* element = list_head(formats); element != nullptr; element = element->next)
    {
        const auto* const format = static_cast<const sdp_format*>(element->data);
        count += (format->name != nullptr ? 1U : 0U) + (format->params != nullptr ? 1U : 0U);
    }
    return count;
}

class Session
{
public:
    explicit Session(const std::string& body)
    {
        sa address{};
        sa_set_str(&address, "192.0.2.1", 0);
        sdp_session_alloc(&m_Session, &address);
        // Around the bytes as they are: decoding does not change them.
        mbuf buffer{};
        buffer.buf = reinterpret_cast<uint8_t*>(const_cast<char*>(body.data()));
        buffer.size = body.size();
        buffer.end = body.size();
        if (sdp_decode(m_Session, &buffer, true) != 0)
        {
            mem_deref(m_Session);
            throw std::runtime_error("refused");
        }
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session() { mem_deref(m_Session); }

    sdp_session* get() const { return m_Session; }

private:
    sdp_session* m_Session = nullptr;
};

class Re : public Peer
{
public:
    Content content(const std::string& body) override
    {
        // Stored the other way round, as the receiver's own. A session's own shows in its media alone.
        constexpr const char* directions[] = {"a=inactive", "a=sendonly", "a=recvonly", "a=sendrecv"};
        const Session session(body);
        Content content;
        sdp_session_rattr_apply(session.get(), nullptr, &countAttribute, &content.attributes);
        const list* const sections = sdp_session_medial(session.get(), false);
        for (const le* element = list_head(sections); element != nullptr; element = element->next)
        {
            ++content.sections;
            const auto* const media = static_cast<const sdp_media*>(element->data);
            sdp_media_rattr_apply(media, nullptr, &countAttribute, &content.attributes);
            content.attributes += countFormats(sdp_media_format_lst(media, false));
            const char* const direction = directions[sdp_media_rdir(media)];
            sa rtcp{};
            sdp_media_raddr_rtcp(media, &rtcp);
            content.implied.front().emplace_back(direction);
            content.implied.push_back({direction, "a=rtcp:" + std::to_string(sa_port(&rtcp))});
        }
        return content;
    }

    void read(const std::string& body) override { const Session session(body); }

    void readAndWrite(const std::string& body, const Sink& sink) override
    {
        const Session session(body);
        mbuf* text = nullptr;
        if (sdp_encode(&text, session.get(), false) != 0)
        {
            throw std::runtime_error("cannot be written");
        }
        sink({reinterpret_cast<const char*>(text->buf), text->end});
        mem_deref(text);
    }
};

} // namespace

std::unique_ptr<Peer> makePeer()
{
    return std::make_unique<Re>();
}
