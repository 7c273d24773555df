#include "sdp/fields/LmSdpRepeatField.h"

#include "sdp/fields/LineTable.h"

namespace
{

using namespace std::string_literals;
using Field = LmSdpRepeatField;

LmHandle<Field> before()
{
    const LmHandle<Field> hField = new Field(nullptr);
    hField->addOffsets("9");
    return hField;
}

std::string describe(Field& field)
{
    return stateOf(field, {field.getRepeatInterval(), field.getActiveDuration(), field.getOffsetList()});
}

const Failure s_NoLine = exception("LmSdpRepeatField::parse Incomplete Repeat Field");
const std::string s_Incomplete = "!LmSdpRepeatField::serialize() Incomplete Repeat Field";
const std::string s_LongOffset(1000, '5');

const Table<Field> s_Table(
    "RepeatField", before, describe,
    {{"Offsets", "604800 3600 0 90000\r\nz=", gives("[604800][3600][0 90000]*", "r=604800 3600 0 90000\r\n"), 2},
     {"UnitsStay", "7d 1h 0 25h\n", gives("[7d][1h][0 25h]*", "r=7d 1h 0 25h\r\n")},
     {"SeveralBlanks", " 7d  1h   0   25h", gives("[7d][1h][0 25h]*", "r=7d 1h 0 25h\r\n")},
     {"NoOffsetIsAnEmptyOne", "7d 1h\r\n", gives("[7d][1h][]*", "r=7d 1h \r\n")},
     {"BlankAtTheEndIsAnEmptyOffset", "7d 1h 0 ", gives("[7d][1h][0 ]*", "r=7d 1h 0 \r\n")},
     {"TabBelongsToTheOffset", "7d\t1h\t0 \xFF\t1", gives("[7d][1h][\t0 \xFF\t1]*", "r=7d 1h \t0 \xFF\t1\r\n")},
     {"LongOffset", "7d 1h 0 " + s_LongOffset,
      gives("[7d][1h][0 " + s_LongOffset + "]*", "r=7d 1h 0 " + s_LongOffset + "\r\n")},
     {"NulEndsTheOffsets", "7d 1h 0\0 5"s, gives("[7d][1h][0]*", "r=7d 1h 0\r\n")},
     {"NoDuration", "7d\r\nz=", gives("[7d][][]*", s_Incomplete), 2},
     {"LineOfBlanks", " \r\nz=", gives("[][][]*", s_Incomplete), 2},
     {"EmptyLine", "\r\nz=", refused(s_NoLine, "[][][9]", s_Incomplete), 4}},
    {{"ConstructorWithoutText", [](auto& h) { h = new Field(nullptr); }, gives("[][][]", s_Incomplete)},
     {"NoOffsetAtAll", [](auto& h) { h = new Field(nullptr), h->setRepeatInterval("1"), h->setActiveDuration("2"); },
      gives("[1][2][]*", "r=1 2\r\n")},
     {"AddedOffsetsAreNoChange", [](auto& h) { h->addOffsets(" 5  6"); }, gives("[][][9 5 6]", s_Incomplete)},
     {"SetOffsetsAreAChange", [](auto& h) { h->setOffsetList("5 6"); }, gives("[][][5 6]*", s_Incomplete)},
     {"EmptyListIsOneEmptyOffset", [](auto& h) { h = new Field("7d 1h 0"), h->setOffsetList(""); },
      gives("[7d][1h][]*", "r=7d 1h \r\n")},
     {"NoInterval", [](auto& h) { h = new Field("7d 1h 0"), h->setRepeatInterval(nullptr); },
      gives("[][1h][0]*", s_Incomplete)}});

} // namespace
