// Puts a message together from ready-made lines.

#include "LmSdpObject.h"

#include <iostream>

int main()
try
{
    LmHandle<LmSdpMediaDescription> medium =
        new LmSdpMediaDescription(new LmSdpMediaField("audio 49170 RTP/AVP 0"), new LmSdpAttributeField("sendrecv"));
    medium->addField(new LmSdpAttributeField("rtpmap", "0 PCMU/8000"));
    medium->addField(new LmSdpBandwidthField("AS", 64));

    // An empty handle leaves a line out.
    LmSdpMsg message(new LmSdpOriginField("alice 2890844526 2890844526 IN IP4 192.0.2.1"),
                     new LmSdpSessionNameField("call"), LmHandle<LmSdpEmailField>(),
                     new LmSdpConnectionField("IN", "IP4", "192.0.2.1"),
                     new LmSdpTimeDescription(new LmSdpTimeField("0", "0"), nullptr), medium);
    message.addField(new LmSdpInformationField("made by hand"));

    // Lines come out in the order that SDP asks for, in whatever order they were added.
    LmHandle<LmStdOutputStream> out = new LmStdOutputStream(std::cout);
    message.serialize(*out);
}
catch (const LmException& exception)
{
    std::cerr << exception.getMessage() << '\n';
    return 1;
}
