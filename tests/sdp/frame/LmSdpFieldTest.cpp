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
    unsigned int left;
    Failure failure = {};
};

const LineRow s_Lines[] = {
    {"HostsOwnLetter", "w=word rest", "w=word!\r\n", 5},
    {"HostsOwnTokenOfTwoLetters", "hw=word", "w=word!\r\n", 0},
    {"HostsOwnLetterRefusesItsText", "w=\r\nx", "", 3, parseError("no word")},
    {"LetterThatIsTakenStaysWithItsClass", "c=IN IP4 10.0.0.1\r\n", "c=IN IP4 10.0.0.1\r\n", 0},
    {"ClassThatGivesNothing", "q=text", "q=text\r\n", 0},
    {"WhiteSpaceInFront", " \r\n\tx=1", "x=1\r\n", 0},
    {"OneLineOnly", "x=1\r\ny=2\r\n", "x=1\r\n", 5},
    {"EndOfInput", "", "", 0, exception(s_InvalidFormat)},
    {"OnlyWhiteSpace", " \r\n", "", 0, exception(s_InvalidFormat)},
    {"FourCharactersInFront", "abcd=1\r\n", "", 4, exception(s_InvalidFormat)},
    {"LongTextWithoutEqualSign", "a line without any sign of equality", "", 0, exception(s_InvalidFormat)},
    {"ShortTextWithoutEqualSign", "x", "x=\r\n", 0},
    {"EqualSignAlone", "=1\r\n", "=1\r\n", 0},
    {"BlankInFrontOfTheEqualSign", "x =1", "x =1\r\n", 0},
    {"LineEndInTheToken", "x\ny=1", "x\ny=1\r\n", 0},
};

TEST(Field, IsReadByTheClassOfItsLetter)
{
    for (const LineRow& row : s_Lines)
    {
        EXPECT_EQ(readLine(row.line), (Reading{row.result, row.failure, row.left})) << row.name;
    }
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

TEST(Field, CountsAsChangedOnceItIsReadOrNot)
{
    const auto isChanged = [](const char* line) {
        LmByteArrayInputStream in(LmByteArray::sCreate(line), 0, 0);
        return LmSdpField::sConstructFrom(in)->getChangedFlag();
    };
    for (const char* line : {"e=x", "p=+1", "c=IN IP4 10.0.0.1", "b=AS:64", "r=1 2 0",
                             "z=2882844526 -1h 2898848070 0\n", "m=audio 1 RTP/AVP 0"})
    {
        EXPECT_TRUE(isChanged(line)) << line;
    }
    for (const char* line : {"v=0", "o=- 1 1 IN IP4 h", "s=x", "i=x", "u=x", "t=0 0", "k=prompt", "a=x:y", "y=1"})
    {
        EXPECT_FALSE(isChanged(line)) << line;
    }
}

} // namespace
