#include "abi/GoldenSound.h"

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

TEST(GoldenSound, OfEveryProgramIsUnchanged) {
    std::ifstream file(CORVEL_GOLDEN_FILE);
    std::vector<std::string> expected;
    for (std::string line; std::getline(file, line);) {
        if (!line.starts_with('#'))
            expected.push_back(line);
    }
    EXPECT_THAT(goldenSound(), testing::ElementsAreArray(expected))
        << "if the sound was changed on purpose, run scripts/golden.sh to rewrite the table";
}
