#include "core/srtp/CryptoType.h"

#include <strings.h>

namespace Quorvex
{
namespace Srtp
{
namespace
{

constexpr std::string_view s_Names[] = {"AES_CM_128_HMAC_SHA1_80", "AES_CM_128_HMAC_SHA1_32", "F8_128_HMAC_SHA1_80"};

bool isKnown(CryptoType::eCryptoType type)
{
    return type == CryptoType::AES_CM_128_HMAC_SHA1_80 || type == CryptoType::AES_CM_128_HMAC_SHA1_32 ||
           type == CryptoType::F8_128_HMAC_SHA1_80;
}

} // namespace

CryptoType::eCryptoType CryptoType::parseCryptoTypeStr(const char* name)
{
    return name == nullptr ? EXTENDED : parseCryptoTypeStr(std::string_view(name));
}

CryptoType::eCryptoType CryptoType::parseCryptoTypeStr(std::string_view name)
{
    for (int type = 0; type < EXTENDED; ++type)
    {
        if (name.size() == s_Names[type].size() && ::strncasecmp(name.data(), s_Names[type].data(), name.size()) == 0)
        {
            return static_cast<eCryptoType>(type);
        }
    }
    return EXTENDED;
}

const char* CryptoType::getCryptoTypeName(eCryptoType type)
{
    return isKnown(type) ? s_Names[type].data() : "";
}

unsigned int CryptoType::getKeyLifetimeIndex(eCryptoType type)
{
    return isKnown(type) ? 48 : 64;
}

} // namespace Srtp
} // namespace Quorvex
