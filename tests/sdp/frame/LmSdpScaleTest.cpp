#include "LmLibs/LmUtil/LmByteArrayInputStream.h"
#include "sdp/frame/LmSdpMsg.h"
#include "sdp/frame/LmSdpUnusedField.h"
#include "support/Matchers.h"

#include <pthread.h>

#include <algorithm>
#include <ctime>
#include <functional>
#include <limits>

namespace
{

/// Runs the work on a thread with a stack that a recursion over a long chain would overrun.
void runOnASmallStack(const std::function<void()>& work)
{
    constexpr std::size_t stackBytes = 512 * 1024;
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, stackBytes), 0);
    const auto enter = [](void* argument) -> void* {
        (*static_cast<const std::function<void()>*>(argument))();
        return nullptr;
    };
    pthread_t thread;
    ASSERT_EQ(pthread_create(&thread, &attributes, enter, const_cast<std::function<void()>*>(&work)), 0);
    EXPECT_EQ(pthread_join(thread, nullptr), 0);
    pthread_attr_destroy(&attributes);
}

struct ScaleRow
{
    const char* name;
    const char* head;
    const char* repeated;
    unsigned int count;
};

class LongBody : public testing::TestWithParam<ScaleRow>
{
};

TEST_P(LongBody, IsReadWrittenAndReleasedWithinASmallStack)
{
    const ScaleRow& row = GetParam();
    std::string body = row.head;
    for (unsigned int round = 0; round < row.count; ++round)
    {
        body += row.repeated;
    }
    runOnASmallStack([&body] {
        LmByteArrayInputStream in(LmByteArray::sCreate(body.c_str()), 0, 0);
        LmSdpMsg message;
        message.parse(in);
        EXPECT_EQ(in.available(), 0u);
        EXPECT_TRUE(written(message) == body);
        LmByteArrayInputStream second(LmByteArray::sCreate("v=0\r\n"), 0, 0);
        message.parse(second);
    });
}

INSTANTIATE_TEST_SUITE_P(
    , LongBody,
    testing::Values(ScaleRow{"SessionLines", "v=0\r\ns=x\r\n", "a=x\r\n", 100000},
                    ScaleRow{"TimeDescriptions", "v=0\r\ns=x\r\n", "t=0 0\r\n", 10000},
                    ScaleRow{"Repeats", "v=0\r\ns=x\r\nt=0 0\r\n", "r=7d 1h 0\r\n", 100000},
                    ScaleRow{"MediaSections", "v=0\r\ns=x\r\n", "m=audio 1 RTP/AVP 0\r\na=x\r\na=y\r\n", 10000},
                    ScaleRow{"MediaLines", "v=0\r\ns=x\r\nm=audio 1 RTP/AVP 0\r\n", "a=rtpmap:0 PCMU/8000\r\n", 50000}),
    RowName());

TEST(LongChain, IsReleasedFromTheMiddleByWhoeverHoldsAPart)
{
    runOnASmallStack([] {
        LmHandle<LmSdpField> hMiddle;
        {
            LmSdpMsg message("v=0\r\n");
            for (unsigned int round = 0; round < 100000; ++round)
            {
                const LmHandle<LmSdpField> hField = new LmSdpUnusedField("a", "x");
                message.addField(hField);
                if (round == 50000)
                {
                    hMiddle = hField;
                }
            }
        }
        EXPECT_FALSE(hMiddle->getNext().isNull());
        hMiddle = nullptr;
    });
}

/// Time of the processor, the least of several runs: what else the machine does is not counted.
double secondsOf(const std::function<void()>& work)
{
    double least = std::numeric_limits<double>::max();
    for (int run = 0; run < 3; ++run)
    {
        const std::clock_t start = std::clock();
        work();
        least = std::min(least, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return least;
}

void addLines(unsigned int count)
{
    LmSdpMsg message("v=0\r\n");
    for (unsigned int round = 0; round < count; ++round)
    {
        message.addField(new LmSdpUnusedField("a", "x"));
    }
}

void addSections(unsigned int count)
{
    LmSdpMsg message("v=0\r\n");
    for (unsigned int round = 0; round < count; ++round)
    {
        message.addDescription(new LmSdpMediaDescription(nullptr, nullptr));
    }
}

void takeWord(unsigned int count)
{
    const std::string word(count * 20, 'w');
    LmByteArrayInputStream in(LmByteArray::sCreate(word.c_str()), 0, 0);
    LmString text;
    in >> text;
}

struct GrowthRow
{
    const char* name;
    void (*work)(unsigned int count);
};

class Growth : public testing::TestWithParam<GrowthRow>
{
};

/// Sixty-four times the work takes about sixty-four times as long; were each step to walk the chain, 4096 times.
TEST_P(Growth, IsLinear)
{
    const double few = secondsOf([] { GetParam().work(500); });
    const double many = secondsOf([] { GetParam().work(32000); });
    EXPECT_LT(many, 640 * std::max(few, 1e-4));
}

INSTANTIATE_TEST_SUITE_P(, Growth,
                         testing::Values(GrowthRow{"LinesOfOneLetter", addLines},
                                         GrowthRow{"MediaSections", addSections}, GrowthRow{"OneWord", takeWord}),
                         RowName());

} // namespace
