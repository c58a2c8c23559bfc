#include "hostlayer/CMidiEventList.h"

#include "foundation/Description.h"

#include <gtest/gtest.h>

using namespace Tessitor::Midi;

namespace {

/// A list with events at the given frames.
class SampleList : public CMidiEventList {
public:
    SampleList(std::initializer_list<int> deltas) {
        for (const int delta : deltas)
            addEvent().setDelta(delta);
    }
    void stepBeforeTheFirst() { m_position = -1; }
};

}  // namespace

TEST(CMidiEventList, StartsEmptyOnChannelZero) {
    const CMidiEventList list;
    EXPECT_EQ(list.getCount(), 0);
    EXPECT_EQ(list.getPosition(), 0);
    EXPECT_EQ(list.getChannel(), 0);
    EXPECT_EQ(list.getEventAtIndex(0), nullptr);
    EXPECT_FALSE(list.hasNext());
    EXPECT_EQ(list.getFramesToNext(), 0);
}

TEST(CMidiEventList, HasNoEventAtOrAboveTheCount) {
    const SampleList list{10, 20};
    EXPECT_EQ(list.getEventAtIndex(-1), nullptr);
    EXPECT_EQ(list.getEventAtIndex(0)->getDelta(), 10);
    EXPECT_EQ(list.getEventAtIndex(1)->getDelta(), 20);
    EXPECT_EQ(list.getEventAtIndex(2), nullptr);
    EXPECT_EQ(list.getEventAtIndex(128), nullptr);
}

TEST(CMidiEventList, WrapsToTheFirstEventAfterTheLast) {
    SampleList list{10, 20, 35};
    EXPECT_EQ(list.getCurrentEvent()->getDelta(), 10);
    EXPECT_TRUE(list.hasNext());
    EXPECT_EQ(list.getFramesToNext(), 10);

    EXPECT_EQ(list.advance(), 1);
    EXPECT_EQ(list.getCurrentEvent()->getDelta(), 20);
    EXPECT_TRUE(list.hasNext());
    EXPECT_EQ(list.getFramesToNext(), 15);

    EXPECT_EQ(list.advance(), 2);
    EXPECT_EQ(list.getCurrentEvent()->getDelta(), 35);
    EXPECT_FALSE(list.hasNext());
    EXPECT_EQ(list.getFramesToNext(), 0);

    EXPECT_EQ(list.advance(), 3);
    EXPECT_EQ(list.getPosition(), 0);
    EXPECT_EQ(list.getCurrentEvent()->getDelta(), 10);
}

TEST(CMidiEventList, AdvancingAnEmptyListStaysAtZero) {
    CMidiEventList list;
    EXPECT_EQ(list.advance(), 1);
    EXPECT_EQ(list.getPosition(), 0);
    EXPECT_EQ(list.advance(), 1);
    EXPECT_EQ(list.getPosition(), 0);
}

TEST(CMidiEventList, HasNoCurrentEventBeforeTheFirst) {
    SampleList list{10, 20};
    list.stepBeforeTheFirst();
    EXPECT_EQ(list.getCurrentEvent(), nullptr);
    EXPECT_EQ(list.getFramesToNext(), 0);
    EXPECT_TRUE(list.hasNext());
    EXPECT_EQ(list.advance(), 0);
    EXPECT_EQ(list.getCurrentEvent()->getDelta(), 10);
}

TEST(CMidiEventList, ClearingResetsCountAndPositionButNotTheEvents) {
    SampleList list{10, 20};
    list.advance();
    list.clear();
    EXPECT_EQ(list.getCount(), 0);
    EXPECT_EQ(list.getPosition(), 0);
    EXPECT_EQ(list.getEventAtIndex(0), nullptr);
    EXPECT_EQ(list.getCurrentEvent()->getDelta(), 10);
}

TEST(CMidiEventList, DescribesItsCountAndChannel) {
    SampleList list{10, 20};
    list.setChannel(8);
    EXPECT_EQ(list.getChannel(), 8);
    EXPECT_EQ(descriptionOf(list), "[Number Of Events(2), Channel(8)]");
}

TEST(CMidiEventList, CountsItselfAndItsEvents) {
    auto &events = CMidiEvent().getClass();
    const auto before = events.getInstanceCount();
    {
        const CMidiEventList list;
        EXPECT_STREQ(list.getClass().getClassName(), "CMidiEventList");
        EXPECT_EQ(list.getClass().getInstanceCount(), 1u);
        EXPECT_EQ(events.getInstanceCount(), before + 128);
    }
    EXPECT_EQ(events.getInstanceCount(), before);
}
