// The four lines of one text value: v=, s=, i= and u=.

#include "sdp/fields/LineTable.h"
#include "sdp/fields/LmSdpInformationField.h"
#include "sdp/fields/LmSdpProtocolVersionField.h"
#include "sdp/fields/LmSdpSessionNameField.h"
#include "sdp/fields/LmSdpUriField.h"

namespace
{

using namespace std::string_literals;
using Version = LmSdpProtocolVersionField;
using Name = LmSdpSessionNameField;
using Information = LmSdpInformationField;
using Uri = LmSdpUriField;

const Failure s_NoDigit =
    parseError("LmSdpProtocolVersionField::parse()Invalid character in Sdp Protocol Version Field");
const std::string s_NoVersion = "!LmSdpProtocolVersionField::serialize() Incomplete Protocol Version Field";

const Table<Version> s_Versions(
    "ProtocolVersionField", []() -> LmHandle<Version> { return new Version("7"); },
    [](Version& field) { return stateOf(field, {field.getProtocolVersion()}); },
    {{"NeedNotBeZero", "007\r\no=", gives("[007]", "v=007\r\n"), 2},
     {"LoneCrEndsTheLine", "1\r2", gives("[1]", "v=1\r\n"), 1},
     {"EmptyLineIsFoundAtWriting", "\r\no=", gives("[]", s_NoVersion), 4},
     {"NothingAtAll", "", gives("[]", s_NoVersion)},
     {"BlankBehind", "0 \no=", refused(s_NoDigit, "[7]", "v=7\r\n"), 2},
     {"Sign", "-1", refused(s_NoDigit, "[7]", "v=7\r\n")},
     {"ByteAbove127", "\xB1", refused(s_NoDigit, "[7]", "v=7\r\n")},
     {"Nul", "1\0"s, refused(s_NoDigit, "[7]", "v=7\r\n")}},
    {{"ConstructorWithoutText", [](auto& h) { h = new Version(nullptr); }, gives("[]", s_NoVersion)},
     {"ConstructorReadsItsText", [](auto&) { Version("1.0"); }, refused(s_NoDigit, "[7]", "v=7\r\n")},
     {"SetterTakesAnything", [](auto& h) { h->setProtocolVersion("x"); }, gives("[x]*", "v=x\r\n")},
     {"SetterTakesNoText", [](auto& h) { h->setProtocolVersion(nullptr); }, gives("[]*", s_NoVersion)}});

const Failure s_NoNameGiven = parseError("Attempting to create LmSdpSessionNameField with blank string");

const Table<Name> s_Names(
    "SessionNameField", []() -> LmHandle<Name> { return new Name("old"); },
    [](Name& field) { return stateOf(field, {field.getSessionName()}); },
    {{"BlanksStay", "  a  b  \r\nt=", gives("[  a  b  ]", "s=  a  b  \r\n"), 2},
     {"OneBlankIsAName", " \n", gives("[ ]", "s= \r\n")},
     {"EmptyLineBecomesAWord", "\r\nt=", gives("[empty]", "s=empty\r\n"), 4},
     {"AnyByte", "\t\xC3\xA9\x80\xFF\v", gives("[\t\xC3\xA9\x80\xFF\v]", "s=\t\xC3\xA9\x80\xFF\v\r\n")},
     {"NulIsWritten", "a\0b"s, gives("[a]", "s=a\0b\r\n"s)}},
    {{"ConstructorTakesALineEnd", [](auto& h) { h = new Name("a\r\nb"); }, gives("[a\r\nb]", "s=a\r\nb\r\n")},
     {"ConstructorWithoutText", [](auto&) { Name(nullptr); }, refused(s_NoNameGiven, "[old]", "s=old\r\n")},
     {"SetterTakesEmptyText", [](auto& h) { h->setSessionName(""); },
      gives("[]*", "!LmSdpSessionNameField::serialize() Incomplete Session Name Field")}});

const Failure s_NoInformationGiven = parseError("Attempting to create LmSdpInformationField with blank string");

const Table<Information> s_Informations(
    "InformationField", []() -> LmHandle<Information> { return new Information("old"); },
    [](Information& field) { return stateOf(field, {field.getInformation()}); },
    {{"AnyText", " a=b \r\nc=", gives("[ a=b ]", "i= a=b \r\n"), 2},
     {"EmptyLine",
      "\r\nc=", refused(exception("LmSdpInformationField::parse() Empty Information Field"), "[old]", "i=old\r\n"), 4}},
    {{"ConstructorDoesNotParse", [](auto& h) { h = new Information("\r\n"); }, gives("[\r\n]", "i=\r\n\r\n")},
     {"ConstructorWithoutText", [](auto&) { Information(nullptr); },
      refused(s_NoInformationGiven, "[old]", "i=old\r\n")},
     {"SetterTakesEmptyText", [](auto& h) { h->setInformation(""); },
      gives("[]*", "!LmSdpInformationField::serialize() Incomplete Information Field")}});

const Failure s_NoUriGiven = parseError("Attempting to create LmSdpUriField with empty string");

const Table<Uri> s_Uris(
    "UriField", []() -> LmHandle<Uri> { return new Uri("old"); },
    [](Uri& field) { return stateOf(field, {field.getUri()}); },
    {{"NeedNotBeAUri", "no uri \nc=", gives("[no uri ]", "u=no uri \r\n"), 2},
     {"EmptyLineIsRefusedInTheWordsOfWriting",
      "\nc=", refused(exception("LmSdpUriField::serialize() Incomplete URI Field"), "[old]", "u=old\r\n"), 3}},
    {{"ConstructorWithoutText", [](auto&) { Uri(nullptr); }, refused(s_NoUriGiven, "[old]", "u=old\r\n")},
     {"SetterTakesEmptyText", [](auto& h) { h->setUri(""); },
      gives("[]*", "!LmSdpUriField::serialize() Incomplete URI Field")}});

} // namespace
