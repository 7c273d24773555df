// A tree under a sequence of edits that the input chooses: setters, additions and writes. Nothing crashes, additions
// never close a ring, and after each edit the message writes or refuses in a known class.

#include "Fuzz.h"

namespace
{

constexpr const char* s_Body = "v=0\r\no=- 1 1 IN IP4 192.0.2.1\r\ns=-\r\nc=IN IP4 192.0.2.1\r\nb=AS:64\r\nt=0 0\r\n"
                               "r=7d 1h 0 25h\r\nz=2882844526 -1h 2898848070 0\r\nk=prompt\r\na=sendrecv\r\n"
                               "m=audio 49170 RTP/AVP 0 8\r\na=rtpmap:0 PCMU/8000\r\n"
                               "a=crypto:1 AES_CM_128_HMAC_SHA1_80 inline:KEY|2^20|1:4\r\nm=video 0 RTP/AVP 31\r\n";

/// Takes pieces off the input.
class Program
{
public:
    explicit Program(std::string_view text) : m_Text(text) {}

    bool isDone() const { return m_Text.empty(); }

    unsigned int number()
    {
        const unsigned int value = m_Text.empty() ? 0 : static_cast<unsigned char>(m_Text.front());
        m_Text.remove_prefix(m_Text.empty() ? 0 : 1);
        return value;
    }

    std::string text()
    {
        const std::size_t wanted = number() % 32;
        const std::size_t length = std::min(wanted, m_Text.size());
        const std::string piece(m_Text.substr(0, length));
        m_Text.remove_prefix(length);
        return piece;
    }

private:
    std::string_view m_Text;
};

/// A line of the tree that the input points at.
LmHandle<LmSdpField> pick(LmSdpMsg& message, Program& program)
{
    constexpr std::string_view letters = "vosiuepcbzkatrm";
    const char token[] = {letters[program.number() % letters.size()], '\0'};
    LmHandle<LmSdpDescription> hGroup = message.getMediaDescription();
    if (program.number() % 2 == 0)
    {
        hGroup = message.getTimeDescription();
    }
    LmHandle<LmSdpField> hField = message.getField(token);
    if (hField.isNull() && hGroup)
    {
        hField = hGroup->getField(token);
    }
    for (unsigned int steps = program.number() % 4; steps != 0 && hField && hField->getNext(); --steps)
    {
        hField = hField->getNext();
    }
    return hField;
}

void editMedia(LmSdpMediaField& media, Program& program)
{
    media.setMediaFormats(program.text().c_str());
    media.addMediaFormat(program.number());
    media.removeMediaFormat(program.number());
    media.setPort(program.text().c_str());
    media.setNumberOfPorts(program.number());
}

void editValue(LmSdpAttributeField& attribute, Program& program)
{
    if (const LmHandle<LmSdpRtpAttribute> hRtp = attribute.getAttribute())
    {
        hRtp->setEncodingName(program.text().c_str());
        hRtp->setClockRate(program.number());
        hRtp->setEncodingParameters(program.text().c_str());
    }
    else if (const LmHandle<LmSdpCryptoAttribute> hCrypto = attribute.getAttribute())
    {
        hCrypto->addKey(LmString(program.text().c_str()), program.number());
        hCrypto->setCryptoSuite(program.text().c_str());
        hCrypto->addSecurityDescription(LmSecurityDescription(program.text().c_str(), program.text().c_str()));
    }
    else
    {
        attribute.setName(program.text().c_str());
        attribute.setValue(program.number() % 2 == 0 ? nullptr : new LmSdpAttribute(program.text().c_str()));
    }
}

void edit(LmSdpField& field, Program& program)
{
    if (auto* const pMedia = dynamic_cast<LmSdpMediaField*>(&field))
    {
        editMedia(*pMedia, program);
    }
    else if (auto* const pAttribute = dynamic_cast<LmSdpAttributeField*>(&field))
    {
        editValue(*pAttribute, program);
    }
    else
    {
        const std::string text = program.text();
        LmByteArrayInputStream in(bytesOf(text), 0, 0);
        field.parse(in);
    }
}

void step(LmSdpMsg& message, Program& program)
{
    switch (program.number() % 6)
    {
    case 0:
        message.addField(new LmSdpUnusedField(program.text().c_str(), program.text().c_str()));
        break;
    case 1:
        message.addField(pick(message, program));
        break;
    case 2:
        message.addDescription(message.getMediaDescription());
        break;
    case 3:
        message.addDescription(new LmSdpMediaDescription(pick(message, program), pick(message, program)));
        break;
    case 4:
        message.addDescription(message.getTimeDescription()->getNext());
        break;
    default:
        if (const LmHandle<LmSdpField> hField = pick(message, program))
        {
            edit(*hField, program);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Program program(viewOf(data, std::min<std::size_t>(size, 512)));
    LmSdpMsg message(s_Body);
    while (!program.isDone())
    {
        failureOf([&] { step(message, program); });
        const Reading first = writing(message);
        require(writing(message) == first, "writing changes nothing");
    }
    return 0;
}
