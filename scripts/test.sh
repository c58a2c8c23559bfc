#!/usr/bin/env bash
# test.sh: sets up, builds for both systems and runs every test: natively, as Windows programs under
# Wine, and those of the effect, with an audio thread beside a changing one, under ThreadSanitizer.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

scripts/setup.sh test
scripts/build.sh linux
ctest --preset linux
scripts/build.sh windows
# Message boxes want a display.
xvfb-run -a ctest --preset windows
scripts/build.sh tsan effect_tests
ctest --preset tsan -R effect_tests
