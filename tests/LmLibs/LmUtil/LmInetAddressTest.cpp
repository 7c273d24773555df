#include "LmLibs/LmUtil/LmInetAddress.h"

#include "support/Matchers.h"

#include <thread>

namespace
{

struct AddressRow
{
    const char* name;
    const char* text;
    bool taken;
    unsigned int address;
};

class AddressText : public testing::TestWithParam<AddressRow>
{
};

TEST_P(AddressText, IsTakenFromText)
{
    const AddressRow& row = GetParam();
    LmInetAddress address("9.9.9.9", nullptr, 250);
    EXPECT_EQ(address.initFromAddress(row.text), row.taken);
    EXPECT_EQ(address.getAddress(), row.taken ? row.address : 0x09090909u) << "a text not taken changes nothing";
    EXPECT_EQ(LmInetAddress(row.text, nullptr, 250).getAddress(), row.address);
}

const AddressRow s_Addresses[] = {
    {"Dotted", "10.47.16.5", true, 0x0A2F1005},
    {"Lowest", "0.0.0.0", true, 0},
    {"Highest", "255.255.255.255", true, 0xFFFFFFFF},
    {"WhiteSpaceAtBothEnds", " \t224.2.17.12\r\n", true, 0xE002110C},
    {"MuchWhiteSpace", "                              1.2.3.4                              ", true, 0x01020304},
    {"NullPointer", nullptr, false, 0},
    {"Empty", "", false, 0},
    {"Blank", " ", false, 0},
    {"LeadingZero", "010.1.2.3", false, 0},
    {"NumberTooLarge", "256.1.2.3", false, 0},
    {"ThreeNumbers", "10.1.2", false, 0},
    {"FiveNumbers", "10.1.2.3.4", false, 0},
    {"OneNumber", "167772161", false, 0},
    {"Hexadecimal", "0x0A.1.2.3", false, 0},
    {"TimeToLive", "224.2.17.12/127", false, 0},
    {"TextBehind", "10.1.2.3 x", false, 0},
    {"BlankInside", "10. 1.2.3", false, 0},
    {"Sign", "-1.1.2.3", false, 0},
    {"HostName", "localhost", false, 0},
    {"SixthVersion", "::1", false, 0},
    {"SixthVersionWithFourth", "::ffff:10.1.2.3", false, 0},
    {"LongText", "10.1.2.3.10.1.2.3.10.1.2.3.10.1.2.3.10.1.2.3.10.1.2.3", false, 0},
};
INSTANTIATE_TEST_SUITE_P(, AddressText, testing::ValuesIn(s_Addresses), RowName());

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
