#include "LmLibs/LmUtil/LmString.h"

#include "support/Matchers.h"

#include <climits>
#include <functional>
#include <thread>
#include <vector>

namespace
{

LmString withoutBuffer()
{
    return LmString(LmHandle<LmStringBuffer>());
}

LmString withNullText()
{
    LmString text("x");
    text.assign(nullptr);
    return text;
}

TEST(String, IsOneHandle)
{
    EXPECT_EQ(sizeof(LmString), sizeof(void*));
}

TEST(String, KnowsAnEmptyTextFromAMissingOne)
{
    EXPECT_STREQ(LmString().c_str(), "");
    EXPECT_STREQ(LmString(static_cast<const char*>(nullptr)).c_str(), "");
    EXPECT_STREQ(LmString("").c_str(), "");
    EXPECT_EQ(withoutBuffer().c_str(), nullptr);
    EXPECT_EQ(withNullText().c_str(), nullptr);
    for (const LmString& blank : {LmString(), LmString(""), withoutBuffer(), withNullText()})
    {
        EXPECT_EQ(blank.length(), 0u);
        EXPECT_TRUE(blank.isBlank());
        EXPECT_EQ(blank.view(), "");
    }
    EXPECT_FALSE(LmString(" ").isBlank());
}

/// What a text is after a change that is made to a copy of it, and that the text itself does not see.
struct ChangeRow
{
    const char* name;
    const char* before;
    void (*change)(LmString& text);
    const char* after;
};

class StringChange : public testing::TestWithParam<ChangeRow>
{
};

TEST_P(StringChange, IsNotSeenByACopy)
{
    const ChangeRow& row = GetParam();
    const LmString original(row.before);
    LmString text(original);
    row.change(text);
    EXPECT_STREQ(text.c_str(), row.after);
    EXPECT_STREQ(original.c_str(), row.before);
}

TEST_P(StringChange, HappensInPlaceWithoutACopy)
{
    const ChangeRow& row = GetParam();
    LmString text(row.before);
    row.change(text);
    EXPECT_STREQ(text.c_str(), row.after);
    // The change leaves a text that can be changed once more.
    text.append("+");
    EXPECT_EQ(text.view(), (row.after == nullptr ? std::string() : row.after) + "+");
}

const ChangeRow s_Changes[] = {
    {"Assign", "abc", [](LmString& text) { text.assign("xyz"); }, "xyz"},
    {"AssignByOperator", "abc", [](LmString& text) { text = "xyz"; }, "xyz"},
    {"AssignLonger", "abc", [](LmString& text) { text.assign("0123456789012345678901234567890123456789"); },
     "0123456789012345678901234567890123456789"},
    {"AssignEmpty", "abc", [](LmString& text) { text.assign(""); }, ""},
    {"AssignNull", "abc", [](LmString& text) { text.assign(nullptr); }, nullptr},
    {"AssignNullTwice", "abc",
     [](LmString& text) {
         text.assign(nullptr);
         text.assign(nullptr);
     },
     nullptr},
    {"AssignBehindNull", "abc",
     [](LmString& text) {
         text.assign(nullptr);
         text.assign("xy");
     },
     "xy"},
    {"AssignNullToALongText", "abc",
     [](LmString& text) {
         text.assign("0123456789012345678901234567890123456789");
         text.assign(nullptr);
         text.append("xy");
     },
     "xy"},
    {"AssignItsOwnText", "abc", [](LmString& text) { text.assign(text.c_str()); }, "abc"},
    {"AssignAPartOfItself", "abcdef", [](LmString& text) { text.assign(text.c_str() + 2); }, "cdef"},
    {"AssignItsOwnEnd", "abcdef", [](LmString& text) { text.assign(text.c_str() + 6); }, ""},
    {"Append", "abc", [](LmString& text) { text.append("xyz"); }, "abcxyz"},
    {"AppendNull", "abc", [](LmString& text) { text.append(static_cast<const char*>(nullptr)); }, "abc"},
    {"AppendNothingToNothing", "", [](LmString& text) { text.append(static_cast<const char*>(nullptr)); }, ""},
    {"AppendAnEmptyView", "abc", [](LmString& text) { text.append(std::string_view()); }, "abc"},
    {"AppendItself", "abc", [](LmString& text) { text.append(text); }, "abcabc"},
    {"AppendItsOwnText", "0123456789abcdef", [](LmString& text) { text.append(text.c_str()); },
     "0123456789abcdef0123456789abcdef"},
    {"AppendAPartOfItself", "0123456789abcdef", [](LmString& text) { text.append(text.c_str() + 14); },
     "0123456789abcdefef"},
    {"AppendAPartOfItselfAgainAndAgain", "abc",
     [](LmString& text) {
         for (int round = 0; round < 20; ++round)
         {
             text.append(text.c_str() + text.length() - 1);
         }
     },
     "abccccccccccccccccccccc"},
    {"AppendToNull", "abc",
     [](LmString& text) {
         text.assign(nullptr);
         text.append("xy");
     },
     "xy"},
    {"AppendByteByByte", "",
     [](LmString& text) {
         for (char c = 'a'; c <= 'z'; ++c)
         {
             text.append(std::string_view(&c, 1));
         }
     },
     "abcdefghijklmnopqrstuvwxyz"},
    {"Trim", " \t\r\n\v\fabc d \r\n", [](LmString& text) { text.trim(); }, "abc d"},
    {"TrimOnlyWhiteSpace", " \t ", [](LmString& text) { text.trim(); }, ""},
    {"TrimNothing", "abc", [](LmString& text) { text.trim(); }, "abc"},
    {"TrimEmpty", "", [](LmString& text) { text.trim(); }, ""},
    {"TrimNull", " abc ",
     [](LmString& text) {
         text.assign(nullptr);
         text.trim();
     },
     nullptr},
    {"AssignItself", "abc",
     [](LmString& text) {
         const LmString& same = text;
         text = same;
     },
     "abc"},
};
INSTANTIATE_TEST_SUITE_P(, StringChange, testing::ValuesIn(s_Changes), RowName());

TEST(String, WithoutABufferCanBeChanged)
{
    LmString text = withoutBuffer();
    text.trim();
    EXPECT_TRUE(text.isBlank());
    text = withoutBuffer();
    text.append("ab");
    EXPECT_STREQ(text.c_str(), "ab");
    text = withoutBuffer();
    text.assign("ab");
    EXPECT_STREQ(text.c_str(), "ab");
    EXPECT_STREQ(withoutBuffer().substr(0, 0).c_str(), "");
    EXPECT_EQ(withoutBuffer().indexOf("a", 0), -1);
    EXPECT_EQ(withoutBuffer().compareWith(nullptr), 0);
}

TEST(String, TakesNoMemoryWhileItIsEmpty)
{
    const LmString one;
    const LmString other("");
    EXPECT_EQ(static_cast<const void*>(one.c_str()), other.c_str()) << "all empty texts are the same one";
}

TEST(String, SharesTheBufferUntilItChanges)
{
    const LmString original("abc");
    LmString copy(original);
    EXPECT_EQ(static_cast<const void*>(original.c_str()), copy.c_str());
    copy.append("d");
    EXPECT_NE(static_cast<const void*>(original.c_str()), copy.c_str());
    const LmString moved(std::move(copy));
    EXPECT_STREQ(moved.c_str(), "abcd");
    EXPECT_STREQ(copy.c_str(), "");
}

TEST(String, HoldsNulBytes)
{
    const LmString text(std::string_view("a\0b", 3));
    EXPECT_EQ(text.length(), 3u);
    LmString longer(text);
    longer.append(text);
    EXPECT_EQ(longer.view(), std::string_view("a\0ba\0b", 6));
    EXPECT_EQ(text.compareWith("a") > 0, true);
}

struct PartRow
{
    const char* name;
    const char* text;
    unsigned int start;
    unsigned int length;
    const char* part;
};

class Substr : public testing::TestWithParam<PartRow>
{
};

TEST_P(Substr, GivesThatPart)
{
    const PartRow& row = GetParam();
    const LmString text(row.text);
    EXPECT_STREQ(text.substr(row.start, row.length).c_str(), row.part);
}

INSTANTIATE_TEST_SUITE_P(, Substr,
                         testing::Values(PartRow{"FromTheStart", "abc", 0, 2, "ab"}, PartRow{"Rest", "abc", 1, 0, "bc"},
                                         PartRow{"CutAtTheEnd", "abc", 1, 99, "bc"},
                                         PartRow{"AtTheEnd", "abc", 3, 0, ""}, PartRow{"BehindTheEnd", "abc", 9, 2, ""},
                                         PartRow{"LargestNumbers", "abc", UINT_MAX, UINT_MAX, ""},
                                         PartRow{"LargestLength", "abc", 2, UINT_MAX, "c"},
                                         PartRow{"OfNothing", "", 0, 0, ""}),
                         RowName());

struct SearchRow
{
    const char* name;
    const char* text;
    const char* needle;
    int start;
    int place;
};

class IndexOf : public testing::TestWithParam<SearchRow>
{
};

TEST_P(IndexOf, GivesTheFirstPlace)
{
    const SearchRow& row = GetParam();
    EXPECT_EQ(LmString(row.text).indexOf(row.needle, row.start), row.place);
}

INSTANTIATE_TEST_SUITE_P(
    , IndexOf,
    testing::Values(SearchRow{"First", "a:b:c", ":", 0, 1}, SearchRow{"AtTheStart", "a:b:c", ":", 1, 1},
                    SearchRow{"BehindTheStart", "a:b:c", ":", 2, 3}, SearchRow{"Missing", "abc", ":", 0, -1},
                    SearchRow{"LongerNeedle", "a\r\nb", "\r\n", 0, 1},
                    SearchRow{"NeedleLongerThanTheText", "a", "abc", 0, -1}, SearchRow{"EmptyNeedle", "abc", "", 0, -1},
                    SearchRow{"NullNeedle", "abc", nullptr, 0, -1}, SearchRow{"NegativeStart", "a:", ":", -5, 1},
                    SearchRow{"StartAtTheEnd", "a:", ":", 2, -1},
                    SearchRow{"StartBehindTheEnd", "a:", ":", INT_MAX, -1}, SearchRow{"InNothing", "", ":", 0, -1}),
    RowName());

struct OrderRow
{
    const char* name;
    const char* left;
    const char* right;
    int sign;
};

class CompareWith : public testing::TestWithParam<OrderRow>
{
};

TEST_P(CompareWith, OrdersByBytes)
{
    const OrderRow& row = GetParam();
    const int order = LmString(row.left).compareWith(row.right);
    EXPECT_EQ((order > 0) - (order < 0), row.sign);
}

INSTANTIATE_TEST_SUITE_P(, CompareWith,
                         testing::Values(OrderRow{"Equal", "abc", "abc", 0}, OrderRow{"Prefix", "ab", "abc", -1},
                                         OrderRow{"Longer", "abc", "ab", 1}, OrderRow{"CaseCounts", "A", "a", -1},
                                         OrderRow{"NullIsEmpty", "", nullptr, 0},
                                         OrderRow{"BehindNull", "a", nullptr, 1},
                                         OrderRow{"BytesHaveNoSign", "\xFF", "a", 1}),
                         RowName());

struct CreateRow
{
    const char* name;
    const char* text;
    unsigned int length;
    unsigned int capacity;
    const char* result;
};

class StringBufferCreate : public testing::TestWithParam<CreateRow>
{
};

TEST_P(StringBufferCreate, CopiesThatMuch)
{
    const CreateRow& row = GetParam();
    const LmHandle<LmStringBuffer> hBuffer = LmStringBuffer::sCreate(row.text, row.length, row.capacity);
    EXPECT_STREQ(hBuffer->getText(), row.result);
    EXPECT_EQ(hBuffer->getLength(), std::string(row.result).size());
}

INSTANTIATE_TEST_SUITE_P(, StringBufferCreate,
                         testing::Values(CreateRow{"Whole", "abc", 0, 0, "abc"}, CreateRow{"Null", nullptr, 0, 0, ""},
                                         CreateRow{"NullWithALength", nullptr, 7, 0, ""},
                                         CreateRow{"NullWithRoom", nullptr, 0, 512, ""},
                                         CreateRow{"LengthOfTheText", "abc", 2, 0, "ab"},
                                         CreateRow{"LengthBehindTheText", "abc", 99, 0, "abc"},
                                         CreateRow{"RoomBelowTheText", "abcdef", 0, 2, "abcdef"}),
                         RowName());

TEST(StringBuffer, StaysInPlaceWithinItsRoomAndGrowsBeyondIt)
{
    const LmHandle<LmStringBuffer> hBuffer = LmStringBuffer::sCreate(nullptr, 0, 80);
    const char* const text = hBuffer->getText();
    const std::string eighty(80, 'a');
    EXPECT_EQ(hBuffer->append(eighty.c_str()), hBuffer);
    EXPECT_EQ(hBuffer->getText(), text);
    EXPECT_EQ(hBuffer->append(std::string(1000, 'b').c_str()), hBuffer);
    EXPECT_EQ(hBuffer->view(), eighty + std::string(1000, 'b'));
}

TEST(StringBuffer, GivesBackItselfUnlessItIsShared)
{
    const LmHandle<LmStringBuffer> hBuffer = LmStringBuffer::sCreate(" abc ", 0, 0);
    EXPECT_EQ(hBuffer->assign(" xyz "), hBuffer);
    EXPECT_EQ(hBuffer->trim(), hBuffer);
    EXPECT_EQ(hBuffer->append("defg", 2), hBuffer) << "the length is how much of the text is taken";
    EXPECT_STREQ(hBuffer->getText(), "xyzde");
    const LmHandle<LmStringBuffer> hOther = hBuffer;
    const LmHandle<LmStringBuffer> hAppended = hBuffer->append("!");
    const LmHandle<LmStringBuffer> hAssigned = hBuffer->assign("new");
    EXPECT_STREQ(hAppended->getText(), "xyzde!");
    EXPECT_STREQ(hAssigned->getText(), "new");
    EXPECT_STREQ(hOther->getText(), "xyzde");
}

TEST(StringBuffer, ReleaseGivesTheCount)
{
    LmStringBuffer* const pBuffer = LmStringBuffer::sCreate("abc", 0, 0);
    EXPECT_EQ(pBuffer->AddRef(), 1u);
    EXPECT_EQ(pBuffer->AddRef(), 2u);
    EXPECT_EQ(pBuffer->Release(), 1u);
    EXPECT_EQ(pBuffer->Release(false), 0u);
    EXPECT_STREQ(pBuffer->getText(), "abc") << "still alive";
    pBuffer->AddRef();
    EXPECT_EQ(pBuffer->Release(true), 0u);
}

TEST(String, CopiesMayBeChangedByDifferentThreads)
{
    const LmString shared("a text that several threads begin with");
    std::vector<std::thread> threads;
    for (char own = 'a'; own < 'e'; ++own)
    {
        threads.emplace_back([own, copy = shared]() mutable {
            for (int round = 0; round < 5000; ++round)
            {
                LmString mine(copy);
                mine.append(std::string_view(&own, 1));
                LmString empty;
                empty.append(mine);
                ASSERT_EQ(empty.view().back(), own);
            }
        });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    EXPECT_STREQ(shared.c_str(), "a text that several threads begin with");
}

} // namespace
