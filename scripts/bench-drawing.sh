#!/usr/bin/env bash
# bench-drawing.sh: builds for Linux and measures what the editor is drawn with, each operation beside
# the same by bare calls of cairo. Prints one table; every number is the minimum over the repetitions.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

scripts/setup.sh test
scripts/build.sh linux graphics_bench
build/linux/bin/graphics_bench --benchmark_repetitions=5 --benchmark_min_time=0.05 \
    --benchmark_enable_random_interleaving=true --benchmark_out=build/drawing.json \
    --benchmark_out_format=json > build/drawing.log 2>&1 || { cat build/drawing.log >&2; exit 1; }
bench/sides.py build/drawing.json
