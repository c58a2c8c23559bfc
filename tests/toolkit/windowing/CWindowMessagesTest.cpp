// The message procedure of a window.
#include "CWindowFixture.h"
#include "toolkit/controls/CControlPanel.h"
#include "toolkit/events/INativeChildHolder.h"

namespace {

using Tessitor::GUI::Controls::CControlPanel;
using Tessitor::GUI::Events::CMouseEvent;
using Tessitor::GUI::Graphics::CGraphics;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

constexpr std::nullopt_t byDefault = std::nullopt;
constexpr unsigned otherMessage = 1234;

class CWindowMessages : public CWindowFixture {
protected:
    CWindowMessages() { createAndListen(); }
};

TEST_F(CWindowMessages, OthersAreLeftToTheSystem) {
    for (const unsigned message : {otherMessage, 1u, 6u, 129u, 258u, 518u, 519u})
        EXPECT_EQ(send(message), byDefault) << message;
    EXPECT_THAT(takeLog(), IsEmpty());
}

// The window

TEST_F(CWindowMessages, DestroyAsksTheListenerAndUnhooksTheWheel) {
    EXPECT_EQ(send(NativeDestroy), byDefault);
    EXPECT_THAT(takeLog(), ElementsAre("closed", "unhook"));
}

TEST_F(CWindowMessages, DestroyCanBeRefused) {
    listener.mayClose = false;
    EXPECT_EQ(send(NativeDestroy), -1);
    EXPECT_THAT(takeLog(), ElementsAre("closed"));
}

TEST_F(CWindowMessages, DestroyNeedsNoListener) {
    window->setWindowChangeListener(nullptr);
    EXPECT_EQ(send(NativeDestroy), byDefault);
    EXPECT_THAT(takeLog(), ElementsAre("unhook"));
}

TEST_F(CWindowMessages, CloseAsksTheListener) {
    EXPECT_EQ(send(NativeClose), byDefault);
    EXPECT_THAT(takeLog(), ElementsAre("closed"));
    window->setWindowChangeListener(nullptr);
    EXPECT_EQ(send(NativeClose), byDefault);
}

TEST_F(CWindowMessages, ARefusedCloseKeepsTheWindow) {
    listener.mayClose = false;
    EXPECT_EQ(send(NativeClose), -1);
    EXPECT_NE(window->getWindowHandle()->native, nullptr);
}

TEST_F(CWindowMessages, MoveStoresTheSignedPosition) {
    EXPECT_EQ(send(NativeMove, 0, packed(-7, 300)), byDefault);
    EXPECT_EQ(window->getWindowPosition(), CPoint(-7, 300));
    EXPECT_EQ(textOf(window->getWindowRect()), "-7,300,100,50");
    EXPECT_THAT(takeLog(), ElementsAre("moved -7,300"));
}

TEST_F(CWindowMessages, SizeStoresTheSize) {
    EXPECT_EQ(send(NativeSize, 0, packed(40000, 50000)), byDefault);
    EXPECT_EQ(window->getWindowSize().getWidth(), 40000);
    EXPECT_EQ(textOf(window->getWindowRect()), "10,20,40000,50000");
    EXPECT_THAT(takeLog(), ElementsAre("size 40000x50000"));
}

TEST_F(CWindowMessages, MovesAndSizesNeedNoListener) {
    window->setWindowChangeListener(nullptr);
    EXPECT_EQ(send(NativeMove, 0, packed(1, 2)), byDefault);
    EXPECT_EQ(send(NativeSize, 0, packed(3, 4)), byDefault);
    EXPECT_EQ(textOf(window->getWindowRect()), "1,2,3,4");
}

TEST_F(CWindowMessages, FocusTakesTheWheelHook) {
    EXPECT_EQ(send(NativeSetFocus), byDefault);
    EXPECT_THAT(takeLog(), ElementsAre("gained focus", "unhook", "hook"));
    EXPECT_EQ(send(NativeKillFocus), byDefault);
    EXPECT_THAT(takeLog(), ElementsAre("lost focus"));
}

TEST_F(CWindowMessages, FocusNeedsNoListener) {
    window->setFocusListener(nullptr);
    EXPECT_EQ(send(NativeSetFocus), byDefault);
    EXPECT_EQ(send(NativeKillFocus), byDefault);
    EXPECT_THAT(takeLog(), ElementsAre("unhook", "hook"));
}

TEST_F(CWindowMessages, ErasingAndTimersAreDone) {
    EXPECT_EQ(send(NativeEraseBackground), 1);
    EXPECT_EQ(send(NativeTimer, 5), 0);
    EXPECT_THAT(takeLog(), IsEmpty());
}

// Painting

class CWindowPainting : public CWindowFixture {
protected:
    CWindowPainting() {
        attributes.setBackgroundColour({10, 20, 30});
        create();
        fakeNatives().screen = createNativeSurface(nullptr, 100, 50, {255, 255, 255});
        native().dirty = {20, 10, 60, 30};
    }
    static SNativeColour pixel(int x, int y) { return fakeNatives().screen->getPixel({x, y}); }
};

TEST_F(CWindowPainting, DrawsTheControlsThatAreDirty) {
    CSpyControl *control = addControl(CRect(50, 0, 30, 50));
    control->onDraw = [](CGraphics &graphics) {
        graphics.getBrush().setColour({200, 0, 0});
        graphics.fillRectangle(CRect(-100, -100, 300, 300));
    };
    EXPECT_EQ(send(NativePaint), 0);
    EXPECT_THAT(events, ElementsAre("control: draw 0,10,10,20"));
    EXPECT_EQ(pixel(55, 15), (SNativeColour{200, 0, 0}));
    EXPECT_EQ(pixel(30, 15), (SNativeColour{10, 20, 30}));
    EXPECT_EQ(pixel(70, 15), (SNativeColour{255, 255, 255}));
    EXPECT_EQ(pixel(30, 35), (SNativeColour{255, 255, 255}));
}

TEST_F(CWindowPainting, MayDeleteTheWindow) {
    CSpyControl *control = addControl(CRect(50, 0, 30, 50));
    const auto isDestroyed = std::make_shared<bool>(false);
    control->isDestroyed = isDestroyed;
    control->onDraw = [&](CGraphics &graphics) {
        deleteWindow();
        EXPECT_FALSE(*isDestroyed);
        graphics.fillRectangle(CRect(0, 0, 100, 100));
    };
    EXPECT_EQ(send(NativePaint), 0);
    EXPECT_TRUE(*isDestroyed);
}

// Mouse

struct SMouseMessage {
    unsigned message;
    const char *event;
    bool tracksLeaving;
    std::optional<std::intptr_t> withoutListener;
};

class CWindowMouse : public CWindowFixture, public testing::WithParamInterface<SMouseMessage> {
protected:
    CWindowMouse() { createAndListen(); }
};

TEST_P(CWindowMouse, ReachesTheListenerWithPositionAndModifiers) {
    const auto &[message, event, tracksLeaving, withoutListener] = GetParam();
    fakeNatives().modifiers = {true, false, true};
    EXPECT_EQ(send(message, 0, packed(-3, 40)), 0);
    EventLog expected;
    if (tracksLeaving)
        expected.emplace_back("track leave");
    expected.push_back(std::string(event) + " " + std::to_string(message) +
                       " at -3,40 control alt");
    EXPECT_EQ(takeLog(), expected);
    fakeNatives().modifiers = {false, true, false};
    send(message, 0, packed(1, 2));
    EXPECT_EQ(takeLog().back(),
              std::string(event) + " " + std::to_string(message) + " at 1,2 shift");
}

TEST_P(CWindowMouse, DoesNothingWithoutAListener) {
    window->setMouseListener(nullptr);
    EXPECT_EQ(send(GetParam().message, 0, packed(1, 2)), GetParam().withoutListener);
    EXPECT_THAT(takeLog(), IsEmpty());
    EXPECT_EQ(fakeNativeMouse().captureWindow, nullptr);
}

INSTANTIATE_TEST_SUITE_P(Messages, CWindowMouse,
                         testing::Values(SMouseMessage{512, "movement", true, {}},
                                         SMouseMessage{513, "left down", true, -1},
                                         SMouseMessage{514, "left up", false, -1},
                                         SMouseMessage{515, "double click", false, {}},
                                         SMouseMessage{516, "right down", true, -1},
                                         SMouseMessage{517, "right up", false, -1},
                                         SMouseMessage{675, "leaving", false, {}}));

TEST_F(CWindowMessages, TheSameMouseEventIsUsedEachTime) {
    send(NativeLeftDown);
    const CMouseEvent *first = listener.lastMouseEvent;
    send(NativeMouseMove);
    EXPECT_EQ(listener.lastMouseEvent, first);
}

TEST_F(CWindowMessages, AButtonCapturesTheMouseUntilItComesUp) {
    for (const auto &[down, up] :
         {std::pair(NativeLeftDown, NativeLeftUp), std::pair(NativeRightDown, NativeRightUp)}) {
        send(down);
        EXPECT_EQ(fakeNativeMouse().captureWindow, native().getHandle());
        send(up);
        EXPECT_EQ(fakeNativeMouse().captureWindow, nullptr);
    }
}

TEST_F(CWindowMessages, AButtonLeavesTheCaptureOfAnotherWindow) {
    int other = 0;
    fakeNativeMouse().captureWindow = &other;
    send(NativeLeftDown);
    EXPECT_EQ(fakeNativeMouse().captureWindow, &other);
}

TEST_F(CWindowMessages, AButtonThatComesUpEndsTheCaptureOfAnyWindow) {
    int other = 0;
    fakeNativeMouse().captureWindow = &other;
    send(NativeLeftUp);
    EXPECT_EQ(fakeNativeMouse().captureWindow, nullptr);
}

TEST_F(CWindowMessages, ALeftUpWithoutCaptureStillReachesTheListener) {
    EXPECT_EQ(send(NativeLeftUp, 0, packed(4, 5)), 0);
    EXPECT_THAT(takeLog(), ElementsAre("left up 514 at 4,5"));
}

TEST_F(CWindowMessages, TheWheelIsAtTheMouseOnTheScreen) {
    native().screenArea = {1000, 500, 1100, 550};
    fakeNativeMouse().position = {1030, 510};
    fakeNatives().modifiers = {false, true, false};
    EXPECT_EQ(send(NativeMouseWheel, 0xFF88FFFF, packed(7, 8)), 0);
    EXPECT_THAT(takeLog(), ElementsAre("scroll -1.000000 522 at 30,10 shift"));
    EXPECT_EQ(send(NativeMouseWheel, 60u << 16, 0), 0);
    EXPECT_THAT(takeLog(), ElementsAre("scroll 0.500000 522 at 30,10 shift"));
}

TEST_F(CWindowMessages, TheWheelNeedsAListener) {
    window->setMouseListener(nullptr);
    EXPECT_EQ(send(NativeMouseWheel, 120u << 16), -1);
}

TEST_F(CWindowMessages, ReachTheControls) {
    window->setMouseListener(window->getControlRoot());
    addControl(CRect(20, 10, 30, 30));
    EXPECT_EQ(send(NativeLeftDown, 0, packed(25, 12)), 0);
    EXPECT_EQ(send(NativeMouseMove, 0, packed(90, 45)), 0);
    EXPECT_THAT(events, ElementsAre("control: left down 5,2"));
}

// Keys

TEST_F(CWindowMessages, APrintableKeyComesWithItsCharacter) {
    fakeNatives().modifiers = {true, true, false};
    fakeNatives().character = {1, 'A'};
    EXPECT_EQ(send(NativeKeyDown, 65), 0);
    EXPECT_EQ(send(NativeKeyUp, 65), 0);
    EXPECT_THAT(takeLog(), ElementsAre("down 'A' 56 control shift", "up 'A' 56 control shift"));
}

TEST_F(CWindowMessages, AKeyThatIsNotUsedGivesOne) {
    listener.usesKeys = false;
    fakeNatives().character = {1, 'a'};
    EXPECT_EQ(send(NativeKeyDown, 65), 1);
    EXPECT_EQ(send(NativeKeyUp, 65), 1);
}

TEST_F(CWindowMessages, OtherKeysAreSpecial) {
    fakeNatives().character = {1, '\b'};
    send(NativeKeyDown, 8);
    fakeNatives().character = {0, '\0'};
    send(NativeKeyDown, 112);
    fakeNatives().character = {-1, '^'};
    send(NativeKeyUp, 220);
    EXPECT_THAT(takeLog(),
                ElementsAre("down '\b' 0 special", "down '' 24 special", "up '^' 56 special"));
}

TEST_F(CWindowMessages, KeysNeedAListener) {
    window->setKeyboardListener(nullptr);
    EXPECT_EQ(send(NativeKeyDown, 65), 1);
    EXPECT_EQ(send(NativeKeyUp, 65), 1);
}

TEST_F(CWindowMessages, CaughtKeysReachTheListener) {
    fakeNatives().character = {1, 'x'};
    EXPECT_TRUE(window->handleKeyboardHook(0, 88, 0));
    EXPECT_TRUE(window->handleKeyboardHook(0, 88, 0x80000000));
    fakeNatives().character = {-1, '^'};
    EXPECT_TRUE(window->handleKeyboardHook(0, 220, 0));
    EXPECT_THAT(takeLog(), ElementsAre("down 'x' 56", "up 'x' 56", "down ' ' 56 special"));
}

TEST_F(CWindowMessages, CaughtKeysCanBePassedOn) {
    EXPECT_FALSE(window->handleKeyboardHook(-1, 88, 0));
    EXPECT_THAT(takeLog(), IsEmpty());
    listener.usesKeys = false;
    EXPECT_FALSE(window->handleKeyboardHook(0, 88, 0));
    window->setKeyboardListener(nullptr);
    EXPECT_FALSE(window->handleKeyboardHook(0, 88, 0));
}

// Dropped files

TEST_F(CWindowMessages, DroppedFilesReachTheListener) {
    fakeNatives().drop = {{"one", "two"}, {7, 8}};
    EXPECT_EQ(send(NativeDropFiles, 42), 0);
    EXPECT_THAT(takeLog(), ElementsAre("read drop 42", "drop 7,8 one two", "finish drop 42",
                                       "bring to front"));
}

TEST_F(CWindowMessages, DropsNeedAListenerButAreFreed) {
    window->setDropFileListener(nullptr);
    EXPECT_EQ(send(NativeDropFiles, 42), -1);
    EXPECT_THAT(takeLog(), ElementsAre("finish drop 42"));
}

// Child windows

class CHolder : public CSpyControl, public Tessitor::GUI::Windowing::INativeChildHolder {
public:
    CHolder(Tessitor::GUI::Controls::IControlRoot *root, EventLog &log, void *child)
        : CSpyControl(root, "holder", CRect(0, 0, 5, 5), log), m_child(child) {}
    bool holdsNativeChild(void *child) const override { return child == m_child; }
    std::intptr_t colourNativeChild(void *deviceContext) override {
        return reinterpret_cast<std::intptr_t>(deviceContext) + 1;
    }

private:
    using CRect = Tessitor::MathTools::CRect;
    void *m_child;
};

TEST_F(CWindowMessages, AChildWindowGetsTheColoursOfItsControl) {
    int first = 0, second = 0;
    const auto firstChild = reinterpret_cast<std::intptr_t>(&first);
    const auto secondChild = reinterpret_cast<std::intptr_t>(&second);
    addControl(CRect(0, 0, 5, 5));
    auto *panel =
        new CControlPanel(window, window->getControlRoot(), 0, CRect(0, 0, 9, 9), nullptr);
    window->getControlRoot()->addControl(panel);
    window->getControlRoot()->addControl(new CHolder(window->getControlRoot(), events, &first));
    for (const unsigned message : {307u, 312u}) {
        EXPECT_EQ(send(message, 100, firstChild), 101);
        EXPECT_EQ(send(message, 100, secondChild), -1);
    }
    panel->addControl(new CHolder(panel, events, &second));
    EXPECT_EQ(send(307, 100, secondChild), 101);
}

TEST_F(CWindowMessages, AChildWindowGetsTheColoursOfAModalControl) {
    int child = 0;
    window->getControlRoot()->setModalControl(
        new CHolder(window->getControlRoot(), events, &child));
    EXPECT_EQ(send(307, 100, reinterpret_cast<std::intptr_t>(&child)), 101);
}

// Windows that go away inside a handler

struct SDeletion {
    unsigned message;
    std::optional<std::intptr_t> result;
};

class CWindowDeletion : public CWindowFixture, public testing::WithParamInterface<SDeletion> {
protected:
    CWindowDeletion() {
        createAndListen();
        addControl(CRect(0, 0, 100, 50));
    }
};

TEST_P(CWindowDeletion, MayHappenInsideAnyHandler) {
    fakeNatives().drop = {{"one"}, {7, 8}};
    listener.onEvent = [this] {
        listener.onEvent = nullptr;
        deleteWindow();
    };
    EXPECT_EQ(send(GetParam().message, 0, 0), GetParam().result);
    EXPECT_TRUE(isDeleted);
    EXPECT_THAT(takeLog(), Not(Contains("bring to front")));
}

TEST_P(CWindowDeletion, MayBeADestructionOnly) {
    fakeNatives().drop = {{"one"}, {7, 8}};
    listener.onEvent = [this] {
        listener.onEvent = nullptr;
        window->destroyWindow();
    };
    EXPECT_EQ(send(GetParam().message, 0, 0), GetParam().result);
    EXPECT_EQ(window->getWindowHandle()->native, nullptr);
    EXPECT_THAT(takeLog(), Not(Contains("bring to front")));
}

INSTANTIATE_TEST_SUITE_P(Messages, CWindowDeletion,
                         testing::Values(SDeletion{2, {}}, SDeletion{3, {}}, SDeletion{5, {}},
                                         SDeletion{7, {}}, SDeletion{8, {}}, SDeletion{16, {}},
                                         SDeletion{256, 0}, SDeletion{257, 0}, SDeletion{512, 0},
                                         SDeletion{513, 0}, SDeletion{514, 0}, SDeletion{515, 0},
                                         SDeletion{516, 0}, SDeletion{517, 0}, SDeletion{522, 0},
                                         SDeletion{563, 0}, SDeletion{675, 0}));

class CWindowRoot : public CWindowFixture {
protected:
    CWindowRoot() {
        create();
        control = addControl(CRect(20, 10, 30, 30));
        control->isDestroyed = isDestroyed;
    }

    CSpyControl *control;
    std::shared_ptr<bool> isDestroyed = std::make_shared<bool>(false);
};

TEST_F(CWindowRoot, OutlivesItsOwnDispatch) {
    control->onMouse = [this](CMouseEvent &event) {
        deleteWindow();
        EXPECT_FALSE(*isDestroyed);
        EXPECT_EQ(event.getMousePosition(), CPoint(5, 2));
        control->update();
        control->getControlRoot()->getParentWindow()->stopTimer(1);
    };
    EXPECT_EQ(send(NativeLeftDown, 0, packed(25, 12)), 0);
    EXPECT_TRUE(*isDestroyed);
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
}

TEST_F(CWindowRoot, OutlivesTheDispatchOfAPanel) {
    auto *panel =
        new CControlPanel(window, window->getControlRoot(), 0, CRect(60, 0, 30, 30), nullptr);
    window->getControlRoot()->addControl(panel);
    auto *inner = new CSpyControl(panel, "inner", CRect(1, 1, 20, 20), events);
    panel->addControl(inner);
    inner->onMouse = [&](CMouseEvent &) {
        deleteWindow();
        inner->update();
        EXPECT_FALSE(*isDestroyed);
    };
    EXPECT_EQ(send(NativeLeftUp, 0, packed(65, 5)), 0);
    EXPECT_TRUE(*isDestroyed);
}

TEST_F(CWindowRoot, OutlivesTheDispatchOfAModalPanel) {
    auto *panel =
        new CControlPanel(window, window->getControlRoot(), 0, CRect(0, 0, 100, 50), nullptr);
    window->getControlRoot()->setModalControl(panel);
    auto *inner = new CSpyControl(panel, "inner", CRect(0, 0, 100, 50), events);
    panel->addControl(inner);
    inner->onMouse = [&](CMouseEvent &) {
        const auto *gone = window;
        deleteWindow();
        EXPECT_NE(inner->getControlRoot()->getParentWindow(), gone);
    };
    EXPECT_EQ(send(NativeLeftUp, 0, packed(65, 5)), 0);
    EXPECT_TRUE(isDeleted);
}

TEST_F(CWindowRoot, OutlivesItsOwnDispatchOfKeysAndDrops) {
    send(NativeMouseMove, 0, packed(25, 12));
    control->onKey = [this] {
        deleteWindow();
        EXPECT_FALSE(*isDestroyed);
        return true;
    };
    EXPECT_EQ(send(NativeKeyDown, 65), 0);
    EXPECT_TRUE(*isDestroyed);
}

TEST_F(CWindowRoot, IsGoneAfterTheOutermostOfNestedMessages) {
    CFakeNativeWindow *const nativeWindow = &native();
    int depth = 0;
    control->onMouse = [&](CMouseEvent &) {
        if (depth++ == 0) {
            EXPECT_EQ(nativeWindow->listener.handleMessage(NativeLeftUp, 0, packed(30, 15)), 0);
            EXPECT_FALSE(*isDestroyed);
        } else {
            deleteWindow();
        }
    };
    EXPECT_EQ(send(NativeLeftDown, 0, packed(25, 12)), 0);
    EXPECT_EQ(depth, 2);
    EXPECT_TRUE(*isDestroyed);
}

TEST_F(CWindowRoot, OutlivesTheLastReferenceToItsWindow) {
    window->reference();
    window->onDeletion = [this] { isDeleted = true; };
    control->onMouse = [this](CMouseEvent &) {
        window->dereference();
        EXPECT_TRUE(isDeleted);
        EXPECT_FALSE(*isDestroyed);
    };
    send(NativeLeftDown, 0, packed(25, 12));
    EXPECT_TRUE(*isDestroyed);
}

TEST_F(CWindowRoot, ANestedMessageKeepsItsOwnPosition) {
    control->onMouse = [this](CMouseEvent &) {
        control->onMouse = nullptr;
        send(NativeMouseMove, 0, packed(30, 15));
    };
    send(NativeLeftDown, 0, packed(25, 12));
    EXPECT_THAT(events, ElementsAre("control: left down 5,2", "control: move 10,5"));
}

TEST_F(CWindowRoot, TheEndOfTheNativeWindowReportsMayDeleteTheWindow) {
    listen();
    listener.onEvent = [this] {
        listener.onEvent = nullptr;
        deleteWindow();
    };
    fakeNatives().onDestroy = [](INativeWindowListener &reported) {
        fakeNatives().onDestroy = nullptr;
        reported.handleMessage(NativeDestroy, 0, 0);
    };
    window->destroyWindow();
    EXPECT_TRUE(*isDestroyed);
}

}  // namespace
