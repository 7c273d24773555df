// GStreamer's SDP library.

#include "peers/Peer.h"

#include <gst/sdp/gstsdpmessage.h>

#include <stdexcept>

namespace
{

class Message
{
public:
    explicit Message(const std::string& body)
    {
        gst_sdp_message_new(&m_Message);
        if (gst_sdp_message_parse_buffer(reinterpret_cast<const guint8*>(body.data()), static_cast<guint>(body.size()),
                                         m_Message) != GST_SDP_OK)
        {
            gst_sdp_message_free(m_Message);
            throw std::runtime_error("refused");
        }
    }
    Message(const Message&) = delete;
    Message& operator=(const Message&) = delete;
    ~Message() { gst_sdp_message_free(m_Message); }

    const GstSDPMessage* get() const { return m_Message; }

private:
    GstSDPMessage* m_Message = nullptr;
};

class GStreamer : public Peer
{
public:
    Content content(const std::string& body) override
    {
        const Message message(body);
        Content content;
        content.sections = gst_sdp_message_medias_len(message.get());
        content.attributes = gst_sdp_message_attributes_len(message.get());
        for (guint i = 0; i < content.sections; ++i)
        {
            content.attributes += gst_sdp_media_attributes_len(gst_sdp_message_get_media(message.get(), i));
        }
        return content;
    }

    void read(const std::string& body) override { const Message message(body); }

    void readAndWrite(const std::string& body, const Sink& sink) override
    {
        const Message message(body);
        gchar* const text = gst_sdp_message_as_text(message.get());
        sink(text);
        g_free(text);
    }
};

} // namespace

std::unique_ptr<Peer> makePeer()
{
    return std::make_unique<GStreamer>();
}
