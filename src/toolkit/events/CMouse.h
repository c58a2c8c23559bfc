#pragma once

#include "foundation/CPoint.h"

namespace Tessitor::GUI::Windowing {

class CCursor;
class IWindow;

/// The mouse as a window sees it. [gui thread]
class CMouse {
public:
    CMouse();  ///< at 0, 0, with the default cursor
    explicit CMouse(CCursor *cursor) : m_cursor(cursor) {}
    CMouse(const CMouse &) = delete;
    CMouse &operator=(const CMouse &) = delete;
    virtual ~CMouse() = default;

    void setPosition(const MathTools::CPoint &position) { m_position = position; }
    /// @param packed  x in the low 16 bits, y in the next 16, both signed.
    void setPositionFromPackedLong(long packed);
    const MathTools::CPoint &getPosition() const { return m_position; }

    /// Shows a cursor. @param cursor  not owned, so it must outlive its use. Null is ignored.
    void setCursor(CCursor *cursor);
    CCursor *getCursor() const { return m_cursor; }  ///< as last set

    /// Sends all mouse messages to a window, also from outside it.
    void captureMouse(IWindow *window);
    void releaseMouse();
    bool isCaptured() const;  ///< by any window of this thread
    bool isCapturedBy(IWindow *window) const;

private:
    MathTools::CPoint m_position;
    CCursor *m_cursor;
};

}  // namespace Tessitor::GUI::Windowing
