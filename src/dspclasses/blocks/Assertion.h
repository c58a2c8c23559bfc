#pragma once

/// Prints the expression, the source's name and the line on standard error and aborts.
[[noreturn]] void stopOnFailedAssertion(const char *expression, const char *source, int line);

/// An assertion that stays active in every build. [any thread]
/// @param expression, source, line  printed in the report.
inline void assertAlways(bool holds, const char *expression, const char *source, int line) {
    if (!holds) [[unlikely]]
        stopOnFailedAssertion(expression, source, line);
}
