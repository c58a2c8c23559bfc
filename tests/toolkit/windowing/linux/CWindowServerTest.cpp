// A server that dies, or answers no more for a while, while an editor is open.
#include "CNativeWindowTest.h"
#include "foundation/CException.h"
#include "platform/linux/windowing/connection/CNoPipeSignal.h"
#include "toolkit/controls/CTextEdit.h"
#include "toolkit/events/CActionEvent.h"
#include "toolkit/events/CCursor.h"
#include "toolkit/windowing/CVstWindow.h"

#include <atomic>
#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <thread>

namespace {

using namespace Tessitor::GUI;
using Tessitor::MathTools::CDimension;
using Tessitor::MathTools::CPoint;
using Tessitor::MathTools::CRect;

class CEditor : public Tessitor::Vst::CVstWindow {
public:
    CEditor()
        : CVstWindow(nullptr, CRect(0, 0, 748, 370), Windowing::CWindowAttributes()),
          edit(new Controls::CTextEdit(getControlRoot(), 1, CRect(5, 6, 80, 20), "text", nullptr)) {
        getControlRoot()->addControl(edit);
    }
    void handleActionEvent(const Events::CActionEvent &) override {}
    void setParameter(long, double) override {}
    void startEditing() {
        Events::CMouseEvent event(&mouse);
        edit->handleLeftButtonDown(event);
        ASSERT_TRUE(edit->isEditing());
    }
    void openIn(CTestClient &host) {
        open(handleOf(host.createWindow({50, 60, 350, 260})));
        idle();
    }
    bool isOpen() const { return getWindowHandle()->native != nullptr; }

    Windowing::CMouse mouse;
    Controls::CTextEdit *edit;
};

class CWindowServer : public testing::Test {
protected:
    CWindowServer() {
        editor.openIn(*host);
        popup.setParentWindow(&editor);
        popup.setWindowAttributes(&popupAttributes, true);
        editor.startEditing();
        editor.idle();
    }
    ~CWindowServer() override {
        const CNoPipeSignal guard;  // for the host, whose server may be gone
        host.reset();
    }
    static std::ptrdiff_t countThreads() {
        return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
    }

    void useEverything() {
        for (CWindow *window : {static_cast<CWindow *>(&editor), &popup}) {
            window->setWindowPositionAndSize(CRect(1, 2, 70, 80));
            window->setWindowSize(CDimension(80, 90));
            window->setWindowPosition(CPoint(3, 4));
            window->setWindowAlpha(0.5);
            window->disableWindow();
            window->enableWindow();
            window->redrawWindow();
            window->updateWindow();
            window->closeWindow();
            window->openWindow();
            window->startTimer(1, 1);
            window->stopTimer(1);
            editor.mouse.captureMouse(window);
            editor.mouse.isCapturedBy(window);
            editor.mouse.releaseMouse();
        }
        Windowing::CCursor cursor(Windowing::ECursorKind::Wait);
        editor.mouse.setCursor(&cursor);
        editor.mouse.setCursor(Windowing::CCursor::getHandCursor());
        editor.handleParameterChange(1, 0.5);
        Events::CMouseEvent event(&editor.mouse);
        editor.edit->handleLeftButtonDown(event);
        ERect *rect = nullptr;
        EXPECT_TRUE(editor.getRect(&rect));
    }

    using CWindow = Windowing::CWindow;

    std::unique_ptr<CVirtualDisplay> display = std::make_unique<CVirtualDisplay>("640x480x24");
    std::unique_ptr<CTestClient> host = std::make_unique<CTestClient>();
    const Windowing::CWindowAttributes popupAttributes{Windowing::EWindowKind::Popup};
    CEditor editor;
    CWindow popup{CRect(200, 210, 60, 40)};
};

TEST_F(CWindowServer, TakesItsWindowsAlong) {
    const std::ptrdiff_t threads = countThreads();
    display->crash();
    EXPECT_TRUE(pumpUntil([this] { return !editor.isOpen(); }));
    EXPECT_EQ(popup.getWindowHandle()->native, nullptr);
    EXPECT_FALSE(editor.edit->isEditing());
    useEverything();
    editor.idle();
    EXPECT_FALSE(editor.isOpen());
    EXPECT_TRUE(CXcbConnection::getAll().empty());
    EXPECT_EQ(countThreads(), threads);
}

TEST_F(CWindowServer, LeavesHarmlessWindowsUntilTheyHearOfItsEnd) {
    display->crash();
    for (int i = 0; i < 3; ++i)
        useEverything();
    editor.idle();
    EXPECT_FALSE(editor.isOpen());
    EXPECT_EQ(nativeMouseCapture(), nullptr);
}

TEST_F(CWindowServer, MayDieBeforeTheEditorIsClosed) {
    display->crash();
    editor.close();
    EXPECT_FALSE(editor.isOpen());
    popup.destroyWindow();
    EXPECT_TRUE(CXcbConnection::getAll().empty());
}

TEST_F(CWindowServer, MayBeReplacedByAnother) {
    display->crash();
    editor.idle();
    editor.close();
    EXPECT_THROW(editor.open(handleOf(1)), Tessitor::Exceptions::CException);
    {
        const CNoPipeSignal guard;
        host.reset();
    }
    display.reset();
    display = std::make_unique<CVirtualDisplay>("640x480x24");
    host = std::make_unique<CTestClient>();
    editor.openIn(*host);
    EXPECT_TRUE(editor.isOpen());
    pumpAll(*host);
    EXPECT_EQ(host->pixelOf(idOf(editor.getWindowHandle()->native), 200, 150), 0xFFFFFFu);
    popup.setWindowAttributes(&popupAttributes, true);
    EXPECT_NE(popup.getWindowHandle()->native, nullptr);
    popup.destroyWindow();
    editor.close();
    EXPECT_TRUE(CXcbConnection::getAll().empty());
}

/// Resumes a paused server after ten seconds unless it is deleted before.
class CResumption {
public:
    explicit CResumption(CVirtualDisplay &display)
        : m_thread([this, &display] {
              std::unique_lock lock(m_mutex);
              if (m_changed.wait_for(lock, std::chrono::seconds(10), [this] { return m_isOver; }))
                  return;
              display.resume();
              wasNeeded = true;
          }) {}
    ~CResumption() {
        {
            const std::lock_guard lock(m_mutex);
            m_isOver = true;
        }
        m_changed.notify_one();
        m_thread.join();
    }

    std::atomic<bool> wasNeeded = false;

private:
    bool m_isOver = false;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::thread m_thread;
};

TEST_F(CWindowServer, DoesNotBlockThePumpWhileItIsPaused) {
    editor.edit->handleActionEvent(Events::CActionEvent(editor.edit));
    popup.destroyWindow();
    pumpAll(*host);
    display->pause();
    {
        const CResumption resumption(*display);
        for (int i = 0; i < 100; ++i) {
            editor.redrawWindow();
            editor.mouse.setCursor(Windowing::CCursor::getHandCursor());
            editor.idle();
        }
        EXPECT_FALSE(resumption.wasNeeded);
    }
    display->resume();
    editor.getControlRoot()->removeControl(editor.edit);
    pumpAll(*host);
    pumpAll(*host);
    const xcb_window_t window = idOf(editor.getWindowHandle()->native);
    EXPECT_EQ(host->pixelOf(window, 299 - 10, 190), 0xFFFFFFu);
    EXPECT_EQ(host->pixelOf(window, 20, 20), 0xFFFFFFu);
}

}  // namespace
