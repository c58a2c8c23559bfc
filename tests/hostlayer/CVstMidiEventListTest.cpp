#include "hostlayer/CVstMidiEventList.h"

#include "Allocation.h"
#include "hostlayer/EventBlock.h"

#include <gtest/gtest.h>

using namespace Tessitor::Midi;

namespace {

/// @return the event that a list on channel 0 stores for a message; one with status 0 if none.
CMidiEvent eventOf(int byte0, int byte1, int byte2, std::int32_t delta = 0) {
    CVstMidiEventList list;
    list.readEvents(*EventBlock().midi(byte0, byte1, byte2, delta).get());
    return list.getCount() == 1 ? *list.getEventAtIndex(0) : CMidiEvent();
}

}  // namespace

TEST(CVstMidiEventList, StoresNotes) {
    const CMidiEvent on = eventOf(0x90, 60, 100, 17);
    EXPECT_EQ(on.getStatus(), 144);
    EXPECT_EQ(on.getValue(), 60);
    EXPECT_EQ(on.getSubValue(), 100);
    EXPECT_EQ(on.getChannel(), 0);
    EXPECT_EQ(on.getDelta(), 17);
    EXPECT_TRUE(on.isNoteOn());

    const CMidiEvent off = eventOf(0x80, 61, 64, 18);
    EXPECT_EQ(off.getStatus(), 128);
    EXPECT_EQ(off.getValue(), 61);
    EXPECT_EQ(off.getSubValue(), 64);
    EXPECT_EQ(off.getChannel(), 0);
    EXPECT_EQ(off.getDelta(), 18);
    EXPECT_TRUE(off.isNoteOff());
}

TEST(CVstMidiEventList, StoresANoteOnWithVelocityZeroUnchanged) {
    const CMidiEvent event = eventOf(0x90, 60, 0);
    EXPECT_EQ(event.getStatus(), 144);
    EXPECT_TRUE(event.isNoteOff());
}

TEST(CVstMidiEventList, StoresControllers) {
    const CMidiEvent event = eventOf(0xB0, 7, 99, 5);
    EXPECT_EQ(event.getStatus(), 176);
    EXPECT_EQ(event.getValue(), 7);
    EXPECT_EQ(event.getSubValue(), 99);
    EXPECT_EQ(event.getChannel(), 0);
    EXPECT_EQ(event.getDelta(), 5);
}

TEST(CVstMidiEventList, StoresControllers123And126AsAllNotesOff) {
    for (const int controller : {123, 126}) {
        const CMidiEvent event = eventOf(0xB0, controller, 64, 9);
        EXPECT_EQ(event.getStatus(), 123);
        EXPECT_EQ(event.getValue(), 0);
        EXPECT_EQ(event.getSubValue(), 0);
        EXPECT_EQ(event.getChannel(), 0);
        EXPECT_EQ(event.getDelta(), 9);
    }
    for (const int controller : {120, 121, 122, 124, 125, 127})
        EXPECT_EQ(eventOf(0xB0, controller, 64).getStatus(), 176) << controller;
}

TEST(CVstMidiEventList, UsesSevenBitsOfData) {
    for (const int status : {0x80, 0x90, 0xB0}) {
        const CMidiEvent event = eventOf(status, 0x80 | 60, 0x80 | 100);
        EXPECT_EQ(event.getValue(), 60);
        EXPECT_EQ(event.getSubValue(), 100);
    }
    // All eight bits of the controller number are compared.
    EXPECT_EQ(eventOf(0xB0, 0x80 | 123, 0).getStatus(), 176);
}

TEST(CVstMidiEventList, ScalesPitchBend) {
    EXPECT_EQ(eventOf(0xE0, 0, 64).getPitchBend(), 0.0);
    EXPECT_EQ(eventOf(0xE0, 0, 0).getPitchBend(), -1.0);
    EXPECT_EQ(eventOf(0xE0, 1, 64).getPitchBend(), 0.0001220703125);
    EXPECT_EQ(eventOf(0xE0, 127, 127).getPitchBend(), 1.0 - 0.0001220703125);
    EXPECT_EQ(eventOf(0xE0, 0x80, 64).getPitchBend(), 0.015625);  // all eight bits count
    const CMidiEvent event = eventOf(0xE0, 5, 6, 7);
    EXPECT_EQ(event.getStatus(), 224);
    EXPECT_EQ(event.getValue(), 0);
    EXPECT_EQ(event.getSubValue(), 0);
    EXPECT_EQ(event.getDelta(), 7);
}

TEST(CVstMidiEventList, APitchBendClearsValueAndSubValueOfItsSlot) {
    CVstMidiEventList list;
    list.readEvents(*EventBlock().midi(0x90, 60, 100).get());
    list.clear();
    list.readEvents(*EventBlock().midi(0xE0, 5, 6).get());
    EXPECT_EQ(list.getEventAtIndex(0)->getValue(), 0);
    EXPECT_EQ(list.getEventAtIndex(0)->getSubValue(), 0);
}

TEST(CVstMidiEventList, APitchBendKeepsTheChannelOfItsSlot) {
    EXPECT_EQ(eventOf(0xE0, 0, 64).getChannel(), 1);

    CVstMidiEventList list;
    list.setChannel(8);
    list.readEvents(*EventBlock().midi(0x98, 60, 100).get());
    list.clear();
    list.setChannel(0);
    list.readEvents(*EventBlock().midi(0xE0, 0, 0).get());
    EXPECT_EQ(list.getEventAtIndex(0)->getChannel(), 8);
    EXPECT_EQ(list.getEventAtIndex(0)->getStatus(), 224);
}

TEST(CVstMidiEventList, ReceivesHalfOfTheChannels) {
    for (int channel = 0; channel < 16; ++channel) {
        for (const int listening : {0, 8}) {
            CVstMidiEventList list;
            list.setChannel(listening);
            list.readEvents(*EventBlock().midi(0x90 | channel, 60, 100).get());
            const bool heard = (channel >= 8) == (listening == 8);
            EXPECT_EQ(list.getCount(), heard ? 1 : 0) << channel << " by " << listening;
            if (!heard)
                continue;
            EXPECT_EQ(list.getEventAtIndex(0)->getChannel(), listening);
        }
    }
}

TEST(CVstMidiEventList, ReceivesNothingOnAnyOtherChannel) {
    CVstMidiEventList list;
    list.setChannel(1);
    EventBlock block;
    for (int channel = 0; channel < 16; ++channel)
        block.midi(0x90 | channel, 60, 100);
    list.readEvents(*block.get());
    EXPECT_EQ(list.getCount(), 0);
}

TEST(CVstMidiEventList, SkipsOtherKinds) {
    CVstMidiEventList list;
    EventBlock block;
    for (const int status : {0x00, 0x70, 0xA0, 0xC0, 0xD0, 0xF0})
        block.midi(status, 1, 2);
    list.readEvents(*block.sysex().get());
    EXPECT_EQ(list.getCount(), 0);
}

TEST(CVstMidiEventList, ReadsNothingFromAnEmptyBlock) {
    CVstMidiEventList list;
    list.readEvents(*EventBlock().get());
    EXPECT_EQ(list.getCount(), 0);
}

TEST(CVstMidiEventList, KeepsTheHostsOrder) {
    CVstMidiEventList list;
    list.readEvents(*EventBlock().midi(0x90, 1, 1, 30).midi(0x90, 2, 1, 10).get());
    EXPECT_EQ(list.getEventAtIndex(0)->getDelta(), 30);
    EXPECT_EQ(list.getEventAtIndex(1)->getDelta(), 10);
}

TEST(CVstMidiEventList, DropsEventsAfterThe128th) {
    CVstMidiEventList list;
    EventBlock block;
    for (int i = 0; i < 131; ++i)
        block.midi(0x90, 60, 100, i);
    list.readEvents(*block.get());
    ASSERT_EQ(list.getCount(), 128);
    EXPECT_EQ(list.getEventAtIndex(0)->getDelta(), 0);
    EXPECT_EQ(list.getEventAtIndex(127)->getDelta(), 127);
    EXPECT_EQ(list.getEventAtIndex(128), nullptr);
}

TEST(CVstMidiEventList, CountsOnlyWhatItStoresTowardsTheLimit) {
    CVstMidiEventList list;
    EventBlock block;
    for (int i = 0; i < 128; ++i)
        block.sysex().midi(0xC0, 1, 0).midi(0x98, 60, 100).midi(0x90, 60, 100, i);
    list.readEvents(*block.get());
    ASSERT_EQ(list.getCount(), 128);
    EXPECT_EQ(list.getEventAtIndex(127)->getDelta(), 127);
}

TEST(CVstMidiEventList, CollectsBlocksUntilItIsCleared) {
    CVstMidiEventList list;
    EventBlock block;
    for (int i = 0; i < 100; ++i)
        block.midi(0x90, 60, 100, i);
    list.readEvents(*block.get());
    EXPECT_EQ(list.getCount(), 100);
    list.readEvents(*block.get());
    EXPECT_EQ(list.getCount(), 128);
    EXPECT_EQ(list.getEventAtIndex(100)->getDelta(), 0);
    EXPECT_EQ(list.getEventAtIndex(127)->getDelta(), 27);
    list.clear();
    list.readEvents(*block.get());
    EXPECT_EQ(list.getCount(), 100);
}

TEST(CVstMidiEventList, AllocatesNothing) {
    CVstMidiEventList list;
    EventBlock block;
    for (int i = 0; i < 200; ++i)
        block.midi(0x90, 60, 100, i).midi(0xE0, 1, 2).midi(0xB0, 123, 0);
    const VstEvents *events = block.get();
    auto &record = CMidiEvent().getClass();
    const auto instances = record.getTotalCount();
    const auto allocations = allocationsOfThisThread();
    list.readEvents(*events);
    list.clear();
    EXPECT_EQ(allocationsOfThisThread(), allocations);
    EXPECT_EQ(record.getTotalCount(), instances);
}

TEST(CVstMidiEventList, HasItsOwnRecord) {
    const CVstMidiEventList list;
    EXPECT_STREQ(list.getClass().getClassName(), "CVstMidiEventList");
    EXPECT_EQ(list.getClass().getInstanceCount(), 1u);
    EXPECT_TRUE(list.getClass().isTypeOf(CMidiEventList().getClass()));
}
