#!/usr/bin/env bash
# test.sh: sets up, builds for both systems and runs every test: natively, as Windows programs under
# Wine, and those of the effect, with an audio thread beside a changing one, under ThreadSanitizer.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

scripts/setup.sh test
scripts/build.sh linux
ctest --preset linux
scripts/build.sh windows
# Wine now and then leaves a process waiting for good; a test that fails does so three times.
ctest --preset windows --timeout 120 --repeat until-pass:3
scripts/build.sh tsan effect_tests
ctest --preset tsan -R effect_tests
