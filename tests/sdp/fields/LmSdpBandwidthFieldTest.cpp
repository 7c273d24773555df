#include "sdp/fields/LmSdpBandwidthField.h"

#include "sdp/fields/LineTable.h"

namespace
{

using namespace std::string_literals;
using Field = LmSdpBandwidthField;

LmHandle<Field> before()
{
    return new Field("OLD", 9);
}

std::string describe(Field& field)
{
    return stateOf(field, {field.getType(), field.getAmount()});
}

constexpr const char* s_Invalid = "LmSdpBandwidthField::parse() Invalid Bandwidth Field";
const Failure s_BadAmount = exception("Invalid value for Amount in Bandwidth field");
const Failure s_NoType = parseError("Trying to create Bandwidth field with blank type field");
const std::string s_Incomplete = "!LmSdpBandwidthField::serialize() Incomplete Bandwidth Field";

const Table<Field> s_Table(
    "BandwidthField", before, describe,
    {{"TypeAndAmount", "AS:128\r\na=", gives("[AS][128]*", "b=AS:128\r\n"), 2},
     {"Zero", "AS:0\n", gives("[AS][0]*", "b=AS:0\r\n")},
     {"DigitsUpToTheFirstOtherCharacter", "AS:12x:7", gives("[AS][12]*", "b=AS:12\r\n")},
     {"WhiteSpaceAroundTheAmount", "X Y: \t+64 ", gives("[X Y][64]*", "b=X Y:64\r\n")},
     {"NegativeAmountGivesItsBits", "AS:-1", gives("[AS][4294967295]*", "b=AS:4294967295\r\n")},
     {"NoTypeTakesTheWholeLine", ":64", gives("[:64][64]*", "b=:64:64\r\n")},
     {"NulEndsTheAmount", "A\0S:0\0x"s, gives("[A][0]*", "b=A\0S:0\r\n"s)},
     {"EmptyLine", "\r\na=", refused(exception(s_Invalid), "[OLD][9]", "b=OLD:9\r\n"), 4},
     {"NoColon", "AS 128\r\na=", refused(parseError(s_Invalid), "[OLD][9]", "b=OLD:9\r\n"), 2},
     {"NoAmount", "AS:\r\na=", refused(s_BadAmount, "[AS][0]*", "b=AS:0\r\n"), 2},
     {"AmountIsNoNumber", "AS:\xB1", refused(s_BadAmount, "[AS][0]*", "b=AS:0\r\n")},
     {"ZeroInTwoDigits", "AS:00", refused(s_BadAmount, "[AS][0]*", "b=AS:0\r\n")},
     {"ZeroWithABlank", "AS:0 ", refused(s_BadAmount, "[AS][0]*", "b=AS:0\r\n")},
     {"ZeroInTheLow32Bits", "AS:4294967296", refused(s_BadAmount, "[AS][0]*", "b=AS:0\r\n")}},
    {{"ConstructorTakesZero", [](auto& h) { h = new Field("AS", 0); }, gives("[AS][0]", "b=AS:0\r\n")},
     {"ConstructorWithoutType", [](auto&) { Field(nullptr, 5); }, refused(s_NoType, "[OLD][9]", "b=OLD:9\r\n")},
     {"SetAmountFromNumber", [](auto& h) { h->setAmount(7U); }, gives("[OLD][7]*", "b=OLD:7\r\n")},
     {"SetAmountFromText", [](auto& h) { h->setAmount("64kb"); }, gives("[OLD][64]*", "b=OLD:64\r\n")},
     {"RefusedAmountIsZeroAndNotAChange", [](auto& h) { h->setAmount("abc"); },
      refused(s_BadAmount, "[OLD][0]", "b=OLD:0\r\n")},
     {"SetAmountFromNoText", [](auto& h) { h->setAmount(nullptr); }, refused(s_BadAmount, "[OLD][0]", "b=OLD:0\r\n")},
     {"SetTypeTakesEmptyText", [](auto& h) { h->setType(""); }, gives("[][9]*", s_Incomplete)}});

} // namespace
