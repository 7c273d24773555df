#pragma once

#include "LmLibs/LmUtil/LmString.h"
#include "core/MemAccountOperators.h"
#include "sdp/LmSdpExport.h"

#include <cstddef>
#include <cstdint>

/// One key parameter of an `a=crypto` line (RFC 4568, section 6.1). A plain value: nothing is validated, and a number
/// of all ones means that it is not set.
class LMSDP_API LmCryptoKey
{
public:
    ///@{
    /// What stands for a number that is not set.
    static constexpr std::uint64_t sm_NoLifetime = ~std::uint64_t(0);
    static constexpr unsigned int sm_NotSet = ~0U;
    ///@}

    /// `lifetime` is in packets, `mkiLength` in bytes. A null key gives the empty text.
    explicit LmCryptoKey(const char* key = "", std::size_t lifetime = sm_NoLifetime, unsigned int mkiValue = sm_NotSet,
                         unsigned int mkiLength = sm_NotSet);

    ///@{
    /// A copy of every member.
    LmCryptoKey(const LmCryptoKey& other) = default;
    LmCryptoKey& operator=(const LmCryptoKey& other) = default;
    ///@}

    ///@{
    /// The same, and takes the text of the key away.
    LmCryptoKey(LmCryptoKey&& other) noexcept = default;
    LmCryptoKey& operator=(LmCryptoKey&& other) noexcept = default;
    ///@}
    ~LmCryptoKey() = default;

    /// Sets the lifetime to 2 to the `power`. At 64 or above nothing changes.
    void setLifetimeAsPowerOfTwo(unsigned int power);

    /// The exponent when the lifetime is a power of two of at least 2; otherwise 0.
    unsigned int getLifetimeAsPowerOfTwo() const;

    QUORVEX_MEM_ACCOUNT(LmCryptoKey)

    LmString m_Key;           ///< key and salt in base64, as they stand in the text
    std::uint64_t m_Lifetime; ///< in packets
    unsigned int m_MkiValue;  ///< which master key this is
    unsigned int m_MkiLength; ///< of the MKI in an SRTP packet, in bytes
};
