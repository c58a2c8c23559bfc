#pragma once

#include "editor/driven/CEffectInHost.h"
#include "platform/linux/windowing/CTestClient.h"
#include "platform/linux/windowing/WindowIds.h"

#include <stdexcept>

/// The editor of a loaded effect, with a second client of the X server that looks at it.
class CSeenEditor {
public:
    CSeenEditor(CDesktop &desktop, const CPluginFile &file)
        : m_desktop(desktop), m_host(desktop, file) {}
    CSeenEditor(const CSeenEditor &) = delete;
    CSeenEditor &operator=(const CSeenEditor &) = delete;
    ~CSeenEditor() { close(); }

    const CLoadedEffect &effect() const { return m_host.effect; }

    void createHostWindow() {
        m_window = m_desktop.createHostWindow({0, 0, Layout::width, Layout::height});
    }
    void open() const { effect().send(effEditOpen, 0, 0, m_window); }
    void idle() const { effect().send(effEditIdle); }
    void settle() const {
        m_desktop.settle([this] { idle(); });
    }
    void close() {
        if (m_window == nullptr)
            return;
        effect().send(effEditClose);
        m_desktop.destroyHostWindow(m_window);
        m_window = nullptr;
    }

    CPicture picture() const {
        return m_desktop.pictureOf(m_window, Layout::width, Layout::height);
    }
    /// Idles until a place has its colour.
    void idleUntil(SNativePoint place, std::uint32_t colour) {
        do
            idle();
        while (m_eye.pixelOf(idOf(m_window), place.x, place.y) != colour);
    }

private:
    CDesktop &m_desktop;
    CTestClient m_eye;
    CEffectInHost m_host;
    void *m_window = nullptr;
};

/// @return the place where two pictures differ that is painted last: the windows of the toolkit
///         are painted from the top.
inline SNativePoint lastDifference(const CPicture &one, const CPicture &other) {
    for (int y = one.getHeight() - 1; y >= 0; --y)
        for (int x = one.getWidth() - 1; x >= 0; --x)
            if (one.at(x, y) != other.at(x, y))
                return {x, y};
    throw std::runtime_error("the pictures are the same");
}
