#include "core/srtp/CryptoType.h"

#include <strings.h>

namespace Quorvex
{
namespace Srtp
{
namespace
{

constexpr const char* s_Names[] = {"AES_CM_128_HMAC_SHA1_80", "AES_CM_128_HMAC_SHA1_32", "F8_128_HMAC_SHA1_80"};

bool isKnown(CryptoType::eCryptoType type)
{
    return type == CryptoType::AES_CM_128_HMAC_SHA1_80 || type == CryptoType::AES_CM_128_HMAC_SHA1_32 ||
           type == CryptoType::F8_128_HMAC_SHA1_80;
}

} // namespace

CryptoType::eCryptoType CryptoType::parseCryptoTypeStr(const char* name)
{
    for (int type = 0; name != nullptr && type < EXTENDED; ++type)
    {
        if (::strcasecmp(name, s_Names[type]) == 0)
        {
            return static_cast<eCryptoType>(type);
        }
    }
    return EXTENDED;
}

const char* CryptoType::getCryptoTypeName(eCryptoType type)
{
    return isKnown(type) ? s_Names[type] : "";
}

unsigned int CryptoType::getKeyLifetimeIndex(eCryptoType type)
{
    return isKnown(type) ? 48 : 64;
}

} // namespace Srtp
} // namespace Quorvex
