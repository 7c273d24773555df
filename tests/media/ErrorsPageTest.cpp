// Runs the examples of docs/errors.md, and compares its headings with the messages in the sources.

#include "LmLibs/LmUtil/LmCharacters.h"
#include "LmSdpObject.h"
#include "support/Matchers.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <set>

namespace
{

using Path = std::filesystem::path;
using testing::IsEmpty;

const Path s_Root = Path(LMSDP_TEST_CORPUS) / ".." / "..";

std::vector<std::string> linesOf(const Path& path)
{
    std::ifstream file(path);
    EXPECT_TRUE(file) << path;
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
    {
        lines.push_back(line);
    }
    return lines;
}

/// One message with one class. A guard, to which no call leads, has no example.
struct Example
{
    std::string heading;
    std::string thrown;
    std::string language;
    std::vector<std::string> lines;
};

/// What stands behind `before`, up to a closing backtick where there is one; nothing for another line.
std::optional<std::string> behind(const std::string& line, const std::string& before)
{
    if (line.compare(0, before.size(), before) != 0)
    {
        return std::nullopt;
    }
    return line.substr(before.size(), line.rfind('`') - before.size());
}

std::vector<Example> readPage()
{
    std::vector<Example> examples;
    std::string heading;
    bool inside = false;
    for (const std::string& line : linesOf(s_Root / "docs" / "errors.md"))
    {
        if (line.compare(0, 3, "```") == 0)
        {
            inside = !inside;
            if (inside && !examples.empty())
            {
                examples.back().language = line.substr(3);
            }
        }
        else if (inside && !examples.empty())
        {
            examples.back().lines.push_back(line);
        }
        else if (const auto words = behind(line, "### `"))
        {
            heading = *words;
        }
        else if (const auto thrown = behind(line, "Class: `"))
        {
            examples.push_back({heading, *thrown, "", {}});
        }
    }
    return examples;
}

/// The words behind a heading, where a line feed at the end is shown by its escape.
std::string wordsOf(const std::string& heading)
{
    const std::size_t escape = heading.find("\\n");
    return escape == std::string::npos ? heading : heading.substr(0, escape) + "\n";
}

/// Without white space, so that it does not matter how code is set.
std::string squeezed(std::string code)
{
    code.erase(std::remove_if(code.begin(), code.end(), lmIsSpace), code.end());
    return code;
}

std::string joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
    {
        text += line + "\n";
    }
    return text;
}

// The code of the page once more, so that it is compiled: what it says and what it does.
#define CALL(...)                                                                                                      \
    {                                                                                                                  \
        squeezed(#__VA_ARGS__ ";"), [] { __VA_ARGS__; }                                                                \
    }

const std::map<std::string, std::function<void()>> s_Calls = {
    CALL(LmByteArrayInputStream in(LmByteArray::sCreate("a=sendrecv"), 0, 0); LmSdpDescription::sConstructFrom(in)),
    CALL(LmSdpMsg msg("v=0"); msg.addField(new LmSdpMediaField("audio 49170 RTP/AVP 0"))),
    CALL(LmByteArrayInputStream in(LmByteArray::sCreate("v=0"), 0, 0); LmSdpMsg msg("v=0");
         msg.addDescription(LmSdpDescription::sConstructFrom(in))),
    CALL(LmSdpMsg msg("v=0"); const LmHandle<LmSdpField> hField = new LmSdpAttributeField("sendrecv");
         msg.addField(hField); msg.addField(hField)),
    CALL(LmSdpMsg msg("v=0\r\nt=0 0"); msg.addDescription(msg.getTimeDescription())),
    CALL(LmStringOutputStream out; LmSdpMsg().serialize(out)),
    CALL(LmSdpMsg().addField(new LmSdpUriField("http://example.com/"))),
    CALL(LmSdpMsg().addDescription(new LmSdpTimeDescription(new LmSdpTimeField("0", "0"), nullptr))),
    CALL(LmSdpSessionNameField("")),
    CALL(LmSdpSessionNameField name("Call"); name.setSessionName(""); LmStringOutputStream out; name.serialize(out)),
    CALL(LmSdpInformationField(nullptr)),
    CALL(LmSdpInformationField information("A talk"); information.setInformation(""); LmStringOutputStream out;
         information.serialize(out)),
    CALL(LmSdpUriField("")),
    CALL(LmSdpUriField uri("http://example.com/"); uri.setUri(nullptr); LmStringOutputStream out; uri.serialize(out)),
    CALL(LmSdpEmailField("", "Help Desk")),
    CALL(LmStringOutputStream out; LmSdpEmailField(nullptr).serialize(out)),
    CALL(LmSdpPhoneField(nullptr, "Help Desk")),
    CALL(LmStringOutputStream out; LmSdpPhoneField(nullptr).serialize(out)),
    CALL(LmSdpConnectionField("", "IP4", "10.47.16.5")),
    CALL(LmSdpConnectionField("IN", nullptr, "10.47.16.5")),
    CALL(LmSdpConnectionField("IN", "IP4", "")),
    CALL(LmStringOutputStream out; LmSdpConnectionField(nullptr).serialize(out)),
    CALL(LmSdpBandwidthField("", 128)),
    CALL(LmStringOutputStream out; LmSdpBandwidthField(nullptr).serialize(out)),
    CALL(LmSdpTimeField("", "0")),
    CALL(LmSdpTimeField("0", "")),
    CALL(LmStringOutputStream out; LmSdpTimeZoneField(nullptr).serialize(out)),
    CALL(LmStringOutputStream out; LmSdpKeyField(nullptr).serialize(out)),
    CALL(LmStringOutputStream out; LmSdpMediaField(nullptr).serialize(out)),
    CALL(LmSdpAttributeField("", "20")),
    CALL(LmMediaSession session(nullptr)),
    CALL(char body[] = "v=0\r\ns=Call\r\nt=0 0\r\nm=audio 49170 RTP/AVP 0\r\nc=IN IP4 10.47.16.5\r\n";
         LmMediaSession::sCreateSession(body, sizeof body - 1)),
};

#undef CALL

void provoke(const Example& example)
{
    const std::string text = joined(example.lines);
    if (example.language == "cpp")
    {
        const auto call = s_Calls.find(squeezed(text));
        ASSERT_NE(call, s_Calls.end()) << "add it to the calls of this test: " << text;
        call->second();
    }
    else if (example.lines.size() > 1)
    {
        written(LmSdpMsg(text.c_str()));
    }
    else
    {
        const LmHandle<LmByteArray> hBytes = LmByteArray::sCreate(text.c_str());
        LmByteArrayInputStream in(hBytes, 0, 0);
        written(LmSdpField::sConstructFrom(in));
    }
}

TEST(ErrorsPage, ExamplesProvokeTheirMessages)
{
    const std::set<std::string> guards = {"Unknown error in LmSdpEmailField::serialize()",
                                          "Unknown error in LmSdpPhoneField::serialize()",
                                          "No Media Streams to create Media Descriptions from"};
    for (const Example& example : readPage())
    {
        EXPECT_EQ(example.lines.empty(), guards.count(example.heading) == 1) << example.heading;
        if (!example.lines.empty())
        {
            const Failure failure = failureOf([&example] { provoke(example); });
            EXPECT_EQ(failure, (Failure{example.thrown, wordsOf(example.heading)}));
        }
    }
}

/// The texts between quotation marks on a line of source.
std::vector<std::string> literalsOf(const std::string& line)
{
    std::vector<std::string> literals;
    for (std::size_t open = line.find('"'); open != std::string::npos; open = line.find('"', open))
    {
        std::size_t close = open + 1;
        while (close < line.size() && line[close] != '"')
        {
            close += line[close] == '\\' ? 2 : 1;
        }
        literals.push_back(line.substr(open + 1, close - (open + 1)));
        open = std::min(close + 1, line.size());
    }
    return literals;
}

/// Scope names, log lines, assertions and pieces of a body are no messages.
bool mayHoldMessages(const std::string& line)
{
    const auto holds = [&line](const char* part) { return line.find(part) != std::string::npos; };
    constexpr std::array others = {"// ", "TraceScope", "<<", "append(", "scope =", "Assertion("};
    return std::none_of(others.begin(), others.end(), holds);
}

/// Every longer text with a blank in it.
std::set<std::string> messagesInSources()
{
    constexpr std::size_t shortest = 16;
    std::set<std::string> messages;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(s_Root / "src"))
    {
        const bool isSource = entry.path().extension() == ".cpp";
        for (const std::string& line : isSource ? linesOf(entry.path()) : std::vector<std::string>())
        {
            for (const std::string& text : mayHoldMessages(line) ? literalsOf(line) : std::vector<std::string>())
            {
                if (text.size() >= shortest && text.find(' ') != std::string::npos)
                {
                    messages.insert(text);
                }
            }
        }
    }
    return messages;
}

/// What is in one set and not in the other.
std::vector<std::string> lacking(const std::set<std::string>& from, const std::set<std::string>& other)
{
    std::vector<std::string> missing;
    std::set_difference(from.begin(), from.end(), other.begin(), other.end(), std::back_inserter(missing));
    return missing;
}

TEST(ErrorsPage, HasASectionForEachMessageOfTheSources)
{
    std::set<std::string> headings;
    for (const Example& example : readPage())
    {
        headings.insert(example.heading);
    }
    const std::set<std::string> messages = messagesInSources();
    EXPECT_GT(messages.size(), 70U) << "the sources are not where they are looked for";
    EXPECT_THAT(lacking(messages, headings), IsEmpty()) << "without a section";
    EXPECT_THAT(lacking(headings, messages), IsEmpty()) << "in no source";
}

} // namespace
