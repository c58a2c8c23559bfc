#include "platform/NativeModule.h"

#include "platform/NativeLibrary.h"
#include "platform/NativePath.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

/// Opens the sample library by this path. @return the path that the library reports for itself.
std::string askSample(const std::string &path) {
    std::string reason;
    void *library = openNativeLibrary(path, reason);
    if (library == nullptr)
        return "not opened: " + reason;
    const auto ask = reinterpret_cast<std::size_t (*)(char *, std::size_t)>(
        nativeSymbol(library, "sampleModulePath"));
    char text[4096];
    const std::string answer(text, ask(text, sizeof text));
    closeNativeLibrary(library);
    return answer;
}

TEST(NativeModule, ReturnsThePathOfTheProgram) {
    const fs::path path = nativeModulePath(nullptr);
    EXPECT_EQ(path.stem(), "platform_tests");
    EXPECT_TRUE(path.is_absolute());
    EXPECT_TRUE(fs::exists(path));
}

TEST(NativeModule, CodeInTheProgramBelongsToTheProgram) {
    ASSERT_NE(nativeModuleHandle(), nullptr);
    EXPECT_EQ(nativeModulePath(nativeModuleHandle()), nativeModulePath(nullptr));
}

TEST(NativeModule, CodeInALibraryBelongsToTheLibrary) {
    const fs::path path = askSample(SAMPLE_MODULE);
    ASSERT_TRUE(path.is_absolute()) << path;
    EXPECT_EQ(path.filename(), fs::path(SAMPLE_MODULE).filename());
    EXPECT_TRUE(fs::equivalent(path, SAMPLE_MODULE));
}

TEST(NativeModule, ReturnsTheFullPathOfALibraryOpenedByARelativePath) {
    const fs::path before = fs::current_path();
    fs::current_path(fs::path(SAMPLE_MODULE).parent_path());
    const fs::path path = askSample((fs::path(".") / fs::path(SAMPLE_MODULE).filename()).string());
    fs::current_path(before);
    ASSERT_TRUE(path.is_absolute()) << path;
    EXPECT_TRUE(fs::equivalent(path, SAMPLE_MODULE));
}

TEST(NativeModule, AnAddressOutsideEveryModuleHasNoPath) {
    int local = 0;
    EXPECT_EQ(nativeModulePath(&local), "");
}

TEST(NativePath, HasTheSystemsSeparator) {
    ASSERT_EQ(std::string(nativePathSeparator).size(), 1u);
    EXPECT_EQ(nativePathSeparator[0], static_cast<char>(fs::path::preferred_separator));
}

}  // namespace
