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
#include <condition_variable>
#include <cstdint>
#include <cstring>
#include <mutex>
#include <random>
#include <thread>
#include <vector>

namespace
{

using Quorvex::DefaultStaticMemAllocator;
using Quorvex::MemAccount;
using Quorvex::NoSizeMemAllocator;

/// How far an account has moved since this object was made.
class Change
{
public:
    explicit Change(const char* account) : m_Account(account), m_Before(MemAccount::usage(account)) {}

    long objects() const { return difference(&MemAccount::Usage::liveObjects); }
    long bytes() const { return difference(&MemAccount::Usage::liveBytes); }
    long total() const { return difference(&MemAccount::Usage::totalAllocations); }

private:
    long difference(std::size_t MemAccount::Usage::*figure) const
    {
        return static_cast<long>(MemAccount::usage(m_Account).*figure) - static_cast<long>(m_Before.*figure);
    }

    const char* m_Account;
    MemAccount::Usage m_Before;
};

#define EXPECT_CHANGE(change, liveObjects, liveBytes, allocations)                                                     \
    do                                                                                                                 \
    {                                                                                                                  \
        EXPECT_EQ((change).objects(), static_cast<long>(liveObjects));                                                 \
        EXPECT_EQ((change).bytes(), static_cast<long>(liveBytes));                                                     \
        EXPECT_EQ((change).total(), static_cast<long>(allocations));                                                   \
    } while (false)

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
    EXPECT_CHANGE(one, 2, 100010, 2);
    EXPECT_CHANGE(other, 1, 0, 1);
    NoSizeMemAllocator::deallocate(small, "test one");
    EXPECT_CHANGE(one, 1, 100000, 2);
    DefaultStaticMemAllocator::deallocate(large, 100000, "test one");
    NoSizeMemAllocator::deallocate(nothing, "test other");
    NoSizeMemAllocator::deallocate(nullptr, "test other");
    DefaultStaticMemAllocator::deallocate(nullptr, 10, "test other");
    EXPECT_CHANGE(one, 0, 0, 2);
    EXPECT_CHANGE(other, 0, 0, 1);
}

TEST(MemAccount, RefusesASizeThatNoMemoryHas)
{
    const Change change("test one");
    EXPECT_THROW(NoSizeMemAllocator::allocate(SIZE_MAX, "test one"), std::bad_alloc);
    EXPECT_CHANGE(change, 0, 0, 0);
}

TEST(MemAccount, GivesMemoryForAnyObject)
{
    std::vector<std::size_t> misaligned;
    for (const std::size_t size : {16u, 32u, 48u, 200u, 256u, 272u, 5000u})
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
    EXPECT_CHANGE(change, 4, 96, 4004);
    std::thread([&blocks] {
        for (void* const block : blocks)
        {
            NoSizeMemAllocator::deallocate(block, "test threads");
        }
    }).join();
    EXPECT_CHANGE(change, 0, 0, 4004);
}

TEST(MemAccount, TellsWhatALivingThreadHolds)
{
    const Change change("test threads");
    std::mutex mutex;
    std::condition_variable moved;
    int step = 0;
    const auto reach = [&](int next) {
        const std::lock_guard<std::mutex> lock(mutex);
        step = next;
        moved.notify_all();
    };
    const auto wait = [&](int wanted) {
        std::unique_lock<std::mutex> lock(mutex);
        moved.wait(lock, [&] { return step >= wanted; });
    };
    std::thread other([&] {
        void* const block = NoSizeMemAllocator::allocate(40, "test threads");
        reach(1);
        wait(2);
        NoSizeMemAllocator::deallocate(block, "test threads");
    });
    wait(1);
    EXPECT_CHANGE(change, 1, 40, 1);
    reach(2);
    other.join();
    EXPECT_CHANGE(change, 0, 0, 1);
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

/// A class with an account: what one object of it adds there, from a single one and from an array.
struct ClassRow
{
    const char* name;
    const char* ownName;
    std::size_t size;
    void* (*allocate)(std::size_t);
    void (*deallocate)(void*, std::size_t);
    void* (*allocateArray)(std::size_t);
    void (*deallocateArray)(void*);
    void* (*place)(std::size_t, void*);
};

template <typename Class>
constexpr ClassRow rowOf(const char* name, void (*deallocate)(void*, std::size_t))
{
    return {name,
            Class::getMemAccountName(),
            sizeof(Class),
            [](std::size_t size) { return Class::operator new(size); },
            deallocate,
            [](std::size_t size) { return Class::operator new[](size); },
            [](void* block) { Class::operator delete[](block); },
            [](std::size_t size, void* place) { return Class::operator new(size, place); }};
}

template <typename Class>
ClassRow rowOf(const char* name)
{
    return rowOf<Class>(name, [](void* block, std::size_t) { Class::operator delete(block); });
}

class AccountOfClass : public testing::TestWithParam<ClassRow>
{
};

TEST_P(AccountOfClass, IsNamedAfterItAndCountsItsObjects)
{
    const ClassRow& row = GetParam();
    EXPECT_STREQ(row.ownName, row.name);
    const Change change(row.name);
    void* const one = row.allocate(row.size);
    void* const array = row.allocateArray(3 * row.size);
    EXPECT_CHANGE(change, 2, 4 * row.size, 2);
    EXPECT_EQ(row.place(row.size, one), one);
    EXPECT_CHANGE(change, 2, 4 * row.size, 2);
    row.deallocate(one, row.size);
    row.deallocateArray(array);
    EXPECT_CHANGE(change, 0, 0, 2);
}

INSTANTIATE_TEST_SUITE_P(, AccountOfClass,
                         testing::Values(rowOf<LmSdpAttribute>("LmSdpAttribute"),
                                         rowOf<LmSdpAttributeField>("LmSdpAttributeField"), rowOf<LmSdpMsg>("LmSdpMsg"),
                                         rowOf<LmCryptoKey>("LmCryptoKey"),
                                         rowOf<LmSecurityDescription>("LmSecurityDescription"),
                                         rowOf<LmSdpCryptoAttribute>("LmSdpCryptoAttribute",
                                                                     [](void* block, std::size_t size) {
                                                                         LmSdpCryptoAttribute::operator delete(block,
                                                                                                               size);
                                                                     })),
                         RowName());

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
        EXPECT_CHANGE(message, 1, sizeof(LmSdpMsg), 1);
        EXPECT_CHANGE(field, 4, 4 * sizeof(LmSdpAttributeField), 4);
        EXPECT_CHANGE(attribute, 2, sizeof(LmSdpAttribute) + sizeof(LmSdpRtpAttribute), 2);
        EXPECT_CHANGE(crypto, 1, sizeof(LmSdpCryptoAttribute), 1);
    }
    EXPECT_CHANGE(message, 0, 0, 1);
    EXPECT_CHANGE(crypto, 0, 0, 1);
    EXPECT_THAT([] { new LmSdpMsg("o=1"); }, ThrowsParseError("SDP Message does not begin with 'v'"));
    EXPECT_CHANGE(message, 0, 0, 2);
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
