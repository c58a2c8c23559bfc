#include "CWindowFixture.h"
#include "foundation/CApplicationInformation.h"
#include "foundation/CException.h"
#include "platform/NativeMessageLoop.h"

namespace {

using Tessitor::Basics::CApplicationInformation;
using Tessitor::Exceptions::CException;
using Tessitor::GUI::Windowing::IWindow;
using Tessitor::MathTools::CPoint;
using Tessitor::MathTools::CRect;
using testing::ElementsAre;
using testing::IsEmpty;

class CWindow : public CWindowFixture {};

TEST_F(CWindow, IsCreatedWithItsAttributes) {
    CApplicationInformation::setApplicationInformation("", "Strip", "", "", "", "", nullptr);
    int handle = 0;
    auto *icon = new Tessitor::GUI::Graphics::CWindowIcon(static_cast<void *>(&handle));
    attributes.setWindowTitle("Title");
    attributes.setWindowStyles(0x50000000, 16);
    attributes.setDropShadow(true);
    attributes.setWindowIcon(icon);
    Tessitor::GUI::Windowing::CWindow parent(CRect(0, 0, 10, 10));
    parent.getMutableWindowHandle()->native = &parent;
    window->setParentWindow(&parent);
    create();
    const SNativeWindowOptions &options = fakeNatives().lastOptions;
    EXPECT_EQ(options.className, "com.tessitor.Strip.Title");
    EXPECT_EQ(options.title, "Title");
    EXPECT_EQ(options.style, 0x50000000u);
    EXPECT_EQ(options.extendedStyle, 16u);
    EXPECT_TRUE(options.hasShadow);
    EXPECT_EQ(options.icon, &handle);
    EXPECT_EQ(options.parent, &parent);
    EXPECT_EQ(options.bounds.left, 10);
    EXPECT_EQ(options.bounds.top, 20);
    EXPECT_EQ(options.bounds.right, 110);
    EXPECT_EQ(options.bounds.bottom, 70);
    EXPECT_EQ(window->getWindowHandle()->native, native().getHandle());
    CApplicationInformation::destroyApplicationInformation();
}

TEST_F(CWindow, CreationTakesItsStepsInOrder) {
    attributes.setAlpha(0.5);
    attributes.setEnabled(false);
    window->setWindowAttributes(&attributes, true);
    EXPECT_THAT(takeLog(), ElementsAre("creating", "create", "hook", "alpha 127", "disable",
                                       "created", "show", "update"));
    EXPECT_EQ(window->getWindowAttributes()->getAlpha(), 0.5);
}

TEST_F(CWindow, IsHiddenUnlessAskedToShow) {
    window->setWindowAttributes(&attributes, false);
    EXPECT_THAT(takeLog(), ElementsAre("creating", "create", "hook", "alpha 255", "created"));
}

TEST_F(CWindow, IgnoresAttributesOnceCreated) {
    create();
    attributes.setWindowTitle("Later");
    window->setWindowAttributes(&attributes, true);
    EXPECT_THAT(takeLog(), IsEmpty());
    EXPECT_STREQ(window->getWindowAttributes()->getWindowTitle().getString(), "Application");
}

TEST_F(CWindow, IgnoresNullAttributes) {
    window->setWindowAttributes(nullptr, true);
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_F(CWindow, ARefusedWindowThrowsTheSystemsMessage) {
    fakeNatives().refusesWindows = true;
    fakeNatives().reason = "No more windows";
    try {
        window->setWindowAttributes(&attributes, true);
        FAIL() << "nothing was thrown";
    } catch (const CException &thrown) {
        EXPECT_STREQ(thrown.getErrorReason().getString(), "No more windows");
        EXPECT_STREQ(thrown.getFunctionName().getString(), "CWindow::createWindow()");
    }
    EXPECT_EQ(window->getWindowHandle()->native, nullptr);
}

TEST_F(CWindow, ARefusedKindOfWindowIsNotShown) {
    fakeNatives().refusesWindows = true;
    window->setWindowAttributes(&attributes, true);
    EXPECT_THAT(takeLog(), ElementsAre("creating", "create"));
}

TEST_F(CWindow, CanBeCreatedAgainAfterARefusal) {
    fakeNatives().refusesWindows = true;
    window->setWindowAttributes(&attributes, true);
    fakeNatives().refusesWindows = false;
    create();
    EXPECT_EQ(fakeNatives().windows.size(), 1u);
}

TEST_F(CWindow, GetsMessagesWhileItIsCreated) {
    listen();
    fakeNatives().onCreate = [](INativeWindowListener &created) {
        EXPECT_EQ(created.handleMessage(129, 0, 0), std::nullopt);
        EXPECT_EQ(created.handleMessage(NativeSize, 0, packed(30, 40)), std::nullopt);
        EXPECT_EQ(created.handleMessage(NativeSetFocus, 0, 0), std::nullopt);
        EXPECT_EQ(created.handleMessage(NativePaint, 0, 0), std::nullopt);
        EXPECT_EQ(created.handleMessage(NativeMouseMove, 0, packed(1, 2)), 0);
        EXPECT_EQ(created.handleMessage(NativeMouseWheel, 120u << 16, 0), 0);
        EXPECT_EQ(created.handleMessage(NativeDropFiles, 0, 0), 0);
    };
    create();
    EXPECT_EQ(window->getWindowSize().getWidth(), 30);
}

TEST_F(CWindow, DestructionTakesItsStepsInOrder) {
    create();
    window->destroyWindow();
    EXPECT_THAT(takeLog(), ElementsAre("destroying", "unhook", "destroy"));
    EXPECT_EQ(window->getWindowHandle()->native, nullptr);
    window->destroyWindow();
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_F(CWindow, CanBeCreatedAgain) {
    create();
    window->destroyWindow();
    create();
    EXPECT_EQ(window->getWindowHandle()->native, native().getHandle());
}

TEST_F(CWindow, ADragEndsWithTheNativeWindow) {
    CSpyControl *control = addControl(CRect(0, 0, 100, 50));
    for (const bool isOurs : {true, false}) {
        create();
        window->getControlRoot()->lockControl(control);
        if (isOurs)
            window->destroyWindow();
        else
            native().listener.handleNativeDestroyed();
        EXPECT_FALSE(window->getControlRoot()->controlIsLocked());
    }
}

TEST_F(CWindow, ItsDestructorDestroysTheNativeWindow) {
    create();
    deleteWindow();
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
}

TEST_F(CWindow, DoesNothingNativeUnlessCreated) {
    window->openWindow();
    window->closeWindow();
    window->updateWindow();
    window->enableWindow();
    window->disableWindow();
    window->redrawWindow();
    window->redrawWindow(CRect(1, 2, 3, 4));
    window->setWindowPosition(CPoint(1, 2));
    window->setWindowSize({3, 4});
    window->setWindowPositionAndSize(CRect(1, 2, 3, 4));
    window->setWindowAlpha(0.5);
    window->startTimer(1, 20);
    window->uninitialiseWindow();
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_F(CWindow, PassesOnWhatTheNativeWindowDoes) {
    create();
    window->openWindow();
    window->updateWindow();
    window->disableWindow();
    window->enableWindow();
    window->redrawWindow();
    window->redrawWindow(CRect(1, 2, 30, 40));
    EXPECT_THAT(takeLog(), ElementsAre("show", "update", "disable", "enable",
                                       "invalidate 0,0,100,50", "invalidate 1,2,31,42"));
}

TEST_F(CWindow, StoresItsAlphaAndTruncatesItForTheSystem) {
    create();
    window->setWindowAlpha(0.85);
    EXPECT_THAT(takeLog(), ElementsAre("alpha 216"));
    EXPECT_EQ(window->getWindowAttributes()->getAlpha(), 0.85);
}

TEST_F(CWindow, ClosingHidesItAndTellsItsListener) {
    createAndListen();
    listener.mayClose = false;
    window->closeWindow();
    EXPECT_THAT(takeLog(), ElementsAre("hide", "closed"));
}

TEST_F(CWindow, CanBeMovedAndResized) {
    createAndListen();
    window->setWindowPosition(CPoint(-5, 6));
    EXPECT_EQ(window->getWindowPosition(), CPoint(-5, 6));
    EXPECT_EQ(textOf(window->getWindowRect()), "-5,6,100,50");
    window->setWindowSize({70, 80});
    EXPECT_EQ(window->getWindowSize().getHeight(), 80);
    EXPECT_EQ(textOf(window->getWindowRect()), "-5,6,70,80");
    window->setWindowPositionAndSize(CRect(1, 2, 3, 4));
    EXPECT_EQ(textOf(window->getWindowRect()), "1,2,3,4");
    EXPECT_EQ(window->getWindowPosition(), CPoint(1, 2));
    EXPECT_EQ(window->getWindowSize().getWidth(), 3);
    EXPECT_THAT(takeLog(), ElementsAre("move -5,6", "moved -5,6", "place -5,6,65,86", "size 70x80",
                                       "place 1,2,4,6", "moved 1,2", "size 3x4"));
}

TEST_F(CWindow, AMoveMayDeleteIt) {
    createAndListen();
    listener.onEvent = [this] {
        listener.onEvent = nullptr;
        deleteWindow();
    };
    window->setWindowPositionAndSize(CRect(1, 2, 3, 4));
    EXPECT_THAT(takeLog(), testing::Not(testing::Contains("size 3x4")));
}

TEST_F(CWindow, TheMainWindowQuitsTheApplicationWhenItCloses) {
    CApplicationInformation::setMainWindow(window);
    EXPECT_TRUE(window->windowClosed(window));
    CApplicationInformation::setMainWindow(nullptr);
    EXPECT_EQ(CApplicationInformation::runMessageLoop(), 0);
}

TEST_F(CWindow, AnotherWindowQuitsNothing) {
    quitNativeMessageLoop(5);
    EXPECT_TRUE(window->windowClosed(window));
    EXPECT_EQ(CApplicationInformation::runMessageLoop(), 5);
}

TEST_F(CWindow, TheRootListensAtFirst) {
    EXPECT_TRUE(window->hasMouseListener());
    EXPECT_TRUE(window->hasKeyboardListener());
    EXPECT_TRUE(window->hasDropFileListener());
    window->setMouseListener(nullptr);
    window->setKeyboardListener(nullptr);
    window->setDropFileListener(nullptr);
    EXPECT_FALSE(window->hasMouseListener());
    EXPECT_FALSE(window->hasKeyboardListener());
    EXPECT_FALSE(window->hasDropFileListener());
}

TEST_F(CWindow, CountsReferencesAndDiesWithTheLast) {
    window->reference();
    window->reference();
    window->dereference();
    EXPECT_EQ(window->getReferenceCount(), 1);
    window->onDeletion = [this] { isDeleted = true; };
    window->dereference();
    EXPECT_TRUE(isDeleted);
}

TEST_F(CWindow, DescribesItselfByItsTitle) {
    char text[20];
    window->getObjectDescription(text, sizeof text);
    EXPECT_STREQ(text, "Application");
    EXPECT_TRUE(window->getClass() == "CWindow");
}

TEST_F(CWindow, CountsItsInstances) {
    const auto &record = window->getClass();
    const std::uint32_t count = record.getInstanceCount();
    deleteWindow();
    EXPECT_EQ(record.getInstanceCount(), count - 1);
}

TEST_F(CWindow, RemembersItsToolTip) {
    EXPECT_EQ(window->getToolTip(), nullptr);
    CSpyControl *control = addControl(CRect(0, 0, 5, 5));
    window->setToolTip(control);
    EXPECT_EQ(window->getToolTip(), control);
}

TEST_F(CWindow, ItsControlsMayUseItWhileTheyAreDestroyed) {
    create();
    class CLateControl : public CSpyControl {
    public:
        CLateControl(IWindow &window, EventLog &log)
            : CSpyControl(window.getControlRoot(), "late", CRect(0, 0, 5, 5), log),
              m_window(window) {}
        ~CLateControl() override {
            m_window.redrawWindow(CRect(0, 0, 5, 5));
            m_window.stopTimer(3);
            m_window.removeTimedObject(nullptr);
        }

    private:
        IWindow &m_window;
    };
    window->getControlRoot()->addControl(new CLateControl(*window, events));
    deleteWindow();
}

// The host takes the parent away first

TEST_F(CWindow, SurvivesTheEndOfItsNativeWindow) {
    createAndListen();
    native().listener.handleNativeDestroyed();
    EXPECT_EQ(window->getWindowHandle()->native, nullptr);
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
    EXPECT_THAT(takeLog(), ElementsAre("destroying", "destroy"));
    window->redrawWindow();
    window->closeWindow();
    window->destroyWindow();
    EXPECT_THAT(takeLog(), IsEmpty());
    create();
    EXPECT_EQ(window->getWindowHandle()->native, native().getHandle());
}

// Reports from inside a call of the native window

class CWindowCalls : public CWindowFixture,
                     public testing::WithParamInterface<void (*)(CTestWindow &)> {};

TEST_P(CWindowCalls, MayDeleteTheWindow) {
    listen();
    window->createWindow();
    fakeNatives().onChange = [this](INativeWindowListener &) {
        fakeNatives().onChange = nullptr;
        takeLog();
        deleteWindow();
    };
    GetParam()(*window);
    EXPECT_TRUE(isDeleted);
    EXPECT_THAT(takeLog(), ElementsAre("unhook", "destroy"));
}

INSTANTIATE_TEST_SUITE_P(Calls, CWindowCalls,
                         testing::Values([](CTestWindow &window) { window.closeWindow(); },
                                         [](CTestWindow &window) {
                                             window.setWindowPosition({1, 2});
                                         },
                                         [](CTestWindow &window) {
                                             window.setWindowSize({3, 4});
                                         },
                                         [](CTestWindow &window) {
                                             window.setWindowPositionAndSize({1, 2, 3, 4});
                                         },
                                         [](CTestWindow &window) {
                                             window.destroyWindow();
                                             window.setWindowAttributes(
                                                 window.getWindowAttributes(), true);
                                         }));

}  // namespace
