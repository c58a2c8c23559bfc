#include "dspclasses/blocks/CDelayBuffer.h"

#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <thread>

static std::uint32_t capacityOf(std::uint32_t size) {
    return CDelayBuffer(size).getNewest().capacity;
}

TEST(CDelayBuffer, RoundsItsSizeUpToAPowerOfTwo) {
    EXPECT_EQ(capacityOf(0), 2u);
    EXPECT_EQ(capacityOf(1), 1u);
    EXPECT_EQ(capacityOf(2), 2u);
    EXPECT_EQ(capacityOf(3), 4u);
    EXPECT_EQ(capacityOf(1000), 1024u);
    EXPECT_EQ(capacityOf(1024), 1024u);
    EXPECT_EQ(capacityOf(1025), 2048u);
    EXPECT_EQ(capacityOf(52882), 65536u);
    EXPECT_EQ(capacityOf(132300), 262144u);
}

TEST(CDelayBuffer, KeepsItsSizeIfThePowerOfTwoIsOutOfRange) {
    CDelayBuffer buffer(4);
    EXPECT_FALSE(buffer.grow(0xC0000000u));
    EXPECT_EQ(buffer.getNewest().capacity, 4u);
}

TEST(CDelayBuffer, NeverShrinks) {
    CDelayBuffer buffer(1024);
    const CDelayBuffer::SMemory &memory = buffer.getNewest();
    for (const std::uint32_t size : {1024u, 513u, 10u, 0u})
        EXPECT_FALSE(buffer.grow(size)) << size;
    EXPECT_EQ(&buffer.getNewest(), &memory);
}

TEST(CDelayBuffer, GrowingPutsASilentMemoryInFrontAndKeepsTheOlderOne) {
    CDelayBuffer buffer(4);
    const CDelayBuffer::SMemory &before = buffer.getNewest();
    before.samples()[3] = 7.0f;
    EXPECT_TRUE(buffer.grow(9));
    const CDelayBuffer::SMemory &grown = buffer.getNewest();
    EXPECT_EQ(grown.capacity, 16u);
    EXPECT_EQ(std::count(grown.samples() - 1, grown.samples() + 16, 0.0f), 17);
    EXPECT_EQ(grown.older, &before);
    EXPECT_EQ(before.samples()[3], 7.0f);
}

TEST(CDelayBuffer, TwoThreadsMayGrowItAtOnce) {
    for (int round = 0; round < 200; ++round) {
        CDelayBuffer buffer(2);
        std::atomic<int> ready = 0;
        const auto grow = [&](std::uint32_t first) {
            ++ready;
            while (ready < 2)
                std::this_thread::yield();
            for (std::uint32_t size = first; size <= 4096; size *= 4)
                buffer.grow(size);
        };
        std::thread other([&] { grow(8); });
        grow(4);
        other.join();
        const CDelayBuffer::SMemory *memory = &buffer.getNewest();
        ASSERT_EQ(memory->capacity, 4096u);
        for (; memory->older != nullptr; memory = memory->older)
            ASSERT_LT(memory->older->capacity, memory->capacity);
        ASSERT_EQ(memory->capacity, 2u);
    }
}
