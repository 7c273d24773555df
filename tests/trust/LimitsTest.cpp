// Bodies far beyond anything that is sent: on a small stack, and at a cost that grows with the text and no faster.

#include "LmSdpObject.h"
#include "support/Matchers.h"

#include <gtest/gtest.h>
#include <pthread.h>
#include <time.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <string>

namespace
{

/// Frames are several times as large under a sanitizer.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr std::size_t s_StackBytes = 2048 * 1024;
#else
constexpr std::size_t s_StackBytes = 512 * 1024;
#endif

const std::string s_Head = "v=0\r\no=- 1 1 IN IP4 192.0.2.1\r\ns=-\r\nt=0 0\r\n";

std::string repeated(const std::string& piece, std::size_t count)
{
    std::string text;
    text.reserve(piece.size() * count);
    for (; count != 0; --count)
    {
        text += piece;
    }
    return text;
}

/// The processor time of this thread in seconds.
double now()
{
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

void onSmallStack(const std::function<void()>& action)
{
    pthread_attr_t attributes;
    ::pthread_attr_init(&attributes);
    ::pthread_attr_setstacksize(&attributes, s_StackBytes);
    pthread_t thread{};
    const auto run = [](void* argument) -> void* {
        (*static_cast<const std::function<void()>*>(argument))();
        return nullptr;
    };
    ASSERT_EQ(::pthread_create(&thread, &attributes, run, const_cast<std::function<void()>*>(&action)), 0);
    ::pthread_join(thread, nullptr);
    ::pthread_attr_destroy(&attributes);
}

struct Limit
{
    const char* name;
    std::size_t count;
    std::function<void(std::size_t count)> use;

    friend void PrintTo(const Limit& limit, std::ostream* out) { *out << limit.name; }
};

void readAndWrite(const std::string& body)
{
    LmByteArrayInputStream in(LmByteArray::sCreate(static_cast<unsigned int>(body.size()), body.data()), 0, 0);
    LmSdpMsg message;
    message.parse(in);
    EXPECT_EQ(in.available(), 0U);
    EXPECT_EQ(written(message).size(), body.size());
}

void chainDescriptions(std::size_t count)
{
    LmSdpMsg message((s_Head + "m=audio 1 RTP/AVP 0\r\n").c_str());
    for (; count != 0; --count)
    {
        message.addDescription(new LmSdpMediaDescription(new LmSdpMediaField("audio 1 RTP/AVP 0"), nullptr));
    }
}

void addLines(std::size_t count)
{
    LmSdpMsg message(s_Head.c_str());
    for (; count != 0; --count)
    {
        message.addField(new LmSdpUnusedField("a", "x"));
    }
}

/// The lines in front go with the message, those behind with the last handle.
void holdAPartOfAChain(std::size_t count)
{
    LmHandle<LmSdpField> hMiddle;
    {
        LmSdpMsg message((s_Head + repeated("a=x\r\n", count)).c_str());
        hMiddle = message.getField("a");
        for (std::size_t step = 0; step < count / 2; ++step)
        {
            hMiddle = hMiddle->getNext();
        }
    }
    EXPECT_FALSE(hMiddle->getNext().isNull());
}

void takeWord(std::size_t count)
{
    LmByteArrayInputStream in(LmByteArray::sCreate(std::string(count, 'w').c_str()), 0, 0);
    LmString word;
    in >> word;
    EXPECT_EQ(word.length(), count);
}

void listFormats(std::size_t count)
{
    LmSdpMediaField media("audio 1 RTP/AVP 0");
    media.setMediaFormats(repeated("200 ", count).c_str());
    EXPECT_EQ(media.getMediaFormats().length(), 4 * count);
}

void nameCodecs(std::size_t count)
{
    std::string body = s_Head + "m=audio 1 RTP/AVP 0\r\n";
    for (std::size_t codec = 0; codec < count; ++codec)
    {
        body += "a=rtpmap:" + std::to_string(codec) + " X/8000\r\n";
    }
    const LmHandle<LmMediaSession> hSession =
        LmMediaSession::sCreateSession(body.data(), static_cast<unsigned int>(body.size()));
    EXPECT_EQ(hSession->getStreams().front()->getCodecs().size(), count);
}

const Limit s_Limits[] = {
    {"Attributes", 100000, [](std::size_t count) { readAndWrite(s_Head + repeated("a=x:y\r\n", count)); }},
    {"AttributesThatEndInCrAlone", 100000,
     [](std::size_t count) { LmSdpMsg((s_Head + repeated("a=x:y\r", count)).c_str()); }},
    {"MediaSections", 4000,
     [](std::size_t count) { readAndWrite(s_Head + repeated("m=audio 1 RTP/AVP 0\r\na=x\r\n", count)); }},
    {"TimeSections", 4000, [](std::size_t count) { readAndWrite(s_Head + repeated("t=0 0\r\n", count)); }},
    {"Repeats", 100000, [](std::size_t count) { readAndWrite(s_Head + repeated("r=7d 1h 0\r\n", count)); }},
    {"BlankLines", 1000000, [](std::size_t count) { LmSdpMsg((s_Head + repeated("\r\n", count)).c_str()); }},
    {"OneLongLine", 5000000, [](std::size_t count) { readAndWrite(s_Head + "a=" + std::string(count, 'x') + "\r\n"); }},
    {"OneLongToken", 1000000,
     [](std::size_t count) {
         EXPECT_FALSE(failureOf([&] { LmSdpMsg((s_Head + std::string(count, 'a')).c_str()); }).thrown.empty());
     }},
    {"CryptoParameters", 100000,
     [](std::size_t count) { LmSdpCryptoAttribute(("1 X inline:K" + repeated(" A=B", count)).c_str()); }},
    {"CryptoStrayCharacters", 500000,
     [](std::size_t count) { LmSdpCryptoAttribute(("1 X inline:K " + std::string(count, '=')).c_str()); }},
    {"CryptoKeys", 20000,
     [](std::size_t count) { LmSdpCryptoAttribute(("1 X inline:K" + repeated(";inline:K", count)).c_str()); }},
    {"ChainedDescriptions", 10000, &chainDescriptions},
    {"AddedLines", 32000, &addLines},
    {"PartOfAChain", 100000, &holdAPartOfAChain},
    {"OneWord", 1000000, &takeWord},
    {"Formats", 100000, &listFormats},
    {"CodecNames", 20000, &nameCodecs}};

class Limits : public testing::TestWithParam<Limit>
{
};

} // namespace

/// Four times the input may cost six times as much, which leaves room for caches and noise; a cost that grows with the
/// square would be sixteen times as high. The best of several tries counts.
TEST_P(Limits, CostGrowsWithTheInputOnASmallStack)
{
    const auto cost = [](std::size_t count) {
        const double start = now();
        GetParam().use(count);
        return now() - start;
    };
    double ratio = std::numeric_limits<double>::max();
    onSmallStack([&] {
        for (int attempt = 0; attempt < 5 && ratio > 6; ++attempt)
        {
            const double quarter = cost(GetParam().count / 4);
            ratio = std::min(ratio, cost(GetParam().count) / std::max(quarter, 1e-4));
        }
    });
    EXPECT_LE(ratio, 6);
}

INSTANTIATE_TEST_SUITE_P(Trust, Limits, testing::ValuesIn(s_Limits), RowName());
