#include "LmLibs/LmUtil/LmInputStream.h"

#include "LmLibs/LmUtil/LmByteArrayInputStream.h"
#include "LmLibs/LmUtil/LmLine.h"
#include "LmLibs/LmUtil/LmStdInputStream.h"
#include "support/ByteStream.h"
#include "support/Matchers.h"

#include <cstring>
#include <limits>
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

struct StreamRow
{
    const char* name;
    const char* text;
    std::string (*read)(LmInputStream&);
    const char* result;
    unsigned int left;
};

class InputStream : public testing::TestWithParam<StreamRow>
{
};

TEST_P(InputStream, Reads)
{
    const StreamRow& row = GetParam();
    EXPECT_EQ(readEachWay(row.text, row.read), (Reading{row.result, {}, row.left}));
}

const StreamRow s_StreamRows[] = {
    {"BytesAre0To255", "\xFF\x80", [](LmInputStream& in) { return std::to_string(in.read() + in.read()); }, "383", 0},
    {"EndOfInputStaysTheEnd", "",
     [](LmInputStream& in) { return std::to_string(in.read()) + std::to_string(in.read()); }, "-1-1", 0},
    {"ResetGoesBackToTheMark", "abcd",
     [](LmInputStream& in) {
         in.read();
         in.mark(2);
         in.read();
         in.read();
         in.reset();
         return std::string(1, static_cast<char>(in.read()));
     },
     "b", 2},
    {"ResetBehindTheEndOfInput", "a",
     [](LmInputStream& in) {
         in.mark(1);
         in.read();
         in.read();
         in.reset();
         return rest(in);
     },
     "a", 0},
    {"ResetTwiceGoesToTheSamePlace", "abc",
     [](LmInputStream& in) {
         in.skip(1);
         in.mark(1);
         in.read();
         in.reset();
         in.read();
         in.reset();
         return rest(in);
     },
     "bc", 0},
    {"LaterMarkCounts", "abcd",
     [](LmInputStream& in) {
         in.mark(4);
         in.skip(2);
         in.mark(4);
         in.skip(1);
         in.reset();
         return rest(in);
     },
     "cd", 0},
    {"SkipGivesHowManyItPassed", "abc",
     [](LmInputStream& in) {
         const std::string first = std::to_string(in.skip(2));
         return first + std::to_string(in.skip(2));
     },
     "21", 0},
    {"SkipOfAHugeCount", "abc",
     [](LmInputStream& in) { return std::to_string(in.skip(std::numeric_limits<unsigned int>::max())); }, "3", 0},
    {"ReadIntoABufferBehindTheOffset", "abc",
     [](LmInputStream& in) {
         char buffer[] = "......";
         const unsigned int count = in.read(buffer, 2, 2);
         return std::to_string(count) + buffer;
     },
     "2..ab..", 1},
    {"ReadIntoABufferCutAtTheEnd", "abc",
     [](LmInputStream& in) {
         char buffer[] = "......";
         const unsigned int count = in.read(buffer, 0, 6);
         return std::to_string(count) + buffer;
     },
     "3abc...", 0},
    {"MarksAreSupported", "", [](LmInputStream& in) { return std::string(in.markSupported() ? "yes" : "no"); }, "yes",
     0},
    {"LineAsAView", "one\r\ntwo", [](LmInputStream& in) { return std::string(LmLine(in).view()); }, "one", 3},
};
INSTANTIATE_TEST_SUITE_P(, InputStream, testing::ValuesIn(s_StreamRows), RowName());

struct PartRow
{
    const char* name;
    unsigned int offset;
    unsigned int length;
    const char* result;
};

class ByteArrayInputStreamPart : public testing::TestWithParam<PartRow>
{
};

TEST_P(ByteArrayInputStreamPart, ShowsThatPart)
{
    const PartRow& row = GetParam();
    LmByteArrayInputStream in(LmByteArray::sCreate("abcdef"), row.offset, row.length);
    EXPECT_EQ(in.available(), std::strlen(row.result));
    EXPECT_EQ(rest(in), row.result);
    in.reset();
    EXPECT_EQ(rest(in), row.result) << "a reset without a mark goes to the start";
}

INSTANTIATE_TEST_SUITE_P(, ByteArrayInputStreamPart,
                         testing::Values(PartRow{"Whole", 0, 0, "abcdef"}, PartRow{"FromAnOffset", 2, 0, "cdef"},
                                         PartRow{"OffsetAndLength", 2, 3, "cde"}, PartRow{"LengthIsCut", 4, 9, "ef"},
                                         PartRow{"OffsetAtTheEnd", 6, 0, ""}, PartRow{"OffsetBehindTheEnd", 99, 3, ""},
                                         PartRow{"LargestNumbers", 0xFFFFFFFF, 0xFFFFFFFF, ""}),
                         RowName());

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
