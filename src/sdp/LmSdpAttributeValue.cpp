// Which class the value of an attribute gets: the one list of all names that have a class of their own.

#include "sdp/media/LmSdpAttributeValue.h"

#include "sdp/crypto/LmSdpCryptoAttribute.h"
#include "sdp/media/LmSdpRtpAttribute.h"

LmHandle<LmSdpAttribute> lmSdpAttributeValue(std::string_view name, std::string_view text)
{
    if (name == "rtpmap")
    {
        return new LmSdpRtpAttribute(text);
    }
    if (name == "crypto")
    {
        return new LmSdpCryptoAttribute(LmString(text).c_str());
    }
    return new LmSdpAttribute(LmString(text));
}
