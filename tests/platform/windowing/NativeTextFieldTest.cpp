// What the text fields of all systems have in common.
#include "CTestUser.h"
#include "CWindowSpy.h"
#include "platform/INativeTextField.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using enum ENativeTextFieldEnd;

class CFieldSpy : public INativeTextFieldListener {
public:
    void handleTextFieldEnd(ENativeTextFieldEnd end) override {
        ends.push_back(end);
        if (onEnd)
            onEnd();
    }

    std::vector<ENativeTextFieldEnd> ends;
    std::function<void()> onEnd;
    std::unique_ptr<INativeTextField> field;
};

class NativeTextField : public testing::Test {
protected:
    static void SetUpTestSuite() { host = std::make_unique<CTestHost>(); }
    static void TearDownTestSuite() { host.reset(); }

    NativeTextField() {
        window.options.parent = parent;
        window.create();
        settings.area = {5, 6, 85, 26};
        settings.text = "old";
        settings.textColour = {255, 255, 255};
        settings.background = {0, 0, 100};
    }
    ~NativeTextField() override {
        spy.field.reset();
        window.window.reset();
        host->destroyWindow(parent);
    }

    void open() {
        spy.field = createNativeTextField(window.window->getHandle(), settings, spy);
        ASSERT_NE(spy.field, nullptr);
    }
    std::string text() const {
        char buffer[100];
        spy.field->getText(buffer, sizeof buffer);
        return buffer;
    }

    static inline std::unique_ptr<CTestHost> host;

    void *parent = host->createWindow();
    CWindowSpy window;
    SNativeTextFieldSettings settings;
    CFieldSpy spy;
    CTestUser user{*host};
};

TEST_F(NativeTextField, OpensWithAText) {
    open();
    EXPECT_NE(spy.field->getHandle(), nullptr);
    EXPECT_EQ(text(), "old");
    EXPECT_THAT(spy.ends, IsEmpty());
}

TEST_F(NativeTextField, LiesOverItsAreaInTheWindow) {
    open();
    const auto [left, top, right, bottom] = user.screenAreaOf(*spy.field);
    EXPECT_EQ(left, 50 + 10 + 5);
    EXPECT_EQ(top, 60 + 20 + 6);
    EXPECT_EQ(right, left + 80);
    EXPECT_EQ(bottom, top + 20);
}

TEST_F(NativeTextField, ReplacesTheWholeTextByWhatIsTyped) {
    open();
    user.type(*spy.field, "new 1");
    EXPECT_EQ(text(), "new 1");
    EXPECT_THAT(spy.ends, IsEmpty());
}

TEST_F(NativeTextField, TakesNoMoreThanItsLimit) {
    settings.maximumLength = 3;
    open();
    user.type(*spy.field, "abcde");
    EXPECT_EQ(text(), "abc");
}

TEST_F(NativeTextField, TakesAnyLengthWithoutALimit) {
    open();
    user.type(*spy.field, "abcdefghijklmnopqrstuvwxyz abcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(text(), "abcdefghijklmnopqrstuvwxyz abcdefghijklmnopqrstuvwxyz");
}

TEST_F(NativeTextField, KeepsATextThatIsLongerThanItsLimit) {
    settings.maximumLength = 2;
    open();
    EXPECT_EQ(text(), "old");
}

TEST_F(NativeTextField, CutsItsTextAtTheSizeOfABuffer) {
    open();
    char buffer[] = "xxxx";
    spy.field->getText(buffer, 3);
    EXPECT_STREQ(buffer, "ol");
    spy.field->getText(buffer, 1);
    EXPECT_STREQ(buffer, "");
}

TEST_F(NativeTextField, ReportsTheReturnKeyOnce) {
    open();
    user.type(*spy.field, "new");
    user.pressReturn(*spy.field);
    EXPECT_THAT(spy.ends, ElementsAre(ReturnKey));
    EXPECT_EQ(text(), "new");
    user.pressEscape(*spy.field);
    user.goTo(parent);
    EXPECT_THAT(spy.ends, ElementsAre(ReturnKey));
}

TEST_F(NativeTextField, ReportsTheEscapeKey) {
    open();
    user.pressEscape(*spy.field);
    EXPECT_THAT(spy.ends, ElementsAre(EscapeKey));
}

TEST_F(NativeTextField, ReportsThatItHasLostTheKeyboard) {
    open();
    user.type(*spy.field, "new");
    user.goTo(parent);
    EXPECT_THAT(spy.ends, ElementsAre(FocusLost));
}

TEST_F(NativeTextField, MayBeDestroyedInsideAnyReport) {
    const auto destroy = [this] { spy.field.reset(); };
    spy.onEnd = destroy;
    open();
    user.pressReturn(*spy.field);
    open();
    user.pressEscape(*spy.field);
    open();
    user.type(*spy.field, "new");
    user.goTo(parent);
    EXPECT_THAT(spy.ends, ElementsAre(ReturnKey, EscapeKey, FocusLost));
    EXPECT_EQ(spy.field, nullptr);
}

TEST_F(NativeTextField, ReportsNothingWhileItIsDestroyed) {
    open();
    user.type(*spy.field, "new");
    spy.field.reset();
    bool isOver = false;
    window.onTimer = [&](int) { isOver = true; };
    window.window->startTimer(1, 20);
    EXPECT_TRUE(host->pumpUntil([&] { return isOver; }));
    EXPECT_THAT(spy.ends, IsEmpty());
}

TEST_F(NativeTextField, EndsWithItsWindow) {
    open();
    user.type(*spy.field, "new");
    window.window.reset();
    EXPECT_THAT(spy.ends, ElementsAre(FocusLost));
    text();  // harmless
}

TEST_F(NativeTextField, MayBeDestroyedWhenItEndsWithItsWindow) {
    spy.onEnd = [this] { spy.field.reset(); };
    open();
    user.type(*spy.field, "new");
    window.window.reset();
    EXPECT_THAT(spy.ends, ElementsAre(FocusLost));
}

TEST_F(NativeTextField, EndsWithTheHost) {
    open();
    user.type(*spy.field, "new");
    host->destroyWindow(parent);
    EXPECT_TRUE(host->pumpUntil([this] { return window.ends > 0; }));
    EXPECT_THAT(spy.ends, ElementsAre(FocusLost));
}

TEST_F(NativeTextField, GivesWayToAnother) {
    open();
    user.type(*spy.field, "new");
    CFieldSpy second;
    second.field = createNativeTextField(window.window->getHandle(), settings, second);
    ASSERT_NE(second.field, nullptr);
    EXPECT_TRUE(host->pumpUntil([this] { return !spy.ends.empty(); }));
    EXPECT_THAT(spy.ends, ElementsAre(FocusLost));
    spy.field.reset();
    user.type(*second.field, "other");
    EXPECT_THAT(second.ends, IsEmpty());
    user.pressReturn(*second.field);
    EXPECT_THAT(second.ends, ElementsAre(ReturnKey));
}

TEST_F(NativeTextField, HasAFont) {
    SNativeFontRecord record;
    record.height = -12;
    const auto font = createNativeFont(record);
    settings.font = font.get();
    open();
    user.type(*spy.field, "new");
    EXPECT_EQ(text(), "new");
}

}  // namespace
