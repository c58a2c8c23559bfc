#include "platform/NativeShell.h"

#include <gtest/gtest.h>

namespace {

TEST(NativeShell, RefusesAFileThatIsNotThere) {
    EXPECT_FALSE(openNativeDocument("C:\\no such folder\\no such file.htm"));
}

}  // namespace
