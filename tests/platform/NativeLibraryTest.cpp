#include "platform/NativeLibrary.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

TEST(NativeLibrary, FindsExportedSymbols) {
    std::string reason;
    void *library = openNativeLibrary(SAMPLE_MODULE, reason);
    ASSERT_NE(library, nullptr) << reason;
    EXPECT_EQ(reason, "");
    EXPECT_NE(nativeSymbol(library, "sampleModulePath"), nullptr);
    EXPECT_EQ(nativeSymbol(library, "noSuchFunction"), nullptr);
    closeNativeLibrary(library);
}

TEST(NativeLibrary, OpensAFileInTheCurrentFolder) {
    namespace fs = std::filesystem;
    const fs::path before = fs::current_path(), file = SAMPLE_MODULE;
    fs::current_path(file.parent_path());
    std::string reason;
    void *library = openNativeLibrary(file.filename().string(), reason);
    fs::current_path(before);
    EXPECT_NE(library, nullptr) << reason;
    closeNativeLibrary(library);
}

TEST(NativeLibrary, ReportsTheReasonWhenAFileIsRefused) {
    std::string reason;
    EXPECT_EQ(openNativeLibrary("no such folder/no such library", reason), nullptr);
    EXPECT_NE(reason, "");
}

TEST(NativeLibrary, ClosingUnloadsTheLibrary) {
    for (int load = 0; load < 2; ++load) {
        std::string reason;
        void *library = openNativeLibrary(SAMPLE_MODULE, reason);
        ASSERT_NE(library, nullptr) << reason;
        const auto calls = reinterpret_cast<int (*)()>(nativeSymbol(library, "sampleCalls"));
        EXPECT_EQ(calls(), 1) << "the library was not unloaded";
        closeNativeLibrary(library);
    }
}

}  // namespace
