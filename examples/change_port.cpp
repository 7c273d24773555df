// Changes a port, and adds a line, in a body that has come in; writes the result to a stream.

#include "LmSdpObject.h"

#include <iostream>
#include <sstream>

int main()
try
{
    std::istringstream file("v=0\r\n"
                            "o=alice 2890844526 2890844526 IN IP4 192.0.2.1\r\n"
                            "s=call\r\n"
                            "c=IN IP4 192.0.2.1\r\n"
                            "t=0 0\r\n"
                            "m=audio 49170 RTP/AVP 0 8\r\n"
                            "a=rtpmap:0 PCMU/8000\r\n");
    LmHandle<LmStdInputStream> in = new LmStdInputStream(file);
    LmSdpMsg message;
    message.parse(*in);

    LmHandle<LmSdpMediaDescription> medium = message.getMediaDescription();
    medium->getMediaField()->setPort(5004);
    medium->getMediaField()->addMediaFormat(101);
    medium->addField(new LmSdpAttributeField("rtpmap", "101 telephone-event/8000"));

    LmHandle<LmStdOutputStream> out = new LmStdOutputStream(std::cout);
    message.serialize(*out);
}
catch (const LmException& exception)
{
    std::cerr << exception.getMessage() << '\n';
    return 1;
}
