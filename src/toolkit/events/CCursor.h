#pragma once

#include "foundation/CCountedObject.h"

namespace Tessitor::GUI::Windowing {

enum class ECursorKind {
    Arrow,
    Hand,
    Wait,
    ResizeVertical,
    ResizeHorizontal,
    Text,
    ResizeDiagonal,  ///< from top left to bottom right
    Move
};

/// A mouse cursor. [gui thread]
class CCursor : public Tessitor::Basics::CCountedObject {
public:
    /// A cursor of the system. An unknown kind is the arrow.
    explicit CCursor(ECursorKind kind);
    /// A cursor from the resources of a module. See loadNativeCursor().
    CCursor(void *module, int resource, bool isAnimated);
    CCursor(const CCursor &) = delete;
    CCursor &operator=(const CCursor &) = delete;
    ~CCursor() override;
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    void *getCursorHandle() const { return m_handle; }  ///< null if there is no such cursor

    // Owned by the library.
    static CCursor *getDefaultCursor();  ///< the arrow
    static CCursor *getHandCursor();

private:
    static Tessitor::Basics::TClassRecord<CCursor> s_class;

    void *m_handle;
};

}  // namespace Tessitor::GUI::Windowing
