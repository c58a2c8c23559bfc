#include "platform/NativeLibrary.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

namespace {

TEST(NativeLibrary, ClosingNullIsIgnored) {
    dlerror();
    closeNativeLibrary(nullptr);  // dlclose(nullptr) would crash
    EXPECT_EQ(dlerror(), nullptr);
}

TEST(NativeLibrary, OpensALibraryOfTheSystemByItsName) {
    std::string reason;
    void *library = openSystemLibrary("libm.so.6", reason);
    ASSERT_NE(library, nullptr) << reason;
    EXPECT_NE(nativeSymbol(library, "cos"), nullptr);
    closeNativeLibrary(library);
    EXPECT_EQ(openSystemLibrary("no such library", reason), nullptr);
    EXPECT_NE(reason, "");
}

}  // namespace
