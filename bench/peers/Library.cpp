// This library.

#include "LmSdpObject.h"
#include "peers/Peer.h"

#include <stdexcept>

namespace
{

class Library : public Peer
{
public:
    Content content(const std::string& body) override
    {
        LmSdpMsg msg;
        parse(msg, body);
        Content content;
        count(msg.getAttributeField(), content);
        for (LmHandle<LmSdpMediaDescription> hMedia = msg.getMediaDescription(); hMedia; hMedia = hMedia->getNext())
        {
            ++content.sections;
            count(hMedia->getField("a"), content);
        }
        return content;
    }

    void read(const std::string& body) override
    {
        LmSdpMsg msg;
        parse(msg, body);
    }

    void readAndWrite(const std::string& body, const Sink& sink) override
    {
        LmSdpMsg msg;
        parse(msg, body);
        LmStringOutputStream out;
        msg.serialize(out);
        const LmString text = out.getString();
        sink({text.c_str(), text.length()});
    }

private:
    static void count(LmHandle<LmSdpField> hField, Content& content)
    {
        for (; hField; hField = hField->getNext())
        {
            ++content.attributes;
        }
    }

    static void parse(LmSdpMsg& msg, const std::string& body)
    {
        const LmHandle<LmByteArray> hBytes = LmByteArray::sCreate(static_cast<unsigned int>(body.size()), body.data());
        LmByteArrayInputStream in(hBytes, 0, 0);
        try
        {
            msg.parse(in);
        }
        catch (const LmException& error)
        {
            throw std::runtime_error(error.getMessage());
        }
    }
};

} // namespace

std::unique_ptr<Peer> makePeer()
{
    return std::make_unique<Library>();
}
