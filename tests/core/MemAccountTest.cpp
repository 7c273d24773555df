#include "core/MemAccount.h"

#include "core/DefaultStaticMemAllocator.h"
#include "core/NoSizeMemAllocator.h"
#include "core/ThreadHeap.h"
#include "sdp/crypto/LmSdpCryptoAttribute.h"
#include "sdp/frame/LmSdpMsg.h"
#include "sdp/media/LmSdpAttributeField.h"
#include "sdp/media/LmSdpRtpAttribute.h"
#include "support/Matchers.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <functional>
#include <future>
#include <random>
#include <thread>
#include <vector>

namespace
{

using Quorvex::DefaultStaticMemAllocator;
using Quorvex::MemAccount;
using Quorvex::NoSizeMemAllocator;
using testing::ElementsAre;

/// How far an account has moved since this object was made: live objects, live bytes and all allocations.
class Change
{
public:
    explicit Change(const char* account) : m_Account(account), m_Before(figures()) {}

    std::vector<long> operator()() const
    {
        std::vector<long> moved = figures();
        std::transform(moved.begin(), moved.end(), m_Before.begin(), moved.begin(), std::minus<>());
        return moved;
    }

private:
    std::vector<long> figures() const
    {
        const MemAccount::Usage usage = MemAccount::usage(m_Account);
        return {static_cast<long>(usage.liveObjects), static_cast<long>(usage.liveBytes),
                static_cast<long>(usage.totalAllocations)};
    }

    const char* m_Account;
    std::vector<long> m_Before;
};

TEST(MemAccount, IsAllZeroWhileNobodyHasUsedIt)
{
    const MemAccount::Usage usage = MemAccount::usage("an account that nobody has used");
    EXPECT_EQ(usage.liveObjects + usage.liveBytes + usage.totalAllocations, 0u);
}

TEST(MemAccount, TellsWhatItHolds)
{
    const Change one("test one");
    const Change other("test other");
    void* const small = NoSizeMemAllocator::allocate(10, "test one");
    void* const large = DefaultStaticMemAllocator::allocate(100000, "test one");
    void* const nothing = NoSizeMemAllocator::allocate(0, "test other");
    std::memset(small, 0xAA, 10);
    std::memset(large, 0xBB, 100000);
    EXPECT_THAT(one(), ElementsAre(2, 100010, 2));
    EXPECT_THAT(other(), ElementsAre(1, 0, 1));
    NoSizeMemAllocator::deallocate(small, "test one");
    EXPECT_THAT(one(), ElementsAre(1, 100000, 2));
    DefaultStaticMemAllocator::deallocate(large, 100000, "test one");
    NoSizeMemAllocator::deallocate(nothing, "test other");
    NoSizeMemAllocator::deallocate(nullptr, "test other");
    DefaultStaticMemAllocator::deallocate(nullptr, 10, "test other");
    EXPECT_THAT(one(), ElementsAre(0, 0, 2));
    EXPECT_THAT(other(), ElementsAre(0, 0, 1));
}

TEST(MemAccount, RefusesASizeThatNoMemoryHas)
{
    const Change change("test one");
    EXPECT_THROW(NoSizeMemAllocator::allocate(SIZE_MAX, "test one"), std::bad_alloc);
    EXPECT_THAT(change(), ElementsAre(0, 0, 0));
}

TEST(MemAccount, GivesMemoryForAnyObject)
{
    std::vector<std::size_t> misaligned;
    for (const std::size_t size : {16u, 32u, 48u, 200u, 256u, 272u, 352u, 368u, 5000u})
    {
        void* const block = NoSizeMemAllocator::allocate(size, "test one");
        if (reinterpret_cast<std::uintptr_t>(block) % alignof(std::max_align_t) != 0)
        {
            misaligned.push_back(size);
        }
        NoSizeMemAllocator::deallocate(block, "test one");
    }
    EXPECT_THAT(misaligned, testing::IsEmpty()) << "a host's class may derive from one with an account";
}

TEST(MemAccount, AddsUpAllThreadsAlsoThoseThatHaveEnded)
{
    const Change change("test threads");
    std::vector<void*> blocks(4);
    std::vector<std::thread> threads;
    for (void*& block : blocks)
    {
        threads.emplace_back([&block] {
            for (int round = 0; round < 1000; ++round)
            {
                NoSizeMemAllocator::deallocate(NoSizeMemAllocator::allocate(24, "test threads"), "test threads");
            }
            block = NoSizeMemAllocator::allocate(24, "test threads");
        });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    EXPECT_THAT(change(), ElementsAre(4, 96, 4004));
    std::thread([&blocks] {
        for (void* const block : blocks)
        {
            NoSizeMemAllocator::deallocate(block, "test threads");
        }
    }).join();
    EXPECT_THAT(change(), ElementsAre(0, 0, 4004));
}

TEST(MemAccount, TellsWhatALivingThreadHolds)
{
    const Change change("test threads");
    std::promise<void> taken;
    std::promise<void> seen;
    std::thread other([&] {
        void* const block = NoSizeMemAllocator::allocate(40, "test threads");
        taken.set_value();
        seen.get_future().wait();
        NoSizeMemAllocator::deallocate(block, "test threads");
    });
    taken.get_future().wait();
    EXPECT_THAT(change(), ElementsAre(1, 40, 1));
    seen.set_value();
    other.join();
    EXPECT_THAT(change(), ElementsAre(0, 0, 1));
}

TEST(MemAccount, CountsMoreAccountsThanAThreadKeepsForItself)
{
    std::vector<std::string> names;
    std::vector<void*> blocks;
    for (int account = 0; account < 100; ++account)
    {
        names.push_back("test account " + std::to_string(account));
        blocks.push_back(NoSizeMemAllocator::allocate(8, names.back().c_str()));
    }
    for (std::size_t account = 0; account < names.size(); ++account)
    {
        EXPECT_EQ(MemAccount::usage(names[account].c_str()).liveBytes, 8u);
        NoSizeMemAllocator::deallocate(blocks[account], names[account].c_str());
        EXPECT_EQ(MemAccount::usage(names[account].c_str()).liveObjects, 0u);
    }
}

template <typename Class>
void expectAccountOf(const char* name)
{
    SCOPED_TRACE(name);
    EXPECT_STREQ(Class::getMemAccountName(), name);
    const Change change(name);
    void* const one = Class::operator new(sizeof(Class));
    void* const array = Class::operator new[](3 * sizeof(Class));
    EXPECT_THAT(change(), ElementsAre(2, 4 * sizeof(Class), 2));
    EXPECT_EQ(Class::operator new(sizeof(Class), one), one);
    EXPECT_THAT(change(), ElementsAre(2, 4 * sizeof(Class), 2));
    if constexpr (std::is_same_v<Class, LmSdpCryptoAttribute>)
    {
        Class::operator delete(one, sizeof(Class));
    }
    else
    {
        Class::operator delete(one);
    }
    Class::operator delete[](array);
    EXPECT_THAT(change(), ElementsAre(0, 0, 2));
}

TEST(MemAccount, IsNamedAfterItsClassAndCountsItsObjects)
{
    expectAccountOf<LmSdpAttribute>("LmSdpAttribute");
    expectAccountOf<LmSdpAttributeField>("LmSdpAttributeField");
    expectAccountOf<LmSdpMsg>("LmSdpMsg");
    expectAccountOf<LmCryptoKey>("LmCryptoKey");
    expectAccountOf<LmSecurityDescription>("LmSecurityDescription");
    expectAccountOf<LmSdpCryptoAttribute>("LmSdpCryptoAttribute");
}

TEST(MemAccount, CountsTheObjectsOfABody)
{
    const Change message("LmSdpMsg");
    const Change field("LmSdpAttributeField");
    const Change attribute("LmSdpAttribute");
    const Change crypto("LmSdpCryptoAttribute");
    {
        const LmHandle<LmSdpMsg> hMessage =
            new LmSdpMsg("v=0\r\na=one:1\r\na=two\r\na=rtpmap:0 PCMU/8000\r\n"
                         "a=crypto:1 AES_CM_128_HMAC_SHA1_80 inline:WVNfX19zZW1jdGwgKCkgewkyMjA7fQp9CnVubGVz\r\n");
        EXPECT_THAT(message(), ElementsAre(1, sizeof(LmSdpMsg), 1));
        EXPECT_THAT(field(), ElementsAre(4, 4 * sizeof(LmSdpAttributeField), 4));
        EXPECT_THAT(attribute(), ElementsAre(2, sizeof(LmSdpAttribute) + sizeof(LmSdpRtpAttribute), 2));
        EXPECT_THAT(crypto(), ElementsAre(1, sizeof(LmSdpCryptoAttribute), 1));
    }
    EXPECT_THAT(message(), ElementsAre(0, 0, 1));
    EXPECT_THAT(crypto(), ElementsAre(0, 0, 1));
    EXPECT_THAT([] { new LmSdpMsg("o=1"); }, ThrowsParseError("SDP Message does not begin with 'v'"));
    EXPECT_THAT(message(), ElementsAre(0, 0, 2));
}

TEST(ThreadHeap, BlocksOfOneThreadMayEndInAnother)
{
    struct Block
    {
        unsigned char* bytes;
        std::size_t size;
        unsigned char mark;
    };
    std::vector<Block> blocks(20000);
    std::thread([&blocks] {
        std::mt19937 random(4711);
        for (Block& block : blocks)
        {
            block.size = random() % 300;
            block.mark = static_cast<unsigned char>(random());
            block.bytes = static_cast<unsigned char*>(Quorvex::ThreadHeap::allocate(block.size));
            std::memset(block.bytes, block.mark, block.size);
        }
    }).join();
    const auto end = [&blocks](std::size_t first) {
        for (std::size_t place = first; place < blocks.size(); place += 2)
        {
            const Block& block = blocks[place];
            EXPECT_TRUE(std::all_of(block.bytes, block.bytes + block.size,
                                    [&block](unsigned char byte) { return byte == block.mark; }));
            Quorvex::ThreadHeap::deallocate(block.bytes, block.size);
        }
    };
    std::thread one(end, 0);
    std::thread other(end, 1);
    one.join();
    other.join();
}

} // namespace
