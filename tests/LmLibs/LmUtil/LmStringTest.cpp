#include "LmLibs/LmUtil/LmString.h"

#include "support/Matchers.h"

#include <climits>
#include <cstring>

namespace
{

LmString withoutBuffer()
{
    return LmString(LmHandle<LmStringBuffer>());
}

/// Also of a null pointer, which the constructor takes for an empty text.
LmString assigned(const char* value)
{
    LmString text("x");
    text.assign(value);
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
    EXPECT_EQ(assigned(nullptr).c_str(), nullptr);
    for (const LmString& blank : {LmString(), LmString(""), withoutBuffer(), assigned(nullptr)})
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

const ChangeRow s_Changes[] = {
    {"Assign", "abc", [](LmString& text) { text.assign("xyz"); }, "xyz"},
    {"AssignLonger", "abc", [](LmString& text) { text.assign("0123456789012345678901234567890123456789"); },
     "0123456789012345678901234567890123456789"},
    {"AssignNull", "abc", [](LmString& text) { text.assign(nullptr); }, nullptr},
    {"AssignNullToALongText", "abc",
     [](LmString& text) {
         text.assign("0123456789012345678901234567890123456789");
         text.assign(nullptr);
         text.append("xy");
     },
     "xy"},
    {"AssignAPartOfItself", "abcdef", [](LmString& text) { text.assign(text.c_str() + 2); }, "cdef"},
    {"AssignItsOwnEnd", "abcdef", [](LmString& text) { text.assign(text.c_str() + 6); }, ""},
    {"Append", "abc", [](LmString& text) { text.append("xyz"); }, "abcxyz"},
    {"AppendNull", "abc", [](LmString& text) { text.append(static_cast<const char*>(nullptr)); }, "abc"},
    {"AppendAnEmptyView", "abc", [](LmString& text) { text.append(std::string_view()); }, "abc"},
    {"AppendItself", "abc", [](LmString& text) { text.append(text); }, "abcabc"},
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
    {"AppendToNull", nullptr, [](LmString& text) { text.append("xy"); }, "xy"},
    {"AssignToNull", nullptr, [](LmString& text) { text.assign("xy"); }, "xy"},
    {"Trim", " \t\r\n\v\fabc d \r\n", [](LmString& text) { text.trim(); }, "abc d"},
    {"TrimOnlyWhiteSpace", " \t ", [](LmString& text) { text.trim(); }, ""},
    {"TrimNull", nullptr, [](LmString& text) { text.trim(); }, nullptr},
    {"AssignItself", "abc", [](LmString& text) { text = static_cast<const LmString&>(text); }, "abc"},
};

TEST(String, ChangeIsNotSeenByACopy)
{
    for (const ChangeRow& row : s_Changes)
    {
        SCOPED_TRACE(row.name);
        const LmString original = assigned(row.before);
        LmString text(original);
        row.change(text);
        EXPECT_STREQ(text.c_str(), row.after);
        EXPECT_STREQ(original.c_str(), row.before);

        LmString alone = assigned(row.before);
        row.change(alone);
        EXPECT_STREQ(alone.c_str(), row.after);
        // The change leaves a text that can be changed once more.
        alone.append("+");
        EXPECT_EQ(alone.view(), (row.after == nullptr ? std::string() : row.after) + "+");
    }
}

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

TEST(String, SubstrGivesThatPart)
{
    const LmString text("abc");
    EXPECT_STREQ(text.substr(0, 2).c_str(), "ab");
    EXPECT_STREQ(text.substr(1, 0).c_str(), "bc") << "0 is all the rest";
    EXPECT_STREQ(text.substr(1, 99).c_str(), "bc");
    EXPECT_STREQ(text.substr(2, UINT_MAX).c_str(), "c");
    EXPECT_STREQ(text.substr(3, 0).c_str(), "");
    EXPECT_STREQ(text.substr(9, 2).c_str(), "");
    EXPECT_STREQ(text.substr(UINT_MAX, UINT_MAX).c_str(), "");
    EXPECT_STREQ(LmString("").substr(0, 0).c_str(), "");
}

TEST(String, IndexOfGivesTheFirstPlace)
{
    const LmString text("a:b:c");
    EXPECT_EQ(text.indexOf(":", -5), 1);
    EXPECT_EQ(text.indexOf(":", 1), 1);
    EXPECT_EQ(text.indexOf(":", 2), 3);
    EXPECT_EQ(text.indexOf("b:c", 0), 2);
    for (const char* missing : {"x", "a:b:cd", "", static_cast<const char*>(nullptr)})
    {
        EXPECT_EQ(text.indexOf(missing, 0), -1);
    }
    EXPECT_EQ(text.indexOf(":", 5), -1);
    EXPECT_EQ(text.indexOf(":", INT_MAX), -1);
    EXPECT_EQ(LmString("").indexOf(":", 0), -1);
}

TEST(String, CompareWithOrdersByBytes)
{
    EXPECT_EQ(LmString("abc").compareWith("abc"), 0);
    EXPECT_LT(LmString("ab").compareWith("abc"), 0);
    EXPECT_GT(LmString("abc").compareWith("ab"), 0);
    EXPECT_LT(LmString("A").compareWith("a"), 0);
    EXPECT_GT(LmString("\xFF").compareWith("a"), 0);
    EXPECT_EQ(LmString("").compareWith(nullptr), 0);
    EXPECT_GT(LmString("a").compareWith(nullptr), 0);
}

TEST(StringBuffer, IsCreatedFromThatMuchOfAText)
{
    const auto created = [](const char* text, unsigned int length, unsigned int capacity) {
        const LmHandle<LmStringBuffer> hBuffer = LmStringBuffer::sCreate(text, length, capacity);
        EXPECT_EQ(hBuffer->getLength(), std::strlen(hBuffer->getText()));
        return std::string(hBuffer->getText());
    };
    EXPECT_EQ(created("abc", 0, 0), "abc");
    EXPECT_EQ(created("abc", 2, 0), "ab");
    EXPECT_EQ(created("abc", 99, 0), "abc");
    EXPECT_EQ(created("abcdef", 0, 2), "abcdef");
    EXPECT_EQ(created(nullptr, 7, 0), "");
    EXPECT_EQ(created(nullptr, 0, 512), "");
}

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
    EXPECT_EQ(pBuffer->Release(false), 0u) << "nobody owns it";
    EXPECT_EQ(pBuffer->AddRef(), 1u);
    EXPECT_EQ(pBuffer->AddRef(), 2u);
    EXPECT_EQ(pBuffer->Release(), 1u);
    EXPECT_EQ(pBuffer->Release(false), 0u);
    EXPECT_STREQ(pBuffer->getText(), "abc") << "still alive";
    pBuffer->AddRef();
    EXPECT_EQ(pBuffer->Release(true), 0u);
    delete LmStringBuffer::sCreate("abc", 0, 0);
}

} // namespace
