#include "sdp/fields/LmSdpTimeZoneField.h"

#include "sdp/fields/LineTable.h"

namespace
{

using namespace std::string_literals;
using Field = LmSdpTimeZoneField;

LmHandle<Field> before()
{
    const LmHandle<Field> hField = new Field(nullptr);
    hField->addTimeZoneElements("1 2");
    return hField;
}

std::string describe(Field& field)
{
    return stateOf(field, {field.getTimeZoneElements()});
}

Outcome reads(const std::string& elements)
{
    return gives("[" + elements + "]*", "z=" + elements + "\r\n");
}

/// `count` elements of 13 bytes each, the blank behind them included.
std::string elements(unsigned int count)
{
    std::string text;
    while (count-- != 0)
    {
        text += "1234567890 0 ";
    }
    text.pop_back();
    return text;
}

const Failure s_NoLine = exception("LmSdpTimeZoneField::parse() Incomplete Time Zone Field");
const Outcome s_Refused = refused(exception("LmSdpTimeField::Invalid Time Zone Field"), "[1 2]", "z=1 2\r\n");
const Outcome s_Refused1 = refused(exception("LmSdpTimeField::Invalid Time Zone Field 1"), "[1 2]", "z=1 2\r\n");
const std::string s_508(508, '8');
const std::string s_600(600, '8');

const Table<Field> s_Table(
    "TimeZoneField", before, describe,
    {{"TwoElements", "2882844526 -1h 2898848070 0\r\nk=", reads("2882844526 -1h 2898848070 0"), 2},
     {"AllUnits", "1000000000 1d 1000000000 2h 1000000000 3m 1000000000 4s 1000000000 5\n",
      reads("1000000000 1d 1000000000 2h 1000000000 3m 1000000000 4s 1000000000 5")},
     {"LoneCrTakesOneCharacterMore", "2882844526 0\rk=", reads("2882844526 0"), 1},
     {"LoneCrAtTheEndOfInput", "2882844526 0\r", reads("2882844526 0")},
     {"LeadingZerosOfTheOffsetGo", "28828445260 -007\n", reads("28828445260 -7")},
     {"OffsetWithoutDigitsIsTheLargest", "2882844526 -\n", reads("2882844526 -4294967295")},
     {"OffsetTooLarge", "2882844526 99999999999999999999\n", reads("2882844526 4294967295")},
     {"LongestText", s_508 + " 0\n", reads(s_508 + " 0")},
     {"MostElements", elements(39) + "\n", reads(elements(39))},
     {"EmptyLine", "\r\nk=", refused(s_NoLine, "[1 2]", "z=1 2\r\n"), 4},
     {"TextOf511Bytes", s_508 + "8 0\nk=", s_Refused, 3},
     {"OffsetBeyondTheRoom", s_508 + " 12345\n", s_Refused, 1},
     {"TooManyDigits", s_600 + " 0\n", s_Refused, 91},
     {"TooManyElements", elements(40) + "\n", s_Refused, 8},
     {"UnitAtTheEnd", "2882844526 -1h\r\nk=", s_Refused, 3},
     {"BlankAtTheEnd", "2882844526 0 \r\n", s_Refused, 1},
     {"BlankInFront", " 2882844526 0\n", s_Refused, 13},
     {"ZeroInFront", "0882844526 0\n", s_Refused, 12},
     {"NineDigits", "288284452 0\n", s_Refused, 2},
     {"NoOffset", "2882844526\nk=", s_Refused, 2},
     {"ByteAbove127",
      "\xB1"
      "882844526 0\n",
      s_Refused, 12},
     {"LetterBehindTheOffset", "2882844526 0x\r\n", s_Refused1, 2},
     {"NulBehindTheOffset", "2882844526 0\0\n"s, s_Refused1, 1},
     {"NoLineEnd", "2882844526 0", s_Refused1}},
    {{"ConstructorNeedsALineEnd", [](auto&) { Field("2882844526 0"); }, s_Refused1},
     {"ConstructorWithALineEnd", [](auto& h) { h = new Field("2882844526 0\r\n"); }, reads("2882844526 0")},
     {"AddedElementsAreNoChange", [](auto& h) { h->addTimeZoneElements("3 4 5"); },
      gives("[1 2 3 4 5]", "z=1 2 3 4 5\r\n")},
     {"EmptyTextIsOneEmptyElement", [](auto& h) { h = new Field(nullptr), h->addTimeZoneElements(""); },
      gives("[]", "z=\r\n")},
     {"LineEndEndsTheLastElement", [](auto& h) { h->setTimeZoneElements("3 4 x\r\nz=5"); },
      gives("[3 4 x]*", "z=3 4 x\r\n")},
     {"SetNothingIsAChange", [](auto& h) { h->setTimeZoneElements(nullptr); }, gives("[1 2]*", "z=1 2\r\n")}});

} // namespace
