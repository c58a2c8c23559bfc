#include "CWindowFixture.h"
#include "foundation/CException.h"

namespace {

using Tessitor::Exceptions::CException;
using testing::ElementsAre;
using testing::IsEmpty;

class CTimed : public Tessitor::GUI::Windowing::ITimedObject {
public:
    explicit CTimed(int id) : m_id(id) {}
    void timerFired() override {
        ++fired;
        if (onFired)
            onFired();
    }
    std::int32_t getTimerId() const override { return m_id; }

    int fired = 0;
    std::function<void()> onFired;

private:
    const int m_id;
};

class CWindowTimers : public CWindowFixture {
protected:
    CWindowTimers() { create(); }
    ~CWindowTimers() override {
        if (!isDeleted)
            deleteWindow();  // before the timed objects
    }
    void add(std::initializer_list<CTimed *> objects) {
        for (CTimed *object : objects)
            window->addTimedObject(object);
    }
    static void fire(int id) { native().listener.handleTimer(id); }

    CTimed first{1}, second{2}, third{3}, otherSecond{2};
};

TEST_F(CWindowTimers, CallTheObjectsWithTheirId) {
    add({&first, &second, &otherSecond});
    fire(2);
    EXPECT_EQ(first.fired, 0);
    EXPECT_EQ(second.fired, 1);
    EXPECT_EQ(otherSecond.fired, 1);
}

TEST_F(CWindowTimers, StartNatively) {
    window->startTimer(7, 20);
    EXPECT_THAT(takeLog(), ElementsAre("start timer 7 20"));
}

TEST_F(CWindowTimers, CannotHaveTheIdZero) {
    window->destroyWindow();
    takeLog();
    try {
        window->startTimer(0, 20);
        FAIL() << "nothing was thrown";
    } catch (const CException &thrown) {
        EXPECT_STREQ(thrown.getErrorReason().getString(),
                     "Timer id's cannot be zero on Windows platforms");
        EXPECT_STREQ(thrown.getFunctionName().getString(),
                     "CWindow::startTimer(const long, const long)");
    }
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_F(CWindowTimers, StopOnlyIfAnObjectHasTheId) {
    add({&first});
    window->stopTimer(2);
    EXPECT_THAT(takeLog(), IsEmpty());
    window->stopTimer(1);
    EXPECT_THAT(takeLog(), ElementsAre("stop timer 1"));
}

TEST_F(CWindowTimers, OfARemovedObjectStopAndTheOthersStay) {
    add({&first, &second, &third});
    window->removeTimedObject(&second);
    EXPECT_THAT(takeLog(), ElementsAre("stop timer 2"));
    EXPECT_EQ(window->getTimedObjects().getArraySize(), 2);
    EXPECT_EQ(window->getTimedObjects().elementAtIndex(1), &third);
    for (const int id : {1, 2, 3})
        fire(id);
    EXPECT_EQ(first.fired + 10 * second.fired + 100 * third.fired, 101);
    window->stopAllTimers();
    EXPECT_THAT(takeLog(), ElementsAre("stop timer 1", "stop timer 3"));
}

TEST_F(CWindowTimers, IgnoreAnObjectThatWasNotAdded) {
    add({&second});
    window->removeTimedObject(&otherSecond);
    window->removeTimedObject(nullptr);
    window->addTimedObject(nullptr);
    EXPECT_EQ(window->getTimedObjects().getInsertIndex(), 1);
    EXPECT_THAT(takeLog(), IsEmpty());
    fire(2);
    EXPECT_EQ(second.fired, 1);
}

TEST_F(CWindowTimers, AllStopWithTheWindow) {
    add({&first, &third});
    window->destroyWindow();
    EXPECT_THAT(takeLog(),
                ElementsAre("destroying", "stop timer 1", "stop timer 3", "unhook", "destroy"));
    create();
    fire(1);
    EXPECT_EQ(first.fired, 0);
}

TEST_F(CWindowTimers, EndWithTheNativeWindow) {
    add({&first});
    native().listener.handleNativeDestroyed();
    create();
    fire(1);
    EXPECT_EQ(first.fired, 0);
}

TEST_F(CWindowTimers, AnObjectMayRemoveItselfAndTheNextIsStillCalled) {
    add({&second, &otherSecond});
    second.onFired = [this] { window->removeTimedObject(&second); };
    fire(2);
    fire(2);
    EXPECT_EQ(second.fired, 1);
    EXPECT_EQ(otherSecond.fired, 2);
}

TEST_F(CWindowTimers, AnObjectMayRemoveTheNextOne) {
    add({&second, &otherSecond});
    second.onFired = [this] { window->removeTimedObject(&otherSecond); };
    fire(2);
    EXPECT_EQ(otherSecond.fired, 0);
}

TEST_F(CWindowTimers, AnObjectThatAddsItselfAgainIsCalledOnce) {
    add({&second});
    second.onFired = [this] {
        window->removeTimedObject(&second);
        window->addTimedObject(&second);
    };
    fire(2);
    EXPECT_EQ(second.fired, 1);
}

TEST_F(CWindowTimers, MayDeleteTheWindow) {
    add({&second, &otherSecond});
    second.onFired = [this] { deleteWindow(); };
    fire(2);
    EXPECT_EQ(otherSecond.fired, 0);
}

}  // namespace
