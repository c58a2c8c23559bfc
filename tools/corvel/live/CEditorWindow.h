#pragma once

#include "corvel/effect/CEffectInstance.h"
#include "platform/INativeWindow.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>

namespace Tessitor::Tool {

/// A window of this program with the effect's own editor in it. Its title names the effect and the
/// current program. [gui thread], which is also the thread that created the effect
class CEditorWindow : private INativeWindowListener, private IEditorHost {
public:
    /// Opens the editor and shows the window.
    /// @param effect  must pass requireEditor(). It must outlive this object.
    /// @throws CJobError if there is no display, or the effect does not open its editor.
    explicit CEditorWindow(CEffectInstance &effect);
    ~CEditorWindow();
    CEditorWindow(const CEditorWindow &) = delete;
    CEditorWindow &operator=(const CEditorWindow &) = delete;

    /// Handles what the user has done. To be called every few milliseconds; the effect's editor is
    /// called less often.
    void pump();
    bool isClosed() const { return m_isClosed; }  ///< by the user, or with the display

private:
    void createWindow();
    void openEditor();
    void updateTitle();

    std::optional<std::intptr_t> handleMessage(unsigned message, std::uintptr_t wParam,
                                               std::intptr_t lParam) override;
    void handleTimer(int) override {}
    void handleNativeDestroyed() override { m_isClosed = true; }
    void resizeEditor(std::int32_t width, std::int32_t height) override;

    CEffectInstance &m_effect;
    std::string m_title;
    std::unique_ptr<INativeWindow> m_window;
    bool m_isOpen = false;  // the effect's editor
    bool m_isClosed = false;
    std::chrono::steady_clock::time_point m_nextIdle;
};

/// @throws CCallError if the effect has no editor.
void requireEditor(const CEffectInstance &effect);

}  // namespace Tessitor::Tool
