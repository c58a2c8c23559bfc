#pragma once

#include "tools/support/Program.h"

#include <algorithm>
#include <gmock/gmock.h>

/// Expects that a run failed with a status, and printed one line of error with certain words and
/// nothing else.
inline void expectOneError(const SProgramRun &run, int status, const std::string &words) {
    EXPECT_EQ(run.status, status);
    EXPECT_THAT(run.errors, testing::StartsWith("corvel: "));
    EXPECT_THAT(run.errors, testing::HasSubstr(words));
    EXPECT_EQ(std::count(run.errors.begin(), run.errors.end(), '\n'), 1) << run.errors;
    EXPECT_EQ(run.out, "");
}
