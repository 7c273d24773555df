#include "LmLibs/LmUtil/LmInetAddress.h"

#include "support/Matchers.h"

#include <thread>

namespace
{

TEST(InetAddress, IsTakenFromItsDottedForm)
{
    const std::pair<const char*, unsigned int> rows[] = {
        {"10.47.16.5", 0x0A2F1005},
        {"0.0.0.0", 0},
        {"255.255.255.255", 0xFFFFFFFF},
        {" \t224.2.17.12\r\n", 0xE002110C},
        {"                              1.2.3.4                              ", 0x01020304},
    };
    for (const auto& [text, number] : rows)
    {
        LmInetAddress address("9.9.9.9", nullptr, 250);
        EXPECT_TRUE(address.initFromAddress(text)) << text;
        EXPECT_EQ(address.getAddress(), number);
        EXPECT_EQ(LmInetAddress(text, nullptr, 250).getAddress(), number);
    }
}

TEST(InetAddress, IsUnchangedByAnyOtherText)
{
    for (const char* text :
         {static_cast<const char*>(nullptr), "", " ", "010.1.2.3", "256.1.2.3", "10.1.2", "10.1.2.3.4", "167772161",
          "0x0A.1.2.3", "224.2.17.12/127", "10.1.2.3 x", "10. 1.2.3", "-1.1.2.3", "localhost", "::1", "::ffff:10.1.2.3",
          "10.1.2.3.10.1.2.3.10.1.2.3.10.1.2.3.10.1.2.3.10.1.2.3"})
    {
        LmInetAddress address("9.9.9.9", nullptr, 250);
        EXPECT_FALSE(address.initFromAddress(text)) << testing::PrintToString(text);
        EXPECT_EQ(address.getAddress(), 0x09090909u);
        EXPECT_EQ(LmInetAddress(text, nullptr, 250).getAddress(), 0u);
    }
}

TEST(InetAddress, WritesItsDottedForm)
{
    EXPECT_STREQ(LmInetAddress("10.47.16.5", nullptr, 250).getHostAddress(), "10.47.16.5");
    EXPECT_STREQ(LmInetAddress().getHostAddress(), "0.0.0.0");
    EXPECT_TRUE(LmInetAddress("1.2.3.4", nullptr, 0) == LmInetAddress(" 1.2.3.4", "x", 1));
    EXPECT_TRUE(LmInetAddress("1.2.3.4", nullptr, 0) != LmInetAddress());
    EXPECT_EQ(sizeof(LmInetAddress), 4u) << "one word";
}

TEST(InetAddress, TextOfOneThreadIsNotThatOfAnother)
{
    const char* const text = LmInetAddress("1.2.3.4", nullptr, 0).getHostAddress();
    std::thread([] { LmInetAddress("5.6.7.8", nullptr, 0).getHostAddress(); }).join();
    EXPECT_STREQ(text, "1.2.3.4");
}

TEST(InetAddress, LocalHostIsAnAddressThatReadsBack)
{
    const LmInetAddress local = LmInetAddress::sGetLocalHost(250);
    EXPECT_NE(local.getAddress(), 0u);
    EXPECT_EQ(LmInetAddress(local.getHostAddress(), nullptr, 250), local);
    EXPECT_EQ(LmInetAddress::sGetLocalHost(0), local);
}

} // namespace
