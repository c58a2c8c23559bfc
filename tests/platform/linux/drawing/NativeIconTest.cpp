#include "platform/NativeIcon.h"

#include "platform/INativeBitmap.h"

#include <gtest/gtest.h>

namespace {

TEST(NativeIcon, IsAPicture) {
    void *icon = loadNativeIcon(FIXTURES "/red-and-blue.jpg", 0);
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(static_cast<INativeBitmap *>(icon)->getWidth(), 16);
    destroyNativeIcon(icon);
}

TEST(NativeIcon, AFileHasOnlyOne) {
    for (const int index : {-1, 1})
        EXPECT_EQ(loadNativeIcon(FIXTURES "/red-and-blue.jpg", index), nullptr) << index;
}

}  // namespace
