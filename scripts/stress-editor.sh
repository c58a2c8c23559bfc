#!/usr/bin/env bash
# stress-editor.sh [SECONDS]: sets parameters on two threads for SECONDS (default 10) while a third opens
# an editor, drags a knob, paints and closes it. Runs under ThreadSanitizer; the last values set must be
# shown in the end. The tests do the same for one second.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

scripts/setup.sh test
scripts/build.sh tsan windowing_tests
CORVEL_STRESS_SECONDS=${1:-10} build/tsan/bin/windowing_tests --gtest_filter='CVstWindowStress.*'
