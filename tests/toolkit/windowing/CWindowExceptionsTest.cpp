#include "CTemporaryFolder.h"
#include "CWindowFixture.h"
#include "foundation/CException.h"
#include "foundation/ReadFile.h"
#include "foundation/Trace.h"
#include "toolkit/events/ITimedObject.h"

#include <stdexcept>

namespace {

using Tessitor::Exceptions::CException;
using testing::Contains;
using testing::IsEmpty;

/// A window whose listeners throw.
class CWindowExceptions : public CWindowFixture {
protected:
    CWindowExceptions() {
        createAndListen();
        listener.onEvent = [] { throw std::runtime_error("listener fails"); };
    }
    ~CWindowExceptions() override { listener.onEvent = nullptr; }

    /// A drag of a control in the window's root is in progress.
    CSpyControl *startDrag() {
        CSpyControl *control = addControl(CRect(0, 0, 100, 50));
        window->getControlRoot()->lockControl(control);
        fakeNativeMouse().captureWindow = native().getHandle();
        return control;
    }
};

TEST_F(CWindowExceptions, DoNotLeaveAMessageWhichCountsAsHandled) {
    for (const unsigned message :
         {NativeDestroy, NativeMove, NativeSize, NativeSetFocus, NativeKillFocus, NativeClose,
          NativeKeyDown, NativeKeyUp, NativeMouseMove, NativeLeftDown, NativeLeftUp,
          NativeDoubleClick, NativeRightDown, NativeRightUp, NativeMouseWheel, NativeMouseLeave,
          NativeDropFiles}) {
        takeLog();
        EXPECT_EQ(send(message), 0) << message;
        EXPECT_THAT(takeLog(), testing::Not(IsEmpty())) << message;
    }
}

TEST_F(CWindowExceptions, EndADrag) {
    startDrag();
    EXPECT_EQ(send(NativeMouseMove), 0);
    EXPECT_FALSE(window->getControlRoot()->controlIsLocked());
    EXPECT_EQ(fakeNativeMouse().captureWindow, nullptr);
}

TEST_F(CWindowExceptions, OfAPressDoNotLeaveTheMouseCaptured) {
    EXPECT_EQ(send(NativeLeftDown), 0);
    EXPECT_EQ(fakeNativeMouse().captureWindow, nullptr);
}

TEST_F(CWindowExceptions, LeaveTheMouseToAnotherWindowThatHasCapturedIt) {
    fakeNativeMouse().captureWindow = &fakeNativeMouse();
    EXPECT_EQ(send(NativeMouseMove), 0);
    EXPECT_EQ(fakeNativeMouse().captureWindow, &fakeNativeMouse());
}

TEST_F(CWindowExceptions, EndADragWhenPaintingFails) {
    fakeNatives().screen = createNativeSurface(nullptr, 100, 50, {255, 255, 255});
    native().dirty = {0, 0, 100, 50};
    startDrag()->onDraw = [](auto &) { throw std::runtime_error("drawing fails"); };
    EXPECT_EQ(send(NativePaint), 0);
    EXPECT_FALSE(window->getControlRoot()->controlIsLocked());
    EXPECT_EQ(fakeNativeMouse().captureWindow, nullptr);
}

TEST_F(CWindowExceptions, DoNotLeaveATimer) {
    struct STimedObject : Tessitor::GUI::Windowing::ITimedObject {
        void timerFired() override { throw std::runtime_error("timer fails"); }
        std::int32_t getTimerId() const override { return 3; }
    } object;
    window->addTimedObject(&object);
    startDrag();
    native().listener.handleTimer(3);
    window->removeTimedObject(&object);
    EXPECT_FALSE(window->getControlRoot()->controlIsLocked());
}

TEST_F(CWindowExceptions, DoNotKeepAWindowThatIsGone) {
    window->onDestroying = [] { throw std::runtime_error("hook fails"); };
    native().listener.handleNativeDestroyed();
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
    EXPECT_EQ(window->getWindowHandle()->native, nullptr);
}

TEST_F(CWindowExceptions, FinishADrop) {
    send(NativeDropFiles, 7);
    EXPECT_THAT(takeLog(), Contains("finish drop 7"));
}

TEST_F(CWindowExceptions, MayFollowTheDeletionOfTheWindow) {
    startDrag();
    listener.onEvent = [this] {
        deleteWindow();
        throw std::runtime_error("listener fails");
    };
    EXPECT_EQ(send(NativeMouseMove), 0);
}

TEST_F(CWindowExceptions, AreTraced) {
    const CTemporaryFolder folder;
    const std::string path = (folder / "trace.txt").string();
    Tessitor::IO::openTrace(path.c_str());
    listener.onEvent = [] { throw CException("broken", "f(int)", true); };
    send(NativeMouseMove);
    Tessitor::IO::openTrace("");
    EXPECT_EQ(readFile(path), "Caught an exception in a window: broken\n\nf(int)\n");
}

}  // namespace
