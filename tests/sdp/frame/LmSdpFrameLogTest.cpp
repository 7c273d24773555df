#include "sdp/fields/LmSdpEmailField.h"
#include "sdp/fields/LmSdpPhoneField.h"
#include "sdp/frame/LmSdpMsg.h"
#include "support/LogCapture.h"
#include "support/Matchers.h"

#include <algorithm>
#include <initializer_list>

namespace
{

using testing::ElementsAre;

constexpr const char* s_Body = "v=0\r\nt=0 0\r\nm=audio 1 RTP/AVP 0\r\n";

/// Each scope is entered, and left as often, by lines of its category.
void expectScopes(const LogCapture& capture, std::initializer_list<std::pair<const char*, const char*>> scopes)
{
    for (const auto& [category, scope] : scopes)
    {
        const auto countOf = [&, logger = std::string("harnwick.lm.") + category](const std::string& message) {
            return std::count_if(capture.lines().begin(), capture.lines().end(),
                                 [&](const LogLine& line) { return line.logger == logger && line.message == message; });
        };
        EXPECT_GT(countOf(std::string("Entering ") + scope), 0) << scope;
        EXPECT_EQ(countOf(std::string("Leaving ") + scope), countOf(std::string("Entering ") + scope)) << scope;
    }
}

TEST(FrameLog, TellsEachScope)
{
    const LogCapture capture("harnwick.lm", 0);
    LmSdpMsg message(s_Body);
    message.getTimeDescription();
    message.addDescription(new LmSdpMediaDescription(nullptr, nullptr));
    written(message);
    LmSdpMsg withEmail(nullptr, nullptr, LmHandle<LmSdpEmailField>(), nullptr, nullptr, nullptr);
    LmSdpMsg withPhone(nullptr, nullptr, LmHandle<LmSdpPhoneField>(), nullptr, nullptr, nullptr);
    expectScopes(capture, {{"LmSdpMsg", "LmSdpMsg::LmSdpMsg(const char *)"},
                           {"LmSdpMsg", "LmSdpMsg::parse"},
                           {"LmSdpMsg", "LmSdpMsg ctor 1"},
                           {"LmSdpMsg", "LmSdpMsg ctor 2"},
                           {"LmSdpSessionDescription", "LmSdpSessionDescription::getDescription"},
                           {"LmSdpSessionDescription", "LmSdpSessionDescription::addDescription"},
                           {"LmSdpSessionDescription", "LmSdpSessionDescription::serialize"},
                           {"LmSdpSessionDescription", "LmSdpSessionDescription::serializeDescription"},
                           {"LmSdpDescription", "LmSdpDescription::serialize"},
                           {"LmSdpDescription", "LmSdpDescription::addNext"},
                           {"LmSdpDescription", "LmSdpDescription::sConstructFrom"},
                           {"LmSdpDescription", "LmSdpDescription::parse"},
                           {"LmSdpField", "LmSdpField::sConstructFrom"}});
}

TEST(FrameLog, TellsScopesThatAnExceptionLeaves)
{
    const LogCapture capture("harnwick.lm", 0);
    EXPECT_FALSE(failureOf([] { LmSdpMsg("v=0\r\na=\r\n"); }).thrown.empty());
    expectScopes(capture, {{"LmSdpMsg", "LmSdpMsg::parse"},
                           {"LmSdpDescription", "LmSdpDescription::parse"},
                           {"LmSdpField", "LmSdpField::sConstructFrom"}});
}

TEST(FrameLog, TellsTheTokenOfEachLine)
{
    const LogCapture capture("harnwick.lm.LmSdpField", 10000);
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
    const LogCapture capture("harnwick.lm.LmSdpSessionDescription", 10000);
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

} // namespace
