#include "platform/linux/windowing/text/CXcbTextField.h"

#include "platform/linux/windowing/CTestClient.h"
#include "platform/linux/windowing/WindowIds.h"
#include "platform/linux/windowing/connection/XcbReply.h"
#include "platform/linux/windowing/keyboard/CXcbKeyboard.h"
#include "platform/linux/windowing/text/CXcbSelections.h"
#include "platform/windowing/CTestHost.h"
#include "platform/windowing/CWindowSpy.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using enum ENativeTextFieldEnd;

constexpr xcb_keysym_t backspaceKey = 0xFF08, returnKey = 0xFF0D, homeKey = 0xFF50,
                       leftKey = 0xFF51, endKey = 0xFF57, insertKey = 0xFF63, deleteKey = 0xFFFF,
                       shiftKey = 0xFFE1, controlKey = 0xFFE3, altKey = 0xFFE9;
constexpr int leftButton = 1, middleButton = 2;

class CXcbTextFieldTest : public testing::Test, public INativeTextFieldListener {
protected:
    static void SetUpTestSuite() { host = std::make_unique<CTestHost>(); }
    static void TearDownTestSuite() { host.reset(); }

    CXcbTextFieldTest() {
        client.focus(idOf(parent));
        editor.options.parent = parent;
        editor.create();
        settings.area = {0, 0, 90, 20};
        settings.text = "one two";
        settings.textColour = {255, 255, 0};
        settings.background = {0, 0, 100};
    }
    ~CXcbTextFieldTest() override {
        field.reset();
        editor.window.reset();
        host->destroyWindow(parent);
    }

    void open() {
        field = createNativeTextField(editor.window->getHandle(), settings, *this);
        ASSERT_NE(field, nullptr);
        ASSERT_TRUE(pumpUntil([this] { return connection().keyboard().getFocus() == id(); }));
    }
    xcb_window_t id() const { return idOf(field->getHandle()); }
    CXcbConnection &connection() const { return *CXcbConnection::find(idOf(*editor.window)); }
    std::string text() const {
        char buffer[100];
        field->getText(buffer, sizeof buffer);
        return buffer;
    }
    void type(xcb_keysym_t key) {
        client.typeKey(key);
        pumpAll(client);
    }
    void type(xcb_keysym_t modifier, xcb_keysym_t key) {
        client.pressKey(modifier);
        client.typeKey(key);
        client.releaseKey(modifier);
        pumpAll(client);
    }
    void point(int x) {
        const SNativeRect area = client.areaOf(id());
        client.movePointer(area.left + x, area.top + 10);
        pumpAll(client);
    }
    void click(int button, int times = 1) {
        client.click(button, times);
        pumpAll(client);
    }
    xcb_window_t focus() {
        pumpAll(client);
        return ownReply(xcb_get_input_focus_reply(client.get(), xcb_get_input_focus(client.get()),
                                                  nullptr))
            ->focus;
    }
    std::string offered(xcb_atom_t selection) {
        std::string received = "nothing";
        connection().selections().request(idOf(*editor.window), selection,
                                          [&](const std::string &offer) { received = offer; });
        return received;
    }

    static inline std::unique_ptr<CTestHost> host;

    CTestClient client;
    void *parent = host->createWindow();
    CWindowSpy editor;
    SNativeTextFieldSettings settings;
    std::unique_ptr<INativeTextField> field;
    std::vector<ENativeTextFieldEnd> ends;
    std::function<void()> onEnd;

private:
    void handleTextFieldEnd(ENativeTextFieldEnd end) override {
        ends.push_back(end);
        if (onEnd)
            onEnd();
    }
};

// The keyboard

TEST_F(CXcbTextFieldTest, BorrowsTheKeyboard) {
    open();
    EXPECT_EQ(focus(), id());
    EXPECT_THAT(ends, IsEmpty());
    field.reset();
    EXPECT_EQ(focus(), idOf(parent));
}

TEST_F(CXcbTextFieldTest, GivesTheKeyboardBackAfterAPressOutside) {
    onEnd = [this] { field.reset(); };
    open();
    client.movePointer(600, 400);
    click(leftButton);
    EXPECT_THAT(ends, ElementsAre(FocusLost));
    EXPECT_EQ(focus(), idOf(parent));
    EXPECT_TRUE(client.canGrabPointer());
}

TEST_F(CXcbTextFieldTest, TakesNothingFromAProgramThatHasTakenTheKeyboard) {
    onEnd = [this] { field.reset(); };
    open();
    const xcb_window_t other = client.createWindow({400, 300, 450, 350});
    client.focus(other);
    pumpAll(client);
    EXPECT_THAT(ends, ElementsAre(FocusLost));
    EXPECT_EQ(focus(), other);
    client.destroyWindow(other);
}

TEST_F(CXcbTextFieldTest, LosesNoKeyThatIsTypedAtOnce) {
    field = createNativeTextField(editor.window->getHandle(), settings, *this);
    client.synchronise();
    client.typeKey('a');
    client.typeKey('b');
    pumpAll(client);
    EXPECT_EQ(text(), "ab");
}

TEST_F(CXcbTextFieldTest, EditsByKeys) {
    open();
    type(endKey);
    type(backspaceKey);
    EXPECT_EQ(text(), "one tw");
    type(homeKey);
    type(deleteKey);
    EXPECT_EQ(text(), "ne tw");
    type(shiftKey, 'x');
    EXPECT_EQ(text(), "Xne tw");
    type(shiftKey, endKey);
    type('y');
    EXPECT_EQ(text(), "Xy");
    type(controlKey, 'a');
    type('z');
    EXPECT_EQ(text(), "z");
    type(altKey, 'q');
    type(controlKey, 'q');
    EXPECT_EQ(text(), "z");
}

TEST_F(CXcbTextFieldTest, CopiesCutsAndPastes) {
    const xcb_atom_t clipboard = connection().getAtoms().clipboard;
    open();
    type(controlKey, 'c');
    EXPECT_EQ(offered(clipboard), "one two");
    type(endKey);
    type(controlKey, 'v');
    EXPECT_EQ(text(), "one twoone two");
    type(controlKey, 'a');
    type(controlKey, 'x');
    EXPECT_EQ(text(), "");
    type(shiftKey, insertKey);
    EXPECT_EQ(text(), "one twoone two");
    type(shiftKey, homeKey);
    type(controlKey, insertKey);
    EXPECT_EQ(offered(clipboard), "one twoone two");
    type(shiftKey, deleteKey);
    EXPECT_EQ(text(), "");
}

TEST_F(CXcbTextFieldTest, LeavesItsTextOnTheClipboard) {
    open();
    type(controlKey, 'c');
    field.reset();
    EXPECT_EQ(offered(connection().getAtoms().clipboard), "one two");
}

TEST_F(CXcbTextFieldTest, OffersWhatTheUserSelects) {
    open();
    EXPECT_EQ(offered(XCB_ATOM_PRIMARY), "nothing");
    type(endKey);
    type(shiftKey, leftKey);
    EXPECT_EQ(offered(XCB_ATOM_PRIMARY), "o");
    point(3);
    client.press(leftButton);
    point(85);
    EXPECT_EQ(offered(XCB_ATOM_PRIMARY), "o");
    client.release(leftButton);
    pumpAll(client);
    EXPECT_EQ(offered(XCB_ATOM_PRIMARY), "one two");
}

TEST_F(CXcbTextFieldTest, PastesThePrimarySelectionWhereTheMiddleButtonIsPressed) {
    open();
    connection().selections().offer(idOf(*editor.window), XCB_ATOM_PRIMARY, "zero ");
    point(2);
    click(middleButton);
    EXPECT_EQ(text(), "zero one two");
}

TEST_F(CXcbTextFieldTest, SelectsByTheMouse) {
    open();
    point(3);
    click(leftButton, 2);
    type('x');
    EXPECT_EQ(text(), "xtwo");
    point(4);
    click(leftButton, 3);
    type('y');
    EXPECT_EQ(text(), "y");
}

TEST_F(CXcbTextFieldTest, AThirdPressElsewhereSelectsNothing) {
    open();
    point(3);
    click(leftButton, 2);
    point(85);
    click(leftButton);
    type('x');
    EXPECT_EQ(text(), "one twox");
}

TEST_F(CXcbTextFieldTest, KeepsCharactersWhole) {
    settings.text = "aö€";
    settings.maximumLength = 4;
    open();
    char buffer[5] = "xxxx";
    field->getText(buffer, 5);
    EXPECT_STREQ(buffer, "aö");
    type(endKey);
    type(backspaceKey);
    EXPECT_EQ(text(), "aö");
}

TEST_F(CXcbTextFieldTest, DrawsItself) {
    settings.text = "";
    open();
    EXPECT_EQ(client.pixelOf(id(), 0, 0), 0xFFFF00u);
    EXPECT_EQ(client.pixelOf(id(), 50, 10), 0x000064u);
    EXPECT_EQ(client.pixelOf(id(), 2, 10), 0xFFFF00u);  // the caret
    EXPECT_TRUE(host->pumpUntil([this] { return client.pixelOf(id(), 2, 10) == 0x000064u; }));
    EXPECT_TRUE(host->pumpUntil([this] { return client.pixelOf(id(), 2, 10) == 0xFFFF00u; }));
}

TEST_F(CXcbTextFieldTest, EndsWhenTheServerIsGone) {
    settings.text = "text";
    onEnd = [this] { field.reset(); };
    open();
    xcb_kill_client(client.get(), id());
    client.synchronise();
    EXPECT_TRUE(host->pumpUntil([this] { return !ends.empty(); }));
    EXPECT_THAT(ends, ElementsAre(FocusLost));
    EXPECT_EQ(editor.ends, 1);
}

TEST_F(CXcbTextFieldTest, IsRefusedWithoutAWindow) {
    EXPECT_EQ(createNativeTextField(nullptr, settings, *this), nullptr);
    EXPECT_EQ(createNativeTextField(parent, settings, *this), nullptr);
}

}  // namespace
