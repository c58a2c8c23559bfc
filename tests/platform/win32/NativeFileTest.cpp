#include "platform/NativeFile.h"

#include "CTemporaryFolder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <windows.h>

namespace {

TEST(NativeFileOnWindows, ReturnsTheSystemsAttributes) {
    const CTemporaryFolder folder;
    const std::string path = (folder / "hidden").string();
    std::ofstream{path};
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(nativeFile(path)->attributes & FILE_ATTRIBUTE_HIDDEN, DWORD{FILE_ATTRIBUTE_HIDDEN});
    static_assert(nativeFolderAttribute == FILE_ATTRIBUTE_DIRECTORY);
}

TEST(NativeFileOnWindows, ReadsAccessAndWriteTimeExactly) {
    const CTemporaryFolder folder;
    const std::string path = (folder / "Voice.wav").string();
    const HANDLE handle = CreateFileA(path.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, CREATE_NEW,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(handle, INVALID_HANDLE_VALUE);
    constexpr std::uint64_t access = 126'444'736'001'234'567, write = 131'444'736'009'876'543;
    const auto parts = [](std::uint64_t ticks) {
        return FILETIME{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
    };
    const FILETIME accessTime = parts(access), writeTime = parts(write);
    const bool isSet = SetFileTime(handle, nullptr, &accessTime, &writeTime) != 0;
    CloseHandle(handle);
    ASSERT_TRUE(isSet);
    const auto file = nativeFile(path);
    EXPECT_EQ(file->lastAccessTime, access);
    EXPECT_EQ(file->lastWriteTime, write);
}

TEST(NativeFileOnWindows, TakesTheFirstMatchOfAPattern) {
    const CTemporaryFolder folder;
    std::ofstream{folder / "Voice.wav"};
    EXPECT_EQ(nativeFile((folder / "*.wav").string())->name, "Voice.wav");
}

TEST(NativeFileOnWindows, PipesAndDevicesAreNotRegularFiles) {
    EXPECT_FALSE(isNativeRegularFile("NUL"));
    EXPECT_FALSE(isNativeRegularFile("CON"));
    const char *name = R"(\\.\pipe\corvel-test)";
    const HANDLE pipe = CreateNamedPipeA(name, PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE | PIPE_NOWAIT, 1,
                                         16, 16, 0, nullptr);
    ASSERT_NE(pipe, INVALID_HANDLE_VALUE);
    EXPECT_FALSE(isNativeRegularFile(name));
    const HANDLE client = CreateFileA(name, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(client, INVALID_HANDLE_VALUE) << "the pipe's only instance is still free";
    CloseHandle(client);
    CloseHandle(pipe);
}

}  // namespace
