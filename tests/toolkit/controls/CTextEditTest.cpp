#include "toolkit/controls/CTextEdit.h"

#include "toolkit/controls/CRootTest.h"
#include "toolkit/controls/FakeNativeTextField.h"

#include <limits>

namespace {

using Tessitor::Basics::CString;
using Tessitor::GUI::Controls::CTextEdit;
using testing::IsEmpty;
using enum ENativeTextFieldEnd;

class CTextEditTest : public CRootTest {
protected:
    CTextEditTest() {
        field = {};
        window.setControlRoot(&root);
        window.setWindowPosition({100, 200});  // does not matter
        window.getMutableWindowHandle()->native = &nativeWindow;
        root.addControl(edit);
    }

    CValueLog actions;
    SFakeNativeTextField &field = fakeNativeTextField();
    int nativeWindow = 0;
    CTextEdit *edit = new CTextEdit(&root, 4, CRect(10, 20, 30, 15), "old", &actions);
};

TEST_F(CTextEditTest, IsALabelThatTakesTheMouse) {
    EXPECT_TRUE(edit->isMouseEnabled());
    EXPECT_TRUE(edit->isDropFileEnabled());
    EXPECT_EQ(edit->getActionListener(), &actions);
    EXPECT_FALSE(edit->isEditing());
    EXPECT_FALSE(edit->getReservedFlag());
    EXPECT_TRUE(edit->getClass() == "CTextEdit");
    EXPECT_TRUE(edit->getClass().isTypeOf(Tessitor::Basics::CClass("CTextLabel")));
    edit->setReservedFlag(true);
    EXPECT_TRUE(edit->getReservedFlag());
}

TEST_F(CTextEditTest, OpensAFieldOverItselfWhenPressed) {
    auto *font = new Tessitor::GUI::Fonts::CFont;
    edit->setFont(font);
    edit->setStyleBits(0x2000);
    edit->setTextColour({1, 2, 3});
    press(15, 25);
    ASSERT_TRUE(field.isOpen);
    EXPECT_TRUE(edit->isEditing());
    EXPECT_EQ(root.getLockedControl(), edit);
    EXPECT_EQ(field.window, &nativeWindow);
    EXPECT_EQ(field.settings.area.left, 10);
    EXPECT_EQ(field.settings.area.top, 20);
    EXPECT_EQ(field.settings.area.right, 40);
    EXPECT_EQ(field.settings.area.bottom, 35);
    EXPECT_EQ(field.text, "old");
    EXPECT_EQ(field.settings.font, &font->getNativeFont());
    EXPECT_EQ(field.settings.textColour, (SNativeColour{1, 2, 3}));
    EXPECT_EQ(field.settings.background, (SNativeColour{85, 86, 200}));
    EXPECT_EQ(field.settings.styleBits, 0x2000u);
    EXPECT_EQ(field.settings.maximumLength, 50);
    field.end(EscapeKey);
}

TEST_F(CTextEditTest, TakesTheTextOverAtTheReturnKey) {
    press(15, 25);
    field.text = "new";
    EXPECT_STREQ(edit->getEditedText().getString(), "new");
    EXPECT_STREQ(edit->getText().getString(), "old");
    field.end(ReturnKey);
    EXPECT_STREQ(edit->getText().getString(), "new");
    EXPECT_STREQ(edit->getEditedText().getString(), "new");
    EXPECT_EQ(actions.take().size(), 1u);
    EXPECT_FALSE(field.isOpen);
    EXPECT_FALSE(root.controlIsLocked());
    EXPECT_FALSE(takeRedrawnAreas().empty());
}

TEST_F(CTextEditTest, AbandonsTheTextOtherwise) {
    for (const ENativeTextFieldEnd how : {EscapeKey, FocusLost}) {
        press(15, 25);
        field.text = "new";
        takeRedrawnAreas();
        field.end(how);
        EXPECT_STREQ(edit->getText().getString(), "old");
        EXPECT_THAT(actions.take(), IsEmpty());
        EXPECT_FALSE(field.isOpen);
        EXPECT_FALSE(root.controlIsLocked());
        EXPECT_EQ(takeRedrawnAreas().size(), 1u);
    }
    press(15, 25);
    field.end(ReturnKey);  // is not cancelled any more
    EXPECT_EQ(actions.take().size(), 1u);
}

TEST_F(CTextEditTest, TurnsAnEmptyTextIntoABlank) {
    press(15, 25);
    field.text = "";
    field.end(ReturnKey);
    EXPECT_STREQ(edit->getText().getString(), " ");
}

TEST_F(CTextEditTest, CutsTheTextAtItsLimit) {
    edit->setLimit(true, 3);
    press(15, 25);
    EXPECT_EQ(field.settings.maximumLength, 3);
    field.text = "abcdef";
    field.end(ReturnKey);
    EXPECT_STREQ(edit->getText().getString(), "abc");
    edit->setLimit(false, 2);
    press(15, 25);
    EXPECT_EQ(field.settings.maximumLength, 0);
    field.end(ReturnKey);
    EXPECT_STREQ(edit->getText().getString(), "ab");
    edit->setLimit(true, std::numeric_limits<std::int32_t>::max());
    press(15, 25);
    EXPECT_EQ(field.settings.maximumLength, 32767);
    field.end(ReturnKey);
    edit->setLimit(true, -1);
    press(15, 25);
    field.end(ReturnKey);
    EXPECT_STREQ(edit->getText().getString(), " ");
}

TEST_F(CTextEditTest, StartsAtTheClickThatIsSet) {
    doubleClick(15, 25);
    EXPECT_FALSE(field.isOpen);
    edit->setEditOnSingleClick(false);
    press(15, 25);
    EXPECT_FALSE(field.isOpen);
    edit->setEditable(false);
    doubleClick(15, 25);
    EXPECT_FALSE(field.isOpen);
    edit->setEditable(true);
    doubleClick(15, 25);
    EXPECT_TRUE(field.isOpen);
    field.end(EscapeKey);
    edit->setEditOnSingleClick(true);
    edit->setEditable(false);
    press(15, 25);
    EXPECT_FALSE(field.isOpen);
}

TEST_F(CTextEditTest, LocksAgainWhatWasLockedBefore) {
    IControl *other = add(root, "other", CRect(60, 60, 5, 5));
    root.lockControl(other);
    edit->handleLeftButtonDown(event);
    EXPECT_EQ(root.getLockedControl(), edit);
    edit->handleLeftButtonDown(event);  // a second field replaces the first
    EXPECT_TRUE(field.isOpen);
    field.end(EscapeKey);
    EXPECT_EQ(root.getLockedControl(), other);
}

TEST_F(CTextEditTest, LocksInTheRootOfTheWindow) {
    CControlPanel *panel = addPanel(root, CRect(50, 50, 40, 40));
    auto *inner = new CTextEdit(panel, 4, CRect(1, 2, 10, 10), "", nullptr);
    panel->addControl(inner);
    inner->handleLeftButtonDown(event);
    EXPECT_EQ(root.getLockedControl(), inner);
    EXPECT_EQ(field.settings.area.left, 51);
    EXPECT_EQ(field.settings.area.top, 52);
    field.end(ReturnKey);
    EXPECT_FALSE(root.controlIsLocked());
}

TEST_F(CTextEditTest, AnswersForTheColoursOfItsField) {
    int context = 0, other = 0;
    EXPECT_FALSE(edit->holdsNativeChild(&field));
    press(15, 25);
    EXPECT_TRUE(edit->holdsNativeChild(&field));
    EXPECT_FALSE(edit->holdsNativeChild(&other));
    EXPECT_EQ(edit->colourNativeChild(&context), 42);
    EXPECT_EQ(field.deviceContext, &context);
    field.end(EscapeKey);
    EXPECT_FALSE(edit->holdsNativeChild(&field));
    EXPECT_FALSE(edit->holdsNativeChild(nullptr));
}

TEST_F(CTextEditTest, LocksNothingIfThereIsNoField) {
    field.isRefused = true;
    press(15, 25);
    EXPECT_FALSE(edit->isEditing());
    EXPECT_FALSE(root.controlIsLocked());
}

TEST_F(CTextEditTest, LetsItsListenerRemoveIt) {
    CActionSpy remover;
    remover.onAction = [&](const auto &action) { root.removeControl(action.getSender()); };
    edit->registerActionListener(&remover);
    press(15, 25);
    move(0, 0);
    root.clearControls();
    field.end(ReturnKey);
    EXPECT_FALSE(field.isOpen);
    EXPECT_FALSE(root.controlIsLocked());
}

TEST_F(CTextEditTest, LetsItsListenerRemoveThePanelAroundIt) {
    const auto isDestroyed = std::make_shared<bool>(false);
    CActionSpy remover;
    CControlPanel *panel = addPanel(root, CRect(50, 50, 40, 40));
    auto *inner = new CTextEdit(panel, 4, CRect(0, 0, 20, 10), "", &remover);
    panel->addControl(inner);
    add(*panel, "beside", CRect(30, 30, 5, 5))->isDestroyed = isDestroyed;
    press(55, 55);
    move(56, 56);  // the text has the mouse, so only the root still holds the panel
    takeRedrawnAreas();
    remover.onAction = [&](const auto &) {
        root.removeControl(panel);
        EXPECT_FALSE(*isDestroyed);
    };
    field.end(ReturnKey);
    EXPECT_TRUE(*isDestroyed);
    EXPECT_FALSE(field.isOpen);
    EXPECT_FALSE(root.controlIsLocked());
    EXPECT_THAT(takeRedrawnAreas(), testing::ElementsAre("50,50,20,10", "50,50,20,10"));
}

TEST_F(CTextEditTest, IgnoresAnActionWhileNothingIsEdited) {
    edit->handleActionEvent(Tessitor::GUI::Events::CActionEvent(edit));
    EXPECT_STREQ(edit->getText().getString(), "old");
    EXPECT_THAT(actions.take(), IsEmpty());
}

}  // namespace
