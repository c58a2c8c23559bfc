#include "corvel/files/CSystemLibrary.h"

#include "corvel/console/Errors.h"

#include <gtest/gtest.h>
#include <string>

using namespace Tessitor::Tool;

namespace {

std::string refusal(const char *name, const char *functionName) {
    try {
        CSystemLibrary(name, "numbers are rounded with it").function(functionName);
    } catch (const CJobError &error) {
        return error.what();
    }
    return "";
}

}  // namespace

TEST(CSystemLibrary, FindsItsFunctions) {
    double (*const roundDown)(double) =
        CSystemLibrary("libm.so.6", "numbers are rounded with it").function("floor");
    EXPECT_EQ(roundDown(2.5), 2.0);
}

TEST(CSystemLibrary, ThatLacksAFunctionIsTooOld) {
    EXPECT_EQ(refusal("libm.so.6", "roundEverything"),
              "libm.so.6: is too old; it has no roundEverything");
}
