#include "toolkit/graphics/CWindowIcon.h"

#include "platform/NativeIcon.h"

#include <gtest/gtest.h>

namespace {

using Tessitor::GUI::Graphics::CWindowIcon;

// Either system can load this one.
void *loadIcon() {
    return loadNativeIcon(ICON, 0);
}

TEST(CWindowIcon, HasNoHandleWithoutAnIcon) {
    EXPECT_EQ(CWindowIcon(12345).getIcon(), nullptr);
    EXPECT_EQ(CWindowIcon("no such file", 0).getIcon(), nullptr);
}

TEST(CWindowIcon, LoadsAnIconFromAFile) {
    EXPECT_NE(CWindowIcon(ICON, 0).getIcon(), nullptr);
}

TEST(CWindowIcon, TakesOverAHandle) {
    void *handle = loadIcon();
    ASSERT_NE(handle, nullptr);
    CWindowIcon icon(handle);
    EXPECT_EQ(icon.getIcon(), handle);
    icon.setIcon(handle);  // does not destroy it
    void *other = loadIcon();
    icon.setIcon(other);
    EXPECT_EQ(icon.getIcon(), other);
    icon.setIcon(nullptr);
    EXPECT_EQ(icon.getIcon(), nullptr);
}

}  // namespace
