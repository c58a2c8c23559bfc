#!/usr/bin/env bash
# soak.sh [CALLS [SEED]]: makes CALLS (default 1000000) random calls to the built effect: parameters,
# programs, chunks, tempo, mains off and on, blocks of 1 to 4096 frames in both precisions. After each
# call its output must equal the plain version to the bit, and during the second half its memory must
# not grow. The tests do the same with fewer calls.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

scripts/setup.sh run
scripts/build.sh linux abi_tests
CORVEL_SOAK_CALLS=${1:-1000000} CORVEL_SOAK_SEED=${2:-1} \
    build/linux/bin/abi_tests --gtest_filter='Soak.*'
