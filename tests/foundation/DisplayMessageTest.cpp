#include "foundation/DisplayMessage.h"

#include <gtest/gtest.h>

namespace {

TEST(DisplayMessage, PassesTextAndCaptionToTheSystem) {
    testing::internal::CaptureStderr();
    Tessitor::displayMessage("It has failed.", "Sorry", true);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Sorry: It has failed.\n");
}

}  // namespace
