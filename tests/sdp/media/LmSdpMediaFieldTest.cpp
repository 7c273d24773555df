#include "sdp/media/LmSdpMediaField.h"

#include "sdp/fields/LineTable.h"

namespace
{

using namespace std::string_literals;
using Field = LmSdpMediaField;

/// A field that is not changed, with a port, one format and neither word nor transport.
LmHandle<Field> before()
{
    const LmHandle<Field> hField = new Field(nullptr);
    hField->addMediaFormat(7);
    return hField;
}

std::string describe(Field& field)
{
    return stateOf(field, {field.getMediaType(), field.getPort(), field.getNumberOfPorts(), field.getTransport(),
                           field.getMediaFormats()});
}

const Failure s_NoLine = exception("LmSdpMediaField::parse Incomplete Media Field");
const Failure s_Invalid = parseError("Parse error in LmSdpMediaField::parse()");
const std::string s_Incomplete = "!LmSdpMediaField::serialize() Incomplete Media Field";
const Outcome s_PortRefused = refused(s_Invalid, "[a][0][0][][7]", s_Incomplete);
const std::string s_1000(1000, 'w');
const std::string s_254(254, '0');

const Table<Field> s_Table(
    "MediaField", before, describe,
    {{"Formats", "audio 49170 RTP/AVP 0 8 96\r\na=",
      gives("[audio][49170][0][RTP/AVP][0 8 96]*", "m=audio 49170 RTP/AVP 0 8 96\r\n"), 2},
     {"PortWithCount", "video 49170/2 RTP/AVP 31\n",
      gives("[video][49170][2][RTP/AVP][31]*", "m=video 49170/2 RTP/AVP 31\r\n")},
     {"PortZero", "a 0 b c", gives("[a][0][0][b][c]*", "m=a 0 b c\r\n")},
     {"PortIsNoNumber", "a abc b c", gives("[a][0][0][b][c]*", "m=a 0 b c\r\n")},
     {"NegativePortGivesItsBits", "a -1 b c", gives("[a][4294967295][0][b][c]*", "m=a 4294967295 b c\r\n")},
     {"DigitsUpToTheFirstOtherCharacter", "a 9x/2/3 b c", gives("[a][9][2][b][c]*", "m=a 9/2 b c\r\n")},
     {"TwoBlanksBetweenFormats", "a 1 b 0  8", gives("[a][1][0][b][0 8]*", "m=a 1 b 0 8\r\n")},
     {"BlankAtTheEndIsAnEmptyFormat", "a 1 b 0 ", gives("[a][1][0][b][0 ]*", "m=a 1 b 0 \r\n")},
     {"OneBlankIsAnEmptyFormat", "a 1 b ", gives("[a][1][0][b][]*", "m=a 1 b \r\n")},
     {"OtherSeparatorsInFrontOfPortAndTransport", "a\t1 \tb\t0", gives("[a][1][0][b][\t0]*", "m=a 1 b \t0\r\n")},
     {"LineEndBehindTheWordIsPassedOver", "a\r\n1 b 0", gives("[a][1][0][b][0]*", "m=a 1 b 0\r\n")},
     {"BytesAbove127", "\xE9 1 \x80 \xFF", gives("[\xE9][1][0][\x80][\xFF]*", "m=\xE9 1 \x80 \xFF\r\n")},
     {"NulEndsTheFormats", "a 1 b 0 8\0 9"s, gives("[a][1][0][b][0 8]*", "m=a 1 b 0 8\r\n")},
     {"LongWords", s_1000 + " 1 " + s_1000 + " 0",
      gives("[" + s_1000 + "][1][0][" + s_1000 + "][0]*", "m=" + s_1000 + " 1 " + s_1000 + " 0\r\n")},
     {"PortOf255Characters", "a " + s_254 + "7 b 0", gives("[a][7][0][b][0]*", "m=a 7 b 0\r\n")},
     {"FormatsOf255Characters", "a 1 b " + s_254, gives("[a][1][0][b][" + s_254 + "]*", "m=a 1 b " + s_254 + "\r\n")},
     {"EmptyLine", "\r\na=", refused(s_NoLine, "[][0][0][][7]", s_Incomplete), 4},
     {"TwoBlanksBehindTheWord", "a  1 b 0", refused(s_NoLine, "[a][0][0][][7]", s_Incomplete), 5},
     {"TwoBlanksBehindThePort", "a 1  b 0", refused(s_NoLine, "[a][1][0][][7]*", s_Incomplete), 3},
     {"NoTransport", "a 1", refused(s_NoLine, "[a][1][0][][7]*", s_Incomplete)},
     {"NoFormat", "a 1 b\r\na=", refused(s_NoLine, "[a][1][0][b][7]*", "m=a 1 b 7\r\n"), 4},
     {"OneWord", "a", s_PortRefused},
     {"PortOf256Characters", "a " + s_254 + "00 b 0\r\n", s_PortRefused, 6},
     {"FormatsOf256Characters", "a 1 b 0" + s_254 + "\r\na=", refused(s_Invalid, "[a][1][0][b][7]*", "m=a 1 b 7\r\n"),
      2},
     {"PortZeroWithCount", "a 0/2 b 0", s_PortRefused, 4},
     {"CountZero", "a 1/0 b 0", s_PortRefused, 4},
     {"NoCountBehindTheSlash", "a 1/ b 0", s_PortRefused, 4},
     {"NegativeCount", "a 1/-1 b 0", s_PortRefused, 4}},
    {{"ConstructorReadsItsText", [](auto&) { Field("a"); }, refused(s_Invalid, "[][0][0][][7]", s_Incomplete)},
     {"NoFormatAtAllIsWritten", [](auto& h) { h = new Field("a 1 b 8"), h->removeMediaFormat(8); },
      gives("[a][1][0][b][]*", "m=a 1 b\r\n")},
     {"EmptyTextIsOneEmptyFormat", [](auto& h) { h = new Field("a 1 b 8"), h->setMediaFormats(""); },
      gives("[a][1][0][b][]*", "m=a 1 b \r\n")},
     {"SetFormatsReplacesAll", [](auto& h) { h->setMediaFormats(" 1  x"); }, gives("[][0][0][][1 x]*", s_Incomplete)},
     {"AddedFormatIsNoChange", [](auto& h) { h->addMediaFormat(8), h->addMediaFormat(8); },
      gives("[][0][0][][7 8]", s_Incomplete)},
     {"AddedFormatIsWrittenWithItsSign", [](auto& h) { h->addMediaFormat(0xFFFFFFFF); },
      gives("[][0][0][][7 -1]", s_Incomplete)},
     {"RemovesTheFirstOfEqualNumbers",
      [](auto& h) { h->setMediaFormats("0 8 00"), h->removeMediaFormat(0), h->removeMediaFormat(9); },
      gives("[][0][0][][8 00]*", s_Incomplete)},
     {"WordCountsAsZero", [](auto& h) { h->setMediaFormats("t38 x"), h->addMediaFormat(0), h->removeMediaFormat(0); },
      gives("[][0][0][][x]*", s_Incomplete)},
     {"NumbersFromText", [](auto& h) { h->setPort("12x"), h->setNumberOfPorts("3"); },
      gives("[][12][3][][7]*", s_Incomplete)},
     {"NoTextIsNoChange", [](auto& h) { h->setPort(nullptr), h->setNumberOfPorts(nullptr); },
      gives("[][0][0][][7]", s_Incomplete)},
     {"Setters", [](auto& h) { h->setMediaType("x y"), h->setPort(5U), h->setNumberOfPorts(1U), h->setTransport("z"); },
      gives("[x y][5][1][z][7]*", "m=x y 5/1 z 7\r\n")},
     {"NoTransportToWrite", [](auto& h) { h = new Field("a 1 b 8"), h->setTransport(nullptr); },
      gives("[a][1][0][][8]*", s_Incomplete)}});

} // namespace
