#include "hostlayer/CMidiEvent.h"

#include "foundation/Description.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

using namespace Tessitor::Midi;

static CMidiEvent message(int status, int value, int subValue, int channel = 0, int delta = 0) {
    CMidiEvent event;
    event.setStatus(status);
    event.setValue(value);
    event.setSubValue(subValue);
    event.setChannel(channel);
    event.setDelta(delta);
    return event;
}

TEST(CMidiEvent, StartsEmptyOnChannelOne) {
    const CMidiEvent event;
    EXPECT_EQ(event.getStatus(), 0);
    EXPECT_EQ(event.getValue(), 0);
    EXPECT_EQ(event.getSubValue(), 0);
    EXPECT_EQ(event.getChannel(), 1);
    EXPECT_EQ(event.getDelta(), 0);
    EXPECT_FALSE(event.isNoteOn());
    EXPECT_FALSE(event.isNoteOff());
    EXPECT_FALSE(event.isController());
}

TEST(CMidiEvent, ANoteOnWithVelocityZeroIsANoteOff) {
    EXPECT_TRUE(message(144, 60, 1).isNoteOn());
    EXPECT_FALSE(message(144, 60, 1).isNoteOff());
    EXPECT_FALSE(message(144, 60, 0).isNoteOn());
    EXPECT_TRUE(message(144, 60, 0).isNoteOff());
    EXPECT_FALSE(message(128, 60, 64).isNoteOn());
    EXPECT_TRUE(message(128, 60, 64).isNoteOff());
}

TEST(CMidiEvent, RecognisesAController) {
    EXPECT_TRUE(message(176, 7, 100).isController());
    EXPECT_FALSE(message(123, 0, 0).isController());
    EXPECT_FALSE(message(224, 0, 0).isController());
}

TEST(CMidiEvent, ComparesOnlyThePositionInTheBlock) {
    const CMidiEvent early = message(144, 60, 100, 0, 3), late = message(144, 60, 100, 0, 4),
                     alsoEarly = message(176, 7, 1, 8, 3);
    EXPECT_TRUE(early == alsoEarly);
    EXPECT_FALSE(early == late);
    EXPECT_TRUE(early != late);
    EXPECT_FALSE(early != alsoEarly);
    EXPECT_TRUE(early < late);
    EXPECT_FALSE(early < alsoEarly);
    EXPECT_TRUE(late > early);
    EXPECT_FALSE(alsoEarly > early);
    EXPECT_TRUE(early <= alsoEarly);
    EXPECT_FALSE(late <= early);
    EXPECT_TRUE(early >= alsoEarly);
    EXPECT_FALSE(early >= late);
}

TEST(CMidiEvent, SortsNullsLast) {
    const CMidiEvent early = message(144, 60, 100, 0, 3), late = message(144, 60, 100, 0, 4),
                     alsoEarly = early;
    EXPECT_EQ(CMidiEvent::compare(&early, &early), 0);
    EXPECT_EQ(CMidiEvent::compare(nullptr, nullptr), 0);
    EXPECT_EQ(CMidiEvent::compare(nullptr, &early), 1);
    EXPECT_EQ(CMidiEvent::compare(&early, nullptr), -1);
    EXPECT_EQ(CMidiEvent::compare(&early, &alsoEarly), 0);
    EXPECT_EQ(CMidiEvent::compare(&early, &late), -1);
    EXPECT_EQ(CMidiEvent::compare(&late, &early), 1);

    std::vector<const CMidiEvent *> events{nullptr, &late, nullptr, &early};
    std::ranges::sort(events, [](const CMidiEvent *first, const CMidiEvent *second) {
        return CMidiEvent::compare(first, second) < 0;
    });
    EXPECT_EQ(events, (std::vector<const CMidiEvent *>{&early, &late, nullptr, nullptr}));
}

TEST(CMidiEvent, DescribesItselfByKind) {
    EXPECT_EQ(descriptionOf(message(128, 60, 64, 8, 5)),
              "[Note Off       : Note(060), Velocity(064), Channel(008), Delta(005)]");
    EXPECT_EQ(descriptionOf(message(144, 60, 0)),
              "[Note Off       : Note(060), Velocity(000), Channel(000), Delta(000)]");
    EXPECT_EQ(descriptionOf(message(144, 127, 1, 0, 1023)),
              "[Note On        : Note(127), Velocity(001), Channel(000), Delta(1023)]");
    EXPECT_EQ(descriptionOf(message(176, 7, 100, 8, 12)),
              "[Control Change : CC(007), Value(100), Channel(008), Delta(012)]");
    EXPECT_EQ(descriptionOf(message(224, 0, 0, 1, 2)),
              "[Other Message  : Status(224), Value(000), SubValue(000), Channel(001), "
              "Delta(002)]");
}

TEST(CMidiEvent, CopiesEveryField) {
    CMidiEvent original = message(224, 1, 2, 3, 4);
    original.setPitchBend(-0.5);
    const CMidiEvent copy(original);
    CMidiEvent assigned;
    assigned = original;
    for (const CMidiEvent *event : {&copy, &std::as_const(assigned)}) {
        EXPECT_EQ(descriptionOf(*event), descriptionOf(original));
        EXPECT_EQ(event->getPitchBend(), -0.5);
    }
}

TEST(CMidiEvent, CountsItsInstances) {
    CMidiEvent first;
    first.reference();
    auto &record = first.getClass();
    EXPECT_STREQ(record.getClassName(), "CMidiEvent");
    const auto before = record.getInstanceCount();
    {
        const CMidiEvent second;
        const auto third = std::make_unique<CMidiEvent>(first);
        EXPECT_EQ(third->getReferenceCount(), 0);
        EXPECT_EQ(record.getInstanceCount(), before + 2);
    }
    EXPECT_EQ(record.getInstanceCount(), before);
}
