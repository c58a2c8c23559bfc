#!/usr/bin/env bash
# sanitize.sh: runs all tests under the address, undefined-behaviour and thread sanitizers. Takes much
# longer than test.sh.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

scripts/setup.sh test
for preset in asan tsan; do
    scripts/build.sh "$preset"
    ctest --preset "$preset" --timeout 1800
done
