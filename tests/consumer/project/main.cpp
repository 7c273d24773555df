#include "LmSdpObject.h"

#include <iostream>

int main()
{
    LmSdpMsg msg("v=0\r\n"
                 "o=user1 2890844526 2890842807 IN IP4 10.47.16.5\r\n"
                 "s=Weekly call\r\n"
                 "t=0 0\r\n");
    const LmHandle<LmSdpSessionNameField> hName = msg.getSessionNameField();
    std::cout << (hName ? hName->getSessionName() : "the line s= has no class") << '\n';
}
