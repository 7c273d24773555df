// GNU oSIP.

#include "peers/Peer.h"

#include <osipparser2/osip_parser.h>
#include <osipparser2/sdp_message.h>

#include <stdexcept>

namespace
{

class Message
{
public:
    explicit Message(const std::string& body)
    {
        sdp_message_init(&m_Message);
        if (sdp_message_parse(m_Message, body.c_str()) != 0)
        {
            sdp_message_free(m_Message);
            throw std::runtime_error("refused");
        }
    }
    Message(const Message&) = delete;
    Message& operator=(const Message&) = delete;
    ~Message() { sdp_message_free(m_Message); }

    sdp_message_t* get() const { return m_Message; }

private:
    sdp_message_t* m_Message = nullptr;
};

class Osip : public Peer
{
public:
    Osip() { parser_init(); }

    Content content(const std::string& body) override
    {
        const Message message(body);
        Content content;
        content.attributes = static_cast<std::size_t>(osip_list_size(&message.get()->a_attributes));
        const int sections = osip_list_size(&message.get()->m_medias);
        for (int i = 0; i < sections; ++i)
        {
            const auto* const media = static_cast<sdp_media_t*>(osip_list_get(&message.get()->m_medias, i));
            ++content.sections;
            content.attributes += static_cast<std::size_t>(osip_list_size(&media->a_attributes));
        }
        return content;
    }

    void read(const std::string& body) override { const Message message(body); }

    void readAndWrite(const std::string& body, const Sink& sink) override
    {
        const Message message(body);
        char* text = nullptr;
        if (sdp_message_to_str(message.get(), &text) != 0)
        {
            throw std::runtime_error("cannot be written");
        }
        sink(text);
        osip_free(text);
    }
};

} // namespace

std::unique_ptr<Peer> makePeer()
{
    return std::make_unique<Osip>();
}
