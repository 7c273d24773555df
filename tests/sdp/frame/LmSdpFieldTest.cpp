#include "sdp/frame/LmSdpField.h"

#include "LmLibs/LmUtil/LmByteArrayInputStream.h"
#include "sdp/frame/LmSdpParseError.h"
#include "sdp/frame/LmSdpUnusedField.h"
#include "support/Matchers.h"

namespace
{

constexpr const char* s_InvalidFormat = "Invalid format generic SDP field in LmSdpField::sConstructFrom()";

/// A host's own line: `w=` and a word, nothing else.
class HostField : public LmSdpField
{
public:
    HostField() : LmSdpField("w") {}

    void parse(LmInputStream& in) override
    {
        in >> m_Word;
        if (m_Word.isBlank())
        {
            LmSdpParseError::sThrow("no word");
        }
        setChangedFlag();
    }
    void serialize(LmOutputStream& out) const override { out << "w=" << m_Word << "!\r\n"; }
    void forget() { clearChangedFlag(); }

    static LmSdpField* sConstruct() { return new HostField; }
    static LmSdpField* sConstructNothing() { return nullptr; }

private:
    LmString m_Word;
};

/// Registered before the first test begins: a registry lives as long as the process.
const bool s_Registered = [] {
    LmSdpField::sAddConstructor("w", &HostField::sConstruct);
    LmSdpField::sAddConstructor("w", &HostField::sConstructNothing);
    LmSdpField::sAddConstructor("hw", &HostField::sConstruct);
    LmSdpField::sAddConstructor("c", &HostField::sConstruct);
    LmSdpField::sAddConstructor("q", &HostField::sConstructNothing);
    return true;
}();

struct LineRow
{
    const char* name;
    const char* line;
    const char* result;
    Failure failure;
    unsigned int left;
};

class FieldLine : public testing::TestWithParam<LineRow>
{
};

TEST_P(FieldLine, IsReadByTheClassOfItsLetter)
{
    const LineRow& row = GetParam();
    EXPECT_EQ(readLine(row.line), (Reading{row.result, row.failure, row.left}));
}

const LineRow s_Lines[] = {
    {"HostsOwnLetter", "w=word rest", "w=word!\r\n", {}, 5},
    {"HostsOwnTokenOfTwoLetters", "hw=word", "w=word!\r\n", {}, 0},
    {"HostsOwnLetterRefusesItsText", "w=\r\nx", "", parseError("no word"), 3},
    {"LetterThatIsTakenStaysWithItsClass", "c=IN IP4 10.0.0.1\r\n", "c=IN IP4 10.0.0.1\r\n", {}, 0},
    {"ClassThatGivesNothing", "q=text", "q=text\r\n", {}, 0},
    {"WhiteSpaceInFront", " \r\n\tx=1", "x=1\r\n", {}, 0},
    {"OneLineOnly", "x=1\r\ny=2\r\n", "x=1\r\n", {}, 5},
    {"EndOfInput", "", "", exception(s_InvalidFormat), 0},
    {"OnlyWhiteSpace", " \r\n", "", exception(s_InvalidFormat), 0},
    {"FourCharactersInFront", "abcd=1\r\n", "", exception(s_InvalidFormat), 4},
    {"LongTextWithoutEqualSign", "a line without any sign of equality", "", exception(s_InvalidFormat), 0},
    {"ShortTextWithoutEqualSign", "x", "x=\r\n", {}, 0},
    {"EqualSignAlone", "=1\r\n", "=1\r\n", {}, 0},
    {"BlankInFrontOfTheEqualSign", "x =1", "x =1\r\n", {}, 0},
    {"LineEndInTheToken", "x\ny=1", "x\ny=1\r\n", {}, 0},
};
INSTANTIATE_TEST_SUITE_P(, FieldLine, testing::ValuesIn(s_Lines), RowName());

TEST(Field, GivesItsToken)
{
    EXPECT_STREQ(LmSdpUnusedField("c", "").getToken(), "c");
    EXPECT_STREQ(LmSdpUnusedField("os", "").getToken(), "os");
    EXPECT_STREQ(LmSdpUnusedField(nullptr, "").getToken(), "");
    EXPECT_STREQ(LmSdpUnusedField("A", "").getToken(), "A");
}

TEST(Field, ChangedFlagIsTheClassesOwnBusiness)
{
    const LmHandle<HostField> hField = new HostField;
    EXPECT_FALSE(hField->getChangedFlag());
    LmByteArrayInputStream in(LmByteArray::sCreate("word"), 0, 0);
    hField->parse(in);
    EXPECT_TRUE(hField->getChangedFlag());
    hField->forget();
    EXPECT_FALSE(hField->getChangedFlag());
}

/// Whether a line counts as changed once it has been read.
struct FlagRow
{
    const char* name;
    const char* line;
    bool changed;
};

class ChangedFlag : public testing::TestWithParam<FlagRow>
{
};

TEST_P(ChangedFlag, AfterReading)
{
    const Reading reading = readEachWay(GetParam().line, [](LmInputStream& in) {
        return std::string(LmSdpField::sConstructFrom(in)->getChangedFlag() ? "changed" : "as read");
    });
    EXPECT_EQ(reading.result, GetParam().changed ? "changed" : "as read");
}

INSTANTIATE_TEST_SUITE_P(
    , ChangedFlag,
    testing::Values(FlagRow{"ProtocolVersion", "v=0", false}, FlagRow{"Origin", "o=- 1 1 IN IP4 h", false},
                    FlagRow{"SessionName", "s=x", false}, FlagRow{"Information", "i=x", false},
                    FlagRow{"Uri", "u=x", false}, FlagRow{"Email", "e=x", true}, FlagRow{"Phone", "p=+1", true},
                    FlagRow{"Connection", "c=IN IP4 10.0.0.1", true}, FlagRow{"Bandwidth", "b=AS:64", true},
                    FlagRow{"Time", "t=0 0", false}, FlagRow{"Repeat", "r=1 2 0", true},
                    FlagRow{"TimeZone", "z=2882844526 -1h 2898848070 0\r\n", true}, FlagRow{"Key", "k=prompt", false},
                    FlagRow{"Attribute", "a=x:y", false}, FlagRow{"Media", "m=audio 1 RTP/AVP 0", true},
                    FlagRow{"Unused", "y=1", false}),
    RowName());

TEST(Field, HostsOwnLetterIsRefusedWhereNoLineOfItBelongs)
{
    const Reading reading = readBody("v=0\r\nw=word\r\n");
    EXPECT_EQ(reading.failure, exception("field doesn't belong in this description type LmSdpDescription::addField()"));
}

} // namespace
