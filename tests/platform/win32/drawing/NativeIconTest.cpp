#include "platform/NativeIcon.h"

#include <gtest/gtest.h>
#include <string>
#include <windows.h>

namespace {

void expectSquare(void *icon) {
    ASSERT_NE(icon, nullptr);
    ICONINFO info = {};
    ASSERT_NE(GetIconInfo(static_cast<HICON>(icon), &info), 0);
    EXPECT_NE(info.fIcon, 0);
    BITMAP bitmap = {};
    GetObjectA(info.hbmColor, sizeof bitmap, &bitmap);
    EXPECT_GE(bitmap.bmWidth, 16);
    EXPECT_EQ(bitmap.bmWidth, bitmap.bmHeight);
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
}

TEST(NativeIcon, IsLoadedFromTheResourcesOfThisModule) {
    void *icon = loadNativeIcon(101);
    expectSquare(icon);
    destroyNativeIcon(icon);
    // The system takes the lower half of the number.
    EXPECT_EQ(loadNativeIcon(65536 + 101), nullptr);
}

TEST(NativeIcon, IsLoadedFromAFile) {
    void *icon = loadNativeIcon(std::string(FIXTURES "/square.ico"), 0);
    expectSquare(icon);
    destroyNativeIcon(icon);
    ICONINFO info = {};
    EXPECT_EQ(GetIconInfo(static_cast<HICON>(icon), &info), 0);
}

TEST(NativeIcon, IsLoadedFromAProgram) {
    char program[MAX_PATH];
    GetModuleFileNameA(nullptr, program, sizeof program);
    void *icon = loadNativeIcon(std::string(program), 0);
    expectSquare(icon);
    destroyNativeIcon(icon);
    for (const int index : {-1, 2})
        EXPECT_EQ(loadNativeIcon(std::string(program), index), nullptr) << index;
}

}  // namespace
