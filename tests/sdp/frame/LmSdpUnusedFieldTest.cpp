#include "sdp/frame/LmSdpUnusedField.h"

#include "support/Matchers.h"

namespace
{

TEST(UnusedField, HoldsTheLineAsItStands)
{
    const std::pair<const char*, const char*> rows[] = {{"x=anything\r\n", "x|anything"},
                                                        {"x=", "x|"},
                                                        {"x= a  b \n", "x| a  b "},
                                                        {"ab=1", "ab|1"},
                                                        {"abc=1\r", "abc|1"},
                                                        {"x=a=b", "x|a=b"},
                                                        {"\xE9=1", "\xE9|1"}};
    for (const auto& [line, parts] : rows)
    {
        const Reading reading = readEachWay(line, [](LmInputStream& in) {
            const LmHandle<LmSdpUnusedField> hField = LmSdpField::sConstructFrom(in);
            EXPECT_THAT(hField, SerializesTo(std::string(hField->getToken()) + "=" + hField->getField() + "\r\n"));
            return std::string(hField->getToken()) + "|" + hField->getField();
        });
        EXPECT_EQ(reading, (Reading{parts, {}, 0}));
    }
}

TEST(UnusedFieldSetter, ReplacesTheTextAndSetsTheChangedFlag)
{
    EXPECT_STREQ(LmSdpUnusedField(nullptr, "").getToken(), "");
    LmSdpUnusedField field("y", "0100000001");
    EXPECT_FALSE(field.getChangedFlag());
    field.setField("0");
    EXPECT_TRUE(field.getChangedFlag());
    EXPECT_THAT(field, SerializesTo("y=0\r\n"));
    field.setField(nullptr);
    EXPECT_STREQ(field.getField(), "");
}

} // namespace
