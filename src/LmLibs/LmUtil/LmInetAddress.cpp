#include "LmLibs/LmUtil/LmInetAddress.h"

#include "LmLibs/LmUtil/LmCharacters.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>

#include <cstring>
#include <memory>

namespace
{

bool isUsable(const ifaddrs& interface)
{
    return interface.ifa_addr != nullptr && interface.ifa_addr->sa_family == AF_INET &&
           (interface.ifa_flags & IFF_UP) != 0 && (interface.ifa_flags & IFF_LOOPBACK) == 0;
}

std::uint32_t addressOf(const ifaddrs& interface)
{
    sockaddr_in address;
    std::memcpy(&address, interface.ifa_addr, sizeof address);
    return ntohl(address.sin_addr.s_addr);
}

} // namespace

LmInetAddress::LmInetAddress(const char* host, const char*, int)
{
    initFromAddress(host);
}

bool LmInetAddress::initFromAddress(const char* text)
{
    const std::string_view dotted = lmTrimmed(lmViewOf(text));
    char terminated[INET_ADDRSTRLEN] = {};
    in_addr address;
    if (dotted.size() >= sizeof terminated)
    {
        return false;
    }
    dotted.copy(terminated, dotted.size());
    if (::inet_pton(AF_INET, terminated, &address) != 1)
    {
        return false;
    }
    m_Address = ntohl(address.s_addr);
    return true;
}

LmInetAddress LmInetAddress::sGetLocalHost(int)
{
    LmInetAddress local;
    local.m_Address = INADDR_LOOPBACK;
    ifaddrs* first = nullptr;
    if (::getifaddrs(&first) == 0)
    {
        const std::unique_ptr<ifaddrs, decltype(&::freeifaddrs)> all(first, &::freeifaddrs);
        while (first != nullptr && !isUsable(*first))
        {
            first = first->ifa_next;
        }
        if (first != nullptr)
        {
            local.m_Address = addressOf(*first);
        }
    }
    return local;
}

const char* LmInetAddress::getHostAddress() const
{
    thread_local char t_Text[INET_ADDRSTRLEN];
    in_addr address;
    address.s_addr = htonl(m_Address);
    return ::inet_ntop(AF_INET, &address, t_Text, sizeof t_Text);
}
