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

class Session
{
public:
    explicit Session(const std::string& body)
    {
        sa address{};
        sa_set_str(&address, "192.0.2.1", 0);
        sdp_session_alloc(&m_Session, &address);
        mbuf* const buffer = mbuf_alloc(body.size());
        mbuf_write_mem(buffer, reinterpret_cast<const uint8_t*>(body.data()), body.size());
        mbuf_set_pos(buffer, 0);
        const int error = sdp_decode(m_Session, buffer, true);
        mem_deref(buffer);
        if (error != 0)
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
        const Session session(body);
        Content content;
        sdp_session_rattr_apply(session.get(), nullptr, &countAttribute, &content.attributes);
        const list* const sections = sdp_session_medial(session.get(), false);
        for (const le* element = list_head(sections); element != nullptr; element = element->next)
        {
            ++content.sections;
            const auto* const media = static_cast<const sdp_media*>(element->data);
            sdp_media_rattr_apply(media, nullptr, &countAttribute, &content.attributes);
        }
        return content;
    }

    void read(const std::string& body) override { const Session session(body); }

    std::size_t readAndWrite(const std::string& body) override
    {
        const Session session(body);
        mbuf* text = nullptr;
        if (sdp_encode(&text, session.get(), false) != 0)
        {
            throw std::runtime_error("cannot be written");
        }
        const std::size_t length = text->end;
        mem_deref(text);
        return length;
    }
};

} // namespace

std::unique_ptr<Peer> makePeer()
{
    return std::make_unique<Re>();
}
