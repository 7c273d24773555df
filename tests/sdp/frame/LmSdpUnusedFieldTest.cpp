#include "sdp/frame/LmSdpUnusedField.h"

#include "LmLibs/LmUtil/LmStringOutputStream.h"
#include "support/Matchers.h"

namespace
{

struct UnusedRow
{
    const char* name;
    const char* line;
    const char* token;
    const char* text;
    const char* written;
};

class UnusedField : public testing::TestWithParam<UnusedRow>
{
};

TEST_P(UnusedField, HoldsTheLineAsItStands)
{
    const UnusedRow& row = GetParam();
    EXPECT_EQ(readLine(row.line), (Reading{row.written, {}, 0}));
    const Reading parts = readEachWay(row.line, [](LmInputStream& in) {
        const LmHandle<LmSdpUnusedField> hField = LmSdpField::sConstructFrom(in);
        return std::string(hField->getToken()) + "|" + hField->getField() + "|" +
               (hField->getChangedFlag() ? "changed" : "as read");
    });
    EXPECT_EQ(parts.result, std::string(row.token) + "|" + row.text + "|as read");
}

INSTANTIATE_TEST_SUITE_P(, UnusedField,
                         testing::Values(UnusedRow{"UnknownLetter", "x=anything\r\n", "x", "anything",
                                                   "x=anything\r\n"},
                                         UnusedRow{"EmptyText", "x=", "x", "", "x=\r\n"},
                                         UnusedRow{"BlanksStay", "x= a  b \n", "x", " a  b ", "x= a  b \r\n"},
                                         UnusedRow{"TwoCharacters", "ab=1", "ab", "1", "ab=1\r\n"},
                                         UnusedRow{"ThreeCharacters", "abc=1\r", "abc", "1", "abc=1\r\n"},
                                         UnusedRow{"FurtherEqualSigns", "x=a=b", "x", "a=b", "x=a=b\r\n"},
                                         UnusedRow{"TokenNotLetters", "\xE9=1", "\xE9", "1", "\xE9=1\r\n"}),
                         RowName());

TEST(UnusedFieldSetter, ReplacesTheTextAndSetsTheChangedFlag)
{
    LmSdpUnusedField field("y", "0100000001");
    EXPECT_FALSE(field.getChangedFlag());
    field.setField("0");
    EXPECT_TRUE(field.getChangedFlag());
    EXPECT_THAT(field, SerializesTo("y=0\r\n"));
    field.setField(nullptr);
    EXPECT_STREQ(field.getField(), "");
}

TEST(UnusedFieldSetter, TakesAPartOfItsOwnText)
{
    LmSdpUnusedField field("y", "0123456789");
    field.setField(field.getField() + 8);
    EXPECT_STREQ(field.getField(), "89");
}

} // namespace
