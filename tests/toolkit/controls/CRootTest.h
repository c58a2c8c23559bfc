#pragma once

#include "toolkit/controls/CControlPanel.h"
#include "toolkit/controls/CSpyControl.h"
#include "toolkit/events/CActionEvent.h"
#include "toolkit/events/CFakeWindow.h"
#include "toolkit/events/IActionListener.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// A window with a root, and a mouse in it.
class CRootTest : public testing::Test {
protected:
    using IControl = Tessitor::GUI::Controls::IControl;
    using IControlRoot = Tessitor::GUI::Controls::IControlRoot;
    using CControlPanel = Tessitor::GUI::Controls::CControlPanel;
    using CRect = Tessitor::MathTools::CRect;
    using CPoint = Tessitor::MathTools::CPoint;
    using CMouseEvent = Tessitor::GUI::Events::CMouseEvent;
    using MouseHandler = void (IControlRoot::*)(CMouseEvent &);

    /// A control in a root, which holds the only reference to it.
    CSpyControl *add(IControlRoot &to, const char *name, const CRect &area) {
        auto *control = new CSpyControl(&to, name, area, log);
        to.addControl(control);
        return control;
    }
    CControlPanel *addPanel(IControlRoot &to, const CRect &area) {
        auto *panel = new CControlPanel(&window, &to, 0, area, nullptr);
        to.addControl(panel);
        return panel;
    }

    /// Sends an event as the window does, at a position in the window.
    void send(MouseHandler handler, int x, int y) {
        mouse.setPosition({x, y});
        (root.*handler)(event);
    }
    void press(int x, int y) { send(&IControlRoot::handleLeftButtonDown, x, y); }
    void release(int x, int y) { send(&IControlRoot::handleLeftButtonUp, x, y); }
    void move(int x, int y) { send(&IControlRoot::handleMouseMovement, x, y); }
    void doubleClick(int x, int y) { send(&IControlRoot::handleDoubleClick, x, y); }
    void scroll(int x, int y, double notches) {
        event.setWheelAmount(notches);
        send(&IControlRoot::handleMouseScroll, x, y);
    }
    void holdShift(bool isDown) { event.setModifiers(false, isDown, false); }
    bool typeKey() { return root.handleKeyDown(Tessitor::GUI::Events::CKeyboardEvent()); }
    void drop(int x, int y) {
        Tessitor::GUI::Events::CDropEvent dropped(CPoint(x, y));
        dropped.addFilename(new Tessitor::Basics::CString("file"));
        root.handleFileDrop(dropped);
    }

    EventLog takeLog() { return std::exchange(log, {}); }
    std::vector<std::string> takeRedrawnAreas() {
        std::vector<std::string> areas;
        for (const CRect &area : window.takeRedrawnAreas())
            areas.push_back(textOf(area));
        return areas;
    }

    EventLog log;
    CFakeWindow window;
    Tessitor::GUI::Controls::CControlRoot root{&window};
    Tessitor::GUI::Windowing::CMouse mouse;
    CMouseEvent event{&mouse};
};

/// Notes the value of the sender at each action.
class CValueLog : public Tessitor::GUI::Listeners::IActionListener {
public:
    std::vector<double> take() { return std::exchange(m_values, {}); }

    void handleActionEvent(const Tessitor::GUI::Events::CActionEvent &event) override {
        m_values.push_back(event.getSender()->getValue());
    }

private:
    std::vector<double> m_values;
};

/// Calls a function for each action.
class CActionSpy : public Tessitor::GUI::Listeners::IActionListener {
public:
    std::function<void(const Tessitor::GUI::Events::CActionEvent &)> onAction;

    void handleActionEvent(const Tessitor::GUI::Events::CActionEvent &event) override {
        onAction(event);
    }
};
