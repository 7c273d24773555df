#include "LmLibs/LmUtil/LmCharacters.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cstdlib>

namespace
{

TEST(Characters, AreClassedAsInTheCLocaleForEachByteAndTheEnd)
{
    for (int c = -1; c <= 255; ++c)
    {
        EXPECT_EQ(lmIsSpace(c), std::isspace(c) != 0) << c;
        EXPECT_EQ(lmIsDigit(c), std::isdigit(c) != 0) << c;
    }
}

TEST(Numbers, AreReadAsTheRuntimeLibraryReadsThem)
{
    for (const char* text : {"",
                             "0",
                             "12",
                             " \t\r\n12x",
                             "+7",
                             "-7",
                             "--7",
                             "+-7",
                             "- 7",
                             "x",
                             "007",
                             "1e3",
                             "0x10",
                             "2147483647",
                             "2147483648",
                             "-2147483648",
                             "4294967296",
                             "9223372036854775807",
                             "9223372036854775808",
                             "-9223372036854775808",
                             "-9223372036854775809",
                             "99999999999999999999999",
                             "-99999999999999999999999",
                             "\xB2"})
    {
        EXPECT_EQ(lmAtol(text), std::atol(text)) << text;
        EXPECT_EQ(lmAtoi(text), std::atoi(text)) << text;
    }
}

TEST(Numbers, EndWithTheView)
{
    EXPECT_EQ(lmAtol(std::string_view("1234", 2)), 12);
}

} // namespace
