#include "core/srtp/CryptoType.h"

#include <strings.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace Quorvex
{
namespace Srtp
{
namespace
{

constexpr std::string_view s_Names[] = {"AES_CM_128_HMAC_SHA1_80", "AES_CM_128_HMAC_SHA1_32", "F8_128_HMAC_SHA1_80"};

/// The eight bytes at a place, letters as small ones. Other bytes may change too, so that equal ones may differ no
/// more.
std::uint64_t smallLetters(const char* place)
{
    std::uint64_t bytes;
    std::memcpy(&bytes, place, sizeof bytes);
    return bytes | 0x2020202020202020U;
}

/// A quick look at both ends, and the exact comparison where they are the same.
bool isSame(std::string_view name, std::string_view known)
{
    constexpr std::size_t atEnd = sizeof(std::uint64_t);
    return name.size() == known.size() && smallLetters(name.data()) == smallLetters(known.data()) &&
           smallLetters(name.data() + name.size() - atEnd) == smallLetters(known.data() + known.size() - atEnd) &&
           ::strncasecmp(name.data(), known.data(), known.size()) == 0;
}

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
        if (isSame(name, s_Names[type]))
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
