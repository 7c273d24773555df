// Threads that read, change and write messages of their own, while they share texts and handles and race through first
// uses. The thread sanitizer says whether they do so in order.

#include "LmSdpObject.h"
#include "core/FileLogger.h"
#include "support/Matchers.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace
{

constexpr unsigned int s_Threads = 4;
constexpr unsigned int s_Rounds = 300;

constexpr const char* s_Body = "v=0\r\no=- 1 1 IN IP4 192.0.2.1\r\ns=a name of its own\r\nc=IN IP4 192.0.2.1\r\n"
                               "t=0 0\r\na=tool:a value of its own\r\nm=audio 49170 RTP/AVP 0 97\r\n"
                               "a=rtpmap:97 L16/44100/2\r\n"
                               "a=crypto:1 AES_CM_128_HMAC_SHA1_80 inline:KEY|2^20|1:4\r\n";

/// Runs the same in all threads at once; the first round of each begins when all are there.
template <typename Work>
void runInThreads(const Work& work)
{
    std::atomic<unsigned int> waiting{s_Threads};
    std::vector<std::thread> threads;
    for (unsigned int thread = 0; thread < s_Threads; ++thread)
    {
        threads.emplace_back([&, thread] {
            --waiting;
            while (waiting != 0)
            {
                std::this_thread::yield();
            }
            work(thread);
        });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
}

} // namespace

TEST(Threads, MessagesOfTheirOwn)
{
    const std::string expected = [] {
        LmSdpMsg message(s_Body);
        message.getMediaDescription()->getMediaField()->setPort(7U);
        return written(message);
    }();
    std::atomic<unsigned int> right{0};
    runInThreads([&](unsigned int) {
        for (unsigned int round = 0; round < s_Rounds; ++round)
        {
            LmSdpMsg message(s_Body);
            message.getMediaDescription()->getMediaField()->setPort(7U);
            right += written(message) == expected ? 1 : 0;
        }
    });
    EXPECT_EQ(right, s_Threads * s_Rounds);
}

TEST(Threads, FailuresOfTheirOwn)
{
    std::atomic<unsigned int> refused{0};
    runInThreads([&](unsigned int) {
        for (unsigned int round = 0; round < s_Rounds; ++round)
        {
            refused += failureOf([] { LmSdpMsg("v=0\r\ni=\r\n"); }) ==
                               exception("LmSdpInformationField::parse() Empty Information Field")
                           ? 1
                           : 0;
        }
    });
    EXPECT_EQ(refused, s_Threads * s_Rounds);
}

TEST(Threads, TextsAndHandlesOfCommonObjects)
{
    LmSdpMsg message(s_Body);
    const LmHandle<LmSdpField> hCommon = message.getField("s");
    const LmString common("a text that all have copies of");
    runInThreads([&](unsigned int thread) {
        for (unsigned int round = 0; round < s_Rounds; ++round)
        {
            const LmHandle<LmSdpField> hOwn = hCommon;
            const LmHandle<LmSdpSessionNameField> hTyped = hOwn;
            LmString own = common;
            own.append(std::to_string(thread).c_str());
            EXPECT_EQ(own.length(), common.length() + 1);
            EXPECT_FALSE(hTyped.isNull());
        }
    });
    EXPECT_STREQ(common.c_str(), "a text that all have copies of");
    EXPECT_STREQ(message.getSessionNameField()->getSessionName(), "a name of its own");
}

TEST(Threads, TreesReadHereAndReleasedThere)
{
    std::array<LmHandle<LmSdpField>, s_Threads> passed;
    std::array<std::mutex, s_Threads> locks;
    runInThreads([&](unsigned int thread) {
        for (unsigned int round = 0; round < s_Rounds; ++round)
        {
            LmSdpMsg message(s_Body);
            const unsigned int other = (thread + round) % s_Threads;
            LmHandle<LmSdpField> hField = message.getField("a");
            const std::lock_guard<std::mutex> lock(locks[other]);
            std::swap(passed[other], hField);
        }
    });
}

TEST(Threads, FirstUsesOfLoggersAndAccounts)
{
    static Quorvex::FileLogger s_Logger("threads.first.use");
    std::array<const Quorvex::Logger*, s_Threads> loggers{};
    std::array<const Quorvex::MemAccount*, s_Threads> accounts{};
    runInThreads([&](unsigned int thread) {
        loggers[thread] = s_Logger.get();
        accounts[thread] = &Quorvex::MemAccount::get("threads.first.use");
        Quorvex::MemAccount::get("threads.first.use")
            .deallocate(Quorvex::MemAccount::get("threads.first.use").allocate(40));
    });
    for (unsigned int thread = 1; thread < s_Threads; ++thread)
    {
        EXPECT_EQ(loggers[thread], loggers[0]);
        EXPECT_EQ(accounts[thread], accounts[0]);
    }
    const Quorvex::MemAccount::Usage usage = Quorvex::MemAccount::usage("threads.first.use");
    EXPECT_EQ(usage.liveObjects, 0U);
    EXPECT_EQ(usage.liveBytes, 0U);
    EXPECT_EQ(usage.totalAllocations, s_Threads);
}
