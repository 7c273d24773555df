// Which class the value of an attribute gets: the one list of all names that have a class of their own.

#include "sdp/media/LmSdpAttributeValue.h"

#include "LmLibs/LmUtil/LmCharacters.h"
#include "sdp/crypto/LmSdpCryptoAttribute.h"
#include "sdp/media/LmSdpRtpAttribute.h"

namespace
{

std::string_view firstLine(std::string_view text)
{
    const char* const end = lmFindLineEnd(text.data(), text.data() + text.size());
    return text.substr(0, static_cast<std::size_t>(end - text.data()));
}

} // namespace

LmHandle<LmSdpAttribute> lmSdpAttributeValue(std::string_view name, std::string_view text)
{
    if (name == "rtpmap")
    {
        return new LmSdpRtpAttribute(firstLine(text));
    }
    if (name == "crypto")
    {
        return new LmSdpCryptoAttribute(LmString(text).c_str());
    }
    return new LmSdpAttribute(LmString(text));
}
