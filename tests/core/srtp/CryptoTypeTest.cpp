#include "core/srtp/CryptoType.h"

#include "support/Matchers.h"

#include <gtest/gtest.h>

namespace
{

using Quorvex::Srtp::CryptoType;

struct SuiteRow
{
    const char* name;
    const char* text;
    CryptoType::eCryptoType type;
};

class CryptoSuite : public testing::TestWithParam<SuiteRow>
{
};

TEST_P(CryptoSuite, IsKnownByItsName)
{
    const SuiteRow& row = GetParam();
    EXPECT_EQ(CryptoType::parseCryptoTypeStr(row.text), row.type);
}

INSTANTIATE_TEST_SUITE_P(
    , CryptoSuite,
    testing::Values(SuiteRow{"Tag80", "AES_CM_128_HMAC_SHA1_80", CryptoType::AES_CM_128_HMAC_SHA1_80},
                    SuiteRow{"Tag32", "AES_CM_128_HMAC_SHA1_32", CryptoType::AES_CM_128_HMAC_SHA1_32},
                    SuiteRow{"F8", "F8_128_HMAC_SHA1_80", CryptoType::F8_128_HMAC_SHA1_80},
                    SuiteRow{"LowerCase", "aes_cm_128_hmac_sha1_80", CryptoType::AES_CM_128_HMAC_SHA1_80},
                    SuiteRow{"Longer", "AES_CM_128_HMAC_SHA1_800", CryptoType::EXTENDED},
                    SuiteRow{"Shorter", "AES_CM_128_HMAC_SHA1_8", CryptoType::EXTENDED},
                    SuiteRow{"Blank", "AES_CM_128_HMAC_SHA1_80 ", CryptoType::EXTENDED},
                    SuiteRow{"LaterSuite", "AEAD_AES_128_GCM", CryptoType::EXTENDED},
                    SuiteRow{"Empty", "", CryptoType::EXTENDED}, SuiteRow{"Null", nullptr, CryptoType::EXTENDED}),
    RowName());

struct NumberRow
{
    const char* name;
    int number;
    const char* suite;
    unsigned int lifetime;
};

class CryptoNumber : public testing::TestWithParam<NumberRow>
{
};

TEST_P(CryptoNumber, HasANameAndADefaultLifetime)
{
    const NumberRow& row = GetParam();
    // Numbers outside the enumeration come from callers who count in numbers.
    const auto type = static_cast<CryptoType::eCryptoType>(row.number);
    EXPECT_STREQ(CryptoType::getCryptoTypeName(type), row.suite);
    EXPECT_EQ(CryptoType::getKeyLifetimeIndex(type), row.lifetime);
}

INSTANTIATE_TEST_SUITE_P(, CryptoNumber,
                         testing::Values(NumberRow{"Tag80", 0, "AES_CM_128_HMAC_SHA1_80", 48},
                                         NumberRow{"Tag32", 1, "AES_CM_128_HMAC_SHA1_32", 48},
                                         NumberRow{"F8", 2, "F8_128_HMAC_SHA1_80", 48},
                                         NumberRow{"Extended", 3, "", 64}),
                         RowName());

} // namespace
