#!/usr/bin/env bash
# test.sh: sets up, builds for both systems and runs all tests, natively and as Windows programs under
# Wine. The tests of the effect, some of which use it on two threads at once, run again under
# ThreadSanitizer.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

scripts/setup.sh test
scripts/build.sh linux
ctest --preset linux
scripts/build.sh windows
# The tests of message boxes need a display.
xvfb-run -a ctest --preset windows
scripts/build.sh tsan effect_tests
ctest --preset tsan -R effect_tests
