#pragma once

#include "platform/linux/CVirtualDisplay.h"
#include "platform/linux/windowing/CTestClient.h"

#include <gtest/gtest.h>
#include <memory>

/// The tests of a suite share a display of 640 by 480, and a client that keeps the X server from
/// starting anew between them.
class CDisplayFixture : public testing::Test {
protected:
    static void SetUpTestSuite() {
        display = std::make_unique<CVirtualDisplay>("640x480x24");
        client = std::make_unique<CTestClient>();
    }
    static void TearDownTestSuite() {
        client.reset();
        display.reset();
    }

    static inline std::unique_ptr<CVirtualDisplay> display;
    static inline std::unique_ptr<CTestClient> client;
};
