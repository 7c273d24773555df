// Takes the keys out of an SRTP offer (RFC 4568).

#include "LmSdpObject.h"

#include <iostream>

namespace
{

constexpr const char* s_Offer = "v=0\r\n"
                                "o=alice 2890844526 2890844526 IN IP4 192.0.2.1\r\n"
                                "s=call\r\n"
                                "c=IN IP4 192.0.2.1\r\n"
                                "t=0 0\r\n"
                                "m=audio 49170 RTP/SAVP 0\r\n"
                                "a=crypto:1 AES_CM_128_HMAC_SHA1_80 "
                                "inline:WVNfX19zZW1jdGwgKCkgewkyMjA7fQp9CnVubGVz|2^20|1:4 UNENCRYPTED_SRTCP\r\n"
                                "a=crypto:2 AES_CM_128_HMAC_SHA1_32 "
                                "inline:NzB4d1BINUAvLEw6UzF3WSJ+PSdFcGdUJShpX1Zj\r\n";

void print(const LmSdpCryptoAttribute& crypto)
{
    std::cout << "tag " << crypto.getTag() << ", suite " << crypto.getCryptoSuiteString() << '\n';
    for (const LmCryptoKey& key : crypto.getKeyVector())
    {
        std::cout << "  key of " << key.m_Key.length() << " characters in base64, for " << key.m_Lifetime << " packets";
        if (key.m_MkiValue != LmCryptoKey::sm_NotSet)
        {
            std::cout << ", MKI " << key.m_MkiValue << " of " << key.m_MkiLength << " bytes";
        }
        std::cout << '\n';
    }
    for (const LmSecurityDescription& parameter : crypto.getSecurityDescriptionVector())
    {
        std::cout << "  " << parameter.m_Name.c_str() << '\n';
    }
}

} // namespace

int main()
try
{
    LmSdpMsg message(s_Offer);
    LmHandle<LmSdpMediaDescription> medium = message.getMediaDescription();
    for (LmHandle<LmSdpAttributeField> a = medium->getField("a"); a; a = a->getNext())
    {
        // The class of the value follows from the attribute's name; the handle is empty for any other.
        if (LmHandle<LmSdpCryptoAttribute> crypto = a->getAttribute())
        {
            print(*crypto);
        }
    }
}
catch (const LmException& exception)
{
    std::cerr << exception.getMessage() << '\n';
    return 1;
}
