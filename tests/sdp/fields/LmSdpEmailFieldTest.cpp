#include "sdp/fields/LmSdpEmailField.h"

#include "sdp/fields/LineTable.h"

namespace
{

using Field = LmSdpEmailField;

LmHandle<Field> before()
{
    return new Field("old", "Old");
}

std::string describe(Field& field)
{
    return stateOf(field, {field.getEmailId(), field.getComment()});
}

const Failure s_NoLine = exception("LmSdpEmailField::serialize() Incomplete Email Field");
const Failure s_NoAddress = exception("Parsing Error(blank EmailId) in LmSdpEmailField::parse()");
const Failure s_NoAddressGiven = parseError("Attempting to create Email Field with blank E-mail ID");
const std::string s_Incomplete = "!LmSdpEmailField::serialize() Incomplete Email Field";

const Table<Field> s_Table(
    "EmailField", before, describe,
    {{"AddressAloneLeavesTheFormerComment", "user1@h\r\nc=", gives("[user1@h][Old]*", "e=user1@h\r\n"), 2},
     {"WhiteSpaceAroundGoes", " \tuser1 \v\r\n", gives("[user1][Old]*", "e=user1\r\n")},
     {"NoCharacterIsChecked", "\x80 \xFF)>", gives("[\x80 \xFF)>][Old]*", "e=\x80 \xFF)>\r\n")},
     {"Brackets", "Help Desk <user1> tail", gives("[user1][Help Desk]*", "e=Help Desk <user1>\r\n")},
     {"OneCharacterInFrontOfTheBracketGoes", "Help  <user1>", gives("[user1][Help ]*", "e=Help  <user1>\r\n")},
     {"NoCommentInFrontOfTheBracket", "<user1>", gives("[user1][]*", "e= <user1>\r\n")},
     {"OneCharacterIsNoComment", "x<user1>", gives("[user1][]*", "e= <user1>\r\n")},
     {"BlankInFrontOfTheParenthesisStays", "user1 (Help Desk) tail",
      gives("[user1 ][Help Desk]*", "e=user1  (Help Desk)\r\n")},
     {"NoBlankInFrontOfTheParenthesis", "user1(Help)", gives("[user1][Help]*", "e=user1 (Help)\r\n")},
     {"EmptyParentheses", "user1 ()", gives("[user1 ][]*", "e=user1  ()\r\n")},
     {"OpenParenthesisAtTheEnd", "user1 (", gives("[user1 ][]*", "e=user1  ()\r\n")},
     {"UnclosedParenthesis", "user1 (Help", gives("[user1 ][Help]*", "e=user1  (Help)\r\n")},
     {"ParenthesesCountBeforeBrackets", "H (x) <user1>", gives("[H ][x]*", "e=H  (x)\r\n")},
     {"EmptyLine", "\r\nc=", refused(s_NoLine, "[old][Old]", "e=old\r\n"), 4},
     {"LineOfBlanks", " \t\r\nc=", refused(s_NoAddress, "[old][Old]", "e=old\r\n"), 2},
     {"CommentAlone", "(Help)\r\nc=", refused(s_NoAddress, "[old][Help]*", "e=old (Help)\r\n"), 2},
     {"UnclosedBracket", "Help <user1", refused(s_NoAddress, "[old][Help]*", "e=Help <old>\r\n")},
     {"EmptyBrackets", "<>", refused(s_NoAddress, "[old][]*", "e= <old>\r\n")}},
    {{"ConstructorKeepsTheCommentUnwritten", [](auto& h) { h = new Field("u (x)", "Help"); },
      gives("[u (x)][Help]", "e=u (x)\r\n")},
     {"ConstructorWithoutComment", [](auto& h) { h = new Field("u", nullptr); }, gives("[u][]", "e=u\r\n")},
     {"ConstructorReadsItsText", [](auto&) { Field(""); }, refused(s_NoLine, "[old][Old]", "e=old\r\n")},
     {"SettersLeaveTheShape", [](auto& h) { h->setEmailId("a"), h->setComment("b"); }, gives("[a][b]*", "e=a\r\n")},
     {"SettersInALineThatHasAComment", [](auto& h) { h = new Field("x <y>"), h->setEmailId("a"), h->setComment("b"); },
      gives("[a][b]*", "e=b <a>\r\n")}});

} // namespace
