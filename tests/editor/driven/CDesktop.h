#pragma once

#include "CPicture.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The screen with its windows, a user with a mouse and a space bar, and the part of a host that
/// has to do with windows. On Linux it starts an X server of its own.
///
/// What the user does reaches the windows when they are pumped: see settle().
class CDesktop {
public:
    enum class EWindowManager { None, Some };

    /// @return what a desktop of this system can have.
    static std::vector<EWindowManager> windowManagers();

    explicit CDesktop(EWindowManager manager = EWindowManager::None);
    CDesktop(const CDesktop &) = delete;
    CDesktop &operator=(const CDesktop &) = delete;
    ~CDesktop();  ///< releases what is still pressed

    // The host. A window is an HWND or an X window id. It belongs to the thread that creates it.

    /// Shows a window and gives it the keyboard. Without a window manager, `area` is where it is.
    void *createHostWindow(const SNativeRect &area);
    void *createHiddenHostWindow(const SNativeRect &area);  ///< for showHostWindow()
    void showHostWindow(void *window, const SNativeRect &area);
    /// As a user does it. The window has to be one of createHiddenHostWindow().
    void moveHostWindow(void *window, SNativePoint position);
    void minimiseHostWindow(void *window);  ///< likewise
    void destroyHostWindow(void *window);
    SNativePoint originOf(void *window) const;  ///< on the screen
    bool hasKeyboard(void *window) const;
    /// @return how many keys a host's window has heard since it was last asked.
    int takeKeys(void *window);

    // The user

    void movePointer(SNativePoint position);  ///< on the screen
    void press();                             ///< the left button
    void release();
    void turnWheel(int notches);  ///< away from the user if positive
    void typeSpace();

    /// Delivers all that the user has done, and waits until it is on the screen.
    /// @param idle  lets the effects act, as a host does in its idle time.
    void settle(const std::function<void()> &idle);

    // What can be seen

    /// @return what a host's window shows of its children, from its top left corner. On Linux other
    ///         windows may cover it.
    CPicture pictureOf(void *window, int width, int height) const;
    CPicture pictureOfScreen(const SNativeRect &area) const;
    std::optional<SNativeRect> openMenu() const;  ///< on the screen; of this process
    int countMenus() const;
    /// @return the windows that are in a host's window.
    int countChildren(void *window) const;
    bool isPointerFree() const;  ///< nobody has captured it, or soon nobody will have
    bool isKeyboardFree() const;

    /// What this process has of the system, by kind: on Linux all that the X server holds for its
    /// clients, descriptors and threads; on Windows GDI and USER objects.
    using Resources = std::map<std::string, int>;
    Resources countResources() const;
    bool willHave(const Resources &resources) const;  ///< now or soon

private:
    struct SSystem;
    std::unique_ptr<SSystem> m_system;
};
