#include "support/LiveObjects.h"

#include "LmLibs/LmUtil/LmObject.h"
#include "core/MemAccount.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <string>

namespace
{

constexpr std::array s_Accounts = {"LmSdpAttribute", "LmSdpAttributeField",   "LmSdpMsg",
                                   "LmCryptoKey",    "LmSecurityDescription", "LmSdpCryptoAttribute"};

using Figures = std::map<std::string, long long>;

Figures figuresNow()
{
    Figures figures{{"LmObject", LmObject::sLiveObjects()}};
    for (const char* account : s_Accounts)
    {
        const Quorvex::MemAccount::Usage usage = Quorvex::MemAccount::usage(account);
        figures[account] = static_cast<long long>(usage.liveObjects);
        figures[account + std::string(" bytes")] = static_cast<long long>(usage.liveBytes);
    }
    return figures;
}

class Watch : public testing::EmptyTestEventListener
{
    void OnTestStart(const testing::TestInfo&) override { m_Before = figuresNow(); }
    void OnTestEnd(const testing::TestInfo&) override
    {
        EXPECT_EQ(figuresNow(), m_Before) << "objects outlived the test";
    }

    Figures m_Before;
};

} // namespace

bool LiveObjects::watch()
{
    testing::UnitTest::GetInstance()->listeners().Append(new Watch);
    return true;
}
