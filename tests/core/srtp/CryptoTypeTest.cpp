#include "core/srtp/CryptoType.h"

#include "support/Matchers.h"

#include <gtest/gtest.h>

namespace
{

using Quorvex::Srtp::CryptoType;

TEST(CryptoType, IsKnownByItsName)
{
    EXPECT_EQ(CryptoType::parseCryptoTypeStr("AES_CM_128_HMAC_SHA1_80"), CryptoType::AES_CM_128_HMAC_SHA1_80);
    EXPECT_EQ(CryptoType::parseCryptoTypeStr("AES_CM_128_HMAC_SHA1_32"), CryptoType::AES_CM_128_HMAC_SHA1_32);
    EXPECT_EQ(CryptoType::parseCryptoTypeStr("F8_128_HMAC_SHA1_80"), CryptoType::F8_128_HMAC_SHA1_80);
    EXPECT_EQ(CryptoType::parseCryptoTypeStr("aes_cm_128_hmac_sha1_80"), CryptoType::AES_CM_128_HMAC_SHA1_80);
    for (const char* other : {"AES_CM_128_HMAC_SHA1_800", "AES_CM_128_HMAC_SHA1_8", "AES_CM_128_HMAC_SHA1_80 ",
                              "AEAD_AES_128_GCM", "", static_cast<const char*>(nullptr)})
    {
        EXPECT_EQ(CryptoType::parseCryptoTypeStr(other), CryptoType::EXTENDED);
    }
}

TEST(CryptoType, HasANameAndADefaultLifetime)
{
    const char* const names[] = {"AES_CM_128_HMAC_SHA1_80", "AES_CM_128_HMAC_SHA1_32", "F8_128_HMAC_SHA1_80", ""};
    for (int number = 0; number < 4; ++number)
    {
        const auto type = static_cast<CryptoType::eCryptoType>(number);
        EXPECT_STREQ(CryptoType::getCryptoTypeName(type), names[number]);
        EXPECT_EQ(CryptoType::getKeyLifetimeIndex(type), type == CryptoType::EXTENDED ? 64U : 48U);
    }
}

} // namespace
