#include "foundation/DisplayMessage.h"

#include <gtest/gtest.h>

namespace {

TEST(DisplayMessage, HandsTextAndCaptionToTheSystem) {
    testing::internal::CaptureStderr();
    Tessitor::displayMessage("It has failed.", "Sorry", true);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Sorry: It has failed.\n");
}

}  // namespace
