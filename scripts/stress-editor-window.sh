#!/usr/bin/env bash
# stress-editor-window.sh [SECONDS]: uses the editor of the built effect at random for SECONDS (default
# 600), by mouse, keys and host calls, on two threads. After each action its chain of modules and its
# values are compared with a model, and sometimes all that it shows with a new editor. During the second
# half its memory must not grow. Runs in the release build and at the same time under the address and
# undefined-behaviour sanitizers, then for a fifth of the time under the thread sanitizer. A failure
# prints the seed; CORVEL_STRESS_SEED repeats it. The tests do the same for ten seconds.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."
seconds=${1:-600}

scripts/setup.sh test
for preset in linux asan tsan; do
    scripts/build.sh "$preset" driven_editor_tests
done

stress() {
    CORVEL_STRESS_SECONDS=$2 "build/$1/bin/driven_editor_tests" --gtest_filter='DrivenStress.*'
}
stress linux "$seconds" &
release=$!
stress asan "$seconds"
wait "$release"
stress tsan "$((seconds / 5))"
