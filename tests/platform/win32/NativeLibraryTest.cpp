#include "platform/NativeLibrary.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace {

TEST(NativeLibrary, ClosingNullIsIgnored) {
    SetLastError(ERROR_SUCCESS);
    closeNativeLibrary(nullptr);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_SUCCESS});
}

}  // namespace
