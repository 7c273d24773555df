// Gives a line letter of one's own a class. Some surveillance gateways put a y= line, which carries the SSRC of the RTP
// stream, behind their last media section. A message has no place for it and stops in front of it; the line is then
// read from the same stream.

#include "LmSdpObject.h"

#include <iostream>

namespace
{

class SsrcField : public LmSdpField
{
public:
    SsrcField() : LmSdpField("y") {}

    const char* getSsrc() const { return m_Ssrc.c_str(); }

    void parse(LmInputStream& in) override { m_Ssrc = LmStreamTokenizer::sGetLine(in); }
    void serialize(LmOutputStream& out) const override { out << "y=" << m_Ssrc << "\r\n"; }

    static LmSdpField* sConstruct() { return new SsrcField; }

private:
    LmString m_Ssrc;
};

constexpr const char* s_Body = "v=0\r\n"
                               "o=34020000001320000001 0 0 IN IP4 192.0.2.1\r\n"
                               "s=Play\r\n"
                               "c=IN IP4 192.0.2.1\r\n"
                               "t=0 0\r\n"
                               "m=video 6000 RTP/AVP 96\r\n"
                               "a=rtpmap:96 PS/90000\r\n"
                               "y=0100000001\r\n";

} // namespace

int main()
try
{
    // Once, before the first body is read.
    LmSdpField::sAddConstructor("y", &SsrcField::sConstruct);

    LmHandle<LmByteArrayInputStream> in = new LmByteArrayInputStream(LmByteArray::sCreate(s_Body), 0, 0);
    LmSdpMsg message;
    message.parse(*in);
    std::cout << message.getMediaDescription()->getMediaField()->getMediaType() << '\n';

    while (LmStreamTokenizer::sDiscardWhite(*in) == 'y')
    {
        LmHandle<SsrcField> ssrc = LmSdpField::sConstructFrom(*in);
        std::cout << "SSRC " << ssrc->getSsrc() << '\n';
    }
}
catch (const LmException& exception)
{
    std::cerr << exception.getMessage() << '\n';
    return 1;
}
