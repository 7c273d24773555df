// Reads a body and prints what it says.

#include "LmSdpObject.h"

#include <iostream>

namespace
{

constexpr const char* s_Body = "v=0\r\n"
                               "o=user1 2890844526 2890842807 IN IP4 10.47.16.5\r\n"
                               "s=SDP Seminar\r\n"
                               "c=IN IP4 224.2.17.12/127\r\n"
                               "t=2873397496 2873404696\r\n"
                               "m=audio 49170 RTP/AVP 0\r\n"
                               "a=rtpmap:0 PCMU/8000\r\n"
                               "m=video 51372 RTP/AVP 99\r\n"
                               "a=rtpmap:99 h263-1998/90000\r\n";

void printMedium(LmSdpMediaDescription& medium)
{
    LmHandle<LmSdpMediaField> line = medium.getMediaField();
    std::cout << line->getMediaType() << " on port " << line->getPort() << ", formats "
              << line->getMediaFormats().c_str() << '\n';

    // The first line of a letter; the others follow.
    for (LmHandle<LmSdpAttributeField> a = medium.getField("a"); a; a = a->getNext())
    {
        std::cout << "  " << a->getName() << ": " << a->getValue().c_str() << '\n';
    }
}

} // namespace

int main()
try
{
    LmSdpMsg message(s_Body);
    std::cout << "session " << message.getSessionNameField()->getSessionName() << " of "
              << message.getOriginField()->getUsername() << ", to " << message.getConnectionField()->getAddress()
              << '\n';
    for (LmHandle<LmSdpMediaDescription> medium = message.getMediaDescription(); medium; medium = medium->getNext())
    {
        printMedium(*medium);
    }

    // A line that the body does not have is an empty handle.
    std::cout << "it has " << (message.getBandwidthField() ? "a" : "no") << " b= line\n";
}
catch (const LmException& exception)
{
    std::cerr << exception.getMessage() << '\n';
    return 1;
}
