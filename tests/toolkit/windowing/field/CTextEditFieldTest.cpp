// The text edit in a real window, with a real field and a user who types.
#include "platform/windowing/CTestUser.h"
#include "toolkit/controls/CTextEdit.h"
#include "toolkit/events/CActionEvent.h"
#include "toolkit/windowing/CWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using Tessitor::Basics::CString;
using Tessitor::GUI::Controls::CTextEdit;
using Tessitor::GUI::Windowing::CWindow;
using Tessitor::GUI::Windowing::CWindowAttributes;
using Tessitor::MathTools::CRect;

class CActionCount : public Tessitor::GUI::Listeners::IActionListener {
public:
    void handleActionEvent(const Tessitor::GUI::Events::CActionEvent &) override {
        ++count;
        if (onAction)
            onAction();
    }

    int count = 0;
    std::function<void()> onAction;
};

class CTextEditField : public testing::Test {
protected:
    static void SetUpTestSuite() { host = std::make_unique<CTestHost>(); }
    static void TearDownTestSuite() { host.reset(); }

    CTextEditField() {
        hostWindow.getMutableWindowHandle()->native = parent;
        open(&hostWindow, 0x50000000);
    }
    ~CTextEditField() override {
        window.reset();
        hostWindow.getMutableWindowHandle()->native = nullptr;
        host->destroyWindow(parent);
    }

    void open(CWindow *parentWindow, std::uint32_t style) {
        window = std::make_unique<CWindow>(CRect(10, 20, 200, 100));
        window->setParentWindow(parentWindow);
        CWindowAttributes attributes;
        attributes.setWindowTitle("Text");
        attributes.setWindowStyles(style, 0);
        window->setWindowAttributes(&attributes, true);
        edit = new CTextEdit(window->getControlRoot(), 1, CRect(5, 6, 80, 20), "old", &actions);
        window->getControlRoot()->addControl(edit);
    }
    void startEditing() {
        Tessitor::GUI::Windowing::CMouse mouse;
        Tessitor::GUI::Events::CMouseEvent event(&mouse);
        edit->handleLeftButtonDown(event);
        ASSERT_TRUE(edit->isEditing());
    }
    std::string label() const { return edit->getText().getString(); }
    bool isLocked() const { return window->getControlRoot()->controlIsLocked(); }

    static inline std::unique_ptr<CTestHost> host;

    void *parent = host->createWindow();
    CWindow hostWindow{CRect(0, 0, 10, 10)};
    std::unique_ptr<CWindow> window;
    CActionCount actions;
    CTextEdit *edit;
    CTestUser user{*host};
};

TEST_F(CTextEditField, LiesOverTheLabel) {
    startEditing();
    const auto [left, top, right, bottom] = user.screenAreaOf(*edit->getField());
    EXPECT_EQ(left, 50 + 10 + 5);
    EXPECT_EQ(top, 60 + 20 + 6);
    EXPECT_EQ(right - left, 80);
    EXPECT_EQ(bottom - top, 20);
}

// In a window inside a host's, Windows would ask the host for the colour.
TEST_F(CTextEditField, HasItsColourInATopLevelWindow) {
    open(nullptr, 0x10CF0000);
    startEditing();
    user.type(*edit->getField(), "x");
    EXPECT_TRUE(host->pumpUntil([this] {
        return user.pixelOf(*edit->getField(), 60, 5) == 0x5556C8 &&
               user.pixelOf(*edit->getField(), 60, 15) == 0x5556C8;
    }));
}

TEST_F(CTextEditField, TakesTheTextOverAtTheReturnKey) {
    startEditing();
    user.type(*edit->getField(), "new");
    EXPECT_STREQ(edit->getEditedText().getString(), "new");
    EXPECT_EQ(label(), "old");
    user.pressReturn(*edit->getField());
    EXPECT_FALSE(edit->isEditing());
    EXPECT_EQ(label(), "new");
    EXPECT_EQ(actions.count, 1);
    EXPECT_FALSE(isLocked());
}

TEST_F(CTextEditField, AbandonsTheTextAtTheEscapeKey) {
    startEditing();
    user.type(*edit->getField(), "new");
    user.pressEscape(*edit->getField());
    EXPECT_FALSE(edit->isEditing());
    EXPECT_EQ(label(), "old");
    EXPECT_EQ(actions.count, 0);
    EXPECT_FALSE(isLocked());
}

TEST_F(CTextEditField, AbandonsTheTextWhenTheFocusGoes) {
    startEditing();
    user.type(*edit->getField(), "new");
    user.goTo(parent);
    EXPECT_FALSE(edit->isEditing());
    EXPECT_EQ(label(), "old");
    EXPECT_EQ(actions.count, 0);
}

TEST_F(CTextEditField, TurnsAnEmptyTextIntoABlank) {
    edit->setText("");
    startEditing();
    user.type(*edit->getField(), "");
    user.pressReturn(*edit->getField());
    EXPECT_EQ(label(), " ");
}

TEST_F(CTextEditField, TakesFiftyCharactersAtFirst) {
    startEditing();
    user.type(*edit->getField(), "abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwxyz");
    user.pressReturn(*edit->getField());
    EXPECT_EQ(label(), "abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwx");
}

TEST_F(CTextEditField, KeepsCharactersWhole) {
    edit->setText("größe");
    startEditing();
    user.pressReturn(*edit->getField());
    EXPECT_EQ(label(), "größe");
}

TEST_F(CTextEditField, MayBeRemovedWhileItIsEdited) {
    startEditing();
    user.type(*edit->getField(), "new");
    window->getControlRoot()->removeControl(edit);
    EXPECT_EQ(actions.count, 0);
}

TEST_F(CTextEditField, MayBeRemovedByItsListener) {
    actions.onAction = [this] { window->getControlRoot()->removeControl(edit); };
    startEditing();
    user.type(*edit->getField(), "new");
    user.pressReturn(*edit->getField());
    EXPECT_EQ(actions.count, 1);
    EXPECT_FALSE(isLocked());
}

TEST_F(CTextEditField, EndsWhenItsWindowIsClosed) {
    startEditing();
    user.type(*edit->getField(), "new");
    window->destroyWindow();
    EXPECT_FALSE(edit->isEditing());
    EXPECT_EQ(label(), "old");
    EXPECT_EQ(actions.count, 0);
}

TEST_F(CTextEditField, EndsWhenItsWindowIsDeleted) {
    startEditing();
    user.type(*edit->getField(), "new");
    window.reset();
    EXPECT_EQ(actions.count, 0);
}

TEST_F(CTextEditField, EndsWithTheHost) {
    startEditing();
    user.type(*edit->getField(), "new");
    host->destroyWindow(parent);
    EXPECT_TRUE(host->pumpUntil([this] { return !edit->isEditing(); }));
    EXPECT_EQ(label(), "old");
}

}  // namespace
