#include "platform/NativeLibrary.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace {

TEST(NativeLibrary, ClosingNullIsIgnored) {
    SetLastError(ERROR_SUCCESS);
    closeNativeLibrary(nullptr);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_SUCCESS});
}

TEST(NativeLibrary, OpensALibraryOfTheSystemByItsName) {
    std::string reason;
    void *library = openSystemLibrary("version.dll", reason);
    ASSERT_NE(library, nullptr) << reason;
    EXPECT_NE(nativeSymbol(library, "GetFileVersionInfoA"), nullptr);
    closeNativeLibrary(library);
    EXPECT_EQ(openSystemLibrary("no such library", reason), nullptr);
    EXPECT_NE(reason, "");
}

}  // namespace
