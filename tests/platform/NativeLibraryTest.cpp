#include "platform/NativeLibrary.h"

#include <gtest/gtest.h>

namespace {

TEST(NativeLibrary, FindsWhatALibraryExports) {
    std::string reason;
    void *library = openNativeLibrary(SAMPLE_MODULE, reason);
    ASSERT_NE(library, nullptr) << reason;
    EXPECT_EQ(reason, "");
    EXPECT_NE(nativeSymbol(library, "sampleModulePath"), nullptr);
    EXPECT_EQ(nativeSymbol(library, "noSuchFunction"), nullptr);
    closeNativeLibrary(library);
}

TEST(NativeLibrary, SaysWhyAFileIsRefused) {
    std::string reason;
    EXPECT_EQ(openNativeLibrary("no such folder/no such library", reason), nullptr);
    EXPECT_NE(reason, "");
}

TEST(NativeLibrary, ClosingNullIsIgnored) {
    closeNativeLibrary(nullptr);
}

}  // namespace
