#!/usr/bin/env bash
# bench-windows.sh: builds for Linux and measures what a window costs in a virtual display, beside the
# requests to the X server alone. Prints one table; every number is the minimum over the repetitions.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

scripts/setup.sh test
scripts/build.sh linux windowing_bench
xvfb-run -a -s '-screen 0 1024x768x24 -noreset' build/linux/bin/windowing_bench --benchmark_repetitions=5 --benchmark_min_time=0.05 \
    --benchmark_enable_random_interleaving=true --benchmark_out=build/windows.json \
    --benchmark_out_format=json > build/windows.log 2>&1 || { cat build/windows.log >&2; exit 1; }
bench/sides.py build/windows.json
