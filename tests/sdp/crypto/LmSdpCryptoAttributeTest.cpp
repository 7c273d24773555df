#include "sdp/crypto/LmSdpCryptoAttribute.h"

#include "sdp/fields/LineTable.h"
#include "sdp/media/LmSdpAttributeField.h"
#include "support/ByteStream.h"
#include "support/LogCapture.h"

#include <algorithm>

namespace
{

using Attribute = LmSdpCryptoAttribute;
using Parameter = LmSecurityDescription;
using Suite = Quorvex::Srtp::CryptoType;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

LmHandle<Attribute> before()
{
    return new Attribute;
}

std::string number(std::uint64_t value, std::uint64_t notSet)
{
    return value == notSet ? "-" : std::to_string(value);
}

/// `tag suite:name {key lifetime mki:length} <name,type=value>`; a hyphen stands for a number that is not set.
std::string describe(Attribute& attribute)
{
    std::ostringstream text;
    text << number(attribute.getTag(), ~0U) << " " << attribute.getCryptoSuite() << ":"
         << attribute.getCryptoSuiteString();
    for (const LmCryptoKey& key : attribute.getKeyVector())
    {
        text << " {" << key.m_Key.c_str() << " " << number(key.m_Lifetime, ~std::uint64_t(0)) << " "
             << number(key.m_MkiValue, ~0U) << ":" << number(key.m_MkiLength, ~0U) << "}";
    }
    for (const Parameter& parameter : attribute.getSecurityDescriptionVector())
    {
        text << " <" << parameter.m_Name.c_str() << "," << parameter.m_Type << "=" << parameter.m_Value.c_str() << ">";
    }
    return text.str();
}

const Failure s_NoSuite = parseError("LmSdpCryptoAttribute::parse-Failed to parse crypto suite.");
const Failure s_NoColon = parseError("No : in key-params LmSdpCryptoAttribute::parse()");
const Failure s_NoKey = parseError("LmSdpCryptoAttribute::parse-Failed to parse key/s.");
const Failure s_NoKeySalt = parseError("LmSdpCryptoAttribute::parseKey-Failed to parse key-salt.");
const Failure s_BadMki = parseError("LmSdpCryptoAttribute::parseKeyMki-Invalid character while parsing MKI.");
const std::string s_Incomplete = "!LmSdpCryptoAttribute::serialize()Incomplete crypto attribute.";
const std::string s_255(255, 'k');

LineRow keyForm(const char* name, const std::string& behindKey, const std::string& numbers, const std::string& written)
{
    return {name, "1 X inline:K" + behindKey, gives("1 3:X {K " + numbers + "}", "1 X inline:K" + written)};
}

LineRow badKeyForm(const char* name, const std::string& behindKey, const char* words, unsigned int left)
{
    return {name, "1 X inline:K" + behindKey, refused(parseError(words), "1 3:X", s_Incomplete), left};
}

const Table<Attribute> s_KeyForms(
    "CryptoKeyForms", before, describe,
    {keyForm("NothingMore", "", "- -:-", ""),
     keyForm("PowerOfTwo", "|2^20", "1048576 -:-", "|2^20"),
     keyForm("PlainPowerOfTwo", "|1048576", "1048576 -:-", "|2^20"),
     keyForm("PlainNumber", "|1000", "1000 -:-", "|1000"),
     keyForm("Zero", "|0", "0 -:-", "|0"),
     keyForm("One", "|1", "1 -:-", "|1"),
     keyForm("PowerZero", "|2^0", "1 -:-", "|1"),
     keyForm("Power63", "|2^63", "9223372036854775808 -:-", "|2^63"),
     keyForm("Power64IsNotSet", "|2^64", "- -:-", ""),
     keyForm("PowerWithoutNumberIsNotSet", "|2^", "- -:-", ""),
     keyForm("PlainNumberThatBeginsWithTwo", "|20", "20 -:-", "|20"),
     keyForm("NoNumberIsTheLargest", "| ", "4294967295 -:-", "|4294967295"),
     keyForm("PowerAndMki", "|2^20|1:4", "1048576 1:4", "|2^20|1:4"),
     keyForm("NumberAndMki", "|1048576|1:4", "1048576 1:4", "|2^20|1:4"),
     keyForm("MkiAlone", "|1:32", "- 1:32", "|1:32"),
     keyForm("MkiAloneWithoutLength", "|1:", "- 1:-", "|1"),
     keyForm("MkiAloneWithoutValue", "|:4", "- -:4", ""),
     keyForm("EmptyLifetimeAndMki", "||1:4", "4294967295 1:4", "|4294967295|1:4"),
     badKeyForm("CharacterBehindTheLifetime", "|2^20# K=1",
                "LmSdpCryptoAttribute::parseKeyMki-Invalid character while parsing MKI.", 4),
     badKeyForm("MkiValueIsNoNumber", "|2^20|x", "Parse error in srtp-key-info mki-value", 1),
     badKeyForm("MkiWithoutColon", "|2^20|1", "No : in srtp-key-info mki", 0),
     badKeyForm("MkiLengthIsNoNumber", "|2^20|1:x", "Parse error in srtp-key-info mki-length", 1)},
    {});

const Table<Attribute> s_Table(
    "CryptoAttribute", before, describe,
    {{"SuiteKnownByName", "1 AES_CM_128_HMAC_SHA1_80 inline:K|1:4",
      gives("1 0:AES_CM_128_HMAC_SHA1_80 {K 281474976710656 1:4}", "1 AES_CM_128_HMAC_SHA1_80 inline:K|2^48|1:4")},
     {"SuiteInLowerCase", "2 f8_128_hmac_sha1_80 inline:K",
      gives("2 2:F8_128_HMAC_SHA1_80 {K 281474976710656 -:-}", "2 F8_128_HMAC_SHA1_80 inline:K|2^48")},
     {"MethodAndLifetimeAreNormalised", "1 X INLINE:K|1048576 kdr=1",
      gives("1 3:X {K 1048576 -:-} <kdr,0=1>", "1 X inline:K|2^20\r\nkdr=1")},
     {"TwoKeys", "1 X inline:K;inline:L", gives("1 3:X {K - -:-} {L - -:-}", "1 X\r\ninline:K;\r\ninline:L")},
     {"WrittenTextReadsBack", "1 X\r\ninline:K|2^20|1:4;\r\ninline:L\r\nKDR=1",
      gives("1 3:X {K 1048576 1:4} {L - -:-} <KDR,0=1>", "1 X\r\ninline:K|2^20|1:4;\r\ninline:L\r\nKDR=1")},
     {"SessionParameters", "1 X inline:K KDR=1 UNENCRYPTED_SRTP\r\n WSH=60 FOO=B=R ",
      gives("1 3:X {K - -:-} <KDR,0=1> <UNENCRYPTED_SRTP,1=> <WSH,6=60> <FOO,7=B=R>",
            "1 X inline:K\r\nKDR=1\r\nUNENCRYPTED_SRTP\r\nWSH=60\r\nFOO=B=R")},
     {"TabSeparatesNothing", "1 X inline:K\tKDR=1", gives("1 3:X {K\tKDR=1 - -:-}", "1 X inline:K\tKDR=1")},
     {"StrayEqualSigns", "1 X inline:K === A= =B", gives("1 3:X {K - -:-} <A,7==B>", "1 X inline:K\r\nA==B")},
     {"ParameterTooLongLeavesItsValueAsAName", "1 X inline:K " + s_255 + "k=1",
      gives("1 3:X {K - -:-} <1,7=>", "1 X inline:K\r\n1")},
     {"ValueTooLong", "1 X inline:K A=k" + s_255 + " B",
      gives("1 3:X {K - -:-} <A,7=> <B,7=>", "1 X inline:K\r\nA\r\nB")},
     {"LifetimeBehindTheMki", "1 X inline:K|1:4|2^20",
      gives("1 3:X {K - 1:4} <|2^20,7=>", "1 X inline:K|1:4\r\n|2^20")},
     {"OtherMethodBehindAKey", "1 X inline:K;uri:L", gives("1 3:X {K - -:-} <:L,7=>", "1 X inline:K\r\n:L")},
     {"TagIsNoNumber", "x X inline:K", refused(s_NoKey, "- 3:x", s_Incomplete), 2},
     {"NoTag", " X inline:K", gives("- 3:X {K - -:-}", s_Incomplete)},
     {"SuiteAndKeyOf255Characters", "1 " + s_255 + " inline:" + s_255,
      gives("1 3:" + s_255 + " {" + s_255 + " - -:-}", "1 " + s_255 + " inline:" + s_255)},
     {"SuiteOf256Characters", "1 k" + s_255 + " inline:K", refused(s_NoSuite, "1 3:", s_Incomplete), 9},
     {"KeyOf256Characters", "1 X inline:k" + s_255 + " A", refused(s_NoKeySalt, "1 3:X", s_Incomplete), 2},
     {"BytesAbove127", "1 \xE9 inline:\xFF|\xB2", refused(s_BadMki, "1 3:\xE9", s_Incomplete)},
     {"EmptyText", "", refused(s_NoSuite, "- 3:", s_Incomplete)},
     {"TagAlone", "1", refused(s_NoSuite, "1 3:", s_Incomplete)},
     {"NoMethod", "1 X", refused(s_NoColon, "1 3:X", s_Incomplete)},
     {"MethodWithoutKey", "1 X inline", refused(s_NoKeySalt, "1 3:X", s_Incomplete)},
     {"EmptyKey", "1 X inline:|2^20", refused(s_NoKeySalt, "1 3:X", s_Incomplete), 5},
     {"OtherMethod", "1 X uri:K", refused(s_NoKey, "1 3:X", s_Incomplete), 2},
     {"FirstKeyStaysWhenTheSecondIsRefused",
      "1 X inline:K;inline:", refused(s_NoKeySalt, "1 3:X {K - -:-}", "1 X inline:K")}},
    {{"NothingSet", [](auto&) {}, gives("- 3:", s_Incomplete)},
     {"ConstructorReadsItsText", [](auto&) { Attribute(""); }, refused(s_NoSuite, "- 3:", s_Incomplete)},
     {"ConstructorWithoutText", [](auto& h) { h = new Attribute(nullptr); }, gives("- 3:", s_Incomplete)},
     {"KeyFromTextTakesThePowerOrTheSuitesOwn",
      [](auto& h) {
          h->setTag(1), h->setCryptoSuite(Suite::AES_CM_128_HMAC_SHA1_32), h->addKey("A", 31), h->addKey("B", 0),
              h->addKey("C", 64);
      },
      gives("1 1:AES_CM_128_HMAC_SHA1_32 {A 2147483648 -:-} {B 281474976710656 -:-} {C - -:-}",
            "1 AES_CM_128_HMAC_SHA1_32\r\ninline:A|2^31;\r\ninline:B|2^48;\r\ninline:C")},
     {"MkiLengthWithoutValueIsNotWritten",
      [](auto& h) {
          h = new Attribute("1 X inline:K"), h->addKey(LmCryptoKey("L", 1000, 1)),
          h->addKey(LmCryptoKey("M", 5, ~0U, 4));
      },
      gives("1 3:X {K - -:-} {L 1000 1:-} {M 5 -:4}", "1 X\r\ninline:K;\r\ninline:L|1000|1;\r\ninline:M|5")},
     {"LifetimeAbove32Bits",
      [](auto& h) { h = new Attribute("7 X inline:K"), h->addKey(LmCryptoKey("L", 281474976710657)); },
      gives("7 3:X {K - -:-} {L 281474976710657 -:-}", "7 X\r\ninline:K;\r\ninline:L|281474976710657")},
     {"EmptyLastKeyLeavesASemicolon", [](auto& h) { h = new Attribute("1 X inline:K"), h->addKey(LmCryptoKey()); },
      gives("1 3:X {K - -:-} { - -:-}", "1 X\r\ninline:K;\r\n")},
     {"EmptyFirstKeyLeavesNothing",
      [](auto& h) { h->setTag(0x80000000), h->setCryptoSuite("X"), h->addKey("", 64), h->addKey("K", 64); },
      gives("2147483648 3:X { - -:-} {K - -:-}", "-2147483648 X\r\ninline:K")},
     {"ParameterWithoutNameIsALineBreak",
      [](auto& h) {
          h = new Attribute("1 X inline:K"), h->addSecurityDescription(Parameter(Parameter::UNKNOWN, "v")),
          h->addSecurityDescription(Parameter(Parameter::FEC_KEY, ""));
      },
      gives("1 3:X {K - -:-} <,7=v> <FEC_KEY,5=>", "1 X inline:K\r\n\r\nFEC_KEY")},
     {"KnownSuiteKeepsTheFormerText",
      [](auto& h) {
          h = new Attribute("1 X inline:K"), h->setCryptoSuite("AES_CM_128_HMAC_SHA1_80"),
          h->setCryptoSuite(Suite::EXTENDED);
      },
      gives("1 3:X {K - -:-}", "1 X inline:K")},
     {"NoSuiteText", [](auto& h) { h = new Attribute("1 X inline:K"), h->setCryptoSuite(nullptr); },
      gives("1 3: {K - -:-}", s_Incomplete)},
     {"TagNotSet", [](auto& h) { h = new Attribute("1 X inline:K"), h->setTag(~0U); },
      gives("- 3:X {K - -:-}", s_Incomplete)},
     {"SecondTextIsAddedToTheFirst",
      [](auto& h) {
          h = new Attribute("1 X inline:K A");
          readEachWay("2 Y inline:L B",
                      [&](auto& in) { return h = new Attribute("1 X inline:K A"), h->parse(in), ""; });
      },
      gives("2 3:Y {K - -:-} {L - -:-} <A,7=> <B,7=>", "2 Y\r\ninline:K;\r\ninline:L\r\nA\r\nB")}});

TEST(CryptoValue, IsTheOldTextWhileItCannotBeBuilt)
{
    Attribute attribute("1 X INLINE:K");
    EXPECT_STREQ(attribute.getValue().c_str(), "1 X inline:K");
    attribute.setTag(~0U);
    EXPECT_STREQ(attribute.getValue().c_str(), "1 X inline:K");
    attribute.setTag(3);
    EXPECT_STREQ(attribute.getValue().c_str(), "3 X inline:K");
    EXPECT_STREQ(Attribute().getValue().c_str(), "");
}

TEST(CryptoClone, HasTheOldTextUntilASetterIsUsed)
{
    Attribute original("1 X INLINE:K KDR=1");
    const LmHandle<Attribute> hClone = static_cast<Attribute*>(original.clone());
    EXPECT_EQ(describe(*hClone), describe(original));
    EXPECT_STREQ(hClone->getValue().c_str(), "1 X INLINE:K KDR=1");
    hClone->setTag(2);
    hClone->addKey("L", 64);
    EXPECT_STREQ(hClone->getValue().c_str(), "2 X\r\ninline:K;\r\ninline:L\r\nKDR=1");
    EXPECT_STREQ(original.getValue().c_str(), "1 X inline:K\r\nKDR=1");
}

/// Says that it ends in front of its last bytes, as a stream does that knows how long its part of a source is.
class PartStream : public ByteStream
{
public:
    PartStream(const char* text, unsigned int behind) : ByteStream(LmByteArray::sCreate(text)), m_Behind(behind) {}

    unsigned int available() override { return ByteStream::available() - m_Behind; }
    int read() override
    {
        EXPECT_NE(available(), 0U) << "read behind the end";
        return ByteStream::read();
    }

private:
    const unsigned int m_Behind;
};

TEST(CryptoValue, EndsWhereTheStreamSaysSo)
{
    PartStream in("1 SUITE_X inline:K UNENCRYPTED_SRTP KDR=1", 5);
    Attribute attribute;
    attribute.parse(in);
    EXPECT_EQ(describe(attribute), "1 3:SUITE_X {K - -:-} <UNENCRYPTED_SRTP,1=>");
}

TEST(CryptoGetters, GiveFalseAndAnErrorLineForAnIndexWithoutAKey)
{
    const Attribute attribute("1 X inline:K|1000;inline:L|2^20");
    LmString key("untouched");
    std::size_t lifetime = 5;
    unsigned int power = 6;
    const LogCapture log("harnwick.lm.LmSdpCryptoAttribute", 40000);
    EXPECT_FALSE(attribute.getEncodedMasterKeySalt(key, 2));
    EXPECT_FALSE(attribute.getKeyLifetime(lifetime, 3));
    EXPECT_FALSE(attribute.getKeyLifetimeAsPowerofTwo(power, ~std::size_t(0)));
    EXPECT_EQ(values({key, static_cast<unsigned int>(lifetime), power}), "[untouched][5][6]");
    EXPECT_THAT(log.messages(),
                ElementsAre("Can not find key 2", "Can not find key 3", "Can not find key 18446744073709551615"));

    EXPECT_TRUE(attribute.getEncodedMasterKeySalt(key, 1));
    EXPECT_TRUE(attribute.getKeyLifetime(lifetime, 1));
    EXPECT_TRUE(attribute.getKeyLifetimeAsPowerofTwo(power, 1));
    EXPECT_EQ(values({key, static_cast<unsigned int>(lifetime), power}), "[L][1048576][20]");
    EXPECT_TRUE(attribute.getKeyLifetimeAsPowerofTwo(power, 0));
    EXPECT_EQ(power, 0U);
}

TEST(CryptoLog, HoldsNoKey)
{
    const LogCapture log("harnwick.lm", 0);
    LmSdpAttributeField field("crypto:1 SUITE_X inline:SECRET|2^20 KDR=1");
    written(field);
    written(LmHandle<Attribute>(static_cast<Attribute*>(LmHandle<Attribute>(field.getAttribute())->clone())));
    EXPECT_THAT(log.messages(), testing::Contains("Parsed extended crypto suite SUITE_X"));
    EXPECT_THAT(log.messages(), Each(Not(HasSubstr("SECRET"))));
}

TEST(CryptoKey, LifetimeAsPowerOfTwo)
{
    LmCryptoKey key;
    EXPECT_EQ(key.getLifetimeAsPowerOfTwo(), 0U);
    key.setLifetimeAsPowerOfTwo(63);
    key.setLifetimeAsPowerOfTwo(64);
    EXPECT_EQ(key.getLifetimeAsPowerOfTwo(), 63U);
    EXPECT_EQ(LmCryptoKey("", 0).getLifetimeAsPowerOfTwo(), 0U);
    EXPECT_EQ(LmCryptoKey("", 1).getLifetimeAsPowerOfTwo(), 0U);
    EXPECT_EQ(LmCryptoKey("", 3).getLifetimeAsPowerOfTwo(), 0U);
    LmCryptoKey copy = key;
    copy.m_Key = "changed";
    EXPECT_TRUE(key.m_Key.isBlank());
    key = copy;
    EXPECT_STREQ(key.m_Key.c_str(), "changed");
}

TEST(SecurityDescription, TypeAndNameFollowFromEachOther)
{
    const char* const names[] = {
        "KDR", "UNENCRYPTED_SRTP", "UNENCRYPTED_SRTCP", "UNAUTHENTICATED_SRTP", "FEC_ORDER", "FEC_KEY", "WSH", "", "",
        ""};
    for (int type = 0; type < 10; ++type)
    {
        const auto asType = static_cast<Parameter::ESecurityDescription>(type);
        EXPECT_STREQ(Parameter(asType, "v").m_Name.c_str(), names[type]);
        EXPECT_EQ(Parameter(asType, "v").m_Type, asType);
        EXPECT_EQ(Parameter(names[type], "v").m_Type, std::min(asType, Parameter::UNKNOWN));
    }
    EXPECT_EQ(Parameter().m_Type, Parameter::NOT_SET);
    EXPECT_EQ(Parameter(nullptr, nullptr).m_Type, Parameter::UNKNOWN);
}

} // namespace
