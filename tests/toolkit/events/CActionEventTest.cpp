#include "toolkit/events/CActionEvent.h"

#include "foundation/CException.h"
#include "toolkit/events/CMouseEvent.h"

#include <gtest/gtest.h>

using Tessitor::Exceptions::CException;
using Tessitor::GUI::Controls::IControl;
using Tessitor::GUI::Events::CActionEvent;
using Tessitor::GUI::Events::CMouseEvent;

namespace {

// An event only keeps the address of its sender.
int place;
IControl *const sender = reinterpret_cast<IControl *>(&place);

TEST(CActionEvent, StartsWithoutModifiers) {
    const CActionEvent event(sender);
    EXPECT_EQ(event.getSender(), sender);
    EXPECT_EQ(event.getEventKind(), 0);
    EXPECT_FALSE(event.isShiftDown() || event.isAltDown() || event.isControlDown());
    EXPECT_TRUE(event.getClass() == "CActionEvent");
}

TEST(CActionEvent, CopiesTheModifiersOfAMouseEvent) {
    CMouseEvent mouseEvent;
    mouseEvent.setModifiers(true, false, false);
    EXPECT_TRUE(CActionEvent(sender, mouseEvent).isControlDown());
    EXPECT_FALSE(CActionEvent(sender, mouseEvent).isShiftDown());
    mouseEvent.setModifiers(false, true, false);
    EXPECT_TRUE(CActionEvent(sender, mouseEvent).isShiftDown());
    EXPECT_FALSE(CActionEvent(sender, mouseEvent).isAltDown());
    mouseEvent.setModifiers(false, false, true);
    EXPECT_TRUE(CActionEvent(sender, mouseEvent).isAltDown());
    EXPECT_FALSE(CActionEvent(sender, mouseEvent).isControlDown());
}

TEST(CActionEvent, KeepsItsKind) {
    CActionEvent event(sender);
    event.setEventKind(-7);
    EXPECT_EQ(event.getEventKind(), -7);
}

TEST(CActionEvent, NeedsASender) {
    try {
        const CActionEvent event(nullptr, CMouseEvent());
        FAIL() << "nothing thrown";
    } catch (const CException &exception) {
        EXPECT_STREQ(exception.getErrorReason().getString(), "Control is NULL");
        EXPECT_STREQ(exception.getFunctionName().getString(),
                     "CActionEvent::CActionEvent(IControl *control)");
    }
}

}  // namespace
