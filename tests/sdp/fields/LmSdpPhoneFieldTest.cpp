#include "sdp/fields/LmSdpPhoneField.h"

#include "sdp/fields/LineTable.h"

namespace
{

using namespace std::string_literals;
using Field = LmSdpPhoneField;

LmHandle<Field> before()
{
    return new Field("+0", "Old");
}

std::string describe(Field& field)
{
    return stateOf(field, {field.getPhoneNumber(), field.getComment()});
}

const Failure s_BadNumber = parseError("Invalid character in Phone Number - LmSdpPhoneField::parse()");
const Failure s_NoNumber = parseError("Parsing Error(blank PhoneNumber) in LmSdpPhoneField::parse()");
const Failure s_NoNumberGiven = parseError("Attempting to create Phone Field with blank phone number");
const std::string s_Incomplete = "!LmSdpPhoneField::serialize() Incomplete Phone Field";
const Outcome s_RefusedNumberChangesNothing = refused(s_BadNumber, "[+0][Old]", "p=+0\r\n");

const Table<Field> s_Table(
    "PhoneField", before, describe,
    {{"NumberAloneLeavesTheFormerComment", "+1 617-555\r\nc=", gives("[+1 617-555][Old]*", "p=+1 617-555\r\n"), 2},
     {"SeparatorBehindThePlus", "+ 1", gives("[+ 1][Old]*", "p=+ 1\r\n")},
     {"OneCharacterIsNotChecked", "\x80\r\n", gives("[\x80][Old]*", "p=\x80\r\n")},
     {"OneBlankIsOneCharacter", " \r\n", gives("[ ][Old]*", "p= \r\n")},
     {"Brackets", "Help Desk <+1 617> tail", gives("[+1 617][Help Desk]*", "p=Help Desk <+1 617>\r\n")},
     {"NoCommentInFrontOfTheBracket", "<+1>", gives("[+1][]*", "p= <+1>\r\n")},
     {"OneCharacterIsNoComment", "x<7>", gives("[7][]*", "p= <7>\r\n")},
     {"Parentheses", "+1 617 (Help Desk) tail", gives("[+1 617][Help Desk]*", "p=+1 617 (Help Desk)\r\n")},
     {"LastDigitInFrontOfTheParenthesisGoes", "+1 617(Help)", gives("[+1 61][Help]*", "p=+1 61 (Help)\r\n")},
     {"DroppedDigitStillFollowsTheBlank", "+1 6(x)", gives("[+1 ][x]*", "p=+1  (x)\r\n")},
     {"EmptyParentheses", "+1 ()", gives("[+1][]*", "p=+1 ()\r\n")},
     {"UnclosedParenthesis", "+1 (Help", gives("[+1][Help]*", "p=+1 (Help)\r\n")},
     {"NoPlus", "617555\r\nc=", s_RefusedNumberChangesNothing, 2},
     {"Letter", "+1617x", s_RefusedNumberChangesNothing},
     {"ByteAbove127", "+1\xB2", s_RefusedNumberChangesNothing},
     {"Nul", "+1\0"s, s_RefusedNumberChangesNothing},
     {"TwoBlanks", "+1  617", s_RefusedNumberChangesNothing},
     {"BlankAtTheEnd", "+1 ", s_RefusedNumberChangesNothing},
     {"HyphenAtTheEnd", "+1-", s_RefusedNumberChangesNothing},
     {"HyphenInFrontOfTheBracket", "x <+1->", refused(s_BadNumber, "[+0][Old]", "p=Old <+0>\r\n")},
     {"UnclosedBracket", "Help <+1 617", refused(s_BadNumber, "[+0][Old]", "p=Old <+0>\r\n")},
     {"OpenBracketAtTheEnd", "<", refused(s_BadNumber, "[+0][Old]", "p=Old <+0>\r\n")},
     {"EmptyBrackets", "Help <>", refused(s_NoNumber, "[+0][Help]*", "p=Help <+0>\r\n")},
     {"TwoBlanksInFrontOfTheParenthesis", "+1  (x)", refused(s_BadNumber, "[+0][Old]", "p=+0 (Old)\r\n")},
     {"ParenthesisInTheFirstPlace", "(Help)", refused(s_BadNumber, "[+0][Old]", "p=+0 (Old)\r\n")},
     {"ParenthesisInTheSecondPlace", " (Help)", refused(s_NoNumber, "[+0][Help]*", "p=+0 (Help)\r\n")},
     {"EmptyLine", "\r\nc=", refused(s_NoNumber, "[+0][Old]", "p=+0\r\n"), 2}},
    {{"ConstructorTakesWhatTheReaderRefuses", [](auto& h) { h = new Field("call me", "Help"); },
      gives("[call me][Help]", "p=call me\r\n")},
     {"ConstructorReadsItsText", [](auto&) { Field(""); }, refused(s_NoNumber, "[+0][Old]", "p=+0\r\n")},
     {"SettersLeaveTheShape", [](auto& h) { h->setPhoneNumber("x"), h->setComment("b"); }, gives("[x][b]*", "p=x\r\n")},
     {"SettersInALineThatHasAComment",
      [](auto& h) { h = new Field("+1 (x)"), h->setPhoneNumber(nullptr), h->setComment("b"); },
      gives("[][b]*", s_Incomplete)}});

} // namespace
