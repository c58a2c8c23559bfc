#!/usr/bin/env bash
# fuzz.sh TARGET SECONDS: fuzzes a target of tests/fuzz with libFuzzer, starting from its committed
# corpus. New inputs are kept in build/fuzz/found/TARGET; those that crash are named crash-*.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

corpus=tests/fuzz/corpus/${1:-}
if [ $# -ne 2 ] || [ ! -d "$corpus" ] || [ -z "$1" ]; then
    echo "usage: fuzz.sh {$(basename -a tests/fuzz/corpus/* | paste -sd'|')} SECONDS" >&2
    exit 2
fi

scripts/setup.sh fuzz
scripts/build.sh fuzz "fuzz_$1"
found=build/fuzz/found/$1
mkdir -p "$found"
max_len=9000
[ "$1" != preset_json ] || max_len=40000  # a bank as text
# Targets that read files write them to a memory file system.
[ ! -d /dev/shm ] || export TMPDIR=/dev/shm
build/fuzz/bin/fuzz_"$1" -max_total_time="$2" -artifact_prefix="$found/" -max_len="$max_len" -timeout=20 \
    -print_final_stats=1 "$found" "$corpus"
