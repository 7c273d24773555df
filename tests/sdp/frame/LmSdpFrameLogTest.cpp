#include "sdp/fields/LmSdpConnectionField.h"
#include "sdp/fields/LmSdpEmailField.h"
#include "sdp/fields/LmSdpOriginField.h"
#include "sdp/fields/LmSdpPhoneField.h"
#include "sdp/fields/LmSdpSessionNameField.h"
#include "sdp/frame/LmSdpMsg.h"
#include "sdp/frame/LmSdpParseError.h"
#include "support/LogCapture.h"
#include "support/Matchers.h"

#include <algorithm>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* s_Body = "v=0\r\nt=0 0\r\nm=audio 1 RTP/AVP 0\r\n";

/// What runs in which scope, seen from one category of the frame.
struct ScopeRow
{
    const char* name;
    const char* category;
    const char* scope;
    void (*run)(LmSdpMsg& message);
};

class FrameScope : public testing::TestWithParam<ScopeRow>
{
};

TEST_P(FrameScope, IsEnteredAndLeft)
{
    const ScopeRow& row = GetParam();
    LmSdpMsg message(s_Body);
    const LogCapture capture(row.category, 0);
    row.run(message);
    const std::vector<std::string> messages = capture.messages();
    const auto entered = std::count(messages.begin(), messages.end(), std::string("Entering ") + row.scope);
    EXPECT_GT(entered, 0);
    EXPECT_EQ(std::count(messages.begin(), messages.end(), std::string("Leaving ") + row.scope), entered);
    for (const LogLine& line : capture.lines())
    {
        EXPECT_EQ(line.logger, row.category);
    }
}

void readAnother(LmSdpMsg&)
{
    LmSdpMsg other(s_Body);
}

void write(LmSdpMsg& message)
{
    written(message);
}

void addMedia(LmSdpMsg& message)
{
    message.addDescription(new LmSdpMediaDescription(nullptr, nullptr));
}

void refuse(LmSdpMsg&)
{
    EXPECT_THAT([] { LmSdpMsg("v=0\r\na=\r\n"); },
                ThrowsException("LmSdpAttributeField::parse Incomplete Attribute Field"));
}

template <typename Contact>
void putTogether(LmSdpMsg&)
{
    LmSdpMsg other(nullptr, nullptr, LmHandle<Contact>(), nullptr, nullptr, nullptr);
}

constexpr const char* s_Msg = "harnwick.lm.LmSdpMsg";
constexpr const char* s_Session = "harnwick.lm.LmSdpSessionDescription";
constexpr const char* s_Description = "harnwick.lm.LmSdpDescription";
constexpr const char* s_Field = "harnwick.lm.LmSdpField";

const ScopeRow s_Scopes[] = {
    {"MessageFromText", s_Msg, "LmSdpMsg::LmSdpMsg(const char *)", readAnother},
    {"MessageParse", s_Msg, "LmSdpMsg::parse", readAnother},
    {"MessageWithEmail", s_Msg, "LmSdpMsg ctor 1", putTogether<LmSdpEmailField>},
    {"MessageWithPhone", s_Msg, "LmSdpMsg ctor 2", putTogether<LmSdpPhoneField>},
    {"SessionGetDescription", s_Session, "LmSdpSessionDescription::getDescription",
     [](LmSdpMsg& message) { message.getTimeDescription(); }},
    {"SessionAddDescription", s_Session, "LmSdpSessionDescription::addDescription", addMedia},
    {"SessionSerialize", s_Session, "LmSdpSessionDescription::serialize", write},
    {"SessionSerializeDescription", s_Session, "LmSdpSessionDescription::serializeDescription", write},
    {"DescriptionSerialize", s_Description, "LmSdpDescription::serialize", write},
    {"DescriptionAddNext", s_Description, "LmSdpDescription::addNext", addMedia},
    {"DescriptionConstruct", s_Description, "LmSdpDescription::sConstructFrom", readAnother},
    {"DescriptionParse", s_Description, "LmSdpDescription::parse", readAnother},
    {"FieldConstruct", s_Field, "LmSdpField::sConstructFrom", readAnother},
    {"MessageLeftByAnException", s_Msg, "LmSdpMsg::parse", refuse},
    {"DescriptionLeftByAnException", s_Description, "LmSdpDescription::parse", refuse},
    {"FieldLeftByAnException", s_Field, "LmSdpField::sConstructFrom", refuse},
};
INSTANTIATE_TEST_SUITE_P(, FrameScope, testing::ValuesIn(s_Scopes), RowName());

TEST(FrameLog, TellsTheTokenOfEachLine)
{
    const LogCapture capture(s_Field, 10000);
    LmSdpMsg message("v=0\r\nos=1\r\nt=0 0\r\n");
    EXPECT_THAT(capture.messages(), ElementsAre("tokenBuf=v|", "tokenBuf=os|", "tokenBuf=t|"));
    for (const LogLine& line : capture.lines())
    {
        EXPECT_EQ(line.level, 10000);
        EXPECT_EQ(line.source, "LmSdpField");
        EXPECT_GT(line.line, 0);
    }
}

TEST(FrameLog, TellsTheDescriptionsThatAreWritten)
{
    LmSdpMsg message(s_Body);
    const LogCapture capture(s_Session, 10000);
    written(message);
    ASSERT_EQ(capture.lines().size(), 2u);
    for (const LogLine& line : capture.lines())
    {
        EXPECT_THAT(line.message,
                    testing::StartsWith("LmSdpSessionDescription::serializeDescription : hDescription: 0x"));
        EXPECT_EQ(line.level, 10000);
        EXPECT_EQ(line.source, "LmSdpSessionDescription");
    }
}

TEST(FrameLog, LetterWithoutAClassLeavesNoMark)
{
    const LogCapture capture("harnwick.lm", 10000);
    readLine("y=1");
    EXPECT_THAT(capture.messages(), ElementsAre("tokenBuf=y|", "tokenBuf=y|", "tokenBuf=y|"));
}

TEST(FrameLog, IsSilentAboveItsLevels)
{
    const LogCapture capture("harnwick.lm", 20000);
    LmSdpMsg message(s_Body);
    written(message);
    EXPECT_THAT(capture.messages(), IsEmpty());
}

TEST(FrameLog, WritesNothingForAHostThatHasNotSetItUp)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    LmSdpMsg message(s_Body);
    written(message);
    EXPECT_EQ(testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr(), "");
}

} // namespace
