#pragma once

#include "toolkit/windowing/CVstWindow.h"
#include "toolkit/windowing/CWindowFixture.h"

#include <utility>

/// An editor that notes what it shows.
class CTestEditor : public Tessitor::Vst::CVstWindow {
public:
    explicit CTestEditor(AudioEffect *owner)
        : CVstWindow(owner, Tessitor::MathTools::CRect(0, 0, 748, 370), attributesWithTitle()) {}

    EventLog shown;                      // such as "3=0.500000"
    std::function<void()> onShow;        // called after each note
    std::function<void()> onAttach;      // called when the editor starts to open
    std::function<void()> onWindowMade;  // called once the native window exists
    int idles = 0;                       // calls of handleIdle()
    std::size_t shownBeforeIdle = 0;     // notes at the last one

    EventLog takeShown() { return std::exchange(shown, {}); }

    void handleActionEvent(const Tessitor::GUI::Events::CActionEvent &) override {}
    void setParameter(long id, double value) override {
        shown.push_back(std::to_string(id) + "=" + std::to_string(value));
        if (onShow)
            onShow();
    }

protected:
    void attachToParent(void *parent) override {
        if (onAttach)
            onAttach();
        CVstWindow::attachToParent(parent);
    }
    void handleIdle() override {
        ++idles;
        shownBeforeIdle = shown.size();
    }
    void windowCreated() override {
        if (onWindowMade)
            onWindowMade();
    }

private:
    static Tessitor::GUI::Windowing::CWindowAttributes attributesWithTitle() {
        Tessitor::GUI::Windowing::CWindowAttributes attributes;
        attributes.setWindowTitle("Editor");
        return attributes;
    }
};
