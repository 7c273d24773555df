// Which class the value of an attribute gets: the one list of all names that have a class of their own.

#include "sdp/media/LmSdpAttributeValue.h"

#include "LmLibs/LmUtil/LmCharacters.h"
#include "sdp/crypto/LmSdpCryptoAttribute.h"
#include "sdp/media/LmSdpRtpAttribute.h"

#include <cstring>

namespace
{

constexpr char s_RtpMap[] = "rtpmap";

std::string_view firstLine(std::string_view text)
{
    const char* const end = lmFindLineEnd(text.data(), text.data() + text.size());
    return text.substr(0, static_cast<std::size_t>(end - text.data()));
}

/// A comparison in place: the length of `word` is known to the compiler.
template <std::size_t Size>
bool is(std::string_view name, const char (&word)[Size])
{
    return name.size() == Size - 1 && std::memcmp(name.data(), word, Size - 1) == 0;
}

} // namespace

LmHandle<LmSdpAttribute> lmSdpAttributeValue(std::string_view name, std::string_view text)
{
    return lmSdpAttributeValueOfLine(name, is(name, s_RtpMap) ? firstLine(text) : text);
}

LmHandle<LmSdpAttribute> lmSdpAttributeValueOfLine(std::string_view name, std::string_view text)
{
    if (is(name, s_RtpMap))
    {
        return new LmSdpRtpAttribute(text);
    }
    if (is(name, "crypto"))
    {
        return new LmSdpCryptoAttribute(text);
    }
    return new LmSdpAttribute(text);
}
