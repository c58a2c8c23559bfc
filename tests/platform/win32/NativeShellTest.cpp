#include "platform/NativeShell.h"

#include <gtest/gtest.h>

namespace {

TEST(NativeShell, RefusesAMissingFile) {
    EXPECT_FALSE(openNativeDocument("C:\\no such folder\\no such file.htm"));
}

}  // namespace
