#pragma once

#include "platform/INativeTextField.h"
#include "platform/win32/drawing/GdiObjects.h"

/// An EDIT control in a popup window. [gui thread]
class CWin32TextField : public INativeTextField {
public:
    CWin32TextField(HWND window, const SNativeTextFieldSettings &settings);
    ~CWin32TextField() override;
    CWin32TextField(const CWin32TextField &) = delete;
    CWin32TextField &operator=(const CWin32TextField &) = delete;

    /// @param listener  hears nothing before the call returns.
    /// @return false if the system refuses.
    bool open(const SNativeTextFieldSettings &settings, INativeTextFieldListener &listener);

    void *getHandle() const override { return m_handle; }
    void getText(char *buffer, std::int32_t size) const override;
    std::intptr_t colour(void *deviceContext) override;

private:
    static LRESULT CALLBACK procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
    void end(ENativeTextFieldEnd how);

    const HWND m_window;  // that the field belongs to
    const SNativeColour m_textColour, m_background;
    const TGdiObject<HBRUSH> m_brush;
    TGdiObject<HFONT> m_font;  // null for the system's own
    HWND m_handle = nullptr;   // null once the window is gone
    WNDPROC m_editProcedure = nullptr;
    INativeTextFieldListener *m_listener = nullptr;  // until it has been called
};
