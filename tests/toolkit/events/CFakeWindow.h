#pragma once

#include "foundation/CClass.h"
#include "foundation/TClassRecord.h"
#include "toolkit/events/IWindow.h"
#include "toolkit/events/SWindowHandle.h"

#include <vector>

/// A window without a native window. It notes what it is asked to redraw.
class CFakeWindow : public Tessitor::GUI::Windowing::IWindow {
public:
    /// The areas that were to be redrawn since the last call.
    std::vector<Tessitor::MathTools::CRect> takeRedrawnAreas() { return std::move(m_redrawn); }
    /// What getControlRoot() returns; not owned.
    void setControlRoot(Tessitor::GUI::Controls::IControlRoot *root) { m_root = root; }

    void reference() override {}
    void dereference() override {}
    std::int32_t getReferenceCount() const override { return 1; }
    void getObjectDescription(char *, long) const override {}
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    void setParentWindow(IWindow *) override {}
    IWindow *getParentWindow() const override { return nullptr; }
    void windowDestroying() override {}
    void windowCreating() override {}
    void windowCreated() override {}
    const Tessitor::GUI::Windowing::SWindowHandle *getWindowHandle() const override {
        return &m_handle;
    }
    Tessitor::GUI::Windowing::SWindowHandle *getMutableWindowHandle() override { return &m_handle; }
    Tessitor::GUI::Windowing::CWindowAttributes *getWindowAttributes() const override {
        return nullptr;
    }
    void setWindowAttributes(const Tessitor::GUI::Windowing::CWindowAttributes *, bool) override {}
    void destroyWindow() override {}
    void openWindow() override {}
    void closeWindow() override {}
    void uninitialiseWindow() override {}
    void updateWindow() override {}
    void disableWindow() override {}
    void enableWindow() override {}
    void drawWindow(Tessitor::GUI::Graphics::CGraphics &) override {}
    void redrawWindow() override {}
    void redrawWindow(const Tessitor::MathTools::CRect &area) override {
        m_redrawn.push_back(area);
    }
    void setWindowPosition(const Tessitor::MathTools::CPoint &position) override {
        m_position = position;
    }
    const Tessitor::MathTools::CPoint &getWindowPosition() const override { return m_position; }
    void setWindowSize(const Tessitor::MathTools::CDimension &) override {}
    const Tessitor::MathTools::CDimension &getWindowSize() const override { return m_size; }
    void setWindowPositionAndSize(const Tessitor::MathTools::CRect &) override {}
    const Tessitor::MathTools::CRect &getWindowRect() const override { return m_rect; }
    void setWindowAlpha(double) override {}
    void timerEvent(long) override {}
    void startTimer(long, long) override {}
    void stopTimer(long) override {}
    void addTimedObject(Tessitor::GUI::Windowing::ITimedObject *) override {}
    void removeTimedObject(Tessitor::GUI::Windowing::ITimedObject *) override {}
    void stopAllTimers() override {}
    void setFocusListener(Tessitor::GUI::Listeners::IFocusListener *) override {}
    void setWindowChangeListener(Tessitor::GUI::Listeners::IWindowChangeListener *) override {}
    void setMouseListener(Tessitor::GUI::Listeners::IMouseListener *) override {}
    void setDropFileListener(Tessitor::GUI::Listeners::IDropFileListener *) override {}
    void setKeyboardListener(Tessitor::GUI::Listeners::IKeyboardListener *) override {}
    bool hasMouseListener() const override { return false; }
    bool hasKeyboardListener() const override { return false; }
    bool hasDropFileListener() const override { return false; }
    Tessitor::GUI::Controls::IControlRoot *getControlRoot() override { return m_root; }
    const Tessitor::GUI::Controls::IControlRoot *getControlRoot() const override { return m_root; }

private:
    static inline Tessitor::Basics::TClassRecord<CFakeWindow> s_class{"CFakeWindow", "IWindow"};

    std::vector<Tessitor::MathTools::CRect> m_redrawn;
    Tessitor::GUI::Windowing::SWindowHandle m_handle;
    Tessitor::GUI::Controls::IControlRoot *m_root = nullptr;
    Tessitor::MathTools::CPoint m_position;
    Tessitor::MathTools::CDimension m_size;
    Tessitor::MathTools::CRect m_rect;
};
