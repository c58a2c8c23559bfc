#include "dspclasses/blocks/CResetRequest.h"

#include <gtest/gtest.h>

TEST(CResetRequest, IsTakenOnceHoweverOftenItWasRequested) {
    CResetRequest request;
    EXPECT_FALSE(request.take());
    request.ask();
    request.ask();
    EXPECT_TRUE(request.take());
    EXPECT_FALSE(request.take());
    request.ask();
    EXPECT_TRUE(request.take());
}
