#include "corvel/effect/CEffectLibrary.h"

#include "corvel/console/Errors.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/Program.h"

#include <gmock/gmock.h>

using namespace Tessitor::Tool;
using testing::HasSubstr;

namespace {

std::string refusal(const std::filesystem::path &file) {
    try {
        const CEffectLibrary library(file);
    } catch (const CJobError &error) {
        return error.what();
    }
    return "";
}

}  // namespace

TEST(CEffectLibrary, FindsTheEntryUnderBothNames) {
    EXPECT_EQ(CEffectLibrary(testEffect("Whole")).entryNames(),
              std::vector<std::string>{"VSTPluginMain"});
    EXPECT_EQ(CEffectLibrary(testEffect("OldEntry")).entryNames(),
              std::vector<std::string>{"main"});
}

TEST(CEffectLibrary, ANameWithoutAFolderMeansTheCurrentFolder) {
    const CTemporaryFolder folder;
    std::filesystem::copy(testEffect("Whole"), folder / "Here.so");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    EXPECT_EQ(refusal("Here.so"), "");
    std::filesystem::current_path(before);
}

TEST(CEffectLibrary, RefusesAFileThatIsNotAnEffect) {
    const CTemporaryFolder folder;
    EXPECT_THAT(refusal(folder / "missing.so"), HasSubstr("missing.so: no such file"));
    EXPECT_THAT(refusal(folder.path()), HasSubstr(": not a file"));
    writeFile(folder / "text.so", "not a library");
    EXPECT_THAT(refusal(folder / "text.so"), HasSubstr("text.so: cannot be loaded as an effect"));
    EXPECT_THAT(refusal(testEffect("NoEntry")),
                HasSubstr("NoEntry.so: not a VST 2 effect (exports no VSTPluginMain)"));
}

TEST(CEffectLibrary, SaysWhichLibraryAnEffectLacks) {
    const CTemporaryFolder folder;
    std::string bytes = readFile(testEffect("Whole"));
    bytes.replace(bytes.find("libc.so.6"), 9, "libc.so.0");
    writeFile(folder / "lacking.so", bytes);
    EXPECT_THAT(refusal(folder / "lacking.so"),
                HasSubstr("lacking.so: cannot be loaded as an effect (libc.so.0: cannot open"));
}

TEST(CEffectLibrary, RefusesALibraryThatIsCutShortAnywhere) {
    const CTemporaryFolder folder;
    const std::size_t length = std::filesystem::file_size(testEffect("Whole"));
    copyHead(testEffect("Whole"), folder / "short.so", length - 1);
    EXPECT_THAT(refusal(folder / "short.so"), HasSubstr("short.so: truncated"));
    for (std::size_t bytes = 0; bytes < length; bytes += 1 + bytes / 5) {
        copyHead(testEffect("Whole"), folder / "short.so", bytes);
        EXPECT_THAT(refusal(folder / "short.so"), HasSubstr("cannot be loaded as an effect"))
            << bytes;
    }
}
