#!/usr/bin/env bash
# golden.sh: plays a generated signal through every factory program and rewrites the table of hashes of
# the results, tests/abi/golden.txt. The tests compare with this table, so run it only after an intended
# change of sound.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

scripts/setup.sh run
scripts/build.sh linux print_golden_sound
build/linux/bin/print_golden_sound > build/golden.txt
mv build/golden.txt tests/abi/golden.txt
git diff --stat -- tests/abi/golden.txt
