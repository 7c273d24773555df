#include "sdp/fields/LmSdpKeyField.h"

#include "sdp/fields/LineTable.h"

namespace
{

using Field = LmSdpKeyField;

LmHandle<Field> before()
{
    return new Field("clear:old");
}

std::string describe(Field& field)
{
    return stateOf(field, {field.getMethod(), field.getKey()});
}

const Failure s_NoLine = exception("LmSdpKeyField::parse() Incomplete Key Field");
const Failure s_Invalid = exception("LmSdpKeyField::parse() Invalid Key Field");
const std::string s_Incomplete = "!LmSdpKeyField::serialize() Incomplete Key Field";

const Table<Field> s_Table(
    "KeyField", before, describe,
    {{"ClearKeyIsAllTheRest", "clear:a:b c \r\na=", gives("[clear][a:b c ]", "k=clear:a:b c \r\n"), 2},
     {"Base64IsNotDecoded", "base64:\xFF=", gives("[base64][\xFF=]", "k=base64:\xFF=\r\n")},
     {"EmptyKeyComesBackWithoutItsColon", "base64:\r\n", gives("[base64][]", "k=base64\r\n")},
     {"PromptLeavesTheFormerKey", "prompt\n", gives("[prompt][old]", "k=prompt:old\r\n")},
     {"UrlIsTheMethodAndLeavesTheFormerKey", "http://h:1/x", gives("[http://h:1/x][old]", "k=http://h:1/x:old\r\n")},
     {"EmptyLine", "\r\na=", refused(s_NoLine, "[clear][old]", "k=clear:old\r\n"), 4},
     {"OtherWordWithoutColon", "promptly\r\na=", refused(s_Invalid, "[clear][old]", "k=clear:old\r\n"), 2},
     {"PromptWithColon", "prompt:x", refused(s_Invalid, "[prompt][old]", "k=prompt:old\r\n")},
     {"UriMethodOfTheRfc", "uri:http://h", refused(s_Invalid, "[uri][old]", "k=uri:old\r\n")},
     {"CaseCounts", "Clear:x", refused(s_Invalid, "[Clear][old]", "k=Clear:old\r\n")},
     {"CaseCountsInUrls", "HTTP://h", refused(s_Invalid, "[HTTP][old]", "k=HTTP:old\r\n")},
     {"UrlCutShort", "http:/", refused(s_Invalid, "[http][old]", "k=http:old\r\n")},
     {"NothingInFrontOfTheColonIsTheWholeLine", ":x", refused(s_Invalid, "[:x][old]", "k=:x:old\r\n")}},
    {{"PromptInANewField", [](auto& h) { h = new Field("prompt"); }, gives("[prompt][]", "k=prompt\r\n")},
     {"ConstructorReadsItsText", [](auto&) { Field(""); }, refused(s_NoLine, "[clear][old]", "k=clear:old\r\n")},
     {"SettersTakeAnything", [](auto& h) { h->setMethod("x y"), h->setKey(nullptr); }, gives("[x y][]*", "k=x y\r\n")},
     {"KeyWithoutMethod", [](auto& h) { h->setMethod(""), h->setKey("new"); }, gives("[][new]*", s_Incomplete)}});

} // namespace
