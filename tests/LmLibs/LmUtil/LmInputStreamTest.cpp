#include "LmLibs/LmUtil/LmInputStream.h"

#include "LmLibs/LmUtil/LmByteArrayInputStream.h"
#include "LmLibs/LmUtil/LmLine.h"
#include "LmLibs/LmUtil/LmStdInputStream.h"
#include "support/ByteStream.h"
#include "support/Matchers.h"

#include <cstring>
#include <sstream>

namespace
{

std::string rest(LmInputStream& in)
{
    std::string text;
    for (int next = in.read(); next != -1; next = in.read())
    {
        text.push_back(static_cast<char>(next));
    }
    return text;
}

/// What the steps read: r a byte, m marks for four bytes, b goes back to the mark, s passes over a byte.
Reading readInSteps(std::string_view text, std::string_view steps)
{
    return readEachWay(text, [steps](LmInputStream& in) {
        std::string seen;
        for (const char step : steps)
        {
            switch (step)
            {
            case 'r':
                seen += std::to_string(in.read()) + " ";
                break;
            case 'm':
                in.mark(4);
                break;
            case 'b':
                in.reset();
                break;
            default:
                seen += "+" + std::to_string(in.skip(1)) + " ";
            }
        }
        return seen;
    });
}

TEST(InputStream, MarksAndGoesBack)
{
    EXPECT_EQ(readInSteps("\xFF\x80", "rr"), (Reading{"255 128 ", {}, 0}));
    EXPECT_EQ(readInSteps("", "rrs"), (Reading{"-1 -1 +0 ", {}, 0}));
    EXPECT_EQ(readInSteps("1234", "rmrrbr"), (Reading{"49 50 51 50 ", {}, 2}));
    EXPECT_EQ(readInSteps("1", "mrrbrr"), (Reading{"49 -1 49 -1 ", {}, 0}));
    EXPECT_EQ(readInSteps("123", "smrbrbrr"), (Reading{"+1 50 50 50 51 ", {}, 0})) << "twice to the same place";
    EXPECT_EQ(readInSteps("1234", "mssmsbrr"), (Reading{"+1 +1 +1 51 52 ", {}, 0})) << "the later mark counts";
}

TEST(InputStream, PassesOverManyAndFillsABuffer)
{
    const Reading reading = readEachWay("0123456789", [](LmInputStream& in) {
        char buffer[] = "......";
        std::string seen = std::to_string(in.skip(2)) + ", ";
        seen += std::to_string(in.read(buffer, 2, 2)) + " " + buffer + ", ";
        seen += std::to_string(in.skip(4)) + ", ";
        return seen + std::to_string(in.read(buffer, 0, 6)) + " " + buffer;
    });
    EXPECT_EQ(reading, (Reading{"2, 2 ..23.., 4, 2 8923..", {}, 0}));
    EXPECT_EQ(readEachWay("abc", [](LmInputStream& in) { return std::to_string(in.skip(0xFFFFFFFF)); }).result, "3");
}

TEST(InputStream, SupportsMarksAndLines)
{
    EXPECT_EQ(readEachWay("", [](LmInputStream& in) { return in.markSupported() ? "yes" : "no"; }).result, "yes");
    const Reading line = readEachWay("one\r\ntwo", [](LmInputStream& in) { return std::string(LmLine(in).view()); });
    EXPECT_EQ(line, (Reading{"one", {}, 3}));
}

TEST(ByteArrayInputStream, ShowsThatPart)
{
    const auto expectPart = [](unsigned int offset, unsigned int length, const char* part) {
        LmByteArrayInputStream in(LmByteArray::sCreate("abcdef"), offset, length);
        EXPECT_EQ(in.available(), std::strlen(part));
        EXPECT_EQ(rest(in), part);
        in.reset();
        EXPECT_EQ(rest(in), part) << "a reset without a mark goes to the start";
    };
    expectPart(0, 0, "abcdef");
    expectPart(2, 0, "cdef");
    expectPart(2, 3, "cde");
    expectPart(4, 9, "ef");
    expectPart(6, 0, "");
    expectPart(99, 3, "");
    expectPart(0xFFFFFFFF, 0xFFFFFFFF, "");
}

TEST(ByteArrayInputStream, KeepsItsArrayAlive)
{
    LmHandle<LmByteArray> hBytes = LmByteArray::sCreate("abc");
    LmByteArrayInputStream in(hBytes, 0, 0);
    hBytes = nullptr;
    EXPECT_EQ(rest(in), "abc");
}

TEST(ByteArrayInputStream, ReadsANullArrayAsAnEmptyOne)
{
    LmByteArrayInputStream in(nullptr, 0, 0);
    EXPECT_EQ(in.available(), 0u);
    EXPECT_EQ(in.read(), -1);
}

TEST(ByteArrayInputStream, MarkHoldsWhateverTheLimit)
{
    LmByteArrayInputStream in(LmByteArray::sCreate("abcdef"), 0, 0);
    in.mark(0);
    rest(in);
    in.reset();
    EXPECT_EQ(rest(in), "abcdef");
}

TEST(ByteArray, CopiesItsBytes)
{
    char text[] = "a\0b";
    const LmHandle<LmByteArray> hBytes = LmByteArray::sCreate(3, text);
    const LmHandle<LmByteArray> hText = LmByteArray::sCreate(text);
    text[0] = text[2] = 'x';
    ASSERT_EQ(hBytes->getSize(), 3u);
    EXPECT_EQ(std::memcmp(hBytes->getBytes(), "a\0b", 3), 0);
    EXPECT_EQ(hText->getSize(), 1u) << "a text ends at its NUL";
    EXPECT_EQ(LmByteArray::sCreate(nullptr)->getSize(), 0u);
    EXPECT_EQ(LmByteArray::sCreate(0, nullptr)->getSize(), 0u);
}

TEST(StdInputStream, ResetWithoutAMarkGoesToWhereItBegan)
{
    std::istringstream source("abcdef");
    source.ignore(2);
    LmStdInputStream in(source);
    EXPECT_EQ(rest(in), "cdef");
    in.reset();
    EXPECT_EQ(rest(in), "cdef");
}

TEST(StdInputStream, TakesNoMoreThanItIsAskedFor)
{
    std::istringstream source("abcdef");
    LmStdInputStream in(source);
    in.skip(3);
    EXPECT_EQ(source.get(), 'd');
}

TEST(StdInputStream, HoldsOnlyWhatLiesBehindTheMark)
{
    std::istringstream source(std::string(200000, 'x'));
    LmStdInputStream in(source);
    for (int passed = 0; passed < 200000; ++passed)
    {
        in.mark(1);
        in.read();
        in.reset();
        in.read();
    }
    in.mark(1);
    EXPECT_EQ(in.available(), 0u);
    EXPECT_EQ(in.read(), -1);
}

TEST(StdInputStream, AClosedFileIsAtItsEnd)
{
    std::istringstream source;
    source.setstate(std::ios::failbit);
    LmStdInputStream in(source);
    EXPECT_EQ(in.available(), 0u);
    EXPECT_EQ(in.read(), -1);
}

} // namespace
