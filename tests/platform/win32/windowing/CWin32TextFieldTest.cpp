#include "platform/INativeTextField.h"
#include "platform/windowing/CTestHost.h"
#include "platform/windowing/CWindowSpy.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace {

class CWin32TextField : public testing::Test, public INativeTextFieldListener {
protected:
    static void SetUpTestSuite() { host = std::make_unique<CTestHost>(); }
    static void TearDownTestSuite() { host.reset(); }

    CWin32TextField() {
        window.options.parent = parent;
        window.create();
        settings.area = {5, 6, 85, 26};
        settings.text = "old text";
    }
    ~CWin32TextField() override {
        field.reset();
        window.window.reset();
        host->destroyWindow(parent);
    }

    void open() {
        field = createNativeTextField(window.window->getHandle(), settings, *this);
        ASSERT_NE(field, nullptr);
    }
    HWND handle() const { return static_cast<HWND>(field->getHandle()); }
    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageA(handle(), message, wParam, lParam);
    }
    void handleTextFieldEnd(ENativeTextFieldEnd) override {}

    static inline std::unique_ptr<CTestHost> host;

    void *parent = host->createWindow();
    CWindowSpy window;
    SNativeTextFieldSettings settings;
    std::unique_ptr<INativeTextField> field;
};

TEST_F(CWin32TextField, IsAnEditControlInAPopup) {
    settings.styleBits = ES_UPPERCASE;
    open();
    char name[20] = "";
    GetClassNameA(handle(), name, sizeof name);
    EXPECT_STRCASEEQ(name, "EDIT");
    const auto style = static_cast<DWORD>(GetWindowLongPtrA(handle(), GWL_STYLE));
    constexpr DWORD expected = WS_POPUP | WS_VISIBLE | ES_AUTOHSCROLL | ES_UPPERCASE;
    EXPECT_EQ(style & expected, expected);
    EXPECT_EQ(GetWindowLongPtrA(handle(), GWLP_USERDATA), reinterpret_cast<LONG_PTR>(field.get()));
}

TEST_F(CWin32TextField, HasTheFocusAndAllOfItsTextSelected) {
    open();
    EXPECT_EQ(GetFocus(), handle());
    DWORD start = 1, end = 1;
    send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(start, 0u);
    EXPECT_EQ(end, 8u);
}

TEST_F(CWin32TextField, HasNoMarginsAndTheLimit) {
    settings.maximumLength = 12;
    open();
    EXPECT_EQ(send(EM_GETMARGINS), 0);
    EXPECT_EQ(send(EM_GETLIMITTEXT), 12);
}

TEST_F(CWin32TextField, TakesAllKeys) {
    open();
    EXPECT_EQ(send(WM_GETDLGCODE), DLGC_WANTALLKEYS);
}

TEST_F(CWin32TextField, KeepsACopyOfTheFont) {
    SNativeFontRecord record;
    record.height = -17;
    auto font = createNativeFont(record);
    settings.font = font.get();
    open();
    font.reset();
    LOGFONTA used = {};
    GetObjectA(reinterpret_cast<HFONT>(send(WM_GETFONT)), sizeof used, &used);
    EXPECT_EQ(used.lfHeight, -17);
}

TEST_F(CWin32TextField, SetsItsColours) {
    settings.textColour = {1, 2, 3};
    settings.background = {85, 86, 200};
    open();
    const HDC context = GetDC(handle());
    const auto brush = reinterpret_cast<HBRUSH>(field->colour(context));
    LOGBRUSH description = {};
    GetObjectA(brush, sizeof description, &description);
    EXPECT_EQ(description.lbColor, RGB(85, 86, 200));
    EXPECT_EQ(GetBkColor(context), RGB(85, 86, 200));
    EXPECT_EQ(GetTextColor(context), RGB(1, 2, 3));
    ReleaseDC(handle(), context);
}

// An edit control asks the top level window around it.
TEST_F(CWin32TextField, AsksATopLevelWindowForTheColours) {
    window.options.parent = nullptr;
    window.options.style = WS_POPUP | WS_VISIBLE;
    window.create();
    HWND asking = nullptr;
    window.onMessage = [&](const CWindowSpy::SMessage &message) -> CWindowSpy::Result {
        if (message.number != NativeColourEdit)
            return std::nullopt;
        asking = reinterpret_cast<HWND>(message.lParam);
        return std::nullopt;
    };
    open();
    UpdateWindow(handle());
    EXPECT_EQ(asking, handle());
}

TEST_F(CWin32TextField, TakesItsWindowAlong) {
    open();
    const HWND edit = handle();
    field.reset();
    EXPECT_FALSE(IsWindow(edit));
}

}  // namespace
