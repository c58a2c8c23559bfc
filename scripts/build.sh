#!/usr/bin/env bash
# build.sh [--progress] PRESET [TARGET...]: configures and builds. Prints nothing unless something fails;
# with --progress, it shows on standard error what it is building.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."
progress=
if [ "$1" = --progress ]; then
    progress=yes
    shift
fi
preset=$1
shift
targets=()
[ $# -eq 0 ] || targets=(--target "$@")

mkdir -p build
log=build/$preset.log
if [ -n "$progress" ]; then
    cmake --preset "$preset" > "$log" 2>&1 || { cat "$log" >&2; exit 1; }
    cmake --build --preset "$preset" "${targets[@]}" >&2
    exit
fi
{ cmake --preset "$preset" && cmake --build --preset "$preset" "${targets[@]}"; } > "$log" 2>&1 ||
    { cat "$log" >&2; exit 1; }
