#!/usr/bin/env bash
# build.sh PRESET [TARGET...]: configures and builds. Prints nothing unless something fails.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."
preset=$1
shift
targets=()
[ $# -eq 0 ] || targets=(--target "$@")

mkdir -p build
log=build/$preset.log
{ cmake --preset "$preset" && cmake --build --preset "$preset" "${targets[@]}"; } > "$log" 2>&1 ||
    { cat "$log" >&2; exit 1; }
