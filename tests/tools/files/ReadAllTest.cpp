#include "corvel/files/ReadAll.h"

#include "corvel/console/Errors.h"
#include "tools/support/CTemporaryFolder.h"

#include <gtest/gtest.h>

using namespace Tessitor::Tool;

namespace {

std::string refusal(const std::string &file) {
    try {
        readAll(file);
    } catch (const CJobError &error) {
        return error.what();
    }
    return "";
}

}  // namespace

TEST(ReadAll, ReturnsAllBytes) {
    const CTemporaryFolder folder;
    std::string bytes(200001, 'x');
    bytes[70000] = '\0';
    writeFile(folder / "file", bytes);
    EXPECT_TRUE(readAll(folder / "file") == bytes);
    writeFile(folder / "file", "");
    EXPECT_EQ(readAll(folder / "file"), "");
}

TEST(ReadAll, AFileThatCannotBeReadIsNamed) {
    const CTemporaryFolder folder;
    const std::string missing = folder / "missing", itself = folder.path();
    EXPECT_EQ(refusal(missing), missing + ": no such file");
    EXPECT_EQ(refusal(itself), itself + ": cannot be read (Is a directory)");
}
