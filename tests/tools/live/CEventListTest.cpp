#include "corvel/live/CEventList.h"

#include <gtest/gtest.h>

using namespace Tessitor::Tool;

TEST(CEventList, HasTheFormThatEffectsRead) {
    CEventList list;
    EXPECT_TRUE(list.isEmpty());
    EXPECT_TRUE(list.add({3, 0x90, 60, 100}));
    EXPECT_TRUE(list.add({9, 0xF8, 0, 0}));
    EXPECT_FALSE(list.isEmpty());
    const auto *record = static_cast<const VstEvents *>(list.record());
    ASSERT_EQ(record->numEvents, 2);
    const auto &note = *reinterpret_cast<const VstMidiEvent *>(record->events[0]);
    EXPECT_EQ(note.type, kVstMidiType);
    EXPECT_EQ(note.byteSize, static_cast<std::int32_t>(sizeof(VstMidiEvent)));
    EXPECT_EQ(note.deltaFrames, 3);
    EXPECT_EQ(note.midiData[0], static_cast<char>(0x90));
    EXPECT_EQ(note.midiData[1], 60);
    EXPECT_EQ(note.midiData[2], 100);
    EXPECT_EQ(record->events[1]->deltaFrames, 9);
    list.clear();
    EXPECT_TRUE(list.isEmpty());
}

TEST(CEventList, TakesNoMoreThanItHasRoomFor) {
    CEventList list;
    int taken = 0;
    while (taken < 10000 && list.add({0, 0x90, 60, 100}))
        ++taken;
    EXPECT_EQ(taken, static_cast<const VstEvents *>(list.record())->numEvents);
    EXPECT_EQ(taken, 512);
}
