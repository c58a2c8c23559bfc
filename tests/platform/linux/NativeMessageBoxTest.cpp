#include "platform/NativeMessageBox.h"

#include <gtest/gtest.h>

namespace {

TEST(NativeMessageBox, WritesCaptionAndTextToStandardError) {
    testing::internal::CaptureStderr();
    showNativeMessage("It has failed.", "Sorry", true);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Sorry: It has failed.\n");
}

}  // namespace
