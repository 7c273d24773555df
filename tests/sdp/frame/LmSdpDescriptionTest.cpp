#include "sdp/frame/LmSdpDescription.h"

#include "LmLibs/LmUtil/LmStringOutputStream.h"
#include "sdp/fields/LmSdpRepeatField.h"
#include "sdp/fields/LmSdpTimeField.h"
#include "sdp/frame/LmSdpMediaDescription.h"
#include "sdp/frame/LmSdpTimeDescription.h"
#include "sdp/frame/LmSdpUnusedField.h"
#include "sdp/media/LmSdpAttributeField.h"
#include "sdp/media/LmSdpMediaField.h"
#include "support/Matchers.h"

#include <array>

namespace
{

using namespace std::string_view_literals;

constexpr const char* s_Refused = "field doesn't belong in this description type LmSdpDescription::addField()";
constexpr const char* s_FieldAgain = "field is already in this description LmSdpDescription::addField()";

/// A host's own kind of description, with letters of its choice.
class HostDescription : public LmSdpDescription
{
public:
    HostDescription(const char* token, const char* letters) : LmSdpDescription(token, letters) {}
    void parse(LmInputStream& in) override { LmSdpDescription::parse(in); }
};

LmHandle<LmSdpDescription> session()
{
    return new HostDescription("v", "vosiuepcbzka");
}

/// What one description takes from a text, as it writes it.
Reading readDescription(std::string_view text)
{
    return readEachWay(text, [](LmInputStream& in) { return written(LmSdpDescription::sConstructFrom(in)); });
}

struct DescriptionRow
{
    const char* name;
    std::string_view text;
    const char* result;
    unsigned int left;
    Failure failure = {};
};

const DescriptionRow s_Descriptions[] = {
    {"TimeStopsInFrontOfTheNextTime", "t=0 0\r\nr=7d 1h 0\r\nr=1d 1h 0\r\nt=1 2\r\n",
     "t=0 0\r\nr=7d 1h 0\r\nr=1d 1h 0\r\n", 7},
    {"TimeStopsAtAForeignLetter", "t=0 0\r\na=x\r\n", "t=0 0\r\n", 5},
    {"MediaStopsInFrontOfTheNextMedia", "m=audio 1 RTP/AVP 0\r\na=x\r\nm=", "m=audio 1 RTP/AVP 0\r\na=x\r\n", 2},
    {"MediaStopsAtARepeat", "m=audio 1 RTP/AVP 0\r\nr=x", "m=audio 1 RTP/AVP 0\r\n", 3},
    {"LinesAreWrittenInTheOrderOfTheSlots",
     "m=audio 1 RTP/AVP 0\r\na=x\r\nb=AS:1\r\nc=IN IP4 10.0.0.1\r\ni=y\r\nk=prompt\r\n",
     "m=audio 1 RTP/AVP 0\r\ni=y\r\nc=IN IP4 10.0.0.1\r\nb=AS:1\r\nk=prompt\r\na=x\r\n", 0},
    {"LinesOfOneLetterKeepTheirOrder", "m=audio 1 RTP/AVP 0\r\na=b\r\na=a\r\na=b\r\n",
     "m=audio 1 RTP/AVP 0\r\na=b\r\na=a\r\na=b\r\n", 0},
    {"DigitIsAForeignLetter", "t=0 0\r\n1=x", "t=0 0\r\n", 3},
    {"CapitalIsAForeignLetter", "m=audio 1 RTP/AVP 0\r\nA=x", "m=audio 1 RTP/AVP 0\r\n", 3},
    {"HighByteEndsReading", "t=0 0\r\n\xFF", "t=0 0\r\n", 1},
    {"NulByteEndsReading", "t=0 0\r\n\0=1"sv, "t=0 0\r\n", 3},
    {"BlankLinesArePassedOver", " \r\nt=0 0\r\n\r\n \r\nr=1 2 0\r\n\r\n", "t=0 0\r\nr=1 2 0\r\n", 0},
    {"UnknownLetter", " x=1", "", 3, parseError("Unknown token for Description")},
    {"LetterOfALineOnly", "a=1", "", 3, parseError("Unknown token for Description")},
    {"EndOfInput", " \r\n", "", 0, parseError("Unknown token for Description")},
    {"TokenOfSeveralLettersInFront", "tx=1\r\nr=1 2 0\r\n", "", 9, exception(s_Refused)},
    {"TokenOfSeveralLettersThatIsPart", "t=0 0\r\ntr=1\r\n", "t=0 0\r\n", 6},
    {"TokenThatIsNoPartBehind", "t=0 0\r\nrt=1\r\nr=", "", 2, exception(s_Refused)},
    {"EmptyTokenInFrontOfTheValue", "t=0 0\r\n=1", "t=0 0\r\n", 2},
    {"FailureOfALine", "t=0 0\r\nr=\r\nx", "", 3, exception("LmSdpRepeatField::parse Incomplete Repeat Field")},
};

TEST(Description, TakesItsOwnLinesAndLeavesTheRest)
{
    for (const DescriptionRow& row : s_Descriptions)
    {
        EXPECT_EQ(readDescription(row.text), (Reading{row.result, row.failure, row.left})) << row.name;
    }
}

TEST(DescriptionAdd, TestsTheTokenAgainstTheLetters)
{
    const auto add = [](const char* letters, const char* token) {
        const LmHandle<LmSdpDescription> hDescription = new HostDescription("v", letters);
        const Failure failure = failureOf([&] { hDescription->addField(new LmSdpUnusedField(token, "x")); });
        EXPECT_EQ(failure, written(hDescription).empty() ? exception(s_Refused) : Failure());
        return written(hDescription);
    };
    EXPECT_EQ(add("vo", "o"), "o=x\r\n");
    EXPECT_EQ(add("vos", "os"), "os=x\r\n");
    const std::pair<const char*, const char*> refused[] = {{"vo", "s"},       {"vos", "ov"}, {"vos", ""},
                                                           {"vos", nullptr},  {"vx", "x"},   {"vA", "A"},
                                                           {"v\xE9", "\xE9"}, {"v`", "`"},   {"v{", "{"}};
    for (const auto& [letters, token] : refused)
    {
        EXPECT_EQ(add(letters, token), "") << letters;
    }
}

TEST(DescriptionSlots, OrderAllLetters)
{
    const LmHandle<LmSdpDescription> hDescription = new HostDescription("v", "zyxwvutsrqponmlkjihgfedcba");
    for (char letter = 'z'; letter >= 'a'; --letter)
    {
        const char token[] = {letter, '\0'};
        const bool hasSlot = std::string_view("dfghjlnqwxy").find(letter) == std::string_view::npos;
        const Failure failure = failureOf([&] { hDescription->addField(new LmSdpUnusedField(token, "")); });
        EXPECT_EQ(failure, hasSlot ? Failure() : exception(s_Refused)) << letter;
        EXPECT_EQ(hDescription->getField(token).isNull(), !hasSlot) << letter;
    }
    EXPECT_THAT(hDescription,
                SerializesTo("v=\r\nt=\r\nm=\r\no=\r\ns=\r\ni=\r\nu=\r\ne=\r\np=\r\nc=\r\nb=\r\nr=\r\nz=\r\n"
                             "k=\r\na=\r\n"));
}

TEST(DescriptionLines, AreFoundByTheFirstLetterOfTheToken)
{
    const LmHandle<LmSdpDescription> hDescription = session();
    const LmHandle<LmSdpField> hFirst = new LmSdpUnusedField("c", "1");
    const LmHandle<LmSdpField> hSecond = new LmSdpUnusedField("c", "2");
    const LmHandle<LmSdpField> hThird = new LmSdpUnusedField("c", "3");
    for (const LmHandle<LmSdpField>& hField : {hFirst, hSecond, hThird})
    {
        hDescription->addField(hField);
    }
    hDescription->addField(nullptr);
    EXPECT_TRUE(hDescription->getField("c") == hFirst);
    EXPECT_TRUE(hDescription->getField("cx") == hFirst);
    EXPECT_TRUE(hFirst->getNext() == hSecond);
    EXPECT_TRUE(hSecond->getNext() == hThird);
    EXPECT_TRUE(hThird->getNext().isNull());
    for (const char* token : {"b", "", "x", "A", "{", "\xE9", static_cast<const char*>(nullptr)})
    {
        EXPECT_TRUE(hDescription->getField(token).isNull()) << testing::PrintToString(token);
    }
    EXPECT_STREQ(hDescription->getToken(), "v");
    EXPECT_TRUE(hDescription->getNext().isNull());
    EXPECT_TRUE(hDescription->isFieldInDescription("os"));
    EXPECT_FALSE(hDescription->isFieldInDescription("so"));
    EXPECT_FALSE(hDescription->isFieldInDescription(""));
    EXPECT_FALSE(hDescription->isFieldInDescription(nullptr));
}

TEST(DescriptionChain, RefusesALineThatIsThere)
{
    const LmHandle<LmSdpDescription> hDescription = session();
    std::array<LmHandle<LmSdpField>, 3> fields;
    for (LmHandle<LmSdpField>& hField : fields)
    {
        hField = new LmSdpUnusedField("a", "x");
        hDescription->addField(hField);
    }
    const std::string before = written(hDescription);
    for (const LmHandle<LmSdpField>& hField : fields)
    {
        EXPECT_THAT([&] { hDescription->addField(hField); }, ThrowsException(s_FieldAgain));
        EXPECT_THAT(hDescription, SerializesTo(before));
    }
    hDescription->addField(new LmSdpUnusedField("a", "y"));
    EXPECT_THAT(hDescription, SerializesTo(before + "a=y\r\n"));
}

TEST(DescriptionChain, ALineBringsThoseBehindIt)
{
    const LmHandle<LmSdpDescription> hOne = session();
    const LmHandle<LmSdpDescription> hOther = session();
    const LmHandle<LmSdpField> hFirst = new LmSdpUnusedField("a", "1");
    const LmHandle<LmSdpField> hSecond = new LmSdpUnusedField("a", "2");
    const LmHandle<LmSdpField> hThird = new LmSdpUnusedField("a", "3");
    hOne->addField(hFirst);
    hOne->addField(hSecond);
    hOther->addField(hThird);
    hOther->addField(hFirst);
    EXPECT_THAT(hOther, SerializesTo("a=3\r\na=1\r\na=2\r\n"));
    EXPECT_THAT(hOne, SerializesTo("a=1\r\na=2\r\n"));
    EXPECT_THAT([&] { hOne->addField(hThird); }, ThrowsException(s_FieldAgain)) << "it leads back to the first";
    EXPECT_THAT([&] { hOther->addField(hSecond); }, ThrowsException(s_FieldAgain));
    // The chain is shared from here on: what one description appends stands in both.
    hOther->addField(new LmSdpUnusedField("a", "4"));
    hOne->addField(new LmSdpUnusedField("a", "5"));
    EXPECT_THAT(hOne, SerializesTo("a=1\r\na=2\r\na=4\r\na=5\r\n"));
    EXPECT_THAT(hOther, SerializesTo("a=3\r\na=1\r\na=2\r\na=4\r\na=5\r\n"));
}

TEST(DescriptionChain, OutlivesItsDescriptionForWhoeverHoldsAPart)
{
    LmHandle<LmSdpDescription> hDescription = session();
    for (const char* value : {"1", "2", "3", "4"})
    {
        hDescription->addField(new LmSdpUnusedField("a", value));
    }
    const LmHandle<LmSdpField> hSecond = hDescription->getField("a")->getNext();
    hDescription = nullptr;
    EXPECT_THAT(hSecond, SerializesTo("a=2\r\n"));
    EXPECT_THAT(hSecond->getNext()->getNext(), SerializesTo("a=4\r\n"));
}

TEST(DescriptionFlag, ShowsAChangeAtAnyPlaceOfAnyChain)
{
    const LmHandle<LmSdpDescription> hDescription = session();
    const LmHandle<LmSdpUnusedField> hFirst = new LmSdpUnusedField("a", "1");
    const LmHandle<LmSdpUnusedField> hSecond = new LmSdpUnusedField("a", "2");
    EXPECT_FALSE(hDescription->checkForChangeFlag());
    hDescription->addField(new LmSdpUnusedField("v", "0"));
    hDescription->addField(hFirst);
    hDescription->addField(hSecond);
    EXPECT_FALSE(hDescription->checkForChangeFlag());
    hSecond->setField("3");
    EXPECT_TRUE(hDescription->checkForChangeFlag());
}

TEST(TimeDescription, IsMadeOfReadyLines)
{
    const LmHandle<LmSdpTimeField> hTime = new LmSdpTimeField("0", "0");
    const LmHandle<LmSdpRepeatField> hRepeat = new LmSdpRepeatField("7d 1h 0");
    const LmHandle<LmSdpTimeDescription> hBoth = new LmSdpTimeDescription(hTime, hRepeat);
    EXPECT_TRUE(hBoth->getTimeField() == hTime);
    EXPECT_TRUE(hBoth->getRepeatField() == hRepeat);
    EXPECT_THAT(hBoth, SerializesTo("t=0 0\r\nr=7d 1h 0\r\n"));
    LmStringOutputStream out;
    hBoth->serialize(out);
    EXPECT_EQ(out.getString().view(), "t=0 0\r\nr=7d 1h 0\r\n") << "the form that is not const";
    const LmHandle<LmSdpTimeDescription> hNone = new LmSdpTimeDescription(nullptr, nullptr);
    EXPECT_TRUE(hNone->getTimeField().isNull());
    EXPECT_THAT(hNone, SerializesTo(""));
    EXPECT_THAT([&] { hNone->addField(new LmSdpUnusedField("a", "")); }, ThrowsException(s_Refused));
}

TEST(MediaDescription, IsMadeOfReadyLines)
{
    const LmHandle<LmSdpMediaField> hMedia = new LmSdpMediaField("audio 49170 RTP/AVP 0 8");
    const LmHandle<LmSdpAttributeField> hAttribute = new LmSdpAttributeField("sendrecv");
    const LmHandle<LmSdpMediaDescription> hBoth = new LmSdpMediaDescription(hMedia, hAttribute);
    EXPECT_TRUE(hBoth->getMediaField() == hMedia);
    EXPECT_TRUE(hBoth->isMediaFormatPresent(8));
    EXPECT_FALSE(hBoth->isMediaFormatPresent(9));
    EXPECT_THAT(hBoth, SerializesTo("m=audio 49170 RTP/AVP 0 8\r\na=sendrecv\r\n"));
    const LmHandle<LmSdpMediaDescription> hNone = new LmSdpMediaDescription(nullptr, nullptr);
    EXPECT_TRUE(hNone->getMediaField().isNull());
    EXPECT_FALSE(hNone->isMediaFormatPresent(0));
}

/// A host's own letter for a description, and a letter that is taken.
const bool s_Registered = [] {
    const LmSdpDescription::Constructor constructor = []() -> LmSdpDescription* {
        return new HostDescription("g", "gab");
    };
    LmSdpDescription::sAddConstructor("g", constructor);
    LmSdpDescription::sAddConstructor("t", constructor);
    LmSdpDescription::sAddConstructor("j", []() -> LmSdpDescription* { return nullptr; });
    return true;
}();

TEST(DescriptionRegistry, TakesAHostsOwnLetter)
{
    EXPECT_EQ(readDescription("g=1\r\na=x\r\n").failure, exception(s_Refused)) << "the letter has no slot";
    EXPECT_EQ(readDescription("j=1").failure, parseError("Unknown token for Description"));
    EXPECT_EQ(readDescription("t=0 0\r\n"), (Reading{"t=0 0\r\n", {}, 0})) << "a letter that is taken";
}

} // namespace
