#include "sdp/media/LmSdpRtpAttribute.h"

#include "sdp/fields/LineTable.h"

namespace
{

using namespace std::string_literals;
using Attribute = LmSdpRtpAttribute;

LmHandle<Attribute> before()
{
    return new Attribute("9 OLD/9/9");
}

/// The members and, behind them, what `getValue` gives.
std::string describe(Attribute& attribute)
{
    const std::string members =
        values({attribute.getPayloadType(), attribute.getEncodingName(), attribute.getClockRate(),
                attribute.getNumberOfChannels(), attribute.getEncodingParameters()});
    return members + " " + std::string(attribute.getValue().view());
}

const Failure s_NoSpace = parseError("RTP attribute payload type: Space not found or misplaced");
const Failure s_NoSlash = parseError("RTP attribute encoding name: Slash not found or misplaced");
const Failure s_NoRate = parseError("failed to parde SDP rtpmap attribute : no clock rate found");
const std::string s_Incomplete = "!LmSdpRtpAttribute::serialize() Incomplete Rtp Attribute Field";

const Table<Attribute> s_Table(
    "RtpAttribute", before, describe,
    {{"TwoPartsLeaveTheFormerChannels",
      "0 PCMU/8000\r\na=", gives("[0][PCMU][8000][9][] 0 PCMU/8000/9", "0 PCMU/8000/9"), 2},
     {"Channels", "97 L16/44100/2", gives("[97][L16][44100][2][] 97 L16/44100/2", "97 L16/44100/2")},
     {"NumberInFrontOfAThirdSlash", "98 X/8000/2/3", gives("[98][X][8000][2][] 98 X/8000/2", "98 X/8000/2")},
     {"NegativeNumbersAreWrittenInTwoWays", "-1 X/-2/-3",
      gives("[4294967295][X][4294967294][4294967293][] -1 X/-2/-3", "4294967295 X/4294967294/4294967293")},
     {"NumbersOutOfText", "abc X Y/Z/1", gives("[0][X Y][0][1][] 0 X Y/0/1", "0 X Y/0/1")},
     {"NoEncodingNameIsFoundAtWriting", "96 /8000/1", gives("[96][][8000][1][] 96 /8000/1", s_Incomplete)},
     {"BytesAbove127", "\xB1 \xE9/8000/2", gives("[0][\xE9][8000][2][] 0 \xE9/8000/2", "0 \xE9/8000/2")},
     {"NoSpace", "96\r\na=", refused(s_NoSpace, "[9][OLD][9][9][] 9 OLD/9/9", "9 OLD/9/9"), 2},
     {"EmptyLine", "\r\na=", refused(s_NoSpace, "[9][OLD][9][9][] 9 OLD/9/9", "9 OLD/9/9"), 2},
     {"NoSlashLeavesThePayloadType", "1/6 X", refused(s_NoSlash, "[1][OLD][9][9][] 1 OLD/9/9", "1 OLD/9/9")},
     {"NoClockRateLeavesTheName", "96 X/", refused(s_NoRate, "[96][X][9][9][] 96 X/9/9", "96 X/9/9")}},
    {{"ConstructorWithoutText", [](auto& h) { h = new Attribute(nullptr); }, gives("[0][][0][0][] ", s_Incomplete)},
     {"NameInABlankOne", [](auto& h) { h = new Attribute(nullptr), h->setEncodingName("X"); },
      gives("[0][X][0][0][] 0 X/0", "0 X/0")},
     {"ParametersThatAreNoNumber", [](auto& h) { h = new Attribute("98 X/8000/mode-a"); },
      gives("[98][X][8000][0][mode-a] 98 X/8000/mode-a", "98 X/8000/mode-a")},
     {"ParametersOfZero", [](auto& h) { h = new Attribute("98 X/8000/0"); },
      gives("[98][X][8000][0][0] 98 X/8000/0", "98 X/8000/0")},
     {"EmptyThirdPart", [](auto& h) { h = new Attribute("98 X//"); }, gives("[98][X][0][0][] 98 X/0", "98 X/0")},
     {"BlankAtTheEndGoes", [](auto& h) { h = new Attribute("8 PCMA/8000 "); },
      gives("[8][PCMA][8000][0][] 8 PCMA/8000", "8 PCMA/8000")},
     {"ChannelsCountBeforeParameters", [](auto& h) { h = new Attribute("98 X/8000/p"), h->setNumberOfChannels(2U); },
      gives("[98][X][8000][2][p] 98 X/8000/2", "98 X/8000/2")},
     {"SettersFromNumbers", [](auto& h) { h->setPayloadType(1U), h->setClockRate(2U), h->setNumberOfChannels(3U); },
      gives("[1][OLD][2][3][] 1 OLD/2/3", "1 OLD/2/3")},
     {"SettersFromText",
      [](auto& h) {
          h->setPayloadType("1x"), h->setClockRate("2"), h->setNumberOfChannels("x"), h->setEncodingParameters("p");
      },
      gives("[1][OLD][2][0][p] 1 OLD/2/p", "1 OLD/2/p")},
     {"NumbersFromNoTextStay",
      [](auto& h) { h->setPayloadType(nullptr), h->setClockRate(nullptr), h->setNumberOfChannels(nullptr); },
      gives("[9][OLD][9][9][] 9 OLD/9/9", "9 OLD/9/9")},
     {"TextsFromNoTextAreEmpty", [](auto& h) { h->setEncodingName(nullptr), h->setEncodingParameters(nullptr); },
      gives("[9][][9][9][] 9 /9/9", s_Incomplete)},
     {"ValueIsBuiltAnewEachTime", [](auto& h) { h->setClockRate(1U), h->getValue(), h->setClockRate(2U); },
      gives("[9][OLD][2][9][] 9 OLD/2/9", "9 OLD/2/9")}});

} // namespace
