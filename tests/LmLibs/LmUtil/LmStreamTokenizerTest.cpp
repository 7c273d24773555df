#include "LmLibs/LmUtil/LmStreamTokenizer.h"

#include "support/Matchers.h"

#include <memory>

namespace
{

using namespace std::string_view_literals;

std::string discardWhite(LmInputStream& in)
{
    return std::to_string(LmStreamTokenizer::sDiscardWhite(in));
}

std::string isEmptyLine(LmInputStream& in)
{
    return LmStreamTokenizer::sIsEmptyLine(in) ? "empty" : "not empty";
}

std::string getLine(LmInputStream& in)
{
    return std::string(LmStreamTokenizer::sGetLine(in).view());
}

std::string getUnsigned(LmInputStream& in)
{
    return std::to_string(LmStreamTokenizer::sGetUnsigned(in));
}

/// Calls `read` with a block of exactly `size` bytes that holds no NUL yet.
template <typename Read>
std::string intoBuffer(unsigned int size, Read read)
{
    const std::unique_ptr<char[]> buffer(new char[size]);
    std::fill_n(buffer.get(), size, '#');
    const bool taken = read(buffer.get(), size);
    return std::string(taken ? "true " : "false ") + (size == 0 ? "" : buffer.get());
}

template <unsigned int Size>
std::string getLineInto(LmInputStream& in)
{
    return intoBuffer(Size,
                      [&](char* buffer, unsigned int size) { return LmStreamTokenizer::sGetLine(in, buffer, size); });
}

template <unsigned int Size, char... Delimiters>
std::string getToken(LmInputStream& in)
{
    const char delimiters[] = {Delimiters..., '\0'};
    return intoBuffer(Size, [&](char* buffer, unsigned int size) {
        return LmStreamTokenizer::sGetToken(in, delimiters, buffer, size);
    });
}

/// The operation once more, behind itself.
template <std::string (*Read)(LmInputStream&)>
std::string twice(LmInputStream& in)
{
    const std::string first = Read(in);
    return first + ", " + Read(in);
}

/// The operation, and then the next byte.
template <std::string (*Read)(LmInputStream&)>
std::string andByte(LmInputStream& in)
{
    const std::string first = Read(in);
    return first + ", " + std::to_string(in.read());
}

struct TokenizerRow
{
    const char* name;
    std::string_view text;
    std::string (*read)(LmInputStream&);
    const char* result;
    unsigned int left;

    friend void PrintTo(const TokenizerRow& row, std::ostream* out) { *out << row.name; }
};

class StreamTokenizer : public testing::TestWithParam<TokenizerRow>
{
};

TEST_P(StreamTokenizer, Reads)
{
    const TokenizerRow& row = GetParam();
    EXPECT_EQ(readEachWay(row.text, row.read), (Reading{row.result, {}, row.left}));
}

const TokenizerRow s_DiscardWhite[] = {
    {"NothingThere", "", discardWhite, "-1", 0},
    {"OnlyWhiteSpaceIsConsumed", " \t\r\n\v\f ", discardWhite, "-1", 0},
    {"StopsInFrontOfALetter", " \r\n\r\nv=0", discardWhite, "118", 3},
    {"TwiceGivesTheSame", "  x", twice<discardWhite>, "120, 120", 1},
    {"HighByteIsNotNegative", "\xFFz", discardWhite, "255", 2},
    {"NulIsNoWhiteSpace", "\0"sv, discardWhite, "0", 1},
    {"NoBreakSpaceIsNoWhiteSpace", "\xA0", discardWhite, "160", 1},
};
INSTANTIATE_TEST_SUITE_P(DiscardWhite, StreamTokenizer, testing::ValuesIn(s_DiscardWhite), RowName());

const TokenizerRow s_IsEmptyLine[] = {
    {"EndOfInput", "", isEmptyLine, "empty", 0},       {"CrLf", "\r\nx", isEmptyLine, "empty", 3},
    {"LoneLf", "\nx", isEmptyLine, "empty", 2},        {"LoneCr", "\rx", isEmptyLine, "empty", 2},
    {"Blanks", "  \r\n", isEmptyLine, "not empty", 4}, {"Text", "x", isEmptyLine, "not empty", 1},
};
INSTANTIATE_TEST_SUITE_P(IsEmptyLine, StreamTokenizer, testing::ValuesIn(s_IsEmptyLine), RowName());

const TokenizerRow s_GetLine[] = {
    {"TwoLines", "one\r\ntwo\r\n", twice<getLine>, "one, two", 0},
    {"LoneCrLf", "\r\n", getLine, "", 0},
    {"LoneLf", "one\ntwo", getLine, "one", 3},
    {"LoneCr", "one\rtwo", getLine, "one", 3},
    {"LfCrEndsTwoLines", "one\n\rtwo", twice<getLine>, "one, ", 3},
    {"CrAtTheEndOfInput", "one\r", getLine, "one", 0},
    {"BlanksStay", "  one \t \r\n", getLine, "  one \t ", 0},
    {"WithoutLineEnd", "one", getLine, "one", 0},
    {"EndOfInput", "", twice<getLine>, ", ", 0},
    {"OnlyOneLineEndIsConsumed", "one\r\n\r\ntwo", getLine, "one", 5},
    {"LongerThanSixteenBytes", "0123456789abcdefghijklmnopqrstuvwxyz\r\nx", getLine,
     "0123456789abcdefghijklmnopqrstuvwxyz", 1},
};
INSTANTIATE_TEST_SUITE_P(GetLine, StreamTokenizer, testing::ValuesIn(s_GetLine), RowName());

const TokenizerRow s_GetLineInto[] = {
    {"FitsExactly", "abc\r\nx", getLineInto<4>, "true abc", 1},
    {"OneTooMany", "abcd\r\nx", getLineInto<4>, "false ", 1},
    {"TooLongWithoutLineEnd", "abcdefgh", getLineInto<4>, "false ", 0},
    {"EmptyLine", "\r\nx", getLineInto<4>, "true ", 1},
    {"EndOfInput", "", getLineInto<4>, "false ", 0},
    {"RoomForTheNulOnly", "\nx", getLineInto<1>, "true ", 1},
    {"NoRoomAtAll", "a\nx", getLineInto<0>, "false ", 1},
};
INSTANTIATE_TEST_SUITE_P(GetLineIntoBuffer, StreamTokenizer, testing::ValuesIn(s_GetLineInto), RowName());

const TokenizerRow s_GetToken[] = {
    {"EndedByTheEndOfInput", "abc", twice<getToken<8, ':'>>, "true abc, false ", 0},
    {"DelimiterStaysUnread", "key|more", andByte<getToken<8, '|'>>, "true key, 124", 4},
    {"LeadingLineEndIsPassedOver", " \r\nx", getToken<8, ':'>, "true x", 0},
    {"WhiteSpaceInsideStays", "a b\r\nc:d", getToken<8, ':'>, "true a b\r\nc", 2},
    {"SecondOfSeveralDelimiters", "suite\r\nx", getToken<8, ' ', '\r', '\n'>, "true suite", 3},
    {"FirstIsADelimiter", "=1", twice<getToken<8, '='>>, "true , true ", 2},
    {"WhiteSpaceAsDelimiterIsPassedOverInFront", " a b", getToken<8, ' '>, "true a", 2},
    {"OnlyWhiteSpace", " \r\n", getToken<8, ':'>, "false ", 0},
    {"FitsExactly", "abc=1", getToken<4, '='>, "true abc", 2},
    {"OneTooManyIsConsumed", "abcd=1", getToken<4, '='>, "false ", 2},
    {"MuchTooLongWithoutDelimiter", "abcdefghijklmnopqrstuvwxyz", getToken<4, '='>, "false ", 0},
    {"NoRoomAtAll", "a=1", getToken<0, '='>, "false ", 2},
    {"HighByteIsNoDelimiter", "\xFF=1", getToken<4, '='>, "true \xFF", 2},
};
INSTANTIATE_TEST_SUITE_P(GetToken, StreamTokenizer, testing::ValuesIn(s_GetToken), RowName());

const TokenizerRow s_GetUnsigned[] = {
    {"StopsBehindTheDigits", "12:34", andByte<getUnsigned>, "12, 58", 2},
    {"NoDigit", ":34", andByte<getUnsigned>, "4294967295, 58", 2},
    {"LeadingBlankIsNotPassedOver", " 7", getUnsigned, "4294967295", 2},
    {"NoSign", "-1", getUnsigned, "4294967295", 2},
    {"EndOfInput", "", getUnsigned, "4294967295", 0},
    {"Zero", "0", getUnsigned, "0", 0},
    {"LeadingZeros", "000000000000000000000000012x", getUnsigned, "12", 1},
    {"LargestOneBelow", "4294967294", getUnsigned, "4294967294", 0},
    {"Of33Bits", "4294967296 ", getUnsigned, "4294967295", 1},
    {"Of64Bits", "18446744073709551617:", getUnsigned, "4294967295", 1},
    {"HighByteIsNoDigit", "1\xB2", getUnsigned, "1", 1},
};
INSTANTIATE_TEST_SUITE_P(GetUnsigned, StreamTokenizer, testing::ValuesIn(s_GetUnsigned), RowName());

std::string word(LmInputStream& in)
{
    LmString text("as before");
    in >> text;
    return std::string(text.view());
}

const TokenizerRow s_Words[] = {
    {"LeavesTheWhiteSpaceBehindUnread", "one two", word, "one", 4},
    {"PassesOverBlanksAndTabs", " \t\v\fone", word, "one", 0},
    {"TwoWords", "one two", twice<word>, "one, two", 0},
    {"DoesNotCrossALineEnd", "one\r\ntwo", twice<word>, "one, ", 5},
    {"EmptyAtALineEndBehindBlanks", "  \ntwo", word, "", 4},
    {"EmptyAtTheEndOfInput", "", word, "", 0},
    {"EmptyAtTheEndBehindBlanks", "  ", word, "", 0},
    {"EndsAtAFormFeed", "one\ftwo", word, "one", 4},
};
INSTANTIATE_TEST_SUITE_P(Extraction, StreamTokenizer, testing::ValuesIn(s_Words), RowName());

TEST(Extraction, HasNoLimitOfLength)
{
    const std::string text(100000, 'w');
    EXPECT_EQ(readEachWay(text + " ", word), (Reading{text, {}, 1}));
}

/// A line end may stand at any place of the blocks in which a line is searched, and behind its end.
TEST(GetLine, FindsALineEndAtEachPlace)
{
    for (std::size_t length = 0; length < 70; ++length)
    {
        const std::string line(length, 'x');
        for (const char* end : {"\r\n", "\n", "\r", ""})
        {
            const Reading reading = readEachWay(line + end, getLine);
            EXPECT_EQ(reading, (Reading{line, {}, 0})) << length << testing::PrintToString(end);
        }
    }
}

} // namespace
