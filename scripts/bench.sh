#!/usr/bin/env bash
# bench.sh [NAME]: builds for Linux and measures every module and factory program, or those whose name
# matches the regular expression NAME, each beside its plain scalar version. Prints one table. The input
# is seeded noise shaped like speech; every number is the minimum over the repetitions.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

scripts/setup.sh run
scripts/build.sh linux dspclasses_bench
build/linux/bin/dspclasses_bench --benchmark_filter="^[^/]*(${1:-})[^/]*/" \
    --benchmark_repetitions=5 --benchmark_min_time=0.02 --benchmark_enable_random_interleaving=true \
    --benchmark_out=build/bench.json --benchmark_out_format=json > build/bench.log 2>&1 ||
    { cat build/bench.log >&2; exit 1; }
bench/table.py build/bench.json
