#include "sdp/fields/LmSdpBandwidthField.h"
#include "sdp/fields/LmSdpConnectionField.h"
#include "sdp/fields/LmSdpEmailField.h"
#include "sdp/fields/LmSdpInformationField.h"
#include "sdp/fields/LmSdpKeyField.h"
#include "sdp/fields/LmSdpOriginField.h"
#include "sdp/fields/LmSdpPhoneField.h"
#include "sdp/fields/LmSdpProtocolVersionField.h"
#include "sdp/fields/LmSdpRepeatField.h"
#include "sdp/fields/LmSdpSessionNameField.h"
#include "sdp/fields/LmSdpTimeField.h"
#include "sdp/fields/LmSdpTimeZoneField.h"
#include "sdp/fields/LmSdpUriField.h"
#include "sdp/frame/LmSdpMsg.h"
#include "sdp/media/LmSdpAttributeField.h"
#include "sdp/media/LmSdpMediaField.h"
#include "support/Matchers.h"

#include <cstring>
#include <iterator>

namespace
{

constexpr const char* s_Body = "v=0\r\no=- 1 1 IN IP4 h\r\ns=x\r\ni=x\r\nu=x\r\ne=x\r\np=+1\r\nc=IN IP4 10.0.0.1\r\n"
                               "c=IN IP4 10.0.0.2\r\nb=AS:1\r\nt=0 0\r\nz=2882844526 0\r\nk=prompt\r\na=x\r\n"
                               "m=audio 49170 RTP/AVP 8\r\nm=audio 49172 RTP/AVP 0\r\n";

struct GetterRow
{
    std::string (*get)(LmSdpMsg& message);
    const char* line;
};

#define GETTER(Line) [](LmSdpMsg& message) { return written(message.get##Line##Field()); }

const GetterRow s_Getters[] = {
    {GETTER(ProtocolVersion), "v=0\r\n"},
    {GETTER(Origin), "o=- 1 1 IN IP4 h\r\n"},
    {GETTER(SessionName), "s=x\r\n"},
    {GETTER(Information), "i=x\r\n"},
    {GETTER(Uri), "u=x\r\n"},
    {GETTER(Email), "e=x\r\n"},
    {GETTER(Phone), "p=+1\r\n"},
    {GETTER(Connection), "c=IN IP4 10.0.0.1\r\n"},
    {GETTER(Bandwidth), "b=AS:1\r\n"},
    {GETTER(TimeZone), "z=2882844526 0\r\n"},
    {GETTER(Key), "k=prompt\r\n"},
    {GETTER(Attribute), "a=x\r\n"},
};
#undef GETTER

TEST(TypedGetter, GivesTheFirstLineOfItsLetter)
{
    LmSdpMsg message(s_Body);
    LmSdpMsg empty;
    for (const GetterRow& row : s_Getters)
    {
        EXPECT_EQ(row.get(message), row.line);
        EXPECT_EQ(row.get(empty), "(an empty handle)") << row.line;
    }
}

/// For all letters but the last one, with which no token of two letters begins.
TEST(TypedGetter, GivesAnEmptyHandleForALineOfAnotherClass)
{
    for (auto row = std::begin(s_Getters); row + 1 != std::end(s_Getters); ++row)
    {
        const std::string token(std::strchr("vosiuepcbzka", row->line[0]), 2);
        const std::string line = token + "=other\r\n";
        LmSdpMsg message((token == "vo" ? line + s_Body : "v=0\r\n" + line + (s_Body + 5)).c_str());
        EXPECT_EQ(row->get(message), "(an empty handle)") << token;
        EXPECT_THAT(message.getField(token.c_str()), SerializesTo(line));
    }
}

TEST(TypedAccess, ReachesTheSecondLineThroughTheFirst)
{
    LmSdpMsg message(s_Body);
    const LmHandle<LmSdpConnectionField> hSecond = message.getConnectionField()->getNext();
    EXPECT_STREQ(hSecond->getAddress(), "10.0.0.2");
}

TEST(TypedAccess, FindsAMediaDescriptionByItsFormat)
{
    LmSdpMsg message(s_Body);
    EXPECT_THAT(message.getMediaDescription(0), SerializesTo("m=audio 49172 RTP/AVP 0\r\n"));
    EXPECT_THAT(message.getMediaDescription(8), SerializesTo("m=audio 49170 RTP/AVP 8\r\n"));
    EXPECT_TRUE(message.getMediaDescription(96).isNull());
    message.addDescription(new LmSdpMediaDescription(nullptr, nullptr));
    message.addDescription(new LmSdpMediaDescription(new LmSdpMediaField("video 1 RTP/AVP 96"), nullptr));
    EXPECT_THAT(message.getMediaDescription(96), SerializesTo("m=video 1 RTP/AVP 96\r\n"));
}

TEST(TypedAccess, PutsAMessageTogether)
{
    const LmHandle<LmSdpOriginField> hOrigin = new LmSdpOriginField("- 1 1 IN IP4 h");
    const LmHandle<LmSdpSessionNameField> hName = new LmSdpSessionNameField("x");
    const LmHandle<LmSdpConnectionField> hConnection = new LmSdpConnectionField("IN IP4 10.0.0.1");
    const LmHandle<LmSdpTimeDescription> hTime = new LmSdpTimeDescription(new LmSdpTimeField("0", "0"), nullptr);
    const LmHandle<LmSdpMediaDescription> hMedia =
        new LmSdpMediaDescription(new LmSdpMediaField("audio 1 RTP/AVP 0"), nullptr);
    const LmHandle<LmSdpEmailField> hEmail = new LmSdpEmailField("a@b");
    const LmHandle<LmSdpPhoneField> hPhone = new LmSdpPhoneField("+1");
    const std::string head = "v=0\r\no=- 1 1 IN IP4 h\r\ns=x\r\n";
    const std::string tail = "c=IN IP4 10.0.0.1\r\nt=0 0\r\nm=audio 1 RTP/AVP 0\r\n";

    EXPECT_THAT(LmSdpMsg(hOrigin, hName, hEmail, hConnection, hTime, hMedia), SerializesTo(head + "e=a@b\r\n" + tail));
    LmSdpMsg withPhone(hOrigin, hName, hPhone, hConnection, hTime, hMedia);
    EXPECT_THAT(withPhone, SerializesTo(head + "p=+1\r\n" + tail));
    EXPECT_TRUE(withPhone.getOriginField() == hOrigin) << "the lines themselves, not copies";

    EXPECT_THAT(LmSdpMsg(hOrigin, hName, LmHandle<LmSdpEmailField>(), hConnection, hTime, hMedia),
                SerializesTo(head + tail));
    EXPECT_THAT(LmSdpMsg(nullptr, nullptr, LmHandle<LmSdpPhoneField>(), nullptr, nullptr, nullptr),
                SerializesTo("v=0\r\n"));
}

} // namespace
