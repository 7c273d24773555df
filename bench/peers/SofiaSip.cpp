// sofia-sip: a session in the home of its parser, printed into memory that the printer takes.

#include "peers/Peer.h"

#include <sofia-sip/sdp.h>

#include <stdexcept>

namespace
{

class Session
{
public:
    explicit Session(const std::string& body)
        : m_Parser(sdp_parse(nullptr, body.data(), static_cast<issize_t>(body.size()), 0))
    {
        if (get() == nullptr)
        {
            const std::runtime_error error(sdp_parsing_error(m_Parser));
            sdp_parser_free(m_Parser);
            throw error;
        }
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session() { sdp_parser_free(m_Parser); }

    su_home_t* home() const { return sdp_parser_home(m_Parser); }
    sdp_session_t* get() const { return sdp_session(m_Parser); }

private:
    sdp_parser_t* m_Parser;
};

std::size_t countAttributes(const sdp_attribute_t* attribute)
{
    std::size_t count = 0;
    for (; attribute != nullptr; attribute = attribute->a_next)
    {
        ++count;
    }
    return count;
}

/// The lines that became maps; a map of a well-known payload type may have come without a line.
std::size_t countMaps(const sdp_rtpmap_t* map)
{
    std::size_t count = 0;
    for (; map != nullptr; map = map->rm_next)
    {
        count += (map->rm_predef ? 0U : 1U) + (map->rm_fmtp != nullptr ? 1U : 0U);
    }
    return count;
}

class SofiaSip : public Peer
{
public:
    Content content(const std::string& body) override
    {
        constexpr const char* directions[] = {"a=inactive", "a=sendonly", "a=recvonly", "a=sendrecv"};
        const Session session(body);
        Content content;
        content.attributes =
            countAttributes(session.get()->sdp_attributes) + (session.get()->sdp_charset != nullptr ? 1U : 0U);
        for (const sdp_media_t* media = session.get()->sdp_media; media != nullptr; media = media->m_next)
        {
            ++content.sections;
            content.attributes += countAttributes(media->m_attributes) + countMaps(media->m_rtpmaps);
            content.implied.push_back({directions[media->m_mode]});
        }
        return content;
    }

    void read(const std::string& body) override { const Session session(body); }

    void readAndWrite(const std::string& body, const Sink& sink) override
    {
        const Session session(body);
        sdp_printer_t* const printer = sdp_print(session.home(), session.get(), nullptr, 0, 0);
        if (sdp_message(printer) == nullptr)
        {
            const std::runtime_error error(sdp_printing_error(printer));
            sdp_printer_free(printer);
            throw error;
        }
        sink({sdp_message(printer), static_cast<std::size_t>(sdp_message_size(printer))});
        sdp_printer_free(printer);
    }
};

} // namespace

std::unique_ptr<Peer> makePeer()
{
    return std::make_unique<SofiaSip>();
}
