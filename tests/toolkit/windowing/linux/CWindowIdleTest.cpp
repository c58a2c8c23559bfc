// What a window costs while it is open.
#include "Allocation.h"
#include "CNativeWindowTest.h"
#include "toolkit/events/CCursor.h"

#include <poll.h>

namespace {

/// A control that shows the hand and counts movements.
class CHoveredControl : public Tessitor::GUI::Controls::CControl {
public:
    using CControl::CControl;
    void handleMouseMovement(Tessitor::GUI::Events::CMouseEvent &event) override {
        ++movements;
        event.getMouse()->setCursor(Tessitor::GUI::Windowing::CCursor::getHandCursor());
    }
    static inline int movements = 0;
};

class CWindowIdle : public CNativeWindowTest {
protected:
    CWindowIdle() {
        open();
        window->setMouseListener(window->getControlRoot());
        window->setFocusListener(window.get());
        for (int i = 0; i < 100; ++i) {
            const CRect area(i % 10 * 10, i / 10 * 5, 10, 5);
            window->getControlRoot()->addControl(
                new CHoveredControl(window->getControlRoot(), i, area, nullptr));
        }
        take();
    }
    /// Moves the mouse over all controls. @return the allocations of the pump.
    std::uint64_t moveOverAll() {
        const auto pumped = connection();
        std::uint64_t allocations = 0;
        for (int i = 0; i < 100; ++i) {
            moveMouse({60 + i % 10 * 10 + 5, 80 + i / 10 * 5 + 2});
            pollfd readable = {pumped->getDescriptor(), POLLIN, 0};
            EXPECT_EQ(poll(&readable, 1, 5000), 1);
            const std::uint64_t before = allocationsOfThisThread();
            pumped->pump();
            allocations += allocationsOfThisThread() - before;
        }
        return allocations;
    }
};

TEST_F(CWindowIdle, AMovementAllocatesNothing) {
    moveOverAll();  // loads the cursor
    CHoveredControl::movements = 0;
    EXPECT_EQ(moveOverAll(), 0u);
    EXPECT_EQ(CHoveredControl::movements, 100);
}

TEST_F(CWindowIdle, APumpWithNothingToDoSendsNothing) {
    const auto popup = openPopup();
    window->startTimer(1, 1'000'000);
    handleMessages();
    const auto pumped = connection();
    const std::uint64_t written = xcb_total_written(pumped->get());
    const std::uint64_t allocations = allocationsOfThisThread();
    for (int i = 0; i < 100; ++i)
        pumped->pump();
    EXPECT_EQ(allocationsOfThisThread(), allocations);
    EXPECT_EQ(xcb_total_written(pumped->get()), written);
}

}  // namespace
