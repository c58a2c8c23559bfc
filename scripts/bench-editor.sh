#!/usr/bin/env bash
# bench-editor.sh: builds for Linux and measures what the editor of the built effect costs: the time from
# the call of the host to the last pixel in a virtual display, and memory. Prints one table with the least
# and the median of the repetitions, what is wanted, and the least that a window and a picture of the same
# size take by bare requests to the X server.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

scripts/setup.sh test
scripts/build.sh linux editor_bench
build/linux/bin/editor_bench --benchmark_repetitions=25 --benchmark_min_time=0.01 \
    --benchmark_out=build/editor.json --benchmark_out_format=json > build/editor.log 2>&1 ||
    { cat build/editor.log >&2; exit 1; }
bench/editor.py build/editor.json
