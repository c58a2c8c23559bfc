#pragma once

#include "platform/INativeTextField.h"
#include "platform/INativeWindow.h"
#include "platform/linux/windowing/connection/CXcbConnection.h"
#include "platform/linux/windowing/text/CEditLine.h"
#include "platform/linux/windowing/text/CEditView.h"
#include "platform/linux/windowing/text/EditKeys.h"

/// A text field of our own, since X has none: a popup that borrows the host's keyboard. [gui
/// thread]
class CXcbTextField : public INativeTextField, private INativeWindowListener {
public:
    /// @param connection  that of the window.
    /// @param area        on the screen.
    CXcbTextField(const std::shared_ptr<CXcbConnection> &connection, xcb_window_t window,
                  const SNativeRect &area, const SNativeTextFieldSettings &settings);
    ~CXcbTextField() override;
    CXcbTextField(const CXcbTextField &) = delete;
    CXcbTextField &operator=(const CXcbTextField &) = delete;

    /// Shows the field and gives it the keyboard. Waits for the server.
    /// @param listener  hears nothing before the call returns.
    /// @return false if the server refuses.
    bool open(INativeTextFieldListener &listener);

    void *getHandle() const override;
    void getText(char *buffer, std::int32_t size) const override;
    std::intptr_t colour(void *) override { return 0; }

private:
    // INativeWindowListener. After each report, the field may be gone.
    std::optional<std::intptr_t> handleMessage(unsigned message, std::uintptr_t wParam,
                                               std::intptr_t lParam) override;
    void handleTimer(int id) override;
    void handleNativeDestroyed() override;

    void end(ENativeTextFieldEnd how);
    void paint();
    void handleKey(std::uintptr_t key);
    void handleCommand(EEditCommand command);
    void handleLeftDown(std::int32_t x);
    void handleDrag(std::int32_t x);
    void handleLeftUp();
    void handleDoubleClick(std::int32_t x);
    void handleMiddleDown(std::int32_t x);
    void copy(xcb_atom_t selection);
    void paste(xcb_atom_t selection);
    void handleChange();
    void showCaret();

    struct SClick {
        std::int32_t x;
        xcb_timestamp_t time;
    };

    const std::shared_ptr<CXcbConnection> m_connection;
    const xcb_window_t m_parent;
    const SNativeRect m_area;
    INativeTextFieldListener *m_listener = nullptr;  // until it has been called
    CEditLine m_line;
    CEditView m_view;
    std::unique_ptr<INativeWindow> m_window;
    bool m_isCaretShown = true;
    bool m_isDragging = false;
    std::optional<SClick> m_doubleClick;  // the last press, if it was one
    std::string m_selected;               // the last text that was selected
};
