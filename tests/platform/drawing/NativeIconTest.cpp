#include "platform/NativeIcon.h"

#include "CTemporaryFolder.h"
#include "PictureBytes.h"

#include <gtest/gtest.h>

namespace {

TEST(NativeIcon, IsNullIfThereIsNoSuchResource) {
    for (const int resource : {-1, 0, 1, 65535, 65536, 2000000000})
        EXPECT_EQ(loadNativeIcon(resource), nullptr) << resource;
}

TEST(NativeIcon, IsNullIfThereIsNoIconInTheFile) {
    const CTemporaryFolder folder;
    const std::string text = (folder / "text").string();
    writeBytes(text, "text");
    for (const int index : {-1, 0, 1}) {
        EXPECT_EQ(loadNativeIcon((folder / "none").string(), index), nullptr) << index;
        EXPECT_EQ(loadNativeIcon(text, index), nullptr) << index;
        EXPECT_EQ(loadNativeIcon(folder.path().string(), index), nullptr) << index;
    }
}

TEST(NativeIcon, NullIsDestroyedWithoutEffect) {
    destroyNativeIcon(nullptr);
}

}  // namespace
