#include "sdp/media/LmSdpAttributeField.h"

#include "sdp/crypto/LmSdpCryptoAttribute.h"
#include "sdp/fields/LineTable.h"
#include "sdp/media/LmSdpRtpAttribute.h"

namespace
{

using namespace std::string_literals;
using Field = LmSdpAttributeField;

LmHandle<Field> before()
{
    return new Field("old", "value");
}

const char* className(const LmHandle<LmSdpAttribute>& hAttribute)
{
    if (LmHandle<LmSdpRtpAttribute>(hAttribute))
    {
        return "rtp";
    }
    return LmHandle<LmSdpCryptoAttribute>(hAttribute) ? "crypto" : hAttribute ? "plain" : "none";
}

std::string describe(Field& field)
{
    EXPECT_EQ(field.hasValue(), !field.getAttribute().isNull());
    return stateOf(field, {field.getName(), className(field.getAttribute()), field.getValue()});
}

const Failure s_NoLine = exception("LmSdpAttributeField::parse Incomplete Attribute Field");
const Failure s_NoName = parseError("Attempting to create Attribute Field with empty Name field");
const Failure s_NoSpace = parseError("RTP attribute payload type: Space not found or misplaced");
const std::string s_Invalid = "!Serializing Invalid Attribute Field";

const Table<Field> s_Table(
    "AttributeField", before, describe,
    {{"PropertyLeavesTheFormerValue", "sendrecv\r\na=", gives("[sendrecv][plain][value]", "a=sendrecv:value\r\n"), 2},
     {"ValueIsAllTheRest", "fmtp:101 0-15: \n", gives("[fmtp][plain][101 0-15: ]", "a=fmtp:101 0-15: \r\n")},
     {"EmptyValueIsAValue", "foo:", gives("[foo][plain][]", "a=foo:\r\n")},
     {"NoNameCannotBeWritten", ":x", gives("[][plain][x]", s_Invalid)},
     {"AnyByte", " \x80\t:\xFF", gives("[ \x80\t][plain][\xFF]", "a= \x80\t:\xFF\r\n")},
     {"NulEndsTheValue", "a\0b:c\0d"s, gives("[a][plain][c]", "a=a\0b:c\r\n"s)},
     {"Rtpmap", "rtpmap:96 telephone-event/8000",
      gives("[rtpmap][rtp][96 telephone-event/8000]", "a=rtpmap:96 telephone-event/8000\r\n")},
     {"Crypto", "crypto:1 X inline:K", gives("[crypto][crypto][1 X inline:K]", "a=crypto:1 X inline:K\r\n")},
     {"CaseOfTheNameCounts", "Rtpmap:96", gives("[Rtpmap][plain][96]", "a=Rtpmap:96\r\n")},
     {"NameAloneIsNotParsed", "rtpmap", gives("[rtpmap][plain][value]", "a=rtpmap:value\r\n")},
     {"ValueWithoutEncodingNameIsFoundAtWriting", "rtpmap:96 /8000",
      gives("[rtpmap][rtp][96 /8000]", "a=rtpmap:!LmSdpRtpAttribute::serialize() Incomplete Rtp Attribute Field")},
     {"EmptyLine", "\r\nb=", refused(s_NoLine, "[old][plain][value]", "a=old:value\r\n"), 4},
     {"RefusedValueLeavesTheFormerOne",
      "rtpmap:96\r\na=", refused(s_NoSpace, "[rtpmap][plain][value]", "a=rtpmap:value\r\n"), 2},
     {"RefusedCrypto", "crypto:",
      refused(parseError("LmSdpCryptoAttribute::parse-Failed to parse crypto suite."), "[crypto][plain][value]",
              "a=crypto:value\r\n")}},
    {{"ConstructorReadsItsText", [](auto& h) { h = new Field("sendrecv"); },
      gives("[sendrecv][none][]", "a=sendrecv\r\n")},
     {"ConstructorWithoutText", [](auto& h) { h = new Field(nullptr); }, gives("[][none][]", s_Invalid)},
     {"ConstructorPicksTheClassByName", [](auto& h) { h = new Field("rtpmap", "0 PCMU/8000"); },
      gives("[rtpmap][rtp][0 PCMU/8000]", "a=rtpmap:0 PCMU/8000\r\n")},
     {"ConstructorReadsOneLineOfAnRtpmap", [](auto& h) { h = new Field("rtpmap", "98 X/1/p\r\nq"); },
      gives("[rtpmap][rtp][98 X/1/p]", "a=rtpmap:98 X/1/p\r\n")},
     {"ConstructorWithoutValueText", [](auto& h) { h = new Field("x", static_cast<const char*>(nullptr)); },
      gives("[x][none][]", "a=x\r\n")},
     {"ConstructorPassesTheValuesErrorOn", [](auto&) { Field("rtpmap", "0"); },
      refused(s_NoSpace, "[old][plain][value]", "a=old:value\r\n")},
     {"ConstructorTakesAValueObject", [](auto& h) { h = new Field("x", new LmSdpRtpAttribute("0 A/1")); },
      gives("[x][rtp][0 A/1]", "a=x:0 A/1\r\n")},
     {"ConstructorWithoutValueObject", [](auto& h) { h = new Field("x", static_cast<LmSdpAttribute*>(nullptr)); },
      gives("[x][none][]", "a=x\r\n")},
     {"RefusedConstructorReleasesTheValueObject", [](auto&) { Field("", new LmSdpAttribute("x")); },
      refused(s_NoName, "[old][plain][value]", "a=old:value\r\n")},
     {"SetNameLeavesTheClassOfTheValue", [](auto& h) { h->setName("rtpmap"); },
      gives("[rtpmap][plain][value]*", "a=rtpmap:value\r\n")},
     {"SetNoName", [](auto& h) { h->setName(nullptr); }, gives("[][plain][value]*", s_Invalid)},
     {"SetNoValueMakesAProperty", [](auto& h) { h->setValue(nullptr); }, gives("[old][none][]*", "a=old\r\n")},
     {"SetValueIsSharedAndSeen",
      [](auto& h) {
          const LmHandle<LmSdpRtpAttribute> hRtp = new LmSdpRtpAttribute("0 A/1");
          h->setValue(hRtp);
          hRtp->setClockRate(2U);
      },
      gives("[old][rtp][0 A/2]*", "a=old:0 A/2\r\n")}});

TEST(Attribute, ReadsOneWordAndGivesCopies)
{
    LmSdpAttribute attribute(LmString("one two"));
    LmString copy = attribute.getValue();
    copy.append("!");
    EXPECT_STREQ(attribute.getValue().c_str(), "one two");
    readEachWay("\tthree four", [&](LmInputStream& in) { return attribute.parse(in), ""; });
    EXPECT_THAT(attribute, SerializesTo("three"));
}

} // namespace
