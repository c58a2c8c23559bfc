#include "platform/NativeLibrary.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

namespace {

TEST(NativeLibrary, ClosingNullIsIgnored) {
    dlerror();
    closeNativeLibrary(nullptr);  // dlclose(nullptr) would crash
    EXPECT_EQ(dlerror(), nullptr);
}

}  // namespace
