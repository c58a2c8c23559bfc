#include "platform/NativeMessageBox.h"

#include <gtest/gtest.h>
#include <string>
#include <windows.h>

namespace {

constexpr int textItem = 0xffff;

struct SBox {
    std::string caption, text;
    bool hasIcon = false;
} seen;

// The id of the icon is not documented, so search all static items.
bool hasIcon(HWND box) {
    HWND item = nullptr;
    while ((item = FindWindowExA(box, item, "Static", nullptr)) != nullptr)
        if (SendMessageA(item, STM_GETICON, 0, 0) != 0)
            return true;
    return false;
}

// Reads the box when it is created, and closes it.
LRESULT CALLBACK closeBox(int code, WPARAM wParam, LPARAM lParam) {
    const auto *message = reinterpret_cast<const CWPRETSTRUCT *>(lParam);
    if (code == HC_ACTION && message->message == WM_INITDIALOG) {
        char text[256] = {};
        GetWindowTextA(message->hwnd, text, sizeof text);
        seen.caption = text;
        GetDlgItemTextA(message->hwnd, textItem, text, sizeof text);
        seen.text = text;
        seen.hasIcon = hasIcon(message->hwnd);
        PostMessageA(message->hwnd, WM_COMMAND, IDOK, 0);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

SBox show(bool isError) {
    seen = {};
    HHOOK hook = SetWindowsHookExA(WH_CALLWNDPROCRET, closeBox, nullptr, GetCurrentThreadId());
    showNativeMessage("It has failed.", "Sorry", isError);
    UnhookWindowsHookEx(hook);
    return seen;
}

class NativeMessageBox : public testing::Test {
protected:
    void SetUp() override {
        HWND window =
            CreateWindowA("STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
        ASSERT_NE(window, nullptr) << "no desktop: run under xvfb-run, as scripts/test.sh does";
        DestroyWindow(window);
    }
};

TEST_F(NativeMessageBox, ShowsTextAndCaption) {
    const SBox box = show(false);
    EXPECT_EQ(box.text, "It has failed.");
    EXPECT_EQ(box.caption, "Sorry");
    EXPECT_FALSE(box.hasIcon);
}

TEST_F(NativeMessageBox, AnErrorHasAnIcon) {
    EXPECT_TRUE(show(true).hasIcon);
}

}  // namespace
