#include "Allocation.h"
#include "CTestEditor.h"
#include "hostlayer/ProbeEffect.h"

#include <array>
#include <future>
#include <memory>
#include <stdexcept>
#include <thread>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

void onAnotherThread(const std::function<void()> &action) {
    std::thread(action).join();
}

/// An effect with two values.
class CEffectWithValues : public ProbeEffect {
public:
    float getParameter(int index) override { return values.at(static_cast<std::size_t>(index)); }

    std::array<float, 2> values{};
};

/// An editor of two parameters that this thread has created.
class CVstWindowThreads : public testing::Test {
protected:
    CVstWindowThreads() { fakeNatives() = SFakeNatives(); }

    void change(int id, float value) {
        effect.values.at(static_cast<std::size_t>(id)) = value;
        editor->handleParameterChange(id, value);
    }
    void setElsewhere(int id, float value) {
        onAnotherThread([=, this] { change(id, value); });
    }

    CEffectWithValues effect;
    CTestEditor *editor = new CTestEditor(&effect);  // owned by the effect
    int host = 0;
};

TEST_F(CVstWindowThreads, ShowAtOnceWhatTheGuiThreadSets) {
    onAnotherThread([this] {
        editor->open(&host);
        change(1, 0.5f);
        EXPECT_THAT(editor->takeShown(), ElementsAre("1=0.500000"));
        editor->close();
    });
}

TEST_F(CVstWindowThreads, ShowAtOnceWhatTheCreatorSetsWhileTheWindowIsClosed) {
    change(1, 0.5f);
    EXPECT_THAT(editor->takeShown(), ElementsAre("1=0.500000"));
    editor->open(&host);
    editor->close();
    change(0, 0.25f);
    EXPECT_THAT(editor->takeShown(), ElementsAre("0=0.250000"));
}

TEST_F(CVstWindowThreads, ShowWhatOthersSetAtTheNextIdle) {
    editor->open(&host);
    setElsewhere(1, 0.25f);
    setElsewhere(1, 0.5f);
    setElsewhere(0, 1.0f);
    EXPECT_THAT(editor->shown, IsEmpty());
    editor->idle();
    EXPECT_THAT(editor->takeShown(), ElementsAre("0=1.000000", "1=0.500000"));
    editor->idle();
    EXPECT_THAT(editor->shown, IsEmpty());
}

TEST_F(CVstWindowThreads, ShowWhatTheCreatorSetsAtTheNextIdleIfAnotherHasOpenedTheWindow) {
    std::promise<void> opened, set;
    std::thread gui([&] {
        editor->open(&host);
        opened.set_value();
        set.get_future().wait();
        EXPECT_THAT(editor->shown, IsEmpty());
        editor->idle();
        EXPECT_THAT(editor->shown, ElementsAre("1=0.500000"));
        editor->close();
    });
    opened.get_future().wait();
    change(1, 0.5f);
    set.set_value();
    gui.join();
}

TEST_F(CVstWindowThreads, ShowWhatOthersSetBeforeTheWindowIsCreated) {
    setElsewhere(1, 0.5f);
    EXPECT_THAT(editor->shown, IsEmpty());
    editor->onShow = [] { fakeNatives().log.emplace_back("shown"); };
    editor->open(&host);
    EXPECT_THAT(editor->shown, ElementsAre("1=0.500000"));
    EXPECT_EQ(fakeNatives().log.at(0), "shown");
}

TEST_F(CVstWindowThreads, ShowWhatOthersSetWhenAClosedEditorIdles) {
    setElsewhere(1, 0.5f);
    editor->idle();
    EXPECT_THAT(editor->shown, ElementsAre("1=0.500000"));
}

TEST_F(CVstWindowThreads, DoNotWaitForAnotherThatOpensTheWindow) {
    std::promise<void> opening, set;
    editor->onAttach = [&] {
        opening.set_value();
        set.get_future().wait();
    };
    std::thread gui([&] {
        editor->open(&host);
        EXPECT_THAT(editor->shown, ElementsAre("1=0.500000"));
        editor->close();
    });
    opening.get_future().wait();
    change(1, 0.5f);
    EXPECT_THAT(editor->shown, IsEmpty());
    set.set_value();
    gui.join();
}

TEST_F(CVstWindowThreads, MayChangeParametersFromTheHandlersOfAnOpening) {
    editor->onAttach = [this] { change(0, 0.25f); };
    editor->onWindowMade = [this] { change(1, 0.5f); };
    editor->open(&host);
    EXPECT_THAT(editor->shown, ElementsAre("0=0.250000", "1=0.500000"));
}

TEST_F(CVstWindowThreads, ShowNoOlderValueAfterANewerOne) {
    setElsewhere(1, 0.25f);
    change(1, 0.5f);
    editor->open(&host);
    EXPECT_THAT(editor->takeShown(), ElementsAre("1=0.500000", "1=0.500000"));
    setElsewhere(1, 0.25f);
    change(1, 0.75f);
    editor->idle();
    EXPECT_THAT(editor->takeShown(), ElementsAre("1=0.750000", "1=0.750000"));
}

// Of two threads that set a parameter, the first to store may be the last to report.
TEST_F(CVstWindowThreads, ShowWhatTheEffectHasIfReportsComeInTheWrongOrder) {
    editor->open(&host);
    effect.values[1] = 0.75f;
    onAnotherThread([this] { editor->handleParameterChange(1, 0.25); });
    editor->idle();
    EXPECT_THAT(editor->takeShown(), ElementsAre("1=0.750000"));
    onAnotherThread([this] { editor->handleParameterChange(1, 0.75); });
    editor->handleParameterChange(1, 0.25);
    editor->idle();
    EXPECT_THAT(editor->takeShown(), ElementsAre("1=0.250000", "1=0.750000"));
}

TEST_F(CVstWindowThreads, DoNotShowTheEditorItsOwnChanges) {
    editor->open(&host);
    editor->setIsEditing(true);
    change(0, 0.5f);
    setElsewhere(1, 1.0f);
    editor->setIsEditing(false);
    editor->idle();
    EXPECT_THAT(editor->shown, ElementsAre("1=1.000000"));
}

// The system gives the new thread the id of the one that has ended.
TEST_F(CVstWindowThreads, AreNotTakenForACreatorThatHasEnded) {
    std::unique_ptr<CTestEditor> other;
    onAnotherThread([&] { other = std::make_unique<CTestEditor>(&effect); });
    for (int i = 0; i < 10; ++i)
        onAnotherThread([&] { other->handleParameterChange(1, 0.5); });
    EXPECT_THAT(other->shown, IsEmpty());
    other.reset();
    effect.setEditor(editor);
}

TEST_F(CVstWindowThreads, DoNotAllocateUnlessTheyMayShowTheValue) {
    const auto countElsewhere = [this] {
        onAnotherThread([this] {
            const std::uint64_t before = allocationsOfThisThread();
            for (int i = 0; i < 100; ++i)
                editor->handleParameterChange(i % 2, i / 100.0);
            EXPECT_EQ(allocationsOfThisThread(), before);
        });
    };
    countElsewhere();
    editor->open(&host);
    countElsewhere();
    editor->close();
    countElsewhere();
}

TEST_F(CVstWindowThreads, SurviveAValueThatCannotBeShown) {
    editor->onShow = [] { throw std::runtime_error("cannot be shown"); };
    change(0, 0.5f);
    setElsewhere(0, 0.25f);
    setElsewhere(1, 0.25f);
    EXPECT_TRUE(editor->open(&host));
    change(1, 0.5f);
    setElsewhere(0, 0.75f);
    editor->idle();
    EXPECT_THAT(editor->shown,
                ElementsAre("0=0.500000", "0=0.250000", "1=0.250000", "1=0.500000", "0=0.750000"));
}

// Idling

TEST_F(CVstWindowThreads, LetTheEditorActAtTheEndOfIdle) {
    setElsewhere(1, 0.5f);
    editor->idle();
    EXPECT_EQ(editor->idles, 1);
    EXPECT_EQ(editor->shownBeforeIdle, 1u);
    editor->open(&host);
    onAnotherThread([this] { editor->idle(); });
    EXPECT_EQ(editor->idles, 1);
    editor->idle();
    EXPECT_EQ(editor->idles, 2);
}

TEST_F(CVstWindowThreads, PumpBeforeTheyShowValues) {
    editor->open(&host);
    setElsewhere(1, 0.5f);
    fakeNatives().takeLog();
    editor->onShow = [] { fakeNatives().log.emplace_back("shown"); };
    editor->idle();
    EXPECT_THAT(fakeNatives().takeLog(), ElementsAre("pump", "shown"));
    editor->close();
    fakeNatives().takeLog();
    editor->idle();
    EXPECT_THAT(fakeNatives().takeLog(), IsEmpty());
}

TEST_F(CVstWindowThreads, IdleOnlyOnTheGuiThread) {
    editor->open(&host);
    setElsewhere(1, 0.5f);
    fakeNatives().takeLog();
    onAnotherThread([this] { editor->idle(); });
    EXPECT_THAT(fakeNatives().takeLog(), IsEmpty());
    EXPECT_THAT(editor->shown, IsEmpty());
}

TEST_F(CVstWindowThreads, MayCloseTheEditorWhileItIsPumped) {
    editor->open(&host);
    setElsewhere(1, 0.5f);
    fakeNatives().onPump = [this](INativeWindowListener &) { editor->close(); };
    editor->idle();
    EXPECT_FALSE(editor->isOpen());
    EXPECT_THAT(editor->shown, ElementsAre("1=0.500000"));
}

TEST_F(CVstWindowThreads, MayLoseTheNativeWindowWhileItIsPumped) {
    editor->open(&host);
    setElsewhere(1, 0.5f);
    fakeNatives().onPump = [](INativeWindowListener &listener) {
        listener.handleNativeDestroyed();
    };
    editor->idle();
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
    EXPECT_THAT(editor->shown, ElementsAre("1=0.500000"));
    fakeNatives().takeLog();
    editor->idle();
    EXPECT_THAT(fakeNatives().takeLog(), IsEmpty());
}

TEST_F(CVstWindowThreads, MayDeleteTheEditorWhileItIsPumped) {
    editor->open(&host);
    setElsewhere(1, 0.5f);
    fakeNatives().onPump = [this](INativeWindowListener &) { delete editor; };
    editor->idle();
    EXPECT_EQ(effect.getEditor(), nullptr);
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
}

}  // namespace
