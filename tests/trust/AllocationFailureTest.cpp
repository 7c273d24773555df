// What happens when memory runs out at any point: std::bad_alloc, nothing leaked, no account off, and what was there
// before still there.

#include "LmSdpObject.h"
#include "support/Matchers.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <functional>
#include <new>
#include <string>

namespace
{

/// How many more allocations of this thread succeed; below 0 for all of them.
thread_local long t_Left = -1;

void* allocate(std::size_t size, std::align_val_t alignment = std::align_val_t(alignof(std::max_align_t)))
{
    if (t_Left == 0)
    {
        throw std::bad_alloc();
    }
    t_Left -= t_Left > 0 ? 1 : 0;
    const auto step = static_cast<std::size_t>(alignment);
    if (void* const block = std::aligned_alloc(step, (size / step + 1) * step))
    {
        return block;
    }
    throw std::bad_alloc();
}

/// Out of line, or g++ takes this for the wrong end of a block from operator new.
[[gnu::noinline]] void giveBack(void* block)
{
    std::free(block);
}

/// Lets an action run out of memory at its first allocation, its second and so on, until it gets through. After each
/// failure `isIntact` is asked. Gives how often it failed.
unsigned int failAtEach(const std::function<void()>& action, const std::function<bool()>& isIntact)
{
    for (unsigned int allocation = 0;; ++allocation)
    {
        bool failed = false;
        t_Left = allocation;
        try
        {
            action();
        }
        catch (const std::bad_alloc&)
        {
            failed = true;
        }
        t_Left = -1;
        EXPECT_TRUE(isIntact()) << "after allocation " << allocation;
        if (!failed)
        {
            return allocation;
        }
    }
}

const std::string s_Long(400, 'x');

const std::string s_Body = "v=0\r\no=" + s_Long + " 1 1 IN IP4 192.0.2.1\r\ns=" + s_Long + "\r\ni=" + s_Long +
                           "\r\nu=http://192.0.2.1/\r\ne=user (Desk)\r\np=+1 617 (Desk)\r\nc=IN IP4 192.0.2.1\r\n"
                           "b=X-Y:1\r\nt=1 2\r\nr=7d 1h 0 25h\r\nz=2882844526 -1h 2898848070 0\r\nk=clear:key\r\n"
                           "a=tool:" +
                           s_Long +
                           "\r\nm=audio 49170 RTP/AVP 0 200 201\r\na=rtpmap:200 X/8000/mode\r\n"
                           "a=crypto:1 X inline:A|2^20|1:4;inline:B KDR=1\r\nm=video 0 RTP/AVP 31\r\n";

const std::string s_Other = "v=0\r\no=- 1 1 IN IP4 192.0.2.9\r\ns=former\r\nt=0 0\r\n";

} // namespace

void* operator new(std::size_t size)
{
    return allocate(size);
}
void* operator new[](std::size_t size)
{
    return allocate(size);
}
void* operator new(std::size_t size, std::align_val_t alignment)
{
    return allocate(size, alignment);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return std::malloc(size == 0 ? 1 : size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return std::malloc(size == 0 ? 1 : size);
}
void operator delete(void* block) noexcept
{
    giveBack(block);
}
void operator delete(void* block, std::align_val_t) noexcept
{
    giveBack(block);
}
void operator delete[](void* block) noexcept
{
    giveBack(block);
}
void operator delete(void* block, std::size_t) noexcept
{
    giveBack(block);
}
void operator delete[](void* block, std::size_t) noexcept
{
    giveBack(block);
}

TEST(AllocationFailure, ReadingKeepsTheFormerTree)
{
    LmSdpMsg message(s_Other.c_str());
    const unsigned int failures = failAtEach(
        [&] {
            LmByteArrayInputStream in(LmByteArray::sCreate(s_Body.c_str()), 0, 0);
            message.parse(in);
        },
        [&] {
            const std::string_view name = message.getSessionNameField()->getSessionName();
            return name == "former" || name == s_Long;
        });
    EXPECT_GT(failures, 5U);
}

TEST(AllocationFailure, WritingLeavesTheMessageAlone)
{
    LmSdpMsg message(s_Body.c_str());
    const std::string text = written(message);
    std::string got;
    failAtEach(
        [&] {
            LmStringOutputStream out;
            message.serialize(out);
            got = out.getString().view();
        },
        [&] { return written(message) == text; });
    EXPECT_EQ(got, text);
}

TEST(AllocationFailure, ChangingKeepsTheFormerValue)
{
    LmSdpMsg message(s_Body.c_str());
    const LmHandle<LmSdpRepeatField> hRepeat = message.getTimeDescription()->getRepeatField();
    const LmHandle<LmSdpMediaField> hMedia = message.getMediaDescription()->getMediaField();
    const std::string many = s_Long + " " + s_Long + " 7";
    const auto isIntact = [&] {
        const LmString offsets = hRepeat->getOffsetList();
        return offsets.view() == "0 25h" || offsets.view() == many || offsets.view() == many + " " + many;
    };
    EXPECT_GT(failAtEach([&] { hRepeat->setOffsetList(many.c_str()); }, isIntact), 0U);
    EXPECT_GT(failAtEach([&] { hRepeat->addOffsets(many.c_str()); }, isIntact), 0U);
    const std::string formats(hMedia->getMediaFormats().view());
    EXPECT_GT(failAtEach([&] { hMedia->setMediaFormats(many.c_str()); },
                         [&] {
                             const LmString now = hMedia->getMediaFormats();
                             return now.view() == formats || now.view() == many;
                         }),
              0U);
}

TEST(AllocationFailure, TheFacadeStaysOld)
{
    const LmHandle<LmMediaStream> hStream = new LmMediaStream(LmMediaStream::AUDIO, 49170, LmInetAddress());
    hStream->addCodec(LmCodecDescription(0, s_Long.c_str()));
    LmMediaSession session(hStream);
    failAtEach([&] { session.getBody(); }, [] { return true; });
    EXPECT_EQ(std::string(static_cast<const char*>(session.getBody())).size(), session.getBodyLength());

    std::string body = s_Body;
    LmHandle<LmMediaSession> hSession;
    EXPECT_GT(failAtEach([&] { hSession = LmMediaSession::sCreateSession(body.data(), unsigned(body.size())); },
                         [&] { return hSession.isNull() || hSession->getStreams().size() == 2; }),
              5U);
}
