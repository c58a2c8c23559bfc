#include "dspclasses/blocks/Assertion.h"

#include <cstdio>
#include <cstdlib>

void stopOnFailedAssertion(const char *expression, const char *source, int line) {
    std::fprintf(stderr, "Assertion failed: %s, file %s, line %d\n", expression, source, line);
    std::fflush(stderr);
    std::abort();
}
