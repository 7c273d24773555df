#pragma once

#include "core/srtp/SrtpExport.h"

#include <string_view>

namespace Quorvex
{
namespace Srtp
{

/// The crypto suites that are known by name (RFC 4568, section 6.2).
class HARNWICK_SRTP_API CryptoType
{
public:
    /// A suite; its number is fixed.
    enum eCryptoType
    {
        AES_CM_128_HMAC_SHA1_80 = 0,
        AES_CM_128_HMAC_SHA1_32 = 1,
        F8_128_HMAC_SHA1_80 = 2,
        EXTENDED = 3 ///< any other suite, held as text by whoever names it
    };

    /// The suite of a name, in upper or lower case; `EXTENDED` for a null pointer or any other text.
    static eCryptoType parseCryptoTypeStr(const char* name);

    /// The same for a name without a NUL behind it.
    static eCryptoType parseCryptoTypeStr(std::string_view name);

    /// The name of a suite below `EXTENDED`, a text that stays valid; the empty text for any other value.
    static const char* getCryptoTypeName(eCryptoType type);

    /// The default lifetime of a suite's master key, as a power of two of packets: 48 for the suites below `EXTENDED`
    /// (RFC 4568, section 6.2). 64 for any other value, which means that there is no default.
    static unsigned int getKeyLifetimeIndex(eCryptoType type);
};

} // namespace Srtp
} // namespace Quorvex
