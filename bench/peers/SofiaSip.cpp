// sofia-sip: a session in a home of its own, printed into memory that the printer takes.

#include "peers/Peer.h"

#include <sofia-sip/sdp.h>
#include <sofia-sip/su_alloc.h>

#include <stdexcept>

namespace
{

class Session
{
public:
    explicit Session(const std::string& body)
        : m_Home(static_cast<su_home_t*>(su_home_new(sizeof(su_home_t))))
        , m_Parser(sdp_parse(m_Home, body.data(), static_cast<issize_t>(body.size()), 0))
    {
        if (get() == nullptr)
        {
            throw std::runtime_error(sdp_parsing_error(m_Parser));
        }
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session()
    {
        sdp_parser_free(m_Parser);
        su_home_unref(m_Home);
    }

    su_home_t* home() const { return m_Home; }
    sdp_session_t* get() const { return sdp_session(m_Parser); }

private:
    su_home_t* m_Home;
    sdp_parser_t* m_Parser;
};

/// An attribute that is kept as a member, such as an rtpmap, or in the list.
std::size_t countAttributes(const sdp_attribute_t* attribute)
{
    std::size_t count = 0;
    for (; attribute != nullptr; attribute = attribute->a_next)
    {
        ++count;
    }
    return count;
}

class SofiaSip : public Peer
{
public:
    Content content(const std::string& body) override
    {
        const Session session(body);
        Content content;
        content.attributes = countAttributes(session.get()->sdp_attributes) + modes(body);
        for (const sdp_media_t* media = session.get()->sdp_media; media != nullptr; media = media->m_next)
        {
            ++content.sections;
            content.attributes += countAttributes(media->m_attributes);
            for (const sdp_rtpmap_t* map = media->m_rtpmaps; map != nullptr; map = map->rm_next)
            {
                content.attributes += (map->rm_predef ? 0U : 1U) + (map->rm_fmtp != nullptr ? 1U : 0U);
            }
        }
        return content;
    }

    void read(const std::string& body) override { const Session session(body); }

    std::size_t readAndWrite(const std::string& body) override
    {
        const Session session(body);
        sdp_printer_t* const printer = sdp_print(session.home(), session.get(), nullptr, 0, 0);
        if (sdp_message(printer) == nullptr)
        {
            throw std::runtime_error("cannot be printed");
        }
        const auto length = static_cast<std::size_t>(sdp_message_size(printer));
        sdp_printer_free(printer);
        return length;
    }

private:
    /// Lines of the direction of media are kept as a member without a count.
    static std::size_t modes(const std::string& body)
    {
        std::size_t count = 0;
        for (const char* const line : {"\na=sendrecv", "\na=sendonly", "\na=recvonly", "\na=inactive"})
        {
            for (std::size_t at = body.find(line); at != std::string::npos; at = body.find(line, at + 1))
            {
                ++count;
            }
        }
        return count;
    }
};

} // namespace

std::unique_ptr<Peer> makePeer()
{
    return std::make_unique<SofiaSip>();
}
