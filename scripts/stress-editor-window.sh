#!/usr/bin/env bash
# stress-editor-window.sh [SECONDS]: uses the editor of the built effect at random for SECONDS (default
# 600), by mouse, keys and host calls, and compares its chain of modules with a model after each
# action. Runs in the release build and at the same time under AddressSanitizer. A failure prints the
# seed; CORVEL_STRESS_SEED repeats it. The tests do the same for ten seconds.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

scripts/setup.sh test
export CORVEL_STRESS_SECONDS=${1:-600}
runs=()
for preset in linux asan; do
    scripts/build.sh "$preset" driven_editor_tests
    "build/$preset/bin/driven_editor_tests" --gtest_filter='DrivenStress.*' &
    runs+=($!)
done
for run in "${runs[@]}"; do
    wait "$run"
done
