// What a text edit leaves behind, however it ends: the keyboard is the host's again.
#include "CNativeWindowTest.h"
#include "foundation/CString.h"
#include "platform/linux/windowing/keyboard/CXcbKeyboard.h"
#include "toolkit/controls/CTextEdit.h"

namespace {

using Tessitor::GUI::Controls::CTextEdit;

class CTextEditEnd : public CNativeWindowTest {
protected:
    CTextEditEnd() {
        open();
        window->setMouseListener(window->getControlRoot());
        window->getControlRoot()->addControl(
            edit =
                new CTextEdit(window->getControlRoot(), 1, CRect(0, 0, 80, 20), "text", nullptr));
        moveMouse(inside);
        client->click(leftButton);
        handleMessages();
        EXPECT_TRUE(edit->isEditing());
        EXPECT_TRUE(pumpUntil([this] {
            return connection()->keyboard().getFocus() == idOf(edit->getField()->getHandle());
        }));
        EXPECT_EQ(focus(), idOf(edit->getField()->getHandle()));
    }
    void typeKey(xcb_keysym_t key) {
        client->typeKey(key);
        handleMessages();
        EXPECT_FALSE(edit->isEditing());
    }

    CTextEdit *edit = nullptr;
};

TEST_F(CTextEditEnd, TheReturnKey) {
    typeKey(0xFF0D);
    expectNothingTaken();
}

TEST_F(CTextEditEnd, TheEscapeKey) {
    typeKey(0xFF1B);
    expectNothingTaken();
}

TEST_F(CTextEditEnd, APressOutside) {
    moveMouse(outside);
    client->click(leftButton);
    handleMessages();
    EXPECT_FALSE(edit->isEditing());
    expectNothingTaken();
}

TEST_F(CTextEditEnd, APressInTheWindow) {
    moveMouse({155, 127});
    client->click(leftButton);
    handleMessages();
    EXPECT_FALSE(edit->isEditing());
    expectNothingTaken();
}

TEST_F(CTextEditEnd, AnotherWindowTakesTheKeyboard) {
    const xcb_window_t other = client->createWindow({400, 300, 500, 400});
    client->focus(other);
    handleMessages();
    EXPECT_FALSE(edit->isEditing());
    expectNothingHeld();
    EXPECT_EQ(focus(), other);
    client->destroyWindow(other);
}

TEST_F(CTextEditEnd, AnotherPopup) {
    const auto popup = openPopup();
    handleMessages();
    popup->destroyWindow();
    handleMessages();
    EXPECT_FALSE(edit->isEditing());
    expectNothingTaken();
}

TEST_F(CTextEditEnd, ItsControlIsRemoved) {
    window->getControlRoot()->removeControl(edit);
    client->typeKey(0xFF1B);  // the field lives on until then
    expectNothingTaken();
}

TEST_F(CTextEditEnd, ItsWindowIsClosed) {
    window->destroyWindow();
    EXPECT_FALSE(edit->isEditing());
    expectNothingTaken();
}

TEST_F(CTextEditEnd, ItsWindowIsDeleted) {
    window.reset();
    expectNothingTaken();
}

TEST_F(CTextEditEnd, ItsWindowIsDeletedInADragInTheField) {
    client->press(leftButton);
    handleMessages();
    moveMouse({inside.x + 20, inside.y});
    handleMessages();
    window.reset();
    expectNothingTaken();
}

TEST_F(CTextEditEnd, TheHostIsDestroyed) {
    const xcb_window_t field = idOf(edit->getField()->getHandle());
    client->destroyWindow(host);
    handleMessages();
    EXPECT_FALSE(edit->isEditing());
    expectNothingHeld();
    EXPECT_NE(focus(), field);
}

TEST_F(CTextEditEnd, TheHostIsUnmapped) {
    xcb_unmap_window(client->get(), host);
    handleMessages();
    EXPECT_FALSE(edit->isEditing());
    expectNothingHeld();
}

TEST_F(CTextEditEnd, TheHostMoves) {
    const std::uint32_t x = 70;
    xcb_configure_window(client->get(), host, XCB_CONFIG_WINDOW_X, &x);
    handleMessages();
    handleMessages();
    EXPECT_FALSE(edit->isEditing());
    expectNothingTaken();
}

}  // namespace
