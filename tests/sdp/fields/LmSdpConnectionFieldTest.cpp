#include "sdp/fields/LmSdpConnectionField.h"

#include "sdp/fields/LineTable.h"
#include "support/LogCapture.h"

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using Field = LmSdpConnectionField;

LmHandle<Field> before()
{
    return new Field("NT", "AT", "old");
}

std::string describe(Field& field)
{
    return stateOf(field, {field.getNetworkType(), field.getAddressType(), field.getAddress()});
}

const Failure s_NoLine = exception("LmSdpConnectionField::parse() Incomplete Connection Field");
const Failure s_NoAddressType = exception("LmSdpConnectionField::parse() Incomplete AddressType Field");
const Failure s_NoAddress = exception("LmSdpConnectionField::parse() Incomplete Address Field");
const Failure s_BadAddress = exception("LmSdpConnectionField::parse() Invalid Address Field");
const std::string s_Incomplete = "!LmSdpConnectionField::serialize() Incomplete Connection Field";

const Table<Field> s_Table(
    "ConnectionField", before, describe,
    {{"Ipv4", "IN IP4 10.47.16.5\r\nb=", gives("[IN][IP4][10.47.16.5]*", "c=IN IP4 10.47.16.5\r\n"), 2},
     {"HopsStayInTheAddress", "IN IP4 224.2.1.1/127/3",
      gives("[IN][IP4][224.2.1.1/127/3]*", "c=IN IP4 224.2.1.1/127/3\r\n")},
     {"AnyAddressWithoutBlank", "X Y so\tme\xFFhost\r", gives("[X][Y][so\tme\xFFhost]*", "c=X Y so\tme\xFFhost\r\n")},
     {"BlanksAroundIpv4", "IN IP4  1.2.3.4 \n", gives("[IN][IP4][ 1.2.3.4 ]*", "c=IN IP4  1.2.3.4 \r\n")},
     {"TabSeparatesNothing", "IN\tIP4 a b", gives("[IN\tIP4][a][b]*", "c=IN\tIP4 a b\r\n")},
     {"WhiteSpaceOfTheNextLineGoes", "IN IP4 h\r\n\r\n \tb=", gives("[IN][IP4][h]*", "c=IN IP4 h\r\n"), 2},
     {"EmptyAddressCannotBeWritten", "IN IP4 \r\n", gives("[IN][IP4][]*", s_Incomplete)},
     {"BlankInFrontMakesTheWholeLineTheType", " IN IP4", gives("[ IN IP4][IN][IP4]*", "c= IN IP4 IN IP4\r\n")},
     {"DoubledBlankReachesToTheEnd", "IN  host", gives("[IN][ host][host]*", "c=IN  host host\r\n")},
     {"EmptyLine", "\r\nb=", refused(s_NoLine, "[NT][AT][old]", "c=NT AT old\r\n"), 4},
     {"OneWord", "IN\r\nb=", refused(s_NoAddressType, "[ ][AT][old]*", "c=  AT old\r\n"), 2},
     {"TwoWords", "IN IP4\r\nb=", refused(s_NoAddress, "[IN][ ][old]*", "c=IN   old\r\n"), 2},
     {"BlankInFrontOfOneWord", " x", refused(s_NoAddress, "[ x][ ][old]*", "c= x   old\r\n")},
     {"TwoAddresses", "IN IP4 1.2.3.4 5.6.7.8\r\nb=", refused(s_BadAddress, "[IN][IP4][ ]*", "c=IN IP4  \r\n"), 2},
     {"DoubledBlankInFrontOfTwoWords", "IN  IP4 1.2.3.4",
      refused(s_BadAddress, "[IN][ IP4 1.2.3.4][ ]*", "c=IN  IP4 1.2.3.4  \r\n")}},
    {{"ConstructorTakesBlanks", [](auto& h) { h = new Field("IN", "IP4", "a b"); },
      gives("[IN][IP4][a b]", "c=IN IP4 a b\r\n")},
     {"ConstructorReadsItsText", [](auto&) { Field("IN"); },
      refused(s_NoAddressType, "[NT][AT][old]", "c=NT AT old\r\n")},
     {"BlankNetworkTypeComesFirst", [](auto&) { Field("", nullptr, ""); },
      refused(parseError("Error creating Connection field with blank Network Type"), "[NT][AT][old]",
              "c=NT AT old\r\n")},
     {"SettersTakeAnything", [](auto& h) { h->setNetworkType("a b"), h->setAddressType("\t"), h->setAddress("c d"); },
      gives("[a b][\t][c d]*", "c=a b \t c d\r\n")},
     {"NoNetworkTypeToWrite", [](auto& h) { h->setNetworkType(nullptr); }, gives("[][AT][old]*", s_Incomplete)}});

TEST(ConnectionFieldLog, WritingTellsTheLengthsAndARefusalTellsNothing)
{
    const LogCapture log("harnwick.lm.LmSdpConnectionField", 10000);
    written(Field("IN", "IP4", "10.0.0.1"));
    EXPECT_THAT(log.messages(), ElementsAre("LmSdpConnectionField::serialize :  m_NetworkType.length(): 2 "
                                            "m_AddressType.length(): 3 m_Address.length(): 8"));
    const LogCapture refusal("harnwick.lm.LmSdpConnectionField", 10000);
    writesOf(Field(nullptr));
    EXPECT_THAT(refusal.messages(), IsEmpty());
}

} // namespace
