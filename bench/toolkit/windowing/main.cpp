// What a window costs on Linux, beside the requests to the X server alone.
#include "CBareWindow.h"
#include "TimedRun.h"
#include "toolkit/controls/CKnob.h"
#include "toolkit/graphics/TestImage.h"
#include "toolkit/windowing/CWindow.h"

#include <benchmark/benchmark.h>
#include <poll.h>

using Tessitor::GUI::Controls::CKnob;
using Tessitor::GUI::Fonts::CFont;
using Tessitor::GUI::Windowing::CWindow;
using Tessitor::GUI::Windowing::CWindowAttributes;
using Tessitor::GUI::Windowing::EWindowKind;
using Tessitor::MathTools::CRect;

namespace {

constexpr int windowWidth = 748, windowHeight = 370, knobSize = 24, columns = 20, rows = 5;
constexpr int knobPitch = 36;

/// A popup the size of the editor with 100 knobs over a background picture.
class CKnobWindow : public CWindow {
public:
    CKnobWindow() : CWindow(CRect(0, 0, windowWidth, windowHeight)) {
        auto *strip = new CTestImage(knobSize, knobSize * 63, true);
        for (int i = 0; i < columns * rows; ++i) {
            auto *knob = new CKnob(
                getControlRoot(), i,
                CRect(i % columns * knobPitch, i / columns * knobPitch, knobSize, knobSize),
                nullptr);
            knob->setPrimaryImage(strip, knobSize, 63, false);
            knob->setValue(0.5);
            getControlRoot()->addControl(knob);
        }
        getControlRoot()->setBackgroundImage(new CTestImage(windowWidth, windowHeight, false));
        const CWindowAttributes attributes(EWindowKind::Popup);
        setWindowAttributes(&attributes, true);
    }
    using CWindow::pumpWindow;
    xcb_window_t getId() const {
        return static_cast<xcb_window_t>(
            reinterpret_cast<std::uintptr_t>(getWindowHandle()->native));
    }
};

/// The user: sends a window events of the pointer and waits until the server has passed them on.
class CUser {
public:
    CUser() : m_connection(xcb_connect(nullptr, nullptr)) {}
    CUser(const CUser &) = delete;
    CUser &operator=(const CUser &) = delete;
    ~CUser() { xcb_disconnect(m_connection); }

    void send(std::uint8_t type, xcb_window_t window, int x, int y) {
        xcb_motion_notify_event_t event = {};
        event.response_type = type;
        event.detail = type == XCB_MOTION_NOTIFY ? 0 : 1;
        event.time = ++m_time;
        event.event = window;
        event.event_x = event.root_x = static_cast<std::int16_t>(x);
        event.event_y = event.root_y = static_cast<std::int16_t>(y);
        event.state = type == XCB_BUTTON_PRESS ? 0 : XCB_BUTTON_MASK_1;
        event.same_screen = 1;
        xcb_send_event(m_connection, 0, window, 0, reinterpret_cast<const char *>(&event));
        std::free(
            xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    }

private:
    xcb_connection_t *m_connection;
    xcb_timestamp_t m_time = 1000;
};

void settle(CKnobWindow &window) {
    for (int i = 0; i < 50; ++i) {
        poll(nullptr, 0, 2);
        window.pumpWindow();
    }
}

// Nothing to do

void idlePump(benchmark::State &state) {
    CKnobWindow window;
    settle(window);
    for (auto _ : state)
        window.pumpWindow();
}
BENCHMARK(idlePump)->Name("idle pump/ours");

void idlePoll(benchmark::State &state) {
    CBareWindow window(windowWidth, windowHeight);
    for (auto _ : state)
        while (window.takeEvent()) {
        }
}
BENCHMARK(idlePoll)->Name("idle pump/bare X");

// A movement over 100 knobs, none of which cares

void movement(benchmark::State &state) {
    CKnobWindow window;
    settle(window);
    CUser user;
    int step = 0;
    for (auto _ : state) {
        user.send(XCB_MOTION_NOTIFY, window.getId(), ++step % windowWidth, 170);
        time(state, [&] { window.pumpWindow(); });
    }
}
BENCHMARK(movement)->Name("mouse movement over 100 knobs/ours")->UseManualTime();

void bareEvent(benchmark::State &state) {
    CBareWindow window(windowWidth, windowHeight);
    CUser user;
    int step = 0;
    for (auto _ : state) {
        user.send(XCB_MOTION_NOTIFY, window.getId(), ++step % windowWidth, 170);
        time(state, [&] {
            while (window.takeEvent()) {
            }
        });
    }
}
BENCHMARK(bareEvent)->Name("mouse movement over 100 knobs/bare X")->UseManualTime();

// A step of a dragged knob, from the event to the request with its picture

void knobStep(benchmark::State &state) {
    CKnobWindow window;
    settle(window);
    CUser user;
    user.send(XCB_BUTTON_PRESS, window.getId(), 12, 12);
    window.pumpWindow();
    int step = 0;
    for (auto _ : state) {
        user.send(XCB_MOTION_NOTIFY, window.getId(), 12, ++step % 2 == 0 ? 12 : 52);
        time(state, [&] { window.pumpWindow(); });
    }
}
BENCHMARK(knobStep)->Name("step of a dragged knob/ours")->UseManualTime();

void bareStep(benchmark::State &state) {
    CBareWindow window(windowWidth, windowHeight);
    CUser user;
    int step = 0;
    for (auto _ : state) {
        user.send(XCB_MOTION_NOTIFY, window.getId(), 12, ++step % 2 == 0 ? 12 : 52);
        time(state, [&] {
            while (window.takeEvent()) {
            }
            window.putImage(0, 0, knobSize, knobSize);
        });
    }
}
BENCHMARK(bareStep)->Name("step of a dragged knob/bare X")->UseManualTime();

// The whole window anew

void wholeWindow(benchmark::State &state) {
    CKnobWindow window;
    settle(window);
    for (auto _ : state) {
        window.redrawWindow();
        window.pumpWindow();
    }
}
BENCHMARK(wholeWindow)->Name("painting of the whole window/ours");

void bareWholeWindow(benchmark::State &state) {
    CBareWindow window(windowWidth, windowHeight);
    for (auto _ : state)
        window.putImage(0, 0, windowWidth, windowHeight);
}
BENCHMARK(bareWholeWindow)->Name("painting of the whole window/bare X");

}  // namespace

int main(int argc, char **argv) {
    CFont::createDefaultFont();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    CFont::releaseDefaultFont();
}
