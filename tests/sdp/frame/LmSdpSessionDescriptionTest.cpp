#include "sdp/frame/LmSdpSessionDescription.h"

#include "LmLibs/LmUtil/LmByteArrayInputStream.h"
#include "LmLibs/LmUtil/LmStringOutputStream.h"
#include "sdp/frame/LmSdpMsg.h"
#include "sdp/frame/LmSdpUnusedField.h"
#include "support/Assertions.h"
#include "support/Matchers.h"

#include <map>

namespace
{

constexpr const char* s_Refused = "field doesn't belong in this description type LmSdpDescription::addField()";
constexpr const char* s_Unknown = "trying to add unknown description in LmSdpSessionDescription::addDescription()";
constexpr const char* s_Again = "description is already in this chain LmSdpDescription::addNext()";

/// A body of short lines, separated by `|`, as it comes back in the same form. What is left of the body is left
/// unread.
struct PhaseRow
{
    const char* name;
    const char* body;
    const char* written;
    const char* left;
    Failure failure;
};

const std::string s_LineEnd = "\r\n";

/// Puts in the values that the lines need, so that the rows can show letters alone: `v t m` for three lines.
std::string bodyOf(std::string_view letters)
{
    static const std::map<char, std::string> s_Values = {{'v', "0"},      {'o', "- 1 1 IN IP4 h"},
                                                         {'p', "+1"},     {'c', "IN IP4 10.0.0.1"},
                                                         {'b', "AS:1"},   {'t', "0 0"},
                                                         {'r', "1 2 0"},  {'z', "2882844526 0"},
                                                         {'k', "prompt"}, {'m', "audio 1 RTP/AVP 0"}};
    std::string body;
    for (const char letter : letters)
    {
        const auto known = s_Values.find(letter);
        const std::string value = known == s_Values.end() ? "x" : known->second;
        body += letter == '_' ? s_LineEnd : letter + ("=" + value) + s_LineEnd;
    }
    return body;
}

const PhaseRow s_Phases[] = {
    {"WholeBodyInOrder", "vosiuepcbtrrtrzkamicbkaama", "vosiuepcbtrrtrzkamicbkaama", "", {}},
    {"OrderOfReadingDoesNotMatter", "vosatcmac", "vosctamca", "", {}},
    {"OrderWithinALetterStays", "vosiuepkbctrzam", "vosiuepcbtrzkam", "", {}},
    {"EndsBehindTheSessionLines", "vos", "vos", "", {}},
    {"EndsBehindATime", "vost", "vost", "", {}},
    {"EndsBehindARepeat", "vostr", "vostr", "", {}},
    {"EndsInTheThirdPhase", "vostzka", "vostzka", "", {}},
    {"OnlyAVersion", "v", "v", "", {}},
    {"BlankLinesEverywhere", "__v_o__s_t_r_a_m_a__", "vostrama", "", {}},
    {"WithoutATime", "vosma", "vosma", "", {}},
    {"WithoutATimeButAnAttribute", "vosam", "vosam", "", {}},
    {"ZoneInFrontOfTheTime", "voszt", "vostz", "", {}},
    {"ZoneBehindTheTime", "vostz", "vostz", "", {}},
    {"TimeInTheThirdPhaseDropsTheRest", "vostztma", "vostz", "tma", {}},
    {"RepeatInTheThirdPhaseEndsReading", "vostzrma", "vostz", "rma", {}},
    {"RepeatWithoutATimeIsRefused", "vosrt", "", "t", exception(s_Refused)},
    {"UnknownLetterInTheThirdPhaseEndsReading", "vostzxma", "vostz", "xma", {}},
    {"UnknownLetterBehindSessionLinesIsRefused", "vosxt", "", "t", exception(s_Refused)},
    {"UnknownLetterBehindATimeIsRefused", "vostxm", "", "m", exception(s_Refused)},
    {"UnknownLetterBehindMediaEndsReading", "vostmaxm", "vostma", "xm", {}},
    {"RepeatInMediaEndsReading", "vostmrma", "vostm", "rma", {}},
    {"TimeInMediaEndsReading", "vostmtma", "vostm", "tma", {}},
    {"SessionLetterInMediaEndsReading", "vostmamem", "vostmam", "em", {}},
    {"VersionInMediaEndsReading", "vostmavos", "vostma", "vos", {}},
    {"SecondVersionBehindSessionLines", "vosvosm", "vvoossm", "", {}},
    {"SecondVersionBehindATime", "vostvosm", "vvoosstm", "", {}},
    {"SecondVersionInTheThirdPhaseEndsReading", "vostavm", "vosta", "vm", {}},
    {"ThirdVersionEndsReading", "vosvosvm", "vvooss", "vm", {}},
    {"SecondVersionAtOnce", "vv", "vv", "", {}},
};

TEST(SessionPhases, DecideWhatALetterDoes)
{
    for (const PhaseRow& row : s_Phases)
    {
        const auto left = static_cast<unsigned int>(bodyOf(row.left).size());
        EXPECT_EQ(readBody(bodyOf(row.body)), (Reading{bodyOf(row.written), row.failure, left})) << row.name;
    }
}

TEST(SessionReader, HighByteInFrontOfTheThirdPhaseIsRefused)
{
    EXPECT_EQ(readBody(bodyOf("vost") + "\xFF=1\r\n").failure, exception(s_Refused));
    EXPECT_EQ(readBody(bodyOf("vosta") + "\xFF=1\r\n"), (Reading{bodyOf("vosta"), {}, 5}));
}

TEST(SessionReader, TokenOfSeveralLettersThatIsPartStaysWhereItStood)
{
    EXPECT_EQ(readBody("v=0\r\no=- 1 1 IN IP4 h\r\nos=x\r\ns=x\r\n").result,
              "v=0\r\no=- 1 1 IN IP4 h\r\nos=x\r\ns=x\r\n");
    EXPECT_EQ(readBody("v=0\r\nov=x\r\ns=x\r\n").failure, exception(s_Refused));
}

LmHandle<LmSdpSessionDescription> readSession(const std::string& body)
{
    LmByteArrayInputStream in(LmByteArray::sCreate(body.c_str()), 0, 0);
    return LmSdpDescription::sConstructFrom(in);
}

LmHandle<LmSdpDescription> readDescription(const char* letters)
{
    LmByteArrayInputStream in(LmByteArray::sCreate(bodyOf(letters).c_str()), 0, 0);
    return LmSdpDescription::sConstructFrom(in);
}

class HostDescription : public LmSdpDescription
{
public:
    HostDescription(const char* token, const char* letters) : LmSdpDescription(token, letters) {}
    void parse(LmInputStream& in) override { LmSdpDescription::parse(in); }
};

TEST(SessionDescription, GivesTheFirstDescriptionOfAKind)
{
    const LmHandle<LmSdpSessionDescription> hSession = readSession(bodyOf("vosttmm"));
    EXPECT_STREQ(hSession->getDescription("t")->getToken(), "t");
    EXPECT_STREQ(hSession->getDescription("m")->getNext()->getToken(), "m");
    for (const char* token : {"tr", "v", "x", "", static_cast<const char*>(nullptr)})
    {
        EXPECT_TRUE(hSession->getDescription(token).isNull()) << testing::PrintToString(token);
    }
    EXPECT_TRUE(readSession(bodyOf("v"))->getDescription("m").isNull());
    EXPECT_TRUE(hSession->getNext().isNull());
}

TEST(SessionDescription, AppendsDescriptionsInTheOrderOfAddition)
{
    const LmHandle<LmSdpSessionDescription> hSession = readSession(bodyOf("v"));
    for (const char* letters : {"ma", "tr", "mc", "t", "m"})
    {
        hSession->addDescription(readDescription(letters));
    }
    hSession->addDescription(nullptr);
    EXPECT_THAT(hSession, SerializesTo(bodyOf("vtrtmamcm")));
}

TEST(SessionDescription, RefusesWhatIsNoTimeAndNoMedia)
{
    const LmHandle<LmSdpSessionDescription> hSession = readSession(bodyOf("vtm"));
    const LmHandle<LmSdpDescription> foreign[] = {
        readDescription("v"),         new HostDescription("t", "tr"), new HostDescription("m", "micbka"),
        new HostDescription("x", ""), new HostDescription("tm", ""),  new HostDescription(nullptr, "")};
    for (const LmHandle<LmSdpDescription>& hForeign : foreign)
    {
        EXPECT_THAT([&] { hSession->addDescription(hForeign); }, ThrowsException(s_Unknown));
        EXPECT_THAT(hSession, SerializesTo(bodyOf("vtm")));
    }
}

TEST(SessionDescription, LinksNoDescriptionTwice)
{
    const Assertions assertions;
    const LmHandle<LmSdpSessionDescription> hSession = readSession(bodyOf("vmamcm"));
    const LmHandle<LmSdpDescription> hFirst = hSession->getDescription("m");
    const LmHandle<LmSdpDescription> hSecond = hFirst->getNext();
    const LmHandle<LmSdpDescription> hThird = hSecond->getNext();

    hSession->addDescription(hSecond);
    hSession->addDescription(hThird);
    EXPECT_EQ(assertions.raised(), std::vector<std::string>(2, "m_Next != hNext LmSdpDescription"));
    EXPECT_THAT([&] { hSession->addDescription(hFirst); }, ThrowsException(s_Again));
    EXPECT_EQ(assertions.raised().size(), 2u);
    EXPECT_THAT(hSession, SerializesTo(bodyOf("vmamcm")));

    hSession->addDescription(readDescription("mb"));
    EXPECT_THAT(hSession, SerializesTo(bodyOf("vmamcmmb")));
}

TEST(SessionDescription, LinksTheOnlyDescriptionOnce)
{
    const Assertions assertions;
    const LmHandle<LmSdpSessionDescription> hSession = readSession(bodyOf("vm"));
    EXPECT_THAT([&] { hSession->addDescription(hSession->getDescription("m")); }, ThrowsException(s_Again));
    EXPECT_THAT(hSession, SerializesTo(bodyOf("vm")));
    EXPECT_TRUE(assertions.raised().empty());
}

TEST(SessionDescription, SharesAChainWithAnotherOneWithoutARing)
{
    const Assertions assertions;
    const LmHandle<LmSdpSessionDescription> hOne = readSession(bodyOf("vmamc"));
    const LmHandle<LmSdpSessionDescription> hOther = readSession(bodyOf("vmb"));
    hOther->addDescription(hOne->getDescription("m"));
    EXPECT_THAT(hOther, SerializesTo(bodyOf("vmbmamc")));
    EXPECT_THAT([&] { hOne->addDescription(hOther->getDescription("m")); }, ThrowsException(s_Again));
    hOne->addDescription(readDescription("mk"));
    EXPECT_THAT(hOther, SerializesTo(bodyOf("vmbmamcmk")));
    EXPECT_TRUE(assertions.raised().empty());
}

TEST(SessionDescription, WritesAChainFromAnyPlace)
{
    const LmHandle<LmSdpSessionDescription> hSession = readSession(bodyOf("vmamc"));
    LmStringOutputStream out;
    LmSdpSessionDescription::serializeDescription(nullptr, out);
    EXPECT_EQ(out.getString().view(), "");
    LmSdpSessionDescription::serializeDescription(hSession->getDescription("m")->getNext(), out);
    EXPECT_EQ(out.getString().view(), bodyOf("mc"));
}

TEST(SessionDescription, LeavesWhatWasWrittenInFrontOfAnIncompleteLine)
{
    const LmHandle<LmSdpSessionDescription> hSession = readSession("v=0\r\no=- 1 1 IN IP4\r\ns=x\r\n");
    LmStringOutputStream out;
    EXPECT_THAT([&] { static_cast<const LmSdpSessionDescription&>(*hSession.operator->()).serialize(out); },
                ThrowsException("LmSdpOriginField::serialize() Incomplete Origin Field"));
    EXPECT_EQ(out.getString().view(), "v=0\r\n");
}

} // namespace
