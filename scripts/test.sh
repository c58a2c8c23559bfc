#!/usr/bin/env bash
# test.sh: sets up, builds for both systems and runs every test: natively, as Windows programs under
# Wine, and those of the effect, with an audio thread beside a changing one, under ThreadSanitizer.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

scripts/setup.sh test
for preset in linux windows; do
    scripts/build.sh "$preset"
    ctest --preset "$preset"
done
scripts/build.sh tsan effect_tests
ctest --preset tsan -R effect_tests
