#!/usr/bin/env bash
# golden.sh: writes the table of what every factory program makes of a generated signal anew. For a
# change of sound that was meant; the tests compare with the table.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

scripts/setup.sh run
scripts/build.sh linux print_golden_sound
build/linux/bin/print_golden_sound > build/golden.txt
mv build/golden.txt tests/abi/golden.txt
git diff --stat -- tests/abi/golden.txt
