#include "sdp/fields/LmSdpTimeField.h"

#include "sdp/fields/LineTable.h"

namespace
{

using namespace std::string_literals;
using Field = LmSdpTimeField;

LmHandle<Field> before()
{
    return new Field("1", "2");
}

std::string describe(Field& field)
{
    return stateOf(field, {field.getStartTime(), field.getStopTime()});
}

const Failure s_NoLine = exception("LmSdpTimeField::parse Incomplete Time Field");
const std::string s_Incomplete = "!LmSdpTimeField::serialize() Incomplete Time Field";
const Outcome s_Refused = refused(exception("LmSdpTimeField::Invalid Time Field"), "[1][2]", "t=1 2\r\n");
const std::string s_127(127, '8');
const std::string s_128(128, '8');

const Table<Field> s_Table(
    "TimeField", before, describe,
    {{"LineEndStaysUnread", "0 0\r\n", gives("[0][0]", "t=0 0\r\n"), 2},
     {"LeadingZerosAndOrderDoNotMatter", "09 01", gives("[09][01]", "t=09 01\r\n")},
     {"LongestTimes", s_127 + " " + s_127 + "\n",
      gives("[" + s_127 + "][" + s_127 + "]", "t=" + s_127 + " " + s_127 + "\r\n"), 1},
     {"WhatStandsBehindStaysUnread", "0 5x", gives("[0][5]", "t=0 5\r\n"), 1},
     {"SecondBlankStaysUnread", "0  5", gives("[0][]", s_Incomplete), 2},
     {"BlankInFront", " 5", gives("[][5]", s_Incomplete)},
     {"EmptyLine", "\r\nr=", refused(s_NoLine, "[1][2]", "t=1 2\r\n"), 4},
     {"OneTime", "0\r\nr=", s_Refused, 3},
     {"OneTimeAtTheEndOfInput", "0", s_Refused},
     {"Letter", "0x 0", s_Refused, 2},
     {"Sign", "-1 0", s_Refused, 3},
     {"Tab", "0\t0", s_Refused, 1},
     {"Nul", "0\0 0"s, s_Refused, 2},
     {"ByteAbove127", "\xB0 0", s_Refused, 2},
     {"FirstTimeTooLong", s_128 + "8 0", s_Refused, 3},
     {"SecondTimeTooLong", "0 " + s_128 + "\n", s_Refused, 1}},
    {{"ConstructorTakesAnything", [](auto& h) { h = new Field("now", "later"); },
      gives("[now][later]", "t=now later\r\n")},
     {"ConstructorWithoutText", [](auto& h) { h = new Field(nullptr); }, gives("[][]", s_Incomplete)},
     {"ConstructorReadsItsText", [](auto&) { Field("0"); }, s_Refused},
     {"BlankStartTimeComesFirst", [](auto&) { Field("", nullptr); },
      refused(parseError("Attempting to create Time field with blank start time"), "[1][2]", "t=1 2\r\n")},
     {"SettersTakeAnything", [](auto& h) { h->setStartTime("x"), h->setStopTime("y z"); },
      gives("[x][y z]*", "t=x y z\r\n")},
     {"NoStopTime", [](auto& h) { h->setStopTime(""); }, gives("[1][]*", s_Incomplete)}});

} // namespace
